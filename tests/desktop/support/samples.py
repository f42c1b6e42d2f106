"""Measures recorded sound: arrays of 16-bit samples."""

import array
import math
import wave

RATE = 48000
AUDIBLE = 100  # of 32768


def loudest(samples):
    return max(max(samples, default=0), -min(samples, default=0))


def rms(samples):
    return math.sqrt(sum(sample * sample for sample in samples) / len(samples))


def frequency(samples):
    rises = sum(1 for a, b in zip(samples, samples[1:]) if a < 0 <= b)
    return rises * RATE / len(samples)


def strength(samples, tone):
    """Returns how loud one frequency is among others."""
    real = imaginary = 0.0
    step = 2 * math.pi * tone / RATE
    for i, sample in enumerate(samples):
        real += sample * math.cos(step * i)
        imaginary += sample * math.sin(step * i)
    return 2 * math.hypot(real, imaginary) / len(samples)


def longest_silence(samples):
    """Returns the longest run of silent samples, in milliseconds."""
    longest = current = 0
    for sample in samples:
        current = current + 1 if abs(sample) < AUDIBLE else 0
        longest = max(longest, current)
    return longest * 1000 / RATE


def largest_step(samples):
    return max(abs(b - a) for a, b in zip(samples, samples[1:]))


def write_tone(path, tone, seconds):
    """Writes a sound file with a sine of one frequency."""
    with wave.open(path, "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(array.array("h", (
            round(16000 * math.sin(2 * math.pi * tone * i / RATE))
            for i in range(round(seconds * RATE)))).tobytes())
