"""A running Wuffer at the command of whoever measures it."""

import json
import os
import pathlib
import statistics
import subprocess
import tempfile
import time

PROGRAM = os.environ["WUFFER_BENCH"] + "/bench_stage"
MIB = 1024.0


class Stage:
    """A running Wuffer that does what it is told."""

    def __init__(self, environment=None, **settings):
        self._home = tempfile.TemporaryDirectory()
        file = pathlib.Path(self._home.name, "wuffer", "wuffer.json")
        file.parent.mkdir()
        file.write_text(json.dumps(settings), encoding="utf-8")
        self._process = subprocess.Popen(
            [PROGRAM], env=dict(os.environ, XDG_CONFIG_HOME=self._home.name, **(environment or {})),
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

    def rates(self, seconds=4, rounds=3):
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
