#!/usr/bin/env python3
"""A pass over the processes beside the floor of the same files and beside ps, as a Markdown table: 100 and 2,000 real
processes and a recorded tree of 20,000 that is made on the spot. Processor time of one turn.

Usage: bench/processes.py [BUILD-FOLDER]
"""
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
PS = ["ps", "-A", "-o", "pid,pcpu,pmem,comm"]
STAT = ("{pid} (worker {pid}) S 1 {pid} {pid} 0 -1 4194560 105 0 0 0 {user} {system} 0 0 20 0 1 0 {start} 2998272 {rss} "
        "18446744073709551615 94297689395200 94297689419305 140735652225920 0 0 0 0 0 0 0 0 0 17 0 0 0 0 0 0 "
        "94297689435152 94297689436768 94298330767360 140735652231808 140735652231836 140735652231836 140735652233194 "
        "0\n")


def ps_microseconds(rounds):
    """Median processor time of ps with its output thrown away."""
    times = []
    for _ in range(rounds):
        child = subprocess.Popen(PS, stdout=subprocess.DEVNULL)
        _, _, usage = os.wait4(child.pid, 0)
        child.returncode = 0
        times.append((usage.ru_utime + usage.ru_stime) * 1e6)
    return statistics.median(times)


def write_tree(root, count):
    proc = pathlib.Path(root, "proc")
    proc.mkdir()
    (proc / "meminfo").write_text("MemTotal:       24684096 kB\n")
    for pid in range(1, count + 1):
        folder = proc / str(pid)
        folder.mkdir()
        (folder / "stat").write_text(STAT.format(pid=pid, user=pid * 7 % 991, system=pid % 97, start=1000 + pid,
                                                 rss=pid * 13 % 5003))


def our_pass(program, root, rounds):
    text = subprocess.run([program, root, str(rounds)], check=True, capture_output=True, text=True).stdout
    return tuple(map(int, re.findall(r"\d+", text.replace("table of 500", ""))))


def row(name, figures, ps):
    files, floor, lists, table, allocations = figures
    beside_ps = f"{ps:.0f} | {ps / lists:.1f}" if ps else "| "
    print(f"| {name} ({files}) | {floor} | {lists} | {lists / floor:.2f} | {table} | {table / floor:.2f} "
          f"| {beside_ps} | {allocations} |")


def real(build, count, rounds):
    present = sum(name.isdigit() for name in os.listdir("/proc"))
    with subprocess.Popen([build / "bin/sleeping_processes", str(max(count - present, 0))], stdin=subprocess.PIPE,
                          stdout=subprocess.PIPE) as sleepers:
        sleepers.stdout.readline()
        figures = our_pass(build / "bin/process_pass", "", rounds)
        row(f"{count:,} real", figures, ps_microseconds(max(rounds // 4, 5)))
        sleepers.stdin.close()


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else HERE.parent / "build/release").resolve()
    print("| processes | floor, us | both lists, us | ratio | table of 500, us | ratio | ps, us | ps / both lists "
          "| allocations |")
    print("|---|---|---|---|---|---|---|---|---|")
    real(build, 100, 200)
    real(build, 2000, 40)
    with tempfile.TemporaryDirectory(dir="/dev/shm") as root:
        write_tree(root, 20_000)
        row("20,000 recorded", our_pass(build / "bin/process_pass", root, 15), None)


if __name__ == "__main__":
    main()
