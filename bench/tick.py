#!/usr/bin/env python3
"""Cost of one tick of the model beside the floor, by machine size: instructions (callgrind), time, allocations and
system calls (strace), as a Markdown table.

Usage: bench/tick.py [BUILD-FOLDER]        needs valgrind and strace (scripts/install-packages.sh bench)
"""
import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
SIZES = [(8, 4), (8, 200), (64, 4), (512, 4), (512, 200)]


def run(command):
    return subprocess.run(command, check=True, capture_output=True, text=True)


def instructions(loop, kind, root):
    def total(ticks):
        done = run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", loop, kind, root, str(ticks)])
        return int(re.search(r"Collected : (\d+)", done.stderr).group(1))
    return (total(220) - total(20)) / 200


def system_calls(loop, kind, root):
    def total(ticks):
        done = run(["strace", "-f", "-c", "-o", "/dev/stdout", loop, kind, root, str(ticks)])
        line = next(row for row in done.stdout.splitlines() if row.rstrip().endswith("total"))
        return int(re.search(r"(\d+)(?:\s+\d+)?\s+total", line).group(1))
    return (total(220) - total(20)) / 200


def quick(loop, kind, root):
    text = run([loop, kind, root, "2000"]).stdout
    return map(float, re.search(r"([\d.]+) us and ([\d.]+) allocations", text).groups())


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else HERE.parent / "build/release")
    loop = str(build / "bin/tick_loop")
    print("| cores | interfaces | instructions: floor | ours | ratio | us: floor | ours | ratio "
          "| allocations | system calls: floor | ours |")
    print("|---|---|---|---|---|---|---|---|---|---|---|")
    for cores, interfaces in SIZES:
        with tempfile.TemporaryDirectory() as root:
            run([sys.executable, str(HERE / "make_machine.py"), root, "--cores", str(cores),
                 "--interfaces", str(interfaces)])
            floor, ours = (instructions(loop, kind, root) for kind in ("floor", "model"))
            floor_calls, our_calls = (system_calls(loop, kind, root) for kind in ("floor", "model"))
            floor_time, _ = quick(loop, "floor", root)
            our_time, allocations = quick(loop, "model", root)
        print(f"| {cores} | {interfaces} | {floor:.0f} | {ours:.0f} | {ours / floor:.2f} | {floor_time:.1f} "
              f"| {our_time:.1f} | {our_time / floor_time:.2f} | {allocations:.2f} | {floor_calls:.1f} "
              f"| {our_calls:.1f} |")


if __name__ == "__main__":
    main()
