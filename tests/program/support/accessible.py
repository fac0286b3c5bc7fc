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
        self.address = json.loads(printed)["data"][0]

    def widgets(self):
        """The visible widgets from the outermost inwards. Empty while they change."""
        printed = self._client("tree")
        return json.loads(printed) if printed else []

    def names(self):
        return [widget["name"] for widget in self.widgets() if widget["name"]]

    def text(self):
        return "\n".join(self.names())

    def find(self, name, **wanted):
        """The widget of that name that also has the wanted values, e.g. role; None without one."""
        wanted["name"] = name
        return next((widget for widget in self.widgets() if wanted.items() <= widget.items()), None)

    def wait_for(self, name, **wanted):
        return wait_for(lambda: self.find(name, **wanted), f"\"{name}\" {wanted} among {self.names()}")

    def wait_for_text(self, text):
        wait_for(lambda: text in self.text(), f"\"{text}\" on the screen:\n{self.text()}")

    def wait_until_gone(self, text):
        wait_for(lambda: (shown := self.text()) and text not in shown, f"the end of \"{text}\"")

    def press(self, name, **wanted):
        """Presses the last button of that kind as assistive technology does, once it is there."""
        wanted["name"] = name
        wait_for(lambda: self._client("press", json.dumps(wanted)), f"a button {wanted} among {self.names()}")

    def _client(self, *command):
        return self.session.run(PYTHON, CLIENT, self.address, *command).strip()
