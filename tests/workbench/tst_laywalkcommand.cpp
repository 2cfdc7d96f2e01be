#include "canvas.h"
#include "drawing.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

using drawing::Layer;

/// LAYWALK through the real windows, down to the saved file.
class LayerWalkCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void restoresEveryByte_data();
    void restoresEveryByte();
    void goingOnIsOneStep();
    void purgesVerifiesAndSavesAState();
    void refusesToPurgeWhatIsUsed();
    void picksFromTheCanvas_data();
    void picksFromTheCanvas();

private:
    void open(const QString& path);
    /// Runs the command; after the steps the dialog is closed by its button.
    void walk(const std::function<void(QDialog& dialog)>& steps)
    {
        m_user->then([steps](QDialog& dialog) {
            steps(dialog);
            child<QPushButton>(dialog, "closeButton")->click();
        });
        m_window->runCommand(QStringLiteral("laywalk"));
    }
    template <class T>
    static T* child(const QDialog& dialog, const char* name)
    {
        return ModuleFixture::child<T>(&dialog, name);
    }
    static QListWidget& list(const QDialog& dialog)
    {
        return *child<QListWidget>(dialog, "layerList");
    }
    static void trigger(const QDialog& dialog, const char* action)
    {
        dialog.findChild<QAction*>(QLatin1String(action))->trigger();
    }
    static void click(const QDialog& dialog, const QString& name)
    {
        QListWidget& rows = list(dialog);
        QListWidgetItem* const item = rows.findItems("  " + name, Qt::MatchExactly).value(0);
        QVERIFY2(item, qPrintable(name));
        rows.scrollToItem(item);
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(item).center());
    }
    drawing::Drawing& drawing() const { return *m_window->drawing(); }
    /// Names of the layers that are on, in the order of the file.
    QStringList shown() const
    {
        QStringList names;
        for (const Layer& layer : drawing().layers()) {
            if (!layer.properties.off)
                names.append(layer.properties.name);
        }
        return names;
    }
    QByteArray savedBytes()
    {
        const QString path = m_folder.filePath("saved.dxf");
        if (!drawing().save(path))
            return {};
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<ModalDriver> m_user;
    std::unique_ptr<ModuleFixture> m_module;
    std::unique_ptr<RecordingHost> m_host;
    std::unique_ptr<MainWindow> m_window;
    QByteArray m_original;
};

void LayerWalkCommandTest::init()
{
    m_user = std::make_unique<ModalDriver>();
    m_module = std::make_unique<ModuleFixture>();
    m_host = std::make_unique<RecordingHost>();
    m_host->setLogsTrees(false);
    for (const char* dialog :
        {"Dialog/CmdLaywalk", "Dialog/CmdLaywalk/Verify", "Dialog/CmdLayerStateNew"})
        m_host->passThrough(QLatin1String(dialog));
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    open(QStringLiteral(SAMPLES "/office-floor.dxf"));
}

void LayerWalkCommandTest::cleanup()
{
    m_window.reset();
    m_host.reset();
    m_module.reset();
    m_user.reset();
}

void LayerWalkCommandTest::open(const QString& path)
{
    auto file = readFile(path, nullptr, QThread::currentThread());
    QVERIFY(file.has_value());
    m_window->setFile(std::move(*file));
    QFile original(path);
    QVERIFY(original.open(QIODevice::ReadOnly));
    m_original = original.readAll();
}

void LayerWalkCommandTest::restoresEveryByte_data()
{
    QTest::addColumn<QString>("path");
    for (const char* folder : {SAMPLES, SHARED_DRAWINGS}) {
        const QDir files(QString::fromUtf8(folder));
        for (const QString& name : files.entryList({"*.dxf"}, QDir::Files))
            QTest::newRow(qPrintable(name)) << files.filePath(name);
    }
}

void LayerWalkCommandTest::restoresEveryByte()
{
    QFETCH(QString, path);
    open(path);
    const QStringList before = shown();
    const auto current = drawing().currentLayer();
    walk([&](QDialog& dialog) {
        child<QCheckBox>(dialog, "restoreBox")->setChecked(true);
        for (const char* action : {"selectAllAction", "clearAllAction"})
            trigger(dialog, action);
        QVERIFY(shown().isEmpty() && drawing().isModified());
        const QImage empty = m_window->canvas()->grab().toImage();
        const Layer* most = &drawing().layers().front();
        for (const Layer& layer : drawing().layers()) {
            if (layer.entityCount > most->entityCount && !layer.properties.frozen)
                most = &layer;
        }
        const QString name = most->properties.name;
        click(dialog, name);
        QCOMPARE(shown(), QStringList{name});
        if (!drawing().layer(most->id)->properties.frozen && path.contains("floor"))
            QVERIFY(m_window->canvas()->grab().toImage() != empty);
        trigger(dialog, "keepAction");
        trigger(dialog, "reverseAction");
        QVERIFY(shown().contains(name));
        child<QComboBox>(dialog, "filterCombo")->setEditText("~*[a-f]*");
        QTest::keyClick(child<QComboBox>(dialog, "filterCombo"), Qt::Key_Return);
    });
    QCOMPARE(shown(), before);
    QCOMPARE(drawing().currentLayer(), current);
    QVERIFY(!drawing().canUndo() && !drawing().isModified());
    QVERIFY(savedBytes() == m_original);
}

void LayerWalkCommandTest::goingOnIsOneStep()
{
    m_host->answer(0);
    walk([](QDialog& dialog) {
        child<QCheckBox>(dialog, "restoreBox")->setChecked(false);
        click(dialog, "A-WALL");
        click(dialog, "0");
        trigger(dialog, "releaseAllAction");
    });
    QCOMPARE(shown(), QStringList{"0"});
    QCOMPARE(drawing().undoName(), QStringLiteral("图层漫游"));
    drawing().undo();
    QVERIFY(!drawing().canUndo());
    QVERIFY(savedBytes() == m_original);
}

void LayerWalkCommandTest::purgesVerifiesAndSavesAState()
{
    int unused = 0;
    int entities = 0;
    QString pinned;
    for (const Layer& layer : drawing().layers()) {
        unused += layer.used() ? 0 : 1;
        if (layer.entityCount > entities && !layer.properties.name.contains('|')) {
            entities = layer.entityCount;
            pinned = layer.properties.name;
        }
    }
    const std::size_t count = drawing().layers().size();
    QStringList counts;
    m_user->then([&](QDialog& dialog) {
        click(dialog, pinned);
        trigger(dialog, "keepAction");
        m_user->then([&](QDialog& report) {
            for (const QLineEdit* edit : report.findChildren<QLineEdit*>())
                counts.append(edit->text());
            report.close();
        });
        trigger(dialog, "verifyAction");
        trigger(dialog, "selectUnusedAction");
        child<QPushButton>(dialog, "purgeButton")->click();
        QCOMPARE(list(dialog).findItems("* " + pinned, Qt::MatchExactly).size(), 1);
        m_user->then([&](QDialog& naming) {
            child<QComboBox>(naming, "nameBox")->setEditText(QStringLiteral("只看墙"));
            child<QPushButton>(naming, "okButton")->click();
        });
        trigger(dialog, "saveStateAction");
        child<QCheckBox>(dialog, "restoreBox")->setChecked(true);
        dialog.close();
    });
    m_window->runCommand(QStringLiteral("laywalk"));
    QCOMPARE(counts, (QStringList{QString::number(count), "1", QString::number(entities)}));
    // Layers without an entity stay where they are current or a reference's.
    const auto left = drawing().layers().size();
    QVERIFY(left < count && left + static_cast<std::size_t>(unused) >= count);
    const auto state = drawing().layerState(QStringLiteral("只看墙"));
    QVERIFY(state.has_value());
    for (const drawing::LayerStateLayer& layer : state->layers)
        QCOMPARE(layer.properties.off, layer.properties.name != pinned);
    QVERIFY(shown().size() > 1);
    drawing().undo();
    QVERIFY(savedBytes() == m_original);
}

void LayerWalkCommandTest::refusesToPurgeWhatIsUsed()
{
    walk([](QDialog& dialog) {
        click(dialog, "A-WALL");
        child<QPushButton>(dialog, "purgeButton")->click();
        QVERIFY(!list(dialog).findItems("  A-WALL", Qt::MatchExactly).isEmpty());
    });
    const QStringList messages = m_host->log().filter("message|");
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages.first().contains("A-WALL") && messages.first().contains("没有清除"));
}

void LayerWalkCommandTest::picksFromTheCanvas_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("selected");
    QTest::newRow("ENTER") << int(Qt::Key_Return) << 1;
    QTest::newRow("right button") << 0 << 1;
    QTest::newRow("Esc") << int(Qt::Key_Escape) << -1; // As it was.
}

void LayerWalkCommandTest::picksFromTheCanvas()
{
    QFETCH(int, key);
    QFETCH(int, selected);
    Canvas& canvas = *m_window->canvas();
    m_user->then([&](QDialog& dialog) {
        trigger(dialog, "selectAllAction");
        const int all = list(dialog).count();
        if (selected < 0)
            selected = all;
        QTimer::singleShot(0, &canvas, [&] {
            // Something of each kind lies along the middle.
            for (int x = 0; canvas.selection().empty() && x < canvas.width(); x += 3)
                QTest::mouseClick(&canvas, Qt::LeftButton, {}, QPoint(x, canvas.height() / 2));
            QVERIFY(!dialog.isVisible() && !canvas.selection().empty());
            if (key)
                QTest::keyClick(&canvas, Qt::Key(key));
            else
                QTest::mouseClick(&canvas, Qt::RightButton);
        });
        child<QToolButton>(dialog, "pickButton")->click();
        QVERIFY(canvas.selection().empty());
    });
    m_user->then([&](QDialog& dialog) {
        QCOMPARE(list(dialog).selectedItems().size(), selected);
        QCOMPARE(shown().size(), selected);
        dialog.close();
    });
    m_window->runCommand(QStringLiteral("laywalk"));
}

QTEST_MAIN(LayerWalkCommandTest)

#include "tst_laywalkcommand.moc"
