#include "geometry/geometry.h"
#include "geometry/geometrytext.h"
#include "rows.h"
#include "sketch.h"

#include <QLineF>

#include <cmath>

using namespace drawing;

Q_DECLARE_METATYPE(TextRun::Horizontal)

namespace {

using Numbers = QVector<double>;

Geometry flatten(const QByteArray& entities, const Sketch& sketch = {})
{
    const auto drawing = sketch.open(entities);
    return drawing ? buildGeometry(*drawing).value_or(Geometry()) : Geometry();
}

Box boundsOf(const Geometry& geometry)
{
    Box box;
    for (const GeometryGroup& group : geometry.groups)
        box.add(group.bounds);
    return box;
}

std::size_t primitiveCount(const Geometry& geometry)
{
    std::size_t count = 0;
    for (const GeometryGroup& group : geometry.groups)
        count += group.primitives.size();
    return count;
}

bool near(const Numbers& found, const Numbers& wanted)
{
    if (found.size() != wanted.size())
        return false;
    for (int i = 0; i < found.size(); ++i) {
        if (std::abs(found[i] - wanted[i]) > 1e-6)
            return false;
    }
    return true;
}

/// A rectangular loop of a hatch, as a polyline.
QByteArray loop(int from, int to)
{
    const QByteArray a = QByteArray::number(from);
    const QByteArray b = QByteArray::number(to);
    return " 92 2 72 0 73 1 93 4 10 " + a + " 20 " + a + " 10 " + b + " 20 " + a + " 10 " + b +
           " 20 " + b + " 10 " + a + " 20 " + b + " 97 0";
}

// A hatch with a pattern consists of its head, its loops, this, and the lines of the pattern.
const QByteArray kPattern = "0 HATCH 8 A 10 0 20 0 30 0 2 X 70 0 71 0 91 1";
const QByteArray kPatternOf = " 75 0 76 1 52 0 41 1 77 0";

const QByteArray kUnitLine = "0 LINE 8 A 10 0 20 0 11 1 21 0 ";

} // namespace

class GeometryTest : public QObject
{
    Q_OBJECT

private slots:
    void shapes_data()
    {
        // Smallest and largest x and y, empty when nothing is drawn; then the first and the last
        // vertex, empty when they do not matter.
        const Rows<QByteArray, Numbers, Numbers> row("entity", "box", "ends");
        const QByteArray poly = "0 LWPOLYLINE 8 A ";
        row("a positive bulge swings to the right of its chord",
            poly + "90 2 70 0 10 0 20 0 42 1 10 2 20 0", {0, -1, 2, 0}, {0, 0, 2, 0});
        row("a bulge past a half circle", poly + "70 0 10 0 20 0 42 -2.414213562373095 10 2 20 0",
            {1 - M_SQRT2, 0, 1 + M_SQRT2, 1 + M_SQRT2}, {0, 0, 2, 0});
        row("the last bulge closes", poly + "70 1 10 0 20 0 42 1 10 2 20 0 42 1", {0, -1, 2, 1},
            {0, 0, 0, 0});
        row("closed comes back", poly + "70 1 10 0 20 0 10 4 20 0 10 4 20 3", {0, 0, 4, 3},
            {0, 0, 0, 0});
        row("vertex count that lies", poly + "90 99999999 70 0 10 0 20 0 10 4 20 2", {0, 0, 4, 2},
            {});
        row("mirrored polyline", poly + "70 0 10 1 20 0 10 4 20 2 230 -1", {-4, 0, -1, 2},
            {-1, 0, -4, 2});
        row("mirrored circle", "0 CIRCLE 8 A 10 5 20 1 40 1 210 0 220 0 230 -1", {-6, 0, -4, 2},
            {});
        row("circle seen from its side", "0 CIRCLE 8 A 10 0 20 0 30 0 40 1 210 1 220 0 230 0",
            {0, -1, 0, 1}, {});
        row("lines are not in the extrusion's plane", "0 LINE 8 A 10 1 20 0 11 2 21 1 230 -1",
            {1, 0, 2, 1}, {});
        row("arc across the zero angle", "0 ARC 8 A 10 0 20 0 40 1 50 270 51 90", {0, -1, 1, 1},
            {0, -1, 0, 1});
        row("half an ellipse", "0 ELLIPSE 8 A 10 0 20 0 11 2 21 0 40 0.5 41 0 42 3.141592653589793",
            {-2, 0, 2, 1}, {2, 0, -2, 0});
        row("a mirrored ellipse runs backward",
            "0 ELLIPSE 8 A 10 0 20 0 11 2 21 0 230 -1 40 0.5 41 0 42 3.141592653589793",
            {-2, -1, 2, 0}, {2, 0, -2, 0});
        const QByteArray spline = "0 SPLINE 8 A 70 8 71 2 ";
        row("a clamped spline meets its ends",
            spline + "40 0 40 0 40 0 40 1 40 1 40 1 10 0 20 0 10 1 20 2 10 2 20 0", {0, 0, 2, 1},
            {0, 0, 2, 0});
        row("a helix without its axis",
            "0 HELIX 8 A 100 AcDbSpline 70 8 71 1 40 0 40 0 40 1 40 1 10 0 20 0 10 2 20 1 "
            "100 AcDbHelix 10 50 20 50 11 9 21 9 40 7 41 3",
            {0, 0, 2, 1}, {0, 0, 2, 1});
        row("weights pull it",
            spline + "40 0 40 0 40 0 40 1 40 1 40 1 41 1 41 3 41 1 10 0 20 0 10 1 20 2 10 2 "
                     "20 0",
            {0, 0, 2, 1.5}, {0, 0, 2, 0});
        row("too few knots leave the points", spline + "40 0 40 1 10 0 20 0 10 2 20 0",
            {0, 0, 2, 0}, {0, 0, 2, 0});
        row("fit points alone", spline + "74 2 11 0 21 0 11 3 21 1", {0, 0, 3, 1}, {0, 0, 3, 1});
        row("a fitted polyline without its frame",
            "0 POLYLINE 8 A 66 1 70 4 0 VERTEX 8 A 10 50 20 50 70 16 0 VERTEX 8 A 10 0 20 0 70 "
            "8 0 VERTEX 8 A 10 1 20 1 70 8 0 SEQEND 8 A",
            {0, 0, 1, 1}, {0, 0, 1, 1});
        const QByteArray corners =
            "0 VERTEX 8 A 70 192 10 0 20 0 0 VERTEX 8 A 70 192 10 9 20 9 0 VERTEX 8 A "
            "70 192 10 2 20 1 ";
        row("hidden edges of a face",
            "0 POLYLINE 8 A 66 1 70 64 " + corners +
                "0 VERTEX 8 A 70 128 71 -1 72 -2 73 3 74 0 0 VERTEX 8 A 70 128 71 77 72 1 0 "
                "SEQEND 8 A",
            {0, 0, 2, 1}, {});
        const QByteArray grid =
            "0 VERTEX 8 A 70 64 10 0 20 0 0 VERTEX 8 A 70 64 10 3 20 0 0 VERTEX 8 A 70 64 "
            "10 0 20 2 0 VERTEX 8 A 70 64 10 3 20 2 0 SEQEND 8 A";
        row("rows and columns", "0 POLYLINE 8 A 66 1 70 16 71 2 72 2 " + grid, {0, 0, 3, 2}, {});
        row("more rows than vertices",
            "0 POLYLINE 8 A 66 1 70 16 71 4000000000 72 4000000000 " + grid, {}, {});
        const QByteArray mesh =
            "0 MESH 8 A 92 3 10 0 20 0 30 0 10 4 20 0 30 0 10 4 20 3 30 0 93 4 ";
        row("a mesh's face", mesh + "90 3 90 0 90 1 90 2 94 1 90 0 90 1", {0, 0, 4, 3}, {});
        row("a face larger than its list", mesh + "90 999999999 90 0 90 1", {}, {});
        row("a leader lands before its dogleg",
            "0 MULTILEADER 8 A 300 CONTEXT_DATA{ 10 99 20 99 40 99 302 LEADER{ 10 5 20 5 11 1 "
            "21 0 40 2 304 LEADER_LINE{ 10 0 20 1 305 } 303 } 301 } 10 88 20 88",
            {0, 1, 7, 5}, {0, 1, 7, 5});
        row("no dogleg where it is switched off",
            "0 MULTILEADER 8 A 300 CONTEXT_DATA{ 302 LEADER{ 10 5 20 5 11 1 21 0 40 2 304 "
            "LEADER_LINE{ 10 0 20 1 305 } 303 } 301 } 291 0",
            {0, 1, 5, 5}, {0, 1, 5, 5});
        // Two lines at 1 and -1 along the miter. The second one is drawn from 2 to 3 and from 8 on.
        const QByteArray miter = " 12 1 22 0 13 0 23 1 74 2 41 1 41 0 75 0 74 ";
        row("lines side by side",
            "0 MLINE 8 A 71 1 11 0 21 0" + miter + "4 41 -1 41 2 41 3 41 8 75 0 11 10 21 0" +
                miter + "2 41 -1 41 0 75 0",
            {0, -1, 10, 1}, {});
        row("what covers others, by its pixels",
            "0 WIPEOUT 8 A 10 0 20 0 11 2 21 0 12 0 22 2 13 1 23 1 70 7 71 1 91 2 14 -0.5 24 -0.5 "
            "14 0.5 24 0.5",
            {0, 0, 2, 2}, {});
        row("where an image lies", "0 IMAGE 8 A 10 1 20 1 11 0.5 21 0 12 0 22 0.5 13 8 23 4 340 0",
            {1, 1, 5, 3}, {});
        row("an endless line goes no further than the rest",
            "0 XLINE 8 A 10 5 20 5 11 1 21 1 0 LINE 8 A 10 0 20 0 11 10 21 20 ", {0, 0, 10, 20},
            {});
        row("corners of a solid are stored crosswise",
            "0 SOLID 8 A 10 0 20 0 11 2 21 0 12 0 22 1 13 2 23 1", {0, 0, 2, 1}, {0, 0, 0, 1});
        row("no number is no vertex",
            poly + "70 0 10 0 20 0 10 nan 20 5 10 inf 20 0 10 1e300 20 0 10 1 20 1", {0, 0, 1, 1},
            {0, 0, 1, 1});
        row("a bulge to nowhere",
            poly + "70 0 10 0 20 0 42 1 10 nan 20 5 42 1 10 1e308 20 -1e308 42 1 10 1 20 0",
            {0, 0, 1, 0}, {0, 0, 1, 0});
        row("invisible", kUnitLine + "60 1", {}, {});
        row("in paper space", kUnitLine + "67 1", {}, {});
    }

    void shapes()
    {
        QFETCH(QByteArray, entity);
        QFETCH(Numbers, box);
        QFETCH(Numbers, ends);
        const Geometry geometry = flatten(entity);
        QCOMPARE(primitiveCount(geometry) == 0, box.isEmpty());
        if (box.isEmpty())
            return;
        const Box found = boundsOf(geometry);
        // Curves are approximated by chords, whose extremes are short by less than a thousandth.
        const Numbers foundBox{found.minX, found.minY, found.maxX, found.maxY};
        for (int i = 0; i < 4; ++i)
            QVERIFY2(
                std::abs(foundBox[i] - box[i]) < 3e-3, qPrintable(QString::number(foundBox[i])));
        const QPointF first = geometry.groups[0].vertices.front();
        const QPointF last = geometry.groups[0].vertices.back();
        QVERIFY(ends.isEmpty() || near({first.x(), first.y(), last.x(), last.y()}, ends));
    }

    void references_data()
    {
        const Rows<QByteArray, QByteArray, int, Numbers> row(
            "blocks", "insert", "count", "lastLine");
        const QByteArray unit = block("U", kUnitLine);
        const QByteArray insert = "0 INSERT 8 A 2 ";
        row("rotated", unit, insert + "U 10 5 20 5 50 90", 1, {5, 5, 5, 6});
        row("scaled, then rotated", unit, insert + "U 10 0 20 0 41 3 42 2 50 90", 1, {0, 0, 0, 3});
        row("names compare without case", unit, insert + "u 10 1 20 0", 1, {1, 0, 2, 0});
        row("base point", block("U", kUnitLine, "1 0"), insert + "U 10 5 20 0 41 2", 1,
            {3, 0, 5, 0});
        row("mirrored plane", unit, insert + "U 10 5 20 0 230 -1", 1, {-5, 0, -6, 0});
        row("the grid turns but does not scale", unit,
            insert + "U 10 0 20 0 41 2 50 90 70 3 71 2 44 10 45 100", 6, {-100, 20, -100, 22});
        row("a count below one", unit, insert + "U 10 0 20 0 70 -5 71 0", 1, {0, 0, 1, 0});
        row("nested", unit + block("N", "0 INSERT 8 A 2 U 10 10 20 0 41 2 50 90 "),
            insert + "N 10 100 20 0 41 -1", 1, {90, 0, 90, 2});
        row("a dimension's picture", block("*D1", kUnitLine),
            "0 DIMENSION 8 A 2 *D1 10 7 20 7 11 3 21 3", 1, {0, 0, 1, 0});
        row("a table's picture, whatever its cells say", unit,
            "0 ACAD_TABLE 8 A 2 U 10 5 20 5 11 0 21 1 41 0.03 42 0.03 70 9", 1, {5, 5, 5, 6});
        row("no such block", unit, insert + "V 10 0 20 0", 0, {});
        row("a block in itself", block("U", kUnitLine + "0 INSERT 8 A 2 U 10 1 20 1 "),
            insert + "U 10 0 20 0", 1, {0, 0, 1, 0});
        row("two blocks in each other",
            block("U", kUnitLine + "0 INSERT 8 A 2 V 10 1 20 0 ") +
                block("V", kUnitLine + "0 INSERT 8 A 2 U 10 1 20 0 "),
            insert + "U 10 0 20 0", 2, {1, 0, 2, 0});
    }

    void references()
    {
        QFETCH(QByteArray, blocks);
        QFETCH(QByteArray, insert);
        QFETCH(int, count);
        QFETCH(Numbers, lastLine);
        Sketch sketch;
        sketch.blocks = blocks;
        const Geometry geometry = flatten(insert, sketch);
        QCOMPARE(primitiveCount(geometry), std::size_t(count));
        if (count == 0)
            return;
        const std::vector<QPointF>& vertices = geometry.groups[0].vertices;
        const QPointF from = vertices[vertices.size() - 2];
        const QPointF to = vertices.back();
        QVERIFY(near({from.x(), from.y(), to.x(), to.y()}, lastLine));
    }

    void endlessReferencesEnd()
    {
        // Each block contains the previous one twice.
        QByteArray chain = block("U0", kUnitLine);
        for (int i = 1; i <= 40; ++i) {
            const QByteArray inner = "0 INSERT 8 A 2 U" + QByteArray::number(i - 1) + " 10 0 20 0 ";
            chain += block("U" + QByteArray::number(i), inner + inner);
        }
        const QByteArray many = "70 50000000 71 50000000 44 1 45 1";
        for (const QByteArray& insert : {QByteArray("U40 10 0 20 0"), "U0 10 0 20 0 " + many}) {
            Sketch sketch;
            sketch.blocks = chain;
            const Geometry geometry = flatten("0 INSERT 8 A 2 " + insert, sketch);
            QVERIFY(geometry.truncated);
            QVERIFY(primitiveCount(geometry) <= 4'000'000);
        }
    }

    void styles_data()
    {
        // The look consists of layer, colour, and the layers that hide it when they are frozen.
        const Rows<QByteArray, QByteArray, QString> row("inBlock", "insert", "look");
        const QByteArray line = " 10 0 20 0 11 1 21 0 ";
        const QByteArray insert = "0 INSERT 2 U 10 0 20 0 8 ";
        row("layer 0 becomes the reference's", "0 LINE 8 0" + line, insert + "B", "B by B [B]");
        row("another layer stays", "0 LINE 8 A" + line, insert + "B", "A by A [B]");
        row("ByBlock takes the reference's colour", "0 LINE 8 A 62 0" + line, insert + "B 62 3",
            "A index 3 [B]");
        row("ByBlock in a reference ByLayer takes its layer's", "0 LINE 8 A 62 0" + line,
            insert + "B", "A by B [B]");
        row("its own colour stays", "0 LINE 8 0 62 4" + line, insert + "B 62 3", "B index 4 [B]");
        row("a true colour beats the index", "0 LINE 8 A 62 4 420 1193046" + line, insert + "B",
            "A true 1193046 [B]");
        row("through two references", "0 INSERT 2 BLOCKS 10 0 20 0 8 0 62 0 ", insert + "B 62 6",
            "B index 6 [B]");
        row("both references hide", "0 INSERT 2 LAYERS 10 0 20 0 8 A ", insert + "B",
            "A by A [B A]");
        row("ByBlock in model space is the foreground", "", "0 LINE 8 A 62 0" + line,
            "A index 7 []");
        row("a line beside others takes its style's", "",
            "0 MLINE 8 A 340 ABCD 71 1 11 0 21 0 12 1 22 0 13 0 23 1 74 1 41 0 75 0 "
            "11 9 21 0 12 1 22 0 13 0 23 1 74 1 41 0 75 0",
            "A index 4 []");
        row("an attribute on layer 0 goes with its reference", "",
            insert + "B 66 1 0 ATTRIB 8 0 10 0 20 0 40 1 1 text 2 TAG 70 0 0 SEQEND 8 0",
            "B by B [B]");
    }

    void styles()
    {
        QFETCH(QByteArray, inBlock);
        QFETCH(QByteArray, insert);
        QFETCH(QString, look);
        Sketch sketch;
        sketch.blocks = block("U", inBlock) + block("LAYERS", "0 LINE 8 0 10 0 20 0 11 1 21 0 ") +
                        block("BLOCKS", "0 LINE 8 0 62 0 10 0 20 0 11 1 21 0 ");
        sketch.objects = "0 MLINESTYLE 5 ABCD 2 S 70 0 62 5 71 1 49 0 62 4 6 BYLAYER ";
        const auto drawing = sketch.open(insert);
        QVERIFY(drawing);
        const Geometry geometry = buildGeometry(*drawing).value();
        QCOMPARE(geometry.groups.size(), std::size_t(1));
        const GeometryGroup& group = geometry.groups.front();
        const auto name = [&](LayerId id) { return drawing->layer(id)->properties.name; };
        const GeometryColor& color = group.style.color;
        const QString colorText =
            color.source == GeometryColor::Source::Layer
                ? "by " + name(static_cast<LayerId>(color.value))
                : QStringLiteral("%1 %2")
                      .arg(color.source == GeometryColor::Source::Index ? "index" : "true")
                      .arg(color.value);
        QStringList owners;
        for (const LayerId owner : geometry.owners[static_cast<std::size_t>(group.owners)])
            owners.append(name(owner));
        QCOMPARE(
            QStringLiteral("%1 %2 [%3]").arg(name(group.layer), colorText, owners.join(' ')), look);
    }

    void patternStaysInside_data()
    {
        const Rows<QByteArray, QByteArray, double> row("loops", "lines", "length");
        const QByteArray level = " 78 1 53 0 43 0 44 0.5 45 0 46 1";
        row("a square", loop(0, 10), level, 100.0);
        row("an island is left out", loop(0, 10) + loop(4, 6), level, 96.0);
        row("an island in the island is in", loop(0, 10) + loop(2, 8) + loop(4, 6), level, 68.0);
        row("lines through corners count once", loop(0, 10), " 78 1 53 0 43 0 44 0 45 0 46 5",
            20.0);
        row("upright", loop(0, 10), " 78 1 53 90 43 0.5 44 0 45 -1 46 0", 100.0);
        row("dashed, half of it left out", loop(0, 10), level + " 79 2 49 0.5 49 -0.5", 50.0);
        row("from edges, one of them running backward",
            " 92 1 93 4 72 1 10 0 20 0 11 10 21 0 72 1 10 10 20 10 11 10 21 0 72 1 10 10 20 10 "
            "11 0 21 10 72 1 10 0 20 10 11 0 21 0 97 0",
            level, 100.0);
    }

    void patternStaysInside()
    {
        QFETCH(QByteArray, loops);
        QFETCH(QByteArray, lines);
        QFETCH(double, length);
        const Geometry geometry = flatten(kPattern + loops + kPatternOf + lines);
        QCOMPARE(primitiveCount(geometry), std::size_t(1));
        const std::vector<QPointF>& vertices = geometry.groups[0].vertices;
        double found = 0;
        for (std::size_t i = 0; i + 1 < vertices.size(); i += 3)
            found += QLineF(vertices[i], vertices[i + 1]).length();
        QVERIFY2(std::abs(found - length) < 1e-6, qPrintable(QString::number(found)));
    }

    void solidHatchKeepsItsIslands()
    {
        const Geometry geometry = flatten("0 HATCH 8 A 10 0 20 0 30 0 2 SOLID 70 1 71 0 91 2" +
                                          loop(0, 10) + loop(4, 6) + " 75 0 76 1");
        QCOMPARE(primitiveCount(geometry), std::size_t(1));
        const GeometryGroup& group = geometry.groups.front();
        QVERIFY(group.primitives[0].shape == Primitive::Shape::Fill);
        QCOMPARE(std::count_if(group.vertices.begin(), group.vertices.end(),
                     [](const QPointF& vertex) { return std::isnan(vertex.x()); }),
            std::ptrdiff_t(2));
    }

    void tooFinePatternIsItsBoundary()
    {
        const Geometry geometry =
            flatten(kPattern + loop(0, 10) + kPatternOf + " 78 1 53 0 43 0 44 0 45 0 46 0.0000001");
        QCOMPARE(primitiveCount(geometry), std::size_t(1));
        QVERIFY(geometry.groups[0].vertices.size() < 10);
    }

    void textLines_data()
    {
        const Rows<QString, double, QString> row("text", "width", "lines");
        row("paragraphs", "a\\Pb\\P\\Pc", 0.0, "a|b||c");
        row("codes with arguments", "\\A1;{\\fSimSun|b0|i0;标题}\\H2.5x;\\C1;x\\pxqc;y", 0.0,
            "标题xy");
        row("switches", "\\Lunder\\l \\Oover\\o", 0.0, "under over");
        row("escapes", "\\\\P \\{x\\}", 0.0, "\\P {x}");
        row("stacks, beside what is none", "1\\S1/2; \\S+0.1^ -0.2;x\\Sy;", 0.0,
            "1<1-2> <+0.1 -0.2>xy");
        row("a stack stays whole", "one \\Stwo three/4; five", 6.0, "one|<two three-4>|five");
        row("an argument without its end", "a\\fArial", 0.0, "a");
        row("percent codes", "%%c20%%p0.1 45%%D %%u100%% %%%", 0.0, "⌀20±0.1 45° 100%% %");
        row("wraps at blanks", "one two three", 6.0, "one two|three");
        row("wraps between ideographs", "一二三四五", 2.6, "一二|三四|五");
        row("a long word stays whole", "abcdefghijkl mn", 2.0, "abcdefghijkl|mn");
    }

    void textLines()
    {
        QFETCH(QString, text);
        QFETCH(double, width);
        QString found = plainLines(text, width).join(QLatin1Char('|'));
        for (const TextPiece& piece : piecesOf(found)) {
            if (piece.isStack)
                found.replace((piece.hasBar ? stack::kFraction : stack::kTolerance) + piece.text +
                                  stack::kDivider + piece.below + stack::kEnd,
                    '<' + piece.text + (piece.hasBar ? '-' : ' ') + piece.below + '>');
        }
        QTEST(found, "lines");
    }

    void textPlaces_data()
    {
        // The place consists of the origin and of one text height along the line.
        const Rows<QByteArray, Numbers, TextRun::Horizontal> row("entity", "place", "horizontal");
        using H = TextRun::Horizontal;

        const QByteArray text = "0 TEXT 8 A 1 x 10 1 20 2 40 2 ";
        row("plain", text, {1, 2, 2, 0}, H::Left);
        row("centred stands at its second point", text + "72 1 11 9 21 9 50 90", {9, 9, 0, 2},
            H::Center);
        row("only raised", text + "73 2 11 9 21 9", {9, 9, 2, 0}, H::Left);
        row("fitted between both", text + "72 5 11 1 21 12", {1, 2, 0, 2}, H::Left);
        row("narrow and backward", text + "41 0.5 71 2", {1, 2, -1, 0}, H::Left);
        const QByteArray mtext = "0 MTEXT 8 A 1 x\\Py 10 1 20 2 40 3 ";
        row("hangs from its top", mtext + "71 1", {1, -1, 3, 0}, H::Left);
        row("stands on its foot", mtext + "71 9", {1, 7, 3, 0}, H::Right);
        row("direction after angle", mtext + "71 7 50 30 11 0 21 1", {-4, 2, 0, 3}, H::Left);
        row("as wide and slanted as its style", mtext + "71 7 7 wide", {1, 7, 6, 0}, H::Left);
        row("the first of two columns, from the right",
            mtext + "71 1 101 Embedded~Object 71 2 72 2 44 10 45 2 74 1", {13, -1, 3, 0}, H::Left);
        row("cells of a tolerance", "0 TOLERANCE 8 A 10 1 20 1 1 {\\Fgdt;j}%%v0.1",
            {1 + 1.75 / 2, 0.5, 1, 0}, H::Center);
        row("angle after direction", mtext + "71 7 11 0 21 1 50 180", {1, -3, -3, 0}, H::Left);
    }

    void textPlaces()
    {
        QFETCH(QByteArray, entity);
        QFETCH(Numbers, place);
        QFETCH(TextRun::Horizontal, horizontal);
        Sketch sketch;
        sketch.header = "9 $DIMTXT 40 0.5 9 $DIMSCALE 40 2";
        sketch.linetypes += "0 ENDTAB 0 TABLE 2 STYLE 70 1 0 STYLE 2 WIDE 70 0 40 0 41 2 50 10 ";
        const Geometry geometry = flatten(entity, sketch);
        QCOMPARE(geometry.groups.size(), std::size_t(1));
        const TextRun& run = geometry.groups[0].texts.at(0);
        QVERIFY(near({run.origin.x(), run.origin.y(), run.right.x(), run.right.y()}, place));
        QVERIFY(run.horizontal == horizontal);
    }

    void cancelStops()
    {
        Sketch sketch;
        const auto drawing = sketch.open(kUnitLine);
        Progress progress;
        progress.cancelled = true;
        const auto geometry = buildGeometry(*drawing, &progress);
        QVERIFY(!geometry);
        QVERIFY(geometry.error().cancelled);
    }
};

QTEST_GUILESS_MAIN(GeometryTest)
#include "tst_geometry.moc"
