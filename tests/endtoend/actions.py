"""Each action does its work once: on the sound server, the player, the windows, the screen, the services of the session."""

import re
import subprocess
import time
import unittest

from session import QUIET, Application, Session, add_entry, until
from surroundings import Player, Service, SoundServer, SystemBus, TextField, need

SCREEN_WIDTH, SCREEN_HEIGHT = 1280, 860


class Actions(Session):
    def perform(self, key="f5"):
        self.tap(key)

    def start_program(self, *arguments):
        process = super().start_program(*arguments)
        until("the end of the start", lambda: "Startup launch handled" in self.log())
        self.settle()
        return process

    def resident(self, record):
        """Starts the program with a record on F5, which must not be the key's own action."""
        self.map_keys(**{"global": {"F5": record}})
        return self.start_program("--startup")

    def is_told(self, line):
        until(f"the notice: {line}", lambda: f"[Tarvin] {line}" in self.log())

    def frame_of(self, application):
        """Place and size of the window with its frame, as the server has them."""
        window = application.window
        while True:
            found = re.search(rb"Parent window id: (0x[0-9a-f]+)( \(the root)?",
                              self.desktop.ask("xwininfo", "-tree", "-id", window))
            if not found or found[2]:
                break
            window = found[1].decode()
        text = self.desktop.ask("xwininfo", "-id", window).decode()
        return tuple(int(re.search(name + r": +(-?\d+)", text)[1])
                     for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def until_frame(self, application, frame):
        until(f"the window at {frame}, it is at {self.frame_of(application)}",
              lambda: self.frame_of(application) == frame)

    def has_state(self, application, state):
        return state.encode() in self.desktop.ask("xprop", "-id", application.window, "_NET_WM_STATE")

    # Sound

    def test_a_volume_key_moves_the_volume_by_six_points_once(self):
        sound = SoundServer(self.desktop)
        sound.set_percent("sink", 50)
        self.resident("volume_up")
        self.perform()
        until("56 percent", lambda: sound.percent("sink") == 56)
        time.sleep(QUIET)
        self.assertEqual(sound.percent("sink"), 56)

    def test_the_mute_key_mutes_and_lets_be_heard_again(self):
        sound = SoundServer(self.desktop)
        self.resident("mute")
        self.perform()
        until("silence", sound.is_muted)
        time.sleep(QUIET)
        self.assertTrue(sound.is_muted())
        self.perform()
        until("sound", lambda: not sound.is_muted())

    def test_the_microphone_goes_to_nothing_and_to_three_quarters(self):
        sound = SoundServer(self.desktop)
        sound.set_percent("source", 40)
        self.resident("toggle_mic_mute")
        self.perform()
        until("a silent microphone", lambda: sound.percent("source") == 0)
        self.perform()
        until("an active microphone", lambda: sound.percent("source") == 75)

    def test_without_a_sound_server_the_user_is_told(self):
        self.desktop.environment["PULSE_SERVER"] = f"unix:{self.desktop.home}/nowhere"
        self.resident("volume_down")
        self.perform()
        self.is_told("No Sound Server")

    def test_the_player_pauses_and_plays_and_changes_the_track(self):
        player = Player(self.desktop)
        self.map_keys(**{"global": {"F5": "play_pause", "F6": "next_track", "F4": "previous_track"}})
        self.start_program("--startup")
        self.perform()
        until("a pause", lambda: player.status() == "Paused")
        time.sleep(QUIET)
        self.assertEqual(player.status(), "Paused", "asked once")
        self.perform()
        until("playing", lambda: player.status() == "Playing")
        self.perform("f6")
        until("the second track", lambda: player.track() == 2)
        self.perform("f4")
        until("the first track", lambda: player.track() == 1)

    def test_without_a_player_the_user_is_told(self):
        self.resident("play_pause")
        self.perform()
        self.is_told("No Media Player")

    # Power

    def test_sleep_is_asked_of_the_login_manager_once(self):
        system = SystemBus(self.desktop)
        login = Service(self.desktop, "org.freedesktop.login1", "/org/freedesktop/login1",
                        "org.freedesktop.login1.Manager", system.address)
        login.method("Suspend", "b")
        self.resident("sleep_device")
        self.perform()
        until("the call", login.calls)
        time.sleep(QUIET)
        self.assertEqual(login.calls(), ["Suspend True"])

    def test_a_refused_sleep_is_told(self):
        system = SystemBus(self.desktop)
        login = Service(self.desktop, "org.freedesktop.login1", "/org/freedesktop/login1",
                        "org.freedesktop.login1.Manager", system.address)
        login.refusal("Suspend", "b", "Operation inhibited by a burning disc")
        self.resident("sleep_device")
        self.perform()
        self.is_told("Sleep refused: Operation inhibited by a burning disc")

    def test_restart_asks_the_session_manager_once_and_the_login_manager_never(self):
        system = SystemBus(self.desktop)
        login = Service(self.desktop, "org.freedesktop.login1", "/org/freedesktop/login1",
                        "org.freedesktop.login1.Manager", system.address)
        login.method("Reboot", "b")
        session = Service(self.desktop, "org.xfce.SessionManager", "/org/xfce/SessionManager", "org.xfce.Session.Manager")
        session.method("Restart", "b")
        self.resident("restart")
        self.perform()
        until("the call", session.calls)
        time.sleep(QUIET)
        self.assertEqual(session.calls(), ["Restart True"])
        self.assertEqual(login.calls(), [])

    def test_shutting_down_without_a_session_manager_asks_the_login_manager_once(self):
        system = SystemBus(self.desktop)
        login = Service(self.desktop, "org.freedesktop.login1", "/org/freedesktop/login1",
                        "org.freedesktop.login1.Manager", system.address)
        login.method("PowerOff", "b")
        self.resident("shut_down")
        self.perform()
        until("the call", login.calls)
        time.sleep(QUIET)
        self.assertEqual(login.calls(), ["PowerOff True"])

    def test_the_screen_is_locked_by_the_screen_saver_once(self):
        saver = Service(self.desktop, "org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver")
        saver.method("Lock")
        self.resident("lock_screen")
        self.perform()
        until("the call", saver.calls)
        time.sleep(QUIET)
        self.assertEqual(saver.calls(), ["Lock"])

    # Windows

    def test_a_window_snaps_left_and_right_and_is_maximised_and_restored(self):
        self.map_keys(**{"global": {"F5": "snap_window_left", "F6": "snap_window_right", "F7": "snap_window_maximize"}})
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        half = SCREEN_WIDTH // 2
        self.perform("f5")
        self.until_frame(application, (0, 0, half, SCREEN_HEIGHT))
        self.perform("f6")
        self.until_frame(application, (half, 0, half, SCREEN_HEIGHT))
        self.perform("f7")
        self.until_frame(application, (0, 0, SCREEN_WIDTH, SCREEN_HEIGHT))
        self.perform("f7")
        self.until_frame(application, (half, 0, half, SCREEN_HEIGHT))

    def test_a_window_snaps_beside_a_panel(self):
        application = Application(self.desktop, "editor")
        panel = Application(self.desktop, "panel", f"{SCREEN_WIDTH}x30+0+0")
        self.desktop.ask("xprop", "-id", panel.window, "-f", "_NET_WM_STRUT_PARTIAL", "32c", "-set",
                         "_NET_WM_STRUT_PARTIAL", f"0, 0, 30, 0, 0, 0, 0, 0, 0, {SCREEN_WIDTH - 1}, 0, 0")
        self.resident("snap_window_left")
        application.come_to_front()
        self.perform()
        self.until_frame(application, (0, 30, SCREEN_WIDTH // 2, SCREEN_HEIGHT - 30))

    def test_full_screen_is_entered_and_left(self):
        application = Application(self.desktop, "editor")
        self.resident("toggle_fullscreen")
        application.come_to_front()
        self.perform()
        until("full screen", lambda: self.has_state(application, "FULLSCREEN"))
        self.perform()
        until("no full screen", lambda: not self.has_state(application, "FULLSCREEN"))

    def test_a_window_is_minimised(self):
        application = Application(self.desktop, "editor")
        self.resident("minimize_window")
        application.come_to_front()
        self.perform()
        until("a minimised window", lambda: self.has_state(application, "HIDDEN"))

    def test_the_desktop_is_shown_and_the_windows_come_back(self):
        application = Application(self.desktop, "editor")
        self.resident("show_desktop")
        application.come_to_front()

        def is_shown():
            return b"= 1" in self.desktop.ask("xprop", "-root", "_NET_SHOWING_DESKTOP")
        self.perform()
        until("the desktop", is_shown)
        time.sleep(QUIET)
        self.assertTrue(is_shown(), "asked once")

    def test_the_next_desktop_is_one_to_the_right(self):
        self.resident("desktop_right")

        def current():
            return int(self.desktop.ask("xprop", "-root", "_NET_CURRENT_DESKTOP").split()[-1])
        self.perform()
        until("the second desktop", lambda: current() == 1)
        time.sleep(QUIET)
        self.assertEqual(current(), 1)

    # Desktop functions

    def test_what_the_desktop_does_not_have_is_told_by_name(self):
        self.map_keys(**{"global": {"F6": "dictation"}})
        self.start_program("--startup")
        self.perform("f6")
        self.is_told("Not available on this desktop: dictation")

    def test_mission_control_opens_the_overview_once(self):
        shell = Service(self.desktop, "org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell")
        shell.call("org.freedesktop.DBus.Mock.AddProperty", "org.gnome.Shell", "OverviewActive", "<false>")
        self.resident("mission_control")
        self.perform()

        def is_open():
            return b"true" in shell.call("org.freedesktop.DBus.Properties.Get", "org.gnome.Shell", "OverviewActive")
        until("the overview", is_open)
        time.sleep(QUIET)
        self.assertTrue(is_open(), "a second road would have closed it again")

    # Capture

    def test_a_capture_to_a_file_shows_what_the_screen_shows(self):
        need("import", "convert")
        folder = self.desktop.home / "Desktop"
        folder.mkdir()
        Application(self.desktop, "editor").come_to_front()
        self.resident({"action": "screen_capture", "screenCaptureMode": "Screen", "screenCaptureDestination": "File"})
        self.perform()
        until("a picture", lambda: list(folder.glob("Screen Shot *.png")))
        time.sleep(QUIET)
        pictures = list(folder.iterdir())
        self.assertEqual(len(pictures), 1)
        self.assertRegex(pictures[0].name, r"^Screen Shot \d{4}-\d\d-\d\d at \d\d\.\d\d\.\d\d\.png$")
        reference = self.desktop.home / "reference.png"
        self.desktop.picture(reference)
        self.assertEqual(self.pixels(pictures[0]), self.pixels(reference))

    def test_a_capture_to_the_clipboard_is_a_picture_there(self):
        need("import", "convert", "xclip")
        Application(self.desktop, "editor").come_to_front()
        self.resident({"action": "screen_capture", "screenCaptureMode": "Screen", "screenCaptureDestination": "Clipboard"})
        self.perform()
        picture = self.desktop.home / "clipboard.png"

        def is_there():
            picture.write_bytes(self.desktop.ask("xclip", "-selection", "clipboard", "-t", "image/png", "-o"))
            return picture.stat().st_size > 0
        until("a picture on the clipboard", is_there)
        reference = self.desktop.home / "reference.png"
        self.desktop.picture(reference)
        self.assertEqual(self.pixels(picture), self.pixels(reference))

    def begin_drawing(self):
        """A capture of a region on a desktop that has no tool for it; returns when the user can draw."""
        path, self.desktop.environment["PATH"] = self.desktop.environment["PATH"], str(self.desktop.home / "nothing")
        self.resident({"action": "screen_capture", "screenCaptureMode": "Region", "screenCaptureDestination": "File"})
        self.desktop.environment["PATH"] = path
        self.perform()
        until("the picture to draw on", lambda: re.search(
            rb'"tarvin".*%dx%d\+0\+0' % (SCREEN_WIDTH, SCREEN_HEIGHT), self.desktop.ask("xwininfo", "-root", "-tree")))

    def test_a_region_that_the_user_draws_is_captured(self):
        need("import", "convert")
        application = Application(self.desktop, "editor", "300x200+100+100")
        self.begin_drawing()
        self.desktop.ask("xdotool", "mousemove", "80", "90", "mousedown", "1", "mousemove", "150", "160", "mousemove", "279",
                         "209", "mouseup", "1")
        pictures = until("a picture", lambda: list(self.desktop.home.glob("Screen Shot *.png")))
        reference = self.desktop.home / "reference.png"
        self.desktop.picture(reference)
        cut = self.desktop.home / "cut.png"
        subprocess.run(["convert", str(reference), "-crop", "200x120+80+90", "+repage", str(cut)], check=True)
        time.sleep(QUIET)
        self.assertEqual(self.pixels(pictures[0]), self.pixels(cut))
        self.assertIsNone(application.process.poll())

    def test_escape_breaks_a_capture_off_and_gives_the_keyboard_back(self):
        application = Application(self.desktop, "editor")
        application.come_to_front()
        self.begin_drawing()
        self.press("+escape 40ms -escape 100ms +a 20ms -a")
        self.assertEqual(application.keys_pressed(1)[-1:], ["a"])
        self.assertEqual(list(self.desktop.home.glob("Screen Shot *.png")), [])

    def pixels(self, picture):
        return subprocess.run(["convert", str(picture), "-depth", "8", "rgb:-"], capture_output=True, check=True).stdout

    # Content

    def test_a_snippet_is_pasted_and_the_old_clipboard_is_back_afterwards(self):
        need("xclip")
        old = self.desktop.home / "old"
        old.write_text("what was copied before")
        self.desktop.start("xclip", "-selection", "clipboard", "-quiet", "-i", old)
        until("the old clipboard", lambda: self.clipboard() == "what was copied before")
        self.resident({"action": "text_snippet", "textSnippet": "Kind regards"})
        field = TextField(self.desktop)
        self.perform()
        field.until_holds("Kind regards")
        until("the old clipboard again", lambda: self.clipboard() == "what was copied before")
        self.assertEqual(field.text(), "Kind regards")

    def test_a_terminal_gets_its_own_keystroke_for_paste(self):
        need("xclip", "xterm")
        add_entry(self.desktop, "terminal", "xterm", name="Terminal", StartupWMClass="TextTerminal",
                  Categories="System;TerminalEmulator;")
        text = self.desktop.home / "text"
        text.write_text("pasted into a terminal\n")
        self.desktop.start("xclip", "-selection", "clipboard", "-quiet", "-i", text)
        until("the clipboard", lambda: self.clipboard() == text.read_text())
        received = self.desktop.home / "received"
        self.desktop.start("xterm", "-class", "TextTerminal", "-xrm",
                           "TextTerminal*VT100.translations: #override Ctrl Shift <Key>V: insert-selection(CLIPBOARD)",
                           "-e", "sh", "-c", f"cat > {received}")
        self.desktop.until_in_front("TextTerminal")
        until("the terminal's program", received.exists)
        self.resident("paste")
        self.until_applications_are_known()
        self.perform()
        until("the text in the terminal", lambda: received.read_text() == text.read_text())

    def clipboard(self):
        return self.desktop.ask("timeout", "2", "xclip", "-selection", "clipboard", "-o").decode()

    def test_an_application_is_started_by_its_entry(self):
        started = self.desktop.home / "started"
        add_entry(self.desktop, "org.example.Tool", f"touch {started}", name="Tool")
        self.resident({"action": "open_application", "customAppBundleId": "org.example.Tool"})
        self.until_applications_are_known()
        self.perform()
        until("the start", started.exists)

    def test_an_application_that_is_not_there_is_told(self):
        self.resident("calculator")
        self.until_applications_are_known()
        self.perform()
        self.is_told("Not installed: Calculator")

    def test_a_flip_goes_to_the_other_application_and_back(self):
        editor = Application(self.desktop, "editor")
        browser = Application(self.desktop, "browser", "300x200+400+20")
        self.resident("quick_app_flip")
        editor.come_to_front()
        browser.come_to_front()
        time.sleep(QUIET)
        self.perform()
        self.desktop.until_in_front("editor")
        time.sleep(QUIET)
        self.perform()
        self.desktop.until_in_front("browser")

    # Force quit

    def test_the_application_in_front_is_ended(self):
        other = Application(self.desktop, "other")
        editor = Application(self.desktop, "editor", "300x200+400+20")
        self.resident("force_quit")
        editor.come_to_front()
        self.perform()
        until("the end", lambda: editor.process.poll() is not None)
        self.assertIsNone(other.process.poll())

    def test_the_list_of_applications_comes_to_the_front_and_escape_closes_it(self):
        editor = Application(self.desktop, "editor")
        self.resident({"action": "force_quit", "forceQuitMode": "Force Quit dialog (⌥⌘⎋)"})
        editor.come_to_front()
        self.perform()
        self.desktop.until_in_front("Force Quit Applications")
        self.press("+escape 40ms -escape")
        self.desktop.until_in_front("editor")
        self.assertIsNone(editor.process.poll())


if __name__ == "__main__":
    unittest.main()
