#!/usr/bin/python3
"""Synthesizes Wuffer's sounds: the default alarm and the countdown beep.

Run it from anywhere, without arguments:

    ./make_sounds.py

It writes, next to itself, as 16-bit mono PCM at 44100 Hz:

    wolvesWuff.wav   a dog: "Wuff! ... Wuff-wuff!", made to be looped
    crow.wav         a single caw, short enough to be played every second

Both animals share one voice model: a train of pulses from the larynx plus
breath noise, shaped by a few resonances that move as the mouth opens and
closes. Only the standard library is used and the random numbers are seeded,
so every run writes the same bytes.
"""

import math
import random
import struct
import wave
from dataclasses import dataclass
from pathlib import Path

RATE = 44100
PEAK = 10 ** (-1 / 20)  # -1 dBFS leaves room for resampling overshoot
STRAIN = 0.7  # how hard a voice is driven; strain adds overtones and loudness

# (time, value) points, joined smoothly.
Curve = list[tuple[float, float]]


@dataclass
class Resonance:
    frequency: Curve
    bandwidth: float
    gain: float


@dataclass
class Call:
    """One utterance of an animal; its curves run from time 0 to 1."""

    seconds: float
    pitch: Curve  # Hz
    loudness: Curve
    sharpness: Curve  # narrower pulses have more overtones
    breath: Curve  # share of noise in the voice
    resonances: list[Resonance]
    jitter: float  # random change of pitch from pulse to pulse
    shimmer: float  # random change of strength from pulse to pulse
    growl: float  # alternately strong and weak pulses, which sound an octave lower


class BandPass:
    """State-variable filter: stays stable while its frequency moves."""

    def __init__(self) -> None:
        self.low = self.band = 0.0

    def tune(self, frequency: float, bandwidth: float) -> None:
        self.g = math.tan(math.pi * frequency / RATE)
        self.damping = bandwidth / frequency
        self.scale = 1 / (1 + self.g * (self.g + self.damping))

    def process(self, sample: float) -> float:
        band = self.scale * (self.band + self.g * (sample - self.low))
        low = self.low + self.g * band
        self.band = 2 * band - self.band
        self.low = 2 * low - self.low
        return self.damping * band


def at(curve: Curve, time: float) -> float:
    """The curve's value; half cosines join the points without corners."""
    if time <= curve[0][0]:
        return curve[0][1]
    for (t0, v0), (t1, v1) in zip(curve, curve[1:]):
        if time < t1:
            part = (1 - math.cos(math.pi * (time - t0) / (t1 - t0))) / 2
            return v0 + (v1 - v0) * part
    return curve[-1][1]


def larynx(call: Call, rng: random.Random) -> list[float]:
    """Pulses and breath before the mouth shapes them."""
    samples = []
    phase = 0.0
    bend = strength = sign = 1.0
    length = round(call.seconds * RATE)
    for n in range(length):
        t = n / length
        phase += 2 * math.pi * at(call.pitch, t) * bend / RATE
        if phase > math.pi:
            # Halfway between two pulses the voice is silent, so the values of
            # the next pulse can be set here without a click.
            phase -= 2 * math.pi
            sign = -sign
            bend = 1 + call.jitter * rng.uniform(-1, 1)
            strength = 1 + call.growl * sign + call.shimmer * rng.uniform(-1, 1)
        # Scaled so that pulses keep their power when they get narrower;
        # the noise has about the same power, which makes breath a true share.
        sharpness = at(call.sharpness, t)
        power = (4 * math.pi * sharpness) ** 0.25
        pulse = strength * power * math.exp(sharpness * (math.cos(phase) - 1))
        # Air rushes most while the larynx is open, around the pulse.
        flow = 0.6 + 0.4 * math.cos(phase)
        breath = at(call.breath, t)
        noise = flow * math.sqrt(3) * rng.uniform(-1, 1)
        samples.append((1 - breath) * pulse + breath * noise)
    return samples


def mouth(call: Call, source: list[float]) -> list[float]:
    shaped = [0.0] * len(source)
    for index, resonance in enumerate(call.resonances):
        band_pass = BandPass()
        # Neighbouring resonances have opposite phases, so that between their
        # peaks they add up instead of cancelling each other.
        gain = resonance.gain * (-1) ** index
        for n, sample in enumerate(source):
            frequency = at(resonance.frequency, n / len(source))
            band_pass.tune(frequency, resonance.bandwidth)
            shaped[n] += gain * band_pass.process(sample)
    return shaped


def utter(call: Call, rng: random.Random) -> list[float]:
    shaped = mouth(call, larynx(call, rng))
    # Measured by power, so that a single high peak does not make the call faint.
    level = math.sqrt(sum(sample * sample for sample in shaped) / len(shaped))
    return [
        at(call.loudness, n / len(shaped)) * math.tanh(STRAIN * sample / level)
        for n, sample in enumerate(shaped)
    ]


def mix_in(track: list[float], samples: list[float], start: float = 0) -> None:
    first = round(start * RATE)
    for n, sample in enumerate(samples):
        track[first + n] += sample


def echo(samples: list[float], delay: float, seconds: float) -> list[float]:
    """A dull repeating echo that fades by 60 dB within the given time."""
    length = round(delay * RATE)
    feedback = 10 ** (-3 * delay / seconds)
    line = [0.0] * length
    dulled = 0.0
    result = []
    for n, sample in enumerate(samples):
        delayed = line[n % length]
        dulled += 0.35 * (delayed - dulled)
        line[n % length] = sample + feedback * dulled
        result.append(delayed)
    return result


def in_room(samples: list[float], seconds: float, amount: float) -> list[float]:
    """Adds a small room; delays without common factors sound less metallic."""
    echoes = [echo(samples, d, seconds) for d in (0.0113, 0.0171, 0.0237, 0.0293)]
    return [dry + amount * sum(wet) for dry, *wet in zip(samples, *echoes)]


def without_rumble(samples: list[float]) -> list[float]:
    """Removes frequencies below 40 Hz, and any constant offset."""
    keep = math.exp(-2 * math.pi * 40 / RATE)
    last_in = last_out = 0.0
    result = []
    for sample in samples:
        last_out = keep * (last_out + sample - last_in)
        last_in = sample
        result.append(last_out)
    return result


def finished(samples: list[float], fade: float) -> list[float]:
    """Scales to full volume, and fades out so that the file ends in silence."""
    samples = without_rumble(samples)
    gain = PEAK / max(map(abs, samples))
    end = len(samples) / RATE
    fall = [(end - fade, gain), (end, 0.0)]
    return [at(fall, n / RATE) * sample for n, sample in enumerate(samples)]


def bark(seconds: float, pitch: float) -> Call:
    """A "wuff": lips open, wide throat, lips close on a last puff of breath."""
    glide = [(0, 330), (0.15, 455), (0.32, 430), (0.75, 245), (1, 180)]
    return Call(
        seconds,
        pitch=[(time, hertz * pitch) for time, hertz in glide],
        loudness=[(0, 0), (0.07, 1), (0.45, 0.9), (0.75, 0.35), (1, 0)],
        sharpness=[(0, 40), (0.15, 130), (0.5, 90), (0.8, 40), (1, 15)],
        breath=[(0, 0.6), (0.12, 0.3), (0.5, 0.28), (0.75, 0.4), (1, 0.85)],
        resonances=[
            Resonance([(0, 230)], 160, 0.5),
            Resonance([(0, 450), (0.22, 820), (0.5, 780), (1, 450)], 200, 0.9),
            Resonance([(0, 850), (0.22, 1450), (0.5, 1350), (1, 900)], 240, 1),
            Resonance([(0, 2200), (0.25, 2700), (1, 2300)], 380, 0.6),
            Resonance([(0, 3900)], 700, 0.35),
            Resonance([(0, 5600)], 1400, 0.2),
        ],
        jitter=0.035,
        shimmer=0.25,
        growl=0.18,
    )


def caw() -> Call:
    """A rough voice; the throat opens wide at once and closes slowly."""
    return Call(
        seconds=0.36,
        pitch=[(0, 490), (0.17, 590), (0.45, 575), (0.83, 480), (1, 430)],
        loudness=[(0, 0), (0.03, 0.8), (0.2, 1), (0.6, 0.85), (1, 0)],
        sharpness=[(0, 50), (0.17, 130), (0.67, 90), (1, 30)],
        breath=[(0, 0.65), (0.08, 0.57), (0.55, 0.55), (1, 0.7)],
        resonances=[
            Resonance([(0, 1000), (0.22, 1300), (0.55, 1250), (1, 950)], 360, 0.9),
            Resonance([(0, 1500), (0.22, 1950), (0.55, 1850), (1, 1450)], 420, 1),
            Resonance([(0, 2400), (0.22, 2800), (1, 2400)], 550, 0.7),
            Resonance([(0, 4300)], 1000, 0.2),
        ],
        jitter=0.06,
        shimmer=0.35,
        growl=0.35,
    )


def alarm() -> list[float]:
    """A bark, a pause, two barks and, up to the end, the same pause.

    Equal pauses let the dog keep its pace when the file is looped.
    """
    pause, pair = 0.95, 0.34
    track = [0.0] * round((2 * pause + pair) * RATE)
    rng = random.Random(7)
    mix_in(track, utter(bark(0.21, 1.0), rng))
    mix_in(track, utter(bark(0.18, 1.04), rng), pause)
    mix_in(track, utter(bark(0.22, 0.97), rng), pause + pair)
    return finished(in_room(track, seconds=0.3, amount=0.06), fade=0.2)


def beep() -> list[float]:
    track = [0.0] * round(0.45 * RATE)
    mix_in(track, utter(caw(), random.Random(3)))
    return finished(in_room(track, seconds=0.12, amount=0.04), fade=0.05)


def write(path: Path, samples: list[float]) -> None:
    frames = [round(32767 * sample) for sample in samples]
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(struct.pack(f"<{len(frames)}h", *frames))


def main() -> None:
    here = Path(__file__).resolve().parent
    write(here / "wolvesWuff.wav", alarm())
    write(here / "crow.wav", beep())


if __name__ == "__main__":
    main()
