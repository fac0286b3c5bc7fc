"""Waiting for something to become true, with a limit and without fixed pauses for it."""
import time

LIMIT = 30.0  # seconds; generous, since the machine may be slow and busy
STEP = 0.02


def wait_for(condition, what, limit=LIMIT):
    """Returns the first true answer of the condition; fails with `what`, a text or what gives one, after the limit."""
    deadline = time.monotonic() + limit
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {limit:.0f} s in vain for {what() if callable(what) else what}")
        time.sleep(STEP)
