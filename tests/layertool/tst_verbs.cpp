#include "fixture.h"
#include "standardsfile.h"
#include "steps.h"

#include <QTextCodec>

#include <functional>

using namespace drawing;

Q_DECLARE_METATYPE(std::function<QByteArray(QByteArray)>)

namespace {

/// The number of entities on a layer that an independent reader sees; `what` is a kind such as
/// "layouts", "blocks" or "ownColor".
int countOf(const QJsonObject& seen, const QString& layer, const char* what)
{
    const QJsonObject layers = seen.value(QLatin1String("layers")).toObject();
    return layers.value(layer.toLower()).toObject().value(QLatin1String(what)).toInt();
}

int countOf(const QJsonObject& seen, const char* what)
{
    int sum = 0;
    for (const QString& layer : seen.value(QLatin1String("layers")).toObject().keys())
        sum += countOf(seen, layer, what);
    return sum;
}

QByteArray inCodec(const char* codec, const QByteArray& utf8)
{
    return QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(utf8));
}

} // namespace

class TestVerbs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m = std::make_unique<ToolFolder>();
        m->copy("office-floor.dxf", "plan.dxf");
    }

    void roundTrip_data()
    {
        const Rows<QByteArray, std::function<QByteArray(QByteArray)>> row("sample", "save");
        const auto replaced = [](const char* from, const char* to) {
            return [=](QByteArray text) { return text.replace(from, to); };
        };
        row("as written", "office-floor.dxf", [](const QByteArray& text) { return text; });
        row("of an old code page", "workshop-gbk.dxf", [](const QByteArray& text) { return text; });
        row("with a mark", "office-floor.dxf",
            [](const QByteArray& text) { return "\xef\xbb\xbf" + text; });
        row("semicolons, truth in capitals", "site-plan.dxf", [](QByteArray text) {
            return text.replace(',', ';').replace("true", "TRUE").replace("false", "FALSE");
        });
        row("tabs", "site-plan.dxf", replaced(",", "\t"));
        row("every cell quoted", "site-plan.dxf", [](QByteArray text) {
            return '"' + text.replace(",", "\",\"").replace("\r\n", "\"\n\"").chopped(1);
        });
        row("GBK", "office-floor.dxf", [](const QByteArray& text) { return inCodec("GBK", text); });
        row("UTF-16", "office-floor.dxf",
            [](const QByteArray& text) { return inCodec("UTF-16", text); });
    }

    /// A table that nobody edited gives back the same drawing, byte for byte.
    void roundTrip()
    {
        QFETCH(QByteArray, sample);
        QFETCH(std::function<QByteArray(QByteArray)>, save);
        m->copy(sample.constData(), "plan.dxf");
        m->write("layers.csv", save(m->run("list --format csv plan.dxf").output));
        const Run run = m->run("set --table layers.csv --out out --format json plan.dxf");
        QVERIFY2(run.code == 0, run.told().constData());
        QCOMPARE(run.drawing("plan.dxf").value("changed"), false);
        QCOMPARE(run.drawing("plan.dxf").value("notices").toArray().size(), 0);
        QCOMPARE(m->read("out/plan.dxf"), m->read("plan.dxf"));
    }

    void tables_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray> row("table", "property", "value");
        row("a colour", "name,color\nA-WALL,30\n", "color", "30");
        row("a true colour", "name,color\nA-WALL,#Ff8000\n", "color", "#ff8000");
        row("millimetres with a comma", "name;lineweight\nA-WALL;0,5\n", "lineweight", "0.50");
        row("truth in Chinese", "名称,冻结\nA-WALL,是\n", "frozen", "true");
        row("another letter case", "Name,Off\na-wall,1\n", "off", "true");
        row("an empty cell changes nothing", "name,off,color\nA-WALL,1,\n", "off", "true");
        row("blank rows above", "\n\nname,transparency\n,\nA-WALL,50\n", "transparency", "50");
        row("a description over two lines", "name,description\nA-WALL,\"a;b\"\n", "description",
            "a;b");
    }

    void tables()
    {
        QFETCH(QByteArray, table);
        QFETCH(QByteArray, property);
        m->write("layers.csv", table);
        QCOMPARE(m->run("set --table layers.csv --in-place plan.dxf").code, 0);
        const QJsonObject layer =
            m->run("list --format json plan.dxf").row("plan.dxf", "name", "A-WALL");
        QFETCH(QByteArray, value);
        QCOMPARE(layer.value(QLatin1String(property)).toVariant().toString(), QString(value));
    }

    void cells_data()
    {
        const Rows<QByteArray, QByteArray> row("table", "cell");
        row("a colour there is not", "name,color\nA-WALL,256\n", "B2");
        row("behind blank rows", "name,color\n\n\nA-WALL,red\n", "B4");
        row("a lineweight nobody has", "name,off,lineweight\nA-WALL,0,0.51\n", "C2");
        row("neither true nor false", "drawing,name,off\nplan.dxf,A-WALL,maybe\n", "C2");
        row("a transparency too much", "name,transparency\nA-DOOR,10\nA-WALL,91\n", "B3");
        row("a linetype that is not there", "name,linetype\nA-WALL,NONE-SUCH\n", "A2");
        row("a name no layer can have", "name\na<b\n", "A2");
        row("a row without a name", "name,off\n,1\n", "A2");
        row("a new name that is taken", "name,new name\nA-WALL,A-DOOR\n", "B2");
        row("a new name for layer 0", "name,new name\n0,ZERO\n", "B2");
    }

    /// An invalid row is reported with its cell, and nothing of it is applied.
    void cells()
    {
        QFETCH(QByteArray, table);
        m->write("layers.csv", table);
        const Run run = m->run("set --table layers.csv --dry-run --format json plan.dxf");
        QCOMPARE(run.code, 1);
        QFETCH(QByteArray, cell);
        QVERIFY2(!run.row("plan.dxf", "cell", cell).value("cause").toString().isEmpty(),
            run.output.constData());
    }

    /// Rows for other drawings are ignored, and unknown columns are reported.
    void tableOfMany()
    {
        m->copy("office-floor.dxf", "other.dxf");
        m->write("layers.csv",
            "drawing,name,new name,colour\nplan.dxf,A-WALL,WALLS,1\nplan.dxf,NEW,,\n");
        const Run run = m->run("set --table layers.csv --out out --format json plan.dxf other.dxf");
        QCOMPARE(run.code, 0);
        QCOMPARE(m->read("out/other.dxf"), m->read("other.dxf"));
        QVERIFY(run.output.contains("column-unknown") && run.output.contains("no-rows"));
        QVERIFY(layers("out/plan.dxf").contains("WALLS") && layers("out/plan.dxf").contains("NEW"));
    }

    void rename_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QByteArray> row(
            "layers", "options", "table", "after");
        const QByteArray byTable = "--table names.csv";
        row("one", "A B", "--from a --to C", "", "B C");
        row("letter case alone", "A B", "--from A --to a", "", "B a");
        row("a circle", "A B C", byTable, "A,B\nB,C\nC,A\n", "A B C");
        row("a clash", "A B", byTable, "A,B\n", "A B");
        row("a clash that is merged", "A B", byTable + " --merge", "A,B\n", "B");
        row("groups", "X-1 Y-2 Z", "--regex ([XY])-(\\d) --replace \\2\\1", "", "1X 2Y Z");
        row("the whole name only", "AB ABC", "--regex ab --replace N", "", "ABC N");
    }

    void rename()
    {
        QFETCH(QByteArray, layers);
        QFETCH(QByteArray, options);
        QFETCH(QByteArray, table);
        m->write("made.csv", "name\n" + QByteArray(layers).replace(' ', '\n'));
        m->write("names.csv", table);
        m->copy("site-plan.dxf", "plan.dxf");
        const QStringList before = this->layers("plan.dxf");
        QCOMPARE(m->run("set --table made.csv --in-place plan.dxf").code, 0);
        const Run run = m->run("rename --in-place --format json plan.dxf " + options);
        QStringList after = this->layers("plan.dxf");
        QCOMPARE(run.code, run.output.contains("\"outcome\":\"refused\"") ? 1 : 0);
        for (const QString& name : before)
            QVERIFY2(after.removeOne(name), qPrintable(name));
        after.sort();
        QTEST(after.join(' ').toUtf8(), "after");
    }

    void removal_data()
    {
        const Rows<QByteArray, QByteArray, int, QByteArray> row("line", "gone", "code", "kept");
        row("merged", "merge --layer A-WALL --into A-DOOR", "A-WALL", 0, "");
        row("merged by pattern, the target stays", "merge --pattern A-DO*,A-WALL --into A-DOOR",
            "A-WALL", 0, "");
        row("merged into what is missing", "merge --layer A-WALL --into LOST", "", 1, "");
        row("deleted", "delete --regex a-wall", "A-WALL", 0, "");
        row("deleted, layer 0", "delete --layer 0 --layer A-WALL", "A-WALL", 1, "0");
        row("deleted, the current layer", "delete --layer CURRENT", "", 1, "CURRENT");
        row("deleted, nowhere to be found", "delete --layer LOST", "", 0, "");
        row("purged", "purge", "EMPTY", 0, "");
        row("purged, used", "purge --layer A-WALL --layer EMPTY", "EMPTY", 1, "A-WALL");
    }

    void removal()
    {
        m->write("made.csv", "name\nEMPTY\nCURRENT\n");
        QCOMPARE(m->run("set --table made.csv --in-place plan.dxf").code, 0);
        auto drawing = *Drawing::open(m->path("plan.dxf"));
        QVERIFY(inStep(
            *drawing, [&] { return drawing->setCurrentLayer(drawing->findLayer("CURRENT")->id); }));
        QVERIFY(drawing->save(m->path("plan.dxf")));
        const QStringList before = layers("plan.dxf");

        QFETCH(QByteArray, line);
        const Run run = m->run(line + " --out out --format json plan.dxf");
        QTEST(run.code, "code");
        QFETCH(QByteArray, gone);
        QFETCH(QByteArray, kept);
        if (!kept.isEmpty())
            QVERIFY2(!run.row("plan.dxf", "layer", kept).value("cause").toString().isEmpty(),
                run.output.constData());
        if (!QFile::exists(m->path("out/plan.dxf"))) {
            QCOMPARE(run.drawing("plan.dxf").value("error"), "refused");
            return;
        }
        QStringList expected = before;
        expected.removeAll(gone);
        if (line == "purge") { // Other layers of the sample are empty, too.
            QVERIFY(!layers("out/plan.dxf").contains("EMPTY"));
            QVERIFY(layers("out/plan.dxf").contains("CURRENT"));
        } else {
            QCOMPARE(layers("out/plan.dxf"), expected);
        }
    }

    void diff_data()
    {
        const Rows<QByteArray, QByteArray> row("edit", "changes");
        row("nothing", "", "");
        row("another name", "rename --from A-WALL --to WALLS", "renamed A-WALL name");
        row("letter case", "rename --from A-WALL --to a-wall", "changed A-WALL name");
        row("two of the same content", "merge --layer A-WALL --into A-DOOR",
            "changed A-DOOR entities,gone A-WALL entities");
        row("a property", "set --table made.csv",
            "changed A-WALL color,changed A-WALL plot-style,added NEW entities");
        row("a state", "states save --state S", "state-added S ");
    }

    void diff()
    {
        QFETCH(QByteArray, edit);
        m->write("made.csv", "name,color\nA-WALL,31\nNEW,1\n");
        m->copy("office-floor.dxf", "edited.dxf");
        if (!edit.isEmpty())
            QCOMPARE(m->run(edit + " --in-place edited.dxf").code, 0);
        const Run run = m->run("diff --format json plan.dxf edited.dxf");
        QStringList changes;
        for (const QJsonValue row : run.rows("plan.dxf"))
            changes += row.toObject().value("change").toString() + ' ' +
                       row.toObject().value("name").toString() + ' ' +
                       row.toObject().value("property").toString();
        QTEST(changes.join(',').toUtf8(), "changes");
        QCOMPARE(run.code, changes.isEmpty() ? 0 : 1);
    }

    void diffFolders()
    {
        for (const char* name : {"a/same.dxf", "b/same.dxf", "a/deep/gone.dxf", "b/new.dxf"})
            m->copy("site-plan.dxf", name);
        const Run run = m->run("diff --format json a b");
        QCOMPARE(run.code, 1);
        QCOMPARE(run.rows("a/same.dxf").size(), 0);
        QCOMPARE(run.row("a/deep/gone.dxf", "change", "only-in-first").isEmpty(), false);
        QCOMPARE(run.row("b/new.dxf", "change", "only-in-second").isEmpty(), false);
    }

    void split_data()
    {
        const Rows<QByteArray> row("options");
        row("by layers", "");
        row("by first fields", "--by field");
    }

    /// Each part is a complete drawing for other readers, and together they contain every inserted
    /// entity exactly once.
    void split()
    {
        if (!readback::isInstalled())
            QSKIP("python3-ezdxf is not installed");
        QFETCH(QByteArray, options);
        const Run run = m->run("split --out out --format json plan.dxf " + options);
        QCOMPARE(run.code, 0);
        const QJsonObject before = seen("plan.dxf");
        int placed = 0;
        for (const QJsonValue value : run.rows("plan.dxf")) {
            const QJsonObject part = value.toObject();
            const QJsonObject after = seen("out/" + part.value("file").toString());
            QVERIFY2(after.contains("errors"), qPrintable(after.value("failure").toString()));
            QCOMPARE(after.value("errors"), before.value("errors"));
            placed += countOf(after, "layouts");
            if (options.isEmpty())
                QCOMPARE(countOf(after, "layouts"),
                    countOf(before, part.value("part").toString(), "layouts"));
            QCOMPARE(countOf(after, "blocks"), countOf(before, "blocks"));
        }
        QCOMPARE(placed, countOf(before, "layouts"));
        QCOMPARE(m->tree("out").size(), run.rows("plan.dxf").size());
    }

    /// Names of old files that lead out of the folder, or that some file systems treat as equal.
    void oddNames()
    {
        const QByteArrayList names{
            "..", "a/b", "a\\b", "a:b", "Wall", "WALL", "CON.", " ", "SPLIT$OUT"};
        QByteArray text = "0\nSECTION\n2\nENTITIES\n";
        for (const QByteArray& name : names)
            text += "0\nPOINT\n8\n" + name + "\n10\n0\n20\n0\n";
        m->write("odd.dxf", text + "0\nENDSEC\n0\nEOF\n");
        const Run run = m->run("split --out out --format json odd.dxf");
        QCOMPARE(run.code, 0);
        int points = 0;
        for (const QJsonValue row : run.rows("odd.dxf"))
            points += row.toObject().value("entities").toInt();
        QCOMPARE(points, names.size());
        QSet<QString> folded;
        const auto files = m->tree("out");
        for (auto file = files.begin(); file != files.end(); ++file) {
            QCOMPARE(QFileInfo(file.key()).path(), "odd");
            folded.insert(file.key().toLower());
            QVERIFY2(file->contains("POINT"), qPrintable(file.key()));
        }
        QCOMPARE(files.size(), run.rows("odd.dxf").size());
        QCOMPARE(folded.size(), files.size());
        QCOMPARE(m->tree(".").size(), files.size() + 2);
    }

    void states()
    {
        const auto stateNames = [this](const char* drawing) {
            QStringList names = (*Drawing::open(m->path(drawing)))->layerStateNames();
            names.sort();
            return names;
        };
        const QStringList had = stateNames("plan.dxf");
        QCOMPARE(m->run("states save --state Mine --in-place plan.dxf").code, 0);
        QStringList has = had + QStringList("Mine");
        has.sort();
        QCOMPARE(stateNames("plan.dxf"), has);
        QCOMPARE(m->run("states list --format json plan.dxf").rows("plan.dxf").size(), has.size());

        QCOMPARE(m->run("states export --state mine --out out plan.dxf").code, 0);
        QCOMPARE(m->tree("out").keys(), QStringList("plan.las"));
        m->copy("site-plan.dxf", "site.dxf");
        const Run import =
            m->run("states import --file out/plan.las --in-place --format json site.dxf");
        QVERIFY2(import.code == 0 && import.output.contains("state-layers-unknown"),
            import.told().constData());
        QVERIFY(stateNames("site.dxf").contains("Mine"));

        m->write("off.csv", "name,off\nA-WALL,1\n");
        QCOMPARE(m->run("set --table off.csv --in-place plan.dxf").code, 0);
        QCOMPARE(m->run("states restore --state Mine --in-place plan.dxf").code, 0);
        QVERIFY(!(*Drawing::open(m->path("plan.dxf")))->findLayer("A-WALL")->properties.off);

        QCOMPARE(m->run("states delete --state MINE --in-place plan.dxf").code, 0);
        QCOMPARE(stateNames("plan.dxf"), had);
        QCOMPARE(m->run("states delete --state Mine --in-place plan.dxf").code, 1);
        QCOMPARE(m->run("states restore --in-place plan.dxf").code, 2);
        QCOMPARE(m->run("states burn plan.dxf").code, 2);
    }

    void translate_data()
    {
        const Rows<QByteArray, bool, bool> row("options", "inBlocks", "byLayer");
        row("blocks stay", "", false, false);
        row("blocks too", "--option blocks", true, false);
        row("by layer", "--option color-bylayer --option linetype-bylayer --option blocks", true,
            true);
    }

    /// Two layers are translated to one target, with colours and linetypes of their own in blocks.
    void translate()
    {
        if (!readback::isInstalled())
            QSKIP("python3-ezdxf is not installed");
        QFETCH(bool, inBlocks);
        QFETCH(bool, byLayer);
        QFETCH(QByteArray, options);
        TargetLayer target;
        target.name = "Z-ALL";
        QVERIFY(saveStandard(m->path("all.dws"), {{"A-DIMS", target}, {"0", target}}));
        QCOMPARE(m->run("translate --standard all.dws --out out plan.dxf " + options).code, 0);
        const QJsonObject before = seen("plan.dxf"), after = seen("out/plan.dxf");
        const auto all = [&](const char* what) {
            return countOf(before, "A-DIMS", what) + countOf(before, "0", what);
        };
        QVERIFY(all("layouts") > 0 && all("blocks") > 0 && all("ownColor") > 0);
        QCOMPARE(countOf(after, "Z-ALL", "layouts"), all("layouts"));
        QCOMPARE(countOf(after, "Z-ALL", "blocks"), inBlocks ? all("blocks") : 0);
        if (inBlocks) {
            QCOMPARE(countOf(after, "Z-ALL", "ownLinetype") == 0, byLayer);
            QCOMPARE(countOf(after, "Z-ALL", "ownColor"), byLayer ? 0 : all("ownColor"));
        }
        for (const char* what : {"layouts", "blocks"})
            QCOMPARE(countOf(after, what), countOf(before, what));
        QCOMPARE(after.value("errors"), before.value("errors"));
    }

    /// The log is beside its drawing, even when the drawing has the longest possible name.
    void translationLog()
    {
        TargetLayer wall;
        wall.name = QStringLiteral("S-墙");
        QVERIFY(saveStandard(m->path("standard.dws"), {{"A-WALL", wall}, {"nowhere", wall}}));
        const QString longest = QString(251, 'n') + ".dxf";
        m->copy("office-floor.dxf", longest);
        const Run run =
            m->run(ToolFolder::words("translate --standard standard.dws --out out --option "
                                     "log --format json --map-same plan.dxf") +
                   QStringList(longest));
        QCOMPARE(run.code, 0);
        QCOMPARE(m->tree("out").size(), 4);
        QVERIFY(m->read("out/plan.log").contains("“nowhere” → “S-墙”：未执行。"));
        QVERIFY(run.output.contains("mapping-left-out"));
    }

private:
    QStringList layers(const QString& name) const
    {
        const auto drawing = Drawing::open(m->path(name));
        return drawing ? layerNames(**drawing) : QStringList();
    }

    QJsonObject seen(const QString& name) const
    {
        return readback::seen(m->path(name), "entities");
    }

    std::unique_ptr<ToolFolder> m;
};

QTEST_GUILESS_MAIN(TestVerbs)
#include "tst_verbs.moc"
