"""Takes layers out with all that is on them, in blocks too, then those that nothing is on."""

import ezdxf

doc = ezdxf.readfile("plan.dxf")
gone = {"文字-工位号", "绿化-盆栽"} & {layer.dxf.name for layer in doc.layers}
used = {"0", "Defpoints", doc.header.get("$CLAYER")}
for block in doc.blocks:
    for entity in list(block):
        if entity.dxf.layer in gone:
            block.delete_entity(entity)
            continue
        used.add(entity.dxf.layer)
        parts = {"INSERT": "attribs", "POLYLINE": "vertices"}.get(entity.dxftype())
        for part in getattr(entity, parts) if parts else ():
            used.add(part.dxf.layer)
for name in [layer.dxf.name for layer in doc.layers]:
    if name in gone or (name not in used and "|" not in name):
        doc.layers.remove(name)
doc.save()
