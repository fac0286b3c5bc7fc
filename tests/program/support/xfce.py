"""Xfce's panel with a tray and nothing else, at the lower or the upper edge of the screen."""
import os

from .waiting import wait_for

PLUGIN_NUMBER = 2
LOWER_EDGE, UPPER_EDGE = "p=8;x=640;y=706", "p=6;x=640;y=14"
CONFIGURATION = f"""<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="@EDGE@"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="{PLUGIN_NUMBER}"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-{PLUGIN_NUMBER}" type="string" value="systray">
      <property name="known-legacy-items" type="array"/>
    </property>
  </property>
</channel>
"""


class XfcePanel:
    """Runs in the session; the settings service that it needs is started by the session's bus."""

    def __init__(self, session, edge=LOWER_EDGE):
        self.session = session
        self._configure(edge)
        self.process = None
        self.start()

    def start(self):
        self.process = self._launch()
        wait_for(self._has_come, "the panel's tray", limit=90)

    # A panel that finds the bus or the settings service too slow gives up; then it is started once more.
    def _has_come(self):
        if self.process.poll() is not None:
            self.process = self._launch()
        return self.has_tray() and self.geometry()

    def _launch(self):
        return self.session.start("xfce4-panel", "--disable-wm-check")

    def kill(self):
        self.session.stop(self.process)
        wait_for(lambda: not self.has_tray(), "the end of the panel's tray")

    def has_tray(self):
        return bool(self._watcher("IsStatusNotifierHostRegistered"))

    def items(self):
        """The connections of the items that the tray knows, in no order."""
        return [item.split("/")[0] for item in self._watcher("RegisteredStatusNotifierItems") or []]

    def geometry(self):
        """Left, top, width and height of the panel on the screen."""
        for window in self.session.run("xdotool", "search", "--onlyvisible", "--class", "xfce4-panel").split():
            if "DOCK" in self.session.run("xprop", "-id", window, "_NET_WM_WINDOW_TYPE"):
                lines = self.session.run("xdotool", "getwindowgeometry", "--shell", window).split()
                values = dict(line.split("=") for line in lines)
                return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))
        return None

    def _watcher(self, name):
        return self.session.bus_property("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                                         "org.kde.StatusNotifierWatcher", name)

    def _configure(self, edge):
        folder = os.path.join(self.session.environment["XDG_CONFIG_HOME"], "xfce4", "xfconf",
                              "xfce-perchannel-xml")
        os.makedirs(folder)
        with open(os.path.join(folder, "xfce4-panel.xml"), "w", encoding="utf-8") as file:
            file.write(CONFIGURATION.replace("@EDGE@", edge))
