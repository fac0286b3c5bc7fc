#!/usr/bin/env python3
"""Checks that every C++ source is named by the nearest CMakeLists.txt, or from elsewhere by its folder and name, so that
no file is left out of the build."""
import pathlib
import re
import sys


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    build_files = "".join(path.read_text(encoding="utf-8") for folder in ("apps", "bench", "fuzz", "src", "tests")
                          for path in (root / folder).rglob("CMakeLists.txt"))
    unlisted = []
    for folder in ("src", "apps", "tests", "fuzz", "bench"):
        for source in sorted((root / folder).rglob("*")):
            if source.suffix not in {".cpp", ".mm", ".c"}:
                continue
            lists = next(parent / "CMakeLists.txt" for parent in source.parents
                         if (parent / "CMakeLists.txt").exists())
            name = source.relative_to(lists.parent).as_posix()
            own = re.search(rf"(?<![\w/.]){re.escape(name)}(?![\w.])", lists.read_text(encoding="utf-8"))
            if not own and f"/{source.parent.name}/{source.name}" not in build_files:
                unlisted.append(f"{source.relative_to(root)} is not named in {lists.relative_to(root)}")
    print("\n".join(unlisted))
    return 1 if unlisted else 0


if __name__ == "__main__":
    sys.exit(main())
