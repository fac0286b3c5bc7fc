"""The popover: opened by the status item, used by pointer and keyboard, closed."""
import json
import re
import unittest

from support import accessible
from support.panel import PanelCase, WIDTH
from support.program import Tarvo, preference_path
from support.waiting import wait_for

# The setting behind each tile, the tile's name, and what only its card or row shows: every second one, and the rest.
TILES = [("show.gauges", "Gauges", "GPU 0%"), ("show.history", "History Graph", "14d"),
         ("show.power", "Power", "Power Draw"), ("show.temps", "Temperatures", "CPU Temperature"),
         ("show.disk", "Disk", "GB free of"), ("show.network", "Network", "Total Transferred"),
         ("show.ips", "IP Addresses", "Local IP"), ("show.battery", "Battery", "Battery 57%"),
         ("show.cores", "CPU Cores", "CPU Cores"), ("show.processes", "Top Processes", "Top Processes"),
         ("show.netProcesses", "Network by Process", "since process launch"),
         ("show.timeMachine", "Backup", "No backup yet"),
         ("show.bluetoothBattery", "Bluetooth Accessories", "Bluetooth Accessories"),
         ("show.quickActions", "Quick Actions", "Trash")]
# Rows that go with the card in which they stand.
ROWS = {"Power Draw": "CPU Temperature", "Local IP": "Total Transferred"}


class Popover(PanelCase):
    def test_opens_under_its_item_and_closes_by_it(self):
        self.start_program()
        window = self.open()
        geometry = self.session.run("xdotool", "getwindowgeometry", "--shell", window)
        left, top = (int(re.search(name + r"=(\d+)", geometry)[1]) for name in "XY")
        self.assertGreaterEqual(top, 26)
        self.assertLess(top, 40)
        self.assertGreater(left, WIDTH - 400)
        self.screen.wait_for("CPU 23%, —")
        self.screen.wait_for("Memory 48%, 3.7 / 8 GB")
        mark = self.program.mark()
        self.click_item()
        self.wait_until_closed(mark)
        self.open()

    def test_shows_each_reading_while_it_is_open(self):
        self.start_program()
        self.open()
        self.machine.cpu = 61
        self.machine.set_memory(75)
        self.screen.wait_for("CPU 61%, —")
        self.screen.wait_for("Memory 75%, 5.7 / 8 GB")

    def test_escape_closes_it(self):
        self.start_program()
        self.open()
        self.close_by_key()

    def test_a_click_on_another_window_closes_it(self):
        self.start_program()
        self.session.start("xev", "-geometry", "200x200+100+300")
        wait_for(lambda: self.session.run("xdotool", "search", "--onlyvisible", "--name", "Event Tester"),
                 "another window")
        self.open()
        mark = self.program.mark()
        self.click(200, 400, 1)
        self.wait_until_closed(mark)
        self.open()

    def test_nothing_is_painted_in_it_once_it_is_closed(self):
        self.start_program()
        self.open()
        self.screen.wait_for("CPU 23%, —")
        self.close_by_key()
        mark = self.program.mark()
        for memory in (50, 52, 54):
            self.machine.set_memory(memory)
            self.program.wait_for_painted(f"CPU 23% · RAM {memory}%", after=mark)
        painted = re.findall("^tarvo.paint: .*", self.program.log()[mark:], re.MULTILINE)
        self.assertNotEqual(painted, [])
        self.assertEqual([line for line in painted if "BarItemView" not in line], [])

    def test_is_used_by_keyboard_alone(self):
        self.start_program()
        self.open()
        self.screen.wait_for("Open Detail Window…", focused=True)
        self.press("Tab")
        self.screen.wait_for("Settings", focused=True)
        self.press("Tab")
        self.screen.wait_for("Live", focused=True)
        self.press("shift+Tab")
        self.press("space")
        self.screen.wait_for("Back")
        self.press("Escape")
        wait_for(lambda: not self.program.windows("UTILITY"), "the end of the popover's window")

    def test_the_detail_button_opens_the_window_and_closes_the_popover(self):
        self.start_program()
        self.open()
        mark = self.program.mark()
        self.click_widget("Open Detail Window…")
        self.program.wait_for_window("NORMAL")
        self.wait_until_closed(mark)

    def test_quit_ends_the_program(self):
        self.start_program()
        self.open()
        self.click_widget("Quit")
        self.assertEqual(self.program.wait_for_end(), 0)


class Settings(PanelCase):
    def stored(self):
        with open(preference_path(self.session), encoding="utf-8") as file:
            return json.load(file)

    def test_each_tile_takes_its_card_away_and_brings_it_back(self):
        self.machine.add_battery(57)
        self.start_program({key: True for key, _, _ in TILES})
        self.open()
        self.screen.wait_for_text(*(shown for _, _, shown in TILES))
        for half, rest in ((TILES[::2], TILES[1::2]), (TILES[1::2], TILES[::2])):
            gone = [shown for _, _, shown in half]
            self.press_tiles(half, False)
            self.screen.wait_until_gone(*gone)
            self.screen.wait_for_text(*(shown for _, _, shown in rest if ROWS.get(shown) not in gone))
            self.press_tiles(half, True)
            self.screen.wait_for_text(*gone)

    # Some names stand on the tiles of the bar's items too, which come first.
    def press_tiles(self, tiles, wanted):
        self.show_settings()
        for key, tile, _ in tiles:
            before = self.stored()
            self.screen.press(tile, role="check box")
            wait_for(lambda key=key: self.stored()[key] is wanted, f"{tile} in the preferences")
            self.assertEqual(self.stored(), before | {key: wanted})
        self.show_stats()

    def test_the_language_changes_the_open_page(self):
        self.start_program()
        self.open()
        self.show_settings()
        self.screen.wait_for_text("IN THE PANEL")
        self.screen.press(next(name for name in self.screen.names() if name.endswith("CS")))
        self.screen.wait_for_text("V PANELU PO ROZKLIKNUTÍ")
        self.assertNotIn("IN THE PANEL", self.screen.text())
        self.screen.press("Zpět")
        self.screen.wait_for("Paměť 48%, 3.7 / 8 GB")
        self.assertEqual(self.stored()["appLanguage"], "cs")

    def test_a_change_survives_a_restart(self):
        self.start_program()
        self.open()
        self.show_settings()
        self.screen.press("Disk", role="check box")
        self.screen.press("CPU above +")
        wait_for(lambda: self.stored().get("cpuAlertThreshold") == 95, "the stored threshold")
        self.close_by_key()
        self.assertEqual(self.program.terminate(), 0)
        self.program = Tarvo(self.session, self.machine, TARVO_STATUS_BAR="bar", **accessible.ENVIRONMENT)
        self.addCleanup(self._check_log, self.program)
        self.program.wait_for_window("DOCK")
        self.open()
        self.screen.wait_for_text("Total Transferred")
        self.assertNotIn("GB free of", self.screen.text())
        self.show_settings()
        self.screen.wait_for_text("95 %")

    def test_what_the_bar_shows_follows_at_once(self):
        self.start_program()
        self.open()
        self.show_settings()
        mark = self.program.mark()
        self.click_widget("CPU", role="check box")
        self.program.wait_for_painted("RAM 48%", after=mark)

    def test_the_start_with_the_session_is_a_desktop_entry(self):
        self.start_program()
        self.open()
        self.show_settings()
        entry = self.session.path("config", "autostart", "tarvo.desktop")
        self.screen.press("Launch at Login", role="check box")
        self.screen.wait_for("Launch at Login", role="check box", checked=True)
        with open(entry, encoding="utf-8") as file:
            self.assertIn("[Desktop Entry]", file.read())


class Clicks(PanelCase):
    def use_both_buttons(self, x):
        """The right one opens the menu, the left one after it the popover and no menu."""
        self.click(x, 13, 3)
        self.program.wait_for_window("POPUP_MENU")
        wait_for(self.close_menu, "the end of the menu")
        mark = self.program.mark()
        self.click_item(x)
        self.program.wait_for_log("^tarvo.popover: shown", after=mark)
        wait_for(lambda: self.program.windows("UTILITY"), "the popover's window")
        self.assertEqual(self.program.windows("POPUP_MENU"), [])
        mark = self.program.mark()
        self.click_item(x)
        self.wait_until_closed(mark)

    # A menu that has only just appeared may miss keys: they are pressed until it is gone.
    def close_menu(self):
        if self.program.windows("POPUP_MENU"):
            self.press("Escape")
        return not self.program.windows("POPUP_MENU")

    def test_the_right_one_opens_the_menu_and_the_left_one_the_popover_on_the_combined_item(self):
        self.start_program()
        self.use_both_buttons(WIDTH - 40)

    def test_they_do_the_same_on_each_of_the_modules_items(self):
        self.start_modular()
        for x in (WIDTH - 40, WIDTH - 90):
            self.use_both_buttons(x)


class ModularItems(PanelCase):
    def test_each_item_opens_it_and_another_closes_it(self):
        self.start_modular()
        self.open()
        mark = self.program.mark()
        self.click_item(WIDTH - 90)
        self.wait_until_closed(mark)


if __name__ == "__main__":
    unittest.main()
