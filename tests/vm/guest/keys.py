"""The daemon on a real kernel with USB keyboards, pressed through the machine's monitor."""

import fcntl
import os
import signal
import subprocess
import time
import unittest

from bench import (CLONE, INTERNAL_CLONE, POSTING, USB, Application, Daemon, Monitor, Node, Session, UserKeyboard,
                   find_nodes, start_udev, steal_descriptor, until)

LED_SCROLL = 2
UI_DEV_DESTROY = 0x5502


class Keys(unittest.TestCase):
    """One daemon and one application for all, put right again by whoever breaks them."""

    @classmethod
    def setUpClass(cls):
        start_udev()
        cls.monitor = Monitor()
        cls.daemon = None

    @classmethod
    def tearDownClass(cls):
        cls.daemon.end()

    def setUp(self):
        if not self.daemon or not self.daemon.is_whole():
            if self.daemon:
                self.daemon.end()
            type(self).daemon = Daemon()
        self.daemon.settle()
        self.session = Session()
        self.physical = Node(find_nodes(USB)[0])
        self.start_application(["f5", "caps_lock"], summon=True)
        until("the keyboard is grabbed", self.physical.is_grabbed)

    def start_application(self, keys, summon=False):
        self.application = Application(keys, summon)
        until("the application is welcome", lambda: "welcome" in self.application.heard())
        time.sleep(0.05)

    def tearDown(self):
        self.physical.close()
        self.session.close()
        self.application.kill()

    def expect(self, words, repeats=False, seconds=3.0):
        """What the session receives, waiting for the end of it."""
        got = []

        def has_come():
            more = self.session.words(repeats)
            if more:
                got.append(more)
            return " ".join(got) == words

        try:
            until(words, has_come, seconds)
        except AssertionError:
            self.fail(f"the session should have received '{words}', but received '{' '.join(got)}'")

    def hear(self, words, seconds=3.0):
        got = []
        try:
            until(words, lambda: got.append(self.application.heard()) or " ".join(filter(None, got)) == words, seconds)
        except AssertionError:
            self.fail(f"the application should have heard '{words}', but heard '{' '.join(filter(None, got))}'")

    def test_what_nobody_customised_passes(self):
        self.monitor.play("+a -a +shift +b -b -shift +f6 -f6")
        self.expect("+a -a +shift +b -b -shift +f6 -f6")
        self.assertEqual(self.application.heard(), "")

    def test_a_customised_key_is_taken_and_tells_its_usage(self):
        self.monitor.play("+x -x +f5 -f5 +y -y")
        self.expect("+x -x +y -y")
        self.hear("+f5 -f5")
        self.assertEqual(self.application.scan, 0x7003E)

    def test_a_customised_caps_lock_does_not_lock(self):
        self.monitor.tap("caps_lock", "a")
        self.expect("+a -a")
        self.hear("+caps_lock -caps_lock")

    def test_the_summon_shortcut_is_taken(self):
        self.monitor.play("+alt +meta_l +k -k -meta_l -alt")
        self.hear("+summon")
        self.expect("+alt +meta_l +240 -240 -meta_l -alt")

    def test_a_held_key_repeats_and_a_held_customised_key_only_for_the_application(self):
        self.monitor.play("+a 0.7 -a")
        time.sleep(0.1)
        words = self.session.words(repeats=True).split()
        self.assertEqual((words[0], words[-1], set(words[1:-1])), ("+a", "-a", {"~a"}))
        self.assertGreater(len(words), 6)
        self.monitor.play("+f5 0.7 -f5")
        time.sleep(0.1)
        self.assertEqual(self.session.words(repeats=True), "")
        words = self.application.heard().split()
        self.assertEqual((words[0], words[-1], set(words[1:-1])), ("+f5", "-f5", {"~f5"}))

    def test_a_key_held_on_two_keyboards_is_down_until_both_let_go(self):
        other = Node(find_nodes(USB)[1])
        until("the second keyboard is grabbed", other.is_grabbed)
        self.monitor.play("+a", keyboard=0)
        self.monitor.play("+a +b -b", keyboard=1)
        self.monitor.play("-a", keyboard=0)
        self.expect("+a +b -b")
        self.monitor.play("-a", keyboard=1)
        self.expect("-a")
        other.close()

    def test_a_keyboard_that_is_plugged_in_later_is_grabbed_and_unplugged_with_a_held_key_releases_it(self):
        self.monitor.ask("device_add", driver="usb-kbd", id="late")
        until("the third keyboard is there", lambda: len(find_nodes(USB)) == 3)
        late = Node(find_nodes(USB)[2])
        until("it is grabbed", late.is_grabbed)
        late.close()
        hand, _ = self.plug_in()
        hand.play("+shift +a +f5")
        self.expect("+shift +a")
        self.hear("+f5")
        hand.unplug()
        words = self.wait_for_words(2)
        self.assertEqual(sorted(words), ["-a", "-shift"])
        self.hear("-f5")
        self.monitor.ask("device_del", id="late")
        until("the third keyboard has gone", lambda: len(find_nodes(USB)) == 2)
        self.monitor.tap("b")
        self.expect("+b -b")

    def plug_in(self):
        """A keyboard made by this test, once it is grabbed."""
        hand = UserKeyboard()
        self.addCleanup(hand.unplug)
        node = Node(find_nodes(hand.name)[0])
        self.addCleanup(node.close)
        until(f"{hand.name} is grabbed", node.is_grabbed)
        return hand, node

    def wait_for_words(self, count):
        words = []
        until(f"{count} events", lambda: words.extend(self.session.words().split()) or len(words) >= count)
        return words

    def test_the_lights_follow_the_session(self):
        clone = Node(find_nodes(CLONE)[0])
        for on in (1, 0):
            clone.set_light(LED_SCROLL, on)
            until("the light of the keyboard follows", lambda: (LED_SCROLL in self.physical.lights()) == bool(on))
        clone.close()

    def test_own_devices_and_mice_are_left_alone(self):
        for name in (CLONE, POSTING, INTERNAL_CLONE):
            for path in find_nodes(name):
                node = Node(path)
                self.assertFalse(node.is_grabbed(), name)
                node.close()
        mouse = Node(find_nodes("QEMU QEMU USB Mouse")[0])
        self.assertFalse(mouse.is_grabbed())
        mouse.close()

    def test_the_machines_own_keyboard_has_an_output_of_its_own_bus(self):
        own = Node(find_nodes("AT Translated Set 2 keyboard")[0])
        until("it is grabbed", own.is_grabbed)
        own.close()
        path = find_nodes(INTERNAL_CLONE)[0].replace("/dev/input", "/sys/class/input") + "/device/id/bustype"
        with open(path, encoding="ascii") as file:
            self.assertEqual(file.read().strip(), "0011")

    def test_posted_keys_come_from_a_device_of_their_own(self):
        posted = Node(find_nodes(POSTING)[0])
        for name, down in (("shift", 1), ("c", 1), ("c", 0), ("shift", 0)):
            self.application.post(name, down)
        got = []
        until("four events", lambda: got.extend(e[2:] for e in posted.events() if e[1] == 1) or len(got) == 4)
        self.assertEqual(got, [(42, 1), (46, 1), (46, 0), (42, 0)])
        self.assertEqual(self.session.words(), "")
        posted.close()

    def test_a_key_held_from_before_stays_the_systems_until_it_is_up(self):
        self.application.kill()
        until("the keyboard is given back", lambda: not self.physical.is_grabbed())
        self.session.open(USB)
        self.monitor.play("+a")
        self.expect("+a")
        self.start_application(["f5"])
        time.sleep(0.3)
        self.assertFalse(self.physical.is_grabbed())
        self.monitor.play("-a")
        self.expect("-a")
        until("then it is grabbed", self.physical.is_grabbed)
        self.monitor.tap("b", "f5")
        self.expect("+b -b")

    def test_without_an_application_every_keyboard_is_the_systems(self):
        self.application.kill()
        until("the keyboard is given back", lambda: not self.physical.is_grabbed(), 1.0)
        self.session.open(USB)
        self.monitor.tap("f5")
        self.expect("+f5 -f5")

    def test_an_application_that_is_stopped_loses_its_keys_within_a_second_and_gets_them_back(self):
        self.application.stop()
        self.monitor.play("+a -a")
        time.sleep(1.05)
        self.monitor.tap("f5", "b")
        self.expect("+a -a +f5 -f5 +b -b")
        self.application.resume()
        time.sleep(0.3)
        self.application.heard()
        self.monitor.tap("f5", "c")
        self.expect("+c -c")
        self.hear("+f5 -f5")

    def test_a_new_application_takes_the_place_of_the_old_one(self):
        old = self.application
        self.start_application(["f6"])
        until("the old one is sent away", lambda: "closed" in old.heard())
        until("the keyboard is grabbed for the new one", self.physical.is_grabbed)
        self.monitor.tap("f5", "f6")
        self.expect("+f5 -f5")
        self.hear("+f6 -f6")
        old.kill()

    def test_the_way_out_gives_the_keyboards_back(self):
        self.monitor.play("+backspace +esc +ret 0.7")
        self.hear("way-out")
        until("the keyboard is given back", lambda: not self.physical.is_grabbed(), 1.0)
        self.assertEqual(Node(find_nodes(CLONE)[0]).keys_down(), set())
        self.monitor.play("-backspace -esc -ret")
        self.session.open(USB)
        self.session.words()
        self.monitor.tap("f5")
        self.expect("+f5 -f5")
        self.application.publish(["f5"], way_outs=0)
        time.sleep(0.2)
        self.assertFalse(self.physical.is_grabbed())
        self.application.publish(["f5"], way_outs=1)
        until("it is wanted again", self.physical.is_grabbed)

    def test_a_failed_device_is_made_anew(self):
        worker = self.daemon.worker
        outputs = [name for name in os.listdir(f"/proc/{worker}/fd")
                   if os.readlink(f"/proc/{worker}/fd/{name}") == "/dev/uinput"]
        for name in outputs:
            stolen = steal_descriptor(worker, int(name))
            fcntl.ioctl(stolen, UI_DEV_DESTROY)
            os.close(stolen)
        self.monitor.tap("x")
        until("the device is there again", lambda: find_nodes(CLONE))
        self.session.open(CLONE)
        until("the keyboard is grabbed again", self.physical.is_grabbed)
        self.session.words()
        self.monitor.tap("a", "f5", "b")
        self.expect("+a -a +b -b")
        self.hear("+f5 -f5")

    def test_killed_it_returns_the_keyboards_within_a_second(self):
        self.monitor.play("+a")
        self.expect("+a")
        self.session.open(USB)
        os.kill(self.daemon.worker, signal.SIGKILL)
        until("the keyboard is given back", lambda: not self.physical.is_grabbed(), 1.0)
        self.monitor.play("-a")
        self.monitor.tap("f5", "b")
        time.sleep(0.3)
        self.assertEqual([word for word in self.session.words().split() if word != "-a"], "+f5 -f5 +b -b".split())
        self.daemon.process.wait()

    def test_whose_guard_is_killed_it_returns_the_keyboards_as_well(self):
        self.daemon.process.kill()
        until("the keyboard is given back", lambda: not self.physical.is_grabbed(), 1.0)
        self.daemon.process.wait()

    def test_stopped_it_returns_the_keyboards_and_types_nothing_twice(self):
        self.session.open(USB)
        self.monitor.play("+a")
        self.expect("+a")
        self.daemon.stop()
        self.monitor.play("+x -x")  # before anybody noticed
        until("the keyboard is given back", lambda: not self.physical.is_grabbed(), 1.0)
        self.monitor.play("-a")
        self.monitor.tap("f5", "b", "c")
        time.sleep(0.2)
        self.daemon.resume()
        time.sleep(0.3)
        words = self.session.words().split()
        self.assertEqual([word for word in words if word != "-a"], "+x -x +f5 -f5 +b -b +c -c".split())
        until("the keyboard is grabbed again", self.physical.is_grabbed)
        self.monitor.tap("d", "f5")
        self.expect("+d -d")
        self.assertEqual(Node(find_nodes(CLONE)[0]).keys_down(), set())

    def test_a_short_stop_only_delays_what_is_typed(self):
        hand, node = self.plug_in()
        self.daemon.stop()
        hand.play("+a -a +f5 -f5 +b -b")
        self.daemon.resume()
        self.expect("+a -a +b -b")
        self.hear("+f5 -f5")
        self.assertTrue(node.is_grabbed())
        hand.unplug()

    def test_after_lost_events_no_key_is_stuck_and_none_is_lost(self):
        hand, node = self.plug_in()
        hand.play("+shift +f5")
        self.expect("+shift")
        self.daemon.stop()
        for _ in range(60):
            hand.tap("a", "b")
        hand.play("-shift -f5 +c")
        self.daemon.resume()
        until("the session knows the keys that are down", lambda: self.clone_keys() == {46})
        hand.play("-c")
        until("nothing is held", lambda: self.clone_keys() == set())
        self.hear("+f5 -f5")
        hand.unplug()
        self.session.words()

    def clone_keys(self):
        self.session.words()
        node = Node(find_nodes(CLONE)[0])
        down = node.keys_down()
        node.close()
        return down


if __name__ == "__main__":
    unittest.main(verbosity=2)
