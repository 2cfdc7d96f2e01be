#!/usr/bin/python3
"""Prints as JSON the layer states an independent reader finds in a drawing, and its audit errors."""

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
    layers = {layer.dxf.handle: layer.dxf.name for layer in doc.layers}
    errors = Counter(str(e.code) for e in auditor.errors + auditor.fixes)
    json.dump({"states": states, "layers": layers, "errors": errors}, sys.stdout)


main()
