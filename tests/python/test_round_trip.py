"""What is written reads back; what cannot be written or told without being asked for is refused."""

import stat
from pathlib import Path
from typing import Any

import pytest
import zelmodel
from support import ACCEPTED, EXAMPLES, name_of, run
from zelmodel import Kind

NEVER_WRITTEN = (Kind.DirectImmutability, Kind.TaskLogRecord)
# Nobody wrote down when its credentials were renewed: it is the time of reading, another one each time.
TOLD_BY_THE_CLOCK = "object-storage-certificate.xml"
# The mode of the settings is read and never written, on purpose.
WITHOUT_A_MODE = "immutability.xml"
WRITTEN = [
    example
    for example in ACCEPTED
    if zelmodel.read(example).kind not in NEVER_WRITTEN and example.name != TOLD_BY_THE_CLOCK
]


def values(field: Any) -> Any:
    """The values alone, without their words, where they came from, and what the reader ignored."""
    if isinstance(field, list):
        return [values(item) for item in field]
    if not isinstance(field, dict):
        return field
    kept = {key: field[key] for key in ("value", "items") if key in field}
    fields = {name: values(part) for name, part in field.get("fields", {}).items() if name != "ignored"}
    return {**{key: values(part) for key, part in kept.items()}, **fields}


@pytest.mark.parametrize("example", WRITTEN, ids=name_of)
def test_what_is_written_reads_back(example: Path) -> None:
    document = zelmodel.read(example)
    again = zelmodel.parse(document.to_xml(reveal=True))
    assert again.to_xml(reveal=True) == document.to_xml(reveal=True)
    assert document.to_xml(reveal=True) + "\n" == run("zelmodel", "convert", example, "--reveal")
    # The managing server's form is written as the agent's.
    if document.kind == Kind.ServerJobOptions:
        assert again.kind == Kind.AgentJobOptions
        return
    assert again.kind == document.kind
    [before], [after] = document.tree(reveal=True).values(), again.tree(reveal=True).values()
    if example.name == WITHOUT_A_MODE:
        assert (before["fields"]["mode"]["value"], after["fields"].pop("mode")["value"]) == (1, 0)
        before["fields"].pop("mode")
    assert values(after) == values(before)


@pytest.mark.parametrize("example", [p for p in ACCEPTED if zelmodel.read(p).kind in NEVER_WRITTEN], ids=name_of)
def test_what_is_never_written_is_refused(example: Path) -> None:
    with pytest.raises(zelmodel.Error) as error:
        zelmodel.read(example).to_xml()
    assert error.value.chain[-1].endswith("which is read and never written.")


def test_writes_a_new_file_and_no_other(tmp_path: Path) -> None:
    document = zelmodel.read(EXAMPLES / "gfs-policy.xml")
    file = tmp_path / "new.xml"
    document.write(file)
    assert file.read_text() == document.to_xml() + "\n"
    with pytest.raises(zelmodel.Error) as error:
        document.write(str(file))
    assert error.value.chain == [f"{file}: cannot be written: File exists"]


def test_replaces_a_file_and_keeps_the_old_one(tmp_path: Path) -> None:
    file = tmp_path / "job.xml"
    file.write_text("before")
    file.chmod(0o640)
    document = zelmodel.read(EXAMPLES / "gfs-policy.xml")
    document.write(file, replace=True)
    assert file.read_text() == document.to_xml() + "\n"
    assert stat.S_IMODE(file.stat().st_mode) == 0o640
    assert (tmp_path / "job.xml.orig").read_text() == "before"


def test_fields_are_changed_in_a_new_document() -> None:
    document = zelmodel.read(EXAMPLES / "nightly-file-server.xml")
    changed = document.changed({"maxDays": "21", "schedule.jobStart.time": "06:15"})
    assert (changed.job_options().max_days, document.job_options().max_days) == (21, 14)
    assert changed.schedule().calendar.time == "06:15"
    assert changed.to_xml() + "\n" == run(
        "zelmodel", "set", EXAMPLES / "nightly-file-server.xml", "maxDays=21", "schedule.jobStart.time=06:15"
    )


CHANGES = [
    ({"maxDays": "0"}, "Number of days for daily retention must be"),
    ({"maxDay": "7"}, "maxDay"),
]


@pytest.mark.parametrize(("fields", "words"), CHANGES)
def test_changes_that_make_no_sense_are_refused(fields: dict[str, str], words: str) -> None:
    with pytest.raises(zelmodel.Error, match=words):
        zelmodel.read(EXAMPLES / "nightly-file-server.xml").changed(fields)


def test_fields_are_texts() -> None:
    document = zelmodel.read(EXAMPLES / "nightly-file-server.xml")
    with pytest.raises(TypeError):
        document.changed({"maxDays": 7})  # type: ignore[dict-item]
    with pytest.raises(TypeError):
        document.changed([("maxDays", "7")])  # type: ignore[arg-type]
