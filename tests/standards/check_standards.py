#!/usr/bin/env python3
"""Tries the ready rule files with names that must pass and names that must not:
check_standards.py LAYERTOOL ROOT"""

import json
import pathlib
import subprocess
import sys
import tempfile

import ezdxf
import jsonschema

NAMES = {
    "aia-ncs": (
        ["A-WALL", "AI-WALL-FULL-DIMS-N", "A-AIR~", "A-WALL-1", "E-CO2S-N"],
        ["A-WAL", "WALL", "a-door", "A-WALL-FULL-DIMS-TEXT", "A-WALL-Q", "K-WALL", "A-WALL-", "A-DOTES"]),
    "bs1192": (
        ["A-G23-M2_Stair", "S-EF_25_10-M2_Walls", "Z-G251-T"],
        ["R-G23-M2", "A-G23", "A-23-M2_Stair", "AA-G23-M2", "A-G23-M2D_X"]),
    "iso13567": (
        ["A-WALL--E-", "A2------T-", "A-WALL--E-N0001-----", "S-21----D-N010112--MY TEXT"],
        ["A-WALL", "Z-WALL--E-", "A-WALL--1-", "a-door--e-"]),
    "gbt50001-en": (["A-WALL", "A-WALL-GLAZ", "A-AXIS-TEXT-X-N"], ["A", "A-墙", "A-B-C-D-E-F", "A--B"]),
    "gbt50001-zh": (["建-墙体", "建-墙体-隔墙", "建-轴线-编号"], ["建", "建-WALL", "建A-墙体"]),
}


def refused(layertool, rules, names, scratch):
    drawing = ezdxf.new("R2010")
    for name in names:
        drawing.layers.add(name)
    path = pathlib.Path(scratch) / "names.dxf"
    drawing.saveas(path)
    done = subprocess.run([layertool, "check", "--standard", str(rules), "--format", "json", str(path)],
                          capture_output=True, text=True)
    findings = [finding for each in json.loads(done.stdout)["drawings"] for finding in each["data"]]
    return {finding["layer"] for finding in findings if finding["rule"] == "layer-name"}


def main():
    layertool, root = sys.argv[1], pathlib.Path(sys.argv[2])
    schema = json.loads((root / "docs/layer-rules.schema.json").read_text(encoding="utf-8"))
    jsonschema.Draft7Validator.check_schema(schema)
    files = {path.stem: path for path in (root / "samples/standards").glob("*.json")}
    faults = [] if set(files) == set(NAMES) else [f"no names for, or no file of, {set(files) ^ set(NAMES)}"]
    for stem in sorted(files.keys() & NAMES.keys()):
        jsonschema.validate(json.loads(files[stem].read_text(encoding="utf-8")), schema)
        passing, failing = NAMES[stem]
        with tempfile.TemporaryDirectory() as scratch:
            found = refused(layertool, files[stem], passing + failing, scratch)
        faults += [f"{stem}: {name}" for name in sorted(found ^ set(failing))]
    print("\n".join(faults))
    return 1 if faults else 0


sys.exit(main())
