"""One zone for the tests and the programs that they start, and an end for a test that never would."""

import faulthandler
import os
import time
from typing import Iterator

import pytest

LONGEST_SECONDS = 900

os.environ["TZ"] = "UTC"
time.tzset()


@pytest.fixture(autouse=True)
def ends() -> Iterator[None]:
    """Tells where a test hangs, which the tests of the lock do when it is held, and ends everything."""
    faulthandler.dump_traceback_later(LONGEST_SECONDS, exit=True)
    yield
    faulthandler.cancel_dump_traceback_later()
