"""Hours in which jobs may run."""

import datetime
from typing import Callable

import pytest
import zelmodel
from support import EXAMPLES

moment = datetime.datetime
MONDAY, SUNDAY = 0, 6


def window_of(example: str) -> zelmodel.Window:
    return zelmodel.read(EXAMPLES / example).window()


# Open on working days from 20:00 to 06:00, on Saturday and Sunday all day; 2024-03-04 is a Monday.
HOURS = [
    (moment(2024, 3, 4, 5, 59, 59), True, moment(2024, 3, 4, 6)),
    (moment(2024, 3, 4, 6), False, moment(2024, 3, 4, 6)),
    (moment(2024, 3, 4, 19, 59), False, moment(2024, 3, 4, 19, 59)),
    (moment(2024, 3, 4, 20), True, moment(2024, 3, 5, 6)),
    (moment(2024, 3, 8, 20), True, moment(2024, 3, 11, 6)),
    (moment(2024, 3, 9, 12), True, moment(2024, 3, 11, 6)),
]


@pytest.mark.parametrize(("when", "is_open", "closes"), HOURS)
def test_answers_for_moments(when: datetime.datetime, is_open: bool, closes: datetime.datetime) -> None:
    window = window_of("periodical-window.xml")
    assert window.is_open(when) is is_open
    assert window.is_open_at(when.weekday(), when.hour) is is_open
    assert window.closing_time(when) == closes


def test_a_window_that_never_closes() -> None:
    window = window_of("always-open-window.xml")
    assert window.is_open(moment(2024, 3, 4))
    assert window.closing_time(moment(2024, 3, 4)) is None


def test_hours_are_set() -> None:
    window = zelmodel.Window()
    assert not any(window.is_open_at(day, hour) for day in range(7) for hour in range(24))
    window.set(MONDAY, 20, True)
    window.set(SUNDAY, 23, True)
    open_hours = [(day, hour) for day in range(7) for hour in range(24) if window.is_open_at(day, hour)]
    assert open_hours == [(MONDAY, 20), (SUNDAY, 23)]
    window.set(MONDAY, 20, False)
    assert not window.is_open_at(MONDAY, 20)
    again = zelmodel.parse(window.to_xml()).window()
    assert again.is_open_at(SUNDAY, 23)
    assert again.to_xml() == window.to_xml()


def test_setting_keeps_the_rest() -> None:
    window = window_of("office-hours-closed-window.xml")
    assert window.hourly_offset_minutes == -300
    window.set(MONDAY, 8, True)
    assert window.hourly_offset_minutes == -300
    assert (window.is_open_at(MONDAY, 8), window.is_open_at(MONDAY, 9)) == (True, False)


@pytest.mark.parametrize(("weekday", "hour"), [(-1, 0), (7, 0), (0, -1), (0, 24), (2**31 - 1, 0), (-(2**31), 0)])
def test_hours_that_do_not_exist_are_refused(weekday: int, hour: int) -> None:
    window = zelmodel.Window(is_open=True)
    calls: list[Callable[[], object]] = [
        lambda: window.is_open_at(weekday, hour),
        lambda: window.set(weekday, hour, False),
    ]
    for call in calls:
        with pytest.raises(zelmodel.Error) as error:
            call()
        assert error.value.chain == ["Backup window matrix indices out of range."]
    assert all(window.is_open_at(day, hour) for day in range(7) for hour in range(24))


@pytest.mark.parametrize("when", [None, "2024-03-04", datetime.date(2024, 3, 4), 5])
def test_what_is_no_moment_is_a_type_error(when: object) -> None:
    with pytest.raises(TypeError):
        zelmodel.Window().is_open(when)  # type: ignore[arg-type]


def test_a_moment_with_a_zone_is_refused() -> None:
    with pytest.raises(zelmodel.Error) as error:
        zelmodel.Window().is_open(moment(2024, 3, 4, tzinfo=datetime.timezone.utc))
    assert error.value.chain == [
        "The moment has a time zone; the times of schedules and windows are local ones without."
    ]
