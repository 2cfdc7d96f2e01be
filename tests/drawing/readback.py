#!/usr/bin/python3
"""Prints as a line of JSON what an independent reader sees of the drawing of each line that comes in.
A line is "layers", "states" or "entities", a blank, and the path. Audit errors are always told."""

import json
import sys
from collections import Counter, defaultdict

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


def layers(doc):
    counts = Counter(
        text(layer_of(entity)).lower()
        for entity in doc.chain_layouts_and_blocks()
        if entity.dxftype() != "DICTIONARY"
    )
    return {
        "layers": [layer_facts(layer) for layer in doc.layers],
        "entities": dict(counts),
        "current": text(doc.header.get("$CLAYER", "0")),
    }


def states_in(doc):
    head = doc.layers.head
    dictionary = None
    if head.has_extension_dict:
        dictionary = head.get_extension_dict().dictionary.get("ACAD_LAYERSTATES")
    return [
        {
            "name": text(name),
            "owned": record.dxf.owner == dictionary.dxf.handle,
            "reactors": dictionary.dxf.handle in (record.get_reactors() or []),
            "tags": [[tag.code, text(str(tag.value))] for tag in record.tags],
        }
        for name, record in (dictionary.items() if dictionary is not None else ())
    ]


def overrides(layer, handle):
    own = layer.get_vp_overrides()
    return own.has_overrides(handle) and {
        "viewport": handle,
        "color": own.get_color(handle),
        "rgb": own.get_rgb(handle),
        "linetype": own.get_linetype(handle),
        "lineweight": own.get_lineweight(handle),
        "transparency": round(own.get_transparency(handle) * 100),
    }


def states(doc):
    viewports = [v for sheet in doc.layouts for v in sheet.query("VIEWPORT")]
    return {
        "states": states_in(doc),
        "layers": {layer.dxf.handle: text(layer.dxf.name) for layer in doc.layers},
        "overrides": {
            text(layer.dxf.name): found
            for layer in doc.layers
            for found in (overrides(layer, v.dxf.handle) for v in viewports)
            if found
        },
        "frozen": {v.dxf.handle: sorted(v.frozen_layers) for v in viewports},
    }


def entities(doc):
    """How many stand on each layer, apart for layouts and blocks, and have looks of their own."""
    found = defaultdict(Counter)
    for block in doc.blocks:
        for entity in block:
            if entity.dxftype() == "VIEWPORT" and entity.dxf.get("id") == 1:
                continue  # A layout's own: it is not content, and a layout without it is broken.
            counts = found[text(layer_of(entity)).lower()]
            counts["layouts"] += block.block_record.is_any_layout
            counts["blocks"] += not block.block_record.is_any_layout
            counts["ownColor"] += entity.dxf.get("color", 256) != 256 or entity.dxf.hasattr("true_color")
            counts["ownLinetype"] += entity.dxf.get("linetype", "BYLAYER").upper() != "BYLAYER"
    return {"layers": found}


def seen(line):
    what, path = line.split(" ", 1)
    doc = ezdxf.readfile(path)
    found = {"layers": layers, "states": states, "entities": entities}[what](doc)
    errors = doc.audit()
    return {**found, "errors": Counter(str(e.code) for e in errors.errors + errors.fixes)}


for line in sys.stdin:
    try:
        answer = seen(line.rstrip("\n"))
    except Exception as error:
        answer = {"failure": repr(error)}
    print(json.dumps(answer), flush=True)
