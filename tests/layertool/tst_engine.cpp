#include "fixture.h"

#include <QStandardPaths>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <unistd.h>

using Change = std::function<void(const ToolFolder&)>;
Q_DECLARE_METATYPE(Change)

namespace {

constexpr char kRename[] = "rename --table names.csv --out out --format json ";
constexpr int kMany = 40;

/// Sends a signal to a child of a process; returns false when it has none (any more).
bool signalChild(const QProcess& process, int number)
{
    QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(process.processId()));
    const pid_t child =
        children.open(QIODevice::ReadOnly) ? children.readAll().split(' ').value(0).toInt() : 0;
    return child > 0 && ::kill(child, number) == 0;
}

bool signalProcess(const QProcess& process, int number)
{
    return process.state() == QProcess::Running && process.processId() > 0 &&
           ::kill(static_cast<pid_t>(process.processId()), number) == 0;
}

} // namespace

class TestEngine : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m = std::make_unique<ToolFolder>();
        m->write("names.csv", "A-WALL,B-WALL\r\n");
        m->write("other.csv", "A-WALL,C-WALL\r\n");
        m->copy("office-floor.dxf", "plan.dxf");
    }

    void misuse_data()
    {
        const Rows<QByteArray, int, QByteArray> row("line", "code", "said");
        row("nothing at all", "", 2, "translate");
        row("no such verb", "chek plan.dxf", 2, "check");
        row("no such option", "list --colour plan.dxf", 2, "--colour");
        row("no value", "list plan.dxf --format", 2, "--format");
        row("a value for a flag", "list --quiet=false plan.dxf", 2, "--quiet");
        row("words behind a verb that takes none", "man pages", 2, "pages");
        row("no such code page", "list --encoding KLINGON plan.dxf", 2, "KLINGON");
        row("nowhere to write", "rename --table names.csv plan.dxf", 2, "--out");
        row("two places", "rename --table names.csv --out out --in-place plan.dxf", 2,
            "--in-place");
        row("a backup of nothing", "rename --table names.csv --backup --out out plan.dxf", 2,
            "--backup");
        row("no drawings", "list", 2, "没有给出图形");
        row("an empty folder", "list out", 2, "没有给出图形");
        row("no jobs", "list --jobs 0 plan.dxf", 2, "“0”");
        row("a shard out of range", "list --shard 3/2 plan.dxf", 2, "“3/2”");
        row("no such list", "list --list lost", 2, "lost");
        row("a folder for a table", "set --table out --dry-run plan.dxf", 2, "文件夹");
        row("no such table", "rename --table lost.csv --dry-run plan.dxf", 2, "lost.csv");
        row("a format of others", "list --format sarif plan.dxf", 2, "sarif");
        row("over its original", "rename --table names.csv --out . plan.dxf", 2,
            "会覆盖一个原文件");
        row("over its report", "rename --table names.csv --out out --report out/plan.dxf plan.dxf",
            2, "会覆盖一个原文件");
        row("outputs of one name", "rename --table names.csv --out out plan.dxf plan.dws", 2,
            "同名");
        row("a drawing in another format", "list old.dwg", 1, "DWG");
        row("no such drawing", "list plan.dxf lost.dxf", 1, "lost.dxf");
        row("given twice", "list plan.dxf ./plan.dxf", 0, "给出了不止一次");
        row("no journal", "report .", 2, "journal");
    }

    void misuse()
    {
        QFETCH(QByteArray, line);
        m->copy("office-floor.dxf", "plan.dws");
        m->write("old.dwg", "AC1032\0\0\0");
        QDir().mkpath(m->path("out"));
        const QByteArray before = m->read("plan.dxf");
        const Run run = m->run(line);
        QTEST(run.code, "code");
        QFETCH(QByteArray, said);
        QVERIFY2(run.told().contains(said), run.told().constData());
        QCOMPARE(m->read("plan.dxf"), before);
    }

    /// The drawing listed first has the same name as one that an earlier run processed.
    void sameNames()
    {
        m->copy("office-floor.dxf", "b/plan.dxf");
        QCOMPARE(m->run("rename --table names.csv --out out b/plan.dxf").code, 0);
        const QByteArray before = m->read("out/b/plan.dxf");
        m->copy("site-plan.dxf", "a/plan.dxf");
        const Run run = m->run(QByteArray(kRename) + "a/plan.dxf b/plan.dxf");
        QCOMPARE(run.drawing("a/plan.dxf").value("status"), "done");
        QCOMPARE(run.drawing("b/plan.dxf").value("status"), "skipped");
        QCOMPARE(m->read("out/b/plan.dxf"), before);
        QCOMPARE(m->read("out/a/plan.dxf"), m->read("a/plan.dxf"));
    }

    void redone_data()
    {
        const Rows<Change, QByteArray, QByteArray> row("change", "options", "status");
        const auto write = [](const char* name, const char* bytes) {
            return [=](const ToolFolder& folder) { folder.write(name, bytes); };
        };
        const auto none = [](const ToolFolder&) {};
        row("nothing", none, "", "skipped");
        row("only how it is run", none, "--shard 1/1 --quiet --time-limit 100", "skipped");
        row("asked to", none, "--force", "done");
        row(
            "the original",
            [](const ToolFolder& folder) { folder.copy("site-plan.dxf", "plan.dxf"); }, "", "done");
        row("the table", write("names.csv", "A-WALL,D-WALL\r\n"), "", "done");
        row("an option", none, "--merge", "done");
        row("another file of the same name elsewhere", none, "--table other.csv", "done");
        row("the output emptied", write("out/plan.dxf", ""), "", "done");
        row("the output altered", write("out/plan.dxf", "0\nEOF\n"), "", "done");
        row(
            "the output gone",
            [](const ToolFolder& folder) { QFile::remove(folder.path("out/plan.dxf")); }, "",
            "done");
        row(
            "the journal gone",
            [](const ToolFolder& folder) {
                QFile::remove(folder.path("out/.layertool/journal.jsonl"));
            },
            "", "done");
    }

    void redone()
    {
        QFETCH(Change, change);
        QFETCH(QByteArray, options);
        const bool isOther = options.contains("other.csv");
        QCOMPARE(m->run(QByteArray(kRename) + "plan.dxf").code, 0);
        change(*m);
        QByteArray line =
            QByteArray(isOther ? "rename --out out --format json " : kRename) + options;
        const Run run = m->run(line + " plan.dxf");
        QTEST(run.drawing("plan.dxf").value("status").toString().toUtf8(), "status");
        m->run(line.replace("--out out", "--out fresh") + " plan.dxf");
        QCOMPARE(m->read("out/plan.dxf"), m->read("fresh/plan.dxf"));
    }

    /// Files of an earlier run that a new run does not write must not seem to belong to its result.
    void outdated()
    {
        QCOMPARE(m->run("split --out out plan.dxf").code, 0);
        QVERIFY(m->tree("out").contains("plan/A-WALL.dxf"));
        QCOMPARE(m->run("rename --table names.csv --in-place plan.dxf").code, 0);
        QCOMPARE(m->run("split --out out plan.dxf").code, 0);
        QVERIFY(m->tree("out").contains("plan/B-WALL.dxf"));
        QVERIFY(!m->tree("out").contains("plan/A-WALL.dxf"));
    }

    /// The time in a line decides which is newest, not its place. An incomplete line is ignored.
    void newerLine()
    {
        QCOMPARE(m->run(QByteArray(kRename) + "plan.dxf").code, 0);
        const QString journal = "out/.layertool/journal.jsonl";
        const QByteArray line = m->read(journal);
        QJsonObject old = QJsonDocument::fromJson(line).object();
        old.insert("when", QString::number(old.value("when").toString().toLongLong() - 1));
        old.insert("status", "failed");
        const QByteArray oldLine = QJsonDocument(old).toJson(QJsonDocument::Compact) + '\n';
        m->write(journal, line + oldLine + line.left(line.size() / 2));
        const Run report = m->run("report out");
        QCOMPARE(report.code, 0);
        QCOMPARE(report.output.count("\r\n"), 2);
        QVERIFY2(report.output.contains(",done,"), report.output.constData());
        m->copy("site-plan.dxf", "site.dxf");
        QCOMPARE(m->run(QByteArray(kRename) + "plan.dxf site.dxf").counted("status"),
            (QMap<QString, int>{{"done", 1}, {"skipped", 1}}));
        QCOMPARE(m->run("report out").output.count("\r\n"), 3);
    }

    /// Verbs that only read keep separate results and exit codes.
    void verbsApart()
    {
        m->write("rules.json", R"({"forbidden": ["A-WALL"], "extends": "base.json"})");
        m->write("base.json", "{}");
        const char* const check = "check --standard rules.json --out out --format json plan.dxf";
        const char* const list = "list --format csv plan.dxf";
        const Run first = m->run(check);
        QCOMPARE(first.code, 1);
        // Once without a journal, once with a new one, and once from the journal.
        for (const char* out : {" --out out", " --out out"})
            QCOMPARE(m->run(QByteArray(list) + out).output, m->run(list).output);
        QCOMPARE(m->run(QByteArray(kRename) + "plan.dxf").code, 0);
        const Run again = m->run(check);
        QCOMPARE(again.code, 1);
        QCOMPARE(again.drawing("plan.dxf").value("status"), "skipped");
        QCOMPARE(again.rows("plan.dxf"), first.rows("plan.dxf"));
        // Files that a rule file extends are part of it.
        m->write("base.json", R"({"forbidden": ["A-DOOR"]})");
        QCOMPARE(m->run(check).drawing("plan.dxf").value("status"), "done");
        QCOMPARE(m->run(QByteArray(kRename) + "plan.dxf").counted("status").firstKey(), "skipped");
        QCOMPARE(m->run("report out").output.count("\r\n"), 4);
    }

    void stopped_data()
    {
        const Rows<bool, int, int> row("worker", "number", "code");
        row("a worker process killed", true, SIGKILL, 1);
        row("the run killed", false, SIGKILL, -1);
        row("the run interrupted", false, SIGINT, 130);
    }

    /// What is there is whole, and the next run does the rest.
    void stopped()
    {
        QFETCH(bool, worker);
        QFETCH(int, number);
        QFETCH(int, code);
        QProcess process;
        startMany(process, "--jobs 1 --keep-going");
        QVERIFY(worker ? signalChild(process, number) : signalProcess(process, number));
        const Run run = ToolFolder::finished(process);
        QCOMPARE(run.code, code);
        QCOMPARE(run.counted("error").value("process-ended"), worker ? 1 : 0);
        QCOMPARE(run.counted("status").value("failed"), worker ? 1 : 0);
        QCOMPARE(run.counted("status").value("cancelled") > 0, number == SIGINT);
        const auto expected = whole(), sofar = m->tree("out");
        for (auto file = sofar.begin(); file != sofar.end(); ++file)
            QCOMPARE(*file, expected.value(file.key()));
        const int reported = m->run("report out").output.count(",done,");
        QVERIFY(reported > 0 && (!worker || reported == kMany - 1));
        const Run rest = m->run(QByteArray(kRename) + "in");
        QCOMPARE(rest.code, 0);
        QCOMPARE(rest.counted("status").value("skipped"), reported);
        QCOMPARE(m->tree("out"), expected);
        QVERIFY(QDir(m->path("out/.layertool")).entryList({"staging-*"}, QDir::Dirs).isEmpty());
    }

    void locked_data()
    {
        const Rows<int, QByteArray, QByteArray, int> row("kind", "division", "options", "code");
        row("a whole run beside a whole run", LOCK_EX, "1", "", 2);
        row("a shard beside a whole run", LOCK_EX, "1", "--shard 1/2", 2);
        row("a shard beside one of the same division", LOCK_SH, "2", "--shard 1/2", 0);
        row("a shard beside one of another", LOCK_SH, "3", "--shard 1/2", 2);
        row("a whole run beside a shard", LOCK_SH, "2", "", 2);
        row("one that waits", LOCK_EX, "1", "--wait", 0);
    }

    void locked()
    {
        QFETCH(int, kind);
        QFETCH(QByteArray, options);
        QFETCH(int, code);
        QFETCH(QByteArray, division);
        m->write("out/.layertool/lock", division);
        const int lock = ::open(
            QFile::encodeName(m->path("out/.layertool/lock")).constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(lock >= 0 && ::flock(lock, kind) == 0);
        QProcess process;
        m->prepare(process, ToolFolder::words(QByteArray(kRename) + options + " plan.dxf"));
        process.start();
        if (options == "--wait") {
            QVERIFY(!process.waitForFinished(1500));
            ::flock(lock, LOCK_UN);
        }
        const Run run = ToolFolder::finished(process);
        ::close(lock);
        QCOMPARE(run.code, code);
        QCOMPARE(m->tree("out").contains("plan.dxf"), code == 0);
    }

    /// A drawing that takes too much time or memory affects no other.
    void limits()
    {
        QProcess process;
        startMany(process, "--jobs 1 --time-limit 2");
        QVERIFY(signalChild(process, SIGSTOP));
        const Run late = ToolFolder::finished(process);
        QCOMPARE(late.code, 1);
        QCOMPARE(late.counted("error"), (QMap<QString, int>{{"", kMany - 1}, {"time-limit", 1}}));
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        QVERIFY(QFile(m->write("large.dxf", "0\n")).resize(qint64(2) << 30));
        m->write("dense.dxf", "0\nSECTION\n2\nENTITIES\n" +
                                  QByteArray("0\nLINE\n").repeated(3000000) +
                                  "0\nENDSEC\n0\nEOF\n");
        const Run large =
            m->run("list --jobs 1 --memory-limit 150 --format json large.dxf dense.dxf plan.dxf");
        QCOMPARE(large.counted("error"), (QMap<QString, int>{{"", 1}, {"memory-limit", 2}}));
        QCOMPARE(large.drawing("plan.dxf").value("status"), "done");
#endif
    }

    void failFast()
    {
        m->write("in/bad.dxf", "notes");
        m->copies("office-floor.dxf", 3);
        const Run run = m->run("list --format json --jobs 1 --fail-fast in/bad.dxf in");
        QCOMPARE(run.code, 1);
        QCOMPARE(run.counted("status"), (QMap<QString, int>{{"cancelled", 3}, {"failed", 1}}));
    }

    /// A changed drawing is replaced and its original kept beside it; an unchanged one stays as it
    /// is.
    void inPlace()
    {
        m->copy("site-plan.dxf", "site.dxf");
        const QByteArray original = m->read("plan.dxf");
        QCOMPARE(m->run("rename --table names.csv --in-place --backup plan.dxf site.dxf").code, 0);
        QVERIFY(m->read("plan.dxf") != original);
        QCOMPARE(m->read("plan.dxf.bak"), original);
        QCOMPARE(m->tree(".").keys(),
            QStringList({"names.csv", "other.csv", "plan.dxf", "plan.dxf.bak", "site.dxf"}));
    }

    /// What could not be written is not reported as done.
    void unwritten()
    {
        m->write("out/plan.dxf/notes.txt", "in the way");
        const Run run = m->run("rename --table names.csv --out out --format json plan.dxf");
        QCOMPARE(run.code, 1);
        QCOMPARE(run.drawing("plan.dxf").value("error"), "not-written");
        QVERIFY(run.rows("plan.dxf").isEmpty());
        QVERIFY(run.drawing("plan.dxf").value("counts").toObject().isEmpty());
    }

    /// The drawing is saved by somebody else after its first part was written.
    void changedMeanwhile()
    {
        QProcess process;
        m->prepare(process, ToolFolder::words("split --out out --format json plan.dxf"));
        process.start();
        const auto isUnderWay = [this] {
            QDirIterator walk(
                m->path("out/.layertool"), {"0-*.dxf"}, QDir::Files, QDirIterator::Subdirectories);
            return walk.hasNext();
        };
        QTRY_VERIFY(isUnderWay());
        QFile drawing(m->path("plan.dxf"));
        QVERIFY(drawing.open(QIODevice::Append) && drawing.write("999\nsaved\n") > 0);
        drawing.close();
        const Run run = ToolFolder::finished(process);
        QCOMPARE(run.code, 1);
        QCOMPARE(run.drawing("plan.dxf").value("error"), "drawing-changed-meanwhile");
        QVERIFY(m->tree("out").isEmpty());
    }

    void lists_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray> row("list", "arguments", "names");
        row("comments and blanks", "# all\n\nin/1.dxf\n", "", "in/1.dxf");
        row("from a spreadsheet", "\xef\xbb\xbfin/1.dxf\r\n\r\nin/0.dxf\r\n", "",
            "in/1.dxf in/0.dxf");
        row("beside paths", "in/1.dxf", "in/0.dxf", "in/0.dxf in/1.dxf");
        row("a folder with the outputs in it", "in", "", "in/0.dxf in/1.dxf in/deep/2.dxf");
        row("from a root", "in", "--root in", "0.dxf 1.dxf deep/2.dxf");
    }

    void lists()
    {
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, arguments);
        m->copies("site-plan.dxf", 2);
        m->copy("site-plan.dxf", "in/deep/2.dxf");
        m->copy("site-plan.dxf", "in/out/in/0.dxf");
        m->write("list", list);
        const QByteArray line = "rename --table names.csv --format json --out in/out --list list ";
        const Run run = m->run(line + arguments);
        QCOMPARE(run.code, 0);
        QTEST(run.values("name").join(' ').toUtf8(), "names");
    }

    void shards()
    {
        m->copies("office-floor.dxf", 7);
        for (const char* shard : {"2/2", "1/2"})
            QCOMPARE(m->run(QByteArray(kRename) + "in --shard " + shard).code, 0);
        for (const char* shard : {"1/3", "2/3", "3/3"}) {
            const Run run = m->run(QByteArray(kRename) + "in --shard " + shard);
            QCOMPARE(run.counted("status").keys(), QStringList("skipped"));
        }
        QCOMPARE(m->tree("out"), whole());
        const QByteArray one = m->run("report undisturbed").output.replace("undisturbed", "out");
        QCOMPARE(m->run("report out").output, one);
    }

    /// Shards on "several" hosts are killed half-way and run again with another division.
    void manyMachines()
    {
        if (QStandardPaths::findExecutable("parallel").isEmpty())
            QSKIP("parallel is not installed");
        m->copies("office-floor.dxf", kMany);
        m->write("list", "in\n");
        const QStringList words{"list", "out", "rename", "--table", "names.csv", "--jobs", "1"};
        const auto start = [&](QProcess& process, const char* shards) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert("LAYERTOOL", LAYERTOOL);
            environment.insert("SHARDS", shards);
            environment.insert("PARALLEL_HOME", m->path("parallel"));
            process.setProcessEnvironment(environment);
            m->prepare(process, words, MANY_SCRIPT);
            process.start();
            QVERIFY(process.waitForStarted());
        };
        QProcess first;
        start(first, "2");
        QVERIFY(first.waitForReadyRead(60000));
        QVERIFY(signalChild(first, SIGKILL));
        QVERIFY(signalProcess(first, SIGKILL));
        first.waitForFinished();
        QProcess second;
        start(second, "5");
        const Run run = ToolFolder::finished(second);
        QVERIFY2(run.code == 0, run.told().constData());
        QVERIFY(QFile::remove(m->path("out/report.csv")));
        QCOMPARE(m->tree("out"), whole());
        QCOMPARE(m->run("report out").output.count(",done,"), kMany);
    }

private:
    /// Starts a run over many drawings and waits for its first answer.
    void startMany(QProcess& process, const char* more) const
    {
        m->copies("office-floor.dxf", kMany);
        m->prepare(
            process, ToolFolder::words(kRename) + ToolFolder::words(more) + QStringList("in"));
        process.start();
        process.waitForReadyRead(60000);
    }

    /// The outputs of an undisturbed run over the same drawings.
    QMap<QString, QByteArray> whole() const
    {
        m->run("rename --table names.csv --out undisturbed in");
        return m->tree("undisturbed");
    }

    std::unique_ptr<ToolFolder> m;
};

QTEST_GUILESS_MAIN(TestEngine)
#include "tst_engine.moc"
