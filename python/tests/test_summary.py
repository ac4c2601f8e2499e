"""The per-cell summary of the Python module: the same dict as sibdump --summary=json, values
worked out by hand for the sample cell, and what is missing said as missing."""
import json
import os
import subprocess
import sys
from pathlib import Path

import pytest

PYTHON_DIR = Path(__file__).resolve().parents[1]
REPO = PYTHON_DIR.parent
sys.path.insert(0, str(PYTHON_DIR))

import sibdecoder_umts as sd  # noqa: E402

BUILD = Path(os.environ.get("UMTS_BUILD_DIR", REPO / "build"))
SIBDUMP = Path(os.environ.get("SIBDUMP", BUILD / "tools/sibdump/sibdump"))


def lines_of(name):
    for text in (REPO / "samples" / name).read_text().splitlines():
        text = text.split("#", 1)[0].strip()
        if text:
            yield text


def fed(name):
    """A Decoder that has read a sample: blocks, or whole SIBs (SIB16 is no block of the set)."""
    dec = sd.Decoder()
    for text in lines_of(name):
        if name.endswith(".bch"):
            dec.feed_block(bytes.fromhex(text))
        else:
            sib, hex_text = text.split()
            if sib != "sib16":
                dec.decode_sib(sib, bytes.fromhex(hex_text))
    return dec


def sibdump_summary(*args):
    if not SIBDUMP.is_file():
        pytest.skip(f"no sibdump at {SIBDUMP}")
    out = subprocess.run([str(SIBDUMP), "--summary=json", *args], check=True, capture_output=True, text=True).stdout
    return [json.loads(line) for line in out.splitlines()]


@pytest.mark.parametrize("sample, options", [("fdd_cell.bch", []), ("fdd_cell_sibs.txt", ["--sibs"])])
def test_summary_is_the_one_of_sibdump(sample, options):
    path = str(REPO / "samples" / sample)
    (theirs,) = sibdump_summary(*options, path)
    assert fed(sample).summary(path) == theirs


def test_sample_cell_values_worked_out_by_hand():
    s = fed("fdd_cell.bch").summary("cell")
    assert s["identity"]["plmn"] == "262-01"
    assert s["identity"]["lac"] == 0x4E21 and s["identity"]["rac"] == 5
    assert s["identity"]["cell_identity"] == {"value": 0x01A2B3C, "rnc_id": 0x01A, "c_id": 0x2B3C}
    assert s["identity"]["ura_identities"] == [0x0123, 0x0124, 0x0125, 0x0126]
    sel = s["selection"]
    assert sel["q_rxlevmin"] == {"value": -115, "unit": "dBm", "coded": -58}   # 2 x -58 + 1
    assert sel["s_intrasearch"] == {"value": 12, "unit": "dB", "coded": 6}     # 2 x 6
    assert sel["q_hyst1_s"]["value"] == 4 and sel["t_reselection"]["unit"] == "s"
    assert s["access"]["cell_barred"]["name"] == "notBarred" and s["access"]["access_classes_barred"] == []
    sib5 = next(e for e in s["schedule"] if e["sib"] == "sysInfoType5")
    assert (sib5["repetition_frames"], sib5["position_frame"], sib5["segment_frames"]) == (32, 12, [12, 18, 20])  # offsets so6, so2
    gsm = s["neighbours"]["gsm"]
    assert [(g["bcch_arfcn"], g["bsic"]) for g in gsm] == [(62, "3-1"), (70, "3-4"), (81, "5-2")]


def test_missing_blocks_are_said_missing():
    dec = sd.Decoder()
    for text in lines_of("fdd_cell_sibs.txt"):
        sib, hex_text = text.split()
        if sib in ("sib1", "sib3"):
            dec.decode_sib(sib, bytes.fromhex(hex_text))
    s = dec.summary("partial")
    assert s["cell"] == "partial"
    assert s["identity"]["plmn"] == {"missing": "no MIB received"}
    assert s["schedule"] == {"missing": "no MIB received"}
    assert s["common_channels"] == {"missing": "SIB5 not received"}
    assert s["identity"]["lac"] == 0x4E21
    assert s["blocks_received"] == ["sib1", "sib3"]
    assert s["neighbours"] == {"missing": "SIB11 not received"}
    empty = sd.Decoder().summary()
    assert empty == {"cell": None, "missing": "no block of any cell was converted"}


def test_new_mib_value_tag_keeps_the_ended_configuration():
    """The sample cell, then its MIB with the value tag 4: the MIB starts with the presence
    bit of its extensions and MIB-ValueTag (1..8) in 3 bits as value - 1, so the sample's
    first octet 0x20 (tag 3) becomes 0x30."""
    dec = fed("fdd_cell.bch")
    mib = next(bytes.fromhex(t.split()[1]) for t in lines_of("fdd_cell_sibs.txt") if t.startswith("mib "))
    assert mib[0] == 0x20 and dec.summary()["schedule"][0]["value_tag"] == 3
    dec.decode_sib("mib", bytes([0x30]) + mib[1:])
    ended, now = dec.summaries("cell")
    assert ended["ended_by"] == "MIB value tag 3 changed to 4" and "sib5" in ended["blocks_received"]
    assert now["blocks_received"] == ["mib"] and now["schedule"][0]["value_tag"] == 4
    assert now["cell"] == ended["cell"] == "cell"
