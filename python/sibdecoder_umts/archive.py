"""Archives of captures: many capture files through a Dask cluster into one table of cells.

    python -m sibdecoder_umts.archive PATH... [--scheduler ADDRESS] [--workers N] [--out DIR]
                                      [--quiet] [--resume]

PATH is a capture (pcap, pcapng, or the hex text of BCH transport blocks) or a folder searched
for them (*.pcap, *.pcapng, *.cap, *.bch, *.hex). Each file is one task of a Dask cluster:
a local one of N worker processes (dask.distributed.LocalCluster) when no scheduler is given,
or the running cluster whose scheduler is at ADDRESS. The results are merged into one record
per cell, keyed by PLMN, LAC, cell identity and UARFCN, and written to DIR (./archive-out):
cells.csv, cells.jsonl, neighbours.csv, errors.csv, index.html and the summary pages in
pages/. Each task's result is kept in DIR/results/ as it arrives; --resume skips the files
whose result is there (same path, size and modification time).

How a task reads its capture: it runs sibdump's decoding of the file as
`sibdump --summary=json --jobs 1 FILE` would, and parses one JSON line per cell and
configuration (one thread: the cluster's workers are the parallel part, a file each). It runs
it inside the worker process, through libsibdump.so (sibdump_run_file, the same code as the
program, built and installed beside it), and as a sibdump process where that library is not
found.

- sibdump reads pcap and pcapng through libpcap and the hex text itself, and keeps each
  cell (sender and ARFCN) apart while it decodes. A reader in Python would take every frame's
  link, IP, UDP and GSMTAP headers apart and cross ctypes for every block, a Decoder per cell;
  in sibdump the whole file is decoded at the library's speed, and the task's Python only
  reads the few summary lines.
- Inside the worker, not a process per file: a process start (loading the library and
  libpcap with its eight libraries) cost more processor time than the file's decoding, and
  on a virtual machine process starts on two processors at once take longer each than on one
  alone, so that two workers did not get twice as far as one. A damaged file gives sibdump's
  exit status and messages either way, which go to errors.csv; a worker that dies in a task
  (the process with it) has the task run again by the cluster, which gives it up after
  distributed.scheduler.allowed-failures and then lists it in errors.csv.
- The module stays installable: standard library and Dask; sibdump and libsibdump.so are
  installed with the library and found as below.

sibdump is looked for in this order: the environment variable SIBDUMP; the build tree, when
the module is used from the source tree (build/tools/sibdump/sibdump); the bin directory of
the installation that this package belongs to; the PATH. libsibdump.so is looked for beside
the sibdump found (its directory, a build tree's, then ../lib, ../lib64 and ../lib/*/ of it,
an installation's). A worker takes the one the client
found when that file exists where the worker runs, and looks for its own the same way
otherwise (its environment); each capture must be readable under the same path there. The
tasks carry this module's functions with them (cloudpickle by value), so the workers of a
running cluster need Dask and sibdump, not this package.

A capture's times are those of its frames (UTC); the summary has none per cell, so a cell's
first and last time are those of the first and last frame of the files it was heard in, and a
configuration's first time is the first frame of the file where it was first heard. Files of
hex text have no times: their cells show none, and they order after the captures.

A cell's own primary scrambling code is not broadcast on its BCH. To link announced
neighbours to cells of the table, the archive infers it from the neighbour lists: a cell X on
UARFCN f takes the code s when s is the only code announced on f by the other cells (their
intra-frequency lists for cells on f, their inter-frequency lists otherwise) that is not in
X's own intra-frequency list and that no other cell on f has taken; this repeats until
nothing changes. The column says "inferred"; a cell whose code stays open links nothing.

The results are merged as they come (class Merger), keeping of each cell its files, time
span, the first sighting of each configuration, a short record of each sighting and the
latest summary: the client keeps a few numbers per sighting, not the summaries of every file.
"""
from __future__ import annotations

import argparse
import ctypes
import csv
import functools
import hashlib
import html
import importlib.util
import io
import json
import os
import re
import shutil
import struct
import subprocess
import sys
import time
from pathlib import Path
from typing import Dict, Iterable, List, Optional, Tuple

SUFFIXES = (".pcap", ".pcapng", ".cap", ".bch", ".hex")
DEFAULT_OUT = "archive-out"

# ---- Finding sibdump ------------------------------------------------------------------------


def find_sibdump(hint: Optional[str] = None) -> str:
    """The sibdump program, as the module's documentation says (`hint` first: the one the
    client found, which a worker of the same machine can use as it is)."""
    candidates = []
    if hint:
        candidates.append(Path(hint))
    if os.environ.get("SIBDUMP"):
        candidates.append(Path(os.environ["SIBDUMP"]))
    package = Path(__file__).resolve().parent
    if package.parent.name == "python":
        candidates.append(package.parent.parent / "build" / "tools" / "sibdump" / "sibdump")
    try:
        from . import _install  # written by `cmake --install`
        bin_dir = getattr(_install, "BIN_DIR", None)
        if bin_dir:
            candidates.append((package / bin_dir / "sibdump").resolve())
    except ImportError:
        pass
    for c in candidates:
        if c.is_file() and os.access(c, os.X_OK):
            return str(c)
    found = shutil.which("sibdump")
    if found:
        return found
    raise FileNotFoundError("sibdump not found ($SIBDUMP, the build tree, the installation, the PATH): "
                            "build it (cmake --build build --target sibdump) or name it in SIBDUMP")


# ---- The times of a capture -----------------------------------------------------------------


def capture_times(path: str) -> Tuple[Optional[float], Optional[float]]:
    """The times (seconds since 1970, UTC) of the first and last frame of a pcap or pcapng
    file, from the frames' headers only; (None, None) for anything else. A file cut short
    gives the times of the frames before the cut."""
    try:
        with open(path, "rb") as f:
            data = f.read()
    except OSError:
        return None, None
    if len(data) < 24:
        return None, None
    magic = data[:4]
    if magic in (b"\xd4\xc3\xb2\xa1", b"\xa1\xb2\xc3\xd4", b"\x4d\x3c\xb2\xa1", b"\xa1\xb2\x3c\x4d"):
        order = "<" if magic[0] in (0xD4, 0x4D) else ">"
        divisor = 1e9 if magic in (b"\x4d\x3c\xb2\xa1", b"\xa1\xb2\x3c\x4d") else 1e6
        record = struct.Struct(order + "IIII")
        first = last = None
        at = 24
        while at + 16 <= len(data):
            sec, frac, caplen, _ = record.unpack_from(data, at)
            if at + 16 + caplen > len(data):
                break
            last = sec + frac / divisor
            if first is None:
                first = last
            at += 16 + caplen
        return first, last
    if magic == b"\x0a\x0d\x0d\x0a":
        return _pcapng_times(data)
    return None, None


def _pcapng_times(data: bytes) -> Tuple[Optional[float], Optional[float]]:
    order = "<"
    divisors: List[int] = []  # per interface: ticks per second
    first = last = None
    at = 0
    while at + 12 <= len(data):
        if data[at:at + 4] == b"\x0a\x0d\x0d\x0a":  # a section: its own byte order and interfaces
            order = "<" if data[at + 8:at + 12] == b"\x4d\x3c\x2b\x1a" else ">"
            divisors = []
        kind, length = struct.unpack_from(order + "II", data, at)
        if length < 12 or length % 4 or at + length > len(data):
            break
        if kind == 1:  # interface description: if_tsresol among its options
            divisor = 1000000
            o = at + 16
            while o + 4 <= at + length - 4:
                code, size = struct.unpack_from(order + "HH", data, o)
                if code == 0:
                    break
                if code == 9 and size >= 1:
                    v = data[o + 4]
                    divisor = 2 ** (v & 0x7F) if v & 0x80 else 10 ** v
                o += 4 + (size + 3) // 4 * 4
            divisors.append(divisor)
        elif kind in (2, 6) and length >= 28:  # (obsolete) packet block, enhanced packet block
            if kind == 6:
                interface, high, low = struct.unpack_from(order + "III", data, at + 8)
            else:
                interface, = struct.unpack_from(order + "H", data, at + 8)
                high, low = struct.unpack_from(order + "II", data, at + 12)
            divisor = divisors[interface] if interface < len(divisors) else 1000000
            last = ((high << 32) | low) / divisor
            if first is None:
                first = last
        at += length
    return first, last


# ---- One task: one file ---------------------------------------------------------------------

_COUNT_LINE = re.compile(r"^sibdump: (?:cell \S+ ARFCN \d+: |\d+ (?:frames|datagrams) read, |\d+ (?:blocks|SIBs) read, )")
_TOTAL_CAPTURE = re.compile(r"^sibdump: \d+ frames read, (\d+) blocks, (\d+) SIBs,")
_TOTAL_TEXT = re.compile(r"^sibdump: (\d+) blocks read,")


def file_id(path: str) -> str:
    """A name for a file's result and page: its base name and a digest of its whole path."""
    stem = re.sub(r"[^A-Za-z0-9_.-]", "_", os.path.basename(path))[:40]
    return f"{stem}-{hashlib.sha1(path.encode('utf-8', 'surrogateescape')).hexdigest()[:10]}"


LIBRARY_NAME = "libsibdump.so"


def find_library(program: str) -> Optional[str]:
    """libsibdump.so beside sibdump `program` (its directory, then the library directories of
    the installation it is in), or None."""
    here = Path(program).resolve().parent
    places = [here, here.parent / "lib", here.parent / "lib64"] + sorted((here.parent / "lib").glob("*/"))
    for place in places:
        if (place / LIBRARY_NAME).is_file():
            return str(place / LIBRARY_NAME)
    return None


@functools.lru_cache(maxsize=None)
def library_calls(library: str):
    """sibdump_run_file and sibdump_free of libsibdump.so at `library`, loaded and declared
    once per process."""
    lib = ctypes.CDLL(library)
    run = lib.sibdump_run_file
    run.restype = ctypes.c_int
    run.argtypes = [ctypes.c_char_p, ctypes.c_char_p, ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_size_t),
                    ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_size_t)]
    lib.sibdump_free.restype = None
    lib.sibdump_free.argtypes = [ctypes.c_void_p]
    return run, lib.sibdump_free


def run_in_process(library: str, path: str) -> Tuple[int, bytes, bytes]:
    """sibdump --summary=json --jobs 1 `path` through libsibdump.so in this process: the exit
    status, standard output and standard error. ctypes lets other threads run meanwhile."""
    run, free = library_calls(library)
    out, out_length = ctypes.c_void_p(), ctypes.c_size_t()
    err, err_length = ctypes.c_void_p(), ctypes.c_size_t()
    status = run(os.fsencode(path), b"json", ctypes.byref(out), ctypes.byref(out_length), ctypes.byref(err),
                 ctypes.byref(err_length))
    texts = [ctypes.string_at(p, n.value) if p.value else b"" for p, n in ((out, out_length), (err, err_length))]
    free(out)
    free(err)
    return status, texts[0], texts[1]


def decode_file(path: str, sibdump: Optional[str] = None, in_process: bool = True) -> dict:
    """The task of one file: its cells' summaries (sibdump --summary=json), with the file,
    its size and modification time, the times of its first and last frame, the blocks read,
    and what went wrong ("error", None when nothing did). Never raises for a bad file.
    Decodes inside this process when libsibdump.so is found beside sibdump and `in_process`
    holds, through a sibdump process otherwise."""
    result = {"file": path, "size": None, "mtime": None, "first_time": None, "last_time": None,
              "blocks": 0, "summaries": [], "error": None}
    try:
        st = os.stat(path)
        result["size"], result["mtime"] = st.st_size, st.st_mtime
        program = find_sibdump(sibdump)
        library = find_library(program) if in_process else None
        if library is None:
            # One thread: the cluster runs files side by side, one per worker thread.
            run = subprocess.Popen([program, "--summary=json", "--jobs", "1", path], stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    except OSError as err:  # no such file, no permission, no sibdump
        result["error"] = f"cannot read: {err.strerror}" if err.strerror else str(err)
        return result
    if library is None:
        result["first_time"], result["last_time"] = capture_times(path)  # while sibdump decodes
        stdout, stderr = run.communicate()
        returncode = run.returncode
    else:
        returncode, stdout, stderr = run_in_process(library, path)
        result["first_time"], result["last_time"] = capture_times(path)
    stderr = stderr.decode("utf-8", "replace").splitlines()
    messages = [line for line in stderr if line.startswith("sibdump: ") and not _COUNT_LINE.match(line)]
    for line in stderr:
        m = _TOTAL_CAPTURE.match(line)
        if m:
            result["blocks"] = int(m.group(1)) + int(m.group(2))
        m = _TOTAL_TEXT.match(line)
        if m:
            result["blocks"] = int(m.group(1))
    for line in stdout.decode("utf-8", "replace").splitlines():
        try:
            summary = json.loads(line)
        except ValueError:
            continue
        if isinstance(summary, dict) and "identity" in summary:
            result["summaries"].append(summary)
    why = None
    if returncode < 0:
        why = f"sibdump ended by signal {-returncode}"
    elif returncode != 0:
        why = messages[0][len("sibdump: "):] if messages else f"sibdump exit status {returncode}"
        if len(messages) > 1:
            why += f" (and {len(messages) - 1} more messages)"
    elif not result["summaries"]:
        why = "no system information of any cell in it"
    if why is not None:
        if returncode == 1 and result["summaries"] and "kept" not in why:
            why += f"; the {len(result['summaries'])} cell summaries read are kept"
        result["error"] = why
    return result


def decode_file_json(path: str, sibdump: Optional[str] = None) -> bytes:
    """The task as it runs on the cluster: decode_file's result as JSON text. The cluster
    carries text as it is, where it takes a result of dicts and lists apart object by object:
    for the 50 KB of a file's eight cells that cost some 10 ms of processor time in the worker
    and as much again in the client, more than the decode itself. The client keeps the text as
    the file's result in `results/` and reads it once."""
    return json.dumps(decode_file(path, sibdump)).encode("utf-8")


def page_of_file(path: str, sibdump: Optional[str] = None) -> str:
    """sibdump --summary=html of a file: the page of its cells and configurations."""
    run = subprocess.run([find_sibdump(sibdump), "--summary=html", "--jobs", "1", path], stdin=subprocess.DEVNULL,
                         capture_output=True)
    return run.stdout.decode("utf-8", "replace")


# ---- Cells across files ---------------------------------------------------------------------

def _value(node):
    """A summary value as text: numbers as they are, {"value": v, ...} as v, names by name,
    what is missing as empty."""
    if isinstance(node, dict):
        if "value" in node:
            return node["value"]
        if "name" in node:
            return node["name"]
        return None
    return node


def _uarfcn_of(label: str) -> Optional[int]:
    m = re.search(r"ARFCN (\d+)$", label or "")
    return int(m.group(1)) if m else None


def cell_key(summary: dict) -> Tuple:
    """(PLMN, LAC, cell identity, UARFCN) of a summary; None where the cell did not say."""
    ident = summary.get("identity") if isinstance(summary.get("identity"), dict) else {}
    plmn = ident.get("plmn") if isinstance(ident.get("plmn"), str) else None
    lac = ident.get("lac") if isinstance(ident.get("lac"), int) else None
    ci = ident.get("cell_identity", {}).get("value") if isinstance(ident.get("cell_identity"), dict) else None
    return plmn, lac, ci, _uarfcn_of(summary.get("cell", ""))


def key_text(key: Tuple) -> str:
    plmn, lac, ci, uarfcn = key
    return "/".join([plmn or "no PLMN", "no LAC" if lac is None else str(lac),
                     "no cell identity" if ci is None else str(ci),
                     "no ARFCN in the capture" if uarfcn is None else str(uarfcn)])


def value_tags(summary: dict) -> Dict[str, object]:
    """The value tags of the blocks that the cell schedules (the MIB's first): its configuration."""
    schedule = summary.get("schedule")
    if not isinstance(schedule, list):
        return {}
    return {e.get("sib"): e.get("value_tag") for e in schedule if isinstance(e, dict) and e.get("value_tag") is not None}


def tags_text(tags: Dict[str, object]) -> str:
    short = {"masterInformationBlock": "mib", "sysInfoTypeSB1": "sb1", "sysInfoTypeSB2": "sb2"}
    out = []
    for name, tag in tags.items():
        name = short.get(name, name.replace("sysInfoType", "sib").replace("systemInfoType", "sib"))
        out.append(f"{name}={tag if isinstance(tag, (int, str)) else json.dumps(tag, sort_keys=True)}")
    return " ".join(out)


def neighbours_of(summary: dict) -> List[dict]:
    """The neighbours that a cell announces: kind, UARFCN and scrambling code (UTRA), ARFCN
    and BSIC (GSM)."""
    n = summary.get("neighbours")
    if not isinstance(n, dict):
        return []
    own = _uarfcn_of(summary.get("cell", ""))
    out = []
    for e in n.get("intra_frequency") or []:
        if isinstance(e, dict):
            out.append({"kind": "intra", "uarfcn": own, "scrambling_code": e.get("primary_scrambling_code"),
                        "cell_id": e.get("cell_id")})
    uarfcn = None
    for e in n.get("inter_frequency") or []:
        if isinstance(e, dict):
            dl = e.get("uarfcn_dl", e.get("uarfcn"))
            if isinstance(dl, int):
                uarfcn = dl
            out.append({"kind": "inter", "uarfcn": uarfcn, "scrambling_code": e.get("primary_scrambling_code"),
                        "cell_id": e.get("cell_id")})
    for e in n.get("gsm") or []:
        if isinstance(e, dict):
            bsic = e.get("bsic") if isinstance(e.get("bsic"), str) else None
            out.append({"kind": "gsm", "bcch_arfcn": e.get("bcch_arfcn"), "bsic": bsic, "cell_id": e.get("cell_id")})
    return out


def _order(result: dict) -> Tuple:
    t = result.get("first_time")
    return (t is None, t or 0.0, result["file"])


class Merger:
    """Cells across files, fed one task result at a time in any order: of each cell it keeps
    the files, the time span, each configuration's first sighting, a short record of every
    sighting (for the changes) and the latest summary only, so that an archive of many files
    is merged in little memory."""

    def __init__(self):
        self._cells: Dict[Tuple, dict] = {}
        self._tags: Dict[str, int] = {}  # configurations by their JSON, numbered

    def add(self, result: dict) -> None:
        order = _order(result)
        for index, summary in enumerate(result.get("summaries", [])):
            key = cell_key(summary)
            cell = self._cells.get(key)
            if cell is None:
                cell = self._cells[key] = {"key": key, "files": set(), "times": [], "seen": [], "first": {},
                                           "latest": None}
            cell["files"].add((order, result["file"]))
            cell["times"] += [t for t in (result.get("first_time"), result.get("last_time")) if t is not None]
            cell["times"] = [min(cell["times"]), max(cell["times"])] if cell["times"] else []
            tags = json.dumps(value_tags(summary))  # in the order of the schedule
            number = self._tags.setdefault(tags, len(self._tags))
            at = (order, index)
            cell["seen"].append((at, number))
            if number not in cell["first"] or at < cell["first"][number][0]:
                cell["first"][number] = (at, result.get("first_time"), result["file"])
            if cell["latest"] is None or at > cell["latest"][0]:
                cell["latest"] = (at, summary, result["file"])

    def cells(self) -> List[dict]:
        """The merged records, sorted by key, with the neighbour links."""
        tags_of = {n: json.loads(t) for t, n in self._tags.items()}
        out = []
        for key, m in self._cells.items():
            (_, index), summary, latest_file = m["latest"]
            seen = sorted(m["seen"])
            firsts = sorted((first, number) for number, first in m["first"].items())
            configurations, changes = [], []
            for (at, first_time, file), number in firsts:
                configurations.append({"value_tags": tags_of[number], "first_seen": first_time, "file": file})
                before = [n for a, n in seen if a < at]
                if before:
                    changes.append({"time": first_time, "file": file, "from": tags_text(tags_of[before[-1]]),
                                    "to": tags_text(tags_of[number])})
            out.append({
                "key": key_text(key), "plmn": key[0], "lac": key[1], "cell_identity": key[2], "uarfcn": key[3],
                "files": [f for _, f in sorted(m["files"])],
                "first_seen": m["times"][0] if m["times"] else None, "last_seen": m["times"][1] if m["times"] else None,
                "configurations": configurations, "changes": changes,
                "latest": summary, "latest_file": latest_file, "latest_index": index,
                "neighbours": neighbours_of(summary),
            })
        out.sort(key=lambda c: c["key"])
        _infer_codes(out)
        _link(out)
        return out


def merge(results: Iterable[dict]) -> List[dict]:
    """One record per cell from the tasks' results (any order)."""
    merger = Merger()
    for result in results:
        merger.add(result)
    return merger.cells()


def _infer_codes(cells: List[dict]) -> None:
    """Each cell's own primary scrambling code, where the neighbour lists leave one choice
    (see the module's documentation)."""
    announcers: Dict[int, Dict[int, set]] = {}  # uarfcn -> code -> the cells announcing it
    own_lists: List[set] = []  # each cell's intra-frequency codes
    for i, c in enumerate(cells):
        c["scrambling_code"] = None
        own_lists.append(set())
        for n in c["neighbours"]:
            f, code = n.get("uarfcn"), n.get("scrambling_code")
            if n["kind"] in ("intra", "inter") and isinstance(f, int) and isinstance(code, int):
                announcers.setdefault(f, {}).setdefault(code, set()).add(i)
                if n["kind"] == "intra":
                    own_lists[i].add(code)
    taken: Dict[int, set] = {}  # uarfcn -> the codes given to cells on it
    changed = True
    while changed:
        changed = False
        for i, c in enumerate(cells):
            f = c["uarfcn"]
            if c["scrambling_code"] is not None or f is None:
                continue
            choices = [code for code, by in announcers.get(f, {}).items()
                       if by - {i} and code not in own_lists[i] and code not in taken.get(f, ())]
            if len(choices) == 1:
                c["scrambling_code"] = choices[0]
                taken.setdefault(f, set()).add(choices[0])
                changed = True


def _link(cells: List[dict]) -> None:
    by_code = {}
    for c in cells:
        if c["scrambling_code"] is not None:
            by_code.setdefault((c["uarfcn"], c["scrambling_code"]), []).append(c["key"])
    for c in cells:
        for n in c["neighbours"]:
            found = by_code.get((n.get("uarfcn"), n.get("scrambling_code"))) if n["kind"] != "gsm" else None
            # GSM cells are not cells of this table (its cells are UMTS cells): no GSM link.
            n["linked_cell"] = found[0] if found and len(found) == 1 and found[0] != c["key"] else None


# ---- Outputs --------------------------------------------------------------------------------

def _time_text(t: Optional[float]) -> str:
    if t is None:
        return ""
    micro = int(round(t * 1e6))
    return time.strftime("%Y-%m-%dT%H:%M:%S", time.gmtime(micro // 1000000)) + f".{micro % 1000000:06d}Z"


#: The columns of cells.csv: (header with the unit, how the value is found).
CELL_COLUMNS = [
    ("key", lambda c: c["key"]),
    ("plmn", lambda c: c["plmn"]),
    ("lac", lambda c: c["lac"]),
    ("rac", lambda c: _value(c["latest"].get("identity", {}).get("rac"))),
    ("cell_identity", lambda c: c["cell_identity"]),
    ("rnc_id", lambda c: (c["latest"].get("identity", {}).get("cell_identity") or {}).get("rnc_id")),
    ("c_id", lambda c: (c["latest"].get("identity", {}).get("cell_identity") or {}).get("c_id")),
    ("uarfcn", lambda c: c["uarfcn"] if c["uarfcn"] is not None else "none"),
    ("scrambling_code (inferred)", lambda c: c["scrambling_code"]),
    ("first_seen (UTC)", lambda c: _time_text(c["first_seen"])),
    ("last_seen (UTC)", lambda c: _time_text(c["last_seen"])),
    ("files", lambda c: len(c["files"])),
    ("configurations", lambda c: len(c["configurations"])),
    ("value_tags", lambda c: tags_text(value_tags(c["latest"]))),
    ("cell_barred", lambda c: _value(c["latest"].get("access", {}).get("cell_barred"))),
    ("q_rxlevmin (dBm)", lambda c: _value(c["latest"].get("selection", {}).get("q_rxlevmin"))),
    ("q_qualmin (dB)", lambda c: _value(c["latest"].get("selection", {}).get("q_qualmin"))),
    ("s_intrasearch (dB)", lambda c: _value(c["latest"].get("selection", {}).get("s_intrasearch"))),
    ("t_reselection (s)", lambda c: _value(c["latest"].get("selection", {}).get("t_reselection"))),
    ("intra_neighbours", lambda c: sum(n["kind"] == "intra" for n in c["neighbours"])),
    ("inter_neighbours", lambda c: sum(n["kind"] == "inter" for n in c["neighbours"])),
    ("gsm_neighbours", lambda c: sum(n["kind"] == "gsm" for n in c["neighbours"])),
    ("latest_file", lambda c: c["latest_file"]),
]

NEIGHBOUR_COLUMNS = ["cell", "kind", "uarfcn", "scrambling_code", "bcch_arfcn", "bsic", "cell_id", "linked_cell"]


def _safe(value):
    """A value for a CSV cell, where dicts (what is missing) become empty."""
    return "" if value is None or isinstance(value, (dict, list)) else value


def _csv_text(header: List[str], rows: Iterable[List]) -> str:
    out = io.StringIO()
    w = csv.writer(out, lineterminator="\n")
    w.writerow(header)
    for row in rows:
        w.writerow([_safe(v) for v in row])
    return out.getvalue()


def page_name(path: str) -> str:
    return f"pages/{file_id(path)}.html"


def write_tables(out: Path, cells: List[dict], errors: List[Tuple[str, str]]) -> None:
    """cells.csv, cells.jsonl, neighbours.csv, errors.csv and index.html."""
    out.mkdir(parents=True, exist_ok=True)
    (out / "cells.csv").write_text(_csv_text([h for h, _ in CELL_COLUMNS],
                                             ([f(c) for _, f in CELL_COLUMNS] for c in cells)), encoding="utf-8")
    with open(out / "cells.jsonl", "w", encoding="utf-8") as f:
        for c in cells:
            record = json.loads(json.dumps(c))
            record.update(first_seen=_time_text(c["first_seen"]) or None, last_seen=_time_text(c["last_seen"]) or None,
                          page=f"{page_name(c['latest_file'])}#cell-{c['latest_index'] + 1}")
            for k in record["configurations"] + record["changes"]:
                key = "first_seen" if "first_seen" in k else "time"
                k[key] = _time_text(k[key]) or None
            f.write(json.dumps(record, sort_keys=True, separators=(",", ":")) + "\n")
    (out / "neighbours.csv").write_text(_csv_text(NEIGHBOUR_COLUMNS, (
        [c["key"]] + [n.get(k) for k in NEIGHBOUR_COLUMNS[1:]] for c in cells for n in c["neighbours"])), encoding="utf-8")
    (out / "errors.csv").write_text(_csv_text(["file", "reason"], sorted(errors)), encoding="utf-8")
    (out / "index.html").write_text(index_html(cells, errors), encoding="utf-8")


_SORT_SCRIPT = """
document.querySelectorAll('th').forEach(function (th, column) {
  th.addEventListener('click', function () {
    var body = th.closest('table').tBodies[0];
    var rows = Array.prototype.slice.call(body.rows);
    var down = th.getAttribute('data-order') !== 'up';
    th.setAttribute('data-order', down ? 'up' : 'down');
    rows.sort(function (a, b) {
      var x = a.cells[column].textContent, y = b.cells[column].textContent;
      var nx = parseFloat(x), ny = parseFloat(y);
      var c = (!isNaN(nx) && !isNaN(ny)) ? nx - ny : x.localeCompare(y);
      return down ? c : -c;
    });
    rows.forEach(function (r) { body.appendChild(r); });
  });
});
document.body.setAttribute('data-rows', String(document.querySelectorAll('#cells tbody tr').length));
"""


def index_html(cells: List[dict], errors: List[Tuple[str, str]]) -> str:
    e = html.escape
    head = "".join(f"<th>{e(h)}</th>" for h, _ in CELL_COLUMNS)
    rows = []
    for c in cells:
        link = f"{page_name(c['latest_file'])}#cell-{c['latest_index'] + 1}"
        values = [f(c) for _, f in CELL_COLUMNS]
        tds = [f"<td><a class=\"summary\" href=\"{e(link)}\">{e(str(values[0]))}</a></td>"]
        tds += [f"<td>{e(str(_safe(v)))}</td>" for v in values[1:]]
        rows.append("<tr>" + "".join(tds) + "</tr>")
    bad = "".join(f"<tr><td>{e(f)}</td><td>{e(r)}</td></tr>" for f, r in sorted(errors))
    return ("<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Cells of the archive</title>"
            "<style>body{font-family:sans-serif}table{border-collapse:collapse}td,th{border:1px solid #bbb;white-space:nowrap;"
            "padding:2px 6px;font-size:13px}th{cursor:pointer;background:#eee}</style></head><body>"
            f"<h1>Cells of the archive</h1><p>{len(cells)} cells; click a column's head to sort by it, a cell's "
            "key for the summary of its latest configuration.</p>"
            f"<table id=\"cells\"><thead><tr>{head}</tr></thead><tbody>{''.join(rows)}</tbody></table>"
            f"<h2>Files not read whole</h2><table id=\"errors\"><thead><tr><th>file</th><th>reason</th></tr></thead>"
            f"<tbody>{bad}</tbody></table><script>{_SORT_SCRIPT}</script></body></html>\n")


# ---- The run --------------------------------------------------------------------------------

def find_files(paths: Iterable[str]) -> List[str]:
    """The files named, and those of the folders named whose suffix is a capture's."""
    found = set()
    for p in paths:
        path = Path(p)
        if path.is_dir():
            for root, _, names in os.walk(path):
                for name in names:
                    if name.lower().endswith(SUFFIXES):
                        found.add(os.path.abspath(os.path.join(root, name)))
        else:
            found.add(os.path.abspath(p))
    return sorted(found)


class Progress:
    """Tasks done of all, files/s and blocks/s on standard error, one line rewritten."""

    def __init__(self, total: int, quiet: bool):
        self.total, self.quiet = total, quiet
        self.done = self.blocks = 0
        self.kept = 0  # files done in an earlier run (--resume): not in the rates
        self.start = time.perf_counter()
        self.shown = 0.0

    def add(self, blocks: int, kept: bool = False) -> None:
        self.done += 1
        if kept:
            self.kept += 1
        else:
            self.blocks += blocks
        self.show(self.done == self.total)

    def show(self, force: bool = False) -> None:
        now = time.perf_counter()
        if self.quiet or (not force and now - self.shown < 0.2):
            return
        self.shown = now
        seconds = max(now - self.start, 1e-9)
        width = 30
        filled = width * self.done // self.total if self.total else width
        sys.stderr.write(f"\r[{'#' * filled}{'.' * (width - filled)}] {self.done}/{self.total} tasks, "
                         f"{(self.done - self.kept) / seconds:.1f} files/s, {self.blocks / seconds:.0f} blocks/s"
                         + (f" ({self.kept} done before)" if self.kept else ""))
        sys.stderr.flush()

    def end(self) -> None:
        if not self.quiet and self.total:
            sys.stderr.write("\n")


def _client(scheduler: Optional[str], workers: int):
    import logging
    from dask.distributed import Client, LocalCluster
    if scheduler:
        return Client(scheduler), None
    # The local cluster shares the machine with the tasks: its processes' periodic work (the
    # profiler's samples of the task thread every 10 ms, the event loops' ticks, the system and
    # memory monitors) took some 4 % of a processor each, idle or not. The workers take this
    # configuration with them when they start.
    import dask
    with dask.config.set({"distributed.worker.profile.enabled": False,
                          "distributed.admin.tick.interval": "1s",
                          "distributed.admin.system-monitor.interval": "2s",
                          "distributed.worker.memory.monitor-interval": "1s",
                          "distributed.scheduler.work-stealing-interval": "1s"}):
        cluster = LocalCluster(n_workers=workers, threads_per_worker=1, processes=True, dashboard_address=None,
                               silence_logs=logging.ERROR)
        return Client(cluster), cluster


def _ship_by_value() -> None:
    """Tasks carry this module's functions by value, so that the workers of a running cluster
    need Dask and sibdump but not this package."""
    try:
        import cloudpickle
        cloudpickle.register_pickle_by_value(sys.modules[__name__])
    except (ImportError, AttributeError, ValueError):
        pass


def run(paths: List[str], out: str = DEFAULT_OUT, scheduler: Optional[str] = None, workers: int = 2,
        quiet: bool = False, resume: bool = False,
        stats: Optional[dict] = None) -> Tuple[List[dict], List[Tuple[str, str]]]:
    """The whole run; returns the cells and the errors (file, reason) written to `out`.
    `stats`, when given, receives the seconds of starting the cluster ("cluster_start"), of
    the files' tasks ("tasks_seconds") and the blocks they read ("blocks")."""
    from dask.distributed import as_completed
    out_dir = Path(out)
    results_dir = out_dir / "results"
    for old in (results_dir, out_dir / "pages"):
        if old.exists() and not resume:
            shutil.rmtree(old)
    results_dir.mkdir(parents=True, exist_ok=True)
    files = find_files(paths)
    try:
        sibdump = find_sibdump()
    except FileNotFoundError:
        sibdump = None  # each worker looks for it on its own
    merger = Merger()
    errors: List[Tuple[str, str]] = []
    progress = Progress(len(files), quiet)

    def take(r: dict, kept: bool = False) -> None:  # each result is merged as it comes, and not kept
        merger.add(r)
        if r.get("error"):
            errors.append((r["file"], r["error"]))
        progress.add(r.get("blocks", 0), kept)

    todo = []
    for path in files:
        kept = results_dir / f"{file_id(path)}.json"
        if resume and kept.exists():
            try:
                r = json.loads(kept.read_text(encoding="utf-8"))
                st = os.stat(path)
                if r.get("file") == path and r.get("size") == st.st_size and r.get("mtime") == st.st_mtime:
                    take(r, kept=True)
                    continue
            except (OSError, ValueError):
                pass
        todo.append(path)
    _ship_by_value()
    started = time.perf_counter()
    client, cluster = _client(scheduler, workers)
    if stats is not None:
        stats["cluster_start"] = time.perf_counter() - started
    try:
        started = progress.start = time.perf_counter()
        # All the tasks go to the scheduler in one message, and the results done by the time
        # the last ones were taken come back in one request: a request for each result cost
        # the client and the scheduler a round of messages per file.
        stamp = time.time_ns()
        futures = client.map(decode_file_json, todo, [sibdump] * len(todo), pure=False,
                             key=[f"decode-{file_id(path)}-{stamp}" for path in todo])
        path_of = {future.key: path for future, path in zip(futures, todo)}
        for batch in as_completed(futures).batches():
            finished = [f for f in batch if f.status == "finished"]
            try:
                texts = dict(zip((f.key for f in finished), client.gather(finished)))
            except Exception:  # a result lost on the way: each is asked for on its own below
                texts = {}
            for future in batch:
                path = path_of[future.key]
                try:
                    text = texts[future.key] if future.key in texts else future.result()
                    r = json.loads(text)
                except Exception as err:  # the cluster gave the task up (a worker lost too often)
                    errors.append((path, f"task failed on the cluster: {type(err).__name__}: {err}"))
                    progress.add(0)
                    continue
                tmp = results_dir / f".{file_id(path)}.json.part"
                tmp.write_bytes(text)
                tmp.replace(results_dir / f"{file_id(path)}.json")
                take(r)
        progress.end()
        if stats is not None:
            stats["tasks_seconds"] = time.perf_counter() - started
            stats["blocks"] = progress.blocks
        cells = merger.cells()
        pages_dir = out_dir / "pages"
        pages_dir.mkdir(exist_ok=True)
        latest = sorted({c["latest_file"] for c in cells})
        pages = {client.submit(page_of_file, p, sibdump, key=f"page-{file_id(p)}-{time.time_ns()}"): p for p in latest}
        for future in as_completed(pages):
            try:
                text = future.result()
            except Exception as err:
                text = f"<!DOCTYPE html><p>The summary page of {html.escape(pages[future])} failed: {html.escape(str(err))}</p>"
            (out_dir / page_name(pages[future])).write_text(text, encoding="utf-8")
    finally:
        client.close()
        if cluster is not None:
            cluster.close()
    write_tables(out_dir, cells, errors)
    return cells, errors


def main(argv: Optional[List[str]] = None) -> int:
    parser = argparse.ArgumentParser(
        prog="python -m sibdecoder_umts.archive",
        description="Decodes many captures on a Dask cluster into one table of cells (cells.csv, cells.jsonl, "
                    "neighbours.csv, errors.csv, index.html).")
    parser.add_argument("paths", nargs="+", metavar="PATH", help="a capture (pcap, pcapng, hex text) or a folder of them")
    parser.add_argument("--scheduler", metavar="ADDRESS", help="a running cluster's scheduler, e.g. tcp://127.0.0.1:8786")
    parser.add_argument("--workers", type=int, default=os.cpu_count() or 2, metavar="N",
                        help="worker processes of the local cluster (default: one per processor; not with --scheduler)")
    parser.add_argument("--out", default=DEFAULT_OUT, metavar="DIR", help=f"output folder (default ./{DEFAULT_OUT})")
    parser.add_argument("--quiet", action="store_true", help="no progress bar on standard error")
    parser.add_argument("--resume", action="store_true", help="skip the files whose results are in DIR already")
    args = parser.parse_args(argv)
    if args.workers < 1:
        parser.error("--workers takes 1 or more")
    if importlib.util.find_spec("dask") is None or importlib.util.find_spec("distributed") is None:
        print("archive: Dask is not installed (Debian: apt-get install python3-dask python3-distributed)", file=sys.stderr)
        return 2
    cells, errors = run(args.paths, args.out, args.scheduler, args.workers, args.quiet, args.resume)
    if not args.quiet:
        print(f"archive: {len(cells)} cells, {len(errors)} files with errors, written to {args.out}", file=sys.stderr)
    return 0


if __name__ == "__main__":
    from sibdecoder_umts import archive as _archive  # the tasks refer to the module by its own name
    sys.exit(_archive.main())
