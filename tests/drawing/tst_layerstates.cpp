#include "fixture.h"
#include "readback.h"
#include "states/layerstatefile.h"

using namespace drawing;

namespace {

LayerState everything(const Drawing& drawing, const QString& name)
{
    LayerState state = captureLayerState(drawing, name);
    state.description = "说明 ^J 2^ 3\n\t第二行^";
    return state;
}

/// Changes every property of a layer to another value.
LayerProperties turnedAround(LayerProperties p)
{
    p.off = !p.off;
    p.frozen = !p.frozen;
    p.locked = !p.locked;
    p.plotted = !p.plotted;
    p.frozenInNewViewports = !p.frozenInNewViewports;
    p.trueColor = p.trueColor ? std::nullopt : std::optional<quint32>(0x10203);
    p.colorIndex = p.colorIndex % 255 + 1;
    p.linetype = p.linetype == "Continuous" ? "Dashed" : "Continuous";
    p.lineweight = p.lineweight == 50 ? 30 : 50;
    p.transparency = (p.transparency + 45) % 90;
    return p;
}

constexpr char kForeign[] = R"(0 LAYERSTATEDICTIONARY
0 LAYERSTATE | 1 Foreign | 91 4095 | 301 by hand | 290 0 | 302 WALL
8 WALL | 90 11 | 62 3 | 370 50 | 6 Dashed | 2 Color_3 | 440 33554559 | 92 66051 | 77 unknown
8 Nowhere | 90 8
8 Empty | 90 44 | 62 -1 | 370 51
)";

} // namespace

/// Tests layer states in drawings and in layer state files.
class TestLayerStates : public Fixture
{
    Q_OBJECT

private slots:
    /// The object has the published form, code by code, and undo removes it completely.
    void storedForm()
    {
        House house;
        house.wallRecord = "70 1\n62 -5\n420 66051\n6 Dashed\n370 50\n390 F\n"
                           "1001 AcCmTransparency\n1071 33554559";
        const auto drawing = opened(house.bytes());
        LayerState state = everything(*drawing, "New");
        state.description = "two\nlines";
        state.mask = 37;
        state.layers.resize(2);
        put(*drawing, state);
        const QByteArray expected = tagged(
            "5 100 | 102 {ACAD_REACTORS | 330 A1 | 102 } | 330 A1 | 100 AcDbXrecord | 280 1\n"
            "91 37 | 301 two^Jlines | 290 0 | 302 Wall\n"
            "330 10 | 90 8 | 62 7 | 370 -3 | 331 30 | 1 Color_7 | 440 0\n"
            "330 11 | 90 11 | 62 5 | 370 50 | 331 31 | 1 Color_5 | 440 33554559 | 92 66051\n"
            "0 ENDSEC\n");
        QVERIFY(saved(*drawing).contains(expected));
        const auto again = opened(saved(*drawing));
        QCOMPARE(again->layerStateNames(), QStringList({"State", "New"}));
        QVERIFY(*again->layerState("new") == state);

        drawing->undo();
        QVERIFY(saved(*drawing) == house.bytes());
        drawing->redo();
        QVERIFY(*drawing->layerState("New") == state);
    }

    void seenByOthers_data() { everyDrawing(); }
    void seenByOthers()
    {
        if (!readback::isInstalled())
            QSKIP("python3-ezdxf is not installed");
        QFETCH(QString, path);
        const auto drawing = opened(contentOf(path));
        if (!drawing->layerStatesPath().isEmpty())
            QSKIP("the format has no place for layer states");
        const QJsonObject before = readback::seen(path, "states");
        LayerState first = captureLayerState(*drawing, "First");
        LayerState second = first;
        second.name = "Second";
        second.mask = kStateColor;
        second.layers.resize(1);
        put(*drawing, first);
        put(*drawing, second);
        const QString result = inFolder("result.dxf");
        QVERIFY(drawing->save(result));

        const QJsonObject after = readback::seen(result, "states");
        QCOMPARE(readback::newErrors(before, after), QStringList());
        const QJsonArray states = after.value("states").toArray();
        QCOMPARE(states.size(), before.value("states").toArray().size() + 2);
        const QJsonObject last = states.last().toObject();
        QCOMPARE(last.value("name").toString(), "Second");
        QVERIFY(last.value("owned").toBool() && last.value("reactors").toBool());
        QHash<int, QString> values;
        for (const QJsonValue tag : last.value("tags").toArray())
            values.insert(tag.toArray().at(0).toInt(), tag.toArray().at(1).toString());
        const LayerProperties& p = second.layers.front().properties;
        QCOMPARE(after.value("layers").toObject().value(values.value(330)).toString(), p.name);
        const QStringList read{values[91], values[302], values[62], values[370]};
        QCOMPARE(read, QStringList({QString::number(kStateColor), second.currentLayer,
                           QString::number(p.colorIndex), QString::number(p.lineweight)}));
        QVERIFY(*opened(contentOf(result))->layerState("First") == first);
    }

    /// A replaced state keeps its object and its place; a deleted one is removed from the
    /// dictionary and the objects.
    void edits()
    {
        const auto drawing = opened(House().bytes());
        LayerState state = everything(*drawing, "STATE");
        put(*drawing, state);
        QCOMPARE(drawing->layerStateNames(), QStringList({"State"}));
        QCOMPARE(drawing->layerState("state")->description, state.description);
        state.name = "Other";
        put(*drawing, state);

        QVERIFY(inStep(*drawing, [&] {
            return !drawing->renameLayerState("other", "stAte") &&
                   !drawing->renameLayerState("none", "x") &&
                   drawing->renameLayerState("state", "First");
        }));
        QCOMPARE(drawing->layerStateNames(), QStringList({"First", "Other"}));
        QVERIFY(inStep(*drawing, [&] {
            return !drawing->removeLayerStates({"none"}) &&
                   drawing->removeLayerStates({"FIRST", "Other"});
        }));
        QVERIFY(!saved(*drawing).contains("XRECORD\n  5\nA2"));
        QCOMPARE(opened(saved(*drawing))->layerStateNames(), QStringList());
        drawing->undo();
        QCOMPARE(opened(saved(*drawing))->layerStateNames(), QStringList({"First", "Other"}));
    }

    /// Later renaming and deleting of layers also affects states of the file and new states.
    void followsLayers()
    {
        for (const bool old : {false, true}) {
            House house;
            house.version = old ? "AC1009" : "AC1018";
            house.current = "0";
            const auto drawing = opened(house.bytes());
            LayerState state = captureLayerState(*drawing, "Mine");
            state.currentLayer = "Wall";
            put(*drawing, state);
            QCOMPARE(edit(*drawing, "Wall", [](LayerProperties& p) { p.name = "墙"; }), "");
            const LayerState followed = *drawing->layerState("Mine");
            QCOMPARE(followed.currentLayer, "墙");
            QCOMPARE(followed.layers.at(1).properties.name, "墙");
            QVERIFY(isSameAsDrawing(followed, *drawing));
        }
    }

    void besideOldDrawing()
    {
        House house;
        house.version = "AC1009";
        const auto drawing = opened(house.bytes());
        QVERIFY(drawing->layerStatesPath().endsWith("house.las"));
        const LayerState state = everything(*drawing, "Aside");
        put(*drawing, state);
        QVERIFY(drawing->isModified());
        QVERIFY(!QFile::exists(drawing->layerStatesPath()));
        const QString path = inFolder("old.dxf");
        QVERIFY(drawing->save(path));
        QCOMPARE(contentOf(path), house.bytes());
        QCOMPARE(drawing->layerStatesPath(), inFolder("old.las"));
        const auto again = Drawing::open(path);
        QVERIFY(*(*again)->layerState("Aside") == state);

        drawing->undo();
        QVERIFY(drawing->save(path));
        QVERIFY((*Drawing::open(path))->layerStates().empty());
    }

    /// A file that cannot be read is not overwritten.
    void brokenBesideOldDrawing()
    {
        House house;
        house.version = "AC1009";
        const auto drawing = opened(house.bytes());
        const QByteArray precious = "  0\nLAYERSTATEDICTIONARY\nwhat\nis this\n";
        writtenFile(drawing->layerStatesPath(), precious);
        const auto refused = inStep(*drawing,
            [&] { return drawing->putLayerStates({captureLayerState(*drawing, "New")}); });
        QVERIFY(!refused && refused.error().text.contains("3"));
        QVERIFY(drawing->save(drawing->path()));
        QCOMPARE(contentOf(drawing->layerStatesPath()), precious);
    }

    void files()
    {
        House house;
        house.wallRecord = "70 5\n62 -5\n420 66051\n6 Dashed\n370 50\n290 0\n"
                           "1001 AcCmTransparency\n1071 33554559";
        const auto drawing = opened(house.bytes());
        LayerState first = everything(*drawing, "一");
        first.fromLayout = true;
        first.mask = 1;
        first.layers.front().frozenInCurrentViewport = true;
        LayerState second = first;
        second.name = "Two";
        second.layers.clear();
        const QString path = inFolder("states.las");
        QVERIFY(writeLayerStateFile(path, {first, second}));
        QVERIFY(isLayerStateFile(path));
        const auto back = readLayerStateFile(path, TextCodec());
        QVERIFY(back && back->notices.isEmpty());
        QVERIFY((back->states == std::vector<LayerState>{first, second}));
        QVERIFY(!writeLayerStateFile(inFolder("no/such.las"), {first}));
    }

    void foreignFile_data()
    {
        // The code page is that of the drawing; an empty one stands for UTF-8.
        const Rows<QByteArray, QByteArray, QString, QString> row(
            "bytes", "codePage", "text", "told");
        const QByteArray plain = tagged(kForeign);
        const auto with = [&plain](const char* text) {
            return QByteArray(plain).replace("by hand", text);
        };
        const QByteArray gbk = with("\xcb\xb5\xc3\xf7");
        row("plain", plain, "ANSI_936", "by hand", "");
        row("CR LF and a byte order mark", "\xef\xbb\xbf" + tagged(kForeign, "\r\n"), "ANSI_936",
            "by hand", "");
        row("escapes", with("\\U+8BF4\\U+660E"), "ANSI_936", "说明", "");
        row("GBK", gbk, "ANSI_936", "说明", "GBK");
        row("GBK for a drawing in UTF-8", gbk, "", "说明", "GBK");
        row("GBK for a western drawing", gbk, "ANSI_1252", "说明", "GBK");
        row("the drawing's own", with("\xbb\xa1\xa9\xfa"), "ANSI_950", "說明", "Big5");
        row("western", with("caf\xe9"), "ANSI_1252", "café", "ANSI_1252");
    }

    /// A file of another program with unknown bits and codes, a missing layer and an invalid
    /// lineweight. Everything usable is read, and the rest is reported.
    void foreignFile()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, codePage);
        QFETCH(QString, told);
        const auto drawing = opened(House().bytes());
        const TextCodec own(codePage.isEmpty() ? "AC1027" : "AC1018", codePage.constData());
        const auto file = readLayerStateFile(write(bytes, "foreign.las"), own);
        QVERIFY(file && file->states.size() == 1);
        const QString notices = file->notices.join('\n');
        for (const QString& part : QStringList{told, "组码 77，", "位 2048", "1 个颜色或线宽"})
            QVERIFY2(notices.contains(part), qPrintable(notices));
        LayerState state = file->states.front();
        QTEST(state.description, "text");
        QCOMPARE(state.mask, int(kStateEverything));
        QCOMPARE(dropUnknownLayers(state, *drawing), QStringList({"Nowhere"}));
        QCOMPARE(state.layers.size(), 2u);
        QVERIFY((state.layers.front().properties == LayerProperties{"WALL", true, true, false, true,
                                                        false, 3, 0x10203, "Dashed", 50, 50,
                                                        "Color_3", ""}));
        const LayerStateLayer& empty = state.layers.back();
        QVERIFY(
            empty.properties.locked && empty.properties.plotted && empty.frozenInCurrentViewport);
        QCOMPARE(empty.properties.lineweight, -3);
    }

    void brokenFile_data()
    {
        // -1 states means that the file is refused.
        const Rows<QByteArray, int, int, QString> row("bytes", "states", "layers", "told");
        const QByteArray plain = tagged(kForeign);
        const QByteArray state = plain.mid(plain.indexOf("LAYERSTATE\n") - 4);
        row("empty", "", -1, 0, "空的");
        row("something else", House().bytes(), -1, 0, "第 1 行");
        row("words for codes", QByteArray(plain).replace("370\n50", "weight\n50"), -1, 0,
            "第 21 行");
        row("cut within a layer", plain.left(plain.indexOf("370\n51") + 4), 1, 2,
            "“Foreign”中中断");
        row("cut within a name", plain.left(plain.indexOf("Foreign") - 4), 0, 0, "没有可用的名称");
        row("nothing in it", plain.left(plain.size() - state.size()), 0, 0, "");
        row("no name", QByteArray(plain).replace("  1\nForeign\n", ""), 0, 0, "没有可用的名称");
        row("two", plain + state, 2, 3, "");
    }

    void brokenFile()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, states);
        QFETCH(QString, told);
        const auto file = readLayerStateFile(write(bytes, "broken.las"), TextCodec());
        QCOMPARE(bool(file), states >= 0);
        const QString text = file ? file->notices.join('\n') : file.error().text;
        QVERIFY2(text.contains(told), qPrintable(text));
        QCOMPARE(file ? int(file->states.size()) : -1, states);
        if (states > 0)
            QTEST(int(file->states.front().layers.size()), "layers");
    }

    void restored_data()
    {
        const Rows<int> row("mask");
        for (int bit = 1; bit <= kStateTransparency; bit *= 2)
            row(qPrintable(QString::number(bit)), bit);
        row("nothing", 0);
        row("all", kStateEverything);
        row("all but colour", kStateEverything & ~kStateColor);
    }

    /// Only the properties in the mask are restored, as an independent reader confirms.
    void restored()
    {
        if (!readback::isInstalled())
            QSKIP("python3-ezdxf is not installed");
        QFETCH(int, mask);
        const auto drawing = opened(contentOf(SAMPLES "/office-standard.dxf"));
        const LayerState state = captureLayerState(*drawing, "Before");
        put(*drawing, state);
        drawing->beginStep("turn");
        std::vector<Layer> turned = drawing->layers();
        turned.resize(std::min<size_t>(turned.size(), 20));
        for (Layer& layer : turned)
            QVERIFY(drawing->setLayerProperties(layer.id, turnedAround(layer.properties)));
        drawing->commitStep();
        const std::vector<Layer> after = drawing->layers();

        LayerStateRestore how;
        how.mask = mask;
        const LayerState stored = *drawing->layerState(state.name);
        QVERIFY(stored == state);
        QCOMPARE(restore(*drawing, stored, how), QStringList());
        const QString result = inFolder("result.dxf");
        QVERIFY(drawing->save(result));
        const auto layers = readback::layers(readback::seen(result));
        for (size_t i = 0; i < after.size(); ++i) {
            const LayerProperties& was = state.layers.at(i).properties;
            const LayerProperties& changed = after.at(i).properties;
            const auto expect = [&](int bit, auto member) {
                return (mask & bit) ? was.*member : changed.*member;
            };
            LayerProperties expected = changed;
            expected.off = expect(kStateOnOff, &LayerProperties::off);
            expected.frozen = expect(kStateFreeze, &LayerProperties::frozen);
            expected.locked = expect(kStateLock, &LayerProperties::locked);
            expected.plotted = expect(kStatePlot, &LayerProperties::plotted);
            expected.frozenInNewViewports =
                expect(kStateNewViewportFreeze, &LayerProperties::frozenInNewViewports);
            expected.colorIndex = expect(kStateColor, &LayerProperties::colorIndex);
            expected.trueColor = expect(kStateColor, &LayerProperties::trueColor);
            expected.linetype = expect(kStateLinetype, &LayerProperties::linetype);
            expected.lineweight = expect(kStateLineweight, &LayerProperties::lineweight);
            expected.transparency = expect(kStateTransparency, &LayerProperties::transparency);
            QCOMPARE(layers.value(changed.name), readback::facts(expected));
        }
        QCOMPARE(isSameAsDrawing(state, *drawing), mask == kStateEverything);
    }

    /// The state's current layer is restored first, so that the present one can be frozen. Layers
    /// that the state does not contain are turned off on request.
    void restoredWithCurrent()
    {
        const auto drawing = opened(House().bytes());
        LayerState state = captureLayerState(*drawing, "S");
        state.currentLayer = "EMPTY";
        state.layers.at(1).properties.frozen = true;
        state.layers.at(1).properties.linetype = "Gone";
        state.layers.at(1).properties.lineweight = 9;
        state.layers.at(2).properties.name = "Missing";
        LayerStateRestore how;
        how.turnOthersOff = true;
        const QStringList notices = restore(*drawing, state, how);
        QCOMPARE(currentName(*drawing), "Empty");
        const LayerProperties& wall = drawing->findLayer("wall")->properties;
        QVERIFY(wall.frozen && !wall.off);
        QCOMPARE(wall.lineweight, 9);
        QVERIFY(drawing->findLayer("Empty")->properties.off);
        QCOMPARE(notices.size(), 2);
        QVERIFY(notices.at(0).contains("Gone"));
        QVERIFY(notices.at(1).contains("Missing"));

        state.currentLayer.clear();
        state.layers.at(0).properties.frozen = true;
        QVERIFY(inStep(*drawing, [&] { return drawing->setCurrentLayer(id(*drawing, "0")); }));
        restore(*drawing, state, {});
        QVERIFY(!drawing->findLayer("0")->properties.frozen);
    }

    void keepsCurrent_data()
    {
        const Rows<bool, bool, int, bool> row("frozenNow", "frozenSaved", "mask", "isKept");
        row("thawed by the state", true, false, kStateEverything, false);
        row("stays frozen", true, false, kStateEverything & ~kStateFreeze, true);
        row("is frozen by the state", false, true, kStateEverything, true);
        row("would be frozen by the state", false, true, kStateColor, false);
    }

    /// A layer that ends up frozen neither becomes current nor is thawed for that purpose.
    void keepsCurrent()
    {
        QFETCH(bool, frozenNow);
        QFETCH(bool, frozenSaved);
        QFETCH(int, mask);
        QFETCH(bool, isKept);
        const auto drawing = opened(House().bytes());
        const QString before = currentName(*drawing);
        const QString wanted = "Empty";
        QVERIFY(before != wanted);
        QCOMPARE(edit(*drawing, wanted, [&](LayerProperties& p) { p.frozen = frozenNow; }), "");
        LayerState state = captureLayerState(*drawing, "S");
        state.currentLayer = wanted;
        for (LayerStateLayer& layer : state.layers)
            layer.properties.frozen = frozenSaved && layer.properties.name == wanted;
        LayerStateRestore how;
        how.mask = mask;
        const QStringList notices = restore(*drawing, state, how);
        QCOMPARE(currentName(*drawing), isKept ? before : wanted);
        QVERIFY(!drawing->layer(drawing->currentLayer())->properties.frozen);
        QCOMPARE(drawing->findLayer(wanted)->properties.frozen, isKept);
        QCOMPARE(notices.size(), isKept ? 1 : 0);
        QVERIFY(!isKept || (notices.first().contains(wanted) && notices.first().contains(before)));
    }

    /// Plot styles are restored by name when the drawing has them, and nothing else changes.
    void namedPlotStyles()
    {
        const QByteArray bytes = House::withNamedStyles().bytes();
        const auto drawing = opened(bytes);
        QVERIFY(drawing->hasNamedPlotStyles());
        LayerState state = captureLayerState(*drawing, "S");
        QCOMPARE(state.layers.front().properties.plotStyle, "Normal");
        state.layers.front().properties.plotStyle = "半色";
        QVERIFY(!isSameAsDrawing(state, *drawing));
        LayerStateRestore how;
        how.mask = kStatePlotStyle;
        restore(*drawing, state, how);
        QCOMPARE(drawing->findLayer("0")->properties.plotStyle, "半色");
        QVERIFY(isSameAsDrawing(state, *drawing));
        QCOMPARE(saved(*drawing), QByteArray(bytes).replace("390\nF\n", "390\nE1\n"));
    }

private:
    static void put(Drawing& drawing, const LayerState& state)
    {
        const auto stored = inStep(drawing, [&] { return drawing.putLayerStates({state}); });
        QVERIFY2(stored, stored ? "" : qPrintable(stored.error().text));
    }
};

QTEST_GUILESS_MAIN(TestLayerStates)
#include "tst_layerstates.moc"
