"""Bluetooth accessories in the popover of the real program, with BlueZ played on the session's own bus."""
import subprocess
import unittest

from support.panel import PanelCase
from support.waiting import wait_for

PYTHON = "/usr/bin/python3"
TITLE = "Bluetooth Accessories"
MOCK = "org.freedesktop.DBus.Mock"


def has_mock():
    return subprocess.run([PYTHON, "-c", "import dbusmock.templates.bluez5"], capture_output=True,
                          check=False).returncode == 0


@unittest.skipUnless(has_mock(), "python3-dbusmock is not installed")
class Bluetooth(PanelCase):
    def setUp(self):
        super().setUp()
        # The machine is this one, since a recorded one has no Bluetooth; its system bus is the session's.
        self.machine.end()
        self.machine = None
        self.session.environment["DBUS_SYSTEM_BUS_ADDRESS"] = self.session.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.bluez = None

    def start_bluez(self):
        self.bluez = self.session.start(PYTHON, "-m", "dbusmock", "--system", "--template", "bluez5", log="bluez.log")
        wait_for(lambda: self.ask("/", "org.bluez.Mock", "AddAdapter", "ss", "hci0", "machine"), "BlueZ")

    def ask(self, path, interface, method, *arguments):
        return self.session.bus_call("org.bluez", path, interface, method, *arguments)

    def add_device(self, address, name, percent):
        self.ask("/", "org.bluez.Mock", "AddDevice", "sss", "hci0", address, name)
        path = "/org/bluez/hci0/dev_" + address.replace(":", "_")
        self.ask(path, MOCK, "UpdateProperties", "sa{sv}", "org.bluez.Device1", "2", "Connected", "b", "true",
                 "Paired", "b", "true")
        self.ask(path, MOCK, "AddProperties", "sa{sv}", "org.bluez.Battery1", "1", "Percentage", "y", str(percent))
        return path

    def open_panel(self):
        cards = ["gauges", "history", "temps", "power", "disk", "network", "ips", "battery", "cores", "processes",
                 "quickActions", "netProcesses", "timeMachine"]
        self.start_program({"show." + card: False for card in cards} | {"show.bluetoothBattery": True})
        self.open()
        self.screen.wait_for(TITLE)

    def test_are_shown_with_their_charges(self):
        self.start_bluez()
        self.add_device("00:11:22:33:44:01", "Mouse", 73)
        self.add_device("00:11:22:33:44:02", "Buds", 18)
        self.add_device("00:11:22:33:44:03", "Buds", 60)
        self.add_device("00:11:22:33:44:04", "00-11-22-33-44-04", 5)
        self.open_panel()
        for text in ("Mouse 73%", "Buds 18%", "Buds 60%", "Bluetooth 5%"):
            self.screen.wait_for_text(text)

    def test_are_none_without_the_service(self):
        self.open_panel()
        self.screen.wait_for_text(TITLE + "\n—")

    def test_a_service_that_does_not_answer_holds_nothing_up(self):
        self.start_bluez()
        self.add_device("00:11:22:33:44:01", "Mouse", 73)
        self.bluez.send_signal(19)  # SIGSTOP
        self.addCleanup(self.bluez.send_signal, 18)  # SIGCONT
        self.open_panel()
        self.screen.wait_for_text(TITLE + "\n—")
        self.close_by_key()
        self.assertEqual(self.program.terminate(), 0)


if __name__ == "__main__":
    unittest.main()
