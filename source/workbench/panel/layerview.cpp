#include "layerview.h"

#include "celldelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QSettings>

#include <algorithm>

using drawing::LayerId;

namespace {

const char kHeaderKey[] = "panel/header";
const char kTitlesKey[] = "panel/headerTitles";
const char kHiddenKey[] = "panel/hiddenColumns";
constexpr int kRowSpace = 6;
constexpr int kHeaderSpace = 12;

/// A selection of these rows with as few ranges as possible.
QItemSelection selectionOf(const std::vector<int>& rows, const QAbstractItemModel& model)
{
    QItemSelection selection;
    for (size_t i = 0; i < rows.size();) {
        size_t end = i + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        selection.append(QItemSelectionRange(
            model.index(rows[i], 0), model.index(rows[end - 1], model.columnCount() - 1)));
        i = end;
    }
    return selection;
}

/// The titles of all columns, as shown in the present language.
QStringList titles()
{
    QStringList titles;
    for (int column = 0; column < LayerColumns::count(); ++column)
        titles += LayerColumns::at(column).displayTitle();
    return titles;
}

} // namespace

LayerView::LayerView(LayerModel* model, QWidget* parent) : QTableView(parent), m_model(model)
{
    setObjectName(QStringLiteral("layerPanelTable"));
    setAccessibleName(tr("图层"));
    setModel(model);
    setItemDelegate(new CellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowSpace);
    QHeaderView* const head = horizontalHeader();
    head->setSectionsMovable(true);
    head->setHighlightSections(false);
    head->setMinimumSectionSize(24);
    head->setContextMenuPolicy(Qt::CustomContextMenu);
    for (int column = 0; column < LayerColumns::count(); ++column)
        widen(column, LayerColumns::at(column).width);
    head->setSortIndicator(model->sortColumn(), model->sortDirection());
    setSortingEnabled(true);
    applyHidden();

    connect(head, &QHeaderView::customContextMenuRequested, this, &LayerView::showColumnMenu);
    connect(model, &LayerModel::rowsAboutToChange, this, &LayerView::keepSelection);
    connect(model, &LayerModel::rowsChanged, this, &LayerView::restoreSelection);
    connect(model, &LayerModel::drawingChanged, this, &LayerView::applyHidden);
}

std::vector<LayerId> LayerView::selectedLayers() const
{
    std::vector<LayerId> layers;
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        ranges.emplace_back(range.top(), range.bottom());
    std::sort(ranges.begin(), ranges.end());
    int next = 0;
    for (const auto& [top, bottom] : ranges) {
        for (next = std::max(next, top); next <= bottom; ++next)
            layers.push_back(m_model->idAt(next));
    }
    return layers;
}

void LayerView::select(const std::vector<LayerId>& layers)
{
    const std::vector<int> rows = m_model->rowsOf(layers);
    selectionModel()->select(selectionOf(rows, *m_model), QItemSelectionModel::ClearAndSelect);
    if (rows.empty())
        return;
    const QModelIndex first = m_model->index(rows.front(), LayerColumns::Name);
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    scrollTo(first);
}

LayerId LayerView::layerInHand() const
{
    return currentIndex().isValid() ? m_model->idAt(currentIndex().row()) : LayerId::None;
}

std::vector<int> LayerView::visibleColumns() const
{
    std::vector<int> columns;
    for (int at = 0; at < horizontalHeader()->count(); ++at) {
        const int column = horizontalHeader()->logicalIndex(at);
        if (!isColumnHidden(column))
            columns.push_back(column);
    }
    return columns;
}

void LayerView::editName()
{
    QTableView::edit(currentIndex().siblingAtColumn(LayerColumns::Name));
}

void LayerView::keepSelection()
{
    if (!m_kept.empty() || m_keptInHand != LayerId::None)
        return; // The rows change again before the first change is complete.
    m_kept = selectedLayers();
    m_keptInHand = layerInHand();
    m_keptColumn = currentIndex().column();
}

void LayerView::restoreSelection()
{
    const std::vector<int> rows = m_model->rowsOf(m_kept);
    selectionModel()->select(selectionOf(rows, *m_model), QItemSelectionModel::ClearAndSelect);
    const std::vector<int> inHand = m_model->rowsOf({m_keptInHand});
    m_kept.clear();
    m_keptInHand = LayerId::None;
    if (!inHand.empty()) {
        const QModelIndex index = m_model->index(inHand.front(), std::max(0, m_keptColumn));
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        scrollTo(m_model->index(inHand.front(), LayerColumns::Name));
    }
}

void LayerView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    emit layersSelected();
}

bool LayerView::isFlag(const QModelIndex& index) const
{
    return index.isValid() && LayerColumns::at(index.column()).isFlag();
}

void LayerView::toggleInHand()
{
    const QModelIndex index = currentIndex();
    if (index.isValid())
        emit toggled(layerInHand(), isFlag(index) ? index.column() : int(LayerColumns::On));
}

void LayerView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        emit copyWanted();
    else if (event->matches(QKeySequence::Paste))
        emit pasteWanted();
    else if (event->key() == Qt::Key_F2 && currentIndex().isValid())
        editName();
    else if (event->key() == Qt::Key_Space && state() != EditingState)
        toggleInHand();
    else if (event->key() == Qt::Key_Delete && state() != EditingState)
        emit removalWanted();
    else
        return QTableView::keyPressEvent(event);
    event->accept();
}

/// Whether an action in this cell applies to all selected layers. Its own layer must be selected.
bool LayerView::isForAll(const QModelIndex& index) const
{
    return index.isValid() && LayerColumns::at(index.column()).set &&
           index.column() != LayerColumns::Name && selectionModel()->isSelected(index);
}

/// Pressing the mouse in such a cell keeps the selection.
void LayerView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    const bool isPlain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    m_pressed = isPlain && isFlag(index) ? index : QModelIndex();
    if (isPlain && isForAll(index)) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        return;
    }
    QTableView::mousePressEvent(event);
}

void LayerView::mouseReleaseEvent(QMouseEvent* event)
{
    const QModelIndex index = m_pressed;
    m_pressed = QModelIndex();
    if (index.isValid() && index == indexAt(event->pos())) {
        QTableView::mouseReleaseEvent(event);
        emit toggled(m_model->idAt(index.row()), index.column());
        return;
    }
    QTableView::mouseReleaseEvent(event);
}

void LayerView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (isFlag(index))
        return mousePressEvent(event); // A double click on a flag counts as two clicks.
    if (index.isValid() && LayerColumns::at(index.column()).kind == LayerColumn::Mark)
        return emit currentWanted(m_model->idAt(index.row()));
    if (isForAll(index))
        edit(index, DoubleClicked, event);
    else
        QTableView::mouseDoubleClickEvent(event);
}

bool LayerView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isColor =
        index.isValid() && LayerColumns::at(index.column()).kind == LayerColumn::Color;
    if (!isColor || trigger != DoubleClicked)
        return QTableView::edit(index, trigger, event);
    if (index.flags() & Qt::ItemIsEditable)
        emit colorWanted(m_model->idAt(index.row()), index.column());
    return true;
}

void LayerView::showColumnMenu(const QPoint& at)
{
    QMenu menu;
    for (int column = 0; column < LayerColumns::count(); ++column) {
        const LayerColumn& shown = LayerColumns::at(column);
        const QString key = QLatin1String(shown.key);
        QAction* const action = menu.addAction(shown.displayTitle());
        action->setCheckable(true);
        action->setChecked(!m_hidden.contains(key));
        action->setEnabled(column != LayerColumns::Name);
        connect(action, &QAction::toggled, this, [this, key](bool isShown) {
            m_hidden.removeAll(key);
            if (!isShown)
                m_hidden.append(key);
            applyHidden();
        });
    }
    menu.exec(horizontalHeader()->mapToGlobal(at));
}

/// Hides the columns that the user does not want, and the columns of viewports when there is none.
void LayerView::applyHidden()
{
    for (int column = 0; column < LayerColumns::count(); ++column) {
        const LayerColumn& shown = LayerColumns::at(column);
        setColumnHidden(column, m_hidden.contains(QLatin1String(shown.key)) ||
                                    (shown.isOfViewport() && !m_model->layers().hasViewport()));
    }
}

/// Makes a column so wide, and at least as wide as its title.
void LayerView::widen(int column, int width)
{
    const int title = horizontalHeader()->fontMetrics().horizontalAdvance(
        LayerColumns::at(column).displayTitle());
    setColumnWidth(column, std::max(width, title + kHeaderSpace));
}

/// A width that was kept in another language may be too small for the title in this one.
void LayerView::restoreWidths(const QSettings& settings)
{
    horizontalHeader()->restoreState(settings.value(QLatin1String(kHeaderKey)).toByteArray());
    const QStringList kept = settings.value(QLatin1String(kTitlesKey)).toStringList();
    const QStringList shown = titles();
    for (int column = 0; column < shown.size(); ++column) {
        setColumnHidden(column, false); // A hidden column does not tell its width.
        if (kept.value(column) != shown[column])
            widen(column, columnWidth(column));
    }
}

void LayerView::loadState()
{
    const QSettings settings;
    restoreWidths(settings);
    m_hidden = settings.value(QLatin1String(kHiddenKey)).toStringList();
    applyHidden();
    sortByColumn(
        horizontalHeader()->sortIndicatorSection(), horizontalHeader()->sortIndicatorOrder());
}

void LayerView::saveState() const
{
    QSettings settings;
    settings.setValue(QLatin1String(kHeaderKey), horizontalHeader()->saveState());
    settings.setValue(QLatin1String(kTitlesKey), titles());
    settings.setValue(QLatin1String(kHiddenKey), m_hidden);
}
