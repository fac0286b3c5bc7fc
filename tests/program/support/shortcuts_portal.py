"""A portal with global shortcuts in the session, whose keys a test presses."""
import os

SERVICE = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
# Given to a program, makes it take the session for one of Wayland, where hot keys are the portal's.
WAYLAND = {"WAYLAND_DISPLAY": "none", "QT_QPA_PLATFORM": "xcb"}


class ShortcutsPortal:
    def __init__(self, session):
        self.session = session
        self.process = session.start(os.environ["TARVO_SHORTCUTS_PORTAL"])

    def press(self):
        self.session.bus_call(SERVICE, PATH, "org.freedesktop.portal.GlobalShortcuts", "Press")

    def stop(self):
        self.session.stop(self.process)
