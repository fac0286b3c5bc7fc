"""The real program in a session."""
import json
import os
import re
import signal
import subprocess

from .waiting import wait_for

# What may stand in the log: the program's own debug lines, and nothing else.
ANNOUNCED = re.compile(r"^(tarvo\.\w+: .*|)$")


class Tarvo:
    def __init__(self, session, machine=None, preferences=None, arguments=(), program=None,
                 **environment):
        self.session = session
        self.announced = []
        self.log_path = session.path("tarvo.log")
        if os.path.exists(self.log_path):
            os.remove(self.log_path)
        if preferences is not None:
            write_preferences(session, preferences)
        root = ["--root", machine.folder] if machine else []
        self.process = session.start(program or os.environ["TARVO_PROGRAM"], *root, *arguments, log="tarvo.log",
                                     **environment)

    def log(self):
        with open(self.log_path, encoding="utf-8") as file:
            return file.read()

    def wait_for_log(self, pattern, after=0):
        """Waits for a line that the pattern is found in, from the character `after` on."""
        return wait_for(lambda: self.alive() and self._nudge() and re.search(pattern, self.log()[after:], re.MULTILINE),
                        lambda: f"/{pattern}/ in the log:\n{self.log()}")

    def wait_for_painted(self, text, after=0):
        self.wait_for_log("painted \"" + re.escape(text.replace("\n", "\\n")) + "\"$", after)

    def wait_for_host(self, host, after=0):
        self.wait_for_log(r"^tarvo\.statusbar: host " + host, after)

    def mark(self):
        return len(self.log())

    def alive(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the program ended with {self.process.returncode}:\n{self.log()}")
        return True

    def wait_for_end(self):
        try:
            return self.process.wait(30)
        except subprocess.TimeoutExpired:
            raise AssertionError("the program does not end:\n" + self.log()) from None

    def terminate(self, number=signal.SIGTERM):
        os.kill(self.process.pid, number)
        return self.wait_for_end()

    def unexpected_lines(self):
        return [line for line in self.log().splitlines()
                if not ANNOUNCED.match(line) and not any(text in line for text in self.announced)]

    def announce(self, text):
        """Lines with this text belong into the log from now on."""
        self.announced.append(text)

    def windows(self, kind):
        """Visible windows of the program whose type ends with `kind`, e.g. DOCK."""
        found = self.session.run("xdotool", "search", "--onlyvisible", "--class", "tarvo").split()
        return [window for window in found
                if kind in self.session.run("xprop", "-id", window, "_NET_WM_WINDOW_TYPE")]

    def wait_for_window(self, kind):
        return wait_for(lambda: self.alive() and self._nudge() and self.windows(kind), f"a window of type {kind}")[0]

    # A window manager that has only just started may leave a request in its queue until something else happens.
    def _nudge(self):
        self.session.run("xprop", "-root", "-f", "_TARVO_NUDGE", "32c", "-set", "_TARVO_NUDGE", "1")
        return True


def preference_path(session):
    return os.path.join(session.environment["XDG_CONFIG_HOME"], "tarvo", "preferences.json")


def write_preferences(session, values):
    """Replaces the preference file as an editor does."""
    path = preference_path(session)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path + ".new", "w", encoding="utf-8") as file:
        json.dump(values, file, ensure_ascii=False)
    os.replace(path + ".new", path)
