#include "filelimit.h"
#include "fixture.h"

using namespace drawing;

/// A file is saved completely or stays as it was.
class TestSaving : public Fixture
{
    Q_OBJECT

private slots:
    void unchanged_data() { everyDrawing(); }
    void unchanged()
    {
        QFETCH(QString, path);
        const QByteArray bytes = contentOf(path);
        QVERIFY(saved(*opened(bytes)) == bytes);
    }

    /// After saving over the open file, later edits and undo still find its bytes.
    void overItself()
    {
        const auto drawing = changed();
        const QString path = drawing->path();
        const QByteArray bytes = contentOf(path);
        QVERIFY(drawing->save(path));
        QVERIFY(!drawing->isModified());
        QCOMPARE(edit(*drawing, "Wall", [](LayerProperties& p) { p.name = "Wand"; }), QString());
        QVERIFY(drawing->save(path));
        QCOMPARE(opened(contentOf(path))->findLayer("wand")->properties.off, true);
        drawing->undo();
        drawing->undo();
        const QString other = inFolder("other.dxf");
        QVERIFY(drawing->save(other));
        QCOMPARE(contentOf(other), bytes);
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

    void fullDisk()
    {
        const auto drawing = changed();
        const QByteArray bytes = contentOf(drawing->path());
        const QStringList files = QDir(m_folder.path()).entryList();
        {
            const FileLimit limit(100);
            QVERIFY(!drawing->save(drawing->path()));
        }
        QVERIFY(drawing->isModified());
        QCOMPARE(contentOf(drawing->path()), bytes);
        QCOMPARE(QDir(m_folder.path()).entryList(), files);
        QVERIFY(drawing->save(drawing->path()));
        QVERIFY(!drawing->isModified());
    }

    void cancelled()
    {
        const auto drawing = changed();
        const QByteArray bytes = contentOf(drawing->path());
        Progress progress;
        progress.cancelled = true;
        const auto result = drawing->save(drawing->path(), &progress);
        QVERIFY(!result && result.error().cancelled);
        QVERIFY(drawing->isModified());
        QCOMPARE(contentOf(drawing->path()), bytes);
    }

    void rewrittenMeanwhile()
    {
        const auto drawing = opened(House().bytes());
        QVERIFY(QFile::resize(drawing->path(), 100));
        const auto result = drawing->save(inFolder("other.dxf"));
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
