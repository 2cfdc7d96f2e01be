"""Shows some layers. There are no layer states in ezdxf, so nothing is saved to come back to, and no *.las file."""

import ezdxf

doc = ezdxf.readfile("plan.dxf")
for layer in doc.layers:
    if layer.dxf.name.startswith(("A-WALL", "墙体", "P-")):
        layer.on()
    else:
        layer.off()
doc.save()
