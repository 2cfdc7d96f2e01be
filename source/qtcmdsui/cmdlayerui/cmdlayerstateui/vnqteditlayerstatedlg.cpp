#include "vnqteditlayerstatedlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "layerclicks.h"
#include "moduletexts.h"
#include "namerule.h"
#include "statetexts.h"
#include "vnstrings.h"

#include <QHeaderView>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>
#include <QVBoxLayout>

namespace vnsi {

namespace {

constexpr LayerColumn kColumns[] = {
    {QT_TRANSLATE_NOOP("cmdlayerui", "名称"), LayerCell::MarkedName, layerkey::kName},
    layercolumn::kOff,
    layercolumn::frozen(QT_TRANSLATE_NOOP("cmdlayerui", "在所有视口中冻结")),
    layercolumn::kLock,
    layercolumn::kColor,
    layercolumn::kLinetype,
    layercolumn::kLineWidth,
    layercolumn::kTransparency,
    layercolumn::kPlotStyle,
    layercolumn::kPrint,
    layercolumn::kVPortFrozen,
};
constexpr int kColumnCount = static_cast<int>(std::size(kColumns));
constexpr int kNameColumn = columnOf(kColumns, layerkey::kName);
constexpr int kColorColumn = columnOf(kColumns, layerkey::kColor);
constexpr int kPlotStyleColumn = columnOf(kColumns, layerkey::kPlotStyle);

constexpr int kButtonWidth = 90;

} // namespace

VnQtEditLayerStateDlg::VnQtEditLayerStateDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setMinimumWidth(645);
}

bool VnQtEditLayerStateDlg::initDialog()
{
    m_newButton = makeIconButton(LayerIcon::NewLayer, "newLayerButton", tr("将图层添加到图层状态"));
    m_deleteButton =
        makeIconButton(LayerIcon::DeleteLayer, "deleteLayerButton", tr("从图层状态中删除图层"));
    m_table = new QTableWidget(this);
    m_table->setObjectName(QStringLiteral("stateLayerTable"));
    m_table->setAccessibleName(tr("图层状态中的图层"));
    setUpTable();

    auto* top = new QHBoxLayout;
    top->addWidget(m_newButton);
    top->addWidget(m_deleteButton);
    top->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_table);
    layout->addLayout(makeBottomRow());
    resize(1060, 460);

    using Self = VnQtEditLayerStateDlg;
    connect(m_table, &QTableWidget::cellClicked, this, &Self::slot_TableCellClicked);
    connect(m_newButton, &QPushButton::clicked, this, &Self::slot_NewLayerButtonClicked);
    connect(m_deleteButton, &QPushButton::clicked, this, &Self::slot_DeleteLayerButtonClicked);
    return true;
}

QPushButton* VnQtEditLayerStateDlg::makeIconButton(
    LayerIcon icon, const char* objectName, const QString& help)
{
    auto* button = new QPushButton(m_cells.icon(icon), QString(), this);
    button->setObjectName(QLatin1String(objectName));
    button->setToolTip(help);
    button->setAccessibleName(help);
    button->setAutoDefault(false);
    return button;
}

QBoxLayout* VnQtEditLayerStateDlg::makeBottomRow()
{
    OkCancelHelp buttons;
    QBoxLayout* row = makeButtonRow(*this, buttons);
    for (QPushButton* button : {buttons.ok, buttons.cancel, buttons.help})
        button->setFixedSize(atLeastItsText({kButtonWidth, button->sizeHint().height()}, *button));
    using Self = VnQtEditLayerStateDlg;
    connect(buttons.ok, &QPushButton::clicked, this, &Self::slot_BtnOkClicked);
    connect(buttons.cancel, &QPushButton::clicked, this, &Self::close);
    connect(buttons.help, &QPushButton::clicked, this, &Self::slot_HelpBtnClicked);
    return row;
}

void VnQtEditLayerStateDlg::setUpTable()
{
    QStringList headers;
    for (const LayerColumn& column : kColumns)
        headers.append(Texts::tr(column.header));
    m_table->setColumnCount(kColumnCount);
    m_table->setHorizontalHeaderLabels(headers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
}

bool VnQtEditLayerStateDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    setWindowTitle(tr("编辑图层状态: %1").arg(layerstates::text(state(), statekey::kEditedName)));
    fill();
    return true;
}

VnJsonPtr VnQtEditLayerStateDlg::state() const
{
    return layerstates::element(data(), kStateEditor);
}

VnJsonPtr VnQtEditLayerStateDlg::list() const
{
    return layerstates::list(state());
}

void VnQtEditLayerStateDlg::fill()
{
    const VnJsonPtr layers = list();
    const int count = hostapi::count(layers);
    m_rows.clear();
    m_rows.reserve(static_cast<std::size_t>(count));
    m_currentRow = -1;
    m_currentLayers.clear();
    for (int i = 0; i < count; ++i) {
        const LayerRecord layer(hostapi::item(layers, i));
        const bool isShown = !layer.flag(statekey::kIsRemoved);
        if (layer.isCurrentOfState()) {
            m_currentLayers.push_back(layer);
            m_currentRow = isShown ? static_cast<int>(m_rows.size()) : m_currentRow;
        }
        if (isShown)
            m_rows.push_back(layer);
    }
    m_cells.fill(*m_table, m_rows, kColumns, kColumnCount);
    m_table->resizeColumnsToContents();
    applyColumnWidths();
}

void VnQtEditLayerStateDlg::applyColumnWidths()
{
    const VnJsonPtr node = state();
    const VnJsonPtr widths = node ? node->GetDataJ(managerkey::kColumnWidths) : VnJsonPtr();
    const int count = std::min(hostapi::count(widths), kColumnCount);
    for (int column = 0; column < count; ++column)
        m_table->setColumnWidth(column, hostapi::intAt(widths, column));
}

/// Whether the row still exists; rows may have been removed while a question was open.
bool VnQtEditLayerStateDlg::isRow(int row) const
{
    return row >= 0 && row < static_cast<int>(m_rows.size());
}

void VnQtEditLayerStateDlg::showCell(int row, int column)
{
    if (!isRow(row))
        return;
    m_cells.refresh(*m_table, row, column, m_rows[static_cast<std::size_t>(row)], kColumns[column]);
}

void VnQtEditLayerStateDlg::slot_TableCellClicked(int row, int column)
{
    if (!isRow(row) || column < 0 || column >= kColumnCount)
        return;
    if (column == kNameColumn) {
        makeCurrent(row);
        return;
    }
    const VnJsonPtr colorQuestion = hostapi::makeObject();
    colorQuestion->SetDataI("backgroundColor", 0);
    if (!recordedits::click(kColumns[column], m_rows[static_cast<std::size_t>(row)],
            row == m_currentRow, colorQuestion, this))
        return;
    showCell(row, column);
    if (column == kColorColumn)
        showCell(row, kPlotStyleColumn);
}

/// Makes a layer the current one. The former current layer may have been removed from the state,
/// but its record still exists.
void VnQtEditLayerStateDlg::makeCurrent(int row)
{
    if (row == m_currentRow)
        return;
    for (LayerRecord& former : m_currentLayers)
        former.setCurrentOfState(false);
    LayerRecord& current = m_rows[static_cast<std::size_t>(row)];
    current.setCurrentOfState(true);
    m_currentLayers = {current};
    showCell(std::exchange(m_currentRow, row), kNameColumn);
    showCell(row, kNameColumn);
}

/// Copies of the records of the drawing's layers that the table does not show.
VnJsonPtr VnQtEditLayerStateDlg::missingLayers() const
{
    QSet<QString> shown;
    for (const LayerRecord& row : m_rows)
        shown.insert(foldedName(vnutOdStringToQString(row.name())));
    VnJsonPtr missing = hostapi::makeArray();
    const VnJsonPtr node = state();
    const VnJsonPtr all = node ? node->GetDataJ(layerkey::kList) : VnJsonPtr();
    for (int i = 0, count = hostapi::count(all); i < count; ++i) {
        const VnJsonPtr layer = hostapi::item(all, i);
        if (!shown.contains(foldedName(vnutOdStringToQString(LayerRecord(layer).name()))))
            hostapi::append(missing, hostapi::copyOf(layer));
    }
    return missing;
}

void VnQtEditLayerStateDlg::slot_NewLayerButtonClicked(bool)
{
    const VnJsonPtr missing = missingLayers();
    if (hostapi::count(missing) == 0) {
        layerstates::ask(tr("图层状态 - 添加图层"),
            tr("所有图层都已包含在此图层状态中。没有可添加的图层。"), {tr("关闭(&C)")}, 0, 0);
        return;
    }
    hostapi::Members(state()).set(statekey::kCandidates, missing);
    const VnJsonPtr answer = hostapi::showDialogEx(
        layerstates::kService, statedialog::kAddLayers, state(), invoker(), this);
    if (answer->GetDataI("result") == kVnAnswerOk)
        add(answer->GetDataJ(statekey::kCandidates));
}

void VnQtEditLayerStateDlg::add(const VnJsonPtr& chosen)
{
    VnJsonPtr layers = list();
    if (!layers) {
        layers = hostapi::makeArray();
        hostapi::Members(state()).set(statekey::kList, layers);
    }
    for (int i = 0, count = hostapi::count(chosen); i < count; ++i) {
        const VnJsonPtr layer = hostapi::item(chosen, i);
        // In the drawing's record this key has the opposite meaning.
        LayerRecord(layer).setCurrentOfState(false);
        hostapi::append(layers, layer);
    }
    fill();
}

QStringList VnQtEditLayerStateDlg::selectedNames() const
{
    QStringList names;
    for (const QTableWidgetSelectionRange& range : m_table->selectedRanges()) {
        for (int row = range.topRow(); row <= range.bottomRow(); ++row)
            names += m_table->item(row, kNameColumn)->text();
    }
    return names;
}

void VnQtEditLayerStateDlg::slot_DeleteLayerButtonClicked(bool)
{
    m_pendingDeletion.clear();
    const QStringList selected = selectedNames();
    const QSet<QString> names(selected.begin(), selected.end());
    const VnJsonPtr layers = list();
    for (int i = hostapi::count(layers) - 1; i >= 0; --i) {
        LayerRecord layer(hostapi::item(layers, i));
        const QString name = vnutOdStringToQString(layer.name());
        if (!names.contains(name))
            continue;
        layer.setFlag(statekey::kIsRemoved, true);
        m_pendingDeletion += name;
    }
    fill();
}

/// The element is looked up for each request because the command may replace it while answering.
void VnQtEditLayerStateDlg::slot_BtnOkClicked(bool)
{
    if (!m_pendingDeletion.isEmpty())
        askCommandOn(state(), {kStateEditRemove, {}, kStateEditor});
    askCommandOn(state(), {kStateEditStore, {}, kStateEditor});
    endDialog(kVnAnswerOk);
}

void VnQtEditLayerStateDlg::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
