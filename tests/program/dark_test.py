"""The bar follows the colour scheme that the settings portal tells."""
import unittest

from support.case import ProgramCase
from support.pixels import pixels_of
from support.settings_portal import DARK, LIGHT, SettingsPortal
from support.waiting import wait_for

BAR = "1280x26+0+0"


class DarkMode(ProgramCase):
    def setUp(self):
        super().setUp()
        self.portal = SettingsPortal(self.session)

    def wait_for_background(self, is_dark):
        wait_for(lambda: (sum(pixels_of(self.session, 4, 4, 1, 1)[0][0]) < 3 * 128) == is_dark,
                 "a dark bar" if is_dark else "a light bar")

    def start_bar(self, preferences=None):
        program = self.start(preferences, TARVO_STATUS_BAR="bar")
        program.wait_for_window("DOCK")
        return program

    def test_the_bar_changes_with_the_setting(self):
        self.start_bar().wait_for_painted("CPU 23% · RAM 48%")
        self.wait_for_background(is_dark=False)
        self.portal.choose(DARK)
        self.wait_for_background(is_dark=True)
        self.picture("bar-dark", crop=BAR)
        self.portal.choose(LIGHT)
        self.wait_for_background(is_dark=False)

    def test_the_bar_is_dark_from_the_start_where_the_desktop_is(self):
        self.portal.choose(DARK)
        program = self.start_bar({"modularMenuBar": True, "stackedModularLabels": True, "menubar.network": True,
                                  "appLanguage": "cs"})
        program.wait_for_painted("CPU\n23%")
        program.wait_for_painted("PAMĚŤ\n48%")
        self.wait_for_background(is_dark=True)
        self.picture("bar-dark-stacked-cs", crop=BAR)


if __name__ == "__main__":
    unittest.main()
