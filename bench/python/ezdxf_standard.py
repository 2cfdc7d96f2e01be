"""Brings layers to those of the same name in a standard. The standard's own mappings are not read: they lie in
records that ezdxf leaves to its user."""

import ezdxf

doc = ezdxf.readfile("plan.dxf")
standard = ezdxf.readfile("standard.dxf")
KEYS = ("color", "true_color", "linetype", "lineweight", "plot")
for target in standard.layers:
    if target.dxf.name not in doc.layers:
        continue
    layer = doc.layers.get(target.dxf.name)
    for key in KEYS:
        if layer.dxf.get(key) != target.dxf.get(key):
            print(target.dxf.name, key, layer.dxf.get(key), target.dxf.get(key))
            layer.dxf.set(key, target.dxf.get(key)) if target.dxf.hasattr(key) else layer.dxf.discard(key)
doc.saveas("plan-by-standard.dxf")
