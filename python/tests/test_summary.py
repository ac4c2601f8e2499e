"""The per-cell summary of the Python module: the same dict as sibdump --summary=json (whose
values the tests of sibdump work out by hand, with what is missing said as missing), and the
configurations that a new MIB value tag ends."""
import pytest
from conftest import REPO, sample_lines, sibdump

import sibdecoder_umts as sd  # noqa: E402


def fed(name):
    """A Decoder that has read a sample: blocks, or whole SIBs (SIB16 is no block of the set)."""
    dec = sd.Decoder()
    for _, text in sample_lines(name):
        if name.endswith(".bch"):
            dec.feed_block(bytes.fromhex(text))
        else:
            sib, hex_text = text.split()
            if sib != "sib16":
                dec.decode_sib(sib, bytes.fromhex(hex_text))
    return dec


@pytest.mark.parametrize("sample, options", [("fdd_cell.bch", []), ("fdd_cell_sibs.txt", ["--sibs"])])
def test_summary_is_the_one_of_sibdump(sample, options):
    path = str(REPO / "samples" / sample)
    (theirs,) = sibdump("--summary=json", *options, path)
    assert fed(sample).summary(path) == theirs
    assert sd.Decoder().summary() == {"cell": None, "missing": "no block of any cell was converted"}


def test_new_mib_value_tag_keeps_the_ended_configuration():
    """The sample cell, then its MIB with the value tag 4: the MIB starts with the presence
    bit of its extensions and MIB-ValueTag (1..8) in 3 bits as value - 1, so the sample's
    first octet 0x20 (tag 3) becomes 0x30."""
    dec = fed("fdd_cell.bch")
    mib = next(bytes.fromhex(t.split()[1]) for _, t in sample_lines("fdd_cell_sibs.txt") if t.startswith("mib "))
    assert mib[0] == 0x20 and dec.summary()["schedule"][0]["value_tag"] == 3
    dec.decode_sib("mib", bytes([0x30]) + mib[1:])
    ended, now = dec.summaries("cell")
    assert ended["ended_by"] == "MIB value tag 3 changed to 4" and "sib5" in ended["blocks_received"]
    assert now["blocks_received"] == ["mib"] and now["schedule"][0]["value_tag"] == 4
    assert now["cell"] == ended["cell"] == "cell"
