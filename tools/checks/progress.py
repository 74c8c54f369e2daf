"""How far a check is that takes long."""

import time

SECONDS = 10


class Progress:
    def __init__(self, what, total):
        self.what, self.total, self.done = what, total, 0
        self._told = time.monotonic()

    def step(self):
        """One more is done; says so when nothing was said for some seconds."""
        self.done += 1
        if time.monotonic() - self._told >= SECONDS:
            self._told = time.monotonic()
            print(f"{self.what}: {self.done} of {self.total}", flush=True)
