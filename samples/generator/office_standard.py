"""The layers that an office wants its drawings to have, and which layers of older drawings become which."""
import ezdxf

from .drafting import Layer, add_layers, add_linetypes

FIRE_MAIN = 'A,12.0,-3.0,["XF",STANDARD,S=2.5,R=0.0,X=-1.5,Y=-1.25],-5.0'
LAYERS = [
    Layer("A-GRID", 1, "CENTER", 13, description="轴线"),
    Layer("A-GRID-IDEN", 3, weight=18, description="轴线编号"),
    Layer("A-COLS", 4, weight=50, description="柱"),
    Layer("A-WALL", 7, weight=50, description="承重墙、外墙"),
    Layer("A-WALL-PRTN", 2, weight=35, description="隔墙"),
    Layer("A-WALL-PATT", (8, 120, 126, 140), weight=5, transparency=60, description="墙、柱填充"),
    Layer("A-DOOR", 30, weight=25, description="门"),
    Layer("A-GLAZ", (131, 110, 200, 240), weight=25, transparency=20, description="窗、玻璃隔断"),
    Layer("A-STRS", (140, 120, 170, 255), weight=18, description="楼梯、电梯"),
    Layer("A-FURN", (33, 214, 178, 126), weight=18, description="家具"),
    Layer("A-FLOR-PATT", 252, weight=5, transparency=40, description="地面铺装"),
    Layer("A-DEMO", 241, "HIDDEN", 13, description="拆除"),
    Layer("A-EVAC", (82, 0, 200, 90), "DASHED", 30, "n", description="疏散路线"),
    Layer("A-ANNO-DIMS", 3, weight=13, description="尺寸标注"),
    Layer("A-ANNO-TEXT", 7, weight=18, description="文字"),
    Layer("A-ANNO-TTLB", 7, weight=70, description="图框"),
    Layer("E-LITE", 2, weight=13, description="照明"),
    Layer("E-POWR", (30, 255, 127, 0), weight=13, description="插座"),
    Layer("E-COMM", (150, 70, 150, 255), weight=13, description="弱电"),
    Layer("F-SPRN", 1, "FIRE_MAIN", 25, description="消防喷淋"),
    Layer("M-DUCT", (160, 90, 140, 255), "PHANTOM", 25, description="风管、风口"),
    Layer("P-FIXT", 171, weight=18, description="卫生洁具"),
]
MAPPINGS = [
    ("轴线", "A-GRID"), ("轴线编号", "A-GRID-IDEN"), ("墙体-隔墙", "A-WALL-PRTN"), ("墙体-填充", "A-WALL-PATT"),
    ("柱-填充", "A-WALL-PATT"), ("门窗-窗", "A-GLAZ"), ("门窗-编号", "A-ANNO-TEXT"), ("电梯", "A-STRS"),
    ("地面铺装", "A-FLOR-PATT"), ("拆除", "A-DEMO"), ("疏散路线", "A-EVAC"), ("A-DIMS", "A-ANNO-DIMS"),
    ("文字-房间名", "A-ANNO-TEXT"), ("文字-面积", "A-ANNO-TEXT"), ("A-TTLB", "A-ANNO-TTLB"),
    ("弱电-信息点", "E-COMM"), ("消防-喷淋", "F-SPRN"), ("暖通-风管", "M-DUCT"),
]


def add_record(doc, dictionary, key, tags):
    record = doc.objects.new_entity("XRECORD", dxfattribs={"owner": dictionary.dxf.handle})
    record.reset(tags)
    dictionary[key] = record


def add_mappings(doc):
    """An object a mapping; its pointer keeps the target from being purged."""
    dictionary = doc.rootdict.add_new_dict("LAYER_TRANSLATION", hard_owned=True)
    add_record(doc, dictionary, "*0", [])  # Layer 0 is no target here.
    for source, target in MAPPINGS:
        pointer = doc.layers.get(target).dxf.handle
        add_record(doc, dictionary, source, [(1, source), (2, target), (340, pointer)])


def make():
    doc = ezdxf.new("R2013", units=4)
    doc.header["$DWGCODEPAGE"] = "ANSI_936"
    add_linetypes(doc, ["CENTER", "DASHED", "HIDDEN", "PHANTOM"], 10.0)
    doc.linetypes.add("FIRE_MAIN", FIRE_MAIN, length=20.0, description="消防干管 --XF--XF--XF--")
    add_layers(doc, LAYERS)
    doc.layers.remove("Defpoints")
    add_mappings(doc)
    return doc
