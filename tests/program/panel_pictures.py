"""Pictures of the popover and its settings page in both palettes, languages and scales, for people to look at.

TARVO_PROGRAM=... TARVO_SETTINGS_PORTAL=... panel_pictures.py FOLDER [MACHINE]   (a folder of tests/data)
"""
import itertools
import math
import os
import shutil
import sys
import threading
import types

from support.accessible import ENVIRONMENT, Accessible
from support.program import Tarvo
from support.session import Session
from support.settings_portal import DARK, LIGHT, SettingsPortal
from support.waiting import wait_for

DATA = os.path.join(os.path.dirname(__file__), "..", "data")
NAME, PLACE = "io.github.tarvo.Tarvo", "/io/github/tarvo/Tarvo"
PREFERENCES = {"refreshInterval": 1.0, "customShortcuts": ["Back up photos", "VPN"], "show.battery": True,
               "show.cores": True, "show.ips": True}
SETTINGS = {"en": "Settings", "cs": "Nastavení"}
BACK = {"en": "Back", "cs": "Zpět"}
SAMPLES = 12  # ticks before the first picture, so that the lines have a shape


def copy_of(session, name):
    folder = session.path("machine")
    shutil.copytree(os.path.join(DATA, name), folder, symlinks=True)
    return types.SimpleNamespace(folder=folder, name=name)


def tick_on(machine, ended):
    """Lets time pass on the machine: its processor counters go on at changing loads."""
    path = os.path.join(machine.folder, "proc", "stat")
    with open(path, encoding="utf-8") as file:
        lines = file.read().splitlines()
    for step in itertools.count():
        if ended.wait(0.2):
            return
        text = "\n".join(loaded(line, step) for line in lines) + "\n"
        handle = os.open(path, os.O_WRONLY)
        os.pwrite(handle, text.encode(), 0)
        os.close(handle)


def loaded(line, step):
    if not line.startswith("cpu"):
        return line
    name, *counts = line.split()
    busy = sum(round(8 + 6 * math.sin(index / 7 + len(name) + ord(name[-1])) + 4 * math.sin(index / 3))
               for index in range(step))
    return " ".join([name, str(int(counts[0]) + busy), *counts[1:3], str(int(counts[3]) + 20 * step - busy), *counts[4:]])


def take(folder, machine_name, scheme, language, scale):
    session = Session(screen=f"{640 * scale}x{740 * scale}")
    ended = threading.Event()
    try:
        SettingsPortal(session, scheme)
        machine = copy_of(session, machine_name)
        threading.Thread(target=tick_on, args=(machine, ended), daemon=True).start()
        program = Tarvo(session, machine, PREFERENCES | {"appLanguage": language}, TARVO_STATUS_BAR="bar",
                        QT_SCALE_FACTOR=str(scale), XDG_CURRENT_DESKTOP="XFCE", **ENVIRONMENT)
        program.wait_for_window("DOCK")
        wait_for(lambda: program.log().count("painted") >= SAMPLES, "some readings")
        session.bus_call(NAME, PLACE, NAME, "TogglePopover")
        screen = Accessible(session)
        screen.wait_for(SETTINGS[language], role="push button")
        mark = program.mark()
        wait_for(lambda: program.log()[mark:].count("painted") >= 3, "the readings of the popover")
        suffix = f"{language}-{'dark' if scheme == DARK else 'light'}-{scale * 100}.png"
        window = program.windows("UTILITY")[0]
        session.run("import", "-window", window, os.path.join(folder, "popover-" + suffix))
        screen.press(SETTINGS[language], role="push button")
        wait_for(lambda: screen.find(BACK[language]) and not screen.find(SETTINGS[language], role="push button"),
                 "the settings page alone")
        session.run("import", "-window", window, os.path.join(folder, "settings-" + suffix))
    finally:
        ended.set()
        session.end()


if __name__ == "__main__":
    os.makedirs(sys.argv[1], exist_ok=True)
    for values in itertools.product((LIGHT, DARK), ("en", "cs"), (1, 2)):
        take(sys.argv[1], sys.argv[2] if len(sys.argv) > 2 else "laptop-intel-hybrid", *values)
