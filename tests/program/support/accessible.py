"""The program's widgets as assistive technology sees them, on the accessibility bus of the session."""
import json
import os
import subprocess

from .waiting import wait_for

CLIENT = os.path.join(os.path.dirname(__file__), "accessible_client.py")
PYTHON = "/usr/bin/python3"
# Given to a program, makes it answer on the accessibility bus.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


def is_available():
    has_module = subprocess.run([PYTHON, "-c", "import dbus"], capture_output=True, check=False).returncode == 0
    return has_module and os.path.exists("/usr/share/dbus-1/services/org.a11y.Bus.service")


class Accessible:
    def __init__(self, session):
        self.session = session
        printed = session.run("busctl", "--address=" + session.environment["DBUS_SESSION_BUS_ADDRESS"],
                              "--json=short", "call", "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
        self.client = session.start_talking(PYTHON, CLIENT, json.loads(printed)["data"][0])

    def widgets(self):
        """The visible widgets from the outermost inwards. Empty while they change."""
        return self._ask("tree") or []

    def names(self):
        return [widget["name"] for widget in self.widgets() if widget["name"]]

    def text(self):
        return "\n".join(self.names())

    def find(self, name, **wanted):
        """The widget of that name that also has the wanted values, e.g. role; None without one."""
        wanted["name"] = name
        return next((widget for widget in self.widgets() if wanted.items() <= widget.items()), None)

    def wait_for(self, name, **wanted):
        return wait_for(lambda: self.find(name, **wanted), lambda: f"\"{name}\" {wanted} among {self.names()}")

    def wait_for_text(self, *texts):
        def missing(shown):
            return [text for text in texts if text not in shown]
        wait_for(lambda: not missing(self.text()), lambda: f"{missing(self.text())} on the screen:\n{self.text()}")

    def wait_until_gone(self, *texts):
        def left(shown):
            return [text for text in texts if text in shown]
        wait_for(lambda: (shown := self.text()) and not left(shown), lambda: f"the end of {left(self.text())}")

    def press(self, name, **wanted):
        """Presses the last button of that kind as assistive technology does, once it is there."""
        wanted["name"] = name
        wait_for(lambda: self._ask("press", wanted), lambda: f"a button {wanted} among {self.names()}")

    def _ask(self, *question):
        self.client.stdin.write(json.dumps(question) + "\n")
        self.client.stdin.flush()
        answer = self.client.stdout.readline()
        if not answer:
            raise AssertionError("the client of the accessibility bus has ended")
        return json.loads(answer)
