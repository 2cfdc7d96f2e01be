#include "commandfixture.h"
#include "vnmessages.h"

#include <QLineEdit>
#include <QTableWidget>

namespace {

constexpr int kName = 1;
constexpr int kOff = 2;
constexpr int kColor = 5;

int rowOf(const QTableWidget& table, const QString& layer)
{
    const auto found = table.findItems(layer, Qt::MatchExactly);
    return found.isEmpty() ? -1 : found.first()->row();
}

void click(QTableWidget& table, const QString& layer, int column)
{
    const int row = rowOf(table, layer);
    table.scrollToItem(table.item(row, column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
        table.visualItemRect(table.item(row, column)).center());
}

void doubleClick(QTableWidget& table, const QString& layer, int column)
{
    click(table, layer, column);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
        table.visualItemRect(table.item(rowOf(table, layer), column)).center());
}

} // namespace

/// LAYER from the command line to the saved file, through the real windows.
class LayerCommandTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void init() { start({"Dialog/CmdLayer"}); }
    void cleanup() { stop(); }

    void okAppliesEverythingAsOneStep()
    {
        m_host->answer(1, R"({"Success":true,"NewName":" 走廊吊顶 "})");
        m_host->answer(1, R"({"clrMethod":194,"selectClr":197121})");
        run("layer", {[](QDialog& dialog) {
            QTableWidget& layers = table(dialog);
            press(dialog, "newLayerButton");
            doubleClick(layers, "图层1", kName);
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
        auto* input = ModuleFixture::child<QLineEdit>(m_window.get(), "commandInput");
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        input->setFocus();
        QTest::keyClick(input, Qt::Key_Z, Qt::ControlModifier);
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

    void namesMayChangePlaces()
    {
        const auto door = layer("A-DOOR")->id;
        const auto wall = layer("A-WALL")->id;
        const char* const names[] = {"swap", "A-DOOR", "A-WALL"};
        for (const char* name : names)
            m_host->answer(
                1, QStringLiteral(R"({"Success":true,"NewName":"%1"})").arg(QLatin1String(name)));
        run("layer", {[](QDialog& dialog) {
            QTableWidget& layers = table(dialog);
            doubleClick(layers, "A-DOOR", kName);
            doubleClick(layers, "A-WALL", kName);
            doubleClick(layers, "swap", kName);
            press(dialog, "okButton");
        }});
        QCOMPARE(m_host->log().filter("message|"), QStringList());
        QCOMPARE(layer("A-WALL")->id, door);
        QCOMPARE(layer("A-DOOR")->id, wall);
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

    void refusedPropertyIsNamed()
    {
        m_host->answer(1, R"({"clrMethod":195,"selectClr":300})");
        run("layer", {[](QDialog& dialog) {
            click(table(dialog), "A-DOOR", kColor);
            press(dialog, "okButton");
        }});
        const QStringList messages = m_host->log().filter("message|");
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.first().contains("A-DOOR"), qPrintable(messages.first()));
        QCOMPARE(savedBytes(), m_original);
    }

private:
    static QTableWidget& table(const QDialog& dialog)
    {
        return *ModuleFixture::child<QTableWidget>(&dialog, "layerTable");
    }
};

QTEST_MAIN(LayerCommandTest)

#include "tst_layercommand.moc"
