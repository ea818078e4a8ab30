"""The key click of the built program, heard through a sound server whose only loudspeaker is a file."""

import array
import shutil
import unittest

from session import Session, until

LOUD = 500  # of 32767


class Feedback(Session):
    def setUp(self):
        super().setUp()
        missing = [tool for tool in ("pulseaudio", "parec") if not shutil.which(tool)]
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

    def heard(self):
        content = self.recording.read_bytes() if self.recording.exists() else b""
        return array.array("h", content[:len(content) // 2 * 2])

    def clicks(self):
        """How many sounds with a pause before them."""
        count, silence = 0, 44100
        for sample in self.heard():
            if abs(sample) < LOUD:
                silence += 1
                continue
            count += silence > 2000
            silence = 0
        return count

    def open_studio(self):
        self.start_program()
        self.desktop.until_in_front("MacBook Air Keyboard Studio")

    def test_a_key_clicks_while_the_studio_is_in_front(self):
        self.open_studio()

        def click_heard():
            # The server takes the sound when the Studio shows; a press right at that moment may be too early.
            self.press("+a 40ms -a 200ms")
            return self.clicks()
        until("a click", click_heard)
        before = self.clicks()
        self.press("+s 40ms -s")
        until("one more click", lambda: self.clicks() == before + 1)

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
