"""The page about the module, and what the module tells of itself."""

import doctest
import inspect
import os
import re

import pytest
import zelmodel
from support import ROOT


@pytest.mark.parametrize(("page", "least"), [("docs/python.md", 5), ("README.md", 3)])
def test_the_page_shows_what_happens(page: str, least: int, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.chdir(ROOT)
    result = doctest.testfile(str(ROOT / page), module_relative=False)
    assert result.attempted >= least
    assert result.failed == 0


def test_the_version_is_the_project_s() -> None:
    found = re.search(r"VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text().split("project(")[1])
    assert found is not None
    assert zelmodel.__version__ == found[1]


def public_members() -> list[tuple[str, object]]:
    members: list[tuple[str, object]] = [("zelmodel", zelmodel)]
    for name, member in vars(zelmodel).items():
        if name.startswith("_"):
            continue
        members.append((name, member))
        if isinstance(member, type):
            members += [(f"{name}.{part}", value) for part, value in vars(member).items() if not part.startswith("_")]
    # What an exception holds, and the names of an enumeration, are told by the class; name and value are the binding's.
    return [
        (name, member)
        for name, member in members
        if not isinstance(member, zelmodel.Kind)
        and name not in ("Error.chain", "Error.line", "Kind.name", "Kind.value")
    ]


@pytest.mark.parametrize(("name", "member"), public_members(), ids=[name for name, _ in public_members()])
def test_everything_is_documented(name: str, member: object) -> None:
    words = inspect.getdoc(member) or ""
    # The binding writes the signature above the words.
    text = [line for line in words.splitlines() if not re.match(r"\w+\(.*\) -> ", line)]
    assert any(text), name


def test_types_stand_beside_the_module() -> None:
    folder = os.path.dirname(zelmodel.__file__)
    assert {"__init__.pyi", "py.typed"} <= set(os.listdir(folder))
