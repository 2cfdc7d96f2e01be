#include "vnqtuidynlayerstatecmdimpl.h"

#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "namerule.h"
#include "statetexts.h"
#include "vnstrings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace vnsi {

using namespace layerstates;

namespace {

QString referenceSpace()
{
    return vnutOdStringToQString(statekey::kReferenceSpace);
}

} // namespace

/// A check box whose state is saved in the settings.
struct VnQtUiDynLayerStateCmdImpl::SettingRow
{
    const char* key;
    QCheckBox* VnQtUiDynLayerStateCmdImpl::*box;
};

const VnQtUiDynLayerStateCmdImpl::SettingRow VnQtUiDynLayerStateCmdImpl::kSettings[] = {
    {statekey::kConfigHidesReferences, &VnQtUiDynLayerStateCmdImpl::m_referenceBox},
    {statekey::kConfigOverridesViewport, &VnQtUiDynLayerStateCmdImpl::m_overrideBox},
    {statekey::kConfigTurnsOthersOff, &VnQtUiDynLayerStateCmdImpl::m_turnOffBox},
};

VnQtUiDynLayerStateCmdImpl::VnQtUiDynLayerStateCmdImpl(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("图层状态管理器"));
    setMinimumWidth(kLeastWidth);
}

bool VnQtUiDynLayerStateCmdImpl::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    m_config = hostapi::userConfig(configSection());
    setUpTable();
    readSettings();
    fill();
    connectWidgets();
    slot_ExtendBtnClicked(m_isExpanded);
    m_extendButton->setChecked(m_isExpanded);
    m_table->setFocus(); // The keys are for the states to begin with.
    return true;
}

OdString VnQtUiDynLayerStateCmdImpl::configSection() const
{
    return statekey::kConfigSection;
}

void VnQtUiDynLayerStateCmdImpl::readSettings()
{
    for (const SettingRow& row : kSettings)
        (this->*row.box)->setChecked(m_config->GetDataB(row.key));
    m_isExpanded = m_config->GetDataB(statekey::kConfigIsExpanded);
}

void VnQtUiDynLayerStateCmdImpl::closeEvent(QCloseEvent* event)
{
    if (m_config) {
        for (const SettingRow& row : kSettings)
            m_config->SetDataB(row.key, (this->*row.box)->isChecked());
        m_config->SetDataB(statekey::kConfigIsExpanded, !m_maskPanel->isHidden());
    }
    event->accept();
}

void VnQtUiDynLayerStateCmdImpl::reject()
{
    close();
}

VnJsonPtr VnQtUiDynLayerStateCmdImpl::manager() const
{
    return element(data(), kStateManager);
}

VnJsonPtr VnQtUiDynLayerStateCmdImpl::states() const
{
    return list(manager());
}

void VnQtUiDynLayerStateCmdImpl::fill()
{
    {
        // Signals are blocked so that the selection changes once at the end and not once per row.
        const QSignalBlocker quiet(m_table);
        m_table->setUpdatesEnabled(false);
        m_currentItem = nullptr;
        m_table->clearContents();
        m_table->setRowCount(0);
        if (data())
            m_statusLabel->setText(tr("当前图层状态: %1").arg(text(manager(), statekey::kCurrent)));
        showStates(states());
        m_table->setUpdatesEnabled(true);
    }
    slot_TableitemSelectionChanged();
}

/// Shows the states and selects the last one, whatever the states say.
void VnQtUiDynLayerStateCmdImpl::showStates(const VnJsonPtr& states)
{
    const int count = hostapi::count(states);
    m_table->setRowCount(count);
    int rows = 0;
    for (int i = 0; i < count; ++i) {
        const VnJsonPtr state = hostapi::item(states, i);
        if (!isFromReference(state) || !m_referenceBox->isChecked())
            showState(rows++, state);
    }
    m_table->setRowCount(rows);
    if (rows > 0)
        m_table->selectRow(rows - 1);
}

void VnQtUiDynLayerStateCmdImpl::showState(int row, const VnJsonPtr& state)
{
    const bool isSame = state && state->GetDataB(statekey::kIsSameAsDrawing);
    const QString space = text(state, statekey::kSpace);
    const QString texts[] = {text(state, statekey::kName),
        space == referenceSpace() ? tr("外部参照") : space, isSame ? tr("是") : tr("否"),
        text(state, statekey::kDescription)};
    for (int column = 0; column < kColumnCount; ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        item->setTextAlignment(Qt::AlignCenter);
        m_table->setItem(row, column, item);
    }
    m_table->item(row, kSpaceColumn)->setData(Qt::UserRole, space);
}

/// The selected rows in the order in which they were selected.
std::vector<int> VnQtUiDynLayerStateCmdImpl::selectedRows() const
{
    std::vector<int> rows;
    for (const QTableWidgetSelectionRange& range : m_table->selectedRanges()) {
        for (int row = range.topRow(); row <= range.bottomRow(); ++row)
            rows.push_back(row);
    }
    return rows;
}

QString VnQtUiDynLayerStateCmdImpl::nameAt(int row) const
{
    const QTableWidgetItem* item = m_table->item(row, kNameColumn);
    return item ? item->text() : QString();
}

QString VnQtUiDynLayerStateCmdImpl::selectedName() const
{
    const std::vector<int> rows = selectedRows();
    return rows.empty() ? QString() : nameAt(rows.front());
}

void VnQtUiDynLayerStateCmdImpl::slot_TableCellClicked(int, int) {}

void VnQtUiDynLayerStateCmdImpl::slot_TableitemSelectionChanged()
{
    const std::vector<int> rows = selectedRows();
    const bool anyFromReference = std::any_of(rows.begin(), rows.end(), [&](int row) {
        return m_table->item(row, kSpaceColumn)->data(Qt::UserRole) == referenceSpace();
    });
    enableFor(rows.size() != 1, rows.empty() || anyFromReference);
    if (rows.size() == 1)
        showMask(nameAt(rows.front()));
}

void VnQtUiDynLayerStateCmdImpl::enableFor(bool multi, bool fromReference)
{
    constexpr int kModelSpace = 1;
    for (QAbstractButton* box : m_maskGroup->buttons()) {
        box->setChecked(false);
        box->setEnabled(!multi);
    }
    for (QAbstractButton* button : m_selectGroup->buttons())
        button->setEnabled(!multi);
    for (QPushButton* button :
        {m_saveButton, m_editButton, m_renameButton, m_deleteButton, m_exportButton})
        button->setEnabled(!multi && !fromReference);
    if (multi && !fromReference)
        m_deleteButton->setEnabled(true);
    for (QWidget* widget :
        std::initializer_list<QWidget*>{m_restoreButton, m_turnOffBox, m_overrideBox})
        widget->setEnabled(!multi);
    if (hostapi::systemVariable(L"TILEMODE") == kModelSpace) {
        m_maskGroup->button(kMaskCurrentViewport)->setEnabled(false);
        m_overrideBox->setEnabled(false);
    } else {
        m_maskGroup->button(kMaskOnOff)->setEnabled(false);
        m_maskGroup->button(kMaskFreeze)->setEnabled(false);
    }
}

void VnQtUiDynLayerStateCmdImpl::showMask(const QString& name)
{
    const VnJsonPtr all = states();
    for (int i = 0, count = hostapi::count(all); i < count; ++i) {
        const VnJsonPtr state = hostapi::item(all, i);
        if (!state || !isSameName(text(state, statekey::kName), name))
            continue;
        const int shown = state->GetDataI(statekey::kOwnMask);
        for (QAbstractButton* box : m_maskGroup->buttons())
            box->setChecked((shown & m_maskGroup->id(box)) != 0);
        return;
    }
}

int VnQtUiDynLayerStateCmdImpl::mask() const
{
    int bits = 0;
    for (const QAbstractButton* box : m_maskGroup->buttons())
        bits |= box->isChecked() ? m_maskGroup->id(const_cast<QAbstractButton*>(box)) : 0;
    return bits;
}

void VnQtUiDynLayerStateCmdImpl::slot_SelectBtnGroupClicked(int id)
{
    for (QAbstractButton* box : m_maskGroup->buttons())
        box->setChecked(id == kSelectAll);
}

void VnQtUiDynLayerStateCmdImpl::slot_ExtendBtnClicked(bool checked)
{
    m_isExpanded = checked;
    m_maskPanel->setVisible(checked);
}

void VnQtUiDynLayerStateCmdImpl::slot_checkboxstateChangedRef(int)
{
    fill();
}

} // namespace vnsi
