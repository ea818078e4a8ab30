"""The command line of the built program, with a program running and with none, given good and bad input."""

import json
import os
import subprocess
import sys
import threading
import unittest

from session import Application, Session, signal, until


class Commands(Session):
    def tarvin(self, *words, stdin=None, code=0):
        """Runs one command to its end and gives its output; the exit code must be the expected one."""
        ended = subprocess.run([self.program, *words], env=self.desktop.environment, cwd=self.desktop.home, input=stdin,
                               capture_output=True, text=True, timeout=30, check=False)
        self.assertEqual(ended.returncode, code, f"{words}: {ended.stdout}{ended.stderr}")
        if code:
            self.last_error = ended.stderr
        else:
            self.assertEqual(ended.stderr, "", words)
        return ended.stdout

    def refused(self, *words, stdin=None, code=2):
        """A command that must fail with a message of its own, and change nothing."""
        before = self.stored()
        output = self.tarvin(*words, stdin=stdin, code=code)
        self.assertEqual(output, "", words)
        self.assertTrue(self.last_error.startswith("tarvin"), self.last_error)
        self.assertEqual(self.stored(), before, words)
        return self.last_error

    def stored(self):
        file = self.folder / "profiles_mappings.json"
        return json.loads(file.read_text()) if file.exists() else None

    def listed(self):
        return [(entry["profile"], entry["key"], entry["action"]) for entry in json.loads(self.tarvin("list", "--json"))]

    def every_edit(self):
        """The same calls do the same with a program running and with none."""
        self.assertEqual(self.tarvin("list"), "No key is customised.\n")
        self.assertEqual(self.listed(), [])
        self.assertTrue(self.tarvin("set", "F5", "open_web_url", "customURL=https://debian.org").startswith("F5 in global: "))
        self.tarvin("set", "CapsLock", "copy", "--profile", "safari")
        self.assertEqual(self.listed(), [("global", "F5", "open_web_url"), ("safari", "CapsLock", "copy")])
        entry = json.loads(self.tarvin("list", "--json"))[0]
        self.assertEqual(set(entry), {"profile", "key", "action", "displayTitle", "summaryLines", "custom", "record"})
        self.assertEqual(entry["record"]["customURL"], "https://debian.org")
        self.assertIs(entry["custom"], True)

        self.tarvin("export", "keys.json")
        exported = json.loads((self.desktop.home / "keys.json").read_text())
        self.assertEqual(exported, self.stored())
        self.assertEqual(json.loads(self.tarvin("export", "-")), exported)
        self.tarvin("reset", "F5")
        self.assertEqual(self.listed(), [("safari", "CapsLock", "copy")])
        self.tarvin("reset", "--all")
        self.assertEqual(self.listed(), [])
        self.assertEqual(self.tarvin("import", "keys.json"), "Imported 2 records; 2 are stored now.\n")
        self.assertEqual(self.stored(), exported)
        self.tarvin("import", "-", stdin='{"global":{"F6":"mute"}}')
        self.assertEqual(len(self.listed()), 3)
        self.tarvin("import", "-", "--replace", stdin='{"global":{"F6":"mute"}}')
        self.assertEqual(self.listed(), [("global", "F6", "mute")])

        self.assertEqual(self.tarvin("undo").count("\n"), 2)
        self.tarvin("undo")
        self.assertEqual(self.stored(), exported)
        states = self.tarvin("restore").splitlines()
        self.assertGreaterEqual(len(states), 3)
        self.tarvin("restore", str(len(states)))
        self.tarvin("undo")
        self.assertEqual(self.stored(), exported)

    def every_mistake(self):
        self.tarvin("set", "F5", "mute")
        for words in (["set"], ["set", "F5"], ["set", "F99", "mute"], ["set", "F5", "fly"], ["set", "F5", "mute", "x"],
                      ["set", "F5", "mute", "colour=red"], ["set", "F5", "mute", "--profile", "safary"],
                      ["set", "F5", "mute", "--loud"], ["reset"], ["reset", "F99"], ["reset", "F5", "--all"],
                      ["reset", "--profile", "nowhere"], ["export"], ["export", "a", "b"], ["import"],
                      ["undo", "all"], ["restore", "99"], ["restore", "x"], ["list", "all"], ["list", "--xml"],
                      ["status", "now"], ["actions", "--xml"], ["doctor", "now"], ["watch", "now"], ["run"], ["run", "fly"],
                      ["dance"], ["--dance"]):
            self.refused(*words)
        self.refused("import", "no-such-file", code=1)
        self.refused("export", "no/such/folder/keys.json", code=1)
        self.assertIn("global.F99", self.refused("import", "-", stdin='{"global":{"F5":"copy","F99":"copy"}}'))
        self.assertIn("line 2", self.refused("import", "-", stdin='{\n"global": oops }'))

    def test_without_a_program_they_act_on_the_files(self):
        self.every_edit()

    def test_with_a_program_running_they_act_through_it(self):
        self.start_program("--startup")
        self.every_edit()

    def test_mistakes_are_named_and_lose_nothing_without_a_program(self):
        self.every_mistake()

    def test_mistakes_are_named_and_lose_nothing_with_a_program_running(self):
        self.start_program("--startup")
        self.every_mistake()

    def test_what_is_set_while_the_program_runs_is_in_force_at_once(self):
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(1), ["F5"])
        self.tarvin("set", "F5", "keyboard_shortcut", "shortcut=g")
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(2), ["F5", "g"])
        self.tarvin("undo")
        self.press("+f5 40ms -f5")
        self.assertEqual(application.keys_pressed(3), ["F5", "g", "F5"])

    def test_undo_reaches_over_the_end_of_the_program(self):
        process = self.start_program("--startup")
        self.tarvin("set", "F5", "mute")
        self.tarvin("set", "F5", "copy")
        self.assertEqual(self.desktop.end(process), 0)
        self.assertEqual(self.tarvin("undo"), "global F5: Copy -> Mute audio\n")
        self.start_program("--startup")
        self.tarvin("undo")
        self.assertEqual(self.listed(), [])
        self.tarvin("undo", code=1)

    def test_the_status_tells_whether_tarvin_runs(self):
        status = json.loads(self.tarvin("status", "--json", code=3))
        self.assertIs(status["running"], False)
        process = self.start_program("--startup")
        status = json.loads(self.tarvin("status", "--json"))
        self.assertIs(status["running"], True)
        self.assertIs(status["engineRunning"], True)
        self.assertEqual(status["process"], process.pid)
        self.assertEqual(status["testSafeMode"], "")
        self.assertIn("runs, version", self.tarvin("status"))

    def test_an_action_is_run_by_the_running_program_only(self):
        self.refused("run", "keyboard_shortcut", "shortcut=g", code=3)
        application = Application(self.desktop, "editor")
        self.start_program("--startup")
        application.come_to_front()
        self.tarvin("run", "keyboard_shortcut", "shortcut=g")
        self.assertEqual(application.keys_pressed(1), ["g"])

    def test_presses_are_watched_live(self):
        self.refused("watch", code=3)
        self.map_keys(**{"global": {"F5": {"action": "text_snippet", "textSnippet": "x"}}})
        process = self.start_program("--startup")
        watch = subprocess.Popen([self.program, "watch", "--json"], env=self.desktop.environment, stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE, text=True)
        lines = []
        reader = threading.Thread(target=lambda: lines.extend(watch.stdout))
        reader.start()
        self.tarvin("status")  # one turn of the program later the watch is there too

        def seen():
            return [json.loads(line) for line in lines]
        def fired():
            self.press("+f5 40ms -f5")
            return [line for line in seen() if line["outcome"] == "fired"]
        line = until("a line of the press", fired)[0]
        self.assertEqual((line["key"], line["profile"]), ("F5", "global"))
        self.assertTrue(line["path"].startswith("EventTap"), line)
        self.assertEqual(self.desktop.end(process), 0)
        self.assertEqual(watch.wait(10), 3)
        reader.join()
        self.assertIn("Tarvin has ended", watch.stderr.read())
        watch.stdout.close()
        watch.stderr.close()

    def test_a_watch_that_is_interrupted_leaves_the_program_well(self):
        process = self.start_program("--startup")
        for _ in range(3):
            watch = self.desktop.start(self.program, "watch")
            self.tarvin("status")
            watch.send_signal(signal.SIGINT)
            watch.wait(10)
        self.press("+f5 40ms -f5")
        self.tarvin("status")
        self.assertIsNone(process.poll())

    def test_the_catalogue_and_a_search_are_listed(self):
        actions = json.loads(self.tarvin("actions", "--json"))
        self.assertEqual(len(actions), 70)
        self.assertEqual(set(actions[0]), {"action", "title", "subtitle", "category", "keywords"})
        found = json.loads(self.tarvin("actions", "mute audio", "--json"))
        self.assertEqual((found[0]["action"], found[0]["score"]), ("toggle_mic_mute", 3050))
        self.assertEqual(self.tarvin("actions", "mute", "audio"), self.tarvin("actions", "mute audio"))
        self.assertIn("No action is found", self.tarvin("actions", "qqqq"))

    def test_the_doctor_says_what_works(self):
        text = self.tarvin("doctor")
        self.assertIn("can take keys (XInput 2.", text)
        self.assertIn("Tarvin does not run", text)
        self.start_program("--startup")
        self.assertIn("Tarvin runs and takes keys", self.tarvin("doctor"))
        self.assertIs(json.loads(self.tarvin("doctor", "--json"))["canWork"], True)

    def test_the_doctor_says_what_does_not(self):
        del self.desktop.environment["DISPLAY"]
        text = self.tarvin("doctor", code=1)
        self.assertIn("DISPLAY is not set", text)
        self.desktop.environment["DISPLAY"] = ":4711"
        self.assertIn(":4711 does not answer", self.tarvin("doctor", code=1))

    def test_the_doctor_sees_that_the_whole_keyboard_is_taken(self):
        taker = ("import ctypes, sys\n"
                 "x = ctypes.CDLL('libX11.so.6'); x.XOpenDisplay.restype = ctypes.c_void_p\n"
                 "d = ctypes.c_void_p(x.XOpenDisplay(None)); x.XDefaultRootWindow.restype = ctypes.c_ulong\n"
                 "print(x.XGrabKeyboard(d, ctypes.c_ulong(x.XDefaultRootWindow(d)), 1, 1, 1, 0), flush=True)\n"
                 "sys.stdin.read()\n")
        with subprocess.Popen([sys.executable, "-c", taker], env=self.desktop.environment, stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, text=True) as process:
            self.assertEqual(process.stdout.readline(), "0\n")
            self.assertIn("has taken the whole keyboard", self.tarvin("doctor"))
            process.stdin.close()
        self.assertNotIn("has taken the whole keyboard", self.tarvin("doctor"))

    def test_the_doctor_names_the_word_that_holds_keystrokes_back(self):
        place = self.desktop.home / "latest"
        place.mkdir()
        held_back = place / "tarvin"
        os.link(self.program, held_back)
        process = self.desktop.start(held_back, "--startup")
        until("the program", lambda: "runs, version" in subprocess.run(
            [self.program, "status"], env=self.desktop.environment, capture_output=True, text=True, check=False).stdout)
        self.assertIn(f'the path "{held_back}" contains "test"', self.tarvin("doctor", code=1))
        self.desktop.end(process)

    def test_a_program_that_hangs_is_told_of_and_nothing_is_overwritten(self):
        self.map_keys(**{"global": {"F5": "mute"}})
        process = self.start_program("--startup")
        process.send_signal(signal.SIGSTOP)
        self.addCleanup(process.send_signal, signal.SIGCONT)
        ended = subprocess.Popen([self.program, "set", "F5", "copy"], env=self.desktop.environment)
        with self.assertRaises(subprocess.TimeoutExpired):
            ended.wait(2)
        ended.kill()
        ended.wait()
        self.assertEqual(self.stored(), {"global": {"F5": "mute"}})

    def test_commands_at_once_lose_no_change(self):
        keys = [f"F{number}" for number in range(1, 20)]
        commands = [subprocess.Popen([self.program, "set", key, "copy"], env=self.desktop.environment,
                                     stdout=subprocess.DEVNULL) for key in keys]
        self.assertEqual([command.wait(30) for command in commands], [0] * len(keys))
        self.assertEqual(len(self.listed()), len(keys))

    def test_a_start_and_a_command_at_once_lose_no_change(self):
        for number in range(1, 7):
            command = subprocess.Popen([self.program, "set", f"F{number}", "copy"], env=self.desktop.environment,
                                       stdout=subprocess.DEVNULL)
            process = self.start_program("--startup")
            self.assertEqual(command.wait(30), 0)
            self.assertEqual(len(self.listed()), number)
            self.assertEqual(self.desktop.end(process), 0)
        self.assertEqual(len(self.listed()), 6)

    def test_help_is_there_for_all_and_for_each(self):
        text = self.tarvin("--help")
        self.assertTrue(text.startswith("Usage: tarvin"))
        for command in ("doctor", "list", "actions", "set", "reset", "export", "import", "undo", "restore", "status", "run",
                        "watch", "simulate"):
            self.assertIn(f"\n  {command} ", text)
            self.assertTrue(self.tarvin(command, "--help").startswith(f"Usage: tarvin {command}"))
        self.assertRegex(self.tarvin("--version"), r"^tarvin \d+\.\d+")


if __name__ == "__main__":
    unittest.main()
