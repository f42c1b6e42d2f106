"""How late alarms are, to the eye and to the ear."""

import pathlib
import statistics
import sys
import tempfile
import time

from stage import Stage

sys.path.append(str(pathlib.Path(__file__).parent.parent / "tests" / "desktop"))
# pylint: disable=wrong-import-position
from support.sound_server import Server


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


def onset(stage, server, timers):
    """Milliseconds from the first end among so many timers until something is heard."""
    left, = stage.tell(f"start {timers} 2")
    end = time.monotonic() + left
    time.sleep(left + 2)
    heard = server.recorder.first_sound_after(end - 0.5)
    stage.tell("close")
    if heard is None:
        raise TimeoutError("no alarm was heard")
    time.sleep(1)
    return (heard - end) * 1000


def sound():
    with tempfile.TemporaryDirectory() as folder:
        server = Server(folder)
        try:
            heard = dict(server.environment)
            environment = {name: heard[name] for name in ("ALSA_CONFIG_PATH", "PULSE_CLIENTCONFIG")}
            environment["PULSE_SERVER"] = f"unix:{folder}/pulse/native"
            # Without the beeps before the end, so that the alarm is the first that is heard.
            with Stage(environment, suppressCountdown=1) as stage:
                for timers, rounds in (1, 7), (100, 3):
                    late = [onset(stage, server, timers) for _ in range(rounds)]
                    what = f"alarm of {timers}: first sound after the end"
                    yield f"{what}, median, ms", 100, statistics.median(late)
                    yield f"{what}, worst, ms", 100, max(late)
        finally:
            server.close()
