"""The previews that open while the pointer rests on an item of the modular layout."""
import unittest

from support.panel import PanelCase
from support.program import write_preferences

CPU, MEMORY = "CPU 23%", "Memory 48%"
# What only the preview of that item says.
CPU_HINT, MEMORY_SHARE = "Open the panel for a per-core breakdown", "48% used"


class HoverPreview(PanelCase):
    def setUp(self):
        super().setUp()
        self.start_modular()

    def hover(self, item):
        left, top, width, height = self.item_place(item)
        self.point(left + width // 2, top + height // 2)

    def point(self, x, y):
        self.session.run("xdotool", "mousemove", str(x), str(y))

    def wait_until_closed(self, mark):
        self.program.wait_for_log("^tarvo.popover: closed", after=mark)
        self.screen.wait_until_gone(CPU_HINT, MEMORY_SHARE)

    def wait_for_new_figures(self, *percents):
        """The pointer is looked at several times between two of them."""
        for percent in percents:
            mark = self.program.mark()
            self.machine.set_memory(percent)
            self.program.wait_for_log(f"painted .*{percent}%", after=mark)

    def switch_layout(self, modular, painted):
        mark = self.program.mark()
        write_preferences(self.session, {"refreshInterval": 1.0, "modularMenuBar": modular})
        self.program.wait_for_painted(painted, after=mark)
        return mark

    def test_follows_the_pointer_from_item_to_item(self):
        self.hover(CPU)
        self.screen.wait_for_text(CPU_HINT)
        self.picture("preview-cpu", crop="400x200+880+0")
        mark = self.program.mark()
        self.hover(MEMORY)
        self.screen.wait_for_text(MEMORY_SHARE)
        self.screen.wait_until_gone(CPU_HINT)
        self.picture("preview-memory", crop="400x200+880+0")
        self.assertEqual(self.program.log()[mark:].count("tarvo.popover: shown"), 1)
        self.assertNotIn("tarvo.popover: closed", self.program.log()[mark:])
        self.point(640, 400)
        self.wait_until_closed(mark)

    def test_gives_way_to_the_popover_and_comes_back_after_it(self):
        self.hover(CPU)
        self.screen.wait_for_text(CPU_HINT)
        mark = self.program.mark()
        self.press_hot_key("shown")
        self.wait_until_closed(mark)
        mark = self.program.mark()
        self.wait_for_new_figures(50, 52)
        self.assertNotIn("tarvo.popover", self.program.log()[mark:], "a preview beside the popover")
        self.press("Escape")
        self.screen.wait_for_text(CPU_HINT)

    def test_closes_with_a_layout_that_has_no_previews(self):
        self.hover(MEMORY)
        self.screen.wait_for_text(MEMORY_SHARE)
        self.wait_until_closed(self.switch_layout(modular=False, painted="CPU 23% · RAM 48%"))
        mark = self.program.mark()
        self.wait_for_new_figures(50, 52)
        self.assertNotIn("tarvo.popover", self.program.log()[mark:], "a preview of the combined item")
        self.switch_layout(modular=True, painted="52%")
        self.screen.wait_for_text("52% used")


if __name__ == "__main__":
    unittest.main()
