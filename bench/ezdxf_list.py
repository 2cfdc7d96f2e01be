#!/usr/bin/python3
"""What `layertool list` tells of drawings, with python3-ezdxf: ezdxf_list.py DRAWING..."""

import sys
from collections import Counter

import ezdxf

for path in sys.argv[1:]:
    doc = ezdxf.readfile(path)
    counts = Counter(entity.dxf.layer for layout in doc.layouts for entity in layout)
    for layer in doc.layers:
        name = layer.dxf.name
        print(path, name, layer.dxf.color, layer.is_off(), layer.is_frozen(), counts[name])
