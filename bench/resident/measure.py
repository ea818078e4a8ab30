"""What the resident program costs: time from its start to live keys, memory and wake-ups while idle, without the Studio and
with it.

  bench/resident/measure.py TARVIN PRESS      the two programs

Prints figures and judges nothing. Needs the packages of the end-to-end tests.
"""

import json
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from embedded_desktop import Desktop, until  # noqa: E402

STARTS = 9
IDLE_SECONDS = 20
SUMMON = "+leftCommand +leftOption 30ms +k 40ms -k -leftOption -leftCommand"
# A key every 6 ms, so what is measured is at most that much too long, plus the way of the line into the log.
PRESSES = ["+f5", "2ms", "-f5", "4ms"] * 400


def milliseconds_to_live_keys(desktop, program, press):
    """From the start of the process until the log tells of the first press that performed its action."""
    log = desktop.data / "Tarvin" / "runtime.log"
    log.unlink(missing_ok=True)
    pressing = subprocess.Popen([press, *PRESSES], env=desktop.environment)
    time.sleep(0.2)
    started = time.monotonic()
    process = desktop.start(program, "--startup")
    while not (log.exists() and "Intercepted Physical F5" in log.read_text()):
        if time.monotonic() - started > 10:
            raise SystemExit("the key never came to life")
        time.sleep(0.0005)
    elapsed = (time.monotonic() - started) * 1000
    pressing.terminate()
    pressing.wait()
    desktop.ask(press, "-f5")
    return elapsed, process


def proportional_memory(process):
    rollup = pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text()
    return {name: int(re.search(rf"^{name}:\s+(\d+) kB", rollup, re.MULTILINE)[1]) / 1024 for name in ("Pss", "Pss_Anon", "Rss")}


def processor_time(process):
    """In seconds, of all threads, since it began."""
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def wake_ups(process):
    """Of each of its threads, since it began."""
    counts = {}
    for status in pathlib.Path(f"/proc/{process.pid}/task").glob("*/status"):
        counts[status.parent.name] = int(
            re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status.read_text(), re.MULTILINE)[1])
    return counts


def tell_of_rest(process, how):
    time.sleep(3)
    memory = proportional_memory(process)
    print(f"memory {how}: {memory['Pss']:.1f} MB PSS, of it {memory['Pss_Anon']:.1f} MB of its own; "
          f"{memory['Rss']:.1f} MB resident")
    before, used = wake_ups(process), processor_time(process)
    time.sleep(IDLE_SECONDS)
    count = sum(now - before.get(thread, 0) for thread, now in wake_ups(process).items())
    print(f"wake-ups {how}: {count} in {IDLE_SECONDS} s, {(processor_time(process) - used) * 1000:.0f} ms of processor time")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    tarvin, press = (str(pathlib.Path(argument).resolve()) for argument in sys.argv[1:])
    with Desktop() as desktop:
        desktop.bring_up()
        program = desktop.home / "tarvin"
        shutil.copy2(tarvin, program)
        folder = desktop.data / "Tarvin"
        folder.mkdir(mode=0o700)
        (folder / "profiles_mappings.json").write_text(json.dumps({"global": {"F5": "screenshot_area"}}))
        times = []
        for _ in range(STARTS):
            elapsed, process = milliseconds_to_live_keys(desktop, program, press)
            times.append(elapsed)
            desktop.end(process)
        print(f"start to live keys: median {statistics.median(times):.0f} ms, "
              f"{min(times):.0f} to {max(times):.0f} ms in {STARTS} starts")

        process = desktop.start(program, "--startup")
        until("the end of the start", lambda: "Startup launch handled" in (folder / "runtime.log").read_text())
        tell_of_rest(process, "without a window")
        desktop.ask(press, *SUMMON.split())
        desktop.until_in_front("MacBook Air Keyboard Studio")
        tell_of_rest(process, "with the Studio open")


if __name__ == "__main__":
    main()
