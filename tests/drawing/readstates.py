#!/usr/bin/python3
"""Prints as JSON what an independent reader finds in a drawing of layer states and of the layers in
viewports, and its audit errors."""

import json
import sys
from collections import Counter

import ezdxf
from ezdxf import recover


def main():
    # The plain reader is the strict one; the recovering one resolves escapes in names.
    auditor = ezdxf.readfile(sys.argv[1]).audit()
    doc, _ = recover.readfile(sys.argv[1])
    states = []
    head = doc.layers.head
    dictionary = None
    if head.has_extension_dict:
        dictionary = head.get_extension_dict().dictionary.get("ACAD_LAYERSTATES")
    for name, record in dictionary.items() if dictionary is not None else ():
        states.append(
            {
                "name": name,
                "owned": record.dxf.owner == dictionary.dxf.handle,
                "reactors": dictionary.dxf.handle in (record.get_reactors() or []),
                "tags": [[tag.code, str(tag.value)] for tag in record.tags],
            }
        )
    viewports = [v for sheet in doc.layouts for v in sheet.query("VIEWPORT")]
    overrides = {}
    for layer in doc.layers:
        own = layer.get_vp_overrides()
        for handle in (v.dxf.handle for v in viewports):
            if own.has_overrides(handle):
                overrides[layer.dxf.name] = {
                    "viewport": handle,
                    "color": own.get_color(handle),
                    "rgb": own.get_rgb(handle),
                    "linetype": own.get_linetype(handle),
                    "lineweight": own.get_lineweight(handle),
                    "transparency": round(own.get_transparency(handle) * 100),
                }
    layers = {layer.dxf.handle: layer.dxf.name for layer in doc.layers}
    errors = Counter(str(e.code) for e in auditor.errors + auditor.fixes)
    found = {
        "states": states,
        "layers": layers,
        "overrides": overrides,
        "frozen": {v.dxf.handle: sorted(v.frozen_layers) for v in viewports},
        "errors": errors,
    }
    json.dump(found, sys.stdout)


main()
