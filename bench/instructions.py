"""Counts the instructions of a tick, which no noise of the machine changes."""

import os
import pathlib
import re
import subprocess
import tempfile

# Thousands of instructions. A tenth over what was counted when the bar was set.
BARS = {
    "tick, visible": 60.5,
    "display that stays the same": 13,
    "tick, hidden": 4.6,
    "tick in the energy saver": 9.2,
    "status refresh, 1 timer": 2.9,
    "status refresh, 100 timers": 10.8,
}


def counted(folder):
    """What callgrind has left there: name, times, instructions."""
    for file in sorted(folder.glob("ticks.*.*"), key=lambda path: int(path.suffix[1:])):
        text = file.read_text()
        mark = re.search(r"^desc: Trigger: Client Request: (.*)/(\d+)$", text, re.MULTILINE)
        total = re.search(r"^(?:summary|totals): (\d+)", text, re.MULTILINE)
        if mark and total:
            yield mark[1], int(mark[2]), int(total[1])


def instructions():
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(
            ["valgrind", "--quiet", "--tool=callgrind", "--instr-atstart=no", "--dump-line=no",
             f"--callgrind-out-file={folder}/ticks.%p", os.environ["WUFFER_BENCH"] + "/bench_ticks"],
            check=True, stdout=subprocess.DEVNULL)
        for name, times, total in counted(pathlib.Path(folder)):
            yield f"{name}: thousand instructions", BARS.get(name), total / times / 1000
