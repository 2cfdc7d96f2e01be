#!/usr/bin/python3
"""Prints as JSON how many entities an independent reader sees on each layer of a drawing, apart for
layouts and blocks, how many have a colour or linetype of their own, and the audit errors."""

import json
import sys
from collections import defaultdict

import ezdxf
from ezdxf import recover

KEYS = ("layouts", "blocks", "ownColor", "ownLinetype")


def main():
    errors = ezdxf.readfile(sys.argv[1]).audit()
    doc, _ = recover.readfile(sys.argv[1])
    layers = defaultdict(lambda: dict.fromkeys(KEYS, 0))
    for block in doc.blocks:
        for entity in block:
            if entity.dxftype() == "VIEWPORT" and entity.dxf.get("id") == 1:
                continue  # A layout's own: it is not content, and a layout without it is broken.
            counts = layers[entity.dxf.get("layer", "0").lower()]
            counts["layouts" if block.block_record.is_any_layout else "blocks"] += 1
            counts["ownColor"] += entity.dxf.get("color", 256) != 256 or entity.dxf.hasattr("true_color")
            counts["ownLinetype"] += entity.dxf.get("linetype", "BYLAYER").upper() != "BYLAYER"
    json.dump({"layers": layers, "errors": len(errors.errors) + len(errors.fixes)}, sys.stdout)


main()
