#!/usr/bin/env python3
"""Configures the project for macOS, on a system that is none, and looks at what would be built. Nothing is compiled.

Usage: configure_test.py CMAKE CLANG VARIABLE=VALUE...      the variables say where this system has its libraries
"""
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CONFIGURE = ROOT / "tests/macos/configure"
FRAMEWORKS = {"AppKit", "Carbon", "CoreBluetooth", "CoreFoundation", "CoreLocation", "CoreWLAN", "Foundation",
              "IOBluetooth", "IOKit", "ServiceManagement", "UserNotifications"}


def configure(folder, cmake, clang, variables):
    compilers = [f"-DCMAKE_{language}_COMPILER{what}" for language in ("CXX", "OBJCXX")
                 for what in (f"={shutil.which(clang)}", "_FORCED=ON")]
    run = subprocess.run(
        [cmake, "-S", ROOT, "-B", folder, "-G", "Ninja", "-DCMAKE_SYSTEM_NAME=Darwin", *compilers,
         "-DCMAKE_INSTALL_NAME_TOOL=/bin/true", "-DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY",
         "-DCMAKE_CXX_SIZEOF_DATA_PTR=8", "-DCMAKE_SIZEOF_VOID_P=8", "-DCMAKE_FIND_LIBRARY_SUFFIXES=.so",
         f"-DCMAKE_PROJECT_TOP_LEVEL_INCLUDES={CONFIGURE / 'before.cmake'}",
         f"-DCMAKE_PROJECT_INCLUDE={CONFIGURE / 'after.cmake'}", *(f"-D{variable}" for variable in variables)],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if run.returncode != 0:
        sys.exit(f"cannot be configured for macOS:\n{run.stdout}")


class Darwin(unittest.TestCase):
    folder = pathlib.Path()

    @classmethod
    def setUpClass(cls):
        commands = json.loads((cls.folder / "compile_commands.json").read_text(encoding="utf-8"))
        cls.commands = {str(pathlib.Path(entry["file"]).relative_to(ROOT)): entry["command"] for entry in commands
                        if pathlib.Path(entry["file"]).is_relative_to(ROOT)}
        cls.ninja = (cls.folder / "build.ninja").read_text(encoding="utf-8")

    def test_the_whole_layer_and_its_composition_are_built(self):
        wanted = {str(path.relative_to(ROOT)) for folder in ("src", "apps") for path in (ROOT / folder).rglob("*")
                  if path.suffix == ".mm" or (path.suffix == ".cpp" and "macos" in path.parts)}
        self.assertGreater(len(wanted), 30)
        self.assertEqual(wanted - set(self.commands), set())
        self.assertIn("src/platform/desktop/symbols/system_symbols.cpp", self.commands)
        self.assertIn("apps/tarvo/program.cpp", self.commands)
        self.assertIn("apps/tarvo-status/main.cpp", self.commands)

    def test_nothing_that_only_linux_has_is_built(self):
        foreign = [source for source in self.commands if "/linux/" in source or
                   re.search(r"dbus|x11|bluez|tarvo-fetch|embedded_symbols", source)]
        self.assertEqual(foreign, [])
        self.assertFalse([source for source, command in self.commands.items() if "QT_DBUS_LIB" in command])

    def test_objective_c_counts_its_references(self):
        sources = [command for source, command in self.commands.items() if source.endswith(".mm")]
        self.assertGreater(len(sources), 20)
        for command in sources:
            for flag in ("-x objective-c++", "-fobjc-arc", "-std=c++20", "-mmacosx-version-min=13.0"):
                self.assertIn(flag, command)
            self.assertNotIn("cmake_pch", command)

    def link_libraries(self, output):
        rule = re.search(rf"^build {re.escape(output)}: .*\n(?:  .*\n)*?  LINK_LIBRARIES = (.*)$", self.ninja, re.M)
        self.assertTrue(rule, output)
        return rule[1]

    def test_both_programs_are_linked_with_the_frameworks(self):
        for output in ("bin/Tarvo.app/Contents/MacOS/Tarvo", "bin/tarvo-status"):
            self.assertEqual(set(re.findall(r"-framework (\w+)", self.link_libraries(output))), FRAMEWORKS, output)
        self.assertNotIn("Qt6", self.link_libraries("bin/tarvo-status"))

    def test_the_bundle_is_complete(self):
        for part in ("Tarvo.icns", "en.lproj/InfoPlist.strings", "cs.lproj/InfoPlist.strings"):
            self.assertIn(f"build bin/Tarvo.app/Contents/Resources/{part}: COPY_OSX_CONTENT", self.ninja)
        self.assertIn("Contents/MacOS/tarvo-status", self.ninja)
        info = (self.folder / "bin/Tarvo.app/Contents/Info.plist").read_text(encoding="utf-8")
        self.assertEqual(info, (self.folder / "apps/tarvo/Info.plist").read_text(encoding="utf-8"))
        self.assertIn("LSUIElement", info)

    def test_it_is_packed_as_an_image_and_an_archive(self):
        self.assertIn('set(CPACK_GENERATOR "DragNDrop;ZIP")',
                      (self.folder / "CPackConfig.cmake").read_text(encoding="utf-8"))

    def test_the_tests_that_every_system_can_run_are_there(self):
        for program in ("core_tests", "platform_tests", "posix_tests", "qt_windows_tests", "menubar_tests",
                        "history_tests", "tarvo_status_tests"):
            self.assertIn(f"\nbuild {program}: phony bin/{program}\n", self.ninja)
        for program in ("linux_tests", "desktop_tests", "composition_tests", "macos_c_tests"):
            self.assertNotIn(f"\nbuild {program}: phony", self.ninja)


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as temporary:
        Darwin.folder = pathlib.Path(temporary)
        configure(Darwin.folder, *sys.argv[1:3], sys.argv[3:])
        unittest.main(argv=sys.argv[:1], verbosity=2)
