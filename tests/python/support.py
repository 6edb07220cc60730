"""What the tests share: the project's files, and the command."""

import json
import os
import subprocess
from pathlib import Path
from typing import Any

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ.get("ZELMODEL_BUILD", ROOT / "build/release"))
EXAMPLES = ROOT / "examples"

#: The documents that are accepted, and those that are not.
ACCEPTED = sorted(p for p in EXAMPLES.rglob("*.xml") if "refused" not in p.parts and "binary" not in p.parts)
REFUSED = sorted((EXAMPLES / "refused").glob("*.xml"))


def name_of(path: Path) -> str:
    """The identifier of a test about an example."""
    return path.relative_to(EXAMPLES).as_posix()


def run(program: str, *arguments: object) -> str:
    """What a program of the build prints, whatever its exit status."""
    call = [str(BUILD / "bin" / program), *map(str, arguments)]
    return subprocess.run(call, stdout=subprocess.PIPE, check=False).stdout.decode("utf-8")


def command(*arguments: object) -> dict[str, Any]:
    """What the command prints as JSON, without what is about the call."""
    answer: dict[str, Any] = json.loads(run("zelmodel", *arguments, "--json"))
    for member in ("kind", "schema", "file"):
        del answer[member]
    return answer
