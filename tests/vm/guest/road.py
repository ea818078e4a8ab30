"""The whole road in a session: an X server on the kernel's devices, a window, the program and the daemon. A customised key
performs its action, a plain key is typed, and each exactly once; what the action types comes from the daemon's own device.
Without the daemon the X server does both, until the daemon is back."""

import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import time
import unittest

from bench import EV_KEY, NAMES, POSTING, SOCKET, USB, Daemon, Monitor, Node, find_nodes, start_udev, until

HOME = pathlib.Path("/root/road")
XORG = """
Section "Device"
    Identifier "screen"
    Driver "modesetting"
    Option "AccelMethod" "none"
EndSection
"""
# The record that posts the key G, by the program's own key numbers.
F5_TYPES_G = {"action": "keyboard_shortcut", "customShortcut": {"keyCode": 5, "keyDisplay": "G"}}
PATIENCE = 60.0


class Road(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        HOME.mkdir(parents=True)
        cls.processes = []
        start_udev()
        subprocess.run(["udevadm", "trigger", "--action=add", "--subsystem-match=drm"], check=True)
        subprocess.run(["udevadm", "settle", "--timeout=20"], check=False)
        (HOME / "xorg.conf").write_text(XORG)
        runtime = HOME / "run"
        runtime.mkdir(mode=0o700)
        cls.environment = {**os.environ, "DISPLAY": ":5", "HOME": str(HOME), "XDG_RUNTIME_DIR": str(runtime),
                           "XDG_DATA_HOME": str(HOME / "data"), "XDG_CONFIG_HOME": str(HOME / "config"),
                           "TARVIN_TAPD_SOCKET": SOCKET}
        cls.daemon = Daemon()
        cls.start("Xorg", ":5", "vt7", "-noreset", "-nolisten", "tcp", "-ac", "-logfile", HOME / "xorg.log", "-config",
                  HOME / "xorg.conf")
        until("the X server answers", lambda: cls.run_quietly("xset", "q") or cls.run_quietly("xprop", "-root"), PATIENCE)
        bus = HOME / "bus"
        cls.start("dbus-daemon", "--session", "--nofork", f"--address=unix:path={bus}")
        cls.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={bus}"
        until("the bus is there", bus.exists)
        print(f"{time.monotonic():.0f} s: the X server runs", flush=True)
        cls.start("openbox")
        until("the window manager runs", lambda: cls.run_quietly("xprop", "-root", "-f", "_NET_SUPPORTING_WM_CHECK", "32x",
                                                                 "_NET_SUPPORTING_WM_CHECK"), PATIENCE)
        cls.monitor = Monitor(pause=0.08)

    @classmethod
    def tearDownClass(cls):
        for process in reversed(cls.processes):
            process.terminate()
        cls.daemon.end()

    @classmethod
    def start(cls, *command, output=None):
        process = subprocess.Popen([str(word) for word in command], env=cls.environment, stdout=output or subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL)
        cls.processes.append(process)
        return process

    @classmethod
    def run_quietly(cls, *command):
        try:
            return subprocess.run(command, env=cls.environment, capture_output=True, timeout=30).returncode == 0
        except (subprocess.TimeoutExpired, FileNotFoundError):
            return False

    def log(self):
        path = HOME / "data/Tarvin/runtime.log"
        return path.read_text() if path.exists() else ""

    def keys_seen(self):
        """What the window got, as "+g"."""
        text = self.window_file.read_text(errors="replace")
        found = re.findall(r"^(KeyPress|KeyRelease) event.*?keysym 0x[0-9a-f]+, (\w+)\)", text, re.MULTILINE | re.DOTALL)
        return ["-+"[kind == "KeyPress"] + name for kind, name in found]

    def focused_window(self):
        return subprocess.run(["xdotool", "getwindowfocus", "getwindowname"], env=self.environment, capture_output=True,
                              text=True, check=False).stdout.strip()

    def has_focus_for_good(self):
        """The window manager gives a new window the keyboard in its own time, and may take it away once more."""
        for _ in range(3):
            if self.focused_window() != "Event Tester":
                self.run_quietly("xdotool", "search", "--name", "Event Tester", "windowactivate")
                return False
            time.sleep(0.5)
        return True

    def device_count(self):
        """How often the X server has met the device for posted keys."""
        return (HOME / "xorg.log").read_text(errors="replace").count(f"Adding input device {POSTING}")

    def play_and_expect(self, words, seen, posted=""):
        """Presses keys; tells what the window must see, and what of it must come from the device for posted keys."""
        device = Node(find_nodes(POSTING)[0]) if posted else None
        before = len(self.keys_seen())
        self.monitor.play(words)
        try:
            until("all of it", lambda: len(self.keys_seen()) >= before + len(seen.split()), PATIENCE)
        except AssertionError as error:
            self.fail(f"{error}; the window saw {self.keys_seen()}, the keyboard has "
                      f"'{self.focused_window()}'; the log: {self.log()}")
        time.sleep(1)
        self.assertEqual(self.keys_seen()[before:], seen.split())
        if device:
            events = [e for e in device.events() if e[1] == EV_KEY]
            self.assertEqual(["-+~"[value] + NAMES[code] for _, _, code, value in events], posted.split())
            device.close()

    def test_a_customised_key_performs_its_action_and_a_plain_key_is_typed(self):
        data = HOME / "data/Tarvin"
        data.mkdir(parents=True, mode=0o700)
        (data / "profiles_mappings.json").write_text(json.dumps({"global": {"F5": F5_TYPES_G}}))
        program = HOME / "tarvin"
        shutil.copy2(os.environ["TARVIN_PROGRAM"], program)
        self.start(program, "--startup")
        until("the daemon is connected", lambda: "Tap daemon connected" in self.log(), PATIENCE)
        self.assertIn("HID event tap active.", self.log())
        physical = Node(find_nodes(USB)[0])
        until("the keyboard is grabbed", physical.is_grabbed, PATIENCE)
        print(f"{time.monotonic():.0f} s: the keyboard is grabbed", flush=True)

        self.window_file = HOME / "window"
        with self.window_file.open("w") as output:
            self.start("stdbuf", "-oL", "xev", "-event", "keyboard", output=output)
        until("the window is there", lambda: self.run_quietly("xdotool", "search", "--name", "Event Tester"), PATIENCE)
        until("the window has the keyboard", self.has_focus_for_good, PATIENCE)
        print(f"{time.monotonic():.0f} s: the window has the keyboard", flush=True)
        self.play_and_expect("+x -x 0.3 +f5 -f5 0.5 +y -y 0.5 +f5 0.2 +x -x -f5", "+x -x +g -g +y -y +g -g +x -x",
                             posted="+g -g +g -g")
        self.assertEqual(re.findall(r"\[(\S+)\] Intercepted Physical F5", self.log()), ["EventTap", "EventTap"])

        # Without the daemon the keys are taken and posted at the X server.
        self.assertTrue(self.run_quietly("setxkbmap", "de"))
        os.kill(self.daemon.worker, signal.SIGKILL)
        self.daemon.end()
        until("the daemon is missed", lambda: "Tap daemon gone" in self.log(), PATIENCE)
        self.play_and_expect("0.5 +f5 -f5 0.5 +y -y", "+g -g +z -z")
        print(f"{time.monotonic():.0f} s: without the daemon it goes on", flush=True)

        # One that comes while the program runs is found, and its keyboards have the layout of the session.
        devices = self.device_count()
        type(self).daemon = Daemon()
        until("the daemon is found", lambda: self.log().count("Tap daemon connected") == 2, PATIENCE)
        until("the keyboard is grabbed again", physical.is_grabbed, PATIENCE)
        until("the X server has the device", lambda: self.device_count() > devices, PATIENCE)
        time.sleep(1)
        self.play_and_expect("+f5 -f5 0.5 +y -y", "+g -g +z -z", posted="+g -g")
        print(f"{time.monotonic():.0f} s: with a new one as well", flush=True)

        # The way out turns the master switch off, and F5 is F5.
        self.monitor.play("+backspace +esc +ret 0.8 -ret -esc -backspace")
        until("the way out is noticed", lambda: "given back by hand" in self.log(), PATIENCE)
        until("the keyboard is the session's", lambda: not physical.is_grabbed(), PATIENCE)
        before = len(self.keys_seen())
        self.monitor.play("0.5 +f5 -f5")
        until("F5", lambda: self.keys_seen()[before:][-2:] == ["+F5", "-F5"], PATIENCE)
        settings = json.loads((HOME / "config/Tarvin/settings.json").read_text())
        self.assertIs(settings["Tarvin_InterceptionEnabled"], False)


if __name__ == "__main__":
    unittest.main(verbosity=2)
