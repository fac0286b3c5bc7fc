"""The hot key on a real X server, pressed while another program has the keyboard."""
import unittest

from support.case import ProgramCase
from support.session import Session
from support.waiting import wait_for

HOT_KEY = "super+shift+m"


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

    def test_is_heard_with_every_state_of_the_lock_keys(self):
        program = self.start_active()
        count = 0
        for lock in ("Caps_Lock", "Num_Lock", "Caps_Lock", "Num_Lock"):
            self.press(lock)
            self.press(HOT_KEY)
            count += 1
            self.wait_for_presses(program, count)

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


if __name__ == "__main__":
    unittest.main()
