"""Waiting for what is to come, never for a fixed time."""

import time

# Long enough for a slow and busy machine; a scenario that goes well never waits it out.
PATIENCE = 30.0
# A browser has to come up as well.
BROWSER = 100.0


class GaveUp(AssertionError):
    """What was waited for did not come."""


def until(what, condition, seconds=PATIENCE, pause=0.05):
    """Returns the first true value of condition(); fails with `what` when none comes in time."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise GaveUp(f"waited {seconds:.0f} s in vain for: {what}")
        time.sleep(pause)


def throughout(what, condition, seconds, pause=0.05):
    """Fails as soon as condition() is not true during `seconds`."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            raise GaveUp(f"did not last {seconds:.1f} s: {what}")
        time.sleep(pause)
