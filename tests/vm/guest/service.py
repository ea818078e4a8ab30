"""The daemon as the package installs it, under the system's own service manager: started by whoever connects, with no right
but to its devices, for the user whose session has the seat."""

import os
import pathlib
import pwd
import shutil
import subprocess
import sys
import time
import unittest

from bench import CLONE, USB, Application, Monitor, Node, Session, activate_terminal, find_nodes, until

PACKAGING = pathlib.Path(__file__).resolve().parents[3] / "packaging"
INSTALLED = {
    "systemd/tarvin-tapd.service": "/lib/systemd/system",
    "systemd/tarvin-tapd.socket": "/lib/systemd/system",
    "udev/60-tarvin-tapd.rules": "/lib/udev/rules.d",
    "sysusers/tarvin-tapd.conf": "/usr/lib/sysusers.d",
}
SOCKET = "/run/tarvin/tapd.sock"
PATIENCE = 30.0
# Nobody needs what usually starts with a user's first session.
USER_MANAGER = "[Service]\nType=oneshot\nRemainAfterExit=yes\nExecStart=/bin/true\n"


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


class Service(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        pathlib.Path("/run/systemd/system/user@.service").write_text(USER_MANAGER)
        for name in ("anna", "bert"):
            run("useradd", "--no-create-home", "--home-dir", "/", name)
        cls.anna, cls.bert = (pwd.getpwnam(name).pw_uid for name in ("anna", "bert"))
        run("udevadm", "trigger", "--action=add", "--subsystem-match=input", "--subsystem-match=tty")
        run("/bin/sh", str(PACKAGING / "debian/preinst"), "install")
        for name, folder in INSTALLED.items():
            shutil.copy(PACKAGING / name, folder)
        os.makedirs("/usr/libexec/tarvin", exist_ok=True)
        shutil.copy(os.environ["TARVIN_TAPD_PROGRAM"], "/usr/libexec/tarvin/tarvin-tapd")
        run("/bin/sh", str(PACKAGING / "debian/postinst"), "configure")
        run("udevadm", "settle", "--timeout=60")
        cls.log_in("anna", 1)
        cls.monitor = Monitor()
        print(f"{time.monotonic():.0f} s: the daemon is installed", flush=True)

    @classmethod
    def log_in(cls, name, terminal):
        """A session as the login program makes it."""
        run("systemd-run", f"--unit=session-of-{name}", f"--uid={name}", "--property=PAMName=login",
            f"--property=TTYPath=/dev/tty{terminal}", "--property=StandardInput=tty", "sleep", "infinity")
        until(f"{name} has a session", lambda: name in run("loginctl", "--no-legend", "list-sessions"), PATIENCE)
        until("and it has a terminal", lambda: f"tty{terminal}" in run("loginctl", "--no-legend", "list-sessions"), PATIENCE)

    def setUp(self):
        activate_terminal(1)
        until("the session of the first user has the seat", lambda: self.active_user() == self.anna, PATIENCE)
        self.application = None
        self.physical = Node(find_nodes(USB)[0])
        self.addCleanup(self.physical.close)

    def tearDown(self):
        if self.application:
            self.application.kill()

    @staticmethod
    def active_user():
        state = pathlib.Path("/run/systemd/seats/seat0").read_text()
        return int(next((line.split("=")[1] for line in state.splitlines() if line.startswith("ACTIVE_UID=")), -1))

    @staticmethod
    def is_running():
        return subprocess.run(["systemctl", "is-active", "--quiet", "tarvin-tapd.service"], check=False).returncode == 0

    @staticmethod
    def guard():
        return int(run("systemctl", "show", "--property=MainPID", "--value", "tarvin-tapd.service"))

    @classmethod
    def worker(cls):
        guard = cls.guard()
        return int(pathlib.Path(f"/proc/{guard}/task/{guard}/children").read_text().split()[0])

    def start_application(self, user):
        self.application = Application(["f5"], path=SOCKET, user=user)
        return self.application

    def expect_service_to(self, user):
        """Whether this user's application gets its key, and the session the others."""
        application = self.start_application(user)
        until("the keyboard is grabbed", self.physical.is_grabbed, PATIENCE)
        session = Session()
        self.addCleanup(session.close)
        self.monitor.play("+x -x +f5 -f5 +y -y")
        words = []
        until("what the others typed", lambda: words.extend(session.words().split()) or len(words) >= 4, PATIENCE)
        self.assertEqual(words, "+x -x +y -y".split())
        heard = []
        until("the key", lambda: heard.extend(application.heard().split()) or "-f5" in heard, PATIENCE)
        self.assertEqual([word for word in heard if word != "welcome"], ["+f5", "-f5"])

    def expect_refusal_of(self, user):
        application = self.start_application(user)
        until("it is sent away", lambda: application.heard() == "closed", PATIENCE)
        application.kill()
        self.assertFalse(self.physical.is_grabbed())

    def test_1_it_starts_with_the_first_application_and_has_no_right_but_to_its_devices(self):
        self.assertFalse(self.is_running())
        self.expect_service_to(self.anna)
        self.assertTrue(self.is_running())
        allowed = pwd.getpwnam("tarvin-tapd")
        for process in (self.guard(), self.worker()):
            lines = pathlib.Path(f"/proc/{process}/status").read_text().splitlines()
            status = {name: value.split() for name, _, value in (line.partition(":") for line in lines)}
            self.assertEqual(set(status["Uid"]), {str(allowed.pw_uid)})
            groups = {str(allowed.pw_gid), run("getent", "group", "input").split(":")[2]}
            self.assertEqual(set(status["Gid"] + status["Groups"]), groups)
            for name in ("CapInh", "CapPrm", "CapEff", "CapBnd", "CapAmb"):
                self.assertEqual(int(status[name][0], 16), 0, name)
            self.assertEqual((status["NoNewPrivs"], status["Seccomp"]), (["1"], ["2"]))
        print(run("systemd-analyze", "security", "--no-pager", "tarvin-tapd.service").splitlines()[-1], file=sys.stderr)

    def test_2_who_does_not_have_the_seat_is_refused(self):
        self.expect_refusal_of(self.bert)
        self.expect_refusal_of(0)
        self.expect_service_to(self.anna)

    def test_3_when_the_seat_changes_hands_the_keys_are_the_systems_at_once(self):
        self.log_in("bert", 2)
        self.expect_service_to(self.anna)
        activate_terminal(2)
        until("the application is sent away", lambda: "closed" in self.application.heard(), PATIENCE)
        until("the keyboard is given back", lambda: not self.physical.is_grabbed(), PATIENCE)
        self.application.kill()
        self.expect_refusal_of(self.anna)
        self.expect_service_to(self.bert)

    def test_4_killed_it_is_there_again_for_whoever_asks(self):
        self.expect_service_to(self.anna)
        before = self.worker()
        os.kill(before, 9)
        until("the keyboard is given back", lambda: not self.physical.is_grabbed())
        self.application.kill()
        until("it has been started again", lambda: self.is_running() and self.worker() != before, PATIENCE)
        until("and has its device", lambda: find_nodes(CLONE), PATIENCE)
        self.expect_service_to(self.anna)


if __name__ == "__main__":
    unittest.main(verbosity=2)
