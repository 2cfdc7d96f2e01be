#include "canvas.h"
#include "commandfixture.h"
#include "commandline.h"
#include "geometry.h"
#include "layerstatefile.h"
#include "rows.h"
#include "sheets.h"
#include "vnmessages.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolButton>

using namespace drawing;

/// LAYERSTATE through the real windows, down to the saved file.
class LayerStateCommandTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        start({"Dialog/CmdLayerState", "Dialog/CmdLayerStateNew", "Dialog/CmdLayerStateEdit"});
    }
    void cleanup() { stop(); }

    /// Create, rename, edit, export, delete, import, restore; each a step, and all of it in the
    /// file.
    void everythingInOneRun()
    {
        const QString las = m_folder.filePath(QStringLiteral("out.las"));
        const bool wasOff = isOff();
        const auto edit = [](QDialog& editor) {
            auto* layers = ModuleFixture::child<QTableWidget>(&editor, "stateLayerTable");
            const auto rowOf = [layers](const char* name) {
                return layers->findItems(QLatin1String(name), Qt::MatchExactly).first()->row();
            };
            emit layers->cellClicked(rowOf("A-DOOR"), 1);
            layers->selectRow(rowOf("0"));
            press(editor, "deleteLayerButton");
            press(editor, "okButton");
        };
        manage(
            [&](QDialog& manager, QTableWidget& table) {
                press(manager, "newButton");
                QCOMPARE(rowTexts(table), QStringList("First|模型|是|"));
                QCOMPARE(ModuleFixture::child<QLabel>(&manager, "statusLabel")->text(),
                    QStringLiteral("当前图层状态: First"));
                m_host->answer(1, QStringLiteral(R"({"Success":true,"NewName":"Second"})"));
                press(manager, "renameButton");
                QCOMPARE(drawing().layerStateNames(), QStringList("Second"));
                press(manager, "editButton");
                const size_t layers = drawing().layers().size();
                QCOMPARE(drawing().layerStates().front().layers.size(), layers - 1);

                answerFile(las);
                press(manager, "exportButton");
                m_host->answer(vnsi::kVnAnswerYes);
                press(manager, "deleteButton");
                QCOMPARE(table.rowCount(), 0);
                answerFile(las);
                m_host->answer(vnsi::kVnAnswerYes); // Restore at once; the window then closes.
                press(manager, "importButton");
                QVERIFY(!manager.isVisible());
            },
            {naming(" First "), edit});
        QCOMPARE(messages().size(), 1);
        QCOMPARE(isOff(), !wasOff);
        const QString saved = m_folder.filePath(QStringLiteral("saved.dxf"));
        QVERIFY(drawing().save(saved));
        const auto again = Drawing::open(saved);
        QCOMPARE((*again)->layerStateNames(), QStringList("Second"));
        QVERIFY(isSameAsDrawing((*again)->layerStates().front(), **again));

        int steps = 0;
        for (; drawing().canUndo(); ++steps)
            drawing().undo();
        QCOMPARE(steps, 7); // New, renamed, two for the edit, deleted, imported, restored.
        QVERIFY(drawing().layerStates().empty());
        QCOMPARE(isOff(), wasOff);
    }

    /// What is saved over keeps its description, and from then on has the boxes checked at that
    /// time.
    void overwritesWithMask()
    {
        manage(
            [&](QDialog& manager, QTableWidget& table) {
                press(manager, "newButton");
                m_host->answer(1, QStringLiteral(R"({"Success":true,"NewName":"2^J ^ "})"));
                emit table.itemClicked(table.item(0, 3));
            },
            {naming("S")});
        flipDoors();
        manage([&](QDialog& manager, QTableWidget& table) {
            QCOMPARE(rowTexts(table), QStringList("S|模型|否|2^J ^ "));
            press(manager, "clearAllButton");
            ModuleFixture::child<QAbstractButton>(&manager, "maskBox32")->click();
            m_host->answer(vnsi::kVnAnswerYes);
            press(manager, "saveButton");
            QCOMPARE(rowTexts(table), QStringList("S|模型|是|2^J ^ "));
        });
        QCOMPARE(drawing().layerStates().front().mask, int(kStateColor));
        flipDoors();
        const bool off = isOff();
        manage([&](QDialog& manager, QTableWidget&) { press(manager, "restoreButton"); });
        QCOMPARE(isOff(), off);
    }

    /// The state's current layer is frozen by now, and freezing is not restored: another stays
    /// current, and a sentence says so.
    void keepsCurrentThawed()
    {
        const LayerId before = drawing().currentLayer();
        QVERIFY(drawing().layer(before)->properties.name != doors().name);
        LayerState state = captureLayerState(drawing(), QStringLiteral("S"));
        state.currentLayer = doors().name;
        state.mask = kStateColor;
        drawing().beginStep(QStringLiteral("state"));
        QVERIFY(drawing().putLayerStates({state}));
        drawing().commitStep();
        changeDoors([](LayerProperties& p) { p.frozen = true; });
        manage([](QDialog& manager, QTableWidget&) { press(manager, "restoreButton"); });
        QVERIFY(drawing().currentLayer() == before);
        QVERIFY(doors().frozen);
        QCOMPARE(messages().filter(doors().name).size(), 1);
    }

    /// A state that went while the manager is open is told, and the manager stays.
    void stateGone()
    {
        manage(
            [this](QDialog& manager, QTableWidget&) {
                press(manager, "newButton");
                QVERIFY(drawing().removeLayerStates({QStringLiteral("S")}));
                press(manager, "restoreButton");
                QVERIFY(manager.isVisible());
            },
            {naming("S")});
        QCOMPARE(messages().filter(QStringLiteral("“S”")).size(), 1);
    }

    void importRefusals_data()
    {
        const Rows<QByteArray, QString> row("bytes", "told");
        const QByteArray state = "0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\n1\nS\n91\n1\n8\n";
        row("no such file", {}, "in.las");
        row("neither states nor a drawing", "hello\nworld\n", "in.las");
        row("broken", state + "A-DOOR\nninety\n1\n", "11");
        row("no layer of ours", state + "Nowhere\n90\n1\n", "Nowhere");
    }

    /// One message, and nothing of the drawing changed.
    void importRefusals()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, told);
        const QString path = bytes.isEmpty() ? m_folder.filePath(QStringLiteral("none/in.las"))
                                             : write(bytes, QStringLiteral("in.las"));
        import(path, {}, {});
        QCOMPARE(messages().size(), 1);
        QVERIFY2(messages().first().contains(told), qPrintable(messages().first()));
        QVERIFY(!drawing().canUndo());
    }

    /// The file's ending says nothing: what it holds counts. Layers this drawing lacks are named.
    void importsFromDrawing()
    {
        const QString other = m_folder.filePath(QStringLiteral("standard.dws"));
        {
            const auto made = Drawing::open(QStringLiteral(SAMPLES "/office-floor.dxf"));
            LayerState state = captureLayerState(**made, QStringLiteral("Theirs"));
            state.layers.front().properties.name = QStringLiteral("Strange");
            (*made)->beginStep(QStringLiteral("state"));
            QVERIFY((*made)->putLayerStates({state}));
            (*made)->commitStep();
            QVERIFY((*made)->save(other));
        }
        import(other, {vnsi::kVnAnswerNo}, {QStringLiteral("Theirs")});
        QCOMPARE(messages().size(), 2);
        QCOMPARE(drawing().layerStates().front().layers.size(), drawing().layers().size() - 1);
    }

    void asksBeforeReplacing_data()
    {
        const Rows<QList<int>, QString> row("answers", "descriptions");
        row("replaced, then kept", {0, 2}, "new,");
        row("all", {1, vnsi::kVnAnswerNo}, "new,new");
        row("kept", {2, 2}, ",");
        row("cancelled", {3}, ",");
    }

    void asksBeforeReplacing()
    {
        QFETCH(QList<int>, answers);
        std::vector<LayerState> states{captureLayerState(drawing(), QStringLiteral("A")),
            captureLayerState(drawing(), QStringLiteral("B"))};
        drawing().beginStep(QStringLiteral("states"));
        QVERIFY(drawing().putLayerStates(states));
        drawing().commitStep();
        for (LayerState& state : states)
            state.description = QStringLiteral("new");
        const QString path = m_folder.filePath(QStringLiteral("in.las"));
        QVERIFY(writeLayerStateFile(path, states));
        import(path, answers, {QStringLiteral("A"), QStringLiteral("B")});
        QStringList descriptions;
        for (const LayerState& state : drawing().layerStates())
            descriptions += state.description;
        QTEST(descriptions.join(','), "descriptions");
    }

    /// What can be used is, and all the rest is in one message; the other one asks whether to
    /// restore.
    void importedInPart()
    {
        import(write("0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\n1\n\xcb\xb5\xc3\xf7\n91\n4095\n"
                     "8\nA-DOOR\n90\n9\n62\n0\n77\nx\n8\nNowhere\n90\n1\n8\nA-WALL\n90\n",
                   QStringLiteral("in.las")),
            {vnsi::kVnAnswerNo}, {QStringLiteral("说明")});
        QCOMPARE(messages().size(), 2);
        for (const char* part : {"GBK", "组码 77", "位 2048", "1 个颜色", "中中断", "Nowhere"})
            QVERIFY2(messages().first().contains(QString::fromUtf8(part)),
                qPrintable(messages().first()));
        QCOMPARE(drawing().layerStates().front().layers.size(), size_t(1));
    }

    void exportRefused()
    {
        manage(
            [&](QDialog& manager, QTableWidget&) {
                press(manager, "newButton");
                for (const char* path : {"none/out.las", "named"}) {
                    answerFile(m_folder.filePath(path));
                    press(manager, "exportButton");
                }
            },
            {naming("S")});
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().first().contains(QLatin1String("out.las")));
        QVERIFY(QFile::exists(m_folder.filePath(QStringLiteral("named.las"))));
    }

    /// A format without a place for states: they go beside the drawing, and the status bar says so.
    void oldDrawing()
    {
        const QString path = m_folder.filePath(QStringLiteral("work.dxf"));
        QVERIFY(QFile::copy(QStringLiteral(SAMPLES "/workshop-gbk.dxf"), path));
        open(path);
        manage(
            [](QDialog& manager, QTableWidget&) { press(manager, "newButton"); }, {naming("旧")});
        QVERIFY(m_window->statusBar()->currentMessage().contains(QLatin1String("work.las")));
        QVERIFY(!QFile::exists(drawing().layerStatesPath()));
        QVERIFY(drawing().save(path));
        const auto again = Drawing::open(path);
        QCOMPARE((*again)->layerStateNames(), QStringList(QStringLiteral("旧")));
    }

    /// The switch and its menu: the canvas shows the sheet that was chosen, undo the one before.
    void showsChosenLayout()
    {
        open(write(sheetsDrawing(), QStringLiteral("sheets.dxf")));
        auto* button = m_window->findChild<QToolButton*>(QStringLiteral("spaceSwitch"));
        const auto shows = [&](const QString& title, double length) {
            const Geometry geometry = *buildGeometry(drawing());
            const double right = m_window->canvas()->view().visibleBox().maxX;
            return button->text() == title && geometry.groups.size() == 1 &&
                   geometry.groups.front().bounds.maxX == length && right > length &&
                   right < 2 * length;
        };
        QVERIFY(shows(QStringLiteral("模型"), 100));
        button->click();
        QVERIFY(shows(QStringLiteral("A1"), 200));
        QStringList titles;
        for (QAction* action : button->menu()->actions())
            titles += action->text();
        QCOMPARE(titles, QStringList({QStringLiteral("模型"), "A0", "A1"}));
        button->menu()->actions().at(1)->trigger();
        QCoreApplication::processEvents();
        QVERIFY(shows(QStringLiteral("A0"), 300));
        manage(
            [](QDialog& manager, QTableWidget& table) {
                press(manager, "newButton");
                QCOMPARE(rowTexts(table), QStringList("S|布局|是|"));
            },
            {naming("S")});
        button->click();
        QVERIFY(shows(QStringLiteral("模型"), 100));
        drawing().undo();
        QCOMPARE(button->text(), QStringLiteral("A0"));
    }

    /// The box W in a layout: the layers keep their own, and what the canvas does not show is said.
    void overridesInLayout()
    {
        m_window->findChild<QToolButton*>(QStringLiteral("spaceSwitch"))->click();
        manage([](QDialog& manager, QTableWidget&) { press(manager, "newButton"); }, {naming("S")});
        const int color = doors().colorIndex % 255 + 1;
        changeDoors([color](LayerProperties& p) { p.colorIndex = color; });
        manage([](QDialog& manager, QTableWidget&) {
            ModuleFixture::child<QAbstractButton>(&manager, "overrideBox")->setChecked(true);
            press(manager, "restoreButton");
        });
        QCOMPARE(doors().colorIndex, color);
        QVERIFY(m_window->findChild<CommandLine*>()->echo().contains(QStringLiteral("画布不显示")));
        QCOMPARE(savedBytes().count("{ADSK_LYR_COLOR_OVERRIDE"), 1);
    }

private:
    /// Runs the command with these acts in the manager, which is then closed if it still stands,
    /// and the steps in the dialogs that it opens.
    void manage(const std::function<void(QDialog& manager, QTableWidget& states)>& acts,
        std::vector<ModalDriver::Step> others = {})
    {
        others.insert(others.begin(), [acts](QDialog& manager) {
            acts(manager, *ModuleFixture::child<QTableWidget>(&manager, "stateTable"));
            manager.close();
        });
        run(QStringLiteral("layerstate"), others);
    }
    static ModalDriver::Step naming(const char* name)
    {
        return [name](QDialog& dialog) {
            ModuleFixture::child<QComboBox>(&dialog, "nameBox")->setEditText(name);
            press(dialog, "okButton");
        };
    }
    /// Imports a file; `answers` are to what is asked then, `left` the states that are there
    /// behind it.
    void import(const QString& path, const QList<int>& answers, const QStringList& left)
    {
        answerFile(path);
        for (const int answer : answers)
            m_host->answer(answer);
        manage([&left](QDialog& manager, QTableWidget& table) {
            press(manager, "importButton");
            QCOMPARE(table.rowCount(), left.size());
        });
        QCOMPARE(drawing().layerStateNames(), left);
    }
    void answerFile(const QString& path)
    {
        m_host->answer(1, QStringLiteral(R"({"filePath":"%1","filePaths":["%1"]})").arg(path));
    }
    QString write(const QByteArray& bytes, const QString& name)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the fixture");
        return path;
    }
    QStringList messages() const { return m_host->log().filter(QLatin1String("message|")); }
    const LayerProperties& doors() const { return layer(QStringLiteral("A-DOOR"))->properties; }
    bool isOff() const { return doors().off; }
    template <class Change>
    void changeDoors(Change change)
    {
        LayerProperties properties = doors();
        change(properties);
        drawing().beginStep(QStringLiteral("doors"));
        QVERIFY(drawing().setLayerProperties(layer(properties.name)->id, properties));
        drawing().commitStep();
    }
    void flipDoors()
    {
        changeDoors([](LayerProperties& p) { p.off = !p.off; });
    }
};

QTEST_MAIN(LayerStateCommandTest)
#include "tst_layerstatecommand.moc"
