#include "fixture.h"
#include "geometry/geometry.h"
#include "layerrenaming.h"
#include "translation/layertranslation.h"
#include "translation/translationlog.h"

using namespace drawing;

namespace {

/// An added record with all its groups.
QByteArray newRecord(const QByteArray& handle, const QByteArray& name, const QByteArray& color)
{
    return "0 LAYER\n5 " + handle +
           "\n330 2\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 " + name +
           "\n70 0\n62 " + color + "\n6 Continuous\n370 -3\n";
}

TargetLayer target(const char* name, int color = 3)
{
    TargetLayer layer;
    layer.name = QString::fromUtf8(name);
    layer.colorIndex = color;
    return layer;
}

LayerMapping mapping(const char* from, const char* to, int color = 3)
{
    return {QString::fromUtf8(from), target(to, color)};
}

TranslationOptions only(bool TranslationOptions::*option)
{
    TranslationOptions options;
    options.*option = true;
    return options;
}

constexpr char kLongName[] = "A-NAME-OF-MORE-THAN-31-CHARACTERS";
using Mappings = std::vector<LayerMapping>;

} // namespace

Q_DECLARE_METATYPE(NameClash)
Q_DECLARE_METATYPE(LayerMapping)
Q_DECLARE_METATYPE(Mappings)
Q_DECLARE_METATYPE(TranslationOptions)

/// Tests translations to a standard by the bytes that they leave and by their reports.
class TestTranslation : public Fixture
{
    Q_OBJECT

private slots:
    void renames_data()
    {
        // Pairs of an old and a new name; then the resulting names of the layers A, B, C and the
        // long one.
        const Rows<QStringList, NameClash, QStringList, int> row(
            "wanted", "clash", "after", "refused");
        const QString old = kLongName;
        const auto refusing = [&](const char* name, const QStringList& wanted,
                                  const QStringList& after, int refused) {
            row(name, wanted, NameClash::Refuse, after + QStringList{old}, refused);
        };
        refusing("letter case alone", {"A>a"}, {"a", "B", "C"}, 0);
        refusing("one layer twice", {"A>x", "A>y"}, {"x", "B", "C"}, 0);
        refusing("chain", {"A>B", "B>x"}, {"B", "x", "C"}, 0);
        refusing("chain the other way", {"B>x", "A> B "}, {"B", "x", "C"}, 0);
        refusing("circle", {"A>B", "B>C", "C>a"}, {"B", "C", "a"}, 0);
        refusing("circle and one before it", {"C>B", "A>B", "B>A"}, {"B", "A", "C"}, 1);
        refusing("circle of one refused", {"0>B", "B>0"}, {"A", "B", "C"}, 2);
        refusing("circle that breaks later", {"B>A", "A>0", "0>B"}, {"A", "B", "C"}, 3);
        refusing("circle through a name too long", {"A>" + old, old + ">A"}, {"A", "B", "C"}, 2);
        refusing("behind one refused", {"A>B", "B>a*b"}, {"A", "B", "C"}, 2);
        refusing("two into a new one", {"A>x", "B>x"}, {"x", "B", "C"}, 1);
        refusing("two into one that leaves", {"A>C", "B>C", "C>x"}, {"C", "B", "x"}, 1);
        const auto merging = [&](const char* name, const QStringList& wanted,
                                 const QStringList& after) {
            row(name, wanted, NameClash::Merge, after + QStringList{old}, 0);
        };
        merging("a clash, merged", {"A>B"}, {"", "B", "C"});
        merging("two into a new one, merged", {"A>x", "B>x"}, {"x", "", "C"});
        merging("two into one that leaves, merged", {"A>C", "B>C", "C>x"}, {"C", "", "x"});
        merging("behind a circle, merged", {"A>B", "B>C", "C>B"}, {"", "C", "B"});
    }

    /// The file's version allows 31 characters, and the file has a longer name.
    void renames()
    {
        QFETCH(QStringList, wanted);
        QFETCH(NameClash, clash);
        QFETCH(int, refused);
        Yard yard;
        yard.version = "AC1009";
        yard.setLayers(layerRecord("11", "A", "1") + layerRecord("12", "B", "2") +
                       layerRecord("14", "C", "3") + layerRecord("15", kLongName, "4"));
        const auto drawing = opened(yard.bytes());
        const QByteArray before = saved(*drawing);
        std::vector<LayerId> ids;
        for (const char* name : {"A", "B", "C", kLongName})
            ids.push_back(id(*drawing, name));
        std::vector<LayerRename> renames;
        for (const QString& rename : wanted)
            renames.push_back({id(*drawing, rename.section('>', 0, 0)), rename.section('>', 1)});
        const auto done = inStep(*drawing, [&] { return renameLayers(*drawing, renames, clash); });
        for (const LayerRenamed& renamed : done) {
            refused -= renamed.outcome == LayerRenamed::Outcome::Refused ? 1 : 0;
            // The temporary name must not appear.
            QVERIFY2(!renamed.cause.contains("X$"), qPrintable(renamed.cause));
        }
        QStringList after;
        for (const LayerId layer : ids) {
            const Layer* const found = drawing->layer(layer);
            after += found ? found->properties.name : QString("");
        }
        QTEST(after, "after");
        QCOMPARE(refused, 0);
        checkUndo(*drawing, before);
    }

    void translated_data()
    {
        const Rows<Yard, Mappings, TranslationOptions, Yard, int> row(
            "before", "mappings", "options", "after", "moved");
        const TranslationOptions plain;
        Yard before;
        before.blocks = "0 BLOCK\n8 Wall\n2 *Model_Space\n0 ENDBLK\n8 Wall\n";
        before.entities = "0 POLYLINE\n8 Wall\n0 VERTEX\n8 wALL\n0 SEQEND\n8 Keep\n"
                          "0 VIEWPORT\n8 0\n331 11\n0 LINE\n8 Keep\n";
        Yard after = before;
        after.setLayers(layerRecord("11", "W-1", "3") + Yard::keep());
        after.blocks.replace("8 Wall", "8 W-1");
        after.entities.replace("8 Wall", "8 W-1").replace("8 wALL", "8 W-1");
        row("what names a source that goes whole names the new layer", before,
            {mapping("WALL", "W-1")}, plain, after, 1);

        before = after = {};
        before.entities = "0 LINE\n8 Wall\n0 LINE\n8 Keep\n";
        after.setLayers(layerRecord("12", "Keep", "3"));
        after.entities = "0 LINE\n8 Keep\n0 LINE\n8 Keep\n";
        row("an emptied source goes, the target changes", before, {mapping("Wall", "keep")}, plain,
            after, 1);

        after = {};
        after.setLayers(layerRecord("11", "Wall", "3") + layerRecord("12", "Keep", "4"));
        after.entities = "0 LINE\n8 Keep\n0 LINE\n8 Wall\n";
        row("two layers change places", before,
            {mapping("Wall", "Keep", 4), mapping("Keep", "Wall")}, plain, after, 2);

        after.setLayers(layerRecord("12", "Keep", "3"));
        after.layers += newRecord("100", "New", "4");
        after.seed = "101";
        after.entities = "0 LINE\n8 Keep\n0 LINE\n8 New\n";
        row("a source that is a target too stays", before,
            {mapping("Wall", "Keep"), mapping("Keep", "New", 4)}, plain, after, 2);

        after = {};
        after.setLayers(layerRecord("11", "New", "3"));
        after.entities = "0 LINE\n8 New\n0 LINE\n8 New\n";
        row("two sources make one layer", before,
            {mapping("Wall", "New"), mapping("Keep", "NEW", 5)}, plain, after, 2);

        before = after = {};
        before.blocks = "0 BLOCK\n8 Wall\n2 DOOR\n0 POLYLINE\n8 Keep\n0 VERTEX\n8 Wall\n0 SEQEND\n"
                        "8 Keep\n0 ENDBLK\n8 Wall\n0 BLOCK\n8 0\n2 *Paper_Space0\n0 LINE\n8 Wall\n"
                        "0 ENDBLK\n8 0\n";
        before.entities = "0 INSERT\n8 Wall\n2 DOOR\n";
        before.layers.replace("70 0\n62 1", "70 1\n62 1");
        after = before;
        after.layers += newRecord("100", "New", "3").replace("70 0", "70 1");
        after.seed = "101";
        after.blocks.replace("0 LINE\n8 Wall", "0 LINE\n8 New");
        after.entities.replace("Wall", "New");
        row("blocks keep their contents, layouts do not; frozen stays frozen", before,
            {mapping("Wall", "New")}, plain, after, 2);
        after = before;
        after.layers.replace("Wall", "New").replace("62 1", "62 3");
        after.blocks.replace("Wall", "New");
        after.entities.replace("Wall", "New");
        row("blocks too, where asked", before, {mapping("Wall", "New")},
            only(&TranslationOptions::inBlocks), after, 2);

        before = after = {};
        before.current = "Wall";
        after.current = "Keep";
        after.setLayers(layerRecord("12", "Keep", "3"));
        row("the current layer goes over to the target", before, {mapping("Wall", "Keep")}, plain,
            after, 0);
        before.setLayers(Yard::wall() + layerRecord("12", "Keep", "2", "1"));
        before.entities = "0 LINE\n8 Wall\n";
        after = before;
        after.setLayers(Yard::wall() + layerRecord("12", "Keep", "3", "1"));
        after.entities = "0 LINE\n8 Keep\n";
        row("but not to a frozen one", before, {mapping("Wall", "Keep")}, plain, after, 1);

        before = after = {};
        before.entities = "0 LINE\n62 1\n0 LINE\n8 0\n";
        after.entities = "0 LINE\n8 Keep\n62 1\n0 LINE\n8 Keep\n";
        after.setLayers(Yard::wall() + layerRecord("12", "Keep", "3"));
        after.current = "Keep";
        row("layer 0 stays, also for entities that name none", before, {mapping("0", "Keep")},
            plain, after, 2);

        before = after = {};
        before.entities = after.entities = "0 LINE\n8 Wall\n";
        after.setLayers(layerRecord("11", "Wall", "9") + Yard::keep());
        row("the same name changes the properties alone", before, {mapping("Wall", "WALL", 9)},
            plain, after, 1);
    }

    void translated()
    {
        QFETCH(Yard, before);
        QFETCH(Mappings, mappings);
        QFETCH(TranslationOptions, options);
        QFETCH(Yard, after);
        const auto drawing = opened(before.bytes());
        const TranslationReport report = translate(*drawing, mappings, options);
        QCOMPARE(report.appliedCount(), static_cast<int>(mappings.size()));
        QTEST(report.translatedCount(), "moved");
        QCOMPARE(saved(*drawing), after.bytes());
        checkUndo(*drawing, before.bytes());
        drawing->undo();
        QVERIFY(!drawing->canUndo());
    }

    void byLayer_data()
    {
        const Rows<TranslationOptions, QByteArray, QByteArray> row("options", "before", "after");
        const auto color = only(&TranslationOptions::colorByLayer);
        const auto linetype = only(&TranslationOptions::linetypeByLayer);
        const auto transparency = only(&TranslationOptions::transparencyByLayer);
        const QByteArray own = "0 MTEXT\n100 AcDbEntity\n8 Wall\n62 5\n420 255\n430 RAL 5010\n"
                               "6 Dashed\n440 33554559\n";
        // Other subclasses, embedded objects and applications use the same codes for other
        // purposes.
        const QByteArray foreign = "100 AcDbMText\n62 8\n6 x\n440 9\n101 Embedded Object\n62 3\n";
        row("colour", color, own + foreign,
            "0 MTEXT\n100 AcDbEntity\n8 Wall\n6 Dashed\n440 33554559\n" + foreign);
        row("linetype", linetype, own + foreign,
            QByteArray(own).replace("6 Dashed\n", "") + foreign);
        row("transparency", transparency, own + foreign, own.left(own.indexOf("440 3")) + foreign);
        row("without markers", color, "0 LINE\n8 Wall\n62 0\n39 2\n1001 ACAD\n1070 62\n",
            "0 LINE\n8 Wall\n39 2\n1001 ACAD\n1070 62\n");
        for (const char* kept : {"0 LINE\n8 Wall\n62 256\n", "0 LINE\n8 Keep\n62 1\n"})
            row(kept, color, kept, kept);
    }

    void byLayer()
    {
        QFETCH(TranslationOptions, options);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        Yard yard;
        yard.entities = before;
        const auto drawing = opened(yard.bytes());
        translate(*drawing, {mapping("Wall", "Wall", 1)}, options);
        yard.entities = after;
        QCOMPARE(saved(*drawing), yard.bytes());
    }

    void leftOut_data()
    {
        const Rows<LayerMapping, QString> row("given", "cause");
        row("no such source", mapping("Gone", "New"), "图形中没有图层“Gone”。");
        row("mapped before", mapping("wall", "New"), "图层“Wall”已在前面的映射中。");
        row("source of a reference", mapping("plan|X", "New"),
            "图层“plan|X”依赖外部参照，不能转换。");
        row("target of a reference", mapping("Keep", "plan|x"), "目标图层“plan|X”依赖外部参照。");
        row("name of 256", mapping("Keep", QByteArray(256, 'n').constData()),
            "图层名“nnnnnnnnnnnnnnnnnnnn…”超过 255 个字符。");
        row("name of 255", mapping("Keep", QByteArray(255, 'n').constData()), "");
        row("no name", mapping("Keep", ""), "图层名不能为空。");
        row("colour out of range", mapping("Keep", "New", 256), "图层“New”：没有颜色索引 256。");
    }

    void leftOut()
    {
        QFETCH(LayerMapping, given);
        QFETCH(QString, cause);
        Yard yard;
        yard.entities = "0 LINE\n8 Wall\n0 LINE\n8 Keep\n";
        const auto drawing = opened(yard.bytes());
        const TranslationReport report = translate(
            *drawing, {mapping("Wall", "First"), given}, only(&TranslationOptions::inBlocks));
        QCOMPARE(report.mappings.size(), size_t(2));
        QVERIFY(report.mappings[0].isApplied());
        QCOMPARE(report.mappings[1].cause, cause);
        QCOMPARE(report.mappings[1].isApplied(), cause.isEmpty());
        QCOMPARE(report.entities, 2);
        QVERIFY(drawing->findLayer("First"));
        QCOMPARE(drawing->findLayer("Keep") == nullptr, cause.isEmpty());
        QVERIFY(!drawing->findLayer("New"));

        const QByteArray before = saved(*drawing);
        QVERIFY(!translateLayers(*drawing, {mapping("Keep", "0")}, {})); // No step is open.
        QCOMPARE(saved(*drawing), before);
    }

    void linetypesComeAlong_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QString> row(
            "version", "styleRecord", "expected", "notice");
        const QByteArray style = "0 STYLE\n5 51\n2 Gas\n70 0\n40 0\n3 txt\n";
        const QByteArray head = "2 GAS\n70 0\n3 --GAS--\n72 65\n73 2\n40 1.5\n49 1.0\n";
        row("with the style of its letters", "AC1018", style,
            head + "74 0\n49 -0.5\n74 2\n75 0\n340 101\n46 0.1\n9 G=6\n", "");
        row("dashes alone, where the style is nowhere", "AC1018", "",
            head + "74 0\n49 -0.5\n74 0\n", "找不到");
        row("dashes alone, where the format has no more", "AC1009", style,
            head + "49 -0.5\n0 ENDTAB\n", "不能保存线型中的文字和形");
    }

    void linetypesComeAlong()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, styleRecord);
        QFETCH(QByteArray, expected);
        QFETCH(QString, notice);
        QByteArray source = Yard().bytes();
        source.replace(tagged("2 Dashed\n"),
            tagged(
                "2 GAS\n70 0\n3 --GAS--\n72 65\n73 2\n40 1.5\n49 1.0\n74 0\n49 -0.5\n74 2\n75 0\n"
                "340 51\n46 0.1\n9 G=6\n1001 ACAD\n1070 49\n"));
        source.replace(tagged("0 TABLE\n2 LAYER\n"),
            tagged("0 TABLE\n2 STYLE\n5 5\n70 1\n" + styleRecord + "0 ENDTAB\n0 TABLE\n2 LAYER\n"));
        const auto standard =
            opened(source.replace(tagged("62 2\n6 Continuous\n"), tagged("62 2\n6 GAS\n")));
        const auto drawing = opened(Yard().bytes().replace("AC1018", version));
        const auto targets = targetLayers(*standard);
        QCOMPARE(targets.at(2).linetype, "GAS");
        const TranslationReport report = translate(*drawing, {{"Wall", targets.at(2)}});
        QCOMPARE(drawing->findLayer("Keep")->properties.linetype, targets[2].linetype);
        QCOMPARE(drawing->linetypes().last(), "GAS");
        const QByteArray after = saved(*drawing);
        QVERIFY2(after.contains(tagged(expected)), after.constData());
        QCOMPARE(after.contains(tagged("2 Gas\n70 0\n40 0\n3 txt\n")), notice.isEmpty());
        QVERIFY(report.notices.join(QString()).contains(notice));
        QCOMPARE(report.notices.isEmpty(), notice.isEmpty());
        QVERIFY(Drawing::open(drawing->path()));

        TargetLayer unknown = target("Keep");
        unknown.linetype = "Nowhere";
        const TranslationReport second = translate(*drawing, {{"Keep", unknown}});
        QVERIFY(second.mappings.at(0).notices.join(QString()).contains("Nowhere"));
    }

    void sameNamed()
    {
        const auto drawing = opened(Yard().bytes());
        const auto mappings = sameNamedMappings(*drawing,
            {target("KEEP", 5), target("wall"), target("keep", 6), target("plan|X")},
            {mapping("WALL", "Other")});
        QCOMPARE(mappings.size(), size_t(1));
        QCOMPARE(mappings[0].from, "Keep");
        QCOMPARE(mappings[0].to.colorIndex, 5);
    }

    /// The canvas reads the original file, which still contains the colour.
    void colorFollowsOnTheCanvas()
    {
        Yard yard;
        yard.entities = "0 LINE\n8 Wall\n62 5\n10 0\n20 0\n11 1\n21 1\n";
        const auto drawing = opened(yard.bytes());
        const auto isByLayer = [&drawing] {
            const auto geometry = buildGeometry(*drawing);
            return geometry->groups.at(0).style.color.source == GeometryColor::Source::Layer;
        };
        QVERIFY(!isByLayer());
        translate(*drawing, {mapping("Wall", "Keep")}, only(&TranslationOptions::colorByLayer));
        QVERIFY(isByLayer());
        drawing->undo();
        QVERIFY(!isByLayer());
        drawing->redo();
        QVERIFY(isByLayer());
    }

    void logSaysAll()
    {
        Yard yard;
        yard.blocks = "0 BLOCK\n8 0\n2 DOOR\n0 LINE\n8 Keep\n0 ENDBLK\n8 0\n";
        yard.entities = "0 LINE\n8 Wall\n0 LINE\n8 Wall\n0 LINE\n8 0\n";
        const auto drawing = opened(yard.bytes());
        const auto options = only(&TranslationOptions::linetypeByLayer);
        const TranslationReport report = translate(*drawing,
            {mapping("Wall", "New"), mapping("Keep", "Keep", 2), mapping("Gone", "New")}, options);
        const QString path = inFolder("plan.v2.dxf");
        QCOMPARE(translationLogPath(path), inFolder("plan.v2.log"));
        QVERIFY(
            writeTranslationLog(translationLogPath(path), translationLog(path, report, options)));
        const QString log = QString::fromUtf8(contentOf(translationLogPath(path)));
        for (const char* line : {"plan.v2.dxf", "选项：强制对象线型为 ByLayer\n",
                 "映射：2 条已执行，1 条未执行；4 个对象中转换了 2 个。",
                 "“Wall” → “New”：2 个对象，目标图层已新建，原图层已删除。\n",
                 "“Keep” → “Keep”：0 个对象，目标图层的特性不变，块中的 1 个对象未转换。\n",
                 "“Gone” → “New”：未执行。图形中没有图层“Gone”。\n"})
            QVERIFY2(log.contains(QString::fromUtf8(line)), qPrintable(log));
        QVERIFY(!writeTranslationLog(inFolder("gone/plan.log"), log));
    }

private:
    static TranslationReport translate(Drawing& drawing, const std::vector<LayerMapping>& mappings,
        const TranslationOptions& options = {})
    {
        const auto report =
            inStep(drawing, [&] { return translateLayers(drawing, mappings, options); });
        return report ? *report : TranslationReport{{}, {report.error().text}, -1};
    }
};

QTEST_GUILESS_MAIN(TestTranslation)
#include "tst_translation.moc"
