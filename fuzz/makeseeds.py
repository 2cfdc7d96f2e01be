#!/usr/bin/env python3
"""Writes seeds for the fuzz targets: the sample drawings cut down to a few of each thing, and a
few small files of every other kind. Usage: makeseeds.py SAMPLES HANDMADE FOLDER"""
import pathlib
import random
import sys

sys.path.append(str(pathlib.Path(__file__).parent.parent / "tests" / "support"))
from binarytwin import twin

KEPT_OF_A_KIND = 2
DIALOG_SEEDS = 200
DIALOG_SEED_SIZE = 400


def pairs(data):
    lines = data.splitlines(keepends=True)
    return [(lines[i].strip(), lines[i + 1].strip(), lines[i] + lines[i + 1])
            for i in range(0, len(lines) - 1, 2)]


def records(tags):
    """The file in pieces that begin with a 0 group."""
    piece = []
    for tag in tags:
        if tag[0] == b"0" and piece:
            yield piece
            piece = []
        piece.append(tag)
    yield piece


def cut_down(data):
    """Only the first few records of each kind in each section; what holds others together stays."""
    seen, section, kept, dropped = {}, b"", [], False
    for record in records(pairs(data)):
        kind = record[0][1]
        if kind == b"SECTION":
            section = record[1][1]
        is_part = kind in (b"VERTEX", b"ATTRIB", b"SEQEND")
        if not is_part:
            count = seen[section, kind] = seen.get((section, kind), 0) + 1
            is_frame = kind in (b"SECTION", b"ENDSEC", b"EOF", b"TABLE", b"ENDTAB", b"LAYER",
                                b"BLOCK", b"ENDBLK", b"DICTIONARY")
            dropped = not is_frame and count > KEPT_OF_A_KIND
        if not dropped:
            kept.append(b"".join(tag[2] for tag in record))
    return b"".join(kept)


def main():
    samples, handmade, target = map(pathlib.Path, sys.argv[1:4])

    def write(kind, name, data):
        folder = target / kind
        folder.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(data)

    # What is behind the end of a drawing chooses the edits.
    chance = random.Random(1)
    for drawing in samples.glob("*.dxf"):
        small = cut_down(drawing.read_bytes())
        for number in range(8):
            write("drawing", f"{drawing.stem}-{number}", small + chance.randbytes(24))
            write("drawing", f"{drawing.stem}-binary-{number}", twin(small) + chance.randbytes(24))
        write("drawing", f"{drawing.stem}-cut", small[:chance.randrange(len(small))])
        write("standards", drawing.stem, small)
    for kind in handmade.iterdir():
        for seed in kind.iterdir():
            write(kind.name, seed.name, seed.read_bytes())
    for number in range(DIALOG_SEEDS):
        write("dialog", str(number), chance.randbytes(DIALOG_SEED_SIZE))


main()
