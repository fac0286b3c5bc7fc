#!/usr/bin/env python3
"""Holds the program's connections and processes beside the system's tools, with sockets and processes of its own.

connections   lsof -i -n -P, ss -tunap   the same rows, one for each descriptor; those of this script and of its
                                         child without any exception
processes     ps, top -b                 the same processes
processor     top -b                     over the same window: within EDGES seconds of processor time for each thread
memory        ps                         within a tenth of a percent, which is what ps rounds down to

A process that only one side lists has to be the tool itself, a zombie (the program leaves them out), or one that came
or ended during the comparison, as looks taken before and after it tell; a connection, one that was not there in both of
two turns. ps tells the mean of a process's whole life for its processor share: a child that worked once and rests is
held against that. Prints a line for each comparison and exits 1 when one does not hold.
Usage: scripts/compare-processes.py PRINT_PROCESSES       (scripts/install-packages.sh test compare)
"""
import contextlib
import os
import subprocess
import sys
import time

import loopback_sockets
import system_tools
from system_tools import Run

WINDOW = 5  # seconds over which processor shares are measured
EDGES = 0.15  # seconds by which the two windows may lie apart, both ends together, with the kernel's ticks
FIRST_PASSES = 0.3  # seconds that the program takes before its window begins

BUSY = "import time; end = time.monotonic() + 40\nwhile time.monotonic() < end: pass"
HALF = "import time; end = time.monotonic() + 40\nwhile (now := time.monotonic()) < end:\n if now % 0.1 > 0.05: time.sleep(0.05)"
RESTED = "import time\nwhile time.process_time() < 1: pass\nprint(flush=True); time.sleep(40)"


class Comparison:
    def __init__(self):
        self.failed = False

    def row(self, name, told, wrong):
        print(f"{'FAIL' if wrong else 'OK  '}  {name:<24} {told}")
        for one in wrong:
            print(f"      {one}")
        self.failed |= bool(wrong)


def compare_connections(comparison, program, name, tool, own):
    ours, theirs, ours_again, theirs_again = (take() for take in (lambda: system_tools.program_connections(program), tool) * 2)
    wrong = [f"only ours: {row}" for row in ((ours & ours_again) - theirs).elements()]
    wrong += [f"only of {name}: {row}" for row in ((theirs & theirs_again) - ours_again).elements()]
    wrong += [f"own, on one side only: {row}" for row in {*own_rows(ours, own).items()} ^ {*own_rows(theirs, own).items()}]
    states = {row[-1] for row in own_rows(theirs, own)}
    wrong += [f"no socket of this script is {state}" for state in loopback_sockets.STATES - states]
    passing = (ours | ours_again | theirs | theirs_again) - (ours & ours_again & theirs & theirs_again)
    comparison.row(f"connections, {name}", f"{ours.total()} ours, {theirs.total()} of {name}, {own_rows(theirs, own).total()} of "
                   f"them this script's in {len(states)} states; {passing.total()} came or went", wrong)


def own_rows(rows, own):
    return type(rows)({row: count for row, count in rows.items() if row[0] in own})


def explanation(pid, before, after, tools):
    """Why only one side may list the process, absent when nothing allows it."""
    if pid in tools:
        return "the tools themselves"
    if pid not in after and (pid in before or before.gave_before(after, pid)):
        return "ended"
    if pid in after and (pid not in before or before[pid].start != after[pid].start):
        return "came"
    if pid in after and after[pid].zombie:
        return "zombies"
    return None


def compare_lists(comparison, name, ours, theirs, before, after, tools):
    """Returns the processes that both sides list and that lived throughout."""
    reasons = {pid: explanation(pid, before, after, tools) for pid in ours.keys() ^ theirs.keys()}
    wrong = [f"only {'ours' if pid in ours else 'of ' + name}: {pid}" for pid, reason in reasons.items() if not reason]
    zombies = {pid for pid in before.keys() & after.keys() if before[pid].zombie}
    wrong += [f"a zombie, on the wrong side: {pid}" for pid in zombies if pid in ours or pid not in theirs]
    wrong += [] if zombies else ["no zombie to compare"]
    lasting = {pid for pid in before if explanation(pid, before, after, tools) is None}
    wrong += [f"on neither side: {pid}" for pid in lasting - (ours.keys() | theirs.keys())]
    told = ", ".join(f"{list(reasons.values()).count(reason)} {reason}" for reason in sorted({*reasons.values()} - {None}))
    comparison.row(f"processes, {name}", f"{len(ours)} ours, {len(theirs)} of {name}; on one side only: {told or 'none'}", wrong)
    return lasting & ours.keys() & theirs.keys()


def compare_with_top(comparison, program, children):
    before = system_tools.Processes()
    our_run = Run(program, "cpu", "1000000", str(WINDOW))
    time.sleep(FIRST_PASSES)
    top_run = Run("top", "-b", "-n", "2", "-d", str(WINDOW), "-w", "512")
    theirs, ours = system_tools.top_processes(top_run), system_tools.program_processes(our_run)
    after = system_tools.Processes()
    both = compare_lists(comparison, "top", ours, theirs, before, after, {our_run.pid, top_run.pid})
    apart, wrong = {}, []
    for pid in both:
        most = 100 * EDGES / WINDOW * min(max(before[pid].threads, after[pid].threads), os.cpu_count())
        apart[pid] = abs(ours[pid][0] - theirs[pid][0])
        if apart[pid] > most:
            wrong.append(f"{pid}: {ours[pid][0]} and {theirs[pid][0]}, allowed {most:.1f} apart")
    shares = {name: (ours[child.pid][0], theirs[child.pid][0]) for name, child in children.items() if child.pid in both}
    wrong += [f"not on both sides: {name}" for name in children.keys() - shares.keys() - {"zombie"}]
    wrong += [f"{name} is not busy: {shares[name]}" for name in ("busy", "half") if min(shares.get(name, [0])) < 10]
    wrong += [f"{name} is not at rest: {shares[name]}" for name in ("rested", "sleeper") if max(shares.get(name, [0])) > 1]
    told = "; ".join(f"{name} {one} and {other}" for name, (one, other) in shares.items())
    comparison.row("processor, top", f"{told}; of {len(both)} processes the farthest apart {max(apart.values()):.1f} points, "
                   f"allowed {100 * EDGES / WINDOW:.1f} a thread", wrong)


def compare_with_ps(comparison, program, rested):
    before = system_tools.Processes()
    first = Run(program, "memory", "1000000")
    ours = system_tools.program_processes(first)
    ps_run = Run("ps", "-A", "-o", "pid=,pcpu=,pmem=")
    theirs = system_tools.ps_processes(ps_run)
    second = Run(program, "memory", "1000000")
    ours_again = system_tools.program_processes(second)
    after = system_tools.Processes()
    both = compare_lists(comparison, "ps", ours, theirs, before, after, {first.pid, ps_run.pid, second.pid})
    wrong = []
    for pid in both & ours_again.keys():
        smallest, largest = sorted((ours[pid][1], ours_again[pid][1]))
        if not smallest - 0.11 <= theirs[pid][1] <= largest + 0.06:
            wrong.append(f"{pid}: {smallest} to {largest}, ps tells {theirs[pid][1]}")
    comparison.row("memory, ps", f"{len(both)} processes, {len(wrong)} differ", wrong)
    if rested in both:
        compare_means(comparison, ours[rested][0], theirs[rested][0], rested, after[rested])
    else:
        comparison.row("processor, ps", "no child at rest", ["the child that worked once is not on both sides"])


def compare_means(comparison, ours, mean, pid, process):
    worked = system_tools.processor_seconds(pid)
    age = time.clock_gettime(time.CLOCK_BOOTTIME) - process.start / os.sysconf("SC_CLK_TCK")
    holds = 100 * worked / (age + 1) - 0.1 <= mean <= 100 * worked / (age - 1.5) + 0.1 and ours <= 1 < mean
    comparison.row("processor, ps", f"rested {ours} ours, {mean} of ps: {worked:.2f} s worked in {age:.1f} s of life",
                   [] if holds else ["ps does not tell the mean of the process's life, or ours is not at rest"])


def start_children(shared):
    children = {name: subprocess.Popen([sys.executable, "-c", code], stdout=subprocess.PIPE)
                for name, code in (("busy", BUSY), ("half", HALF), ("rested", RESTED))}
    children["sleeper"] = subprocess.Popen(["sleep", "40"], pass_fds=[shared.fileno()])
    children["zombie"] = subprocess.Popen(["true"])
    children["rested"].stdout.readline()
    return children


def main():
    program = sys.argv[1]
    comparison = Comparison()
    held = loopback_sockets.open_sockets()
    children = start_children(held[0])
    try:
        own = {os.getpid(), children["sleeper"].pid}
        compare_connections(comparison, program, "lsof", system_tools.lsof_connections, own)
        compare_connections(comparison, program, "ss", system_tools.ss_connections, own)
        compare_with_top(comparison, program, children)
        compare_with_ps(comparison, program, children["rested"].pid)
    finally:
        for child in children.values():
            with contextlib.suppress(ProcessLookupError):
                child.kill()
            child.wait()
    return 1 if comparison.failed else 0


if __name__ == "__main__":
    sys.exit(main())
