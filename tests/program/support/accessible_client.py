#!/usr/bin/python3
"""What the accessibility bus says of a program: run by support/accessible.py with the system's Python, which has D-Bus.

accessible_client.py BUS_ADDRESS    answers each line of standard input with a line; both are JSON

    ["tree"]           the program's visible widgets from the outermost inwards
    ["press", VALUES]  presses the last visible one that has these values; true when there is one

A line `null` says that a widget went meanwhile: ask again.
"""
import json
import sys

import dbus
from dbus import lowlevel

ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
ENABLED, CHECKED, FOCUSED, VISIBLE = 8, 4, 12, 30  # bits of the state


class Changed(Exception):
    """The program did not answer for a widget."""


class Widget:
    def __init__(self, place, state):
        self.place = place
        self.state = state
        self.children = []
        self.description = {}

    def has(self, bit):
        return bool(self.state >> bit & 1)

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()


class Tree:
    def __init__(self, address):
        self.bus = dbus.bus.BusConnection(address)

    def read(self):
        """All visible widgets. A level of the tree is asked for at once, since each answer takes a while."""
        programs = self.children([REGISTRY])[0]
        names = self.properties(programs, "Name")
        program = [place for place, name in zip(programs, names) if name == "tarvo"]
        top = self.visible(self.children(program)[0]) if program else []
        level = top
        while level:
            self.describe(level)
            lower = self.children([widget.place for widget in level])
            seen = iter(self.visible([place for places in lower for place in places], keep_others=True))
            for widget, places in zip(level, lower):
                widget.children = [child for child in (next(seen) for _ in places) if child]
            level = [child for widget in level for child in widget.children]
        return [widget for first in top for widget in first.all()]

    def visible(self, places, keep_others=False):
        """A widget for each visible place; None for the others where they are kept."""
        states = [int(low) | int(high) << 32
                  for (low, high), in self.ask([(place, ACCESSIBLE, "GetState") for place in places])]
        widgets = [Widget(place, state) for place, state in zip(places, states)]
        shown = [widget if widget.has(VISIBLE) else None for widget in widgets]
        return shown if keep_others else [widget for widget in shown if widget]

    def describe(self, widgets):
        places = [widget.place for widget in widgets]
        names = self.properties(places, "Name")
        descriptions = self.properties(places, "Description")
        roles = self.ask([(place, ACCESSIBLE, "GetRoleName") for place in places])
        extents = self.ask([(place, COMPONENT, "GetExtents", dbus.UInt32(0)) for place in places])
        for widget, name, description, (role,), (area,) in zip(widgets, names, descriptions, roles, extents):
            widget.description = {"name": name, "description": description, "role": str(role),
                                  "checked": widget.has(CHECKED), "focused": widget.has(FOCUSED),
                                  "enabled": widget.has(ENABLED), "place": [int(value) for value in area]}

    def press(self, wanted):
        for widget in reversed(self.read()):
            if wanted.items() <= widget.description.items():
                self.ask([(widget.place, "org.a11y.atspi.Action", "DoAction", dbus.Int32(0))])
                return True
        return False

    def children(self, places):
        answers = self.ask([(place, ACCESSIBLE, "GetChildren") for place in places])
        return [[(str(service), str(path)) for service, path in found] for found, in answers]

    def properties(self, places, name):
        answers = self.ask([(place, "org.freedesktop.DBus.Properties", "Get", ACCESSIBLE, name) for place in places])
        return [str(value) for value, in answers]

    def ask(self, calls):
        """The values that each call returns. All are sent before the first answer is waited for."""
        answers = [None] * len(calls)
        pending = [self.send(call, index, answers) for index, call in enumerate(calls)]
        for call in pending:
            call.block()
        if any(isinstance(answer, lowlevel.ErrorMessage) for answer in answers):
            raise Changed
        return [answer.get_args_list() for answer in answers]

    def send(self, call, index, answers):
        (service, path), interface, method, *arguments = call
        message = lowlevel.MethodCallMessage(service, path, interface, method)
        message.append(*arguments)
        return self.bus.send_message_with_reply(message, lambda answer: answers.__setitem__(index, answer))


def main(address):
    tree = Tree(address)
    for line in sys.stdin:
        command, *values = json.loads(line)
        try:
            answer = tree.press(*values) if command == "press" else [widget.description for widget in tree.read()]
        except Changed:
            answer = None
        print(json.dumps(answer), flush=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
