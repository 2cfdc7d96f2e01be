#include "vnqteditlayerstatedlg.h"

#include "dialogbuttons.h"
#include "dialoghelp.h"
#include "layeredits.h"
#include "statetexts.h"
#include "vnstrings.h"

#include <QHeaderView>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>
#include <QVBoxLayout>

namespace vnsi {

namespace {

enum Request { kStore = 1, kRemove = 2 };

enum Column {
    kName,
    kOff,
    kFrozen,
    kLock,
    kColor,
    kLinetype,
    kLineWidth,
    kTransparency,
    kPlotStyle,
    kPrint,
    kVPortFrozen,
    kColumnCount
};

constexpr LayerColumn kColumns[] = {
    {QT_TR_NOOP("名称"), LayerCell::MarkedName, layerkey::kName},
    layercolumn::kOff,
    layercolumn::frozen(QT_TR_NOOP("在所有视口中冻结")),
    layercolumn::kLock,
    layercolumn::kColor,
    layercolumn::kLinetype,
    layercolumn::kLineWidth,
    layercolumn::kTransparency,
    layercolumn::kPlotStyle,
    layercolumn::kPrint,
    layercolumn::kVPortFrozen,
};
static_assert(std::size(kColumns) == kColumnCount);

constexpr char kDelete[] = "Delete";
constexpr char kSelectedName[] = "selectItemName";
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
    setUpTable();

    auto* top = new QHBoxLayout;
    top->addWidget(m_newButton);
    top->addWidget(m_deleteButton);
    top->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_table);
    layout->addLayout(makeBottomRow());
    resize(880, 460);

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
        button->setFixedSize(kButtonWidth, button->sizeHint().height());
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
        headers.append(tr(column.header));
    m_table->setColumnCount(kColumnCount);
    m_table->setHorizontalHeaderLabels(headers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
}

bool VnQtEditLayerStateDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    const QString name =
        state() ? vnutOdStringToQString(state()->GetDataSW(kSelectedName)) : QString();
    setWindowTitle(tr("编辑图层状态: %1").arg(name));
    fill();
    return true;
}

VnJsonPtr VnQtEditLayerStateDlg::state() const
{
    return layerstates::element(data(), layerstates::kEditElement);
}

VnJsonPtr VnQtEditLayerStateDlg::list() const
{
    const VnJsonPtr node = state();
    return node ? node->GetDataJ(layerstates::kList) : VnJsonPtr();
}

void VnQtEditLayerStateDlg::fill()
{
    const VnJsonPtr layers = list();
    const int count = layers.ArrayCount();
    m_rows.clear();
    m_rows.reserve(static_cast<std::size_t>(count));
    m_currentRow = -1;
    for (int i = 0; i < count; ++i) {
        const LayerRecord layer(layers(i));
        if (layer.flag(kDelete))
            continue;
        if (layer.isCurrentOfState())
            m_currentRow = static_cast<int>(m_rows.size());
        m_rows.push_back(layer);
    }
    m_cells.fill(*m_table, m_rows, kColumns, kColumnCount);
    m_table->resizeColumnsToContents();
    applyColumnWidths();
}

void VnQtEditLayerStateDlg::applyColumnWidths()
{
    const VnJsonPtr node = state();
    const VnJsonPtr widths = node ? node->GetDataJ("ColumnWidthList") : VnJsonPtr();
    const int count = std::min(widths.ArrayCount(), static_cast<int>(kColumnCount));
    for (int column = 0; column < count; ++column)
        m_table->setColumnWidth(column, widths(column)->asI());
}

/// Rows may have gone while a question was open.
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
    if (!isRow(row))
        return;
    const LayerRecord clicked = m_rows[static_cast<std::size_t>(row)];
    switch (column) {
    case kName:
        makeCurrent(row);
        break;
    case kOff:
    case kFrozen:
    case kLock:
    case kPrint:
    case kVPortFrozen:
        if (mayToggle(row, column) && isRow(row))
            toggle(row, column);
        break;
    case kColor: {
        const VnJsonPtr question = ElementValue::createObject(2);
        question->set("backgroundColor", 0);
        if (layeredits::editColor(clicked, question, this))
            showCell(row, kColor);
        break;
    }
    case kTransparency:
        if (layeredits::editTransparency(clicked))
            showCell(row, kTransparency);
        break;
    default:
        break;
    }
}

void VnQtEditLayerStateDlg::makeCurrent(int row)
{
    if (row == m_currentRow)
        return;
    const int former = std::exchange(m_currentRow, row);
    if (former >= 0) {
        m_rows[static_cast<std::size_t>(former)].setCurrentOfState(false);
        showCell(former, kName);
    }
    m_rows[static_cast<std::size_t>(row)].setCurrentOfState(true);
    showCell(row, kName);
}

bool VnQtEditLayerStateDlg::mayToggle(int row, int column) const
{
    if (row != m_currentRow)
        return true;
    if (column == kOff && !m_rows[static_cast<std::size_t>(row)].isOff())
        return !layeredits::asksToKeepCurrentOn();
    if (column == kFrozen)
        layeredits::refuseToFreezeCurrent();
    return column != kFrozen;
}

void VnQtEditLayerStateDlg::toggle(int row, int column)
{
    LayerRecord& record = m_rows[static_cast<std::size_t>(row)];
    const char* key = kColumns[column].key;
    record.setFlag(key, !record.flag(key));
    showCell(row, column);
}

/// Copies of the drawing's layers that the table does not show.
VnJsonPtr VnQtEditLayerStateDlg::missingLayers() const
{
    QSet<QString> shown;
    for (const LayerRecord& row : m_rows)
        shown.insert(vnutOdStringToQString(row.name()).toCaseFolded());
    VnJsonPtr missing = ElementValue::createArray();
    const VnJsonPtr all = state() ? state()->GetDataJ(layerkey::kList) : VnJsonPtr();
    for (int i = 0, count = all.ArrayCount(); i < count; ++i) {
        const QString name = vnutOdStringToQString(LayerRecord(all(i)).name());
        if (!shown.contains(name.toCaseFolded()))
            missing->Append(ElementValue::clone(all(i)));
    }
    return missing;
}

void VnQtEditLayerStateDlg::slot_NewLayerButtonClicked(bool)
{
    const VnJsonPtr missing = missingLayers();
    if (missing.ArrayCount() == 0) {
        layerstates::ask(L"图层状态 - 添加图层",
            L"所有图层都已包含在此图层状态中。没有可添加的图层。", {L"关闭(&C)"}, 0, 0);
        return;
    }
    state()->SetDataJ(layerstates::kCandidates, missing);
    const VnJsonPtr answer = vnuiShowModelDialogEx(
        layerstates::kService, L"Dialog/CmdLayerStateAddNewLayer", state(), invoker(), this);
    if (answer->GetDataI("result") != 1)
        return;
    const VnJsonPtr chosen = answer->GetDataJ(layerstates::kCandidates);
    VnJsonPtr layers = list();
    if (!layers) {
        layers = ElementValue::createArray();
        state()->SetDataJ(layerstates::kList, layers);
    }
    for (int i = 0, count = chosen.ArrayCount(); i < count; ++i) {
        LayerRecord added(chosen(i));
        added.setCurrentOfState(false); // The drawing's record reads the key the other way round.
        layers->Append(chosen(i));
    }
    fill();
}

QStringList VnQtEditLayerStateDlg::selectedNames() const
{
    QStringList names;
    for (const QTableWidgetSelectionRange& range : m_table->selectedRanges()) {
        for (int row = range.topRow(); row <= range.bottomRow(); ++row)
            names += m_table->item(row, kName)->text();
    }
    return names;
}

void VnQtEditLayerStateDlg::slot_DeleteLayerButtonClicked(bool)
{
    m_pendingDeletion.clear();
    const QStringList selected = selectedNames();
    const QSet<QString> names(selected.begin(), selected.end());
    const VnJsonPtr layers = list();
    for (int i = layers.ArrayCount() - 1; i >= 0; --i) {
        LayerRecord layer(layers(i));
        const QString name = vnutOdStringToQString(layer.name());
        if (!names.contains(name))
            continue;
        layer.setFlag(kDelete, true);
        m_pendingDeletion += name;
    }
    fill();
}

void VnQtEditLayerStateDlg::send(int code)
{
    VnQtRequest request;
    request.code = code;
    request.parameter = layerstates::kEditElement;
    vnqtSendRequest(state(), invoker(), objectName().toUtf8().constData(), request, {});
}

void VnQtEditLayerStateDlg::slot_BtnOkClicked(bool)
{
    if (canRequest()) {
        if (!m_pendingDeletion.isEmpty())
            send(kRemove);
        send(kStore);
    }
    endDialog(1);
}

void VnQtEditLayerStateDlg::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
