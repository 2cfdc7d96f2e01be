#include "canvasfixture.h"
#include "rows.h"

#include <cmath>

namespace {

/// A filled rectangle.
QByteArray fill(const QByteArray& layer, int x, int y, int width, int height)
{
    const QByteArray left = QByteArray::number(x);
    const QByteArray right = QByteArray::number(x + width);
    const QByteArray low = QByteArray::number(y);
    const QByteArray high = QByteArray::number(y + height);
    return "0 SOLID 8 " + layer + " 10 " + left + " 20 " + low + " 11 " + right + " 21 " + low +
           " 12 " + left + " 22 " + high + " 13 " + right + " 23 " + high + " ";
}

} // namespace

class CanvasTest : public CanvasFixture
{
    Q_OBJECT

private slots:
    void init() { start(); }

    void layersHideTheirPixels_data()
    {
        const Rows<QString, bool, QVector<int>> row("name", "frozen", "hidden");
        row("off hides what is on it, in blocks too", "A", false, {0, 40});
        row("frozen hides the same", "A", true, {0, 40});
        row("off leaves what a reference holds on other layers", "B", false, {20, 60});
        row("frozen hides the whole reference", "B", true, {20, 40, 60});
        row("layer 0 in a reference on another layer", "0", true, {80});
    }

    void layersHideTheirPixels()
    {
        QFETCH(QString, name);
        QFETCH(bool, frozen);
        QFETCH(QVector<int>, hidden);
        m_sketch->blocks = block("U", fill("A", 40, 0, 10, 10) + fill("0", 60, 0, 10, 10));
        show(fill("A", 0, 0, 10, 10) + fill("B", 20, 0, 10, 10) + "0 INSERT 8 B 2 U 10 0 20 0 " +
             fill("0", 80, 0, 10, 10));
        const QImage before = picture();

        (frozen ? layer(name).frozen : layer(name).off) = true;
        m_canvas->setLayers(m_layers);
        const QImage after = picture();
        const auto isIn = [&](double x, double y, double margin) {
            return std::any_of(hidden.begin(), hidden.end(), [&](int left) {
                return onScreen(left, 0, 10, 10)
                    .adjusted(-margin, -margin, margin, margin)
                    .contains(x, y);
            });
        };
        for (int y = 0; y < before.height(); ++y) {
            for (int x = 0; x < before.width(); ++x) {
                const bool changed = before.pixel(x, y) != after.pixel(x, y);
                QVERIFY2(changed ? isIn(x + 0.5, y + 0.5, 2) : !isIn(x + 0.5, y + 0.5, -1),
                    qPrintable(QString("%1,%2").arg(x).arg(y)));
            }
        }
        (frozen ? layer(name).frozen : layer(name).off) = false;
        m_canvas->setLayers(m_layers);
        QCOMPARE(picture(), before);
    }

    void colors_data()
    {
        const Rows<QByteArray, QByteArray, QColor, QColor> row(
            "layers", "codes", "onBlack", "onWhite");
        row("index 7 is the foreground", "A 62 7", "", Qt::white, Qt::black);
        row("index of the layer", "A 62 1", "", {255, 0, 0}, {255, 0, 0});
        row("its own index 7", "A 62 1", "62 7 ", Qt::white, Qt::black);
        row("true white does not turn", "A 62 7 420 16777215", "", Qt::white, Qt::white);
        row("red is the high byte", "A 62 7 420 16711680", "", {255, 0, 0}, {255, 0, 0});
        row("generated palette", "A 62 45", "", {127, 111, 63}, {127, 111, 63});
    }

    void colors()
    {
        QFETCH(QByteArray, layers);
        QFETCH(QByteArray, codes);
        QFETCH(QColor, onWhite);
        m_sketch->layers = layers;
        show(fill("A", 0, 0, 10, 10) + codes);
        QTEST(colorAt({5, 5}), "onBlack");
        QSignalSpy spy(m_canvas.get(), &Canvas::backgroundChanged);
        m_canvas->setDark(false);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(colorAt({5, 5}), onWhite);
        QCOMPARE(picture().pixelColor(2, 2), QColor(Qt::white));
        layer("A").transparency = 50;
        m_canvas->setLayers(m_layers);
        QVERIFY(std::abs(colorAt({5, 5}).red() - (onWhite.red() + 255) / 2) <= 2);
    }

    void laterFillsCoverEarlierOnes()
    {
        // The small fills come first so that both groups always exist in the same order.
        const QByteArray small = fill("A", 0, 0, 1, 1) + fill("B", 2, 0, 1, 1);
        const QByteArray a = fill("A", 0, 5, 10, 10), b = fill("B", 0, 5, 10, 10);
        show(small + a + b);
        QCOMPARE(colorAt({5, 10}), QColor(0, 0, 255));
        show(small + b + a);
        QCOMPARE(colorAt({5, 10}), QColor(255, 0, 0));
    }

    void textStandsAtItsPoint_data()
    {
        // The ink must be inside this rectangle, in drawing units around (50, 50).
        const Rows<QByteArray, QRectF> row("codes", "ink");
        row("to the right and above", "", {50, 50, 50, 10});
        row("right-aligned", "72 2 11 50 21 50", {0, 50, 50, 10});
        row("centred, hanging", "72 1 73 3 11 50 21 50", {25, 40, 50, 10});
        row("turned", "50 90", {40, 50, 10, 50});
        row("squeezed", "72 5 11 60 21 50", {50, 50, 10, 10});
    }

    void textStandsAtItsPoint()
    {
        QFETCH(QByteArray, codes);
        QFETCH(QRectF, ink);
        m_sketch->layers = "A 62 1;FRAME 62 1";
        show(fill("FRAME", 0, 0, 100, 1) + fill("FRAME", 0, 99, 100, 1) +
             "0 TEXT 8 A 10 50 20 50 40 10 1 HHH " + codes);
        layer("FRAME").off = true;
        m_canvas->setLayers(m_layers);
        const QImage image = picture();
        const QRectF allowed =
            onScreen(ink.x(), ink.y(), ink.width(), ink.height()).adjusted(-2, -2, 2, 2);
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool inked = image.pixelColor(x, y).red() > 128;
                found += inked ? 1 : 0;
                QVERIFY2(!inked || allowed.contains(x, y),
                    qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
        }
        QVERIFY(found > 50);
    }

    void wheelKeepsThePointUnderTheCursor()
    {
        show(fill("A", 1000000, 5, 10, 10));
        for (const auto& [at, notches] : {std::pair(QPointF(3, 290), 4), {QPointF(250, 60), -7}}) {
            const QPointF before = m_canvas->view().toDrawing(at);
            const double scale = m_canvas->view().scale();
            turnWheel(*m_canvas, at, notches);
            QCOMPARE(m_canvas->view().scale() > scale, notches > 0);
            QVERIFY((m_canvas->view().toScreen(before) - at).manhattanLength() < 1e-3);
        }
    }

    void wheelHasEnds()
    {
        show(fill("A", 0, 0, 10, 10));
        for (const int notches : {100000, -100000}) {
            turnWheel(*m_canvas, {10, 10}, notches);
            picture();
            QVERIFY(m_canvas->view().scale() > 0 && std::isfinite(m_canvas->view().scale()));
            m_canvas->zoomToExtents();
            QCOMPARE(colorAt({5, 5}), QColor(255, 0, 0));
        }
    }

    void middleButtonDragsTheDrawing()
    {
        show(fill("A", 0, 0, 10, 10));
        const QPointF before = m_canvas->view().toScreen({3, 4});
        QSignalSpy spy(m_canvas.get(), &Canvas::cursorMoved);
        QTest::mousePress(m_canvas.get(), Qt::MiddleButton, {}, {100, 100});
        moveMouse(*m_canvas, {130, 80}, Qt::MiddleButton);
        QTest::mouseRelease(m_canvas.get(), Qt::MiddleButton, {}, {130, 80});
        moveMouse(*m_canvas, {200, 200}, Qt::NoButton);
        const QPointF moved = m_canvas->view().toScreen({3, 4}) - before;
        QVERIFY((moved - QPointF(30, -20)).manhattanLength() < 1e-6);
        const QPointF reported = spy.last().first().toPointF();
        QVERIFY((m_canvas->view().toScreen(reported) - QPointF(200, 200)).manhattanLength() < 1e-6);
    }

    void extents_data()
    {
        const Rows<QByteArray, QPointF, bool> row("entities", "center", "hideB");
        const QByteArray dimension = "0 DIMENSION 8 B 2 P 10 0 20 0 ";
        row("all", fill("A", 0, 0, 10, 10) + fill("B", 90, 0, 10, 10), {50, 5}, false);
        row("hidden layers do not count", fill("A", 0, 0, 10, 10) + fill("B", 90, 0, 10, 10),
            {5, 5}, true);
        row("unless nothing else is there", fill("B", 90, 0, 10, 10), {95, 5}, true);
        row("nor what dimensions hide with them", fill("A", 0, 0, 10, 10) + dimension, {5, 5},
            true);
        row("one upright line", "0 LINE 8 A 10 5 20 0 11 5 21 8", {5, 4}, false);
        row("one point", "0 POINT 8 A 10 7 20 8", {7, 8}, false);
        row("nothing", "", {0, 0}, false);
    }

    void extents()
    {
        QFETCH(QByteArray, entities);
        QFETCH(QPointF, center);
        QFETCH(bool, hideB);
        m_sketch->blocks = "0 BLOCK 8 0 2 P 70 0 10 0 20 0 0 POINT 8 A 10 9 20 99 0 ENDBLK 8 0 ";
        show(entities);
        layer("B").off = hideB;
        m_canvas->setLayers(m_layers);
        m_canvas->zoomToExtents();
        QCOMPARE(m_canvas->view().center(), center);
        const drawing::Box seen = m_canvas->view().visibleBox();
        const drawing::Box wanted = m_canvas->extents();
        QVERIFY(wanted.isEmpty() ||
                (seen.width() >= wanted.width() && seen.height() >= wanted.height()));
        picture();
    }

    void resizingKeepsTheExtentsUntilMoved()
    {
        show(fill("A", 0, 0, 100, 10));
        m_canvas->show();
        const double scale = m_canvas->view().scale();
        m_canvas->resize(800, 300);
        QVERIFY(m_canvas->view().scale() > scale * 1.9);
        turnWheel(*m_canvas, {10, 10}, 3);
        const CanvasView moved = m_canvas->view();
        m_canvas->resize(500, 300);
        QCOMPARE(m_canvas->view().scale(), moved.scale());
        QCOMPARE(m_canvas->view().center(), moved.center());
    }

private:
    QRectF onScreen(double x, double y, double width, double height) const
    {
        return QRectF(
            m_canvas->view().toScreen({x, y}), m_canvas->view().toScreen({x + width, y + height}))
            .normalized();
    }
};

QTEST_MAIN(CanvasTest)
#include "tst_canvas.moc"
