"""Waits for a condition, with a time limit."""

import time


def wait_until(condition, seconds, what, pause=0.002):
    """Polls a condition until it holds; returns how many seconds that took."""
    start = time.monotonic()
    while not condition():
        if time.monotonic() - start > seconds:
            raise AssertionError(f"not within {seconds} s: {what}")
        time.sleep(pause)
    return time.monotonic() - start
