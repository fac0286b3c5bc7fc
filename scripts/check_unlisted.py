#!/usr/bin/env python3
"""Checks that every C++ source is named by the nearest CMakeLists.txt, so that no file is left out of the build."""
import pathlib
import re
import sys


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    unlisted = []
    for folder in ("src", "apps", "tests", "fuzz", "bench"):
        for source in sorted((root / folder).rglob("*")):
            if source.suffix not in {".cpp", ".mm", ".c"}:
                continue
            lists = next(parent / "CMakeLists.txt" for parent in source.parents
                         if (parent / "CMakeLists.txt").exists())
            name = source.relative_to(lists.parent).as_posix()
            if not re.search(rf"(?<![\w/.]){re.escape(name)}(?![\w.])", lists.read_text(encoding="utf-8")):
                unlisted.append(f"{source.relative_to(root)} is not named in {lists.relative_to(root)}")
    print("\n".join(unlisted))
    return 1 if unlisted else 0


if __name__ == "__main__":
    sys.exit(main())
