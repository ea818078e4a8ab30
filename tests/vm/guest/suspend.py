"""The machine is suspended to memory while keys are held on two keyboards, and wakes again."""

import os
import pathlib
import time
import traceback
import unittest

from bench import CLONE, USB, Application, Daemon, Monitor, Node, Session, UserKeyboard, find_nodes, start_udev, until

ALARM = pathlib.Path("/sys/class/rtc/rtc0/wakealarm")


def read_whole(pid):
    """The road to the host's files does not survive the sleep: whatever may still be read of a program is read before."""
    for line in pathlib.Path(f"/proc/{pid}/maps").read_text().splitlines():
        words = line.split(maxsplit=5)
        if len(words) == 6 and words[5].startswith("/") and os.path.isfile(words[5]):
            pathlib.Path(words[5]).read_bytes()


class Suspend(unittest.TestCase):
    def test_nothing_is_held_after_it_and_the_keyboards_are_still_taken(self):
        start_udev()
        daemon = Daemon()
        daemon.settle()
        monitor = Monitor()
        application = Application(["f5"])
        hand = UserKeyboard()
        nodes = [Node(find_nodes(name)[0]) for name in (USB, hand.name)]
        for node in nodes:
            until("the keyboards are grabbed", node.is_grabbed)
        session = Session()
        clone = Node(find_nodes(CLONE)[0])  # who asks for the keys loses events, so it is not the session's
        hand.play("+shift +a +f5")
        monitor.play("+b")
        until("the keys are held", lambda: clone.keys_down() == {42, 30, 48})
        session.words()
        until("the application knows", lambda: "+f5" in application.heard())
        for pid in (os.getpid(), daemon.worker, daemon.process.pid, application.pid):
            read_whole(pid)

        ALARM.write_text("0")
        ALARM.write_text("+3")
        before = time.time()
        pathlib.Path("/sys/power/state").write_text("mem")
        print(f"slept {time.time() - before:.1f} s", flush=True)

        until("nothing is held", lambda: clone.keys_down() == set())
        self.assertEqual(sorted(session.words().split()), ["-a", "-b", "-shift"])
        until("the application knows that its key is up", lambda: "-f5" in application.heard())
        for node in nodes:
            self.assertTrue(node.is_grabbed())
        # The hand lets go now; nobody has to hear of that.
        hand.play("-f5 -a -shift")
        hand.play("+x -x +f5 -f5 +y -y")
        words = []
        until("what is typed", lambda: words.extend(session.words().split()) or len(words) >= 4)
        self.assertEqual(words, "+x -x +y -y".split())
        heard = []
        until("the key", lambda: heard.extend(application.heard().split()) or "-f5" in heard)
        self.assertEqual(heard, ["+f5", "-f5"])


def end_the_machine(failed):
    pathlib.Path("/dev/ttyS1").write_text(f"{int(failed)}\n")
    time.sleep(0.2)
    pathlib.Path("/proc/sysrq-trigger").write_text("b")


if __name__ == "__main__":
    FAILED = True
    try:
        # Not by the usual runner: what it says of a failure it would look for in the sources.
        Suspend("test_nothing_is_held_after_it_and_the_keyboards_are_still_taken").debug()
        FAILED = False
        print("OK", flush=True)
    except BaseException as error:
        lines = [frame.f_lineno for frame, _ in traceback.walk_tb(error.__traceback__)]
        print(f"FAILED: {error!r}, lines {lines}", flush=True)
    end_the_machine(FAILED)
