"""A sound server of the test's own, and a recorder of what is heard there."""

import array
import os
import signal
import subprocess
import threading
import time

from support.samples import AUDIBLE, RATE, longest_silence, loudest
from support.waiting import wait_until


class Server:
    """A PulseAudio server with one silent sink, in a run-time folder of its own."""

    def __init__(self, folder):
        self.environment = dict(os.environ, XDG_RUNTIME_DIR=folder, HOME=folder)
        for name in ("PULSE_SERVER", "PULSE_SINK", "DISPLAY", "DBUS_SESSION_BUS_ADDRESS"):
            self.environment.pop(name, None)
        # Fails the test rather than play at some other device or start another server.
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
        wait_until(self.answers, 10, "the sound server answers")
        self.add_sink()

    def answers(self):
        return subprocess.run(["pactl", "info"], env=self.environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False).returncode == 0

    def add_sink(self):
        self.sink = self.ask("load-module", "module-null-sink", "sink_name=test",
                             f"rate={RATE}", "channels=2", "format=float32le").strip()
        self.recorder = Recorder(self.environment)

    def remove_sink(self):
        self.recorder.close()
        self.ask("unload-module", self.sink)

    def ask(self, *question):
        return subprocess.run(["pactl", *question], env=self.environment, check=True, timeout=10,
                              stdout=subprocess.PIPE, text=True).stdout

    def streams(self):
        return len(self.ask("list", "short", "sink-inputs").splitlines())

    def freeze(self):
        self.process.send_signal(signal.SIGSTOP)

    def thaw(self):
        self.process.send_signal(signal.SIGCONT)

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.recorder.close()

    def close(self):
        self.kill()


class Recorder:
    """Records what the sink plays, each piece with the moment at which it came."""

    def __init__(self, environment):
        self.pieces = []
        self.process = subprocess.Popen(
            ["parec", "-d", "test.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1",
             "--latency-msec=10", "--raw"],
            env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.thread = threading.Thread(target=self.run, daemon=True)
        self.thread.start()
        # The sink works in blocks of two seconds until somebody listens.
        wait_until(lambda: len(self.pieces) > 20, 10, "the recorder hears the sink")

    def run(self):
        while data := os.read(self.process.stdout.fileno(), 4096):
            self.pieces.append((time.monotonic(), array.array("h", data[:len(data) // 2 * 2])))

    def between(self, start, end):
        """The samples that came in between two moments."""
        samples = array.array("h")
        for moment, piece in list(self.pieces):
            if start <= moment <= end:
                samples.extend(piece)
        return samples

    def hear(self, seconds):
        """The samples of the next so many seconds."""
        start = time.monotonic()
        time.sleep(seconds)
        return self.between(start, start + seconds)

    def hear_undisturbed(self, seconds):
        """The same without gaps. A busy computer may tear one now and then, so there are three
        attempts; what the program itself leaves out, it leaves out each time."""
        for _ in range(3):
            samples = self.hear(seconds)
            if longest_silence(samples) < 0.5:
                break
        return samples

    def first_sound_after(self, start):
        for moment, piece in list(self.pieces):
            if moment >= start and loudest(piece) > AUDIBLE:
                return moment
        return None

    def last_sound(self):
        for moment, piece in reversed(list(self.pieces)):
            if loudest(piece) > AUDIBLE:
                return moment
        return 0.0

    def close(self):
        self.process.kill()
        self.process.wait()
        self.thread.join()
        self.process.stdout.close()
