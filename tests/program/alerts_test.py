"""The alerts of the real program, as a notification daemon, the alert log and the detail window received them."""
import json
import os
import re
import shutil
import unittest

from support.panel import PanelCase
from support.waiting import wait_for

DAEMON, OBJECT, DUNST = "org.freedesktop.Notifications", "/org/freedesktop/Notifications", "org.dunstproject.cmd0"
# Without a setting of their own both would have to wait for a disk to fill and a charge to fall.
PREFERENCES = {"diskFreeAlertGB": 1e9, "batteryAlertPercent": 60.0}
ENGLISH = [("Low Disk Space", r"Only \d+\.\d GB of free space left"),
           ("Low Battery", "Battery is at 57% and the computer isn't plugged in")]
CZECH = [("Málo místa na disku", r"Zbývá jen \d+\.\d GB volného místa"),
         ("Nízká baterie", "Baterie je na 57 % a počítač není připojený k napájení")]


@unittest.skipUnless(shutil.which("dunst"), "dunst is not installed")
class Alerts(PanelCase):
    def setUp(self):
        super().setUp()
        self.machine.add_battery(57)
        self.log_path = self.session.path("data", "Tarvo", "alertlog.json")

    def start_daemon(self):
        self.session.start("dunst", "-conf", "/dev/null")
        wait_for(lambda: self.session.bus_call(DAEMON, OBJECT, DAEMON, "GetServerInformation"), "the daemon")

    def shown(self):
        """Titles and bodies that the daemon has had on the screen, oldest first."""
        self.session.bus_call(DAEMON, OBJECT, DUNST, "NotificationCloseAll")
        history = self.session.bus_call(DAEMON, OBJECT, DUNST, "NotificationListHistory")
        rows = history[0] if history else []
        return [(row["summary"]["data"], row["body"]["data"]) for row in reversed(rows)]

    def logged(self):
        """Titles and bodies in the alert log, oldest first."""
        if not os.path.exists(self.log_path):
            return []
        with open(self.log_path, encoding="utf-8") as file:
            return [(entry["title"], entry["body"]) for entry in reversed(json.load(file))]

    def assert_are(self, expected, found):
        self.assertEqual([title for title, _ in found], [title for title, _ in expected])
        for (_, pattern), (_, body) in zip(expected, found):
            self.assertRegex(body, re.compile(f"^{pattern}$"))

    def test_reach_the_daemon_the_log_and_the_window(self):
        self.start_daemon()
        self.start_program(PREFERENCES)
        shown = wait_for(lambda: len(rows := self.shown()) >= 2 and rows, "two notifications")
        self.assert_are(ENGLISH, shown)
        self.assertEqual(self.logged(), shown)
        self.press("super+shift+m")
        self.screen.press("Open Detail Window…", role="push button")
        self.screen.wait_for("Overview")
        self.press("End")
        for _, body in shown:
            self.screen.wait_for_text(body)
        self.picture("alerts")

    def test_speak_czech(self):
        self.start_daemon()
        self.start_program(PREFERENCES | {"appLanguage": "cs"})
        shown = wait_for(lambda: len(rows := self.shown()) >= 2 and rows, "two notifications")
        self.assert_are(CZECH, shown)
        self.assertEqual(self.logged(), shown)

    def test_are_logged_although_nobody_shows_them(self):
        self.start_program(PREFERENCES)
        self.assert_are(ENGLISH, wait_for(lambda: len(rows := self.logged()) >= 2 and rows, "two entries"))

    def test_there_are_none_while_they_are_switched_off(self):
        self.start_program(PREFERENCES | {"notificationsEnabled": False})
        mark = self.program.mark()
        self.machine.set_memory(61)
        self.program.wait_for_painted("CPU 23% · RAM 61%", after=mark)
        self.assertFalse(os.path.exists(self.log_path))


if __name__ == "__main__":
    unittest.main()
