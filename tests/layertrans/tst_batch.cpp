#include "../drawing/readback.h"
#include "drawing.h"
#include "standardsfile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace drawing;

namespace {

struct Run
{
    int code = -1;
    QString output;
    QString error;
};

Run finished(QProcess& process)
{
    process.waitForFinished(120000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError())};
}

Run run(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(LAYERTRANS), arguments);
    return finished(process);
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

QString sample(const char* name)
{
    return QDir(QStringLiteral(SAMPLES_DIR)).filePath(QLatin1String(name));
}

int countOf(const QJsonObject& drawing, const QString& layer, const char* what)
{
    const QJsonObject layers = drawing.value(QLatin1String("layers")).toObject();
    return layers.value(layer.toLower()).toObject().value(QLatin1String(what)).toInt();
}

} // namespace

class TestBatch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void usage_data();
    void usage();
    void manyDrawings();
    void skipped();
    void shards();
    void entities_data();
    void entities();
    void crashedWorker();
    void interrupted();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString write(const QString& name, const QByteArray& bytes) const;
    QStringList copies(const char* name, int count) const;
    QStringList arguments(const QStringList& more) const;
    QStringList outputs() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_standard;
};

/// The standard: two layers of the office floor come to one, a third changes, and one that no
/// drawing has.
void TestBatch::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_standard = path(QStringLiteral("standard.dws"));
    TargetLayer wall;
    wall.name = QStringLiteral("S-墙");
    wall.colorIndex = 30;
    TargetLayer same;
    same.name = QStringLiteral("A-WALL-EXT");
    QVERIFY(saveStandard(m_standard,
        {{QStringLiteral("A-WALL"), wall}, {QStringLiteral("墙体"), wall},
            {QStringLiteral("nowhere"), wall}},
        {same}));
}

QString TestBatch::write(const QString& name, const QByteArray& bytes) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the fixture");
    return path(name);
}

QStringList TestBatch::copies(const char* name, int count) const
{
    const QByteArray bytes = read(sample(name));
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths += write(QStringLiteral("in/%1.dxf").arg(i), bytes);
    return paths;
}

QStringList TestBatch::arguments(const QStringList& more) const
{
    return QStringList{QStringLiteral("--standard"), m_standard, QStringLiteral("--out"),
               path(QStringLiteral("out"))} +
           more;
}

QStringList TestBatch::outputs() const
{
    return QDir(path(QStringLiteral("out")))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void TestBatch::usage_data()
{
    QTest::addColumn<QStringList>("arguments"); // @s, @o, @d: a standard, a folder, a drawing.
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* name, const char* arguments, int code, const char* said) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << code
                            << QString::fromUtf8(said);
    };
    row("help", "--help", 0, "--map-same");
    row("no standard", "--out @o @d", 2, "缺少 --standard");
    row("no folder", "--standard @s @d", 2, "缺少 --out");
    row("no drawings", "--standard @s --out @o", 2, "没有给出图形");
    row("no such option", "--standard @s --out @o --option colour @d", 2, "“colour”");
    row("no jobs", "--standard @s --out @o --jobs 0 @d", 2, "“0”");
    row("shard out of range", "--standard @s --out @o --shard 3/2 @d", 2, "“3/2”");
    row("no such list", "--standard @s --out @o --list @o/x", 2, "@o/x");
    row("no such standard", "--standard @o/x --out @o @d", 2, "@o/x");
    row("over its own drawing", "--standard @s --out @o --force @o/plan.dxf", 2,
        "会覆盖一个原文件");
    row("over the standard", "--standard @o/standard.dws --out @o @o/../other/standard.dws", 2,
        "会覆盖一个原文件");
    row("a report over a drawing",
        "--standard @s --out @o/out --report @o/out/plan.dxf @o/plan.dxf", 2, "会覆盖一个原文件");
    row("reports that are none", "--merge-reports @o/all.csv @s", 1, "不是 layertrans 的报告");
}

void TestBatch::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, said);
    write(QStringLiteral("plan.dxf"), read(sample("site-plan.dxf")));
    said.replace(QLatin1String("@o"), m_folder->path());
    for (QString& argument : arguments)
        argument.replace(QLatin1String("@s"), m_standard)
            .replace(QLatin1String("@o"), m_folder->path())
            .replace(QLatin1String("@d"), sample("site-plan.dxf"));
    const Run result = run(arguments);
    QTEST(result.code, "code");
    const QString text = result.code == 0 ? result.output : result.error;
    QVERIFY2(text.contains(said), qPrintable(text));
    QCOMPARE(read(path(QStringLiteral("plan.dxf"))), read(sample("site-plan.dxf")));
}

/// A drawing that cannot be read, one given twice, two of one name and a name as long as there are.
void TestBatch::manyDrawings()
{
    const QString longName = QString(251, QLatin1Char('n')) + QStringLiteral(".dxf");
    const QByteArray site = read(sample("site-plan.dxf"));
    const QString notes = write(QStringLiteral("notes.dxf"), "notes");
    const QString first = write(QStringLiteral("a/plan.dxf"), site);
    const QString second = write(QStringLiteral("b/Plan.dwg"), site);
    const QString longest = write(longName, site);
    const QString tooLong = path(QString(256, QLatin1Char('n')));
    const QString report = path(QStringLiteral("report.csv"));
    const QString list = write(QStringLiteral("list"),
        QStringList{second, tooLong, path(QStringLiteral("a/../a/plan.dxf"))}
            .join(QLatin1String("\r\n\n"))
            .toUtf8());
    const Run result = run(arguments({"--option", "log", "--jobs", "2", "--report", report,
        "--list", list, notes, first, longest, sample("workshop-gbk.dxf")}));
    QCOMPARE(result.code, 1);
    QCOMPARE(outputs().filter(QStringLiteral(".d")),
        QStringList({"Plan~2.dwg", longName, "plan.dxf", "workshop-gbk.dxf"}));
    QCOMPARE(outputs().filter(QStringLiteral(".log")).size(), 4);
    QCOMPARE(outputs().size(), 8);
    QVERIFY2(result.error.contains(QStringLiteral("给出了不止一次")), qPrintable(result.error));
    QVERIFY(result.output.contains(QStringLiteral("notes.dxf”不是 DXF 图形")));
    QCOMPARE(result.output.count(QStringLiteral("已转换，")), 4);
    QVERIFY(result.output.contains(QStringLiteral("失败                     2")));
    QCOMPARE(read(first), site);
    const QByteArray log = read(path(QStringLiteral("out/plan.log")));
    QVERIFY(log.contains("“nowhere” → “S-墙”：未执行。"));

    const QString rows = QString::fromUtf8(read(report));
    QCOMPARE(rows.count(QStringLiteral("\r\n")), 7);
    QCOMPARE(rows.count(QStringLiteral(",失败,")), 2);
    QVERIFY(rows.contains(longest));
}

/// What is there already is whole; what is missing is done on the next run.
void TestBatch::skipped()
{
    const QStringList drawings = copies("site-plan.dxf", 3);
    const QString first = path(QStringLiteral("first.csv"));
    QCOMPARE(run(arguments(QStringList{"--report", first} + drawings)).code, 0);
    QVERIFY(QFile::remove(path(QStringLiteral("out/1.dxf"))));
    write(QStringLiteral("out/2.dxf"), "kept");
    const QString second = path(QStringLiteral("second.csv"));
    const Run again = run(arguments(QStringList{"--report", second} + drawings));
    QCOMPARE(again.code, 0);
    QCOMPARE(again.output.count(QStringLiteral("已跳过，")), 2);
    QCOMPARE(read(path(QStringLiteral("out/2.dxf"))), QByteArray("kept"));

    const QString all = path(QStringLiteral("all.csv"));
    const Run merged = run({"--merge-reports", all, first, second});
    QCOMPARE(merged.code, 0);
    QCOMPARE(read(all), read(first));
    QCOMPARE(run({"--merge-reports", all, path(QStringLiteral("lost.csv")), first}).code, 1);
    QCOMPARE(read(all), read(first));
    QCOMPARE(run(arguments(QStringList{"--report", all} + drawings)).code, 0);
    QCOMPARE(read(all), read(first));

    QCOMPARE(run(arguments(QStringList{"--force"} + drawings)).code, 0);
    QVERIFY(read(path(QStringLiteral("out/2.dxf"))) == read(path(QStringLiteral("out/0.dxf"))));
}

/// Machines that see the same list agree on the names.
void TestBatch::shards()
{
    const QByteArray site = read(sample("site-plan.dxf"));
    QStringList drawings;
    for (const char* folder : {"a", "b", "c"})
        drawings += write(QStringLiteral("%1/plan.dxf").arg(QLatin1String(folder)), site);
    drawings += write(QStringLiteral("d/plan~2.dxf"), site);
    const Run last = run(arguments(QStringList{"--shard", "2/2"} + drawings));
    QCOMPARE(last.code, 0);
    QCOMPARE(outputs(), QStringList({"plan~2.dxf", "plan~3.dxf"}));
    QCOMPARE(run(arguments(QStringList{"--shard", "1/2"} + drawings)).code, 0);
    QCOMPARE(outputs(), QStringList({"plan.dxf", "plan~2.dxf", "plan~3.dxf", "plan~4.dxf"}));
}

void TestBatch::entities_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("inBlocks");
    QTest::addColumn<bool>("byLayer");
    QTest::newRow("blocks stay") << QStringList() << false << false;
    QTest::newRow("blocks too") << QStringList{"--option", "blocks"} << true << false;
    QTest::newRow("by layer") << QStringList{"--option", "color-bylayer", "--option",
                                     "linetype-bylayer", "--option", "blocks"}
                              << true << true;
}

void TestBatch::entities()
{
    QFETCH(QStringList, options);
    QFETCH(bool, inBlocks);
    QFETCH(bool, byLayer);
    const QString source = sample("office-floor.dxf");
    if (!readback::isInstalled())
        QSKIP("python3-ezdxf is not installed");
    const QJsonObject before = readback::seen(source);
    const auto standard = readStandard(source);
    QVERIFY(standard);
    // Some layers stay what they are, the others come to one target.
    std::vector<LayerMapping> mappings;
    QStringList others;
    TargetLayer target;
    target.name = QStringLiteral("Z-ALL");
    for (size_t i = 0; i < standard->layers.size(); ++i) {
        if (i % 3 == 1)
            others += standard->layers[i].name;
        else
            mappings.push_back({standard->layers[i].name, target});
    }
    const QString file = path(QStringLiteral("all.dws"));
    QVERIFY(saveStandard(file, mappings));
    QCOMPARE(run(QStringList{"--standard", file, "--out", path("out"), source} + options).code, 0);
    const QJsonObject after = readback::seen(path(QStringLiteral("out/office-floor.dxf")));

    int layouts = 0;
    int blocks = 0;
    int ownColors = 0;
    for (const LayerMapping& mapping : mappings) {
        const int contents = countOf(before, mapping.from, "blocks");
        layouts += countOf(before, mapping.from, "layouts");
        blocks += contents;
        ownColors += countOf(before, mapping.from, "ownColor");
        QCOMPARE(countOf(after, mapping.from, "layouts"), 0);
        QCOMPARE(countOf(after, mapping.from, "blocks"), inBlocks ? 0 : contents);
    }
    QVERIFY(layouts > 0 && blocks > 0 && ownColors > 0);
    QCOMPARE(countOf(after, target.name, "layouts"), layouts);
    QCOMPARE(countOf(after, target.name, "blocks"), inBlocks ? blocks : 0);
    if (inBlocks) {
        QCOMPARE(countOf(after, target.name, "ownLinetype") == 0, byLayer);
        QCOMPARE(countOf(after, target.name, "ownColor"), byLayer ? 0 : ownColors);
    }
    for (const QString& other : others) {
        for (const char* what : {"layouts", "blocks", "ownColor"})
            QCOMPARE(countOf(after, other, what), countOf(before, other, what));
    }
    QCOMPARE(after.value("errors"), before.value("errors"));
}

/// One worker is killed in the midst of its work: its drawing fails, the others go on.
void TestBatch::crashedWorker()
{
    const QStringList drawings = copies("office-floor.dxf", 30);
    QProcess process;
    process.start(QStringLiteral(LAYERTRANS), arguments(QStringList{"--jobs", "1"} + drawings));
    QVERIFY(process.waitForReadyRead(60000));
    const QString children = QStringLiteral("/proc/%1/task/%1/children").arg(process.processId());
    const int worker = read(children).split(' ').value(0).toInt();
    QVERIFY(worker > 0);
    ::kill(worker, SIGKILL);
    const Run result = finished(process);
    QCOMPARE(result.code, 1);
    QVERIFY2(
        result.output.contains(QStringLiteral("处理它的进程意外结束")), qPrintable(result.output));
    QCOMPARE(outputs().size(), 29);
    QCOMPARE(run(arguments(drawings)).code, 0);
    QCOMPARE(outputs().size(), 30);
}

void TestBatch::interrupted()
{
    const QStringList drawings = copies("office-floor.dxf", 60);
    QProcess process;
    process.start(QStringLiteral(LAYERTRANS), arguments(QStringList{"--jobs", "2"} + drawings));
    QVERIFY(process.waitForReadyRead(60000));
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    const Run result = finished(process);
    QCOMPARE(result.code, 130);
    QVERIFY(outputs().size() < 60);
    for (const QString& name : outputs())
        QVERIFY2(Drawing::open(path(QStringLiteral("out/") + name)), qPrintable(name));
    const Run rest = run(arguments(drawings));
    QCOMPARE(rest.code, 0);
    QCOMPARE(rest.output.count(QStringLiteral("已转换，")), 60 - rest.output.count("已跳过，"));
    QCOMPARE(outputs().size(), 60);
}

QTEST_GUILESS_MAIN(TestBatch)
#include "tst_batch.moc"
