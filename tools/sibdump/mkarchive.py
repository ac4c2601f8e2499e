"""Folders of captures of several cells, for the archive's tests and benchmark.

Each cell is the sample cell (samples/fdd_cell_sibs.txt: MIB, SB1, SIB1, SIB2, SIB3, SIB5,
SIB7, SIB11, SIB12, SIB18) with some fields written anew in its whole SIBs: the MIB value tag,
the LAC (SIB1), the cell identity (SIB3), and scrambling codes of its SIB11 intra-frequency
list. The capture itself (its frames, the cut into transport blocks) is written by mkcaptures
--cells, the project's capture writer. Each field is found in the encoding by its value in
the sample (a bit pattern that must occur once, or, for the scrambling codes, the candidate
whose change sibdump's summary shows at that entry), so the folder follows the samples when
they are made again.

    python3 tools/sibdump/mkarchive.py test DIR      the tests' folder (see test_folder)
    python3 tools/sibdump/mkarchive.py bench DIR N   N captures of 8 cells each
"""
from __future__ import annotations

import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path
from typing import Dict, List, Tuple

REPO = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ.get("UMTS_BUILD_DIR", REPO / "build"))
SIBDUMP = Path(os.environ.get("SIBDUMP", BUILD / "tools/sibdump/sibdump"))
MKCAPTURES = Path(os.environ.get("MKCAPTURES", BUILD / "tools/sibdump/mkcaptures"))

#: The blocks of a cell, by their label in samples/fdd_cell_sibs.txt, with their SIB-Type.
CYCLE = [("MIB", "mib", 0), ("SB1", "sb1", 27), ("SIB1", "sib1", 1), ("SIB2", "sib2", 2), ("SIB3", "sib3", 3),
         ("SIB5", "sib5", 5), ("SIB7", "sib7", 7), ("SIB11", "sib11", 11), ("SIB12", "sib12", 12),
         ("SIB18", "sib18", 26)]
SAMPLE_CELL_IDENTITY = 0x01A2B3C
SAMPLE_LAC = 0x4E21
START = 1767225600.0  # 2026-01-01T00:00:00Z


class Sib:
    def __init__(self, name: str, sib_type: int, bits: str):
        self.name, self.sib_type, self.bits = name, sib_type, bits

    def hex(self) -> str:
        padded = self.bits + "0" * (-len(self.bits) % 8)
        return "".join(f"{int(padded[i:i + 8], 2):02x}" for i in range(0, len(padded), 8))

    def with_field(self, at: int, width: int, value: int) -> "Sib":
        return Sib(self.name, self.sib_type, self.bits[:at] + format(value, f"0{width}b") + self.bits[at + width:])


def sample_sibs() -> Dict[str, Sib]:
    """The sample cell's whole SIBs by name, with their exact bit counts."""
    wanted = {label: (name, t) for label, name, t in CYCLE}
    out: Dict[str, Sib] = {}
    label = None
    bits = 0
    for line in (REPO / "samples" / "fdd_cell_sibs.txt").read_text().splitlines():
        if line.startswith("# ") and line.endswith(" bits"):
            label, count = line[2:-5].rsplit(", ", 1)
            bits = int(count)
        elif line and not line.startswith("#") and label in wanted and wanted[label][0] not in out:
            name, t = wanted[label]
            hex_text = line.split()[1]
            out[name] = Sib(name, t, format(int(hex_text, 16), f"0{len(hex_text) * 4}b")[:bits])
    return out


def find_once(bits: str, value: int, width: int, what: str) -> int:
    pattern = format(value, f"0{width}b")
    at = bits.find(pattern)
    if at < 0 or bits.find(pattern, at + 1) >= 0:
        raise RuntimeError(f"the sample's {what} ({value:#x}) is not in its SIB exactly once")
    return at


def summaries(sibs: List[Sib]) -> List[dict]:
    """sibdump --sibs --summary=json of whole SIBs."""
    with tempfile.NamedTemporaryFile("w", suffix=".txt", delete=False) as f:
        f.write("".join(f"{s.name} {s.hex()}\n" for s in sibs))
    try:
        out = subprocess.run([str(SIBDUMP), "--sibs", "--summary=json", f.name], check=True, capture_output=True,
                             text=True).stdout
    finally:
        os.unlink(f.name)
    return [json.loads(line) for line in out.splitlines()]


def intra_codes(sib11: Sib) -> List[int]:
    (s,) = summaries([sib11])
    return [n["primary_scrambling_code"] for n in s["neighbours"]["intra_frequency"]]


def intra_code_places(sib11: Sib, entries: int) -> List[int]:
    """Where the first `entries` scrambling codes of SIB11's intra-frequency list lie (9 bits
    each): the first occurrence of the code's pattern after the one before, that sibdump
    shows changed at that entry and only there."""
    codes = intra_codes(sib11)
    places: List[int] = []
    start = 0
    for k in range(entries):
        pattern = format(codes[k], "09b")
        at = sib11.bits.find(pattern, start)
        while at >= 0:
            probe = codes[k] ^ 0x155
            changed = intra_codes(sib11.with_field(at, 9, probe))
            if changed == codes[:k] + [probe] + codes[k + 1:]:
                break
            at = sib11.bits.find(pattern, at + 1)
        if at < 0:
            raise RuntimeError(f"the scrambling code of intra-frequency neighbour {k} is not found in SIB11")
        places.append(at)
        start = at + 9
    return places


class CellMaker:
    """Cells made from the sample: make(value_tag, lac, cell_identity, intra) -> whole SIBs."""

    def __init__(self):
        self.base = sample_sibs()
        self.lac_at = find_once(self.base["sib1"].bits, SAMPLE_LAC, 16, "LAC")
        self.ci_at = find_once(self.base["sib3"].bits, SAMPLE_CELL_IDENTITY, 28, "cell identity")
        self.codes = intra_codes(self.base["sib11"])
        self.code_at = intra_code_places(self.base["sib11"], 2)

    def make(self, value_tag: int = 3, lac: int = SAMPLE_LAC, cell_identity: int = SAMPLE_CELL_IDENTITY,
             intra: Tuple[int, ...] = ()) -> List[Sib]:
        """The cycle's SIBs; MIB-ValueTag (1 to 8) is the 3 bits after the MIB's first."""
        s = dict(self.base)
        s["mib"] = s["mib"].with_field(1, 3, value_tag - 1)
        s["sib1"] = s["sib1"].with_field(self.lac_at, 16, lac)
        s["sib3"] = s["sib3"].with_field(self.ci_at, 28, cell_identity)
        for k, code in enumerate(intra):
            s["sib11"] = s["sib11"].with_field(self.code_at[k], 9, code)
        return [s[name] for _, name, _ in CYCLE]


def cells_text(parts: List[Tuple[int, List[Tuple[str, int, List[Sib]]]]], start: float = START) -> str:
    """mkcaptures --cells input: parts of (cycles, [(source, arfcn, sibs)])."""
    lines = [f"start {start:.6f}"]
    for cycles, cells in parts:
        lines.append(f"part {cycles}")
        for source, arfcn, sibs in cells:
            lines.append(f"cell {source} {arfcn}")
            lines += [f"{s.sib_type} {len(s.bits)} {s.hex()}" for s in sibs]
    return "\n".join(lines) + "\n"


def write_capture(path: Path, cells: str) -> None:
    cells_path = path.with_name(path.name + ".cells")
    cells_path.write_text(cells)
    try:
        subprocess.run([str(MKCAPTURES), "--cells", str(cells_path), str(path)], check=True)
    finally:
        cells_path.unlink()


#: The cells of the tests' folder: (PLMN, LAC, cell identity, UARFCN) by name.
A = ("262-01", 0x4E21, 0x01A2B3C, 10700)
B = ("262-01", 0x4E21, 0x01A2B3D, 10700)
C = ("262-01", 0x4E22, 0x01A2B3E, 10663)
D = ("262-01", 0x4E21, 0x01A2B3F, None)
#: The scrambling code that B's neighbour list gets for A's (A keeps the sample's list but
#: its first entry, which names B by this code).
CODE_OF_B = 400


def test_folder(folder: Path) -> Dict[str, object]:
    """The tests' folder; returns what the archive must find in it.

    a_b.pcap         A and B (UARFCN 10700, two senders), two cycles
    a_b_later.pcapng an hour later: A, and B with MIB value tag 3, then both again with B at 4
    c_damaged.pcap   C (UARFCN 10663, another LAC), three cycles, cut inside a frame
    d.bch            D as hex text of transport blocks (no ARFCN)
    notes.pcap       text that is not a capture

    A's first intra-frequency neighbour is B (code 400); B's list is the sample's, whose first
    code is then A's; C lists 315 and 328 first, so that the second carrier's cells that A and
    B announce (10663: 301, 315, 328) leave 301 to C.
    """
    m = CellMaker()
    code_of_a = m.codes[0]
    a = m.make(cell_identity=A[2], intra=(CODE_OF_B,))
    b3 = m.make(cell_identity=B[2])
    b4 = m.make(value_tag=4, cell_identity=B[2])
    c = m.make(lac=C[1], cell_identity=C[2], intra=(315, 328))
    d = m.make(cell_identity=D[2])
    folder.mkdir(parents=True, exist_ok=True)
    write_capture(folder / "a_b.pcap", cells_text([(2, [("10.0.0.1", 10700, a), ("10.0.0.2", 10700, b3)])]))
    write_capture(folder / "a_b_later.pcapng", cells_text(
        [(1, [("10.0.0.1", 10700, a), ("10.0.0.2", 10700, b3)]), (1, [("10.0.0.1", 10700, a), ("10.0.0.2", 10700, b4)])],
        START + 3600))
    damaged = folder / "c_damaged.pcap"
    write_capture(damaged, cells_text([(3, [("10.0.0.3", 10663, c)])], START + 60))
    data = damaged.read_bytes()
    damaged.write_bytes(data[:len(data) * 2 // 3 + 5])
    write_capture(folder / "d.bch", cells_text([(1, [("10.0.0.4", 0, d)])]))
    (folder / "notes.pcap").write_text("not a capture: the notes of a drive test\n")
    return {"code_of_a": code_of_a, "code_of_b": CODE_OF_B}


#: The benchmark's cells: 8 per file, on two carriers, each its own sender.
def bench_folder(folder: Path, files: int, cycles: int = 10) -> None:
    m = CellMaker()
    cells = [("10.0.1.%d" % (i + 1), 10700 if i % 2 == 0 else 10663,
              m.make(lac=0x4E21 + i // 4, cell_identity=0x01A2B00 + i)) for i in range(8)]
    folder.mkdir(parents=True, exist_ok=True)
    for n in range(files):  # the same cells, each file an hour after the one before
        write_capture(folder / f"capture_{n:03d}.pcap", cells_text([(cycles, cells)], START + 3600 * n))


if __name__ == "__main__":
    if len(sys.argv) == 3 and sys.argv[1] == "test":
        print(test_folder(Path(sys.argv[2])))
    elif len(sys.argv) == 4 and sys.argv[1] == "bench":
        bench_folder(Path(sys.argv[2]), int(sys.argv[3]))
    else:
        sys.exit(__doc__)
