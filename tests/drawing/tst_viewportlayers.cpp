#include "fixture.h"
#include "readback.h"

using namespace drawing;

namespace {

constexpr int kNewest = 1; // The active layout of `sheetsDrawing`, A1.

/// The names of the layers that are frozen in the current viewport.
QStringList frozen(const Drawing& drawing)
{
    QStringList names;
    for (const LayerId id : drawing.frozenInViewport())
        names += drawing.layer(id)->properties.name;
    return names;
}

/// Shows a layout in a step of its own; -1 is model space, which is already shown.
void show(Drawing& drawing, int layout)
{
    if (layout >= 0)
        QVERIFY(inStep(drawing, [&] { return drawing.showLayout(layout); }));
}

/// Overrides a layer's colour in the viewport of the active layout.
void overrideColor(Drawing& drawing, const QString& layer)
{
    show(drawing, kNewest);
    LayerProperties red = drawing.findLayer(layer)->properties;
    red.colorIndex = 2;
    const LayerId id = drawing.findLayer(layer)->id;
    QVERIFY(inStep(drawing, [&] { return drawing.overrideInViewport({{id, red}}, kStateColor); }));
}

} // namespace

/// Tests layouts and the layers that their viewports show differently.
class TestViewportLayers : public Fixture
{
    Q_OBJECT

private slots:
    /// The selected layout is shown, whether its entities are in the ENTITIES section or in a
    /// block.
    void layouts()
    {
        const auto drawing = opened(sheetsDrawing());
        QCOMPARE(drawing->layouts().front().name + drawing->layouts().back().name, "A0A1");
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
        show(*drawing, 0);
        QCOMPARE(shown(), QByteArray("300"));
        QVERIFY(captureLayerState(*drawing, {}).fromLayout);
        show(*drawing, kNewest);
        QCOMPARE(shown(), QByteArray("200"));
        QVERIFY(!opened(saved(*drawing))->isModelSpace());
        drawing->undo();
        drawing->undo();
        QVERIFY(drawing->isModelSpace() && saved(*drawing) == sheetsDrawing());
        QCOMPARE(opened(House().bytes())->layouts().size(), size_t(1));
    }

    void visibility_data()
    {
        // Layout -1 is model space. The state hides Wall and does not contain layer 0.
        const Rows<int, bool, int, QStringList, QStringList, QByteArray> row(
            "layout", "fromLayout", "mask", "before", "after", "list");
        const int bit = kStateCurrentViewport;
        row("list of the file, with a handle nobody knows", 0, true, bit, {"Door"}, {"Wall"},
            "72 100 | 331 11 | 331 77 | 90 32864");
        row("none yet, the viewport active last", kNewest, true, bit, {}, {"Wall"},
            "69 3 | 72 100 | 331 11 | 90 32864");
        const QByteArray old = "331 12 | 331 77";
        row("not in the mask", 0, true, kStateColor, {"Door"}, {"Door"}, old);
        row("saved in model space", 0, false, bit, {"Door"}, {"Door"}, old);
        row("restored in model space", -1, true, bit, {}, {}, old);
    }

    void visibility()
    {
        QFETCH(int, layout);
        QFETCH(int, mask);
        QFETCH(QByteArray, list);
        const auto drawing = opened(sheetsDrawing());
        show(*drawing, layout);
        const QByteArray untouched = saved(*drawing);
        QTEST(frozen(*drawing), "before");
        LayerState state = captureLayerState(*drawing, "S");
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
        QTEST(frozen(*drawing), "after");
        QVERIFY(isSameAsDrawing(state, *drawing));
        QVERIFY(saved(*drawing).contains(tagged(list)));
        if (drawing->undoName() == "step" && saved(*drawing) != untouched) {
            drawing->undo();
            QCOMPARE(saved(*drawing), untouched);
        }
    }

    /// Objects that are pointed at get a handle if they have none.
    void missingHandles()
    {
        const QByteArray bytes =
            sheetsDrawing().replace(tagged("0 LAYER\n5 11\n"), tagged("0 LAYER\n"));
        QVERIFY(bytes != sheetsDrawing());
        const auto drawing = opened(bytes);
        const LayerId wall = id(*drawing, "Wall");
        QVERIFY(inStep(*drawing, [&] {
            return drawing->showLayout(0).and_then(
                [&] { return drawing->setFrozenInViewport({wall}); });
        }));
        QCOMPARE(frozen(*drawing), QStringList("Wall"));
        const auto again = opened(saved(*drawing));
        show(*again, 0);
        QCOMPARE(frozen(*again), QStringList("Wall"));
        checkUndo(*drawing, bytes);
    }

    /// A deleted layer disappears from the lists of all viewports, together with its overrides.
    void forgetsLayers()
    {
        const auto drawing = opened(sheetsDrawing());
        const LayerId door = id(*drawing, "Door");
        overrideColor(*drawing, "Door");
        QVERIFY(inStep(*drawing, [&] { return drawing->setFrozenInViewport({door}); }));
        QVERIFY(saved(*drawing).contains("ADSK_XREC_LAYER_COLOR_OVR"));
        QVERIFY(inStep(*drawing, [&] { return drawing->removeLayer(door); }));
        const QByteArray without = saved(*drawing);
        QVERIFY(!without.contains("331\n12\n") && !without.contains("XRECORD"));
        QCOMPARE(without.count("DICTIONARY"), 1);
        drawing->undo();
        QCOMPARE(frozen(*drawing), QStringList("Door"));
        QVERIFY(saved(*drawing).contains("ADSK_XREC_LAYER_COLOR_OVR"));
    }

    /// A deleted viewport leaves no incomplete override behind, which would be taken for that of
    /// another viewport.
    void forgetsViewports()
    {
        QByteArray bytes = sheetsDrawing();
        bytes.replace(tagged("5 52\n100 AcDbEntity\n67 1\n8 0\n"),
            tagged("5 52\n100 AcDbEntity\n67 1\n8 Door\n"));
        const auto drawing = opened(bytes);
        overrideColor(*drawing, "Wall");
        const auto again = opened(saved(*drawing));
        QVERIFY(inStep(*again, [&] { return again->deleteLayers({id(*again, "Door")}); }));
        const QByteArray without = saved(*again);
        QVERIFY(without.contains("ADSK_XREC_LAYER_COLOR_OVR") && !without.contains("OVERRIDE"));
        QVERIFY(!without.contains("420\n"));
    }

    /// Layers keep their own properties. A value that equals the layer's own is not an override and
    /// ends an existing one.
    void overridesSeenByOthers()
    {
        if (!readback::isInstalled())
            QSKIP("python3-ezdxf is not installed");
        const auto drawing = opened(contentOf(SAMPLES "/office-floor.dxf"));
        const QString result = inFolder("result.dxf");
        const auto seen = [&] {
            return drawing->save(result) ? readback::seen(result, "states") : QJsonObject();
        };
        show(*drawing, 0);
        const QJsonObject before = seen();
        const QByteArray untouched = contentOf(result);
        const LayerState plain = captureLayerState(*drawing, "S");
        LayerState state = plain;
        LayerProperties& first = state.layers.at(1).properties;
        first.colorIndex = first.colorIndex % 255 + 1;
        first.linetype = "DASHED";
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
            {"linetype", overrides.value(own.name).toObject().value("linetype")},
            {"transparency", 40}};
        QCOMPARE(overrides.value(own.name).toObject(), expected);
        QCOMPARE(expected.value("linetype").toString().toUpper(), "DASHED");
        const QJsonArray color = overrides.value(second.name).toObject().value("rgb").toArray();
        QCOMPARE(color, QJsonArray({0x10, 0x20, 0x30}));
        QCOMPARE(after.value("frozen"), before.value("frozen"));

        restore(*drawing, plain, how);
        QVERIFY(seen().value("overrides").toObject().isEmpty());
        drawing->undo();
        drawing->undo();
        QVERIFY(saved(*drawing) == untouched);
    }

    void cannotOverride_data()
    {
        // The colour is that of the layer itself; the state contains 3.
        const Rows<QByteArray, int, QString, int> row("bytes", "layout", "notice", "color");
        House old;
        old.version = "AC1009";
        row("no viewport", House().bytes().replace("VIEWPORT", "POINT"), 0, "没有视口", 7);
        row("old format", old.bytes(), 0, "格式", 7);
        row("linetype gone", sheetsDrawing(), 0, "线型", 7);
        row("model space", sheetsDrawing(), -1, "线型", 3);
    }

    /// Properties that cannot be overridden are reported and not applied to the layer itself;
    /// everything else is restored.
    void cannotOverride()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, layout);
        const auto drawing = opened(bytes);
        show(*drawing, layout);
        LayerState state = captureLayerState(*drawing, "S");
        state.layers.resize(1);
        state.layers.front().properties.colorIndex = 3;
        state.layers.front().properties.locked = true;
        state.layers.front().properties.linetype = "Gone";
        LayerStateRestore how;
        how.viewportOverrides = true;
        const QStringList notices = restore(*drawing, state, how);
        QCOMPARE(notices.size(), 1);
        QFETCH(QString, notice);
        QVERIFY2(notices.front().contains(notice), qPrintable(notices.front()));
        QTEST(drawing->layers().front().properties.colorIndex, "color");
        QVERIFY(drawing->layers().front().properties.locked);
    }
};

QTEST_GUILESS_MAIN(TestViewportLayers)
#include "tst_viewportlayers.moc"
