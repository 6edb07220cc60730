"""How refusals are told: an Error with its chain of sentences and its line, whatever came in."""

import os
import subprocess
import sys
from pathlib import Path
from typing import Callable

import pytest
import zelmodel
from support import ACCEPTED, EXAMPLES, REFUSED, name_of

JOB = ["BackupJobOptions: Converting from XML failed.", "BackupJobOptions: Converting KIV Job options from XML failed."]
TOO_LARGE = 256 * 1024 * 1024 + 1


def refusal(call: Callable[[], object]) -> tuple[list[str], int | None]:
    with pytest.raises(zelmodel.Error) as error:
        call()
    assert str(error.value) == " ".join(error.value.chain)
    return error.value.chain, error.value.line


CHAINS = [
    ("several-faults.xml", [*JOB, "Unable to convert string [14x] to [unsigned long]."], 2),
    (
        "schedule-version-4.xml",
        [
            *JOB,
            "ScheduleOptions: Failed to deserialize from Xml.",
            "CStartJobScheduleOptions: Failed to deserialize from Xml.",
            "Unknown version: [4].",
        ],
        3,
    ),
    # Thrown as a pointer by the library; the brackets are empty on purpose.
    ("window-of-unknown-kind.xml", ["An unsupported schedule window kind occurred: []."], 3),
]


@pytest.mark.parametrize(("example", "chain", "line"), CHAINS, ids=[row[0] for row in CHAINS])
def test_tells_the_chain_and_the_line(example: str, chain: list[str], line: int) -> None:
    document = zelmodel.read(EXAMPLES / "refused" / example)
    calls: list[Callable[[], object]] = [document.describe, document.tree, document.to_xml]
    for call in calls[:2]:
        assert refusal(call) == (chain, line)
    assert refusal(calls[2])[0] == chain


def test_a_pointer_that_is_thrown_is_an_error_each_time() -> None:
    document = zelmodel.read(EXAMPLES / "refused/window-of-unknown-kind.xml")
    for _ in range(1000):
        assert refusal(document.window)[0] == ["An unsupported schedule window kind occurred: []."]


def test_malformed_documents_are_refused_at_once() -> None:
    chain = ["Unable to parse XML at line 2: [XML_ERROR_MISMATCHED_ELEMENT]."]
    assert refusal(lambda: zelmodel.read(EXAMPLES / "refused/malformed.xml")) == (chain, None)


def test_unknown_documents_are_refused_at_once() -> None:
    chain, line = refusal(lambda: zelmodel.parse("\n<Inventory/>"))
    assert chain[0] == "The element [Inventory] begins no document that is known."
    assert line == 2


WRONG_KINDS = [
    ("gfs-policy.xml", "job_options", "The document is a GFS policy, not job options."),
    ("gfs-policy.xml", "schedule", "The document is a GFS policy, which has no schedule."),
    ("gfs-policy.xml", "window", "The document is a GFS policy, not a backup window."),
    ("periodical-window.xml", "gfs_policy", "The document is a backup window, not a GFS policy."),
]


@pytest.mark.parametrize(("example", "method", "sentence"), WRONG_KINDS, ids=[row[1] for row in WRONG_KINDS])
def test_wrong_kinds_are_refused(example: str, method: str, sentence: str) -> None:
    assert refusal(getattr(zelmodel.read(EXAMPLES / example), method))[0] == [sentence]


HOSTILE: list[tuple[str, str | bytes, str]] = [
    ("nothing", b"", "Unable to parse XML at line "),
    ("blanks", b" \n ", "Unable to parse XML at line "),
    ("a NUL byte", b"<GfsPolicy\0/>", "Unable to parse XML at line "),
    ("a NUL byte behind the document", b"<GfsPolicy/>\0", "Unable to parse XML at line "),
    ("a NUL character", "<GfsPolicy\0/>", "Unable to parse XML at line "),
    ("a text", b"backup", "Unable to parse XML at line "),
    ("depth", b"<a>" * 100_000, "Unable to parse XML at line "),
    ("elements", b"<a>" + b"<b/>" * 1_100_000 + b"</a>", "Unable to parse XML at line "),
    ("attributes", b"<a " + b" ".join(b'a%d="of some length"' % i for i in range(1025)) + b"/>", "Unable to parse XML at line "),
    ("a lone surrogate", "<GfsPolicy a='\ud800'/>", "The text holds a code point that UTF-8 cannot carry."),
    ("a huge name", b"<" + b"a" * 4_000_000 + b"/>", "The element [aaa"),
]


@pytest.mark.parametrize(("source", "begin"), [row[1:] for row in HOSTILE], ids=[row[0] for row in HOSTILE])
def test_hostile_texts_are_refused(source: str | bytes, begin: str) -> None:
    assert refusal(lambda: zelmodel.parse(source))[0][0].startswith(begin)


def test_a_huge_value_is_read() -> None:
    text = "x" * 8_000_000
    document = zelmodel.parse(f'<SqlVariant Type="1" Value="{text}"/>')
    tree = document.tree()["sqlVariant"]
    assert tree["fields"]["value"]["value"] == text
    assert len(document.describe()) < 10_000


def test_bytes_that_are_no_utf8_pass() -> None:
    document = zelmodel.parse(b'<SqlVariant Type="1" Value="\xff"/>')
    assert document.to_xml().encode("utf-8", "surrogateescape") == b'<SqlVariant Type="1" Value="\xff"/>'
    assert zelmodel.parse(document.to_xml()).to_xml() == document.to_xml()
    assert "\\xff" in document.describe()


@pytest.mark.parametrize("example", ACCEPTED, ids=name_of)
def test_cut_documents_are_refused_or_read(example: Path) -> None:
    text = example.read_bytes()
    for end in range(0, len(text), max(1, len(text) // 60)):
        cut = text[:end]
        assert isinstance(zelmodel.check(b"<" if cut == b"" else cut), list)
        try:
            zelmodel.parse(cut).describe()
        except zelmodel.Error as error:
            assert error.chain


@pytest.mark.parametrize("example", REFUSED, ids=name_of)
def test_refused_examples_have_findings(example: Path) -> None:
    findings = zelmodel.check(example)
    assert "refused" in {finding["class"] for finding in findings}
    with pytest.raises(zelmodel.Error):
        zelmodel.read(example).tree()


FILES: list[tuple[str, Callable[[Path], object], str]] = [
    ("read", zelmodel.read, "cannot be read: No such file or directory"),
    ("check", zelmodel.check, "cannot be read: No such file or directory"),
    ("log", lambda path: iter(zelmodel.Log(path)), "cannot be read: No such file or directory"),
    ("skipped", lambda path: zelmodel.Log(path).skipped(), "cannot be read: No such file or directory"),
    (
        "write",
        lambda path: zelmodel.read(EXAMPLES / "gfs-policy.xml").write(path / "new.xml"),
        "cannot be written: No such file or directory",
    ),
    (
        "replace",
        lambda path: zelmodel.read(EXAMPLES / "gfs-policy.xml").write(path, replace=True),
        "cannot be replaced: No such file or directory",
    ),
]


@pytest.mark.parametrize(("call", "reason"), [row[1:] for row in FILES], ids=[row[0] for row in FILES])
def test_failures_of_files_name_them(tmp_path: Path, call: Callable[[Path], object], reason: str) -> None:
    missing = tmp_path / "missing"
    [sentence] = refusal(lambda: call(missing))[0]
    assert sentence.startswith(str(missing))
    assert sentence.endswith(": " + reason)


@pytest.mark.parametrize("call", [zelmodel.read, zelmodel.check, zelmodel.Log])
def test_names_with_a_nul_byte_are_refused(call: Callable[[str], object]) -> None:
    assert refusal(lambda: call("window.xml\0.txt"))[0] == ["The name of a file holds a NUL byte."]


def test_a_folder_is_no_document(tmp_path: Path) -> None:
    assert refusal(lambda: zelmodel.read(tmp_path))[0] == [f"{tmp_path}: cannot be read: Is a directory"]


def test_a_file_that_is_too_large_is_refused_before_it_is_read(tmp_path: Path) -> None:
    file = tmp_path / "large.xml"
    file.touch()
    os.truncate(file, TOO_LARGE)
    sentence = "The document is larger than 268435456 bytes."
    assert refusal(lambda: zelmodel.read(file)) == ([sentence], None)
    assert zelmodel.check(file) == [
        {"class": "refused", "id": "malformed-document", "text": sentence, "refused": [sentence]}
    ]


def test_an_error_is_a_value_error_that_can_be_made_by_hand() -> None:
    error = zelmodel.Error("by hand")
    assert isinstance(error, ValueError)
    assert (str(error), error.chain, error.line) == ("by hand", [], None)


SHORT_OF_MEMORY = """
import resource, sys, zelmodel
text = b'<SqlVariant Type="1" Value="' + b"x" * (40 << 20) + b'"/>'
taken = int(open("/proc/self/statm").read().split()[0]) * resource.getpagesize()
limit = taken + (int(sys.argv[1]) << 20)
resource.setrlimit(resource.RLIMIT_AS, (limit, limit))
try:
    zelmodel.parse(text)
except MemoryError:
    print("MemoryError")
assert zelmodel.parse(b'<SqlVariant Type="1" Value=""/>').describe()
"""


@pytest.mark.parametrize("spare_mib", [20, 60], ids=["for the text", "for the parser"])
def test_memory_that_runs_out_is_told_as_such(spare_mib: int) -> None:
    call = [sys.executable, "-c", SHORT_OF_MEMORY, str(spare_mib)]
    assert subprocess.run(call, capture_output=True, text=True, check=True).stdout == "MemoryError\n"
