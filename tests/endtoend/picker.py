"""The action picker, for a new user who makes a key do something else."""

import re
import unittest

from accessible_session import AccessibleSession
from session import Application, until

NEW_RECORD = {"chainSteps": [], "customShortcuts": [], "forceQuitMode": "Frontmost app", "multiKeyMode": "simultaneous",
              "screenCaptureDestination": "Clipboard", "screenCaptureMode": "Region"}


class Picker(AccessibleSession):
    def states(self, pattern):
        """Of the one in sight; the lists of the picker may hold others of the name."""
        found = (thing["states"] for thing in self.objects() if re.fullmatch(pattern, thing["name"]))
        return next((states for states in found if "showing" in states), [])

    def until_in_sight(self, pattern, state):
        until(f'"{pattern}" {state}', lambda: state in self.states(pattern))

    def select(self, key_name):
        self.click_control(key_name)
        self.until_in_sight(re.escape(key_name), "selected")
        self.until_there("Actions")

    def close_window(self):
        self.desktop.ask("wmctrl", "-ic", self.desktop.active_window().decode())
        until("no window", lambda: b"IsViewable" not in self.desktop.ask(
            "xwininfo", "-name", "Tarvin — MacBook Air Keyboard Studio"))

    def search(self, text):
        self.click_control("Search actions...")
        self.until_in_sight(r"Search actions\.\.\.", "focused")
        self.type(text)

    def test_a_new_user_searches_chooses_and_uses_the_key(self):
        terminal = Application(self.desktop, "terminal")
        self.open_studio()
        self.select("F5, customisable: Dictation")
        self.search("clip")
        self.until_there("SEARCH RESULTS")
        self.click_control("Clipboard History")
        self.until_there(re.escape("Customized • Clipboard History"))
        self.until_there("F5, customised: Clipboard History")
        self.until_in_sight("Clipboard History", "checked")
        until("the stored mapping", lambda: "F5" in self.stored().get("global", {}))
        self.assertEqual(self.stored(), {"global": {"F5": {**NEW_RECORD, "action": "clipboard_history"}}},
                         "that key and no other")
        self.close_window()
        terminal.come_to_front()
        self.settle()
        self.press("+f5 40ms -f5")
        self.desktop.until_in_front("Clipboard History")
        self.assertEqual(self.fired(1), ["F5: Clipboard History"])
        self.assertEqual(terminal.keys_pressed(), [], "the terminal saw nothing of it")

    def test_a_reset_gives_the_key_back(self):
        self.map_keys(**{"global": {"F5": "clipboard_history", "F6": "copy"}})
        terminal = Application(self.desktop, "terminal")
        self.open_studio()
        self.select("F5, customised: Clipboard History")
        self.click_control("Reset to Apple default")
        self.until_there("F5, customisable: Dictation")
        self.until_there(re.escape("Customizable Key (Default Apple Behavior)"))
        until("the stored mapping gone", lambda: list(self.stored()["global"]) == ["F6"])
        self.assertNotIn("enabled", self.states("Reset to Apple default"))
        terminal.come_to_front()
        self.settle()
        self.press("+f5 40ms -f5")
        self.assertEqual(terminal.keys_pressed(1), ["F5"])

    def test_everything_can_be_done_by_the_keyboard(self):
        self.open_studio()
        self.select("F5, customisable: Dictation")
        self.search("calculator")
        self.until_there("1 found")
        self.type_key("Down")
        self.until_in_sight("Calculator", "focused")
        self.type_key("Return")
        self.until_there("F5, customised: Calculator")
        until("the stored mapping", lambda: self.stored().get("global", {}).get("F5", {}).get("action") == "calculator")
        self.type_key("Escape")
        self.until_there("RECOMMENDED")
        self.until_in_sight(r"Search actions\.\.\.", "focused")
        self.type_key("Escape")
        until("the pane gone", lambda: not self.object("RECOMMENDED"))
        self.until_in_sight("F5, customised: Calculator", "focused")
        self.assertNotIn("selected", self.states("F5, customised: Calculator"))

    def test_the_program_ends_while_the_pane_is_open(self):
        process = self.open_studio()
        self.select("F5, customisable: Dictation")
        self.press_control("Keyboard shortcut")
        self.until_there("F5, customised: Keyboard shortcut")
        self.assertEqual(self.desktop.end(process), 0)

    def test_a_section_folds_for_assistive_technology(self):
        self.open_studio()
        self.select("F5, customisable: Dictation")
        self.until_in_sight("RECOMMENDED", "expanded")
        self.press_control("RECOMMENDED")
        until("the section folded", lambda: "expanded" not in self.states("RECOMMENDED"))
        until("its rows gone", lambda: "showing" not in self.states("Open website URL"))
        self.press_control("RECOMMENDED")
        self.until_in_sight("RECOMMENDED", "expanded")
        self.until_in_sight("Open website URL", "showing")


if __name__ == "__main__":
    unittest.main()
