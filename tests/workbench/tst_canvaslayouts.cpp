#include "canvasfixture.h"
#include "rows.h"
#include "steps.h"

Q_DECLARE_METATYPE(drawing::SheetViewport)

/// What a sheet shows of model space: a red square from (0, 0) to (10, 10), seen through a viewport
/// of 40 by 40 around (50, 50).
class CanvasLayoutsTest : public CanvasFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<drawing::SheetViewport>(); }

    void init()
    {
        start();
        m_sketch->header = "9 $TILEMODE 70 0";
        // Layer A is blue in the viewport with the handle 41.
        m_sketch->layers = "A 5 2A 102 {ACAD_XDICTIONARY 360 30 102 } 62 1;FRAME 62 3";
        m_sketch->objects =
            "0 DICTIONARY 5 30 100 AcDbDictionary 3 ADSK_XREC_LAYER_COLOR_OVR 360 31 "
            "0 XRECORD 5 31 100 AcDbXrecord 280 1 102 {ADSK_LYR_COLOR_OVERRIDE 335 41 "
            "420 -1023410171 102 } ";
    }

    void viewports_data()
    {
        using Points = QVector<QPointF>;
        const Rows<QByteArray, Points, Points, QColor> row("codes", "ink", "blank", "color");
        const QColor red(255, 0, 0);
        const Points square{{50, 50}, {42, 42}, {58, 58}}, around{{38, 50}, {62, 50}, {50, 20}};
        row("at its scale", "5 40 45 20", square, around, red);
        row("cut at its edge", "5 40 45 10", {{32, 32}, {68, 68}}, {{27, 50}, {50, 73}}, red);
        row("twisted", "5 40 45 20 51 45", {{50, 62}, {38, 50}}, {{59, 59}, {41, 41}}, red);
        row("moved", "5 40 45 20 12 5", {{32, 50}, {48, 50}}, {{28, 50}, {52, 50}}, red);
        row("off", "5 40 45 20 90 131072", {}, {{50, 50}, {42, 42}}, red);
        row("cut by an outline", "5 40 45 20 90 65536 340 50", {{50, 45}, {50, 58}},
            {{42, 58}, {58, 58}}, red);
        row("its outline is nowhere", "5 40 45 20 90 65536 340 77", square, around, red);
        row("frozen in it", "5 40 45 20 331 2A", {}, {{50, 50}}, red);
        row("of another colour in it", "5 41 45 20", square, around, QColor(0, 0, 255));
    }

    void viewports()
    {
        QFETCH(QByteArray, codes);
        QFETCH(QVector<QPointF>, ink);
        QFETCH(QVector<QPointF>, blank);
        show(kModel + viewport(50, codes) +
             "0 LWPOLYLINE 5 50 67 1 8 0 70 1 10 30 20 30 10 70 20 30 10 50 20 70 " + kFrame);
        for (const QPointF& place : ink)
            QTEST(colorAt(place), "color");
        for (const QPointF& place : blank)
            QCOMPARE(colorAt(place), QColor(Qt::black));
        layer("A").off = true;
        m_canvas->setLayers(m_layers);
        for (const QPointF& place : ink)
            QCOMPARE(colorAt(place), QColor(Qt::black));
    }

    /// Of two viewports, layers are frozen in the one that was entered.
    void doubleClickEnters()
    {
        show(kModel + viewport(20, "5 40 45 20") + viewport(80, "5 41 45 20") + kFrame);
        drawing::Drawing* const drawing = m_drawing.get();
        QSignalSpy entered(m_canvas.get(), &Canvas::viewportEntered);
        QSignalSpy left(m_canvas.get(), &Canvas::viewportLeft);
        QCOMPARE(drawing->sheet()->viewports.size(), size_t(2));
        doubleClick({80, 50});
        QCOMPARE(entered.size(), 1);
        const int second = entered.first().first().toInt();
        QVERIFY(second != drawing->currentViewport() && drawing->setCurrentViewport(second));
        QVERIFY(inStep(
            *drawing, [&] { return drawing->setFrozenInViewport({drawing->findLayer("A")->id}); }));
        const drawing::Sheet sheet = *drawing->sheet();
        for (const drawing::SheetViewport& viewport : sheet.viewports) {
            QCOMPARE(viewport.isCurrent, viewport.entity == second);
            QCOMPARE(viewport.frozen.size(), size_t(viewport.isCurrent ? 1 : 0));
        }
        doubleClick({50, 95});
        QCOMPARE(left.size(), 1);
        QVERIFY(!m_canvas->isInViewport());
        QVERIFY(!drawing->setCurrentViewport(0)); // The entity is not a viewport.
    }

    void worksInAViewport_data()
    {
        const Rows<QByteArray, QPoint, int, bool> row("codes", "drag", "notches", "moves");
        row("zooms", "5 40 45 20", QPoint(), 2, true);
        row("pans", "5 40 45 20", QPoint(30, 20), 0, true);
        row("pans and zooms, twisted", "5 40 45 20 51 30", QPoint(30, 20), -1, true);
        row("locked", "5 40 45 20 90 16384", QPoint(30, 20), 2, false);
    }

    /// What zooms and pans does so in the viewport, and what is clicked is what shows there.
    void worksInAViewport()
    {
        QFETCH(QByteArray, codes);
        QFETCH(QPoint, drag);
        QFETCH(int, notches);
        QFETCH(bool, moves);
        show(kModel + viewport(50, codes + " 12 0 22 0 ") + kFrame);
        const CanvasView before = m_canvas->view();
        const QPoint center = at({50, 50});
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, center);
        QVERIFY(m_canvas->selection().empty());
        doubleClick({50, 50});
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, center);
        QCOMPARE(m_canvas->selection(), std::vector<int>{0});
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, {}, {3, 3});
        QVERIFY(m_canvas->selection().empty());

        QSignalSpy moved(m_canvas.get(), &Canvas::viewportMoved);
        QTest::mousePress(m_canvas.get(), Qt::MiddleButton, {}, center);
        moveMouse(*m_canvas, center + drag, Qt::MiddleButton);
        turnWheel(*m_canvas, center, notches);
        const QImage shown = picture();
        if (moves && drag.isNull())
            QVERIFY(moved.wait()); // The wheel has no end of its own.
        QTest::mouseRelease(m_canvas.get(), Qt::MiddleButton, {}, center + drag);
        QCOMPARE(moved.size(), moves ? 1 : 0);
        QCOMPARE(m_canvas->view() == before, moves);
        if (!moves)
            return;
        // The drawing comes to the same picture, and back.
        const auto viewport = moved.first().first().value<drawing::SheetViewport>();
        QVERIFY(inStep(*m_drawing,
            [&] { return m_drawing->setViewportView(viewport.entity, viewport.view); }));
        m_canvas->setSheet(std::make_shared<const drawing::Sheet>(*m_drawing->sheet()));
        m_canvas->setLayers(m_layers);
        QVERIFY(differentPixels(picture(), shown, 64) < 0.001);
        m_drawing->undo();
        QCOMPARE(m_drawing->sheet()->viewports.front().view.height, 20.0);
    }

private:
    static QByteArray viewport(int x, const QByteArray& codes)
    {
        return "0 VIEWPORT 67 1 8 0 10 " + QByteArray::number(x) +
               " 20 50 40 40 41 40 68 2 69 2 17 5 27 5 " + codes + " ";
    }

    void doubleClick(const QPointF& place)
    {
        QTest::mouseDClick(m_canvas.get(), Qt::LeftButton, {}, at(place));
    }

    const QByteArray kModel = "0 SOLID 8 A 10 0 20 0 11 10 21 0 12 0 22 10 13 10 23 10 ";
    const QByteArray kFrame = "0 POINT 67 1 8 FRAME 10 0 20 0 0 POINT 67 1 8 FRAME 10 100 20 100 ";
};

QTEST_MAIN(CanvasLayoutsTest)
#include "tst_canvaslayouts.moc"
