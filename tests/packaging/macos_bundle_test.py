#!/usr/bin/env python3
"""What of the macOS bundle can be looked at anywhere: its property lists, texts and icon container.

Usage: macos_bundle_test.py INFO_PLIST VERSION OLDEST_SYSTEM      the configured list, and what it is to say
"""
import importlib.util
import pathlib
import plistlib
import re
import struct
import subprocess
import sys
import unittest
import xml.parsers.expat
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
FOLDER = ROOT / "packaging/macos"
INFO_PLIST, VERSION, OLDEST_SYSTEM = (sys.argv + ["", "", ""])[1:4]

USAGE = {"NSBluetoothAlwaysUsageDescription", "NSLocationUsageDescription", "NSLocationWhenInUseUsageDescription",
         "NSAppleEventsUsageDescription"}


def property_list(path):
    """The list, refused when a key stands in it twice: plistlib would take the last."""
    data = pathlib.Path(path).read_bytes()
    keys = re.findall(rb"<key>([^<]*)</key>", data)
    if len(keys) != len(set(keys)):
        raise ValueError(f"{path}: a key stands there twice")
    xml.parsers.expat.ParserCreate().Parse(data, True)
    return plistlib.loads(data, fmt=plistlib.FMT_XML)


def strings(path):
    """The pairs of a .strings file; every line has to be one."""
    pairs = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        match = re.fullmatch(r'(\w+) = "([^"\\]+)";', line)
        if not match or match[1] in pairs:
            raise ValueError(f"{path}: {line}")
        pairs[match[1]] = match[2]
    return pairs


def png(size):
    """A transparent picture of that many pixels a side."""
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    rows = zlib.compress((b"\0" + b"\0\0\0\0" * size) * size)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)) +
            chunk(b"IDAT", rows) + chunk(b"IEND", b""))


def make_icns():
    spec = importlib.util.spec_from_file_location("make_icns", FOLDER / "make_icns.py")
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


class Info(unittest.TestCase):
    def setUp(self):
        self.info = property_list(INFO_PLIST)

    def test_nothing_is_left_to_fill_in(self):
        self.assertNotRegex(pathlib.Path(INFO_PLIST).read_text(encoding="utf-8"), r"@\w+@|\$\{")

    def test_it_is_an_agent_without_a_dock_icon(self):
        self.assertIs(self.info["LSUIElement"], True)
        self.assertEqual(self.info["CFBundlePackageType"], "APPL")
        self.assertEqual(self.info["NSPrincipalClass"], "NSApplication")

    def test_it_bears_the_identifier_of_the_program(self):
        header = (ROOT / "src/core/application_identifier.h").read_text(encoding="utf-8")
        identifier = re.search(r'applicationIdentifier = "([^"]+)"', header)[1]
        self.assertEqual(self.info["CFBundleIdentifier"], identifier)

    def test_it_bears_the_version_of_the_project(self):
        self.assertRegex(VERSION, r"^\d+\.\d+\.\d+$")
        self.assertEqual(self.info["CFBundleShortVersionString"], VERSION)
        self.assertEqual(self.info["CFBundleVersion"], VERSION)
        self.assertEqual(self.info["LSMinimumSystemVersion"], OLDEST_SYSTEM)

    def test_it_says_what_for_before_the_system_asks_the_user(self):
        said = {key for key in self.info if key.endswith("UsageDescription")}
        self.assertEqual(said, USAGE)
        for key in USAGE:
            self.assertTrue(self.info[key].startswith(("Tarvo ", "The system ")), key)

    def test_plain_http_is_not_allowed(self):
        self.assertNotIn("NSAppTransportSecurity", self.info)

    def test_what_it_names_is_made(self):
        build = (FOLDER / "bundle.cmake").read_text(encoding="utf-8")
        self.assertIn(f"/{self.info['CFBundleIconFile']})", build)
        self.assertIn(f"set(TARVO_BUNDLE_EXECUTABLE {self.info['CFBundleExecutable']})", build)


class Texts(unittest.TestCase):
    def test_every_language_says_every_usage(self):
        info = property_list(INFO_PLIST)
        self.assertEqual(info["CFBundleLocalizations"], ["en", "cs"])
        for language in info["CFBundleLocalizations"]:
            self.assertEqual(set(strings(FOLDER / f"{language}.lproj/InfoPlist.strings")), USAGE, language)

    def test_english_says_what_the_list_says(self):
        info = property_list(INFO_PLIST)
        english = strings(FOLDER / "en.lproj/InfoPlist.strings")
        self.assertEqual(english, {key: info[key] for key in USAGE})

    def test_czech_says_it_in_czech(self):
        english = strings(FOLDER / "en.lproj/InfoPlist.strings")
        for key, text in strings(FOLDER / "cs.lproj/InfoPlist.strings").items():
            self.assertNotEqual(text, english[key])
            self.assertRegex(text, "[ěščřžýáíéůú]")


class Entitlements(unittest.TestCase):
    def test_the_hardened_runtime_lets_the_program_do_what_it_asks_for_and_no_more(self):
        self.assertEqual(property_list(FOLDER / "entitlements.plist"),
                         {"com.apple.security.automation.apple-events": True,
                          "com.apple.security.device.bluetooth": True,
                          "com.apple.security.personal-information.location": True})

    def test_the_script_that_signs_uses_them(self):
        script = (FOLDER / "sign.sh").read_text(encoding="utf-8")
        self.assertIn("--options runtime --entitlements \"$here/entitlements.plist\"", script)
        subprocess.run(["sh", "-n", FOLDER / "sign.sh"], check=True)


class Icon(unittest.TestCase):
    def test_the_container_holds_every_picture_by_its_types(self):
        tool = make_icns()
        pictures = {size: png(size) for size in tool.TYPES}
        container = tool.icns(pictures)
        self.assertEqual(container[:4], b"icns")
        self.assertEqual(struct.unpack(">I", container[4:8])[0], len(container))
        place, found = 8, {}
        while place < len(container):
            kind, length = struct.unpack(">4sI", container[place:place + 8])
            found[kind] = container[place + 8:place + length]
            place += length
        self.assertEqual(place, len(container))
        expected = {b"icp4": 16, b"icp5": 32, b"ic11": 32, b"ic12": 64, b"ic07": 128, b"ic08": 256, b"ic13": 256,
                    b"ic09": 512, b"ic14": 512, b"ic10": 1024}
        self.assertEqual(found, {kind: pictures[size] for kind, size in expected.items()})

    def test_a_picture_of_another_size_is_refused(self):
        with self.assertRaises(ValueError):
            make_icns().icns({32: png(16)})
        with self.assertRaises(ValueError):
            make_icns().icns({16: b"no picture at all, but long enough to look at"})

    def test_the_build_makes_every_size(self):
        build = (FOLDER / "bundle.cmake").read_text(encoding="utf-8")
        sizes = re.search(r"foreach\(size ([\d ]+)\)", build)[1]
        self.assertEqual([int(size) for size in sizes.split()], sorted(make_icns().TYPES))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
