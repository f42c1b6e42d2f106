"""The small benchmarks, as lines of the table."""

import json
import math
import os
import subprocess

# The most that one may take, in microseconds, at its largest size. A tick has 150.
BARS = {
    "displayText": 1, "millisecondsText": 1, "durationText": 1, "statusLine": 1,
    "describeStatus/1000": 20,
    "putInOrder/rising/1000": 150, "putInOrder/falling/1000": 150, "putInOrder/shuffled/1000": 150,
    "refreshStatus/1": 10, "refreshStatus/1000": 150, "listRunning/1000": 500,
    "walkChain/2": 2, "walkChain/1000": 300,
    "recordOfSettings": 10, "settingsOfRecord": 10,
    "writeSettingsFile": 5000, "readSettingsFile": 1000,
    "fillCombo/1000": 10000, "selectInCombo/1000": 1000, "lookUpInCombo/1000": 1000,
}
# The most by which cost may grow, as a power of the number: 1 is in proportion to it. A sort is a
# little more.
GROWTH = {
    "describeStatus": 1.1, "putInOrder/rising": 1.25, "putInOrder/falling": 1.25,
    "putInOrder/shuffled": 1.25, "refreshStatus": 1.1, "listRunning": 1.25, "walkChain": 1.1,
    "fillCombo": 1.1, "selectInCombo": 1.1, "lookUpInCombo": 1.1,
}
_MICROSECONDS = {"ns": 1e-3, "us": 1, "ms": 1e3}


def measured():
    """Microseconds of each benchmark by its name."""
    output = subprocess.run(
        [os.environ["WUFFER_BENCH"] + "/bench_micro", "--benchmark_format=json",
         "--benchmark_min_time=0.2"],
        check=True, stdout=subprocess.PIPE, text=True).stdout
    times = {}
    for each in json.loads(output)["benchmarks"]:
        if each.get("error_occurred"):
            raise RuntimeError(f"{each['name']}: {each['error_message']}")
        name = each["name"].split("/iterations:")[0]
        times[name] = each["cpu_time"] * _MICROSECONDS[each["time_unit"]]
    return times


def micro():
    times = measured()
    for name, time in times.items():
        yield f"{name}, us", BARS.get(name), time
    for name, bar in GROWTH.items():
        # The smaller sizes say more of what does not grow.
        power = math.log10(times[f"{name}/1000"] / times[f"{name}/100"])
        yield f"{name}: grows with this power of the number", bar, power
