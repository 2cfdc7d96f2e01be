#include "fixture.h"
#include "layerstatefile.h"
#include "readback.h"
#include "rows.h"

#include <QDirIterator>

using namespace drawing;

namespace {

LayerState everything(const Drawing& drawing, const QString& name)
{
    LayerState state = captureLayerState(drawing, name);
    state.description = QStringLiteral("说明 ^J 2^ 3\n\t第二行^");
    return state;
}

/// Other values than before in every property a layer has.
LayerProperties turnedAround(LayerProperties p)
{
    p.off = !p.off;
    p.frozen = !p.frozen;
    p.locked = !p.locked;
    p.plotted = !p.plotted;
    p.frozenInNewViewports = !p.frozenInNewViewports;
    p.trueColor = p.trueColor ? std::nullopt : std::optional<quint32>(0x10203);
    p.colorIndex = p.colorIndex % 255 + 1;
    p.linetype = p.linetype == QLatin1String("Continuous") ? QStringLiteral("Dashed")
                                                           : QStringLiteral("Continuous");
    p.lineweight = p.lineweight == 50 ? 30 : 50;
    p.transparency = (p.transparency + 45) % 90;
    return p;
}

constexpr char kForeign[] = R"(0 LAYERSTATEDICTIONARY
0 LAYERSTATE
1 Foreign
91 4095
301 by hand
290 0
302 WALL
8 WALL
90 11
62 3
370 50
6 Dashed
2 Color_3
440 33554559
92 66051
77 unknown
8 Nowhere
90 8
8 Empty
90 44
62 -1
370 51
)";

} // namespace

/// Layer states in drawings and in files of their own.
class TestLayerStates : public Fixture
{
    Q_OBJECT

private slots:
    void storedForm();
    void seenByOthers_data();
    void seenByOthers();
    void edits();
    void followsLayers();
    void besideOldDrawing();
    void brokenBesideOldDrawing();
    void files();
    void foreignFile_data();
    void foreignFile();
    void brokenFile_data();
    void brokenFile();
    void restored_data();
    void restored();
    void restoredWithCurrent();
    void keepsCurrent_data();
    void keepsCurrent();
    void namedPlotStyles();

private:
    static void put(Drawing& drawing, const LayerState& state)
    {
        drawing.beginStep(QStringLiteral("state"));
        const auto stored = drawing.putLayerStates({state});
        drawing.commitStep();
        QVERIFY2(stored, stored ? "" : qPrintable(stored.error().text));
    }
    static QStringList restore(
        Drawing& drawing, const LayerState& state, const LayerStateRestore& how)
    {
        drawing.beginStep(QStringLiteral("restore"));
        const QStringList notices = restoreLayerState(drawing, state, how);
        drawing.commitStep();
        return notices;
    }
    static QJsonObject seen(const QString& path)
    {
        return readback::seen(path, QStringLiteral(STATES_SCRIPT));
    }
};

/// The object as the published layout has it, code by code; taken back, nothing of it stays.
void TestLayerStates::storedForm()
{
    House house;
    house.wallRecord = "70 1\n62 -5\n420 66051\n6 Dashed\n370 50\n390 F\n"
                       "1001 AcCmTransparency\n1071 33554559";
    const auto drawing = opened(house.bytes());
    LayerState state = everything(*drawing, QStringLiteral("New"));
    state.description = QStringLiteral("two\nlines");
    state.mask = 37;
    state.layers.resize(2);
    put(*drawing, state);
    const QByteArray expected = tagged(R"(5 100
102 {ACAD_REACTORS
330 A1
102 }
330 A1
100 AcDbXrecord
280 1
91 37
301 two^Jlines
290 0
302 Wall
330 10
90 8
62 7
370 -3
331 30
1 Color_7
440 0
330 11
90 11
62 5
370 50
331 31
1 Color_5
440 33554559
92 66051
0 ENDSEC
)");
    QVERIFY(saved(*drawing).contains(expected));
    const auto again = opened(saved(*drawing));
    QCOMPARE(again->layerStateNames(), QStringList({"State", "New"}));
    QVERIFY(*again->layerState(QStringLiteral("new")) == state);

    drawing->undo();
    QVERIFY(saved(*drawing) == house.bytes());
    drawing->redo();
    QVERIFY(*drawing->layerState(QStringLiteral("New")) == state);
}

void TestLayerStates::seenByOthers_data()
{
    QTest::addColumn<QString>("path");
    for (const char* folder : {SAMPLES_DIR, SHARED_DRAWINGS_DIR}) {
        QDirIterator files(QString::fromUtf8(folder), {QStringLiteral("*.dxf")});
        while (files.hasNext()) {
            const QString path = files.next();
            QTest::newRow(qPrintable(files.fileName())) << path;
        }
    }
}

void TestLayerStates::seenByOthers()
{
    if (!readback::isInstalled())
        QSKIP("python3-ezdxf is not installed");
    QFETCH(QString, path);
    const auto drawing = opened(read(path));
    if (!drawing->layerStatesPath().isEmpty())
        QSKIP("the format has no place for layer states");
    const QJsonObject before = seen(path);
    LayerState first = captureLayerState(*drawing, QStringLiteral("First"));
    LayerState second = first;
    second.name = QStringLiteral("Second");
    second.mask = kStateColor;
    second.layers.resize(1);
    put(*drawing, first);
    put(*drawing, second);
    const QString result = m_folder.filePath(QStringLiteral("result.dxf"));
    QVERIFY(drawing->save(result));

    const QJsonObject after = seen(result);
    QVERIFY2(!after.contains("failure"), qPrintable(after.value("failure").toString()));
    const QJsonArray states = after.value("states").toArray();
    QCOMPARE(states.size(), before.value("states").toArray().size() + 2);
    const QJsonObject last = states.last().toObject();
    QCOMPARE(last.value("name").toString(), QStringLiteral("Second"));
    QVERIFY(last.value("owned").toBool() && last.value("reactors").toBool());
    QHash<int, QString> values;
    for (const QJsonValue& tag : last.value("tags").toArray())
        values.insert(tag.toArray().at(0).toInt(), tag.toArray().at(1).toString());
    const LayerProperties& p = second.layers.front().properties;
    QCOMPARE(values.value(91), QString::number(kStateColor));
    QCOMPARE(values.value(302), second.currentLayer);
    QCOMPARE(after.value("layers").toObject().value(values.value(330)).toString(), p.name);
    QCOMPARE(values.value(62), QString::number(p.colorIndex));
    QCOMPARE(values.value(370), QString::number(p.lineweight));
    QCOMPARE(readback::newErrors(before, after), QStringList());
    QVERIFY(*opened(read(result))->layerState(QStringLiteral("First")) == first);
}

/// Replacing keeps the object and its place; what is deleted leaves dictionary and objects.
void TestLayerStates::edits()
{
    const auto drawing = opened(House().bytes());
    LayerState state = everything(*drawing, QStringLiteral("STATE"));
    put(*drawing, state);
    QCOMPARE(drawing->layerStateNames(), QStringList({"State"}));
    QCOMPARE(drawing->layerState(QStringLiteral("state"))->description, state.description);
    state.name = QStringLiteral("Other");
    put(*drawing, state);

    drawing->beginStep(QStringLiteral("names"));
    QVERIFY(!drawing->renameLayerState(QStringLiteral("other"), QStringLiteral("stAte")));
    QVERIFY(!drawing->renameLayerState(QStringLiteral("none"), QStringLiteral("x")));
    QVERIFY(drawing->renameLayerState(QStringLiteral("state"), QStringLiteral("First")));
    drawing->commitStep();
    QCOMPARE(drawing->layerStateNames(), QStringList({"First", "Other"}));

    drawing->beginStep(QStringLiteral("remove"));
    QVERIFY(!drawing->removeLayerStates({QStringLiteral("none")}));
    QVERIFY(drawing->removeLayerStates({QStringLiteral("FIRST"), QStringLiteral("Other")}));
    drawing->commitStep();
    QVERIFY(!saved(*drawing).contains("XRECORD\n  5\nA2"));
    QCOMPARE(opened(saved(*drawing))->layerStateNames(), QStringList());
    drawing->undo();
    QCOMPARE(opened(saved(*drawing))->layerStateNames(), QStringList({"First", "Other"}));
}

/// Layers renamed and deleted later are so in states of the file and in new ones.
void TestLayerStates::followsLayers()
{
    for (const bool old : {false, true}) {
        House house;
        house.version = old ? "AC1009" : "AC1018";
        house.current = "0";
        const auto drawing = opened(house.bytes());
        LayerState state = captureLayerState(*drawing, QStringLiteral("Mine"));
        state.currentLayer = QStringLiteral("Wall");
        put(*drawing, state);
        QVERIFY(edit(*drawing, QStringLiteral("Wall"), [](LayerProperties& p) {
            p.name = QStringLiteral("墙");
        }).isEmpty());
        const LayerState followed = *drawing->layerState(QStringLiteral("Mine"));
        QCOMPARE(followed.currentLayer, QStringLiteral("墙"));
        QCOMPARE(followed.layers.at(1).properties.name, QStringLiteral("墙"));
        QVERIFY(isSameAsDrawing(followed, *drawing));
    }
}

void TestLayerStates::besideOldDrawing()
{
    House house;
    house.version = "AC1009";
    const auto drawing = opened(house.bytes());
    QVERIFY(drawing->layerStatesPath().endsWith(QLatin1String("house.las")));
    const LayerState state = everything(*drawing, QStringLiteral("Aside"));
    put(*drawing, state);
    QVERIFY(drawing->isModified());
    QVERIFY(!QFile::exists(drawing->layerStatesPath()));
    const QString path = m_folder.filePath(QStringLiteral("old.dxf"));
    QVERIFY(drawing->save(path));
    QCOMPARE(read(path), house.bytes());
    QCOMPARE(drawing->layerStatesPath(), m_folder.filePath(QStringLiteral("old.las")));
    const auto again = Drawing::open(path);
    QVERIFY(*(*again)->layerState(QStringLiteral("Aside")) == state);

    drawing->undo();
    QVERIFY(drawing->save(path));
    QVERIFY((*Drawing::open(path))->layerStates().empty());
}

/// A file that cannot be read is not written over.
void TestLayerStates::brokenBesideOldDrawing()
{
    House house;
    house.version = "AC1009";
    const auto drawing = opened(house.bytes());
    const QByteArray precious = "  0\nLAYERSTATEDICTIONARY\nwhat\nis this\n";
    QFile file(drawing->layerStatesPath());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(precious) == precious.size());
    file.close();
    drawing->beginStep(QStringLiteral("state"));
    const auto refused =
        drawing->putLayerStates({captureLayerState(*drawing, QStringLiteral("New"))});
    drawing->commitStep();
    QVERIFY(!refused && refused.error().text.contains(QLatin1String("3")));
    QVERIFY(drawing->save(drawing->path()));
    QCOMPARE(read(drawing->layerStatesPath()), precious);
}

void TestLayerStates::files()
{
    House house;
    house.wallRecord = "70 5\n62 -5\n420 66051\n6 Dashed\n370 50\n290 0\n"
                       "1001 AcCmTransparency\n1071 33554559";
    const auto drawing = opened(house.bytes());
    LayerState first = everything(*drawing, QStringLiteral("一"));
    first.fromLayout = true;
    first.mask = 1;
    first.layers.front().frozenInCurrentViewport = true;
    LayerState second = first;
    second.name = QStringLiteral("Two");
    second.layers.clear();
    const QString path = m_folder.filePath(QStringLiteral("states.las"));
    QVERIFY(writeLayerStateFile(path, {first, second}));
    QVERIFY(isLayerStateFile(path));
    const auto back = readLayerStateFile(path, TextCodec());
    QVERIFY(back && back->notices.isEmpty());
    QVERIFY((back->states == std::vector<LayerState>{first, second}));
    QVERIFY(!writeLayerStateFile(m_folder.filePath(QStringLiteral("no/such.las")), {first}));
}

void TestLayerStates::foreignFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("codePage"); // Of the drawing; empty: UTF-8.
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("told");
    const QByteArray plain = tagged(kForeign);
    const auto with = [&plain](
                          const char* text) { return QByteArray(plain).replace("by hand", text); };
    const QByteArray gbk = "ANSI_936";
    const QString text = QStringLiteral("说明");
    QTest::newRow("plain") << plain << gbk << "by hand" << QString();
    QTest::newRow("CR LF and a byte order mark")
        << "\xef\xbb\xbf" + tagged(kForeign, "\r\n") << gbk << "by hand" << QString();
    QTest::newRow("escapes") << with("\\U+8BF4\\U+660E") << gbk << text << QString();
    QTest::newRow("GBK") << with("\xcb\xb5\xc3\xf7") << gbk << text << "GBK";
    QTest::newRow("GBK for a drawing in UTF-8")
        << with("\xcb\xb5\xc3\xf7") << QByteArray() << text << "GBK";
    QTest::newRow("GBK for a western drawing")
        << with("\xcb\xb5\xc3\xf7") << QByteArray("ANSI_1252") << text << "GBK";
    QTest::newRow("the drawing's own")
        << with("\xbb\xa1\xa9\xfa") << QByteArray("ANSI_950") << QStringLiteral("說明") << "Big5";
    QTest::newRow("western") << with("caf\xe9") << QByteArray("ANSI_1252") << QStringLiteral("café")
                             << "ANSI_1252";
}

/// What another program wrote: unknown bits and codes, a layer and a weight that do not exist. It
/// is used as far as it can be, and the rest is told.
void TestLayerStates::foreignFile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, codePage);
    QFETCH(QString, told);
    const auto drawing = opened(House().bytes());
    const TextCodec own(codePage.isEmpty() ? "AC1027" : "AC1018", codePage.constData());
    const auto file = readLayerStateFile(write(bytes, QStringLiteral("foreign.las")), own);
    QVERIFY(file && file->states.size() == 1);
    const QString notices = file->notices.join(QLatin1Char('\n'));
    for (const QString& part : {told, QStringLiteral("组码 77，"), QStringLiteral("位 2048"),
             QStringLiteral("1 个颜色或线宽")})
        QVERIFY2(notices.contains(part), qPrintable(notices));
    LayerState state = file->states.front();
    QTEST(state.description, "text");
    QCOMPARE(state.mask, int(kStateEverything));
    QCOMPARE(dropUnknownLayers(state, *drawing), QStringList({"Nowhere"}));
    QCOMPARE(state.layers.size(), 2u);
    LayerProperties wall;
    wall.name = QStringLiteral("WALL");
    wall.off = wall.frozen = true;
    wall.colorIndex = 3;
    wall.trueColor = 0x10203;
    wall.lineweight = 50;
    wall.linetype = QStringLiteral("Dashed");
    wall.plotStyle = QStringLiteral("Color_3");
    wall.transparency = 50;
    QVERIFY(state.layers.front().properties == wall);
    const LayerStateLayer& empty = state.layers.back();
    QVERIFY(empty.properties.locked && empty.properties.plotted && empty.frozenInCurrentViewport);
    QCOMPARE(empty.properties.lineweight, -3);
}

void TestLayerStates::brokenFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("states"); // -1: refused.
    QTest::addColumn<int>("layers");
    QTest::addColumn<QString>("told");
    const QByteArray plain = tagged(kForeign);
    const int state = plain.indexOf("LAYERSTATE\n") - 4;
    QTest::newRow("empty") << QByteArray() << -1 << 0 << QStringLiteral("空的");
    QTest::newRow("something else") << House().bytes() << -1 << 0 << QStringLiteral("第 1 行");
    QTest::newRow("words for codes") << QByteArray(plain).replace("370\n50", "weight\n50") << -1
                                     << 0 << QStringLiteral("第 21 行");
    QTest::newRow("cut within a layer")
        << plain.left(plain.indexOf("370\n51") + 4) << 1 << 2 << QStringLiteral("“Foreign”中中断");
    QTest::newRow("cut within a name")
        << plain.left(plain.indexOf("Foreign") - 4) << 0 << 0 << QStringLiteral("没有可用的名称");
    QTest::newRow("nothing in it") << plain.left(state) << 0 << 0 << QString();
    QTest::newRow("no name") << QByteArray(plain).replace("  1\nForeign\n", "") << 0 << 0
                             << QStringLiteral("没有可用的名称");
    QTest::newRow("two") << plain + plain.mid(state) << 2 << 3 << QString();
}

void TestLayerStates::brokenFile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, states);
    QFETCH(QString, told);
    const auto file = readLayerStateFile(write(bytes, QStringLiteral("broken.las")), TextCodec());
    QCOMPARE(bool(file), states >= 0);
    const QString text = file ? file->notices.join(QLatin1Char('\n')) : file.error().text;
    QVERIFY2(text.contains(told), qPrintable(text));
    QCOMPARE(file ? int(file->states.size()) : -1, states);
    if (states > 0)
        QTEST(int(file->states.front().layers.size()), "layers");
}

void TestLayerStates::restored_data()
{
    QTest::addColumn<int>("mask");
    for (int bit = 1; bit <= kStateTransparency; bit *= 2)
        QTest::newRow(qPrintable(QString::number(bit))) << bit;
    QTest::newRow("nothing") << 0;
    QTest::newRow("all") << int(kStateEverything);
    QTest::newRow("all but colour") << (kStateEverything & ~kStateColor);
}

/// What the mask names is back, all else is as it was changed to, as an independent reader sees it;
/// twenty layers at once where the large drawing is at hand.
void TestLayerStates::restored()
{
    if (!readback::isInstalled())
        QSKIP("python3-ezdxf is not installed");
    QFETCH(int, mask);
    const QString floor = QStringLiteral(SHARED_DRAWINGS_DIR "/floorplan.dxf");
    const QString sample = QStringLiteral(SAMPLES_DIR "/office-floor.dxf");
    const auto drawing = opened(read(QFile::exists(floor) ? floor : sample));
    const LayerState state = captureLayerState(*drawing, QStringLiteral("Before"));
    put(*drawing, state);
    drawing->beginStep(QStringLiteral("turn"));
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
    const QString result = m_folder.filePath(QStringLiteral("result.dxf"));
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

/// The state's current layer comes back first, so that the present one may be frozen; layers it
/// does not hold are turned off when asked.
void TestLayerStates::restoredWithCurrent()
{
    const auto drawing = opened(House().bytes());
    LayerState state = captureLayerState(*drawing, QStringLiteral("S"));
    state.currentLayer = QStringLiteral("EMPTY");
    state.layers.at(1).properties.frozen = true;
    state.layers.at(1).properties.linetype = QStringLiteral("Gone");
    state.layers.at(1).properties.lineweight = 9;
    state.layers.at(2).properties.name = QStringLiteral("Missing");
    LayerStateRestore how;
    how.turnOthersOff = true;
    const QStringList notices = restore(*drawing, state, how);
    QCOMPARE(drawing->layer(drawing->currentLayer())->properties.name, QStringLiteral("Empty"));
    const LayerProperties& wall = drawing->findLayer(QStringLiteral("wall"))->properties;
    QVERIFY(wall.frozen && !wall.off);
    QCOMPARE(wall.lineweight, 9);
    QVERIFY(drawing->findLayer(QStringLiteral("Empty"))->properties.off);
    QCOMPARE(notices.size(), 2);
    QVERIFY(notices.at(0).contains(QLatin1String("Gone")));
    QVERIFY(notices.at(1).contains(QLatin1String("Missing")));

    state.currentLayer.clear();
    state.layers.at(0).properties.frozen = true;
    drawing->beginStep(QStringLiteral("zero"));
    QVERIFY(drawing->setCurrentLayer(drawing->findLayer(QStringLiteral("0"))->id));
    drawing->commitStep();
    restore(*drawing, state, {});
    QVERIFY(!drawing->findLayer(QStringLiteral("0"))->properties.frozen);
}

void TestLayerStates::keepsCurrent_data()
{
    const Rows<bool, bool, int, bool> row("frozenNow", "frozenSaved", "mask", "isKept");
    row("thawed by the state", true, false, kStateEverything, false);
    row("stays frozen", true, false, kStateEverything & ~kStateFreeze, true);
    row("is frozen by the state", false, true, kStateEverything, true);
    row("would be frozen by the state", false, true, kStateColor, false);
}

/// A layer that ends up frozen never becomes current, nor is it thawed to become so.
void TestLayerStates::keepsCurrent()
{
    QFETCH(bool, frozenNow);
    QFETCH(bool, frozenSaved);
    QFETCH(int, mask);
    QFETCH(bool, isKept);
    const auto drawing = opened(House().bytes());
    const QString before = drawing->layer(drawing->currentLayer())->properties.name;
    const QString wanted = QStringLiteral("Empty");
    QVERIFY(before != wanted);
    QVERIFY(edit(*drawing, wanted, [&](LayerProperties& p) { p.frozen = frozenNow; }).isEmpty());
    LayerState state = captureLayerState(*drawing, QStringLiteral("S"));
    state.currentLayer = wanted;
    for (LayerStateLayer& layer : state.layers)
        layer.properties.frozen = frozenSaved && layer.properties.name == wanted;
    LayerStateRestore how;
    how.mask = mask;
    const QStringList notices = restore(*drawing, state, how);
    const Layer* current = drawing->layer(drawing->currentLayer());
    QCOMPARE(current->properties.name, isKept ? before : wanted);
    QVERIFY(!current->properties.frozen);
    QCOMPARE(drawing->findLayer(wanted)->properties.frozen, isKept);
    QCOMPARE(notices.size(), isKept ? 1 : 0);
    QVERIFY(!isKept || (notices.first().contains(wanted) && notices.first().contains(before)));
}

/// Plot styles come back by name where the drawing has them, and leave nothing else changed.
void TestLayerStates::namedPlotStyles()
{
    House house;
    QByteArray bytes = house.bytes();
    bytes.replace("  9\n$HANDSEED", "  9\n$PSTYLEMODE\n290\n0\n  9\n$HANDSEED");
    bytes.replace("  0\nDICTIONARY\n  5\nC\n",
        tagged("0 DICTIONARY\n5 C\n3 ACAD_PLOTSTYLENAME\n350 D0\n0 ACDBDICTIONARYWDFLT\n5 D0\n"
               "3 Normal\n350 F\n3 Fine\n350 F1\n"));
    const auto drawing = opened(bytes);
    QVERIFY(drawing->hasNamedPlotStyles());
    LayerState state = captureLayerState(*drawing, QStringLiteral("S"));
    QCOMPARE(state.layers.front().properties.plotStyle, QStringLiteral("Normal"));
    state.layers.front().properties.plotStyle = QStringLiteral("FINE");
    QVERIFY(!isSameAsDrawing(state, *drawing));
    LayerStateRestore how;
    how.mask = kStatePlotStyle;
    restore(*drawing, state, how);
    QCOMPARE(drawing->findLayer(QStringLiteral("0"))->properties.plotStyle, QStringLiteral("Fine"));
    QVERIFY(isSameAsDrawing(state, *drawing));
    QCOMPARE(saved(*drawing), QByteArray(bytes).replace("390\nF\n", "390\nF1\n"));
}

QTEST_GUILESS_MAIN(TestLayerStates)
#include "tst_layerstates.moc"
