"""A storey of an office building, 42.0 m by 18.6 m, drawn in millimetres on an A2 sheet at 1:100."""
import random

import ezdxf

from .drafting import (add_layers, add_linetypes, box, circle, closed, insert, line, outlines, solid_fill, text,
                       text_table)
from .office_blocks import make_blocks
from .office_layers import LAYERS

AXES_X = [0, 8400, 16800, 25200, 33600, 42000]
AXES_Y = [0, 8100, 10500, 18600]
COLUMNS = [(x - 300, y - 300, x + 300, y + 300) for x in AXES_X for y in AXES_Y]

OUTER, CORE, PARTITION, GLASS = 240, 200, 120, 80
WALLS = [  # centre line x0, y0, x1, y1, thickness
    (0, 0, 42000, 0, OUTER), (0, 18600, 42000, 18600, OUTER), (0, 0, 0, 18600, OUTER), (42000, 0, 42000, 18600, OUTER),
    (0, 8100, 16800, 8100, CORE), (25200, 8100, 42000, 8100, CORE), (0, 10500, 42000, 10500, CORE),
    (16800, 10500, 16800, 18600, CORE), (19800, 10500, 19800, 18600, CORE), (24000, 10500, 24000, 18600, CORE),
    (25200, 10500, 25200, 18600, CORE), (19800, 12700, 24000, 12700, CORE), (21900, 10500, 21900, 12700, CORE),
    (39000, 10500, 39000, 18600, CORE),
    (8400, 10500, 8400, 18600, PARTITION), (12600, 10500, 12600, 18600, PARTITION),
    (28200, 10500, 28200, 18600, PARTITION), (31200, 10500, 31200, 18600, PARTITION),
    (33600, 10500, 33600, 18600, PARTITION), (24000, 15000, 25200, 15000, PARTITION),
    (16800, 0, 16800, 8100, GLASS), (25200, 0, 25200, 8100, GLASS), (16800, 8100, 25200, 8100, GLASS),
    (16800, 3900, 25200, 3900, GLASS), (21000, 0, 21000, 3900, GLASS),
]
DOORS = [  # hinge x, y, clear width, direction of the closed leaf, opens to its right, leaves, number
    (2400, 8100, 1500, 0, True, 2, "M1521"), (13200, 8100, 1500, 0, True, 2, "M1521"),
    (20100, 8100, 1800, 0, True, 2, "BLM1824"), (27600, 8100, 1500, 0, True, 2, "M1521"),
    (38100, 8100, 1500, 0, True, 2, "M1521"), (17700, 3900, 900, 0, True, 1, "BLM0921"),
    (24300, 3900, 900, 180, False, 1, "BLM0921"), (1200, 10500, 1500, 0, False, 2, "M1521"),
    (7200, 10500, 1000, 180, True, 1, "M1021"), (9000, 10500, 1000, 0, False, 1, "M1021"),
    (13200, 10500, 1000, 0, False, 1, "M1021"), (17550, 10500, 1500, 0, False, 2, "FM1521"),
    (24150, 10500, 700, 0, False, 1, "FM0721"), (25900, 10500, 900, 0, False, 1, "M0921"),
    (28900, 10500, 900, 0, False, 1, "M0921"), (31700, 10500, 900, 0, False, 1, "M0921"),
    (34400, 10500, 1000, 0, False, 1, "M1021"), (39750, 10500, 1500, 0, False, 2, "FM1521"),
    (24000, 13200, 900, 90, True, 1, "FM0921"), (24200, 15000, 800, 0, False, 1, "FM0821"),
]
LIFT_OPENINGS = [(20350, 10350, 21350, 10650), (22450, 10350, 23450, 10650)]
WINDOWS = [(bay + start, 0, 3000, 0) for bay in AXES_X[:-1] for start in (900, 4500)]
WINDOWS += [(x, 18600, width, 0) for x, width in (
    (900, 3000), (4500, 3000), (9000, 3000), (13200, 3000), (17550, 1500), (20400, 3000), (26100, 1200),
    (29100, 1200), (31500, 1500), (34800, 3000), (39750, 1500))]
WINDOWS += [(x, y, width, 90) for x in (0, 42000) for y, width in ((900, 2700), (4500, 2700), (8700, 1200))]
WINDOWS += [(0, y, 2700, 90) for y in (11400, 15000)]

ROOMS = [  # name, text x, y, height, clear rectangle
    ("开放办公区一", 8400, 5500, 300, (120, 120, 16760, 8000)), ("前台大厅", 21000, 6500, 350, (16840, 3940, 25160, 8060)),
    ("洽谈室一", 19750, 3000, 300, (16840, 120, 20960, 3860)), ("洽谈室二", 22250, 3000, 300, (21040, 120, 25160, 3860)),
    ("开放办公区二", 33600, 5500, 300, (25240, 120, 41880, 8000)), ("大会议室", 4300, 12450, 350, (120, 10600, 8340, 18480)),
    ("小会议室", 10900, 12300, 350, (8460, 10600, 12540, 18480)), ("财务室", 15300, 12300, 350, (12660, 10600, 16700, 18480)),
    ("楼梯间一", 18300, 17800, 300, (16900, 10600, 19700, 18480)), ("空调机房", 21850, 13600, 300, (19900, 12800, 23900, 18480)),
    ("弱电井", 24600, 16450, 200, (24100, 15060, 25100, 18480)), ("男卫", 26500, 13100, 300, (25300, 10600, 28140, 18480)),
    ("女卫", 29600, 13100, 300, (28260, 10600, 31140, 18480)), ("茶水间", 32400, 13500, 300, (31260, 10600, 33540, 18480)),
    ("总经理室", 36900, 12300, 350, (33660, 10600, 38900, 18480)), ("楼梯间二", 40500, 17800, 300, (39100, 10600, 41880, 18480)),
    ("走廊", 12600, 9450, 300, (120, 8200, 41880, 10400)),
]


def draw_axes(space):
    for axis, marks, low, high, upright in ((AXES_X, "123456", -4400, 23000, True),
                                            (AXES_Y, "ABCD", -4400, 46400, False)):
        for position, mark in zip(axis, marks):
            ends = [(position, low), (position, high)] if upright else [(low, position), (high, position)]
            line(space, *ends[0], *ends[1], "轴线")
            for (x, y), side in zip(ends, (-400, 400)):
                at = (x, y + side) if upright else (x + side, y)
                insert(space, "轴号", *at, "轴线编号").add_auto_attribs({"编号": mark})


def wall_box(x0, y0, x1, y1, thickness):
    half = thickness / 2
    return (x0 - half, y0 - half, x1 + half, y1 + half)


def opening_box(x, y, width, direction):
    along = {0: (0, -150, width, 150), 90: (-150, 0, 150, width), 180: (-width, -150, 0, 150)}[direction]
    return tuple(start + offset for start, offset in zip((x, y, x, y), along))


def draw_walls(space):
    holes = [opening_box(*door[:4]) for door in DOORS] + [opening_box(*window) for window in WINDOWS]
    holes += LIFT_OPENINGS + COLUMNS
    boxes = {kind: [wall_box(*wall) for wall in WALLS if wall[4] in kind]
             for kind in ((OUTER, CORE), (PARTITION,), (GLASS,))}
    taken = []
    for kind, layer in (((OUTER, CORE), "A-WALL"), ((PARTITION,), "墙体-隔墙"), ((GLASS,), "A-GLAZ")):
        loops = outlines(boxes[kind], holes + taken)
        for loop in loops:
            closed(space, loop, layer)
        if layer != "A-GLAZ":
            solid_fill(space, loops, "墙体-填充")
        taken += boxes[kind]
    for column in COLUMNS:
        box(space, *column, "A-COLS")
        solid_fill(space, outlines([column], []), "柱-填充")


def draw_openings(space):
    for x, y, width, direction, right, leaves, number in DOORS:
        dx, dy = {0: (1, 0), 90: (0, 1), 180: (-1, 0)}[direction]
        insert(space, "单扇门", x, y, "A-DOOR", direction, width / leaves / 1000, right)
        if leaves == 2:
            insert(space, "单扇门", x + dx * width, y + dy * width, "A-DOOR", direction + 180, width / 2000, not right)
        if direction == 90:
            text(space, number, x - 260, y + width / 2, 150, "门窗-编号", rotation=90, style="数字")
        else:
            inside = 1 if (direction == 0) == right else -1
            text(space, number, x + dx * width / 2, y + inside * 270, 150, "门窗-编号", style="数字")
    for x, y, width, rotation in WINDOWS:
        insert(space, "外窗", x, y, "门窗-窗", rotation, width / 1000, yscale=1)
        name, middle = f"C{width // 100}20", width / 2
        if rotation:
            text(space, name, x + (350 if x else -350), y + middle, 200, "门窗-编号", rotation=90, style="数字")
        else:
            text(space, name, x + middle, y + (350 if y else -350), 200, "门窗-编号", style="数字")
    for x in (20850, 22950):
        insert(space, "电梯轿厢", x, 10500, "电梯")


def draw_stair(space, x0, x1):
    middle, low, tread, count = (x0 + x1) / 2, 12600, 280, 13
    top = low + (count - 1) * tread
    for k in range(count):
        y = low + k * tread
        line(space, x0, y, middle - 60, y, "A-STRS")
        line(space, middle + 60, y, x1, y, "A-STRS")
    box(space, middle - 60, low - 60, middle + 60, top + 60, "A-STRS")
    bend = top + 700
    left, right = (x0 + middle) / 2, (x1 + middle) / 2
    for points, caption, x in (([(left, low - 500), (left, low + 1500)], "上", left),
                               ([(right, low - 500), (right, bend), (left, bend), (left, low + 2000)], "下", right)):
        (_, before), (x_end, y_end) = points[-2:]
        back = y_end - (300 if y_end > before else -300)
        space.add_lwpolyline(points, dxfattribs={"layer": "A-STRS"})
        space.add_solid([(x_end, y_end), (x_end - 60, back), (x_end + 60, back)], dxfattribs={"layer": "A-STRS"})
        text(space, caption, x, low - 750, 250, "A-STRS")
    space.add_lwpolyline([(x0, low + 1650), (left - 100, low + 1740), (left - 30, low + 1880), (left + 60, low + 1600),
                          (left + 120, low + 1740), (middle - 60, low + 1800)], dxfattribs={"layer": "A-STRS"})


def draw_workstations(space):
    number = 0
    for bay, letter in ((0, "A"), (25200, "B")):
        number = 0
        for spine in (2300, 5700):
            for start in (1400, 9800):
                for k in range(4):
                    x = bay + start + 700 + 1400 * k
                    for turn, sign in ((0, -1), (180, 1)):
                        number += 1
                        insert(space, "工位", x, spine + 20 * sign, "家具-办公桌", turn)
                        text(space, f"{letter}{number:02}", x - 500 * -sign, spine + 590 * sign, 110, "文字-工位号",
                             style="数字")
                    insert(space, "信息点", x + 480, spine + 150, "弱电-信息点")
                box(space, bay + start, spine - 20, bay + start + 5600, spine + 20, "家具-办公桌")
        for k in range(3):
            insert(space, "文件柜", bay + 7050 + 900 * k, 320, "家具-柜")
        insert(space, "复印机", bay + 8400, 7450, "A-EQPM")


def seats(space, x, y, places):
    for dx, dy, turn in places:
        insert(space, "办公椅", x + dx, y + dy, "家具-座椅", turn)


def draw_meeting_rooms(space):
    table = "家具-会议桌"
    closed(space, [(2000, 14100, 0), (6600, 14100, 0.5), (6600, 15700, 0), (2000, 15700, 0.5)], table)
    seats(space, 4300, 14900, [(-1950 + 650 * k, 1120 * s, 0 if s < 0 else 180) for k in range(7) for s in (-1, 1)])
    seats(space, 4300, 14900, [(-3050, 0, 270), (3050, 0, 90)])
    box(space, 200, 13700, 280, 16100, "A-EQPM")
    for k in range(3):
        insert(space, "文件柜", 8300, 15000 + 900 * k, "家具-柜", 90)
    closed(space, [(9900, 13700, -0.2), (9900, 16500, -0.3), (11100, 16500, -0.2), (11100, 13700, -0.3)], table)
    seats(space, 10500, 15100, [(980 * s, -900 + 900 * k, 90 * s) for k in range(3) for s in (-1, 1)])
    seats(space, 10500, 15100, [(0, 1950, 180), (0, -1950, 0)])
    for x in (18300, 23700):
        circle(space, x, 1500, 550, table)
        seats(space, x, 1500, [(0, -850, 0), (0, 850, 180), (850, 0, 90), (-850, 0, 270)])


def draw_private_rooms(space):
    for x in (13900, 15300):
        insert(space, "工位", x + 200, 15480, "家具-办公桌")
        insert(space, "工位", x + 200, 15520, "家具-办公桌", 180)
    for k in range(4):
        insert(space, "文件柜", 13080, 13300 + 900 * k, "家具-柜", 90)
    box(space, 36000, 16000, 38000, 17000, "家具-办公桌")
    seats(space, 37000, 17400, [(0, 0, 180), (-500, -1850, 0), (500, -1850, 0)])
    insert(space, "电脑", 37000, 16950, "A-EQPM")
    for k in range(4):
        insert(space, "文件柜", 38900, 13300 + 900 * k, "家具-柜", 90)
    insert(space, "双人沙发", 34100, 14400, "家具-座椅", 90)
    insert(space, "双人沙发", 35000, 15800, "家具-座椅")
    space.add_ellipse((35200, 14400), (0, 500), 0.6, dxfattribs={"layer": "家具-会议桌"})
    for y in (17250, 18050):
        insert(space, "机柜", 24600, y, "A-EQPM")
    closed(space, [(20500, 14800), (23000, 14800), (23000, 17400), (20500, 17400)], "A-EQPM")
    line(space, 20500, 16100, 23000, 16100, "A-EQPM")
    for y in (15450, 16750):
        circle(space, 21750, y, 480, "A-EQPM")
        circle(space, 21750, y, 110, "A-EQPM")


def draw_lobby(space):
    closed(space, [(19500, 5600, 0.35), (22500, 5600, 0), (22300, 5150, -0.33), (19700, 5150, 0)], "家具-会议桌")
    seats(space, 21000, 4480, [(-600, 0, 180), (600, 0, 180)])
    for x, turn in ((17400, 90), (24600, 270)):
        for y in (4850, 6450):
            insert(space, "双人沙发", x, y, "家具-座椅", turn)
        circle(space, x + (1100 if turn == 90 else -1100), 5650, 350, "家具-会议桌")


def draw_wet_rooms(space):
    for left, right, stalls in ((25300, 28140, 4), (28260, 31140, 5)):
        for top in range(18480, 18480 - 950 * stalls, -950):
            line(space, left, top - 950, left + 1300, top - 950, "卫生间隔断")
            for low, high in ((top - 250, top), (top - 950, top - 850)):
                line(space, left + 1300, low, left + 1300, high, "卫生间隔断")
            insert(space, "单扇门", left + 1300, top - 250, "卫生间隔断", 270, 0.6)
            insert(space, "坐便器", left, top - 475, "P-FIXT", 90)
        for y in (11700, 12550):
            insert(space, "洗手盆", right, y, "P-FIXT", 270)
    for y in range(15200, 17800, 850):
        insert(space, "小便器", 28140, y, "P-FIXT", 270)
        line(space, 27700, y + 425, 28140, y + 425, "卫生间隔断")
    closed(space, [(31260, 14500), (31860, 14500), (31860, 17880), (33540, 17880), (33540, 18480), (31260, 18480)], "家具-柜")
    insert(space, "洗手盆", 32700, 18450, "P-FIXT")
    box(space, 31300, 14560, 31820, 15260, "A-EQPM")
    circle(space, 32850, 15600, 400, "家具-会议桌")
    seats(space, 32850, 15600, [(0, -700, 0), (0, 700, 180)])
    for room in ROOMS:
        if room[0] in ("男卫", "女卫"):
            tiles = space.add_hatch(dxfattribs={"layer": "地面铺装"})
            tiles.set_pattern_fill("NET", scale=96)
            tiles.paths.add_polyline_path([(x, y) for x, y in outlines([room[4]], COLUMNS)[0]], is_closed=True)


def draw_paving(space):
    for x in range(1200, 42000, 1200):
        line(space, x, 8200, x, 10400, "地面铺装")
    for y in (8900, 9700):
        line(space, 120, y, 41880, y, "地面铺装")
    medallion = space.add_hatch(dxfattribs={"layer": "地面铺装"})
    medallion.set_pattern_fill("ANSI31", scale=60)
    edges = medallion.paths.add_edge_path()
    edges.add_arc((21000, 9300), 800, 0, 360)
    circle(space, 21000, 9300, 800, "地面铺装")
    circle(space, 21000, 9300, 1000, "地面铺装")


def draw_plants(space, rng):
    for x, y in ((550, 500), (16300, 500), (16300, 7500), (25700, 7500), (41400, 500), (25700, 500), (41400, 7500),
                 (19200, 4300), (22800, 4300), (17300, 7650), (24700, 7650), (550, 18000), (7900, 18000), (7900, 11000),
                 (38500, 18000), (34100, 18000), (34100, 12300), (12200, 18000), (8900, 18000), (16300, 18000),
                 (12000, 11000), (24700, 500), (17300, 3400)):
        insert(space, "盆栽", x, y, "绿化-盆栽", rng.randrange(0, 360, 5), rng.choice((0.8, 0.9, 1.0, 1.1)))


def draw_services(space):
    for bay in (0, 25200):
        for x in range(1400, 16800, 2800):
            for y in range(1200, 8000, 1450):
                insert(space, "格栅灯", bay + x, y, "E-LITE")
    for x in range(900, 42000, 1800):
        insert(space, "筒灯", x, 9300, "E-LITE")
    for name, _, _, _, (x0, y0, x1, y1) in ROOMS[:16]:
        columns, rows = max(1, round((x1 - x0) / 3200)), max(1, round((y1 - y0) / 3200))
        for i in range(columns):
            x = x0 + (i + 0.5) * (x1 - x0) / columns
            for j in range(rows):
                insert(space, "喷头", x, y0 + (j + 0.5) * (y1 - y0) / rows, "消防-喷淋")
            line(space, x, y0 + 100, x, y1 - 100, "消防-喷淋")
        if (x1 - x0) > 4000:
            for x in range(int(x0) + 1100, int(x1) - 600, 1500):
                insert(space, "插座", x, y0 if y0 < 8000 else y1, "E-POWR", 0 if y0 < 8000 else 180)
    box(space, 600, 9000, 41400, 9600, "暖通-风管")
    for x in (2100, 6300, 10500, 14700, 27300, 31500, 36300, 40500):
        for low, high, end in ((9600, 14000, 14300), (4500, 9000, 4200)):
            line(space, x - 160, low, x - 160, high, "暖通-风管")
            line(space, x + 160, low, x + 160, high, "暖通-风管")
            insert(space, "散流器", x, end, "暖通-风口")
    for points in ([(14700, 7300), (14500, 8700), (15800, 9250), (17600, 9400), (18300, 9850)],
                   [(38800, 7300), (38600, 8700), (39300, 9250), (40300, 9500), (40500, 9850)]):
        space.add_spline(points, dxfattribs={"layer": "疏散路线"})
        x, y = points[-1]
        solid_fill(space, [[(x, y + 200), (x - 120, y - 120), (x + 120, y - 120)]], "疏散路线")


def draw_names(space):
    for name, x, y, height, (x0, y0, x1, y1) in ROOMS:
        text(space, name, x, y, height, "文字-房间名")
        if height >= 300 and name != "走廊":
            area = (x1 - x0) * (y1 - y0) / 1e6
            text(space, f"{area:.1f} m²", x, y - 1.5 * height, 0.72 * height, "文字-面积", style="数字")
    for x, y in ((28600, 9200), (22700, 7300)):
        insert(space, "标高", x, y, "A-DIMS").add_auto_attribs({"标高": "8.400"})


def chain(space, points, offset, upright=False):
    for start, end in zip(points, points[1:]):
        p1, p2 = ((offset[0], start), (offset[0], end)) if upright else ((start, offset[0]), (end, offset[0]))
        base = (offset[1], 0) if upright else (0, offset[1])
        dimension = space.add_linear_dim(base=base, p1=p1, p2=p2, angle=90 if upright else 0, dimstyle="建筑",
                                         dxfattribs={"layer": "A-DIMS"})
        dimension.render()
        for part in dimension.dimension.get_geometry_block():
            if part.dxf.layer == "0":
                part.dxf.layer = "A-DIMS"


def draw_dimensions(space):
    south = sorted({x for x, y, width, turn in WINDOWS if y == 0 and not turn for x in (x, x + width)} | set(AXES_X))
    north = sorted({x for x, y, width, turn in WINDOWS if y == 18600 for x in (x, x + width)} | set(AXES_X))
    west = sorted({y for x, y, width, turn in WINDOWS if turn and x == 0 for y in (y, y + width)} | set(AXES_Y))
    ends = [0, 42000]
    for points, face, sign in ((south, -500, -1), (north, 19100, 1)):
        chain(space, points, (face, face + sign * 1100))
        chain(space, AXES_X, (face + sign * 600, face + sign * 2000))
        chain(space, ends, (face + sign * 1500, face + sign * 2900))
    for points, face, sign in ((west, -500, -1), (AXES_Y, 42500, 1)):
        chain(space, points, (face, face + sign * 1100), True)
        if sign < 0:
            chain(space, AXES_Y, (face - 600, face - 2000), True)
        chain(space, [0, 18600], (face + sign * 1500, face + sign * 2900), True)
    for bay in (0, 25200):
        chain(space, [bay + x for x in (1400, 7000, 9800, 15400)], (4000, 4000))


def draw_sheet(space):
    text(space, "三层平面图", 19500, -7100, 800, "文字-说明")
    text(space, "1:100", 24600, -7200, 500, "文字-说明", style="数字")
    space.add_lwpolyline([(16600, -7750), (25800, -7750)], dxfattribs={"layer": "文字-说明", "const_width": 80})
    line(space, 16600, -7900, 25800, -7900, "文字-说明")
    insert(space, "指北针", 46900, 21900, "文字-说明")
    rows = [("序号", "房间名称", "净面积 (m²)")]
    rooms = [(name, (x1 - x0) * (y1 - y0) / 1e6) for name, _, _, _, (x0, y0, x1, y1) in ROOMS]
    rows += [(str(k), name, f"{area:.1f}") for k, (name, area) in enumerate(rooms[:9], 1)]
    text(space, "房间面积表", -2700, -8600, 350, "文字-说明")
    text_table(space, -6000, -9000, (1100, 3000, 2500), rows, 250, "文字-说明", "A-TABL", 590)
    rows = rows[:1] + [(str(k), name, f"{area:.1f}") for k, (name, area) in enumerate(rooms[9:], 10)]
    rows.append(("", "合计", f"{sum(area for _, area in rooms):.1f}"))
    text_table(space, 800, -9000, (1100, 3000, 2500), rows, 250, "文字-说明", "A-TABL", 590)
    text(space, "门表", 10650, -8600, 350, "文字-说明")
    numbers = sorted({door[6] for door in DOORS})
    rows = [("编号", "洞口宽", "数量")]
    rows += [(n, str(next(d[2] for d in DOORS if d[6] == n)), str(sum(d[6] == n for d in DOORS))) for n in numbers]
    text_table(space, 8400, -9000, (1900, 1500, 1100), rows, 250, "文字-说明", "A-TABL", 590)
    text(space, "图例", 17350, -8600, 350, "文字-说明")
    for k, (name, layer, caption, scale) in enumerate((
            ("插座", "E-POWR", "单相五孔插座", 1), ("信息点", "弱电-信息点", "网络与电话插座", 1.2),
            ("盆栽", "绿化-盆栽", "室内绿植", 0.7), ("办公椅", "家具-座椅", "办公椅", 0.8),
            ("坐便器", "P-FIXT", "坐便器", 0.7), ("电脑", "A-EQPM", "电脑", 1))):
        y = -9400 - 850 * k
        drop = {"坐便器": 240, "电脑": 250, "插座": -80}.get(name, 0)
        insert(space, name, 14900, y + drop, layer, scale=scale)
        text(space, caption, 15700, y, 250, "文字-说明", "MIDDLE_LEFT")
    notes = ("设计说明\\P1. 本层建筑标高 8.400 m，尺寸单位为毫米，标高单位为米。\\P"
             "2. 外墙厚 240，核心筒及走廊墙厚 200，隔墙厚 120。\\P3. 未注明的门垛宽 120，门窗以现场实测为准。\\P"
             "4. 卫生间完成面低于走廊 20，向地漏找坡 1%。\\P5. 防火门 FM 为乙级，向疏散方向开启。\\P"
             "6. 结构、机电底图见外部参照，冲突处以结构图为准。")
    space.add_mtext(notes, dxfattribs={"layer": "文字-说明", "style": "中文", "char_height": 270, "width": 10800,
                                       "line_spacing_factor": 1.4, "insert": (19500, -9000), "attachment_point": 1})


TITLE = {"建设单位": "青禾科技园开发有限公司", "工程名称": "青禾科技园二号办公楼", "图名": "三层平面图", "图号": "建施-05", "比例": "1:100",
         "日期": "2024.03", "版次": "A", "设计": "林一川", "校对": "周若水", "审核": "陈望山", "审定": "许知远", "专业": "建筑", "阶段": "施工图"}


def draw_layout(doc):
    layout = doc.layouts.get("Layout1")
    doc.layouts.rename("Layout1", "三层平面 A2")
    layout.page_setup(size=(594, 420), margins=(0, 0, 0, 0), units="mm")
    insert(layout, "图框A2", 0, 0, "A-TTLB").add_auto_attribs(TITLE)
    viewport = layout.add_viewport(center=(304.5, 210), size=(559, 400), view_center_point=(21000, 4800),
                                   view_height=40000)
    for each in layout.viewports():
        each.dxf.layer = "视口"
    viewport.frozen_layers = ["A-TTLB", "文字-工位号"]


def add_styles(doc):
    doc.styles.add("中文", font="simhei.ttf").dxf.width = 0.9
    doc.styles.add("数字", font="arial.ttf").dxf.width = 0.85
    style = doc.dimstyles.new("建筑")
    for name, value in {"dimtxt": 2.2, "dimscale": 100, "dimexe": 1.5, "dimexo": 2, "dimdle": 0, "dimasz": 1.2, "dimtad": 1,
                        "dimgap": 0.6, "dimdec": 0, "dimtxsty": "数字", "dimtih": 0, "dimtoh": 0, "dimclrt": 7, "dimclrd": 256, "dimclre": 256,
                        "dimdsep": 46, "dimlfac": 1, "dimrnd": 0}.items():
        style.set_dxf_attrib(name, value)
    style.set_arrows("ARCHTICK", "ARCHTICK", "ARCHTICK")


def make():
    doc = ezdxf.new("R2013", units=4)
    doc.encoding = "gbk"
    add_linetypes(doc, ("CENTER", "DASHED", "HIDDEN"))
    add_layers(doc, LAYERS)
    add_styles(doc)
    make_blocks(doc)
    doc.add_xref_def("结构底图.dwg", "结构底图")
    space = doc.modelspace()
    for draw in (draw_paving, draw_walls, draw_axes, draw_openings, draw_workstations, draw_meeting_rooms,
                 draw_private_rooms, draw_lobby, draw_wet_rooms, draw_services, draw_names, draw_dimensions, draw_sheet):
        draw(space)
    draw_plants(space, random.Random(3))
    draw_stair(space, 16900, 19700)
    draw_stair(space, 39100, 41880)
    insert(space, "结构底图", 0, 0, "结构底图")
    insert(space, "图框A2", -9450, -16200, "A-TTLB", scale=100).add_auto_attribs(TITLE)
    draw_layout(doc)
    doc.header["$LTSCALE"] = 60
    doc.header["$CLAYER"] = "墙体-隔墙"
    doc.header["$EXTMIN"], doc.header["$EXTMAX"] = (-9450, -16200, 0), (49950, 25800, 0)
    doc.set_modelspace_vport(44000, (20250, 4800))
    return doc
