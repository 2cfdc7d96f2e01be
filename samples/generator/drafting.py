"""What the sample drawings share: layer tables, wall outlines, tables of text, writing the file."""
import re
from collections import namedtuple

from ezdxf.lldxf.const import DXFValueError

# flags: o off, f frozen, v frozen in new viewports, l locked, n not plotted,
#        x depends on an external reference, r that reference is resolved
Layer = namedtuple("Layer", "name colour linetype weight flags transparency description",
                   defaults=("Continuous", -3, "", 0, ""))
FLAG_BITS = {"f": 1, "v": 2, "l": 4, "x": 16, "r": 32}

LINETYPES = {
    "CENTER": ("点划线", [24.0, 16.0, -3.0, 2.0, -3.0]),
    "DASHED": ("虚线", [6.0, 4.0, -2.0]),
    "HIDDEN": ("短虚线", [3.0, 2.0, -1.0]),
    "PHANTOM": ("双点划线", [25.0, 13.0, -2.0, 3.0, -2.0, 3.0, -2.0]),
}


def add_linetypes(doc, names, scale=1.0):
    for name in names:
        description, pattern = LINETYPES[name]
        doc.linetypes.add(name, [scale * length for length in pattern], description=description)


def add_layers(doc, rows):
    for row in rows:
        layer = doc.layers.get(row.name) if row.name in doc.layers else doc.layers.add(row.name)
        layer.dxf.linetype = row.linetype
        layer.dxf.flags = sum(FLAG_BITS.get(flag, 0) for flag in row.flags)
        layer.color = row.colour if isinstance(row.colour, int) else 7
        if isinstance(row.colour, tuple):
            layer.color, layer.rgb = row.colour[0], row.colour[1:]
        if doc.dxfversion > "AC1009":
            layer.dxf.lineweight = row.weight
            layer.dxf.plot = 0 if "n" in row.flags else 1
        if row.transparency:
            layer.transparency = row.transparency / 100
        if row.description:
            layer.description = row.description
        if "o" in row.flags:
            layer.off()


def rectangle(x0, y0, x1, y1):
    return [(x0, y0), (x1, y0), (x1, y1), (x0, y1)]


def outlines(solid, cut):
    """Corner lists of the area covered by the rectangles of `solid` and by none of `cut`.

    Outer outlines run counter-clockwise, those of holes clockwise."""
    xs = sorted({x for r in solid + cut for x in (r[0], r[2])})
    ys = sorted({y for r in solid + cut for y in (r[1], r[3])})
    column, row = {x: i for i, x in enumerate(xs)}, {y: i for i, y in enumerate(ys)}
    cells = set()
    for rects, change in ((solid, cells.update), (cut, cells.difference_update)):
        for x0, y0, x1, y1 in rects:
            change([(i, j) for i in range(column[x0], column[x1]) for j in range(row[y0], row[y1])])
    follow = {}
    for i, j in sorted(cells):
        for (di, dj), start, end in (((0, -1), (i, j), (i + 1, j)), ((1, 0), (i + 1, j), (i + 1, j + 1)),
                                     ((0, 1), (i + 1, j + 1), (i, j + 1)), ((-1, 0), (i, j + 1), (i, j))):
            if (i + di, j + dj) not in cells:
                follow.setdefault(start, []).append(end)
    loops = []
    while follow:
        first = at = min(follow)
        loop = []
        while at in follow:
            loop.append(at)
            following = follow[at].pop()
            if not follow[at]:
                del follow[at]
            at = following
        assert at == first
        loops.append([(xs[i], ys[j]) for i, j in without_straight_points(loop)])
    return loops


def without_straight_points(loop):
    count = len(loop)
    return [p for k, p in enumerate(loop)
            if not (loop[k - 1][0] == p[0] == loop[(k + 1) % count][0]
                    or loop[k - 1][1] == p[1] == loop[(k + 1) % count][1])]


def closed(space, points, layer, **attribs):
    """`points` are corners, or corners with the bulge of the segment that follows."""
    form = "xyb" if len(points[0]) == 3 else "xy"
    return space.add_lwpolyline(points, form, close=True, dxfattribs=dict(attribs, layer=layer))


def box(space, x0, y0, x1, y1, layer="0", **attribs):
    return closed(space, rectangle(x0, y0, x1, y1), layer, **attribs)


def line(space, x0, y0, x1, y1, layer="0", **attribs):
    return space.add_line((x0, y0), (x1, y1), dxfattribs=dict(attribs, layer=layer))


def circle(space, x, y, radius, layer="0", **attribs):
    return space.add_circle((x, y), radius, dxfattribs=dict(attribs, layer=layer))


def text(space, content, x, y, height, layer="0", align="MIDDLE_CENTER", rotation=0, style="中文", **attribs):
    attribs = dict(attribs, layer=layer, height=height, style=style, rotation=rotation)
    return space.add_text(content, dxfattribs=attribs).set_pos((x, y), align=align)


def insert(space, name, x, y, layer="0", rotation=0, scale=1.0, mirror=False, **attribs):
    attribs = dict(attribs, layer=layer, rotation=rotation, xscale=scale, zscale=abs(scale))
    attribs.setdefault("yscale", -scale if mirror else scale)
    return space.add_blockref(name, (x, y), dxfattribs=attribs)


def solid_fill(space, loops, layer, **attribs):
    hatch = space.add_hatch(dxfattribs=dict(attribs, layer=layer))
    hatch.dxf.color = attribs.get("color", 256)
    for loop in loops:
        hatch.paths.add_polyline_path(loop, is_closed=True)
    return hatch


def text_table(space, x, y, widths, rows, height, text_layer, line_layer, row_height, style="中文"):
    """A ruled table whose top left corner is (x, y); the first row is its heading."""
    right, bottom = x + sum(widths), y - row_height * len(rows)
    for k in range(len(rows) + 1):
        line(space, x, y - k * row_height, right, y - k * row_height, line_layer)
    edge = x
    for width in list(widths) + [0]:
        line(space, edge, y, edge, bottom, line_layer)
        edge += width
    for k, row in enumerate(rows):
        edge = x
        for width, content in zip(widths, row):
            if content:
                text(space, content, edge + width / 2, y - (k + 0.5) * row_height, height, text_layer, style=style)
            edge += width


def save(doc, path, encoding, line_end="\n"):
    errors = doc.audit().errors
    if errors:
        raise DXFValueError(f"{path.name}: {[error.message for error in errors]}")
    # The writer adds the classes in use from an unordered set; named beforehand they keep one order.
    for dxf_type in sorted(doc.entitydb.dxf_types_in_use()):
        doc.classes.add_class(dxf_type)
    doc.saveas(path, encoding=encoding)
    content = path.read_text(encoding=encoding)
    # The writer's escapes are in small letters, which its own reader does not know.
    content = re.sub(r"\\U\+[0-9a-f]{4}", lambda escape: "\\U+" + escape[0][3:].upper(), content)
    path.write_bytes(content.replace("\n", line_end).encode(encoding))
