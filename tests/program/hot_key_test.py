"""The hot key on a real X server, pressed while another program has the keyboard."""
import re
import unittest

from support.case import ProgramCase
from support.panel import HOT_KEY, PanelCase
from support.program import write_preferences
from support.session import Session
from support.shortcuts_portal import WAYLAND, ShortcutsPortal
from support.waiting import wait_for


class HotKey(ProgramCase):
    def start_bar(self, preferences=None, **environment):
        program = self.start(preferences, TARVO_STATUS_BAR="bar", **environment)
        program.wait_for_window("DOCK")
        return program

    def start_active(self, preferences=None):
        program = self.start_bar(preferences)
        program.wait_for_log(r"^tarvo\.hotkey: active$")
        return program

    def presses(self, program):
        return program.log().count("tarvo.hotkey: pressed")

    def wait_for_presses(self, program, count):
        wait_for(lambda: program.alive() and self.presses(program) >= count, f"press {count}:\n{program.log()}")
        self.assertEqual(self.presses(program), count)

    def start_listener(self):
        """A window that has the keyboard and writes down what it hears."""
        self.session.start("xev", "-event", "keyboard", "-event", "focus", log="xev.log")
        self.focus_listener()

    def focus_listener(self):
        def activated():
            windows = self.session.run("xdotool", "search", "--name", "Event Tester").split()
            if windows:
                self.session.run("xdotool", "windowactivate", windows[0])
            return windows and self.session.run("xdotool", "getwindowfocus").split() == windows[:1]

        wait_for(activated, "a listener with the keyboard")

    def heard(self):
        with open(self.session.path("xev.log"), encoding="utf-8") as file:
            return file.read()

    def toggle(self, program, event):
        """Presses the keys and waits for what the popover, which takes the keyboard and gives it back, makes of it."""
        mark = program.mark()
        self.press(HOT_KEY)
        program.wait_for_log(r"^tarvo\.popover: " + event, after=mark)

    def test_is_heard_while_another_window_has_the_keyboard_which_hears_nothing_of_it(self):
        program = self.start_active()
        self.start_listener()
        self.press("a")
        wait_for(lambda: "keysym 0x61, a" in self.heard(), "the letter in the listener")
        self.toggle(program, "shown")
        self.toggle(program, "closed")
        self.wait_for_presses(program, 2)
        self.focus_listener()
        self.press("b")
        wait_for(lambda: "keysym 0x62, b" in self.heard(), "the next letter in the listener")
        self.assertNotIn(", M)", self.heard())

    def test_is_heard_with_every_state_of_the_lock_keys_while_another_window_has_the_keyboard(self):
        program = self.start_active()
        self.start_listener()
        for lock in ("Caps_Lock", "Num_Lock", "Caps_Lock", "Num_Lock"):
            self.press(lock)
            self.toggle(program, "shown")
            self.toggle(program, "closed")
            self.focus_listener()
        self.wait_for_presses(program, 8)
        self.assertEqual(re.findall(r"keysym 0x[46]d, ", self.heard()), [])

    def test_is_heard_once_however_long_it_is_held(self):
        program = self.start_active()
        self.session.run("xdotool", "keydown", "super", "keydown", "shift", "keydown", "m", "sleep", "1.5", "keyup",
                         "m", "keyup", "shift", "keyup", "super")
        self.wait_for_presses(program, 1)
        self.press(HOT_KEY)
        self.wait_for_presses(program, 2)

    def test_is_these_keys_and_no_others(self):
        program = self.start_active()
        for keys in ("m", "shift+m", "super+m", "ctrl+super+shift+m", "alt+super+shift+m", "super+shift+n"):
            self.press(keys)
        self.press(HOT_KEY)
        self.wait_for_presses(program, 1)

    def test_follows_another_keyboard_layout(self):
        program = self.start_active()
        mark = program.mark()
        self.session.run("setxkbmap", "fr")  # the letter stands elsewhere there

        def heard():
            self.press(HOT_KEY)
            return "pressed" in program.log()[mark:]

        wait_for(heard, "a press on the letter's new place")

    def test_keeps_its_grabs_while_the_keyboard_changes_elsewhere(self):
        program = self.start_active()
        for count in range(1, 11):
            self.session.run("setxkbmap", "us")
            self.press(HOT_KEY)
            self.wait_for_presses(program, count)
        self.assertEqual(self.grabs(program), 1)
        self.session.run("setxkbmap", "fr")
        wait_for(lambda: program.alive() and self.grabs(program) == 2, f"new grabs:\n{program.log()}")

    def test_follows_num_lock_to_another_modifier(self):
        program = self.start_active()
        keyboard = self.session.path("keyboard.xkb")
        self.session.run("xkbcomp", "-xkb", self.session.environment["DISPLAY"], keyboard)
        with open(keyboard, encoding="utf-8") as file:
            text, changes = re.subn("modifier_map Mod2(?= { [^}]*<NMLK>)", "modifier_map Mod3", file.read())
        self.assertEqual(changes, 1)
        with open(keyboard, "w", encoding="utf-8") as file:
            file.write(text)
        self.session.run("xkbcomp", keyboard, self.session.environment["DISPLAY"])
        wait_for(lambda: program.alive() and self.grabs(program) == 2, f"new grabs:\n{program.log()}")
        self.press("Num_Lock")
        self.press(HOT_KEY)
        self.wait_for_presses(program, 1)

    def grabs(self, program):
        return program.log().count("tarvo.hotkey: grabs the keys")

    def test_is_free_again_when_the_program_has_ended(self):
        program = self.start_active()
        self.assertEqual(program.terminate(), 0)
        self.start_listener()
        self.press(HOT_KEY)
        wait_for(lambda: ", M)" in self.heard(), "the letter in the listener")

    def test_the_program_goes_on_without_it_when_it_is_taken(self):
        self.start_active()
        other = Session(window_manager=False)
        self.addCleanup(other.end)
        # A second session's program on the first one's screen: another user of the same keys.
        program = self.start_bar(DBUS_SESSION_BUS_ADDRESS=other.environment["DBUS_SESSION_BUS_ADDRESS"])
        program.wait_for_log(r"^tarvo\.hotkey: taken by another program$")
        program.wait_for_painted("CPU 23% · RAM 48%")
        self.press(HOT_KEY)
        self.assertEqual(program.terminate(), 0)


class HotKeyAndItems(PanelCase):
    def centre_of_popover(self, mark):
        left, top, width = (int(value) for value in re.search(r"shown QRect\((\d+),(\d+) (\d+)x",
                                                              self.program.log()[mark:]).groups())
        self.assertGreaterEqual(top, 26)
        return left + width / 2

    def test_toggles_the_popover_under_the_combined_item(self):
        self.start_program()
        mark = self.program.mark()
        self.press_hot_key("shown")
        left, _, width, _ = self.item_place("CPU 23% · RAM 48%")
        self.assertAlmostEqual(self.centre_of_popover(mark), left + width / 2, delta=180)  # as far as the screen goes
        self.press_hot_key("closed")

    def test_toggles_it_under_the_processors_item_of_the_modular_layout_and_does_nothing_without_that(self):
        self.machine.add_battery(57)
        items = {"modularMenuBar": True, "refreshInterval": 1.0}
        items |= {"menubar." + module: True for module in ("battery", "disk", "network")}
        self.start_modular(items)
        self.program.wait_for_painted("0.0 B/s")
        left, _, width, _ = self.item_place("CPU 23%")
        mark = self.program.mark()
        self.press_hot_key("shown")
        self.assertAlmostEqual(self.centre_of_popover(mark), left + width / 2, delta=2)
        self.press_hot_key("closed")

        mark = self.program.mark()
        write_preferences(self.session, items | {"menubar.cpu": False})
        self.screen.wait_until_gone("CPU 23%")
        self.press(HOT_KEY)
        self.program.wait_for_log("^tarvo.hotkey: pressed", after=mark)
        write_preferences(self.session, items)
        self.item_place("CPU 23%")
        self.assertNotIn("tarvo.popover: shown", self.program.log()[mark:])
        self.press_hot_key("shown")


class HotKeyNote(PanelCase):
    """What the settings page says of the hot key, without being opened again."""

    def open_settings(self):
        self.open()
        self.show_settings()

    def test_tells_when_another_program_has_given_the_keys_back(self):
        other = Session(window_manager=False)
        self.addCleanup(other.end)
        holder = self.start(TARVO_STATUS_BAR="tray",
                            DBUS_SESSION_BUS_ADDRESS=other.environment["DBUS_SESSION_BUS_ADDRESS"])
        holder.wait_for_log(r"^tarvo\.hotkey: active$")
        self.start_program()
        self.open_settings()
        self.screen.wait_for_text("Super+Shift+M is used by another program.")
        holder.terminate()
        self.session.run("setxkbmap", "us")  # a reason to try again
        self.screen.wait_for_text("Super+Shift+M opens and closes the panel.")

    def test_tells_of_a_portal_that_comes_late_and_goes(self):
        self.start_program(**WAYLAND)
        self.open_settings()
        self.screen.wait_for_text("The shortcut Super+Shift+M is not available on this desktop.")
        portal = ShortcutsPortal(self.session)
        self.screen.wait_for_text("Super+Shift+M opens and closes the panel.")
        for event in ("closed", "shown"):
            mark = self.program.mark()
            portal.press()
            self.program.wait_for_log("^tarvo.popover: " + event, after=mark)
        portal.stop()
        self.screen.wait_for_text("The shortcut Super+Shift+M is not available on this desktop.")


if __name__ == "__main__":
    unittest.main()
