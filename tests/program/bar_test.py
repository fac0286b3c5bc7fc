"""The program's own bar on a real X server."""
import colorsys
import math
import re
import shutil
import signal
import unittest

from support.case import ProgramCase
from support.pixels import pixels_of
from support.program import write_preferences
from support.waiting import wait_for
from support.xfce import UPPER_EDGE, XfcePanel

WIDTH = 1280
BAR = f"{WIDTH}x26+0+0"
# Ends of the hues, from 0 to 1, in their order.
HUES = ((0.04, "red"), (0.14, "orange"), (0.25, "yellow"), (0.46, "green"), (0.68, "blue"), (0.88, "purple"), (1, "red"))


def hue_of(pixel):
    """The name of a colour's hue; absent for what is nearly grey."""
    hue, saturation, value = colorsys.rgb_to_hsv(*(part / 255 for part in pixel))
    if saturation < 0.5 or value < 0.3:
        return None
    return next(name for end, name in HUES if hue <= end)


class Bar(ProgramCase):
    def start_bar(self, preferences=None, **environment):
        program = self.start(preferences, TARVO_STATUS_BAR="bar", **environment)
        program.wait_for_window("DOCK")
        return program

    def property(self, window, name):
        return self.session.run("xprop", "-id", window, name)

    def test_is_a_dock_that_reserves_its_strip_and_has_no_taskbar_entry(self):
        program = self.start_bar()
        dock = program.wait_for_window("DOCK")
        self.assertIn("= 0, 0, 26, 0, 0, 0, 0, 0, 0, 1279, 0, 0", self.property(dock, "_NET_WM_STRUT_PARTIAL"))
        self.assertIn("SKIP_TASKBAR", self.property(dock, "_NET_WM_STATE"))
        self.assertIn("4294967295", self.property(dock, "_NET_WM_DESKTOP"))
        geometry = self.session.run("xdotool", "getwindowgeometry", "--shell", dock)
        self.assertIn("X=0\nY=0\nWIDTH=1280\nHEIGHT=26", geometry)
        wait_for(lambda: "0, 26, 1280, 694" in self.session.run("xprop", "-root", "_NET_WORKAREA"), "the work area")

    def place(self, window):
        values = dict(line.split("=") for line in self.session.run("xdotool", "getwindowgeometry", "--shell", window).split())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    @unittest.skipUnless(shutil.which("xfce4-panel"), "needs xfce4-panel")
    def test_stands_below_another_dock_as_long_as_that_is_there(self):
        panel = XfcePanel(self.session, UPPER_EDGE)
        left, top, width, height = panel.geometry()
        self.assertEqual((left, top, width), (0, 0, WIDTH))
        dock = self.start_bar().wait_for_window("DOCK")
        wait_for(lambda: self.place(dock) == (0, height, WIDTH, 26), f"a bar at {height}, not at {self.place(dock)}")
        wait_for(lambda: f"= 0, 0, {height + 26}, 0, 0, 0, 0, 0, 0, 1279, 0, 0"
                 in self.property(dock, "_NET_WM_STRUT_PARTIAL"), "a strip below the panel's")
        self.picture("bar-below-panel", crop=f"{WIDTH}x{height + 26}+0+0")
        panel.kill()
        wait_for(lambda: self.place(dock) == (0, 0, WIDTH, 26), "a bar at the upper edge")
        panel.start()
        wait_for(lambda: self.place(dock) == (0, height, WIDTH, 26), "a bar below the panel that came back")

    def test_shows_the_text_line(self):
        program = self.start_bar()
        program.wait_for_painted("CPU 23% · RAM 48%")
        self.picture("bar-text", crop=BAR)

    def wait_for_hues(self, *names):
        def shown():
            rows = pixels_of(self.session, WIDTH - 120, 0, 120, 26)
            return {hue_of(pixel) for row in rows for pixel in row} - {None}

        wait_for(lambda: shown() == set(names), lambda: f"{names} on the bar, not {shown()}")

    def test_shows_the_graph(self):
        program = self.start_bar({"menuBarStyle": 1, "refreshInterval": 0.2})
        for step in range(40):
            mark = program.mark()
            self.machine.cpu = round(50 + 40 * math.sin(step / 3))
            self.machine.set_memory(round(40 + 20 * math.sin(step / 7)))
            program.wait_for_painted("", after=mark)
        self.wait_for_hues("blue", "purple")
        self.picture("bar-graph", crop=BAR)

    def test_shows_the_icon(self):
        program = self.start_bar({"menuBarStyle": 2})
        program.wait_for_painted("")
        self.wait_for_hues("green")
        self.picture("bar-icon", crop=BAR)
        self.machine.set_memory(70)
        self.wait_for_hues("orange")
        self.machine.cpu = 90
        self.wait_for_hues("red")

    def test_shows_an_item_for_each_module(self):
        program = self.start_bar({"modularMenuBar": True, "menubar.network": True})
        program.wait_for_painted("23%")
        program.wait_for_painted("48%")
        program.wait_for_painted("0.0 B/s")
        self.picture("bar-modular", crop=BAR)

    def test_shows_stacked_labels_in_both_languages(self):
        program = self.start_bar({"modularMenuBar": True, "stackedModularLabels": True, "menubar.network": True,
                                  "appLanguage": "cs"})
        program.wait_for_painted("CPU\n23%")
        program.wait_for_painted("PAMĚŤ\n48%")
        self.picture("bar-stacked-cs", crop=BAR)
        mark = program.mark()
        write_preferences(self.session, {"refreshInterval": 1.0, "modularMenuBar": True,
                                         "stackedModularLabels": True, "menubar.network": True,
                                         "appLanguage": "en"})
        program.wait_for_painted("MEMORY\n48%", after=mark)
        program.wait_for_painted("CPU\n23%", after=mark)
        self.picture("bar-stacked-en", crop=BAR)

    def test_notices_preferences_that_another_program_writes(self):
        program = self.start_bar()
        program.wait_for_painted("CPU 23% · RAM 48%")
        mark = program.mark()
        write_preferences(self.session, {"refreshInterval": 1.0, "menubar.cpu": False})
        program.wait_for_painted("RAM 48%", after=mark)

    def test_paints_nothing_while_nothing_changes(self):
        program = self.start_bar()
        program.wait_for_painted("CPU 23% · RAM 48%")
        mark = program.mark()
        self.machine.set_memory(50)
        program.wait_for_painted("CPU 23% · RAM 50%", after=mark)
        painted = re.findall("painted", program.log()[mark:])
        self.assertLessEqual(len(painted), 2, program.log())

    def test_ends_with_status_0_when_it_is_asked_to(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            program = self.start_bar()
            self.assertEqual(program.terminate(number), 0)

    def test_quit_in_the_menu_ends_the_program(self):
        program = self.start_bar()
        program.wait_for_painted("CPU 23% · RAM 48%")
        self.click(WIDTH - 40, 13, 3)
        program.wait_for_window("POPUP_MENU")
        self.picture("bar-menu", crop="400x120+880+0")
        self.press("q")
        self.assertEqual(program.wait_for_end(), 0)


if __name__ == "__main__":
    unittest.main()
