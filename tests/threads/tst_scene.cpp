#include "../workbench/canvaspicture.h"
#include "handover.h"
#include "rows.h"
#include "scenebuilder.h"
#include "scenepainter.h"
#include "sketch.h"

#include <QPainter>

#include <dlfcn.h>
#include <map>
#include <tuple>

/// Replaces Qt's function. It tells the sanitizer that earlier writes are visible to the receiver
/// of the event.
void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    using Function = void (*)(QObject*, QEvent*, int);
    static const auto original = reinterpret_cast<Function>(
        dlsym(RTLD_NEXT, "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi"));
    __tsan_release(event);
    original(receiver, event, priority);
}

using drawing::DrawingStep;
using drawing::GeometryPart;

namespace {

class Application : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override
    {
        __tsan_acquire(event);
        return QApplication::notify(receiver, event);
    }
};

constexpr int kLines = 70'000; // They make three parts.

/// Many lines that are spread over an area, with a block reference in the middle and a ray at the
/// end.
QByteArray field()
{
    QByteArray entities;
    for (int i = 0; i < kLines; ++i) {
        const QByteArray x = QByteArray::number(i * 7919LL % 10007);
        const QByteArray y = QByteArray::number(i * 104729LL % 10009);
        entities += i == kLines / 2
                        ? "0 INSERT 8 B 2 U 10 0 20 0 "
                        : "0 LINE 8 A 10 " + x + " 20 " + y + " 11 " + y + " 21 " + x + " ";
    }
    return entities + "0 XLINE 8 A 10 3 20 3 11 1 21 0 ";
}

/// The layer and the place of what is drawn of each entity.
using Content = std::map<int, std::tuple<drawing::LayerId, double, double>>;

Content contentOf(const Scene& scene)
{
    Content content;
    for (const GeometryPart& part : scene.parts) {
        for (const drawing::GeometryGroup& group : part->groups) {
            for (const drawing::Primitive& primitive : group.primitives)
                content[primitive.entity] = {
                    group.layer, primitive.bounds.minX, primitive.bounds.maxX};
        }
    }
    return content;
}

} // namespace

class SceneTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_sketch.blocks =
            "0 BLOCK 8 0 2 U 70 0 10 0 20 0 0 LINE 8 0 10 1 20 1 11 2 21 2 0 ENDBLK 8 0";
        m_path = m_sketch.write(field());
    }

    void init()
    {
        auto opened = drawing::Drawing::open(m_path);
        QVERIFY(opened);
        m_drawing = std::move(*opened);
        m_builder = std::make_unique<SceneBuilder>();
        connect(m_builder.get(), &SceneBuilder::sceneChanged, this,
            [this](const Scene& scene) { m_scene = scene; });
        m_builder->setDrawing(m_drawing.get());
    }

    void cleanup()
    {
        m_builder.reset();
        m_drawing.reset();
    }

    /// An edit builds only what it affects, with the same result as a complete build.
    void edits_data()
    {
        const Rows<QVector<int>, int> row("moved", "builtAnew");
        const int first = 1; // Entity 0 is the line in the block.
        row("nothing", {}, 0);
        row("one of the first part", {first}, 1);
        row("the last one, endless", {first + kLines}, 1);
        row("some of two parts", {first, first + 1, first + kLines - 1}, 2);
        row("what a block holds", {0}, 3);
    }

    void edits()
    {
        QFETCH(QVector<int>, moved);
        QFETCH(int, builtAnew);
        waitForScene();
        const Scene before = m_scene;
        QCOMPARE(contentOf(before), wholeContent());
        move({moved.begin(), moved.end()});
        waitForScene();
        QCOMPARE(contentOf(m_scene), wholeContent());
        int same = 0;
        for (std::size_t i = 0; i < 3; ++i)
            same += m_scene.parts[i] == before.parts[i] ? 1 : 0;
        QCOMPARE(same, 3 - builtAnew);
        if (moved.isEmpty())
            return;
        m_drawing->undo();
        waitForScene();
        QCOMPARE(contentOf(m_scene), contentOf(before));
    }

    /// The drawing may be edited at any time, and nothing is lost when an edit is refused.
    void editsWhileBuilding()
    {
        move({1, 2, 3});
        QVERIFY(m_builder->isBuilding());
        QCoreApplication::processEvents();
        move({kLines - 1});
        m_drawing->undo();
        {
            DrawingStep step(*m_drawing, QStringLiteral("refused"));
            QVERIFY(!m_drawing->removeLayer(m_drawing->findLayer("0")->id));
        }
        waitForScene();
        QCOMPARE(contentOf(m_scene), wholeContent());
    }

    void theDrawingMayGoWhileBuilding()
    {
        QVERIFY(m_builder->isBuilding());
        m_drawing.reset();
        QVERIFY(!m_builder->isBuilding());
        QVERIFY(m_scene.parts.empty());
    }

    /// Painting on several threads, and only the newly visible part, gives the same picture as
    /// painting everything on one thread.
    void pictures_data()
    {
        const Rows<QPoint, int> row("pan", "notches");
        row("at rest", QPoint(), 0);
        row("to the right and down", QPoint(37, 21), 0);
        row("to the left and up", QPoint(-100, -3), 0);
        row("out of sight", QPoint(900, 0), 0);
        row("nearer", QPoint(), 2);
        row("nearer and moved", QPoint(5, 5), 2);
    }

    void pictures()
    {
        QFETCH(QPoint, pan);
        QFETCH(int, notches);
        waitForScene();
        Canvas canvas;
        canvas.resize(400, 300);
        canvas.setLayers(m_drawing->layers());
        canvas.setScene(m_scene);
        canvas.zoomToExtents();
        QVERIFY(!pictureOf(canvas).isNull());
        turnWheel(canvas, {200, 150}, notches);
        pictureOf(canvas);
        QTest::mousePress(&canvas, Qt::MiddleButton, {}, {200, 150});
        moveMouse(canvas, QPoint(200, 150) + pan, Qt::MiddleButton);
        const QImage shown = pictureOf(canvas);

        QImage anew(400, 300, QImage::Format_RGB32);
        anew.fill(Qt::black);
        QPainter painter(&anew);
        painter.setClipRect(anew.rect());
        painter.setRenderHint(QPainter::Antialiasing);
        const std::atomic<bool> isDropped{false};
        ScenePainter().paint(painter, ShownScene(m_scene, {m_drawing->layers(), nullptr, true}),
            canvas.view(), anew.rect(), isDropped);
        painter.end();
        // Lines that are cut off by the edge of the view differ slightly in brightness.
        QVERIFY(differentPixels(shown, anew, 64) < 0.001);
    }

private:
    void waitForScene() { QTRY_VERIFY_WITH_TIMEOUT(!m_builder->isBuilding(), 60'000); }

    void move(const std::vector<int>& entities)
    {
        DrawingStep step(*m_drawing, QStringLiteral("move"));
        QVERIFY(m_drawing->moveEntities(entities, m_drawing->findLayer("B")->id));
        step.commit();
    }

    Content wholeContent() const
    {
        return contentOf(
            std::make_shared<const drawing::Geometry>(drawing::buildGeometry(*m_drawing).value()));
    }

    Sketch m_sketch;
    QString m_path;
    std::unique_ptr<drawing::Drawing> m_drawing;
    std::unique_ptr<SceneBuilder> m_builder;
    Scene m_scene;
};

int main(int count, char** arguments)
{
    Application application(count, arguments);
    SceneTest test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_scene.moc"
