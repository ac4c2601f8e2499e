"""What the Python tests share: the module of this source tree, the build tree's sibdump and
the sample cell."""
import json
import os
import subprocess
import sys
from pathlib import Path

import pytest

PYTHON_DIR = Path(__file__).resolve().parents[1]
REPO = PYTHON_DIR.parent
sys.path.insert(0, str(PYTHON_DIR))  # the module of this source tree

BUILD = Path(os.environ.get("UMTS_BUILD_DIR", REPO / "build"))
SIBDUMP = Path(os.environ.get("SIBDUMP", BUILD / "tools/sibdump/sibdump"))


def sample_lines(name):
    """(line number, text) of the non-comment lines of a sample, numbered as sibdump does."""
    for number, text in enumerate((REPO / "samples" / name).read_text().splitlines(), 1):
        text = text.split("#", 1)[0].strip()
        if text:
            yield number, text


def sample_blocks(name="fdd_cell.bch"):
    return [bytes.fromhex(text) for _, text in sample_lines(name)]


def sibdump(*args):
    """sibdump's JSON lines; the test skipped when the build has no sibdump."""
    if not SIBDUMP.is_file():
        pytest.skip(f"no sibdump at {SIBDUMP}")
    out = subprocess.run([str(SIBDUMP), *args], check=True, capture_output=True, text=True).stdout
    return [json.loads(line) for line in out.splitlines()]
