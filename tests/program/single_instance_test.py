"""One instance a session, and what other programs may ask of it over the message bus."""
import os
import unittest

from support.case import ProgramCase
from support.waiting import wait_for

SERVICE = "io.github.tarvo.Tarvo"
OBJECT = "/io/github/tarvo/Tarvo"


class SingleInstance(ProgramCase):
    def start_bar(self, **environment):
        program = self.start(TARVO_STATUS_BAR="bar", **environment)
        program.wait_for_painted("CPU 23% · RAM 48%")
        return program

    def start_again(self):
        """A second start beside the first; its output goes to a log of its own."""
        return self.session.start(*self.command(), log="second.log", TARVO_STATUS_BAR="bar")

    def command(self):
        return os.environ["TARVO_PROGRAM"], "--root", self.machine.folder

    def second_log(self):
        with open(self.session.path("second.log"), encoding="utf-8") as file:
            return file.read()

    def test_a_second_start_opens_the_popover_of_the_first_and_ends(self):
        first = self.start_bar()
        second = self.start_again()
        self.assertEqual(second.wait(30), 0)
        first.wait_for_log(r"^tarvo\.session: called: OpenPopover$")
        first.wait_for_log(r"^tarvo\.popover: shown")
        self.assertEqual(self.second_log(), "")
        self.assertEqual(first.terminate(), 0)

    def test_a_start_after_the_first_has_ended_is_the_first(self):
        self.assertEqual(self.start_bar().terminate(), 0)
        self.start_bar()

    def test_a_start_after_the_first_was_killed_is_the_first(self):
        program = self.start_bar()
        program.process.kill()
        program.process.wait(30)
        self.start_bar()

    def test_of_many_starts_at_once_one_stays(self):
        starts = [self.session.start(*self.command(), log=f"start{number}.log", TARVO_STATUS_BAR="bar")
                  for number in range(4)]
        wait_for(lambda: sum(start.poll() is not None for start in starts) == 3, "the end of three of four")
        self.assertEqual([start.returncode for start in starts if start.poll() is not None], [0, 0, 0])

    def test_the_methods_are_told_and_answered(self):
        program = self.start_bar()
        shown = self.session.bus_call(SERVICE, OBJECT, "org.freedesktop.DBus.Introspectable", "Introspect")
        for method, effect in (("TogglePopover", r"popover: shown"), ("TogglePopover", r"popover: closed"),
                               ("OpenPopover", r"popover: shown"), ("OpenDetailWindow", r"detail: section")):
            self.assertIn(f'<method name="{method}"/>', shown[0])
            mark = program.mark()
            self.session.run("busctl", "--address=" + self.session.environment["DBUS_SESSION_BUS_ADDRESS"], "call",
                             SERVICE, OBJECT, SERVICE, method)
            program.wait_for_log(rf"^tarvo\.session: called: {method}$", after=mark)
            program.wait_for_log(rf"^tarvo\.{effect}", after=mark)

    def test_without_a_bus_every_start_runs(self):
        nowhere = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=" + self.session.path("no-such-bus")}
        self.start_bar(**nowhere)
        self.start_bar(**nowhere)


if __name__ == "__main__":
    unittest.main()
