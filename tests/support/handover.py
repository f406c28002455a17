"""What the tests of a start share: waiting for something, and that a second start hands over to the first one."""

import sys
import time

PATIENCE = 120  # seconds, on a busy machine


def wait_for(what, condition):
    """What the condition is in the end; ends the test where it never comes true."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"{what}: not within {PATIENCE} seconds")


def a_second_start_hands_over(start, folder, holds_lock):
    """The first program, alive, on whose folder a second one was started.

    `start` starts one with its messages in a pipe, `folder` is where both keep their files, `holds_lock` says of a
    started program whether the lock there is its own."""
    first = start()
    wait_for("the first start", lambda: holds_lock(first))
    second = start()
    _, said = second.communicate(timeout=PATIENCE)
    if second.returncode != 0 or "running already" not in said:
        sys.exit(f"the second start ended with {second.returncode}: {said}")
    wait_for("the call to the first start", lambda: not (folder / "gatewise.show").exists())
    if first.poll() is not None:
        sys.exit("the first program has ended")
    return first
