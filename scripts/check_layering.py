#!/usr/bin/env python3
"""Checks that every #include respects the picture in docs/architecture.md: who may know whom.

Prints each offence as file:line and exits 1 when there is one. Also looks for two literal rules: paths of /proc and
/sys stand only in src/platform/linux, and #if for a system only under src/platform.
"""
import pathlib
import re
import sys

READINGS = {"core", "platform"}
EVERYTHING = {"core", "platform", "readers", "sensors", "processes", "history", "localization", "update", "actions",
              "menubar", "ui"}
# Folder under src/ -> the folders it may include, itself apart.
ALLOWED = {
    "platform": set(),
    "platform/posix": {"platform"},
    "platform/linux": {"platform", "platform/posix"},
    "platform/desktop": {"platform", "platform/posix"},
    "platform/macos": {"platform", "platform/posix"},
    "core": {"platform"},
    "readers": READINGS,
    "sensors": READINGS,
    "processes": READINGS,
    "localization": READINGS,
    "update": READINGS | {"localization"},
    "actions": READINGS | {"localization"},
    "history": READINGS | {"localization"},
    "menubar": {"core", "platform", "readers", "history", "update", "localization"},
    "ui": EVERYTHING - {"ui"} | {"platform/desktop"},
}
# Folders that may use Qt.
QT = {"platform/desktop", "ui"}
# Folders that may use a JSON library.
JSON = {"history", "update", "platform/linux"}
# The folder that may use the system's frameworks, which are included as <AppKit/AppKit.h>.
FRAMEWORKS = "platform/macos"

INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s+(["<])([^">]+)[">]')
SYSTEM_IF = re.compile(r"^\s*#\s*(if|ifdef|elif)\b.*(__linux__|__APPLE__|_WIN32|__unix__|TARGET_OS_)")
SYSTEM_PATH = re.compile(r'"/(proc|sys)/')


def folder_of(path):
    parts = path.split("/")
    if parts[0] == "platform" and len(parts) > 2:
        return "/".join(parts[:2])
    return parts[0] if len(parts) > 1 else ""


def offences(root):
    for file in sorted((root / "src").rglob("*")):
        if file.suffix not in {".h", ".cpp", ".mm"}:
            continue
        relative = file.relative_to(root / "src").as_posix()
        folder = folder_of(relative)
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            place = f"src/{relative}:{number}"
            if SYSTEM_IF.match(line) and not folder.startswith("platform"):
                yield f"{place}: #if for a system outside src/platform"
            if SYSTEM_PATH.search(line) and folder != "platform/linux":
                yield f"{place}: a path of the kernel outside src/platform/linux"
            match = INCLUDE.match(line)
            if not match:
                continue
            kind, target = match.groups()
            if kind == '"':
                owner = folder_of(target)
                if folder not in ALLOWED:
                    yield f"{place}: folder {folder} is not in the layering table"
                elif owner != folder and owner not in ALLOWED[folder]:
                    yield f"{place}: {folder} may not include {target}"
            elif re.match(r"Q[A-Z]|Qt", target) and folder not in QT:
                yield f"{place}: {folder} may not use Qt"
            elif re.match(r"(?!Qt)[A-Z]\w*/|mach/", target) and folder != FRAMEWORKS:
                yield f"{place}: {folder} may not use a framework"
            elif re.match(r"(nlohmann/|simdjson)", target) and folder not in JSON:
                yield f"{place}: {folder} may not use a JSON library"


def main():
    found = list(offences(pathlib.Path(__file__).resolve().parent.parent))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
