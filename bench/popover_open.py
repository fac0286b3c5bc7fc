#!/usr/bin/env python3
"""How long the popover of the real program takes from the click on its item until it is painted.

popover_open.py [PROGRAM]   needs Xvfb, openbox and xdotool; the machine shown is a recorded one
"""
import ctypes
import os
import re
import statistics
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "tests", "program"))

from support.machine import RecordedMachine  # noqa: E402
from support.program import Tarvo  # noqa: E402
from support.session import Session  # noqa: E402
from support.waiting import wait_for  # noqa: E402

RUNS, OPENINGS = 5, 6
ITEM = (1240, 13)
LEFT_BUTTON = 1


class Pointer:
    """Clicks without starting a tool, so that the moment of the click is known."""

    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.test = ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        self.test.XTestFakeMotionEvent(self.display, 0, *ITEM, ctypes.c_ulong(0))

    def click(self):
        """Returns when the click happened, in seconds of the monotonic clock."""
        now = time.monotonic()
        for is_pressed in (1, 0):
            self.test.XTestFakeButtonEvent(self.display, LEFT_BUTTON, is_pressed, ctypes.c_ulong(0))
        self.x11.XSync(self.display, 0)
        return now


def painted_at(program, mark):
    """When the last widget of the first picture was painted: all those before anything else is written."""
    program.wait_for_log("tarvo.popover: shown", after=mark)
    program.wait_for_log("tarvo.paint: .* in \"popover\"", after=mark)
    program.wait_for_log("tarvo.statusbar: .*painted", after=len(program.log()))  # a tick later
    moments = []
    for line in program.log()[mark:].splitlines():
        paint = re.match(r" *([\d.]+) tarvo.paint: .* in \"popover\"", line)
        if not paint:
            continue
        moment = float(paint[1])
        if moments and moment - moments[-1] > 0.1:
            break
        moments.append(moment)
    return moments[-1]


def openings():
    """Milliseconds from the click to the picture, for each opening of one program."""
    session = Session()
    machine = RecordedMachine(session.path("machine"))
    try:
        program = Tarvo(session, machine, {"refreshInterval": 1.0}, TARVO_STATUS_BAR="bar",
                        QT_MESSAGE_PATTERN="%{time boot} %{category}: %{message}")
        program.wait_for_window("DOCK")
        program.wait_for_log("painted \"CPU 23%")
        pointer = Pointer(session.environment["DISPLAY"])
        taken = []
        for index in range(OPENINGS):
            machine.cpu = 30 + index  # so that each tick is seen in the log
            mark = program.mark()
            clicked = pointer.click()
            taken.append(1000 * (painted_at(program, mark) - clicked))
            mark = program.mark()
            pointer.click()
            program.wait_for_log("tarvo.popover: closed", after=mark)
            wait_for(lambda: not program.windows("UTILITY"), "the end of the popover's window")
        return taken
    finally:
        machine.end()
        session.end()


def main():
    program = sys.argv[1] if len(sys.argv) > 1 else os.path.join(HERE, "..", "build", "release", "bin", "tarvo")
    os.environ["TARVO_PROGRAM"] = os.path.abspath(program)
    runs = [openings() for _ in range(RUNS)]
    first = [run[0] for run in runs]
    again = [value for run in runs for value in run[1:]]
    for name, values, goal in (("first", first, 100), ("again", again, 30)):
        print(f"{name}: median {statistics.median(values):.1f} ms, {min(values):.1f} to {max(values):.1f}, "
              f"{len(values)} openings, goal {goal}")


if __name__ == "__main__":
    main()
