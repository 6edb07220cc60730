"""The same documents give the same answers through C++, Python and the command."""

import datetime
import json
from pathlib import Path

import pytest
import zelmodel
from support import ACCEPTED, EXAMPLES, REFUSED, command, name_of, run
from zelmodel import Kind

BEFORE = datetime.date(2024, 3, 1)
FIRST = datetime.date(2024, 3, 2)
DAYS = 5
WITH_SCHEDULE = (Kind.AgentJobOptions, Kind.ServerJobOptions, Kind.ScheduleOptions, Kind.LoneSchedule)


def days_after(schedule: zelmodel.Schedule, date: datetime.date) -> list[str]:
    days: list[str] = []
    day = schedule.next_scheduled_day(date)
    while day is not None and len(days) < DAYS:
        days.append(day.isoformat())
        day = schedule.next_scheduled_day(day)
    return days


def hours_of(window: zelmodel.Window) -> list[str]:
    """The week from Sunday on, which is the last day of Python's."""
    return ["".join("01"[window.is_open_at(day, hour)] for hour in range(24)) for day in (6, 0, 1, 2, 3, 4, 5)]


@pytest.mark.parametrize("example", ACCEPTED, ids=name_of)
def test_the_same_documents_give_the_same_answers(example: Path) -> None:
    document = zelmodel.read(example)
    ours = json.loads(run("python_answers", example))

    assert document.kind.words == ours["kind"]
    assert document.describe() == ours["describe"] == run("zelmodel", "show", example)
    assert document.tree() == command("show", example)
    assert document.check() == zelmodel.check(example) == command("check", example)["files"][0]["findings"]

    if document.kind in WITH_SCHEDULE:
        told = command("next", example, "--from", FIRST, "-n", DAYS)
        assert document.next_days(FIRST, DAYS) == told
        days = [item["value"] for item in told["next"]["items"]] if "next" in told else []
        assert days == ours["days"] == days_after(document.schedule(), BEFORE)
        assert document.previous_days(FIRST, DAYS) == command("next", example, "--from", FIRST, "-n", DAYS, "--previous")
        until = datetime.date(2024, 5, 31)
        assert document.next_days(FIRST, until=until) == command("next", example, "--from", FIRST, "--until", until)
    if document.kind == Kind.ScheduleWindow:
        assert hours_of(document.window()) == ours["hours"]


def test_there_are_documents_of_each_answer() -> None:
    kinds = [zelmodel.read(example).kind for example in ACCEPTED]
    assert len(kinds) >= 36
    assert sum(kind in WITH_SCHEDULE for kind in kinds) >= 10
    assert kinds.count(Kind.ScheduleWindow) >= 3


@pytest.mark.parametrize("example", REFUSED, ids=name_of)
def test_the_same_documents_are_refused_in_the_same_way(example: Path) -> None:
    told = command("show", example)
    with pytest.raises(zelmodel.Error) as error:
        zelmodel.read(example).tree()
    assert error.value.chain == told["refused"]
    assert error.value.line == told.get("line")
    assert zelmodel.check(example) == command("check", example)["files"][0]["findings"]


def test_a_window_plays_the_same_part() -> None:
    job = EXAMPLES / "periodical-every-4-hours.xml"
    file = EXAMPLES / "periodical-window.xml"
    document = zelmodel.read(job)
    window = zelmodel.read(file).window()
    assert document.next_days(FIRST, 7, window=window) == command("next", job, "--from", FIRST, "-n", 7, "--window", file)
    # The command tells the window's own findings first.
    assert document.check(window) == command("check", job, "--window", file)["files"][1]["findings"]


@pytest.mark.parametrize("name", ["nightly.log", "nightly.log.1", "nightly.log.2.gz"])
def test_the_same_logs_hold_the_same_records(name: str) -> None:
    log = zelmodel.Log(EXAMPLES / "logs" / name)
    records, skipped = iter(log), log.skipped()
    told = [json.loads(line) for line in run("zelmodel", "log", EXAMPLES / "logs" / name, "--json-lines", "--skipped").splitlines()]
    assert [
        {
            "line": record.line,
            "time": f"{record.time:%Y-%m-%d %H:%M:%S} UTC",
            "session": str(record.session),
            "severity": record.severity,
            "message": record.message,
        }
        for record in records
    ] == [{key: line[key] for key in line if key not in ("kind", "schema", "file")} for line in told if line["kind"] == "record"]
    assert [(line.line, line.reason) for line in skipped] == [
        (line["line"], line["reason"]) for line in told if line["kind"] == "skipped"
    ]
    counts = {key: told[-1][key] for key in ("lines", "records", "skipped", "empty")}
    assert records.counts == skipped.counts == counts
