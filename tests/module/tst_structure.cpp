#include "files.h"
#include "modulefixture.h"

#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

const QDir kRoot(QStringLiteral(SOURCE_DIR));

QString read(const QString& path)
{
    return QString::fromUtf8(contentOf(path));
}

/// The first capture of every match of `pattern` in the lines of a text.
QStringList found(const QString& text, const char* pattern)
{
    QStringList all;
    auto match = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (match.hasNext())
        all.append(match.next().captured(1));
    return all;
}

QStringList sourcesIn(const QDir& folder)
{
    QDirIterator files(folder.path(), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    QStringList paths;
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

/// The first match of `pattern` in each line that a program prints about the module's library.
QStringList linesOf(const QString& program, const QStringList& options, const char* pattern)
{
    QProcess process;
    process.start(program, QStringList(options) << ModuleFixture::modulePath());
    process.waitForFinished();
    QStringList lines = found(QString::fromUtf8(process.readAllStandardOutput()), pattern);
    lines.sort();
    return lines;
}

} // namespace

class TestStructure : public QObject
{
    Q_OBJECT

private slots:
    /// Only one folder depends on the host's headers: no other file calls the host while a dialog
    /// is open or uses names of a single host.
    void knowsTheHostInOneFolder()
    {
        const QRegularExpression hostName(
            "\\b(vnuiShowModelDialog|vnuiMessageBox|CVnUiTaskDialog|vn_user_config|getVar|"
            "formatColor|"
            "vnsiutWcMatchEx|vn_arbitDict_getservice|grUIProxy|vnsiutNewRb|vnuiCurTargetWindow|"
            "hostextras|ArrayCount)");
        const QDir module(kRoot.filePath("source/qtcmdsui/cmdlayerui"));
        QStringList strangers;
        int known = 0;
        for (const QString& path : sourcesIn(module)) {
            const auto match = hostName.match(read(path));
            const bool isKnown = path.startsWith(module.filePath("hostapi/"));
            known += isKnown && match.hasMatch();
            if (!isKnown && match.hasMatch())
                strangers.append(path + ": " + match.captured());
        }
        QCOMPARE(strangers, QStringList());
        QVERIFY(known > 2);
    }

    /// The layers of the drawing library: a folder includes only the folders below it; the facade
    /// includes all of them.
    void keepsTheFloorsOfDrawings()
    {
        const QHash<QString, QStringList> standsOn{{"file", {}}, {"layers", {"file", "entities"}},
            {"entities", {"file", "layers"}}, {"geometry", {"file", "layers", "entities"}},
            {"states", {"file", "layers"}}, {"translation", {"file", "layers", "entities"}}};
        const QDir library(kRoot.filePath("source/drawing"));
        const QDir shared(kRoot.filePath("include/qt")); // It contains the rule for names.
        QStringList strangers;
        int count = 0;
        for (const QString& path : sourcesIn(library)) {
            const QDir folder = QFileInfo(path).dir();
            const QString own = folder.dirName();
            if (folder == library)
                continue;
            for (const QString& name : found(read(path), "^#include \"([^\"]+)\"")) {
                const QString other = name.section('/', 0, -2);
                const bool isOwn = other.isEmpty() && (folder.exists(name) || shared.exists(name));
                // Folders that depend on each other only share types, not edits.
                const bool areEdits = standsOn[other].contains(own) && name.contains("edits");
                ++count;
                if (!isOwn && (areEdits || !standsOn[own].contains(other)))
                    strangers.append(path + ": " + name);
            }
        }
        QCOMPARE(strangers, QStringList());
        QVERIFY(count > 200);
    }

    void includesPublicHeadersOnly()
    {
        QSet<QString> allowed{"hostextras.h"};
        for (const char* folder : {"include/oda", "include/vnsi", "include/qt"}) {
            for (const QString& name : QDir(kRoot.filePath(folder)).entryList(QDir::Files))
                allowed.insert(name);
        }
        const QDir module(kRoot.filePath("source/qtcmdsui/cmdlayerui"));
        QStringList strangers;
        int count = 0;
        for (const QString& path : sourcesIn(module)) {
            for (QString name : found(read(path), "^\\s*#\\s*include\\s*([<\"][^>\"]+)[>\"]")) {
                const bool isSystem = name.startsWith('<');
                name.remove(0, 1);
                const QString inModule = QDir::cleanPath(module.filePath(name));
                const QString beside = QDir::cleanPath(QFileInfo(path).dir().filePath(name));
                ++count;
                if (isSystem) // Only Qt and the standard library.
                    strangers += name.contains('/') || name.endsWith(".h") ? QStringList{name}
                                                                           : QStringList{};
                else if (!allowed.contains(name) && !isOwn(module, inModule) &&
                         !isOwn(module, beside))
                    strangers.append(path + ": " + name);
            }
        }
        QCOMPARE(strangers, QStringList());
        QVERIFY(count > 50);
    }

    void exportsEntryPointsAndFileRequestsOnly()
    {
        QCOMPARE(linesOf("nm", {"-DC", "--defined-only"}, "^[0-9a-f]+ \\w ([^(@\\n]*)"),
            (QStringList{"odrxCreateModuleObject", "odrxGetAPIVersion", "vnsi::vnqtGetFileName",
                "vnsi::vnqtGetNavFileName"}));
    }

    void findsLibrariesBesideItself()
    {
        QCOMPARE(linesOf("readelf", {"-d"}, "\\((?:RUNPATH|RPATH)\\).*\\[(.*)\\]"),
            QStringList{"$ORIGIN:$ORIGIN/.."});
    }

    void needsPublicLibrariesOnly()
    {
        const QRegularExpression allowed("^(libQt5(Core|Gui|Widgets)|lib(stdc\\+\\+|gcc_s|m|c|asan|"
                                         "ubsan)|ld-linux.*|libvnhost|libvnplatform)\\.so.*$");
        const QStringList needed = linesOf("readelf", {"-d"}, "\\(NEEDED\\).*\\[(.*)\\]");
        QVERIFY(needed.contains("libvnhost.so.1"));
        for (const QString& library : needed)
            QVERIFY2(allowed.match(library).hasMatch(), qPrintable(library));
    }

    void holdsBitmapsInTwoSizes()
    {
        const ModuleFixture module;
        QSet<QByteArray> seen;
        for (const char* name : {"current", "nocurrent", "deleted", "off", "on", "frozed", "thaw",
                 "lock", "unlock", "print", "noprint", "allfrozed", "allthaw", "newlayer",
                 "deletelayer", "currentlayer"}) {
            const QString path = QStringLiteral(":/res/Resources/layer_%1").arg(name);
            const QImage small(path + ".bmp");
            const QImage large(path + "@2x.bmp");
            QCOMPARE(small.size(), QSize(16, 16));
            QCOMPARE(large.size(), QSize(32, 32));
            QVERIFY2(small.hasAlphaChannel() && large.hasAlphaChannel(), name);
            bool isClearSomewhere = false; // The icon must not have an opaque background.
            for (int i = 0; i < 16 * 16; ++i)
                isClearSomewhere |= qAlpha(small.pixel(i % 16, i / 16)) == 0;
            QVERIFY2(isClearSomewhere, name);
            seen.insert(QByteArray(
                reinterpret_cast<const char*>(small.constBits()), int(small.sizeInBytes())));
        }
        QCOMPARE(seen.size(), 16); // No two icons are equal.
    }

private:
    static bool isOwn(const QDir& module, const QString& path)
    {
        return path.startsWith(module.path() + '/') && QFile::exists(path);
    }
};

QTEST_MAIN(TestStructure)
#include "tst_structure.moc"
