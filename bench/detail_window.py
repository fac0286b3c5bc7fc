#!/usr/bin/env python3
"""Memory of the real program around the detail window: before it was first opened and after each closing.

Each round opens the window from the context menu, walks all ten sections and closes it, under a virtual display with a
window manager, on the readings of the computer it runs on.

Usage: bench/detail_window.py PROGRAM [ROUNDS]     (scripts/install-packages.sh virtual-display bench test)
"""
import os
import pathlib
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "program"))

from detail_test import SECTIONS, DetailSections

SETTLED = 2.5  # seconds, two refreshes


class Rounds(DetailSections):
    rounds = 10

    def runTest(self):
        self.launch(machine=False)
        print(f"before: {self.memory()}", flush=True)
        for number in range(1, self.rounds + 1):
            self.open_window()
            for name in SECTIONS[1:]:
                self.select(name)
            opened = self.memory()
            self.close_window()
            time.sleep(SETTLED)
            print(f"round {number}: open {opened}, closed {self.memory()}", flush=True)

    # All of it, and what of it the program itself holds, without the pages of files.
    def memory(self):
        with open(f"/proc/{self.program.process.pid}/smaps_rollup", encoding="utf-8") as file:
            sizes = {line.split(":")[0]: int(line.split()[1]) for line in file if line.rstrip().endswith(" kB")}
        return f"{sizes['Rss']} ({sizes['Anonymous']} anonymous) KiB"


def main():
    os.environ["TARVO_PROGRAM"] = os.path.abspath(sys.argv[1])
    Rounds.rounds = int(sys.argv[2]) if len(sys.argv) > 2 else Rounds.rounds
    result = Rounds().run()
    for _, trace in result.failures + result.errors:
        print(trace, file=sys.stderr)
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
