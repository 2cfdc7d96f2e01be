#include "fixture.h"
#include "readback.h"
#include "standardsfile.h"

#include <QJsonArray>

using namespace drawing;

namespace {

TargetLayer wall()
{
    auto gas = std::make_shared<LinetypeDefinition>();
    gas->name = QStringLiteral("GAS");
    gas->styles = {
        {QStringLiteral("Gas"), {{70, QStringLiteral("0")}, {3, QStringLiteral("txt")}}}};
    gas->tags = {{3, QStringLiteral("--煤气--")}, {72, QStringLiteral("65")},
        {73, QStringLiteral("1")}, {40, QStringLiteral("1.5")}, {49, QStringLiteral("1.5")},
        {74, QStringLiteral("2")}, {75, QStringLiteral("0")}, {340, QStringLiteral("0")},
        {46, QStringLiteral("0.1")}, {50, QStringLiteral("0.0")}, {44, QStringLiteral("0.0")},
        {45, QStringLiteral("0.0")}, {9, QStringLiteral("煤")}};
    TargetLayer layer;
    layer.name = QStringLiteral("A-墙体");
    layer.colorIndex = 30;
    layer.trueColor = 0x123456;
    layer.linetype = gas->name;
    layer.linetypeDefinition = gas;
    layer.lineweight = 50;
    layer.transparency = 40;
    layer.plotted = false;
    layer.plotStyle = QStringLiteral("半色调");
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
        all += mapping.from + QLatin1Char('>') + mapping.to.name;
    return all;
}

} // namespace

/// Files that keep target layers and mappings.
class TestStandards : public Fixture
{
    Q_OBJECT

private slots:
    void newFile();
    void savedAgain();
    void intoADrawing();
    void refused_data();
    void refused();
    void unreadable_data();
    void unreadable();
};

void TestStandards::newFile()
{
    const QString path = m_folder.filePath(QStringLiteral("公司.dws"));
    const QString longest(255, QLatin1Char('x'));
    const auto notices = saveStandard(path,
        {{QStringLiteral("墙"), wall()}, {QStringLiteral("w2"), wall()},
            {longest, plain(QStringLiteral("B"), 3)}},
        {plain(QStringLiteral("C"), 4), plain(QStringLiteral("b"), 5)});
    QVERIFY2(notices, notices ? "" : qPrintable(notices.error().text));
    QCOMPARE(
        *notices, QStringList(QStringLiteral("目标图层“b”有几组不同的特性，只保存了第一组。")));

    const auto standard = readStandard(path);
    QVERIFY(standard);
    QCOMPARE(names(*standard).join(QLatin1Char(' ')),
        QStringLiteral("A-墙体 B C 墙>A-墙体 w2>A-墙体 %1>B").arg(longest));
    const TargetLayer& read = standard->mappings.front().to;
    const TargetLayer given = wall();
    QCOMPARE(read.trueColor, given.trueColor);
    QCOMPARE(read.transparency, given.transparency);
    QCOMPARE(read.lineweight, given.lineweight);
    QCOMPARE(read.plotted, given.plotted);
    QCOMPARE(read.plotStyle, given.plotStyle);
    QCOMPARE(standard->layers.at(1).plotStyle, QStringLiteral("Normal"));
    QVERIFY(read.linetypeDefinition->tags == given.linetypeDefinition->tags);
    QVERIFY(read.linetypeDefinition->styles.at(0).tags == given.linetypeDefinition->styles[0].tags);

    if (!readback::isInstalled())
        QSKIP("python3-ezdxf is not installed");
    const QJsonObject seen = readback::seen(path);
    QVERIFY2(!seen.contains("failure"), qPrintable(seen.value("failure").toString()));
    QCOMPARE(seen.value("errors").toObject(), QJsonObject());
    const QJsonObject layer = seen.value("layers").toArray().at(1).toObject();
    QCOMPARE(layer.value("name").toString(), given.name);
    QCOMPARE(layer.value("linetype").toString(), given.linetype);
    QCOMPARE(layer.value("transparency").toInt(), given.transparency);
}

void TestStandards::savedAgain()
{
    const QString path = m_folder.filePath(QStringLiteral("again.dxf"));
    QVERIFY(saveStandard(path, {{QStringLiteral("a"), plain(QStringLiteral("A"), 1)},
                                   {QStringLiteral("b"), plain(QStringLiteral("B"), 2)}}));
    auto drawing = Drawing::open(path);
    QVERIFY(drawing);
    edit(**drawing, QStringLiteral("B"), [](LayerProperties& p) { p.name = QStringLiteral("B2"); });
    QVERIFY((*drawing)->save(path));
    auto standard = readStandard(path);
    QCOMPARE(names(*standard).join(QLatin1Char(' ')), QStringLiteral("A B2 a>A b>B2"));

    // An edited mapping replaces; what is not saved any more goes, its layer stays.
    TargetLayer zero = plain(QStringLiteral("0"), 6);
    zero.plotStyle = QStringLiteral("Half");
    const auto notices = saveStandard(path, {{QStringLiteral("A"), zero}});
    QCOMPARE(*notices, QStringList({"文件中的打印样式由颜色决定：没有保存图层“0”的打印样式“Half”。",
                           "文件中原有的 1 条其他映射已被现在的映射取代。"}));
    standard = readStandard(path);
    QCOMPARE(names(*standard).join(QLatin1Char(' ')), QStringLiteral("0 A B2 A>0"));
    QCOMPARE(standard->layers.at(0).colorIndex, 6);
}

void TestStandards::intoADrawing()
{
    House house;
    house.moreLayers = "0 LAYER\n5 14\n2 plan|X\n70 16\n62 2\n6 Continuous\n";
    const QString path = write(house.bytes());
    const QByteArray before = read(path);
    const auto notices =
        saveStandard(path, {{QStringLiteral("old"), plain(QStringLiteral("wall"), 6)},
                               {QStringLiteral("older"), plain(QStringLiteral("New"), 6)}});
    QVERIFY(notices);
    const QByteArray after = read(path);
    const int blocks = before.indexOf(tagged("2 BLOCKS\n"));
    const int objects = before.indexOf(tagged("2 OBJECTS\n"));
    QVERIFY(after.contains(before.mid(blocks, objects - blocks)));
    const auto standard = readStandard(path);
    QCOMPARE(names(*standard).join(QLatin1Char(' ')),
        QStringLiteral("0 Wall Empty New Implicit old>Wall older>New"));
    QCOMPARE(standard->layers.at(1).colorIndex, 6);
}

void TestStandards::refused_data()
{
    QTest::addColumn<QByteArray>("there");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cause");
    House old;
    old.version = "AC1009";
    QTest::newRow("another kind of drawing") << QByteArray("AC1032\0\0\0", 9) << "A"
                                             << "是 DWG 图形，不能读取";
    QTest::newRow("no drawing") << QByteArray("notes") << "A"
                                << "不是 DXF 图形";
    QTest::newRow("a format without objects") << old.bytes() << "A"
                                              << "不能保存图层映射";
    QTest::newRow("a name that is too long")
        << House().bytes() << QString(256, QLatin1Char('x')) << "超过 255 个字符";
}

void TestStandards::refused()
{
    QFETCH(QByteArray, there);
    QFETCH(QString, name);
    QFETCH(QString, cause);
    const QString path = write(there);
    const auto saved = saveStandard(path, {{QStringLiteral("a"), plain(name, 1)}});
    QVERIFY(!saved);
    QVERIFY2(saved.error().text.contains(cause), qPrintable(saved.error().text));
    QVERIFY(read(path) == there);
}

void TestStandards::unreadable_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("cause");
    const QByteArray head = "0 SECTION\n2 ENTITIES\n0 LINE\n8 0\n";
    QTest::newRow("no layers") << tagged(head + "0 ENDSEC\n0 EOF\n") << "除图层 0 外没有图层";
    QTest::newRow("cut off") << tagged(head) << "不完整";
    QTest::newRow("nothing") << QByteArray() << "是空的";
}

void TestStandards::unreadable()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, cause);
    const auto standard = readStandard(write(bytes, QStringLiteral("office.dwt")));
    QVERIFY(!standard);
    QVERIFY2(standard.error().text.contains(cause), qPrintable(standard.error().text));
}

QTEST_GUILESS_MAIN(TestStandards)
#include "tst_standards.moc"
