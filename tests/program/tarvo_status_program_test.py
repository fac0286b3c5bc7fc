#!/usr/bin/env python3
"""Starts the real tarvo-status on small recorded machines and looks at what it prints.

Usage: tarvo_status_program_test.py PATH-OF-TARVO-STATUS [unittest arguments]
"""

import json
import os
import re
import signal
import subprocess
import sys
import tempfile
import unittest

PROGRAM = ""
TIME_LIMIT = 30  # seconds until a program that hangs fails its test

STAT = "cpu  {user} 0 {system} {idle} 0 0 0 0 0 0\n" "cpu0 {user} 0 {system} {idle} 0 0 0 0 0 0\n"
MEMINFO = (
    "MemTotal:        8388608 kB\n"
    "MemFree:         4194304 kB\n"
    "MemAvailable:    6291456 kB\n"
    "Buffers:               0 kB\n"
    "Cached:          2097152 kB\n"
    "SwapCached:            0 kB\n"
    "Active:          1048576 kB\n"
    "Inactive:        1048576 kB\n"
    "SwapTotal:       1048576 kB\n"
    "SwapFree:         524288 kB\n"
    "Shmem:                 0 kB\n"
    "SReclaimable:          0 kB\n"
    "SUnreclaim:            0 kB\n"
)
NET_DEV = (
    "Inter-|   Receive                                                |  Transmit\n"
    " face |bytes    packets errs drop fifo frame compressed multicast"
    "|bytes    packets errs drop fifo colls carrier compressed\n"
    "    lo: 500 5 0 0 0 0 0 0 500 5 0 0 0 0 0 0\n"
    "  eth0: {received} 10 0 0 0 0 0 0 {sent} 10 0 0 0 0 0 0\n"
)
SNAPSHOT_KEYS = [
    "cpu", "perCore", "memPercent", "memUsedGB", "memTotalGB", "memActiveGB", "memWiredGB", "memCompressedGB",
    "memInactiveGB", "memFreeGB", "swapUsedGB", "swapTotalGB", "loadAvg1", "loadAvg5", "loadAvg15", "cpuTemp",
    "gpuTemp", "gpuUtil", "hasFan", "fanRPMs", "powerWatts", "diskFreeGB", "diskTotalGB", "diskReadRate",
    "diskWriteRate", "netInRate", "netOutRate", "localIP", "publicIP", "totalNetIn", "totalNetOut", "battery",
    "topCPU", "topMem", "topNetProcesses", "timeMachine", "wifiSSID",
]
OPTIONAL_KEYS = {
    "cpuTemp", "gpuTemp", "gpuUtil", "powerWatts", "diskFreeGB", "diskTotalGB", "localIP", "publicIP", "battery",
    "timeMachine", "wifiSSID",
}  # fmt: skip


class ProgramTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.root = os.path.join(self.folder, "machine")
        self.write("proc/loadavg", "0.50 0.25 0.10 1/100 1234\n")
        self.write("proc/meminfo", MEMINFO)
        self.write_counters()
        self.write("sys/class/net/eth0/flags", "0x1003\n")
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": self.folder,
            "XDG_CONFIG_HOME": os.path.join(self.folder, "config"),
            "LANG": "C",
        }
        # Sanitizers and coverage report through these.
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS", "LLVM_PROFILE_FILE", "GCOV_PREFIX"):
            if name in os.environ:
                self.environment[name] = os.environ[name]

    def write(self, path, text):
        """Replaces a file of the machine at once, so that no reader sees half of it."""
        path = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        data = text if isinstance(text, bytes) else text.encode()
        if os.path.exists(path):
            # The program keeps its files open: the new text goes into the same file, in one write.
            descriptor = os.open(path, os.O_WRONLY)
            os.pwrite(descriptor, data, 0)
            os.ftruncate(descriptor, len(data))
            os.close(descriptor)
        else:
            with open(path, "wb") as file:
                file.write(data)

    def write_counters(self, user=100000, system=100000, idle=800000, received=100000, sent=100000):
        self.write("proc/stat", STAT.format(user=user, system=system, idle=idle))
        self.write("proc/net/dev", NET_DEV.format(received=received, sent=sent))

    def write_preferences(self, values):
        path = os.path.join(self.environment["XDG_CONFIG_HOME"], "tarvo", "preferences.json")
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(values if isinstance(values, str) else json.dumps(values))

    def run_program(self, *arguments, **options):
        options.setdefault("stdout", subprocess.PIPE)
        return subprocess.run(
            [PROGRAM, *arguments], stderr=subprocess.PIPE, env=self.environment, timeout=TIME_LIMIT, **options
        )

    def once(self, *arguments):
        """What one line says; checks that nothing else is printed."""
        done = self.run_program("--once", "--root", self.root, *arguments)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        text = done.stdout.decode("utf-8")
        self.assertEqual(text.count("\n"), 1)
        self.assertTrue(text.endswith("\n"))
        return text[:-1]

    def start(self, *arguments):
        process = subprocess.Popen(
            [PROGRAM, "--root", self.root, *arguments],
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            env=self.environment,
        )

        def end():
            process.kill()
            process.wait()
            process.stdout.close()
            process.stderr.close()

        self.addCleanup(end)
        return process

    def read_until(self, process, wanted, most=200):
        """The next lines up to the first one that is wanted."""
        lines = []
        while len(lines) < most:
            line = process.stdout.readline()
            self.assertTrue(line.endswith(b"\n"), "the program ended")
            lines.append(line)
            if wanted(line):
                return lines
        self.fail(f"not within {most} lines; the last one: {line}")


class OneLine(ProgramTest):
    def test_text_is_processor_and_memory_at_first(self):
        self.assertRegex(self.once(), r"^CPU 0% · RAM \d+%$")

    def test_json_has_the_fields_of_the_snapshot_in_order(self):
        text = self.once("--format", "json")
        record = json.loads(text)
        self.assertEqual([key for key in SNAPSHOT_KEYS if key in record], list(record))
        self.assertLessEqual(set(SNAPSHOT_KEYS) - OPTIONAL_KEYS, set(record))
        self.assertNotIn(None, record.values())

    def test_json_tells_what_the_files_say(self):
        record = json.loads(self.once("--format", "json"))
        self.assertEqual(record["cpu"], 0)
        self.assertEqual(record["perCore"], [0])
        self.assertEqual(record["memTotalGB"], 8)
        self.assertEqual((record["swapUsedGB"], record["swapTotalGB"]), (0.5, 1))
        self.assertEqual([record["loadAvg1"], record["loadAvg5"], record["loadAvg15"]], [0.5, 0.25, 0.1])
        self.assertEqual((record["totalNetIn"], record["totalNetOut"]), (100000, 100000))
        self.assertEqual((record["netInRate"], record["netOutRate"]), (0, 0))

    def test_waybar_object_has_text_tool_tip_and_class(self):
        record = json.loads(self.once("--format", "waybar"))
        self.assertEqual(list(record), ["text", "tooltip", "class"])
        self.assertEqual(record["text"], self.once())
        self.assertRegex(record["tooltip"], r"^CPU: 0%\nMemory: \d+%$")
        self.assertEqual(record["class"], "normal")

    def test_detail_ends_on_a_machine_that_has_none(self):
        record = json.loads(self.once("--format", "json", "--detail"))
        self.assertNotIn("publicIP", record)
        self.assertNotIn("cpuTemp", record)

    def test_an_empty_folder_is_a_machine_without_readings(self):
        empty = os.path.join(self.folder, "empty")
        os.mkdir(empty)
        self.root = empty
        self.assertEqual(self.once(), "CPU 0% · RAM 0%")
        record = json.loads(self.once("--format", "json", "--detail"))
        self.assertEqual((record["cpu"], record["perCore"], record["memTotalGB"]), (0, [], 0))

    def test_damaged_files_never_break_a_line(self):
        names = ["proc/stat", "proc/meminfo", "proc/loadavg", "proc/net/dev", "sys/class/net/eth0/flags"]
        damages = [b"", b"\n", b"\0" * 4096, b"\xff\xfe" * 3000, b"cpu", b"cpu  9" + b"9" * 100000, b"-1 nan inf\n" * 999]
        for name in names:
            with open(os.path.join(self.root, name), "rb") as file:
                whole = file.read()
            for damage in [*damages, whole[: len(whole) // 2]]:
                with self.subTest(file=name, damage=damage[:12]):
                    self.write(name, damage)
                    text = self.once("--format", "json", "--detail")
                    self.assertLessEqual(set(json.loads(text)), set(SNAPSHOT_KEYS))
                    self.assertNotRegex(text, r"(?i)\b(nan|inf|infinity)\b")
            self.write(name, whole)

    def test_numbers_are_the_same_in_a_locale_with_a_comma(self):
        def numbers():
            # The free space of the disk below the recorded machine changes as it likes.
            return re.sub(r'"disk(Free|Total)GB":[0-9.]+,', "", self.once("--format", "json"))

        plain = numbers()
        for name in ("LANG", "LC_ALL", "LC_NUMERIC"):
            self.environment[name] = "cs_CZ.UTF-8"
        self.assertEqual(numbers(), plain)
        self.assertRegex(self.once(), r"^CPU 0% · RAM \d+%$")

    def test_the_language_of_the_tool_tip_follows_the_environment(self):
        self.environment["LANG"] = "cs_CZ.UTF-8"
        record = json.loads(self.once("--format", "waybar"))
        self.assertRegex(record["tooltip"], r"^CPU: 0%\nPaměť: \d+%$")


class Preferences(ProgramTest):
    def test_choose_the_readings_of_the_text(self):
        self.write_preferences({"menubar.cpu": False, "menubar.network": True})
        self.assertRegex(self.once(), r"^RAM \d+% · ↓0\.0 B/s$")
        self.write_preferences({"menubar.cpu": False, "menubar.mem": False})
        self.assertEqual(self.once(), "Tarvo")

    def test_choose_the_language(self):
        self.write_preferences({"appLanguage": "cs"})
        self.assertIn("Paměť: ", json.loads(self.once("--format", "waybar"))["tooltip"])

    def test_that_are_damaged_count_as_none(self):
        for text in ("", "{", "[]", '{"menubar.cpu": "maybe"}', "\0", "null"):
            with self.subTest(text=text):
                self.write_preferences(text)
                self.assertRegex(self.once(), r"RAM \d+%$")

    def test_are_never_written(self):
        self.write_preferences("{")
        self.once("--interval", "5")
        config = os.path.join(self.environment["XDG_CONFIG_HOME"], "tarvo")
        self.assertEqual(os.listdir(config), ["preferences.json"])
        with open(os.path.join(config, "preferences.json"), encoding="utf-8") as file:
            self.assertEqual(file.read(), "{")


class Arguments(ProgramTest):
    def test_that_make_no_sense_end_with_one_line_and_status_2(self):
        for arguments in (
            ["--interval", "0"],
            ["--interval", "-1"],
            ["--interval", "abc"],
            ["--interval", "inf"],
            ["--interval", "nan"],
            ["--interval", "1,5"],
            ["--interval", ""],
            ["--interval"],
            ["--format", "xml"],
            ["--format"],
            ["--root"],
            ["--root", ""],
            ["--root", os.path.join(self.folder, "nowhere")],
            ["--root", os.path.join(self.root, "proc/stat")],
            ["--bogus"],
            ["stray"],
            [""],
        ):
            with self.subTest(arguments=arguments):
                done = self.run_program(*arguments)
                self.assertEqual((done.returncode, done.stdout), (2, b""))
                self.assertRegex(done.stderr.decode(), r"^tarvo-status: [^\n]+\n$")

    def test_help_and_version_are_printed(self):
        done = self.run_program("--help")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertTrue(done.stdout.startswith(b"Usage: tarvo-status"))
        done = self.run_program("--version")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertRegex(done.stdout.decode(), r"^tarvo-status \d+\.\d+\.\d+\n$")


class Stream(ProgramTest):
    def test_follows_the_counters_from_line_to_line(self):
        process = self.start("--interval", "0.1", "--format", "json")
        first = json.loads(process.stdout.readline())
        self.assertEqual((first["cpu"], first["totalNetIn"]), (0, 100000))
        self.write_counters(user=175000, idle=825000, received=200000)
        records = self.read_until(process, lambda line: json.loads(line)["totalNetIn"] == 200000)
        busy = [record["cpu"] for record in map(json.loads, records) if record["cpu"] != 0]
        self.assertEqual(busy, [75])
        self.assertEqual(json.loads(process.stdout.readline())["cpu"], 0)

    def test_follows_preferences_that_change(self):
        self.write_preferences({})
        process = self.start("--interval", "0.1")
        self.assertRegex(process.stdout.readline().decode(), r"^CPU")
        self.write_preferences({"menubar.cpu": False})
        line = self.read_until(process, lambda line: not line.startswith(b"CPU"))[-1]
        self.assertRegex(line.decode(), r"^RAM \d+%\n$")

    def test_follows_a_language_that_changes(self):
        process = self.start("--interval", "0.1", "--format", "waybar")
        self.assertIn("Memory: ", json.loads(process.stdout.readline())["tooltip"])
        self.write_preferences({"appLanguage": "cs"})
        self.read_until(process, lambda line: "Paměť: " in json.loads(line)["tooltip"])

    def test_ends_quietly_when_the_reader_ends(self):
        pipeline = f"'{PROGRAM}' --root '{self.root}' --interval 0.05; echo status $? >&2"
        done = subprocess.run(
            ["bash", "-c", f"({pipeline}) | head -1"], capture_output=True, env=self.environment, timeout=TIME_LIMIT
        )
        self.assertEqual(done.stdout.count(b"\n"), 1)
        self.assertEqual(done.stderr, b"status 0\n")

    def test_ends_without_waiting_for_the_next_line_when_the_reader_goes(self):
        process = self.start("--interval", "3600")
        process.stdout.readline()
        process.stdout.close()
        self.assertEqual(process.wait(TIME_LIMIT), 0)
        self.assertEqual(process.stderr.read(), b"")

    def test_ends_on_signals_with_status_0(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(signal=number):
                process = self.start("--interval", "3600", "--format", "json")
                line = process.stdout.readline()
                process.send_signal(number)
                self.assertEqual(process.wait(TIME_LIMIT), 0)
                json.loads(line)
                self.assertEqual((process.stdout.read(), process.stderr.read()), (b"", b""))

    def test_ends_on_a_signal_before_its_first_line(self):
        process = self.start("--detail")
        process.send_signal(signal.SIGTERM)
        process.wait(TIME_LIMIT)
        self.assertIn(process.returncode, (0, -signal.SIGTERM))  # the latter before it has begun

    def test_has_one_thread_without_detail(self):
        process = self.start("--interval", "0.05")
        for _ in range(3):
            process.stdout.readline()
        self.assertEqual(len(os.listdir(f"/proc/{process.pid}/task")), 1)

    def test_says_when_it_cannot_write(self):
        with open("/dev/full", "wb") as full:
            done = self.run_program("--root", self.root, stdout=full)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, b"tarvo-status: cannot write to standard output\n")

    def test_does_not_start_with_a_closed_output(self):
        done = subprocess.run(
            ["bash", "-c", f"exec '{PROGRAM}' --once >&-"],
            stderr=subprocess.PIPE,
            env=self.environment,
            timeout=TIME_LIMIT,
        )
        self.assertEqual((done.returncode, done.stderr), (1, b"tarvo-status: standard output is closed\n"))

    def test_takes_this_machine_without_a_root(self):
        done = self.run_program("--once", "--format", "json")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        record = json.loads(done.stdout)
        self.assertEqual(len(record["perCore"]), os.cpu_count())
        physical = os.sysconf("SC_PHYS_PAGES") * os.sysconf("SC_PAGE_SIZE") / 2**30
        self.assertAlmostEqual(record["memTotalGB"], physical, delta=physical * 0.02)


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()
