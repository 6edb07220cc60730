"""Logs: what is read, by whom, and while others go on."""

import datetime
import gc
import gzip
import os
import threading
import uuid
from pathlib import Path

import pytest
import zelmodel
from support import EXAMPLES

SESSION = uuid.UUID("5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295")
LINE = f"2024-03-06 22:30:00 UTC {SESSION} info Number "


def lines(count: int, begin: int = 0) -> bytes:
    return "".join(f"{LINE}{number}\n" for number in range(begin, begin + count)).encode()


def test_a_record() -> None:
    record = next(iter(zelmodel.Log(EXAMPLES / "logs/nightly.log")))
    assert record.line == 1
    assert record.time == datetime.datetime(2024, 3, 6, 22, 30, tzinfo=datetime.timezone.utc)
    assert record.session == SESSION
    assert record.severity == "info"
    assert record.message == "Job started: nightly file server"


def test_records_skipped_lines_and_counts() -> None:
    log = zelmodel.Log(str(EXAMPLES / "logs/nightly.log"))
    records = iter(log)
    assert records.counts == {"lines": 0, "records": 0, "skipped": 0, "empty": 0}
    assert [record.line for record in records] == [1, 2, 3, 4, 5, 7, 10, 11]
    assert records.counts == {"lines": 11, "records": 8, "skipped": 2, "empty": 1}
    assert [line.line for line in log.skipped()] == [6, 8]
    assert all(line.reason for line in log.skipped())
    assert list(records) == []


def test_each_iteration_begins_anew(tmp_path: Path) -> None:
    file = tmp_path / "job.log"
    file.write_bytes(lines(2))
    log = zelmodel.Log(file)
    assert len(list(log)) == 2
    file.write_bytes(lines(3))
    assert len(list(log)) == 3


@pytest.mark.parametrize("count", [0, 1, 1023, 1024, 1025, 5000])
def test_every_line_comes_once_and_in_order(tmp_path: Path, count: int) -> None:
    file = tmp_path / "job.log"
    file.write_bytes(lines(count).rstrip(b"\n"))
    records = list(zelmodel.Log(file))
    assert [record.message for record in records] == [f"Number {number}" for number in range(count)]
    assert [record.line for record in records] == list(range(1, count + 1))


def test_a_damaged_file_gives_what_it_has_before_it_fails(tmp_path: Path) -> None:
    file = tmp_path / "job.log.gz"
    file.write_bytes(gzip.compress(lines(5000))[:-12])
    records = iter(zelmodel.Log(file))
    taken = 0
    with pytest.raises(zelmodel.Error) as error:
        for taken, _ in enumerate(records, 1):
            pass
    assert taken > 1000
    assert error.value.chain
    assert list(records) == []


def test_lines_that_hold_anything(tmp_path: Path) -> None:
    file = tmp_path / "job.log"
    file.write_bytes(b"\0\n" + LINE.encode() + b"\xff\n" + b"x" * 100_000 + b"\n\n")
    log = zelmodel.Log(file)
    [record] = log
    assert record.message.encode("utf-8", "surrogateescape") == b"Number \xff"
    assert [line.line for line in log.skipped()] == [1, 3]
    assert [line.reason for line in log.skipped()][1] == "The line is longer than 65536 bytes."


def test_the_iterator_outlives_its_log(tmp_path: Path) -> None:
    file = tmp_path / "job.log"
    file.write_bytes(lines(3000))
    log = zelmodel.Log(file)
    records = iter(log)
    next(records)
    del log
    file.unlink()
    gc.collect()
    assert len(list(records)) == 2999


def test_a_record_outlives_its_iterator() -> None:
    record = next(iter(zelmodel.Log(EXAMPLES / "logs/nightly.log")))
    gc.collect()
    assert record.message == "Job started: nightly file server"


def test_another_thread_counts_on_while_a_log_is_read(tmp_path: Path) -> None:
    """The log is a pipe that the reader waits for: it gets more only after others have counted on meanwhile."""
    half = 100_000
    pipe = tmp_path / "job.log"
    os.mkfifo(pipe)
    counted = 0
    moves, done = threading.Event(), threading.Event()

    def count() -> None:
        nonlocal counted
        while not done.is_set():
            counted += 1
            moves.set()

    def write() -> None:
        with pipe.open("wb") as file:
            file.write(lines(half))
            file.flush()
            before = counted
            while counted < before + 1000:
                moves.clear()
                moves.wait()
            file.write(lines(half, half))

    threads = [threading.Thread(target=count), threading.Thread(target=write)]
    for thread in threads:
        thread.start()
    numbers = [record.line for record in zelmodel.Log(pipe)]
    done.set()
    for thread in threads:
        thread.join()
    assert numbers == list(range(1, 2 * half + 1))
    assert counted >= 1000


def test_another_thread_writes_the_document_that_is_read(tmp_path: Path) -> None:
    pipe = tmp_path / "policy.xml"
    os.mkfifo(pipe)
    text = (EXAMPLES / "gfs-policy.xml").read_bytes()
    thread = threading.Thread(target=lambda: pipe.write_bytes(text))
    thread.start()
    document = zelmodel.read(pipe)
    thread.join()
    assert document.kind == zelmodel.Kind.GfsPolicy


def test_threads_share_an_iterator(tmp_path: Path) -> None:
    count = 50_000
    file = tmp_path / "job.log"
    file.write_bytes(lines(count))
    records = iter(zelmodel.Log(file))
    taken: list[list[int]] = [[], [], [], []]
    threads = [
        threading.Thread(target=lambda own=own: own.extend(record.line for record in records)) for own in taken
    ]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert sorted(line for own in taken for line in own) == list(range(1, count + 1))
    for own in taken:
        assert own == sorted(own)


def test_reasons_stay_with_their_log_while_other_threads_read(tmp_path: Path) -> None:
    """The library notes a begin that is no date, too, when it reads a policy."""
    count = 5000
    policy = (
        '<GfsPolicy IsEnabled="true"><Weekly IsEnabled="true" KeepBackupsForNumberOfWeeks="6" BeginTimeUtc="never"'
        ' DesiredTime="0"/></GfsPolicy>'
    )
    files = [tmp_path / f"{number}.log" for number in range(3)]
    for number, file in enumerate(files):
        file.write_text("".join(f"no record {number}-{line}\n" for line in range(count)))
    reasons: list[list[str]] = [[], [], []]
    done = threading.Event()

    def read(number: int) -> None:
        reasons[number].extend(line.reason for line in zelmodel.Log(files[number]).skipped())

    def note() -> None:
        while not done.is_set():
            assert zelmodel.parse(policy).gfs_policy().enabled

    noting = threading.Thread(target=note)
    readers = [threading.Thread(target=read, args=(number,)) for number in range(3)]
    for thread in [noting, *readers]:
        thread.start()
    for thread in readers:
        thread.join()
    done.set()
    noting.join()
    alone = [[line.reason for line in zelmodel.Log(file).skipped()] for file in files]
    assert reasons == alone
    assert all(len(own) == count for own in alone)
    assert not any("never" in reason for own in alone for reason in own)


@pytest.mark.parametrize("path", [None, 5, b"job.log"])
def test_what_is_no_path_is_a_type_error(path: object) -> None:
    with pytest.raises(TypeError):
        zelmodel.Log(path)  # type: ignore[arg-type]
