"""Gives layers the names of a table; where the name is taken the two become one."""

import csv

import ezdxf

doc = ezdxf.readfile("plan.dxf")
with open("names.csv", encoding="utf-8-sig", newline="") as table:
    names = {old: new for old, new in csv.reader(table) if old in doc.layers}
for old, new in names.items():
    if new not in doc.layers:
        doc.layers.get(old).rename(new)
        continue
    for entity in doc.entitydb.values():
        if entity.dxf.is_supported("layer") and entity.dxf.get("layer") == old:
            entity.dxf.layer = new
    doc.layers.remove(old)
doc.save()
