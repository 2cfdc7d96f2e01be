#!/usr/bin/python3
"""Prints as JSON what an independent reader sees of a drawing: layers, entities, audit errors."""

import json
import sys
from collections import Counter

import ezdxf
from ezdxf import recover


def layer_facts(layer):
    dxf = layer.dxf
    return {
        "name": dxf.name,
        "off": layer.is_off(),
        "frozen": layer.is_frozen(),
        "locked": layer.is_locked(),
        "newViewportFrozen": bool(dxf.flags & 2),
        "plotted": bool(dxf.get("plot", 1)),
        "color": abs(dxf.color),
        "trueColor": dxf.get("true_color", -1),
        "linetype": dxf.linetype,
        "lineweight": dxf.get("lineweight", -3),
        "transparency": round(layer.transparency * 100),
        "description": layer.description,
    }


def main():
    # The plain reader is the strict one; the recovering one resolves escapes in names.
    errors = ezdxf.readfile(sys.argv[1]).audit()
    doc, _ = recover.readfile(sys.argv[1])
    counts = Counter(
        entity.dxf.get("layer", "0").lower()
        for entity in doc.chain_layouts_and_blocks()
        if entity.dxftype() != "DICTIONARY"
    )
    json.dump(
        {
            "layers": [layer_facts(layer) for layer in doc.layers],
            "entities": dict(counts),
            "current": doc.header.get("$CLAYER", "0"),
            "errors": dict(Counter(str(e.code) for e in errors.errors + errors.fixes)),
        },
        sys.stdout,
    )


main()
