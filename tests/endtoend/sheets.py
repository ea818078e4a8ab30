"""The sheets of the Studio: a profile for an application, and the settings, with what follows from them on the disk and
under the fingers."""

import re
import unittest

from accessible_session import AccessibleSession
from session import Application, shortcut, until

SETTINGS = "Keyboard Flexibility & Controls"
STARTUP = "Background & Startup Settings"
ADD = "Add Application Profile"
SEARCH = "Search installed applications..."
ROWS = ["editor", "painter", "reader"]


class Sheets(AccessibleSession):
    def dialogs(self):
        return [thing["name"] for thing in self.objects() if thing["role"] == "dialog"]

    def until_dialogs(self, *names):
        until(f"the dialogs {names}, there are {self.dialogs()}", lambda: self.dialogs() == list(names))

    def states(self, name):
        return (self.object(re.escape(name)) or {"states": []})["states"]

    def open_settings(self):
        self.press_control("Settings")
        self.until_dialogs(SETTINGS)

    def key(self, *names):
        self.desktop.ask("xdotool", "key", *names)

    def rows(self):
        """The applications in the list that this desktop has put there."""
        return [thing["name"] for thing in self.objects() if thing["role"] == "list item" and thing["name"] in ROWS]

    def until_rows(self, *names):
        until(f"the rows {names}, there are {self.rows()}", lambda: self.rows() == list(names))

    def press_f5(self, application, presses):
        """Presses F5 and gives all keys that the application has got by then."""
        application.come_to_front()
        self.settle()
        self.press("+f5 40ms -f5")
        return application.keys_pressed(presses)

    def test_a_profile_is_added_by_search_and_return_and_its_keys_work_there_alone(self):
        editor, painter = Application(self.desktop, "editor"), Application(self.desktop, "painter", "300x200+400+20")
        Application(self.desktop, "reader", "300x200+20+300")
        self.open_studio()
        self.press_control("Add Application Profile...")
        self.until_dialogs(ADD)
        self.until_state(SEARCH, "focused")
        self.until_rows(*ROWS)
        self.desktop.ask("xdotool", "type", "PAINT")
        self.until_rows("painter")
        self.key("Return")
        self.until_dialogs()
        self.until_state("painter", "checked")
        self.assertEqual(self.stored(), {}, "a profile without a customised key is not in the file")
        self.until_there("0 customized for painter")

        self.desktop.ask(self.program, "set", "F5", "keyboard_shortcut", "shortcut=g", "--profile", "painter")
        self.until_there("1 customized for painter")
        stored = self.stored()
        self.assertEqual(list(stored), ["painter"])
        self.assertEqual(list(stored["painter"]), ["F5"])
        self.assertEqual(stored["painter"]["F5"]["action"], "keyboard_shortcut")
        # The profile that is shown counts everywhere, so that it can be tried out.
        self.press_control("MacBook Air & Pro")
        self.until_state("MacBook Air & Pro", "checked")
        self.assertEqual(self.press_f5(painter, 1), ["g"])
        self.assertEqual(self.press_f5(editor, 1), ["F5"])

    def test_a_search_without_result_is_cleared_and_escape_adds_nothing(self):
        Application(self.desktop, "editor")
        self.open_studio()
        profiles = [thing["name"] for thing in self.objects() if thing["role"] == "radio button"]
        self.press_control("Add Application Profile...")
        self.until_state(SEARCH, "focused")
        self.until_rows("editor")
        self.desktop.ask("xdotool", "type", "qqq")
        self.until_there(re.escape('No installed apps match "qqq"'))
        self.press_control("Clear Search")
        self.until_rows("editor")
        self.until_state(SEARCH, "focused")
        self.key("Escape")
        self.until_dialogs()
        self.assertEqual([thing["name"] for thing in self.objects() if thing["role"] == "radio button"], profiles)

    def test_a_row_is_chosen_by_the_arrows(self):
        first, second = "quokka one", "quokka two"
        for name in (first, second):
            Application(self.desktop, name)
        self.open_studio()
        self.press_control("Add Application Profile...")
        self.until_state(SEARCH, "focused")
        self.until_there(second)
        self.desktop.ask("xdotool", "type", "quokka")
        until("no other rows", lambda: [thing["name"] for thing in self.objects() if thing["role"] == "list item"]
              == [first, second])
        self.key("Down")
        self.until_state(second, "focused")
        self.key("Up")
        self.until_state(first, "focused")
        self.key("Return")
        self.until_dialogs()
        self.until_state(first, "checked")

    def test_a_portion_switched_off_and_on_decides_what_its_keys_do(self):
        mappings = {"global": {"F5": shortcut(5, "G")}}
        self.map_keys(**mappings)
        application = Application(self.desktop, "editor")
        self.open_studio()
        self.open_settings()
        self.until_state("Function Keys (F1–F12)", "checked")
        self.assertTrue(self.until_there(re.escape("Function Keys (F1–F12)"))["description"].startswith("1 Customized. "))
        self.press_control("Function Keys (F1–F12)")
        until("the stored switch off", lambda: self.setting("Tarvin_FunctionKeysEnabled") is False)
        self.until_there("Other Keys Active • .*")
        self.assertEqual(self.press_f5(application, 1), ["F5"])
        self.press_control("Rest of Custom Keys")
        until("the stored switch off", lambda: self.setting("Tarvin_OtherKeysEnabled") is False)
        self.until_there("All Portions Deactivated • Apple Factory Defaults Active")
        self.press_control("Function Keys (F1–F12)")
        until("the stored switch on", lambda: self.setting("Tarvin_FunctionKeysEnabled") is True)
        self.assertEqual(self.press_f5(application, 2), ["F5", "g"])
        self.assertEqual(list(self.stored()["global"]), ["F5"], "the mapping was there all the time")
        self.assertEqual(self.stored()["global"]["F5"]["customShortcut"]["keyCode"], 5)

    def test_the_master_switch_gives_all_keys_back_and_greys_the_portions_out(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}})
        application = Application(self.desktop, "editor")
        self.open_studio()
        self.open_settings()
        self.press_control("Activate Tarvin App")
        until("the stored switch off", lambda: self.setting("Tarvin_InterceptionEnabled") is False)
        self.until_there("Tarvin Deactivated • Apple Factory Defaults Active")
        for portion in ("Function Keys (F1–F12)", "Rest of Custom Keys"):
            self.until_state(portion, "enabled", is_so=False)
            self.assertIn("MASTER OFF", self.until_there(re.escape(portion))["description"])
        self.assertEqual(self.press_f5(application, 1), ["F5"])
        self.press_control("Activate Tarvin App")
        until("the stored switch on", lambda: self.setting("Tarvin_InterceptionEnabled") is True)
        self.until_state("Function Keys (F1–F12)", "enabled")
        self.assertEqual(self.press_f5(application, 2), ["F5", "g"])

    def test_the_second_tab_decides_about_the_start(self):
        entry = self.desktop.config / "autostart" / "tarvin.desktop"
        self.open_studio()
        self.open_settings()
        self.press_control("Background & Startup")
        self.until_dialogs(STARTUP)
        self.press_control("Show in Dock")
        self.until_there("Standard Dock Mode Active")
        until("the stored choice", lambda: self.setting("Tarvin_StartupDockMode") == "showInDock")
        self.until_there("Background: OFF.*")
        before = self.setting("Tarvin_OpenAtStartup")
        self.press_control("Open at Startup")
        until("the stored switch off", lambda: self.setting("Tarvin_OpenAtStartup") is False)
        until("no rows about the Dock", lambda: "showing" not in self.states("Show in Dock"))
        until("no entry for the start", lambda: not entry.exists() or "Hidden=true" in entry.read_text())
        self.assertIsNot(before, False)
        self.press_control("Open at Startup")
        until("the stored switch on", lambda: self.setting("Tarvin_OpenAtStartup") is True)
        until("an entry for the start", lambda: entry.exists() and "Hidden=true" not in entry.read_text())
        self.press_control("Done")
        self.until_dialogs()

    def test_every_way_opens_one_sheet_on_the_first_tab(self):
        self.open_studio()
        ways = ["Settings", "Background", next(thing["name"] for thing in self.objects()
                                               if thing["name"].startswith("Background: "))]
        for way in ways:
            self.press_control(way)
            self.until_dialogs(SETTINGS)
            self.until_state("Keyboard Flexibility", "selected")
            self.press_control("Add Application Profile...")
            self.press_control("Background & Startup")
            self.until_dialogs(STARTUP)
            self.press_control("Close")
            self.until_dialogs()

    def test_escape_closes_and_the_keyboard_is_where_it_was(self):
        self.open_studio()
        def focused():
            return [thing["name"] for thing in self.objects() if "focused" in thing["states"]]
        def reach(name):
            # One key at a time: the next goes out when the last has been answered.
            for _ in range(40):
                before = focused()
                if before == [name]:
                    return
                self.key("Tab")
                until("another control with the keyboard", lambda: focused() not in ([], before))
            self.fail(f"{name} is not reached")
        reach("Settings")
        self.key("Return")
        self.until_dialogs(SETTINGS)
        reach("Function Keys (F1–F12)")
        self.key("space")
        until("the stored switch off", lambda: self.setting("Tarvin_FunctionKeysEnabled") is False)
        self.key("Escape")
        self.until_dialogs()
        self.until_state("Settings", "focused")
        self.assertIs(self.setting("Tarvin_FunctionKeysEnabled"), False, "nothing was pending")


if __name__ == "__main__":
    unittest.main()
