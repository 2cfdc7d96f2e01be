#include "fixture.h"
#include "readback.h"
#include "standardsfile.h"

using namespace drawing;

namespace {

TargetLayer wall()
{
    auto gas = std::make_shared<LinetypeDefinition>();
    gas->name = "GAS";
    gas->styles = {{"Gas", {{70, "0"}, {3, "txt"}}}};
    gas->tags = {{3, "--煤气--"}, {72, "65"}, {73, "1"}, {40, "1.5"}, {49, "1.5"}, {74, "2"},
        {75, "0"}, {340, "0"}, {46, "0.1"}, {50, "0.0"}, {44, "0.0"}, {45, "0.0"}, {9, "煤"}};
    TargetLayer layer;
    layer.name = "A-墙体";
    layer.colorIndex = 30;
    layer.trueColor = 0x123456;
    layer.linetype = gas->name;
    layer.linetypeDefinition = gas;
    layer.lineweight = 50;
    layer.transparency = 40;
    layer.plotted = false;
    layer.plotStyle = "半色调";
    return layer;
}

TargetLayer plain(const QString& name, int color)
{
    TargetLayer layer;
    layer.name = name;
    layer.colorIndex = color;
    return layer;
}

QStringList names(const Standard& standard)
{
    QStringList all;
    for (const TargetLayer& layer : standard.layers)
        all += layer.name;
    for (const LayerMapping& mapping : standard.mappings)
        all += mapping.from + '>' + mapping.to.name;
    return all;
}

} // namespace

/// Tests files that store target layers and mappings.
class TestStandards : public Fixture
{
    Q_OBJECT

private slots:
    void newFile()
    {
        const QString path = inFolder("公司.dws");
        const QString longest(255, 'x');
        const auto notices =
            saveStandard(path, {{"墙", wall()}, {"w2", wall()}, {longest, plain("B", 3)}},
                {plain("C", 4), plain("b", 5)});
        QVERIFY2(notices, notices ? "" : qPrintable(notices.error().text));
        QCOMPARE(*notices, QStringList("目标图层“b”有几组不同的特性，只保存了第一组。"));

        const auto standard = readStandard(path);
        QVERIFY(standard);
        QCOMPARE(names(*standard).join(' '),
            QStringLiteral("A-墙体 B C 墙>A-墙体 w2>A-墙体 %1>B").arg(longest));
        const TargetLayer& read = standard->mappings.front().to;
        const TargetLayer given = wall();
        QCOMPARE(read.trueColor, given.trueColor);
        QCOMPARE(read.transparency, given.transparency);
        QCOMPARE(read.lineweight, given.lineweight);
        QCOMPARE(read.plotted, given.plotted);
        QCOMPARE(read.plotStyle, given.plotStyle);
        QCOMPARE(standard->layers.at(1).plotStyle, "Normal");
        QVERIFY(read.linetypeDefinition->tags == given.linetypeDefinition->tags);
        QVERIFY(
            read.linetypeDefinition->styles.at(0).tags == given.linetypeDefinition->styles[0].tags);

        if (!readback::isInstalled())
            QSKIP("python3-ezdxf is not installed");
        const QJsonObject seen = readback::seen(path);
        QCOMPARE(readback::newErrors({}, seen), QStringList());
        const QJsonObject layer = seen.value("layers").toArray().at(1).toObject();
        QCOMPARE(layer.value("name").toString(), given.name);
        QCOMPARE(layer.value("linetype").toString(), given.linetype);
        QCOMPARE(layer.value("transparency").toInt(), given.transparency);
    }

    void savedAgain()
    {
        const QString path = inFolder("again.dxf");
        QVERIFY(saveStandard(path, {{"a", plain("A", 1)}, {"b", plain("B", 2)}}));
        auto drawing = Drawing::open(path);
        QVERIFY(drawing);
        edit(**drawing, "B", [](LayerProperties& p) { p.name = "B2"; });
        QVERIFY((*drawing)->save(path));
        auto standard = readStandard(path);
        QCOMPARE(names(*standard).join(' '), "A B2 a>A b>B2");

        // An edited mapping replaces the old one. A mapping that is not saved any more disappears,
        // but its layer stays.
        TargetLayer zero = plain("0", 6);
        zero.plotStyle = "Half";
        const auto notices = saveStandard(path, {{"A", zero}});
        QCOMPARE(
            *notices, QStringList({"文件中的打印样式由颜色决定：没有保存图层“0”的打印样式“Half”。",
                          "文件中原有的 1 条其他映射已被现在的映射取代。"}));
        standard = readStandard(path);
        QCOMPARE(names(*standard).join(' '), "0 A B2 A>0");
        QCOMPARE(standard->layers.at(0).colorIndex, 6);
    }

    void intoADrawing()
    {
        House house;
        house.moreLayers = "0 LAYER\n5 14\n2 plan|X\n70 16\n62 2\n6 Continuous\n";
        const QString path = write(house.bytes());
        const QByteArray before = contentOf(path);
        const auto notices =
            saveStandard(path, {{"old", plain("wall", 6)}, {"older", plain("New", 6)}});
        QVERIFY(notices);
        const QByteArray after = contentOf(path);
        const int blocks = before.indexOf(tagged("2 BLOCKS\n"));
        const int objects = before.indexOf(tagged("2 OBJECTS\n"));
        QVERIFY(after.contains(before.mid(blocks, objects - blocks)));
        const auto standard = readStandard(path);
        QCOMPARE(names(*standard).join(' '), "0 Wall Empty New Implicit old>Wall older>New");
        QCOMPARE(standard->layers.at(1).colorIndex, 6);
    }

    void refused_data()
    {
        const Rows<QByteArray, QString, QString> row("there", "name", "cause");
        House old;
        old.version = "AC1009";
        row("another kind of drawing", QByteArray("AC1032\0\0\0", 9), "A", "是 DWG 图形，不能读取");
        row("no drawing", "notes", "A", "不是 DXF 图形");
        row("a format without objects", old.bytes(), "A", "不能保存图层映射");
        row("a name that is too long", House().bytes(), QString(256, 'x'), "超过 255 个字符");
    }

    void refused()
    {
        QFETCH(QByteArray, there);
        QFETCH(QString, name);
        QFETCH(QString, cause);
        const QString path = write(there);
        const auto saved = saveStandard(path, {{"a", plain(name, 1)}});
        QVERIFY(!saved);
        QVERIFY2(saved.error().text.contains(cause), qPrintable(saved.error().text));
        QVERIFY(contentOf(path) == there);
    }

    void unreadable_data()
    {
        const Rows<QByteArray, QString> row("bytes", "cause");
        const QByteArray head = "0 SECTION\n2 ENTITIES\n0 LINE\n8 0\n";
        row("no layers", tagged(head + "0 ENDSEC\n0 EOF\n"), "除图层 0 外没有图层");
        row("cut off", tagged(head), "不完整");
        row("nothing", "", "是空的");
    }

    void unreadable()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, cause);
        const auto standard = readStandard(write(bytes, "office.dwt"));
        QVERIFY(!standard);
        QVERIFY2(standard.error().text.contains(cause), qPrintable(standard.error().text));
    }
};

QTEST_GUILESS_MAIN(TestStandards)
#include "tst_standards.moc"
