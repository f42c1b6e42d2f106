"""What the tests of the whole program on a real desktop share."""
