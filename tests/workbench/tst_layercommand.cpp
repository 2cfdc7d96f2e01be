#include "drawing.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "vnmessages.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

namespace {

constexpr int kName = 1;
constexpr int kOff = 2;
constexpr int kColor = 5;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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
class LayerCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void okAppliesEverythingAsOneStep();
    void cancelLeavesTheDrawingAlone();
    void namesMayChangePlaces();
    void applyShowsWhileTheDialogIsOpen();
    void refusedPropertyIsNamed();

private:
    void runLayer(const ModalDriver::Step& step);
    const drawing::Layer* layer(const char* name) const
    {
        return m_window->drawing()->findLayer(QString::fromUtf8(name));
    }
    void press(const QDialog& dialog, const char* button)
    {
        ModuleFixture::child<QPushButton>(&dialog, button)->click();
    }
    QTableWidget& table(const QDialog& dialog)
    {
        return *ModuleFixture::child<QTableWidget>(&dialog, "layerTable");
    }
    QByteArray savedBytes();

    QTemporaryDir m_folder;
    std::unique_ptr<ModuleFixture> m_module;
    std::unique_ptr<RecordingHost> m_host;
    std::unique_ptr<MainWindow> m_window;
    QString m_path;
    QByteArray m_original;
};

void LayerCommandTest::init()
{
    m_module = std::make_unique<ModuleFixture>();
    m_host = std::make_unique<RecordingHost>();
    m_host->passThrough(QStringLiteral("Dialog/CmdLayer"));
    m_host->setLogsTrees(false);
    const QString sample = QStringLiteral(SAMPLES "/office-floor.dxf");
    m_path = m_folder.filePath(QStringLiteral("floor.dxf"));
    QFile::remove(m_path);
    QVERIFY(QFile::copy(sample, m_path));
    m_original = contentOf(m_path);
    m_window = std::make_unique<MainWindow>();
    auto file = readFile(m_path, nullptr, QThread::currentThread());
    QVERIFY(file.has_value());
    m_window->setFile(std::move(*file));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void LayerCommandTest::cleanup()
{
    m_window.reset();
    m_host.reset();
    m_module.reset();
}

void LayerCommandTest::runLayer(const ModalDriver::Step& step)
{
    ModalDriver user;
    user.then(step);
    m_window->runCommand(QStringLiteral("layer"));
}

QByteArray LayerCommandTest::savedBytes()
{
    const QString copy = m_folder.filePath(QStringLiteral("saved.dxf"));
    return m_window->drawing()->save(copy) ? contentOf(copy) : QByteArray();
}

void LayerCommandTest::okAppliesEverythingAsOneStep()
{
    m_host->answer(1, QStringLiteral(R"({"Success":true,"NewName":" 走廊吊顶 "})"));
    m_host->answer(1, QStringLiteral(R"({"clrMethod":194,"selectClr":197121})"));
    runLayer([this](QDialog& dialog) {
        QTableWidget& layers = table(dialog);
        press(dialog, "newLayerButton");
        doubleClick(layers, QStringLiteral("图层1"), kName);
        click(layers, QStringLiteral("A-DOOR"), kOff);
        click(layers, QStringLiteral("A-WALL"), kColor);
        layers.selectRow(rowOf(layers, QStringLiteral("走廊吊顶")));
        press(dialog, "setCurrentButton");
        press(dialog, "okButton");
    });
    QVERIFY(layer("走廊吊顶"));
    QCOMPARE(layer("走廊吊顶")->id, m_window->drawing()->currentLayer());
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
    QVERIFY(!m_window->drawing()->canUndo());
    QCOMPARE(savedBytes(), m_original);
    m_window->drawing()->redo();
    QVERIFY(layer("走廊吊顶"));
}

void LayerCommandTest::cancelLeavesTheDrawingAlone()
{
    m_host->answer(vnsi::kVnAnswerNo);
    runLayer([this](QDialog& dialog) {
        press(dialog, "newLayerButton");
        click(table(dialog), QStringLiteral("A-DOOR"), kOff);
        press(dialog, "cancelButton");
    });
    QVERIFY(!layer("图层1"));
    QVERIFY(!m_window->drawing()->canUndo());
    QCOMPARE(savedBytes(), m_original);
}

void LayerCommandTest::namesMayChangePlaces()
{
    const auto door = layer("A-DOOR")->id;
    const auto wall = layer("A-WALL")->id;
    const char* const names[] = {"swap", "A-DOOR", "A-WALL"};
    for (const char* name : names)
        m_host->answer(
            1, QStringLiteral(R"({"Success":true,"NewName":"%1"})").arg(QLatin1String(name)));
    runLayer([this](QDialog& dialog) {
        QTableWidget& layers = table(dialog);
        doubleClick(layers, QStringLiteral("A-DOOR"), kName);
        doubleClick(layers, QStringLiteral("A-WALL"), kName);
        doubleClick(layers, QStringLiteral("swap"), kName);
        press(dialog, "okButton");
    });
    QCOMPARE(m_host->log().filter(QStringLiteral("message|")), QStringList());
    QCOMPARE(layer("A-WALL")->id, door);
    QCOMPARE(layer("A-DOOR")->id, wall);
}

void LayerCommandTest::applyShowsWhileTheDialogIsOpen()
{
    QSignalSpy shown(m_window->drawing(), &drawing::Drawing::layersChanged);
    runLayer([&](QDialog& dialog) {
        click(table(dialog), QStringLiteral("A-DOOR"), kOff);
        press(dialog, "applyButton");
        QCOMPARE(shown.count(), 1);
        QVERIFY(layer("A-DOOR")->properties.off);
        press(dialog, "cancelButton"); // Nothing is left to ask about.
    });
    QVERIFY(m_window->drawing()->canUndo());
}

void LayerCommandTest::refusedPropertyIsNamed()
{
    m_host->answer(1, QStringLiteral(R"({"clrMethod":195,"selectClr":300})"));
    runLayer([this](QDialog& dialog) {
        click(table(dialog), QStringLiteral("A-DOOR"), kColor);
        press(dialog, "okButton");
    });
    const QStringList messages = m_host->log().filter(QStringLiteral("message|"));
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().contains(QStringLiteral("A-DOOR")), qPrintable(messages.first()));
    QCOMPARE(savedBytes(), m_original);
}

QTEST_MAIN(LayerCommandTest)

#include "tst_layercommand.moc"
