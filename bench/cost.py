"""What starting and running costs of the machine."""

import os
import statistics

import first_content
from stage import Stage

CHANGES_A_SECOND = 27


def start():
    times = [first_content.milliseconds(os.environ["WUFFER"], b"wuffer") for _ in range(21)]
    # The first one reads the program from the disk.
    yield "exec to first content, ms", 60, statistics.median(times[1:])


def idle():
    with Stage() as stage:
        stage.tell("open 4")
        cpu, wake_ups = stage.rates()
        yield "idle with five windows: wake-ups a second", 0, wake_ups
        yield "idle with five windows: CPU, ms/s", 0, cpu
        stage.tell("minimise")
        yield "idle with five windows, minimised: wake-ups a second", 0, stage.rates()[1]


def running():
    with Stage() as stage:
        stage.tell("start")
        cpu, wake_ups = stage.rates()
        yield "one running timer: CPU, ms/s", 4, cpu
        yield "one running timer: wake-ups a second", 27, wake_ups
        yield "one change of the display, running, ms", 0.15, cpu / CHANGES_A_SECOND
        stage.tell("minimise")
        cpu, wake_ups = stage.rates()
        yield "one running timer, minimised: CPU, ms/s", 0.4, cpu
        yield "one running timer, minimised: wake-ups a second", 27, wake_ups
    with Stage() as stage:
        hot = statistics.median(stage.tell("change 500")[0] for _ in range(5)) / 1000
        yield "one change of the display, in a loop, ms", 0.15, hot


def many():
    for count in 10, 100:
        with Stage() as stage:
            stage.tell(f"open {count - 1}", "start")
            cpu, wake_ups = stage.rates()
            yield f"{count} running timers: wake-ups a second", 27, wake_ups
            yield f"{count} running timers: CPU of each, ms/s", 4, cpu / count
            stage.tell("minimise")
            cpu, wake_ups = stage.rates()
            yield f"{count} running timers, minimised: wake-ups a second", 27, wake_ups
            yield f"{count} running timers, minimised: CPU of each, ms/s", 0.4, cpu / count


def energy_saver():
    for count, bar in (1, 0.5), (10, 1.4), (100, None):
        with Stage(energySaverMode=1) as stage:
            stage.tell(f"open {count - 1}", "start")
            cpu, wake_ups = stage.rates()
            yield f"{count} in the energy saver: CPU, ms/s", bar, cpu
            yield f"{count} in the energy saver: wake-ups a second", 27, wake_ups
