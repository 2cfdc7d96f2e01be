"""Makes one layer of many. Layer states and frozen layers of viewports still name the old ones."""

import ezdxf

doc = ezdxf.readfile("plan.dxf")
names = {layer.dxf.name for layer in doc.layers if layer.dxf.name.startswith("家具-")}
doc.layers.add("A-FURN")
for entity in doc.entitydb.values():
    if entity.dxf.is_supported("layer") and entity.dxf.get("layer") in names:
        entity.dxf.layer = "A-FURN"
for name in names:
    doc.layers.remove(name)
doc.save()
