"""The item in the panel, its menu read and clicked as a panel does it."""

import json
import pathlib
import subprocess
import unittest

from session import Application, Session, shortcut, signal, until

SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the distribution's bus bindings are for


class Panel:
    def __init__(self, session):
        bindings = subprocess.run([SYSTEM_PYTHON, "-c", "import dbus, gi"], capture_output=True, check=False)
        if bindings.returncode:
            session.skipTest("not installed: python3-dbus, python3-gi")
        script = pathlib.Path(__file__).with_name("panel.py")
        self.process = subprocess.Popen([SYSTEM_PYTHON, script], env=session.desktop.environment, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True)
        session.addCleanup(self.end)

    def end(self):
        self.process.stdin.close()
        self.process.wait(10)
        self.process.stdout.close()

    def ask(self, *command):
        self.process.stdin.write(json.dumps(command) + "\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def until_item(self):
        until("the item in the panel", lambda: self.ask("items"))

    def lines(self):
        """The menu as text: "[x]" and "[ ]" for what can be checked, "~" for what is greyed out, ">" for a submenu's."""
        def lines(entries, indent=""):
            for entry in entries:
                if "separator" in entry:
                    yield "---"
                    continue
                mark = {True: "[x] ", False: "[ ] ", None: ""}[entry.get("checked")]
                yield indent + ("" if entry["enabled"] else "~") + mark + entry["text"]
                yield from lines(entry.get("entries", []), indent + "> ")
        return list(lines(self.ask("menu")))

    def click(self, text):
        answer = self.ask("click", text)
        if answer != "clicked":
            raise AssertionError(answer)

    def until_line(self, line):
        until(f"{line} in {self.lines()}", lambda: line in self.lines())


class MenuBar(Session):
    def setUp(self):
        super().setUp()
        self.panel = Panel(self)
        self.panel.ask("items")  # it is on the bus now

    def test_the_menu_is_shown_from_top_to_bottom(self):
        self.start_program("--startup")
        self.panel.until_item()
        self.assertEqual(self.panel.lines(), [
            "Open Tarvin Studio (⌥⌘K)", "---", "[x] Open at Startup", "Startup & Dock Behavior",
            "> [x] Hide from Dock automatically", "> [ ] Show in Dock", "---", "[x] Master Tarvin: ON",
            "[x] Function Keys (F1–F12): ON", "[x] Other Custom Keys: ON", "---", "Restore Factory Apple Keyboard Defaults",
            "---", "Accessibility Settings...", "---", "Quit Tarvin"])
        properties = self.panel.ask("properties")
        self.assertTrue(properties["pixmaps"] or properties["icon"], properties)
        until("the line in the log", lambda: "shown by the panel on the session bus" in self.log())

    def test_switches_are_clicked_and_the_menu_follows(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        self.panel.until_item()
        application.come_to_front()
        self.panel.click("Master Tarvin: ON")
        self.panel.until_line("[ ] Master Tarvin: OFF (Apple Defaults)")
        self.assertIn("~[x] Function Keys (F1–F12): ON", self.panel.lines())
        self.assertIn("~[x] Other Custom Keys: ON", self.panel.lines())
        self.assertIs(self.setting("Tarvin_InterceptionEnabled"), False)
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(1), ["F5"])
        self.panel.click("Master Tarvin: OFF (Apple Defaults)")
        self.panel.until_line("[x] Master Tarvin: ON")
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(2), ["F5", "g"])
        self.panel.click("Other Custom Keys: ON")
        self.panel.until_line("[ ] Other Custom Keys: OFF")
        self.panel.click("Function Keys (F1–F12): ON")
        self.panel.until_line("[ ] Function Keys (F1–F12): OFF")
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(3), ["F5", "g", "F5"])

    def test_the_submenu_comes_and_goes_with_opening_at_startup(self):
        self.start_program("--startup")
        self.panel.until_item()
        self.panel.click("Show in Dock")
        self.panel.until_line("> [x] Show in Dock")
        self.assertIn("> [ ] Hide from Dock automatically", self.panel.lines())
        self.panel.click("Open at Startup")
        self.panel.until_line("[ ] Open at Startup")
        self.assertNotIn("Startup & Dock Behavior", self.panel.lines())
        entry = self.desktop.config / "autostart" / "tarvin.desktop"
        until("the autostart entry gone", lambda: not entry.exists() or "Hidden=true" in entry.read_text())
        self.assertEqual(self.setting("Tarvin_StartupDockMode"), "showInDock")
        self.panel.click("Open at Startup")
        self.panel.until_line("> [x] Show in Dock")

    def test_clicking_what_is_chosen_already_leaves_it_chosen(self):
        self.start_program("--startup")
        self.panel.until_item()
        self.panel.click("Hide from Dock automatically")
        self.panel.until_line("> [x] Hide from Dock automatically")
        self.assertEqual(self.setting("Tarvin_StartupDockMode"), "hideFromDock")

    def test_restoring_the_factory_defaults_turns_the_master_switch_off_and_keeps_the_mappings(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}})
        self.start_program("--startup")
        self.panel.until_item()
        self.panel.click("Restore Factory Apple Keyboard Defaults")
        self.panel.until_line("[ ] Master Tarvin: OFF (Apple Defaults)")
        self.assertIn("F5", json.loads((self.folder / "profiles_mappings.json").read_text())["global"])

    def test_the_studio_is_opened(self):
        self.start_program("--startup")
        self.panel.until_item()
        self.panel.click("Open Tarvin Studio (⌥⌘K)")
        self.desktop.until_in_front("MacBook Air Keyboard Studio")

    def test_quitting_ends_the_program_well(self):
        process = self.start_program("--startup")
        self.panel.until_item()
        self.panel.click("Quit Tarvin")
        self.assertEqual(process.wait(10), 0)

    def test_a_panel_that_comes_late_shows_the_item_all_the_same(self):
        self.panel.end()
        self.start_program("--startup")
        until("the line in the log", lambda: "The menu bar item has no place" in self.log())
        self.panel = Panel(self)
        self.panel.until_item()
        self.assertIn("Quit Tarvin", self.panel.lines())

    def test_a_panel_that_starts_again_shows_the_item_again(self):
        self.start_program("--startup")
        self.panel.until_item()
        self.panel.process.send_signal(signal.SIGKILL)
        self.panel.process.wait(10)
        self.panel = Panel(self)
        self.panel.until_item()
        self.assertIn("[x] Master Tarvin: ON", self.panel.lines())


if __name__ == "__main__":
    unittest.main()
