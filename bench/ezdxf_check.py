#!/usr/bin/python3
"""Names by a pattern, entities by layer and off layer 0, with python3-ezdxf: ezdxf_check.py DRAWING..."""

import re
import sys

import ezdxf

NAME = re.compile(r"LAYER-[0-9]+|0|Defpoints")


def is_own(dxf):
    return dxf.get("color", 256) != 256 or dxf.get("linetype", "BYLAYER").upper() != "BYLAYER"


for path in sys.argv[1:]:
    doc = ezdxf.readfile(path)
    for layer in doc.layers:
        if not NAME.fullmatch(layer.dxf.name):
            print(path, layer.dxf.name)
    for layout in doc.layouts:
        for entity in layout:
            if is_own(entity.dxf) or entity.dxf.layer == "0":
                print(path, entity)
