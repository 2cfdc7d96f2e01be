#include "vnqtuidynlayercmdimpl.h"

#include "buttongroupclick.h"
#include "hostapi/hostcalls.h"
#include "hostcodes.h"
#include "layernaming.h"
#include "layerrules.h"
#include "recordedits.h"
#include "vnqtlayerqtablewgt.h"
#include "vnstrings.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>

namespace vnsi {

bool VnQtUiDynLayerCmdImpl::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    m_rows.setUp(*m_table, data);
    fill();
    connectWidgets();
    return true;
}

void VnQtUiDynLayerCmdImpl::connectWidgets()
{
    using Self = VnQtUiDynLayerCmdImpl;
    const auto once = Qt::UniqueConnection; // The host may call `setData` again.
    connect(m_controllerGroup, buttonClickedWithId(), this,
        &Self::slot_BtnLayerControllerGroupClicked, once);
    connect(
        m_table, &QTableWidget::cellDoubleClicked, this, &Self::slot_TableCellDoubleClicked, once);
    connect(m_table, &QTableWidget::cellClicked, this, &Self::slot_TableCellClicked, once);
    connect(m_okButton, &QPushButton::clicked, this, &Self::slot_BtnOkClicked, once);
    connect(m_cancelButton, &QPushButton::clicked, this, &Self::slot_BtnCancelClicked, once);
    connect(m_applyButton, &QPushButton::clicked, this, &Self::slot_BtnApplyClicked, once);
    connect(m_deleteKey, &QShortcut::activated, this, &Self::deleteByKey, once);
}

void VnQtUiDynLayerCmdImpl::fill()
{
    m_rows.fill();
    const LayerRecordList layers = m_rows.layers();
    if (m_rows.currentRow() >= 0)
        m_currentLabel->setText(
            tr("当前图层：%1").arg(vnutOdStringToQString(layers[m_rows.currentRow()].name())));
    if (layers.exists())
        m_countLabel->setText(tr("全部：共%1个图层").arg(layers.count()));
}

void VnQtUiDynLayerCmdImpl::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete)
        deleteByKey();
    else
        QDialog::keyPressEvent(event);
}

void VnQtUiDynLayerCmdImpl::deleteByKey()
{
    deleteSelected();
    fill();
}

void VnQtUiDynLayerCmdImpl::slot_TableCellClicked(int row, int column)
{
    if (m_rows.click(row, column))
        m_applyButton->setEnabled(true);
}

void VnQtUiDynLayerCmdImpl::slot_BtnLayerControllerGroupClicked(int id)
{
    if (id == kNewLayer)
        addLayer();
    else if (id == kDeleteLayer)
        deleteSelected();
    else if (id == kSetCurrent)
        setSelectedCurrent();
    fill();
}

void VnQtUiDynLayerCmdImpl::addLayer()
{
    m_rows.writeSelection();
    m_rows.writeWidths();
    askCommand({kManagerNewLayer});
    m_applyButton->setEnabled(true);
}

void VnQtUiDynLayerCmdImpl::deleteSelected()
{
    const int selected = m_rows.writeSelection().count;
    if (selected == 0)
        return;
    const int refused = layerrules::toggleDeletion(m_rows.layers());
    if (refused > 0)
        layerrules::tellNotDeleted(refused, selected);
    m_rows.writeWidths();
    askCommand({kManagerDelete});
    m_applyButton->setEnabled(true);
}

void VnQtUiDynLayerCmdImpl::setSelectedCurrent()
{
    m_rows.writeWidths();
    const ManagerTable::Selection selection = m_rows.writeSelection();
    if (selection.count != 1)
        return;
    const LayerRecord chosen = m_rows.layers()[selection.latest];
    if (layerrules::mayBeCurrent(chosen)) {
        if (chosen.isOff() && recordedits::asksToKeepCurrentOn())
            m_rows.turnOn(selection.latest);
        if (selection.latest != m_rows.currentRow())
            m_rows.makeCurrent(selection.latest);
    }
    m_applyButton->setEnabled(true);
}

void VnQtUiDynLayerCmdImpl::setClickedCurrent(int row)
{
    const LayerRecord clicked = m_rows.layers()[row];
    if (row == m_rows.currentRow() || !layerrules::mayBeCurrent(clicked))
        return;
    m_rows.clearSelected();
    m_rows.writeWidths();
    if (clicked.isOff() && layerrules::asksToTurnOn())
        m_rows.turnOn(row);
    m_rows.makeCurrent(row);
    fill();
    m_applyButton->setEnabled(true);
}

void VnQtUiDynLayerCmdImpl::slot_TableCellDoubleClicked(int row, int column)
{
    const LayerDoubleClick asked = m_rows.doubleClick(row, column);
    if (asked == LayerDoubleClick::None || !m_table->item(row, column))
        return;
    if (asked == LayerDoubleClick::MakeCurrent)
        setClickedCurrent(row);
    else
        editText(row, column, asked);
}

void VnQtUiDynLayerCmdImpl::editText(int row, int column, LayerDoubleClick edit)
{
    const LayerRecord clicked = m_rows.layers()[row];
    const bool renames = edit == LayerDoubleClick::Rename;
    if (renames && !layernaming::mayRename(clicked))
        return;
    m_renaming = true;
    const auto typed =
        renames ? layernaming::askName(clicked) : layernaming::askDescription(clicked);
    if (typed)
        slot_TableCellChanged(*typed, row, column);
    m_applyButton->setEnabled(true);
}

// The slot that hosts know. NOLINTNEXTLINE(performance-unnecessary-value-param)
void VnQtUiDynLayerCmdImpl::slot_TableCellChanged(OdString text, int row, int column)
{
    const LayerDoubleClick edit = m_rows.doubleClick(row, column);
    const bool isText = edit == LayerDoubleClick::Rename || edit == LayerDoubleClick::Describe;
    if (!m_renaming || !isText)
        return;
    m_rows.setText(row, edit, text);
    m_renaming = false;
}

void VnQtUiDynLayerCmdImpl::apply()
{
    if (!canRequest())
        return;
    m_rows.writeSelectedRows();
    askCommand({kManagerApply});
}

void VnQtUiDynLayerCmdImpl::slot_BtnOkClicked(bool)
{
    m_okButton->setFocus();
    apply();
    accept();
}

void VnQtUiDynLayerCmdImpl::slot_BtnApplyClicked(bool)
{
    m_applyButton->setFocus();
    apply();
    fill();
    m_applyButton->setEnabled(false);
}

void VnQtUiDynLayerCmdImpl::slot_BtnCancelClicked(bool)
{
    const LayerRecordList list = m_rows.layers();
    const bool isModified =
        canRequest() && std::any_of(list.begin(), list.end(),
                            [](const LayerRecord& record) { return record.isModified(); });
    if (isModified &&
        hostapi::messageBox(tr("是否保存对图层设置的修改？"), tr("提示"), kVnYesNo) == kVnAnswerYes)
        apply();
    reject();
}

} // namespace vnsi
