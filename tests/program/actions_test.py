"""Quick actions and automations, started from the popover as a person does it."""
import json
import os
import shutil
import signal
import subprocess
import types
import unittest

from support.panel import PanelCase
from support.program import preference_path
from support.waiting import wait_for

ODD_NAMES = ['say "hi" \\now', "-dash", "two  blanks & more"]
HANG_LIMIT = 60  # seconds; the program itself gives up after 20


class ActionCase(PanelCase):
    """A popover in which only the tools of the test are installed."""

    def setUp(self):
        super().setUp()
        self.tools = self.session.path("bin")
        self.calls_path = self.session.path("calls")
        os.mkdir(self.tools)

    def start_program(self, preferences=None, **environment):
        super().start_program(preferences, PATH=self.tools, **environment)

    def tool(self, name, script=""):
        """Installs a tool that writes down how it was called."""
        self.script(os.path.join(self.tools, name), f"echo {name} \"$*\" >>'{self.calls_path}'\n{script}")

    def script(self, path, text):
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n" + text + "\n")
        os.chmod(path, 0o700)

    def calls(self):
        if not os.path.exists(self.calls_path):
            return []
        with open(self.calls_path, encoding="utf-8") as file:
            return file.read().splitlines()

    def write(self, path, text="x"):
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def open_dialog(self, message):
        """Waits for a dialog with that message and for the keyboard in it."""
        self.screen.wait_for_text(message)
        window = wait_for(lambda: self.program.windows("DIALOG"), "the dialog's window")[0]
        wait_for(lambda: self.active_window() == int(window), "the keyboard in the dialog")

    def close_dialog(self, key):
        self.press(key)
        wait_for(lambda: not self.program.windows("DIALOG"), "the end of the dialog")


class Desktop(ActionCase):
    def test_only_what_this_desktop_can_do_is_offered_and_done(self):
        self.tool("xset")
        self.tool("xfce4-panel")
        self.tool("xfconf-query", "[ \"$5\" ] || echo Adwaita")
        os.makedirs(self.session.path("data", "themes", "Adwaita-dark"))
        self.start_program(XDG_CURRENT_DESKTOP="XFCE")
        self.open()
        for name in ("Trash", "Panel", "Display", "Dark Mode"):
            self.screen.wait_for(name, role="push button")
        for name in ("Files", "New Window"):
            self.assertIsNone(self.screen.find(name, role="push button"))
        self.screen.press("Display")
        self.wait_for_call("xset dpms force off")
        self.screen.press("Panel")
        self.wait_for_call("xfce4-panel -r")
        self.screen.press("Dark Mode")
        self.wait_for_call("xfconf-query -c xsettings -p /Net/ThemeName -s Adwaita-dark")

    def test_on_a_bare_window_manager_the_trash_is_left(self):
        self.start_program(XDG_CURRENT_DESKTOP="openbox")
        self.open()
        self.screen.wait_for("Trash", role="push button")
        for name in ("Files", "Panel", "Display", "Dark Mode", "New Window"):
            self.assertIsNone(self.screen.find(name, role="push button"))

    def test_a_failure_is_told_in_the_tools_own_words(self):
        self.tool("xfconf-query", "echo 'no such channel' >&2; exit 1")
        self.start_program(XDG_CURRENT_DESKTOP="XFCE")
        self.open()
        self.screen.press("Dark Mode")
        self.open_dialog("Action Failed")
        self.screen.wait_for("no such channel")
        self.screen.wait_for("Cancel", role="push button")
        self.assertIsNone(self.screen.find("Open Settings"))
        self.close_dialog("Return")

    def wait_for_call(self, call):
        wait_for(lambda: call in self.calls(), lambda: f"{call} among {self.calls()}")


class Trash(ActionCase):
    def setUp(self):
        super().setUp()
        self.kept = self.session.path("data", "Trash", "files", "letter.txt")
        self.record = self.session.path("data", "Trash", "info", "letter.txt.trashinfo")
        self.on_disk = os.path.join(self.machine.folder, "media", "disk", f".Trash-{os.geteuid()}", "files", "b")
        for path in (self.kept, self.record, self.on_disk):
            self.write(path)
        self.write(os.path.join(self.machine.folder, "proc", "self", "mountinfo"),
                   "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n30 22 8:17 / /media/disk rw - ext4 /dev/sdb1 rw\n")

    def ask(self):
        self.open()
        self.screen.press("Trash")
        self.open_dialog("Empty the Trash?")
        self.screen.wait_for("This action is irreversible — files in the Trash will be permanently deleted.")
        for button in ("Empty", "Cancel"):
            self.screen.wait_for(button, role="push button")

    def test_escape_keeps_everything(self):
        self.start_program()
        self.ask()
        self.close_dialog("Escape")
        # Had it been emptied, the two would be gone after the next question.
        self.screen.press("Trash")
        self.open_dialog("Empty the Trash?")
        self.close_dialog("Escape")
        self.assertTrue(os.path.exists(self.kept) and os.path.exists(self.on_disk))

    def test_cancel_keeps_everything(self):
        self.start_program()
        self.ask()
        self.click_widget("Cancel")
        wait_for(lambda: not self.program.windows("DIALOG"), "the end of the dialog")
        self.assertTrue(os.path.exists(self.kept) and os.path.exists(self.on_disk))

    def test_return_empties_it(self):
        self.start_program()
        self.ask()
        self.close_dialog("Return")
        for path in (self.kept, self.record, self.on_disk):
            wait_for(lambda path=path: not os.path.exists(path), f"the end of {path}")
        self.assertTrue(os.path.isdir(os.path.dirname(self.kept)))


class Automations(ActionCase):
    def automation(self, name, script):
        self.script(self.path(name), script)

    def path(self, name):
        return self.session.path("data", "Tarvo", "automations", name)

    def start_with(self, *names):
        self.start_program({"customShortcuts": list(names)})
        self.open()
        self.screen.wait_for_text("Custom Automations")

    def stored(self):
        with open(preference_path(self.session), encoding="utf-8") as file:
            return json.load(file).get("customShortcuts")

    def wait_for_file(self, path, text):
        def holds():
            if not os.path.exists(path):
                return False
            with open(path, encoding="utf-8") as file:
                return file.read() == text
        wait_for(holds, f"{path} with {text!r}")

    def test_one_is_picked_run_and_removed(self):
        ran = self.session.path("ran")
        self.automation("Tidy up", f"pwd -P >'{ran}'")
        self.start_program()
        self.open()
        self.show_settings()
        self.screen.press("Add Automation")
        self.program.wait_for_window("= _NET_WM_WINDOW_TYPE_NORMAL")  # the menu
        self.press("Down", "Return")
        self.screen.wait_for("Remove Tidy up")
        wait_for(lambda: self.stored() == ["Tidy up"], "the stored name")
        self.show_stats()
        self.screen.press("Tidy up")
        self.wait_for_file(ran, os.path.realpath(self.session.path("home")) + "\n")
        self.assertEqual(self.program.windows("DIALOG"), [])
        self.show_settings()
        self.screen.press("Remove Tidy up")
        self.screen.wait_until_gone("Remove Tidy up")
        self.show_stats()
        self.assertNotIn("Custom Automations", self.screen.text())
        self.assertEqual(self.stored(), [])

    def test_odd_names_are_run_as_they_are(self):
        for name in ODD_NAMES:
            self.automation(name, "printf %s \"${0##*/}\" >'" + self.session.path("ran") + "'")
        self.start_with(*ODD_NAMES)
        for name in ODD_NAMES:
            self.screen.press(name)
            self.wait_for_file(self.session.path("ran"), name)

    def test_a_failure_is_told_in_its_own_words(self):
        self.automation("fails", "echo 'disk is full' >&2; exit 3")
        self.start_with("fails")
        self.screen.press("fails")
        self.open_dialog("Action Failed")
        self.screen.wait_for("disk is full")
        self.screen.wait_for("OK", role="push button")
        self.close_dialog("Return")

    def test_a_silent_failure_has_a_text_in_the_chosen_language(self):
        self.automation("silent", "exit 1")
        self.start_program({"customShortcuts": ["silent"], "appLanguage": "cs"})
        self.open()
        self.screen.press("silent")
        self.open_dialog("Akce se nezdařila")
        self.screen.wait_for("Automatizace skončila s chybou.")
        self.close_dialog("Escape")

    def test_one_that_was_deleted_meanwhile_is_named(self):
        self.automation("gone", "true")
        self.start_with("gone")
        os.remove(self.path("gone"))
        self.screen.press("gone")
        self.open_dialog("Action Failed")
        self.screen.wait_for("gone: not found")

    def test_one_that_hangs_is_told_and_goes_on(self):
        ended = self.session.path("ended")
        go = self.session.path("go")
        self.automation("hangs", f"while [ ! -e '{go}' ]; do /bin/sleep 0.1; done; echo late >&2; echo >'{ended}'; exit 1")
        self.start_with("hangs")
        self.screen.press("hangs")
        told = "The automation didn't finish in time. It keeps running; try running it manually in a terminal first."
        wait_for(lambda: told in self.screen.text(), told, HANG_LIMIT)
        self.close_dialog("Return")
        self.write(go)
        wait_for(lambda: os.path.exists(ended), "the end of the automation")

    def test_a_program_that_it_leaves_running_is_not_waited_for(self):
        go = self.session.path("go")
        ended = self.session.path("ended")
        self.automation("starts", f"(while [ ! -e '{go}' ]; do /bin/sleep 0.1; done; echo >&2; echo >'{ended}') &\nexit 4")
        self.start_with("starts")
        self.screen.press("starts")
        self.open_dialog("Action Failed")
        self.screen.wait_for("The automation finished with an error.")
        self.close_dialog("Return")
        # The end of the program takes nothing with it that the automation has started.
        wait_for(lambda: self.active_window() == int(self.program.windows("UTILITY")[0]), "the popover's keyboard")
        self.close_by_key()
        self.assertEqual(self.program.terminate(), 0)
        self.write(go)
        wait_for(lambda: os.path.exists(ended), "the end of what was started")


class EndingAProcess(PanelCase):
    """On this machine itself, since its processes are to end."""

    def setUp(self):
        super().setUp()
        self.machine.end()
        self.machine = types.SimpleNamespace(folder="/", end=lambda: None)
        self.victim, self.other = self.busy("tarvo-victim"), self.busy("tarvo-other")

    def busy(self, name):
        program = shutil.copy(os.path.realpath("/bin/sh"), self.session.path(name))
        child = subprocess.Popen([program, "-c", "while :; do :; done"], stdin=subprocess.DEVNULL)
        self.addCleanup(child.wait)
        self.addCleanup(child.kill)
        return child

    def ask(self):
        # Busy processes change places: the row that was found may be another's when it is pressed.
        wait_for(self.asks_for_the_victim, "the question about the victim", limit=120)

    def asks_for_the_victim(self):
        self.screen.press("Quit Process", description="tarvo-victim")
        self.screen.wait_for_text("Quit this process?")
        window = wait_for(lambda: self.program.windows("DIALOG"), "the dialog's window")[0]
        wait_for(lambda: self.active_window() == int(window), "the keyboard in the dialog")
        if self.screen.find(f"tarvo-victim (PID {self.victim.pid})"):
            return True
        self.cancel()
        return False

    def cancel(self):
        self.press("Escape")
        wait_for(lambda: not self.program.windows("DIALOG"), "the end of the dialog")

    def test_reaches_that_one_and_no_other(self):
        self.start_program()
        self.open()
        self.screen.wait_for_text("tarvo-victim")
        self.ask()
        self.cancel()
        self.assertIsNone(self.victim.poll())
        self.ask()
        self.press("Return")
        self.assertEqual(self.victim.wait(30), -signal.SIGTERM)
        self.screen.wait_until_gone("tarvo-victim")
        self.assertIsNone(self.other.poll())


if __name__ == "__main__":
    unittest.main()
