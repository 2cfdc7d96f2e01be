#!/usr/bin/env python3
"""Brings translations up to the sources' texts: update.py LUPDATE [FOLDER]

Writes into FOLDER, this one by default, and says what lupdate complains of."""

import json
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
SOURCES = json.loads((HERE / "sources.json").read_text(encoding="utf-8"))


def update(lupdate, folder=HERE):
    complaints = []
    for library, places in SOURCES.items():
        done = subprocess.run(
            [lupdate, "-silent", "-locations", "none", "-no-obsolete", *(str(HERE.parent / place) for place in places),
             "-ts", *map(str, pathlib.Path(folder).glob(f"{library}_*.ts"))],
            capture_output=True, text=True, check=True)
        complaints += [f"{library}: {line}" for line in done.stderr.splitlines()]
    return complaints


if __name__ == "__main__":
    print("\n".join(update(*sys.argv[1:])))
