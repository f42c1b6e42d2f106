#!/usr/bin/python3
"""Lets Wuffer work for long and watches its memory. Started by bench/endurance.

Usage: endurance.py looping WUFFER MINUTES
       endurance.py sanitized WUFFER MINUTES
       endurance.py windows BENCH_STAGE COUNT
"""

import json
import os
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "desktop"))

from support.program import Program  # noqa: E402
from support.session import Session  # noqa: E402
from support.waiting import wait_until  # noqa: E402

TIMERS = 50
# Once everything that will ever be loaded is, in minutes.
WARM_UP = 4
# What may come and go from one minute to the next, in MiB.
SWAY = 3.0
STEPS = 10


def memory_of(process_id):
    """The resident and the private dirty memory of a process, in MiB."""
    lines = pathlib.Path(f"/proc/{process_id}/smaps_rollup").read_text().splitlines()[1:]
    fields = {line.split(":")[0]: int(line.split()[1]) / 1024 for line in lines}
    return fields["Rss"], fields["Private_Dirty"]


def cpu_of(process_id):
    """The CPU time of a process so far, that of threads that have ended too, in seconds."""
    fields = pathlib.Path(f"/proc/{process_id}/stat").read_text().rsplit(")", 1)[1].split()
    user, system = fields[11:13]
    return (int(user) + int(system)) / os.sysconf("SC_CLK_TCK")


class LiveHeap:
    """What a program under the sanitizers uses of its heap. The memory of its process tells less:
    the sanitizers hold back what is freed, and keep books on it."""

    def __init__(self, executable, folder):
        libraries = subprocess.run(["ldd", executable], check=True, stdout=subprocess.PIPE,
                                   text=True).stdout.splitlines()
        sanitizer = next(line.split()[2] for line in libraries if "libasan" in line)
        module = pathlib.Path(executable).parents[1] / "tests" / "libliveheap.so"
        self.path = pathlib.Path(folder) / "live-heap"
        # The sanitizer insists on being the first.
        self.environment = {"LD_PRELOAD": f"{sanitizer}:{module}",
                            "WUFFER_LIVE_HEAP": str(self.path)}

    def used(self):
        """In MiB."""
        return int(self.path.read_text(encoding="ascii")) / 2**20


def open_files_of(process_id):
    return len(list(pathlib.Path(f"/proc/{process_id}/fd").iterdir()))


def table(*columns):
    print("".join(f"{column:>{14 if number else 10}}" for number, column in enumerate(columns)),
          flush=True)


def looping_presets():
    """Settings in which preset 1 is a timer of two seconds that loops, and so on."""
    settings = {"autoStartPresets": 1}
    for number in range(1, 10):
        settings[f"Preset {number}"] = {
            "title": f"Loop {number}", "hours": 0, "minutes": 0, "seconds": number + 1,
            "keepWuffing": 0, "fullScreen": 0, "finishOption": "Loop this Wuffer"}
    return json.dumps(settings)


def open_timers(program):
    for number in range(TIMERS):
        program.display.key(f"alt+{number % 9 + 1}")
        time.sleep(0.1)
    # The first is the one that opens at launch.
    wait_until(lambda: len(program.windows()) == TIMERS + 1, 60, f"{TIMERS} timers are open")


def watch(program, session, minutes, heap):
    """Prints the memory at each minute, and gives what is to be judged of it."""
    process_id = program.process.pid
    samples = []
    table("minute", "resident MiB", "private MiB", "heap MiB", "CPU ms/s", "open files",
          "sounding", "notices")
    cpu = cpu_of(process_id)
    for minute in range(1, minutes + 1):
        time.sleep(60)
        if program.process.poll() is not None:
            raise AssertionError(f"the program ended with status {program.process.returncode}")
        resident, private = memory_of(process_id)
        live = heap.used() if heap else None
        cpu, before = cpu_of(process_id), cpu
        table(minute, f"{resident:.1f}", f"{private:.1f}", f"{live:.1f}" if heap else "-",
              f"{(cpu - before) / 60 * 1000:.0f}", open_files_of(process_id),
              session.sound.streams(), session.notifications.shown())
        samples.append(live if heap else private)
        # Every other minute is muted.
        program.display.key("ctrl+shift+m")
    return samples


def loop(executable, minutes, is_sanitized):
    """Lets the timers loop; answers whether all ended well and the memory is flat."""
    Program.executable = executable
    session = Session((1600, 1000))
    try:
        heap = LiveHeap(executable, session.folder) if is_sanitized else None
        session.start_sound()
        # Nobody listens, so nothing is kept of what is heard.
        session.sound.recorder.close()
        program = Program(session, settings=looping_presets(), accessible=False,
                          environment=heap.environment if heap else None)
        program.start()
        open_timers(program)
        samples = watch(program, session, minutes, heap)
        program.display.key("ctrl+q")
        status = program.process.wait(timeout=60)
        written = program.written()
    finally:
        session.close()
    print(written, end="")
    print(f"ended with status {status}, and wrote {len(written)} characters")
    return is_flat(samples[WARM_UP:]) and status == 0 and not written


def looping(executable, minutes):
    return loop(executable, minutes, is_sanitized=False)


def sanitized(executable, minutes):
    return loop(executable, minutes, is_sanitized=True)


def windows(executable, count):
    session = Session()
    try:
        with subprocess.Popen([executable], env=session.environment, stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, text=True) as stage:
            def cycle(number):
                print(f"cycle {number}", file=stage.stdin, flush=True)
                stage.stdout.readline()
                return memory_of(stage.pid)

            table("windows", "resident MiB", "private MiB", "open files")
            samples = []
            for step in range(STEPS + 1):
                resident, private = cycle(count // STEPS if step else 100)
                table(count // STEPS * step, f"{resident:.1f}", f"{private:.1f}",
                      open_files_of(stage.pid))
                samples.append(private)
            stage.stdin.close()
            status = stage.wait(60)
    finally:
        session.close()
    print(f"ended with status {status}")
    return status == 0 and is_flat(samples)


def is_flat(samples):
    """Whether the memory at the end is what it was at the beginning, in busy minutes and calm."""
    if len(samples) < 2:
        print("too short to judge the memory")
        return False
    third = max(1, len(samples) // 3)
    growths = [ends(samples[-third:]) - ends(samples[:third]) for ends in (min, max)]
    print(f"from {min(samples[:third]):.1f} to {max(samples[:third]):.1f} MiB, grown by "
          f"{growths[0]:.2f} and {growths[1]:.2f}: "
          + ("flat" if max(growths) <= SWAY else "not flat"))
    return max(growths) <= SWAY


def main():
    what, executable, amount = sys.argv[1:]
    work = {"looping": looping, "sanitized": sanitized, "windows": windows}[what]
    sys.exit(0 if work(executable, int(amount)) else 1)


main()
