"""What is read, from what, and as which kind."""

import os
from pathlib import Path

import pytest
import zelmodel
from support import EXAMPLES
from zelmodel import Kind

WINDOW = '<ScheduleWindow Minutes="60" Kind="1"><Days><Monday Intervals="20-24"/></Days></ScheduleWindow>'

KINDS = [
    ("nightly-file-server.xml", Kind.AgentJobOptions, "job options in the agent's form"),
    ("managing-server.xml", Kind.ServerJobOptions, "job options in the managing server's form"),
    ("schedule-options.xml", Kind.ScheduleOptions, "schedule options"),
    ("../tests/golden/Schedule/weekly.xml", Kind.LoneSchedule, None),
    ("periodical-window.xml", Kind.ScheduleWindow, "a backup window"),
    ("gfs-policy.xml", Kind.GfsPolicy, None),
    ("oracle-processing.xml", Kind.OracleConfig, None),
    ("postgres-processing.xml", Kind.PostgresConfig, None),
    ("repository-limitations-enclosed.xml", Kind.RepositoryLimitations, None),
    ("immutability.xml", Kind.Immutability, None),
    ("direct-backup-immutability.xml", Kind.DirectImmutability, None),
    ("object-storage.xml", Kind.S3Params, None),
    ("cloud-container.xml", Kind.CloudContainer, None),
    ("sql-variant.xml", Kind.SqlVariant, None),
    ("session-details.xml", Kind.SessionDetails, None),
    ("session-progress.xml", Kind.SessionProgress, None),
    ("task-log-record.xml", Kind.TaskLogRecord, None),
    ("mount-session.xml", Kind.MountSession, None),
    ("job-state.xml", Kind.JobState, None),
    ("delete-points.xml", Kind.DeletePointTransform, None),
    ("synthetic-full.xml", Kind.SyntheticFullTransform, None),
    ("gfs-synthetic-full.xml", Kind.GfsSyntheticFullTransform, None),
]


@pytest.mark.parametrize(("example", "kind", "words"), KINDS, ids=[row[0] for row in KINDS])
def test_finds_the_kind(example: str, kind: Kind, words: str | None) -> None:
    document = zelmodel.read(EXAMPLES / example)
    assert document.kind == kind
    if words is not None:
        assert document.kind.words == words
    assert repr(document) == f"<zelmodel.Document: {document.kind.words}>"


def test_every_kind_has_an_example() -> None:
    assert {row[1].name for row in KINDS} == set(Kind.__members__)


@pytest.mark.parametrize(
    "text",
    [WINDOW, WINDOW.encode(), " \r\n\t" + WINDOW, "\ufeff" + WINDOW, '<?xml version="1.0"?>' + WINDOW],
    ids=["str", "bytes", "blanks before", "mark of UTF-8", "declaration"],
)
def test_reads_a_text(text: str | bytes) -> None:
    for document in (zelmodel.read(text), zelmodel.parse(text)):
        assert document.kind == Kind.ScheduleWindow
        assert document.window().hourly_offset_minutes == 60


@pytest.mark.parametrize("form", [str, Path, os.fspath], ids=["str", "Path", "fspath"])
def test_reads_a_file(tmp_path: Path, form: type) -> None:
    file = tmp_path / "window.xml"
    file.write_text(WINDOW)
    assert zelmodel.read(form(file)).kind == Kind.ScheduleWindow


def test_a_hyphen_is_the_name_of_a_file(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.chdir(tmp_path)
    Path("-").write_text(WINDOW)
    assert zelmodel.read("-").kind == Kind.ScheduleWindow


def test_parse_opens_no_file(tmp_path: Path) -> None:
    file = tmp_path / "window.xml"
    file.write_text(WINDOW)
    with pytest.raises(zelmodel.Error) as error:
        zelmodel.parse(str(file))
    assert error.value.chain[0].startswith("Unable to parse XML at line 1: ")


@pytest.mark.parametrize("call", [zelmodel.read, zelmodel.parse, zelmodel.check])
@pytest.mark.parametrize("source", [None, 7, 1.5, ["<a/>"], bytearray(b"<a/>"), object])
def test_other_types_are_refused_without_what_they_hold(call: object, source: object) -> None:
    assert callable(call)
    with pytest.raises(TypeError) as error:
        call(source)
    assert type(source).__name__ in str(error.value)
    assert "<a/>" not in str(error.value)


def test_parse_takes_no_path() -> None:
    with pytest.raises(TypeError):
        zelmodel.parse(EXAMPLES / "gfs-policy.xml")  # type: ignore[arg-type]


def test_classes_without_a_constructor_cannot_be_made() -> None:
    for name in ("Document", "Schedule", "Calendar", "FullBackup", "GfsPolicy", "GfsRule", "JobOptions", "LogRecord"):
        with pytest.raises(TypeError):
            getattr(zelmodel, name)()
