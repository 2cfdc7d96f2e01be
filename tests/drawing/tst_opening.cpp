#include "fixture.h"

using namespace drawing;

/// Tests what is read from a file and what is refused.
class TestOpening : public Fixture
{
    Q_OBJECT

private slots:
    void badFiles_data()
    {
        const Rows<QByteArray, QString, qint64> row("bytes", "word", "line");
        const QByteArray house = House().bytes();
        const auto cut = [&house](const char* at) { return house.left(house.indexOf(at)); };
        const auto broken = [&house](const char* from, const char* to) {
            return QByteArray(house).replace(from, to);
        };
        const auto lines = [](const QByteArray& bytes) { return qint64(bytes.count('\n') + 1); };
        row("empty", "", "空", 1);
        row("text", "Hello\nworld\n", "不是 DXF", 1);
        row("numbers", "0\n1\n2\n3\n", "不是 DXF", 1);
        row("zeros", QByteArray(5000, '\0'), "不是 DXF", 1);
        row("DWG", "AC1032\0\0\0\0", "DWG", 1);
        row("cut in the entities", cut("  0\nVIEWPORT"), "ENTITIES", lines(cut("  0\nVIEWPORT")));
        row("cut within a line", cut("WPORT"), "ENTITIES", lines(cut("WPORT")));
        row("cut behind a code", cut("VIEWPORT"), "ENTITIES", lines(cut("VIEWPORT")));
        row("cut in the layer table", cut("Empty"), "TABLES", lines(cut("Empty")));
        row("cut between sections", cut("  0\nEOF"), "EOF", lines(cut("  0\nEOF")));
        row("no ENDSEC at the end", broken("  0\nENDSEC\n  0\nEOF\n", "  0\nEOF\n"), "OBJECTS",
            lines(broken("  0\nENDSEC\n  0\nEOF\n", "").replace("EOF", "")));
        row("a line too many", broken("  0\nVIEWPORT", "x\n  0\nVIEWPORT"), "组码“x”",
            lines(cut("  0\nVIEWPORT")));
        row("older than sections", "9\n$ACADVER\n1\nAC1004\n0\nLINE\n", "R9", 1);
        const auto section = [](const QByteArray& text) { return tagged("0 SECTION\n" + text); };
        row("a section without a name", section("0 LINE\n8 A\n0 ENDSEC\n0 EOF"), "段没有名称", 3);
        row("an entity between sections", section("2 HEADER\n0 ENDSEC\n0 LINE\n8 A\n0 EOF"),
            "不在任何段中", 7);
        row("a table without a name", section("2 TABLES\n0 TABLE\n0 LAYER\n2 A\n0 ENDSEC\n0 EOF"),
            "表没有名称", 5);
        row("a layer in no table", section("2 TABLES\n0 LAYER\n2 A\n0 ENDSEC\n0 EOF"),
            "不在任何表中", 5);
    }

    void badFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, word);
        const QString path = write(bytes, "坏 %1.dxf");
        const auto drawing = Drawing::open(path);
        QVERIFY(!drawing);
        const Error& error = drawing.error();
        QVERIFY2(error.text.contains(word), qPrintable(error.text));
        QVERIFY2(error.text.contains(path), qPrintable(error.text));
        QTEST(error.line, "line");
        QVERIFY2(error.text.contains(QString::number(error.line)), qPrintable(error.text));
        QVERIFY(!error.cancelled);
        QCOMPARE(contentOf(path), bytes);
    }

    void unreadable_data()
    {
        const Rows<QString, QString> row("path", "word");
        row("missing", "/no/such.dxf", "不存在");
        row("folder", m_folder.path(), "文件夹");
        row("device", "/dev/zero", "不是普通文件");
    }

    void unreadable()
    {
        QFETCH(QString, path);
        QFETCH(QString, word);
        const auto drawing = Drawing::open(path);
        QVERIFY(!drawing);
        QVERIFY2(drawing.error().text.contains(word), qPrintable(drawing.error().text));
    }

    void cancelled()
    {
        Progress progress;
        progress.cancelled = true;
        const auto drawing = Drawing::open(write(House().bytes()), &progress);
        QVERIFY(!drawing);
        QVERIFY(drawing.error().cancelled);
    }

    void layers()
    {
        House house;
        house.wall = "\xc7\xbd"; // Encoded in GBK.
        house.current = "\xc7\xbd";
        house.wallRecord = "62 -30\n420 16711680\n6 DASHED\n290 0\n370 50\n1001 AcCmTransparency\n"
                           "1071 33554559\n1001 AcAecLayerStandard\n1000 \n1000 \\U+5899 !";
        house.layerCount = "999999999999"; // An absurd count.
        house.moreLayers =
            "0 LAYER\n2 plan|A\n70 39\n0 LAYER\n2 PlanB\n70 16\n0 LAYER\n2 DEFPOINTS\n"
            "0 LAYER\n2  \n70 0\n"; // A record without a name is not a layer.
        const auto drawing = opened(house.bytes());

        QCOMPARE(layerNames(*drawing),
            QStringList({"0", "墙", "Empty", "plan|A", "PlanB", "DEFPOINTS", "Implicit"}));
        const Layer* wall = drawing->findLayer("墙");
        QVERIFY((wall->properties == LayerProperties{"墙", true, false, false, false, false, 30,
                                         0xff0000, "DASHED", 50, 50, "Color_30", "墙 !"}));
        QCOMPARE(drawing->currentLayer(), wall->id);

        const Layer* reference = drawing->findLayer("PLAN|a");
        QVERIFY(reference->dependsOnReference);
        QVERIFY(reference->properties.frozen && reference->properties.frozenInNewViewports &&
                reference->properties.locked);
        QVERIFY(drawing->findLayer("planb")->dependsOnReference);
        QVERIFY(!wall->dependsOnReference);
        QVERIFY(!drawing->findLayer("defpoints")->properties.plotted);
    }

    void codePages_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QByteArray, QString, QString> row(
            "version", "codePage", "chosen", "wall", "name", "notice");
        const QString wall = "墙";
        row("as declared", "AC1018", "ANSI_936", "", "\xc7\xbd", wall, "");
        row("UTF-8 though another is declared", "AC1018", "ANSI_936", "", "\xe5\xa2\x99", wall, "");
        row("UTF-8 in R12", "AC1009", "", "", "\xe5\xa2\x99", wall, "");
        row("a pair that is both", "AC1018", "ANSI_936", "", "\xd0\xa1", "小", "");
        row("unknown", "AC1018", "MARTIAN", "", "\xe9", "é", "“MARTIAN”");
        row("unknown and ASCII", "AC1018", "MARTIAN", "", "e", "e", "“MARTIAN”");
        row("none", "AC1009", "", "", "\xe9", "é", "没有说明");
        row("none and ASCII", "AC1009", "ascii", "", "e", "e", "");
        row("chosen", "AC1018", "ANSI_1252", "ANSI_1251", "\xd1", "С", "");
        row("chosen against UTF-8", "AC1027", "ANSI_1252", "gbk", "\xc7\xbd", wall, "");
    }

    void codePages()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, codePage);
        QFETCH(QByteArray, chosen);
        QFETCH(QString, notice);
        QFETCH(QByteArray, wall);
        House house;
        house.version = version;
        house.wall = wall;
        const QByteArray bytes = house.bytes().replace("ANSI_936", codePage);
        const auto drawing = Drawing::open(write(bytes), nullptr, nullptr, {chosen});
        QTEST((*drawing)->layers().at(1).properties.name, "name");
        const QString notices = (*drawing)->openingNotices().join(QString());
        QCOMPARE(notices.isEmpty(), notice.isEmpty());
        QVERIFY2(notices.contains(notice), qPrintable(notices));
    }

    void unknownCodePageChosen()
    {
        const auto drawing = Drawing::open(write(House().bytes()), nullptr, nullptr, {"MARTIAN"});
        QVERIFY(!drawing && drawing.error().text.contains("MARTIAN"));
    }

    /// Names that cannot be decoded are still different names and are written unchanged.
    void unreadableNames()
    {
        House house;
        house.wall = "A\xfe";
        house.current = "0";
        house.moreLayers = "0 LAYER\n2 A\xff\n";
        const QByteArray bytes = house.bytes();
        const auto drawing = opened(bytes);
        QCOMPARE(drawing->layers().size(), size_t(5));
        QVERIFY(inStep(*drawing,
            [&] { return drawing->mergeLayers({id(*drawing, "A�FE")}, id(*drawing, "A�FF")); }));
        QVERIFY(!saved(*drawing).contains("A\xfe"));
        QCOMPARE(saved(*drawing).count("A\xff"), 1 + bytes.count("A\xfe") - 2);
        checkUndo(*drawing, bytes);
    }

    void entities()
    {
        const auto drawing = opened(House().bytes());
        // Block heads and subentities do not count.
        for (const auto& [name, count] :
            {std::pair("wall", 2), {"0", 2}, {"Empty", 0}, {"implicit", 1}})
            QCOMPARE(drawing->findLayer(name)->entityCount, count);

        const Block* door = drawing->findBlock("door");
        QCOMPARE(door->count, 4);
        QCOMPARE(door->baseX, 1.5);
        QCOMPARE(door->baseY, 2.5);
        QVERIFY(!door->layout && drawing->findBlock("*MODEL_SPACE")->layout);
        const std::vector<Entity>& entities = drawing->entities();
        QCOMPARE(entities.size(), size_t(9));
        const Entity& vertex = entities[static_cast<size_t>(door->first) + 2];
        QVERIFY(vertex.kind == EntityKind::Vertex && vertex.subEntity && vertex.block == 0);
        const Entity& viewport = entities.back();
        QVERIFY(
            viewport.kind == EntityKind::Viewport && viewport.paperSpace && viewport.block == -1);
        TagReader tags = drawing->tags(viewport);
        Tag tag;
        int last = -1;
        while (tags.next(tag))
            last = tag.code == 331 ? static_cast<int>(tag.handle()) : -1;
        QCOMPARE(last, 0x12);
        QCOMPARE(tags.offset(), viewport.end);
    }

    void minimalFiles_data()
    {
        const Rows<QByteArray, QStringList> row("bytes", "layers");
        const QByteArray line = "0 LINE\n8 A\n0 LINE\n0 LINE\n8 a \n0 LINE\n8 \n";
        const QByteArray entities = "0 SECTION\n2 ENTITIES\n" + line + "0 ENDSEC\n0 EOF";
        const QStringList layers = {"0", "A"};
        row("entities only", tagged(entities), layers);
        row("no line end at the end", tagged(entities).trimmed(), layers);
        row("CR LF", tagged(entities, "\r\n"), layers);
        row("CR alone", tagged(entities, "\r"), layers);
        row("blank lines in front", "\xef\xbb\xbf\r\n \n" + tagged(entities), layers);
        row("blanks behind names", tagged("0 SECTION \n2 ENTITIES \n" + line + "0 ENDSEC \n0 EOF "),
            layers);
        row("a section that nobody knows",
            tagged("0 SECTION\n2 ENTITES\n" + line + "0 ENDSEC\n0 EOF"), layers);
        row("codes not aligned", tagged(entities).replace("  ", ""), layers);
        row("byte order mark", QByteArray("\xef\xbb\xbf") + tagged(entities), layers);
        row("comments", tagged("999 made by hand\n" + entities), layers);
        row("text behind EOF", tagged(entities) + "\x1a\ngarbage\n", layers);
        row("no sections but one that nobody knows",
            tagged("0 SECTION\n2 FOO\n1 x\n0 ENDSEC\n0 EOF"), QStringList("0"));
        row("a block in itself",
            tagged(
                "0 SECTION\n2 BLOCKS\n0 BLOCK\n2 A\n0 INSERT\n8 A\n2 A\n0 ENDBLK\n0 ENDSEC\n0 EOF"),
            layers);
    }

    void minimalFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, layers);
        const auto drawing = opened(bytes);
        QCOMPARE(layerNames(*drawing), layers);
        QCOMPARE(currentName(*drawing), "0");
        QCOMPARE(saved(*drawing), bytes);
        const bool isRenamed =
            edit(*drawing, layers.last(), [](LayerProperties& p) { p.name = "Wand"; }).isEmpty();
        QCOMPARE(isRenamed, layers.size() > 1);
        QCOMPARE(opened(saved(*drawing))->findLayer("wand") != nullptr, isRenamed);
        checkUndo(*drawing, bytes);
    }

    /// Missing tables are created when something is added to them.
    void missingTables_data()
    {
        const Rows<QByteArray> row("tables");
        row("none", "");
        row("a section without any", "0 SECTION\n2 TABLES\n0 ENDSEC\n");
        row("one without a handle",
            "0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n70 1\n0 LAYER\n2 0\n0 ENDTAB\n0 ENDSEC\n");
    }

    void missingTables()
    {
        QFETCH(QByteArray, tables);
        const QByteArray bytes =
            tagged("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1027\n0 ENDSEC\n" + tables +
                   "0 SECTION\n2 ENTITIES\n0 LINE\n5 9\n8 Wall\n" + "0 ENDSEC\n0 EOF\n");
        const auto drawing = opened(bytes);
        QVERIFY(inStep(
            *drawing, [&] { return drawing->putLayerStates({captureLayerState(*drawing, "S")}); }));
        QCOMPARE(edit(*drawing, "Wall", [](LayerProperties& p) { p.off = true; }), QString());
        const auto again = opened(saved(*drawing));
        QVERIFY(again->findLayer("Wall")->properties.off);
        QCOMPARE(again->layerStateNames(), QStringList("S"));
        QVERIFY(!saved(*drawing).contains("360\n0\n") && !saved(*drawing).contains("  5\n0\n"));
        drawing->undo();
        checkUndo(*drawing, bytes);
    }

    /// The intact part of a truncated file can be opened and saved elsewhere.
    void wholePart_data()
    {
        const Rows<QByteArray, int, int> row("bytes", "entities", "layers");
        const QByteArray house = House().bytes();
        const auto cut = [&house](const char* at) { return house.left(house.indexOf(at)); };
        row("in the header", cut("$CLAYER"), 0, 1);
        row("in the layer table", cut("Empty"), 0, 2);
        row("in a polyline", cut("  0\nSEQEND"), 3, 4);
        row("in the entities", cut("VIEWPORT"), 8, 4);
        row("in the objects", cut("LAYER_FILTER"), 9, 4);
        row("before the end", cut("EOF"), 9, 4);
        row("zeros at the end", cut("VIEWPORT") + QByteArray(100, '\0'), 8, 4);
    }

    void wholePart()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, entities);
        QFETCH(int, layers);
        const QString path = write(bytes);
        const auto refused = Drawing::open(path);
        QVERIFY(!refused && refused.error().hasWholePart);
        const auto part = Drawing::open(path, nullptr, nullptr, {{}, true});
        QVERIFY(part && (*part)->isIncomplete());
        QCOMPARE((*part)->entities().size(), size_t(entities));
        QCOMPARE((*part)->layers().size(), size_t(layers));
        QVERIFY((*part)->openingNotices().value(0).contains(path));
        const auto kept = (*part)->save(path);
        QVERIFY(!kept && kept.error().text.contains("另存"));
        QCOMPARE(contentOf(path), bytes);
        QVERIFY(opened(saved(**part))->entities().size() == size_t(entities));
        QVERIFY(!(*part)->isIncomplete());
    }

    void colors_data()
    {
        const Rows<QByteArray, int, bool> row("group", "index", "off");
        row("plain", "62      5", 5, false);
        row("off", "62 -255", 255, true);
        row("by block", "62 0", 7, false);
        row("by layer", "62 256", 7, false);
        row("far off", "62 -32767", 7, true);
        row("lowest there is", "62 -9223372036854775808", 7, true);
        row("no number", "62 red", 7, false);
        row("none", "6 Continuous", 7, false);
    }

    void colors()
    {
        House house;
        QFETCH(QByteArray, group);
        house.wallRecord = group;
        const auto drawing = opened(house.bytes());
        const LayerProperties& wall = drawing->findLayer("Wall")->properties;
        QTEST(wall.colorIndex, "index");
        QTEST(wall.off, "off");
    }

    void plotStyles()
    {
        const auto drawing = opened(House::withNamedStyles().bytes());
        for (const auto& [name, style] :
            {std::pair("0", "Normal"), {"Wall", "半色"}, {"Empty", ""}})
            QCOMPARE(drawing->findLayer(name)->properties.plotStyle, QString(style));
    }
};

QTEST_APPLESS_MAIN(TestOpening)
#include "tst_opening.moc"
