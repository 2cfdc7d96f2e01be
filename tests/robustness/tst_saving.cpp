#include "files.h"
#include "rows.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <csignal>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kKills = 200;
constexpr char kNobody[] = "65534";

/// Runs the helper that saves and waits for its end.
struct Save
{
    Save(const QString& path, qint64 microseconds, const QString& user = "0")
    {
        process.start(QStringLiteral(SAVE_HELPER), {path, QString::number(microseconds), user});
        hasEnded = process.waitForFinished();
        output = QString::fromUtf8(process.readAllStandardOutput());
    }
    bool wasKilled() const { return process.exitStatus() == QProcess::CrashExit; }

    QProcess process;
    bool hasEnded = false;
    QString output;
};

/// A folder with a file system of its own, which exists as long as this object.
class SmallDisk
{
public:
    explicit SmallDisk(const QString& folder)
        : m_folder(QFile::encodeName(folder)),
          m_isMounted(mount("none", m_folder.constData(), "tmpfs", 0, "size=640k") == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_isMounted)
            umount2(m_folder.constData(), MNT_DETACH);
    }
    bool isMounted() const { return m_isMounted; }

private:
    QByteArray m_folder;
    bool m_isMounted;
};

} // namespace

/// Whatever happens while a drawing is being saved, its file is completely the old or completely
/// the new one.
class TestSaving : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(chmod(QFile::encodeName(m_folder->path()).constData(), 0755) == 0);
    }

    void killed()
    {
        const QString path = copySample(m_folder->path());
        const QByteArray on = contentOf(path);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(Save(path, 0).process.exitCode(), 0);
        const qint64 longest = clock.nsecsElapsed() / 1000 + 1;
        QCOMPARE(contentOf(path), on); // It was switched off and on twice.

        QRandomGenerator chance(1);
        QByteArray off;
        int kills = 0, afterSaves = 0;
        for (int run = 0; run < 20 * kKills && kills < kKills; ++run) {
            const Save save(path, chance.bounded(static_cast<int>(longest)) + 1);
            QVERIFY(save.hasEnded);
            kills += save.wasKilled();
            const QByteArray now = contentOf(path);
            if (off.isEmpty() && now.size() == on.size() + 1 && now != on)
                off = now; // One character more, the minus sign of the colour.
            QVERIFY(now == on || now == off);
            afterSaves += now == off;
        }
        QCOMPARE(kills, kKills);
        QVERIFY(afterSaves > 0);
        QVERIFY(QByteArray(off).replace("-7", "7") == QByteArray(on).replace("-7", "7"));
        // A kill leaves at most one additional file, which does not look like a drawing.
        QDir folder(m_folder->path());
        QVERIFY(static_cast<int>(folder.entryList(QDir::Files).size()) <= kKills + 1);
        QCOMPARE(folder.entryList({"*.dxf"}, QDir::Files).size(), 1);
        QCOMPARE(Save(path, 0).process.exitCode(), 0);
    }

    void diskFull()
    {
        const SmallDisk disk(m_folder->path());
        if (!disk.isMounted())
            QSKIP("a small disk can be mounted by the system's administrator only");
        checkRefused(copySample(m_folder->path()), "0", "磁盘空间不足");
    }

    void notAllowed_data()
    {
        const Rows<uint, uint, QString> row("folderMode", "fileMode", "cause");
        row("folder of somebody else", 0755, 0666, "没有写入该文件夹的权限");
        row("file of somebody else", 0777, 0644, "文件是只读的");
    }

    void notAllowed()
    {
        QFETCH(uint, folderMode);
        QFETCH(uint, fileMode);
        QFETCH(QString, cause);
        if (geteuid() != 0)
            QSKIP("only the system's administrator can act as somebody else");
        const QString path = copySample(m_folder->path());
        QVERIFY(chmod(QFile::encodeName(path).constData(), fileMode) == 0);
        QVERIFY(chmod(QFile::encodeName(m_folder->path()).constData(), folderMode) == 0);
        checkRefused(path, kNobody, cause);
    }

private:
    /// A save that is not possible is reported with the drawing and the cause, and changes no file.
    void checkRefused(const QString& path, const QString& user, const QString& cause) const
    {
        const QByteArray before = contentOf(path);
        const Save save(path, 0, user);
        if (save.process.exitCode() == 4 || !save.hasEnded)
            QSKIP("the helper cannot be reached by another user");
        QCOMPARE(save.process.exitCode(), 1);
        for (const QString& part : QStringList{path, cause, "open and modified: 1"})
            QVERIFY2(save.output.contains(part), qPrintable(save.output));
        QCOMPARE(contentOf(path), before);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
    }
    QString copySample(const QString& folder) const
    {
        const QString path = QDir(folder).filePath("图 1.dxf");
        return QFile::copy(QStringLiteral(SAMPLE), path) ? path : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestSaving)
#include "tst_saving.moc"
