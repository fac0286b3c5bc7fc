#!/usr/bin/env python3
"""Holds the readings of tarvo-status beside the system's own tools on this machine, and fails where they differ.

memory in use    free -b                 within 1 % of a reading before or after, or between them
disk             df -B1 /                within 0.1 %
network bytes    ip -s -j link           between a reading taken before and one taken after
processor        mpstat and top, under one busy stress-ng worker, mean of ten seconds, within 3 points
load             uptime's own source     equal, unless it changed meanwhile

Usage: scripts/compare-tools.py [TARVO-STATUS]       (scripts/install-packages.sh test compare)
"""
import json
import pathlib
import re
import subprocess
import sys
import time

GIB = 2**30
WINDOW = 5  # seconds of the processor comparison's intervals
WINDOWS = 2  # the three begin a few hundredths of a second apart, which two windows together hardly notice


ENVIRONMENT = {"LC_ALL": "C", "TERM": "dumb", "PATH": "/usr/sbin:/usr/bin:/sbin:/bin"}


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, env=ENVIRONMENT).stdout


def start(*command):
    return subprocess.Popen(command, stdout=subprocess.PIPE, text=True, env=ENVIRONMENT)


def counted_links():
    """Bytes in and out of the interfaces that have hardware behind them and are up."""
    received = sent = 0
    for link in json.loads(output("ip", "-s", "-j", "link")):
        hardware = pathlib.Path("/sys/class/net", link["ifname"], "device").exists()
        if hardware and "UP" in link["flags"]:
            received += link["stats64"]["rx"]["bytes"]
            sent += link["stats64"]["tx"]["bytes"]
    return received, sent


def snapshot(program):
    return json.loads(output(program, "--once", "--format", "json", "--detail"))


class Comparison:
    def __init__(self):
        self.failed = False

    def row(self, name, ours, theirs, holds):
        print(f"{'OK  ' if holds else 'FAIL'}  {name:<24} tarvo-status {ours:<24} tool {theirs}")
        self.failed |= not holds

    def within(self, name, ours, theirs, share):
        self.row(name, f"{ours:.4f}", f"{theirs:.4f}", abs(ours - theirs) <= share * theirs)


def compare_memory(comparison, program):
    before = output("free", "-b").splitlines()[1].split()
    ours = snapshot(program)
    after = output("free", "-b").splitlines()[1].split()
    low, high = sorted(int(line[2]) / GIB for line in (before, after))
    comparison.row("memory used, GiB", f"{ours['memUsedGB']:.4f}", f"{low:.4f} to {high:.4f}",
                   low * 0.99 <= ours["memUsedGB"] <= high * 1.01)
    comparison.within("memory total, GiB", ours["memTotalGB"], int(before[1]) / GIB, 1e-6)


def compare_disk(comparison, program):
    ours = snapshot(program)
    total, _, available = map(int, output("df", "-B1", "--output=size,used,avail", "/").splitlines()[1].split())
    comparison.within("disk total, GB", ours["diskTotalGB"], total / 1e9, 0.001)
    comparison.within("disk free, GB", ours["diskFreeGB"], available / 1e9, 0.001)


def compare_network(comparison, program):
    before = counted_links()
    ours = snapshot(program)
    after = counted_links()
    for name, key, low, high in (("network received, bytes", "totalNetIn", before[0], after[0]),
                                 ("network sent, bytes", "totalNetOut", before[1], after[1])):
        comparison.row(name, str(ours[key]), f"{low} to {high}", low <= ours[key] <= high)


def compare_load(comparison, program):
    def load():
        return pathlib.Path("/proc/loadavg").read_text().split()[0]
    before = load()
    ours = snapshot(program)["loadAvg1"]
    comparison.row("load, 1 minute", f"{ours:.2f}", f"{before} to {load()}", f"{ours:.2f}" in (before, load()))


def mean(values):
    return sum(values) / len(values)


def mpstat_busy(text):
    rows = [row["cpu-load"][0] for row in json.loads(text)["sysstat"]["hosts"][0]["statistics"]]
    return [100 - row["idle"] - row["iowait"] for row in rows]


def top_busy(text):
    """Without the first turn, which covers the time since the machine was started."""
    rows = re.findall(r"([\d.]+) id, *([\d.]+) wa", text)[1:]
    return [100 - float(idle) - float(waiting) for idle, waiting in rows]


def tick_loads(ticks):
    """The first tick covers only the program's own start."""
    lines = [ticks.stdout.readline() for _ in range(WINDOWS + 1)]
    ticks.terminate()
    ticks.communicate()
    return [json.loads(line)["cpu"] for line in lines[1:]]


def compare_processor(comparison, program):
    stress = subprocess.Popen(["stress-ng", "--quiet", "--cpu", "1", "--timeout", str(WINDOWS * WINDOW + 10)])
    try:
        time.sleep(1)
        ticks = start(program, "--interval", str(WINDOW), "--format", "json")
        mpstat = start("mpstat", "-o", "JSON", str(WINDOW), str(WINDOWS))
        top = start("top", "-b", "-d", str(WINDOW), "-n", str(WINDOWS + 1))
        ours = mean(tick_loads(ticks))
        theirs = {"mpstat": mean(mpstat_busy(mpstat.communicate()[0])), "top": mean(top_busy(top.communicate()[0]))}
    finally:
        stress.terminate()
        stress.wait()
    for tool, load in theirs.items():
        comparison.row(f"processor, %, {tool}", f"{ours:.1f}", f"{load:.1f}", abs(ours - load) <= 3)
    if ours > 99:
        print("      every core was busy with other work: the processor's rows say little")


def main():
    default = pathlib.Path(__file__).resolve().parent.parent / "build/release/bin/tarvo-status"
    program = sys.argv[1] if len(sys.argv) > 1 else str(default)
    comparison = Comparison()
    for compare in (compare_memory, compare_disk, compare_network, compare_load, compare_processor):
        compare(comparison, program)
    return 1 if comparison.failed else 0


if __name__ == "__main__":
    sys.exit(main())
