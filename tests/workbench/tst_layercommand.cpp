#include "commandfixture.h"
#include "commands/layerrenames.h"
#include "hostcodes.h"
#include "rows.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QTableWidget>

namespace {

constexpr int kName = 1;
constexpr int kOff = 2;
constexpr int kColor = 5;

void click(QTableWidget& table, const QString& layer, int column, bool twice = false)
{
    clickCell(table, rowOf(table, layer), column, twice);
}

} // namespace

/// LAYER from the command line to the saved file, through the real windows.
class LayerCommandTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setOrganizationName("layerbench"); }
    void init() { start({"Dialog/CmdLayer"}); }
    void cleanup() { stop(); }

    void okAppliesEverythingAsOneStep()
    {
        m_host->answer(1, R"({"Success":true,"NewName":" 走廊吊顶 "})");
        m_host->answer(1, R"({"clrMethod":194,"selectClr":197121})");
        run("layer", {[](QDialog& dialog) {
            QTableWidget& layers = table(dialog);
            press(dialog, "newLayerButton");
            click(layers, "图层1", kName, true);
            click(layers, "A-DOOR", kOff);
            click(layers, "A-WALL", kColor);
            layers.selectRow(rowOf(layers, "走廊吊顶"));
            press(dialog, "setCurrentButton");
            press(dialog, "okButton");
        }});
        QVERIFY(layer("走廊吊顶"));
        QCOMPARE(layer("走廊吊顶")->id, drawing().currentLayer());
        QVERIFY(layer("A-DOOR")->properties.off);
        // Red stands lowest in the tree and highest in the file.
        QCOMPARE(layer("A-WALL")->properties.trueColor, std::optional<quint32>(0x010203));
        QVERIFY(savedBytes() != m_original);

        // The command line has the focus and nothing in it to undo.
        auto& input = child<QLineEdit>(*m_window, "commandInput");
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        input.setFocus();
        QTest::keyClick(&input, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!drawing().canUndo());
        QCOMPARE(savedBytes(), m_original);
        drawing().redo();
        QVERIFY(layer("走廊吊顶"));
    }

    void cancelLeavesTheDrawingAlone()
    {
        m_host->answer(vnsi::kVnAnswerNo);
        run("layer", {[](QDialog& dialog) {
            press(dialog, "newLayerButton");
            click(table(dialog), "A-DOOR", kOff);
            press(dialog, "cancelButton");
        }});
        QVERIFY(!layer("图层1"));
        QVERIFY(!drawing().canUndo());
        QCOMPARE(savedBytes(), m_original);
    }

    void renames_data()
    {
        // What is wanted, what layers of these old names are called then, how many are refused.
        const Rows<QStringList, QStringList, int> row("wanted", "names", "refused");
        row("chain", {"A-WALL>A-DOOR", "A-DOOR>x"}, {"A-DOOR", "x"}, 0);
        row("chain the other way", {"A-DOOR>x", "A-WALL>A-DOOR"}, {"x", "A-DOOR"}, 0);
        row("circle", {"A-WALL>A-DOOR", "A-DOOR>A-GLAZ", "A-GLAZ>a-wall"},
            {"A-DOOR", "A-GLAZ", "a-wall"}, 0);
        row("circle and one more", {"A-GLAZ>A-DOOR", "A-WALL>A-DOOR", "A-DOOR>A-WALL"},
            {"A-GLAZ", "A-DOOR", "A-WALL"}, 1);
        row("behind one refused", {"A-WALL>A-DOOR", "A-DOOR>a*b"}, {"A-WALL", "A-DOOR"}, 2);
        row("circle of one refused", {"0>A-DOOR", "A-DOOR>0"}, {"0", "A-DOOR"}, 2);
        row("circle that breaks later", {"A-DOOR>A-WALL", "A-WALL>0", "0>A-DOOR"},
            {"A-DOOR", "A-WALL", "0"}, 3);
    }

    void renames()
    {
        QFETCH(QStringList, wanted);
        QFETCH(QStringList, names);
        QFETCH(int, refused);
        std::vector<LayerRename> renames;
        for (const QString& rename : wanted)
            renames.push_back({layer(rename.section('>', 0, 0))->id, rename.section('>', 1)});
        drawing().beginStep("rename");
        const QStringList refusals = renameLayers(drawing(), renames);
        drawing().commitStep();
        QStringList found;
        for (const LayerRename& rename : renames)
            found += drawing().layer(rename.layer)->properties.name;
        QCOMPARE(found, names);
        QCOMPARE(refusals.size(), refused);
        for (const QString& sentence : refusals) // Of names that somebody typed.
            QVERIFY2(QRegularExpression("^图层“[^-]*(-[A-Z]+)?”没有").match(sentence).hasMatch(),
                qPrintable(sentence));
        QCOMPARE(savedBytes() == m_original, refused >= wanted.size());
    }

    void applyShowsWhileTheDialogIsOpen()
    {
        QSignalSpy shown(&drawing(), &drawing::Drawing::layersChanged);
        run("layer", {[&](QDialog& dialog) {
            click(table(dialog), "A-DOOR", kOff);
            press(dialog, "applyButton");
            QCOMPARE(shown.count(), 1);
            QVERIFY(layer("A-DOOR")->properties.off);
            press(dialog, "cancelButton"); // Nothing is left to ask about.
        }});
        QVERIFY(drawing().canUndo());
    }

    void refusedValueLeavesTheOthers()
    {
        const auto door = layer("A-DOOR")->id;
        const auto wall = layer("A-WALL")->id;
        const auto color = layer("A-DOOR")->properties.colorIndex;
        m_host->answer(1, R"({"clrMethod":195,"selectClr":300})");
        m_host->answer(1, R"({"Success":true,"NewName":"X"})");
        m_host->answer(1, R"({"Success":true,"NewName":"A-DOOR"})");
        run("layer", {[](QDialog& dialog) {
            QTableWidget& layers = table(dialog);
            click(layers, "A-DOOR", kColor);
            click(layers, "A-DOOR", kOff);
            click(layers, "A-DOOR", kName, true);
            click(layers, "A-WALL", kName, true);
            layers.selectRow(rowOf(layers, "X"));
            press(dialog, "newLayerButton"); // Like the layer whose colour cannot be had.
            press(dialog, "okButton");
        }});
        QCOMPARE(drawing().layer(door)->properties.name, "X");
        QCOMPARE(drawing().layer(wall)->properties.name, "A-DOOR");
        QVERIFY(drawing().layer(door)->properties.off);
        QCOMPARE(drawing().layer(door)->properties.colorIndex, color);
        QVERIFY(layer("图层1") && layer("图层1")->properties.off);
        QCOMPARE(messages().size(), 1);
        const QString told = messages().first();
        QVERIFY2(told.contains("2 项") && told.contains("“X”：没有颜色索引 300"), qPrintable(told));
    }

    void keepsColumnWidths()
    {
        run("layer", {[](QDialog& dialog) {
            drawColumn(table(dialog), kName, 234);
            press(dialog, "cancelButton"); // No request goes out.
        }});
        run("layer", {[](QDialog& dialog) {
            QCOMPARE(table(dialog).columnWidth(kName), 234);
            press(dialog, "okButton");
        }});
    }

private:
    static QTableWidget& table(const QDialog& dialog)
    {
        return child<QTableWidget>(dialog, "layerTable");
    }
};

QTEST_MAIN(LayerCommandTest)

#include "tst_layercommand.moc"
