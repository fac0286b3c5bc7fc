"""The popover of the real program, opened by its status item and read through the accessibility bus."""
import unittest

from . import accessible
from .case import ProgramCase
from .waiting import wait_for

WIDTH = 1280
PANEL = "360x680"
HOT_KEY = "super+shift+m"


@unittest.skipUnless(accessible.is_available(), "at-spi2-core or python3-dbus is not installed")
class PanelCase(ProgramCase):
    def setUp(self):
        super().setUp()
        self.screen = accessible.Accessible(self.session)
        self.program = None

    def start_program(self, preferences=None, **environment):
        self.start_bar(preferences, **environment)
        self.program.wait_for_log("painted \"CPU")

    def start_modular(self, preferences=None):
        """One item a module: the processor's and the memory's, unless the preferences say otherwise."""
        self.start_bar({"modularMenuBar": True} | (preferences or {}))
        self.program.wait_for_painted("48%")

    def start_bar(self, preferences=None, **environment):
        self.program = self.start(preferences, TARVO_STATUS_BAR="bar", **accessible.ENVIRONMENT, **environment)
        self.program.wait_for_window("DOCK")

    def click_item(self, x=WIDTH - 40):
        self.click(x, 13, 1)

    def open(self):
        mark = self.program.mark()
        self.click_item()
        self.program.wait_for_log("^tarvo.popover: shown", after=mark)
        window = wait_for(lambda: self.program.windows("UTILITY"), "the popover's window")[0]
        wait_for(lambda: self.active_window() == int(window), "the keyboard in the popover")
        return window

    def close_by_key(self):
        mark = self.program.mark()
        self.press("Escape")
        self.wait_until_closed(mark)

    def wait_until_closed(self, mark):
        self.program.wait_for_log("^tarvo.popover: closed", after=mark)
        wait_for(lambda: not self.program.windows("UTILITY"), "the end of the popover's window")

    def item_place(self, name):
        """Left, top, width and height of an item on the bar, e.g. of "CPU 23%"."""
        return self.screen.wait_for(name, role="push button")["place"]

    def press_hot_key(self, event):
        """Presses it and waits for what the popover makes of it: shown or closed."""
        mark = self.program.mark()
        self.press(HOT_KEY)
        self.program.wait_for_log("^tarvo.popover: " + event, after=mark)

    def active_window(self):
        answer = self.session.run("xprop", "-root", "_NET_ACTIVE_WINDOW").strip().split(" ")[-1]
        return int(answer, 16) if answer.startswith("0x") else 0

    def click_widget(self, name, **wanted):
        """A real click in the middle of a widget that is in sight."""
        left, top, width, height = self.screen.wait_for(name, **wanted)["place"]
        self.click(left + width // 2, top + height // 2, 1)

    def show_settings(self):
        self.screen.press("Settings", role="push button")
        self.screen.wait_for("Back")

    def show_stats(self):
        self.screen.press("Back")
        self.screen.wait_for("Quit", role="push button")
        wait_for(lambda: not self.screen.find("Back"), "the end of the settings page")
