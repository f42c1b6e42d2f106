"""Repeats tests that measure time and may fail because the computer is busy."""

import functools

ATTEMPTS = 3


def measures_moments(test):
    """Lets a test run up to three times, each time from its beginning, until it passes.

    A busy computer sometimes delivers a key, a reply or a piece of sound late. A defect of the
    program shows in every attempt, and then the test fails. It fails at once if the program has
    crashed.
    """
    @functools.wraps(test)
    def run(self):
        for attempt in range(1, ATTEMPTS):
            try:
                return test(self)
            except AssertionError as error:
                if has_crashed(self):
                    raise
                print(f"{test.__name__}: attempt {attempt}: {error}", flush=True)
            self.tearDown()
            self.doCleanups()
            self.setUp()
        return test(self)
    return run


def has_crashed(test):
    return any(program.process.poll() not in (None, 0) for program in getattr(test, "programs", ()))
