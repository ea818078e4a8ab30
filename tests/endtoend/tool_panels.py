"""The floating tools, for a user in an X session: opened by their keys, used with mouse and keyboard."""

import json
import re
import shutil
import stat
import time
import unittest

from session import QUIET, Application, Session, until
from surroundings import TextField

TOOL_KEYS = {"global": {"F5": "clipboard_history", "F6": "floating_scratchpad", "F7": "show_actions_ring"}}


class ToolPanels(Session):
    def setUp(self):
        super().setUp()
        if not shutil.which("xclip"):
            self.skipTest("not installed: xclip")
        self.map_keys(**TOOL_KEYS)
        self.desktop.ask("xdotool", "mousemove", 640, 430)

    def copy(self, text):
        """Another application copies, and goes on running to hand its text out."""
        file = self.desktop.home / "copied"
        file.write_text(text)
        return self.desktop.start("xclip", "-quiet", "-selection", "clipboard", "-in", file)

    def clipboard(self):
        return self.desktop.ask("xclip", "-selection", "clipboard", "-out").decode()

    def clips(self):
        return [clip["text"] for clip in self.setting("Tarvin_ClipboardHistory_Items") or []]

    def open(self, key, title):
        self.tap(key)
        self.desktop.until_in_front(title)
        window = self.desktop.active_window().decode()
        # The manager tells which window is in front before that has the keyboard.
        until(f"the keyboard for {title}", lambda: self.desktop.ask("xdotool", "getwindowfocus").strip() == b"%d" % int(window, 16))
        return window

    def until_closed(self, title):
        until(f"{title} gone", lambda: not self.desktop.ask("xdotool", "search", "--onlyvisible", "--name", f"^{title}$"))

    def click(self, window, x, y):
        """At a place within the window, in pixels."""
        info = self.desktop.ask("xwininfo", "-id", window).decode()
        left, top = (int(re.search(rf"Absolute upper-left {axis}:\s+(-?\d+)", info)[1]) for axis in "XY")
        self.desktop.ask("xdotool", "mousemove", "--sync", left + x, top + y, "click", 1)

    def open_history_once(self):
        """Nothing is captured before the panel was shown."""
        self.open("f5", "Clipboard History")
        self.type_key("Escape")
        self.until_closed("Clipboard History")

    def test_a_copied_text_is_searched_clicked_and_lands_where_the_user_came_from(self):
        field = TextField(self.desktop, "editor")
        self.start_program("--startup")
        self.open_history_once()
        field.come_to_front()
        self.type("first words")
        self.type_key("ctrl+a")
        self.type_key("ctrl+c")
        until("the first clip", lambda: self.clips() == ["first words"])
        self.copy("something else")
        until("the second clip", lambda: self.clips() == ["something else", "first words"])
        self.type_key("End")
        window = self.open("f5", "Clipboard History")
        self.type("WORDS")
        self.click(window, 200, 110)
        field.until_holds("first wordsfirst words")
        self.until_closed("Clipboard History")
        self.desktop.until_in_front("editor")
        time.sleep(2 * QUIET)
        self.assertEqual(field.text(), "first wordsfirst words", "pasted once")
        self.assertEqual(self.clips(), ["something else", "first words"], "a pasted clip keeps its place")

    def test_what_was_copied_before_the_first_showing_is_not_captured(self):
        self.start_program("--startup")
        self.copy("before")
        self.open_history_once()
        self.copy("after")
        until("the clip", lambda: self.clips() == ["after"])

    def test_escape_closes_a_panel_and_the_application_goes_on(self):
        field = TextField(self.desktop, "editor")
        self.start_program("--startup")
        for key, title in (("f5", "Clipboard History"), ("f6", "Quick Scratchpad")):
            self.open(key, title)
            self.type_key("Escape")
            self.until_closed(title)
            self.desktop.until_in_front("editor")
        self.type("x")
        field.until_holds("x")

    def test_the_key_closes_what_it_opened(self):
        self.start_program("--startup")
        for key, title in (("f5", "Clipboard History"), ("f6", "Quick Scratchpad"), ("f7", "Actions Ring")):
            self.open(key, title)
            self.tap(key)
            self.until_closed(title)

    def test_the_note_is_there_after_a_restart(self):
        process = self.start_program("--startup")
        self.open("f6", "Quick Scratchpad")
        self.type("buy milk")
        self.type_key("Return")
        self.type("and tea")
        until("the stored note", lambda: self.setting("Tarvin_QuickScratchpadContent") == "buy milk\nand tea")
        self.type_key("Escape")
        self.until_closed("Quick Scratchpad")
        self.desktop.end(process)
        self.start_program("--startup")
        self.open("f6", "Quick Scratchpad")
        self.type_key("ctrl+a")
        self.type_key("ctrl+c")
        until("the note", lambda: self.clipboard() == "buy milk\nand tea")

    def test_what_was_copied_is_pasted_into_the_note(self):
        self.start_program("--startup")
        self.open("f6", "Quick Scratchpad")
        self.copy("from outside")
        until("the copied text", lambda: self.clipboard() == "from outside")
        self.type_key("ctrl+v")
        until("the text pasted", lambda: self.setting("Tarvin_QuickScratchpadContent") == "from outside")
        self.type_key("ctrl+a")
        self.type_key("ctrl+x")
        until("the text cut", lambda: self.setting("Tarvin_QuickScratchpadContent") == "")
        self.type_key("shift+Insert")
        until("the program's own text pasted", lambda: self.setting("Tarvin_QuickScratchpadContent") == "from outside")

    def test_an_item_of_the_ring_acts_once_on_the_application_behind_it(self):
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.desktop.ask("xdotool", "mousemove", 640, 430)
        window = self.open("f7", "Actions Ring")
        info = self.desktop.ask("xwininfo", "-id", window).decode()
        left, top, width = (int(re.search(pattern, info)[1]) for pattern in (
            r"Absolute upper-left X:\s+(-?\d+)", r"Absolute upper-left Y:\s+(-?\d+)", r"Width: (\d+)"))
        self.assertEqual((left + width // 2, top + width // 2), (640, 430), "the ring is around the pointer")
        time.sleep(QUIET)
        self.click(window, width // 2 + 87, width // 2 + 43)
        self.assertEqual([key for key in application.keys_pressed(2) if key == "c"], ["c"])
        self.until_closed("Actions Ring")
        usage = json.loads((self.folder / "action_usage.json").read_text())
        self.assertEqual(usage["copy"]["useCount"], 1)

    def test_the_ring_goes_away_with_the_active_program_and_needs_two_presses_then(self):
        field = TextField(self.desktop, "editor")
        self.start_program("--startup")
        self.open("f7", "Actions Ring")
        field.come_to_front()
        self.until_closed("Actions Ring")
        self.tap("f7")
        self.desktop.until_in_front("editor")
        self.open("f7", "Actions Ring")

    def test_panels_stand_above_on_all_desktops_and_in_no_taskbar(self):
        self.start_program("--startup")
        for key, title, is_everywhere in (("f5", "Clipboard History", True), ("f6", "Quick Scratchpad", True),
                                          ("f7", "Actions Ring", False)):
            window = self.open(key, title)
            state = self.desktop.ask("xprop", "-id", window, "_NET_WM_STATE").decode()
            for wanted in ("ABOVE", "SKIP_TASKBAR", "SKIP_PAGER"):
                self.assertIn(wanted, state, title)
            desktop = self.desktop.ask("xprop", "-id", window, "_NET_WM_DESKTOP").decode()
            self.assertEqual("4294967295" in desktop, is_everywhere, title)
            self.tap(key)
            self.until_closed(title)

    def test_a_panel_has_the_keyboard_also_while_the_studio_is_open(self):
        field = TextField(self.desktop, "editor")
        self.start_program()
        self.desktop.until_in_front("MacBook Air Keyboard Studio")
        field.come_to_front()
        self.open("f6", "Quick Scratchpad")
        self.type("x")
        until("the note", lambda: self.setting("Tarvin_QuickScratchpadContent") == "x")
        self.desktop.until_in_front("Quick Scratchpad")

    def test_a_captured_text_outlives_its_application(self):
        self.start_program("--startup")
        self.open_history_once()
        application = self.copy("kept")
        until("the clip", lambda: self.clips() == ["kept"])
        self.desktop.end(application)
        until("the text on the clipboard", lambda: self.clipboard() == "kept")

    def test_the_stored_texts_are_for_the_user_alone(self):
        self.start_program("--startup")
        self.open_history_once()
        self.copy("private")
        until("the clip", lambda: self.clips() == ["private"])
        folder = self.desktop.config / "Tarvin"
        self.assertEqual(stat.S_IMODE((folder / "settings.json").stat().st_mode), 0o600)

    def test_a_window_closed_by_the_manager_is_only_hidden(self):
        self.start_program("--startup")
        window = self.open("f6", "Quick Scratchpad")
        self.type("kept")
        self.desktop.ask("wmctrl", "-ic", window)
        self.until_closed("Quick Scratchpad")
        self.open("f6", "Quick Scratchpad")
        self.assertEqual(self.setting("Tarvin_QuickScratchpadContent"), "kept")


if __name__ == "__main__":
    unittest.main()
