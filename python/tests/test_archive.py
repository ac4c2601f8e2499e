"""The archive of captures on a local Dask cluster: a folder written by the project's capture
writer (tools/sibdump/mkarchive.py) gives the cells, changes, links and errors that the
folder was made with, and the same tables with one worker as with two."""
import csv
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import pytest
from conftest import PYTHON_DIR, REPO

pytest.importorskip("dask.distributed", reason="no Dask (apt-get install python3-dask python3-distributed)")

sys.path.insert(0, str(REPO / "tools" / "sibdump"))
import mkarchive  # noqa: E402

TABLES = ["cells.csv", "cells.jsonl", "neighbours.csv", "errors.csv", "index.html"]


def archive(*args, sibdump=mkarchive.SIBDUMP):
    env = dict(os.environ, PYTHONPATH=str(PYTHON_DIR), SIBDUMP=str(sibdump))
    return subprocess.run([sys.executable, "-m", "sibdecoder_umts.archive", *map(str, args)], env=env,
                          capture_output=True, text=True, check=True)


@pytest.fixture(scope="module")
def runs(tmp_path_factory):
    for tool in (mkarchive.SIBDUMP, mkarchive.MKCAPTURES):
        if not tool.is_file():
            pytest.skip(f"no {tool.name} at {tool}")
    if "NOT AVAILABLE" in subprocess.run([str(mkarchive.SIBDUMP), "--help"], capture_output=True, text=True).stdout:
        pytest.skip("sibdump built without libpcap: it reads no capture (apt-get install libpcap-dev)")
    root = tmp_path_factory.mktemp("archive")
    made = mkarchive.test_folder(root / "captures")
    two = archive(root / "captures", "--workers", 2, "--out", root / "two", "--quiet")
    one = archive(root / "captures", "--workers", 1, "--out", root / "one")
    return root, made, two, one


def rows(path):
    with open(path, newline="") as f:
        return list(csv.DictReader(f))


def key(cell):
    plmn, lac, ci, uarfcn = cell
    return f"{plmn}/{lac}/{ci}/{uarfcn if uarfcn is not None else 'no ARFCN in the capture'}"


def test_cells_changes_links_and_errors(runs):
    root, made, _, _ = runs
    out = root / "two"
    cells = {c["key"]: c for c in map(json.loads, (out / "cells.jsonl").read_text().splitlines())}
    a, b, c, d = (key(x) for x in (mkarchive.A, mkarchive.B, mkarchive.C, mkarchive.D))
    assert sorted(cells) == sorted([a, b, c, d])
    names = {k: sorted(Path(f).name for f in cells[k]["files"]) for k in cells}
    assert names == {a: ["a_b.pcap", "a_b_later.pcapng"], b: ["a_b.pcap", "a_b_later.pcapng"],
                     c: ["c_damaged.pcap"], d: ["d.bch"]}
    # A's frames span the first file's start to the second's end (an hour later; 2 cycles of
    # rounds 20 ms apart); D, from hex text, has no time.
    assert cells[a]["first_seen"] == "2026-01-01T00:00:00.000000Z"
    assert cells[a]["last_seen"].startswith("2026-01-01T01:00:") and cells[d]["first_seen"] is None
    # B's MIB value tag went from 3 to 4 in the second file.
    assert [cfg["value_tags"]["masterInformationBlock"] for cfg in cells[b]["configurations"]] == [3, 4]
    (change,) = cells[b]["changes"]
    assert Path(change["file"]).name == "a_b_later.pcapng" and change["time"] == "2026-01-01T01:00:00.000000Z"
    assert change["from"].startswith("mib=3 ") and change["to"].startswith("mib=4 ")
    assert cells[a]["changes"] == [] and len(cells[a]["configurations"]) == 1
    assert cells[b]["latest_file"].endswith("a_b_later.pcapng") and cells[b]["latest"]["schedule"][0]["value_tag"] == 4
    # Own codes as the lists leave them; the links they give.
    assert {k: cells[k]["scrambling_code"] for k in cells} == {a: made["code_of_a"], b: made["code_of_b"], c: 301, d: None}
    links = {(r["cell"], r["kind"], r["uarfcn"], r["scrambling_code"]): r["linked_cell"]
             for r in rows(out / "neighbours.csv") if r["linked_cell"]}
    assert links == {(a, "intra", "10700", str(made["code_of_b"])): b, (b, "intra", "10700", str(made["code_of_a"])): a,
                     (a, "inter", "10663", "301"): c, (b, "inter", "10663", "301"): c, (d, "inter", "10663", "301"): c}
    gsm = [r for r in rows(out / "neighbours.csv") if r["cell"] == a and r["kind"] == "gsm"]
    assert [(r["bcch_arfcn"], r["bsic"]) for r in gsm] == [("62", "3-1"), ("70", "3-4"), ("81", "5-2")]
    table = {r["key"]: r for r in rows(out / "cells.csv")}
    assert table[c]["lac"] == str(0x4E22) and table[d]["uarfcn"] == "none" and table[a]["q_rxlevmin (dBm)"] == "-115"
    errors = {Path(r["file"]).name: r["reason"] for r in rows(out / "errors.csv")}
    assert sorted(errors) == ["c_damaged.pcap", "notes.pcap"]
    assert "kept" in errors["c_damaged.pcap"] and "bad hex digit" in errors["notes.pcap"]


def test_one_worker_gives_the_same_tables(runs):
    root, _, _, one = runs
    for name in TABLES:
        assert (root / "one" / name).read_bytes() == (root / "two" / name).read_bytes(), name
    assert re.search(r"5/5 tasks, [\d.]+ files/s, \d+ blocks/s", one.stderr)


def test_resume_skips_the_files_done(runs):
    root, _, _, _ = runs
    out = root / "resumed"
    shutil.copytree(root / "two", out)
    results = sorted((out / "results").glob("*.json"))
    kept, lost = results[0], results[1]
    marked = dict(json.loads(kept.read_text()), marker="not decoded again")
    kept.write_text(json.dumps(marked))
    lost.unlink()
    run = archive(root / "captures", "--workers", 1, "--out", out, "--resume")
    assert json.loads(kept.read_text())["marker"] == "not decoded again" and lost.exists()
    assert "5/5 tasks" in run.stderr
    for name in TABLES:
        assert (out / name).read_bytes() == (root / "two" / name).read_bytes(), name


def test_a_lost_worker_has_its_task_run_again(runs):
    """The first sibdump run kills its worker process (SIGKILL to its parent): the cluster
    runs the task again on the worker that replaces it, and nothing is lost. No libsibdump.so
    lies beside this sibdump, so every file goes through a sibdump process here, and the tables
    are those of the runs that decoded inside the workers."""
    root = runs[0]
    killer = root / "sibdump_that_kills_its_worker"
    killer.write_text(f"#!/bin/sh\nif mkdir '{root}/killed' 2>/dev/null; then kill -9 $PPID; exit 1; fi\n"
                      f"exec '{mkarchive.SIBDUMP}' \"$@\"\n")
    killer.chmod(0o755)
    archive(root / "captures", "--workers", 2, "--out", root / "lost", "--quiet", sibdump=killer)
    assert (root / "killed").is_dir()
    for name in TABLES:
        assert (root / "lost" / name).read_bytes() == (root / "two" / name).read_bytes(), name


def test_index_in_a_browser_links_each_cell_to_its_page(runs):
    chromium = os.environ.get("UMTS_CHROMIUM", "/usr/bin/chromium")
    if not os.path.exists(chromium):
        pytest.skip(f"no {chromium} (apt-get install chromium)")
    out = runs[0] / "two"
    with tempfile.TemporaryDirectory() as profile:
        dom = subprocess.run([chromium, "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                              "--disable-background-networking", "--disable-component-update", "--disable-sync",
                              f"--user-data-dir={profile}", "--dump-dom", (out / "index.html").as_uri()],
                             capture_output=True, text=True, timeout=120).stdout
    assert 'data-rows="4"' in dom  # the page's script ran over the 4 rows of cells
    links = re.findall(r'<a class="summary" href="([^"#]+)#(cell-\d+)"', dom)
    assert len(links) == 4
    for page, anchor in links:
        assert f'id="{anchor}"' in (out / page).read_text(), page
