#!/usr/bin/env python3
"""Runs the desktop program for a long time and reports whether it grows.

Usage: scripts/soak.py MINUTES [PROGRAM]        PROGRAM: build/release/bin/tarvo unless given

The program runs on this machine's own figures under a virtual X server with ticks at one second; its popover is opened
and closed by the hot key once a minute. Once a minute a line tells resident memory, private dirty memory, file
descriptors, threads, children that were not waited for, and the processor time used. After ten minutes the program is
to be settled: the end is a failure when memory has grown by more than 1 MiB since then, or descriptors by any, or when
there is a zombie. The whole-program tests' packages are needed: scripts/install-packages.sh test.
"""
import os
import signal
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "program"))
from support.program import Tarvo  # noqa: E402
from support.session import Session  # noqa: E402
from support.waiting import wait_for  # noqa: E402

SETTLED_MINUTES = 10
GROWTH_KIB = 1024
OPEN_SECONDS = 8
FIELDS = ("rss", "dirty", "fds", "threads", "zombies", "cpu")


def read(path):
    with open(path, encoding="utf-8", errors="replace") as file:
        return file.read()


def field(text, name):
    return next(int(line.split()[1]) for line in text.splitlines() if line.startswith(name + ":"))


def processes_of(parent):
    """States of the processes that the parent has started."""
    states = []
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            state, owner = read(f"/proc/{name}/stat").rpartition(")")[2].split()[:2]
        except (OSError, ValueError):
            continue
        if int(owner) == parent:
            states.append(state)
    return states


def measure(pid):
    rollup = read(f"/proc/{pid}/smaps_rollup")
    times = read(f"/proc/{pid}/stat").rpartition(")")[2].split()
    ticks = int(times[11]) + int(times[12])
    return {"rss": field(rollup, "Rss"), "dirty": field(rollup, "Private_Dirty"),
            "fds": len(os.listdir(f"/proc/{pid}/fd")), "threads": field(read(f"/proc/{pid}/status"), "Threads"),
            "zombies": processes_of(pid).count("Z"), "cpu": ticks / os.sysconf("SC_CLK_TCK")}


def popovers(program):
    return [window for kind in ("UTILITY", "NORMAL") for window in program.windows(kind)]


def toggle(session, program, shown):
    before = program.log().count("tarvo.hotkey: pressed")
    session.run("xdotool", "key", "super+shift+m")
    wait_for(lambda: program.alive() and program.log().count("tarvo.hotkey: pressed") > before, "the hot key")
    wait_for(lambda: program.alive() and bool(popovers(program)) == shown, f"the popover, shown: {shown}")


def minute(session, program, end):
    toggle(session, program, True)
    time.sleep(OPEN_SECONDS)
    toggle(session, program, False)
    time.sleep(max(0.0, end - time.monotonic()))


def soak(session, minutes):
    program = Tarvo(session, preferences={"refreshInterval": 1.0, "notificationsEnabled": False},
                    TARVO_STATUS_BAR="bar")
    program.wait_for_window("DOCK")
    program.wait_for_log("^tarvo.hotkey: active$")
    begin = time.monotonic()
    rows = []
    print("minute " + " ".join(f"{name:>8}" for name in FIELDS), flush=True)
    for number in range(1, minutes + 1):
        minute(session, program, begin + 60 * number)
        rows.append(measure(program.process.pid))
        print(f"{number:6} " + " ".join(f"{rows[-1][name]:8}" for name in FIELDS), flush=True)
    status = program.terminate(signal.SIGTERM)
    return rows, status, program.unexpected_lines()


def faults(rows, status, unexpected):
    settled = rows[SETTLED_MINUTES:] or rows[-1:]
    start = rows[min(SETTLED_MINUTES, len(rows)) - 1]
    last = settled[-1]
    if last["rss"] - start["rss"] > GROWTH_KIB:
        yield f"memory grew by {last['rss'] - start['rss']} KiB"
    if last["fds"] > start["fds"]:
        yield f"{last['fds'] - start['fds']} more file descriptors"
    if any(row["zombies"] for row in rows):
        yield "a zombie was seen"
    if status != 0:
        yield f"it ended with status {status}"
    for line in unexpected:
        yield "in the log: " + line


def main():
    if len(sys.argv) not in (2, 3) or not sys.argv[1].isdigit() or int(sys.argv[1]) == 0:
        print(__doc__)
        return 2
    os.environ["TARVO_PROGRAM"] = os.path.abspath(sys.argv[2] if len(sys.argv) > 2 else "build/release/bin/tarvo")
    session = Session()
    try:
        found = list(faults(*soak(session, int(sys.argv[1]))))
    finally:
        session.end()
    for fault in found:
        print("FAIL  " + fault)
    if not found:
        print("OK    settled" if int(sys.argv[1]) > SETTLED_MINUTES else "OK    too short to tell of growth")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
