#!/usr/bin/env python3
"""Shows that the tests of the C half notice what they are there for: makes one mistake after the other in a copy of a
source, compiles that, lets the test program load it in place of the right one and expects a test to fail, or the
compiler to refuse.

Usage: c_mutations.py COMPILER ROOT TEST_OBJECTS LIBRARIES        (lists of paths separated by colons)
With --all at the end, or TARVO_ALL_MISTAKES in the environment, all mistakes are made; otherwise one in each file, of
all kinds.
Prints one line a mistake, NOTICED or MISSED, and exits 1 when one is missed.
"""
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import tempfile

# kind, file below src/, what stands there, what is put in its place
MACOS = "platform/macos/"
MISTAKES = [
    ("selector", "platform/smc_record.h", "smcRequestSelector = 2", "smcRequestSelector = 3"),
    ("selector", "platform/smc_record.h", "readKeyInfo = 9", "readKeyInfo = 10"),
    ("selector", "platform/smc_record.h", "keyAtIndex = 8", "keyAtIndex = 7"),
    ("selector", MACOS + "apple_smc_client.cpp", "(connection, selector, input", "(connection, 0, input"),
    ("selector", MACOS + "apple_smc_client.cpp", "mach_task_self(), type,", "mach_task_self(), type + 1,"),

    ("size", "platform/smc_record.h", "std::array<std::uint8_t, 32> bytes", "std::array<std::uint8_t, 31> bytes"),
    ("size", "platform/smc_record.h", "        std::uint8_t reserved;\n", ""),
    ("size", "sensors/smc.cpp", "auto size = sizeof(SMCRecord);", "auto size = sizeof(SMCRecord) - 1;"),
    ("size", "sensors/smc.cpp", "&input, sizeof(SMCRecord),", "&input, sizeof(&input),"),
    ("size", MACOS + "mach_host_statistics.cpp", "std::array<integer_t, 62>", "std::array<integer_t, 61>"),
    ("size", MACOS + "mach_host_statistics.cpp", "std::array<integer_t, 62>", "std::array<integer_t, 37>"),
    ("size", MACOS + "mach_host_statistics.cpp", "wordCount * sizeof(integer_t)", "wordCount"),
    ("size", MACOS + "mach_host_statistics.cpp", " || size != sizeof value", ""),
    ("size", MACOS + "mach_host_statistics.cpp", "load.wordCount / CPU_STATE_MAX < load.cores", "false"),
    ("size", MACOS + "mach_host_statistics.cpp", "!= 3) return", "< 2) return"),
    ("size", MACOS + "mac_network_interfaces.cpp", "address, sizeof(sockaddr_in),", "address, sizeof address,"),
    ("size", MACOS + "mac_network_interfaces.cpp", "<char, NI_MAXHOST> host", "<char, 16> host"),
    ("size", MACOS + "property_translation.cpp", "(longest) + 1)", "(longest))"),
    ("size", MACOS + "carbon_hot_keys.cpp", "nullptr, sizeof id, nullptr", "nullptr, sizeof id.id, nullptr"),

    ("release", MACOS + "cf_object.h", "if (object_) CFRelease(object_);", ""),
    ("release", MACOS + "cf_object.h", "CFRelease(object_);", "CFRelease(object_), CFRelease(object_);"),
    ("release", MACOS + "cf_object.h", "if (object_) CFRelease", "CFRelease"),
    ("release", MACOS + "io_object.h", "if (object_ != 0) IOObjectRelease(object_);", ""),
    ("release", MACOS + "io_object.h", "if (object_ != 0) IO", "IO"),
    ("release", MACOS + "io_look_up.cpp", "? IOServiceGetMatchingService(kIOMainPortDefault, dictionary) : 0;",
     "? (CFRetain(dictionary), IOServiceGetMatchingService(kIOMainPortDefault, dictionary)) : 0;"),
    ("release", MACOS + "io_look_up.cpp", "    return iterator;", "    CFRelease(dictionary);\n    return iterator;"),
    ("release", MACOS + "mac_io_registry.cpp", "propertyDictionary(CFObject(properties).get())",
     "propertyDictionary(properties)"),
    ("release", MACOS + "mac_io_registry.cpp", "    const IOObject iterator(*found);",
     "    IOObjectRelease(*found);\n    const IOObject iterator(*found);"),
    ("release", MACOS + "mac_power_sources.cpp", "propertyDictionary(IOPSGetPowerSourceDescription(snapshot.get(), source))",
     "propertyDictionary(CFObject(IOPSGetPowerSourceDescription(snapshot.get(), source)).get())"),
    ("release", MACOS + "apple_smc_client.cpp", "    IOObjectRelease(service);", "    static_cast<void>(service);"),
    ("release", MACOS + "apple_smc_client.cpp", "    IOServiceClose(connection);", "    static_cast<void>(connection);"),
    ("release", "sensors/smc.cpp", "    client->release(service);\n    if (failure == 0) return 0;",
     "    if (failure == 0) client->release(service);\n    if (failure == 0) return 0;"),
    ("release", MACOS + "mach_host_statistics.cpp", "if (!words) return;", "return;"),
    ("release", MACOS + "mach_host_statistics.cpp", "if (!words) return;", ""),
    ("release", MACOS + "mach_host_statistics.cpp", "host_processor_info(host_,", "host_processor_info(mach_host_self(),"),
    ("release", MACOS + "mach_host_statistics.cpp", "    mach_port_deallocate(mach_task_self(), host_);", ""),
    ("release", MACOS + "mac_network_interfaces.cpp", "if (complete_) freeifaddrs(first_);", ""),
    ("release", MACOS + "mac_network_interfaces.cpp", "if (complete_) free", "free"),
    ("release", MACOS + "carbon_hot_keys.cpp", "if (reference_) RemoveEventHandler(reference_);", ""),
    ("release", MACOS + "carbon_hot_keys.cpp", "if (reference_) UnregisterEventHotKey(reference_);", ""),
    ("release", MACOS + "carbon_hot_keys.cpp", "if (reference_) Unregister", "Unregister"),

    ("constant", MACOS + "mach_host_statistics.cpp", "PROCESSOR_CPU_LOAD_INFO", "PROCESSOR_BASIC_INFO"),
    ("constant", MACOS + "mach_host_statistics.cpp", "HOST_VM_INFO64", "HOST_VM_INFO"),
    ("constant", MACOS + "mach_host_statistics.cpp", ".idle = ticks[CPU_STATE_IDLE]", ".idle = ticks[CPU_STATE_NICE]"),
    ("constant", MACOS + "mach_host_statistics.cpp", "statistics.wire_count", "statistics.free_count"),
    ("constant", MACOS + "mach_host_statistics.cpp", "statistics.compressor_page_count", "statistics.throttled_count"),
    ("constant", MACOS + "mach_host_statistics.cpp", ".pageSize = vm_kernel_page_size", ".pageSize = vm_page_size"),
    ("constant", MACOS + "mach_host_statistics.cpp", "hw.memsize", "hw.physmem"),
    ("constant", MACOS + "mach_host_statistics.cpp", "usage->xsu_used", "usage->xsu_avail"),
    ("constant", MACOS + "property_translation.cpp", "kCFNumberSInt64Type", "kCFNumberSInt32Type"),
    ("constant", MACOS + "property_translation.cpp", "kCFNumberFloat64Type", "kCFNumberFloat32Type"),
    ("constant", MACOS + "property_translation.cpp", "size, kCFStringEncodingUTF8", "size, 0x600"),
    ("constant", MACOS + "io_look_up.cpp", "Service(kIOMainPortDefault,", "Service(0,"),
    ("constant", MACOS + "io_look_up.cpp", "Services(kIOMainPortDefault,", "Services(0,"),
    ("constant", MACOS + "mac_io_registry.cpp", "noOptions = 0", "noOptions = 1"),
    ("constant", MACOS + "mac_io_registry.cpp", "&properties, kCFAllocatorDefault", "&properties, nullptr"),
    ("constant", MACOS + "apple_smc_client.cpp", "(service, mach_task_self(),", "(service, 0,"),
    ("constant", MACOS + "mac_network_interfaces.cpp", "AF_LINK", "AF_INET"),
    ("constant", MACOS + "mac_network_interfaces.cpp", "entry.ifa_flags & IFF_UP", "entry.ifa_flags & IFF_LOOPBACK"),
    ("constant", MACOS + "mac_network_interfaces.cpp", "NI_NUMERICHOST", "NI_NAMEREQD"),
    ("constant", MACOS + "mac_network_interfaces.cpp", "{data->ifi_ibytes,", "{data->ifi_ipackets,"),
    ("constant", MACOS + "carbon_hot_keys.cpp", "kEventHotKeyPressed}", "kEventHotKeyReleased}"),
    ("constant", MACOS + "carbon_hot_keys.cpp", "event, kEventParamDirectObject", "event, typeEventHotKeyID"),
    ("constant", MACOS + "kill_process_control.cpp", "SIGTERM", "SIGKILL"),
    ("constant", MACOS + "tmutil_backup_tool.cpp", "/usr/bin/tmutil", "/usr/sbin/tmutil"),

    ("signature", MACOS + "apple_smc_client.cpp", "inputSize, output, &outputSize", "inputSize, output, outputSize"),
    ("signature", MACOS + "mac_io_registry.cpp", "&properties, kCFAllocatorDefault, noOptions",
     "&properties, noOptions, kCFAllocatorDefault"),
    ("signature", MACOS + "mac_power_sources.cpp", "CFArrayGetValueAtIndex(sources.get(), i)",
     "CFArrayGetValueAtIndex(snapshot.get(), i)"),
    ("signature", MACOS + "carbon_hot_keys.cpp", "static OSStatus handle(EventHandlerCallRef, EventRef event,",
     "static OSStatus handle(EventRef event,"),
]

FLAGS = ["-std=c++20", "-O0", "-fPIC"]
PRELUDE = ["functional", "map", "memory", "optional", "string", "utility", "variant", "vector"]


class Workshop:
    """The right sources in a library, a test program that loads it, and a folder to make wrong ones in."""

    def __init__(self, compiler, root, test_objects, libraries, folder):
        self.compiler, self.root, self.folder, self.libraries = compiler, root, folder, libraries
        tests = root / "tests/macos"
        self.sources = sorted((root / "src/platform/macos").glob("*.cpp")) + [root / "src/sensors/smc.cpp"]
        self.includes = [f"-I{root}/src", f"-isystem{tests}/frameworks", f"-isystem{tests}/system"]
        self.prelude = folder / "prelude.h"
        self.prelude.write_text("".join(f"#include <{name}>\n" for name in PRELUDE))
        self.run(compiler, *FLAGS, "-x", "c++-header", self.prelude, "-o", f"{self.prelude}.gch")
        self.right = folder / "right"
        self.right.mkdir()
        for source in self.sources:
            self.run(*self.compilation(source, self.right))
        library = self.link(self.right, {})
        self.program = folder / "tests"
        # The fakes are in the program, where the library finds them before the functions of the C library.
        self.run(compiler, *test_objects, library, *libraries, "-rdynamic", "-pthread", "-o", self.program)

    @staticmethod
    def run(*command):
        subprocess.run([str(word) for word in command], check=True)

    def compilation(self, source, place):
        return [str(word) for word in (self.compiler, *FLAGS, "-include", self.prelude, f"-I{place}/src",
                                       *self.includes, "-c", source, "-o", place / f"{source.stem}.o")]

    def link(self, place, replaced):
        objects = [replaced.get(source.stem, self.right / f"{source.stem}.o") for source in self.sources]
        library = place / "libunder_test.so"
        self.run(self.compiler, "-shared", f"-Wl,-soname,{library.name}", *objects, *self.libraries, "-o", library)
        return library

    def users(self, header):
        """The sources that include a header, by however many steps."""
        headers, found = {header}, set()
        src = self.root / "src"
        for file in [*sorted(src.glob("platform/macos/*.h")), *self.sources]:
            if not any(f'#include "{included}"' in file.read_text() for included in headers):
                continue
            if file.suffix == ".h":
                headers.add(file.relative_to(src).as_posix())
            else:
                found.add(file)
        return sorted(found)

    def test(self, number, mistake):
        """What became of it: the compiler's refusal, a test's failure or None."""
        _, file, right, wrong = mistake
        text = (self.root / "src" / file).read_text()
        if text.count(right) != 1:
            raise SystemExit(f"{file}: '{right}' stands there {text.count(right)} times, not once")
        place = self.folder / str(number)
        copy = place / "src" / file
        copy.parent.mkdir(parents=True)
        copy.write_text(text.replace(right, wrong))
        replaced = {}
        for source in [copy] if copy.suffix == ".cpp" else self.users(file):
            if subprocess.run(self.compilation(source, place), capture_output=True).returncode != 0:
                return "refused by the compiler"
            replaced[source.stem] = place / f"{source.stem}.o"
        self.link(place, replaced)
        return self.failure(place)

    def failure(self, folder):
        """The first test that fails with the library in the folder; None when all pass."""
        try:
            run = subprocess.run([self.program, "--gtest_brief=1"], capture_output=True, text=True, timeout=60,
                                 env={**os.environ, "LD_LIBRARY_PATH": str(folder)})
        except subprocess.TimeoutExpired:
            return "the tests do not end"
        if run.returncode == 0:
            return None
        names = re.findall(r"^\[  FAILED  \] (\S+)", run.stdout, re.MULTILINE)
        return f"{names[0]} fails" if names else f"the tests end with {run.returncode}"


def chosen():
    if sys.argv[-1] == "--all" or os.environ.get("TARVO_ALL_MISTAKES"):
        return MISTAKES
    sample, times = [], dict.fromkeys((kind for kind, *_ in MISTAKES), 0)
    for file in dict.fromkeys(file for _, file, *_ in MISTAKES):
        # Of the kind that was chosen least often until now.
        mistake = min((each for each in MISTAKES if each[1] == file), key=lambda each: times[each[0]])
        times[mistake[0]] += 1
        sample.append(mistake)
    assert all(times.values()), f"a kind without a sample: {times}"
    return sample


def main():
    compiler, root = sys.argv[1], pathlib.Path(sys.argv[2])
    test_objects, libraries = (argument.split(":") for argument in sys.argv[3:5])
    mistakes, missed = chosen(), 0
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        workshop = Workshop(compiler, root, test_objects, libraries, pathlib.Path(folder))
        if failure := workshop.failure(workshop.right):
            sys.exit(f"without any mistake: {failure}")
        for mistake, noticed in zip(mistakes, pool.map(workshop.test, range(len(mistakes)), mistakes)):
            kind, file, right, wrong = (" ".join(part.split()) for part in mistake)
            print(f"{'NOTICED' if noticed else 'MISSED':7} {kind:9} {file}: {right} -> {wrong or 'nothing'}: "
                  f"{noticed or 'every test passes'}", flush=True)
            missed += not noticed
    print(f"{len(mistakes)} mistakes, {missed} missed")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
