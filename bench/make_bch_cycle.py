#!/usr/bin/env python3
"""Writes bench/bch_cycle.bch from the sample cell's cycle (samples/fdd_cell.bch).

The sample cycle is sent over and over with SFN' counting on from 0, and after every 40 of its
blocks comes the transport block of a live cell that the tests keep (the first segment of a
SIB11bis of 7 segments, never completed), with its own SFN' counting on from 1290. SFN' is the
first 11 bits of a BCCH-BCH-Message. Usage: make_bch_cycle.py samples/fdd_cell.bch > bench/bch_cycle.bch
"""
import sys

LIVE = "a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944"
LIVE_SFN = 1290
DISTINCT = 328


def with_sfn(block, sfn):
    raw = bytearray.fromhex(block)
    first = (sfn << 5) | (((raw[0] << 8) | raw[1]) & 0x1F)
    raw[0], raw[1] = first >> 8, first & 0xFF
    return raw.hex()


def main():
    cycle = [l.strip() for l in open(sys.argv[1]) if l.strip() and not l.startswith("#")]
    print(f"""# Transport blocks of a broadcast cycle as a receiver captures it, for the benchmarks of the
# whole road (bench/bench_road.cpp) and for timing sibdump. Not a recording: the repository
# holds no phone capture. Written by bench/make_bch_cycle.py from the {len(cycle)} blocks of the sample
# cell's cycle (samples/fdd_cell.bch), sent over and over with SFN' counting on from 0, and after
# every 40 blocks the transport block of a live cell kept in the tests (firstSegment of a
# SIB11bis of 7 segments, which is never completed) with its own SFN' counting on from {LIVE_SFN}:
# {DISTINCT} distinct blocks, in order. Hexadecimal, one block per line.""")
    out, sent, live = [], 0, 0
    while len(out) < DISTINCT:
        out.append(with_sfn(cycle[sent % len(cycle)], sent % 2048))
        sent += 1
        if sent % 40 == 0 and len(out) < DISTINCT:
            out.append(with_sfn(LIVE, LIVE_SFN + live))
            live += 1
    print("\n".join(out))


if __name__ == "__main__":
    main()
