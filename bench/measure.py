#!/usr/bin/python3
"""Measures Wuffer against its bars and prints a table. Started by bench/run, which provides the
display.

Usage: measure.py WUFFER BENCH_STAGE [GROUP...]

With names, measures only the groups of lines called so.
"""

import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

import first_content

WUFFER, STAGE, *GROUPS = sys.argv[1:]
CHANGES_A_SECOND = 27
MIB = 1024.0


class Stage:
    """A running Wuffer that does what it is told."""

    def __init__(self, **settings):
        self._home = tempfile.TemporaryDirectory()
        file = pathlib.Path(self._home.name, "wuffer", "wuffer.json")
        file.parent.mkdir()
        file.write_text(json.dumps(settings), encoding="utf-8")
        self._process = subprocess.Popen(
            [STAGE], env=dict(os.environ, XDG_CONFIG_HOME=self._home.name),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self._proc = pathlib.Path("/proc", str(self._process.pid))
        time.sleep(1)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self._process.stdin.close()
        self._process.wait(10)
        self._process.stdout.close()
        self._home.cleanup()

    def say(self, order):
        print(order, file=self._process.stdin, flush=True)

    def hear(self):
        """Waits until the order is carried out and gives the numbers it is answered by."""
        return [float(word) for word in self._process.stdout.readline().split()]

    def tell(self, *orders):
        for order in orders:
            self.say(order)
            answer = self.hear()
        return answer

    def memory(self):
        return memory_of(self._proc)

    def cpu(self):
        """CPU time so far in milliseconds."""
        return sum(int(file.read_text().split()[0])
                   for file in self._proc.glob("task/*/schedstat")) / 1e6

    def wake_ups(self):
        return sum(int(line.split()[1]) for file in self._proc.glob("task/*/status")
                   for line in file.read_text().splitlines()
                   if line.startswith("voluntary_ctxt_switches"))

    def rates(self, seconds=5, rounds=3):
        """CPU milliseconds and wake-ups in a second, each the median of some rounds."""
        time.sleep(1)
        cpu, wake_ups = [], []
        for _ in range(rounds):
            before = time.monotonic(), self.cpu(), self.wake_ups()
            time.sleep(seconds)
            passed = time.monotonic() - before[0]
            cpu.append((self.cpu() - before[1]) / passed)
            wake_ups.append((self.wake_ups() - before[2]) / passed)
        return statistics.median(cpu), statistics.median(wake_ups)


def memory_of(proc):
    """The private and the private dirty memory of a process, in MiB."""
    fields = {line.split(":")[0]: int(line.split()[1])
              for line in (proc / "smaps_rollup").read_text().splitlines()[1:]}
    dirty = fields["Private_Dirty"] / MIB
    return fields["Private_Clean"] / MIB + dirty, dirty


def start():
    times = [first_content.milliseconds(WUFFER, b"wuffer") for _ in range(21)]
    # The first one reads the program from the disk.
    yield "exec to first content, ms", 60, statistics.median(times[1:])


def files_mapped_by(proc):
    return {line.split(maxsplit=5)[5] for line in (proc / "maps").read_text().splitlines()
            if "/" in line}


def memory_without_others(proc):
    """The private memory that a process would have if no other Qt program ran: what it has
    written to, and all resident pages of the files that the X server, the window manager and the
    session bus do not use as well."""
    shared = set().union(*(files_mapped_by(pathlib.Path("/proc", number))
                           for number in os.environ["DESKTOP_PROCESSES"].split()))
    kilobytes, file = 0, ""
    for line in (proc / "smaps").read_text().splitlines():
        name, *rest = line.split()
        if not name.endswith(":"):
            file = line.split(maxsplit=5)[5] if "/" in line else ""
        elif name == ("Rss:" if file and file not in shared else "Private_Dirty:"):
            kilobytes += int(rest[0])
    return kilobytes / MIB


def memory_of_one_window():
    with subprocess.Popen([WUFFER]) as process:
        time.sleep(2)
        proc = pathlib.Path("/proc", str(process.pid))
        alone = memory_without_others(proc)
        private, dirty = memory_of(proc)
        process.terminate()
    yield "private memory with one window, MiB", 20, alone
    yield "  beside the Qt programs that run at the moment, MiB", None, private
    yield "  of it written to, MiB", None, dirty


def memory_of_windows():
    # Only memory that was written to: pages of the libraries may come at any moment.
    with Stage() as stage:
        _, one = stage.memory()
        stage.tell("open 20")
        time.sleep(1)
        _, many = stage.memory()
        yield "memory of each further window, MiB", 0.5, (many - one) / 20
        stage.tell("close")
        time.sleep(1)
        _, left = stage.memory()
        yield "memory kept after 21 windows have closed, MiB", 0, left - one
        stage.tell("cycle 100")
        _, before = stage.memory()
        stage.tell("cycle 1000")
        _, after = stage.memory()
        yield "memory kept of each of 1000 windows, KiB", 0, (after - before) * 1024 / 1000


def idle():
    with Stage() as stage:
        stage.tell("open 4")
        yield "idle with five windows: wake-ups a second", 0, stage.rates()[1]


def running():
    with Stage() as stage:
        stage.tell("start")
        cpu, wake_ups = stage.rates()
        yield "one running timer: CPU, ms/s", 4, cpu
        yield "one running timer: wake-ups a second", 27, wake_ups
        yield "one change of the display, running, ms", 0.15, cpu / CHANGES_A_SECOND
        stage.tell("minimise")
        yield "one running timer, minimised: CPU, ms/s", 0.4, stage.rates()[0]
    with Stage() as stage:
        hot = statistics.median(stage.tell("change 500")[0] for _ in range(5)) / 1000
        yield "one change of the display, in a loop, ms", 0.15, hot
    for count in 10, 100:
        with Stage() as stage:
            stage.tell(f"open {count - 1}", "start")
            many_cpu, wake_ups = stage.rates()
        yield f"{count} running timers: wake-ups a second", 27, wake_ups
        yield f"{count} running timers: CPU of each, ms/s", cpu, many_cpu / count


def energy_saver():
    for count, bar in (1, 0.5), (10, 1.4):
        with Stage(energySaverMode=1) as stage:
            stage.tell(f"open {count - 1}", "start")
            yield f"{count} in the energy saver: CPU, ms/s", bar, stage.rates()[0]


def alarm():
    with Stage() as stage:
        many = stage.tell("ring 100 2")
    # The delay of a timer alone depends on its duration, so each of these has another.
    stages = [Stage() for _ in range(20)]
    for seconds, stage in enumerate(stages, 1):
        stage.say(f"ring 1 {seconds}")
    alone = [stage.hear()[0] for stage in stages]
    for stage in stages:
        stage.close()
    for what, late in ("one timer", alone), ("each of 100 timers", many):
        yield f"alarm of {what}: late by, median, ms", 20, statistics.median(late)
        yield f"alarm of {what}: late by, worst, ms", 40, max(late)


def verdict(bar, measured):
    if bar is None:
        return ""
    # A twentieth is below what can be told apart; for "none at all", so is a tenth.
    return "ok" if measured <= max(bar * 1.05, bar + (0.1 if bar == 0 else 0)) else "over"


def main():
    print(f"{'what':<56}{'bar':>8}{'measured':>10}", flush=True)
    for group in (start, memory_of_one_window, memory_of_windows, idle, running, energy_saver,
                  alarm):
        if GROUPS and group.__name__ not in GROUPS:
            continue
        for what, bar, measured in group():
            shown = "" if bar is None else f"{bar:.4g}"
            print(f"{what:<56}{shown:>8}{measured:>10.3g}  {verdict(bar, measured)}", flush=True)
    load = pathlib.Path("/proc/loadavg").read_text().split()[0]
    print(f"Load of the machine at the end: {load} on {os.cpu_count()} cores.")


main()
