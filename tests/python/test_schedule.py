"""Days on which jobs start."""

import datetime
import gc

import pytest
import zelmodel
from support import EXAMPLES

date = datetime.date


def schedule_of(example: str) -> zelmodel.Schedule:
    return zelmodel.read(EXAMPLES / example).schedule()


# Mondays and Fridays; 2024-03-01 is a Friday.
WEEKLY = "weekly-with-monthly-fulls-and-gfs.xml"
DAYS = [
    (WEEKLY, date(2024, 3, 1), True, date(2024, 3, 4), date(2024, 2, 26)),
    (WEEKLY, date(2024, 3, 2), False, date(2024, 3, 4), date(2024, 3, 1)),
    (WEEKLY, date(2024, 3, 4), True, date(2024, 3, 8), date(2024, 3, 1)),
    ("nightly-file-server.xml", date(2024, 2, 28), True, date(2024, 2, 29), date(2024, 2, 27)),
    ("nightly-file-server.xml", date(1400, 1, 1), True, date(1400, 1, 2), None),
    ("nightly-file-server.xml", date(9999, 12, 31), True, None, date(9999, 12, 30)),
    ("periodical-every-4-hours.xml", date(2024, 3, 1), True, date(2024, 3, 2), date(2024, 2, 29)),
    ("continuous.xml", date(2024, 3, 1), True, date(2024, 3, 2), date(2024, 2, 29)),
    ("older/schedule-disabled.xml", date(2024, 3, 1), False, None, None),
]


@pytest.mark.parametrize(("example", "day", "scheduled", "following", "previous"), DAYS)
def test_days(
    example: str,
    day: datetime.date,
    scheduled: bool,
    following: datetime.date | None,
    previous: datetime.date | None,
) -> None:
    schedule = schedule_of(example)
    assert schedule.is_scheduled(day) is scheduled
    assert schedule.next_scheduled_day(day) == following
    assert schedule.previous_scheduled_day(day) == previous


def test_a_schedule_and_its_calendars() -> None:
    schedule = schedule_of(WEEKLY)
    assert schedule.enabled
    assert schedule.calendar.is_weekly
    assert (schedule.calendar.is_monthly, schedule.calendar.is_periodical, schedule.calendar.is_continuous) == (
        False,
        False,
        False,
    )
    assert schedule.calendar.time == "21:00"
    # The time of day reads as a duration, on purpose.
    assert schedule.calendar.words == "Every Monday, Friday at 21 hours"
    assert schedule.calendar.next_scheduled_day(date(2024, 3, 1)) == date(2024, 3, 4)
    assert schedule.calendar.is_scheduled(date(2024, 3, 4))


def test_full_backups() -> None:
    schedule = schedule_of(WEEKLY)
    active, synthetic = schedule.active_full, schedule.synthetic_full
    assert (active.enabled, active.calendar.is_monthly, active.calendar.time) == (True, True, None)
    assert [day for day in range(1, 32) if active.is_scheduled(date(2024, 3, day))] == [1]
    # On the first Mondays of January and July alone.
    assert [month for month in range(1, 13) if synthetic.calendar.next_scheduled_day(date(2024, month, 1)) == date(2024, month, 1)] == []
    assert synthetic.calendar.next_scheduled_day(date(2024, 1, 1)) == date(2024, 7, 1)
    assert synthetic.is_scheduled(date(2024, 7, 1))
    assert not schedule_of("nightly-file-server.xml").synthetic_full.enabled


def test_a_moment_counts_as_its_date() -> None:
    assert schedule_of(WEEKLY).next_scheduled_day(datetime.datetime(2024, 3, 1, 23, 59)) == date(2024, 3, 4)


@pytest.mark.parametrize("day", [None, "2024-03-01", 20240301, datetime.time(1)])
def test_what_is_no_date_is_a_type_error(day: object) -> None:
    schedule = schedule_of(WEEKLY)
    for call in (schedule.is_scheduled, schedule.next_scheduled_day, schedule.previous_scheduled_day):
        with pytest.raises(TypeError):
            call(day)  # type: ignore[arg-type]


def test_a_date_before_the_calendar_is_an_error() -> None:
    with pytest.raises(zelmodel.Error):
        schedule_of(WEEKLY).is_scheduled(date(1399, 12, 31))


def test_a_part_outlives_its_owner() -> None:
    calendar = zelmodel.read(EXAMPLES / WEEKLY).job_options().schedule.active_full.calendar
    gc.collect()
    assert calendar.is_monthly
    assert calendar.next_scheduled_day(date(2024, 3, 1)) == date(2024, 4, 5)


def test_a_window_can_be_put_into_a_schedule() -> None:
    schedule = schedule_of(WEEKLY)
    assert schedule.window is None
    schedule.window = zelmodel.Window(is_open=True)
    gc.collect()
    assert schedule.window is not None
    assert schedule.window.is_open_at(0, 0)
    schedule.window = None
    assert schedule.window is None


ASKED = [
    ({"count": 0}, "The count is 0 instead of 1 to 1000."),
    ({"count": -1}, "The count is -1 instead of 1 to 1000."),
    ({"count": 1001}, "The count is 1001 instead of 1 to 1000."),
    ({"until": date(2024, 2, 29)}, "The last day lies before the first."),
    ({"until": date(2200, 1, 1)}, "The last day lies more than 36600 days after the first."),
]


@pytest.mark.parametrize(("asked", "sentence"), ASKED)
def test_questions_that_make_no_sense_are_refused(asked: dict[str, object], sentence: str) -> None:
    document = zelmodel.read(EXAMPLES / WEEKLY)
    with pytest.raises(zelmodel.Error) as error:
        document.next_days(date(2024, 3, 1), **asked)  # type: ignore[arg-type]
    assert error.value.chain == [sentence]


def test_why_no_day_is_told() -> None:
    told = zelmodel.read(EXAMPLES / "older/schedule-disabled.xml").next_days(date(2024, 3, 1))
    assert told == {"notScheduled": "Nothing is scheduled: the job is disabled."}
