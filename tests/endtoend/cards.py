"""The cards of the picker, for a user who gives an action its parameters. What is read is the file on disk."""

import re
import unittest

from accessible_session import AccessibleSession
from session import Application, shortcut, until

F5 = "F5, customisable: Dictation"


def without_ids(record):
    """The same without what differs from one recording to the next."""
    if isinstance(record, dict):
        return {key: without_ids(value) for key, value in record.items() if key != "id"}
    return [without_ids(value) for value in record] if isinstance(record, list) else record


class Cards(AccessibleSession):
    def open_card(self, name, key=F5):
        """The picker for the key, with the action of that name chosen."""
        process = self.open_studio()
        self.press_control(key)
        self.until_there(re.escape(name))
        self.press_control(name)
        return process

    def record(self, key="F5"):
        return without_ids(self.stored().get("global", {}).get(key, {}))

    def until_stored(self, **fields):
        """The record of F5 on disk, once it has these values."""
        until(f"{fields} stored, there is {self.record()}", lambda: fields.items() <= self.record().items())
        return self.record()

    def type_into(self, field, text):
        self.until_there(re.escape(field))
        self.assertIs(self.ask("focus", "Tarvin", field), True, f"{field} takes the keyboard")
        until(f"{field} focused", lambda: any(
            thing["name"] == field and "focused" in thing["states"] for thing in self.objects()))
        self.desktop.ask("xdotool", "key", "ctrl+a")
        self.desktop.ask("xdotool", "type", "--delay", "15", text)

    def press_and_wait(self, steps, pattern):
        self.press(steps)
        self.until_there(pattern)

    def press_f5(self):
        self.settle()
        self.press("+f5 40ms -f5")

    def begin(self, button, banner):
        self.press_control(button)
        self.until_there(re.escape(banner))

    def close_pane(self):
        self.press_control("Close")
        until("the pane gone", lambda: not self.object("Record sequence"))

    def until_not_recording(self):
        until("the recording over", lambda: not any(
            thing["name"] == "Done" and "showing" in thing["states"] for thing in self.objects()))

    def test_three_recorded_keys_are_stored_and_played_in_order(self):
        editor = Application(self.desktop, "editor")
        self.open_card("Keyboard shortcut")
        self.until_stored(action="keyboard_shortcut")
        self.until_there("Click to record shortcut")
        self.begin("Record sequence", "Press keys on keyboard sequentially...")
        self.press_and_wait("+leftControl 30ms +t 40ms -t -leftControl", "Key 1: ⌃ T")
        self.press_and_wait("+escape 40ms -escape", "Key 2: ESC")
        self.press_and_wait("+leftShift 30ms +right 40ms -right -leftShift", "Key 3: ⇧ →")
        self.press_control("Done")
        self.until_not_recording()
        self.press_control("In sequence")
        record = self.until_stored(multiKeyMode="sequential")
        keys = [{"command": False, "option": False, "control": True, "shift": False, "keyCode": 17, "keyDisplay": "T"},
                {"command": False, "option": False, "control": False, "shift": False, "keyCode": 53, "keyDisplay": "Esc"},
                {"command": False, "option": False, "control": False, "shift": True, "keyCode": 124, "keyDisplay": "→"}]
        self.assertEqual(record["customShortcuts"], keys)
        self.assertEqual(record["customShortcut"], keys[0])
        editor.come_to_front()
        self.press_f5()
        pressed = [key for key in editor.keys_pressed(3) if key not in ("Control_L", "Shift_L")]
        self.assertEqual(pressed, ["t", "Escape", "Right"])
        until("the row gone", lambda: self.object("Key 3: ⇧ →"))

    def test_a_key_is_recorded_anew_and_another_removed(self):
        key = shortcut(8, "C", command=True)["customShortcut"]
        self.map_keys(**{"global": {"F5": {"action": "keyboard_shortcut", "customShortcuts": [key, {**key, "keyDisplay": "X"}]}}})
        self.open_studio()
        self.press_control("F5, customised: Keyboard shortcut")
        self.until_there("Key 2: ⌘ X")
        self.begin("Re-record this key", "Press new key combo...")
        self.press_and_wait("+g 40ms -g", "Key 1: G")
        self.until_not_recording()
        self.press_control("Remove this key")
        until("one key stored", lambda: [key["keyDisplay"] for key in self.record()["customShortcuts"]] == ["X"])
        self.press_control("3 Keys (A + B + C)")
        until("the preset stored", lambda: [key["keyDisplay"] for key in self.record()["customShortcuts"]] == ["A", "B", "C"])

    def test_the_key_that_begins_a_recording_is_not_recorded(self):
        self.open_card("Keyboard shortcut")
        self.until_there("Record sequence")
        self.assertIs(self.ask("focus", "Tarvin", "Record sequence"), True)
        until("the button focused", lambda: any(
            thing["name"] == "Record sequence" and "focused" in thing["states"] for thing in self.objects()))
        self.press("+return 1200ms -return")  # held until it repeats
        self.until_there(re.escape("Press keys on keyboard sequentially..."))
        self.press_and_wait("+g 1200ms -g", "Key 1: G")
        self.press_and_wait("+return 40ms -return", "Key 2: RETURN")
        self.press_control("Done")
        self.until_not_recording()
        self.assertEqual([key["keyDisplay"] for key in self.record()["customShortcuts"]], ["G", "Return"])

    def test_every_way_out_of_a_recording_gives_the_keyboard_back(self):
        editor = Application(self.desktop, "editor")
        process = self.open_card("Keyboard shortcut")
        ways = {"another window": editor.come_to_front,
                "the pane closed": self.close_pane,
                "the window closed": lambda: self.desktop.ask("wmctrl", "-c", "MacBook Air Keyboard Studio"),
                "the program killed": lambda: (process.kill(), process.wait())}
        for count, (way, leave) in enumerate(ways.items(), 1):
            # A second start shows the window of the first.
            self.desktop.start(self.program)
            self.desktop.until_in_front("MacBook Air Keyboard Studio")
            if not self.object("Record sequence"):
                self.press_control("F5, customised: Keyboard shortcut")
            self.until_there("Record sequence")
            self.begin("Record sequence", "Press keys on keyboard sequentially...")
            leave()
            editor.come_to_front()
            self.press("+h 40ms -h")
            self.assertEqual(editor.keys_pressed(count), count * ["h"], way)
        self.assertEqual(self.record()["customShortcuts"], [])

    def test_a_chain_of_four_steps_is_stored(self):
        self.open_card("Action Chain (Macro)")
        self.until_there(re.escape("+ Shortcut"))
        for number, button in enumerate(("+ Shortcut", "+ 200ms Delay", "+ Shortcut", "+ Text", "+ Text"), 1):
            self.press_control(button)
            self.until_there(f"Step {number}: .*")
        self.press_control("Remove step 3")
        until("four steps stored", lambda: len(self.record().get("chainSteps", [])) == 4)
        copy = {"command": True, "option": False, "control": False, "shift": False, "keyCode": 8, "keyDisplay": "C"}
        text = {"type": "text_snippet", "textSnippet": "console.log()", "delayMs": 200}
        self.assertEqual(self.record()["chainSteps"], [
            {"type": "shortcut", "customShortcut": copy, "delayMs": 200}, {"type": "delay", "delayMs": 200}, text, text])
        self.assertEqual(self.record()["action"], "action_chain")
        steps = [thing["name"] for thing in self.objects() if re.match(r"Step \d", thing["name"]) and "showing" in thing["states"]]
        self.assertEqual(steps[:4], ["Step 1: Shortcut: ⌘ C", "Step 2: Wait 200ms", 'Step 3: Text: "console.log()"',
                                     'Step 4: Text: "console.log()"'])

    def test_an_application_is_chosen_from_the_list_and_started_by_the_key(self):
        Application(self.desktop, "abacus")
        paint = Application(self.desktop, "paint")
        self.open_card("Open application")
        self.until_there("abacus")
        self.type_into("Search installed apps...", "pain")
        until("the list filtered", lambda: not self.object("abacus"))
        self.press_control("paint")
        record = self.until_stored(action="open_application", customAppName="paint", customAppBundleId="paint")
        self.assertEqual(record["customAppPath"], str(self.desktop.data / "applications" / "paint.desktop"))
        self.until_there("Press F5 on your keyboard to instantly launch or switch to paint")
        self.press_f5()
        self.desktop.until_in_front("paint")
        self.assertIsNone(paint.process.poll())

    def test_a_web_address_is_stored_as_it_is_typed(self):
        self.open_card("Open website URL")
        self.assertRegex(self.until_stored(action="open_web_url")["customURL"], "^https://")
        self.type_into("Website address", "example.org/a b?c=D")
        self.until_stored(customURL="example.org/a b?c=D")

    def test_a_snippet_is_stored_and_typed_by_the_key(self):
        self.open_card("Insert Text Snippet")
        self.until_stored(action="text_snippet")
        self.type_into("Text to insert", "Kind regards, R2")
        self.until_stored(textSnippet="Kind regards, R2")

    def test_each_capture_mode_and_destination_is_stored(self):
        self.open_card("Screen capture")
        self.until_stored(action="screen_capture")
        for mode in ("Window", "Region", "Screen"):
            self.press_control(mode)
            self.until_stored(screenCaptureMode=mode)
        for destination in ("File", "Clipboard"):
            self.press_control(destination)
            self.until_stored(screenCaptureDestination=destination)

    def test_parameters_survive_a_change_of_the_action(self):
        self.open_card("Force quit")
        self.until_there(re.escape("Force Quit dialog (⌥⌘⎋)"))
        self.press_control("Force Quit dialog (⌥⌘⎋)")
        stored = self.until_stored(action="force_quit")
        until("the way stored", lambda: self.record()["forceQuitMode"] != "Frontmost app")
        self.press_control("Screen capture")
        self.until_stored(action="screen_capture")
        self.press_control("Force quit")
        self.assertEqual(self.until_stored(action="force_quit")["forceQuitMode"], "Force Quit dialog (⌥⌘⎋)")
        self.assertIn("forceQuitMode", stored)


if __name__ == "__main__":
    unittest.main()
