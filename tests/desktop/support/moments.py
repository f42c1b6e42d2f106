"""Tests that measure moments, on a computer that has other things to do as well."""

import functools

ATTEMPTS = 3


def measures_moments(test):
    """Gives a test up to three attempts, each from its beginning.

    A busy computer delivers a key, an answer or a piece of sound late now and then. What the
    program itself does late or leaves out, it does each time, and then the test fails. It fails
    at once when the program has crashed.
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
