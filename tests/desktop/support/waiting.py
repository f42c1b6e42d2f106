"""Waiting for something to happen, but not for ever."""

import time


def wait_until(condition, seconds, what, pause=0.002):
    """Asks for a condition, with pauses, until it holds; gives how many seconds it took."""
    start = time.monotonic()
    while not condition():
        if time.monotonic() - start > seconds:
            raise AssertionError(f"not within {seconds} s: {what}")
        time.sleep(pause)
    return time.monotonic() - start
