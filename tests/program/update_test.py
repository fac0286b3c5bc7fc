"""The update check and the public address of the real program, with a stand-in for the helper that fetches."""
import json
import os
import shutil
import unittest

from support import accessible
from support.panel import PanelCase
from support.program import Tarvo, preference_path, write_preferences
from support.waiting import wait_for

PAGE = "https://tarvo.example/download"
MANIFEST = {"version": "99.1", "url": PAGE, "notes": "Faster."}
ADDRESS = "203.0.113.7"


class Fetching(PanelCase):
    """On this machine itself, since a recorded one has no network."""

    def setUp(self):
        super().setUp()
        os.mkdir(self.session.path("bin"))
        self.copy = shutil.copy(os.environ["TARVO_PROGRAM"], self.session.path("bin", "tarvo"))
        self.calls_path = self.session.path("calls")
        write_preferences(self.session, {"show.ips": True, "refreshInterval": 1.0})
        self.script("tarvo-fetch", f"""
echo "$1 $2" >>'{self.calls_path}'
case "$1" in
*.json) echo '{json.dumps(MANIFEST)}' ;;
*) echo ' {ADDRESS}' ;;
esac""")

    def script(self, name, text):
        path = self.session.path("bin", name)
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n" + text + "\n")
        os.chmod(path, 0o700)

    def start_copy(self):
        path = self.session.path("bin") + ":" + self.session.environment["PATH"]
        self.program = Tarvo(self.session, None, program=self.copy, TARVO_STATUS_BAR="bar", PATH=path,
                             **accessible.ENVIRONMENT)
        self.addCleanup(self._check_log, self.program)
        self.program.wait_for_window("DOCK")
        self.program.wait_for_log('painted "CPU')

    def calls(self, kind=""):
        if not os.path.exists(self.calls_path):
            return []
        with open(self.calls_path, encoding="utf-8") as file:
            return [call for call in file.read().splitlines() if kind in call]

    def last_check(self):
        with open(preference_path(self.session), encoding="utf-8") as file:
            return json.load(file).get("lastUpdateCheck")

    def test_a_newer_version_is_offered_and_asked_for_once_a_day(self):
        self.script("xdg-open", f"echo \"opened $1\" >>'{self.calls_path}'")
        self.start_copy()
        wait_for(self.last_check, "the end of the check")
        self.assertRegex(self.calls()[0], r"^https://.*\.json 8000$")
        self.open()
        self.screen.wait_for("New version 99.1")
        self.screen.wait_for("A newer version is available to download.")
        self.picture("update")
        self.screen.press("Download", role="push button")
        wait_for(lambda: self.calls("opened ") == ["opened " + PAGE], "the page of the new version")
        self.assertEqual(self.program.terminate(), 0)
        checked = self.last_check()
        self.start_copy()
        self.open()
        self.screen.wait_for("Public IP " + ADDRESS)
        self.assertEqual(len(self.calls(".json")), 1)
        self.assertEqual(self.last_check(), checked)
        self.assertIsNone(self.screen.find("New version 99.1"))

    def test_the_public_address_is_asked_for_when_a_view_wants_it(self):
        self.start_copy()
        wait_for(self.last_check, "the end of the check")
        self.assertEqual(self.calls(" 5000"), [])
        self.open()
        self.screen.wait_for("Public IP " + ADDRESS)
        self.assertEqual(len(self.calls(" 5000")), 1)

    def test_a_failed_check_counts_and_says_nothing(self):
        self.script("tarvo-fetch", f"echo \"$1 $2\" >>'{self.calls_path}'; exit 1")
        self.start_copy()
        wait_for(self.last_check, "the end of the check")
        self.open()
        self.screen.wait_for("Public IP —")
        self.assertNotIn("New version", self.screen.text())


if __name__ == "__main__":
    unittest.main()
