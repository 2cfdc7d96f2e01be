#include "managerfixture.h"
#include "vncolortext.h"
#include "vnstrings.h"

#include <QHeaderView>

using namespace vnsi;

class TestLayerTable : public ManagerFixture
{
    Q_OBJECT

private slots:
    void columnsAreAsAgreed()
    {
        open(layerTree({layer("0", 0)}));
        QCOMPARE(headersOf(*m_table),
            "状态 名称 开 冻结 锁定 颜色 线型 线宽 透明度 打印样式 打印 新视口冻结 说明");
        const QList<int> alignments{
            129, 129, 132, 132, 132, 132, 129, 129, 129, 129, 132, 132, 129};
        for (int column = 0; column < alignments.size(); ++column)
            QCOMPARE(cell(0, column)->textAlignment(), alignments[column]);
        QVERIFY(m_table->hasFocus());
    }

    void centresIcons()
    {
        open(layerTree({layer("0", 0)}));
        m_table->setMinimumWidth(1200);
        for (int column = 0; column < m_table->columnCount(); ++column)
            m_table->setColumnWidth(column, 90);
        const QImage picture = m_table->viewport()->grab().toImage();
        for (const int column : {0, 2, 3, 4, 10, 11}) {
            const QRect place = m_table->visualItemRect(cell(0, column));
            const QRect inked = inkedPart(picture, place.adjusted(2, 2, -2, -2));
            const int off = qAbs(inked.center().x() - place.center().x());
            QVERIFY2(column == 0 ? off > 20 : off <= 2, qPrintable(QString::number(off)));
        }
    }

    void showsIcon_data()
    {
        const Rows<QString, int, QByteArray> row("record", "column", "icon");
        row("current", R"({"CurLayer":0})", 0, "current");
        row("ordinary", R"({"CurLayer":1})", 0, "nocurrent");
        row("deleted", R"({"CurLayer":2,"Off":true})", 0, "deleted");
        row("other status", R"({"CurLayer":5})", 0, "nocurrent");
        row("no status", "{}", 0, "current");
        row("status of another type", R"({"CurLayer":"2"})", 0, "current");
        row("off of a deleted layer", R"({"CurLayer":2,"Off":true})", 2, "off");
        row("on", R"({"Off":false})", 2, "on");
        row("off of another type", R"({"Off":1})", 2, "on");
        row("frozen", R"({"Frozen":true})", 3, "frozed");
        row("thawed", "{}", 3, "thaw");
        row("locked", R"({"Lock":true})", 4, "lock");
        row("unlocked", R"({"Lock":false})", 4, "unlock");
        row("plotted", R"({"Print":true})", 10, "print");
        row("not plotted", "{}", 10, "noprint");
        row("frozen in viewports", R"({"VPortFrozen":true})", 11, "allfrozed");
        row("thawed in viewports", R"({"VPortFrozen":false})", 11, "allthaw");
    }

    void showsIcon()
    {
        QFETCH(QString, record);
        QFETCH(int, column);
        QFETCH(QByteArray, icon);
        open(layerTree({record}));
        QVERIFY(shows(0, column, icon.constData()));
        QVERIFY(text(0, column).isEmpty());
    }

    void showsText_data()
    {
        const Rows<QString, int, QString> row("record", "column", "text");
        row("name", R"({"LayerName":"<b>墙&"})", 1, "<b>墙&");
        row("name of another type", R"({"LayerName":7})", 1, "");
        row("linetype", R"({"linetype":{"name":"DASHED"}})", 6, "DASHED");
        row("linetype not nested", R"({"linetype":"DASHED"})", 6, "");
        row("default weight", R"({"LineWidth":-3})", 7, "默认");
        row("weight by layer", R"({"LineWidth":-1})", 7, "ByLayer");
        row("weight by block", R"({"LineWidth":-2})", 7, "ByBlock");
        row("weight 0", R"({"LineWidth":0})", 7, "0.00 mm");
        row("weight 5", R"({"LineWidth":5})", 7, "0.05 mm");
        row("weight 211", R"({"LineWidth":211})", 7, "2.11 mm");
        row("no weight", "{}", 7, "0.00 mm");
        row("transparency", R"({"Transparency":35})", 8, "35");
        row("no transparency", "{}", 8, "0");
        row("plot style", R"({"PlotStyle":"Color_7"})", 9, "Color_7");
        row("description", R"({"Description":"两\n行"})", 12, "两\n行");
    }

    void showsText()
    {
        QFETCH(QString, record);
        QFETCH(int, column);
        open(layerTree({record}));
        QTEST(text(0, column), "text");
    }

    void showsColor_data()
    {
        const Rows<QString, QColor> row("color", "swatch");
        row("index", R"({"clrMethod":195,"selectClr":1})", {255, 0, 0});
        row("index, low bits count", R"({"clrMethod":195,"selectClr":131075})", {0, 255, 0});
        row("true colour, red lowest", R"({"clrMethod":194,"selectClr":3351057})",
            {0x11, 0x22, 0x33});
        row("unknown method", R"({"clrMethod":7,"selectClr":255})", {255, 0, 0});
        row("missing", "{}", {0, 0, 0});
    }

    void showsColor()
    {
        QFETCH(QString, color);
        QFETCH(QColor, swatch);
        open(layerTree({R"({"Color":)" + color + "}"}));
        const QImage image = cell(0, 5)->icon().pixmap(16, 16).toImage();
        QCOMPARE(image.size(), QSize(16, 16));
        QCOMPARE(image.pixelColor(0, 0), swatch);
        QCOMPARE(image.pixelColor(15, 15), swatch);
        OdCmColor shown(static_cast<OdUInt8>(swatch.red()), static_cast<OdUInt8>(swatch.green()),
            static_cast<OdUInt8>(swatch.blue()));
        const VnJsonPtr given = tree(color);
        if (given->GetDataI("clrMethod") == 195)
            shown.setColorIndex(static_cast<OdInt16>(given->GetDataI("selectClr")));
        QCOMPARE(text(0, 5), vnutOdStringToQString(formatColor(shown, {}, {})));
    }

    void fillsLabels_data()
    {
        const Rows<QString, QString, QString> row("json", "current", "count");
        row("layers", layerTree({layer("A"), layer("<i>墙", 0)}), "当前图层：<i>墙",
            "全部：共2个图层");
        row("last of two current ones", layerTree({layer("A", 0), layer("B", 0)}), "当前图层：B",
            "全部：共2个图层");
        row("none current", layerTree({layer("A")}), "当前图层：", "全部：共1个图层");
        row("empty list", layerTree({}), "当前图层：", "全部：共0个图层");
        row("no list", "{}", "当前图层：", "共  个图层");
        row("list of another type", R"({"LayerList":"A"})", "当前图层：", "共  个图层");
        row("no tree", "", "当前图层：", "共  个图层");
    }

    void fillsLabels()
    {
        QFETCH(QString, json);
        open(json);
        QTEST(label("currentLayerLabel"), "current");
        QTEST(label("layerCountLabel"), "count");
    }

    void appliesColumnWidths_data()
    {
        const Rows<QString, QList<int>> row("list", "widths");
        row("short", "[90,120]", {90, 120, -1});
        row("long", "[90,80,70,60,50,60,70,80,90,80,70,60,50,99,98]",
            {90, 80, 70, 60, 50, 60, 70, 80, 90, 80, 70, 60, 50});
        row("elements of other types", R"(["x",77,null,88])", {-1, 77, -1, 88});
        row("no array", R"({"0":90})", {-1, -1});
        row("absurd", "[2147483647,-5]", {-1, -1});
    }

    void appliesColumnWidths()
    {
        QFETCH(QString, list);
        QFETCH(QList<int>, widths);
        open(layerTree({layer("0", 0)}));
        for (int column = 0; column < widths.size(); ++column) {
            if (widths[column] < 0)
                widths[column] = m_table->columnWidth(column);
        }
        open(layerTree({layer("0", 0)}, R"(,"ColumnWidthList":)" + list));
        for (int column = 0; column < widths.size(); ++column)
            QCOMPARE(m_table->columnWidth(column), widths[column]);
    }

    void appliesColumnWidthsWithoutLayers()
    {
        open(R"({"ColumnWidthList":[123]})");
        QCOMPARE(m_table->columnWidth(0), 123);
        QCOMPARE(m_table->rowCount(), 0);
    }

    void clicksCell_data()
    {
        // Row 0 is the current layer. `after` is empty when nothing changes.
        const Rows<int, int, QString, int, QString, QString, bool> row(
            "row", "column", "before", "answer", "asked", "after", "marks");
        const char* const off =
            "message|当前图层将被关闭。\n是否要使当前图层保持打开状态?\n|Quenlith|68";
        const char* const frozen = "message|不能冻结当前图层\n|Quenlith|64";
        row("status", 1, 0, "{}", 0, "", "", false);
        row("name", 1, 1, "{}", 0, "", "", false);
        row("turn off", 1, 2, "{}", 0, "", R"({"Off":true})", true);
        row("turn on", 1, 2, R"({"Off":true})", 0, "", R"({"Off":false})", true);
        row("keep current on", 0, 2, R"({"Off":false})", 6, off, "", false);
        row("turn current off", 0, 2, R"({"Off":false})", 7, off, R"({"Off":true})", true);
        row("current off, box closed", 0, 2, "{}", 0, off, R"({"Off":true})", true);
        row("turn current on", 0, 2, R"({"Off":true})", 0, "", R"({"Off":false})", true);
        row("freeze", 1, 3, "{}", 0, "", R"({"Frozen":true})", true);
        row("freeze current", 0, 3, "{}", 0, frozen, "", false);
        row("thaw current", 0, 3, R"({"Frozen":true})", 0, frozen, "", false);
        row("lock", 0, 4, "{}", 0, "", R"({"Lock":true})", true);
        row("linetype", 1, 6, "{}", 0, "", "", true);
        row("lineweight", 0, 7, "{}", 0, "", "", true);
        row("plot style", 1, 9, "{}", 0, "", "", false);
        row("plot", 1, 10, R"({"Print":true})", 0, "", R"({"Print":false})", true);
        row("viewports", 0, 11, "{}", 0, "", R"({"VPortFrozen":true})", true);
        row("description", 1, 12, "{}", 0, "", "", false);
    }

    void clicksCell()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, before);
        QFETCH(int, answer);
        QFETCH(QString, asked);
        QFETCH(QString, after);
        QFETCH(bool, marks);
        open(layerTree({layer("A", 0), layer("B", 1)}));
        merge(record(row), before);
        QJsonObject expected = toJsonObject(record(row));
        if (asked.endsWith("|68"))
            m_host->answer(answer);

        click(row, column);

        const QJsonObject changes = toJsonObject(tree(after.isEmpty() ? "{}" : after));
        for (auto change = changes.begin(); change != changes.end(); ++change)
            expected.insert(change.key(), change.value());
        if (marks)
            expected.insert("Modified", true);
        QCOMPARE(toJsonObject(record(row)), expected);
        QCOMPARE(log().join('#'), asked);
        QCOMPARE(isApplyEnabled(), marks);
    }

    void togglesIcon()
    {
        open(layerTree({layer("A", 0), layer("B")}));
        click(1, 2);
        QVERIFY(shows(1, 2, "off"));
        click(1, 2);
        QVERIFY(shows(1, 2, "on"));
        click(1, 11);
        QVERIFY(shows(1, 11, "allfrozed"));
        QCOMPARE(cell(1, 11)->textAlignment(), 132);
        QVERIFY(!(cell(1, 11)->flags() & Qt::ItemIsEditable));
    }

    void choosesColor_data()
    {
        // Where plot styles go by colour, theirs follows at once.
        const Rows<QString, QString, int, QString, QString, QColor, QString> row(
            "color", "asked", "result", "answer", "stored", "swatch", "style");
        const QString index = R"({"clrMethod":195,"selectClr":3})";
        const QString askedIndex =
            R"({"clrMethod":195,"isByBLockEnable":0,"isByLayerEnable":0,"selectClr":3})";
        row("index to true colour", index, askedIndex, 1, R"({"clrMethod":194,"selectClr":255})",
            R"({"clrMethod":194,"selectClr":255})", {255, 0, 0}, "Color_3");
        row("cancelled", index, askedIndex, 2, R"({"selectClr":5})", index, {0, 255, 0}, "Color_3");
        row("answers nothing", index, askedIndex, 1, R"({"selectClr":null,"clrMethod":null})",
            R"({"clrMethod":0,"selectClr":-1})", {255, 255, 255}, "Color_3");
        row("only the index of an index is handed on", R"({"clrMethod":195,"selectClr":65539})",
            askedIndex, 2, "{}", R"({"clrMethod":195,"selectClr":65539})", {0, 255, 0}, "Color_3");
        row("true colour to index", R"({"clrMethod":194,"selectClr":255})",
            R"({"clrMethod":194,"isByBLockEnable":0,"isByLayerEnable":0,"selectClr":255})", 1,
            R"({"clrMethod":195,"selectClr":5})", R"({"clrMethod":195,"selectClr":5})", {0, 0, 255},
            "Color_5");
    }

    void choosesColor()
    {
        QFETCH(QString, color);
        QFETCH(QString, asked);
        QFETCH(int, result);
        QFETCH(QString, answer);
        open(layerTree(
            {layer("A", 0), layer("B", 1, R"(,"PlotStyle":"Color_3","Color":)" + color)}));
        m_host->answer(result, answer);
        click(1, 5);
        QCOMPARE(log(), QStringList{"dialog|Dialog/Common|ColorDialog|" + asked});
        QTEST(toText(record(1)->GetDataJ("Color")), "stored");
        QTEST(cell(1, 5)->icon().pixmap(16, 16).toImage().pixelColor(8, 8), "swatch");
        QTEST(text(1, 9), "style");
        QVERIFY(record(1)->GetDataB("Modified")); // Even when the dialog was cancelled.
        QVERIFY(isApplyEnabled());
    }

    void keepsSelectionBelowLastRow()
    {
        open(layerTree({layer("A", 0), layer("B"), layer("C")}));
        select({1});
        const QRect last = m_table->visualItemRect(cell(2, 1));
        QTest::mouseClick(
            m_table->viewport(), Qt::LeftButton, Qt::NoModifier, last.bottomLeft() + QPoint(5, 40));
        QCOMPARE(selectedRows(), QList<int>{1});
        click(2, 1);
        QCOMPARE(selectedRows(), QList<int>{2});
    }

    void survivesStrangeRecords()
    {
        open(R"({"LayerList":[5,null,"x",[],{}]})");
        QCOMPARE(m_table->rowCount(), 5);
        for (int column = 2; column < 12; ++column) {
            if (column != 5 && column != 8)
                click(0, column);
        }
        select({0, 1, 2, 3, 4});
        press("setCurrentButton");
        press("applyButton");
    }

private:
    /// The part of the picture that differs from the colour of its corner.
    static QRect inkedPart(const QImage& picture, const QRect& part)
    {
        QRegion inked;
        for (int x = part.left(); x <= part.right(); ++x) {
            for (int y = part.top(); y <= part.bottom(); ++y) {
                if (picture.pixel(x, y) != picture.pixel(part.topLeft()))
                    inked += QRect(x, y, 1, 1);
            }
        }
        return inked.boundingRect();
    }
};

QTEST_MAIN(TestLayerTable)
#include "tst_layertable.moc"
