#!/usr/bin/python3
"""Prints as JSON what an independent reader sees of a drawing: layers, entities, audit errors."""

import json
import sys
from collections import Counter

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode as text


def layer_facts(layer):
    dxf = layer.dxf
    return {
        "name": text(dxf.name),
        "off": layer.is_off(),
        "frozen": layer.is_frozen(),
        "locked": layer.is_locked(),
        "newViewportFrozen": bool(dxf.flags & 2),
        "plotted": bool(dxf.get("plot", 1)),
        "color": abs(dxf.color),
        "trueColor": dxf.get("true_color", -1),
        "linetype": text(dxf.linetype),
        "lineweight": dxf.get("lineweight", -3),
        "transparency": round(layer.transparency * 100),
        "description": text(layer.description),
    }


def layer_of(entity):
    if entity.dxf.is_supported("layer"):
        return entity.dxf.get("layer", "0")
    # Of kinds that it does not know it keeps the tags.
    return entity.xtags.get_subclass("AcDbEntity").get_first_value(8, "0")


def main():
    doc = ezdxf.readfile(sys.argv[1])
    counts = Counter(
        text(layer_of(entity)).lower()
        for entity in doc.chain_layouts_and_blocks()
        if entity.dxftype() != "DICTIONARY"
    )
    layers = [layer_facts(layer) for layer in doc.layers]
    errors = doc.audit()
    json.dump(
        {
            "layers": layers,
            "entities": dict(counts),
            "current": text(doc.header.get("$CLAYER", "0")),
            "errors": dict(Counter(str(e.code) for e in errors.errors + errors.fixes)),
        },
        sys.stdout,
    )


main()
