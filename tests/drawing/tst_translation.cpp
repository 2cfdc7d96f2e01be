#include "fixture.h"
#include "geometry.h"
#include "layertranslation.h"
#include "translationlog.h"

using namespace drawing;

namespace {

/// The parts of a drawing, as lines of a group code and a value.
struct Site
{
    QByteArray layers = "0 LAYER\n5 11\n2 Wall\n70 0\n62 1\n6 Continuous\n"
                        "0 LAYER\n5 12\n2 Keep\n70 0\n62 2\n6 Continuous\n";
    QByteArray added; ///< Layers behind all others.
    QByteArray entities;
    QByteArray blocks;
    QByteArray current = "0";
    QByteArray seed = "100";
    QByteArray count = "4";

    QByteArray bytes() const
    {
        return tagged("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1018\n9 $CLAYER\n8 " + current +
                      "\n9 $HANDSEED\n5 " + seed +
                      "\n0 ENDSEC\n0 SECTION\n2 TABLES\n0 TABLE\n2 LTYPE\n5 3\n70 2\n"
                      "0 LTYPE\n5 30\n2 Continuous\n0 LTYPE\n5 31\n2 Dashed\n0 ENDTAB\n"
                      "0 TABLE\n2 LAYER\n5 2\n70 " +
                      count + "\n0 LAYER\n5 10\n2 0\n70 0\n62 7\n6 Continuous\n" + layers +
                      "0 LAYER\n5 13\n2 plan|X\n70 16\n62 2\n6 Continuous\n" + added +
                      "0 ENDTAB\n0 ENDSEC\n0 SECTION\n2 BLOCKS\n" + blocks +
                      "0 ENDSEC\n0 SECTION\n2 ENTITIES\n" + entities + "0 ENDSEC\n0 EOF\n");
    }
};

QByteArray record(const char* handle, const QByteArray& name, const QByteArray& color,
    const QByteArray& flags = "0")
{
    return "0 LAYER\n5 " + QByteArray(handle) + "\n2 " + name + "\n70 " + flags + "\n62 " + color +
           "\n6 Continuous\n";
}

/// A record that was added: it has all its groups.
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

TranslationOptions inBlocks()
{
    TranslationOptions options;
    options.inBlocks = true;
    return options;
}

const QByteArray kWall = record("11", "Wall", "1");
const QByteArray kKeep = record("12", "Keep", "2");

} // namespace

Q_DECLARE_METATYPE(Site)
Q_DECLARE_METATYPE(LayerMapping)
Q_DECLARE_METATYPE(std::vector<LayerMapping>)
Q_DECLARE_METATYPE(TranslationOptions)

/// Layers brought to a standard, told by the bytes that are left and by what is said of them.
class TestTranslation : public Fixture
{
    Q_OBJECT

private slots:
    void translated_data();
    void translated();
    void byLayer_data();
    void byLayer();
    void leftOut_data();
    void leftOut();
    void linetypesComeAlong_data();
    void linetypesComeAlong();
    void sameNamed();
    void colorFollowsOnTheCanvas();
    void logSaysAll();

private:
    static TranslationReport translate(Drawing& drawing, const std::vector<LayerMapping>& mappings,
        const TranslationOptions& options = {})
    {
        drawing.beginStep(QStringLiteral("translate"));
        auto report = translateLayers(drawing, mappings, options);
        drawing.commitStep();
        return report ? *report : TranslationReport{{}, {report.error().text}, -1};
    }
};

void TestTranslation::translated_data()
{
    QTest::addColumn<Site>("before");
    QTest::addColumn<std::vector<LayerMapping>>("mappings");
    QTest::addColumn<TranslationOptions>("options");
    QTest::addColumn<Site>("after");
    QTest::addColumn<int>("moved");
    using Mappings = std::vector<LayerMapping>;
    const auto row = [](const char* name, const Site& before, const Mappings& mappings,
                         const TranslationOptions& options, const Site& after, int moved) {
        QTest::newRow(name) << before << mappings << options << after << moved;
    };
    const TranslationOptions plain;
    Site before;
    before.blocks = "0 BLOCK\n8 Wall\n2 *Model_Space\n0 ENDBLK\n8 Wall\n";
    before.entities = "0 POLYLINE\n8 Wall\n0 VERTEX\n8 wALL\n0 SEQEND\n8 Keep\n"
                      "0 VIEWPORT\n8 0\n331 11\n0 LINE\n8 Keep\n";
    Site after = before;
    after.layers = record("11", "W-1", "3") + kKeep;
    after.blocks.replace("8 Wall", "8 W-1");
    after.entities.replace("8 Wall", "8 W-1").replace("8 wALL", "8 W-1");
    row("what names a source that goes whole names the new layer", before, {mapping("WALL", "W-1")},
        plain, after, 1);

    before = after = {};
    before.entities = "0 LINE\n8 Wall\n0 LINE\n8 Keep\n";
    after.layers = kKeep;
    after.layers.replace("62 2", "62 3");
    after.count = "3";
    after.entities = "0 LINE\n8 Keep\n0 LINE\n8 Keep\n";
    row("an emptied source goes, the target changes", before, {mapping("Wall", "keep")}, plain,
        after, 1);

    after = {};
    after.layers = record("11", "Wall", "3") + record("12", "Keep", "4");
    after.entities = "0 LINE\n8 Keep\n0 LINE\n8 Wall\n";
    row("two layers change places", before, {mapping("Wall", "Keep", 4), mapping("Keep", "Wall")},
        plain, after, 2);

    after.layers = record("12", "Keep", "3");
    after.added = newRecord("100", "New", "4");
    after.seed = "101";
    after.entities = "0 LINE\n8 Keep\n0 LINE\n8 New\n";
    row("a source that is a target too stays", before,
        {mapping("Wall", "Keep"), mapping("Keep", "New", 4)}, plain, after, 2);

    after = {};
    after.layers = record("11", "New", "3");
    after.count = "3";
    after.entities = "0 LINE\n8 New\n0 LINE\n8 New\n";
    row("two sources make one layer", before, {mapping("Wall", "New"), mapping("Keep", "NEW", 5)},
        plain, after, 2);

    before = after = {};
    before.blocks = "0 BLOCK\n8 Wall\n2 DOOR\n0 POLYLINE\n8 Keep\n0 VERTEX\n8 Wall\n0 SEQEND\n"
                    "8 Keep\n0 ENDBLK\n8 Wall\n0 BLOCK\n8 0\n2 *Paper_Space0\n0 LINE\n8 Wall\n"
                    "0 ENDBLK\n8 0\n";
    before.entities = "0 INSERT\n8 Wall\n2 DOOR\n";
    before.layers.replace("70 0\n62 1", "70 1\n62 1");
    after = before;
    after.added = newRecord("100", "New", "3").replace("70 0", "70 1");
    after.seed = "101";
    after.count = "5";
    after.blocks.replace("0 LINE\n8 Wall", "0 LINE\n8 New");
    after.entities.replace("Wall", "New");
    row("blocks keep their contents, layouts do not; frozen stays frozen", before,
        {mapping("Wall", "New")}, plain, after, 2);
    after = before;
    after.layers.replace("Wall", "New").replace("62 1", "62 3");
    after.blocks.replace("Wall", "New");
    after.entities.replace("Wall", "New");
    row("blocks too, where asked", before, {mapping("Wall", "New")}, inBlocks(), after, 2);

    before = after = {};
    before.current = "Wall";
    after.current = "Keep";
    after.layers = record("12", "Keep", "3");
    after.count = "3";
    row("the current layer goes over to the target", before, {mapping("Wall", "Keep")}, plain,
        after, 0);
    before.layers = kWall + record("12", "Keep", "2", "1");
    before.entities = "0 LINE\n8 Wall\n";
    after = before;
    after.layers = kWall + record("12", "Keep", "3", "1");
    after.entities = "0 LINE\n8 Keep\n";
    row("but not to a frozen one", before, {mapping("Wall", "Keep")}, plain, after, 1);

    before = after = {};
    before.entities = "0 LINE\n62 1\n0 LINE\n8 0\n";
    after.entities = "0 LINE\n8 Keep\n62 1\n0 LINE\n8 Keep\n";
    after.layers = kWall + record("12", "Keep", "3");
    after.current = "Keep";
    row("layer 0 stays, also for entities that name none", before, {mapping("0", "Keep")}, plain,
        after, 2);

    before = after = {};
    before.entities = after.entities = "0 LINE\n8 Wall\n";
    after.layers = record("11", "Wall", "9") + kKeep;
    row("the same name changes the properties alone", before, {mapping("Wall", "WALL", 9)}, plain,
        after, 1);
}

void TestTranslation::translated()
{
    QFETCH(Site, before);
    QFETCH(std::vector<LayerMapping>, mappings);
    QFETCH(TranslationOptions, options);
    QFETCH(Site, after);
    const auto drawing = opened(before.bytes());
    const TranslationReport report = translate(*drawing, mappings, options);
    QCOMPARE(report.appliedCount(), static_cast<int>(mappings.size()));
    QTEST(report.translatedCount(), "moved");
    QCOMPARE(saved(*drawing), after.bytes());
    drawing->undo();
    QCOMPARE(saved(*drawing), before.bytes());
    QVERIFY(!drawing->canUndo());
    drawing->redo();
    QCOMPARE(saved(*drawing), after.bytes());
}

void TestTranslation::byLayer_data()
{
    QTest::addColumn<TranslationOptions>("options");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    TranslationOptions color;
    color.colorByLayer = true;
    TranslationOptions linetype;
    linetype.linetypeByLayer = true;
    TranslationOptions transparency;
    transparency.transparencyByLayer = true;
    const QByteArray own = "0 MTEXT\n100 AcDbEntity\n8 Wall\n62 5\n420 255\n430 RAL 5010\n"
                           "6 Dashed\n440 33554559\n";
    // Other subclasses, embedded objects and applications use the codes for things of their own.
    const QByteArray foreign = "100 AcDbMText\n62 8\n6 x\n440 9\n101 Embedded Object\n62 3\n";
    QTest::newRow("color") << color << own + foreign
                           << "0 MTEXT\n100 AcDbEntity\n8 Wall\n6 Dashed\n440 33554559\n" + foreign;
    QTest::newRow("linetype") << linetype << own + foreign
                              << QByteArray(own).remove(own.indexOf("6 Dashed"), 9) + foreign;
    QTest::newRow("transparency") << transparency << own + foreign
                                  << own.left(own.indexOf("440 3")) + foreign;
    QTest::newRow("without markers")
        << color << QByteArray("0 LINE\n8 Wall\n62 0\n39 2\n1001 ACAD\n1070 62\n")
        << QByteArray("0 LINE\n8 Wall\n39 2\n1001 ACAD\n1070 62\n");
    QTest::newRow("what says so already stays") << color << QByteArray("0 LINE\n8 Wall\n62 256\n")
                                                << QByteArray("0 LINE\n8 Wall\n62 256\n");
    QTest::newRow("other layers") << color << QByteArray("0 LINE\n8 Keep\n62 1\n")
                                  << QByteArray("0 LINE\n8 Keep\n62 1\n");
}

void TestTranslation::byLayer()
{
    QFETCH(TranslationOptions, options);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    Site site;
    site.entities = before;
    const auto drawing = opened(site.bytes());
    translate(*drawing, {mapping("Wall", "Wall", 1)}, options);
    site.entities = after;
    QCOMPARE(saved(*drawing), site.bytes());
}

void TestTranslation::leftOut_data()
{
    QTest::addColumn<LayerMapping>("given");
    QTest::addColumn<QString>("cause");
    const auto row = [](const char* name, const LayerMapping& given, const char* cause) {
        QTest::newRow(name) << given << QString::fromUtf8(cause);
    };
    row("no such source", mapping("Gone", "New"), "图形中没有图层“Gone”。");
    row("mapped before", mapping("wall", "New"), "图层“Wall”已在前面的映射中。");
    row("source of a reference", mapping("plan|X", "New"), "图层“plan|X”依赖外部参照，不能转换。");
    row("target of a reference", mapping("Keep", "plan|x"), "目标图层“plan|X”依赖外部参照。");
    row("name of 256", mapping("Keep", QByteArray(256, 'n').constData()),
        "图层名“nnnnnnnnnnnnnnnnnnnn…”超过 255 个字符。");
    row("name of 255", mapping("Keep", QByteArray(255, 'n').constData()), "");
    row("no name", mapping("Keep", ""), "图层名不能为空。");
    row("colour out of range", mapping("Keep", "New", 256), "图层“New”：没有颜色索引 256。");
}

void TestTranslation::leftOut()
{
    QFETCH(LayerMapping, given);
    QFETCH(QString, cause);
    Site site;
    site.entities = "0 LINE\n8 Wall\n0 LINE\n8 Keep\n";
    const auto drawing = opened(site.bytes());
    const TranslationReport report =
        translate(*drawing, {mapping("Wall", "First"), given}, inBlocks());
    QCOMPARE(report.mappings.size(), size_t(2));
    QVERIFY(report.mappings[0].isApplied());
    QCOMPARE(report.mappings[1].cause, cause);
    QCOMPARE(report.mappings[1].isApplied(), cause.isEmpty());
    QCOMPARE(report.entities, 2);
    QVERIFY(drawing->findLayer(QStringLiteral("First")));
    QCOMPARE(drawing->findLayer(QStringLiteral("Keep")) == nullptr, cause.isEmpty());
    QVERIFY(!drawing->findLayer(QStringLiteral("New")));

    const QByteArray before = saved(*drawing);
    QVERIFY(!translateLayers(*drawing, {mapping("Keep", "0")}, {})); // Without a step.
    QCOMPARE(saved(*drawing), before);
}

void TestTranslation::linetypesComeAlong_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("styleRecord");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QString>("notice");
    const QByteArray style = "0 STYLE\n5 51\n2 Gas\n70 0\n40 0\n3 txt\n";
    QTest::newRow("with the style of its letters")
        << QByteArray("AC1018") << style
        << QByteArray("2 GAS\n70 0\n3 --GAS--\n72 65\n73 2\n40 1.5\n49 1.0\n74 0\n49 -0.5\n74 2\n"
                      "75 0\n340 101\n46 0.1\n9 G=6\n")
        << QString();
    QTest::newRow("dashes alone, where the style is nowhere")
        << QByteArray("AC1018") << QByteArray()
        << QByteArray("2 GAS\n70 0\n3 --GAS--\n72 65\n73 2\n40 1.5\n49 1.0\n74 0\n49 -0.5\n74 0\n")
        << QStringLiteral("找不到");
    QTest::newRow("dashes alone, where the format has no more")
        << QByteArray("AC1009") << style
        << QByteArray("2 GAS\n70 0\n3 --GAS--\n72 65\n73 2\n40 1.5\n49 1.0\n49 -0.5\n0 ENDTAB\n")
        << QStringLiteral("不能保存线型中的文字和形");
}

void TestTranslation::linetypesComeAlong()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, styleRecord);
    QFETCH(QByteArray, expected);
    QFETCH(QString, notice);
    QByteArray source = Site().bytes();
    source.replace(tagged("2 Dashed\n"),
        tagged("2 GAS\n70 0\n3 --GAS--\n72 65\n73 2\n40 1.5\n49 1.0\n74 0\n49 -0.5\n74 2\n75 0\n"
               "340 51\n46 0.1\n9 G=6\n1001 ACAD\n1070 49\n"));
    source.replace(tagged("0 TABLE\n2 LAYER\n"),
        tagged("0 TABLE\n2 STYLE\n5 5\n70 1\n" + styleRecord + "0 ENDTAB\n0 TABLE\n2 LAYER\n"));
    const auto standard =
        opened(source.replace(tagged("62 2\n6 Continuous\n"), tagged("62 2\n6 GAS\n")));
    const auto drawing = opened(Site().bytes().replace("AC1018", version));
    const auto targets = targetLayers(*standard);
    QCOMPARE(targets.at(2).linetype, QStringLiteral("GAS"));
    const TranslationReport report = translate(*drawing, {{QStringLiteral("Wall"), targets.at(2)}});
    QCOMPARE(drawing->findLayer(QStringLiteral("Keep"))->properties.linetype, targets[2].linetype);
    QCOMPARE(drawing->linetypes().last(), QStringLiteral("GAS"));
    const QByteArray after = saved(*drawing);
    QVERIFY2(after.contains(tagged(expected)), after.constData());
    QCOMPARE(after.contains(tagged("2 Gas\n70 0\n40 0\n3 txt\n")), notice.isEmpty());
    QVERIFY(report.notices.join(QString()).contains(notice));
    QCOMPARE(report.notices.isEmpty(), notice.isEmpty());
    QVERIFY(Drawing::open(drawing->path()));

    TargetLayer unknown = target("Keep");
    unknown.linetype = QStringLiteral("Nowhere");
    const TranslationReport second = translate(*drawing, {{QStringLiteral("Keep"), unknown}});
    QVERIFY(second.mappings.at(0).notices.join(QString()).contains(QLatin1String("Nowhere")));
}

void TestTranslation::sameNamed()
{
    const auto drawing = opened(Site().bytes());
    const auto mappings = sameNamedMappings(*drawing,
        {target("KEEP", 5), target("wall"), target("keep", 6), target("plan|X")},
        {mapping("WALL", "Other")});
    QCOMPARE(mappings.size(), size_t(1));
    QCOMPARE(mappings[0].from, QStringLiteral("Keep"));
    QCOMPARE(mappings[0].to.colorIndex, 5);
}

/// The canvas reads the file, which still has the colour.
void TestTranslation::colorFollowsOnTheCanvas()
{
    Site site;
    site.entities = "0 LINE\n8 Wall\n62 5\n10 0\n20 0\n11 1\n21 1\n";
    const auto drawing = opened(site.bytes());
    const auto isByLayer = [&drawing] {
        const auto geometry = buildGeometry(*drawing);
        return geometry->groups.at(0).style.color.source == GeometryColor::Source::Layer;
    };
    QVERIFY(!isByLayer());
    TranslationOptions options;
    options.colorByLayer = true;
    translate(*drawing, {mapping("Wall", "Keep")}, options);
    QVERIFY(isByLayer());
    drawing->undo();
    QVERIFY(!isByLayer());
    drawing->redo();
    QVERIFY(isByLayer());
}

void TestTranslation::logSaysAll()
{
    Site site;
    site.blocks = "0 BLOCK\n8 0\n2 DOOR\n0 LINE\n8 Keep\n0 ENDBLK\n8 0\n";
    site.entities = "0 LINE\n8 Wall\n0 LINE\n8 Wall\n0 LINE\n8 0\n";
    const auto drawing = opened(site.bytes());
    TranslationOptions options;
    options.linetypeByLayer = true;
    const TranslationReport report = translate(*drawing,
        {mapping("Wall", "New"), mapping("Keep", "Keep", 2), mapping("Gone", "New")}, options);
    const QString path = m_folder.filePath(QStringLiteral("plan.v2.dxf"));
    QCOMPARE(translationLogPath(path), m_folder.filePath(QStringLiteral("plan.v2.log")));
    QVERIFY(writeTranslationLog(translationLogPath(path), translationLog(path, report, options)));
    const QString log = QString::fromUtf8(read(translationLogPath(path)));
    for (const char* line : {"plan.v2.dxf", "选项：强制对象线型为 ByLayer\n",
             "映射：2 条已执行，1 条未执行；4 个对象中转换了 2 个。",
             "“Wall” → “New”：2 个对象，目标图层已新建，原图层已删除。\n",
             "“Keep” → “Keep”：0 个对象，目标图层的特性不变，块中的 1 个对象未转换。\n",
             "“Gone” → “New”：未执行。图形中没有图层“Gone”。\n"})
        QVERIFY2(log.contains(QString::fromUtf8(line)), qPrintable(log));
    QVERIFY(!writeTranslationLog(m_folder.filePath(QStringLiteral("gone/plan.log")), log));
}

QTEST_GUILESS_MAIN(TestTranslation)
#include "tst_translation.moc"
