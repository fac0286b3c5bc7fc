#!/usr/bin/python3
"""What the accessibility bus says of a program: run by support/accessible.py with the system's Python, which has D-Bus.

accessible_client.py BUS_ADDRESS tree     prints the program's visible widgets as JSON
accessible_client.py BUS_ADDRESS press VALUES  presses the last one that has these values, as JSON
"""
import json
import sys

import dbus

ACCESSIBLE = "org.a11y.atspi.Accessible"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
ENABLED, CHECKED, FOCUSED, VISIBLE = 8, 4, 12, 30  # bits of the state


class Tree:
    def __init__(self, address):
        self.bus = dbus.bus.BusConnection(address)
        self.found = []

    def interface(self, place, name):
        return dbus.Interface(self.bus.get_object(*place, introspect=False), name)

    def children(self, place):
        return [(str(service), str(path)) for service, path in self.interface(place, ACCESSIBLE).GetChildren()]

    def property(self, place, name):
        return self.interface(place, "org.freedesktop.DBus.Properties").Get(ACCESSIBLE, name)

    def programs(self):
        return [place for place in self.children(REGISTRY) if self.property(place, "Name") == "tarvo"]

    def describe(self, place, states):
        extents = self.interface(place, "org.a11y.atspi.Component").GetExtents(dbus.UInt32(0))
        return {"name": str(self.property(place, "Name")),
                "description": str(self.property(place, "Description")),
                "role": str(self.interface(place, ACCESSIBLE).GetRoleName()),
                "checked": bool(states >> CHECKED & 1), "focused": bool(states >> FOCUSED & 1),
                "enabled": bool(states >> ENABLED & 1), "place": [int(value) for value in extents]}

    def walk(self, place):
        low, high = self.interface(place, ACCESSIBLE).GetState()
        states = int(low) | int(high) << 32
        if not states >> VISIBLE & 1:
            return
        self.found.append((place, self.describe(place, states)))
        for child in self.children(place):
            self.walk(child)

    def read(self):
        for program in self.programs():
            for window in self.children(program):
                self.walk(window)
        return [description for _, description in self.found]


def main(address, command, values="{}"):
    tree = Tree(address)
    widgets = tree.read()
    if command == "tree":
        print(json.dumps(widgets))
        return
    wanted = json.loads(values)
    for place, widget in reversed(tree.found):
        if wanted.items() <= widget.items():
            tree.interface(place, "org.a11y.atspi.Action").DoAction(dbus.Int32(0))
            print("pressed")
            return


if __name__ == "__main__":
    try:
        main(*sys.argv[1:])
    except dbus.exceptions.DBusException as error:  # a widget went meanwhile: the caller asks again
        print(error, file=sys.stderr)
