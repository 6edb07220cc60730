"""Secrets are told to those who ask, and to nobody else."""

from pathlib import Path

import pytest
import zelmodel
from support import EXAMPLES

SECRETS = ("not-a-real-secret-access-key", "not-a-real-session-token", "not-a-real-password")
STORAGE = EXAMPLES / "object-storage.xml"


def assert_hidden(text: str) -> None:
    for secret in SECRETS:
        assert secret not in text


def test_are_hidden_unless_they_are_asked_for() -> None:
    document = zelmodel.read(STORAGE)
    for text in (repr(document), str(document), f"{document}", document.describe(), str(document.tree())):
        assert_hidden(text)
    assert "(hidden, 28 characters)" in document.describe()
    for secret in SECRETS:
        assert secret in document.describe(reveal=True)
        assert secret in str(document.tree(reveal=True))
        assert secret in document.to_xml(reveal=True)


def test_a_hidden_field_is_marked() -> None:
    def marked(field: object) -> list[object]:
        if not isinstance(field, dict):
            return []
        own = [field] if field.get("secret") else []
        return own + [found for child in field.get("fields", {}).values() for found in marked(child)]

    [tree] = zelmodel.read(STORAGE).tree().values()
    fields = marked(tree)
    assert len(fields) == len(SECRETS)
    assert all(isinstance(field, dict) and "value" not in field for field in fields)


def test_the_document_is_not_told_with_its_secrets() -> None:
    with pytest.raises(zelmodel.Error) as error:
        zelmodel.read(STORAGE).to_xml()
    assert error.value.chain == [
        "The document holds secrets, which are told only to those who ask to reveal them."
    ]


def test_a_file_has_them(tmp_path: Path) -> None:
    zelmodel.read(STORAGE).write(tmp_path / "storage.xml")
    text = (tmp_path / "storage.xml").read_text()
    assert all(secret in text for secret in SECRETS)


def test_refusals_do_not_quote_them() -> None:
    text = STORAGE.read_bytes()
    for end in range(0, len(text), 7):
        for damaged in (text[:end], text[:end] + b"\xff\0" + text[end:], text[:end] + text[end + 3 :]):
            try:
                document = zelmodel.parse(damaged)
                assert_hidden(document.describe())
            except zelmodel.Error as error:
                # A damaged name may take a secret out of its field, but then it is in none that is told.
                assert_hidden(str(error))
            assert_hidden(str(zelmodel.check(damaged or b"<")))
