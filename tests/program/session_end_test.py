"""The end of the session around the program: signals, the display, the message bus, a session manager."""
import json
import os
import signal
import time
import unittest

from support.case import ProgramCase
from support.program import Tarvo
from support.session_manager import NEVER, SessionManager
from support.waiting import LIMIT, wait_for


WIDTH = 1280


class SessionEnd(ProgramCase):
    def start_bar(self):
        if os.path.exists(self.history_path()):
            os.remove(self.history_path())
        program = self.start(TARVO_STATUS_BAR="bar")
        program.wait_for_painted("CPU 23% · RAM 48%")
        wait_for(lambda: program.alive() and os.path.exists(self.history_path()), "the first sample")
        self.written = os.stat(self.history_path())
        return program

    def history_path(self):
        return os.path.join(self.session.environment["XDG_DATA_HOME"], "Tarvo", "history.json")

    def stored(self):
        with open(self.history_path(), encoding="utf-8") as file:
            return json.load(file)

    def assert_history_is_whole(self):
        """The one sample is there, and what was written already was not written again."""
        self.assertEqual(len(self.stored()), 1)
        now = os.stat(self.history_path())
        self.assertEqual((now.st_ino, now.st_mtime_ns), (self.written.st_ino, self.written.st_mtime_ns))

    def child(self, name):
        return next(child for child in self.session.children if os.path.basename(child.args[0]) == name)

    def test_signals_end_it_with_status_0(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                program = self.start_bar()
                self.assertEqual(program.terminate(number), 0)
                self.assert_history_is_whole()

    def test_quitting_in_the_menu_keeps_what_is_stored_and_writes_nothing_more(self):
        program = self.start_bar()
        self.click(WIDTH - 40, 13, 3)
        program.wait_for_window("POPUP_MENU")
        self.press("q")
        self.assertEqual(program.wait_for_end(), 0)
        self.assert_history_is_whole()

    def test_a_run_adds_its_sample_to_those_of_earlier_ones(self):
        self.start_bar().terminate()
        earlier = self.stored()
        program = Tarvo(self.session, self.machine, TARVO_STATUS_BAR="bar")
        self.addCleanup(self._check_log, program)
        wait_for(lambda: program.alive() and len(self.stored()) == 2, "the second run's sample")
        self.assertEqual(program.terminate(), 0)
        self.assertEqual(self.stored()[:1], earlier)

    def open_popover(self, program):
        self.press("super+shift+m")
        program.wait_for_log(r"^tarvo\.popover: shown")

    def test_an_open_popover_does_not_hold_it_up(self):
        program = self.start_bar()
        self.open_popover(program)
        self.assertEqual(program.terminate(), 0)

    def test_two_signals_are_one(self):
        program = self.start_bar()
        os.kill(program.process.pid, signal.SIGTERM)
        os.kill(program.process.pid, signal.SIGINT)
        self.assertEqual(program.wait_for_end(), 0)

    def test_signals_while_it_ends_do_not_cut_it_short(self):
        program = self.start_bar()
        limit = time.monotonic() + LIMIT
        while program.process.poll() is None and time.monotonic() < limit:
            os.kill(program.process.pid, signal.SIGTERM)
        self.assertEqual(program.wait_for_end(), 0)

    def test_the_end_of_the_display_ends_it_with_status_0(self):
        program = self.start_bar()
        server = self.child("Xvfb")
        server.kill()
        server.wait(30)
        self.assertEqual(program.wait_for_end(), 0)
        self.assert_history_is_whole()
        program.announce("The X11 connection broke")

    def test_a_session_manager_gets_the_history_saved_and_the_program_ended(self):
        manager = SessionManager()
        program = self.start(TARVO_STATUS_BAR="bar", SESSION_MANAGER=manager.address)
        manager.run_until(lambda: program.alive() and manager.saves == 1, "the program's registration")
        self.open_popover(program)
        mark = program.mark()
        manager.end_session()
        manager.run_until(lambda: program.alive() and manager.saves == 2, "the program's save")
        program.wait_for_log(r"^tarvo\.session: asked to save$", after=mark)
        self.assertEqual(manager.properties["RestartStyleHint"][0], NEVER)
        manager.tell_to_die()
        manager.run_until(lambda: program.process.poll() is not None, "the program's end")
        self.assertEqual(program.process.returncode, 0)
        self.assertTrue(os.path.exists(self.history_path()))

    def test_it_goes_on_when_the_message_bus_is_gone(self):
        program = self.start_bar()
        bus = self.child("dbus-daemon")
        bus.kill()
        bus.wait(30)
        mark = program.mark()
        self.machine.set_memory(61)
        program.wait_for_painted("CPU 23% · RAM 61%", after=mark)
        self.press("super+shift+m")
        program.wait_for_log(r"^tarvo\.hotkey: pressed$", after=mark)
        self.assertEqual(program.terminate(), 0)
        self.assert_history_is_whole()


if __name__ == "__main__":
    unittest.main()
