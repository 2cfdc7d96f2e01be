#include "vnqtuidynlayerstatecmdimpl.h"

#include "dialoghelp.h"
#include "namerule.h"
#include "statetexts.h"
#include "vnsettings.h"
#include "vnstrings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace vnsi {

using namespace layerstates;

namespace {

enum Request {
    kPrepareEdit = 0,
    kCreate = 1,
    kDelete = 2,
    kRename = 3,
    kSave = 4,
    kRestore = 5,
    kImport = 6,
    kExport = 7,
    kDescribe = 8
};

enum Column { kNameColumn, kSpaceColumn, kSameColumn, kDescriptionColumn, kColumnCount };

constexpr const char* kHeaders[] = {
    QT_TR_NOOP("名称"), QT_TR_NOOP("空间"), QT_TR_NOOP("与 DWG 相同"), QT_TR_NOOP("说明")};
static_assert(std::size(kHeaders) == kColumnCount);

struct MaskRow
{
    const char* text;
    int bit;
};

constexpr int kOnOffBit = 1;
constexpr int kFreezeBit = 2;
constexpr int kViewportBit = 512;

// The order on screen is not the bits' order, and two share the letter P; both are meant.
constexpr MaskRow kMask[] = {
    {QT_TR_NOOP("开/关(&O)"), kOnOffBit},
    {QT_TR_NOOP("冻结/解冻(&F)"), kFreezeBit},
    {QT_TR_NOOP("在当前视口中的可见性(&U)"), kViewportBit},
    {QT_TR_NOOP("锁定/解锁(&K)"), 4},
    {QT_TR_NOOP("打印/不打印(&P)"), 8},
    {QT_TR_NOOP("颜色(&L)"), 32},
    {QT_TR_NOOP("线型(&P)"), 64},
    {QT_TR_NOOP("线宽(&G)"), 128},
    {QT_TR_NOOP("透明度(&T)"), 1024},
    {QT_TR_NOOP("打印样式(&V)"), 256},
    {QT_TR_NOOP("新视口冻结/解冻(&Z)"), 16},
};

enum Select { kSelectAll, kClearAll };
enum DeleteAnswer { kDeleteThis, kDeleteAll, kKeepThis, kStop };

constexpr int kLeastWidth = 645;
constexpr char kIsExpand[] = "IsExpand";
constexpr char kMaskKey[] = "LayerStateMask";
constexpr wchar_t kFromReference[] = L"外部参照";
constexpr wchar_t kDeleteCaption[] = L"图层 - 删除图层状态";
constexpr wchar_t kRenameService[] = L"Dialog/CmdsUI";
constexpr wchar_t kRenameDialog[] = L"Dialog/CmdsUI/ReNameDlg";
constexpr wchar_t kStateFilter[] = L"图层状态(*.las)";

OdString od(const QString& text)
{
    return vnutQStringToOdString(text);
}

QString text(const VnJsonPtr& node, const char* key)
{
    return vnutOdStringToQString(node->GetDataSW(key));
}

bool answersYes(const wchar_t* caption, const QString& question)
{
    const VnJsonPtr answer = vnuiMessageBoxEx(
        caption, od(question), ElementValue::createObject(2), kVnYesNo, 1, kVnIconInformation);
    return answer->GetDataI("ControlBtn") == kVnAnswerYes;
}

VnJsonPtr askForText(const QString& present)
{
    const VnJsonPtr question = ElementValue::createObject(2);
    question->set("DefaultName", od(present));
    return vnuiShowModelDialog(kRenameService, kRenameDialog, question);
}

VnJsonPtr askForFile(const VnJsonPtr& question, QWidget* parent)
{
    return vnuiShowModelDialogEx(L"Dialog/Common", L"FileDialogBox", question, {}, parent);
}

VnJsonPtr fileQuestion(const char* caption, const wchar_t* filter, bool open)
{
    const VnJsonPtr question = ElementValue::createObject(2);
    question->SetDataS("caption", caption);
    question->set("filter", OdString(filter))
        .set("Open", open)
        .set("MutiFile", false) // The key's agreed spelling.
        .set("defFilter", OdString(kStateFilter));
    return question;
}

} // namespace

/// A check box whose state is kept.
struct VnQtUiDynLayerStateCmdImpl::SettingRow
{
    const char* key;
    QCheckBox* VnQtUiDynLayerStateCmdImpl::*box;
};

const VnQtUiDynLayerStateCmdImpl::SettingRow VnQtUiDynLayerStateCmdImpl::kSettings[] = {
    {"isRefLayerCBox", &VnQtUiDynLayerStateCmdImpl::m_referenceBox},
    {"isWCheckBox", &VnQtUiDynLayerStateCmdImpl::m_overrideBox},
    {"isTCheckBox", &VnQtUiDynLayerStateCmdImpl::m_turnOffBox},
};

VnQtUiDynLayerStateCmdImpl::VnQtUiDynLayerStateCmdImpl(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("图层状态管理器"));
    setMinimumWidth(kLeastWidth);
}

bool VnQtUiDynLayerStateCmdImpl::initDialog()
{
    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(makeListPanel(), 0, 0);
    layout->addWidget(makeMaskPanel(), 0, 1);
    layout->addLayout(makeBottomRow(), 1, 0, 1, 2);
    // The size constraint takes the place of the window's own minimum.
    const QMargins margins = layout->contentsMargins();
    layout->addItem(new QSpacerItem(kLeastWidth - margins.left() - margins.right(), 0), 2, 0, 1, 2);
    m_maskPanel->hide();
    return true;
}

QPushButton* VnQtUiDynLayerStateCmdImpl::makeButton(const char* text, const char* objectName)
{
    auto* button = new QPushButton(tr(text), this);
    button->setObjectName(QLatin1String(objectName));
    button->setAutoDefault(false);
    return button;
}

QCheckBox* VnQtUiDynLayerStateCmdImpl::makeCheckBox(const char* text, const char* objectName)
{
    auto* box = new QCheckBox(tr(text), this);
    box->setObjectName(QLatin1String(objectName));
    return box;
}

QWidget* VnQtUiDynLayerStateCmdImpl::makeListPanel()
{
    auto* panel = new QWidget(this);
    m_table = new QTableWidget(panel);
    m_table->setObjectName(QStringLiteral("stateTable"));
    m_table->setFixedWidth(360);
    m_referenceBox = makeCheckBox(QT_TR_NOOP("不列出外部参照中的图层状态(&F)"), "referenceBox");
    m_statusLabel = new QLabel(tr("当前图层状态: *未保存*"), panel);
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    m_statusLabel->setTextFormat(Qt::PlainText);

    auto* grid = new QGridLayout(panel);
    grid->setMargin(0);
    grid->setColumnStretch(2, 1);
    grid->addWidget(new QLabel(tr("图层状态(E)"), panel), 0, 0);
    grid->addWidget(m_table, 1, 0);
    grid->addLayout(makeButtonColumn(), 1, 1);
    grid->addWidget(m_referenceBox, 2, 0);
    grid->addWidget(makeRestoreOptions(), 3, 0);
    grid->addWidget(m_statusLabel, 4, 0);
    return panel;
}

QBoxLayout* VnQtUiDynLayerStateCmdImpl::makeButtonColumn()
{
    m_newButton = makeButton(QT_TR_NOOP("新建(&N)..."), "newButton");
    m_saveButton = makeButton(QT_TR_NOOP("保存(&V)"), "saveButton");
    m_editButton = makeButton(QT_TR_NOOP("编辑(&I)..."), "editButton");
    m_renameButton = makeButton(QT_TR_NOOP("重命名"), "renameButton");
    m_deleteButton = makeButton(QT_TR_NOOP("删除(&D)"), "deleteButton");
    m_importButton = makeButton(QT_TR_NOOP("输入(&M)..."), "importButton");
    m_exportButton = makeButton(QT_TR_NOOP("输出(&X)..."), "exportButton");

    auto* column = new QVBoxLayout;
    for (QPushButton* button :
        {m_newButton, m_saveButton, m_editButton, m_renameButton, m_deleteButton})
        column->addWidget(button);
    column->addStretch();
    column->addWidget(m_importButton);
    column->addWidget(m_exportButton);
    return column;
}

QWidget* VnQtUiDynLayerStateCmdImpl::makeRestoreOptions()
{
    auto* group = new QGroupBox(tr("恢复选项"), this);
    m_turnOffBox = makeCheckBox(QT_TR_NOOP("关闭未在图层状态中找到的图层(&T)"), "turnOffBox");
    m_overrideBox = makeCheckBox(QT_TR_NOOP("将特性作为视口替代应用(&W)"), "overrideBox");
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(m_turnOffBox);
    layout->addWidget(m_overrideBox);
    layout->addStretch();
    return group;
}

QWidget* VnQtUiDynLayerStateCmdImpl::makeMaskPanel()
{
    m_maskPanel = new QWidget(this);
    m_maskPanel->setObjectName(QStringLiteral("maskPanel"));
    m_maskGroup = new QButtonGroup(this);
    m_maskGroup->setExclusive(false);
    auto* group = new QGroupBox(tr("要恢复的图层特性"), m_maskPanel);
    auto* boxes = new QVBoxLayout(group);
    for (const MaskRow& row : kMask) {
        auto* box = new QCheckBox(tr(row.text), group);
        box->setObjectName(QStringLiteral("maskBox%1").arg(row.bit));
        m_maskGroup->addButton(box, row.bit);
        boxes->addWidget(box);
    }
    m_selectGroup = new QButtonGroup(this);
    m_selectGroup->addButton(makeButton(QT_TR_NOOP("全部选择(&S)"), "selectAllButton"), kSelectAll);
    m_selectGroup->addButton(makeButton(QT_TR_NOOP("全部清除(&A)"), "clearAllButton"), kClearAll);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 10, 0, 0);
    buttons->addWidget(m_selectGroup->button(kSelectAll));
    buttons->addWidget(m_selectGroup->button(kClearAll));

    auto* layout = new QVBoxLayout(m_maskPanel);
    layout->setMargin(0);
    layout->addWidget(group);
    layout->addLayout(buttons);
    layout->addStretch();
    return m_maskPanel;
}

QBoxLayout* VnQtUiDynLayerStateCmdImpl::makeBottomRow()
{
    m_restoreButton = makeButton(QT_TR_NOOP("恢复(&R)"), "restoreButton");
    m_closeButton = makeButton(QT_TR_NOOP("关闭(&C)"), "closeButton");
    m_helpButton = makeButton(QT_TR_NOOP("帮助(&H)"), "helpButton");
    m_extendButton = makeButton(QT_TR_NOOP("详情"), "extendButton");
    m_extendButton->setCheckable(true);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : {m_restoreButton, m_closeButton, m_helpButton, m_extendButton})
        row->addWidget(button);
    return row;
}

void VnQtUiDynLayerStateCmdImpl::connectWidgets()
{
    using Self = VnQtUiDynLayerStateCmdImpl;
    constexpr auto once = Qt::UniqueConnection;
    const struct
    {
        QPushButton* button;
        void (Self::*slot)(bool);
    } clicks[] = {
        {m_extendButton, &Self::slot_ExtendBtnClicked},
        {m_restoreButton, &Self::slot_RestoreBtnBtnClicked},
        {m_newButton, &Self::slot_NewBtnClicked},
        {m_saveButton, &Self::slot_SaveBtnClicked},
        {m_editButton, &Self::slot_EditBtnClicked},
        {m_renameButton, &Self::slot_RenameBtnClicked},
        {m_deleteButton, &Self::slot_DeleteBtnClicked},
        {m_importButton, &Self::slot_ImportBtnClicked},
        {m_exportButton, &Self::slot_ExportBtnClicked},
        {m_helpButton, &Self::slot_HelpBtnClicked},
    };
    for (const auto& row : clicks)
        connect(row.button, &QPushButton::clicked, this, row.slot, once);
    connect(m_closeButton, &QPushButton::clicked, this, &Self::close, once);
    connect(m_table, &QTableWidget::cellClicked, this, &Self::slot_TableCellClicked, once);
    connect(m_table, &QTableWidget::itemSelectionChanged, this,
        &Self::slot_TableitemSelectionChanged, once);
    connect(
        m_table, &QTableWidget::itemDoubleClicked, this, &Self::slot_tableitDoubleClicked, once);
    connect(m_table, &QTableWidget::itemClicked, this, &Self::slot_tableitClickedDesc, once);
    connect(
        m_referenceBox, &QCheckBox::stateChanged, this, &Self::slot_checkboxstateChangedRef, once);
    connect(m_selectGroup, &QButtonGroup::idClicked, this, &Self::slot_SelectBtnGroupClicked, once);
}

bool VnQtUiDynLayerStateCmdImpl::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    m_config = vn_user_config(configSection());
    setUpTable();
    readSettings();
    fill();
    connectWidgets();
    slot_ExtendBtnClicked(m_isExpanded);
    m_extendButton->setChecked(m_isExpanded);
    return true;
}

OdString VnQtUiDynLayerStateCmdImpl::configSection() const
{
    return L"LayerState_dialog";
}

void VnQtUiDynLayerStateCmdImpl::setUpTable()
{
    QStringList headers;
    for (const char* header : kHeaders)
        headers.append(tr(header));
    m_table->setColumnCount(kColumnCount);
    m_table->setHorizontalHeaderLabels(headers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setSectionResizeMode(kDescriptionColumn, QHeaderView::Stretch);
    constexpr int kWidths[] = {90, 66, 110};
    for (int column = 0; column < kDescriptionColumn; ++column)
        m_table->setColumnWidth(column, kWidths[column]);
}

void VnQtUiDynLayerStateCmdImpl::readSettings()
{
    for (const SettingRow& row : kSettings)
        (this->*row.box)->setChecked(m_config && m_config->GetDataB(row.key));
    m_isExpanded = m_config && m_config->GetDataB(kIsExpand);
}

void VnQtUiDynLayerStateCmdImpl::closeEvent(QCloseEvent* event)
{
    if (m_config) {
        for (const SettingRow& row : kSettings)
            m_config->set(row.key, (this->*row.box)->isChecked());
        m_config->set(kIsExpand, !m_maskPanel->isHidden());
    }
    event->accept();
}

void VnQtUiDynLayerStateCmdImpl::reject()
{
    close();
}

VnJsonPtr VnQtUiDynLayerStateCmdImpl::manager() const
{
    return element(data(), kManagerElement);
}

VnJsonPtr VnQtUiDynLayerStateCmdImpl::states() const
{
    const VnJsonPtr node = manager();
    return node ? node->GetDataJ(kList) : VnJsonPtr();
}

void VnQtUiDynLayerStateCmdImpl::fill()
{
    {
        // One change of the selection at the end instead of one a row.
        const QSignalBlocker quiet(m_table);
        m_table->setUpdatesEnabled(false);
        m_currentItem = nullptr;
        m_table->clearContents();
        m_table->setRowCount(0);
        if (const VnJsonPtr node = manager())
            m_statusLabel->setText(tr("当前图层状态: %1").arg(text(node, "currentLState")));
        const VnJsonPtr list = states();
        const int count = list.ArrayCount();
        m_table->setRowCount(count);
        int rows = 0;
        for (int i = 0; i < count; ++i) {
            const VnJsonPtr state = list(i);
            const bool fromReference =
                isSameName(text(state, kSpace), vnutOdStringToQString(kFromReference));
            if (!fromReference || !m_referenceBox->isChecked())
                showState(rows++, state);
        }
        m_table->setRowCount(rows);
        if (rows > 0)
            m_table->selectRow(rows - 1);
        m_table->setUpdatesEnabled(true);
    }
    slot_TableitemSelectionChanged();
}

void VnQtUiDynLayerStateCmdImpl::showState(int row, const VnJsonPtr& state)
{
    const QString texts[] = {text(state, kName), text(state, kSpace),
        state->GetDataB("isSame2DWG") ? tr("是") : tr("否"), text(state, kDescription)};
    for (int column = 0; column < kColumnCount; ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        item->setTextAlignment(Qt::AlignCenter);
        m_table->setItem(row, column, item);
    }
}

/// In the order in which they were selected.
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
    const QString fromReference = vnutOdStringToQString(kFromReference);
    const std::vector<int> rows = selectedRows();
    const bool anyFromReference = std::any_of(rows.begin(), rows.end(),
        [&](int row) { return m_table->item(row, kSpaceColumn)->text() == fromReference; });
    enableFor(rows.size() != 1, rows.empty() || anyFromReference);
    if (rows.size() == 1)
        showMask(nameAt(rows.front()));
}

void VnQtUiDynLayerStateCmdImpl::enableFor(bool multi, bool fromReference)
{
    constexpr OdInt16 kModelSpace = 1;
    for (QAbstractButton* box : m_maskGroup->buttons()) {
        box->setChecked(false);
        box->setEnabled(!multi);
    }
    for (QAbstractButton* button : m_selectGroup->buttons())
        button->setEnabled(!multi);
    for (QPushButton* button :
        {m_saveButton, m_editButton, m_renameButton, m_deleteButton, m_exportButton})
        button->setEnabled(!multi);
    if (multi && !fromReference)
        m_deleteButton->setEnabled(true);
    m_restoreButton->setEnabled(!multi);
    m_turnOffBox->setEnabled(!multi);
    m_overrideBox->setEnabled(!multi);
    const OdInt16 tileMode = getVar(L"TILEMODE");
    if (fromReference) {
        for (QPushButton* button :
            {m_saveButton, m_editButton, m_renameButton, m_deleteButton, m_exportButton})
            button->setEnabled(false);
    }
    if (tileMode == kModelSpace) {
        m_maskGroup->button(kViewportBit)->setEnabled(false);
        m_overrideBox->setEnabled(false);
    } else {
        m_maskGroup->button(kOnOffBit)->setEnabled(false);
        m_maskGroup->button(kFreezeBit)->setEnabled(false);
    }
}

void VnQtUiDynLayerStateCmdImpl::showMask(const QString& name)
{
    const VnJsonPtr list = states();
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        if (!isSameName(text(list(i), kName), name))
            continue;
        const int shown = list(i)->GetDataI("LayerStateMaskIs", 0);
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

bool VnQtUiDynLayerStateCmdImpl::send(
    int code, const VnQtArgumentWriter& writeArguments, std::vector<const char*> answers)
{
    VnQtRequest request;
    request.code = code;
    request.parameter = kManagerElement;
    request.answers = std::move(answers);
    return canRequest() && vnqtSendRequest(manager(), invoker(), objectName().toUtf8().constData(),
                               request, writeArguments);
}

void VnQtUiDynLayerStateCmdImpl::slot_RestoreBtnBtnClicked(bool)
{
    m_currentItem = m_table->item(m_table->currentRow(), kNameColumn);
    if (!m_currentItem)
        return;
    const QString name = m_currentItem->text();
    const bool overrides = m_overrideBox->isEnabled() && m_overrideBox->isChecked();
    const auto arguments = [&](IElementValueBase& node) {
        // The one is a number and the other a bool; commands rely on it.
        node.set("LStateRestoreName", od(name))
            .set("LStateTCheckBox", m_turnOffBox->isChecked() ? 1 : 0)
            .set("LStateWCheckBox", overrides)
            .set(kMaskKey, mask());
    };
    if (send(kRestore, arguments, {"LayerStateOKClose"}) &&
        manager()->GetDataB("LayerStateOKClose"))
        endDialog(1);
}

void VnQtUiDynLayerStateCmdImpl::slot_tableitDoubleClicked(QTableWidgetItem*)
{
    slot_RestoreBtnBtnClicked(false);
}

void VnQtUiDynLayerStateCmdImpl::slot_NewBtnClicked(bool)
{
    const VnJsonPtr node = manager();
    const VnJsonPtr answer =
        vnuiShowModelDialogEx(kService, L"Dialog/CmdLayerStateNew", node, invoker(), this);
    if (answer->GetDataI("result") != 1 || !node || !canRequest())
        return;
    send(kCreate, {});
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_SaveBtnClicked(bool)
{
    const QString name = selectedName();
    if (!answersYes(L"图层 - 覆盖图层状态", tr("是否要覆盖%1?").arg(name)) || !canRequest())
        return;
    send(kSave, [&](IElementValueBase& node) {
        node.set("LayerStateSaveName", od(name)).set(kMaskKey, mask());
    });
    fill();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (nameAt(row) == name) {
            m_table->setCurrentCell(row, kNameColumn);
            break;
        }
    }
}

void VnQtUiDynLayerStateCmdImpl::slot_EditBtnClicked(bool)
{
    if (!canRequest())
        return;
    const QString name = selectedName();
    VnQtRequest request;
    request.code = kPrepareEdit;
    request.parameter = kEditElement;
    vnqtSendRequest(element(data(), kEditElement), invoker(), objectName().toUtf8().constData(),
        request, [&](IElementValueBase& node) { node.set("selectItemName", od(name)); });
    vnuiShowModelDialogEx(kService, L"Dialog/CmdLayerStateEdit", data(), invoker(), this);
}

void VnQtUiDynLayerStateCmdImpl::slot_RenameBtnClicked(bool)
{
    m_currentItem = m_table->item(m_table->currentRow(), kNameColumn);
    if (!m_currentItem)
        return;
    m_oldName = m_currentItem->text();
    const VnJsonPtr answer = askForText(m_oldName);
    if (!answer->GetDataB("Success") || !canRequest())
        return;
    const QString name = text(answer, "NewName");
    if (!acceptNewName(name) || isSameName(name, m_oldName))
        return;
    send(kRename, [&](IElementValueBase& node) {
        node.set("OldName", od(m_oldName)).set("NewName", od(name));
    });
    fill();
}

bool VnQtUiDynLayerStateCmdImpl::acceptNewName(const QString& name)
{
    const auto refuse = [](const OdString& text, const wchar_t* caption) {
        vnuiMessageBox(text, caption, kVnIconInformation);
        return false;
    };
    if (name.isEmpty())
        return refuse(L"名称 必须至少有一个字符长。", L"图层状态 - 文字长度");
    if (holdsForbiddenCharacter(name))
        return refuse(badCharactersText(), kBadCharactersCaption);
    if (isSameName(name, m_oldName))
        return true;
    const VnJsonPtr list = states();
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        if (isSameName(name, text(list(i), kName)))
            return refuse(
                od(tr("名称 %1 已在使用。").arg(name) + QStringLiteral("\n您需要输入其他名称。")),
                L"图层状态 - 名称已经存在");
    }
    return true;
}

void VnQtUiDynLayerStateCmdImpl::slot_tableitClickedDesc(QTableWidgetItem* item)
{
    const std::vector<int> rows = selectedRows();
    if (rows.empty() || !item || item != m_table->item(rows.front(), kDescriptionColumn))
        return;
    const QString name = nameAt(rows.front());
    const VnJsonPtr answer = askForText(item->text());
    if (!answer->GetDataB("Success") || !canRequest())
        return;
    send(kDescribe, [&](IElementValueBase& node) {
        node.set("OldName", od(name)).set("NewDescName", answer->GetDataSW("NewName"));
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_DeleteBtnClicked(bool)
{
    QStringList names;
    for (const int row : selectedRows())
        names += nameAt(row);
    if (names.size() == 1)
        deleteOne(names.first());
    else
        deleteSeveral(names);
}

void VnQtUiDynLayerStateCmdImpl::deleteOne(const QString& name)
{
    if (answersYes(kDeleteCaption, tr("是否确实要删除 %1?").arg(name)))
        sendDeletion(name);
}

void VnQtUiDynLayerStateCmdImpl::deleteSeveral(const QStringList& names)
{
    for (int i = 0; i < names.size(); ++i) {
        const QString question = tr("是否确实要删除图层状态 %1?").arg(names.at(i));
        switch (ask(kDeleteCaption, od(question), {L"是", L"全部删除", L"否", L"取消"}, kStop)) {
        case kDeleteThis:
            sendDeletion(names.at(i));
            break;
        case kDeleteAll:
            sendDeletions(names.mid(i));
            return;
        case kKeepThis:
            break;
        default:
            return;
        }
    }
}

void VnQtUiDynLayerStateCmdImpl::sendDeletion(const QString& name)
{
    send(kDelete, [&](IElementValueBase& node) {
        node.set("DeleteNameOne", true).set("LayerStateDeleteName", od(name));
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::sendDeletions(const QStringList& names)
{
    const VnJsonPtr list = ElementValue::createArray(names.size());
    for (const QString& name : names) {
        const VnJsonPtr entry = ElementValue::createObject(1);
        entry->set("LayerSDeleteName", od(name));
        list->Append(entry);
    }
    send(kDelete, [&](IElementValueBase& node) {
        node.set("DeleteNameOne", false).SetDataJ("LayerStateDeleteNames", list);
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_ImportBtnClicked(bool)
{
    const VnJsonPtr answer =
        askForFile(fileQuestion("输入图层状态",
                       L"图形(*.dwg);;标准(*.dws);;图形样板(*.dwt);;图层状态(*.las)", true),
            this);
    const VnJsonPtr paths = answer->GetDataJ("filePaths");
    if (answer->GetDataI("result") != 1 || !paths)
        return;
    const auto arguments = [&](IElementValueBase& node) {
        node.SetDataJ("LStatefilePaths", paths);
        node.SetDataJ("LayerStateList1", node.GetDataJ(kList));
        node.set("LStateRefLayer", m_referenceBox->isChecked());
    };
    const bool answered = send(kImport, arguments,
        {"LayerStateListHaveRef", "LayerStateListRefOK", "LayerStateYesNoRestore"});
    m_importAnswer = answered ? manager()->GetDataJ("LayerStateListHaveRef") : VnJsonPtr();
    if (!answered || !manager()->GetDataB("LayerStateListRefOK"))
        return;
    fill();
    if (manager()->GetDataB("LayerStateYesNoRestore"))
        slot_RestoreBtnBtnClicked(false);
}

void VnQtUiDynLayerStateCmdImpl::slot_ExportBtnClicked(bool)
{
    const QString name = nameAt(m_table->currentRow());
    const VnJsonPtr question = fileQuestion("输出图层状态", kStateFilter, false);
    if (m_table->currentRow() >= 0)
        question->set("dir", od(name));
    const VnJsonPtr answer = askForFile(question, this);
    const OdString path = answer->GetDataSW("filePath");
    if (answer->GetDataI("result") != 1 || path.isEmpty() || !canRequest())
        return;
    VnQtRequest request;
    request.code = kExport;
    request.parameter = kManagerElement;
    vnqtSendRequest(answer, invoker(), objectName().toUtf8().constData(), request,
        [&](IElementValueBase& node) {
            node.set("LStatefilePathsSW", path).set("LStateName", od(name));
        });
}

void VnQtUiDynLayerStateCmdImpl::slot_checkboxstateChangedRef(int)
{
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
