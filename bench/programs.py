#!/usr/bin/env python3
"""Whole programs side by side in one run: processor time a refresh, wake-ups, memory and start-up, ours and others.

Every program refreshes every 2 seconds for the same time, one after the other, under a virtual display with a window
manager. Processor time counts child processes. A program is shown once the window manager knows its window, or once it
has printed something. A program that is not installed is left out.

Usage: bench/programs.py [--seconds N] [--rounds N] [BUILD-FOLDER]     (scripts/install-packages.sh virtual-display bench test)
"""
import argparse
import os
import pathlib
import re
import select
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
TICK = os.sysconf("SC_CLK_TCK")
REFRESH = 2.0
STARTS = 5

I3STATUS = """general { interval = 2 }
order += "cpu_usage"
order += "memory"
order += "disk /"
order += "load"
cpu_usage { format = "%usage" }
memory { format = "%used" }
disk "/" { format = "%avail" }
load { format = "%1min" }
"""
POLYBAR = """[bar/one]
width = 100%
height = 26
modules-left = cpu memory
font-0 = monospace:size=10
[module/cpu]
type = internal/cpu
interval = 2
[module/memory]
type = internal/memory
interval = 2
"""
CONKY = """conky.config = { update_interval = 2, own_window = true, own_window_type = 'dock' }
conky.text = [[CPU ${cpu}% RAM ${memperc}% ${loadavg}]]
"""


def tree(pid):
    """The process and its descendants, alive ones."""
    children = {}
    for entry in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            text = entry.read_text(errors="replace")
        except OSError:
            continue
        parent = int(text.rsplit(")", 1)[1].split()[1])
        children.setdefault(parent, []).append(int(entry.parent.name))
    found, rest = [], [pid]
    while rest:
        found.append(rest.pop())
        rest += children.get(found[-1], [])
    return found


def processor_seconds(pid):
    """User and system time of a process, its descendants and those they have waited for, from the scheduler's clock
    where it is told (nanoseconds), else in ticks."""
    total = 0.0
    for one in tree(pid):
        try:
            fields = pathlib.Path(f"/proc/{one}/stat").read_text(errors="replace").rsplit(")", 1)[1].split()
            total += sum(int(value) for value in fields[13:15]) / TICK
            for task in pathlib.Path(f"/proc/{one}/task").iterdir():
                total += int((task / "schedstat").read_text().split()[0]) / 1e9
        except (OSError, ValueError):
            continue
    return total


def switches(pid):
    total = 0
    for one in tree(pid):
        for task in pathlib.Path(f"/proc/{one}/task").glob("*/status"):
            match = re.search(r"^voluntary_ctxt_switches:\s+(\d+)", task.read_text(), re.M)
            total += int(match.group(1)) if match else 0
    return total


def memory(pid):
    resident = private = 0
    for one in tree(pid):
        try:
            text = pathlib.Path(f"/proc/{one}/smaps_rollup").read_text()
        except OSError:
            continue
        resident += int(re.search(r"^Rss:\s+(\d+)", text, re.M).group(1))
        private += int(re.search(r"^Private_Dirty:\s+(\d+)", text, re.M).group(1))
    return resident / 1024, private / 1024


def end(process):
    os.killpg(process.pid, signal.SIGTERM)
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()


def launch(command, output, environment):
    return subprocess.Popen(command, stdout=output, stderr=subprocess.DEVNULL, env=environment, start_new_session=True)


def started_in(command, environment):
    """Milliseconds until the window manager knows a window of the program, or until its first text; None for neither."""
    spy = subprocess.Popen(["xprop", "-root", "-spy", "_NET_CLIENT_LIST"], stdout=subprocess.PIPE)
    try:
        spy.stdout.readline()
        with tempfile.TemporaryFile() as output:
            begin = time.monotonic()
            process = launch(command, output, environment)
            shown = None
            while shown is None and time.monotonic() < begin + 5:
                if select.select([spy.stdout], [], [], 0.0005)[0] or os.fstat(output.fileno()).st_size > 0:
                    shown = 1000 * (time.monotonic() - begin)
            end(process)
    finally:
        spy.kill()
        spy.communicate()
    time.sleep(0.3)  # the window's going is not to be taken for the next one's coming
    return shown


def running(command, seconds, environment):
    """CPU milliseconds a refresh, voluntary switches a second, resident and private dirty MiB; None when it ends."""
    with tempfile.TemporaryFile() as output:
        process = launch(command, output, environment)
        time.sleep(4)
        if process.poll() is not None:
            return None
        before, woken, begin = processor_seconds(process.pid), switches(process.pid), time.monotonic()
        time.sleep(seconds)
        spent = processor_seconds(process.pid) - before
        elapsed = time.monotonic() - begin
        figures = (1000 * spent / (elapsed / REFRESH), (switches(process.pid) - woken) / elapsed, *memory(process.pid))
        end(process)
    return figures


def medians(rows):
    return [statistics.median(known) if (known := [value for value in column if value is not None]) else None
            for column in zip(*rows)]


def print_row(label, rows):
    cells = ["" if value is None else f"{value:.{digits}f}" for value, digits in zip(medians(rows), (2, 2, 1, 1, 0))]
    print(f"| {label} | " + " | ".join(cells) + " |", flush=True)


def programs(build, folder):
    files = {"i3status": I3STATUS, "polybar": POLYBAR, "conky": CONKY}
    for name, text in files.items():
        (folder / name).write_text(text, encoding="utf-8")
    binary = build / "bin"
    return [
        ("floor: read and parse", [binary / "floor_loop", "2"], {}),
        ("tarvo-status", [binary / "tarvo-status", "--interval", "2"], {}),
        ("i3status", ["i3status", "-c", folder / "i3status"], {}),
        ("floor: empty Qt program with a tray icon", [binary / "qt_floor", "tray", "2"], {}),
        ("floor: Qt program repainting one text", [binary / "qt_floor", "text", "2"], {}),
        ("tarvo, own bar, text", [binary / "tarvo"], {"TARVO_STATUS_BAR": "bar"}),
        ("polybar, cpu and memory", ["polybar", "-q", "-c", folder / "polybar", "one"], {}),
        ("conky, text", ["conky", "-c", folder / "conky"], {}),
    ]


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("--seconds", type=float, default=30)
    arguments.add_argument("--rounds", type=int, default=3, help="each program once a round; medians are printed")
    arguments.add_argument("build", nargs="?", type=pathlib.Path, default=HERE.parent / "build/release")
    options = arguments.parse_args()
    if "DISPLAY" not in os.environ:
        wrapper = HERE.parent / "scripts/with-virtual-display.sh"
        os.execv(wrapper, [str(wrapper), sys.executable, *sys.argv])

    with tempfile.TemporaryDirectory() as name:
        rows = {}
        for _ in range(options.rounds):
            for label, command, extra in programs(options.build, pathlib.Path(name)):
                command = [str(part) for part in command]
                if not shutil.which(command[0]):
                    print(f"{label}: not installed", file=sys.stderr)
                    continue
                environment = {**os.environ, "XDG_CONFIG_HOME": name, "XDG_DATA_HOME": name, **extra}
                if (figures := running(command, options.seconds, environment)) is None:
                    print(f"{label}: ended by itself", file=sys.stderr)
                    continue
                start = statistics.median([started_in(command, environment) or 0.0 for _ in range(STARTS)]) or None
                rows.setdefault(label, []).append((*figures, start))
    print("| program | CPU ms a refresh | voluntary switches a second | RSS MiB | private dirty MiB | shown after ms |")
    print("|---|---|---|---|---|---|")
    for label, found in rows.items():
        print_row(label, found)


if __name__ == "__main__":
    main()
