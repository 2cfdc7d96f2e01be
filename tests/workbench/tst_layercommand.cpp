#include "commandfixture.h"
#include "hostcodes.h"

namespace {

constexpr int kName = 1;
constexpr int kOff = 2;
constexpr int kColor = 5;
constexpr int kPlotStyle = 9;

void click(QTableWidget& table, const QString& layer, int column, bool twice = false)
{
    clickCell(table, rowOf(table, layer), column, twice);
}

} // namespace

/// Tests LAYER from the command line to the saved file, with the real windows.
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
            layers.selectRow(rowOf(layers, "A-COLS"));
            press(dialog, "newLayerButton");
            QCOMPARE(layers.item(rowOf(layers, "图层1"), kPlotStyle)->text(),
                layers.item(rowOf(layers, "A-COLS"), kPlotStyle)->text()); // As is their colour.
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
        // Red is in the lowest byte of the tree's value and in the highest of the file's.
        QCOMPARE(layer("A-WALL")->properties.trueColor, std::optional<quint32>(0x010203));
        QVERIFY(savedBytes() != m_original);

        // The command line has the focus and contains nothing to undo.
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
            press(dialog, "newLayerButton"); // The model is the layer whose colour was refused.
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
            press(dialog, "cancelButton"); // No request is sent.
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
