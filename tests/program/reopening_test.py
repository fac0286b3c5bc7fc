"""What the popover keeps after it was closed, in real time."""
import time
import unittest

from support.panel import PanelCase

KEPT, RELEASED = 10, 25  # seconds after it was closed; its content is released after 20


class Reopening(PanelCase):
    def close(self):
        closed = time.monotonic()
        self.close_by_key()
        return closed

    def open_after(self, closed, seconds):
        time.sleep(max(0, closed + seconds - time.monotonic()))
        self.open()

    def test_shows_what_was_left_open_until_20_seconds_after_it_was_closed(self):
        self.start_program()
        self.open()
        self.show_settings()
        self.open_after(self.close(), KEPT)
        self.screen.wait_for("Back")
        self.assertNotIn("content released", self.program.log())
        closed = self.close()
        self.program.wait_for_log("^tarvo.popover: content released$")
        self.assertGreater(time.monotonic() - closed, 19)  # such timers are a little early
        self.open_after(closed, RELEASED)
        self.screen.wait_for("Settings", role="push button")
        self.assertIsNone(self.screen.find("Back"))


if __name__ == "__main__":
    unittest.main()
