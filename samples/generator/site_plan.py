"""A small park around two buildings, in metres, for readers of the older text encoding."""
import random
from math import cos, pi, sin

import ezdxf

from .drafting import Layer, add_layers, add_linetypes, box, circle, closed, insert, line, solid_fill, text

LAYERS = [
    Layer("0", 7), Layer("G-PROP", 6, "PHANTOM", 70, description="Site boundary"),
    Layer("等高线-计曲线", 30, weight=35), Layer("等高线-首曲线", 32, weight=13), Layer("建筑-轮廓", 7, weight=50),
    Layer("建筑-填充", 8, weight=5), Layer("道路-边线", 2, weight=30), Layer("道路-中线", 1, "CENTER", 13),
    Layer("C-PRKG", 9, weight=18), Layer("水体", 5, weight=25), Layer("水体-填充", 142, weight=5),
    Layer("L-PLNT-TREE", 3, weight=13), Layer("L-PLNT-SHRB", 94, weight=9, flags="l"), Layer("步行道", 42, weight=18),
    Layer("管线-给水", 4, "DASHED", 25, "o"), Layer("管线-污水", 36, "DASHED", 25, "f"), Layer("坐标网", 8, weight=5, flags="n"),
    Layer("文字", 7, weight=18), Layer("G-ANNO-NORTH", 7, weight=18), Layer("Réserve foncière", 210, flags="n"),
]


def make_blocks(doc):
    tree = doc.blocks.new("阔叶树")
    tree.add_lwpolyline([(1.8 * cos(k * pi / 6), 1.8 * sin(k * pi / 6), 0.75) for k in range(12)], "xyb", close=True,
                        dxfattribs={"layer": "0"})
    for k in range(5):
        line(tree, 0, 0, 1.2 * cos(1.257 * k), 1.2 * sin(1.257 * k))
    pine = doc.blocks.new("针叶树")
    closed(pine, [((1.7 if k % 2 else 1.1) * cos(k * pi / 8), (1.7 if k % 2 else 1.1) * sin(k * pi / 8)) for k in range(16)],
           "0")
    circle(pine, 0, 0, 0.2)
    shrub = doc.blocks.new("灌木")
    for x, y in ((0, 0.3), (-0.3, -0.2), (0.3, -0.2)):
        circle(shrub, x, y, 0.35)
    bay = doc.blocks.new("停车位")
    bay.add_lwpolyline([(0, 5.3), (0, 0), (2.5, 0), (2.5, 5.3)], dxfattribs={"layer": "0"})
    north = doc.blocks.new("指北针")
    circle(north, 0, 0, 4)
    solid_fill(north, [[(0, 4), (-0.8, -3.9), (0, -2.6)]], "0", color=0)
    closed(north, [(0, 4), (0.8, -3.9), (0, -2.6)], "0")


def contour(radius, turn):
    """A closed hill line around (128, 92), the same wobble for every height so that lines never cross."""
    wobble = 1 + 0.10 * sin(3 * turn + 0.6) + 0.06 * sin(5 * turn)
    return 128 + 1.25 * radius * wobble * cos(turn), 92 + 0.8 * radius * wobble * sin(turn)


def draw_ground(space):
    for level in range(12):
        index = level % 5 == 0
        points = [contour(6 + 3.4 * level, k * pi / 90) for k in range(180)]
        inside = [(x, y) for x, y in points if 1 < x < 179 and 62 < y < 119]
        whole = len(inside) == len(points)
        cut = next((k for k in range(180) if not whole and points[k - 1] not in inside and points[k] in inside), 0)
        runs, run = [], []
        for point in points[cut:] + points[:cut]:
            if point in inside:
                run.append(point)
            elif run:
                runs, run = runs + [run], []
        for piece in runs + [run] * bool(run):
            space.add_lwpolyline(piece, close=whole, dxfattribs={
                "layer": "等高线-计曲线" if index else "等高线-首曲线", "elevation": 62 - level, "const_width": 0.25 if index else 0})
        if index:
            x, y = contour(6 + 3.4 * level, pi)
            text(space, str(62 - level), x + 1.6, y, 1.4, "文字")
    box(space, 0, 0, 180, 120, "G-PROP", const_width=0.3)
    for x in range(0, 181, 30):
        for y in range(0, 121, 30):
            line(space, x - 1.5, y, x + 1.5, y, "坐标网")
            line(space, x, y - 1.5, x, y + 1.5, "坐标网")


def draw_roads(space):
    for edge in ([(0, 46.5), (180, 46.5)], [(0, 53.5), (80.5, 53.5, 0.414), (88.5, 61.5), (88.5, 120)],
                 [(95.5, 120), (95.5, 61.5, 0.414), (103.5, 53.5), (180, 53.5)]):
        space.add_lwpolyline(edge, "xyb", dxfattribs={"layer": "道路-边线"})
    line(space, 0, 50, 180, 50, "道路-中线")
    line(space, 92, 50, 92, 120, "道路-中线")
    for x in range(24):
        insert(space, "停车位", 104 + 2.5 * x, 41.2, "C-PRKG")
    space.add_spline([(30, 46.5), (34, 36), (44, 28), (60, 24), (70, 14), (72, 0)], dxfattribs={"layer": "步行道"})
    space.add_spline([(32.5, 46.5), (36, 37.5), (45.5, 30), (61.5, 25.5), (72, 15), (74.5, 0)], dxfattribs={"layer": "步行道"})


def draw_buildings(space):
    shapes = {"一号楼  6F": ([(12, 66), (74, 66), (74, 82), (40, 82), (40, 106), (12, 106)], (26, 76)),
              "二号楼  4F": ([(110, 12), (166, 12), (166, 30), (110, 30)], (138, 21))}
    for name, (corners, at) in shapes.items():
        solid_fill(space, [corners], "建筑-填充")
        closed(space, corners, "建筑-轮廓", const_width=0.35)
        text(space, name, *at, 3.2, "文字")
    space.add_ellipse((34, 14), (13, 3), 0.55, dxfattribs={"layer": "水体"})
    pond = space.add_hatch(dxfattribs={"layer": "水体-填充"})
    pond.dxf.color = 256
    pond.paths.add_edge_path().add_ellipse((34, 14), (13, 3), 0.55, 0, 360)
    text(space, "景观湖", 34, 14, 2.6, "文字")
    for points, layer in (([(0, 48), (138, 48), (138, 30)], "管线-给水"), ([(0, 52), (60, 52), (60, 66)], "管线-给水"),
                          ([(180, 49), (70, 49), (70, 66)], "管线-污水")):
        space.add_lwpolyline(points, dxfattribs={"layer": layer})


def draw_trees(space, rng):
    spots = [(x, y) for x in range(6, 100, 7) for y in (57.5,) if x < 84] + [(x, 36.5) for x in range(104, 166, 7)]
    spots += [(85.5, y) for y in range(66, 120, 7)] + [(99.5, y) for y in range(66, 120, 7)]
    for x, y in spots:
        insert(space, "阔叶树", x, y, "L-PLNT-TREE", rng.randrange(360), rng.choice((0.9, 1.0, 1.1)))
    placed = []
    while len(placed) < 90:
        x, y = rng.uniform(108, 174), rng.uniform(66, 114)
        if all((x - a) ** 2 + (y - b) ** 2 > 16 for a, b in placed):
            placed.append((x, y))
            insert(space, "针叶树", round(x, 2), round(y, 2), "L-PLNT-TREE", rng.randrange(360), rng.choice((0.7, 0.9, 1.1)))
    for x in range(12, 76, 2):
        insert(space, "灌木", x, 63.5, "L-PLNT-SHRB", rng.randrange(360))


def make():
    doc = ezdxf.new("R2000", units=6)
    add_linetypes(doc, ("CENTER", "DASHED", "PHANTOM"), 0.25)
    add_layers(doc, LAYERS)
    doc.styles.add("中文", font="simsun.ttf")
    make_blocks(doc)
    space = doc.modelspace()
    for draw in (draw_ground, draw_roads, draw_buildings):
        draw(space)
    draw_trees(space, random.Random(11))
    insert(space, "指北针", 188, 110, "G-ANNO-NORTH")
    text(space, "青禾科技园总平面图", 82, -8, 5, "文字")
    text(space, "1:500", 124, -8.4, 3.2, "文字")
    doc.header["$CLAYER"] = "道路-边线"
    doc.header["$EXTMIN"], doc.header["$EXTMAX"] = (0, -12, 0), (194, 120, 0)
    return doc
