#!/usr/bin/env python3
"""Checks that every link of our Markdown files leads somewhere: to a file or folder of the project and, after a "#", to a
heading of it. Links to other places are not followed."""
import pathlib
import re
import subprocess
import sys
import urllib.parse

LINK = re.compile(r"!?\[[^\]]*\]\(\s*<?([^)\s>]+)>?[^)]*\)")
FENCE = re.compile(r"^(```|~~~).*?^\1", re.MULTILINE | re.DOTALL)
CODE = re.compile(r"(`+)(?!`).*?(?<!`)\1(?!`)", re.DOTALL)
HEADING = re.compile(r"^#{1,6}\s+(.*?)\s*#*\s*$", re.MULTILINE)


def anchors(text):
    """The names that headings get: lower case, hyphens for blanks, nothing but letters, digits, "-" and "_"."""
    found = set()
    for heading in HEADING.findall(FENCE.sub("", text)):
        plain = re.sub(r"!?\[([^\]]*)\]\([^)]*\)", r"\1", heading)
        name = re.sub(r"[^\w\- ]", "", plain.lower()).replace(" ", "-")
        number = 0
        while (unique := name if number == 0 else f"{name}-{number}") in found:
            number += 1
        found.add(unique)
    return found


def fault(root, page, target):
    """What is wrong with a link, or None."""
    path, _, anchor = urllib.parse.unquote(target).partition("#")
    place = (page.parent / path).resolve() if path else page
    if not place.is_relative_to(root) or not place.exists():
        return "no such file"
    if anchor and (place.suffix != ".md" or anchor not in anchors(place.read_text(encoding="utf-8"))):
        return "no such heading"
    return None


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.md"], cwd=root,
                            check=True, capture_output=True, text=True).stdout.split("\n")
    faults = []
    for name in filter(None, listed):
        page = root / name
        text = CODE.sub("", FENCE.sub("", page.read_text(encoding="utf-8")))
        for target in LINK.findall(text):
            if not re.match(r"[a-z][a-z0-9+.-]*:", target) and (wrong := fault(root, page, target)):
                faults.append(f"{name}: {target}: {wrong}")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
