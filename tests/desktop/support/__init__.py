"""Shared code of the tests that run the whole program on a real desktop."""
