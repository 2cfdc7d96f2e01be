#include "fixture.h"
#include "plan.h"

#include <QUrl>
#include <QXmlStreamReader>

namespace {

/// A drawing with entities, each given by its layer and further groups, and with empty layers.
Plan drawingOf(std::initializer_list<std::pair<const char*, const char*>> entities,
    const char* version = "AC1015", QByteArrayList layers = {})
{
    Plan plan;
    plan.version = version;
    int handle = 100;
    for (const auto& [layer, groups] : entities) {
        plan.entities += "0 POINT | 5 " + QByteArray::number(handle++, 16) +
                         " | 100 AcDbEntity | 8 " + layer + '\n' + groups +
                         "\n100 AcDbPoint | 10 0 | 20 0\n";
        layers.push_front(layer);
    }
    for (const QByteArray& layer : layers)
        plan.layers += layerRecord(QByteArray::number(handle++, 16), layer, "7");
    return plan;
}

/// A rule file in which only the given rules are on.
QByteArray rulesWith(const QByteArray& keys, const QByteArrayList& on)
{
    QJsonObject levels;
    for (const char* rule : {"layer-required", "layer-forbidden", "layer-not-allowed", "layer-name",
             "layer-renamed", "layer-property", "layer-name-empty", "layer-duplicate",
             "layer-unused", "layer-hidden-content", "version-limits", "entity-color",
             "entity-linetype", "entity-lineweight", "entity-transparency", "entity-on-0",
             "entity-on-defpoints", "block-content"}) {
        if (!on.contains(rule))
            levels.insert(rule, "off");
    }
    QJsonObject json = QJsonDocument::fromJson(keys).object();
    json.insert("rules", levels);
    return QJsonDocument(json).toJson();
}

constexpr char kCheck[] = "check --standard rules.json --format json plan.dxf ";

} // namespace

Q_DECLARE_METATYPE(Plan)

class TestCheck : public QObject
{
    Q_OBJECT

private slots:
    void init() { m = std::make_unique<ToolFolder>(); }
    void rules_data();
    void rules();
    void naming_data();
    void naming();
    void misuse_data();
    void misuse();
    void baseline();
    void fixed();
    void sarif();
    void junit();

private:
    std::unique_ptr<ToolFolder> m;
};

void TestCheck::rules_data()
{
    const Rows<QByteArray, QByteArray, Plan, QByteArray> row("rule", "keys", "drawing", "layer");
    const Plan plain = drawingOf({{"WALL", ""}, {"DOOR", ""}});
    row("layer-required", "layer-required", R"({"required": ["WALL", "ROOF*"]})", plain, "ROOF*");
    row("layer-forbidden", "layer-forbidden", R"({"forbidden": ["w*"]})", plain, "WALL");
    row("layer-not-allowed", "layer-not-allowed", R"({"allowed": ["WALL"]})", plain, "DOOR");
    row("exempt", "layer-not-allowed", R"({"allowed": ["WALL"], "exempt": ["D@@R"]})", plain, "");
    row("layer-name", "layer-name",
        R"({"naming": {"fields": [{"name": "f", "values": ["WALL"]}]}})", plain, "DOOR");
    row("layer-renamed", "layer-renamed", R"({"renames": {"door": "TUER"}})", plain, "DOOR");
    row("layer-property", "layer-property", R"({"layers": [{"name": "wall", "color": 3}]})", plain,
        "WALL");
    row("the property it has", "layer-property", R"({"layers": [{"name": "wall", "color": 7}]})",
        plain, "");
    Plan hidden = plain;
    hidden.layers.replace("WALL\n70 0", "WALL\n70 1");
    row("layer-hidden-content", "layer-hidden-content", "{}", hidden, "WALL");
    row("layer-unused", "layer-unused", "{}", drawingOf({{"WALL", ""}}, "AC1015", {"ROOF"}),
        "ROOF");
    row("layer-duplicate", "layer-duplicate", "{}", drawingOf({{"DOOR", ""}}, "AC1015", {"Door"}),
        "Door");
    row("version-limits", "version-limits", "{}", drawingOf({{"A B", ""}, {"AB", ""}}, "AC1009"),
        "A B");
    row("entity-color", "entity-color", "{}", drawingOf({{"WALL", "62 1"}, {"DOOR", "62 256"}}),
        "WALL");
    row("a true colour", "entity-color", "{}", drawingOf({{"WALL", "420 255"}, {"DOOR", ""}}),
        "WALL");
    row("a colour that an application keeps", "entity-color", "{}",
        drawingOf({{"WALL", "102 {APP | 62 1 | 102 }"}}), "");
    row("entity-linetype", "entity-linetype", "{}",
        drawingOf({{"WALL", "6 DASHED"}, {"DOOR", "6 ByLayer"}}), "WALL");
    row("entity-lineweight", "entity-lineweight", "{}",
        drawingOf({{"WALL", "370 25"}, {"DOOR", "370 -1"}}), "WALL");
    row("entity-transparency", "entity-transparency", "{}",
        drawingOf({{"WALL", "440 33554559"}, {"DOOR", "440 0"}}), "WALL");
    row("entity-on-0", "entity-on-0", "{}", drawingOf({{"0", ""}, {"DOOR", ""}}), "0");
    row("entity-on-defpoints", "entity-on-defpoints", "{}",
        drawingOf({{"defpoints", ""}, {"DOOR", ""}}), "defpoints");
    Plan inBlock = plain;
    inBlock.blocks = "0 BLOCK | 8 0 | 2 B | 70 0 | 10 0 | 20 0\n0 POINT | 8 DOOR | 10 0 | 20 0\n"
                     "0 POINT | 8 0 | 10 0 | 20 0\n0 ENDBLK | 8 0\n";
    row("block-content", "block-content", "{}", inBlock, "DOOR");
}

/// Each rule reports its layer and no other, and nothing when it is off.
void TestCheck::rules()
{
    QFETCH(QByteArray, rule);
    QFETCH(QByteArray, keys);
    QFETCH(Plan, drawing);
    QFETCH(QByteArray, layer);
    m->write("plan.dxf", drawing.bytes());
    m->write("rules.json", rulesWith(keys, {rule}));
    const Run run = m->run(kCheck);
    QCOMPARE(run.code, layer.isEmpty() ? 0 : 1);
    QCOMPARE(run.rows("plan.dxf").size(), layer.isEmpty() ? 0 : 1);
    QCOMPARE(run.rows("plan.dxf").at(0).toObject().value("layer").toString(), QString(layer));
    m->write("rules.json", rulesWith(keys, {}));
    QCOMPARE(m->run(kCheck).code, 0);
}

void TestCheck::naming_data()
{
    const Rows<QByteArray, QByteArray, QByteArray> row("scheme", "good", "bad");
    const QByteArray aia = R"({"separator": "-", "case": "upper", "fields": [
        {"name": "discipline", "width": [1, 2], "pattern": "[A-Z]+"}, {"name": "major", "width": 4},
        {"name": "minor1", "width": 4, "optional": true}, {"name": "minor2", "width": 4, "optional": true},
        {"name": "status", "values": ["N", "D"], "optional": true}]})";
    row("by lengths", aia, "A-WALL,AI-WALL,A-WALL-FULL,A-WALL-N,AI-WALL-FULL-DIMS-N,A-WALL-FULL-D",
        "A,A-WAL,A-WALL-,A-WALL-X,AIA-WALL,1-WALL,b-WALL,A-WALL-FULL-DIMS-TEXT,A-WALL-N-FULL,-"
        "WALL");
    row("without a separator", R"({"fields": [{"name": "agent", "width": 2, "pattern": "[A-Z].."},
        {"name": "agent2", "width": 1}]})",
        "", "A-1,AB");
    row("fixed widths", R"({"fields": [{"name": "agent", "width": 2, "pattern": "[A-Z][A-Z0-9-]"},
        {"name": "element", "width": 6}, {"name": "presentation", "width": 2, "values": ["--", "D-"]},
        {"name": "user", "optional": true}]})",
        "A-37420-D-,A23742----,A-37420-D-anything", "A-37420-,A-37420-X-,1-37420-D-,A-");
    row("a separator of its own", R"({"separator": "-", "fields": [{"name": "role", "width": 1},
        {"name": "class", "pattern": "[A-Z][a-z]?_?[0-9_]*|[A-Z][0-9]+"},
        {"name": "view", "pattern": "M[0-9]?|D"},
        {"name": "text", "optional": true, "before": "_"}]})",
        "A-G23-M2_Stair,A-G23-M,A-Ss_25_10-D_x_y", "A-G23,AB-G23-M,A-G23-X_Stair,A-G23-M2_");
}

void TestCheck::naming()
{
    QFETCH(QByteArray, scheme);
    QFETCH(QByteArray, good);
    QFETCH(QByteArray, bad);
    Plan plan;
    for (const QByteArray& name : good.split(',') + bad.split(','))
        plan.entities += name.isEmpty() ? "" : "0 POINT | 8 " + name + " | 10 0 | 20 0\n";
    m->write("plan.dxf", plan.bytes());
    m->write("rules.json", rulesWith("{\"naming\": " + scheme + "}", {"layer-name"}));
    QStringList found;
    for (const QJsonValue row : m->run(kCheck).rows("plan.dxf"))
        found += row.toObject().value("layer").toString();
    QStringList expected = QString(bad).split(',');
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void TestCheck::misuse_data()
{
    const Rows<QByteArray, QByteArray> row("rules", "said");
    row("no JSON", "{\n\"required\": [}", "2");
    row("a key nobody knows", R"({"requires": []})", "requires");
    row("a rule nobody knows", R"({"rules": {"layer-colour": "off"}})", "layer-colour");
    row("a level there is not", R"({"rules": {"layer-name": "info"}})", "layer-name");
    row("a property there is not", R"({"layers": [{"name": "A", "colour": 1}]})", "colour");
    row("a value there is not", R"({"layers": [{"name": "A", "color": 300}]})", "300");
    row("a required that is no list", R"({"required": "WALL"})", "required");
    row("a layer that is no object", R"({"layers": ["A"]})", "layers");
    row("a field without a width", R"({"naming": {"fields": [{"name": "x"}, {"name": "y"}]}})",
        "x");
    row("an expression that is none", R"({"naming": {"fields": [{"name": "x", "pattern": "("}]}})",
        "x");
}

/// An invalid rule file is refused. It must not look like one without findings.
void TestCheck::misuse()
{
    QFETCH(QByteArray, rules);
    QFETCH(QByteArray, said);
    m->copy("site-plan.dxf", "plan.dxf");
    m->write("rules.json", rules);
    const Run run = m->run(kCheck);
    QCOMPARE(run.code, 2);
    QVERIFY2(run.told().contains(said), run.told().constData());
}

void TestCheck::baseline()
{
    m->write("plan.dxf", drawingOf({{"WALL", ""}}).bytes());
    m->write("rules.json", rulesWith(R"({"forbidden": ["WALL", "DOOR"]})", {"layer-forbidden"}));
    m->write("known", m->run("check --standard rules.json --format baseline plan.dxf").output);
    const QByteArray line = QByteArray(kCheck) + "--baseline known";
    QCOMPARE(m->run(line).code, 0);
    m->write("plan.dxf", drawingOf({{"0", ""}, {"DOOR", ""}, {"WALL", ""}}).bytes());
    const Run run = m->run(line);
    QCOMPARE(run.code, 1);
    QCOMPARE(run.row("plan.dxf", "layer", "WALL").value("known").toBool(), true);
    QCOMPARE(run.row("plan.dxf", "layer", "DOOR").value("known").toBool(), false);
}

/// Findings of `check` that can be corrected are gone after `fix`, for another run and for another
/// reader.
void TestCheck::fixed()
{
    m->copy("office-floor.dxf", "plan.dxf");
    const QByteArrayList mended{"layer-renamed", "layer-property", "layer-required", "layer-unused",
        "entity-color", "entity-linetype", "entity-lineweight", "entity-transparency"};
    m->write("rules.json",
        rulesWith(R"({"required": ["A-ROOF"], "renames": {"A-WALL": "W", "A-COLS": "W"},
        "layers": [{"name": "A-ROOF", "color": "#102030"}, {"name": "W", "color": 5, "locked": true,
        "lineweight": 0.5}]})",
            mended));
    const Run before = m->run(kCheck);
    QCOMPARE(before.code, 1);
    for (const char* rule : {"layer-renamed", "layer-required", "entity-color"})
        QVERIFY2(!before.row("plan.dxf", "rule", rule).isEmpty(), rule);
    const Run fix = m->run("fix --standard rules.json --in-place --backup --format json plan.dxf");
    const Run after = m->run(kCheck);
    QVERIFY2(after.code == 0, after.output.constData());
    QCOMPARE(fix.code, 0);
    QCOMPARE(m->run("list --format json plan.dxf").row("plan.dxf", "name", "A-ROOF").value("color"),
        "#102030");
    if (!readback::isInstalled())
        return;
    QVERIFY(QFile::rename(m->path("plan.dxf.bak"), m->path("was.dxf")));
    const auto errors = [this](const char* name) {
        return readback::seen(m->path(name)).value("errors");
    };
    QCOMPARE(errors("plan.dxf"), errors("was.dxf"));
}

/// The log has the members that the published schema requires, and valid regions and addresses.
void TestCheck::sarif()
{
    m->copy("office-floor.dxf", "plan A/层#1.dxf");
    m->write("bad.dxf", "notes");
    m->write("rules.json", R"({"forbidden": ["A-WALL"]})");
    const auto runOf = [this](const char* paths) {
        const Run run = m->run(ToolFolder::words("check --standard rules.json --format sarif") +
                               QString(paths).split('|'));
        return QJsonDocument::fromJson(run.output).object();
    };
    const QJsonObject log = runOf("plan A|bad.dxf");
    QCOMPARE(log.value("version"), "2.1.0");
    QCOMPARE(log.value("runs").toArray().size(), 1);
    const QJsonObject run = at(log, "runs/0").toObject();
    QCOMPARE(at(run, "tool/driver/name").toString(), "layertool");
    QStringList ids;
    for (const QJsonValue rule : at(run, "tool/driver/rules").toArray())
        ids += at(rule, "id").toString();
    QCOMPARE(QSet<QString>(ids.begin(), ids.end()).size(), ids.size());
    QVERIFY(run.value("results").toArray().size() > 1);
    const QList<QByteArray> lines = m->read("plan A/层#1.dxf").replace("\r\n", "\n").split('\n');
    for (const QJsonValue value : run.value("results").toArray()) {
        QVERIFY(!at(value, "message/text").toString().isEmpty());
        QVERIFY(ids.contains(at(value, "ruleId").toString()));
        QVERIFY(QStringList({"note", "warning", "error"}).contains(at(value, "level").toString()));
        QVERIFY(at(value, "suppressions").isArray());
        const QJsonValue place = at(value, "locations/0/physicalLocation");
        QCOMPARE(at(place, "artifactLocation/uri").toString(), "plan%20A/%E5%B1%82%231.dxf");
        const int first = at(place, "region/startLine").toInt();
        const int last = at(place, "region/endLine").toInt();
        QVERIFY(first >= 1 && last >= first);
        // The region is the layer's own record, from its first to its last line.
        const QString layer = at(value, "locations/0/logicalLocations/0/name").toString();
        QCOMPARE(lines.at(first - 1).trimmed(), QByteArray("0"));
        QCOMPARE(lines.at(first).trimmed(), QByteArray("LAYER"));
        QCOMPARE(lines.at(last).trimmed(), QByteArray("0"));
        QVERIFY(lines.mid(first, last - first).contains(layer.toUtf8()));
    }
    QCOMPARE(at(run, "invocations/0/executionSuccessful"), QJsonValue(false));
    QCOMPARE(at(run, "invocations/0/toolExecutionNotifications").toArray().size(), 1);
    m->write("rules.json", rulesWith("{}", {}));
    const QJsonValue clean = at(runOf("plan A"), "runs/0/results");
    QVERIFY(clean.isArray() && clean.toArray().isEmpty());
}

/// The XML is well-formed whatever the names of layers are, and each case has a different key.
void TestCheck::junit()
{
    m->write("plan.dxf",
        drawingOf({{"A\x01<&\"'", ""}, {"\xef\xbf\xbf", ""}, {"WALL", "62 1"}}, "AC1021").bytes());
    m->write("bad.dxf", "notes");
    m->write("rules.json", R"({"forbidden": ["*"]})");
    const Run run = m->run("check --standard rules.json --format junit plan.dxf bad.dxf");
    QCOMPARE(run.code, 1);
    QXmlStreamReader xml(run.output);
    QMap<QString, int> counts;
    QSet<QString> keys;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        ++counts[xml.name().toString()];
        const auto attributes = xml.attributes();
        if (xml.name() == "testcase")
            keys.insert(attributes.value("classname") + '\n' + attributes.value("name"));
        if (xml.name() == "failure")
            QVERIFY(!attributes.value("message").isEmpty());
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(counts.value("testsuite"), 2);
    QCOMPARE(counts.value("error"), 1);
    QCOMPARE(keys.size(), counts.value("testcase"));
    QCOMPARE(counts.value("failure"), counts.value("testcase") - 1);
}

QTEST_GUILESS_MAIN(TestCheck)
#include "tst_check.moc"
