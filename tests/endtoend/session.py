"""The built program in a desktop of its own, with keys pressed on its physical-like keyboard and applications that record
what they receive."""

import dataclasses
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from embedded_desktop import Desktop, Missing, until  # noqa: E402

QUIET = 0.25  # seconds without anything new after which a window has received all there is

TARVIN, PRESS = (os.environ.get(name, "") for name in ("TARVIN_PROGRAM", "TARVIN_PRESS_PROGRAM"))


@dataclasses.dataclass(frozen=True)
class KeyEvent:
    """What an application got: "+" for a press, "-" for a release, the key's name and the modifier state."""

    motion: str
    key: str
    state: int

    def __repr__(self):
        return f"{self.motion}{self.key}/{self.state:#x}"


def add_entry(desktop, identifier, command, name=None, **fields):
    """Installs an application for the user: its desktop entry, with further fields as they are called there."""
    folder = desktop.data / "applications"
    folder.mkdir(exist_ok=True)
    lines = {"Type": "Application", "Name": name or identifier, "Exec": command, **fields}
    (folder / f"{identifier}.desktop").write_text(
        "[Desktop Entry]\n" + "".join(f"{key}={value}\n" for key, value in lines.items()))


class Application:
    """A window that records every key event it receives. Its name is its class, its title and its desktop entry."""

    def __init__(self, desktop, name, place="300x200+20+20"):
        add_entry(desktop, name, "xev", StartupWMClass=name)
        self.desktop, self.name = desktop, name
        self.record = desktop.home / f"{name}.received"
        with open(self.record, "wb") as file:
            self.process = desktop.start("stdbuf", "-oL", "xev", "-event", "keyboard", "-name", name, "-geometry", place,
                                         stdout=file)
        until(f"the window of {name}", self.find_window)
        # A manager that has not taken the window yet would not hear of it either.
        until(f"{name} managed", self.is_managed)
        desktop.ask("xdotool", "set_window", "--class", name, "--classname", name, self.window)

    def find_window(self):
        found = re.search(rb'(0x[0-9a-f]+) "%s"' % self.name.encode(), self.desktop.ask("xwininfo", "-root", "-tree"))
        self.window = found and found[1].decode()
        return self.window

    def is_managed(self):
        clients = re.findall(rb"0x[0-9a-f]+", self.desktop.ask("xprop", "-root", "_NET_CLIENT_LIST"))
        return int(self.window, 16) in [int(client, 16) for client in clients]

    def come_to_front(self):
        self.desktop.ask("xdotool", "windowactivate", "--sync", self.window)
        self.desktop.until_in_front(self.name)

    def events(self):
        pattern = r"Key(Press|Release) event.*?state (0x[0-9a-f]+), keycode \d+ \(keysym 0x[0-9a-f]+, (\w+)\)"
        return [KeyEvent("+" if motion == "Press" else "-", key, int(state, 16)) for motion, state, key
                in re.findall(pattern, self.record.read_text(errors="replace"), re.DOTALL)]

    def received(self, at_least=0):
        """All events once nothing more comes and at least that many are there."""
        def settled():
            before = len(self.events())
            time.sleep(QUIET)
            return len(self.events()) == before >= at_least
        until(f"{at_least} key events for {self.name}, which has {self.events()}", settled)
        return self.events()

    def keys_pressed(self, at_least=0):
        return [event.key for event in self.received(at_least) if event.motion == "+"]


class Session(unittest.TestCase):
    """A desktop for each test; the program starts when the test says so."""

    def setUp(self):
        missing = [tool for tool in ("Xvfb", "openbox", "dbus-daemon", "xev", "wmctrl", "xdotool", "xprop") if not shutil.which(tool)]
        if missing:
            self.skipTest("not installed: " + ", ".join(missing))
        self.desktop = self.enterContext(Desktop())
        self.addCleanup(self.tell_when_failed)
        self.desktop.bring_up()
        self.folder = self.desktop.data / "Tarvin"
        self.log_file = self.folder / "runtime.log"
        # The path of the program counts as one of its arguments, and the build's may hold the word that holds keystrokes back.
        self.program = self.desktop.home / "tarvin"
        shutil.copy2(TARVIN, self.program)

    def tell_when_failed(self):
        errors = self.desktop.home / "stderr.log"
        if self._outcome.result.failures or self._outcome.result.errors:
            print(f"--- log\n{self.log()}--- messages\n{errors.read_text(errors='replace') if errors.exists() else ''}")

    def map_keys(self, **profiles):
        """Writes the mapping file by hand, as a user may before the start."""
        self.folder.mkdir(mode=0o700, exist_ok=True)
        (self.folder / "profiles_mappings.json").write_text(json.dumps(profiles))

    def settings(self, **values):
        folder = self.desktop.config / "Tarvin"
        folder.mkdir(mode=0o700, exist_ok=True)
        (folder / "settings.json").write_text(json.dumps(values))

    def setting(self, key):
        file = self.desktop.config / "Tarvin" / "settings.json"
        return json.loads(file.read_text()).get(key) if file.exists() else None

    def log(self):
        return self.log_file.read_text() if self.log_file.exists() else ""

    def start_program(self, *arguments):
        lines_before = self.log().count("Keyboard interception engine active.")
        process = self.desktop.start(self.program, *arguments)
        until("live keys", lambda: self.log().count("Keyboard interception engine active.") > lines_before
              or process.poll() is not None)
        self.assertIsNone(process.poll(), "the program ended by itself")
        self.settle()
        return process

    def settle(self):
        """Returns when the running program has taken the keys that are customised now."""
        self.desktop.ask(self.program, "status")

    def until_applications_are_known(self):
        def known():
            return json.loads(self.desktop.ask(self.program, "status", "--json")).get("installedApplications", 0) > 0
        until("the list of installed applications", known)

    def press(self, steps):
        subprocess.run([PRESS, *steps.split()], env=self.desktop.environment, check=True)

    def type(self, text):
        self.desktop.ask("xdotool", "type", "--delay", "15", text)

    def type_key(self, name):
        self.desktop.ask("xdotool", "key", name)

    def tap(self, key):
        """One press of a customised key that stands for itself: what comes too soon after another counts as the same."""
        before = len(self.firings())
        self.press(f"400ms +{key} 40ms -{key}")
        until("the firing", lambda: len(self.firings()) > before)

    def firings(self):
        return re.findall(r"Intercepted Physical (\w+) -> Executing: (.*)", self.log())

    def fired(self, at_least=0):
        """What fired, as "F5: Copy", in order."""
        until(f"{at_least} firings, there are {self.firings()}", lambda: len(self.firings()) >= at_least)
        time.sleep(QUIET)
        return [f"{key}: {title}" for key, title in self.firings()]


def shortcut(key_code, display, **modifiers):
    """A record that posts one keystroke, by the program's own key numbers."""
    return {"action": "keyboard_shortcut", "customShortcut": {"keyCode": key_code, "keyDisplay": display, **modifiers}}


__all__ = ["Application", "KeyEvent", "Missing", "Session", "add_entry", "shortcut", "signal", "until"]
