"""What every whole-program test has: a session, a machine, a hard limit and no unexpected line in the log."""
import os
import signal
import unittest

from .machine import RecordedMachine
from .program import Tarvo
from .session import Session

TEST_LIMIT = 150  # seconds


class ProgramCase(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        signal.signal(signal.SIGALRM, self._out_of_time)
        signal.alarm(TEST_LIMIT)
        self.addCleanup(signal.alarm, 0)
        self.session = self.make_session()
        self.addCleanup(self.session.end)
        self.machine = RecordedMachine(self.session.path("machine"))
        self.addCleanup(self.machine.end)

    def make_session(self):
        return Session()

    def start(self, preferences=None, **environment):
        program = Tarvo(self.session, self.machine, {"refreshInterval": 1.0} | (preferences or {}), **environment)
        self.addCleanup(self._check_log, program)
        return program

    def picture(self, name, window="root", crop=None):
        """Takes a picture of the screen; kept where TARVO_PICTURES says."""
        folder = os.environ.get("TARVO_PICTURES", self.session.folder)
        path = os.path.join(folder, name + ".png")
        self.session.run("import", "-window", window, *(["-crop", crop, "+repage"] if crop else []), path)
        self.assertTrue(os.path.exists(path), "no picture was taken")
        return path

    def click(self, x, y, button):
        self.session.run("xdotool", "mousemove", str(x), str(y), "click", str(button))

    def press(self, *keys):
        self.session.run("xdotool", "key", *keys)

    def _check_log(self, program):
        self.session.stop(program.process)
        self.assertEqual(program.unexpected_lines(), [])

    def _out_of_time(self, *_):
        raise AssertionError(f"the test took more than {TEST_LIMIT} s")
