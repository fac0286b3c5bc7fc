"""What lsof, ss, ps and top say, and the program, as rows that can be held beside each other."""
import collections
import contextlib
import os
import pathlib
import re
import subprocess

ENVIRONMENT = {"LC_ALL": "C", "TERM": "dumb", "HOME": "/nonexistent", "PATH": "/usr/sbin:/usr/bin:/sbin:/bin"}
LSOF_STATES = {"SYN_RECV": "SYN_RCVD", "FIN_WAIT1": "FIN_WAIT_1", "FIN_WAIT2": "FIN_WAIT_2", "CLOSE": "CLOSED"}
SS_STATES = {"ESTAB": "ESTABLISHED", "SYN-RECV": "SYN_RCVD", "CLOSE": "CLOSED", "UNCONN": "CLOSED"}

# When it began, in ticks after boot, which tells a number that was given again, and what it is now.
Process = collections.namedtuple("Process", "start zombie threads")


class Run:
    """A tool under way or done: its lines, and the process that it was."""

    def __init__(self, *command):
        self._child = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, env=ENVIRONMENT)
        self.pid = self._child.pid

    def lines(self):
        text = self._child.communicate(timeout=60)[0]
        if not text:
            raise SystemExit(f"{self._child.args[0]} printed nothing")
        return text.splitlines()


def program_connections(program):
    rows = (line.split("\t") for line in Run(program, "connections").lines())
    return collections.Counter((int(row[1]), *row[2:]) for row in rows)


def lsof_connections():
    rows = collections.Counter()
    for line in Run("lsof", "-i", "-n", "-P").lines()[1:]:
        fields = line.split()
        state = fields[9].strip("()") if len(fields) > 9 else "—"
        local, _, remote = fields[8].partition("->")
        rows[int(fields[1]), fields[7], local, remote or "—", LSOF_STATES.get(state, state)] += 1
    return rows


def ss_endpoint(text):
    host, _, port = text.rpartition(":")
    host = host.strip("[]").partition("%")[0]
    if host in ("0.0.0.0", "::"):
        host = "*"
    if "." in host:
        host = host.removeprefix("::ffff:")
    return f"[{host}]:{port}" if ":" in host else f"{host}:{port}"


def ss_connections():
    """One row for each descriptor of each process; a socket that ss knows no process of gives none."""
    rows = collections.Counter()
    for line in Run("ss", "-tunap", "-H", "-O").lines():
        protocol, state, _, _, local, remote, *users = line.split(maxsplit=6)
        state = "—" if protocol == "udp" else SS_STATES.get(state, state.replace("-", "_"))
        remote = "—" if remote.endswith(":*") else ss_endpoint(remote)
        for pid in re.findall(r"pid=(\d+),fd=\d+", "".join(users)):
            rows[int(pid), protocol.upper(), ss_endpoint(local), remote, state] += 1
    return rows


def program_processes(run):
    """Processor share and resident share by pid."""
    return {int(row[0]): (float(row[1]), float(row[2])) for row in (line.split("\t") for line in run.lines())}


def ps_processes(run):
    return {int(row[0]): (float(row[1]), float(row[2])) for row in (line.split() for line in run.lines())}


def top_processes(run):
    """Those of the second turn, which is the first with a window behind it."""
    lines = [line.split() for line in run.lines()]
    header = [number for number, fields in enumerate(lines) if "%CPU" in fields][1]
    pid, cpu, memory = (lines[header].index(name) for name in ("PID", "%CPU", "%MEM"))
    return {int(row[pid]): (float(row[cpu]), float(row[memory])) for row in lines[header + 1:] if row}


def processor_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text(errors="replace").rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


class Processes(dict):
    """All processes at one moment by number, and the number that was given last."""

    def __init__(self):
        super().__init__()
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                fields = (folder / "stat").read_text(errors="replace").rpartition(")")[2].split()
                self[int(folder.name)] = Process(int(fields[19]), fields[0] in "ZX", int(fields[17]))
        self.newest = int(pathlib.Path("/proc/loadavg").read_text().split()[4])

    def gave_before(self, later, pid):
        """Whether the number was given between this moment and the later one; they begin again after the largest."""
        if self.newest <= later.newest:
            return self.newest < pid <= later.newest
        return pid > self.newest or pid <= later.newest
