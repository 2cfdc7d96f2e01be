#include "mainwindow.h"

#include "canvas.h"
#include "commandline.h"
#include "messages.h"
#include "recentfiles.h"
#include "statusfields.h"

#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QToolBar>

namespace {

const char kDarkKey[] = "canvas/dark";

QString fileFilter()
{
    return MainWindow::tr("DXF 图形 (*.dxf *.DXF);;所有文件 (*)");
}

/// The first local file that is dragged; empty when there is none.
QString draggedFile(const QMimeData* data)
{
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return {};
}

} // namespace

/// What the window itself can do; the layer commands are a table of their own.
struct MainWindow::ActionRow
{
    enum Menu { File, Edit, View, Layers, Help };

    const char* name; ///< As typed into the command line; also the action's object name.
    const char* title;
    const char* icon; ///< Null: not on the tool bar.
    QKeySequence::StandardKey key;
    Menu menu;
    void (MainWindow::*slot)();
};

const MainWindow::ActionRow MainWindow::kActions[] = {
    {"OPEN", QT_TR_NOOP("打开(&O)..."), "open", QKeySequence::Open, ActionRow::File,
        &MainWindow::chooseFile},
    {"SAVE", QT_TR_NOOP("保存(&S)"), "save", QKeySequence::Save, ActionRow::File,
        &MainWindow::save},
    {"SAVEAS", QT_TR_NOOP("另存为(&A)..."), nullptr, QKeySequence::SaveAs, ActionRow::File,
        &MainWindow::saveAs},
    {"QUIT", QT_TR_NOOP("退出(&Q)"), nullptr, QKeySequence::Quit, ActionRow::File,
        &MainWindow::quit},
    {"UNDO", QT_TR_NOOP("撤销(&U)"), "undo", QKeySequence::Undo, ActionRow::Edit,
        &MainWindow::undo},
    {"REDO", QT_TR_NOOP("重做(&R)"), "redo", QKeySequence::Redo, ActionRow::Edit,
        &MainWindow::redo},
    {"ZOOM", QT_TR_NOOP("缩放到范围(&E)"), "zoom-extents", QKeySequence::UnknownKey,
        ActionRow::View, &MainWindow::zoomToExtents},
    {"BACKGROUND", QT_TR_NOOP("白底(&B)"), "background", QKeySequence::UnknownKey, ActionRow::View,
        &MainWindow::toggleBackground},
    {"ABOUT", QT_TR_NOOP("关于(&A)..."), nullptr, QKeySequence::UnknownKey, ActionRow::Help,
        &MainWindow::about},
};

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent),
      m_worker(std::make_unique<FileWorker>())
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(QIcon(QStringLiteral(":/workbench/app-64.png")));
    setAcceptDrops(true);
    m_canvas = new Canvas(this);
    m_canvas->setObjectName(QStringLiteral("canvas"));
    setCentralWidget(m_canvas);
    m_status = new StatusFields(this);
    setStatusBar(m_status);
    m_recent = new RecentFiles(this);
    createActions();
    createCommandLine();
    connectParts();
    m_canvas->setDark(QSettings().value(QLatin1String(kDarkKey), true).toBool());
    updateState();
    resize(1280, 820);
}

void MainWindow::createActions()
{
    QMenu* const menus[] = {menuBar()->addMenu(tr("文件(&F)")), menuBar()->addMenu(tr("编辑(&E)")),
        menuBar()->addMenu(tr("视图(&V)")), menuBar()->addMenu(tr("图层(&L)")),
        menuBar()->addMenu(tr("帮助(&H)"))};
    QToolBar* const bar = addToolBar(tr("工具栏"));
    bar->setObjectName(QStringLiteral("toolBar"));

    const auto add = [&](QMenu* menu, const char* name, const QString& title, const char* icon) {
        auto* made = new QAction(title, this);
        made->setObjectName(QLatin1String(name));
        menu->addAction(made);
        if (icon) {
            made->setIcon(QIcon(QStringLiteral(":/workbench/%1.png").arg(QLatin1String(icon))));
            bar->addAction(made);
        }
        return made;
    };
    for (const ActionRow& row : kActions) {
        QAction* const made = add(menus[row.menu], row.name, tr(row.title), row.icon);
        made->setShortcuts(row.key);
        connect(made, &QAction::triggered, this, row.slot);
    }
    bar->addSeparator();
    for (const CommandRow& row : CommandTable()) {
        QAction* const made = add(menus[ActionRow::Layers], row.name, row.displayTitle(), row.icon);
        made->setToolTip(
            QStringLiteral("%1 (%2)").arg(row.displayTitle(), QLatin1String(row.name)));
        connect(made, &QAction::triggered, this, [this, &row] { runLayerCommand(row); });
    }
    menus[ActionRow::File]->insertMenu(action("SAVE"), m_recent);
    menus[ActionRow::File]->insertSeparator(action("QUIT"));
    bar->insertSeparator(action("UNDO"));
    bar->insertSeparator(action("ZOOM"));
    action("BACKGROUND")->setCheckable(true);
}

void MainWindow::createCommandLine()
{
    m_commandLine = new CommandLine(this);
    QStringList words;
    for (const CommandRow& row : CommandTable())
        words.append(QLatin1String(row.name));
    for (const ActionRow& row : kActions)
        words.append(QLatin1String(row.name));
    words.sort();
    m_commandLine->setWords(words);

    auto* dock = new QDockWidget(tr("命令行"), this);
    dock->setObjectName(QStringLiteral("commandDock"));
    dock->setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    dock->setWidget(m_commandLine);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    resizeDocks({dock}, {dock->minimumSizeHint().height()}, Qt::Vertical);
}

void MainWindow::connectParts()
{
    connect(m_recent, &RecentFiles::chosen, this, &MainWindow::openFile);
    connect(m_canvas, &Canvas::cursorMoved, m_status, &StatusFields::showCursor);
    connect(m_commandLine, &CommandLine::entered, this, &MainWindow::runCommand);
    connect(m_status, &StatusFields::cancelClicked, m_worker.get(), &FileWorker::cancel);

    FileWorker* const worker = m_worker.get();
    connect(worker, &FileWorker::started, m_status, &StatusFields::showWork);
    connect(worker, &FileWorker::started, this, &MainWindow::updateState);
    connect(worker, &FileWorker::progress, m_status, &StatusFields::showProgress);
    connect(worker, &FileWorker::finished, m_status, &StatusFields::hideWork);
    connect(worker, &FileWorker::finished, this, &MainWindow::updateState);
    connect(worker, &FileWorker::opened, this,
        [this](const std::shared_ptr<OpenedFile>& file) { setFile(std::move(*file)); });
    connect(worker, &FileWorker::openFailed, this,
        [this](const QString& path, const drawing::Error& error) {
            if (!QFileInfo::exists(path))
                m_recent->remove(path);
            report(tr("无法打开图形"), path, error);
        });
    connect(worker, &FileWorker::saved, this, [this](const QString& path) {
        m_recent->add(path);
        m_commandLine->say(tr("已保存 %1").arg(QDir::toNativeSeparators(path)));
        updateState();
    });
    connect(worker, &FileWorker::saveFailed, this,
        [this](const QString& path, const drawing::Error& error) {
            report(tr("无法保存图形"), path, error);
            updateState();
        });
}

void MainWindow::openFile(const QString& path)
{
    if (!isBusy() && confirmDiscard())
        m_worker->open(path);
}

void MainWindow::setFile(OpenedFile file)
{
    m_drawing = std::move(file.drawing);
    connect(m_drawing.get(), &drawing::Drawing::layersChanged, this, &MainWindow::showLayers);
    connect(
        m_drawing.get(), &drawing::Drawing::entitiesChanged, this, &MainWindow::rebuildGeometry);
    connect(m_drawing.get(), &drawing::Drawing::modifiedChanged, this, &MainWindow::updateState);
    m_canvas->setScene(file.geometry);
    showLayers();
    m_canvas->zoomToExtents();
    m_recent->add(m_drawing->path());
    m_commandLine->say(tr("已打开 %1: %2 个图层, %3 个对象")
                           .arg(QDir::toNativeSeparators(m_drawing->path()))
                           .arg(m_drawing->layers().size())
                           .arg(m_drawing->entities().size()));
    if (file.geometry->truncated)
        m_commandLine->say(tr("图形内容过多，只显示其中一部分。"));
    updateState();
    emit fileOpened();
}

void MainWindow::showLayers()
{
    m_canvas->setLayers(m_drawing->layers());
    m_status->showLayers(m_drawing.get());
    updateState();
}

void MainWindow::rebuildGeometry()
{
    if (auto geometry = drawing::buildGeometry(*m_drawing))
        m_canvas->setScene(std::make_shared<const drawing::Geometry>(std::move(*geometry)));
    showLayers();
}

void MainWindow::runCommand(const QString& word)
{
    if (const CommandRow* row = CommandTable().find(word)) {
        runLayerCommand(*row);
        return;
    }
    const QString wanted = word.trimmed();
    for (const ActionRow& row : kActions) {
        if (wanted.compare(QLatin1String(row.name), Qt::CaseInsensitive) != 0)
            continue;
        if (action(row.name)->isEnabled())
            action(row.name)->trigger();
        else
            m_commandLine->say(tr("命令“%1”现在不可用。").arg(QLatin1String(row.name)));
        return;
    }
    m_commandLine->say(tr("未知命令“%1”。").arg(wanted));
}

void MainWindow::runLayerCommand(const CommandRow& row)
{
    if (!m_drawing || isBusy()) {
        m_commandLine->say(m_drawing ? tr("请等待当前操作结束。") : tr("请先打开一个图形。"));
        return;
    }
    if (!row.create) {
        m_commandLine->say(
            tr("命令 %1（%2）尚不可用。").arg(QLatin1String(row.name), row.displayTitle()));
        return;
    }
    CommandContext context{*m_drawing, this,
        [this](const QString& text) { m_commandLine->say(text); }, [this] { showLayers(); }};
    m_commandRunning = true;
    updateState();
    m_drawing->beginStep(row.displayTitle());
    row.create()->run(context);
    m_drawing->commitStep();
    m_commandRunning = false;
    updateState();
}

void MainWindow::chooseFile()
{
    const QString folder = m_drawing ? QFileInfo(m_drawing->path()).path() : QString();
    const QString path = QFileDialog::getOpenFileName(this, tr("打开图形"), folder, fileFilter());
    if (!path.isEmpty())
        openFile(path);
}

void MainWindow::save()
{
    saveTo(m_drawing->path());
}

void MainWindow::saveAs()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("图形另存为"), m_drawing->path(), fileFilter());
    if (!path.isEmpty())
        saveTo(path);
}

void MainWindow::saveTo(const QString& path)
{
    if (m_drawing && !isBusy())
        m_worker->save(*m_drawing, path);
}

void MainWindow::quit()
{
    close();
}

void MainWindow::undo()
{
    m_drawing->undo();
    updateState();
}

void MainWindow::redo()
{
    m_drawing->redo();
    updateState();
}

void MainWindow::zoomToExtents()
{
    m_canvas->zoomToExtents();
}

void MainWindow::toggleBackground()
{
    m_canvas->setDark(!m_canvas->isDark());
    QSettings().setValue(QLatin1String(kDarkKey), m_canvas->isDark());
    updateState();
}

void MainWindow::about()
{
    messages::showAbout(this);
}

QAction* MainWindow::action(const char* name) const
{
    return findChild<QAction*>(QLatin1String(name), Qt::FindDirectChildrenOnly);
}

void MainWindow::updateState()
{
    const bool idle = m_drawing && !isBusy();
    const bool canUndo = idle && m_drawing->canUndo();
    const bool canRedo = idle && m_drawing->canRedo();
    action("OPEN")->setEnabled(!isBusy());
    m_recent->setEnabled(!isBusy());
    action("SAVE")->setEnabled(idle && m_drawing->isModified());
    action("SAVEAS")->setEnabled(idle);
    action("UNDO")->setEnabled(canUndo);
    action("UNDO")->setText(
        canUndo ? tr("撤销 %1(&U)").arg(m_drawing->undoName()) : tr("撤销(&U)"));
    action("REDO")->setEnabled(canRedo);
    action("REDO")->setText(
        canRedo ? tr("重做 %1(&R)").arg(m_drawing->redoName()) : tr("重做(&R)"));
    action("ZOOM")->setEnabled(m_drawing != nullptr);
    action("BACKGROUND")->setChecked(!m_canvas->isDark());
    for (const CommandRow& row : CommandTable())
        action(row.name)->setEnabled(idle && row.create);
    const QString file = m_drawing ? QFileInfo(m_drawing->path()).fileName() : tr("无图形");
    setWindowTitle(tr("图层工作台 - %1[*]").arg(file));
    setWindowModified(m_drawing && m_drawing->isModified());
}

bool MainWindow::confirmDiscard()
{
    if (!m_drawing || !m_drawing->isModified())
        return true;
    const auto choice = messages::askToSave(this, QFileInfo(m_drawing->path()).fileName());
    if (choice != messages::SaveChoice::Save)
        return choice == messages::SaveChoice::Discard;
    save();
    waitForWorker();
    return !m_drawing->isModified();
}

/// Returns when the job under way has ended; the window goes on living meanwhile.
void MainWindow::waitForWorker()
{
    if (!m_worker->isBusy())
        return;
    QEventLoop loop;
    connect(m_worker.get(), &FileWorker::finished, &loop, &QEventLoop::quit);
    m_waiting = true;
    loop.exec();
    m_waiting = false;
}

void MainWindow::report(const QString& title, const QString& path, const drawing::Error& error)
{
    if (error.cancelled) {
        m_commandLine->say(tr("已取消。"));
        return;
    }
    m_commandLine->say(messages::describe(path, error));
    messages::showFailure(this, title, path, error);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_commandRunning || m_waiting) {
        event->ignore();
        return;
    }
    m_worker->cancel();
    waitForWorker();
    event->setAccepted(confirmDiscard());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!isBusy() && !draggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    openFile(draggedFile(event->mimeData()));
}
