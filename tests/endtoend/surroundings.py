"""What actions act on: a sound server, a media player, services on the buses. Each is real or writes down what it is asked,
and belongs to one test's desktop."""

import os
import pathlib
import re
import shutil
import struct
import subprocess
import unittest
import wave

from session import add_entry, until

# The interpreter that the system's packages install their modules for; the search path may have another.
SYSTEM_PYTHON = "/usr/bin/python3"


def need(*tools):
    missing = [tool for tool in tools if not shutil.which(tool)]
    if missing:
        raise unittest.SkipTest("not installed: " + ", ".join(missing))


class SoundServer:
    """One output and one microphone that are not there in truth."""

    def __init__(self, desktop):
        need("pulseaudio", "pactl")
        self.desktop = desktop
        socket = desktop.home / "pulse"
        desktop.environment.update(PULSE_SERVER=f"unix:{socket}", PULSE_STATE_PATH=str(desktop.home / "state"),
                                   PULSE_RUNTIME_PATH=str(desktop.home / "runtime"))
        desktop.start("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                      f"--load=module-native-protocol-unix auth-anonymous=1 socket={socket}",
                      "--load=module-null-sink sink_name=speaker rate=8000",
                      "--load=module-null-source source_name=microphone rate=8000")
        until("a sound server", lambda: b"Default Sink: speaker" in desktop.ask("pactl", "info"))
        desktop.ask("pactl", "set-default-source", "microphone")

    def percent(self, kind):
        text = self.desktop.ask("pactl", f"get-{kind}-volume", f"@DEFAULT_{kind.upper()}@").decode()
        return int(re.search(r"(\d+)%", text)[1])

    def set_percent(self, kind, percent):
        self.desktop.ask("pactl", f"set-{kind}-volume", f"@DEFAULT_{kind.upper()}@", f"{percent}%")

    def is_muted(self, kind="sink"):
        return b"yes" in self.desktop.ask("pactl", f"get-{kind}-mute", f"@DEFAULT_{kind.upper()}@")


class Player:
    """A real media player that plays silence, controlled over the session bus."""

    NAME = "org.mpris.MediaPlayer2.mpv"

    def __init__(self, desktop):
        need("mpv", "dbus-send")
        plugin = next((path for path in ("/etc/mpv/scripts/mpris.so", "/usr/lib/mpv-mpris/mpris.so")
                       if pathlib.Path(path).exists()), None)
        if not plugin:
            raise unittest.SkipTest("not installed: mpv-mpris")
        self.desktop = desktop
        tracks = [desktop.home / f"track{number}.wav" for number in (1, 2)]
        for track in tracks:
            with wave.open(str(track), "wb") as file:
                file.setparams((1, 2, 8000, 0, "NONE", ""))
                file.writeframes(struct.pack("<h", 0) * 8000 * 120)
        desktop.start("mpv", "--no-config", "--load-scripts=no", f"--script={plugin}", "--no-video", "--ao=null",
                      "--no-terminal", *tracks)
        until("the player", lambda: self.status() == "Playing")

    def get(self, name):
        return self.desktop.ask("dbus-send", "--print-reply", f"--dest={self.NAME}", "/org/mpris/MediaPlayer2",
                                "org.freedesktop.DBus.Properties.Get", "string:org.mpris.MediaPlayer2.Player",
                                f"string:{name}").decode()

    def status(self):
        found = re.search(r'string "(\w+)"', self.get("PlaybackStatus"))
        return found and found[1]

    def track(self):
        found = re.search(r"track(\d)\.wav", self.get("Metadata"))
        return found and int(found[1])


class SystemBus:
    """A bus that stands for the system's. To be made before the program starts."""

    def __init__(self, desktop):
        need("dbus-daemon")
        bus = desktop.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1",
                            stdout=subprocess.PIPE)
        self.address = bus.stdout.readline().decode().strip()
        desktop.environment["DBUS_SYSTEM_BUS_ADDRESS"] = self.address


class Service:
    """A service that writes down what it is asked."""

    def __init__(self, desktop, name, path, interface, address=None):
        if subprocess.run([SYSTEM_PYTHON, "-c", "import dbusmock"], stderr=subprocess.DEVNULL).returncode != 0:
            raise unittest.SkipTest("not installed: python3-dbusmock")
        need("gdbus")
        self.desktop, self.name, self.path, self.interface = desktop, name, path, interface
        self.address = address or desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.record = desktop.home / f"{name}{path.replace('/', '.')}.calls"
        desktop.start("env", f"DBUS_SESSION_BUS_ADDRESS={self.address}", SYSTEM_PYTHON, "-m", "dbusmock", "--session",
                      "-l", self.record, name, path, interface)
        until(name, lambda: b"()" in self.call("org.freedesktop.DBus.Peer.Ping"))

    def call(self, method, *arguments):
        return self.desktop.ask("gdbus", "call", "--address", self.address, "--dest", self.name, "--object-path", self.path,
                                "--method", method, *arguments)

    def method(self, name, signature="", code=""):
        answer = self.call("org.freedesktop.DBus.Mock.AddMethod", self.interface, name, signature, "", code)
        assert b"()" in answer, answer

    def refusal(self, name, signature, reason):
        self.method(name, signature, f"raise dbus.exceptions.DBusException('{reason}', "
                                     "name='org.freedesktop.DBus.Error.AccessDenied')")

    def calls(self):
        """As "Suspend True", in order."""
        names = {"Ping", "AddMethod"}
        lines = self.record.read_text().splitlines() if self.record.exists() else []
        calls = [line.split(" ", 1)[1] for line in lines if re.match(r"[\d.]+ \w", line)]
        return [call for call in calls if call.split()[0] not in names]


class TextField:
    """An application with a text field, which has the keyboard."""

    def __init__(self, desktop, name="editor"):
        add_entry(desktop, name, "field", StartupWMClass=name)
        self.desktop, self.name, self.file = desktop, name, desktop.home / f"{name}.text"
        self.process = desktop.start(os.environ["TARVIN_TEXT_FIELD_PROGRAM"], name, self.file)
        until(f"the window of {name}", lambda: self._windows().strip())
        self.come_to_front()

    def _windows(self):
        return self.desktop.ask("xdotool", "search", "--onlyvisible", "--name", f"^{self.name}$")

    def come_to_front(self):
        self.desktop.ask("xdotool", "windowactivate", "--sync", self._windows().split()[0].decode())
        self.desktop.until_in_front(self.name)

    def text(self):
        return self.file.read_text()

    def until_holds(self, text):
        until(f"{text!r} in {self.name}, which holds {self.text()!r}", lambda: self.text() == text)


__all__ = ["Player", "Service", "SoundServer", "SystemBus", "TextField", "need"]
