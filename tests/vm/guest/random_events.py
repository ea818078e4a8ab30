"""Ten thousand random key events on two keyboards, the same for each seed: first without faults, then with a frozen
application on a busy machine, then with everything that can go wrong."""

import os
import random
import subprocess
import sys
import time
import unittest

from bench import CLONE, NAMES, Application, Daemon, Node, Session, UserKeyboard, find_nodes, start_udev, until

SEED = int(os.environ.get("TARVIN_VM_SEED", "20240607"))
KEYS_OF_KEYBOARD = (("a", "b", "c", "shift", "f5"), ("d", "e", "x", "y", "f6"))
TAKEN = ("f5", "f6")
QUIET_EVENTS, FROZEN_EVENTS, FAULTY_EVENTS = 3000, 1500, 5500
EVENTS_BETWEEN_FAULTS = 120


class RandomEvents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        start_udev()
        cls.daemon = Daemon()
        cls.daemon.settle()

    @classmethod
    def tearDownClass(cls):
        cls.daemon.end()

    def setUp(self):
        self.random = random.Random(SEED)
        self.session = Session()
        self.keyboards = [None, None]
        self.application = Application(TAKEN)
        for number in (0, 1):
            self.plug_in(number)
        self.received = []
        self.heard = []
        self.played = []

    def tearDown(self):
        self.application.kill()
        for keyboard in self.keyboards:
            keyboard.unplug()
        self.session.close()

    def plug_in(self, number):
        keyboard = UserKeyboard()
        self.keyboards[number] = keyboard
        self.session.open(keyboard.name)
        self.wait_until_grabbed(number)

    def wait_until_grabbed(self, number):
        node = Node(find_nodes(self.keyboards[number].name)[0])
        until(f"keyboard {number} is grabbed", node.is_grabbed)
        node.close()

    def collect(self):
        self.received += [(NAMES[code], value) for _, code, value in self.session.keys() if value != 2]
        self.heard += [word for word in self.application.heard().split() if word[0] in "+-" and word[1:] in TAKEN]

    def play(self, count, pause, waits=True):
        """Random events. The kernel keeps only some twenty for a reader that gets no processor, so whoever plays waits
        for what is under way."""
        for number in range(count):
            keyboard = self.random.randrange(2)
            name = self.random.choice(KEYS_OF_KEYBOARD[keyboard])
            down = name not in self.keyboards[keyboard].down
            self.keyboards[keyboard].set(name, down)
            self.played.append((name, int(down)))
            time.sleep(pause)
            if number % 4 == 0:
                self.collect()
                if waits:
                    self.wait_for_what_is_under_way()

    def wait_for_what_is_under_way(self):
        most = 4
        plain = sum(name not in TAKEN for name, _ in self.played)
        for _ in range(2000):
            if plain - sum(name not in TAKEN for name, _ in self.received) <= most:
                return
            time.sleep(0.005)
            self.collect()

    def release_everything(self):
        for keyboard in self.keyboards:
            for name in sorted(keyboard.down):
                keyboard.set(name, False)
                self.played.append((name, 0))
                self.collect()
                self.wait_for_what_is_under_way()
        until("everything has come", lambda: self.collect() or self.is_nothing_held(), 20)

    def is_nothing_held(self):
        return all(not node.keys_down() for node in self.session.nodes.values() if node.is_alive())

    def expect_unchanged(self):
        """Of the customised keys nothing is said: those of a frozen application come back to the system."""
        expected = [event for event in self.played if event[0] not in TAKEN]

        def has_come():
            self.collect()
            return sum(name not in TAKEN for name, _ in self.received) >= len(expected)

        until("the last event", has_come, 20)
        # Each keyboard's events are in order; between two keyboards the order of reading decides.
        for keys in KEYS_OF_KEYBOARD:
            plain = set(keys) - set(TAKEN)
            self.assertEqual([event for event in self.received if event[0] in plain],
                             [event for event in expected if event[0] in plain])

    def test_without_faults_the_stream_is_unchanged_and_the_rest_taken(self):
        self.play(QUIET_EVENTS, 0.001)
        self.release_everything()
        self.expect_unchanged()
        expected = ["-+"[value] + name for name, value in self.played if name in TAKEN]
        until("the last word", lambda: self.collect() or len(self.heard) >= len(expected), 20)
        for name in TAKEN:
            self.assertEqual([word for word in self.heard if word[1:] == name],
                             [word for word in expected if word[1:] == name])

    def test_with_a_frozen_application_on_a_busy_machine_the_stream_is_unchanged(self):
        self.application.stop()
        busy = [subprocess.Popen(["/bin/sh", "-c", "while :; do :; done"]) for _ in range(3)]
        try:
            self.play(FROZEN_EVENTS, 0.001)
            self.release_everything()
            self.expect_unchanged()
        finally:
            for process in busy:
                process.kill()
                process.wait()
            self.application.resume()

    def test_with_faults_nothing_is_held_at_the_end_and_nothing_lost_or_doubled(self):
        faults = (self.replace_the_application, self.freeze_the_application, self.stop_the_daemon_for_a_moment,
                  self.stop_the_daemon, self.replace_a_keyboard, self.publish_something_else)
        happened = []
        for turn in range(FAULTY_EVENTS // EVENTS_BETWEEN_FAULTS):
            self.play(EVENTS_BETWEEN_FAULTS, 0.002)
            fault = faults[turn] if turn < len(faults) else self.random.choice(faults)
            happened.append(fault.__name__)
            fault()
        self.release_everything()
        self.application.publish(TAKEN)
        for keyboard in (0, 1):
            self.wait_until_grabbed(keyboard)
        time.sleep(0.2)
        self.collect()
        print(f"{len(self.played)} events, {len(happened)} faults", file=sys.stderr)
        for name in (name for keys in KEYS_OF_KEYBOARD for name in keys):
            played = self.played.count((name, 1))
            received = self.received.count((name, 1))
            if name in TAKEN:
                self.assertLessEqual(received + self.heard.count(f"+{name}"), played, f"{name} was doubled")
            else:
                self.assertEqual(received, played, f"presses of {name}, seed {SEED}, after {happened}")
        self.received.clear()
        self.heard.clear()
        self.keyboards[0].play("+a -a +f5 -f5")
        until("it works as before", lambda: self.collect() or (self.received == [("a", 1), ("a", 0)]
                                                               and self.heard == ["+f5", "-f5"]))

    def replace_the_application(self):
        self.collect()
        self.application.kill()
        self.play(10, 0.002)
        self.application = Application(TAKEN)

    def freeze_the_application(self):
        self.application.stop()
        self.play(20, 0.06)
        self.application.resume()

    def stop_the_daemon_for_a_moment(self):
        self.daemon.stop()
        self.play(3, 0.01, waits=False)
        self.daemon.resume()

    def stop_the_daemon(self):
        self.daemon.stop()
        self.play(20, 0.04, waits=False)
        self.daemon.resume()

    def replace_a_keyboard(self):
        # A keyboard is taken only for somebody who wants something of it.
        self.application.publish(TAKEN)
        number = self.random.randrange(2)
        for name in sorted(self.keyboards[number].down):
            self.played.append((name, 0))
        self.collect()
        self.keyboards[number].unplug()
        self.collect()
        self.plug_in(number)

    def publish_something_else(self):
        self.application.publish(self.random.choice((("f5",), ("f6",), TAKEN, ())))


if __name__ == "__main__":
    unittest.main(verbosity=2)
