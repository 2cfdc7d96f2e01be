#include "fixture.h"

using namespace drawing;

namespace {

Yard withBlocks(const QByteArray& blocks)
{
    return {{}, {}, blocks};
}

/// The entity that most rows delete with its layer; other objects point at its handle.
const QByteArray kGone = "0 LINE\n5 AA\n8 Wall\n";
const QByteArray kStays = "0 LINE\n5 BB\n8 Keep\n";

} // namespace

/// Tests edits of entities by the bytes that they leave. All other bytes must stay the same.
class TestEntityEdits : public Fixture
{
    Q_OBJECT

private slots:
    void deleted_data()
    {
        const Rows<Yard, Yard> row("before", "after");
        const QByteArray line = "0 LINE\n5 BB\n8 Keep\n";
        row("any letter case, first and last", Yard("0 LINE\n8 wALL\n" + line + kGone), Yard(line));
        row("vertices go along, whatever they are on",
            Yard("0 POLYLINE\n8 Wall\n0 VERTEX\n8 Keep\n0 VERTEX\n8 0\n0 SEQEND\n8 0\n" + line),
            Yard(line));
        row("a vertex alone comes to its polyline's layer",
            Yard("0 POLYLINE\n8 Keep\n0 VERTEX\n8 Wall\n0 SEQEND\n8 Wall\n"),
            Yard("0 POLYLINE\n8 Keep\n0 VERTEX\n8 Keep\n0 SEQEND\n8 Keep\n"));
        row("the last attribute takes the end mark along",
            Yard("0 INSERT\n8 Keep\n66 1\n2 B\n0 ATTRIB\n8 Wall\n0 SEQEND\n8 Keep\n" + line),
            Yard("0 INSERT\n8 Keep\n2 B\n" + line));
        row("one attribute of two",
            Yard("0 INSERT\n8 Keep\n66 1\n0 ATTRIB\n8 Wall\n0 ATTRIB\n8 0\n0 SEQEND\n8 Wall\n"),
            Yard("0 INSERT\n8 Keep\n66 1\n0 ATTRIB\n8 0\n0 SEQEND\n8 Keep\n"));
        row("in blocks and layouts",
            withBlocks("0 BLOCK\n8 Wall\n2 B\n0 LINE\n8 Wall\n0 ENDBLK\n8 Wall\n"
                       "0 BLOCK\n8 0\n2 *Paper_Space0\n0 LINE\n8 Wall\n0 ENDBLK\n8 0\n"),
            withBlocks("0 BLOCK\n8 0\n2 B\n0 ENDBLK\n8 0\n"
                       "0 BLOCK\n8 0\n2 *Paper_Space0\n0 ENDBLK\n8 0\n"));
        row("the sheet stays, its window goes",
            Yard("0 VIEWPORT\n67 1\n8 Wall\n69 1\n0 VIEWPORT\n67 1\n8 Wall\n69 2\n"),
            Yard("0 VIEWPORT\n67 1\n8 0\n69 1\n"));
        row("names and handles in XDATA",
            Yard(kGone + line + "1001 ACAD\n1003 Wall\n1005 AA\n1005 BB\n"),
            Yard(line + "1001 ACAD\n1003 0\n1005 0\n1005 BB\n"));
        row("reactors, and their group with the last",
            Yard(kGone + "0 LINE\n102 {ACAD_REACTORS\n330 AA\n102 }\n8 0\n"
                         "0 ARC\n102 {ACAD_REACTORS\n330 AA\n330 BB\n102 }\n8 0\n"),
            Yard("0 LINE\n8 0\n0 ARC\n102 {ACAD_REACTORS\n330 BB\n102 }\n8 0\n"));
        row("hatch: sources, their count, its tie",
            Yard(kGone + "0 HATCH\n5 CC\n330 1F\n8 0\n71 1\n91 2\n97 2\n330 AA\n330 BB\n"
                         "97 1\n330 BB\n75 0\n"),
            Yard("0 HATCH\n5 CC\n330 1F\n8 0\n71 0\n91 2\n97 1\n330 BB\n97 1\n330 BB\n75 0\n"));
        row("clip of a viewport, text of a leader",
            Yard(kGone + "0 VIEWPORT\n8 0\n69 2\n90 98304\n340 AA\n"
                         "0 LEADER\n8 0\n73 0\n340 AA\n"),
            Yard("0 VIEWPORT\n8 0\n69 2\n90 32768\n0 LEADER\n8 0\n73 3\n"));
        row("a pointer nobody knows", Yard(kGone + "0 FROB\n8 0\n330 AA\n348 AA\n1 AA\n"),
            Yard("0 FROB\n8 0\n330 0\n348 0\n1 AA\n"));
        row("group, drawing order, buffer, counted list",
            Yard(kGone, "0 GROUP\n5 D1\n330 C\n340 AA\n340 BB\n"
                        "0 SORTENTSTABLE\n5 D2\n330 1F\n331 AA\n5 7\n331 BB\n5 AA\n"
                        "0 IDBUFFER\n5 D3\n330 C\n100 AcDbIdBuffer\n330 AA\n330 BB\n"
                        "0 FIELDLIST\n5 D4\n330 C\n100 AcDbIdSet\n90 3\n330 AA\n330 BB\n330 AA\n"),
            Yard("", "0 GROUP\n5 D1\n330 C\n340 BB\n"
                     "0 SORTENTSTABLE\n5 D2\n330 1F\n331 BB\n5 AA\n"
                     "0 IDBUFFER\n5 D3\n330 C\n100 AcDbIdBuffer\n330 BB\n"
                     "0 FIELDLIST\n5 D4\n330 C\n100 AcDbIdSet\n90 1\n330 BB\n"));
        row("group without members",
            Yard(kGone, "0 DICTIONARY\n5 D0\n330 C\n3 G\n350 D1\n0 GROUP\n5 D1\n330 D0\n340 AA\n"),
            Yard("", "0 DICTIONARY\n5 D0\n330 C\n"));
        row("what only it owned goes along, however deep",
            Yard("0 LINE\n5 AA\n102 {ACAD_XDICTIONARY\n360 D1\n102 }\n8 Wall\n",
                "0 DICTIONARY\n5 D1\n330 AA\n3 X\n360 D2\n0 XRECORD\n5 D2\n330 D1\n"
                "0 IMAGEDEF_REACTOR\n5 D3\n330 AA\n0 FIELDLIST\n5 D4\n330 C\n100 AcDbIdSet\n90 "
                "1\n330 "
                "D2\n"),
            Yard("", "0 FIELDLIST\n5 D4\n330 C\n100 AcDbIdSet\n90 0\n"));
        row("a dimension is untied from what it measured",
            Yard(kGone + "0 DIMENSION\n5 DD\n102 {ACAD_XDICTIONARY\n360 D1\n102 }\n8 0\n",
                "0 DICTIONARY\n5 D1\n330 DD\n3 ACAD_DIMASSOC\n360 D2\n"
                "0 DIMASSOC\n5 D2\n330 D1\n100 AcDbDimAssoc\n330 DD\n331 AA\n"),
            Yard("0 DIMENSION\n5 DD\n102 {ACAD_XDICTIONARY\n360 D1\n102 }\n8 0\n",
                "0 DICTIONARY\n5 D1\n330 DD\n"));
        row("lists of layers",
            Yard(kGone, "0 LAYER_FILTER\n5 D1\n8 Keep\n8 Wall\n8 0\n"
                        "0 LAYER_INDEX\n5 D2\n8 Wall\n360 D3\n90 1\n8 0\n360 D4\n90 1\n"
                        "0 IDBUFFER\n5 D3\n330 AA\n0 IDBUFFER\n5 D4\n"),
            Yard("", "0 LAYER_FILTER\n5 D1\n8 Keep\n8 0\n"
                     "0 LAYER_INDEX\n5 D2\n8 0\n360 D4\n90 1\n0 IDBUFFER\n5 D4\n"));
    }

    void deleted()
    {
        QFETCH(Yard, before);
        QFETCH(Yard, after);
        after.setLayers(Yard::keep());
        const auto drawing = opened(before.bytes());
        QVERIFY(inStep(*drawing, [&] { return drawing->deleteLayers({id(*drawing, "Wall")}); }));
        compare(*drawing, before, after);
    }

    void merged_data()
    {
        const Rows<Yard, Yard> row("before", "after");
        row("parts on the source of an entity that is not",
            Yard("0 POLYLINE\n8 0\n0 VERTEX\n8 Wall\n0 SEQEND\n8 0\n"),
            Yard("0 POLYLINE\n8 0\n0 VERTEX\n8 Keep\n0 SEQEND\n8 0\n"));
        row("blocks, their heads, XDATA",
            withBlocks(
                "0 BLOCK\n8 Wall\n2 B\n0 LINE\n8 Wall\n1001 ACAD\n1003 Wall\n0 ENDBLK\n8 Wall\n"),
            withBlocks(
                "0 BLOCK\n8 Keep\n2 B\n0 LINE\n8 Keep\n1001 ACAD\n1003 Keep\n0 ENDBLK\n8 Keep\n"));
        row("a viewport does not freeze the target for it",
            Yard("0 VIEWPORT\n8 0\n331 11\n331 10\n1001 ACAD\n1003 Wall\n"),
            Yard("0 VIEWPORT\n8 0\n331 10\n1001 ACAD\n"));
        row("lists of layers name the target once",
            Yard("", "0 LAYER_FILTER\n5 D1\n8 Wall\n8 0\n0 LAYER_FILTER\n5 D2\n8 Wall\n8 Keep\n"),
            Yard("", "0 LAYER_FILTER\n5 D1\n8 Keep\n8 0\n0 LAYER_FILTER\n5 D2\n8 Keep\n"));
    }

    void merged()
    {
        QFETCH(Yard, before);
        QFETCH(Yard, after);
        after.setLayers(Yard::keep());
        const auto drawing = opened(before.bytes());
        QVERIFY(inStep(*drawing,
            [&] { return drawing->mergeLayers({id(*drawing, "Wall")}, id(*drawing, "Keep")); }));
        compare(*drawing, before, after);
    }

    void moved_data()
    {
        const Rows<Yard, QVector<int>, int, Yard> row("before", "chosen", "count", "after");
        row("twice named, out of range, on the target already",
            Yard("0 LINE\n8 Wall\n0 LINE\n8 Keep\n0 LINE\n8 Wall\n"), {0, 1, 0, -1, 99}, 1,
            Yard("0 LINE\n8 Keep\n0 LINE\n8 Keep\n0 LINE\n8 Wall\n"));
        const Yard polyline = Yard("0 POLYLINE\n8 Wall\n0 VERTEX\n8 Wall\n0 VERTEX\n8 0\n0 "
                                   "SEQEND\n8 Wall\n0 LINE\n8 Wall\n");
        const Yard followed = Yard("0 POLYLINE\n8 Keep\n0 VERTEX\n8 Keep\n0 VERTEX\n8 0\n0 "
                                   "SEQEND\n8 Keep\n0 LINE\n8 Wall\n");
        row("what was on its layer follows", polyline, {0}, 1, followed);
        row("a part stands for the whole", polyline, {2}, 1, followed);
        row("no layer named", Yard("0 LINE\n5 AA\n100 AcDbEntity\n100 AcDbLine\n"), {0}, 1,
            Yard("0 LINE\n5 AA\n100 AcDbEntity\n8 Keep\n100 AcDbLine\n"));
        row("no layer named, old format", Yard("0 LINE\n10 1\n0 LINE\n"), {0, 1}, 2,
            Yard("0 LINE\n8 Keep\n10 1\n0 LINE\n8 Keep\n"));
        row("an empty name", Yard("0 LINE\n8 \n10 1\n"), {0}, 1, Yard("0 LINE\n8 Keep\n10 1\n"));
    }

    void moved()
    {
        QFETCH(Yard, before);
        QFETCH(QVector<int>, chosen);
        QFETCH(Yard, after);
        const auto drawing = opened(before.bytes());
        const auto moved = inStep(*drawing, [&] {
            return drawing->moveEntities({chosen.begin(), chosen.end()}, id(*drawing, "Keep"));
        });
        QTEST(moved.value_or(-1), "count");
        compare(*drawing, before, after);
    }

    void refusals_data()
    {
        const Rows<QString, QByteArray, QByteArray, QString> row(
            "operation", "layer", "target", "names");
        row("delete 0", "delete", "0", "", "“0”");
        row("delete current", "delete", "Wall", "", "“Wall”");
        row("delete of a reference", "delete", "plan|X", "", "“plan|X”");
        row("merge 0", "merge", "0", "Keep", "“0”");
        row("merge current", "merge", "Wall", "Keep", "“Wall”");
        row("merge into a reference's", "merge", "Keep", "plan|X", "“plan|X”");
        row("merge into itself", "merge", "Keep", "Keep", "“Keep”");
        row("move to a reference's", "move", "Keep", "plan|X", "“plan|X”");
    }

    void refusals()
    {
        QFETCH(QString, operation);
        QFETCH(QByteArray, layer);
        QFETCH(QByteArray, target);
        QFETCH(QString, names);
        Yard before = kGone + kStays;
        before.current = "Wall";
        const auto drawing = opened(before.bytes());
        const LayerId from = id(*drawing, layer);
        const LayerId to = target.isEmpty() ? LayerId::None : id(*drawing, target);
        drawing->beginStep(operation);
        // The permitted layer comes before the forbidden one.
        const std::vector<LayerId> layers = {from == to ? from : id(*drawing, "Keep"), from};
        const auto result = operation == "move" ? drawing->moveEntities({0, 1}, to).map([](int) {})
                            : operation == "merge" ? drawing->mergeLayers({from}, to)
                                                   : drawing->deleteLayers(layers);
        drawing->commitStep();
        QVERIFY(!result);
        QVERIFY2(result.error().text.contains(names), qPrintable(result.error().text));
        QVERIFY(!drawing->canUndo());
        QCOMPARE(saved(*drawing), before.bytes());
    }

    void namesFollowThroughMergers()
    {
        const auto yard = [](const QByteArray& layer) {
            return withBlocks("0 BLOCK\n8 " + layer + "\n2 B\n0 LINE\n8 " + layer +
                              "\n1001 ACAD\n1003 " + layer + "\n0 LINE\n0 ENDBLK\n8 " + layer +
                              "\n")
                .bytes();
        };
        const auto drawing = opened(yard("Wall"));
        const LayerId wall = id(*drawing, "Wall");
        LayerProperties fresh;
        fresh.name = "New";
        drawing->beginStep("one");
        const LayerId added = *drawing->addLayer(fresh);
        QVERIFY(drawing->moveEntities({1}, added));
        QVERIFY(drawing->mergeLayers({wall, wall}, added));
        QVERIFY(drawing->mergeLayers({added}, id(*drawing, "Keep")));
        drawing->commitStep();
        QCOMPARE(edit(*drawing, "Keep", [](LayerProperties& p) { p.name = "Last"; }), QString());

        const QByteArray result = saved(*drawing);
        QVERIFY(!result.contains("Wall") && !result.contains("New") && !result.contains("Keep"));
        QCOMPARE(result.count("Last"), 6);
        QCOMPARE(drawing->findLayer("Last")->entityCount, 2);
        drawing->undo();
        QCOMPARE(saved(*drawing).count("Keep"), 6);
        drawing->undo();
        QCOMPARE(saved(*drawing), yard("Wall"));
        QCOMPARE(drawing->layer(wall)->entityCount, 1);
    }

    /// Edits in one step at the places that an earlier step has already edited.
    void editedTwice()
    {
        const QByteArray before =
            Yard(kGone + kStays + "0 HATCH\n8 0\n71 1\n97 2\n330 AA\n330 BB\n",
                "0 GROUP\n5 D1\n340 AA\n340 BB\n")
                .bytes();
        const auto drawing = opened(before);
        QVERIFY(inStep(*drawing, [&] { return drawing->moveEntities({2}, id(*drawing, "Keep")); }));
        QVERIFY(inStep(*drawing, [&] { return drawing->deleteLayers({id(*drawing, "Wall")}); }));
        QVERIFY(inStep(*drawing, [&] { return drawing->moveEntities({2}, id(*drawing, "0")); }));
        QVERIFY(inStep(*drawing, [&] { return drawing->deleteLayers({id(*drawing, "Keep")}); }));
        Yard after("0 HATCH\n8 0\n71 0\n97 0\n");
        after.setLayers({});
        QCOMPARE(saved(*drawing), after.bytes());
        while (drawing->canUndo())
            drawing->undo();
        QCOMPARE(saved(*drawing), before);
    }

    void blocks()
    {
        Yard yard = withBlocks("0 BLOCK\n8 Keep\n2 B\n0 LINE\n8 Wall\n0 ENDBLK\n8 0\n"
                               "0 BLOCK\n8 0\n2 *Paper_Space0\n0 LINE\n8 Keep\n0 ENDBLK\n8 0\n");
        yard.entities = "0 INSERT\n8 Keep\n2 b\n0 INSERT\n8 0\n2 B\n0 INSERT\n8 0\n2 Missing\n";
        const auto drawing = opened(yard.bytes());
        const std::vector<LayerId> wall = {id(*drawing, "Wall")};
        QVERIFY(drawing->isReferencedInBlocks(wall));
        QCOMPARE(drawing->countBlockReferences(wall), 2);
        QVERIFY(!drawing->isReferencedInBlocks({id(*drawing, "Keep"), LayerId::None}));
        QVERIFY(inStep(*drawing, [&] { return drawing->deleteLayers({id(*drawing, "Keep")}); }));
        QCOMPARE(drawing->countBlockReferences(wall), 1);
    }

    void announced()
    {
        const auto drawing = opened(Yard(kGone + kStays).bytes());
        const LayerId keep = id(*drawing, "Keep");
        QSignalSpy changed(drawing.get(), &Drawing::entitiesChanged);
        drawing->beginStep("move");
        QVERIFY(drawing->moveEntities({0}, keep));
        QCOMPARE(drawing->layer(keep)->entityCount, 2);
        drawing->rollbackStep();
        QCOMPARE(drawing->layer(keep)->entityCount, 1);
        QCOMPARE(drawing->entities()[0].layer, id(*drawing, "Wall"));
        QCOMPARE(changed.size(), 1);

        QVERIFY(inStep(*drawing, [&] { return drawing->deleteLayers({keep}); }));
        QVERIFY(drawing->entities()[1].removed);
        QCOMPARE(changed.size(), 2);
        drawing->undo();
        QVERIFY(!drawing->entities()[1].removed);
        QCOMPARE(drawing->layer(keep)->entityCount, 1);
        QCOMPARE(changed.size(), 3);
    }

private:
    void compare(Drawing& drawing, const Yard& before, const Yard& after)
    {
        QCOMPARE(saved(drawing), after.bytes());
        checkUndo(drawing, before.bytes());
        drawing.undo();
        QCOMPARE(saved(drawing), before.bytes());
    }
};

QTEST_GUILESS_MAIN(TestEntityEdits)
#include "tst_entityedits.moc"
