"""The Python module against sibdump on the sample cell, on bad input, and finding its library
in a build tree and in an installation.

Paths come from the environment that the CTest test python_module sets; run by hand from the
repository they default to the build tree build/:
  SIBDECODER_UMTS_LIBRARY  the library to test        SIBDUMP  sibdump of the same build
  UMTS_BUILD_DIR           the build tree to install  CMAKE_COMMAND  cmake
"""
import os
import re
import runpy
import shutil
import subprocess
import sys
import textwrap
from pathlib import Path

import pytest
from conftest import BUILD, PYTHON_DIR, REPO, sample_blocks, sample_lines, sibdump

import sibdecoder_umts as sd  # noqa: E402

CYCLE = {"mib", "sib1", "sib2", "sib3", "sib5", "sib7", "sib11", "sib11bis", "sib12", "sib18", "sb1"}


@pytest.fixture(scope="module")
def decoder():
    return sd.Decoder()  # one result record for the whole module: it is large


def test_sample_blocks_give_the_records_of_sibdump(decoder):
    ours = [{"line": number, "block": name, "record": record}
            for number, text in sample_lines("fdd_cell.bch")
            for name, record in decoder.feed_block(bytes.fromhex(text)).items()]
    theirs = sibdump(str(REPO / "samples/fdd_cell.bch"))
    assert {r["block"] for r in ours} == CYCLE
    assert ours == theirs
    mib = decoder.record("mib")
    assert mib == next(r["record"] for r in theirs if r["block"] == "mib")


def test_sample_sibs_give_the_records_of_sibdump(decoder):
    ours = []
    for number, text in sample_lines("fdd_cell_sibs.txt"):
        name, hex_text = text.split(None, 1)
        if name == "sib16":  # not a block of the set: sibdump converts it on its own
            continue
        record = decoder.decode_sib(name, bytes.fromhex(hex_text))
        assert decoder.records() == {name: record}
        ours.append({"line": number, "block": name, "record": record})
    theirs = sibdump("--sibs", str(REPO / "samples/fdd_cell_sibs.txt"))
    assert ours == [r for r in theirs if r["block"] != "sib16"]
    # The same SIB by slot number, through the module's own decoder.
    number, text = next(sample_lines("fdd_cell_sibs.txt"))
    assert sd.decode_sib(0, bytes.fromhex(text.split()[1])) == ours[0]["record"]


@pytest.mark.parametrize("call, error, words", [
    (lambda d: d.feed_block("20988028"), TypeError, "bytes.fromhex"),
    (lambda d: d.feed_block(31), TypeError, "int"),
    (lambda d: d.feed_block(None), TypeError, "NoneType"),
    (lambda d: d.feed_block(b""), ValueError, "empty"),
    (lambda d: d.feed_block(bytes(sd.MAX_BLOCK_OCTETS + 1)), ValueError, "longer than 64"),
    (lambda d: d.decode_sib("sib4", b"\0"), ValueError, "unknown SIB name 'sib4'"),
    (lambda d: d.decode_sib(12, b"\0"), ValueError, "outside 0 to 11"),
    (lambda d: d.decode_sib(True, b"\0"), TypeError, "bool"),
    (lambda d: d.decode_sib(b"sib3", b"\0"), TypeError, "bytes"),
    (lambda d: d.decode_sib("sib3", bytearray()), ValueError, "empty"),
    (lambda d: d.decode_sib("sib3", bytes(sd.MAX_SIB_OCTETS + 1)), ValueError, "longer than 2048"),
    (lambda d: d.record("sb3"), ValueError, "unknown SIB name"),
])
def test_bad_arguments_raise(decoder, call, error, words):
    with pytest.raises(error, match=words):
        call(decoder)


def test_undecodable_input_is_reported_and_loses_nothing(decoder):
    number, text = next(sample_lines("fdd_cell.bch"))  # the MIB's block
    assert decoder.feed_block(memoryview(bytes.fromhex(text)))["mib"]["mib_ValueTag"] == 3
    assert (decoder.last_status, decoder.last_error) == (1, None)
    # 8 bits cannot hold a BCCH-BCH-Message (SFN' alone has 11): a stream goes on.
    failures = decoder.failures
    assert decoder.feed_block(b"\x00") == {} and decoder.last_status == 0
    assert "umts_sib_decoder returned 0" in decoder.last_error and decoder.failures == failures + 1
    with pytest.raises(sd.SibDecodeError, match="umts_sib_decoder returned 0") as raised:
        decoder.feed_block(b"\x00", strict=True)
    assert (raised.value.status, raised.value.entry, raised.value.records) == (0, "umts_sib_decoder", {})
    with pytest.raises(sd.SibDecodeError, match="for sib12") as raised:
        decoder.decode_sib("sib12", b"\xff")
    assert raised.value.block == "sib12" and decoder.last_status == 0
    assert decoder.record("mib")["mib_ValueTag"] == 3  # the earlier record stays
    with pytest.raises(sd.SibDecodeError):
        list(sd.decode_blocks([bytes.fromhex(text), b"\x00"], strict=True))
    assert [(i, n) for i, n, _ in sd.decode_blocks([b"\x00", bytes.fromhex(text)])] == [(1, "mib")]


def late_stream():
    """The sample cycle heard from its sixth block on: it starts with parts of SIBs never begun."""
    blocks = sample_blocks()
    return blocks[5:] + blocks


def test_the_docstring_example_runs_on_a_stream_that_starts_mid_sib(capsys):
    # The indented block from its import to the first paragraph that is not indented.
    code = textwrap.dedent(re.search(r"\n(    import sibdecoder_umts.*?)\n\n(?! )", sd.__doc__, re.S).group(1))
    sib3 = next(t for t in (REPO / "samples/fdd_cell_sibs.txt").read_text().split("\n") if t.startswith("sib3 "))
    exec(code, {"transport_blocks": late_stream(), "sib3_bytes": bytes.fromhex(sib3.split()[1])})
    out = capsys.readouterr().out
    assert "umts_sib_decoder returned 0" in out and "sib3 {" in out and "mib {" in out


def test_the_readme_example_runs_on_a_stream_that_starts_mid_sib(tmp_path):
    readme = (REPO / "README.md").read_text()
    block = next(b for b in readme.split("```sh\n")[1:] if "import sibdecoder_umts" in b)
    code = block.split("<<'EOF'\n", 1)[1].split("\nEOF\n", 1)[0]
    late = tmp_path / "late.bch"
    late.write_text("".join(b.hex() + "\n" for b in late_stream()))
    code = code.replace("samples/fdd_cell.bch", str(late))
    env = dict(os.environ, PYTHONPATH=str(PYTHON_DIR))
    out = subprocess.run([sys.executable, "-c", code], cwd=REPO, env=env, capture_output=True, text=True)
    assert out.returncode == 0, out.stderr
    assert "sib3" in out.stdout and "mib" in out.stdout


def test_explicit_library_paths():
    built = sd.library_path()
    assert sd.load(built) is sd.load(Path(built).parent) is sd.load()
    with pytest.raises(sd.LibraryNotFoundError, match="no such library"):
        sd.load("/nonexistent/libsibdecoder_umts.so")
    with pytest.raises(sd.LibraryNotFoundError, match="cannot load"):
        sd.load(__file__)


def where_found(python_path, cwd):
    """library_path() and the module's file, in a fresh interpreter that has no library named;
    the MIB decoded there and its value tag in the summary, through the summary library beside."""
    env = {k: v for k, v in os.environ.items() if k not in (sd.LIBRARY_ENV, "PYTHONPATH")}
    env["PYTHONPATH"] = str(python_path)
    script = ("import sibdecoder_umts as sd; d = sd.Decoder(); print(sd.library_path()); print(sd.__file__); "
              "print(sorted(d.feed_block(bytes.fromhex(input())))); print(d.summary()['schedule'][0]['value_tag'])")
    block = next(sample_lines("fdd_cell.bch"))[1]
    out = subprocess.run([sys.executable, "-s", "-c", script], input=block, env=env, cwd=cwd,
                         check=True, capture_output=True, text=True).stdout.splitlines()
    assert out[2:] == ["['mib']", "3"]
    return Path(out[0]), Path(out[1])


def test_library_found_in_the_build_tree(tmp_path):
    shutil.copytree(PYTHON_DIR / "sibdecoder_umts", tmp_path / "python/sibdecoder_umts")
    (tmp_path / "build").mkdir()
    for name in ("libsibdecoder_umts.so", "libsibdecoder_umts_summary.so"):
        shutil.copy(Path(sd.library_path()).parent / name, tmp_path / "build" / name)
    library, module = where_found(tmp_path / "python", tmp_path)
    assert (library, module.parent) == (tmp_path / "build/libsibdecoder_umts.so", tmp_path / "python/sibdecoder_umts")


def test_library_found_after_installation(tmp_path):
    if not (BUILD / "CMakeCache.txt").is_file():
        pytest.skip(f"no build tree at {BUILD}")
    prefix = tmp_path / "prefix"
    subprocess.run([os.environ.get("CMAKE_COMMAND", "cmake"), "--install", str(BUILD), "--prefix", str(prefix)],
                   check=True, capture_output=True)
    package = next(prefix.rglob("sibdecoder_umts/__init__.py")).parent
    libdir = (package / runpy.run_path(str(package / "_install.py"))["LIBRARY_DIR"]).resolve()
    if not list(libdir.glob("libsibdecoder_umts.so*")):
        # The library's own install rules are not in this tree: put it where they would.
        libdir.mkdir(parents=True, exist_ok=True)
        shutil.copy(sd.library_path(), libdir / "libsibdecoder_umts.so")
    library, module = where_found(package.parent, tmp_path)
    assert library.parent == libdir and module.parent == package
