#!/usr/bin/env python3
"""Listing 100,000 sockets beside `ss -tunap`: UDP sockets bound to loopback addresses, held by eight processes that end
with this one. Processor and wall time, medians, output thrown away.

Usage: bench/sockets.py [BUILD-FOLDER [COUNT]]        needs a hard limit of 12,600 descriptors a process
"""
import os
import pathlib
import resource
import socket
import statistics
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
HOLDERS = 8


def hold(index, count, ready, finish):
    """Child: binds its sockets, tells how many, and waits for the parent to close the pipe."""
    most = resource.getrlimit(resource.RLIMIT_NOFILE)[1]
    resource.setrlimit(resource.RLIMIT_NOFILE, (most, most))
    held = []
    for number in range(count):
        one = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        one.bind((f"127.0.1.{index + 1}", 30_000 + number))
        held.append(one)
    os.write(ready, f"{len(held)}\n".encode())
    os.read(finish, 1)
    os._exit(0)


def start(total):
    ready_reader, ready_writer = os.pipe()
    finish_reader, finish_writer = os.pipe()
    children = []
    for index in range(HOLDERS):
        child = os.fork()
        if child == 0:
            os.close(finish_writer)
            try:
                hold(index, total // HOLDERS, ready_writer, finish_reader)
            except OSError as error:
                print(f"cannot hold sockets: {error}", file=sys.stderr)
            finally:
                os._exit(1)
        children.append(child)
    os.close(ready_writer)
    with os.fdopen(ready_reader) as ready:
        held = sum(int(ready.readline() or 0) for _ in children)
    return held, children, finish_writer


def median_times(command, rounds=7):
    wall, processor = [], []
    for _ in range(rounds):
        begin = time.monotonic()
        child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        _, _, usage = os.wait4(child.pid, 0)
        child.returncode = 0
        wall.append((time.monotonic() - begin) * 1e3)
        processor.append((usage.ru_utime + usage.ru_stime) * 1e3)
    return statistics.median(wall), statistics.median(processor)


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else HERE.parent / "build/release").resolve()
    held, children, finish = start(int(sys.argv[2]) if len(sys.argv) > 2 else 100_000)
    try:
        ours = [str(build / "bin/print_processes"), "connections"]
        lines = subprocess.run(ours, check=True, capture_output=True, text=True).stdout.count("\n")
        our_wall, our_processor = median_times(ours)
        ss_wall, ss_processor = median_times(["ss", "-tunap"])
    finally:
        os.close(finish)
        for child in children:
            os.waitpid(child, 0)
    print("| sockets | rows | ours: wall, ms | processor, ms | ss: wall, ms | processor, ms | ours / ss, wall "
          "| processor |")
    print("|---|---|---|---|---|---|---|---|")
    print(f"| {held} | {lines} | {our_wall:.0f} | {our_processor:.0f} | {ss_wall:.0f} | {ss_processor:.0f} "
          f"| {our_wall / ss_wall:.2f} | {our_processor / ss_processor:.2f} |")


if __name__ == "__main__":
    main()
