"""Waits for a condition, with a time limit."""

import time

# In seconds. Waiting costs nothing when it succeeds, so this limit leaves room for a computer that
# is busy with other tests. A limit that is a requirement is asserted by the test itself.
PATIENCE = 30


class Gone(Exception):
    """An object of the desktop that was there a moment ago is gone."""


def wait_until(condition, what, *, seconds=PATIENCE, pause=0.01):
    """Polls a condition until it holds; returns how many seconds that took.

    The condition does not hold while it asks an object that is just going away.
    """
    start = time.monotonic()
    while not holds(condition):
        if time.monotonic() - start > seconds:
            raise AssertionError(f"not within {seconds} s: {what}")
        time.sleep(pause)
    return time.monotonic() - start


def holds(condition):
    try:
        return condition()
    except Gone:
        return False
