"""The detail window under a real window manager."""
import re
import unittest

from support.case import ProgramCase
from support.waiting import wait_for

WIDTH = 1280


class DetailWindow(ProgramCase):
    def setUp(self):
        super().setUp()
        self.program = self.start(TARVO_STATUS_BAR="bar")
        self.program.wait_for_window("DOCK")
        self.program.wait_for_painted("CPU 23% · RAM 48%")

    def property(self, window, name):
        return self.session.run("xprop", "-id", window, name)

    def taskbar_windows(self):
        """Windows that a taskbar lists: managed, ordinary and not told to be left out."""
        managed = re.findall("0x[0-9a-f]+", self.session.run("xprop", "-root", "_NET_CLIENT_LIST"))
        return [window for window in managed
                if "NORMAL" in self.property(window, "_NET_WM_WINDOW_TYPE")
                and "SKIP_TASKBAR" not in self.property(window, "_NET_WM_STATE")]

    def menus(self):
        return [window for window in self.program.windows("NORMAL") if hex(int(window)) not in self.taskbar_windows()]

    def open_by_menu(self):
        self.choose_in_menu()
        return self.wait_for_windows(1)[0]

    def choose_in_menu(self):
        self.click(WIDTH - 40, 13, 3)
        wait_for(lambda: self.program.alive() and self.menus(), "the menu")
        wait_for(self.choose_first_row, "the end of the menu")

    # A menu that has only just appeared may miss keys: they are pressed until it is gone.
    def choose_first_row(self):
        if self.program.alive() and self.menus():
            self.press("Home", "Return")
        return not self.menus()

    def wait_for_windows(self, count):
        def listed():
            windows = self.taskbar_windows()
            return self.program.alive() and len(windows) == count and (windows or True)

        return wait_for(listed, f"{count} windows in the taskbar")

    def wait_until_active(self, window):
        wait_for(lambda: window in self.session.run("xprop", "-root", "_NET_ACTIVE_WINDOW"), "an active window")

    def test_has_a_title_and_its_size_and_is_in_the_taskbar_once_it_is_open(self):
        self.assertEqual(self.taskbar_windows(), [])
        window = self.open_by_menu()
        self.assertIn('= "Tarvo"', self.property(window, "_NET_WM_NAME"))
        self.assertIn("minimum size: 760 by 480", self.property(window, "WM_NORMAL_HINTS"))
        geometry = self.session.run("xdotool", "getwindowgeometry", "--shell", window)
        self.assertIn("WIDTH=980\nHEIGHT=640", geometry)

    def test_is_one_however_often_it_is_opened(self):
        window = self.open_by_menu()
        self.wait_until_active(window)
        self.assertEqual(self.open_by_menu(), window)
        self.wait_until_active(window)

    def test_comes_before_another_window_when_it_is_opened_again(self):
        window = self.open_by_menu()
        self.session.start("xev", "-geometry", "600x400+300+200")
        other = hex(int(wait_for(self.other_windows, "another window")[0]))
        wait_for(lambda: self.lowest_first(window, other) == [window, other], "the other window on top")
        self.choose_in_menu()
        self.wait_until_active(window)
        wait_for(lambda: self.lowest_first(window, other) == [other, window], "the window on top")

    def other_windows(self):
        return self.session.run("xdotool", "search", "--onlyvisible", "--name", "Event Tester").split()

    def lowest_first(self, *windows):
        """The windows in the order in which they cover each other."""
        stacked = re.findall("0x[0-9a-f]+", self.session.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING"))
        return [window for window in stacked if window in windows]

    def test_closing_it_leaves_the_program_running(self):
        window = self.open_by_menu()
        self.wait_until_active(window)
        self.press("alt+F4")
        self.wait_for_windows(0)
        mark = self.program.mark()
        self.machine.set_memory(61)
        self.program.wait_for_painted("CPU 23% · RAM 61%", after=mark)
        self.open_by_menu()
        self.assertEqual(self.program.terminate(), 0)


if __name__ == "__main__":
    unittest.main()
