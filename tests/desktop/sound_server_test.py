#!/usr/bin/python3
"""Plays sounds on a sound server of its own and judges a recording of them.

Usage: sound_server_test.py SOUNDPLAYER [unittest arguments]
"""

import math
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import unittest
import wave

from support.moments import measures_moments
from support.processor import Waits
from support.samples import (RATE, frequency, largest_step, longest_silence, loudest, rms,
                             strength)
from support.sound_server import Server
from support.waiting import PATIENCE, wait_until

SOUNDPLAYER = ""

# The sound built into the player: its name, frequency and amplitude.
OWN_SOUND = "test-blip.wav"
OWN_TONE = 500
OWN_RMS = 11313


class Player:
    """The program under test, which takes orders on its standard input."""

    def __init__(self, environment):
        self.process = subprocess.Popen([SOUNDPLAYER], env=environment, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True, bufsize=1)
        self.slowest = 0.0

    def order(self, *words):
        return self.orders(" ".join(str(word) for word in words))[0]

    def orders(self, *lines):
        """Sends several orders without a pause; returns their results."""
        self.process.stdin.write("".join(line + "\n" for line in lines))
        results = []
        for line in lines:
            result, microseconds = self.process.stdout.readline().split()
            results.append(float(result))
            if not line.startswith("load"):
                self.slowest = max(self.slowest, int(microseconds) / 1e6)
        return results

    def is_playing(self, name):
        return self.order("playing", name) == 1

    def play(self, name):
        """Plays the sound; returns the moment just before."""
        moment = time.monotonic()
        self.order("play", name)
        return moment

    def wait_for_end(self, name):
        return wait_until(lambda: not self.is_playing(name), f"{name} ends", pause=0.002)

    def status(self, field):
        with open(f"/proc/{self.process.pid}/status", encoding="ascii") as status:
            return next(line.split()[1] for line in status if line.startswith(field))

    def quit(self):
        """Quits the player; returns the seconds that took and the exit status."""
        start = time.monotonic()
        self.process.stdin.write("quit\n")
        status = self.process.wait(timeout=PATIENCE)
        self.process.stdin.close()
        self.process.stdout.close()
        return time.monotonic() - start, status


class SoundServerTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        for tool in ("pulseaudio", "pactl", "parec"):
            if not shutil.which(tool):
                raise RuntimeError(f"{tool} is not installed")
        cls.folder = tempfile.mkdtemp(prefix="sound-")
        os.chmod(cls.folder, 0o700)
        cls.server = Server(cls.folder)

    @classmethod
    def tearDownClass(cls):
        cls.server.close()
        shutil.rmtree(cls.folder)

    def setUp(self):
        self.player = Player(self.server.environment)
        self.waited = self.waits()

    def tearDown(self):
        if self.player:
            self.quit_player()

    def quit_player(self):
        player, self.player = self.player, None
        waited = self.waited.seconds()
        waits = Waits(os.getpid(), player.process.pid)
        seconds, status = player.quit()
        self.assertEqual(status, 0)
        self.assertLess(seconds, 1.5 + waits.seconds())
        self.assertLess(player.slowest, 0.1 + waited, "no order waits for the server")
        return seconds

    @property
    def recorder(self):
        return self.server.recorder

    def load(self, name, seconds=1.0, tone=1000, amplitude=0.5, rate=RATE):
        """Writes a file with a sine tone and loads it."""
        path = os.path.join(self.folder, f"{name}.wav")
        with wave.open(path, "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(rate)
            step = 2 * math.pi * tone / rate
            file.writeframes(b"".join(
                struct.pack("<h", round(32767 * amplitude * math.sin(step * i)))
                for i in range(round(seconds * rate))))
        self.assertAlmostEqual(self.player.order("load", name, path), seconds)

    def hear(self, seconds):
        return self.recorder.hear_undisturbed(seconds, self.player.process.pid,
                                              self.server.process.pid)

    def wait_for_silence(self):
        self.server.wait_for_no_stream()

    def check_end(self, name, moment):
        """The player reports the end of the sound at this moment, whatever the server does."""
        self.player.wait_for_end(name)
        late = time.monotonic() - moment
        self.assertGreater(late, -0.2)
        self.assertLess(late, 0.2 + self.waited.seconds())

    def start_loop(self, name, **tone):
        self.load(name, **tone)
        self.player.order("loops", name, 1)
        moment = self.player.play(name)
        self.recorder.wait_for_sound(moment)

    def waits(self):
        """Counts the time that this test, the player and the server wait for a processor from
        now on."""
        return Waits(os.getpid(), self.player.process.pid, self.server.process.pid)

    def report(self, text):
        print(f"{self.id().rsplit('.', 1)[1]}: {text}", flush=True)

    # What is heard

    def test_a_sound_is_heard_as_recorded_and_then_its_stream_is_closed(self):
        # It loops while it is recorded: on a busy computer that takes several attempts.
        self.start_loop("tone")
        time.sleep(0.3)
        heard = self.hear(0.5)
        self.assertAlmostEqual(frequency(heard), 1000, delta=3)
        self.assertAlmostEqual(rms(heard) / (32767 * 0.5 / math.sqrt(2)), 1, delta=0.03)
        self.assertEqual(self.server.streams(), 1)
        self.player.order("loops", "tone", 0)
        self.player.wait_for_end("tone")
        self.wait_for_silence()
        wait_until(lambda: self.player.status("Threads") == "1", "no thread is left")

    def test_a_sound_of_another_rate_is_heard_as_recorded(self):
        self.start_loop("tone", tone=700, rate=44100)
        heard = self.hear(0.5)
        self.assertAlmostEqual(frequency(heard), 700, delta=3)
        self.assertLess(longest_silence(heard), 0.5)

    def test_a_sound_begins_at_once(self):
        self.load("tone", seconds=0.2)
        onsets = []
        for _ in range(5):
            waits = self.waits()
            moment = self.player.play("tone")
            self.player.wait_for_end("tone")
            onset = self.recorder.wait_for_sound(moment) - moment
            onsets.append(onset * 1000)
            self.assertLess(onset, 0.1 + waits.seconds())
            self.wait_for_silence()
        self.report("onset after " + ", ".join(f"{onset:.0f}" for onset in onsets) + " ms")

    def test_a_sound_plays_until_its_end_has_been_heard(self):
        self.load("tone", seconds=0.5)
        waits = self.waits()
        moment = self.player.play("tone")
        self.player.wait_for_end("tone")
        end = time.monotonic()
        waited = waits.seconds()
        last = self.recorder.wait_for_silence()
        length = last - self.recorder.first_sound_after(moment)
        self.report(f"heard for {length * 1000:.0f} ms, end told {(end - last) * 1000:.0f} ms later")
        self.assertAlmostEqual(length, 0.5, delta=0.03 + waited)
        self.assertGreater(end - last, -0.06)
        self.assertLess(end - last, 0.06 + waited)

    def test_a_stop_is_heard_at_once(self):
        self.start_loop("tone")
        time.sleep(0.2)
        waits = self.waits()
        moment = time.monotonic()
        self.player.order("stop", "tone")
        self.assertFalse(self.player.is_playing("tone"))
        delay = self.recorder.wait_for_silence() - moment
        self.report(f"silent after {delay * 1000:.0f} ms")
        self.assertLess(delay, 0.05 + waits.seconds())
        self.wait_for_silence()

    def test_a_destroyed_sound_falls_silent(self):
        self.start_loop("tone")
        waits = self.waits()
        moment = time.monotonic()
        self.player.order("destroy", "tone")
        delay = self.recorder.wait_for_silence() - moment
        self.assertLess(delay, 0.05 + waits.seconds())
        self.wait_for_silence()

    def test_a_stop_before_the_sound_began_keeps_it_silent(self):
        self.load("tone")
        time.sleep(0.1)
        moment = time.monotonic()
        self.player.orders("play tone", "stop tone")
        time.sleep(0.3)
        self.recorder.catch_up()
        self.assertIsNone(self.recorder.first_sound_after(moment))
        self.wait_for_silence()

    # Loops

    def test_a_loop_has_no_gap(self):
        self.start_loop("tone", seconds=0.1)
        heard = self.hear(1)
        self.assertLess(longest_silence(heard), 0.5)
        # No step exceeds the steepest slope of the sine: nothing was skipped or played twice.
        steepest = 32767 * 0.5 * 2 * math.pi * 1000 / RATE
        self.assertLess(largest_step(heard), steepest * 1.05)
        self.assertAlmostEqual(frequency(heard), 1000, delta=2)

    def test_a_loop_that_is_switched_off_plays_its_pass_to_the_end(self):
        waits = self.waits()
        self.load("tone", seconds=0.5)
        self.player.order("loops", "tone", 1)
        moment = self.player.play("tone")
        # In the middle of the second pass, or of a later one on a busy computer.
        time.sleep(0.75)
        before = time.monotonic()
        self.player.order("loops", "tone", 0)
        self.player.wait_for_end("tone")
        last = self.recorder.wait_for_silence()
        waited = waits.seconds()
        length = last - self.recorder.first_sound_after(moment)
        self.assertAlmostEqual(length, 0.5 * round(length / 0.5), delta=0.03 + waited)
        # The pass ends, and no other one begins.
        self.assertGreater(last, before)
        self.assertLess(last, before + 0.55 + waited)

    @measures_moments
    def test_a_sound_that_is_looped_just_before_its_end_goes_on(self):
        # The test must send its order within 80 ms; on a busy computer it may be too late.
        self.load("tone", seconds=0.5)
        moment = self.player.play("tone")
        time.sleep(0.42)
        self.player.order("loops", "tone", 1)
        time.sleep(0.4)
        self.player.order("loops", "tone", 0)
        self.player.wait_for_end("tone")
        length = self.recorder.wait_for_silence() - self.recorder.first_sound_after(moment)
        self.assertAlmostEqual(length, 1.0, delta=0.03)

    # Volume

    def test_the_volume_changes_while_the_sound_plays(self):
        self.start_loop("tone")
        time.sleep(0.1)
        loud = rms(self.hear(0.3))
        for volume in (0.5, 0.1, 0.75):
            self.player.order("volume", "tone", volume)
            wait_until(lambda v=volume: abs(rms(self.hear(0.3)) / loud / v - 1) <= 0.03,
                       f"the volume is {volume}")
        self.player.order("volume", "tone", 0)
        wait_until(lambda: loudest(self.recorder.hear(0.1)) == 0, "it is silent")
        self.assertTrue(self.player.is_playing("tone"))

    # Many sounds

    def test_forty_sounds_are_heard_at_once_and_stop_one_by_one(self):
        tones = {f"tone{i}": 300 + 50 * i for i in range(40)}
        for name, tone in tones.items():
            self.load(name, tone=tone, amplitude=0.02)
            self.player.order("loops", name, 1)
        memory = int(self.player.status("RssAnon"))
        waits = self.waits()
        moment = time.monotonic()
        for name in tones:
            self.player.order("play", name)
        asked = time.monotonic()
        onset = self.recorder.wait_for_sound(moment) - moment
        time.sleep(0.1)
        threads = self.player.status("Threads")
        more = int(self.player.status("RssAnon")) - memory
        self.report(f"onset {onset * 1000:.0f} ms (40 orders took {(asked - moment) * 1000:.0f}), "
                    f"{threads} threads, {more} KiB more")
        self.assertLess(onset, 0.1 + waits.seconds())
        heard = self.hear(0.2)
        for name, tone in tones.items():
            self.assertAlmostEqual(strength(heard, tone) / 655, 1, delta=0.1, msg=name)
        self.player.order("stop", "tone7")
        self.player.order("destroy", "tone8")
        wait_until(lambda: strength(self.hear(0.2), tones["tone8"]) < 65, "it is not heard")
        heard = self.hear(0.2)
        for name, tone in tones.items():
            expected = 0 if name in ("tone7", "tone8") else 1
            self.assertAlmostEqual(strength(heard, tone) / 655, expected, delta=0.1, msg=name)

    # Files that break after they were loaded

    def load_and_break(self, name, **tone):
        self.load(name, **tone)
        self.player.order("standin", name, OWN_SOUND)
        os.truncate(os.path.join(self.folder, f"{name}.wav"), 0)

    def test_the_stand_in_is_heard_at_the_volume_of_the_sound_while_that_loops(self):
        self.load_and_break("tone", rate=44100)
        self.player.order("loops", "tone", 1)
        self.player.order("volume", "tone", 0.5)
        waits = self.waits()
        moment = self.player.play("tone")
        onset = self.recorder.wait_for_sound(moment) - moment
        self.report(f"onset after {onset * 1000:.0f} ms")
        self.assertLess(onset, 0.1 + waits.seconds())
        time.sleep(0.1)
        heard = self.hear(0.6)
        self.assertAlmostEqual(frequency(heard), OWN_TONE, delta=5)
        self.assertAlmostEqual(rms(heard) / OWN_RMS, 0.5, delta=0.02)
        self.player.order("loops", "tone", 0)
        self.player.wait_for_end("tone")
        self.wait_for_silence()

    def test_a_stop_before_the_stand_in_began_keeps_it_silent(self):
        self.load_and_break("tone")
        time.sleep(0.1)
        moment = time.monotonic()
        self.player.orders("play tone", "stop tone")
        time.sleep(0.3)
        self.recorder.catch_up()
        self.assertIsNone(self.recorder.first_sound_after(moment))
        self.wait_for_silence()

    def test_a_file_that_took_the_place_of_another_is_heard_at_its_own_rate(self):
        self.load("tone", tone=700, rate=44100)
        shutil.copy(os.path.join(self.folder, "tone.wav"), os.path.join(self.folder, "kept.wav"))
        self.load_and_break("other", rate=22050)
        shutil.copy(os.path.join(self.folder, "kept.wav"), os.path.join(self.folder, "other.wav"))
        self.player.order("loops", "other", 1)
        self.recorder.wait_for_sound(self.player.play("other"))
        time.sleep(0.1)
        self.assertAlmostEqual(frequency(self.hear(0.5)), 700, delta=5)

    # A server that fails

    def check_heard_again(self, moment):
        waits = self.waits()
        self.assertLess(self.recorder.wait_for_sound(moment), moment + 4 + waits.seconds())

    def test_a_server_that_dies_and_comes_back(self):
        self.load("short", seconds=1.0)
        self.start_loop("loop")
        moment = self.player.play("short")
        time.sleep(0.2)
        self.server.kill()
        try:
            self.check_end("short", moment + 1.0)
            self.assertTrue(self.player.is_playing("loop"))
            moment = self.player.play("short")
            self.check_end("short", moment + 1.0)
        finally:
            self.server.start()
        self.check_heard_again(time.monotonic())

    def test_a_sink_that_goes_away_and_comes_back(self):
        self.load("short", seconds=1.0)
        self.start_loop("loop")
        moment = self.player.play("short")
        time.sleep(0.2)
        self.server.remove_sink()
        try:
            self.check_end("short", moment + 1.0)
            self.assertTrue(self.player.is_playing("loop"))
        finally:
            self.server.add_sink()
        self.check_heard_again(time.monotonic())

    def test_a_server_that_freezes_and_thaws(self):
        self.load("short", seconds=1.0)
        self.load("late", seconds=0.5)
        self.start_loop("loop")
        moment = self.player.play("short")
        time.sleep(0.2)
        self.server.freeze()
        try:
            self.check_end("short", moment + 1.0)
            moment = self.player.play("late")
            self.check_end("late", moment + 0.5)
            self.assertTrue(self.player.is_playing("loop"))
        finally:
            self.server.thaw()
        self.check_heard_again(time.monotonic() + 0.5)

    def test_the_program_ends_while_the_server_is_frozen(self):
        self.start_loop("loop")
        self.server.freeze()
        try:
            time.sleep(0.5)
            self.report(f"ended after {self.quit_player() * 1000:.0f} ms")
        finally:
            self.server.thaw()

    def test_a_sound_begins_and_ends_at_a_frozen_server(self):
        self.load("tone", seconds=0.5)
        self.server.freeze()
        try:
            moment = self.player.play("tone")
            self.check_end("tone", moment + 0.5)
            self.report(f"ended after {self.quit_player() * 1000:.0f} ms")
        finally:
            self.server.thaw()


if __name__ == "__main__":
    SOUNDPLAYER = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)
