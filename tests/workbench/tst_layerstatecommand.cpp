#include "commandfixture.h"
#include "commandline.h"
#include "geometry/geometry.h"
#include "hostcodes.h"
#include "plan.h"
#include "rows.h"
#include "states/layerstatefile.h"

#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

using namespace drawing;

/// Tests LAYERSTATE with the real windows, including the saved file.
class LayerStateCommandTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        start({"Dialog/CmdLayerState", "Dialog/CmdLayerStateNew", "Dialog/CmdLayerStateEdit",
            "Dialog/CmdLayerStateAddNewLayer"});
    }
    void cleanup() { stop(); }

    /// Create, rename, edit, export, delete, import and restore. Each is a step, and the file
    /// contains all of it.
    void everythingInOneRun()
    {
        const bool wasOff = properties("A-DOOR").off;
        manage([&](QDialog& manager) {
            create(manager, " First ");
            QCOMPARE(rowTexts(states(manager)), QStringList("First|模型|是|"));
            QCOMPARE(child<QLabel>(manager, "statusLabel").text(), "当前图层状态: First");
            m_host->answer(1, R"({"Success":true,"NewName":"Second"})");
            press(manager, "renameButton");
            QCOMPARE(drawing().layerStateNames(), QStringList("Second"));

            then([](QDialog& edit) {
                auto& layers = child<QTableWidget>(edit, "stateLayerTable");
                emit layers.cellClicked(rowOf(layers, "A-DOOR"), 1);
                layers.selectRow(rowOf(layers, "0"));
                press(edit, "deleteLayerButton");
                press(edit, "okButton");
            });
            press(manager, "editButton");
            const size_t layers = drawing().layers().size();
            QCOMPARE(drawing().layerStates().front().layers.size(), layers - 1);

            answerFiles({inFolder("out.las")});
            press(manager, "exportButton");
            m_host->answer(vnsi::kVnAnswerYes);
            press(manager, "deleteButton");
            QCOMPARE(states(manager).rowCount(), 0);
            import(manager, "out.las", {vnsi::kVnAnswerYes}); // Restoring closes the window.
            QVERIFY(!manager.isVisible());
        });
        QCOMPARE(messages().size(), 1);
        QCOMPARE(properties("A-DOOR").off, !wasOff);
        QVERIFY(savedBytes() != m_original);
        const auto again = Drawing::open(inFolder("saved.dxf"));
        QCOMPARE((*again)->layerStateNames(), QStringList("Second"));
        QVERIFY(isSameAsDrawing((*again)->layerStates().front(), **again));

        int steps = 0;
        for (; drawing().canUndo(); ++steps)
            drawing().undo();
        QCOMPARE(steps, 7); // New, rename, two for the edit, delete, import, restore.
        QVERIFY(savedBytes() == m_original);
    }

    /// By name, as layers; the state that was imported comes last while it is to be restored.
    void sortsStates()
    {
        std::vector<LayerState> all;
        for (const char* name : {"S10", "r", "s9"})
            all.push_back(captureLayerState(drawing(), name));
        QVERIFY(inStep(drawing(), [&] { return drawing().putLayerStates(all); }));
        all.resize(2);
        QVERIFY(writeLayerStateFile(inFolder("in.las"), {all[1]}));
        manage([&](QDialog& manager) {
            QTableWidget& table = states(manager);
            m_host->answer(vnsi::kVnAnswerYes);
            press(manager, "deleteButton"); // The last one is selected.
            QCOMPARE(rowTexts(table).join(' '), "r|模型|是| s9|模型|是|");
            import(manager, "in.las", {0, vnsi::kVnAnswerYes});
            QVERIFY(!manager.isVisible());
        });
        QCOMPARE(messages().size(), 1);
    }

    void overwritesWithMask()
    {
        manage([&](QDialog& manager) {
            create(manager, "S");
            m_host->answer(1, R"({"Success":true,"NewName":"text"})");
            emit states(manager).itemClicked(states(manager).item(0, 3));
        });
        turnOff("A-DOOR");
        manage([&](QDialog& manager) {
            QCOMPARE(rowTexts(states(manager)), QStringList("S|模型|否|text"));
            press(manager, "clearAllButton");
            child<QAbstractButton>(manager, "maskBox32").click();
            m_host->answer(vnsi::kVnAnswerYes);
            press(manager, "saveButton");
            QCOMPARE(rowTexts(states(manager)), QStringList("S|模型|是|text"));
        });
        const LayerState state = drawing().layerStates().front();
        QCOMPARE(state.mask, int(kStateColor));
        QCOMPARE(state.description, "text");
        turnOff("A-DOOR");
        const bool off = properties("A-DOOR").off;
        manage([&](QDialog& manager) { press(manager, "restoreButton"); });
        QCOMPARE(properties("A-DOOR").off, off);
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

    /// There is one message, and the drawing does not change.
    void importRefusals()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, told);
        if (!bytes.isEmpty())
            writtenFile(inFolder("in.las"), bytes);
        manage([&](QDialog& manager) {
            import(manager, "in.las", {});
            QCOMPARE(states(manager).rowCount(), 0);
        });
        QCOMPARE(messages().size(), 1);
        QVERIFY2(messages().first().contains(told), qPrintable(messages().first()));
        QVERIFY(!drawing().canUndo());
    }

    /// The contents decide on the type of the file, not its extension. Layers that the drawing
    /// lacks are named.
    void importsFromDrawing()
    {
        const auto other = Drawing::open(m_path);
        LayerState state = captureLayerState(**other, "Theirs");
        state.layers.front().properties.name = "Strange";
        QVERIFY(inStep(**other, [&] { return (*other)->putLayerStates({state}); }));
        QVERIFY((*other)->save(inFolder("standard.dws")));
        manage([&](QDialog& manager) {
            import(manager, "standard.dws", {vnsi::kVnAnswerNo});
            QCOMPARE(states(manager).rowCount(), 1);
        });
        QCOMPARE(messages().size(), 2);
        QCOMPARE(drawing().layerStates().front().layers.size(), drawing().layers().size() - 1);
    }

    void asksBeforeReplacing_data()
    {
        const Rows<QList<int>, QStringList> row("answers", "descriptions");
        row("replaced, then kept", {0, 2, vnsi::kVnAnswerNo}, {"new", ""});
        row("all, not restored", {1, vnsi::kVnAnswerNo}, {"new", "new"});
        row("kept", {2, 2}, {"", ""});
        row("cancelled", {3}, {"", ""});
    }

    void asksBeforeReplacing()
    {
        QFETCH(QList<int>, answers);
        std::vector<LayerState> states{
            captureLayerState(drawing(), "A"), captureLayerState(drawing(), "B")};
        QVERIFY(inStep(drawing(), [&] { return drawing().putLayerStates(states); }));
        for (LayerState& state : states)
            state.description = "new";
        QVERIFY(writeLayerStateFile(inFolder("in.las"), states));
        manage([&](QDialog& manager) { import(manager, "in.las", answers); });
        QStringList descriptions;
        for (const LayerState& state : drawing().layerStates())
            descriptions += state.description;
        QTEST(descriptions, "descriptions");
    }

    /// Everything usable is imported, and all the rest is in one message.
    void importedInPart()
    {
        writtenFile(inFolder("in.las"),
            "0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\n1\n\xcb\xb5\xc3\xf7\n91\n4095\n"
            "8\nA-DOOR\n90\n9\n62\n0\n77\nx\n8\nNowhere\n90\n1\n8\nA-WALL\n90\n");
        manage([&](QDialog& manager) {
            import(manager, "in.las", {vnsi::kVnAnswerNo});
            QCOMPARE(states(manager).item(0, 0)->text(), "说明");
        });
        QCOMPARE(messages().size(), 2); // The second one asks whether to restore.
        for (const char* part : {"GBK", "组码 77", "位 2048", "1 个颜色", "中中断", "Nowhere"})
            QVERIFY2(messages().first().contains(part), qPrintable(messages().first()));
        QCOMPARE(drawing().layerStates().front().layers.size(), size_t(1));
    }

    void exportRefused()
    {
        manage([&](QDialog& manager) {
            create(manager, "S");
            for (const char* name : {"none/out.las", "named"}) {
                answerFiles({inFolder(name)});
                press(manager, "exportButton");
            }
        });
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().first().contains("out.las"));
        QVERIFY(QFile::exists(inFolder("named.las")));
    }

    /// In a format without layer states they are kept beside the drawing, and the status bar says
    /// so.
    void oldDrawing()
    {
        open("work.dxf", contentOf(SAMPLES "/workshop-gbk.dxf"));
        manage([&](QDialog& manager) { create(manager, "旧"); });
        QVERIFY(m_window->statusBar()->currentMessage().contains("work.las"));
        QVERIFY(!QFile::exists(drawing().layerStatesPath()));
        QVERIFY(drawing().save(m_path));
        QCOMPARE((*Drawing::open(m_path))->layerStateNames(), QStringList("旧"));
    }

    /// The switch and its menu: the canvas shows the chosen sheet, and undo shows the former one.
    void showsChosenLayout()
    {
        open("sheets.dxf", sheetsDrawing());
        auto& button = child<QToolButton>(*m_window, "spaceSwitch");
        const auto shows = [&](const QString& title, double length) {
            const Geometry geometry = *buildGeometry(drawing());
            const double right = m_window->canvas()->view().visibleBox().maxX;
            const auto ends = [&](const auto& group) { return group.bounds.maxX == length; };
            return button.text() == title && right > length && right < 2 * length &&
                   std::any_of(geometry.groups.begin(), geometry.groups.end(), ends);
        };
        QVERIFY(shows("模型", 100));
        button.click();
        QVERIFY(shows("A1", 200));
        QStringList titles;
        for (QAction* action : button.menu()->actions())
            titles += action->text();
        QCOMPARE(titles, QStringList({"模型", "A0", "A1"}));
        button.menu()->actions().at(1)->trigger();
        QCoreApplication::processEvents();
        QVERIFY(shows("A0", 300));
        manage([&](QDialog& manager) {
            create(manager, "S");
            QCOMPARE(states(manager).item(0, 1)->text(), "布局");
        });
        button.click();
        QVERIFY(shows("模型", 100));
        drawing().undo();
        QCOMPARE(button.text(), "A0");
    }

    /// The box W in a layout: layers keep their own properties, and the user is told about the
    /// overrides.
    void overridesInLayout()
    {
        child<QToolButton>(*m_window, "spaceSwitch").click();
        manage([&](QDialog& manager) { create(manager, "S"); });
        const int color = properties("A-DOOR").colorIndex % 255 + 1;
        QCOMPARE(edit(drawing(), "A-DOOR", [&](auto& door) { door.colorIndex = color; }), "");
        manage([&](QDialog& manager) {
            child<QAbstractButton>(manager, "overrideBox").setChecked(true);
            press(manager, "restoreButton");
        });
        QCOMPARE(properties("A-DOOR").colorIndex, color);
        QVERIFY(m_window->findChild<CommandLine*>()->echo().contains("已作为视口替代"));
        QCOMPARE(savedBytes().count("{ADSK_LYR_COLOR_OVERRIDE"), 1);
    }

private:
    /// Runs the command with these actions in the manager.
    void manage(const ModalDriver::Step& acts) { run("layerstate", {closing(acts)}); }
    void create(QDialog& manager, const QString& name)
    {
        then([name](QDialog& naming) {
            child<QComboBox>(naming, "nameBox").setEditText(name);
            press(naming, "okButton");
        });
        press(manager, "newButton");
    }
    /// Imports a file of the folder. `answers` are the answers to the questions that follow.
    void import(QDialog& manager, const QString& name, const QList<int>& answers)
    {
        answerFiles({inFolder(name)});
        for (const int answer : answers)
            m_host->answer(answer);
        press(manager, "importButton");
    }
    static QTableWidget& states(const QDialog& manager)
    {
        return child<QTableWidget>(manager, "stateTable");
    }
    const LayerProperties& properties(const char* name) const { return layer(name)->properties; }
    void turnOff(const char* name)
    {
        QCOMPARE(edit(drawing(), name, [](auto& layer) { layer.off = !layer.off; }), "");
    }
};

QTEST_MAIN(LayerStateCommandTest)
#include "tst_layerstatecommand.moc"
