#!/usr/bin/env python3
"""What the real tarvo-status says about the sensors and batteries of recorded machines.

Usage: recorded_sensors_program_test.py PATH-OF-TARVO-STATUS [unittest arguments]
"""

import json
import os
import struct
import sys
import unittest

import tarvo_status_program_test as program

DATA = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "data")
SENSOR_KEYS = ("cpuTemp", "gpuTemp", "hasFan", "fanRPMs", "powerWatts", "battery")


def single(number):
    """The number as the four bytes of the sensor controller hold it."""
    return struct.unpack("f", struct.pack("f", number))[0]


def mean(numbers):
    return sum(numbers) / len(numbers)


class RecordedSensors(program.ProgramTest):
    maxDiff = None

    def sensors(self, machine):
        """The fields of sensors and battery; one that is absent is not among them."""
        self.root = os.path.join(DATA, machine)
        self.assertTrue(os.path.isdir(self.root))
        record = json.loads(self.once("--format", "json", "--detail"))
        return {key: record[key] for key in SENSOR_KEYS if key in record}

    def test_of_a_laptop_with_two_kinds_of_cores(self):
        record = self.sensors("laptop-intel-hybrid")
        fast, efficient = [56, 58], [51, 52, 53, 51, 52, 53, 51, 52]
        self.assertAlmostEqual(record.pop("cpuTemp"), mean(fast + efficient), places=9)
        self.assertEqual(
            record,
            {
                "hasFan": True,
                "fanRPMs": [2350],
                "powerWatts": single(9.12),
                "battery": {
                    "percentage": 60,  # 30.78 of 51.3 Wh; the mouse with 73 percent is none of the machine's
                    "isCharging": False,
                    "isPluggedIn": False,
                    "isFullyCharged": False,
                    "timeToEmptyMinutes": 202,  # 30.78 Wh at 9.12 W
                    "cycleCount": 187,
                    "healthPercent": 90,
                },
            },
        )

    def test_of_a_laptop_with_two_batteries_of_which_one_charges(self):
        self.assertEqual(
            self.sensors("laptop-amd-2bat"),
            {
                "cpuTemp": 61.125,
                "gpuTemp": 52,
                "hasFan": True,
                "fanRPMs": [0, 3120],
                "battery": {
                    "percentage": 70,  # 10 Wh and 2.8 Ah at 11.4 V, of 20 Wh and 3.5 Ah
                    "isCharging": True,
                    "isPluggedIn": True,
                    "isFullyCharged": False,
                    "timeToFullMinutes": 89,  # 17.98 Wh at 12 W
                    "cycleCount": 412,
                    "healthPercent": 86,
                },
            },
        )

    def test_of_a_desktop_with_two_cards_of_which_one_sleeps(self):
        self.assertEqual(
            self.sensors("desktop-amd-two-gpus"),
            {"cpuTemp": mean([54.25, 51.75]), "gpuTemp": 47, "hasFan": True, "fanRPMs": [1210, 654, 0, 0]},
        )

    def test_of_a_single_board_computer(self):
        self.assertEqual(
            self.sensors("raspberrypi5"), {"cpuTemp": single(48.85), "hasFan": True, "fanRPMs": [2834]}
        )

    def test_of_a_server_that_meters_its_power(self):
        self.assertEqual(
            self.sensors("server-2socket"),
            {"cpuTemp": mean([47, 48, 50, 51]), "hasFan": False, "fanRPMs": [], "powerWatts": 312.5},
        )

    def test_of_a_machine_without_any_are_absent(self):
        for machine in ("vm-empty", "container"):
            with self.subTest(machine=machine):
                self.assertEqual(self.sensors(machine), {"hasFan": False, "fanRPMs": []})


if __name__ == "__main__":
    program.PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()
