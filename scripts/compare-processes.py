#!/usr/bin/env python3
"""Holds the program's connections and processes beside `lsof -i -n -P` and `ps`, with sockets of its own on loopback.

Prints what only one side lists and exits 1 when there is any. Spelling is no difference: the tool writes SYN_RECV,
FIN_WAIT1, FIN_WAIT2 and CLOSE for SYN_RCVD, FIN_WAIT_1, FIN_WAIT_2 and CLOSED. Of the processes the resident share is
compared, to a tenth of a percent; the processor share is not, since ps prints the mean of a process's whole life.
Usage: scripts/compare-processes.py PRINT_PROCESSES
"""
import os
import socket
import subprocess
import sys

SPELLING = {"SYN_RECV": "SYN_RCVD", "FIN_WAIT1": "FIN_WAIT_1", "FIN_WAIT2": "FIN_WAIT_2", "CLOSE": "CLOSED"}


def lines(command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.splitlines()


def open_sockets():
    listening = socket.create_server(("127.0.0.1", 0))
    client = socket.create_connection(listening.getsockname())
    server, _ = listening.accept()
    half, other_half = socket.create_connection(listening.getsockname()), listening.accept()[0]
    half.shutdown(socket.SHUT_WR)
    other_half.recv(1)
    datagram = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    datagram.bind(("127.0.0.1", 0))
    six = socket.create_server(("::1", 0), family=socket.AF_INET6)
    return [listening, client, server, half, other_half, datagram, six]


def tool_connections():
    for line in lines(["lsof", "-i", "-n", "-P"])[1:]:
        fields = line.split()
        name, state = (fields[8], fields[9].strip("()")) if len(fields) > 9 else (fields[8], "—")
        local, _, remote = name.partition("->")
        yield fields[1], fields[7], local, remote or "—", SPELLING.get(state, state)


def differences(ours, theirs):
    return [f"only ours: {one}" for one in sorted(ours - theirs)] + [f"only theirs: {one}" for one in sorted(theirs - ours)]


def main():
    program = sys.argv[1]
    held = open_sockets()
    ours = {tuple(line.split("\t")[1:]) for line in lines([program, "connections"])}
    theirs = set(tool_connections())
    own = [one for one in theirs if one[0] == str(os.getpid())]
    print(f"{len(ours)} connections, {len(own)} of this script's {len(held)} sockets seen by lsof")
    found = differences(ours, theirs)
    shares = {row[0]: float(row[2]) for row in (line.split("\t") for line in lines([program, "memory", "100000"]))}
    tool = {row[0]: float(row[1]) for row in (line.split() for line in lines(["ps", "-A", "-o", "pid=,pmem="]))}
    both = shares.keys() & tool.keys()
    found += [f"memory of {pid}: {shares[pid]} and {tool[pid]}" for pid in both if abs(shares[pid] - tool[pid]) > 0.16]
    print(f"{len(both)} processes on both sides, {len(shares)} ours, {len(tool)} of ps (itself and zombies among them)")
    print("\n".join(found) or "no differences")
    return 1 if found or len(own) != len(held) else 0


if __name__ == "__main__":
    sys.exit(main())
