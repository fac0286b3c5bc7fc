#!/usr/bin/env python3
"""Checks the type check: a source into which one mistake was put must be rejected.

Usage: type_check_mutations.py CLANG [--all] [--each] [FILE...]
--all tries every mistake and not a sample of them, as does naming files; --each prints every mistake.
Prints one line a file with the number of mistakes of each kind, and every mistake that went through. Exits 1 when one
went through, when a source is rejected as it stands, or when a kind of mistake was never tried.
"""
import collections
import concurrent.futures
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from framework_names import framework_names
from mutations import mutations, sample
from type_check import FRAMEWORKS, ROOT, command, sources

KINDS = {"selector", "constant", "function", "type", "signature", "argument", "bridge", "release"}
MAC = "Apple silicon"
INCLUDE = re.compile(r'^#(?:include|import) (<[^>]+>|"[^"]+")', re.M)


def precompiled(clang, files, folder):
    """What the sources include, read once for all: most of the time of a check goes there."""
    included = sorted({name for file in files for name in INCLUDE.findall(file.read_text(encoding="utf-8"))})
    header = folder / "included.h"
    header.write_text("".join(f"#include {name}\n" for name in included), encoding="utf-8")
    made = [part if part != "objective-c++" else "objective-c++-header" for part in command(clang, MAC, header)]
    made = [part for part in made if part != "-fsyntax-only"]
    # Templates that the headers need are made here too, and not again with every mistake.
    subprocess.run([*made, "-fpch-instantiate-templates", "-o", str(folder / "included.pch")], check=True)
    return folder / "included.pch"


class Checker:
    def __init__(self, clang, folder, pch):
        self.clang, self.folder, self.pch = clang, folder, pch

    def errors(self, number, original, text):
        """An error that clang finds in the text in the place of the original, rather than a warning; empty without one."""
        copy = self.folder / f"{number}.mm"
        copy.write_text(text, encoding="utf-8")
        line = command(self.clang, MAC, copy, [original.parent])
        run = subprocess.run([*line, "-include-pch", str(self.pch)], capture_output=True, text=True)
        copy.unlink()
        found = re.findall(r": (?:fatal )?error: (.*)", run.stderr) if run.returncode != 0 else []
        return min(found, key=lambda error: "[-W" in error, default="")


def report(file, made, verdicts, each):
    counts = collections.Counter(mutation.kind for mutation in made)
    survivors = [mutation for mutation, verdict in zip(made, verdicts) if not verdict]
    kinds = ", ".join(f"{count} {kind}" for kind, count in sorted(counts.items()))
    print(f"{'FAIL' if survivors else 'OK':5} {file.relative_to(ROOT)}: {kinds}")
    for mutation, verdict in zip(made, verdicts):
        if each or not verdict:
            print(f"  {mutation.kind}, line {mutation.line}: {mutation.what}: {verdict or 'WENT THROUGH'}")
    return counts, survivors


def main():
    each, tries_all = "--each" in sys.argv, "--all" in sys.argv
    clang, *chosen = [argument for argument in sys.argv[1:] if not argument.startswith("--")]
    tries_all = tries_all or bool(chosen)
    if not shutil.which(clang):
        sys.exit(f"{clang} is needed for this check (scripts/install-packages.sh test) and is not there")
    files = [pathlib.Path(name).resolve() for name in chosen] or sources()
    names = framework_names(FRAMEWORKS)
    tried, total, failed = set(), collections.Counter(), False
    with tempfile.TemporaryDirectory() as temporary, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        folder = pathlib.Path(temporary)
        checker = Checker(clang, folder, precompiled(clang, files, folder))
        for file in files:
            text = file.read_text(encoding="utf-8")
            # That the sources are right as they stand is a test of its own.
            if tries_all and (error := checker.errors("original", file, text)):
                print(f"FAIL  {file.relative_to(ROOT)} as it stands: {error}")
                failed = True
                continue
            made = list(mutations(text, names, tried))
            if not tries_all:
                made = sample(made, total)
            verdicts = list(pool.map(lambda pair: checker.errors(pair[0], file, pair[1].text), enumerate(made)))
            counts, survivors = report(file, made, verdicts, each)
            total += counts
            failed = failed or bool(survivors)
    untried = set() if chosen else KINDS - set(total)
    if untried:
        print(f"FAIL  never tried: {', '.join(sorted(untried))}")
    print(f"{total.total()} mistakes in {len(files)} files")
    return 1 if failed or untried else 0


if __name__ == "__main__":
    sys.exit(main())
