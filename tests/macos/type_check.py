#!/usr/bin/env python3
"""Type-checks the Objective-C++ sources against the declarations under tests/macos/frameworks, without a Mac.

Usage: type_check.py CLANG [FILE...]        without files: every .mm under src/ and apps/ and the headers of the layer
Headers that import no framework have to be plain C++, because plain C++ sources include them.
Prints one line a file, OK or FAIL with what clang says, and exits 1 when one fails. Every source is checked as on both
kinds of Mac: BOOL is a boolean on the one and a character on the other.
"""
import concurrent.futures
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
FRAMEWORKS = ROOT / "tests/macos/frameworks"

LANGUAGE = ["-x", "objective-c++", "-std=c++20", "-fobjc-arc", "-fobjc-runtime=macosx-13", "-fblocks", "-fsyntax-only"]
PLAIN = ["-x", "c++", "-std=c++20", "-fsyntax-only", "-Wno-pragma-once-outside-header"]
# Those of cmake/TarvoCompiler.cmake, and what clang knows of the language beyond them.
WARNINGS = ["-Werror", "-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Wsign-conversion",
            "-Wold-style-cast", "-Wnon-virtual-dtor", "-Woverloaded-virtual", "-Wdouble-promotion", "-Wformat=2",
            "-Wimplicit-fallthrough", "-Wundef",
            "-Wundeclared-selector", "-Wselector", "-Wstrict-selector-match", "-Wmethod-signatures",
            "-Wsuper-class-method-mismatch", "-Wdirect-ivar-access",
            "-Warc-repeated-use-of-weak", "-Warc-retain-cycles", "-Wexplicit-ownership-type",
            "-Wnullable-to-nonnull-conversion"]
MACS = {"Apple silicon": [], "Intel": ["-DTARVO_BOOL_IS_CHARACTER"]}


def command(clang, mac, source, first_includes=()):
    folders = (*first_includes, ROOT / "src", ROOT / "apps", FRAMEWORKS, ROOT / "tests/macos/system")
    includes = [f"-I{folder}" for folder in folders]
    language = PLAIN if source.suffix == ".cpp" else LANGUAGE
    return [clang, *language, *WARNINGS, *MACS[mac], *includes, str(source)]


def complaints(clang, source):
    """What clang says against the source, by kind of Mac; empty when nothing."""
    found = {}
    for mac in list(MACS)[:1] if source.suffix == ".cpp" else MACS:  # plain C++ knows no BOOL
        run = subprocess.run(command(clang, mac, source), capture_output=True, text=True)
        if run.returncode != 0:
            found[mac] = run.stderr
    return found


def sources():
    return sorted(path for folder in ("src", "apps") for path in (ROOT / folder).rglob("*.mm"))


def plain_headers(folder):
    """A source that includes what plain C++ sources may include of the layer: all headers that import no framework."""
    layer = ROOT / "src/platform/macos"
    headers = [path for path in sorted(layer.glob("*.h")) if "#import" not in path.read_text(encoding="utf-8")]
    source = folder / "headers_of_the_layer.cpp"
    source.write_text("".join(f'#include "platform/macos/{path.name}"\n' for path in headers), encoding="utf-8")
    return source


def main():
    clang, chosen = sys.argv[1], [pathlib.Path(name).resolve() for name in sys.argv[2:]]
    if not shutil.which(clang):
        sys.exit(f"{clang} is needed for this check (scripts/install-packages.sh test) and is not there")
    failed = not sources()
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        files = chosen or [plain_headers(pathlib.Path(folder)), *sources()]
        for file, found in zip(files, pool.map(lambda file: complaints(clang, file), files)):
            name = file.relative_to(ROOT) if file.is_relative_to(ROOT) else file.name
            print(f"{'FAIL' if found else 'OK':5} {name}", flush=True)
            for mac, text in found.items():
                print(f"as on a Mac of the kind {mac}:\n{text}", flush=True)
            failed = failed or bool(found)
    print(f"{len(files)} files, sources as on {len(MACS)} kinds of Mac")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
