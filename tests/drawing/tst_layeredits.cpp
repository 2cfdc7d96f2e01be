#include "fixture.h"

#include <functional>

using namespace drawing;
using Change = std::function<void(LayerProperties&)>;
Q_DECLARE_METATYPE(Change)

namespace {

/// The house with this record of the wall, and with a record of the application that it names.
House wallAs(const QByteArray& record)
{
    House house;
    house.wallRecord = record;
    for (const QByteArray name : {"AcCmTransparency", "AcAecLayerStandard"}) {
        if (record.contains(name)) {
            house.appIds = "0 APPID | 5 100 | 330 9 | 100 AcDbSymbolTableRecord\n"
                           "100 AcDbRegAppTableRecord | 2 " +
                           name + "\n70 0\n";
            house.seed = "101";
        }
    }
    return house;
}

/// The house with one more layer; `groups` are those of its record from the name to the colours.
House withRecord(const QByteArray& groups, const QByteArray& current)
{
    House house;
    house.moreLayers = "0 LAYER\n5 100\n330 2\n100 AcDbSymbolTableRecord\n"
                       "100 AcDbLayerTableRecord\n2 " +
                       groups + "\n6 Continuous\n370 -3\n390 F\n347 47\n";
    house.seed = "101";
    house.current = current;
    return house;
}

House renamed(const QByteArray& name)
{
    House house;
    house.wall = name;
    house.current = name;
    return house;
}

template <class Value>
Change set(Value LayerProperties::*member, std::common_type_t<Value> value)
{
    return [member, value](LayerProperties& properties) { properties.*member = value; };
}

LayerProperties named(const QString& name)
{
    LayerProperties properties;
    properties.name = name;
    return properties;
}

} // namespace

/// Tests edits of layers by the bytes that they leave. All other bytes must stay the same.
class TestLayerEdits : public Fixture
{
    Q_OBJECT

private slots:
    void properties_data()
    {
        const Rows<House, Change, House> row("before", "change", "after");
        using P = LayerProperties;
        const House house;
        row("off", house, set(&P::off, true), wallAs("70 64\n62 -5"));
        row("on", wallAs("70 0\n62     -5"), set(&P::off, false), wallAs("70 0\n62      5"));
        row("off, odd colour kept", wallAs("62 256"), set(&P::off, true), wallAs("62 -256"));
        row("off, no colour", wallAs("70 0"), set(&P::off, true), wallAs("70 0\n62 -7"));
        row(
            "flags", house, [](P& p) { p.frozen = p.locked = p.frozenInNewViewports = true; },
            wallAs("70 71\n62 5"));
        row("thawed", wallAs("70 67\n62 5"), set(&P::frozen, false), wallAs("70 66\n62 5"));
        row("colour", house, set(&P::colorIndex, 30), wallAs("70 64\n62 30"));
        row("colour of an off layer", wallAs("62 -5"), set(&P::colorIndex, 6), wallAs("62 -6"));
        row("true colour", wallAs("70     64\n62      5\n6 Dashed"), set(&P::trueColor, 0xff),
            wallAs("70     64\n62      5\n420       255\n6 Dashed"));
        row(
            "true colour to index", wallAs("62 5\n420 255\n430 BOOK$SEA\n6 Dashed"),
            [](P& p) {
                p.trueColor.reset();
                p.colorIndex = 6;
            },
            wallAs("62 6\n6 Dashed"));
        row("linetype spelled as the table has it", house, set(&P::linetype, "DASHED"),
            wallAs("70 64\n62 5\n6 Dashed"));
        row("no plot", wallAs("62 5\n6 Dashed\n370 -3"), set(&P::plotted, false),
            wallAs("62 5\n6 Dashed\n290 0\n370 -3"));
        row("plot", wallAs("62 5\n290 0\n370 -3"), set(&P::plotted, true), wallAs("62 5\n370 -3"));
        row("lineweight", wallAs("70     0\n62     5\n370     50\n390 F"), set(&P::lineweight, 9),
            wallAs("70     0\n62     5\n370      9\n390 F"));
        row("lineweight before XDATA", wallAs("70 64\n62 5\n1001 ACAD\n1070 370"),
            set(&P::lineweight, 9), wallAs("70 64\n62 5\n370 9\n1001 ACAD\n1070 370"));
        row("transparency", house, set(&P::transparency, 50),
            wallAs("70 64\n62 5\n1001 AcCmTransparency\n1071 33554559"));
        row("transparency beside others",
            wallAs("62 5\n1001 ACAD\n1071 1\n1001 AcCmTransparency\n1071 33554559\n1001 ACAD"),
            set(&P::transparency, 0),
            wallAs("62 5\n1001 ACAD\n1071 1\n1001 AcCmTransparency\n1071 33554687\n1001 ACAD"));
        const QByteArray standard = "62 5\n1001 AcAecLayerStandard\n1000 \n1000 ";
        row("description", house, set(&P::description, "墙\n1"),
            wallAs("70 64\n" + standard + "\xc7\xbd 1"));
        row("description changed", wallAs(standard + "old"), set(&P::description, ""),
            wallAs(standard));
        const QByteArray endless = standard + QByteArray(256, 'd');
        row("frozen with a description beyond the limit", wallAs("70 64\n" + endless),
            set(&P::frozen, true), wallAs("70 65\n" + endless));
        row(
            "group of another program", wallAs("102 {OTHER\n62 1\n370 1\n102 }\n62 5"),
            [](P& p) {
                p.colorIndex = 6;
                p.lineweight = 9;
            },
            wallAs("102 {OTHER\n62 1\n370 1\n102 }\n62 6\n370 9"));
        row("rename", house, set(&P::name, "Wand"), renamed("Wand"));
        row("rename to Chinese", house, set(&P::name, "墙"), renamed("\xc7\xbd"));
        row("rename beyond the code page", house, set(&P::name, "\u0E01"), renamed("\\U+0E01"));
        row("change of letter case", house, set(&P::name, "WALL"), renamed("WALL"));
        row("blanks around a name", house, set(&P::name, "  Wand\t"), renamed("Wand"));
        House invalid = wallAs("62 5\n6 \xff\xfe\n1001 ACAD\n1000 \xc3");
        invalid.version = "AC1027";
        House off = invalid;
        off.wallRecord.replace("62 5", "62 -5");
        row("bytes the code page cannot read stay", invalid, set(&P::off, true), off);
        row("plot style is no edit", house, set(&P::plotStyle, "X"), house);
        row(
            "nothing", house, [](P&) {}, house);
    }

    void properties()
    {
        QFETCH(House, before);
        QFETCH(Change, change);
        QFETCH(House, after);
        for (const char* lineEnd : {"\n", "\r\n"}) {
            before.lineEnd = lineEnd;
            after.lineEnd = lineEnd;
            const auto drawing = opened(before.bytes());
            const bool differs = before.bytes() != after.bytes();
            QCOMPARE(edit(*drawing, "Wall", change), QString());
            QCOMPARE(drawing->isModified(), differs);
            QCOMPARE(drawing->canUndo(), differs);
            QCOMPARE(saved(*drawing), after.bytes());
            checkUndo(*drawing, before.bytes());
            const auto again = opened(after.bytes());
            for (size_t i = 0; i < drawing->layers().size(); ++i)
                QVERIFY(drawing->layers()[i].properties == again->layers()[i].properties);
        }
    }

    void refusals_data()
    {
        // The refusal contains the name of the row.
        const Rows<QString, Change> row("layer", "change");
        using P = LayerProperties;
        row("不能为空", "Wall", set(&P::name, "  "));
        row("超过 255 个字符", "Wall", set(&P::name, QString(256, 'a')));
        row("已有名为“Empty”", "Wall", set(&P::name, "eMPTY"));
        row("已有名为“Implicit”", "Wall", set(&P::name, "implicit"));
        row("图层“0”不能重命名", "0", set(&P::name, "Zero"));
        row("依赖外部参照", "plan|A", set(&P::name, "PlanA"));
        row("颜色索引 0", "Wall", set(&P::colorIndex, 0));
        row("颜色索引 256", "Wall", set(&P::colorIndex, 256));
        row("真彩色 1000000", "Wall", set(&P::trueColor, 0x1000000));
        row("没有线型“Dotted”", "Wall", set(&P::linetype, "Dotted"));
        row("没有线宽 51", "Wall", set(&P::lineweight, 51));
        row("透明度 91", "Wall", set(&P::transparency, 91));
        row("透明度 -1", "Wall", set(&P::transparency, -1));
        row("说明“dddd", "Wall", set(&P::description, QString(256, 'd')));
        for (const char c : QByteArray("\\<>/\":;?*|,=`\n"))
            row(qPrintable(QString("“a%1b”含有不能使用的字符").arg(c)), "Wall",
                set(&P::name, QString("a%1b").arg(c)));
    }

    void refusals()
    {
        QFETCH(QString, layer);
        QFETCH(Change, change);
        House house;
        house.moreLayers = "0 LAYER\n2 plan|A\n70 0\n";
        const auto drawing = opened(house.bytes());
        const QString text = edit(*drawing, layer, change);
        QVERIFY2(text.contains(QTest::currentDataTag()), qPrintable(text));
        QVERIFY(!drawing->isModified() && !drawing->canUndo());
        QCOMPARE(saved(*drawing), house.bytes());
    }

    void swappedNames()
    {
        const auto drawing = opened(House().bytes());
        const LayerId wall = id(*drawing, "Wall");
        const LayerId empty = id(*drawing, "Empty");
        drawing->beginStep("swap");
        for (const auto& [layer, name] : {std::pair(wall, "x"), {empty, "Wall"}, {wall, "Empty"}}) {
            LayerProperties properties = drawing->layer(layer)->properties;
            properties.name = name;
            QVERIFY(drawing->setLayerProperties(layer, properties));
        }
        drawing->commitStep();
        QCOMPARE(id(*drawing, "empty"), wall);
        QByteArray expected = House().bytes();
        expected.replace("\nWall\n", "\n@\n")
            .replace("\nEmpty\n", "\nWall\n")
            .replace("@", "Empty");
        QCOMPARE(saved(*drawing), expected);
        checkUndo(*drawing, House().bytes());
        drawing->undo();
        QCOMPARE(id(*drawing, "wall"), wall);
    }

    /// Defpoints is never plotted. When it is renamed, its record must say so explicitly.
    void neverPlotted()
    {
        const auto drawing = opened(renamed("Defpoints").bytes());
        const QString name = "Defpoints";
        QCOMPARE(edit(*drawing, name, set(&LayerProperties::plotted, true)), QString());
        QVERIFY(!drawing->isModified());
        QCOMPARE(edit(*drawing, name, set(&LayerProperties::name, "Wand")), QString());
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

    void added()
    {
        const House before;
        const auto drawing = opened(before.bytes());
        LayerProperties properties = named("新");
        properties.off = true;
        properties.locked = true;
        properties.trueColor = 0x010203;
        drawing->beginStep("add");
        const auto added = drawing->addLayer(properties);
        QVERIFY(added);
        QVERIFY(!drawing->addLayer(properties)); // Its name is now in use.
        QVERIFY(drawing->setCurrentLayer(*added));
        drawing->commitStep();

        const House after = withRecord("\xd0\xc2\n70 4\n62 -7\n420 66051", "\xd0\xc2");
        QCOMPARE(saved(*drawing), after.bytes());
        drawing->undo();
        QVERIFY(!drawing->layer(*added));
        QCOMPARE(id(*drawing, "Wall"), drawing->currentLayer());
        QCOMPARE(saved(*drawing), before.bytes());
        drawing->redo();
        QCOMPARE(drawing->layer(*added)->properties.name, "新");
        QCOMPARE(drawing->currentLayer(), *added);

        drawing->beginStep("away");
        QVERIFY(drawing->setCurrentLayer(id(*drawing, "Wall")));
        QVERIFY(drawing->removeLayer(*added));
        const auto next = drawing->addLayer(named("新"));
        QVERIFY(next && *next != *added);
        drawing->commitStep();
        QCOMPARE(opened(saved(*drawing))->layers().size(), size_t(5));
    }

    void removed()
    {
        const QByteArray before = House().bytes();
        const auto drawing = opened(before);
        QVERIFY(inStep(*drawing, [&] { return drawing->removeLayer(id(*drawing, "Empty")); }));
        QVERIFY(!drawing->findLayer("Empty"));

        Plan after = House().plan();
        after.layers.truncate(after.layers.indexOf("0 LAYER | 5 12"));
        after.blocks.replace("8 Empty", "8 0");
        after.entities.replace(" | 331 12", "");
        after.objects.truncate(after.objects.indexOf("0 DICTIONARY | 5 B0"));
        after.objects.replace(" | 330 12 | 90 9", "");
        QCOMPARE(saved(*drawing), House().filledIn(after.lines()));
        checkUndo(*drawing, before);
    }

    void removedFromOldViewport()
    {
        const QByteArray lines =
            "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n@0 ENDTAB\n0 ENDSEC\n"
            "0 SECTION\n2 ENTITIES\n0 VIEWPORT\n8 0\n1001 ACAD\n1000 MVIEW\n"
            "1002 {\n@@1002 }\n0 POINT\n8 0\n1001 X\n1003 %\n0 ENDSEC\n0 EOF";
        QByteArray before = lines;
        before.replace("@@", "1003 A\n1003 0\n")
            .replace("@", "0 LAYER\n2 A\n70 0\n")
            .replace("%", "A");
        QByteArray after = lines;
        after.replace("@@", "1003 0\n").replace("@", "").replace("%", "0").replace("70 1", "70 0");
        const auto drawing = opened(tagged(before));
        QVERIFY(inStep(*drawing, [&] { return drawing->removeLayer(id(*drawing, "A")); }));
        QCOMPARE(saved(*drawing), tagged(after));
    }

    void removalRefused()
    {
        House house;
        house.current = "Empty";
        const auto drawing = opened(house.bytes());
        drawing->beginStep("remove");
        for (const char* name : {"0", "Empty", "Wall", "Implicit"})
            QVERIFY(!drawing->removeLayer(id(*drawing, name)));
        QVERIFY(!drawing->removeLayer(LayerId::None));
        QVERIFY(!drawing->removeLayer(static_cast<LayerId>(99)));
        drawing->commitStep();
        QCOMPARE(saved(*drawing), house.bytes());
    }

    void implicitLayer()
    {
        const auto drawing = opened(House().bytes());
        const auto change = [](LayerProperties& p) {
            p.name = "Real";
            p.colorIndex = 1;
        };
        QCOMPARE(edit(*drawing, "implicit", change), QString());
        const QByteArray after = withRecord("Real\n70 0\n62 1", "Wall").bytes();
        QCOMPARE(saved(*drawing), QByteArray(after).replace("Implicit", "Real"));
    }

    void oldFormat()
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
        QCOMPARE(edit(*drawing, "Wall", change), QString());
        QCOMPARE(edit(*drawing, "0", set(&LayerProperties::lineweight, 50)), QString());
        const QStringList notices = drawing->takeNotices();
        QCOMPARE(notices.size(), 3);
        QVERIFY2(notices.at(1).contains("“Wall”等"), qPrintable(notices.at(1)));
        QVERIFY(drawing->takeNotices().isEmpty());
        QCOMPARE(drawing->findLayer("Wall")->properties.lineweight, -3);
        house.wallRecord = "70 64\n62 -5";
        QCOMPARE(saved(*drawing), house.bytes());
    }

    /// A file with nothing but entities gets the header and the tables that edits need.
    void madeTables()
    {
        const QByteArray body = "0 SECTION\n2 ENTITIES\n0 LINE\n8 A\n0 ENDSEC\n0 EOF";
        const auto drawing = opened(tagged(body));
        LayerProperties properties = named("B");
        properties.transparency = 90;
        QVERIFY(inStep(*drawing,
            [&] { return drawing->setCurrentLayer(drawing->addLayer(properties).value()); }));
        const QByteArray made =
            "0 SECTION\n2 HEADER\n9 $CLAYER\n8 B\n0 ENDSEC\n0 SECTION\n2 TABLES\n"
            "0 TABLE\n2 LAYER\n70      1\n0 LAYER\n2 B\n70      0\n62      7\n6 Continuous\n"
            "1001 AcCmTransparency\n1071  33554457\n0 ENDTAB\n0 TABLE\n2 APPID\n70      1\n"
            "0 APPID\n2 AcCmTransparency\n70      0\n0 ENDTAB\n0 ENDSEC\n";
        QCOMPARE(saved(*drawing), tagged(made + body));
        checkUndo(*drawing, tagged(body));
    }

    /// A handle seed that a record already uses must not be given out again.
    void usedSeed()
    {
        House house;
        house.seed = "11";
        const auto drawing = opened(house.bytes());
        QVERIFY(inStep(*drawing, [&] { return drawing->addLayer(named("B")); }));
        const QByteArray bytes = saved(*drawing);
        QVERIFY(bytes.contains("$HANDSEED\n  5\nB3\n"));
        QCOMPARE(bytes.count("  5\nB2\n"), 1);
    }

    void steps()
    {
        const auto drawing = opened(House().bytes());
        QSignalSpy changed(drawing.get(), &Drawing::layersChanged);
        QSignalSpy modified(drawing.get(), &Drawing::modifiedChanged);
        const LayerId wall = drawing->findLayer("Wall")->id;
        const auto turn = [&](const QString& step, bool off) {
            drawing->beginStep(step);
            LayerProperties properties = drawing->layer(wall)->properties;
            properties.off = off;
            const bool isDone = drawing->setLayerProperties(wall, properties).has_value();
            drawing->commitStep();
            return isDone;
        };
        QVERIFY(!drawing->setLayerProperties(wall, named("X"))); // No step is open.
        QVERIFY(turn("one", true));
        QVERIFY(turn("none", true)); // It changes nothing and is not recorded.
        QCOMPARE(drawing->undoName(), "one");
        QVERIFY(turn("two", false));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(modified.count(), 1);

        saved(*drawing); // Two steps have been done.
        QVERIFY(!drawing->isModified());
        drawing->undo();
        QVERIFY(drawing->isModified() && drawing->layer(wall)->properties.off);
        QCOMPARE(drawing->redoName(), "two");
        drawing->redo();
        QVERIFY(!drawing->isModified() && !drawing->canRedo());
        drawing->undo();
        drawing->undo();
        QVERIFY(!drawing->canUndo());
        QVERIFY(turn("other", true)); // The saved state is no longer reachable.
        QVERIFY(drawing->isModified() && !drawing->canRedo());
        drawing->undo();
        QVERIFY(drawing->isModified());
        QCOMPARE(saved(*drawing), House().bytes());
        QVERIFY(!drawing->isModified());
    }

    void rollback()
    {
        const auto drawing = opened(House().bytes());
        QSignalSpy changed(drawing.get(), &Drawing::layersChanged);
        const Layer* wall = drawing->findLayer("Wall");
        drawing->beginStep("step");
        drawing->publishStep();
        QCOMPARE(changed.count(), 0);
        LayerProperties properties = wall->properties;
        properties.name = "Wand";
        QVERIFY(drawing->setLayerProperties(wall->id, properties));
        const auto id = drawing->addLayer(named("New"));
        QVERIFY(drawing->isModified() && !drawing->save(inFolder("x.dxf")));
        drawing->publishStep();
        QCOMPARE(changed.count(), 1);
        drawing->rollbackStep();
        QCOMPARE(changed.count(), 2);
        // The change is reverted within the step: listeners are told, but no step is recorded.
        drawing->beginStep("idle");
        for (const bool off : {true, false}) {
            properties = wall->properties;
            properties.off = off;
            QVERIFY(drawing->setLayerProperties(wall->id, properties));
            drawing->publishStep();
        }
        drawing->commitStep();
        QCOMPARE(changed.count(), 5);
        QVERIFY(!drawing->isModified() && !drawing->inStep() && !drawing->canUndo());
        QVERIFY(!drawing->layer(*id) && !drawing->findLayer("Wand"));
        QCOMPARE(saved(*drawing), House().bytes());
    }

    /// Renames 20,000 layers in one step, which takes very long if each rename needs a pass of its
    /// own.
    void manyRenames()
    {
        constexpr int kCount = 20000;
        const auto drawingOf = [](const QByteArray& prefix) {
            QByteArray lines = "0 SECTION\n2 ENTITIES\n";
            for (int i = 0; i < kCount; ++i)
                lines += "0 LINE\n8 " + prefix + QByteArray::number(i) + "\n";
            return tagged(lines + "0 ENDSEC\n0 EOF");
        };
        const auto drawing = opened(drawingOf("A"));
        drawing->beginStep("rename");
        for (const Layer& layer : drawing->layers()) {
            LayerProperties properties = layer.properties;
            properties.name.replace('A', 'B');
            QVERIFY(drawing->setLayerProperties(layer.id, properties));
        }
        drawing->commitStep();
        const QByteArray bytes = saved(*drawing);
        QVERIFY(bytes.endsWith(drawingOf("B")));
        QCOMPARE(opened(bytes)->layers().size(), size_t(kCount) + 1);
        drawing->undo();
        QCOMPARE(saved(*drawing), drawingOf("A"));
    }
};

QTEST_GUILESS_MAIN(TestLayerEdits)
#include "tst_layeredits.moc"
