#!/usr/bin/env python3
"""Runs a command in a virtual machine with USB keyboards.

  machine.py [--keyboards N] [--services] [--module NAME]... [--seconds N] -- COMMAND...

A stock Debian kernel boots under QEMU without a disk: the guest's root is this machine's, read-only, under a layer of
memory. COMMAND runs there as root in the present directory, and its exit status is ours; 77 says that there can be no
such machine here, and why. The guest finds in TARVIN_VM_MONITOR the device by which it speaks to the machine's
monitor, so that a test presses its own keys; keyboard N is on display vN.

With --services the system's own service manager is the first process there, with udev and the login manager.

Everything is emulated in software, the processor too. Its clock counts instructions, four nanoseconds each, so a busy
host makes the machine slow and no deadline in it missed; when it has nothing to do, it waits as anybody.
"""

import argparse
import os
import pathlib
import platform
import shlex
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77
TIMED_OUT = 124

MODULES = ("virtio_pci", "9pnet_virtio", "9p", "overlay", "virtio_console", "xhci_pci", "usbhid", "hid_generic", "evdev",
           "uinput", "uhid")

# What runs first in the guest: loads the drivers and goes on with the host's files as the root.
FIRST = r"""#!/bin/busybox sh
box=/bin/busybox
$box mount -t devtmpfs dev /dev; $box mount -t proc proc /proc; $box mount -t sysfs sys /sys
for module in /modules/*; do $box insmod $module || echo "machine: $module failed"; done
$box mount -t 9p -o ro,trans=virtio,version=9p2000.L,msize=512000,cache=loose root /lower
$box mount -t tmpfs tmpfs /layer; $box mkdir /layer/upper /layer/work
$box mount -t overlay -o lowerdir=/lower,upperdir=/layer/upper,workdir=/layer/work overlay /new
for directory in dev proc sys; do $box mount -o move /$directory /new/$directory; done
cd /new; $box mkdir -p run tmp dev/pts dev/shm
$box mount -t tmpfs tmpfs run; $box mount -t devpts devpts dev/pts; $box mount -t tmpfs tmpfs dev/shm
$box cp /run-by-machine run/
exec $box switch_root /new /bin/bash /run/run-by-machine
"""

# And then, as the first process.
SECOND = r"""
ln -s /proc/self/fd /dev/fd; ln -s fd/0 /dev/stdin; ln -s fd/1 /dev/stdout; ln -s fd/2 /dev/stderr
ip link set lo up 2>/dev/null; hostname machine
export HOME=/root TERM=linux LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
export PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
for port in /sys/class/virtio-ports/*; do
    grep -qx monitor $port/name && export TARVIN_VM_MONITOR=/dev/${port##*/}
done
for turn in $(seq 60); do
    [ "$(grep -c 'QEMU USB Keyboard' /proc/bus/input/devices)" -ge KEYBOARDS ] && break; sleep .05
done
stty -onlcr -echo </dev/ttyS0
cat >/run/command <<'END'
cd DIRECTORY
ENVIRONMENT setsid -w -c COMMAND </dev/ttyS0 >/dev/ttyS0 2>&1
echo $? >/dev/ttyS1
/bin/busybox poweroff -f
END
"""

# How the command is run: by the first process itself, or by the system's own service manager in its place.
ALONE = "exec /bin/bash /run/command\n"
SERVICE = r"""
mkdir -p /run/systemd/system
# Nothing is to be cleaned, synchronised or kept of this machine.
for unit in systemd-tmpfiles-setup systemd-tmpfiles-setup-dev systemd-timesyncd systemd-random-seed systemd-update-utmp \
    systemd-sysusers systemd-journal-flush systemd-sysctl systemd-binfmt systemd-pstore systemd-udev-trigger apparmor; do
    ln -s /dev/null /run/systemd/system/$unit.service
done
ln -s /dev/null /run/systemd/system/timers.target; ln -s /dev/null /run/systemd/system/paths.target
cat >/run/systemd/system/machine.service <<END
[Unit]
After=systemd-udevd.service systemd-logind.service
Wants=systemd-udevd.service systemd-logind.service
[Service]
ExecStart=/bin/bash /run/command
PassEnvironment=TARVIN_VM_MONITOR HOME TERM LC_ALL PYTHONDONTWRITEBYTECODE
END
exec /lib/systemd/systemd --unit=machine.service --show-status=no --log-level=warning
"""


# What a service manager needs to let somebody log in.
SERVICE_PARTS = ("lib/systemd/systemd-logind", "lib/*/security/pam_systemd.so", "usr/bin/dbus-daemon",
                 "usr/share/dbus-1/system.conf", "lib/systemd/systemd-udevd")


class NoMachine(Exception):
    """There can be no virtual machine here."""


def find_kernel():
    """The root of a kernel package, and its version."""
    root = pathlib.Path(__file__).resolve().parents[2]
    for place in (os.environ.get("TARVIN_VM_KERNEL"), root / "build/vm/kernel", "/"):
        if not place:
            continue
        place = pathlib.Path(place)
        for modules in sorted(place.glob("lib/modules/*-amd64"), reverse=True):
            image = place / "boot" / f"vmlinuz-{modules.name}"
            if image.exists() and "cloud" not in modules.name and (modules / "kernel/drivers/input").exists():
                return place, modules.name
    raise NoMachine("there is no kernel package; tools/fetch-kernel gets one")


def require_tools(options):
    if platform.machine() != "x86_64":
        raise NoMachine(f"the virtual machine is an x86-64, this one is {platform.machine()}")
    for tool in ("qemu-system-x86_64", "cpio", "depmod", "modprobe"):
        if not shutil.which(tool, path=os.environ["PATH"] + ":/usr/sbin:/sbin"):
            raise NoMachine(f"{tool} is not installed")
    if not pathlib.Path("/bin/busybox").exists():
        raise NoMachine("busybox is not installed")
    for part in SERVICE_PARTS if options.services else ():
        if not any(pathlib.Path("/").glob(part)):
            raise NoMachine(f"/{part} is not installed")


def first_files(kernel, version, options, work):
    """Packs what the guest starts with: busybox, the drivers, and the two scripts."""
    modules = kernel / "lib/modules" / version
    if not (modules / "modules.dep.bin").exists():
        subprocess.run(["/sbin/depmod", "-b", str(kernel), version], check=True)
    tree = work / "first"
    for name in ("bin", "modules", "dev", "proc", "sys", "lower", "layer", "new"):
        (tree / name).mkdir(parents=True)
    shutil.copy("/bin/busybox", tree / "bin/busybox")
    wanted = []
    for module in (*MODULES, *options.module):
        shown = subprocess.run(["/sbin/modprobe", "-d", str(kernel), "-S", version, "--show-depends", module], check=True,
                               capture_output=True, text=True).stdout
        for line in shown.splitlines():
            words = line.split()
            if words[0] == "insmod" and words[1] not in wanted:
                wanted.append(words[1])
    for number, module in enumerate(wanted):
        shutil.copy(module, tree / "modules" / f"{number:03}-{pathlib.Path(module).name}")
    init = tree / "init"
    init.write_text(FIRST)
    init.chmod(0o755)
    (tree / "run-by-machine").write_text(guest_script(options))
    names = "\n".join(path.relative_to(tree).as_posix() for path in sorted(tree.rglob("*")))
    packed = work / "first.cpio"
    with packed.open("wb") as archive:
        subprocess.run(["cpio", "-o", "-H", "newc", "--quiet"], cwd=tree, input=names.encode(), stdout=archive, check=True)
    return packed


def guest_script(options):
    passed = {name: value for name, value in os.environ.items() if name.startswith("TARVIN_")}
    words = {
        "KEYBOARDS": str(options.keyboards),
        "DIRECTORY": shlex.quote(os.getcwd()),
        "ENVIRONMENT": " ".join(f"{name}={shlex.quote(value)}" for name, value in passed.items()),
        "COMMAND": shlex.join(options.command),
    }
    script = SECOND + (SERVICE if options.services else ALONE)
    for word, value in words.items():
        script = script.replace(word, value)
    return script


def boot(options):
    require_tools(options)
    kernel, version = find_kernel()
    with tempfile.TemporaryDirectory(prefix="machine-") as directory:
        work = pathlib.Path(directory)
        packed = first_files(kernel, version, options, work)
        status = work / "status"
        status.write_text("")
        monitor = work / "monitor"
        keyboards = ["-device", "qemu-xhci"]
        for number in range(options.keyboards):
            # The monitor names a keyboard by the display that it belongs to.
            keyboards += ["-device", f"bochs-display,id=v{number}", "-device", f"usb-kbd,id=kbd{number},display=v{number}"]
        command = [
            "qemu-system-x86_64", "-accel", "tcg,thread=single,tb-size=512", "-icount", "shift=2", "-cpu", "max,la57=off", "-m", "2G", "-M", "q35", "-nodefaults", "-no-user-config", "-no-reboot", "-display",
            "none", "-vga", "none", "-kernel", str(kernel / "boot" / f"vmlinuz-{version}"), "-initrd", str(packed),
            "-append", "console=ttyS0 quiet loglevel=3 panic=-1 tsc=reliable no_timer_check mitigations=off",
            "-chardev", "stdio,id=console,signal=off", "-serial", "chardev:console", "-serial", f"file:{status}",
            "-chardev", f"socket,id=m,path={monitor},server=on,wait=off", "-mon", "chardev=m,mode=control",
            "-chardev", f"socket,id=g,path={monitor}", "-device", "virtio-serial-pci",
            "-device", "virtserialport,chardev=g,name=monitor",
            "-virtfs", "local,path=/,mount_tag=root,security_model=none,readonly=on,multidevs=remap",
            *keyboards, *options.qemu,
        ]
        try:
            subprocess.run(command, timeout=options.seconds, stdin=subprocess.DEVNULL, check=False)
        except subprocess.TimeoutExpired:
            print(f"machine: stopped after {options.seconds} s", file=sys.stderr)
            return TIMED_OUT
        digits = "".join(filter(str.isdigit, status.read_text()))
        return int(digits) if digits else TIMED_OUT


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--keyboards", type=int, default=1)
    parser.add_argument("--services", action="store_true")
    parser.add_argument("--module", action="append", default=[])
    parser.add_argument("--qemu", action="append", default=[])
    parser.add_argument("--seconds", type=int, default=280)
    parser.add_argument("command", nargs="+")
    options = parser.parse_args()
    try:
        return boot(options)
    except NoMachine as reason:
        print(f"machine: skipped: {reason}")
        return SKIPPED


if __name__ == "__main__":
    sys.exit(main())
