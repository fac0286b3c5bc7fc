"""The sections of the detail window, by mouse and keyboard under a real window manager."""
import re
import shutil
import signal
import socket
import unittest

from support.case import ProgramCase
from support.program import Tarvo, write_preferences
from support.waiting import wait_for

WIDTH = 1280
LOGGED = "tarvo.detail=true;tarvo.statusbar=true"
SECTIONS = ["overview", "cpu", "memory", "battery", "disk", "network", "bluetooth", "sensors", "processes", "history"]
# The sidebar: its first row stands below its margin, each row is as high.
FIRST_ROW, ROW_HEIGHT, ROW_MIDDLE = 12, 32, 16
SEARCH_Y = 83
FIRST_TITLE = (240, 130)


class DetailSections(ProgramCase):
    def launch(self, machine=True, preferences=None):
        if machine:
            self.program = self.start(preferences, TARVO_STATUS_BAR="bar", QT_LOGGING_RULES=LOGGED)
        else:
            self.program = Tarvo(self.session, None, {"refreshInterval": 1.0} | (preferences or {}),
                                 TARVO_STATUS_BAR="bar", QT_LOGGING_RULES=LOGGED)
            self.addCleanup(self._check_log, self.program)
        self.program.wait_for_window("DOCK")
        self.program.wait_for_log('painted "CPU')

    def open(self, machine=True, preferences=None):
        self.launch(machine, preferences)
        self.open_window()

    def open_window(self):
        self.click(WIDTH - 40, 13, 3)
        wait_for(lambda: self.program.alive() and self.program.windows("NORMAL"), "the menu")
        wait_for(self.choose_first_row, "the detail window")
        self.window = wait_for(self.detail_window, "the detail window")
        wait_for(self.is_active, "the window to be active")

    def detail_window(self):
        managed = re.findall("0x[0-9a-f]+", self.session.run("xprop", "-root", "_NET_CLIENT_LIST"))
        found = [window for window in managed if '= "Tarvo"' in self.session.run("xprop", "-id", window,
                                                                                "_NET_WM_NAME")
                 and "SKIP_TASKBAR" not in self.session.run("xprop", "-id", window, "_NET_WM_STATE")]
        return found[0] if found else None

    def close_window(self):
        self.press("alt+F4")
        wait_for(lambda: self.program.alive() and not self.detail_window(), "the end of the window")

    def is_active(self):
        return self.window in self.session.run("xprop", "-root", "_NET_ACTIVE_WINDOW")

    # A menu that has only just appeared may miss keys: they are pressed until the window is there.
    def choose_first_row(self):
        if not self.detail_window():
            self.press("Home", "Return")
        return self.detail_window()

    def click_in_window(self, x, y, button=1):
        self.session.run("xdotool", "mousemove", "--window", self.window, str(x), str(y), "click", str(button))

    def wait_for_section(self, name, after=0):
        self.program.wait_for_log(f'^tarvo\\.detail: section "{name}"$', after)

    def select(self, name):
        mark = self.program.mark()
        self.click_in_window(90, FIRST_ROW + SECTIONS.index(name) * ROW_HEIGHT + ROW_MIDDLE)
        self.wait_for_section(name, mark)
        return mark

    def wait_for_table(self, pattern, after=0):
        return self.program.wait_for_log("^tarvo\\.detail: table " + pattern, after)

    def click_first_title(self):
        self.click_in_window(*FIRST_TITLE)

    # Ctrl and the number of a column sort by it, and again the other way; so does a click on its title.
    def sort_both_ways(self, column, first, second, act):
        for direction in (first, second):
            mark = self.program.mark()
            act()
            self.wait_for_table(f"\\d+ of \\d+, column {column} {direction}", mark)

    def test_shows_every_section_by_mouse(self):
        self.open()
        for name in SECTIONS[1:] + SECTIONS[:1]:
            self.select(name)
            self.picture("detail-" + name, window=self.window)

    def test_shows_every_section_by_keyboard(self):
        self.open()
        for name in SECTIONS[1:]:
            mark = self.program.mark()
            self.press("Down")
            self.wait_for_section(name, mark)
        mark = self.program.mark()
        self.press("Home")
        self.wait_for_section("overview", mark)

    def test_switching_the_language_names_the_sidebar_anew_at_once(self):
        self.open(preferences={"appLanguage": "en"})
        self.picture("detail-en", window=self.window)
        mark = self.program.mark()
        write_preferences(self.session, {"refreshInterval": 1.0, "appLanguage": "cs"})
        self.program.wait_for_log('^tarvo\\.detail: sidebar "Přehled"$', mark)
        self.picture("detail-cs", window=self.window)

    def test_sorts_and_searches_the_processes(self):
        for number in range(3):
            self.session.start("python3", "-c", "import time; time.sleep(600)", log="sleeper.log")
        self.open(machine=False)
        mark = self.select("processes")
        self.wait_for_table(r'[1-9]\d* of \d+, column 2 down', mark)
        self.click_in_window(500, 300)
        self.sort_both_ways(0, "up", "down", self.click_first_title)
        for column in range(1, 4):
            self.sort_both_ways(column, "down", "up", lambda number=column + 1: self.press(f"ctrl+{number}"))
        self.press("ctrl+f")
        mark = self.program.mark()
        self.session.run("xdotool", "type", "PYTHON3")
        self.wait_for_table(r'[1-9]\d* of \d+, column 3 up, first "python3', mark)
        self.picture("detail-search", window=self.window)
        mark = self.program.mark()
        self.press("Escape")
        self.wait_for_table(r"(\d+) of \1,", mark)

    def test_ends_a_process_from_the_table(self):
        sleeper = self.session.path("tarvo-sleeper")
        shutil.copy(shutil.which("sleep"), sleeper)
        child = self.session.start(sleeper, "600")
        self.open(machine=False)
        mark = self.select("processes")
        self.wait_for_table(r"[1-9]\d* of", mark)
        self.click_in_window(500, SEARCH_Y)
        mark = self.program.mark()
        self.session.run("xdotool", "type", "TARVO-SLEEP")
        self.wait_for_table(r'1 of \d+, .*first "tarvo-sleeper', mark)
        self.press("Down")
        self.press("Delete")
        wait_for(lambda: self.program.alive() and not self.is_active(), "the question")
        self.picture("detail-question")
        mark = self.program.mark()
        self.press("Return")
        self.assertEqual(-child.wait(30), signal.SIGTERM)
        self.wait_for_table("0 of", mark)

    def test_closing_while_a_section_loads_is_harmless(self):
        self.open(machine=False)
        for name in ("processes", "network", "disk", "sensors", "bluetooth"):
            self.click_in_window(90, FIRST_ROW + SECTIONS.index(name) * ROW_HEIGHT + ROW_MIDDLE)
        self.close_window()
        self.assertEqual(self.program.terminate(), 0)

    def test_sorts_and_searches_the_connections(self):
        with socket.create_server(("127.0.0.1", 0)) as server:
            self.open(machine=False)
            mark = self.select("network")
            self.wait_for_table(r"[1-9]\d* of \d+, column 0 up", mark)
            self.click_in_window(500, 600)
            for column in range(1, 5):
                self.sort_both_ways(column, "up", "down", lambda number=column + 1: self.press(f"ctrl+{number}"))
            self.sort_both_ways(0, "up", "down", self.click_first_title)
            mark = self.program.mark()
            self.press("ctrl+f")
            self.session.run("xdotool", "type", f":{server.getsockname()[1]}")
            self.wait_for_table(r'1 of \d+, .*\|127\.0\.0\.1:', mark)


if __name__ == "__main__":
    unittest.main()
