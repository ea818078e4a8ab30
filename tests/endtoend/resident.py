"""The program as a resident: its start, its window, a second start, its end."""

import subprocess
import unittest

from session import Application, Session, shortcut, signal, until

SUMMON = "+leftCommand +leftOption 30ms +k 40ms -k -leftOption -leftCommand"


class Resident(Session):
    def studio_is_in_front(self):
        self.desktop.until_in_front("MacBook Air Keyboard Studio")

    def test_a_start_by_hand_opens_the_studio_and_one_at_login_does_not(self):
        process = self.start_program("--startup")
        until("the end of the start", lambda: "Startup launch handled. Policy: 1" in self.log())
        self.assertNotIn(b"Keyboard Studio", self.desktop.ask("xwininfo", "-root", "-tree"))
        self.assertIn("[Tarvin] App launched. wasStartup: true, dockMode: hideFromDock", self.log())
        self.assertEqual(self.desktop.end(process), 0)

    def test_the_summon_shortcut_opens_the_studio_and_types_nothing(self):
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press(SUMMON)
        self.studio_is_in_front()
        self.assertNotIn("k", application.keys_pressed())

    def test_the_summon_shortcut_works_with_the_master_switch_off(self):
        self.settings(Tarvin_InterceptionEnabled=False)
        self.start_program("--startup")
        self.press(SUMMON)
        self.studio_is_in_front()

    def test_a_second_start_reaches_the_first(self):
        first = self.start_program("--startup")
        second = self.desktop.start(self.program)
        self.assertEqual(second.wait(30), 0)
        self.studio_is_in_front()
        self.assertIsNone(first.poll())
        self.assertIn("[Tarvin] applicationShouldHandleReopen called! hasVisibleWindows: false", self.log())

    def test_an_address_of_the_scheme_reaches_the_first(self):
        self.start_program("--startup")
        second = self.desktop.start(self.program, "tarvin://anything")
        self.assertEqual(second.wait(30), 0)
        self.studio_is_in_front()

    def test_a_second_start_without_a_session_bus_reaches_the_first_too(self):
        del self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent"
        self.start_program("--startup")
        second = self.desktop.start(self.program)
        self.assertEqual(second.wait(30), 0)
        self.studio_is_in_front()

    def test_closing_the_studio_hides_it_and_the_keys_live_on(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}})
        application = Application(self.desktop, "editor")
        process = self.start_program("--startup")
        self.press(SUMMON)
        self.studio_is_in_front()
        self.desktop.ask("wmctrl", "-c", ":ACTIVE:")
        self.desktop.until_in_front("editor")
        before = len(application.received())
        self.press("+f5 40ms -f5")
        self.assertEqual([event.motion + event.key for event in application.received(before + 2)[before:]], ["+g", "-g"])
        self.press(SUMMON)
        self.studio_is_in_front()
        self.assertIsNone(process.poll())

    def test_a_request_to_end_ends_it_well_and_gives_the_keys_back(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}})
        application = Application(self.desktop, "editor")
        process = self.start_program("--startup")
        process.send_signal(signal.SIGTERM)
        self.assertEqual(process.wait(30), 0)
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(1), ["F5"])

    def test_the_first_start_registers_the_program_to_open_at_login(self):
        self.start_program("--startup")
        entry = self.desktop.config / "autostart" / "tarvin.desktop"
        until("the autostart entry", entry.exists)
        self.assertRegex(entry.read_text(), r"(?m)^Exec=.*tarvin\"? --startup$")

    def test_without_a_display_it_says_so_and_fails(self):
        environment = {**self.desktop.environment}
        del environment["DISPLAY"]
        ended = subprocess.run([self.program], env=environment, capture_output=True, text=True, timeout=20, check=False)
        self.assertEqual(ended.returncode, 1)
        self.assertIn("display", ended.stderr)


if __name__ == "__main__":
    unittest.main()
