#!/usr/bin/python3
"""Measures Wuffer against its bars and prints a table. Started by bench/run, which provides the
display.

Usage: measure.py [GROUP...]

With names, measures only the groups of lines called so.
"""

import os
import pathlib
import sys

import alarms
import bus
import cost
import instructions
import memory
import micro

GROUPS = {group.__name__: group for group in (
    cost.start, memory.memory_of_one_window, memory.memory_of_windows, cost.idle, cost.running,
    cost.many, cost.energy_saver, bus.bus, alarms.alarm, alarms.sound, micro.micro,
    instructions.instructions)}


def verdict(bar, measured):
    if bar is None:
        return ""
    # A twentieth is below what can be told apart; for "none at all", so is a tenth.
    return "ok" if measured <= max(bar * 1.05, bar + (0.1 if bar == 0 else 0)) else "over"


def machine():
    model = next((line.split(":")[1].strip()
                  for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
                  if line.startswith("model name")), "unknown processor")
    kernel = os.uname()
    return f"{os.cpu_count()} cores of {model}, {kernel.sysname} {kernel.release}"


def load():
    return pathlib.Path("/proc/loadavg").read_text().split()[0]


def main():
    names = sys.argv[1:] or list(GROUPS)
    unknown = [name for name in names if name not in GROUPS]
    if unknown:
        sys.exit(f"There is no group {unknown[0]}; there are {', '.join(GROUPS)}.")
    print(f"On {machine()}; load {load()} at the beginning.\n")
    print(f"{'what':<60}{'bar':>9}{'measured':>10}", flush=True)
    for name in names:
        for what, bar, measured in GROUPS[name]():
            shown = "" if bar is None else f"{bar:.5g}"
            print(f"{what:<60}{shown:>9}{measured:>10.3g}  {verdict(bar, measured)}", flush=True)
    print(f"\nLoad at the end: {load()}.")


main()
