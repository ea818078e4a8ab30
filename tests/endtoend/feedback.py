"""The key click of the built program, heard through a sound server whose only loudspeaker is a file."""

import array
import shutil
import time
import unittest

from session import QUIET, Session, until

LOUD = 500  # of 32767


class Feedback(Session):
    def setUp(self):
        super().setUp()
        missing = [tool for tool in ("pulseaudio", "parec", "pactl") if not shutil.which(tool)]
        if missing:
            self.skipTest("not installed: " + ", ".join(missing))
        socket = self.desktop.home / "pulse.socket"
        self.desktop.environment.update(PULSE_SERVER=f"unix:{socket}", PULSE_COOKIE=str(self.desktop.home / "cookie"))
        self.desktop.start("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                           f"--load=module-native-protocol-unix auth-anonymous=1 socket={socket}",
                           "--load=module-null-sink sink_name=loudspeaker rate=44100 channels=1")
        until("the sound server", socket.exists)
        self.recording = self.desktop.home / "heard"
        self.desktop.start("parec", "--raw", "--device=loudspeaker.monitor", "--format=s16le", "--channels=1", "--rate=44100",
                           "--latency-msec=10", self.recording)
        until("the recording", lambda: len(self.heard()) > 4410)
        self.events = self.desktop.home / "events"
        with open(self.events, "wb") as file:
            self.desktop.start("pactl", "subscribe", stdout=file)
        until("word of the server", self.server_tells)

    def server_tells(self):
        """Whether events are written down; any call is one."""
        self.desktop.ask("pactl", "list", "clients")
        return self.events.read_text()

    def heard(self):
        content = self.recording.read_bytes() if self.recording.exists() else b""
        return array.array("h", content[:len(content) // 2 * 2])

    def is_heard(self):
        return any(abs(sample) > LOUD for sample in self.heard())

    def clicks(self):
        """How many sounds the server was asked to play. A busy machine may lose some of what it plays."""
        return self.events.read_text().count("'new' on sink-input")

    def open_studio(self):
        self.start_program()
        self.desktop.until_in_front("MacBook Air Keyboard Studio")

    def test_a_key_clicks_once_while_the_studio_is_in_front(self):
        self.open_studio()

        def click_heard():
            # The server takes the sound when the Studio shows; a press right at that moment may be too early.
            self.press("+a 40ms -a 200ms")
            return self.is_heard()
        until("a click", click_heard)
        time.sleep(QUIET)
        before = self.clicks()
        self.press("+s 40ms -s")
        until("one more click", lambda: self.clicks() > before)
        time.sleep(QUIET)
        self.assertEqual(self.clicks(), before + 1)

    def test_with_sounds_off_it_is_silent(self):
        self.settings(Tarvin_SoundEnabled=False)
        self.open_studio()
        for _ in range(5):
            self.press("+a 40ms -a 200ms")
        self.assertEqual(self.clicks(), 0)

    def test_nothing_clicks_while_the_studio_is_hidden(self):
        self.start_program("--startup")
        for _ in range(5):
            self.press("+a 40ms -a 200ms")
        self.assertEqual(self.clicks(), 0)
        self.assertNotIn("No key click", self.log())


if __name__ == "__main__":
    unittest.main()
