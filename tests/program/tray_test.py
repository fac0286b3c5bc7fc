"""The program in the tray of a real panel."""
import shutil
import unittest

from support.case import ProgramCase
from support.pixels import pixels_of
from support.program import write_preferences
from support.waiting import wait_for
from support.xfce import XfcePanel

ITEM_PATH = "/StatusNotifierItem"
ITEM = "org.kde.StatusNotifierItem"
MENU_PATH = "/MenuBar"
MENU = "com.canonical.dbusmenu"
PLATE = (0x2B, 0x2D, 0x31)  # what the pictures of the items stand on
PLATE_SIDE = 22
SETTLED_LOOKS = 5
LIMIT = 60  # seconds


@unittest.skipUnless(shutil.which("xfce4-panel"), "needs xfce4-panel")
class XfceTray(ProgramCase):
    def setUp(self):
        super().setUp()
        self.panel = XfcePanel(self.session)

    def start_in_tray(self, preferences=None, count=1):
        program = self.start(preferences)
        program.wait_for_host("tray panel-2-systray")
        self.wait_for_items(count)
        return program

    def wait_for_items(self, count):
        wait_for(lambda: len(self.panel.items()) == count, f"{count} items in the tray", LIMIT)
        wait_for(lambda: self.plates() == count, f"{count} items on the panel", LIMIT)

    def panel_pixels(self):
        return pixels_of(self.session, *self.panel.geometry())

    def plate_columns(self):
        rows = self.panel_pixels()
        return [x for x in range(len(rows[0])) if sum(row[x] == PLATE for row in rows) > 4]

    def plates(self):
        columns = self.plate_columns()
        return round((columns[-1] - columns[0] + 1) / PLATE_SIDE) if columns else 0

    def plate(self, number):
        """What the item with the number, counted from the left, looks like."""
        columns = self.plate_columns()
        left = columns[0] + number * PLATE_SIDE
        return [row[left:left + PLATE_SIDE - 2] for row in self.panel_pixels()]

    def settled_plates(self, count):
        """What the items look like once nothing has changed for a while."""
        seen = []

        def is_settled():
            seen.append([self.plate(number) for number in range(count)])
            return len(seen) > SETTLED_LOOKS and all(look == seen[-1] for look in seen[-SETTLED_LOOKS:])

        wait_for(is_settled, "items that no longer change")
        return seen[-1]

    def differing_plates(self, before):
        """Numbers of the items that look different, from the left."""
        return [number for number, look in enumerate(before) if self.plate(number) != look]

    def item_property(self, item, name):
        return self.session.bus_property(item, ITEM_PATH, ITEM, name)

    def tool_tips(self):
        tips = [self.item_property(item, "ToolTip") for item in self.panel.items()]
        return {(title, text) for _, _, title, text in filter(None, tips)}

    def wait_for_tool_tips(self, *texts):
        expected = {("Tarvo", text) for text in texts}
        wait_for(lambda: self.tool_tips() == expected, f"{expected}, last seen {self.tool_tips()}")

    def menu_rows(self):
        """Number and properties of each row of the menu of the first item."""
        layout = self.session.bus_call(self.panel.items()[0], MENU_PATH, MENU, "GetLayout", "iias", "0", "-1", "0")
        rows = [row["data"] for row in layout[1][2]]
        return [(row[0], {name: value["data"] for name, value in row[1].items()}) for row in rows]

    def menu_labels(self):
        return [properties.get("label", properties.get("type")) for _, properties in self.menu_rows()]

    def choose(self, label):
        number = next(number for number, properties in self.menu_rows() if properties.get("label") == label)
        self.session.bus_call(self.panel.items()[0], MENU_PATH, MENU, "Event", "isvu", str(number), "clicked", "i",
                              "0", "0")

    def picture_of_panel(self, name):
        left, top, _, height = self.panel.geometry()
        self.picture(name, crop=f"160x{height}+{left}+{top}")

    def test_shows_one_item_with_what_its_tool_tip_says(self):
        self.start_in_tray()
        self.wait_for_tool_tips("CPU: 23%\nMemory: 48%")

    def test_repaints_the_item_when_a_figure_changes(self):
        self.start_in_tray()
        self.wait_for_tool_tips("CPU: 23%\nMemory: 48%")
        before = self.plate(0)
        self.machine.cpu = 71
        wait_for(lambda: self.plate(0) != before, "another picture")

    def test_shows_an_item_for_each_module_in_their_order(self):
        self.start_in_tray({"modularMenuBar": True, "menubar.network": True}, count=3)
        self.wait_for_tool_tips("CPU: 23%", "Memory: 48%", "Network: 0.0 B/s")
        before = self.settled_plates(3)
        self.picture_of_panel("tray-xfce")
        self.machine.set_memory(75)
        wait_for(lambda: self.differing_plates(before), "another picture")
        self.wait_for_tool_tips("CPU: 23%", "Memory: 75%", "Network: 0.0 B/s")
        self.settled_plates(3)
        self.assertEqual(self.differing_plates(before), [1])

    def test_follows_the_layout_and_the_language(self):
        self.start_in_tray()
        write_preferences(self.session, {"refreshInterval": 1.0, "modularMenuBar": True, "appLanguage": "cs"})
        self.wait_for_items(2)
        self.wait_for_tool_tips("CPU: 23%", "Paměť: 48%")
        self.assertEqual(self.menu_labels(), ["Otevřít detailní přehled…", "separator", "Ukončit"])
        write_preferences(self.session, {"refreshInterval": 1.0, "appLanguage": "en"})
        self.wait_for_items(1)
        self.wait_for_tool_tips("CPU: 23%\nMemory: 48%")
        self.assertEqual(self.menu_labels(), ["Open Detail Window…", "separator", "Quit"])

    def test_quit_in_the_menu_ends_the_program(self):
        program = self.start_in_tray()
        self.choose("Quit")
        self.assertEqual(program.wait_for_end(), 0)
        wait_for(lambda: self.panel.items() == [], "an empty tray")

    def item_middle(self):
        left, top, _, height = self.panel.geometry()
        return left + self.plate_columns()[0] + PLATE_SIDE // 2, top + height // 2

    def panel_menus(self):
        found = self.session.run("xdotool", "search", "--onlyvisible", "--class", "xfce4-panel|wrapper").split()
        return [window for window in found if "MENU" in self.session.run("xprop", "-id", window, "_NET_WM_WINDOW_TYPE")]

    # A menu that has only just appeared may miss keys: they are pressed until it is gone.
    def close_menu(self):
        if self.panel_menus():
            self.press("Escape")
        return not self.panel_menus()

    def test_a_right_click_opens_the_menu_and_a_left_click_then_the_popover(self):
        program = self.start_in_tray()
        self.click(*self.item_middle(), 3)
        wait_for(self.panel_menus, "the panel's menu of the item")
        self.picture("tray-menu")
        wait_for(self.close_menu, "the end of the menu")
        mark = program.mark()
        self.click(*self.item_middle(), 1)
        program.wait_for_log("^tarvo.popover: shown", after=mark)
        self.assertEqual(self.panel_menus(), [])

    def test_moves_to_its_own_bar_while_there_is_no_tray(self):
        program = self.start_in_tray()
        mark = program.mark()
        self.panel.kill()
        program.wait_for_host("bar", after=mark)
        program.wait_for_window("DOCK")
        program.wait_for_painted("CPU 23% · RAM 48%", after=mark)
        mark = program.mark()
        self.panel.start()
        program.wait_for_host("tray panel-2-systray", after=mark)
        self.wait_for_items(1)
        wait_for(lambda: program.alive() and not program.windows("DOCK"), "the end of the bar")


if __name__ == "__main__":
    unittest.main()
