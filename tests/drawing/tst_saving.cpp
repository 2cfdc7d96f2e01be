#include "fixture.h"

#include <QDirIterator>

#include <csignal>
#include <sys/resource.h>

using namespace drawing;

/// Files come out whole, or stay what they were.
class TestSaving : public Fixture
{
    Q_OBJECT

private slots:
    void unchanged_data();
    void unchanged();
    void oneLayerOff_data() { unchanged_data(); }
    void oneLayerOff();
    void invalidBytes();
    void overItself();
    void refused_data();
    void refused();
    void fullDisk();
    void cancelled();
    void rewrittenMeanwhile();
};

void TestSaving::unchanged_data()
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

void TestSaving::unchanged()
{
    QFETCH(QString, path);
    const QByteArray bytes = read(path);
    QVERIFY(saved(*opened(bytes)) == bytes);
}

/// The files differ in the colour value of one record: in one run of bytes, by a sign at most.
void TestSaving::oneLayerOff()
{
    QFETCH(QString, path);
    const QByteArray before = read(path);
    const auto drawing = opened(before);
    const Layer layer = drawing->layers().back();
    QCOMPARE(edit(*drawing, layer.properties.name, [](LayerProperties& p) { p.off = !p.off; }),
        QString());
    const QByteArray after = saved(*drawing);
    QVERIFY(std::abs(after.size() - before.size()) <= 1);
    int from = 0;
    while (before.at(from) == after.at(from))
        ++from;
    int tail = 0;
    while (before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
        ++tail;
    QVERIFY(before.size() - tail - from <= 2 && after.size() - tail - from <= 2);
    const int name = before.lastIndexOf("LayerTableRecord", from);
    const int record = before.lastIndexOf("LAYER", from);
    QVERIFY(record > 0 && from - record < 300 && name < from);
    QCOMPARE(
        opened(after)->findLayer(layer.properties.name)->properties.off, !layer.properties.off);
}

/// What the code page cannot read is written as it was, even on a line next to an edit.
void TestSaving::invalidBytes()
{
    House before;
    before.version = "AC1027";
    before.wallRecord = "62 5\n6 \xff\xfe\n1001 ACAD\n1000 \xc3";
    House after = before;
    after.wallRecord = "62 -5\n6 \xff\xfe\n1001 ACAD\n1000 \xc3";
    const auto drawing = opened(before.bytes());
    QCOMPARE(edit(*drawing, QStringLiteral("Wall"), [](LayerProperties& p) { p.off = true; }),
        QString());
    QCOMPARE(saved(*drawing), after.bytes());
}

/// Saving over the file that is open: later edits and undo still find its bytes.
void TestSaving::overItself()
{
    const QByteArray bytes = House().bytes();
    const auto drawing = opened(bytes);
    const QString path = drawing->path();
    const QString wall = QStringLiteral("Wall");
    QCOMPARE(edit(*drawing, wall, [](LayerProperties& p) { p.off = true; }), QString());
    QVERIFY(drawing->save(path));
    QVERIFY(!drawing->isModified());
    QCOMPARE(edit(*drawing, wall, [](LayerProperties& p) { p.name = "Wand"; }), QString());
    QVERIFY(drawing->save(path));
    QCOMPARE(opened(read(path))->findLayer(QStringLiteral("wand"))->properties.off, true);
    drawing->undo();
    drawing->undo();
    const QString other = m_folder.filePath(QStringLiteral("other.dxf"));
    QVERIFY(drawing->save(other));
    QCOMPARE(read(other), bytes);
    QCOMPARE(drawing->path(), other);
}

void TestSaving::refused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("word");
    QTest::newRow("no folder") << QStringLiteral("/no/such/a.dxf")
                               << QStringLiteral("文件夹不存在");
    QTest::newRow("a folder") << m_folder.path() << QStringLiteral("不是普通文件");
    QTest::newRow("a device") << QStringLiteral("/dev/full") << QStringLiteral("不是普通文件");
    QTest::newRow("a folder of the system")
        << QStringLiteral("/proc/a.dxf") << QStringLiteral("：");
}

void TestSaving::refused()
{
    QFETCH(QString, path);
    QFETCH(QString, word);
    const auto drawing = opened(House().bytes());
    const QString own = drawing->path();
    QCOMPARE(edit(*drawing, QStringLiteral("Wall"), [](LayerProperties& p) { p.off = true; }),
        QString());
    const auto result = drawing->save(path);
    QVERIFY(!result);
    QVERIFY2(result.error().text.contains(word), qPrintable(result.error().text));
    QVERIFY2(result.error().text.contains(path), qPrintable(result.error().text));
    QVERIFY(drawing->isModified());
    QCOMPARE(drawing->path(), own);
}

/// A limit on file sizes fails a write half-way, as a full disk does.
void TestSaving::fullDisk()
{
    const QByteArray bytes = House().bytes();
    const auto drawing = opened(bytes);
    QCOMPARE(edit(*drawing, QStringLiteral("Wall"), [](LayerProperties& p) { p.off = true; }),
        QString());
    const QStringList files = QDir(m_folder.path()).entryList();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    rlimit low = old;
    low.rlim_cur = 100;
    setrlimit(RLIMIT_FSIZE, &low);
    const auto result = drawing->save(drawing->path());
    setrlimit(RLIMIT_FSIZE, &old);
    QVERIFY(!result);
    QVERIFY(drawing->isModified());
    QCOMPARE(read(drawing->path()), bytes);
    QCOMPARE(QDir(m_folder.path()).entryList(), files);
    QVERIFY(drawing->save(drawing->path()));
    QVERIFY(!drawing->isModified());
}

void TestSaving::cancelled()
{
    const QByteArray bytes = House().bytes();
    const auto drawing = opened(bytes);
    QCOMPARE(edit(*drawing, QStringLiteral("Wall"), [](LayerProperties& p) { p.off = true; }),
        QString());
    Progress progress;
    progress.cancelled = true;
    const auto result = drawing->save(drawing->path(), &progress);
    QVERIFY(!result && result.error().cancelled);
    QVERIFY(drawing->isModified());
    QCOMPARE(read(drawing->path()), bytes);
}

void TestSaving::rewrittenMeanwhile()
{
    const auto drawing = opened(House().bytes());
    QFile file(drawing->path());
    QVERIFY(file.resize(100));
    const auto result = drawing->save(m_folder.filePath(QStringLiteral("other.dxf")));
    QVERIFY(!result);
    QVERIFY(result.error().text.contains(QStringLiteral("其他程序")));
}

QTEST_GUILESS_MAIN(TestSaving)
#include "tst_saving.moc"
