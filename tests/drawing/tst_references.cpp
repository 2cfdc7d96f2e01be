#include "fixture.h"

using namespace drawing;

/// References to a changed layer are updated, and nothing else is. Each row consists of objects in
/// the house, a step, and the same objects afterwards.
class TestReferences : public Fixture
{
    Q_OBJECT

    enum Act { Rename, Merge, Delete };

    /// The layer table's dictionary leads to old filters (D0) and newer ones (D1), the root
    /// dictionary to mappings (F0).
    static QByteArray house(const QByteArray& objects)
    {
        House made;
        made.current = "0";
        made.moreLayers = "0 LAYER\n5 13\n100 AcDbLayerTableRecord\n2 Third\n70 0\n"
                          "0 LAYER\n5 14\n102 {ACAD_XDICTIONARY\n360 C0\n102 }\n"
                          "100 AcDbLayerTableRecord\n2 Third @ 1\n70 0\n";
        made.rootObjects = "3 LAYER_TRANSLATION | 350 F0\n";
        made.objects =
            "0 DICTIONARY | 5 A0 | 3 ACAD_LAYERFILTERS | 360 D0 | 3 ACLYDICTIONARY | 360 D1\n" +
            objects;
        return made.bytes();
    }

private slots:
    void objects_data()
    {
        const Rows<int, QByteArray, QByteArray> row("act", "before", "after");
        const auto filter = [](const QByteArray& expression) {
            return "0 DICTIONARY | 5 D1 | 3 *A1 | 350 D2\n0 XRECORD | 5 D2 | 100 AcDbXrecord\n"
                   "280 1 | 1 AcLyLayerFilter | 90 1 | 300 Third | 301 " +
                   expression + "\n";
        };
        row("term with blanks", Rename, filter("( NAME== \"third\" )"),
            filter("( NAME== \"N`.1\" )"));
        row("every term", Rename,
            filter("NAME==\"A\" OR ( name == \"Third\" AND NAME==\"THIRD\" )"),
            filter("NAME==\"A\" OR ( name == \"N`.1\" AND NAME==\"N`.1\" )"));
        row("names in a list", Rename, filter("NAME==\"A*,Third\""), filter("NAME==\"A*,N`.1\""));
        row("wildcards", Rename,
            filter("NAME==\"Third*\" AND COLOR==\"Third\" AND LNAME==\"Third\""),
            filter("NAME==\"Third*\" AND COLOR==\"Third\" AND LNAME==\"Third\""));
        row("filter of a merged layer", Merge, filter("NAME==\"Third\""),
            filter("NAME==\"Empty\""));
        row("filter of a deleted layer", Delete, filter("NAME==\"Third\""),
            filter("NAME==\"Third\""));

        const QByteArray old =
            "0 DICTIONARY | 5 D0 | 3 F | 350 D2\n0 XRECORD | 5 D2 | 100 AcDbXrecord\n"
            "280 1 | 1 Third | 1 @ | 1 * | 70 0 | 1001 ACAD | 1000 ( NAME== \"@\" )\n";
        row("old filter", Rename, QByteArray(old).replace("@", "THIRD"),
            QByteArray(old).replace("@", "N`.1"));

        const auto group = [](const QByteArray& layers) {
            return "0 DICTIONARY | 5 D1 | 3 *A1 | 350 D2\n0 XRECORD | 5 D2\n102 {ACAD_XDICTIONARY\n"
                   "360 D3 | 102 } | 100 AcDbXrecord | 1 AcLyLayerGroup\n300 G | " +
                   layers +
                   "\n0 DICTIONARY | 5 D3 | 3 ACLYDICTIONARY | 360 D4\n0 DICTIONARY | 5 D4 | 3 *A1 "
                   "| "
                   "350 D5\n0 XRECORD | 5 D5 | 100 AcDbXrecord\n1 AcLyLayerGroup | " +
                   layers + "\n";
        };
        row("group within a group, renamed", Rename, group("330 10 | 330 13"),
            group("330 10 | 330 13"));
        row("merged", Merge, group("330 10 | 330 13"), group("330 10 | 330 12"));
        row("merged, target listed", Merge, group("330 12 | 330 13"), group("330 12"));
        row("deleted", Delete, group("330 10 | 330 13"), group("330 10"));

        const QByteArray mapping = "0 DICTIONARY | 5 F0 | 3 Third | 350 F1\n0 XRECORD | 5 F1 | 100 "
                                   "AcDbXrecord\n280 1 | 1 Third | ";
        row("mapping", Rename, mapping + "2 third | 340 13\n", mapping + "2 N.1 | 340 13\n");
        row("mapping to a merged layer", Merge, mapping + "2 Third | 340 13\n",
            mapping + "2 Empty | 340 12\n");
        row("mapping to a deleted layer", Delete, mapping + "2 Third | 340 13\n",
            mapping + "2 Third | 340 0\n");

        const QByteArray index =
            "0 LAYER_INDEX | 5 E0 | 100 AcDbIndex | 40 1.5 | 100 AcDbLayerIndex\n";
        row("index", Rename, index + "8 0 | 360 E1 | 90 1 | 8 Third | 360 E2 | 90 0\n",
            index + "8 0 | 360 E1 | 90 1 | 8 N.1 | 360 E2 | 90 0\n");
        row("index of a merged layer", Merge,
            index + "8 Empty | 360 E1 | 90 1 | 8 Third | 360 E2 | 90 2\n"
                    "0 IDBUFFER | 5 E1 | 330 0 | 100 AcDbIdBuffer | 330 70\n"
                    "0 IDBUFFER | 5 E2 | 330 0 | 100 AcDbIdBuffer | 330 71 | 330 72\n",
            index + "8 Empty | 360 E1 | 90 3\n"
                    "0 IDBUFFER | 5 E1 | 330 0 | 100 AcDbIdBuffer | 330 70 | 330 71 | 330 72\n");
        row("index of a deleted layer", Delete,
            index + "8 0 | 360 E1 | 90 1 | 8 Third | 360 E2 | 90 0\n0 IDBUFFER | 5 E2 | 330 0\n",
            index + "8 0 | 360 E1 | 90 1\n");

        const QByteArray section = "0 SECTIONSETTINGS | 5 E0 | 100 AcDbSectionSettings | 90 1 | 8 ";
        row("section", Rename, section + "third | 8 Empty\n", section + "N.1 | 8 Empty\n");
        row("section of a merged layer", Merge, section + "Third\n", section + "Empty\n");
        row("section of a deleted layer", Delete, section + "Third\n", section + "0\n");
    }

    void objects()
    {
        QFETCH(int, act);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const auto drawing = opened(house(before));
        const QByteArray original = saved(*drawing);
        change(*drawing, act);
        const QByteArray expected = house(after);
        const int from = expected.indexOf("ACLYDICTIONARY");
        QCOMPARE(objectsOf(saved(*drawing)), expected.mid(from));
        QVERIFY(drawing->takeNotices().isEmpty());
        checkUndo(*drawing, original);
    }

    void editedFilters_data()
    {
        const Rows<QByteArray, QByteArray, QString, QByteArray> row(
            "before", "act", "refusal", "after");
        const auto tree = [](const QByteArray& rest) {
            return "0 DICTIONARY | 5 D1 | 3 *A1 | 350 D2\n" + rest;
        };
        const auto property = [&tree](const QByteArray& name, const QByteArray& expression) {
            return tree(
                "0 XRECORD | 5 D2 | 100 AcDbXrecord\n280 1 | 1 AcLyLayerFilter | 90 1\n300 " +
                name + " | 301 " + expression + " | 290 1\n");
        };
        const QByteArray term = "NAME==\"a\"";
        row("name; what is not known stays", property("F", term), "name 0 N", {},
            property("N", term));
        row("expression", property("F", term), "expression 0 X", {}, property("F", "X"));
        row("nothing", property(" F", term), "name 0 F", {}, property(" F", term));
        row("no name", property("F", term), "name 0 ~", "不能为空", property("F", term));
        const QByteArray odd = tree("0 XRECORD | 5 D2 | 100 AcDbXrecord\n1 AcLyOther | 300 O\n");
        row("kind not known", odd, "name 0 N", "不了解", odd);

        const auto group = [&tree](const QByteArray& layers) {
            return tree("0 XRECORD | 5 D2 | 100 AcDbXrecord\n1 AcLyLayerGroup | 300 G\n" + layers);
        };
        row("group, one more and one less", group("330 10 | 330 FF | 330 12\n"), "layers 0 0,Third",
            {}, group("330 10 | 330 FF | 330 13\n"));

        const auto old = [&property](const QByteArray& key, const QByteArray& pattern,
                             const QByteArray& expression) {
            return "0 DICTIONARY | 5 D0 | 3 " + key + " | 350 D3\n0 XRECORD | 5 D3\n" +
                   "100 AcDbXrecord | 1 " + key + " | 1 " + pattern + " | 1 7 | 70 0\n" +
                   "1001 ACAD | 1000 " + expression + "\n" + property(key, expression);
        };
        row("the older list follows", old("F", "a", term), "expression 0 NAME==\"b\"", {},
            old("F", "b", "NAME==\"b\""));
        row("its key as well", old("F", "a", term), "name 0 N", {}, old("N", "a", term));
        row("gone from both lists", old("F", "a", term), "remove 0", {},
            "0 DICTIONARY | 5 D0\n0 DICTIONARY | 5 D1\n");
        const QByteArray nested =
            group("330 10\n").replace("5 D2 | ", "5 D2\n102 {ACAD_XDICTIONARY | 360 D4 | 102 }\n");
        const QByteArray inside = "0 DICTIONARY | 5 D4 | 3 *A1 | 360 D5\n"
                                  "0 XRECORD | 5 D5 | 100 AcDbXrecord | 1 AcLyLayerGroup | 300 I\n";
        row("what is inside goes along", nested + inside, "remove 0", {}, "0 DICTIONARY | 5 D1\n");
        row("what is inside alone", nested + inside, "name 1 N", {},
            nested + QByteArray(inside).replace("300 I", "300 N"));
    }

    void editedFilters()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, act);
        QFETCH(QString, refusal);
        QFETCH(QByteArray, after);
        const auto drawing = opened(house(before));
        const QByteArray original = saved(*drawing);
        const auto edited = inStep(*drawing, [&] { return editFilter(*drawing, act.split(' ')); });
        const QString refused = edited ? QString() : edited.error().text;
        QVERIFY2(
            refusal.isEmpty() ? refused.isEmpty() : refused.contains(refusal), qPrintable(refused));
        const QByteArray expected = house(after);
        QCOMPARE(objectsOf(saved(*drawing)), expected.mid(expected.indexOf("ACLYDICTIONARY")));
        checkUndo(*drawing, original);
    }

    /// New nested filters are read back, follow layers and disappear with undo.
    void newFilters()
    {
        const auto drawing = opened(House().bytes());
        const QByteArray original = saved(*drawing);
        using Kind = LayerFilter::Kind;
        QVERIFY(inStep(*drawing, [&] {
            const auto outer =
                drawing->addLayerFilter({Kind::Group, "G", {}, {id(*drawing, "Empty")}, 0, 0});
            return outer.and_then([&](quint64 parent) {
                return drawing->addLayerFilter(
                    {Kind::Property, "P", "NAME==\"Empty\"", {}, 0, parent});
            });
        }));
        QCOMPARE(edit(*drawing, "Empty", [](LayerProperties& p) { p.name = "Full"; }), QString());
        const auto again = opened(saved(*drawing));
        for (const Drawing* seen : {drawing.get(), again.get()}) {
            const std::vector<LayerFilter> filters = seen->layerFilters();
            QCOMPARE(filters.size(), std::size_t(2));
            QCOMPARE(filters[0].layers, std::vector<LayerId>{seen->findLayer("Full")->id});
            QCOMPARE(filters[1].expression, "NAME==\"Full\"");
            QCOMPARE(filters[1].parent, filters[0].record);
        }
        drawing->undo();
        checkUndo(*drawing, original);
    }

    void annotationCopies_data()
    {
        const Rows<int, QByteArray, QStringList, QByteArray> row(
            "act", "record", "layers", "pointer");
        row("renamed", Rename, "340 50\n340 13",
            {"0", "Wall", "Empty", "N.1", "N.1 @ 1", "Implicit"}, "13");
        row("merged", Merge, "340 50\n340 13", {"0", "Wall", "Empty", "Empty @ 1", "Implicit"},
            "12");
        row("deleted", Delete, "340 50\n340 13", {"0", "Wall", "Empty", "Implicit"}, "");
        row("alike in name only", Rename, "340 50\n340 51",
            {"0", "Wall", "Empty", "N.1", "Third @ 1", "Implicit"}, "51");
    }

    void annotationCopies()
    {
        QFETCH(int, act);
        QFETCH(QByteArray, record);
        QFETCH(QByteArray, pointer);
        const auto drawing =
            opened(house("0 DICTIONARY\n5 C0\n3 ASDK_XREC_ANNO_SCALE_INFO\n360 C1\n"
                         "0 XRECORD\n5 C1\n100 AcDbXrecord\n280 1\n70 1\n" +
                         record + "\n70 -1\n"));
        const QByteArray original = saved(*drawing);
        change(*drawing, act);
        QTEST(layerNames(*drawing), "layers");
        const QByteArray after = saved(*drawing);
        QCOMPARE(
            after.contains(tagged("340 50\n340 " + pointer + "\n70 -1\n")), !pointer.isEmpty());
        QCOMPARE(after.contains(tagged("0 XRECORD\n5 C1\n")), !pointer.isEmpty());
        checkUndo(*drawing, original);
    }

    /// Data that cannot be interpreted keeps its bytes, and the user is told.
    void opaque_data()
    {
        const Rows<int, QByteArray, bool> row("act", "object", "isNoted");
        row("a name in a record", Rename, "0 XRECORD\n5 E0\n100 AcDbXrecord\n1 THIRD\n", true);
        row("a handle in a record", Delete, "0 XRECORD\n5 E0\n100 AcDbXrecord\n330 13\n", true);
        row("a handle of a layer that stays", Rename, "0 XRECORD\n5 E0\n100 AcDbXrecord\n330 13\n",
            false);
        row("a proxy", Merge, "0 ACAD_PROXY_OBJECT\n5 E0\n100 AcDbProxyObject\n90 499\n340 13\n",
            true);
        row("a proxy among the entities", Merge,
            "0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 ACAD_PROXY_ENTITY\n5 E0\n100 AcDbEntity\n8 0\n"
            "100 AcDbProxyEntity\n90 498\n340 13\n",
            true);
        row("another name", Rename, "0 XRECORD\n5 E0\n100 AcDbXrecord\n1 Thirds\n", false);
    }

    void opaque()
    {
        QFETCH(int, act);
        QFETCH(QByteArray, object);
        const auto drawing = opened(house(object));
        change(*drawing, act);
        QVERIFY(saved(*drawing).contains(tagged(object)));
        const QString notices = drawing->takeNotices().join(QString());
        QTEST(notices.contains("“Third", Qt::CaseInsensitive), "isNoted");
    }

    void oldNames_data()
    {
        const Rows<QString, bool> row("name", "isTaken");
        row("longest", QString(31, 'W'), true);
        row("too long", QString(32, 'W'), false);
        row("letters of the code page", "墙体_1$-", true);
        row("blank", "Wall 1", false);
    }

    /// Formats up to R12 allow fewer names, but names that such a file already has are kept.
    void oldNames()
    {
        QFETCH(QString, name);
        House house;
        house.version = "AC1009";
        house.wall = QByteArray(40, 'w');
        house.current = house.wall;
        const auto drawing = opened(house.bytes());
        const QString wall = QString::fromLatin1(house.wall);
        QCOMPARE(edit(*drawing, wall, [](LayerProperties& p) { p.locked = true; }), QString());
        const QString refused = edit(*drawing, wall, [&](LayerProperties& p) { p.name = name; });
        QTEST(refused.isEmpty(), "isTaken");
    }

private:
    static QByteArray objectsOf(const QByteArray& file)
    {
        return file.mid(file.indexOf("ACLYDICTIONARY"));
    }

    /// Executes "name 0 N", "expression 0 X", "layers 0 A,B" or "remove 0" on the filter with that
    /// index.
    static Expected<void> editFilter(Drawing& drawing, const QList<QByteArray>& act)
    {
        LayerFilter filter = drawing.layerFilters()[act[1].toULong()];
        const QString value = QString::fromUtf8(act.value(2)).replace('~', ' ');
        if (act[0] == "remove")
            return drawing.removeLayerFilter(filter.record);
        if (act[0] == "layers") {
            filter.layers.clear();
            for (const QString& name : value.split(','))
                filter.layers.push_back(id(drawing, name));
        } else {
            (act[0] == "name" ? filter.name : filter.expression) = value;
        }
        return drawing.changeLayerFilter(filter);
    }

    static void change(Drawing& drawing, int act)
    {
        if (act == Rename) {
            QCOMPARE(edit(drawing, "Third", [](LayerProperties& p) { p.name = "N.1"; }), QString());
            return;
        }
        const LayerId third = id(drawing, "Third");
        QVERIFY(inStep(drawing, [&] {
            return act == Merge ? drawing.mergeLayers({third}, id(drawing, "Empty"))
                                : drawing.deleteLayers({third});
        }));
    }
};

QTEST_GUILESS_MAIN(TestReferences)
#include "tst_references.moc"
