#include "canvas.h"
#include "commandline.h"
#include "drawing.h"
#include "geometry.h"
#include "hostcodes.h"
#include "layerstatefile.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "sheets.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolButton>
#include <QtTest>

using namespace drawing;

/// LAYERSTATE through the real windows, down to the saved file.
class LayerStateCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everythingInOneRun();
    void overwritesWithMask();
    void importRefusals_data();
    void importRefusals();
    void importsFromDrawing();
    void asksBeforeReplacing_data();
    void asksBeforeReplacing();
    void importedInPart();
    void exportRefused();
    void oldDrawing();
    void showsChosenLayout();
    void overridesInLayout();

private:
    using Steps = std::function<void(QDialog& manager)>;

    void load(const QString& source);
    /// Runs the command; `steps` are done in the manager, which is then closed if it still stands.
    void run(const Steps& steps)
    {
        m_user.then([steps](QDialog& manager) {
            steps(manager);
            manager.close();
        });
        m_window->runCommand(QStringLiteral("layerstate"));
    }
    void create(QDialog& manager, const QString& name)
    {
        m_user.then([this, name](QDialog& dialog) {
            ModuleFixture::child<QComboBox>(&dialog, "nameBox")->setEditText(name);
            press(dialog, "okButton");
        });
        press(manager, "newButton");
    }
    static void press(const QDialog& dialog, const char* button)
    {
        ModuleFixture::child<QPushButton>(&dialog, button)->click();
    }
    static QTableWidget& states(const QDialog& dialog)
    {
        return *ModuleFixture::child<QTableWidget>(&dialog, "stateTable");
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
    Drawing& drawing() { return *m_window->drawing(); }
    const LayerProperties& layer(const char* name)
    {
        return drawing().findLayer(QLatin1String(name))->properties;
    }
    void turnOff(const char* name)
    {
        drawing().beginStep(QStringLiteral("off"));
        LayerProperties properties = layer(name);
        properties.off = !properties.off;
        QVERIFY(
            drawing().setLayerProperties(drawing().findLayer(QLatin1String(name))->id, properties));
        drawing().commitStep();
    }

    QTemporaryDir m_folder;
    ModalDriver m_user;
    std::unique_ptr<ModuleFixture> m_module;
    std::unique_ptr<RecordingHost> m_host;
    std::unique_ptr<MainWindow> m_window;
    QString m_path;
};

void LayerStateCommandTest::init()
{
    m_module = std::make_unique<ModuleFixture>();
    m_host = std::make_unique<RecordingHost>();
    for (const char* name : {"", "New", "Edit", "AddNewLayer"})
        m_host->passThrough(QStringLiteral("Dialog/CmdLayerState") + QLatin1String(name));
    m_host->setLogsTrees(false);
    m_window = std::make_unique<MainWindow>();
    load(QStringLiteral(SAMPLES "/office-floor.dxf"));
    m_window->show();
}

void LayerStateCommandTest::load(const QString& source)
{
    m_path = m_folder.filePath(QStringLiteral("work.dxf"));
    QFile::remove(m_path);
    QVERIFY(QFile::copy(source, m_path));
    auto file = readFile(m_path, nullptr, QThread::currentThread());
    QVERIFY(file.has_value());
    m_window->setFile(std::move(*file));
}

void LayerStateCommandTest::cleanup()
{
    m_window.reset();
    m_host.reset();
    m_module.reset();
}

/// Create, rename, edit, export, delete, import, restore; each a step, and all of it in the file.
void LayerStateCommandTest::everythingInOneRun()
{
    const QString las = m_folder.filePath(QStringLiteral("out.las"));
    const bool wasOff = layer("A-DOOR").off;
    run([&](QDialog& manager) {
        QTableWidget& table = states(manager);
        create(manager, QStringLiteral(" First "));
        QCOMPARE(table.item(0, 0)->text(), QStringLiteral("First"));
        QCOMPARE(table.item(0, 1)->text(), QStringLiteral("模型"));
        QCOMPARE(table.item(0, 2)->text(), QStringLiteral("是"));
        QCOMPARE(ModuleFixture::child<QLabel>(&manager, "statusLabel")->text(),
            QStringLiteral("当前图层状态: First"));
        m_host->answer(1, QStringLiteral(R"({"Success":true,"NewName":"Second"})"));
        press(manager, "renameButton");
        QCOMPARE(drawing().layerStateNames(), QStringList("Second"));

        m_user.then([](QDialog& edit) {
            auto* layers = ModuleFixture::child<QTableWidget>(&edit, "stateLayerTable");
            const int row = layers->findItems(QStringLiteral("A-DOOR"), Qt::MatchExactly)[0]->row();
            emit layers->cellClicked(row, 1);
            layers->selectRow(layers->findItems(QStringLiteral("0"), Qt::MatchExactly)[0]->row());
            press(edit, "deleteLayerButton");
            press(edit, "okButton");
        });
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
    });
    QCOMPARE(messages().size(), 1);
    QCOMPARE(layer("A-DOOR").off, !wasOff);
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
    QCOMPARE(layer("A-DOOR").off, wasOff);
}

void LayerStateCommandTest::overwritesWithMask()
{
    run([&](QDialog& manager) {
        create(manager, QStringLiteral("S"));
        m_host->answer(1, QStringLiteral(R"({"Success":true,"NewName":"text"})"));
        emit states(manager).itemClicked(states(manager).item(0, 3));
    });
    turnOff("A-DOOR");
    run([&](QDialog& manager) {
        QCOMPARE(states(manager).item(0, 2)->text(), QStringLiteral("否"));
        QCOMPARE(states(manager).item(0, 3)->text(), QStringLiteral("text"));
        press(manager, "clearAllButton");
        ModuleFixture::child<QAbstractButton>(&manager, "maskBox32")->click();
        m_host->answer(vnsi::kVnAnswerYes);
        press(manager, "saveButton");
        QCOMPARE(states(manager).item(0, 2)->text(), QStringLiteral("是"));
    });
    const LayerState state = drawing().layerStates().front();
    QCOMPARE(state.mask, int(kStateColor));
    QCOMPARE(state.description, QStringLiteral("text"));
    turnOff("A-DOOR");
    const bool off = layer("A-DOOR").off;
    run([&](QDialog& manager) { press(manager, "restoreButton"); });
    QCOMPARE(layer("A-DOOR").off, off);
}

void LayerStateCommandTest::importRefusals_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("told");
    const QByteArray state = "0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\n1\nS\n91\n1\n8\n";
    QTest::newRow("no such file") << QByteArray() << "in.las";
    QTest::newRow("neither states nor a drawing") << QByteArray("hello\nworld\n") << "in.las";
    QTest::newRow("broken") << state + "A-DOOR\nninety\n1\n"
                            << "11";
    QTest::newRow("no layer of ours") << state + "Nowhere\n90\n1\n"
                                      << "Nowhere";
}

/// One message, and nothing of the drawing changed.
void LayerStateCommandTest::importRefusals()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, told);
    const QString path = bytes.isEmpty() ? m_folder.filePath(QStringLiteral("none/in.las"))
                                         : write(bytes, QStringLiteral("in.las"));
    run([&](QDialog& manager) {
        answerFile(path);
        press(manager, "importButton");
        QCOMPARE(states(manager).rowCount(), 0);
    });
    QCOMPARE(messages().size(), 1);
    QVERIFY2(messages().first().contains(told), qPrintable(messages().first()));
    QVERIFY(!drawing().canUndo());
}

/// What can be used is, and all the rest is in one message.
void LayerStateCommandTest::importedInPart()
{
    const QString path =
        write("0\nLAYERSTATEDICTIONARY\n0\nLAYERSTATE\n1\n\xcb\xb5\xc3\xf7\n91\n4095\n"
              "8\nA-DOOR\n90\n9\n62\n0\n77\nx\n8\nNowhere\n90\n1\n8\nA-WALL\n90\n",
            QStringLiteral("in.las"));
    run([&](QDialog& manager) {
        answerFile(path);
        m_host->answer(vnsi::kVnAnswerNo);
        press(manager, "importButton");
        QCOMPARE(states(manager).item(0, 0)->text(), QStringLiteral("说明"));
    });
    QCOMPARE(messages().size(), 2); // The other one asks whether to restore.
    for (const char* part : {"GBK", "组码 77", "位 2048", "1 个颜色", "中中断", "Nowhere"})
        QVERIFY2(
            messages().first().contains(QString::fromUtf8(part)), qPrintable(messages().first()));
    QCOMPARE(drawing().layerStates().front().layers.size(), size_t(1));
}

/// The file's ending says nothing: what it holds counts. Layers this drawing lacks are named.
void LayerStateCommandTest::importsFromDrawing()
{
    const QString other = m_folder.filePath(QStringLiteral("standard.dws"));
    QVERIFY(QFile::copy(QStringLiteral(SAMPLES "/office-floor.dxf"), other));
    {
        const auto made = Drawing::open(other);
        (*made)->beginStep(QStringLiteral("state"));
        LayerState state = captureLayerState(**made, QStringLiteral("Theirs"));
        state.layers.front().properties.name = QStringLiteral("Strange");
        QVERIFY((*made)->putLayerStates({state}));
        (*made)->commitStep();
        QVERIFY((*made)->save(other));
    }
    run([&](QDialog& manager) {
        answerFile(other);
        m_host->answer(vnsi::kVnAnswerNo);
        press(manager, "importButton");
        QCOMPARE(states(manager).rowCount(), 1);
    });
    QCOMPARE(messages().size(), 2);
    QCOMPARE(drawing().layerStates().front().layers.size(), drawing().layers().size() - 1);
}

void LayerStateCommandTest::asksBeforeReplacing_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("descriptions");
    QTest::newRow("replaced, then kept") << 0 << QStringList({"new", ""});
    QTest::newRow("all") << 1 << QStringList({"new", "new"});
    QTest::newRow("kept") << 2 << QStringList({"", ""});
    QTest::newRow("cancelled") << 3 << QStringList({"", ""});
}

void LayerStateCommandTest::asksBeforeReplacing()
{
    QFETCH(int, answer);
    std::vector<LayerState> states{captureLayerState(drawing(), QStringLiteral("A")),
        captureLayerState(drawing(), QStringLiteral("B"))};
    drawing().beginStep(QStringLiteral("states"));
    QVERIFY(drawing().putLayerStates(states));
    drawing().commitStep();
    for (LayerState& state : states)
        state.description = QStringLiteral("new");
    const QString path = m_folder.filePath(QStringLiteral("in.las"));
    QVERIFY(writeLayerStateFile(path, states));
    run([&](QDialog& manager) {
        answerFile(path);
        m_host->answer(answer);
        if (answer == 0 || answer == 2)
            m_host->answer(2);
        if (answer == 1)
            m_host->answer(vnsi::kVnAnswerNo);
        press(manager, "importButton");
    });
    QStringList descriptions;
    for (const LayerState& state : drawing().layerStates())
        descriptions += state.description;
    QTEST(descriptions, "descriptions");
}

void LayerStateCommandTest::exportRefused()
{
    run([&](QDialog& manager) {
        create(manager, QStringLiteral("S"));
        answerFile(m_folder.filePath(QStringLiteral("none/out.las")));
        press(manager, "exportButton");
        answerFile(m_folder.filePath(QStringLiteral("named")));
        press(manager, "exportButton");
    });
    QCOMPARE(messages().size(), 1);
    QVERIFY(messages().first().contains(QLatin1String("out.las")));
    QVERIFY(QFile::exists(m_folder.filePath(QStringLiteral("named.las"))));
}

/// A format without a place for states: they go beside the drawing, and the status bar says so.
void LayerStateCommandTest::oldDrawing()
{
    load(QStringLiteral(SAMPLES "/workshop-gbk.dxf"));
    run([&](QDialog& manager) { create(manager, QStringLiteral("旧")); });
    QVERIFY(m_window->statusBar()->currentMessage().contains(QLatin1String("work.las")));
    QVERIFY(!QFile::exists(drawing().layerStatesPath()));
    QVERIFY(drawing().save(m_path));
    const auto again = Drawing::open(m_path);
    QCOMPARE((*again)->layerStateNames(), QStringList(QStringLiteral("旧")));
    QFile::remove(drawing().layerStatesPath());
}

/// The switch and its menu: the canvas shows the sheet that was chosen, undo the one before.
void LayerStateCommandTest::showsChosenLayout()
{
    QFile(m_folder.filePath(QStringLiteral("sheets.dxf"))).remove();
    load(write(sheetsDrawing(), QStringLiteral("sheets.dxf")));
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
    run([&](QDialog& manager) {
        create(manager, QStringLiteral("S"));
        QCOMPARE(states(manager).item(0, 1)->text(), QStringLiteral("布局"));
    });
    button->click();
    QVERIFY(shows(QStringLiteral("模型"), 100));
    drawing().undo();
    QCOMPARE(button->text(), QStringLiteral("A0"));
}

/// The box W in a layout: the layers keep their own, and what the canvas does not show is said.
void LayerStateCommandTest::overridesInLayout()
{
    m_window->findChild<QToolButton*>(QStringLiteral("spaceSwitch"))->click();
    run([&](QDialog& manager) { create(manager, QStringLiteral("S")); });
    LayerProperties changed = layer("A-DOOR");
    changed.colorIndex = changed.colorIndex % 255 + 1;
    drawing().beginStep(QStringLiteral("colour"));
    QVERIFY(drawing().setLayerProperties(drawing().findLayer(changed.name)->id, changed));
    drawing().commitStep();
    run([&](QDialog& manager) {
        ModuleFixture::child<QAbstractButton>(&manager, "overrideBox")->setChecked(true);
        press(manager, "restoreButton");
    });
    QCOMPARE(layer("A-DOOR").colorIndex, changed.colorIndex);
    QVERIFY(m_window->findChild<CommandLine*>()->echo().contains(QStringLiteral("画布不显示")));
    const QString saved = m_folder.filePath(QStringLiteral("saved.dxf"));
    QVERIFY(drawing().save(saved));
    QFile file(saved);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count("{ADSK_LYR_COLOR_OVERRIDE"), 1);
}

QTEST_MAIN(LayerStateCommandTest)
#include "tst_layerstatecommand.moc"
