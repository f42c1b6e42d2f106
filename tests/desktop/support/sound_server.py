"""A separate sound server for a test, and a recorder of its output."""

import array
import math
import os
import signal
import subprocess
import threading
import time

from support.processor import STANDSTILL, Waits
from support.samples import AUDIBLE, RATE, longest_silence, loudest
from support.waiting import PATIENCE, wait_until

# In seconds. The server gets sound at least this long in advance, so a shorter wait makes no gap.
LONGEST_WAIT = 0.005


class Server:
    """A PulseAudio server with one silent sink, in a run-time folder of its own."""

    def __init__(self, folder):
        self.environment = dict(os.environ, XDG_RUNTIME_DIR=folder, HOME=folder)
        for name in ("PULSE_SERVER", "PULSE_SINK", "DISPLAY", "DBUS_SESSION_BUS_ADDRESS"):
            self.environment.pop(name, None)
        # Without a server, playing fails: it must not reach a real device or start another server.
        self.environment["ALSA_CONFIG_PATH"] = "/dev/null"
        self.environment["PULSE_CLIENTCONFIG"] = os.path.join(folder, "pulse-client.conf")
        with open(self.environment["PULSE_CLIENTCONFIG"], "w", encoding="ascii") as file:
            file.write("autospawn = no\n")
        self.process = None
        self.recorder = None
        self.start()

    def start(self):
        self.process = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--disable-shm=yes",
             "--use-pid-file=no", "-L", "module-native-protocol-unix auth-anonymous=1"],
            env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(self.answers, "the sound server answers")
        self.add_sink()

    def answers(self):
        return subprocess.run(["pactl", "info"], env=self.environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False).returncode == 0

    def add_sink(self):
        # Without "norewinds", the sink renders two seconds ahead before a client connects.
        self.sink = self.ask("load-module", "module-null-sink", "sink_name=test",
                             f"rate={RATE}", "channels=2", "format=float32le",
                             "norewinds=1").strip()
        self.recorder = Recorder(self.environment)

    def remove_sink(self):
        self.recorder.close()
        self.ask("unload-module", self.sink)

    def ask(self, *question):
        return subprocess.run(["pactl", *question], env=self.environment, check=True,
                              timeout=PATIENCE, stdout=subprocess.PIPE, text=True).stdout

    def streams(self):
        return len(self.ask("list", "short", "sink-inputs").splitlines())

    def wait_for_no_stream(self):
        wait_until(lambda: self.streams() == 0, "the stream is closed")

    def freeze(self):
        STANDSTILL.expected.add(self.process.pid)
        self.process.send_signal(signal.SIGSTOP)

    def thaw(self):
        self.process.send_signal(signal.SIGCONT)
        STANDSTILL.expected.discard(self.process.pid)

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.recorder.close()

    def close(self):
        self.kill()


class Recorder:
    """Records what the sink plays, and when.

    The sink plays by the clock of the computer. So the index of a sample in the recording tells
    when it was played, even if a busy computer let the recorder read it late.
    """

    # The first pieces arrive before the sink keeps a steady rate.
    PIECES_TO_SKIP = 10
    # Samples in ten milliseconds: recordings are searched in steps of this length.
    STRETCH = RATE // 100

    def __init__(self, environment):
        self.skipped = 0
        self.samples = array.array("h")
        # The time of the first sample, computed from the piece that was read with the least delay.
        self.began = math.inf
        self.process = subprocess.Popen(
            ["parec", "-d", "test.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1",
             "--latency-msec=10", "--raw"],
            env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.thread = threading.Thread(target=self.run, daemon=True)
        self.thread.start()
        wait_until(lambda: self.samples, "the recorder hears the sink")

    def run(self):
        rest = b""
        while data := os.read(self.process.stdout.fileno(), 4096):
            moment = time.monotonic()
            data = rest + data
            whole = len(data) // 2 * 2
            rest = data[whole:]
            if self.skipped < self.PIECES_TO_SKIP:
                self.skipped += 1
                continue
            self.samples.frombytes(data[:whole])
            self.began = min(self.began, moment - len(self.samples) / RATE)

    def moment(self, place):
        return self.began + place / RATE

    def place(self, moment):
        return max(0, round((moment - self.began) * RATE))

    def catch_up(self):
        """Waits until everything played up to now is recorded."""
        now = time.monotonic()
        wait_until(lambda: self.moment(len(self.samples)) >= now, "the sink plays on")

    def between(self, start, end):
        """Returns the samples that were played between two times."""
        return self.samples[self.place(start):self.place(end)]

    def hear(self, seconds):
        """Records for this many seconds; returns the samples."""
        start = time.monotonic()
        time.sleep(seconds)
        self.catch_up()
        return self.between(start, start + seconds)

    def hear_undisturbed(self, seconds, *process_ids):
        """Like hear(), but records again, up to 20 times, if there is a gap and these processes
        had to wait for a processor."""
        for _ in range(20):
            waits = Waits(*process_ids)
            samples = self.hear(seconds)
            if longest_silence(samples) < 0.5 or waits.seconds() < LONGEST_WAIT:
                break
        return samples

    def first_sound_after(self, start):
        for place in range(self.place(start), len(self.samples), self.STRETCH):
            stretch = self.samples[place:place + self.STRETCH]
            if loudest(stretch) > AUDIBLE:
                return self.moment(place + next(i for i, sample in enumerate(stretch)
                                                if abs(sample) > AUDIBLE))
        return None

    def last_sound(self):
        """Returns the time of the last sound until now; 0 without any."""
        self.catch_up()
        for end in range(len(self.samples), 0, -self.STRETCH):
            stretch = self.samples[max(0, end - self.STRETCH):end]
            if loudest(stretch) > AUDIBLE:
                return self.moment(end - next(i for i, sample in enumerate(reversed(stretch), 1)
                                              if abs(sample) > AUDIBLE))
        return 0.0

    def wait_for_sound(self, start):
        """Waits until something is heard after this time; returns when it began."""
        wait_until(lambda: self.first_sound_after(start), "a sound is heard")
        return self.first_sound_after(start)

    def wait_for_silence(self, seconds=0.3):
        """Waits until nothing has been heard for this long; returns the time of the last sound."""
        last = 0.0

        def is_silent():
            nonlocal last
            now = time.monotonic()
            last = self.last_sound()
            return last < now - seconds

        wait_until(is_silent, "it is silent")
        return last

    def close(self):
        self.process.kill()
        self.process.wait()
        self.thread.join()
        self.process.stdout.close()
