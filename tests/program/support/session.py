"""A desktop session for one test program: X server, window manager, message bus and folders of its own."""
import json
import os
import shutil
import signal
import subprocess
import tempfile

from .waiting import wait_for

SCREEN = "1280x720"
NOBODY = "http://127.0.0.1:9"  # a proxy that is none: no test asks a stranger's server


class Session:
    """Everything a desktop program meets; ends with everything that was started in it."""

    def __init__(self, window_manager=True, dpi=96, screen=SCREEN):
        self.folder = tempfile.mkdtemp(prefix="tarvo-session-")
        self.children = []
        self.environment = self._environment()
        try:
            self._start_x_server(dpi, screen)
            self._start_bus()
            if window_manager:
                self._start_window_manager()
        except BaseException:
            self.end()
            raise

    def _environment(self):
        kept = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS")
                if name in os.environ}
        folders = {"XDG_RUNTIME_DIR": "runtime", "XDG_CONFIG_HOME": "config", "XDG_DATA_HOME": "data",
                   "XDG_CACHE_HOME": "cache", "HOME": "home"}
        for variable, name in folders.items():
            kept[variable] = self.path(name)
            os.mkdir(kept[variable], 0o700)
        return kept | {"LANG": "C.UTF-8", "QT_STYLE_OVERRIDE": "fusion", "NO_AT_BRIDGE": "1",
                       "GTK_THEME": "Adwaita", "GIO_USE_VFS": "local", "https_proxy": NOBODY, "QT_LOGGING_RULES": "tarvo.*=true"}

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def start(self, *command, log=None, **environment):
        """Starts a process in the session; its output goes to a file of the session."""
        with open(self.path(log or os.path.basename(command[0]) + ".log"), "ab") as output:
            child = subprocess.Popen(command, env=self.environment | environment, stdin=subprocess.DEVNULL,
                                     stdout=output, stderr=output, start_new_session=True)
        self.children.append(child)
        return child

    def start_talking(self, *command):
        """Starts a process in the session that reads lines and answers them."""
        with open(self.path(os.path.basename(command[-2]) + ".log"), "ab") as errors:
            child = subprocess.Popen(command, env=self.environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                     stderr=errors, text=True, start_new_session=True)
        self.children.append(child)
        return child

    def run(self, *command, **environment):
        """Runs a tool to its end and returns what it printed."""
        done = subprocess.run(command, env=self.environment | environment, stdin=subprocess.DEVNULL, check=False,
                              capture_output=True, text=True, timeout=60)
        return done.stdout

    def bus_call(self, service, path, interface, method, signature="", *arguments):
        """What a method on the session's bus returns; None when nobody answers. Starts no service."""
        return self._bus("call", "--", service, path, interface, method, signature, *arguments)

    def bus_property(self, service, path, interface, name):
        """A property on the session's bus; None when nobody answers. Starts no service."""
        return self._bus("get-property", "--", service, path, interface, name)

    def _bus(self, *command):
        printed = self.run("busctl", "--address=" + self.environment["DBUS_SESSION_BUS_ADDRESS"], "--json=short",
                           "--auto-start=no", *command)
        return json.loads(printed)["data"] if printed.strip() else None

    def stop(self, child):
        """Ends one process that was started here."""
        if child.poll() is None:
            os.killpg(child.pid, signal.SIGTERM)
            try:
                child.wait(10)
            except subprocess.TimeoutExpired:
                os.killpg(child.pid, signal.SIGKILL)
                child.wait(10)
        for pipe in (child.stdin, child.stdout):
            if pipe:
                pipe.close()
        if child in self.children:
            self.children.remove(child)

    def end(self):
        for child in reversed(list(self.children)):
            self.stop(child)
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start_x_server(self, dpi, screen):
        reading, writing = os.pipe()
        with open(self.path("xvfb.log"), "ab") as output:
            child = subprocess.Popen(
                ["Xvfb", "-displayfd", str(writing), "-screen", "0", screen + "x24", "-dpi", str(dpi), "-nolisten",
                 "tcp", "-noreset"], pass_fds=[writing], stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                env=self.environment, start_new_session=True)
        os.close(writing)
        self.children.append(child)
        with os.fdopen(reading) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise AssertionError("no X server: " + open(self.path("xvfb.log"), encoding="utf-8").read())
        self.environment["DISPLAY"] = ":" + number

    def _start_bus(self):
        address = self.path("bus")
        self.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--address=unix:path=" + address)
        wait_for(lambda: os.path.exists(address), "the message bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=" + address

    def _start_window_manager(self):
        self.start("openbox")
        wait_for(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager")
