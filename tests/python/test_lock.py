"""Answers about documents are made without the interpreter lock."""

import datetime
import sys
import threading
from typing import Callable, Iterator

import pytest
import zelmodel
from support import EXAMPLES

JOB = EXAMPLES / "nightly-file-server.xml"
DOCUMENT = zelmodel.read(JOB)
TEXT = JOB.read_bytes()
DAY = datetime.date(2024, 3, 1)
NEVER_SECONDS = 100_000.0

CALLS: list[tuple[str, Callable[[], object]]] = [
    ("read", lambda: zelmodel.read(JOB)),
    ("parse", lambda: zelmodel.parse(TEXT)),
    ("check a text", lambda: zelmodel.check(TEXT)),
    ("check a file", lambda: zelmodel.check(JOB)),
    ("describe", DOCUMENT.describe),
    ("tree", DOCUMENT.tree),
    ("check", DOCUMENT.check),
    ("next_days", lambda: DOCUMENT.next_days(DAY)),
    ("previous_days", lambda: DOCUMENT.previous_days(DAY)),
    ("changed", lambda: DOCUMENT.changed({"maxDays": "21"})),
    ("to_xml", DOCUMENT.to_xml),
    ("job_options", DOCUMENT.job_options),
    ("schedule", DOCUMENT.schedule),
    ("log", lambda: list(zelmodel.Log(EXAMPLES / "logs/nightly.log"))),
]


@pytest.fixture(autouse=True)
def nobody_is_interrupted() -> Iterator[None]:
    """From now on a thread gets the lock only when another one gives it up."""
    interval = sys.getswitchinterval()
    sys.setswitchinterval(NEVER_SECONDS)
    yield
    sys.setswitchinterval(interval)


@pytest.mark.parametrize("call", [row[1] for row in CALLS], ids=[row[0] for row in CALLS])
def test_another_thread_runs_meanwhile(call: Callable[[], object]) -> None:
    go, ran = threading.Event(), threading.Event()

    def run() -> None:
        go.wait()
        ran.set()

    thread = threading.Thread(target=run)
    thread.start()
    go.set()
    while not ran.is_set():
        call()
    thread.join()
