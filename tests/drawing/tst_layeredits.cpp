#include "fixture.h"

#include <QSignalSpy>

#include <functional>

using namespace drawing;
using Change = std::function<void(LayerProperties&)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(House)

namespace {

House wallAs(const QByteArray& record)
{
    House house;
    house.wallRecord = record;
    return house;
}

House withApp(House house, const QByteArray& name)
{
    house.appIds = "0 APPID\n5 100\n330 9\n100 AcDbSymbolTableRecord\n"
                   "100 AcDbRegAppTableRecord\n2 " +
                   name + "\n70 0\n";
    house.appIdCount = "2";
    house.seed = "101";
    return house;
}

House renamed(const QByteArray& name)
{
    House house;
    house.wall = name;
    house.current = name;
    return house;
}

LayerProperties named(const QString& name)
{
    LayerProperties properties;
    properties.name = name;
    return properties;
}

} // namespace

/// Edits of layers, told by the bytes they leave: all others must stay.
class TestLayerEdits : public Fixture
{
    Q_OBJECT

private slots:
    void properties_data();
    void properties();
    void refusals_data();
    void refusals();
    void swappedNames();
    void filters();
    void neverPlotted();
    void added();
    void removed();
    void removedFromOldViewport();
    void removalRefused();
    void current();
    void implicitLayer();
    void oldFormat();
    void madeTables();
    void usedSeed();
    void steps();
    void rollback();
    void manyRenames();
};

void TestLayerEdits::properties_data()
{
    QTest::addColumn<House>("before");
    QTest::addColumn<Change>("change");
    QTest::addColumn<House>("after");

    const auto row = [](const char* name, const House& before, const Change& change,
                         const House& after) { QTest::newRow(name) << before << change << after; };
    using P = LayerProperties;
    const House house;
    row(
        "off", house, [](P& p) { p.off = true; }, wallAs("70 64\n62 -5"));
    row(
        "on", wallAs("70 0\n62     -5"), [](P& p) { p.off = false; }, wallAs("70 0\n62      5"));
    row(
        "off, odd colour kept", wallAs("62 256"), [](P& p) { p.off = true; }, wallAs("62 -256"));
    row(
        "off, no colour", wallAs("70 0"), [](P& p) { p.off = true; }, wallAs("70 0\n62 -7"));
    row(
        "flags", house, [](P& p) { p.frozen = p.locked = p.frozenInNewViewports = true; },
        wallAs("70 71\n62 5"));
    row(
        "thawed", wallAs("70 67\n62 5"), [](P& p) { p.frozen = false; }, wallAs("70 66\n62 5"));
    row(
        "colour", house, [](P& p) { p.colorIndex = 30; }, wallAs("70 64\n62 30"));
    row(
        "colour of an off layer", wallAs("62 -5"), [](P& p) { p.colorIndex = 6; }, wallAs("62 -6"));
    row(
        "true colour", wallAs("70     64\n62      5\n6 Dashed"), [](P& p) { p.trueColor = 0xff; },
        wallAs("70     64\n62      5\n420       255\n6 Dashed"));
    row(
        "true colour to index", wallAs("62 5\n420 255\n430 BOOK$SEA\n6 Dashed"),
        [](P& p) {
            p.trueColor.reset();
            p.colorIndex = 6;
        },
        wallAs("62 6\n6 Dashed"));
    row(
        "linetype spelled as the table has it", house, [](P& p) { p.linetype = "DASHED"; },
        wallAs("70 64\n62 5\n6 Dashed"));
    row(
        "no plot", wallAs("62 5\n6 Dashed\n370 -3"), [](P& p) { p.plotted = false; },
        wallAs("62 5\n6 Dashed\n290 0\n370 -3"));
    row(
        "plot", wallAs("62 5\n290 0\n370 -3"), [](P& p) { p.plotted = true; },
        wallAs("62 5\n370 -3"));
    row(
        "lineweight", wallAs("70     0\n62     5\n370     50\n390 F"),
        [](P& p) { p.lineweight = 9; }, wallAs("70     0\n62     5\n370      9\n390 F"));
    row(
        "lineweight before XDATA", wallAs("70 64\n62 5\n1001 ACAD\n1070 370"),
        [](P& p) { p.lineweight = 9; }, wallAs("70 64\n62 5\n370 9\n1001 ACAD\n1070 370"));
    row(
        "transparency", house, [](P& p) { p.transparency = 50; },
        withApp(wallAs("70 64\n62 5\n1001 AcCmTransparency\n1071 33554559"), "AcCmTransparency"));
    row(
        "transparency beside others",
        withApp(wallAs("62 5\n1001 ACAD\n1071 1\n1001 AcCmTransparency\n1071 33554559\n1001 ACAD"),
            "AcCmTransparency"),
        [](P& p) { p.transparency = 0; },
        withApp(wallAs("62 5\n1001 ACAD\n1071 1\n1001 AcCmTransparency\n1071 33554687\n1001 ACAD"),
            "AcCmTransparency"));
    row(
        "description", house, [](P& p) { p.description = QStringLiteral("墙\n1"); },
        withApp(wallAs("70 64\n62 5\n1001 AcAecLayerStandard\n1000 \n1000 \xc7\xbd 1"),
            "AcAecLayerStandard"));
    row(
        "description changed",
        withApp(wallAs("62 5\n1001 AcAecLayerStandard\n1000 \n1000 old"), "AcAecLayerStandard"),
        [](P& p) { p.description.clear(); },
        withApp(wallAs("62 5\n1001 AcAecLayerStandard\n1000 \n1000 "), "AcAecLayerStandard"));
    row(
        "group of another program", wallAs("102 {OTHER\n62 1\n370 1\n102 }\n62 5"),
        [](P& p) {
            p.colorIndex = 6;
            p.lineweight = 9;
        },
        wallAs("102 {OTHER\n62 1\n370 1\n102 }\n62 6\n370 9"));
    row(
        "rename", house, [](P& p) { p.name = "Wand"; }, renamed("Wand"));
    row(
        "rename to Chinese", house, [](P& p) { p.name = QStringLiteral("墙"); },
        renamed("\xc7\xbd"));
    row(
        "rename beyond the code page", house, [](P& p) { p.name = QStringLiteral("\u0E01"); },
        renamed("\\U+0E01"));
    row(
        "change of letter case", house, [](P& p) { p.name = "WALL"; }, renamed("WALL"));
    row(
        "blanks around a name", house, [](P& p) { p.name = "  Wand\t"; }, renamed("Wand"));
    row(
        "plot style is no edit", house, [](P& p) { p.plotStyle = "X"; }, house);
    row(
        "nothing", house, [](P&) {}, house);
}

void TestLayerEdits::properties()
{
    QFETCH(House, before);
    QFETCH(Change, change);
    QFETCH(House, after);
    for (const char* lineEnd : {"\n", "\r\n"}) {
        before.lineEnd = lineEnd;
        after.lineEnd = lineEnd;
        const auto drawing = opened(before.bytes());
        const bool differs = before.bytes() != after.bytes();
        QCOMPARE(edit(*drawing, QStringLiteral("Wall"), change), QString());
        QCOMPARE(drawing->isModified(), differs);
        QCOMPARE(drawing->canUndo(), differs);
        QCOMPARE(saved(*drawing), after.bytes());
        drawing->undo();
        QCOMPARE(drawing->isModified(), differs);
        QCOMPARE(saved(*drawing), before.bytes());
        drawing->redo();
        QCOMPARE(saved(*drawing), after.bytes());
        const auto again = opened(after.bytes());
        for (size_t i = 0; i < drawing->layers().size(); ++i)
            QVERIFY(drawing->layers()[i].properties == again->layers()[i].properties);
    }
}

void TestLayerEdits::refusals_data()
{
    QTest::addColumn<QString>("layer");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("word");

    const auto row = [](const QString& layer, const Change& change, const char* word) {
        QTest::newRow(word) << layer << change << QString::fromUtf8(word);
    };
    using P = LayerProperties;
    const QString wall = QStringLiteral("Wall");
    row(
        wall, [](P& p) { p.name = "  "; }, "不能为空");
    row(
        wall, [](P& p) { p.name = QString(256, QLatin1Char('a')); }, "超过 255 个字符");
    row(
        wall, [](P& p) { p.name = "eMPTY"; }, "已有名为“Empty”");
    row(
        wall, [](P& p) { p.name = "implicit"; }, "已有名为“Implicit”");
    row(
        "0", [](P& p) { p.name = "Zero"; }, "图层“0”不能重命名");
    row(
        "plan|A", [](P& p) { p.name = "PlanA"; }, "依赖外部参照");
    row(
        wall, [](P& p) { p.colorIndex = 0; }, "颜色索引 0");
    row(
        wall, [](P& p) { p.colorIndex = 256; }, "颜色索引 256");
    row(
        wall, [](P& p) { p.trueColor = 0x1000000; }, "真彩色 1000000");
    row(
        wall, [](P& p) { p.linetype = "Dotted"; }, "没有线型“Dotted”");
    row(
        wall, [](P& p) { p.lineweight = 51; }, "没有线宽 51");
    row(
        wall, [](P& p) { p.transparency = 91; }, "透明度 91");
    row(
        wall, [](P& p) { p.transparency = -1; }, "透明度 -1");
    row(
        wall, [](P& p) { p.description = QString(256, QLatin1Char('d')); }, "说明“dddd");
    for (const char c : QByteArray("\\<>/\":;?*|,=`\n")) {
        const QString name = QStringLiteral("a%1b").arg(QLatin1Char(c));
        QTest::newRow(qPrintable("character " + QString::number(c)))
            << wall << Change([name](P& p) { p.name = name; }) << QStringLiteral("不能使用的字符");
    }
}

void TestLayerEdits::refusals()
{
    QFETCH(QString, layer);
    QFETCH(Change, change);
    QFETCH(QString, word);
    House house;
    house.moreLayers = "0 LAYER\n2 plan|A\n70 0\n";
    const auto drawing = opened(house.bytes());
    const QString text = edit(*drawing, layer, change);
    QVERIFY2(text.contains(word), qPrintable(text));
    QVERIFY(!drawing->isModified() && !drawing->canUndo());
    QCOMPARE(saved(*drawing), house.bytes());
}

void TestLayerEdits::swappedNames()
{
    const auto drawing = opened(House().bytes());
    const LayerId wall = drawing->findLayer(QStringLiteral("Wall"))->id;
    const LayerId empty = drawing->findLayer(QStringLiteral("Empty"))->id;
    drawing->beginStep(QStringLiteral("swap"));
    const std::pair<LayerId, const char*> renames[] = {
        {wall, "x"}, {empty, "Wall"}, {wall, "Empty"}};
    for (const auto& [id, name] : renames) {
        LayerProperties properties = drawing->layer(id)->properties;
        properties.name = QString::fromLatin1(name);
        QVERIFY(drawing->setLayerProperties(id, properties));
    }
    drawing->commitStep();
    QCOMPARE(drawing->findLayer(QStringLiteral("empty"))->id, wall);
    QByteArray expected = House().bytes();
    expected.replace("\nWall\n", "\n@\n").replace("\nEmpty\n", "\nWall\n").replace("@", "Empty");
    QCOMPARE(saved(*drawing), expected);
    drawing->undo();
    QCOMPARE(drawing->findLayer(QStringLiteral("wall"))->id, wall);
    QCOMPARE(saved(*drawing), House().bytes());
}

/// Layer filters that name a layer follow it; those that only look like it stay.
void TestLayerEdits::filters()
{
    const QByteArray filters = "0 DICTIONARY\n5 A0\n3 ACAD_LAYERFILTERS\n360 D0\n3 ACLYDICTIONARY\n"
                               "360 D1\n0 DICTIONARY\n5 D0\n3 F\n360 D2\n0 XRECORD\n5 D2\n"
                               "100 AcDbXrecord\n1 Wall\n1 @\n70 0\n0 DICTIONARY\n5 D1\n3 *A\n"
                               "360 D3\n3 *B\n360 D4\n0 XRECORD\n5 D3\n100 AcDbXrecord\n"
                               "1 AcLyLayerFilter\n301 OFF==\"0\" AND NAME==\"@\"\n0 XRECORD\n"
                               "5 D4\n100 AcDbXrecord\n1 AcLyLayerFilter\n301 NAME==\"Wall*\"\n"
                               "0 XRECORD\n5 D5\n100 AcDbXrecord\n1 Wall\n1 Wall\n";
    const auto house = [&filters](House made, QByteArray pattern) {
        QByteArray lines = House::kLines;
        const int objects = lines.indexOf("0 DICTIONARY\n5 A0");
        lines.remove(objects, lines.indexOf("0 LAYER_FILTER") - objects);
        lines.insert(objects, QByteArray(filters).replace("@", pattern));
        return made.filledIn(lines);
    };
    const auto drawing = opened(house(House(), "WALL"));
    QCOMPARE(edit(*drawing, QStringLiteral("Wall"), [](LayerProperties& p) { p.name = "W#1"; }),
        QString());
    QCOMPARE(saved(*drawing), house(renamed("W#1"), "W`#1"));
}

/// Defpoints never plots; whatever it is renamed to must then say so itself.
void TestLayerEdits::neverPlotted()
{
    const auto drawing = opened(renamed("Defpoints").bytes());
    const QString name = QStringLiteral("Defpoints");
    QCOMPARE(edit(*drawing, name, [](LayerProperties& p) { p.plotted = true; }), QString());
    QVERIFY(!drawing->isModified());
    QCOMPARE(edit(*drawing, name, [](LayerProperties& p) { p.name = "Wand"; }), QString());
    House after = renamed("Wand");
    after.wallRecord += "\n290 0";
    QCOMPARE(saved(*drawing), after.bytes());
    drawing->undo();
    const auto plot = [](LayerProperties& p) {
        p.name = "Wand";
        p.plotted = true;
    };
    QCOMPARE(edit(*drawing, name, plot), QString());
    QCOMPARE(saved(*drawing), renamed("Wand").bytes());
}

void TestLayerEdits::added()
{
    const House before;
    const auto drawing = opened(before.bytes());
    drawing->beginStep(QStringLiteral("add"));
    LayerProperties properties = named(QStringLiteral("新"));
    properties.off = true;
    properties.locked = true;
    properties.trueColor = 0x010203;
    const auto id = drawing->addLayer(properties);
    QVERIFY(id);
    QVERIFY(!drawing->addLayer(properties)); // Its name is taken now.
    QVERIFY(drawing->setCurrentLayer(*id));
    drawing->commitStep();

    House after;
    after.moreLayers = "0 LAYER\n5 100\n330 2\n100 AcDbSymbolTableRecord\n"
                       "100 AcDbLayerTableRecord\n2 \xd0\xc2\n70 4\n62 -7\n420 66051\n"
                       "6 Continuous\n370 -3\n390 F\n347 47\n";
    after.layerCount = "4";
    after.seed = "101";
    after.current = "\xd0\xc2";
    QCOMPARE(saved(*drawing), after.bytes());

    drawing->undo();
    QVERIFY(!drawing->layer(*id));
    QCOMPARE(saved(*drawing), before.bytes());
    drawing->redo();
    QCOMPARE(drawing->layer(*id)->properties.name, QStringLiteral("新"));
    QCOMPARE(drawing->currentLayer(), *id);

    drawing->beginStep(QStringLiteral("away"));
    QVERIFY(drawing->setCurrentLayer(drawing->findLayer(QStringLiteral("Wall"))->id));
    QVERIFY(drawing->removeLayer(*id));
    const auto next = drawing->addLayer(named(QStringLiteral("新")));
    QVERIFY(next && *next != *id);
    drawing->commitStep();
    const auto again = opened(saved(*drawing));
    QCOMPARE(again->layers().size(), size_t(5));
}

void TestLayerEdits::removed()
{
    const QByteArray before = House().bytes();
    const auto drawing = opened(before);
    drawing->beginStep(QStringLiteral("remove"));
    QVERIFY(drawing->removeLayer(drawing->findLayer(QStringLiteral("Empty"))->id));
    drawing->commitStep();
    QVERIFY(!drawing->findLayer(QStringLiteral("Empty")));

    QByteArray lines = House::kLines;
    const int record = lines.indexOf("0 LAYER\n5 12");
    lines.remove(record, lines.indexOf("@moreLayers") - record);
    lines.replace("8 Empty", "8 0").replace("331 12\n", "").replace("330 12\n90 9\n", "");
    const int objects = lines.indexOf("0 DICTIONARY\n5 B0");
    lines.remove(objects, lines.indexOf("0 ENDSEC", objects) - objects);
    House after;
    after.layerCount = "2";
    QCOMPARE(saved(*drawing), after.filledIn(lines));
    drawing->undo();
    QCOMPARE(saved(*drawing), before);
}

void TestLayerEdits::removedFromOldViewport()
{
    const QByteArray lines = "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n@0 ENDTAB\n0 ENDSEC\n"
                             "0 SECTION\n2 ENTITIES\n0 VIEWPORT\n8 0\n1001 ACAD\n1000 MVIEW\n"
                             "1002 {\n@@1002 }\n0 POINT\n8 0\n1001 X\n1003 %\n0 ENDSEC\n0 EOF";
    QByteArray before = lines;
    before.replace("@@", "1003 A\n1003 0\n").replace("@", "0 LAYER\n2 A\n70 0\n").replace("%", "A");
    QByteArray after = lines;
    after.replace("@@", "1003 0\n").replace("@", "").replace("%", "0").replace("70 1", "70 0");
    const auto drawing = opened(tagged(before));
    drawing->beginStep(QStringLiteral("remove"));
    QVERIFY(drawing->removeLayer(drawing->findLayer(QStringLiteral("A"))->id));
    drawing->commitStep();
    QCOMPARE(saved(*drawing), tagged(after));
}

void TestLayerEdits::removalRefused()
{
    House house;
    house.current = "Empty";
    const auto drawing = opened(house.bytes());
    drawing->beginStep(QStringLiteral("remove"));
    for (const char* name : {"0", "Empty", "Wall", "Implicit"})
        QVERIFY(!drawing->removeLayer(drawing->findLayer(QString::fromLatin1(name))->id));
    QVERIFY(!drawing->removeLayer(LayerId::None));
    QVERIFY(!drawing->removeLayer(static_cast<LayerId>(99)));
    drawing->commitStep();
    QCOMPARE(saved(*drawing), house.bytes());
}

void TestLayerEdits::current()
{
    const auto drawing = opened(House().bytes());
    QSignalSpy changed(drawing.get(), &Drawing::layersChanged);
    const LayerId wall = drawing->currentLayer();
    drawing->beginStep(QStringLiteral("current"));
    QVERIFY(drawing->setCurrentLayer(drawing->findLayer(QStringLiteral("empty"))->id));
    drawing->commitStep();
    House after;
    after.current = "Empty";
    QCOMPARE(saved(*drawing), after.bytes());
    drawing->undo();
    QCOMPARE(drawing->currentLayer(), wall);
    QCOMPARE(changed.count(), 2);
}

void TestLayerEdits::implicitLayer()
{
    const auto drawing = opened(House().bytes());
    const auto change = [](LayerProperties& p) {
        p.name = QStringLiteral("Real");
        p.colorIndex = 1;
    };
    QCOMPARE(edit(*drawing, QStringLiteral("implicit"), change), QString());
    House after;
    after.moreLayers = "0 LAYER\n5 100\n330 2\n100 AcDbSymbolTableRecord\n"
                       "100 AcDbLayerTableRecord\n2 Real\n70 0\n62 1\n6 Continuous\n370 -3\n"
                       "390 F\n347 47\n";
    after.layerCount = "4";
    after.seed = "101";
    QCOMPARE(saved(*drawing), after.bytes().replace("Implicit", "Real"));
}

void TestLayerEdits::oldFormat()
{
    House house;
    house.version = "AC1009";
    const auto drawing = opened(house.bytes());
    const auto change = [](LayerProperties& p) {
        p.lineweight = 50;
        p.plotted = false;
        p.trueColor = 1;
        p.off = true;
    };
    QCOMPARE(edit(*drawing, QStringLiteral("Wall"), change), QString());
    QCOMPARE(edit(*drawing, QStringLiteral("0"), [](LayerProperties& p) { p.lineweight = 50; }),
        QString());
    const QStringList notices = drawing->takeNotices();
    QCOMPARE(notices.size(), 3);
    QVERIFY2(notices.at(1).contains(QStringLiteral("“Wall”等")), qPrintable(notices.at(1)));
    QVERIFY(drawing->takeNotices().isEmpty());
    QCOMPARE(drawing->findLayer(QStringLiteral("Wall"))->properties.lineweight, -3);
    house.wallRecord = "70 64\n62 -5";
    QCOMPARE(saved(*drawing), house.bytes());
}

/// A file of entities alone gets the header and the tables that edits need.
void TestLayerEdits::madeTables()
{
    const QByteArray body = "0 SECTION\n2 ENTITIES\n0 LINE\n8 A\n0 ENDSEC\n0 EOF";
    const auto drawing = opened(tagged(body));
    drawing->beginStep(QStringLiteral("add"));
    LayerProperties properties = named(QStringLiteral("B"));
    properties.transparency = 90;
    const auto id = drawing->addLayer(properties);
    QVERIFY(id && drawing->setCurrentLayer(*id));
    drawing->commitStep();
    const QByteArray made =
        "0 SECTION\n2 HEADER\n9 $CLAYER\n8 B\n0 ENDSEC\n0 SECTION\n2 TABLES\n"
        "0 TABLE\n2 LAYER\n70      1\n0 LAYER\n2 B\n70      0\n62      7\n6 Continuous\n"
        "1001 AcCmTransparency\n1071  33554457\n0 ENDTAB\n0 TABLE\n2 APPID\n70      1\n"
        "0 APPID\n2 AcCmTransparency\n70      0\n0 ENDTAB\n0 ENDSEC\n";
    QCOMPARE(saved(*drawing), tagged(made + body));
    drawing->undo();
    QCOMPARE(saved(*drawing), tagged(body));
}

/// A seed that some record already has must not be given out again.
void TestLayerEdits::usedSeed()
{
    House house;
    house.seed = "11";
    const auto drawing = opened(house.bytes());
    drawing->beginStep(QStringLiteral("add"));
    QVERIFY(drawing->addLayer(named(QStringLiteral("B"))));
    drawing->commitStep();
    const QByteArray bytes = saved(*drawing);
    QVERIFY(bytes.contains("$HANDSEED\n  5\nB3\n"));
    QCOMPARE(bytes.count("  5\nB2\n"), 1);
}

void TestLayerEdits::steps()
{
    const auto drawing = opened(House().bytes());
    QSignalSpy changed(drawing.get(), &Drawing::layersChanged);
    QSignalSpy modified(drawing.get(), &Drawing::modifiedChanged);
    const LayerId wall = drawing->findLayer(QStringLiteral("Wall"))->id;
    const auto turn = [&](const QString& step, bool off) {
        drawing->beginStep(step);
        LayerProperties properties = drawing->layer(wall)->properties;
        properties.off = off;
        const bool isDone = drawing->setLayerProperties(wall, properties).has_value();
        drawing->commitStep();
        return isDone;
    };
    QVERIFY(!drawing->setLayerProperties(wall, named(QStringLiteral("X")))); // No step is open.
    QVERIFY(turn(QStringLiteral("one"), true));
    QVERIFY(turn(QStringLiteral("none"), true)); // Changes nothing: leaves no trace.
    QCOMPARE(drawing->undoName(), QStringLiteral("one"));
    QVERIFY(turn(QStringLiteral("two"), false));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(modified.count(), 1);

    saved(*drawing); // With two steps done.
    QVERIFY(!drawing->isModified());
    drawing->undo();
    QVERIFY(drawing->isModified() && drawing->layer(wall)->properties.off);
    QCOMPARE(drawing->redoName(), QStringLiteral("two"));
    drawing->redo();
    QVERIFY(!drawing->isModified() && !drawing->canRedo());
    drawing->undo();
    drawing->undo();
    QVERIFY(!drawing->canUndo());
    QVERIFY(turn(QStringLiteral("other"), true)); // The saved state cannot be reached any more.
    QVERIFY(drawing->isModified() && !drawing->canRedo());
    drawing->undo();
    QVERIFY(drawing->isModified());
    QCOMPARE(saved(*drawing), House().bytes());
    QVERIFY(!drawing->isModified());
}

void TestLayerEdits::rollback()
{
    const auto drawing = opened(House().bytes());
    QSignalSpy changed(drawing.get(), &Drawing::layersChanged);
    const Layer* wall = drawing->findLayer(QStringLiteral("Wall"));
    drawing->beginStep(QStringLiteral("step"));
    drawing->publishStep();
    QCOMPARE(changed.count(), 0);
    LayerProperties properties = wall->properties;
    properties.name = QStringLiteral("Wand");
    QVERIFY(drawing->setLayerProperties(wall->id, properties));
    const auto id = drawing->addLayer(named(QStringLiteral("New")));
    QVERIFY(drawing->isModified() && !drawing->save(m_folder.filePath("x.dxf")));
    drawing->publishStep();
    QCOMPARE(changed.count(), 1);
    drawing->rollbackStep();
    QCOMPARE(changed.count(), 2);
    // There and back: listeners saw it, but no step is left.
    drawing->beginStep(QStringLiteral("idle"));
    for (const bool off : {true, false}) {
        properties = wall->properties;
        properties.off = off;
        QVERIFY(drawing->setLayerProperties(wall->id, properties));
        drawing->publishStep();
    }
    drawing->commitStep();
    QCOMPARE(changed.count(), 5);
    QVERIFY(!drawing->isModified() && !drawing->inStep() && !drawing->canUndo());
    QVERIFY(!drawing->layer(*id) && !drawing->findLayer(QStringLiteral("Wand")));
    QCOMPARE(saved(*drawing), House().bytes());
}

/// Every layer renamed in one step: 20,000 of them, which takes for ever where each costs a pass.
void TestLayerEdits::manyRenames()
{
    constexpr int kCount = 20000;
    const auto drawingOf = [](const QByteArray& prefix) {
        QByteArray lines = "0 SECTION\n2 ENTITIES\n";
        for (int i = 0; i < kCount; ++i)
            lines += "0 LINE\n8 " + prefix + QByteArray::number(i) + "\n";
        return tagged(lines + "0 ENDSEC\n0 EOF");
    };
    const auto drawing = opened(drawingOf("A"));
    drawing->beginStep(QStringLiteral("rename"));
    for (const Layer& layer : drawing->layers()) {
        LayerProperties properties = layer.properties;
        properties.name.replace(QLatin1Char('A'), QLatin1Char('B'));
        QVERIFY(drawing->setLayerProperties(layer.id, properties));
    }
    drawing->commitStep();
    const QByteArray bytes = saved(*drawing);
    QVERIFY(bytes.endsWith(drawingOf("B")));
    QCOMPARE(opened(bytes)->layers().size(), size_t(kCount) + 1);
    drawing->undo();
    QCOMPARE(saved(*drawing), drawingOf("A"));
}

QTEST_GUILESS_MAIN(TestLayerEdits)
#include "tst_layeredits.moc"
