#include "canvasfixture.h"
#include "rows.h"

using Selection = std::vector<int>;

Q_DECLARE_METATYPE(Selection)

namespace {

const Qt::KeyboardModifier kNone = Qt::NoModifier;
const Qt::KeyboardModifier kAdds = Qt::ControlModifier;

// The entities by their indices, in an area of 100 by 60: two lines, one above the other, a block
// reference, a fill with a line on it, a text, and a polyline with some distance to the lines. Two
// of the entities are in the block.
constexpr char kEntities[] = "0 LINE 8 A 10 0 20 0 11 100 21 0 "
                             "0 LINE 8 B 10 0 20 10 11 100 21 10 "
                             "0 INSERT 8 A 2 U 10 40 20 30 "
                             "0 SOLID 8 A 10 70 20 30 11 90 21 30 12 70 22 50 13 90 23 50 "
                             "0 LINE 8 A 10 75 20 40 11 85 21 40 "
                             "0 TEXT 8 A 10 0 20 52 40 8 1 WWWW ";
constexpr char kInBlock[] = "0 LINE 8 B 10 0 20 0 11 20 21 0 0 LINE 8 0 10 0 20 10 11 20 21 10";
enum Index { kLow = 2, kHigh, kReference, kFill, kOnFill, kText };

} // namespace

/// Tests what clicks and windows on the canvas select.
class SelectionTest : public CanvasFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        start();
        m_sketch->blocks = block("U", kInBlock);
        show(kEntities);
    }

    void clicks_data()
    {
        const Rows<QPointF, int, QString, Selection> row("point", "pixelsUp", "change", "selected");
        row("within reach", {20, 0}, 3, "", {kLow});
        row("out of reach", {20, 0}, 6, "", {});
        row("beyond the end of a line", {100, 0}, 0, "", {kLow});
        row("a line of a block, by its own layer", {50, 30}, 0, "", {kReference});
        row("another line of the same block", {50, 40}, 0, "", {kReference});
        row("inside a block's bounds but on none of its lines", {50, 35}, 0, "", {});
        row("fill", {72, 33}, 0, "", {kFill});
        row("line on a fill", {80, 40}, 2, "", {kOnFill});
        row("text", {4, 55}, 0, "", {kText});
        row("layer off", {20, 0}, 0, "A off", {});
        row("the reference's layer off leaves its other lines", {50, 30}, 0, "A off", {kReference});
        row("the reference's layer frozen takes them along", {50, 30}, 0, "A frozen", {});
        row("locked", {20, 0}, 0, "A locked", {kLow});
    }

    void clicks()
    {
        QFETCH(QPointF, point);
        QFETCH(int, pixelsUp);
        QFETCH(QString, change);
        changeLayer(change);
        click(at(point) - QPoint(0, pixelsUp));
        QTEST(m_canvas->selection(), "selected");
    }

    void windows_data()
    {
        const Rows<QPointF, QPointF, QString, Selection> row("from", "to", "change", "selected");
        row("to the right: only what lies in it", {-2, 20}, {95, -2}, "", {});
        row("to the left: what reaches into it", {95, -2}, {-2, 20}, "", {kLow, kHigh});
        row("whole lines, upwards", {-2, -2}, {102, 20}, "", {kLow, kHigh});
        row("half a reference", {35, 25}, {65, 35}, "", {});
        row("half a reference, to the left", {65, 35}, {35, 25}, "", {kReference});
        row("what does not show does not count", {35, 25}, {65, 35}, "0 off", {});
        row("half a reference, its other half hidden", {35, 25}, {65, 35}, "A off", {kReference});
        row("between the lines of a reference", {58, 38}, {42, 32}, "", {});
        row("within a fill, to the left", {74, 36}, {71, 32}, "", {kFill});
        row("text", {-2, 50}, {50, 62}, "", {kText});
        row("everything", {-3, -3}, {103, 63}, "B off", {kLow, kReference, kFill, kOnFill, kText});
    }

    void windows()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QString, change);
        changeLayer(change);
        drag(at(from), at(to));
        QTEST(m_canvas->selection(), "selected");
    }

    void modifiers()
    {
        QSignalSpy changed(m_canvas.get(), &Canvas::selectionChanged);
        click(at({20, 0}));
        click(at({20, 10}));
        QCOMPARE(m_canvas->selection(), Selection{kHigh});
        click(at({20, 0}), kAdds);
        QCOMPARE(m_canvas->selection(), (Selection{kLow, kHigh}));
        QCOMPARE(changed.last().value(0).toInt(), 2);
        click(at({20, 10}), kAdds);
        QCOMPARE(m_canvas->selection(), Selection{kLow});
        // A window does not remove entities.
        drag(at({-2, -2}), at({102, 20}), kAdds);
        QCOMPARE(m_canvas->selection(), (Selection{kLow, kHigh}));
        click(at({30, 20}), kAdds);
        QCOMPARE(m_canvas->selection().size(), std::size_t(2));
        click(at({30, 20}));
        QVERIFY(m_canvas->selection().empty());
        const int count = changed.size();
        click(at({30, 20}));
        QCOMPARE(changed.size(), count);
    }

    void escape()
    {
        click(at({20, 0}));
        QTest::mousePress(m_canvas.get(), Qt::LeftButton, kNone, at({-2, 20}));
        moveMouse(*m_canvas, at({95, -2}), Qt::LeftButton);
        QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
        QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, kNone, at({95, -2}));
        QCOMPARE(m_canvas->selection(), Selection{kLow});
        QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
        QVERIFY(m_canvas->selection().empty());
    }

    void marksFollowTheView()
    {
        const QImage plain = picture();
        m_canvas->setSelection({kFill, kLow, kFill, 99});
        QCOMPARE(m_canvas->selection(), (Selection{kLow, kFill}));
        const QImage marked = picture();
        QVERIFY(plain != marked);
        m_canvas->setDark(false);
        QVERIFY(picture() != marked);
        m_canvas->setDark(true);
        QCOMPARE(picture(), marked);
        m_canvas->clearSelection();
        QCOMPARE(picture(), plain);
    }

    void prunedWithWhatIsShown()
    {
        m_canvas->setSelection({kLow, kHigh});
        QSignalSpy changed(m_canvas.get(), &Canvas::selectionChanged);
        changeLayer("A off");
        QCOMPARE(m_canvas->selection(), Selection{kHigh});
        QCOMPARE(changed.size(), 1);
        m_canvas->setScene({});
        QVERIFY(m_canvas->selection().empty());
    }

private:
    void click(const QPoint& pixel, Qt::KeyboardModifier modifier = kNone)
    {
        QTest::mouseClick(m_canvas.get(), Qt::LeftButton, modifier, pixel);
    }
    void drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifier modifier = kNone)
    {
        QTest::mousePress(m_canvas.get(), Qt::LeftButton, modifier, from);
        moveMouse(*m_canvas, to, Qt::LeftButton);
        QTest::mouseRelease(m_canvas.get(), Qt::LeftButton, modifier, to);
    }
    /// The changes "A off", "B frozen" or "A locked"; empty for none.
    void changeLayer(const QString& change)
    {
        const QString what = change.section(' ', 1);
        if (what.isEmpty())
            return;
        drawing::LayerProperties& properties = layer(change.section(' ', 0, 0));
        properties.off = what == "off";
        properties.frozen = what == "frozen";
        properties.locked = what == "locked";
        m_canvas->setLayers(m_layers);
    }
};

QTEST_MAIN(SelectionTest)
#include "tst_layertoolsselection.moc"
