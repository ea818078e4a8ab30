"""What the tool panels cost: time from the press of their key until they are on the screen, and memory.

  bench/tools/measure_panels.py TARVIN PANEL_LATENCY      the two programs

Prints figures and judges nothing. Needs the packages of the end-to-end tests. The time ends when a pixel in the middle
of the panel has changed, with no compositor at work; it includes the way of the key through the X server, the wait for
the window manager and the painting. The history is full: 40 texts of 100,000 characters.
"""

import json
import pathlib
import re
import shutil
import statistics
import sys
import time
import uuid

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from embedded_desktop import Desktop, until  # noqa: E402

OPENINGS = 9
# By the codes of <linux/input-event-codes.h>: the key, the action, and a place within the panel that is never empty.
PANELS = (("clipboard history", 63, "clipboard_history", (640, 430)),
          ("quick scratchpad", 64, "floating_scratchpad", (640, 400)),
          ("actions ring", 65, "show_actions_ring", (640, 380)))
FADE = 0.4


def proportional_memory(process):
    rollup = pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text()
    return int(re.search(r"^Pss:\s+(\d+) kB", rollup, re.MULTILINE)[1]) / 1024


def store_history(desktop, length):
    folder = desktop.config / "Tarvin"
    folder.mkdir(mode=0o700, exist_ok=True)
    words = "The quick brown fox jumps over the lazy dog; " * (length // 40)
    clips = [{"id": str(uuid.uuid4()).upper(), "text": f"{number} {words}"[:length], "timestamp": 8e8, "isPinned": False}
             for number in range(40)]
    (folder / "settings.json").write_text(json.dumps({"Tarvin_ClipboardHistory_Items": clips}))


def run(tarvin, latency, length):
    with Desktop() as desktop:
        desktop.bring_up()
        program = desktop.home / "tarvin"
        shutil.copy2(tarvin, program)
        folder = desktop.data / "Tarvin"
        folder.mkdir(mode=0o700)
        (folder / "profiles_mappings.json").write_text(json.dumps({"global": {
            key: action for key, (_, _, action, _) in zip(("F5", "F6", "F7"), PANELS)}}))
        store_history(desktop, length)
        desktop.ask("xdotool", "mousemove", 640, 430)
        process = desktop.start(program, "--startup")
        until("the end of the start", lambda: (folder / "runtime.log").exists()
              and "Startup launch handled" in (folder / "runtime.log").read_text())
        time.sleep(3)
        none = proportional_memory(process)
        print(f"40 texts of {length} characters")
        for name, key, _, (x, y) in PANELS:
            times = []
            for _ in range(OPENINGS + 1):
                answer = desktop.ask(latency, key, x, y).decode().strip()
                if not answer:
                    sys.exit(f"the {name} never came up")
                times.append(float(answer))
                time.sleep(FADE)
                desktop.ask(latency, key, x, y)
                time.sleep(FADE)
            print(f"  {name}: the first time {times[0]:.0f} ms, then median {statistics.median(times[1:]):.0f} ms "
                  f"({min(times[1:]):.0f} to {max(times[1:]):.0f})")
        all_panels = proportional_memory(process)
        print(f"  memory: {none:.1f} MB PSS without a panel, {all_panels:.1f} MB with all three made")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    tarvin, latency = (str(pathlib.Path(argument).resolve()) for argument in sys.argv[1:])
    run(tarvin, latency, 100)
    run(tarvin, latency, 100_000)


if __name__ == "__main__":
    main()
