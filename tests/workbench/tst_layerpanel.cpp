#include "filterexpression.h"
#include "layercolumns.h"
#include "layerpanel.h"
#include "layeruses.h"
#include "layerview.h"
#include "ownsettings.h"
#include "rows.h"
#include "sketch.h"
#include "steps.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTreeWidget>

#include <algorithm>

using drawing::LayerId;

namespace {

// Together with layer 0 these are six layers, in the order of the file.
constexpr char kLayers[] = "Wall-10 62 1;Wall-2 62 5;door 62 3;Furn 62 7;Site 62 2";
constexpr char kEntities[] = "0 LINE 8 door 10 0 20 0 11 1 21 0 0 LINE 8 door 10 0 20 0 11 1 21 0 "
                             "0 INSERT 8 Wall-2 2 U 10 40 20 30 0 CIRCLE 8 Furn 10 0 20 0 40 1 ";
constexpr char kBlocks[] = "0 BLOCK 8 0 2 U 70 0 10 0 20 0 0 LINE 8 Furn 10 0 20 0 11 2 21 0 "
                           "0 ENDBLK 8 0 0 BLOCK 8 0 2 V 70 0 10 0 20 0 0 INSERT 8 0 2 U 0 ENDBLK";

} // namespace

/// Tests the panel with a drawing of its own, by mouse and keyboard.
class LayerPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_panel.reset();
        m_settings.clear();
        m_sketch.layers = kLayers;
        m_sketch.blocks = kBlocks;
        m_drawing = m_sketch.open(kEntities);
        QVERIFY(m_drawing);
        makePanel();
        describe("Furn", "movable things");
        describe("Site", "outdoors");
    }

    void search_data()
    {
        const Rows<QString, QString> row("typed", "shown");
        row("nothing", "  ", "0 door Furn Site Wall-2 Wall-10");
        row("part of a name, any case", "WALL", "Wall-2 Wall-10");
        row("part of a description", "thing", "Furn");
        row("pattern of the whole name", "*-1*", "Wall-10");
        row("pattern that only begins so", "wall", "Wall-2 Wall-10");
        row("one character", "wall-?", "Wall-2");
        row("set", "[df]*", "door Furn");
        row("two patterns", "d*,s*", "door Site");
        row("expression", "/^[a-f]|door/", "door Furn Site");
        row("expression with digits", "/-\\d{2}$/", "Wall-10");
        row("expression not ended yet", "/2$", "Wall-2");
        row("what cannot be read leaves all", "/(/", "0 door Furn Site Wall-2 Wall-10");
    }

    void search()
    {
        QFETCH(QString, typed);
        QTest::keyClicks(find<QLineEdit>("layerSearch"), typed);
        QTEST(names(), "shown");
        const QString counts = find<QLabel>("layerPanelCounts")->text();
        QCOMPARE(counts.contains("正则表达式有误"), typed == "/(/");
    }

    void sorting_data()
    {
        const Rows<QString, bool, QString> row("column", "isUp", "shown");
        row("names, numbers by value", "name", false, "Wall-10 Wall-2 Site Furn door 0");
        row("colours", "color", true, "Wall-10 Site door Wall-2 0 Furn");
        row("entities", "count", false, "door Furn 0 Wall-2 Wall-10 Site");
        row("flags keep the order of the file", "on", true, "0 Wall-10 Wall-2 door Furn Site");
        row("descriptions", "description", false, "Site Furn 0 Wall-10 Wall-2 door");
    }

    void sorting()
    {
        QFETCH(QString, column);
        QFETCH(bool, isUp);
        m_panel->view()->sortByColumn(
            LayerColumns::find(column), isUp ? Qt::AscendingOrder : Qt::DescendingOrder);
        QTEST(names(), "shown");
    }

    /// So many layers that another thread sorts them, while further layers are added.
    void sortingMany()
    {
        QByteArray layers = "L1";
        for (int i = 2; i < 4000; ++i)
            layers += ";L" + QByteArray::number(i * 7919 % 4001 + 1);
        m_sketch.layers = layers;
        m_sketch.blocks.clear();
        m_drawing = m_sketch.open({});
        m_panel->setDrawing(m_drawing.get());
        add("L1a");
        QTRY_VERIFY(m_panel->model()->isSettled());
        const QStringList sorted = names().split(' ');
        QCOMPARE(sorted.mid(0, 3).join(' '), "0 L1 L1a");
        const auto number = [](const QString& name) {
            return QString(name).remove('L').remove('a').toInt();
        };
        QVERIFY(std::is_sorted(sorted.begin(), sorted.end(),
            [&](const QString& a, const QString& b) { return number(a) < number(b); }));
    }

    void edits_data()
    {
        const Rows<QString, QString, QString, QString> row("selected", "act", "cells", "undo");
        row("click", "door", "click on door", "door:关", "关闭图层");
        row("click among those selected", "door Furn", "click on Furn", "door:关 Furn:关",
            "关闭图层");
        row("click beside those selected", "door Furn", "click on Site", "Site:关", "关闭图层");
        row("space", "door Furn", "space", "door:关 Furn:关", "关闭图层");
        row("freeze", "door Furn", "click frozen Furn", "door:冻结 Furn:冻结", "冻结图层");
        row("freeze the current layer", "0 Furn", "click frozen Furn", "0:解冻 Furn:冻结",
            "冻结图层");
        row("lock", "Site", "click locked Site", "Site:锁定", "锁定图层");
        row("not plotted", "Site", "click plotted Site", "Site:不打印", "不打印图层");
        row("rename", "door", "type name Tor", "Tor:Tor", "重命名图层");
        row("rename one of many", "door Furn", "type name Gate", "Gate:Gate Furn:Furn",
            "重命名图层");
        row("to a name in use", "door", "type name SITE", "door:door", "");
        row("transparency of many", "door Furn", "type transparency 30", "door:30 Furn:30",
            "更改图层透明度");
        row("lineweight", "door Furn", "set lineweight 0.25~mm", "door:0.25~mm Furn:0.25~mm",
            "更改图层线宽");
        row("colour", "door Furn", "set color 1,2,3", "door:1,2,3 Furn:1,2,3", "更改图层颜色");
        row("no colour", "door Furn", "set color 300", "door:绿 Furn:白", "");
        row("unknown linetype", "door", "set linetype X", "door:Continuous", "");
        row("description", "door Site", "type description ab", "door:ab Site:ab", "更改图层说明");
    }

    void edits()
    {
        QFETCH(QString, selected);
        QFETCH(QString, act);
        QFETCH(QString, cells);
        QFETCH(QString, undo);
        select(selected);
        const QStringList words = act.split(' ');
        const bool isFlag = words[0] == "click" || words[0] == "space";
        const int column = LayerColumns::find(isFlag ? words.value(1, "on") : words[1]);
        const QString before = m_drawing->undoName();
        if (words[0] == "click")
            QTest::mouseClick(
                m_panel->view()->viewport(), Qt::LeftButton, {}, place(words[2], column));
        else if (words[0] == "space")
            QTest::keyClick(m_panel->view(), Qt::Key_Space);
        else if (words[0] == "type")
            typeInto(column, words[2]);
        else
            emit m_panel->model()->edited(
                m_panel->view()->layerInHand(), column, QString(words[2]).replace('~', ' '));
        for (const QString& cell : cells.split(' '))
            QCOMPARE(QString(text(cell.section(':', 0, 0), column)).replace(' ', '~'),
                cell.section(':', 1));
        QCOMPARE(m_drawing->undoName(), undo.isEmpty() ? before : undo);
        QCOMPARE(m_refusals.isEmpty(), !undo.isEmpty() && !selected.startsWith('0'));
        if (!undo.isEmpty())
            m_drawing->undo();
        QCOMPARE(m_drawing->undoName(), before);
    }

    /// Changes that others make are shown immediately, and existing rows stay selected.
    void follows()
    {
        select("door Site");
        add("Area");
        QCOMPARE(names(), "0 Area door Furn Site Wall-2 Wall-10");
        QCOMPARE(selectedNames(), "door Site");
        drawing::LayerProperties renamed = m_drawing->findLayer("door")->properties;
        renamed.name = "Zdoor";
        QVERIFY(inStep(*m_drawing, [&] {
            return m_drawing->removeLayer(id("Site")) &&
                   m_drawing->setLayerProperties(id("door"), renamed);
        }));
        QCOMPARE(names(), "0 Area Furn Wall-2 Wall-10 Zdoor");
        QCOMPARE(selectedNames(), "Zdoor");
        m_drawing->undo();
        m_drawing->undo();
        QCOMPARE(names(), "0 door Furn Site Wall-2 Wall-10");
        m_drawing.reset();
        m_panel->setDrawing(nullptr);
        QCOMPARE(m_panel->model()->rowCount(), 0);
    }

    /// Nothing is changed while a command uses the drawing.
    void waitsForCommands()
    {
        QSignalSpy said(m_panel.get(), &LayerPanel::said);
        const drawing::DrawingStep step(*m_drawing, QStringLiteral("command"));
        select("door");
        QTest::keyClick(m_panel->view(), Qt::Key_Space);
        QCOMPARE(text("door", LayerColumns::On), "开");
        QCOMPARE(said.size(), 1);
    }

    void pastes_data()
    {
        const Rows<QString, QString, QString, int> row("pasted", "selected", "cells", "refused");
        row("by names", "名称\t颜色\t冻结\ndoor\t红\t冻结\nFurn\t12\t0\n", "", "door:红 Furn:12",
            0);
        row("columns in another order", "颜色\t名称\n\"1,2,3\"\tdoor\n", "", "door:1,2,3", 0);
        row("new layers", "名称\t颜色\nNew\t红\n", "", "New:红", 0);
        row("what is no value", "名称\t颜色\ndoor\tred\nFurn\t红\n", "", "door:绿 Furn:红", 1);
        row("one value into all", "黄", "door Furn", "door:黄 Furn:黄", 0);
        row("a value each", "黄\r\n青\r\n", "door Furn", "door:黄 Furn:青", 0);
        row("nowhere to go", "黄", "", "door:绿", 1);
    }

    void pastes()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, selected);
        QFETCH(QString, cells);
        const int color = LayerColumns::find("color");
        m_panel->view()->clearSelection();
        if (!selected.isEmpty())
            select(selected, color);
        QGuiApplication::clipboard()->setText(pasted);
        QTest::keyClick(m_panel->view(), Qt::Key_V, Qt::ControlModifier);
        for (const QString& cell : cells.split(' '))
            QCOMPARE(text(cell.section(':', 0, 0), color), cell.section(':', 1));
        QTEST(m_refusals.size(), "refused");
        m_drawing->undo();
        QCOMPARE(text("door", color), "绿");
    }

    /// Copied layers can be pasted into another drawing, whatever it contains.
    void copiesWhatPastes()
    {
        describe("door", "\"c\" d");
        select("door Furn");
        QTest::keyClick(m_panel->view(), Qt::Key_C, Qt::ControlModifier);
        m_drawing->undo();
        QTest::keyClick(m_panel->view(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m_drawing->findLayer("door")->properties.description, "\"c\" d");
        QVERIFY(m_refusals.isEmpty());
    }

    void expressions_data()
    {
        const Rows<QString, QString> row("expression", "shown");
        row("blanks and brackets", "( NAME== \"Wall*\" )", "Wall-2 Wall-10");
        row("neither", "NAME==\"*o*\"", "door");
        row("joined", "( NAME== \"*\" ) and ( COLOR== \"3\" ) AND locked == \"FALSE\"", "door");
        row("escaped", "NAME==\"Wall`-2\"", "Wall-2");
        row("another joiner", "NAME==\"a\" or NAME==\"b\"", "?");
        row("another comparison", "NAME!=\"a\"", "?");
        row("unknown variable", "PLOTSTYLE==\"a\"", "?");
        row("open bracket", "( NAME==\"a\"", "?");
        row("behind the end", "NAME==\"a\" and", "?");
        row("nothing", "", "?");
    }

    void expressions()
    {
        QFETCH(QString, expression);
        QFETCH(QString, shown);
        const auto test = filterexpression::parsed(expression);
        QCOMPARE(test.has_value(), shown != "?");
        if (!test)
            return;
        m_panel->model()->setFilter(*test);
        QCOMPARE(names(), shown);
    }

    /// Filters of the drawing are selected, filled by dragging, renamed, updated and undone.
    void filters()
    {
        using Kind = drawing::LayerFilter::Kind;
        const auto addFilter = [&](Kind kind, const char* name, const char* what, quint64 parent) {
            return inStep(*m_drawing, [&] {
                return *m_drawing->addLayerFilter({kind, name, what, {}, 0, parent});
            });
        };
        const quint64 walls = addFilter(Kind::Property, "Walls", "NAME==\"Wall*\"", 0);
        addFilter(Kind::Property, "Red", "COLOR==\"1\"", walls);
        addFilter(Kind::Property, "Odd", "NAME>\"X\"", 0);
        addFilter(Kind::Group, "G", "", 0);
        QCOMPARE(chosenNames("未使用的图层"), "Site Wall-10");
        QCOMPARE(chosenNames("Walls"), "Wall-2 Wall-10");
        QCOMPARE(chosenNames("Red"), "Wall-10");
        QVERIFY(!(filterItem("Odd")->flags() & Qt::ItemIsEnabled));
        QCOMPARE(chosenNames("G"), QString());
        chosenNames("全部图层");
        select("door Site");
        drop("G");
        QCOMPARE(m_drawing->undoName(), "把图层加入组过滤器");
        QCOMPARE(chosenNames("G"), "door Site");
        rename("door", "Zdoor");
        QCOMPARE(names(), "Site Zdoor");
        m_drawing->undo();
        m_drawing->undo();
        QCOMPARE(names(), QString());

        chosenNames("Walls");
        auto* const line = find<QLineEdit>("filterExpression");
        line->setText("NAME==\"*-2\"");
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(names(), "Wall-2");
        line->setText("what?");
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(m_refusals.size(), 1);
        QCOMPARE(line->text(), "NAME==\"*-2\"");
        filterItem("Walls")->setText(0, "Partitions");
        QTRY_COMPARE(m_drawing->undoName(), QStringLiteral("重命名图层过滤器"));
        QCOMPARE(m_drawing->layerFilters().front().name, "Partitions");
    }

    void uses()
    {
        const auto uses = layeruses::find(*m_drawing, {id("Furn"), id("door")});
        QStringList lines;
        for (const LayerUse& use : uses)
            lines +=
                QStringLiteral("%1 %2 %3").arg(use.kind).arg(use.entities.size()).arg(use.place);
        QCOMPARE(lines.front(), "直线 2 模型空间");
        lines.sort();
        QCOMPARE(lines, QStringList({"圆 1 模型空间", "直线 1 块“U”", "直线 2 模型空间"}));
        for (const LayerUse& use : uses) {
            const std::vector<int> shown = layeruses::shownBy(*m_drawing, use);
            if (use.block >= 0) {
                QCOMPARE(shown.size(), std::size_t(1));
                QCOMPARE(m_drawing->entities()[std::size_t(shown.front())].layer, id("Wall-2"));
            } else {
                QCOMPARE(shown, use.entities);
            }
        }
    }

    /// Empty layers are deleted in one step; the others stay, each for its own reasons.
    void purges()
    {
        select("0 door Furn Site Wall-10");
        QTest::keyClick(m_panel->view(), Qt::Key_Delete);
        QCOMPARE(names(), "0 door Furn Wall-2");
        const auto* const list = m_panel->window()->findChild<QTreeWidget*>("usesTable");
        QVERIFY(list);
        QStringList lines;
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            lines += list->topLevelItem(i)->text(0) + ':' + list->topLevelItem(i)->text(1);
        QCOMPARE(lines,
            QStringList({"0:图层“0”总是存在；是当前图层；块“V”中有 1 个块参照",
                "door:模型空间中有 2 个直线", "Furn:块“U”中有 1 个直线；模型空间中有 1 个圆"}));
        m_drawing->undo();
        QCOMPARE(m_panel->model()->rowCount(), 6);
    }

    /// The columns, their order and the sort column are restored in the next window.
    void keepsItsState()
    {
        LayerView* view = m_panel->view();
        view->horizontalHeader()->moveSection(LayerColumns::Frozen, 0);
        view->sortByColumn(LayerColumns::find("color"), Qt::DescendingOrder);
        view->setColumnWidth(LayerColumns::Name, 233);
        makePanel();
        view = m_panel->view();
        QCOMPARE(view->visibleColumns().front(), int(LayerColumns::Frozen));
        QCOMPARE(view->columnWidth(LayerColumns::Name), 233);
        QCOMPARE(names(), "0 Furn Wall-2 door Site Wall-10");
    }

private:
    void makePanel()
    {
        m_panel.reset();
        m_panel = std::make_unique<LayerPanel>();
        m_refusals.clear();
        connect(m_panel.get(), &LayerPanel::refused, this,
            [this](const QStringList& sentences) { m_refusals += sentences; });
        m_panel->resize(1400, 500);
        m_panel->setDrawing(m_drawing.get());
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    }

    template <class T>
    T* find(const char* name) const
    {
        return m_panel->findChild<T*>(QLatin1String(name));
    }

    void add(const QString& name)
    {
        drawing::LayerProperties properties;
        properties.name = name;
        QVERIFY(inStep(*m_drawing, [&] { return m_drawing->addLayer(properties); }));
    }
    void describe(const char* name, const char* text)
    {
        QCOMPARE(edit(*m_drawing, name, [&](auto& layer) { layer.description = text; }), "");
    }
    void rename(const char* name, const char* to)
    {
        QCOMPARE(edit(*m_drawing, name, [&](auto& layer) { layer.name = to; }), "");
    }

    LayerId id(const QString& name) const { return m_drawing->findLayer(name)->id; }

    std::vector<LayerId> ids(const QString& names) const
    {
        std::vector<LayerId> layers;
        for (const QString& name : names.split(' '))
            layers.push_back(id(name));
        return layers;
    }

    QString names() const
    {
        QStringList names;
        for (int row = 0; row < m_panel->model()->rowCount(); ++row)
            names += m_panel->model()->layerRow(row).properties().name;
        return names.join(' ');
    }

    QString selectedNames() const
    {
        QStringList names;
        for (const LayerId layer : m_panel->view()->selectedLayers())
            names += m_drawing->layer(layer)->properties.name;
        return names.join(' ');
    }

    /// Selects these layers. The first one becomes the current row, in this column.
    void select(const QString& names, int column = 0)
    {
        m_panel->view()->select(ids(names));
        const int row = m_panel->model()->rowsOf(ids(names.section(' ', 0, 0))).front();
        m_panel->view()->selectionModel()->setCurrentIndex(
            m_panel->model()->index(row, column), QItemSelectionModel::NoUpdate);
    }

    QModelIndex cell(const QString& name, int column) const
    {
        return m_panel->model()->index(m_panel->model()->rowsOf({id(name)}).front(), column);
    }
    QString text(const QString& name, int column) const
    {
        return cell(name, column).data(Qt::EditRole).toString();
    }
    QPoint place(const QString& name, int column) const
    {
        return m_panel->view()->visualRect(cell(name, column)).center();
    }

    /// Types into the current cell, with F2 for names and a double click otherwise.
    void typeInto(int column, const QString& typed)
    {
        LayerView* const view = m_panel->view();
        if (column == LayerColumns::Name) {
            QTest::keyClick(view, Qt::Key_F2);
        } else {
            const QModelIndex cell = view->currentIndex().siblingAtColumn(column);
            view->scrollTo(cell);
            const QPoint at = view->visualRect(cell).center();
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
        }
        const QPointer<QWidget> editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, typed);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!editor); // The editor only stores its text in the event loop.
    }

    QTreeWidgetItem* filterItem(const QString& name) const
    {
        return find<QTreeWidget>("filterTree")
            ->findItems(name, Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    QString chosenNames(const QString& filter)
    {
        find<QTreeWidget>("filterTree")->setCurrentItem(filterItem(filter));
        return names();
    }

    /// Drops the selected layers on a filter.
    void drop(const QString& filter)
    {
        auto* const tree = find<QTreeWidget>("filterTree");
        const QModelIndexList rows =
            m_panel->view()->selectionModel()->selectedRows(LayerColumns::Name);
        const std::unique_ptr<QMimeData> data(m_panel->model()->mimeData(rows));
        const QPoint at = tree->visualItemRect(filterItem(filter)).center();
        QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree->viewport(), &enter);
        QDropEvent event(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree->viewport(), &event);
    }

    const OwnSettings m_settings;
    Sketch m_sketch;
    std::unique_ptr<drawing::Drawing> m_drawing;
    std::unique_ptr<LayerPanel> m_panel;
    QStringList m_refusals;
};

QTEST_MAIN(LayerPanelTest)
#include "tst_layerpanel.moc"
