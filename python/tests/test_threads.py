"""Decoders on threads and in worker processes: each its own stream, none waiting for another."""
import concurrent.futures
import multiprocessing
import os
import threading

from conftest import sample_blocks as blocks

import sibdecoder_umts as sd  # noqa: E402


def stream_records(offset=0):
    """The sample cycle heard from block `offset` on, twice round, through a new Decoder."""
    cycle = blocks()
    dec = sd.Decoder()
    return [dec.feed_block(b, strict=False) for b in (cycle[offset:] + cycle) * 2]


def test_decoders_on_threads_and_in_worker_processes_keep_their_own_streams():
    alone = [stream_records(k) for k in range(4)]
    assert any(alone[0][i] != alone[1][i] for i in range(len(alone[0])))  # the streams differ
    got = [None] * 4
    threads = [threading.Thread(target=lambda k=k: got.__setitem__(k, stream_records(k))) for k in range(4)]
    for t in threads:
        t.start()
    for t in threads:
        t.join()
    assert got == alone
    for method in ("fork", "spawn"):
        context = multiprocessing.get_context(method)
        with concurrent.futures.ProcessPoolExecutor(max_workers=2, mp_context=context) as pool:
            assert list(pool.map(stream_records, range(4))) == alone, method


def test_a_thread_runs_while_another_waits_inside_the_library(tmp_path):
    """A Decoder whose ASN.1 text goes to a pipe that nobody empties stops inside the library,
    in write(); the pipe is emptied by this thread, which can only run because the call into
    the library let the interpreter go."""
    fifo = tmp_path / "text"
    os.mkfifo(fifo)
    reader = os.open(fifo, os.O_RDONLY | os.O_NONBLOCK)
    lib = sd.load()
    lib.set_asn1_text(fifo)
    try:
        dec = sd.Decoder()
        cycle = blocks()

        def decode():
            for _ in range(8):  # some 300 KB of text, five times what a pipe holds
                for b in cycle:
                    dec.feed_block(b, strict=False)
                dec.flush_asn1_text()

        worker = threading.Thread(target=decode)
        worker.start()
        text = bytearray()
        while True:
            try:
                chunk = os.read(reader, 1 << 16)
            except BlockingIOError:
                chunk = b""
            if not chunk:
                if not worker.is_alive():
                    break
                worker.join(0.01)
            text += chunk
        worker.join()
    finally:
        lib.set_asn1_text(os.devnull)
        os.close(reader)
    assert len(text) > 5 * 65536
    assert text.count(b"UMTS_BCCH_BCH_Message") == 8 * len(blocks())

