"""The Studio as assistive technology finds it: what it shows, and what follows from pressing its controls."""

import re
import unittest

from accessible_session import AccessibleSession
from session import Application, shortcut, until

SUMMON = "+leftCommand +leftOption 30ms +k 40ms -k -leftOption -leftCommand"

LIVE_KEYS = {
    "F1": "F1, customisable: Brightness down", "F2": "F2, customisable: Brightness up",
    "F3": "F3, customisable: Mission Control", "F4": "F4, customisable: Spotlight search",
    "F5": "F5, customisable: Dictation", "F6": "F6, customisable: Do not disturb",
    "F7": "F7, customisable: Previous track", "F8": "F8, customisable: Play / Pause",
    "F9": "F9, customisable: Next track", "F10": "F10, customisable: Mute audio",
    "F11": "F11, customisable: Volume down", "F12": "F12, customisable: Volume up",
}


class Studio(AccessibleSession):
    def test_every_live_key_is_selected_and_cleared_by_its_name(self):
        self.open_studio()
        names = [thing["name"] for thing in self.objects()]
        live = [name for name in names if ", customisable: " in name]
        self.assertEqual(len(live), 16)
        for name in LIVE_KEYS.values():
            self.assertIn(name, live)
        for name in live:
            self.press_control(name)
            self.until_state(name, "selected")
        selected = [thing["name"] for thing in self.objects() if "selected" in thing["states"] and "customisable" in thing["name"]]
        self.assertEqual(selected, [live[-1]], "one key at a time")
        self.press_control(live[-1])
        self.until_state(live[-1], "selected", is_so=False)

    def test_keys_say_what_they_do_and_whether_they_are_paused(self):
        self.map_keys(**{"global": {"F5": "clipboard_history", "CapsLock": shortcut(5, "G")}})
        self.open_studio()
        self.until_there("F5, customised: Clipboard History")
        self.until_there("Caps Lock, customised: Keyboard shortcut")
        self.press_control("F1–F12")
        self.until_there("F5, customised, paused: Clipboard History")
        self.until_there(re.escape("F1–F12: 1/12 (Paused)"))
        self.assertEqual(self.until_there("Caps Lock.*")["name"], "Caps Lock, customised: Keyboard shortcut")

    def test_the_switches_are_stored_and_decide_what_keys_do(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}})
        application = Application(self.desktop, "editor")
        self.open_studio()
        for name, setting in (("Custom Keys", "Tarvin_InterceptionEnabled"), ("F1–F12", "Tarvin_FunctionKeysEnabled"),
                              ("Other Keys", "Tarvin_OtherKeysEnabled")):
            self.until_state(name, "checked")
            self.press_control(name)
            until(f"{setting} off", lambda: self.setting(setting) is False)
            self.until_state(name, "checked", is_so=False)
        application.come_to_front()
        self.settle()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(1), ["F5"])
        for name, setting in (("Custom Keys", "Tarvin_InterceptionEnabled"), ("F1–F12", "Tarvin_FunctionKeysEnabled")):
            self.press_control(name)
            until(f"{setting} on", lambda: self.setting(setting) is True)
        self.settle()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(2), ["F5", "g"])
        self.until_there(".*Shortcut.*")

    def test_restore_defaults_keeps_the_mappings(self):
        mappings = {"global": {"F5": shortcut(5, "G")}}
        self.map_keys(**mappings)
        self.open_studio()
        self.press_control("Restore Defaults")
        until("interception off", lambda: self.setting("Tarvin_InterceptionEnabled") is False)
        self.assertEqual(list(self.stored()["global"]), ["F5"])
        self.until_there("F5, customised, paused: Keyboard shortcut")

    def test_the_backlight_cycles_and_is_remembered(self):
        self.open_studio()
        for before, after, level in (("85", "100", 1.0), ("100", "0", 0.0), ("0", "35", 0.35), ("35", "70", 0.7)):
            self.press_control(f"Keyboard Backlight: {before}% (Click to cycle)")
            self.until_there(re.escape(f"Keyboard Backlight: {after}% (Click to cycle)"))
            until(f"the stored level {level}", lambda: self.setting("Tarvin_BacklightLevel") == level)

    def test_the_click_sound_is_toggled_and_remembered(self):
        self.open_studio()
        self.press_control("Key Click Sound: Active (Click to Mute)")
        self.until_there(re.escape("Key Click Sound: Muted (Click to Unmute)"))
        until("the stored switch", lambda: self.setting("Tarvin_SoundEnabled") is False)

    def test_another_profile_shows_its_own_keys_and_resetting_empties_it_alone(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}, "safari": {"F6": "copy", "F7": "paste"}})
        self.open_studio()
        self.until_there("1 customized for All Applications")
        self.press_control("Safari")
        self.until_there("2 customized for Safari")
        self.until_there("F6, customised: Copy")
        self.assertEqual(self.until_there("F5,.*")["name"], "F5, customisable: Dictation")
        self.press_control("Reset all function keys for Safari to Apple defaults")
        self.until_there("0 customized for Safari")
        until("the stored profiles", lambda: not self.stored().get("safari"))
        self.assertEqual(list(self.stored()["global"]), ["F5"])

    def test_a_physical_press_shows_as_the_last_trigger(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G")}})
        self.open_studio()
        self.press("+f5 40ms -f5")
        notice = until("the notice", lambda: next((thing for thing in self.objects() if "showing" in thing["states"]
                                                   and re.fullmatch(".*F5.*Shortcut.*", thing["name"])), None))
        self.assertEqual(self.fired(1), ["F5: Shortcut (G)"])
        until("the notice gone", lambda: "showing" not in (self.object(re.escape(notice["name"])) or {"states": []})["states"])

    def test_the_window_is_the_same_after_it_was_hidden(self):
        process = self.open_studio()
        self.press_control("Other Keys")
        self.until_state("Other Keys", "checked", is_so=False)
        self.desktop.ask("wmctrl", "-ic", self.desktop.active_window().decode())
        until("no window", lambda: b"Keyboard Studio" not in self.desktop.ask("xwininfo", "-root", "-tree")
              or b"IsViewable" not in self.desktop.ask("xwininfo", "-name", "Tarvin — MacBook Air Keyboard Studio"))
        self.press(SUMMON)
        self.desktop.until_in_front("MacBook Air Keyboard Studio")
        self.assertNotIn("checked", self.until_there("Other Keys")["states"])
        self.assertIsNone(process.poll())


if __name__ == "__main__":
    unittest.main()
