#include "fixture.h"
#include "readback.h"
#include "sheets.h"

using namespace drawing;

namespace {

constexpr int kNewest = 1; // Of the layouts in `sheetsDrawing`: the file's own, A1.

QStringList names(const Drawing& drawing, const std::vector<LayerId>& layers)
{
    QStringList names;
    for (const LayerId id : layers)
        names += drawing.layer(id)->properties.name;
    return names;
}

} // namespace

/// Layouts, and what their viewports show otherwise than the layers say.
class TestViewportLayers : public Fixture
{
    Q_OBJECT

private slots:
    void layouts();
    void visibility_data();
    void visibility();
    void missingHandles();
    void forgetsLayers();
    void forgetsViewports();
    void overridesSeenByOthers();
    void cannotOverride_data();
    void cannotOverride();

private:
    static void step(Drawing& drawing, const std::function<void()>& change)
    {
        drawing.beginStep(QStringLiteral("step"));
        change();
        drawing.commitStep();
    }
    static QStringList restore(
        Drawing& drawing, const LayerState& state, const LayerStateRestore& how)
    {
        QStringList notices;
        step(drawing, [&] { notices = restoreLayerState(drawing, state, how); });
        return notices;
    }
};

/// The layout shown is that of the object chosen, whichever section its entities stand in.
void TestViewportLayers::layouts()
{
    const auto drawing = opened(sheetsDrawing());
    QCOMPARE(
        drawing->layouts().front().name + drawing->layouts().back().name, QStringLiteral("A0A1"));
    QCOMPARE(drawing->shownLayout(), kNewest);
    const auto shown = [&] {
        QByteArray ends;
        for (const Entity& entity : drawing->entities()) {
            TagReader tags = drawing->tags(entity);
            Tag tag;
            while (drawing->isShown(entity) && tags.next(tag)) {
                if (tag.code == 11)
                    ends.append(tag.value, int(tag.raw().size()));
            }
        }
        return ends;
    };
    QCOMPARE(shown(), QByteArray("100"));
    step(*drawing, [&] { QVERIFY(drawing->showLayout(0)); });
    QCOMPARE(shown(), QByteArray("300"));
    QVERIFY(captureLayerState(*drawing, {}).fromLayout);
    step(*drawing, [&] { QVERIFY(drawing->showLayout(kNewest)); });
    QCOMPARE(shown(), QByteArray("200"));
    QVERIFY(!opened(saved(*drawing))->isModelSpace());
    drawing->undo();
    drawing->undo();
    QVERIFY(drawing->isModelSpace() && saved(*drawing) == sheetsDrawing());
    QCOMPARE(opened(House().bytes())->layouts().size(), size_t(1));
}

void TestViewportLayers::visibility_data()
{
    QTest::addColumn<int>("layout"); // -1: model space.
    QTest::addColumn<bool>("fromLayout");
    QTest::addColumn<int>("mask");
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after"); // The state hides Wall, and does not hold layer 0.
    QTest::addColumn<QByteArray>("list");
    const QStringList door{"Door"};
    const QStringList wall{"Wall"};
    const int bit = kStateCurrentViewport;
    QTest::newRow("list of the file, with a handle nobody knows")
        << 0 << true << bit << door << wall << QByteArray("72 100\n331 11\n331 77\n90 32864");
    QTest::newRow("none yet, the viewport active last")
        << kNewest << true << bit << QStringList() << wall
        << QByteArray("69 3\n72 100\n331 11\n90 32864");
    QTest::newRow("not in the mask")
        << 0 << true << int(kStateColor) << door << door << QByteArray("331 12\n331 77\n");
    QTest::newRow("saved in model space")
        << 0 << false << bit << door << door << QByteArray("331 12\n331 77\n");
    QTest::newRow("restored in model space")
        << -1 << true << bit << QStringList() << QStringList() << QByteArray("331 12\n331 77\n");
}

void TestViewportLayers::visibility()
{
    QFETCH(int, layout);
    QFETCH(int, mask);
    QFETCH(QByteArray, list);
    const auto drawing = opened(sheetsDrawing());
    if (layout >= 0)
        step(*drawing, [&] { QVERIFY(drawing->showLayout(layout)); });
    const QByteArray untouched = saved(*drawing);
    QTEST(names(*drawing, drawing->frozenInViewport()), "before");
    LayerState state = captureLayerState(*drawing, QStringLiteral("S"));
    QVERIFY(isSameAsDrawing(state, *drawing));
    QCOMPARE(state.layers.at(2).frozenInCurrentViewport, layout == 0);
    state.layers.at(1).frozenInCurrentViewport = true;
    state.layers.at(2).frozenInCurrentViewport = false;
    state.layers.erase(state.layers.begin());
    state.mask = mask;
    QFETCH(bool, fromLayout);
    state.fromLayout = fromLayout;
    LayerStateRestore how;
    how.mask = mask;
    QCOMPARE(restore(*drawing, state, how), QStringList());
    QTEST(names(*drawing, drawing->frozenInViewport()), "after");
    QVERIFY(isSameAsDrawing(state, *drawing));
    const QByteArray expected = tagged(list);
    QVERIFY(saved(*drawing).contains(expected));
    if (drawing->undoName() == QLatin1String("step") && saved(*drawing) != untouched) {
        drawing->undo();
        QCOMPARE(saved(*drawing), untouched);
    }
}

/// What is pointed at gets a handle where it has none.
void TestViewportLayers::missingHandles()
{
    const QByteArray bytes =
        sheetsDrawing().replace(tagged("0 LAYER\n5 11\n"), tagged("0 LAYER\n"));
    QVERIFY(bytes != sheetsDrawing());
    const auto drawing = opened(bytes);
    const LayerId wall = id(*drawing, "Wall");
    step(
        *drawing, [&] { QVERIFY(drawing->showLayout(0) && drawing->setFrozenInViewport({wall})); });
    QCOMPARE(names(*drawing, drawing->frozenInViewport()), QStringList("Wall"));
    const auto again = opened(saved(*drawing));
    step(*again, [&] { QVERIFY(again->showLayout(0)); });
    QCOMPARE(names(*again, again->frozenInViewport()), QStringList("Wall"));
    checkUndo(*drawing, bytes);
}

/// A layer that goes is in no viewport's list, and what viewports overrode of it goes with it.
void TestViewportLayers::forgetsLayers()
{
    const auto drawing = opened(sheetsDrawing());
    step(*drawing, [&] { QVERIFY(drawing->showLayout(kNewest)); });
    const LayerId door = drawing->findLayer(QStringLiteral("Door"))->id;
    step(*drawing, [&] {
        QVERIFY(drawing->setFrozenInViewport({door}));
        LayerProperties red = drawing->layer(door)->properties;
        red.colorIndex = 2;
        QVERIFY(drawing->overrideInViewport({{door, red}}, kStateColor));
    });
    QVERIFY(saved(*drawing).contains("ADSK_XREC_LAYER_COLOR_OVR"));
    step(*drawing, [&] { QVERIFY(drawing->removeLayer(door)); });
    const QByteArray without = saved(*drawing);
    QVERIFY(!without.contains("331\n12\n") && !without.contains("XRECORD"));
    QCOMPARE(without.count("DICTIONARY"), 1);
    drawing->undo();
    QCOMPARE(names(*drawing, drawing->frozenInViewport()), QStringList("Door"));
    QVERIFY(saved(*drawing).contains("ADSK_XREC_LAYER_COLOR_OVR"));
}

/// A viewport that is deleted leaves no half of an override behind, which would be taken for
/// another viewport's.
void TestViewportLayers::forgetsViewports()
{
    QByteArray bytes = sheetsDrawing();
    bytes.replace(tagged("5 52\n100 AcDbEntity\n67 1\n8 0\n"),
        tagged("5 52\n100 AcDbEntity\n67 1\n8 Door\n"));
    const auto drawing = opened(bytes);
    step(*drawing, [&] {
        QVERIFY(drawing->showLayout(kNewest));
        LayerProperties red = drawing->findLayer(QStringLiteral("Wall"))->properties;
        red.colorIndex = 2;
        const LayerId wall = drawing->findLayer(QStringLiteral("Wall"))->id;
        QVERIFY(drawing->overrideInViewport({{wall, red}}, kStateColor));
    });
    const auto again = opened(saved(*drawing));
    step(*again,
        [&] { QVERIFY(again->deleteLayers({again->findLayer(QStringLiteral("Door"))->id})); });
    const QByteArray without = saved(*again);
    QVERIFY(without.contains("ADSK_XREC_LAYER_COLOR_OVR") && !without.contains("OVERRIDE"));
    QVERIFY(!without.contains("420\n"));
}

/// The layers keep their own; what is so anyway is not overridden, and an override ends so.
void TestViewportLayers::overridesSeenByOthers()
{
    if (!readback::isInstalled())
        QSKIP("python3-ezdxf is not installed");
    const auto drawing = opened(read(QStringLiteral(SAMPLES_DIR "/office-floor.dxf")));
    const QString result = m_folder.filePath(QStringLiteral("result.dxf"));
    const auto seen = [&] {
        return drawing->save(result) ? readback::seen(result, QStringLiteral(STATES_SCRIPT))
                                     : QJsonObject();
    };
    step(*drawing, [&] { QVERIFY(drawing->showLayout(0)); });
    const QJsonObject before = seen();
    const QByteArray untouched = read(result);
    const LayerState plain = captureLayerState(*drawing, QStringLiteral("S"));
    LayerState state = plain;
    LayerProperties& first = state.layers.at(1).properties;
    first.colorIndex = first.colorIndex % 255 + 1;
    first.linetype = QStringLiteral("DASHED");
    first.lineweight = 70;
    first.transparency = 40;
    first.locked = !first.locked;
    LayerProperties& second = state.layers.at(2).properties;
    second.trueColor = 0x102030;
    LayerStateRestore how;
    how.viewportOverrides = true;
    const LayerProperties own = drawing->layers().at(1).properties;
    QCOMPARE(restore(*drawing, state, how), QStringList());
    LayerProperties locked = own;
    locked.locked = first.locked;
    QVERIFY(drawing->layers().at(1).properties == locked);

    const QJsonObject after = seen();
    QCOMPARE(readback::newErrors(before, after), QStringList());
    const QJsonObject overrides = after.value("overrides").toObject();
    QCOMPARE(overrides.keys().size(), 2);
    const QJsonObject expected = {{"viewport", "D46"}, {"color", first.colorIndex},
        {"rgb", overrides.value(own.name).toObject().value("rgb")}, {"lineweight", 70},
        {"linetype", overrides.value(own.name).toObject().value("linetype")}, {"transparency", 40}};
    QCOMPARE(overrides.value(own.name).toObject(), expected);
    QCOMPARE(expected.value("linetype").toString().toUpper(), QStringLiteral("DASHED"));
    const QJsonArray color = overrides.value(second.name).toObject().value("rgb").toArray();
    QCOMPARE(color, QJsonArray({0x10, 0x20, 0x30}));
    QCOMPARE(after.value("frozen"), before.value("frozen"));

    restore(*drawing, plain, how);
    QVERIFY(seen().value("overrides").toObject().isEmpty());
    drawing->undo();
    drawing->undo();
    QVERIFY(saved(*drawing) == untouched);
}

void TestViewportLayers::cannotOverride_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("layout");
    QTest::addColumn<QString>("notice");
    QTest::addColumn<int>("color"); // Of the layer itself; the state has 3.
    House old;
    old.version = "AC1009";
    QTest::newRow("no viewport") << House().bytes().replace("VIEWPORT", "POINT") << 0
                                 << QStringLiteral("没有视口") << 7;
    QTest::newRow("old format") << old.bytes() << 0 << QStringLiteral("格式") << 7;
    QTest::newRow("linetype gone") << sheetsDrawing() << 0 << QStringLiteral("线型") << 7;
    QTest::newRow("model space") << sheetsDrawing() << -1 << QStringLiteral("线型") << 3;
}

/// What cannot be overridden is said and does not reach the layer itself; all else is restored.
void TestViewportLayers::cannotOverride()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, layout);
    const auto drawing = opened(bytes);
    if (layout >= 0)
        step(*drawing, [&] { QVERIFY(drawing->showLayout(layout)); });
    LayerState state = captureLayerState(*drawing, QStringLiteral("S"));
    state.layers.resize(1);
    state.layers.front().properties.colorIndex = 3;
    state.layers.front().properties.locked = true;
    state.layers.front().properties.linetype = QStringLiteral("Gone");
    LayerStateRestore how;
    how.viewportOverrides = true;
    const QStringList notices = restore(*drawing, state, how);
    QCOMPARE(notices.size(), 1);
    QFETCH(QString, notice);
    QVERIFY2(notices.front().contains(notice), qPrintable(notices.front()));
    QTEST(drawing->layers().front().properties.colorIndex, "color");
    QVERIFY(drawing->layers().front().properties.locked);
}

QTEST_GUILESS_MAIN(TestViewportLayers)
#include "tst_viewportlayers.moc"
