#!/usr/bin/env python3
"""A battery that is changed, taken out and replaced while the real tarvo-status runs on the machine that has it.

Usage: mocked_battery_program_test.py PATH-OF-TARVO-STATUS [unittest arguments]
The machine is a testbed of umockdev; the program reads it as its own.
"""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import unittest

PROGRAM = ""
TIME_LIMIT = 120  # seconds; the battery is looked at every ten
END_LIMIT = 10  # seconds for the program to see that nobody reads on

MAINS = "P: /devices/AC\nE: SUBSYSTEM=power_supply\nA: type=Mains\\n\nA: online=1\\n\n"
BATTERY = "/devices/BAT0"


def attributes(status, now, full=40_000_000, power=10_000_000, cycles=120):
    return {
        "type": "Battery",
        "present": 1,
        "status": status,
        "energy_now": now,
        "energy_full": full,
        "energy_full_design": 50_000_000,
        "power_now": power,
        "cycle_count": cycles,
    }


def description(path, values):
    lines = [f"P: {path}", "E: SUBSYSTEM=power_supply"]
    return "\n".join(lines + [f"A: {name}={value}\\n" for name, value in values.items()]) + "\n"


class MockedBattery(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def path(self, name):
        return os.path.join(self.folder, name)

    def start(self):
        devices = self.path("devices")
        with open(devices, "w", encoding="ascii") as file:
            file.write(MAINS + "\n" + description(BATTERY, attributes("Charging", 20_000_000)))
        # The shell tells where the testbed stands, which only what runs in it knows.
        script = 'printf %s "$UMOCKDEV_DIR" > "$0" && exec "$@"'
        program = [PROGRAM, "--format", "json", "--interval", "0.5", "--detail"]
        environment = dict(
            os.environ, HOME=self.folder, XDG_CONFIG_HOME=self.path("config"), TMPDIR=self.folder, LC_ALL="C"
        )
        self.process = subprocess.Popen(
            ["umockdev-run", "--device", devices, "--", "/bin/sh", "-c", script, self.path("testbed"), *program],
            stdout=subprocess.PIPE,
            stdin=subprocess.DEVNULL,
            env=environment,
            text=True,
            start_new_session=True,
        )
        self.addCleanup(self.stop)
        self.is_late = False
        self.watchdog = threading.Timer(TIME_LIMIT, self.give_up)
        self.watchdog.start()
        self.addCleanup(self.watchdog.cancel)

    def give_up(self):
        self.is_late = True
        self.kill()

    def kill(self):
        """Ends the testbed and what runs in it: the testbed alone would wait for the program for good."""
        try:
            os.killpg(self.process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass

    def stop(self):
        # The program ends when nobody reads its lines. It is not sent a signal: in a testbed the threads of a program
        # save the mask of signals in one place without a lock, and may leave the first thread with all of them blocked.
        self.process.stdout.close()
        try:
            self.process.wait(END_LIMIT)
        except subprocess.TimeoutExpired:
            self.kill()
            self.process.wait()
            self.fail(f"the program still ran {END_LIMIT} s after its output was closed")

    def lines(self):
        for line in self.process.stdout:
            yield json.loads(line)

    def wait_for(self, expected):
        """Reads on until the battery is as expected; the line that says so."""
        last = None
        for record in self.lines():
            last = record.get("battery")
            if last == expected:
                return record
        self.fail(f"the battery stayed {last}, not {expected}{self.reason()}")

    def wait_for_power(self, expected):
        last = None
        for record in self.lines():
            last = record.get("powerWatts")
            if last == expected:
                return
        self.fail(f"the power stayed {last}, not {expected}{self.reason()}")

    def reason(self):
        return f": given up after {TIME_LIMIT} s" if self.is_late else ": the program ended"

    def place(self, path):
        with open(self.path("testbed"), encoding="utf-8") as file:
            return file.read() + "/sys" + path

    def set(self, device, values):
        for name, value in values.items():
            # Into the same file, as the kernel has it.
            with open(os.path.join(self.place(device), name), "r+", encoding="ascii") as file:
                file.write(f"{value}\n")
                file.truncate()

    def remove_battery(self):
        os.unlink(self.place("/class/power_supply/BAT0"))
        folder = self.place(BATTERY)
        # What is still open of a device that has gone gives nothing any more.
        for name in os.listdir(folder):
            if os.path.isfile(os.path.join(folder, name)):
                os.truncate(os.path.join(folder, name), 0)
        shutil.rmtree(folder)

    def insert_battery(self, values):
        folder = self.place(BATTERY)
        os.makedirs(folder)
        for name, value in values.items():
            with open(os.path.join(folder, name), "w", encoding="ascii") as file:
                file.write(f"{value}\n")
        os.symlink("../../devices/BAT0", self.place("/class/power_supply/BAT0"))

    def test_is_followed_while_the_program_runs(self):
        self.start()
        charging = {"isCharging": True, "isPluggedIn": True, "isFullyCharged": False}
        discharging = {"isCharging": False, "isPluggedIn": False, "isFullyCharged": False}
        worn = {"cycleCount": 120, "healthPercent": 80}

        first = self.wait_for({"percentage": 50, "timeToFullMinutes": 120, **charging, **worn})
        self.assertNotIn("powerWatts", first, "on mains power the battery does not tell the machine's")

        self.set("/devices/AC", {"online": 0})
        self.set(BATTERY, {"status": "Discharging", "energy_now": 30_000_000})
        self.wait_for_power(10)
        self.wait_for({"percentage": 75, "timeToEmptyMinutes": 180, **discharging, **worn})

        self.remove_battery()
        self.wait_for(None)
        self.wait_for_power(None)

        self.insert_battery(attributes("Discharging", 45_000_000, full=50_000_000, cycles=3))
        self.wait_for(
            {"percentage": 90, "timeToEmptyMinutes": 270, "cycleCount": 3, "healthPercent": 100, **discharging}
        )


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()
