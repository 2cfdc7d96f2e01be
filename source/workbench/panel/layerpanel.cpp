#include "layerpanel.h"

#include "commandtable.h"
#include "filterpane.h"
#include "keptsearches.h"
#include "layeracts.h"
#include "layerclipboard.h"
#include "layercolordialog.h"
#include "layeruses.h"
#include "layerview.h"
#include "useslist.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

using drawing::Drawing;
using drawing::LayerId;

namespace {

constexpr int kFilterWidth = 130;
constexpr int kTableWidth = 420;
const char kSplitterKey[] = "panel/splitter";
const char kIsolateByLockKey[] = "panel/isolateByLock";

/// The names of the commands in the menu of the table; null for a separator.
constexpr const char* kMenuCommands[] = {"LAYMCUR", nullptr, "LAYISO", "LAYUNISO", nullptr,
    "LAYOFF", "LAYON", "LAYFRZ", "LAYTHW", "LAYLCK", "LAYULK", nullptr, "LAYERP"};

} // namespace

LayerPanel::LayerPanel(QWidget* parent)
    : QWidget(parent),
      m_editor(new LayerEditor(this)),
      m_model(new LayerModel(this)),
      m_view(new LayerView(m_model, this)),
      m_filters(new FilterPane(m_editor, this)),
      m_splitter(new QSplitter(this))
{
    setObjectName(QStringLiteral("layerPanel"));
    m_counts = new QLabel(this);
    m_counts->setObjectName(QStringLiteral("layerPanelCounts"));
    m_counts->setTextFormat(Qt::PlainText);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(3);
    layout->addWidget(makeSearchLine());
    m_splitter->addWidget(m_filters);
    m_splitter->addWidget(m_view);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({kFilterWidth, kTableWidth});
    m_splitter->restoreState(QSettings().value(QLatin1String(kSplitterKey)).toByteArray());
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_counts);

    connectParts();
    m_view->loadState();
    showCounts();
}

LayerPanel::~LayerPanel()
{
    m_view->saveState();
    QSettings().setValue(QLatin1String(kSplitterKey), m_splitter->saveState());
}

QWidget* LayerPanel::makeSearchLine()
{
    auto* const line = new QWidget(this);
    m_search = new QLineEdit(line);
    m_search->setObjectName(QStringLiteral("layerSearch"));
    m_search->setAccessibleName(tr("搜索图层"));
    m_search->setPlaceholderText(tr("搜索：文字、*?通配符或 /正则/"));
    m_search->setClearButtonEnabled(true);
    m_kept = new KeptSearches(line);
    auto* const layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search);
    layout->addWidget(m_kept);
    return line;
}

void LayerPanel::connectParts()
{
    connect(m_search, &QLineEdit::textChanged, this, &LayerPanel::search);
    connect(m_search, &QLineEdit::textChanged, m_kept, &KeptSearches::setTyped);
    connect(m_search, &QLineEdit::textChanged, m_filters, &FilterPane::setTyped);
    connect(m_filters, &FilterPane::chosen, m_model, &LayerModel::setFilter);
    connect(m_model, &LayerModel::drawingChanged, m_filters, &FilterPane::follow);
    connect(m_view, &QWidget::customContextMenuRequested, this, &LayerPanel::showMenu);
    connect(m_view, &LayerView::removalWanted, this, &LayerPanel::purge);
    connect(m_kept, &KeptSearches::chosen, m_search, &QLineEdit::setText);
    connect(m_model, &LayerModel::settled, this, &LayerPanel::showCounts);
    connect(m_model, &LayerModel::edited, this, &LayerPanel::setText);
    connect(m_view, &LayerView::layersSelected, this, &LayerPanel::showCounts);
    connect(m_view, &LayerView::toggled, this, &LayerPanel::toggle);
    connect(m_view, &LayerView::colorWanted, this, &LayerPanel::chooseColor);
    connect(m_view, &LayerView::currentWanted, this, &LayerPanel::makeCurrent);
    connect(m_view, &LayerView::copyWanted, this, &LayerPanel::copy);
    connect(m_view, &LayerView::pasteWanted, this, &LayerPanel::paste);
    connect(m_editor, &LayerEditor::began, this, &LayerPanel::editBegan);
    connect(m_editor, &LayerEditor::ended, this, &LayerPanel::editEnded);
    connect(m_editor, &LayerEditor::refused, this, &LayerPanel::refused);
    connect(m_editor, &LayerEditor::said, this, &LayerPanel::said);
}

void LayerPanel::setDrawing(Drawing* drawing)
{
    m_editor->setDrawing(drawing);
    m_memory.history.setDrawing(drawing);
    m_memory.isolation.forget();
    m_model->setDrawing(drawing);
}

void LayerPanel::setBusy(bool busy)
{
    m_editor->setBusy(busy);
}

void LayerPanel::search(const QString& typed)
{
    const LayerSearch search(typed);
    m_fault = search.fault();
    m_search->setToolTip(m_fault);
    if (m_fault.isEmpty())
        m_model->setSearch(search.test());
    showCounts();
}

void LayerPanel::showCounts()
{
    const int selected = static_cast<int>(m_view->selectedLayers().size());
    QString text = tr("显示 %1 / %2 个图层").arg(m_model->rowCount()).arg(m_model->layers().size());
    if (selected > 1)
        text += tr("，已选择 %1 个").arg(selected);
    m_counts->setText(m_fault.isEmpty() ? text : m_fault);
}

/// An action on a layer applies to all selected layers if that layer is one of them.
LayerPanel::Layers LayerPanel::targets(LayerId layer) const
{
    Layers selected = m_view->selectedLayers();
    const bool isSelected = std::find(selected.begin(), selected.end(), layer) != selected.end();
    return isSelected ? selected : Layers{layer};
}

void LayerPanel::setText(LayerId layer, int column, const QString& text)
{
    const LayerColumn& edited = LayerColumns::at(column);
    const Layers layers = column == LayerColumns::Name ? Layers{layer} : targets(layer);
    m_editor->run(column == LayerColumns::Name ? tr("重命名图层") : layeracts::stepName(edited),
        [&](Drawing& drawing) { return layeracts::setText(drawing, layers, edited, text); });
}

/// Gives all of them the opposite of the clicked layer's value.
void LayerPanel::toggle(LayerId layer, int column)
{
    const LayerColumn& flag = LayerColumns::at(column);
    const int at = m_model->layers().find(layer);
    if (at < 0)
        return;
    const bool value = flag.number({m_model->layers(), at}) == 0;
    m_editor->run(layeracts::flagStepName(flag, value), [&](Drawing& drawing) {
        return layeracts::setText(drawing, targets(layer), flag, flag.word(value));
    });
}

void LayerPanel::chooseColor(LayerId layer, int column)
{
    const LayerColumn& color = LayerColumns::at(column);
    const int at = m_model->layers().find(layer);
    if (at < 0)
        return;
    const drawing::LayerProperties shown =
        color.isOfViewport() ? m_model->layers().inViewport(at) : m_model->layers()[at].properties;
    if (const auto chosen = layercolordialog::choose(shown, window()))
        setText(layer, column, *chosen);
}

void LayerPanel::makeCurrent(LayerId layer)
{
    m_editor->run(tr("置为当前图层"), [&](Drawing& drawing) -> QStringList {
        const auto done = drawing.setCurrentLayer(layer);
        return done ? QStringList() : QStringList(done.error().text);
    });
}

void LayerPanel::copy() const
{
    std::vector<int> places;
    for (const LayerId layer : m_view->selectedLayers())
        places.push_back(m_model->layers().find(layer));
    if (!places.empty())
        QGuiApplication::clipboard()->setText(
            layerclipboard::copied(m_model->layers(), places, m_view->visibleColumns()));
}

void LayerPanel::paste()
{
    const layerclipboard::Table table =
        layerclipboard::parsed(QGuiApplication::clipboard()->text());
    if (table.isEmpty())
        return;
    m_editor->run(tr("粘贴图层"), [&](Drawing& drawing) {
        return layerclipboard::paste(drawing, table, m_view->selectedLayers(),
            m_view->visibleColumns(), m_view->currentIndex().column());
    });
}

void LayerPanel::showMenu(const QPoint& at)
{
    const Layers layers = m_view->selectedLayers();
    QMenu menu;
    const auto add = [&menu](const QString& title, bool isEnabled) {
        QAction* const action = menu.addAction(title);
        action->setEnabled(isEnabled);
        return action;
    };
    for (const char* const name : kMenuCommands) {
        const CommandRow* const row = name ? CommandTable().find(QLatin1String(name)) : nullptr;
        if (!row) {
            menu.addSeparator();
            continue;
        }
        connect(add(row->displayTitle(), !layers.empty()), &QAction::triggered, this,
            [this, name, layers] { emit commandWanted(QLatin1String(name), layers); });
    }
    QAction* const fades = add(tr("隔离时锁定并淡显其他图层"), true);
    fades->setCheckable(true);
    fades->setChecked(QSettings().value(QLatin1String(kIsolateByLockKey)).toBool());
    connect(fades, &QAction::toggled, this,
        [](bool isOn) { QSettings().setValue(QLatin1String(kIsolateByLockKey), isOn); });
    menu.addSeparator();
    connect(
        add(tr("新建图层"), m_model->drawing()), &QAction::triggered, this, &LayerPanel::addLayer);
    connect(add(tr("选择图层上的对象"), !layers.empty()), &QAction::triggered, this,
        &LayerPanel::selectOnLayers);
    connect(add(tr("图层的使用情况..."), !layers.empty()), &QAction::triggered, this,
        &LayerPanel::showUses);
    connect(add(tr("清理图层"), !layers.empty()), &QAction::triggered, this, &LayerPanel::purge);
    connect(add(tr("从组过滤器中移除"), !layers.empty() && m_filters->isGroupChosen()),
        &QAction::triggered, this, [this, layers] { m_filters->removeFromGroup(layers); });
    menu.exec(m_view->viewport()->mapToGlobal(at));
}

/// Adds a layer and lets the user edit its name at once.
void LayerPanel::addLayer()
{
    LayerId added = LayerId::None;
    m_editor->run(tr("新建图层"), [&](Drawing& drawing) {
        QStringList refusals;
        const LayerId model = m_view->layerInHand();
        added = layeracts::add(
            drawing, model == LayerId::None ? drawing.currentLayer() : model, refusals);
        return refusals;
    });
    if (added == LayerId::None)
        return;
    m_view->select({added});
    m_view->editName();
}

void LayerPanel::selectOnLayers()
{
    const Drawing* const drawing = m_model->drawing();
    const Layers layers = m_view->selectedLayers();
    const std::set<LayerId> chosen(layers.begin(), layers.end());
    std::vector<int> entities;
    for (size_t i = 0; i < drawing->entities().size(); ++i) {
        const drawing::Entity& entity = drawing->entities()[i];
        if (!entity.removed && !entity.subEntity && chosen.count(entity.layer) > 0 &&
            drawing->isShown(entity))
            entities.push_back(static_cast<int>(i));
    }
    emit entitiesWanted(entities, false);
}

void LayerPanel::showUses()
{
    const Layers layers = m_view->selectedLayers();
    const QString title = layers.size() == 1
                              ? tr("图层“%1”的使用情况")
                                    .arg(m_model->drawing()->layer(layers.front())->properties.name)
                              : tr("%1 个图层的使用情况").arg(layers.size());
    UsesList* const list =
        UsesList::ofUses(layeruses::find(*m_model->drawing(), layers), title, window());
    // Entity indices are meaningless in another drawing.
    connect(m_model->drawing(), &QObject::destroyed, list, &QWidget::close);
    connect(list, &UsesList::chosen, this, [this](const LayerUse& use) {
        if (m_model->drawing())
            emit entitiesWanted(layeruses::shownBy(*m_model->drawing(), use), true);
    });
    list->show();
}

/// Deletes those of the selected layers that nothing needs, and tells why the others stay.
void LayerPanel::purge()
{
    const Layers layers = m_view->selectedLayers();
    std::vector<QStringList> stay;
    m_editor->run(tr("清理图层"), [&](Drawing& drawing) {
        const std::vector<QStringList> reasons = layeruses::reasonsToStay(drawing, layers);
        QStringList refusals;
        for (size_t i = 0; i < layers.size(); ++i) {
            if (!reasons[i].isEmpty())
                stay.push_back(
                    {drawing.layer(layers[i])->properties.name, reasons[i].join(tr("；"))});
            else if (const auto done = drawing.removeLayer(layers[i]); !done)
                refusals += done.error().text;
        }
        return refusals;
    });
    if (layers.size() > stay.size())
        emit said(tr("已清理 %1 个图层。").arg(layers.size() - stay.size()));
    if (!stay.empty())
        UsesList::ofReasons(stay, tr("%1 个图层未清理").arg(stay.size()), window())->show();
}
