"""A settings portal in the session, whose colour scheme a test chooses."""
import os

from .waiting import wait_for

SERVICE = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
DARK, LIGHT = 1, 2


class SettingsPortal:
    def __init__(self, session, scheme=LIGHT):
        self.session = session
        session.start(os.environ["TARVO_SETTINGS_PORTAL"])
        wait_for(lambda: self._call("ReadOne", "ss", "", ""), "the portal")
        self.choose(scheme)

    def choose(self, scheme):
        """Returns once the portal has told everybody."""
        self._call("Choose", "u", str(scheme))

    def _call(self, *call):
        return self.session.bus_call(SERVICE, PATH, SETTINGS, *call)
