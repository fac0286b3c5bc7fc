#!/usr/bin/env python3
"""Memory of the real program around the detail window: before it was first opened and after each closing.

Each round opens the window from the context menu, walks all ten sections and closes it, under a virtual display with a
window manager, on the readings of the computer it runs on. Two shares are held to five per cent, and the exit status is 1
when one is above: what the program itself holds more than before the first opening, of what was resident then; and what
is resident more than after the first closing. With "used" the popover is opened and closed before it all begins.

Usage: bench/detail_window.py PROGRAM [ROUNDS] [used]     (scripts/install-packages.sh virtual-display bench test)
"""
import os
import pathlib
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "program"))

from detail_test import SECTIONS, WIDTH, DetailSections

SETTLED = 3  # seconds: what was freed goes back a second after the closing, and a refresh or two have run
POPOVER_GONE = 23  # seconds: twenty until the popover's views go, and a few to settle
LIMIT = 0.05


class Rounds(DetailSections):
    rounds = 10
    popover_first = False

    def runTest(self):
        self.launch(machine=False)
        time.sleep(SETTLED)
        if self.popover_first:
            self.use_popover()
        before = self.memory("before")
        first = self.round("round 1")
        for number in range(2, self.rounds + 1):
            last = self.round(f"round {number}")
        last = last if self.rounds > 1 else first
        self.check("its own since before, of what was resident", last[1] - before[1], before[0])
        self.check("resident since before", last[0] - before[0], before[0], held=False)
        self.check("resident since round 1", last[0] - first[0], first[0])

    def use_popover(self):
        for wait in (SETTLED, POPOVER_GONE):
            self.click(WIDTH - 40, 13, 1)
            time.sleep(wait)

    def round(self, name):
        self.open_window()
        for section in SECTIONS[1:]:
            self.select(section)
        self.close_window()
        time.sleep(SETTLED)
        return self.memory(name)

    # All of it, and what of it the program itself holds: without the pages of files, which the system lends it.
    def memory(self, name):
        with open(f"/proc/{self.program.process.pid}/smaps_rollup", encoding="utf-8") as file:
            sizes = {line.split(":")[0]: int(line.split()[1]) for line in file if line.rstrip().endswith(" kB")}
        print(f"{name}: resident {sizes['Rss']} KiB, its own {sizes['Anonymous']} KiB", flush=True)
        return sizes["Rss"], sizes["Anonymous"]

    def check(self, what, growth, base, held=True):
        print(f"{what}: {growth:+} KiB, {growth / base:+.1%}", flush=True)
        if held:
            self.assertLessEqual(growth, LIMIT * base, what)


def main():
    os.environ["TARVO_PROGRAM"] = os.path.abspath(sys.argv[1])
    Rounds.rounds = int(sys.argv[2]) if len(sys.argv) > 2 else Rounds.rounds
    Rounds.popover_first = "used" in sys.argv[3:]
    result = Rounds().run()
    for _, trace in result.failures + result.errors:
        print(trace, file=sys.stderr)
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
