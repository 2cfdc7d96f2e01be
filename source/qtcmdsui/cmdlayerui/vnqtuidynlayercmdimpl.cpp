#include "vnqtuidynlayercmdimpl.h"

#include "layeredits.h"
#include "namerule.h"
#include "vnmessages.h"
#include "vnproduct.h"
#include "vnqtlayerqtablewgt.h"
#include "vnstrings.h"
#include "vntaskdialog.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>

namespace vnsi {

namespace {

enum Controller { kNewLayer, kDeleteLayer, kSetCurrent };

enum Column {
    kStatus,
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
    kDescription,
    kColumnCount
};

constexpr LayerColumn kColumns[] = {
    {QT_TR_NOOP("状态"), LayerCell::Status},
    {QT_TR_NOOP("名称"), LayerCell::Text, layerkey::kName},
    layercolumn::kOff,
    {QT_TR_NOOP("冻结"), LayerCell::Toggle, layerkey::kFrozen, LayerIcon::Frozen, LayerIcon::Thaw},
    layercolumn::kLock,
    layercolumn::kColor,
    layercolumn::kLinetype,
    layercolumn::kLineWidth,
    layercolumn::kTransparency,
    layercolumn::kPlotStyle,
    layercolumn::kPrint,
    layercolumn::kVPortFrozen,
    {QT_TR_NOOP("说明"), LayerCell::Text, layerkey::kDescription},
};
static_assert(std::size(kColumns) == kColumnCount);

struct ControllerButton
{
    LayerIcon icon;
    const char* objectName;
    const char* help;
};

constexpr ControllerButton kControllers[] = {
    {LayerIcon::NewLayer, "newLayerButton", QT_TR_NOOP("新建图层")},
    {LayerIcon::DeleteLayer, "deleteLayerButton", QT_TR_NOOP("删除图层")},
    {LayerIcon::SetCurrent, "setCurrentButton", QT_TR_NOOP("置为当前")},
};

constexpr int kTurnOff = 101;
constexpr int kKeepOn = 102;
constexpr int kWarningStyle = 80;

bool isNeverDeleted(const LayerRecord& record)
{
    const QString name = vnutOdStringToQString(record.name());
    return record.isCurrent() || isSameName(name, QStringLiteral("0")) ||
           isSameName(name, QStringLiteral("Defpoints")) || record.flag(layerkey::kUsed) ||
           record.dependsOnReference();
}

} // namespace

VnQtUiDynLayerCmdImpl::VnQtUiDynLayerCmdImpl(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("图层特性管理器"));
    setMinimumWidth(645);
}

bool VnQtUiDynLayerCmdImpl::initDialog()
{
    m_currentLabel = new QLabel(tr("当前图层："), this);
    m_currentLabel->setObjectName(QStringLiteral("currentLayerLabel"));
    m_currentLabel->setTextFormat(Qt::PlainText);
    auto* currentRow = new QHBoxLayout;
    currentRow->addWidget(m_currentLabel);
    currentRow->addStretch();

    QBoxLayout* buttonRow = makeButtonRow();
    m_table = new VnQtLayerQTableWgt(this);
    m_table->setObjectName(QStringLiteral("layerTable"));
    m_table->setTabKeyNavigation(false); // Tab goes on to the buttons.
    // The table would take the key for a search by typing, so it never came up to the dialog.
    m_deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), this);
    m_deleteKey->setAutoRepeat(false);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(currentRow);
    layout->addLayout(buttonRow);
    layout->addWidget(m_table);
    layout->addLayout(makeBottomRow());
    resize(980, 560);
    return true;
}

QBoxLayout* VnQtUiDynLayerCmdImpl::makeButtonRow()
{
    auto* row = new QHBoxLayout;
    m_controllerGroup = new QButtonGroup(this);
    for (const ControllerButton& description : kControllers) {
        auto* button = new QPushButton(m_cells.icon(description.icon), QString(), this);
        button->setObjectName(QLatin1String(description.objectName));
        button->setToolTip(tr(description.help));
        button->setAccessibleName(tr(description.help));
        button->setAutoDefault(false);
        m_controllerGroup->addButton(button, m_controllerGroup->buttons().size());
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

QBoxLayout* VnQtUiDynLayerCmdImpl::makeBottomRow()
{
    const auto makeButton = [this](const QString& text, const char* objectName) {
        auto* button = new QPushButton(text, this);
        button->setObjectName(QLatin1String(objectName));
        button->setFixedSize(75, 21);
        return button;
    };
    m_countLabel = new QLabel(tr("共  个图层"), this);
    m_countLabel->setObjectName(QStringLiteral("layerCountLabel"));
    m_okButton = makeButton(tr("确定"), "okButton");
    m_okButton->setDefault(true);
    m_cancelButton = makeButton(tr("取消"), "cancelButton");
    m_applyButton = makeButton(tr("应用"), "applyButton");
    m_applyButton->setEnabled(false);

    auto* row = new QHBoxLayout;
    row->addWidget(m_countLabel);
    row->addStretch();
    row->addWidget(m_okButton);
    row->addWidget(m_cancelButton);
    row->addWidget(m_applyButton);
    return row;
}

bool VnQtUiDynLayerCmdImpl::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    setUpTable();
    fill();
    connectWidgets();
    return true;
}

void VnQtUiDynLayerCmdImpl::connectWidgets()
{
    using Self = VnQtUiDynLayerCmdImpl;
    const auto once = Qt::UniqueConnection; // The host may hand over data again.
    connect(m_controllerGroup, &QButtonGroup::idClicked, this,
        &Self::slot_BtnLayerControllerGroupClicked, once);
    connect(
        m_table, &QTableWidget::cellDoubleClicked, this, &Self::slot_TableCellDoubleClicked, once);
    connect(m_table, &QTableWidget::cellClicked, this, &Self::slot_TableCellClicked, once);
    connect(m_okButton, &QPushButton::clicked, this, &Self::slot_BtnOkClicked, once);
    connect(m_cancelButton, &QPushButton::clicked, this, &Self::slot_BtnCancelClicked, once);
    connect(m_applyButton, &QPushButton::clicked, this, &Self::slot_BtnApplyClicked, once);
    connect(m_deleteKey, &QShortcut::activated, this, &Self::deleteByKey, once);
}

void VnQtUiDynLayerCmdImpl::setUpTable()
{
    QStringList headers;
    for (const LayerColumn& column : kColumns)
        headers.append(tr(column.header));
    m_table->setColumnCount(kColumnCount);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setHorizontalHeaderLabels(headers);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
}

VnJsonPtr VnQtUiDynLayerCmdImpl::list() const
{
    return data() ? data()->GetDataJ(layerkey::kList) : VnJsonPtr();
}

void VnQtUiDynLayerCmdImpl::fill()
{
    const int scrolledTo = m_table->verticalScrollBar()->value();
    int cursor = m_table->currentRow();
    const VnJsonPtr layers = list();
    const int count = layers.ArrayCount();
    m_currentRow = -1;

    std::vector<LayerRecord> records;
    records.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        records.emplace_back(layers(row));
        if (records.back().isCurrent())
            m_currentRow = row;
        if (records.back().flag(layerkey::kSelected))
            cursor = row;
    }
    m_cells.fill(*m_table, records, kColumns, kColumnCount);

    if (m_currentRow >= 0)
        m_currentLabel->setText(
            tr("当前图层：%1").arg(vnutOdStringToQString(record(m_currentRow).name())));
    if (layers) {
        m_countLabel->setText(tr("全部：共%1个图层").arg(count));
        m_table->resizeColumnsToContents();
        m_table->setFocus();
    }
    applyColumnWidths();
    m_table->verticalScrollBar()->setValue(scrolledTo);
    moveCursor(cursor >= 0 ? cursor : m_currentRow);
}

/// Puts the keyboard's cursor on a row, and that into view, without selecting it.
void VnQtUiDynLayerCmdImpl::moveCursor(int row)
{
    const int scrolledTo = m_table->horizontalScrollBar()->value();
    m_table->selectionModel()->setCurrentIndex(
        m_table->model()->index(row, kName), QItemSelectionModel::NoUpdate);
    m_table->horizontalScrollBar()->setValue(scrolledTo);
}

void VnQtUiDynLayerCmdImpl::applyColumnWidths()
{
    const VnJsonPtr widths = data() ? data()->GetDataJ(managerkey::kColumnWidths) : VnJsonPtr();
    const int count = std::min(widths.ArrayCount(), static_cast<int>(kColumnCount));
    for (int column = 0; column < count; ++column)
        m_table->setColumnWidth(column, widths(column)->asI(m_table->columnWidth(column)));
}

void VnQtUiDynLayerCmdImpl::writeColumnWidths()
{
    if (!data())
        return;
    VnJsonPtr widths = data()->GetDataJ(managerkey::kColumnWidths);
    if (!widths || widths->kind() != IElementValueBase::Kind::Array) {
        widths = ElementValue::createArray(kColumnCount);
        data()->SetDataJ(managerkey::kColumnWidths, widths);
    }
    widths->Clear();
    for (int column = 0; column < kColumnCount; ++column)
        widths->AppendI(m_table->columnWidth(column));
}

void VnQtUiDynLayerCmdImpl::writeSelection()
{
    const VnJsonPtr layers = list();
    const int count = layers.ArrayCount();
    std::vector<bool> selected(static_cast<std::size_t>(count), false);
    int lastSelected = -1;
    for (const QTableWidgetSelectionRange& range : m_table->selectedRanges()) {
        const int bottom = std::min(range.bottomRow(), count - 1);
        for (int row = range.topRow(); row <= bottom; ++row) {
            selected[static_cast<std::size_t>(row)] = true;
            lastSelected = row;
        }
    }

    int selectedCount = 0;
    int last = -1;
    for (int row = 0; row < count; ++row) {
        const bool isSelected = selected[static_cast<std::size_t>(row)];
        LayerRecord(layers(row)).setFlag(layerkey::kSelected, isSelected);
        if (isSelected) {
            ++selectedCount;
            last = row;
        }
    }
    if (!data())
        return;
    data()->SetDataI(managerkey::kSelectCount, selectedCount);
    if (selectedCount > 0) {
        data()->SetDataI(managerkey::kLastSelectedIndex, lastSelected);
        data()->SetDataI(managerkey::kLastIndex, last);
    }
}

void VnQtUiDynLayerCmdImpl::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Delete) {
        QDialog::keyPressEvent(event);
        return;
    }
    deleteByKey();
}

void VnQtUiDynLayerCmdImpl::deleteByKey()
{
    deleteSelected();
    fill();
}

void VnQtUiDynLayerCmdImpl::showCell(int row, int column)
{
    m_cells.refresh(*m_table, row, column, record(row), kColumns[column]);
}

void VnQtUiDynLayerCmdImpl::slot_TableCellClicked(int row, int column)
{
    // Two guards that overlap; both stay, as the column count may grow beyond the second.
    if (column < 2 || column == 13)
        return;
    if (column >= 12 || row < 0 || row >= recordCount())
        return;

    LayerRecord clicked = record(row);
    switch (column) {
    case kOff:
        if (!toggleOff(row, clicked))
            return;
        break;
    case kFrozen:
        if (!toggleFrozen(row, clicked))
            return;
        break;
    case kColor:
        editColor(row, clicked);
        break;
    case kLinetype:
    case kLineWidth:
        break; // Not edited here, yet the layer counts as modified; this is intended.
    case kTransparency:
        editTransparency(row, clicked);
        break;
    case kPlotStyle:
        return;
    default:
        toggle(row, column, clicked);
        break;
    }
    clicked.markModified();
    m_applyButton->setEnabled(true);
}

bool VnQtUiDynLayerCmdImpl::toggleOff(int row, LayerRecord& record)
{
    if (row == m_currentRow && !record.isOff() && layeredits::asksToKeepCurrentOn())
        return false;
    toggle(row, kOff, record);
    return true;
}

bool VnQtUiDynLayerCmdImpl::toggleFrozen(int row, LayerRecord& record)
{
    if (row == m_currentRow) {
        layeredits::refuseToFreezeCurrent();
        return false;
    }
    toggle(row, kFrozen, record);
    return true;
}

void VnQtUiDynLayerCmdImpl::toggle(int row, int column, LayerRecord& record)
{
    const char* key = kColumns[column].key;
    record.setFlag(key, !record.flag(key));
    showCell(row, column);
}

void VnQtUiDynLayerCmdImpl::editColor(int row, LayerRecord& record)
{
    if (layeredits::editColor(record, ElementValue::createObject(2), this))
        showCell(row, kColor);
}

void VnQtUiDynLayerCmdImpl::editTransparency(int row, LayerRecord& record)
{
    if (layeredits::editTransparency(record))
        showCell(row, kTransparency);
}

void VnQtUiDynLayerCmdImpl::slot_BtnLayerControllerGroupClicked(int id)
{
    switch (id) {
    case kNewLayer:
        writeSelection();
        writeColumnWidths();
        sendRequest({kManagerNewLayer});
        m_applyButton->setEnabled(true);
        break;
    case kDeleteLayer:
        deleteSelected();
        break;
    case kSetCurrent:
        setSelectedCurrent();
        break;
    default:
        break;
    }
    fill();
}

void VnQtUiDynLayerCmdImpl::deleteSelected()
{
    writeSelection();
    const int selectedCount = data() ? data()->GetDataI(managerkey::kSelectCount) : 0;
    if (selectedCount == 0)
        return;

    const VnJsonPtr layers = list();
    int refused = 0;
    for (int row = 0, count = layers.ArrayCount(); row < count; ++row) {
        LayerRecord candidate(layers(row));
        if (!candidate.flag(layerkey::kSelected))
            continue;
        if (isNeverDeleted(candidate)) {
            ++refused;
        } else if (candidate.status() == kLayerDelete) {
            candidate.setStatus(kLayerOrdinary);
        } else {
            candidate.setStatus(kLayerDelete);
            candidate.markModifiedByAction();
        }
    }
    if (refused > 0) {
        // The line about external references has no bullet; the text stands as agreed.
        const QString text = QStringLiteral(
            "有 %1 个选定图层无法删除（共 %2 个选定图层)\r\n 无法删除以下图层：\r\n"
            "    ·图层0和图层Defpoints\r\n    ·当前图层\r\n    依赖外部参照的图层\r\n"
            "    ·包含对象的图层\r\n ");
        vnuiMessageBox(
            vnutQStringToOdString(text.arg(refused).arg(selectedCount)), L"提示", kWarningStyle);
    }
    writeColumnWidths();
    sendRequest({kManagerDelete});
    m_applyButton->setEnabled(true);
}

bool VnQtUiDynLayerCmdImpl::canBeCurrent(int row, Ask ask)
{
    const LayerRecord candidate = record(row);
    if (candidate.status() == kLayerDelete || candidate.flag(layerkey::kFrozen) ||
        candidate.dependsOnReference()) {
        vnuiMessageBox(L"无法将选定图层置为当前图层。\n\n无法将下列图层置为当前图层:\n"
                       L"    依赖外部参照的图层\n    已冻结的图层\n    已删除的图层\n",
            L"图层 - 无法置为当前", kVnIconInformation);
        return false;
    }
    if (ask == Ask::Yes && candidate.isOff() && layeredits::asksToKeepCurrentOn())
        slot_TableCellClicked(row, kOff);
    return true;
}

void VnQtUiDynLayerCmdImpl::makeCurrent(int row, Ask ask)
{
    if (ask == Ask::Yes && record(row).isOff()) {
        CVnUiTaskDialog question;
        question.SetWindowTitle(L"图层 - 关闭当前图层");
        question.SetMainInstruction(L"当前图层将被关闭。希望执行什么操作？");
        question.AddCommandControl(kTurnOff, L"关闭当前图层");
        question.AddCommandControl(kKeepOn, L"使当前图层保持打开状态");
        if (question.DoModal() == kKeepOn)
            slot_TableCellClicked(row, kOff);
    }
    if (m_currentRow >= 0)
        setRowStatus(m_currentRow, kLayerOrdinary);
    setRowStatus(row, kLayerCurrent);
}

void VnQtUiDynLayerCmdImpl::setRowStatus(int row, LayerStatus status)
{
    LayerRecord changed = record(row);
    if (changed.isNull())
        return;
    changed.setStatus(status);
    changed.setFlag(layerkey::kSelected, status == kLayerCurrent);
    changed.markModified();
    showCell(row, kStatus);
}

void VnQtUiDynLayerCmdImpl::setSelectedCurrent()
{
    writeColumnWidths();
    writeSelection();
    if (!data() || data()->GetDataI(managerkey::kSelectCount) != 1)
        return;
    const int row = data()->GetDataI(managerkey::kLastSelectedIndex);
    if (row >= recordCount())
        return;
    if (canBeCurrent(row, Ask::Yes) && row != m_currentRow)
        makeCurrent(row, Ask::No);
    m_applyButton->setEnabled(true);
}

void VnQtUiDynLayerCmdImpl::slot_TableCellDoubleClicked(int row, int column)
{
    // The guard lets column 13 through, which the table does not have; it stays as agreed.
    if (column >= 2 && column != 12 && column != 13)
        return;
    if (!m_table->item(row, column) || row >= recordCount())
        return;

    const LayerRecord clicked = record(row);
    if (column == kStatus) {
        if (row == m_currentRow || !canBeCurrent(row, Ask::No))
            return;
        for (int other = 0, count = recordCount(); other < count; ++other)
            record(other).setFlag(layerkey::kSelected, false);
        writeColumnWidths();
        makeCurrent(row, Ask::Yes);
        fill();
        m_applyButton->setEnabled(true);
    } else if (column == kName) {
        renameByDialog(row, clicked);
    } else if (column == kDescription) {
        describeByDialog(row, clicked);
    }
}

void VnQtUiDynLayerCmdImpl::renameByDialog(int row, const LayerRecord& record)
{
    if (record.name() == OdString(L"0") || record.dependsOnReference()) {
        vnuiMessageBox(L"不能重命名选定图层。\n\n不能重命名下列图层:\n    图层 0\n"
                       L"    依赖外部参照的图层\n",
            kProductName, kVnIconInformation);
        return;
    }
    VnJsonPtr question = ElementValue::createObject(2);
    question->set("DefaultName", record.name());
    askForText(question, row, kName);
}

void VnQtUiDynLayerCmdImpl::describeByDialog(int row, const LayerRecord& record)
{
    VnJsonPtr question = ElementValue::createObject(2);
    question->set("Tip", L"说明:").set("DefaultName", record.text(layerkey::kDescription));
    askForText(question, row, kDescription);
}

void VnQtUiDynLayerCmdImpl::askForText(const VnJsonPtr& question, int row, int column)
{
    m_renaming = true;
    const VnJsonPtr answer =
        vnuiShowModelDialog(L"Dialog/CmdsUI", L"Dialog/CmdsUI/ReNameDlg", question);
    if (answer->GetDataB("Success"))
        slot_TableCellChanged(answer->GetDataSW("NewName"), row, column);
    m_applyButton->setEnabled(true);
}

void VnQtUiDynLayerCmdImpl::slot_TableCellChanged(OdString text, int row, int column)
{
    if ((column != kName && column != kDescription) || !m_renaming || row >= recordCount())
        return;
    const QSignalBlocker quiet(m_table);
    LayerRecord changed = record(row);
    if (column == kDescription)
        changed.setText(layerkey::kDescription, text);
    else
        storeName(row, vnutOdStringToQString(text));
    changed.markModified();
    showCell(row, column);
    m_renaming = false;
}

void VnQtUiDynLayerCmdImpl::storeName(int row, const QString& text)
{
    LayerRecord renamed = record(row);
    const OdString previous = renamed.name();
    QString name = text;
    // A refused name marks the layer modified all the same: the previous one is stored again.
    renamed.setText(
        layerkey::kName, acceptName(row, name) ? vnutQStringToOdString(name) : previous);
}

bool VnQtUiDynLayerCmdImpl::acceptName(int row, QString& name) const
{
    const VnJsonPtr layers = list();
    const int count = layers.ArrayCount();
    if (count < 2)
        return true; // The only layer may be called anything.

    const auto refuse = [](const wchar_t* text, const wchar_t* title) {
        vnuiMessageBox(text, title, kVnIconInformation);
        return false;
    };
    name = name.trimmed();
    if (name.isEmpty())
        return refuse(L"名称 的长度必须至少为一个字符", L"图层 - 文字长度");
    if (isTooLongForName(name))
        return refuse(L"图层名无效。\n\n所允许的最大长度为 255 个字符\n", L"图层 - 文字长度");
    if (holdsForbiddenCharacter(name))
        return refuse(L"图层名中包含无效的字符。\n\n图层名称中不得含有以下字符：\n"
                      L"\\<>/\":;?*|,=`",
            kProductName);
    for (int other = 0; other < count; ++other) {
        if (other != row &&
            isSameName(name, vnutOdStringToQString(LayerRecord(layers(other)).name())))
            return refuse(L"图层名无效。\n\n图层名必须唯一\n", kProductName);
    }
    return true;
}

void VnQtUiDynLayerCmdImpl::slot_BtnOkClicked(bool)
{
    m_okButton->setFocus();
    sendRequest({kManagerApply});
    accept();
}

void VnQtUiDynLayerCmdImpl::slot_BtnApplyClicked(bool)
{
    m_applyButton->setFocus();
    sendRequest({kManagerApply});
    fill();
    m_applyButton->setEnabled(false);
}

void VnQtUiDynLayerCmdImpl::slot_BtnCancelClicked(bool)
{
    if (canRequest()) {
        const VnJsonPtr layers = list();
        bool modified = false;
        for (int row = 0, count = layers.ArrayCount(); row < count && !modified; ++row)
            modified = LayerRecord(layers(row)).isModified();
        if (modified &&
            vnuiMessageBox(L"是否保存对图层设置的修改？", L"提示", kVnYesNo) == kVnAnswerYes)
            sendRequest({kManagerApply});
    }
    reject();
}

} // namespace vnsi
