"""What the tests inside the virtual machine are written with: keyboards to press, the daemon, an application, and a view
of what the system receives."""

import ctypes
import fcntl
import json
import os
import pathlib
import select
import signal
import socket
import struct
import subprocess
import time

SOCKET = "/run/tarvin-tapd.sock"
CLONE, INTERNAL_CLONE, POSTING = "Tarvin keyboard", "Tarvin internal keyboard", "Tarvin posted keys"
USB = "QEMU QEMU USB Keyboard"

EV_SYN, EV_KEY, EV_MSC, EV_LED = 0, 1, 4, 0x11
EVENT = struct.Struct("qqHHi")

# Name, key code of the kernel, HID usage, name in the machine's monitor.
KEYS = {
    "a": (30, 0x04), "b": (48, 0x05), "c": (46, 0x06), "d": (32, 0x07), "e": (18, 0x08), "g": (34, 0x0A), "k": (37, 0x0E),
    "x": (45, 0x1B), "y": (21, 0x1C), "f5": (63, 0x3E), "f6": (64, 0x3F), "f7": (65, 0x40), "esc": (1, 0x29),
    "ret": (28, 0x28), "backspace": (14, 0x2A), "caps_lock": (58, 0x39), "shift": (42, 0xE1), "meta_l": (125, 0xE3),
    "alt": (56, 0xE2),
}
NAMES = {code: name for name, (code, _) in KEYS.items()}
ORDERS = {"f5": 4, "f6": 5, "f7": 6, "caps_lock": 12}


def read_ioctl(number, size):
    return 2 << 30 | size << 16 | 0x45 << 8 | number


EVIOCGRAB, EVIOCGKEY, EVIOCGLED = 0x40044590, read_ioctl(0x18, 96), read_ioctl(0x19, 8)
EVIOCSCLOCKID = 0x400445A0


def until(what, condition, seconds=10.0):
    """Waits until the condition holds; fails in words if it does not.

    A machine that gets no processor sleeps longer than it wanted to. Of such a sleep only the wanted part counts, twice
    over, so that a busy host makes the waiting longer and no test fail."""
    waited = 0.0
    while True:
        asked = time.monotonic()
        if condition():
            return
        slept = time.monotonic()
        waited += slept - asked
        if waited > seconds:
            raise AssertionError(f"after {seconds} s still not: {what}")
        time.sleep(0.01)
        waited += min(time.monotonic() - slept, 0.02)


class Monitor:
    """The monitor of the virtual machine: presses the keys of its USB keyboards, plugs and unplugs them."""

    def __init__(self, pause=0.02):
        """The pause is between two events; where it is too short the emulated keyboard loses keys."""
        self.pause = pause
        self.file = open(os.environ["TARVIN_VM_MONITOR"], "r+b", buffering=0)
        self.buffer = b""
        self.ask("qmp_capabilities")

    def ask(self, command, **arguments):
        self.file.write(json.dumps({"execute": command, "arguments": arguments}).encode() + b"\n")
        while True:
            while b"\n" not in self.buffer:
                self.buffer += self.file.read(4096)
            line, _, self.buffer = self.buffer.partition(b"\n")
            answer = json.loads(line) if line.strip() else {}
            if "error" in answer:
                raise RuntimeError(answer["error"])
            if "return" in answer:
                return answer["return"]

    def key(self, name, down, keyboard=0):
        event = {"type": "key", "data": {"down": down, "key": {"type": "qcode", "data": name}}}
        self.ask("input-send-event", device=f"v{keyboard}", events=[event])
        time.sleep(self.pause)

    def play(self, words, keyboard=0):
        """ "+a -a" presses and releases, "0.5" waits that many seconds."""
        for word in words.split():
            if word[0] in "+-":
                self.key(word[1:], word[0] == "+", keyboard)
            else:
                time.sleep(float(word))

    def tap(self, *names):
        for name in names:
            self.play(f"+{name} -{name}")


class UserKeyboard:
    """A keyboard made by this process through the kernel's HID layer: as fast as wanted, gone when wanted."""

    DESCRIPTOR = bytes.fromhex(
        "05010906a101050719e029e71500250175019508810295017508810195057501050819012905910295017503910195067508150026ff000507"
        "190029ff8100c0")

    made = 0

    def __init__(self):
        UserKeyboard.made += 1
        self.name = f"Held by hand {UserKeyboard.made}"
        self.file = os.open("/dev/uhid", os.O_RDWR | os.O_NONBLOCK | os.O_CLOEXEC)
        request = struct.pack("<128s64s64sHHIIII", self.name.encode(), b"", b"", len(self.DESCRIPTOR), 3, 0x1209, 1, 0, 0)
        os.write(self.file, struct.pack("<I", 11) + request + self.DESCRIPTOR)
        self.down = set()
        until(f"{self.name} is there", lambda: find_nodes(self.name))

    def set(self, name, down):
        (self.down.add if down else self.down.discard)(name)
        usages = [KEYS[each][1] for each in self.down]
        modifiers = sum(1 << (usage - 0xE0) for usage in usages if usage >= 0xE0)
        plain = sorted(usage for usage in usages if usage < 0xE0)[:6]
        report = bytes([modifiers, 0, *plain]).ljust(8, b"\0")
        os.write(self.file, struct.pack("<IH", 12, 8) + report)

    def play(self, words):
        for word in words.split():
            if word[0] in "+-":
                self.set(word[1:], word[0] == "+")
            else:
                time.sleep(float(word))

    def tap(self, *names):
        for name in names:
            self.set(name, True)
            self.set(name, False)

    def unplug(self):
        if self.file < 0:
            return
        os.close(self.file)
        self.file = -1
        self.down.clear()
        until(f"{self.name} has gone", lambda: not find_nodes(self.name))


def find_nodes(name):
    """The event nodes of the devices with this name."""
    found = []
    for path in pathlib.Path("/sys/class/input").glob("event*"):
        try:
            if (path / "device/name").read_text().strip() == name and pathlib.Path(f"/dev/input/{path.name}").exists():
                found.append(f"/dev/input/{path.name}")
        except OSError:
            pass
    return sorted(found, key=lambda node: int(node.removeprefix("/dev/input/event")))


class Node:
    """An event node, read as any program of the session would."""

    def __init__(self, path):
        self.path = path
        self.file = os.open(path, os.O_RDWR | os.O_NONBLOCK | os.O_CLOEXEC)
        fcntl.ioctl(self.file, EVIOCSCLOCKID, struct.pack("i", time.CLOCK_MONOTONIC))
        self.is_gone = False

    def events(self):
        """What has come: (time in microseconds, type, code, value)."""
        result = []
        while not self.is_gone:
            try:
                data = os.read(self.file, EVENT.size * 64)
            except BlockingIOError:
                break
            except OSError:
                self.is_gone = True
                break
            for seconds, micro, kind, code, value in EVENT.iter_unpack(data):
                result.append((seconds * 1_000_000 + micro, kind, code, value))
        return result

    def is_alive(self):
        try:
            return self.keys_down() is not None
        except OSError:
            return False

    def keys_down(self):
        bits = fcntl.ioctl(self.file, EVIOCGKEY, bytes(96))
        return {code for code in range(768) if bits[code // 8] >> (code % 8) & 1}

    def lights(self):
        bits = fcntl.ioctl(self.file, EVIOCGLED, bytes(8))
        return {code for code in range(16) if bits[code // 8] >> (code % 8) & 1}

    def set_light(self, code, on):
        os.write(self.file, EVENT.pack(0, 0, EV_LED, code, on) + EVENT.pack(0, 0, EV_SYN, 0, 0))

    def is_grabbed(self):
        try:
            fcntl.ioctl(self.file, EVIOCGRAB, 1)
            fcntl.ioctl(self.file, EVIOCGRAB, 0)
            return False
        except OSError:
            return True

    def close(self):
        if self.file >= 0:
            os.close(self.file)
        self.file = -1


class Session:
    """What the programs of a session receive: the events of all keyboards, those of the daemon included."""

    def __init__(self):
        self.nodes = {}
        self.open(CLONE)

    def open(self, *names):
        for name in names:
            for path in find_nodes(name):
                if path not in self.nodes or not self.nodes[path].is_alive():
                    self.nodes[path] = Node(path)

    def keys(self, names=None):
        """The key events since the last call, as (time, code, value) in the order of their times."""
        events = []
        for path, node in self.nodes.items():
            if names is None or any(path in find_nodes(name) for name in names):
                events += [(stamp, code, value) for stamp, kind, code, value in node.events() if kind == EV_KEY]
        return sorted(events)

    def words(self, repeats=False):
        return " ".join("-+~"[value] + NAMES.get(code, str(code)) for _, code, value in self.keys()
                        if value != 2 or repeats)

    def close(self):
        for node in self.nodes.values():
            node.close()


class Daemon:
    """The tap daemon under test."""

    def __init__(self, *prefix):
        environment = {name: value for name, value in os.environ.items() if not name.startswith("LISTEN_")}
        self.process = subprocess.Popen([*prefix, os.environ["TARVIN_TAPD_PROGRAM"], "--socket", SOCKET, "--user", "0"],
                                        env=environment)
        until("the daemon listens", lambda: os.path.exists(SOCKET))
        until("the re-emitting device is there", lambda: find_nodes(CLONE))
        self.started = time.monotonic()

    @property
    def worker(self):
        """The process that holds the keyboards; the other one is its guard."""
        children = pathlib.Path(f"/proc/{self.process.pid}/task/{self.process.pid}/children").read_text().split()
        return int(children[0])

    def is_whole(self):
        """Whether both processes are there and well."""
        try:
            return self.process.poll() is None and pathlib.Path(f"/proc/{self.worker}/stat").exists()
        except (IndexError, OSError):
            return False

    def settle(self):
        """Waits until it is willing to grab."""
        time.sleep(max(0.0, self.started + 1.3 - time.monotonic()))

    def stop(self):
        os.kill(self.worker, signal.SIGSTOP)

    def resume(self):
        os.kill(self.worker, signal.SIGCONT)

    def end(self):
        if self.process.poll() is None:
            self.process.terminate()
        self.process.wait()
        if os.path.exists(SOCKET):
            os.unlink(SOCKET)


class Application:
    """An application in a process of its own, which answers pings and tells what it hears."""

    def __init__(self, keys=(), summon=False, path=SOCKET, user=None):
        ours, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        self.pid = os.fork()
        if self.pid == 0:
            # Whatever else this process has open, the devices above all, is not the application's.
            os.closerange(3, theirs.fileno())
            os.closerange(theirs.fileno() + 1, 256)
            try:
                if user is not None:
                    os.setgroups([])
                    os.setresuid(user, user, user)
                self.serve(theirs, path)
            finally:
                os._exit(0)
        theirs.close()
        self.road = ours
        self.heard_words = []
        self.publish(keys, summon)

    def serve(self, road, path):
        daemon = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        daemon.connect(path)
        while True:
            ready, _, _ = select.select([road, daemon], [], [])
            if road in ready:
                message = road.recv(64)
                if not message:
                    return
                daemon.send(message)
            if daemon in ready:
                message = daemon.recv(64)
                if not message:
                    road.send(b"closed")
                    return
                if message[1] == 68:
                    daemon.send(bytes([1, 2, 4, 0]) + message[4:8])
                else:
                    road.send(message)

    def publish(self, keys, summon=False, way_outs=0):
        bits = sum(1 << ORDERS[name] for name in keys)
        self.road.send(bytes([1, 1, 9, 0]) + struct.pack("<IBI", bits, summon, way_outs))

    def post(self, name, down):
        self.road.send(bytes([1, 3, 3, 0]) + struct.pack("<HB", KEYS[name][0], down))

    def heard(self):
        """What the daemon has said since the last call."""
        words = []
        while self.pid and select.select([self.road], [], [], 0)[0]:
            message = self.road.recv(64)
            if not message or message == b"closed":
                words.append("closed")
                break
            kind = message[1]
            if kind == 65:
                words.append("welcome out" if message[8] else "welcome")
            elif kind == 66:
                code, motion, scan = struct.unpack("<HBI", message[5:12])
                words.append("-+~"[motion] + NAMES[code])
                self.scan = scan
            elif kind == 67:
                words.append("-+~"[message[4]] + "summon")
            elif kind == 69:
                words.append("way-out")
        return " ".join(words)

    def kill(self):
        if self.pid:
            os.kill(self.pid, signal.SIGKILL)
            os.waitpid(self.pid, 0)
            self.road.close()
        self.pid = 0

    def stop(self):
        os.kill(self.pid, signal.SIGSTOP)

    def resume(self):
        os.kill(self.pid, signal.SIGCONT)


def steal_descriptor(pid, number):
    """A copy of an open file of another process."""
    libc = ctypes.CDLL(None, use_errno=True)
    pidfd = os.pidfd_open(pid)
    return libc.syscall(438, pidfd, number, 0)


def activate_terminal(number):
    """Brings a virtual terminal to the front, and with it the session that is there."""
    with open("/dev/tty0", "rb+", buffering=0) as terminal:
        fcntl.ioctl(terminal, 0x5606, number)


def start_udev():
    subprocess.run(["/lib/systemd/systemd-udevd", "--daemon"], check=True, stderr=subprocess.DEVNULL)
    subprocess.run(["udevadm", "trigger", "--action=add", "--subsystem-match=input"], check=True)
    subprocess.run(["udevadm", "settle", "--timeout=20"], check=False)
