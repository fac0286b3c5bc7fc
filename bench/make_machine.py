#!/usr/bin/env python3
"""Writes the proc and sys files of a made-up machine below a folder, for benchmarks.

Usage: make_machine.py FOLDER [--cores N] [--interfaces N]
"""
import argparse
import pathlib

MEMINFO = """MemTotal:       24684096 kB
MemFree:        23634680 kB
MemAvailable:   24315236 kB
Buffers:           12556 kB
Cached:           829988 kB
SwapCached:            0 kB
Active:           321104 kB
Inactive:         571372 kB
Active(anon):      60656 kB
Inactive(anon):        0 kB
Active(file):     260448 kB
Inactive(file):   571372 kB
Unevictable:           0 kB
Mlocked:               0 kB
SwapTotal:       2097148 kB
SwapFree:        2097148 kB
Zswap:                 0 kB
Zswapped:              0 kB
Dirty:                48 kB
Writeback:             0 kB
AnonPages:         50012 kB
Mapped:            65936 kB
Shmem:             10704 kB
KReclaimable:      57372 kB
Slab:              84624 kB
SReclaimable:      57372 kB
SUnreclaim:        27252 kB
KernelStack:        1616 kB
PageTables:         1588 kB
SecPageTables:         0 kB
NFS_Unstable:          0 kB
Bounce:                0 kB
WritebackTmp:          0 kB
CommitLimit:    14439196 kB
Committed_AS:     243872 kB
VmallocTotal:   34359738367 kB
VmallocUsed:        9172 kB
VmallocChunk:          0 kB
Percpu:              608 kB
AnonHugePages:         0 kB
ShmemHugePages:        0 kB
ShmemPmdMapped:        0 kB
FileHugePages:         0 kB
FilePmdMapped:         0 kB
HugePages_Total:       0
HugePages_Free:        0
HugePages_Rsvd:        0
HugePages_Surp:        0
Hugepagesize:       2048 kB
Hugetlb:               0 kB
DirectMap4k:       63488 kB
DirectMap2M:     5179392 kB
DirectMap1G:    20971520 kB
"""
NET_HEADER = """Inter-|   Receive                                                |  Transmit
 face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop fifo colls carrier compressed
"""


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="ascii")


def stat_text(cores):
    lines = ["cpu  " + " ".join(str(value * cores) for value in (81234, 120, 23456, 9876543, 3456, 0, 789, 12, 0, 0))]
    for core in range(cores):
        lines.append(f"cpu{core} 81234 120 23456 {9876543 + core} 3456 0 789 12 0 0")
    lines.append("intr 123456789 " + " ".join(["0"] * (200 + 8 * cores)))
    lines += ["ctxt 987654321", "btime 1763265193", "processes 123456", "procs_running 2", "procs_blocked 0",
              "softirq 5551234 1 2 3 4 5 6 7 8 9 10"]
    return "\n".join(lines) + "\n"


def interface(root, name, index, loopback):
    folder = root / "sys/class/net" / name
    write(folder / "flags", "0x9\n" if loopback else "0x1003\n")
    write(folder / "ifindex", f"{index}\n")
    write(folder / "iflink", f"{index}\n")
    write(folder / "type", "772\n" if loopback else "1\n")
    write(folder / "uevent", f"INTERFACE={name}\nIFINDEX={index}\n")
    if not loopback:
        (folder / "device").mkdir(exist_ok=True)


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("folder", type=pathlib.Path)
    arguments.add_argument("--cores", type=int, default=8)
    arguments.add_argument("--interfaces", type=int, default=4)
    options = arguments.parse_args()
    root = options.folder

    write(root / "proc/stat", stat_text(options.cores))
    write(root / "proc/meminfo", MEMINFO)
    write(root / "proc/loadavg", "0.31 0.42 0.53 2/345 6789\n")
    names = ["lo"] + [f"enp{number}s0" for number in range(options.interfaces - 1)]
    rows = [f"{name:>6}: {150560553 + index} 5585 0 0 0 0 0 0 {349341 + index} 4448 0 0 0 0 0 0\n"
            for index, name in enumerate(names)]
    write(root / "proc/net/dev", NET_HEADER + "".join(rows))
    for index, name in enumerate(names, 1):
        interface(root, name, index, name == "lo")


if __name__ == "__main__":
    main()
