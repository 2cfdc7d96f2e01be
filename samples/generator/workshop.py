"""A machine shop of 30 m by 15 m with its machines, as an R12 drawing."""
import ezdxf

from .drafting import Layer, add_layers, add_linetypes, outlines, rectangle, text_table

LAYERS = [
    Layer("0", 7), Layer("中心线", 1, "CENTER"), Layer("厂房墙体", 7), Layer("柱子", 4), Layer("门窗", 40),
    Layer("设备", 30), Layer("设备编号", 3), Layer("行车轨道", 6, "PHANTOM"), Layer("通道", 2, "DASHED", flags="l"),
    Layer("管线-压缩空气", 5, flags="f"), Layer("管线-电缆", 94, "DASHED", flags="o"), Layer("零件-轮廓", 7),
    Layer("零件-虚线", 8, "HIDDEN"), Layer("零件-剖面线", 9), Layer("尺寸", 3), Layer("文字", 7), Layer("图框", 7),
    Layer("备用", 7, flags="f"),
]
MACHINES = [  # block, x, y, rotation, number, name
    ("车床", 3200, 2600, 0, "L-01", "普通车床"), ("车床", 6600, 2600, 0, "L-02", "普通车床"),
    ("车床", 10000, 2600, 0, "L-03", "数控车床"), ("铣床", 14200, 2800, 0, "M-01", "立式铣床"),
    ("铣床", 17600, 2800, 0, "M-02", "立式铣床"), ("铣床", 21000, 2800, 0, "M-03", "加工中心"),
    ("钻床", 24800, 2300, 0, "D-01", "摇臂钻床"), ("钻床", 27600, 2300, 0, "D-02", "摇臂钻床"),
    ("车床", 3200, 12300, 180, "L-04", "数控车床"), ("车床", 6600, 12300, 180, "L-05", "数控车床"),
    ("磨床", 10600, 12300, 180, "G-01", "平面磨床"), ("磨床", 14200, 12300, 180, "G-02", "外圆磨床"),
    ("工作台", 18600, 12500, 0, "T-01", "钳工台"), ("工作台", 22200, 12500, 0, "T-02", "检验台"),
]
COLUMNS = [(x - 250, y - 250, x + 250, y + 250) for x in range(0, 30001, 6000) for y in (0, 15000)]
WALLS = [(-120, -120, 30120, 120), (-120, 14880, 30120, 15120), (-120, -120, 120, 15120), (29880, -120, 30120, 15120)]
GATES = [(-150, 6000, 150, 9000), (29850, 6000, 30150, 9000)]
WINDOWS = [(x, y) for x in range(1500, 30000, 6000) for y in (0, 15000)]


def polyline(space, points, layer, close=True):
    space.add_polyline2d(points, format="xyb", close=close, dxfattribs={"layer": layer})


def text(space, content, x, y, height, layer, align="MIDDLE_CENTER", rotation=0):
    attribs = {"layer": layer, "height": height, "style": "STANDARD", "rotation": rotation}
    space.add_text(content, dxfattribs=attribs).set_pos((x, y), align=align)


def line(space, x0, y0, x1, y1, layer="0"):
    space.add_line((x0, y0), (x1, y1), dxfattribs={"layer": layer})


def make_machines(doc):
    shapes = {  # rectangles and circles around the insertion point
        "车床": ([(-1300, -450, 1300, 450), (-1300, -450, -650, 450), (700, -200, 1200, 200), (-650, -80, 700, 80)],
               [(-500, 0, 180)]),
        "铣床": ([(-1100, -350, 1100, 350), (-450, -700, 450, 900), (-300, 350, 300, 900)], [(0, 0, 200), (0, 0, 60)]),
        "钻床": ([(-700, -500, 700, 300), (-120, 300, 120, 1100)], [(0, 900, 300), (0, -100, 120)]),
        "磨床": ([(-1400, -400, 1400, 400), (-700, -250, 700, 250), (-500, 400, 500, 800)], [(0, 600, 170)]),
        "工作台": ([(-1200, -400, 1200, 400), (-1100, 150, -800, 350)], []),
    }
    for name, (boxes, circles) in shapes.items():
        block = doc.blocks.new(name)
        for box in boxes:
            polyline(block, rectangle(*box), "0")
        for x, y, radius in circles:
            block.add_circle((x, y), radius, dxfattribs={"layer": "0"})
        block.add_attdef("编号", (0, 0), dxfattribs={"height": 250, "layer": "设备编号"})
    door = doc.blocks.new("大门")
    for y, start in ((0, 0), (3000, 270)):
        line(door, 0, y, 1500, y)
        door.add_arc((0, y), 1500, start, start + 90, dxfattribs={"layer": "0"})
    window = doc.blocks.new("高窗")
    for y in (-120, -40, 40, 120):
        line(window, 0, y, 3000, y)


def draw_building(space):
    holes = COLUMNS + GATES + [(x, y - 150, x + 3000, y + 150) for x, y in WINDOWS]
    for loop in outlines(WALLS, holes):
        polyline(space, loop, "厂房墙体")
    for x0, y0, x1, y1 in COLUMNS:
        polyline(space, rectangle(x0, y0, x1, y1), "柱子")
        space.add_solid([(x0, y0), (x1, y0), (x0, y1), (x1, y1)], dxfattribs={"layer": "柱子", "color": 8})
    for x, y in WINDOWS:
        space.add_blockref("高窗", (x, y), dxfattribs={"layer": "门窗"})
    space.add_blockref("大门", (0, 6000), dxfattribs={"layer": "门窗"})
    space.add_blockref("大门", (30000, 9000), dxfattribs={"layer": "门窗", "rotation": 180})
    for k, x in enumerate(range(0, 30001, 6000), 1):
        line(space, x, -3400, x, 16200, "中心线")
        space.add_circle((x, 16600), 400, dxfattribs={"layer": "中心线"})
        text(space, str(k), x, 16600, 400, "文字")
    for y in (6300, 8700):
        line(space, 300, y, 29700, y, "通道")
    text(space, "主 通 道", 15000, 7500, 450, "文字")
    for y in (900, 14100):
        line(space, 200, y, 29800, y, "行车轨道")
    text(space, "5t 桥式起重机", 26300, 13300, 300, "文字")


def draw_machines(space):
    for name, x, y, turn, number, title in MACHINES:
        side = 1 if y < 7500 else -1
        reference = space.add_blockref(name, (x, y), dxfattribs={"layer": "设备", "rotation": turn})
        reference.add_attrib("编号", number, dxfattribs={"layer": "设备编号", "height": 280, "style": "STANDARD"}).set_pos(
            (x, y + side * 1900), align="MIDDLE_CENTER")
        text(space, title, x, y + side * 1450, 250, "文字")
        line(space, x, y + side * 2200, x, 5600 if side > 0 else 9400, "管线-压缩空气")
        line(space, x + 200, y + side * 2200, x + 200, 5300 if side > 0 else 9700, "管线-电缆")
    for y in (5600, 9400):
        line(space, 600, y, 29400, y, "管线-压缩空气")
    for y in (5300, 9700):
        line(space, 600, y, 29400, y, "管线-电缆")


def dimension(space, x0, x1, y, face, label=None):
    """R12 has no dimension style here: lines, ticks and figures are drawn as a drafter's macro would."""
    line(space, x0, y, x1, y, "尺寸")
    for x in (x0, x1):
        line(space, x, face, x, y - 150, "尺寸")
        line(space, x - 120, y - 120, x + 120, y + 120, "尺寸")
    text(space, label or str(x1 - x0), (x0 + x1) / 2, y + 220, 280, "尺寸")


def draw_flange(space, x, y):
    """The shop's part of the month at 10:1: a bearing flange in front view and in section."""
    for radius, layer in ((2000, "零件-轮廓"), (1450, "中心线"), (1000, "零件-轮廓"), (600, "零件-轮廓"), (700, "零件-虚线")):
        space.add_circle((x, y), radius, dxfattribs={"layer": layer})
    for turn in range(0, 360, 60):
        bolt = ezdxf.math.Vec2.from_deg_angle(turn + 30, 1450) + ezdxf.math.Vec2(x, y)
        space.add_circle(bolt, 170, dxfattribs={"layer": "零件-轮廓"})
    line(space, x - 2300, y, x + 7100, y, "中心线")
    line(space, x, y - 2300, x, y + 2300, "中心线")
    left, middle, right = x + 4800, x + 5400, x + 6600
    for sign in (1, -1):
        profile = [(left, 600), (right, 600), (right, 1000), (middle + 200, 1000, -0.414 * sign), (middle, 1200),
                   (middle, 2000), (left, 2000)]
        polyline(space, [(px, y + sign * py, *bulge) for px, py, *bulge in profile], "零件-轮廓")
        for step in range(0, 1400, 200):
            low = 600 + step
            line(space, left, y + sign * low, left + min(600, 2000 - low), y + sign * min(low + 600, 2000), "零件-剖面线")
        for step in range(200, 1700, 200):
            end = min(400, right - left - step)
            line(space, left + step, y + sign * 600, left + step + end, y + sign * (600 + end), "零件-剖面线")
    for edge in (left, right):
        line(space, edge, y - 600, edge, y + 600, "零件-轮廓")
    text(space, "轴承端盖  10:1", x + 2300, y - 2900, 350, "文字")
    text(space, "%%c400", x + 1900, y + 1900, 280, "尺寸", "LEFT")
    text(space, "6-%%c34 均布", x + 1900, y - 1900, 280, "尺寸", "LEFT")


def make():
    doc = ezdxf.new("R12")
    doc.encoding = "gbk"
    add_linetypes(doc, ("CENTER", "DASHED", "HIDDEN", "PHANTOM"))
    add_layers(doc, LAYERS)
    doc.styles.get("STANDARD").dxf.font = "txt.shx"
    doc.styles.get("STANDARD").dxf.bigfont = "gbcbig.shx"
    make_machines(doc)
    space = doc.modelspace()
    draw_building(space)
    draw_machines(space)
    for x in range(0, 30000, 6000):
        dimension(space, x, x + 6000, -1200, -400)
    dimension(space, 0, 30000, -2300, -400)
    draw_flange(space, 3000, -8000)
    text(space, "机加工车间设备布置图", 19500, -5000, 700, "文字")
    rows = [("编号", "设备名称", "编号", "设备名称")]
    rows += [left[4:] + right[4:] for left, right in zip(MACHINES[:7], MACHINES[7:])]
    text_table(space, 13500, -6000, (2000, 4000, 2000, 4000), rows, 300, "文字", "图框", 620, style="STANDARD")
    for margin in (0, 500):
        polyline(space, rectangle(-2500 + margin, -12200 + margin, 32500 - margin, 18000 - margin), "图框")
    viewport = doc.layout("Layout1").add_viewport(center=(210, 148), size=(400, 280), view_center_point=(15000, 2900),
                                                  view_height=32000)
    viewport.dxf.layer, viewport.dxf.id = "图框", 2
    viewport.frozen_layers = ["管线-电缆", "备用"]
    doc.header["$LTSCALE"] = 60
    doc.header["$CLAYER"] = "设备"
    doc.header["$EXTMIN"], doc.header["$EXTMAX"] = (-2500, -12200, 0), (32500, 18000, 0)
    return doc
