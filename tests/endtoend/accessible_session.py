"""The program with its Studio as assistive technology finds it: what it shows, and what follows from its controls."""

import json
import pathlib
import re
import shutil
import subprocess
import sys
import time

from session import QUIET, Session, until

CLIENT = pathlib.Path(__file__).with_name("accessibility_client.py")


def python_with_bindings():
    """An interpreter that can speak to the accessibility bus."""
    for python in (sys.executable, shutil.which("python3", path="/usr/bin")):
        check = "import gi; gi.require_version('Atspi', '2.0'); from gi.repository import Atspi"
        if python and subprocess.run([python, "-c", check], capture_output=True).returncode == 0:
            return python
    return None


class AccessibleSession(Session):
    def setUp(self):
        super().setUp()
        python = python_with_bindings()
        if not python or not pathlib.Path("/usr/share/dbus-1/accessibility-services").exists():
            self.skipTest("not installed: at-spi2-core, python3-gi, gir1.2-atspi-2.0")
        self.desktop.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self.client = subprocess.Popen([python, "-B", CLIENT], env=self.desktop.environment, stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.addCleanup(self.end_client)

    def end_client(self):
        self.client.stdin.close()
        self.client.stdout.close()
        self.client.kill()
        self.client.wait()

    def ask(self, *request):
        """Where an object goes while it is looked at, as in a pane that slides out, the look begins anew."""
        def whole_look():
            self.client.stdin.write(json.dumps(request) + "\n")
            self.client.stdin.flush()
            answer = json.loads(self.client.stdout.readline())
            return None if isinstance(answer, dict) else [answer]
        return until(f"an answer to {request}", whole_look)[0]

    def objects(self):
        return self.ask("everything", "Tarvin")

    def object(self, pattern):
        """The first object whose name is like that; None if there is none."""
        return next((thing for thing in self.objects() if re.fullmatch(pattern, thing["name"])), None)

    def until_there(self, pattern):
        return until(f'an object called "{pattern}"', lambda: self.object(pattern))

    def until_state(self, name, state, is_so=True):
        """Of what has exactly that name."""
        def is_there():
            thing = self.object(re.escape(name))
            return thing and (state in thing["states"]) == is_so
        until(f'"{name}" {"" if is_so else "not "}{state}', is_there)

    def press_control(self, name):
        self.assertIs(self.ask("press", "Tarvin", name), True, f'"{name}" can be pressed')

    def open_studio(self):
        process = self.start_program()
        self.desktop.until_in_front("MacBook Air Keyboard Studio")
        self.until_there("Restore Defaults")
        return process

    def stored(self):
        file = self.folder / "profiles_mappings.json"
        return json.loads(file.read_text()) if file.exists() else {}

    def click_control(self, name):
        """With the mouse, once the control has stopped moving."""
        def resting_place():
            before = self.ask("place", "Tarvin", name)
            time.sleep(QUIET)
            return before if before and before == self.ask("place", "Tarvin", name) else None
        left, top, width, height = until(f'"{name}" at rest', resting_place)
        self.desktop.ask("xdotool", "mousemove", "--sync", left + width // 2, top + height // 2, "click", 1)
