"""A desktop of its own for demonstrations, end-to-end tests and measurements: a virtual X server, a window manager, a
session bus and a private home, all gone when it is left."""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 30  # seconds until something that should happen counts as missing


class Missing(Exception):
    """Something that should have happened did not."""


def until(what, condition, patience=PATIENCE):
    """Waits until a condition holds and gives its value; time stands for nothing else here."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    raise Missing(what)


class Desktop:
    """The embedded desktop. Leaving it ends every process that was started in it."""

    def __init__(self):
        # A path with the word in it would make Tarvin hold its keystrokes back.
        place = next(p for p in (tempfile.gettempdir(), "/tmp", "/var/tmp") if "test" not in p)
        name = tempfile.mkdtemp(prefix="tarvin-", dir=place)
        while "test" in name:
            os.rmdir(name)
            name = tempfile.mkdtemp(prefix="tarvin-", dir=place)
        self.home = pathlib.Path(name)
        self.data = self.home / "share"
        self.config = self.home / "config"
        self.environment = {"PATH": os.environ["PATH"], "HOME": name, "LC_ALL": "C.UTF-8", "TMPDIR": name}
        for variable, folder in (("XDG_DATA_HOME", "share"), ("XDG_CONFIG_HOME", "config"), ("XDG_CACHE_HOME", "cache"),
                                 ("XDG_STATE_HOME", "state"), ("XDG_RUNTIME_DIR", "runtime")):
            (self.home / folder).mkdir(mode=0o700)
            self.environment[variable] = str(self.home / folder)
        # Sanitizer builds take their options from here; without them they are not there.
        self.environment.update({name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")})
        self.processes = []

    def __enter__(self):
        return self

    def bring_up(self):
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", "1280x860x24", "-nolisten", "tcp", "-noreset",
                   pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as answer:
            number = answer.readline().strip()
        if not number:
            raise Missing("a virtual X server")
        self.environment["DISPLAY"] = f":{number}"
        bus = self.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1", stdout=subprocess.PIPE)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        # A manager that has announced itself may still overlook a window that comes right then. It runs this command
        # when it has taken over all windows.
        manages = self.home / "manages"
        self.start("openbox", "--startup", f"touch {manages}")
        until("a window manager", manages.exists)

    def __exit__(self, *_):
        for process in reversed(self.processes):
            self.end(process)
        shutil.rmtree(self.home, ignore_errors=True)

    def start(self, *command, stdout=subprocess.DEVNULL, pass_fds=()):
        with open(self.home / "stderr.log", "ab") as notes:
            process = subprocess.Popen([str(word) for word in command], env=self.environment, cwd=self.home, pass_fds=pass_fds,
                                       stdin=subprocess.DEVNULL, stdout=stdout, stderr=notes, start_new_session=True)
        self.processes.append(process)
        return process

    def end(self, process):
        """Asks a process and its children to end, then makes them."""
        for how, patience in ((signal.SIGTERM, 5), (signal.SIGKILL, 5)):
            if process.poll() is None:
                os.killpg(process.pid, how)
                try:
                    process.wait(patience)
                except subprocess.TimeoutExpired:
                    continue
        if process in self.processes:
            self.processes.remove(process)
        return process.returncode

    def ask(self, *command):
        return subprocess.run([str(word) for word in command], env=self.environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout

    def active_window(self):
        return re.search(rb"window id # (0x[0-9a-f]+)", self.ask("xprop", "-root", "_NET_ACTIVE_WINDOW") + b" window id # 0x0")[1]

    def until_in_front(self, name):
        until(f"{name} in front", lambda: name.encode() in self.ask(
            "xprop", "-id", self.active_window().decode(), "WM_CLASS", "WM_NAME"))

    def picture(self, file):
        subprocess.run(["import", "-silent", "-window", "root", str(file)], env=self.environment, check=True)
