#include "fixture.h"
#include "rows.h"

#include <csignal>
#include <sys/resource.h>

using namespace drawing;

/// Files come out whole, or stay what they were.
class TestSaving : public Fixture
{
    Q_OBJECT

private slots:
    void unchanged_data() { everyDrawing(); }
    void unchanged()
    {
        QFETCH(QString, path);
        const QByteArray bytes = read(path);
        QVERIFY(saved(*opened(bytes)) == bytes);
    }

    /// Saving over the file that is open: later edits and undo still find its bytes.
    void overItself()
    {
        const auto drawing = changed();
        const QString path = drawing->path();
        const QByteArray bytes = read(path);
        QVERIFY(drawing->save(path));
        QVERIFY(!drawing->isModified());
        QCOMPARE(edit(*drawing, "Wall", [](LayerProperties& p) { p.name = "Wand"; }), QString());
        QVERIFY(drawing->save(path));
        QCOMPARE(opened(read(path))->findLayer("wand")->properties.off, true);
        drawing->undo();
        drawing->undo();
        const QString other = m_folder.filePath("other.dxf");
        QVERIFY(drawing->save(other));
        QCOMPARE(read(other), bytes);
        QCOMPARE(drawing->path(), other);
    }

    void refused_data()
    {
        const Rows<QString, QString> row("path", "word");
        row("no folder", "/no/such/a.dxf", "文件夹不存在");
        row("a folder", m_folder.path(), "不是普通文件");
        row("a device", "/dev/full", "不是普通文件");
        row("a folder of the system", "/proc/a.dxf", "：");
    }

    void refused()
    {
        QFETCH(QString, path);
        QFETCH(QString, word);
        const auto drawing = changed();
        const QString own = drawing->path();
        const auto result = drawing->save(path);
        QVERIFY(!result);
        QVERIFY2(result.error().text.contains(word), qPrintable(result.error().text));
        QVERIFY2(result.error().text.contains(path), qPrintable(result.error().text));
        QVERIFY(drawing->isModified());
        QCOMPARE(drawing->path(), own);
    }

    /// A limit on file sizes fails a write half-way, as a full disk does.
    void fullDisk()
    {
        const auto drawing = changed();
        const QByteArray bytes = read(drawing->path());
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

    void cancelled()
    {
        const auto drawing = changed();
        const QByteArray bytes = read(drawing->path());
        Progress progress;
        progress.cancelled = true;
        const auto result = drawing->save(drawing->path(), &progress);
        QVERIFY(!result && result.error().cancelled);
        QVERIFY(drawing->isModified());
        QCOMPARE(read(drawing->path()), bytes);
    }

    void rewrittenMeanwhile()
    {
        const auto drawing = opened(House().bytes());
        QFile file(drawing->path());
        QVERIFY(file.resize(100));
        const auto result = drawing->save(m_folder.filePath("other.dxf"));
        QVERIFY(!result);
        QVERIFY(result.error().text.contains("其他程序"));
    }

private:
    std::unique_ptr<Drawing> changed()
    {
        auto drawing = opened(House().bytes());
        edit(*drawing, "Wall", [](LayerProperties& p) { p.off = true; });
        return drawing;
    }
};

QTEST_GUILESS_MAIN(TestSaving)
#include "tst_saving.moc"
