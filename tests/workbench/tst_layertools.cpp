#include "../drawing/readback.h"
#include "canvas.h"
#include "drawing.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "vnmessages.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QtTest>

#include <numeric>

using drawing::Layer;
using drawing::LayerId;

/// LAYDEL, LAYMCH and LAYMRG from the command line to the saved file, through the real windows.
class LayerToolsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void deletes_data() { drawings(); }
    void deletes();
    void changes_data() { drawings(); }
    void changes();
    void merges_data() { drawings(); }
    void merges();
    void changesNeedASelection();
    void newLayerIsMadeAndLockedStays();
    void sourceIsNoTarget();
    void declinedTargetIsAskedAbout();
    void vanishedLayersAreNamed();

private:
    static void drawings();
    void open(const QString& path);
    void run(const char* command, const std::vector<ModalDriver::Step>& steps);
    drawing::Drawing& drawing() const { return *m_window->drawing(); }
    QStringList used() const;
    QString current() const { return drawing().layer(drawing().currentLayer())->properties.name; }
    QString statusText() const { return m_window->statusBar()->currentMessage(); }
    /// Chooses the items of these names and presses OK.
    static ModalDriver::Step choose(const QStringList& names, const char* button = "okButton");
    static ModalDriver::Step type(const QString& name);
    void selectAll();
    /// What an independent reader finds has no entity on these layers and no new error; then undo
    /// brings every byte back.
    void checkAndUndo(const QStringList& gone);
    QByteArray savedBytes(const QString& name);

    QTemporaryDir m_folder;
    std::unique_ptr<ModuleFixture> m_module;
    std::unique_ptr<RecordingHost> m_host;
    std::unique_ptr<MainWindow> m_window;
    QString m_path;
    QByteArray m_original;
};

void LayerToolsTest::init()
{
    m_module = std::make_unique<ModuleFixture>();
    m_host = std::make_unique<RecordingHost>();
    for (const char* dialog : {"Dialog/CmdLaydel", "Dialog/CmdLaymch", "Dialog/CmdLaymrg"})
        m_host->passThrough(QLatin1String(dialog));
    m_host->setLogsTrees(false);
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    open(QStringLiteral(SAMPLES "/office-floor.dxf"));
}

void LayerToolsTest::cleanup()
{
    m_window.reset();
    m_host.reset();
    m_module.reset();
}

void LayerToolsTest::drawings()
{
    QTest::addColumn<QString>("path");
    for (const char* path : {SAMPLES "/office-floor.dxf", SAMPLES "/workshop-gbk.dxf",
             SHARED_DRAWINGS "/floorplan.dxf"}) {
        if (QFile::exists(QString::fromUtf8(path)))
            QTest::newRow(qPrintable(QFileInfo(QString::fromUtf8(path)).fileName()))
                << QString::fromUtf8(path);
    }
}

void LayerToolsTest::open(const QString& path)
{
    m_path = path;
    auto file = readFile(path, nullptr, QThread::currentThread());
    QVERIFY(file.has_value());
    m_window->setFile(std::move(*file));
    QFile original(path);
    QVERIFY(original.open(QIODevice::ReadOnly));
    m_original = original.readAll();
}

void LayerToolsTest::run(const char* command, const std::vector<ModalDriver::Step>& steps)
{
    ModalDriver user;
    for (const ModalDriver::Step& step : steps)
        user.then(step);
    m_window->runCommand(QString::fromLatin1(command));
}

/// Layers with something on them that may go.
QStringList LayerToolsTest::used() const
{
    QStringList names;
    for (const Layer& layer : drawing().layers()) {
        if (layer.used() && layer.properties.name != QLatin1String("0") &&
            layer.id != drawing().currentLayer() && !layer.dependsOnReference)
            names += layer.properties.name;
    }
    return names;
}

ModalDriver::Step LayerToolsTest::choose(const QStringList& names, const char* button)
{
    return [names, button](QDialog& dialog) {
        auto* const list = ModuleFixture::child<QListWidget>(&dialog, "layerList");
        list->clearSelection();
        for (const QString& name : names) {
            const auto found = list->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
            QCOMPARE(found.size(), 1);
            list->setCurrentItem(found.first(), names.size() == 1
                                                    ? QItemSelectionModel::ClearAndSelect
                                                    : QItemSelectionModel::Select);
        }
        ModuleFixture::child<QPushButton>(&dialog, button)->click();
        dialog.close(); // One that a failure left open.
    };
}

ModalDriver::Step LayerToolsTest::type(const QString& name)
{
    return [name](QDialog& dialog) {
        ModuleFixture::child<QLineEdit>(&dialog, "layerNameEdit")->setText(name);
        ModuleFixture::child<QPushButton>(&dialog, "okButton")->click();
        dialog.close();
    };
}

void LayerToolsTest::selectAll()
{
    std::vector<int> all(drawing().entities().size());
    std::iota(all.begin(), all.end(), 0);
    m_window->canvas()->setSelection(all);
}

QByteArray LayerToolsTest::savedBytes(const QString& name)
{
    const QString path = m_folder.filePath(name);
    if (!drawing().save(path))
        return {};
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void LayerToolsTest::checkAndUndo(const QStringList& gone)
{
    QVERIFY(savedBytes(QStringLiteral("edited.dxf")) != m_original);
    if (readback::isInstalled()) {
        const QJsonObject after = readback::seen(m_folder.filePath(QStringLiteral("edited.dxf")));
        QVERIFY2(!after.contains("failure"), qPrintable(after.value("failure").toString()));
        QCOMPARE(readback::newErrors(readback::seen(m_path), after), QStringList());
        for (const QString& name : gone)
            QVERIFY2(
                !after.value("entities").toObject().contains(name.toLower()), qPrintable(name));
    }
    drawing().undo();
    QVERIFY(!drawing().canUndo());
    QVERIFY(savedBytes(QStringLiteral("undone.dxf")) == m_original);
}

void LayerToolsTest::deletes()
{
    QFETCH(QString, path);
    open(path);
    const QStringList names = used().mid(0, 4);
    const auto before = m_window->canvas()->grab().toImage();
    m_host->answer(vnsi::kVnAnswerOk);
    run("laydel", {[&](QDialog& dialog) {
        auto* const list = ModuleFixture::child<QListWidget>(&dialog, "layerList");
        for (const QString& kept : {QStringLiteral("0"), current()})
            QVERIFY(list->findItems(kept, Qt::MatchFixedString).isEmpty());
        choose(names)(dialog);
    }});
    QString question;
    for (const QString& line : m_host->log())
        question += line.startsWith(QLatin1String("messageEx")) ? line : QString();
    for (const QString& name : names)
        QVERIFY(!drawing().findLayer(name));
    QVERIFY(m_window->canvas()->grab().toImage() != before);
    checkAndUndo(names);
    std::vector<LayerId> ids;
    for (const QString& name : names)
        ids.push_back(drawing().findLayer(name)->id);
    QCOMPARE(question.contains(QStringLiteral("参照的块")) ||
                 question.contains(QStringLiteral("重定义")),
        drawing().isReferencedInBlocks(ids));
    QCOMPARE(m_window->canvas()->grab().toImage(), before);
}

void LayerToolsTest::changes()
{
    QFETCH(QString, path);
    open(path);
    selectAll();
    const std::vector<int> selection = m_window->canvas()->selection();
    const auto* const field = m_window->findChild<QLabel*>(QStringLiteral("selectionField"));
    QCOMPARE(field->text(), QStringLiteral("已选择 %1 个对象").arg(selection.size()));
    // The dialog takes no name with a blank in it.
    const QString target = used().filter(QRegularExpression(QStringLiteral("^\\S+$"))).first();
    run("laymch", {choose({target})});
    const LayerId id = drawing().findLayer(target)->id;
    for (const int index : selection) {
        const drawing::Entity& entity = drawing().entities()[static_cast<std::size_t>(index)];
        QVERIFY(entity.layer == id || drawing().layer(entity.layer)->properties.locked);
    }
    QVERIFY2(statusText().contains(target), qPrintable(statusText()));
    checkAndUndo({});
}

void LayerToolsTest::merges()
{
    QFETCH(QString, path);
    open(path);
    const QStringList names = used().mid(1, 3);
    const QString target = used().first();
    const int together = [&] {
        int count = drawing().findLayer(target)->entityCount;
        for (const QString& name : names)
            count += drawing().findLayer(name)->entityCount;
        return count;
    }();
    m_host->answer(vnsi::kVnAnswerYes);
    run("laymrg", {choose(names), choose({target})});
    for (const QString& name : names)
        QVERIFY(!drawing().findLayer(name));
    QCOMPARE(drawing().findLayer(target)->entityCount, together);
    const QString log = m_host->log().join(QLatin1Char('\n'));
    QVERIFY2(log.contains(QStringLiteral("将要把 3 个图层合并到图层 ") + target), qPrintable(log));
    checkAndUndo(names);
}

void LayerToolsTest::changesNeedASelection()
{
    run("laymch", {});
    QVERIFY2(statusText().contains(QStringLiteral("请先")), qPrintable(statusText()));
    QVERIFY(!drawing().canUndo());
}

void LayerToolsTest::newLayerIsMadeAndLockedStays()
{
    const QString locked = used().first();
    const LayerId lockedId = drawing().findLayer(locked)->id;
    drawing().beginStep(QStringLiteral("lock"));
    drawing::LayerProperties properties = drawing().findLayer(locked)->properties;
    properties.locked = true;
    QVERIFY(drawing().setLayerProperties(lockedId, properties));
    drawing().commitStep();
    const int before = drawing().findLayer(locked)->entityCount;
    selectAll();
    m_host->answer(vnsi::kVnAnswerYes);
    run("laymch", {type(QStringLiteral("全新"))});
    QVERIFY(drawing().findLayer(QStringLiteral("全新"))->used());
    QCOMPARE(drawing().findLayer(locked)->entityCount, before);
    QVERIFY2(statusText().contains(QStringLiteral("锁定")), qPrintable(statusText()));
    drawing().undo();
    QVERIFY(!drawing().findLayer(QStringLiteral("全新")));
}

void LayerToolsTest::sourceIsNoTarget()
{
    const QString source = used().first();
    m_host->answer(vnsi::kVnAnswerYes);
    run("laymrg", {choose({source}), choose({source}), choose({source}, "cancelButton")});
    QVERIFY(m_host->log().join(QLatin1Char('\n')).contains(QStringLiteral("不能作为目标图层")));
    QVERIFY(!drawing().canUndo());
}

/// A target keeps its mark when the question is declined; the command must not take it for the one
/// that was agreed to.
void LayerToolsTest::declinedTargetIsAskedAbout()
{
    const QStringList names = used();
    const QStringList targets = {names[1], names[2]};
    m_host->answer(vnsi::kVnAnswerNo);
    m_host->answer(vnsi::kVnAnswerYes);
    int asked = 0;
    m_host->answer([&](const vnsi::VnJsonPtr&) { return ++asked, 2; });
    run("laymrg", {choose({names[0]}), [&](QDialog& dialog) {
                       auto* const list = ModuleFixture::child<QListWidget>(&dialog, "layerList");
                       for (const QString& target : targets) {
                           list->setCurrentItem(list->findItems(target, Qt::MatchExactly).first());
                           ModuleFixture::child<QPushButton>(&dialog, "okButton")->click();
                       }
                   }});
    QCOMPARE(asked, 1);
    QVERIFY(!drawing().canUndo());
}

void LayerToolsTest::vanishedLayersAreNamed()
{
    const QStringList names = used();
    m_host->answer(vnsi::kVnAnswerOk);
    run("laydel", {[&](QDialog& dialog) {
        QVERIFY(drawing().deleteLayers({drawing().findLayer(names[0])->id}));
        choose({names[0], names[1]})(dialog);
    }});
    QVERIFY2(statusText().contains(QStringLiteral("“%1”").arg(names[0])), qPrintable(statusText()));
    QVERIFY(!drawing().findLayer(names[1]));
    checkAndUndo({names[0], names[1]});
}

QTEST_MAIN(LayerToolsTest)
#include "tst_layertools.moc"
