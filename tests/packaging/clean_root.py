#!/usr/bin/env python3
"""Makes the Debian package, looks at it, installs it into a fresh system in a folder, starts it there, and removes it.

  clean_root.py BUILD_FOLDER

Ends with 77, which counts as skipped, and a line that says why, where the machine can't do that: it takes root's rights,
debootstrap, and a package server.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
SUITE = "bookworm"


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)


def say(text):
    print(f"--- {text}", flush=True)


def run(*command, **options):
    return subprocess.run([str(word) for word in command], check=True, **options)


def output(*command, **options):
    return run(*command, capture_output=True, text=True, **options).stdout


def check(what, holds):
    print(("ok    " if holds else "FAILED") + f"  {what}", flush=True)
    if not holds:
        sys.exit(1)


def mirror():
    """Where this machine's own packages come from."""
    for file in [pathlib.Path("/etc/apt/sources.list"), *pathlib.Path("/etc/apt/sources.list.d").glob("*")]:
        text = file.read_text(errors="replace") if file.is_file() else ""
        # The main archive; others have another name at the end.
        found = re.search(r"^(?:URIs:|deb(?: \[.*?\])?)\s+(https?://\S+/debian)/?(?:\s|$)", text, re.MULTILINE)
        if found:
            return found[1]
    return None


class CleanRoot:
    """A system of the smallest kind in a folder."""

    def __init__(self, place):
        self.root = place / "root"

    def make(self, server):
        say(f"a fresh {SUITE} from {server}")
        made = subprocess.run(["debootstrap", "--variant=minbase", SUITE, self.root, server], capture_output=True, text=True,
                              check=False)
        if made.returncode:
            skip("no fresh system can be made here: " + (made.stdout + made.stderr).strip().splitlines()[-1])
        # The package server may be reached by settings of this machine.
        for file in pathlib.Path("/etc/apt/apt.conf.d").glob("*"):
            if re.search(r"Proxy|Verify", file.read_text(errors="replace"), re.IGNORECASE):
                shutil.copy(file, self.root / "etc/apt/apt.conf.d")
        shutil.copy("/etc/resolv.conf", self.root / "etc/resolv.conf")
        # Nothing may start by itself while packages are installed.
        (self.root / "usr/sbin/policy-rc.d").write_text("#!/bin/sh\nexit 101\n")
        (self.root / "usr/sbin/policy-rc.d").chmod(0o755)

    def command(self, *words, **variables):
        environment = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/home/user", "LC_ALL": "C.UTF-8",
                       "DEBIAN_FRONTEND": "noninteractive", "XDG_RUNTIME_DIR": "/home/user/run", **variables}
        return ["chroot", str(self.root), "env", "-i", *(f"{name}={value}" for name, value in environment.items()), *words]

    def ask(self, *words, **variables):
        return subprocess.run(self.command(*words, **variables), capture_output=True, text=True, check=False)

    def files(self):
        """Everything there is but what packages and programs keep as their own state."""
        passing = ("proc", "sys", "dev", "tmp", "run", "home", "var", "root", "etc")
        return {str(path.relative_to(self.root)) for path in self.root.rglob("*")
                if path.relative_to(self.root).parts[0] not in passing}


def make_package(build, place):
    say("the package")
    run("cmake", "--build", build, "--target", "tarvin_package_files", stdout=subprocess.DEVNULL)
    run("cpack", "-G", "DEB", "-B", place / "package", cwd=build, stdout=subprocess.DEVNULL)
    return next((place / "package").glob("*.deb"))


def look_at(package):
    contents = output("dpkg-deb", "-c", package)
    for file in ("usr/bin/tarvin", "usr/share/applications/com.velmor.Tarvin.desktop", "usr/share/man/man1/tarvin.1.gz",
                 "usr/share/bash-completion/completions/tarvin", "usr/share/metainfo/com.velmor.Tarvin.metainfo.xml",
                 "usr/share/icons/hicolor/48x48/apps/com.velmor.Tarvin.png", "usr/share/doc/tarvin/copyright",
                 "usr/libexec/tarvin/tarvin-tapd", "usr/lib/systemd/system/tarvin-tapd.service",
                 "usr/lib/systemd/system/tarvin-tapd.socket", "usr/lib/udev/rules.d/60-tarvin-tapd.rules",
                 "usr/lib/sysusers.d/tarvin-tapd.conf"):
        check(f"the package holds {file}", f" ./{file}\n" in contents)
    if shutil.which("lintian"):
        lint = subprocess.run(["lintian", "--allow-root", "--fail-on", "error", package], capture_output=True, text=True,
                              check=False)
        print(lint.stdout, end="")
        check("lintian has no error", lint.returncode == 0)


class Display:
    """A virtual X server that the root reaches over the network of this machine, without any shared folder."""

    def __enter__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-listen", "tcp", "-ac", "-screen", "0", "800x600x24"],
                                       pass_fds=(write,), stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            self.name = f"127.0.0.1:{answer.readline().strip()}"
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait(10)


def try_out(system):
    for folder in ("home/user/run",):
        (system.root / folder).mkdir(parents=True, mode=0o700)
    check("the version is told", system.ask("tarvin", "--version").stdout.startswith("tarvin "))
    check("the completion is good shell", system.ask(
        "bash", "-n", "/usr/share/bash-completion/completions/tarvin").returncode == 0)
    check("without a display the start says so", "display" in system.ask("tarvin").stderr)
    check("a key is set without a program", system.ask("tarvin", "set", "F5", "mute").returncode == 0)
    with Display() as display:
        program = subprocess.Popen(system.command("tarvin", "--startup", DISPLAY=display.name), stdout=subprocess.DEVNULL)
        try:
            end = time.monotonic() + 30
            while (status := system.ask("tarvin", "status")).returncode and time.monotonic() < end:
                time.sleep(0.2)
            print(status.stdout, end="")
            check("the program starts", status.returncode == 0)
            check("it takes keys", "Keys are taken" in status.stdout and re.search(r"Keys are taken\s+yes", status.stdout))
            check("it knows the mapping", re.search(r"Custom keys now\s+F5", status.stdout))
            doctor = system.ask("tarvin", "doctor", DISPLAY=display.name)
            print(doctor.stdout, end="")
            check("the doctor is content", doctor.returncode == 0)
        finally:
            program.terminate()
            check("the program ends well", program.wait(15) == 0)


def main():
    build = pathlib.Path(sys.argv[1])
    if os.geteuid() != 0:
        skip("only root can make a fresh system")
    for tool in ("debootstrap", "cpack", "dpkg-deb", "Xvfb", "chroot"):
        if not shutil.which(tool):
            skip(f"not installed: {tool}")
    server = mirror()
    if not server:
        skip("this machine names no package server")
    # The path must not hold the word by which the program holds its keystrokes back.
    place = pathlib.Path(tempfile.mkdtemp(prefix="tarvin-root-", dir="/var/tmp"))
    try:
        package = make_package(build, place)
        look_at(package)
        system = CleanRoot(place)
        system.make(server)
        before = None
        say("its dependencies")
        updated = system.ask("apt-get", "update")
        if updated.returncode:
            skip("no package server can be reached from the fresh system: " + updated.stderr.strip()[-200:])
        shutil.copy(package, system.root / "tmp/tarvin.deb")
        depends = [re.split(r"[ (|]", name.strip())[0] for name in output("dpkg-deb", "-f", package, "Depends").split(",")]
        installed = system.ask("apt-get", "install", "-y", "--no-install-recommends", *depends)
        check("the dependencies can be had", installed.returncode == 0)
        before = system.files()
        say("installed")
        installed = system.ask("apt-get", "install", "-y", "--no-install-recommends", "/tmp/tarvin.deb")
        if installed.returncode:
            print(installed.stdout, installed.stderr)
        check("the package can be installed", installed.returncode == 0)
        try_out(system)
        say("removed")
        check("the package can be removed", system.ask("apt-get", "purge", "-y", "tarvin").returncode == 0)
        check(f"nothing is left: {sorted(system.files() - before)}", not system.files() - before)
        check("what the user made is left", (system.root / "home/user/.local/share/Tarvin/profiles_mappings.json").exists())
    finally:
        shutil.rmtree(place, ignore_errors=True)


main()
