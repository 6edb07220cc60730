"""The settings of jobs and their retention."""

import datetime

import pytest
import zelmodel
from support import EXAMPLES

FIELDS = [
    ("compression", "Lz4"),
    ("block_size_kb", 1024),
    ("dedup_enabled", True),
    ("snapshot_mode", "SnapshotRequired"),
    ("retention_type", "Days"),
    ("max_points", 7),
    ("max_days", 14),
    ("deleted_vm_data_retention_days", 30),
    ("pre_freeze_command", "/usr/local/sbin/share-quiesce"),
    ("post_thaw_command", "/usr/local/sbin/share-release"),
    ("ignore_freeze_thaw_failures", False),
    ("freeze_thaw_scripts_timeout", 900),
    ("pre_job_command", ""),
    ("post_job_command", "/usr/local/sbin/report-backup --job nightly"),
    ("retry_count", 3),
    ("retry_timeout_ms", 600000),
    ("indexing_type", "IndexOnly"),
    ("indexed_folders", "/srv/share;/home"),
    ("product_specific", ""),
]


@pytest.mark.parametrize(("name", "value"), FIELDS)
def test_fields(name: str, value: object) -> None:
    job = zelmodel.read(EXAMPLES / "nightly-file-server.xml").job_options()
    assert getattr(job, name) == value
    assert type(getattr(job, name)) is type(value)
    with pytest.raises(AttributeError):
        setattr(job, name, value)


def test_a_job_has_a_schedule_and_a_policy_and_is_written() -> None:
    document = zelmodel.read(EXAMPLES / "weekly-with-monthly-fulls-and-gfs.xml")
    job = document.job_options()
    assert (job.retention_type, job.max_points) == ("Cycles", 12)
    assert job.deleted_vm_data_retention_days is None
    assert job.freeze_thaw_scripts_timeout is None
    assert job.schedule.calendar.time == "21:00"
    assert job.gfs_policy.yearly is not None and job.gfs_policy.yearly.keep_count == 7
    assert job.to_xml() == document.to_xml()


def utc(*fields: int) -> datetime.datetime:
    return datetime.datetime(*fields, tzinfo=datetime.timezone.utc)  # type: ignore[arg-type, misc]


def test_a_policy() -> None:
    document = zelmodel.read(EXAMPLES / "gfs-policy.xml")
    policy = document.gfs_policy()
    assert policy.enabled
    assert policy.weekly is not None and policy.monthly is not None
    weekly, monthly = policy.weekly, policy.monthly
    assert (weekly.enabled, weekly.keep_count, weekly.begin, weekly.desired_time) == (True, 6, utc(2024, 3, 31, 22), 0)
    assert (monthly.enabled, monthly.keep_count, monthly.begin, monthly.desired_time) == (False, 3, utc(2024, 4, 1), 6)
    assert policy.yearly is None
    assert policy.to_xml() == document.to_xml()


def test_a_begin_that_is_no_date_is_none() -> None:
    job = zelmodel.read(EXAMPLES / "weekly-with-monthly-fulls-and-gfs.xml").job_options()
    assert job.gfs_policy.yearly is not None
    assert job.gfs_policy.yearly.begin is None


def test_a_policy_with_long_names() -> None:
    document = zelmodel.read(EXAMPLES / "gfs-policy-long-names.xml")
    policy = document.gfs_policy()
    assert policy.to_xml(short_names=False) == document.to_xml()
    assert policy.to_xml() != document.to_xml()
