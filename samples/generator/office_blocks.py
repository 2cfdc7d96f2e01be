"""The block library of the office floor. Geometry on layer 0 takes the layer of its insert."""
from math import cos, radians, sin

from .drafting import box, circle, closed, insert, line, solid_fill, text

TITLE_FIELDS = [  # tag, x, y, height of the text on paper; the frame is an A2 sheet in millimetres
    ("建设单位", 434, 68.5, 4), ("工程名称", 434, 58, 4), ("图名", 434, 47.5, 5), ("图号", 536, 38, 3.5),
    ("比例", 536, 30, 3.5), ("日期", 536, 22, 3.5), ("版次", 536, 14, 3.5), ("设计", 424, 38, 3.5),
    ("校对", 424, 30, 3.5), ("审核", 424, 22, 3.5), ("审定", 478, 38, 3.5), ("专业", 478, 30, 3.5), ("阶段", 478, 22, 3.5),
]


def block(doc, name):
    return doc.blocks.new(name)


def openings(doc):
    door = block(doc, "单扇门")
    box(door, 0, 0, 40, 1000)
    door.add_arc((0, 0), 1000, 0, 90, dxfattribs={"layer": "0", "lineweight": 9})
    window = block(doc, "外窗")
    for y in (-120, -40, 40, 120):
        line(window, 0, y, 1000, y)
    lift = block(doc, "电梯轿厢")
    box(lift, -800, 350, 800, 1750)
    line(lift, -800, 350, 800, 1750, linetype="HIDDEN")
    line(lift, -800, 1750, 800, 350, linetype="HIDDEN")
    box(lift, -600, 1850, 600, 2000)
    for x in (-500, 0):
        box(lift, x, 30, x + 500, 90)


def furniture(doc):
    chair = block(doc, "办公椅")
    closed(chair, [(-230, -200, -0.4), (-230, 200, 0), (230, 200, -0.4), (230, -200, 0)], "0")
    chair.add_lwpolyline([(-270, -60), (-270, -250, 0.35), (270, -250), (270, -60)], format="xyb",
                         dxfattribs={"layer": "0"})
    desk = block(doc, "办公桌")
    box(desk, -700, -700, 700, 0)
    box(desk, -680, -620, -320, -60, linetype="HIDDEN")
    computer = block(doc, "电脑")
    box(computer, -260, -190, 260, -140)
    box(computer, -220, -460, 220, -330)
    closed(computer, [(280, -440, 0.6), (340, -440, 0), (340, -350, 0.6), (280, -350, 0)], "0")
    station = block(doc, "工位")
    insert(station, "办公桌", 0, 0, "家具-办公桌")
    insert(station, "办公椅", 0, -980, "家具-座椅")
    insert(station, "电脑", 120, 0, "A-EQPM")
    sofa = block(doc, "双人沙发")
    closed(sofa, [(-750, -400), (750, -400), (750, 400), (-750, 400)], "0")
    box(sofa, -600, -400, 0, 220)
    box(sofa, 0, -400, 600, 220)
    cabinet = block(doc, "文件柜")
    box(cabinet, 0, 0, 900, 420)
    line(cabinet, 0, 0, 900, 420)
    printer = block(doc, "复印机")
    box(printer, -350, -325, 350, 325)
    box(printer, -350, 80, 350, 325)
    box(printer, 350, -150, 520, 150)
    rack = block(doc, "机柜")
    box(rack, -300, -400, 300, 400)
    line(rack, -300, -300, 300, -300)
    line(rack, -300, 400, 300, -300)


def plants(doc):
    plant = block(doc, "盆栽")
    circle(plant, 0, 0, 130)
    for k in range(9):
        turn = radians(40 * k)
        tip, side = (320 * cos(turn), 320 * sin(turn)), radians(40 * k + 24)
        plant.add_spline([(90 * cos(turn), 90 * sin(turn)), (230 * cos(side), 230 * sin(side)), tip],
                         dxfattribs={"layer": "0"})
        line(plant, 90 * cos(turn), 90 * sin(turn), *tip)


def fixtures(doc):
    closet = block(doc, "坐便器")
    box(closet, -220, -200, 220, 0)
    closet.add_ellipse((0, -430), (0, -260), 0.72, dxfattribs={"layer": "0"})
    urinal = block(doc, "小便器")
    urinal.add_lwpolyline([(-180, 0), (-180, -150, 0.9), (180, -150), (180, 0)], format="xyb", close=True,
                          dxfattribs={"layer": "0"})
    circle(urinal, 0, -130, 30)
    basin = block(doc, "洗手盆")
    box(basin, -400, -550, 400, 0)
    basin.add_ellipse((0, -290), (250, 0), 0.72, dxfattribs={"layer": "0"})
    circle(basin, 0, -130, 25)


def services(doc):
    grille = block(doc, "格栅灯")
    box(grille, -600, -150, 600, 150)
    for y in (-50, 50):
        line(grille, -600, y, 600, y)
    lamp = block(doc, "筒灯")
    circle(lamp, 0, 0, 90)
    line(lamp, -130, 0, 130, 0)
    line(lamp, 0, -130, 0, 130)
    outlet = block(doc, "插座")
    outlet.add_arc((0, 0), 120, 0, 180, dxfattribs={"layer": "0"})
    line(outlet, -120, 0, 120, 0)
    line(outlet, 0, 120, 0, 220)
    point = block(doc, "信息点")
    box(point, -110, -75, 110, 75)
    text(point, "TD", 0, 0, 90)
    vent = block(doc, "散流器")
    box(vent, -300, -300, 300, 300)
    box(vent, -180, -180, 180, 180)
    line(vent, -300, -300, 300, 300)
    line(vent, -300, 300, 300, -300)
    head = block(doc, "喷头")
    circle(head, 0, 0, 75)
    solid_fill(head, [[(-40, -40), (40, -40), (0, 50)]], "0", color=0)


def symbols(doc):
    bubble = block(doc, "轴号")
    circle(bubble, 0, 0, 400)
    bubble.add_attdef("编号", dxfattribs={"layer": "0", "height": 400, "style": "数字"}).set_pos(
        (0, 0), align="MIDDLE_CENTER")
    level = block(doc, "标高")
    closed(level, [(0, 0), (-300, 300), (300, 300)], "0")
    line(level, 300, 300, 1300, 300)
    level.add_attdef("标高", (350, 360), dxfattribs={"layer": "0", "height": 250, "style": "数字"})
    north = block(doc, "指北针")
    circle(north, 0, 0, 1000)
    closed(north, [(0, 1000), (-125, -990), (125, -990)], "0")
    solid_fill(north, [[(0, 1000), (-125, -990), (125, -990)]], "0", color=0)
    text(north, "北", 0, 1350, 450)


def title_frame(doc):
    frame = block(doc, "图框A2")
    box(frame, 0, 0, 594, 420, lineweight=13)
    frame.add_lwpolyline([(25, 10), (584, 10), (584, 410), (25, 410)], close=True,
                         dxfattribs={"layer": "0", "const_width": 0.7})
    frame.add_lwpolyline([(404, 10), (404, 74), (584, 74)], dxfattribs={"layer": "0", "const_width": 0.5})
    for y in (63, 53, 42, 34, 26, 18):
        line(frame, 404, y, 584, y)
    for x, low, high in ((430, 42, 74), (420, 18, 42), (458, 18, 42), (474, 18, 42), (512, 10, 42), (532, 10, 42)):
        line(frame, x, low, x, high)
    text(frame, "未经审定不得用于施工", 458, 14, 2.8)
    labels = [("建设单位", 417, 68.5), ("工程名称", 417, 58), ("图  名", 417, 47.5)]
    for x, names in ((412, ("设计", "校对", "审核")), (466, ("审定", "专业", "阶段")), (522, ("图号", "比例", "日期", "版次"))):
        labels += [(name, x, 38 - 8 * k) for k, name in enumerate(names)]
    for label, x, y in labels:
        text(frame, label, x, y, 3)
    for tag, x, y, height in TITLE_FIELDS:
        frame.add_attdef(tag, dxfattribs={"layer": "0", "height": height, "style": "中文"}).set_pos(
            (x, y), align="MIDDLE_LEFT")


def make_blocks(doc):
    for make in (openings, furniture, plants, fixtures, services, symbols, title_frame):
        make(doc)
