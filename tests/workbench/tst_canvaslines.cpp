#include "canvasfixture.h"
#include "rows.h"

namespace {

/// A line from (0, 0) to (100, 0) with entities that make the view 100 units wide.
QByteArray line(const QByteArray& codes)
{
    return "0 LINE 8 A 10 0 20 0 11 100 21 0 " + codes + " ";
}

const QByteArray kPolyline = "0 LWPOLYLINE 8 A 10 0 20 0 ";
const QByteArray kWide = kPolyline + "70 0 43 10 10 100 20 0 ";

/// It covers the area from (40, -10) to (60, 10).
const QByteArray kWipeout = "0 WIPEOUT 8 A 10 40 20 -10 11 20 21 0 12 0 22 20 13 1 23 1 70 7 71 1 "
                            "91 2 14 -0.5 24 -0.5 14 0.5 24 0.5 ";

} // namespace

/// Tests what is painted along lines: dashes are ink, gaps are not.
class CanvasLinesTest : public CanvasFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        start();
        m_sketch->layers = "A 62 1;D 62 1 6 dashed;FRAME 62 5";
        m_frame = "0 POINT 8 FRAME 10 0 20 -50 0 POINT 8 FRAME 10 100 20 50 ";
    }

    void dashes_data()
    {
        // Positions along y = 0 with and without ink, in drawing units.
        using Places = QVector<double>;
        const Rows<QByteArray, QByteArray, Places, Places> row("header", "entities", "ink", "gaps");
        // Ten repetitions of 6 and 4 fill a hundred units, so each end has a dash of 3.
        const Places ink{1, 12, 52, 98}, gaps{5, 45, 95};
        row("as the linetype says", "", line("6 DASHED"), ink, gaps);
        row("of the layer", "", line("").replace("8 A", "8 D"), ink, gaps);
        row("unbroken", "", line("6 CONTINUOUS").replace("8 A", "8 D"), {5, 45, 95}, {});
        row("an unknown one is unbroken", "", line("6 NONE"), {5, 45, 95}, {});
        row("scaled by the drawing", "9 $LTSCALE 40 2", line("6 DASHED"), {2, 24, 98},
            {10, 50, 90});
        row("and by itself", "9 $LTSCALE 40 4", line("6 DASHED 48 0.5"), {2, 24, 98}, {10, 50, 90});
        row("too short for a repeat", "9 $LTSCALE 40 11", line("6 DASHED"), {5, 45, 95}, {});
        row("too fine to see", "9 $LTSCALE 40 0.01", line("6 DASHED"), {5, 45, 95}, {});
        row("anew at each vertex", "", kPolyline + "70 0 10 45 20 0 10 100 20 0 6 DASHED ",
            {3, 43, 47, 98}, {7.5, 52.5});
        row("on through the vertices", "", kPolyline + "70 128 10 45 20 0 10 100 20 0 6 DASHED ",
            ink, gaps);
        row("covered by what comes later", "", line("") + kWipeout, {10, 90}, {50});
        row("not by what came before", "", kWipeout + line(""), {10, 50, 90}, {});
        row("nor by what was put behind it", "", line("5 E1") + kWipeout + "5 E2 ", {10, 50, 90},
            {});
        row("ByBlock takes the reference's", "", "0 INSERT 8 A 2 U 10 0 20 0 6 DASHED ", ink, gaps);
        row("layer 0 takes the reference's layer's", "", "0 INSERT 8 D 2 Z 10 0 20 0 ", ink, gaps);
        row("scaled with the reference", "", "0 INSERT 8 A 2 H 10 0 20 0 41 2 42 2 ", {2, 24, 98},
            {10, 50, 90});
    }

    void dashes()
    {
        QFETCH(QByteArray, header);
        QFETCH(QByteArray, entities);
        QFETCH(QVector<double>, ink);
        QFETCH(QVector<double>, gaps);
        m_sketch->header = header;
        m_sketch->objects = "0 SORTENTSTABLE 5 E0 330 1F 100 AcDbSortentsTable 330 1F "
                            "331 E1 5 E2 331 E2 5 E1 ";
        m_sketch->blocks = block("U", line("6 BYBLOCK")) +
                           block("Z", line("").replace("8 A", "8 0")) +
                           block("H", "0 LINE 8 A 10 0 20 0 11 50 21 0 6 DASHED ");
        show(entities + m_frame);
        for (const double x : ink)
            QVERIFY2(hasInk(x, 0), qPrintable(QStringLiteral("ink at %1").arg(x)));
        for (const double x : gaps)
            QVERIFY2(!hasInk(x, 0), qPrintable(QStringLiteral("gap at %1").arg(x)));
    }

    void layersShowAtOnce()
    {
        show(line("") + m_frame);
        QVERIFY(hasInk(5, 0));
        layer("A").linetype = QStringLiteral("dashed");
        m_canvas->setLayers(m_layers);
        QVERIFY(!hasInk(5, 0));
        layer("A").lineweight = 211;
        m_canvas->setLayers(m_layers);
        QVERIFY(thickness(52) <= 2);
        m_canvas->setShowsLineweights(true);
        QVERIFY(std::abs(thickness(52) - m_canvas->logicalDpiY() * 2.11 / 25.4) <= 1.5);
    }

    void transparencies_data()
    {
        const Rows<QByteArray, int> row("entity", "red");
        // In the form of files: 0x02000000 + alpha; 0x01000000 is ByBlock.
        const QByteArray half = "440 33554560 ", ofBlock = "440 16777216 ";
        row("its own", kWide + half, 128);
        row("of the layer", kWide, 204);
        row("the reference's", "0 INSERT 8 A 2 U 10 0 20 0 " + half, 128);
        row("none", kWide + ofBlock, 255);
    }

    void transparencies()
    {
        QFETCH(QByteArray, entity);
        QFETCH(int, red);
        m_sketch->blocks = block("U", kWide + "440 16777216");
        show(entity + m_frame);
        layer("A").transparency = 20;
        m_canvas->setLayers(m_layers);
        QVERIFY(std::abs(colorAt({50, 0}).red() - red) <= 2);
    }

    void widths_data()
    {
        // The thickness of the line at 20 and at 80, in drawing units.
        const Rows<QByteArray, double, double> row("entity", "at20", "at80");
        row("constant", kWide, 10.0, 10.0);
        row("tapering", kPolyline + "40 20 41 0 10 100 20 0 ", 16.0, 4.0);
        row("of an old polyline",
            "0 POLYLINE 8 A 66 1 70 0 40 10 41 10 0 VERTEX 8 A 10 0 20 0 0 VERTEX 8 A 10 100 20 0 "
            "0 SEQEND 8 A ",
            10.0, 10.0);
        row("scaled with its block", "0 INSERT 8 A 2 W 10 0 20 0 41 2 42 2 ", 10.0, 10.0);
        row("marks of a dimension stay dots", "0 DIMENSION 8 A 2 MARKS 10 0 20 0 ", 0.3, 0.3);
        row("a point's square", "0 POINT 8 A 10 20 20 0 0 POINT 8 A 10 80 20 0 ", 2.0, 2.0);
    }

    void widths()
    {
        QFETCH(QByteArray, entity);
        QFETCH(double, at20);
        QFETCH(double, at80);
        m_sketch->header = "9 $PDMODE 70 2 9 $PDSIZE 40 1";
        m_sketch->blocks = block("W", kPolyline + "70 0 43 5 10 50 20 0") +
                           block("MARKS", "0 POINT 8 DEFPOINTS 62 1 10 20 20 0 "
                                          "0 POINT 8 DEFPOINTS 62 1 10 80 20 0 ");
        show(entity + m_frame);
        const double scale = m_canvas->view().scale();
        QVERIFY(std::abs(thickness(20) - at20 * scale) <= 2);
        QVERIFY(std::abs(thickness(80) - at80 * scale) <= 2);
    }

private:
    static bool isInk(const QColor& color) { return color.red() > 64; }

    bool hasInk(double x, double y)
    {
        const QPoint place = at({x, y});
        const QImage image = picture();
        return isInk(image.pixelColor(place)) || isInk(image.pixelColor(place - QPoint(0, 1)));
    }

    /// The number of ink pixels above and below 0 at `x`.
    int thickness(double x)
    {
        const QImage image = picture();
        const int column = at({x, 0}).x();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            count += isInk(image.pixelColor(column, y)) ? 1 : 0;
        return count;
    }

    QByteArray m_frame;
};

QTEST_MAIN(CanvasLinesTest)
#include "tst_canvaslines.moc"
