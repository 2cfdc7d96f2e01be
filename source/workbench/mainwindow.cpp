#include "mainwindow.h"

#include "canvas.h"
#include "codepagechoice.h"
#include "commandline.h"
#include "commands/layermarks.h"
#include "drawingsession.h"
#include "entitypick.h"
#include "file/drawingfile.h"
#include "geometry/geometry.h"
#include "hostfrontend.h"
#include "languagemenu.h"
#include "layerpanel.h"
#include "messages.h"
#include "recentfiles.h"
#include "requests.h"
#include "scenebuilder.h"
#include "statusfields.h"
#include "typedkeys.h"
#include "vndialogs.h"
#include "vnstrings.h"
#include "windowplace.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalBlocker>
#include <QToolBar>

#include <set>
#include <utility>

namespace {

constexpr int kNoticeMilliseconds = 15000;
/// After this many breaks the user is told that the work takes longer.
constexpr int kRestsToWait = 3;
const char kDarkKey[] = "canvas/dark";

QString fileFilter()
{
    return MainWindow::tr("DXF 图形 (*.dxf *.DXF);;所有文件 (*)");
}

/// The first local file among the dragged ones; empty when there is none.
QString draggedFile(const QMimeData* data)
{
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return {};
}

/// A menu title as plain text. Chinese titles have their mnemonic in brackets at the end.
QString withoutMnemonic(QString title)
{
    static const QRegularExpression mark(QStringLiteral("\\(&.\\)|&|\\.\\.\\.$"));
    return title.remove(mark);
}

} // namespace

/// The window's own actions; the layer commands have a separate table.
struct MainWindow::ActionRow
{
    enum Menu { File, Edit, View, Layers, Help };

    const char* name; ///< As typed into the command line; also the action's object name.
    const char* title;
    const char* icon; ///< Null for actions that are not on the tool bar.
    QKeySequence::StandardKey key;
    Menu menu;
    void (MainWindow::*slot)();
    const char* otherKey = nullptr; ///< A key that drafters expect besides the system's own.
};

const MainWindow::ActionRow MainWindow::kActions[] = {
    {"OPEN", QT_TR_NOOP("打开(&O)..."), "open", QKeySequence::Open, ActionRow::File,
        &MainWindow::chooseFile},
    {"OPENPAGE", QT_TR_NOOP("以代码页打开(&P)..."), nullptr, QKeySequence::UnknownKey,
        ActionRow::File, &MainWindow::chooseFileAndCodePage},
    {"REOPEN", QT_TR_NOOP("换代码页重新打开(&T)..."), nullptr, QKeySequence::UnknownKey,
        ActionRow::File, &MainWindow::reopenInCodePage},
    {"SAVE", QT_TR_NOOP("保存(&S)"), "save", QKeySequence::Save, ActionRow::File,
        &MainWindow::save},
    {"SAVEAS", QT_TR_NOOP("另存为(&A)..."), nullptr, QKeySequence::SaveAs, ActionRow::File,
        &MainWindow::saveAs, "Ctrl+Shift+S"},
    {"QUIT", QT_TR_NOOP("退出(&Q)"), nullptr, QKeySequence::Quit, ActionRow::File,
        &MainWindow::quit},
    {"UNDO", QT_TR_NOOP("撤销(&U)"), "undo", QKeySequence::Undo, ActionRow::Edit,
        &MainWindow::undo},
    {"REDO", QT_TR_NOOP("重做(&R)"), "redo", QKeySequence::Redo, ActionRow::Edit, &MainWindow::redo,
        "Ctrl+Y"},
    {"ZOOM", QT_TR_NOOP("缩放到范围(&E)"), "zoom-extents", QKeySequence::UnknownKey,
        ActionRow::View, &MainWindow::zoomToExtents},
    {"BACKGROUND", QT_TR_NOOP("白底(&B)"), "background", QKeySequence::UnknownKey, ActionRow::View,
        &MainWindow::toggleBackground},
    {"LWDISPLAY", QT_TR_NOOP("显示线宽(&W)"), nullptr, QKeySequence::UnknownKey, ActionRow::View,
        &MainWindow::toggleLineweights},
    {"HELP", QT_TR_NOOP("手册(&M)"), nullptr, QKeySequence::UnknownKey, ActionRow::Help,
        &MainWindow::help},
    {"ABOUT", QT_TR_NOOP("关于(&A)..."), nullptr, QKeySequence::UnknownKey, ActionRow::Help,
        &MainWindow::about},
};

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mainWindow"));
    setProperty("helpPage", QStringLiteral("workbench"));
    setWindowIcon(QIcon(QStringLiteral(":/workbench/app-64.png")));
    setAcceptDrops(true);
    m_canvas = new Canvas(this);
    m_canvas->setObjectName(QStringLiteral("canvas"));
    m_canvas->setAccessibleName(tr("图形"));
    setCentralWidget(m_canvas);
    m_status = new StatusFields(this);
    setStatusBar(m_status);
    m_recent = new RecentFiles(this);
    m_builder = new SceneBuilder(this);
    m_session = new DrawingSession(this);
    createActions();
    createCommandLine();
    createLayerPanel();
    connectParts();
    m_canvas->setDark(QSettings().value(QLatin1String(kDarkKey), true).toBool());
    new TypedKeys(*this, *m_commandLine, [this] { return isBusy(); });
    updateState();
    windowplace::restore(*this);
    m_commandLine->takeFocus();
}

void MainWindow::createActions()
{
    QMenu* const menus[] = {menuBar()->addMenu(tr("文件(&F)")), menuBar()->addMenu(tr("编辑(&E)")),
        menuBar()->addMenu(tr("视图(&V)")), menuBar()->addMenu(tr("图层(&L)")),
        menuBar()->addMenu(tr("帮助(&H)"))};
    menus[ActionRow::View]->setObjectName(QStringLiteral("viewMenu"));
    QToolBar* const bar = addToolBar(tr("工具栏"));
    bar->setObjectName(QStringLiteral("toolBar"));

    const auto add = [&](QMenu* menu, const char* name, const QString& title, const char* icon) {
        auto* made = new QAction(title, this);
        made->setObjectName(QLatin1String(name));
        // The name to type follows the title, whose mnemonic only makes sense in a menu.
        made->setToolTip(
            QStringLiteral("%1 (%2)").arg(withoutMnemonic(title), QLatin1String(name)));
        menu->addAction(made);
        if (icon) {
            made->setIcon(QIcon(QStringLiteral(":/workbench/%1.png").arg(QLatin1String(icon))));
            bar->addAction(made);
        }
        return made;
    };
    for (const ActionRow& row : kActions) {
        QAction* const made = add(menus[row.menu], row.name, tr(row.title), row.icon);
        QList<QKeySequence> keys = QKeySequence::keyBindings(row.key);
        if (row.otherKey && !keys.contains(QKeySequence(QLatin1String(row.otherKey))))
            keys.append(QKeySequence(QLatin1String(row.otherKey)));
        made->setShortcuts(keys);
        connect(made, &QAction::triggered, this, row.slot);
        if (row.menu != ActionRow::Help) // Help is about what has the focus.
            connect(made, &QAction::triggered, this, [this] { m_commandLine->takeFocus(); });
    }
    bar->addSeparator();
    auto* const quick = new QMenu(tr("快捷操作(&Q)"), this);
    for (const CommandRow& row : CommandTable()) {
        QAction* const made = add(
            row.icon ? menus[ActionRow::Layers] : quick, row.name, row.displayTitle(), row.icon);
        connect(made, &QAction::triggered, this, [this, &row] { runLayerCommand(row); });
    }
    menus[ActionRow::Layers]->addMenu(quick);
    menus[ActionRow::File]->insertMenu(action("SAVE"), m_recent);
    menus[ActionRow::File]->insertSeparator(action("QUIT"));
    bar->insertSeparator(action("UNDO"));
    bar->insertSeparator(action("ZOOM"));
    action("BACKGROUND")->setCheckable(true);
    action("LWDISPLAY")->setCheckable(true);
    m_status->addSwitch(action("LWDISPLAY"), tr("线宽"));
    auto* const languages = new LanguageMenu(this);
    menus[ActionRow::View]->addMenu(languages);
    connect(languages, &LanguageMenu::said, this,
        [this](const QString& text) { m_commandLine->say(text); });
}

void MainWindow::createCommandLine()
{
    m_commandLine = new CommandLine(this);
    m_commandLine->setAccessibleName(tr("命令行"));
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

void MainWindow::createLayerPanel()
{
    m_panel = new LayerPanel(this);
    m_panel->setProperty("helpPage", QStringLiteral("layer-panel"));
    m_panel->setAccessibleName(tr("图层面板"));
    auto* dock = new QDockWidget(tr("图层"), this);
    dock->setObjectName(QStringLiteral("layerDock"));
    dock->setWidget(m_panel);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    QMenu* const view = menuBar()->findChild<QMenu*>(QStringLiteral("viewMenu"));
    view->addAction(dock->toggleViewAction());
    connect(m_panel, &LayerPanel::said, m_commandLine, &CommandLine::say);
    connect(m_panel, &LayerPanel::editBegan, this, &MainWindow::beginEdit);
    connect(m_panel, &LayerPanel::editEnded, this, &MainWindow::endEdit);
    connect(m_panel, &LayerPanel::refused, this, &MainWindow::reportRefusals);
    connect(m_panel, &LayerPanel::entitiesWanted, this, &MainWindow::showEntities);
    connect(m_panel, &LayerPanel::commandWanted, this,
        [this](const QString& name, const std::vector<drawing::LayerId>& layers) {
            runLayerCommand(*CommandTable().find(name), layers);
        });
}

void MainWindow::showEntities(const std::vector<int>& entities, bool intoView)
{
    m_canvas->setSelection(entities);
    if (m_canvas->selection().empty())
        m_status->showMessage(tr("这些对象现在没有显示出来。"), kNoticeMilliseconds);
    else if (intoView)
        m_canvas->zoomToSelection();
}

void MainWindow::reportRefusals(QStringList sentences)
{
    CommandContext context = commandContext();
    layermarks::report(context, tr("有些更改没有完成："), sentences);
}

void MainWindow::connectParts()
{
    connect(m_recent, &RecentFiles::chosen, this, [this](const QString& path) { openFile(path); });
    connect(m_canvas, &Canvas::cursorMoved, m_status, &StatusFields::showCursor);
    connect(m_canvas, &Canvas::selectionChanged, m_status, &StatusFields::showSelection);
    connect(m_canvas, &Canvas::viewportEntered, this, &MainWindow::enterViewport);
    connect(m_canvas, &Canvas::viewportMoved, this, &MainWindow::keepViewportView);
    connect(m_canvas, &Canvas::viewportLeft, m_status, [this] { m_status->showViewport(false); });
    connect(m_status, &StatusFields::spaceChosen, this, &MainWindow::showSpace);
    connect(m_commandLine, &CommandLine::entered, this, &MainWindow::runCommand);
    connect(m_commandLine, &CommandLine::enteredNothing, this, &MainWindow::enterNothing);
    connect(m_commandLine, &CommandLine::gaveUp, this, [this] { sendToCanvas(Qt::Key_Escape); });

    connect(m_builder, &SceneBuilder::sceneChanged, this, &MainWindow::showScene);
    connect(m_builder, &SceneBuilder::finished, this, &MainWindow::endBuilding);
    connect(m_session, &DrawingSession::said, m_commandLine, &CommandLine::say);
    connect(m_session, &DrawingSession::opened, this, &MainWindow::showDrawing);
    connect(m_session, &DrawingSession::saved, m_recent, &RecentFiles::add);
    connect(m_session, &DrawingSession::saved, this, &MainWindow::updateState);
    connect(m_session, &DrawingSession::failed, m_recent, &RecentFiles::removeMissing);

    FileWorker* const worker = m_session->worker();
    connect(m_status, &StatusFields::cancelClicked, worker, &FileWorker::cancel);
    connect(worker, &FileWorker::started, m_status, &StatusFields::showWork);
    connect(worker, &FileWorker::started, this, &MainWindow::updateState);
    connect(worker, &FileWorker::progress, m_status, &StatusFields::showProgress);
    connect(worker, &FileWorker::finished, m_status, &StatusFields::hideWork);
    connect(worker, &FileWorker::finished, this, &MainWindow::updateState);
}

drawing::Drawing* MainWindow::drawing() const
{
    return m_session->drawing();
}

bool MainWindow::isBusy() const
{
    return m_commandRunning || m_session->isBusy();
}

void MainWindow::openFile(const QString& path, const drawing::OpenOptions& options)
{
    m_canvas->settleViewport();
    if (!isBusy())
        m_session->open(path, options);
}

void MainWindow::setFile(std::shared_ptr<drawing::Drawing> drawing)
{
    m_session->adopt(std::move(drawing));
}

void MainWindow::showDrawing()
{
    connect(drawing(), &drawing::Drawing::layersChanged, this, &MainWindow::followLayers);
    connect(drawing(), &drawing::Drawing::modifiedChanged, this, &MainWindow::updateState);
    m_panel->setDrawing(drawing());
    drawing()->setBreak([this] { rest(); });
    {
        const QSignalBlocker quiet(m_canvas); // A viewport of the last drawing is gone with it.
        m_canvas->leaveViewport();
    }
    m_status->showViewport(false);
    m_canvas->clearSelection();
    m_canvas->setShowsLineweights(
        drawing::readPictureSwitches(drawing()->geometrySource().file.headerTags())
            .showsLineweights);
    m_shownSpace = shownSpace();
    showLayers();
    m_isNewScene = true;
    m_builder->setDrawing(drawing());
    m_canvas->zoomToExtents();
    m_recent->add(drawing()->path());
    emit fileOpened();
}

int MainWindow::shownSpace() const
{
    return drawing()->isModelSpace() ? StatusFields::kModelSpace : drawing()->shownLayout();
}

void MainWindow::showSpace(int layout)
{
    if (!drawing() || isBusy())
        return;
    const bool toModel = layout == StatusFields::kModelSpace;
    drawing::DrawingStep step(*drawing(), toModel ? tr("切换到模型空间") : tr("切换到布局"));
    if (toModel ? drawing()->setModelSpace(true) : drawing()->showLayout(layout))
        step.commit();
    m_status->showLayers(drawing()); // Needed even if the current space was chosen again.
    m_canvas->zoomToExtents();
}

/// From now on, commands that need a current viewport change layers in this one.
void MainWindow::enterViewport(int entity)
{
    if (isBusy())
        return m_canvas->leaveViewport();
    drawing()->setCurrentViewport(entity);
    m_status->showViewport(true);
}

void MainWindow::keepViewportView(const drawing::SheetViewport& viewport)
{
    if (isBusy())
        return;
    drawing::DrawingStep step(*drawing(), tr("移动视口中的视图"));
    if (drawing()->setViewportView(viewport.entity, viewport.view))
        step.commit();
}

/// The panel follows as well. With very many layers each of the two takes a moment, between which
/// windows are painted.
void MainWindow::followLayers()
{
    const auto breathe = [this] {
        // Without the note that rest() gives: the command may have said what it did already.
        if (m_commandRunning && isRestDue())
            paintWindows();
    };
    breathe();
    showLayers();
    breathe();
}

void MainWindow::showLayers()
{
    // Undo and redo may also switch the space.
    if (m_shownSpace != shownSpace()) {
        m_shownSpace = shownSpace();
        m_canvas->leaveViewport();
        m_canvas->clearSelection();
        m_isNewScene = true;
        m_builder->restart();
    }
    // A linetype may have been loaded meanwhile.
    m_canvas->setLinetypes(drawing::linetypePatterns(*drawing()));
    showSheet(drawing()->sheet());
    const LayerIsolation& isolation = m_panel->memory()->isolation;
    if (isolation.fades())
        m_canvas->setLayers(isolation.shown(drawing()->layers()));
    else
        m_canvas->setLayers(drawing()->layers());
    m_status->showLayers(drawing());
    updateState();
}

void MainWindow::showSheet(std::optional<drawing::Sheet> sheet)
{
    m_canvas->setSheet(sheet ? std::make_shared<const drawing::Sheet>(std::move(*sheet)) : nullptr);
}

void MainWindow::showScene(const Scene& scene)
{
    m_canvas->setScene(scene);
    if (m_isNewScene && m_canvas->isFitted())
        m_canvas->zoomToExtents();
}

void MainWindow::endBuilding(bool isTruncated)
{
    if (std::exchange(m_isNewScene, false) && isTruncated)
        m_commandLine->say(tr("图形内容过多，只显示其中一部分。"));
}

bool MainWindow::isPictureWhole() const
{
    return !m_builder->isBuilding() && m_canvas->isPainted();
}

void MainWindow::waitForPicture()
{
    QCoreApplication::processEvents();
    while (!isPictureWhole())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
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
        m_commandLine->setLastCommand(QLatin1String(row.name));
        if (action(row.name)->isEnabled())
            action(row.name)->trigger();
        else
            m_commandLine->say(tr("命令“%1”现在不可用。").arg(QLatin1String(row.name)));
        return;
    }
    m_commandLine->say(tr("未知命令“%1”。").arg(wanted));
}

void MainWindow::runLayerCommand(const CommandRow& row, const std::vector<drawing::LayerId>& layers)
{
    if (!drawing() || isBusy()) {
        m_commandLine->say(drawing() ? tr("请等待当前操作结束。") : tr("请先打开一个图形。"));
        return;
    }
    m_commandLine->setLastCommand(QLatin1String(row.name));
    CommandContext context = commandContext();
    context.layers = layers;
    beginEdit();
    try {
        drawing::DrawingStep step(*drawing(), row.displayTitle());
        context.step = &step;
        const host::CommandScope running;
        row.create()->run(context);
        step.commit();
    } catch (const std::exception& error) {
        messages::showCommandFailure(this, row.displayTitle(), QString::fromUtf8(error.what()));
    }
    endEdit();
    endShowingOnly(context.selection);
    m_commandLine->takeFocus();
}

/// ENTER ends a pick, and repeats the last command otherwise.
void MainWindow::enterNothing()
{
    if (m_commandRunning)
        sendToCanvas(Qt::Key_Return);
    else
        m_commandLine->repeat();
}

void MainWindow::sendToCanvas(Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(m_canvas, &press);
}

/// Nothing else can be done to the drawing until `endEdit`.
void MainWindow::beginEdit()
{
    m_canvas->settleViewport();
    m_commandRunning = true;
    updateState();
    m_sinceRest.start();
    m_rests = 0;
}

void MainWindow::endEdit()
{
    m_commandRunning = false;
    if (m_rests >= kRestsToWait)
        m_status->hideWork();
    updateState();
}

/// Lets windows be painted during a long edit, and says that it is one.
void MainWindow::rest()
{
    if (!isRestDue())
        return;
    if (++m_rests == kRestsToWait)
        m_status->showWait(tr("正在更改图形..."));
    paintWindows();
}

bool MainWindow::isRestDue() const
{
    constexpr qint64 kRestMilliseconds = 20;
    return m_sinceRest.elapsed() >= kRestMilliseconds;
}

void MainWindow::paintWindows()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sinceRest.start();
}

void MainWindow::showOnly(const std::vector<drawing::LayerId>& ids)
{
    const std::set<drawing::LayerId> shown(ids.begin(), ids.end());
    std::vector<drawing::Layer> layers = drawing()->layers();
    for (drawing::Layer& layer : layers) {
        layer.properties.off = shown.count(layer.id) == 0;
        layer.properties.frozen = false;
    }
    m_showsOnly = true;
    m_canvas->setLayers(layers);
}

/// Entities that were hidden meanwhile have lost their selection, which is restored here.
void MainWindow::endShowingOnly(const std::vector<int>& selection)
{
    if (!std::exchange(m_showsOnly, false))
        return;
    showLayers();
    m_canvas->setSelection(selection);
}

std::vector<int> MainWindow::pick()
{
    const QString prompt = tr("选择对象，按 ENTER 键或单击鼠标右键结束，按 ESC 键取消。");
    m_commandLine->say(prompt);
    m_status->showMessage(prompt);
    std::vector<int> picked = pickEntities(*m_canvas);
    m_status->clearMessage();
    return picked;
}

/// Nothing is hidden meanwhile; what was is faded.
std::vector<int> MainWindow::pickAnything()
{
    std::optional<drawing::Sheet> sheet = drawing()->sheet();
    const auto layers = withHiddenFaded(drawing()->layers(), sheet ? &*sheet : nullptr);
    showSheet(std::move(sheet));
    m_canvas->setLayers(layers);
    std::vector<int> picked = pick();
    showLayers();
    return picked;
}

CommandContext MainWindow::commandContext()
{
    const auto refresh = [this] {
        showLayers();
        m_canvas->repaint();
    };
    return {*drawing(), this, [this](const QString& text) { m_commandLine->say(text); }, refresh,
        m_canvas->selection(),
        [this](const QString& text) { m_status->showMessage(text, kNoticeMilliseconds); },
        [this] { return pick(); },
        [this](const std::vector<drawing::LayerId>& layers) { showOnly(layers); }, nullptr,
        m_panel->memory(), {}, [this] { return pickAnything(); }};
}

QString MainWindow::askForFile()
{
    const QString folder = drawing() ? QFileInfo(drawing()->path()).path() : QString();
    return QFileDialog::getOpenFileName(this, tr("打开图形"), folder, fileFilter());
}

void MainWindow::chooseFile()
{
    const QString path = askForFile();
    if (!path.isEmpty())
        openFile(path);
}

void MainWindow::chooseFileAndCodePage()
{
    const QString path = askForFile();
    if (path.isEmpty())
        return;
    if (const auto codePage = chooseCodePage(this, nullptr))
        openFile(path, {*codePage});
}

void MainWindow::reopenInCodePage()
{
    if (const auto codePage = chooseCodePage(this, &drawing()->codec()))
        openFile(drawing()->path(), {*codePage});
}

void MainWindow::save()
{
    m_canvas->settleViewport();
    m_session->save(drawing()->path());
}

void MainWindow::saveAs()
{
    // The host's dialog gives names without a suffix theirs.
    const vnsi::VnJsonPtr keys = vnsi::ElementValue::createObject(4);
    keys->SetDataSW("title", vnsi::vnutQStringToOdString(tr("图形另存为")));
    keys->SetDataSW("filter", vnsi::vnutQStringToOdString(fileFilter()));
    // A relative path would be taken for a mere name in whatever folder the dialog begins.
    const QString present = QFileInfo(drawing()->path()).absoluteFilePath();
    keys->SetDataSW("dir", vnsi::vnutQStringToOdString(present));
    keys->SetDataB("Open", false);
    const vnsi::VnJsonPtr answer =
        vnsi::vnuiShowModelDialogEx(L"Dialog/Common", L"FileDialogBox", keys, {}, this);
    m_canvas->settleViewport();
    if (answer->GetDataI("result") == 1)
        m_session->save(vnsi::vnutOdStringToQString(answer->GetDataSW("filePath")));
}

void MainWindow::quit()
{
    close();
}

void MainWindow::undo()
{
    beginEdit();
    drawing()->undo();
    endEdit();
}

void MainWindow::redo()
{
    beginEdit();
    drawing()->redo();
    endEdit();
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

void MainWindow::toggleLineweights()
{
    m_canvas->setShowsLineweights(!m_canvas->showsLineweights());
    updateState();
}

/// F1 does the same, but opens the page about the focused part of the window.
void MainWindow::help()
{
    host::hostFrontEnd().help(0);
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
    const bool idle = drawing() && !isBusy();
    const bool canUndo = idle && drawing()->canUndo();
    const bool canRedo = idle && drawing()->canRedo();
    action("OPEN")->setEnabled(!isBusy());
    action("OPENPAGE")->setEnabled(!isBusy());
    action("REOPEN")->setEnabled(idle);
    m_recent->setEnabled(!isBusy());
    action("SAVE")->setEnabled(idle && drawing()->isModified());
    action("SAVEAS")->setEnabled(idle);
    action("UNDO")->setEnabled(canUndo);
    action("UNDO")->setText(
        canUndo ? tr("撤销 %1(&U)").arg(drawing()->undoName()) : tr("撤销(&U)"));
    action("REDO")->setEnabled(canRedo);
    action("REDO")->setText(
        canRedo ? tr("重做 %1(&R)").arg(drawing()->redoName()) : tr("重做(&R)"));
    action("ZOOM")->setEnabled(drawing() != nullptr);
    action("BACKGROUND")->setChecked(!m_canvas->isDark());
    action("LWDISPLAY")->setChecked(m_canvas->showsLineweights());
    for (const CommandRow& row : CommandTable())
        action(row.name)->setEnabled(idle);
    m_panel->setBusy(!idle);
    if (m_session->isBusy())
        return; // The saving thread uses the drawing alone; this runs again when it is done.
    QString file = drawing() ? QFileInfo(drawing()->path()).fileName() : tr("无图形");
    if (drawing() && drawing()->isIncomplete())
        file = tr("%1（不完整）").arg(file);
    setWindowTitle(tr("图层工作台 - %1[*]").arg(file));
    setWindowModified(drawing() && drawing()->isModified());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_canvas->settleViewport();
    event->setAccepted(!m_commandRunning && m_session->confirmClose());
    if (event->isAccepted())
        windowplace::keep(*this);
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
