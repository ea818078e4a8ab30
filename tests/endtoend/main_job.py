"""A key press performs its action, for a user in an X session with no special right."""

import unittest

from session import Application, KeyEvent, Session, shortcut, signal, until

F5_TYPES_G = shortcut(5, "G")


class MainJob(Session):
    def test_a_customised_key_is_consumed_and_performs_its_action_once(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.received(2), [KeyEvent("+", "g", 0), KeyEvent("-", "g", 0)])
        self.assertEqual(self.fired(1), ["F5: Shortcut (G)"])

    def test_a_key_that_nobody_customised_behaves_as_ever(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f6 40ms -f6 +leftShift +a 20ms -a -leftShift")
        self.assertEqual([(event.motion, event.key) for event in application.received(6)],
                         [("+", "F6"), ("-", "F6"), ("+", "Shift_L"), ("+", "A"), ("-", "A"), ("-", "Shift_L")])
        self.assertEqual(self.fired(), [])

    def test_a_held_key_fires_once_and_none_of_its_repeats_arrives(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 1200ms -f5")
        self.assertEqual(application.keys_pressed(1), ["g"])
        self.assertEqual(len(self.fired(1)), 1)

    def test_other_keys_can_be_typed_while_a_customised_key_is_held(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 600ms +a 20ms -a 100ms -f5")
        self.assertEqual(application.keys_pressed(2), ["g", "a"])

    def test_a_lone_right_option_performs_its_action_and_is_no_modifier(self):
        self.map_keys(**{"global": {"RightOption": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+rightOption 300ms -rightOption 600ms +a 20ms -a")
        self.assertEqual(application.received(4), [KeyEvent("+", "g", 0), KeyEvent("-", "g", 0),
                                                   KeyEvent("+", "a", 0), KeyEvent("-", "a", 0)])

    def test_a_customised_caps_lock_does_not_lock(self):
        self.map_keys(**{"global": {"CapsLock": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+capsLock 40ms -capsLock 600ms +a 20ms -a 600ms +capsLock 40ms -capsLock")
        self.assertEqual(application.keys_pressed(3), ["g", "a", "g"])

    def test_a_factory_caps_lock_locks(self):
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+capsLock 40ms -capsLock +a 20ms -a +capsLock 40ms -capsLock")
        self.assertEqual(application.keys_pressed(3), ["Caps_Lock", "A", "Caps_Lock"])

    def test_a_recorded_shortcut_arrives_with_its_modifiers(self):
        self.map_keys(**{"global": {"F5": shortcut(5, "G", command=True, shift=True)}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        events = application.received(6)
        key = next(event for event in events if event.key in ("g", "G") and event.motion == "+")
        self.assertEqual(key.state & 0xff, 0x41, f"Super and Shift, in {events}")
        self.assertEqual(sorted(event.key for event in events if event.motion == "+"),
                         sorted(event.key for event in events if event.motion == "-"), "nothing stays held")

    def test_a_built_in_keystroke_is_the_one_that_applications_here_know(self):
        self.map_keys(**{"global": {"F5": "copy"}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        key = next(event for event in application.received(4) if event.key == "c" and event.motion == "+")
        self.assertEqual(key.state & 0xff, 0x04, "Control")

    def test_a_chord_goes_down_in_order_and_up_in_reverse(self):
        self.map_keys(**{"global": {"F5": {"action": "keyboard_shortcut", "multiKeyMode": "simultaneous", "customShortcuts": [
            {"keyCode": 38, "keyDisplay": "J"}, {"keyCode": 40, "keyDisplay": "K"}, {"keyCode": 37, "keyDisplay": "L"}]}}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual([event.motion + event.key for event in application.received(6)],
                         ["+j", "+k", "+l", "-l", "-k", "-j"])

    def test_a_sequence_is_typed_key_by_key(self):
        self.map_keys(**{"global": {"F5": {"action": "keyboard_shortcut", "multiKeyMode": "sequential", "customShortcuts": [
            {"keyCode": 38, "keyDisplay": "J"}, {"keyCode": 40, "keyDisplay": "K"}, {"keyCode": 38, "keyDisplay": "J"}]}}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual([event.motion + event.key for event in application.received(6)],
                         ["+j", "-j", "+k", "-k", "+j", "-j"])

    def test_a_modifier_held_by_hand_does_not_reach_the_posted_stroke_and_is_held_afterwards(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+leftShift 50ms +f5 40ms -f5 600ms +a 20ms -a -leftShift +a 20ms -a")
        events = application.received(8)
        self.assertEqual([event.key for event in events if event.motion == "+" and event.key != "Shift_L"], ["g", "A", "a"])

    def test_the_record_of_an_application_holds_in_it_alone_and_at_once(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}, "safari": {"F5": shortcut(4, "H")}})
        (self.desktop.config / "mimeapps.list").write_text(
            "[Default Applications]\nx-scheme-handler/http=browser.desktop\nx-scheme-handler/https=browser.desktop\n")
        browser = Application(self.desktop, "browser", "300x200+400+20")
        editor = Application(self.desktop, "editor")
        entry = self.desktop.data / "applications" / "browser.desktop"
        entry.write_text(entry.read_text() + "Categories=Network;WebBrowser;\nMimeType=x-scheme-handler/http;x-scheme-handler/https;\n")
        self.start_program("--startup")
        self.until_applications_are_known()
        for _ in range(2):
            browser.come_to_front()
            self.press("+f5 40ms -f5 250ms")
            editor.come_to_front()
            self.press("+f5 40ms -f5 250ms")
        self.assertEqual(browser.keys_pressed(2), ["h", "h"])
        self.assertEqual(editor.keys_pressed(2), ["g", "g"])

    def test_with_the_master_switch_off_every_key_passes_and_with_it_on_again_it_is_consumed(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.settings(Tarvin_InterceptionEnabled=False)
        process = self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(1), ["F5"])
        self.desktop.end(process)
        self.settings(Tarvin_InterceptionEnabled=True)
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(2), ["F5", "g"])

    def test_a_killed_program_leaves_the_keyboard_free_at_once(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        process = self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 100ms")
        self.fired(1)
        process.send_signal(signal.SIGKILL)
        process.wait()
        self.press("-f5 20ms +f5 20ms -f5 +a 20ms -a")
        self.assertEqual(application.keys_pressed(3)[-2:], ["F5", "a"])

    def test_a_stopped_program_delays_no_key_that_it_does_not_customise(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        process = self.start_program("--startup")
        application.come_to_front()
        process.send_signal(signal.SIGSTOP)
        self.addCleanup(process.send_signal, signal.SIGCONT)
        self.press("+a 20ms -a +f6 20ms -f6")
        self.assertEqual(application.keys_pressed(2), ["a", "F6"])

    def test_a_damaged_entry_of_a_hand_written_file_costs_that_entry_alone(self):
        self.map_keys(**{"global": {"F5": F5_TYPES_G, "F6": [1, 2], "Foo": F5_TYPES_G}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(1), ["g"])
        self.press("+f6 40ms -f6")
        self.assertEqual(application.keys_pressed(2), ["g", "F6"])


if __name__ == "__main__":
    unittest.main()
