#!/usr/bin/env python3
"""Holds the readings of tarvo-status beside the system's own tools on this machine, and fails where they differ.

memory in use    free -b                 within 1 %
disk             df -B1 /                within 0.1 %
network bytes    ip -s -j link           between a reading taken before and one taken after
processor        mpstat, under one busy stress-ng worker, within 3 points
load             uptime's own source     equal, unless it changed meanwhile

Usage: scripts/compare-tools.py [TARVO-STATUS]       (scripts/install-packages.sh test compare)
"""
import json
import pathlib
import subprocess
import sys
import time

GIB = 2**30
WINDOW = 5  # seconds of the processor comparison's intervals


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, env={"LC_ALL": "C", "PATH": "/usr/sbin:/usr/bin:/sbin:/bin"}).stdout


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
    used = (int(before[2]) + int(after[2])) / 2 / GIB
    comparison.within("memory used, GiB", ours["memUsedGB"], used, 0.01)
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


def compare_processor(comparison, program):
    stress = subprocess.Popen(["stress-ng", "--quiet", "--cpu", "1", "--timeout", str(3 * WINDOW + 5)])
    try:
        time.sleep(1)
        ticks = subprocess.Popen([program, "--interval", str(WINDOW), "--format", "json"], stdout=subprocess.PIPE,
                                 text=True)
        mpstat = subprocess.Popen(["mpstat", "-o", "JSON", str(WINDOW), "2"], stdout=subprocess.PIPE, text=True,
                                  env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"})
        lines = [ticks.stdout.readline() for _ in range(3)]  # the first tick covers only the start
        ticks.terminate()
        ticks.communicate()
        rows = json.loads(mpstat.communicate()[0])["sysstat"]["hosts"][0]["statistics"]
    finally:
        stress.terminate()
        stress.wait()
    for line, row in zip(lines[1:], rows):
        load = row["cpu-load"][0]
        theirs = 100 - load["idle"] - load["iowait"]
        ours = json.loads(line)["cpu"]
        comparison.row("processor, percent", f"{ours:.1f}", f"{theirs:.1f}", abs(ours - theirs) <= 3)


def main():
    default = pathlib.Path(__file__).resolve().parent.parent / "build/release/bin/tarvo-status"
    program = sys.argv[1] if len(sys.argv) > 1 else str(default)
    comparison = Comparison()
    for compare in (compare_memory, compare_disk, compare_network, compare_load, compare_processor):
        compare(comparison, program)
    return 1 if comparison.failed else 0


if __name__ == "__main__":
    sys.exit(main())
