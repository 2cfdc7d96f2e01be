#include "buttongroupclick.h"
#include "vnqtuidynlayerstatecmdimpl.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>

#include <algorithm>

/// The window's layout and the connections of its widgets.
namespace vnsi {

namespace {

constexpr const char* kHeaders[] = {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "名称"),
    QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "空间"),
    QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "与 DWG 相同"),
    QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "说明")};

constexpr int kTableWidth = 360;
constexpr int kHeaderMargin = 10;

/// How wide a column is at least: in pixels, and in characters where the font is a large one. With
/// fonts of the usual sizes all columns fit into the table's agreed width.
struct ColumnWidth
{
    int pixels;
    int characters;
};
constexpr ColumnWidth kColumnWidths[] = {{90, 10}, {66, 7}, {66, 7}, {0, 8}};

struct MaskRow
{
    const char* text;
    StateMask bit;
};

// The order on screen differs from that of the bits, and two entries share the mnemonic P; both are
// intended.
constexpr MaskRow kMaskRows[] = {
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "开/关(&O)"), kMaskOnOff},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "冻结/解冻(&F)"), kMaskFreeze},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "在当前视口中的可见性(&U)"),
        kMaskCurrentViewport},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "锁定/解锁(&K)"), kMaskLock},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "打印/不打印(&P)"), kMaskPlot},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "颜色(&L)"), kMaskColor},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "线型(&P)"), kMaskLinetype},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "线宽(&G)"), kMaskLineweight},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "透明度(&T)"), kMaskTransparency},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "打印样式(&V)"), kMaskPlotStyle},
    {QT_TRANSLATE_NOOP("vnsi::VnQtUiDynLayerStateCmdImpl", "新视口冻结/解冻(&Z)"),
        kMaskNewViewportFreeze},
};

} // namespace

bool VnQtUiDynLayerStateCmdImpl::initDialog()
{
    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(makeListPanel(), 0, 0);
    layout->addWidget(makeMaskPanel(), 0, 1);
    layout->addLayout(makeBottomRow(), 1, 0, 1, 2);
    // The layout's size constraint overrides the minimum size of the window, so the spacer sets it.
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
    // By a key of its own: the table would take it for a search by typing.
    m_deleteKey = new QShortcut(QKeySequence(Qt::Key_Delete), this);
    m_deleteKey->setAutoRepeat(false);
    m_statusLabel = new QLabel(tr("当前图层状态: *未保存*"), panel);
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    m_statusLabel->setTextFormat(Qt::PlainText);

    auto* grid = new QGridLayout(panel);
    grid->setMargin(0);
    grid->setColumnStretch(2, 1);
    auto* label = new QLabel(tr("图层状态(E)"), panel);
    label->setBuddy(m_table);
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_table, 1, 0);
    grid->addLayout(makeButtonColumn(), 1, 1);
    // After the buttons, which Tab reaches before it.
    m_referenceBox = makeCheckBox(QT_TR_NOOP("不列出外部参照中的图层状态(&F)"), "referenceBox");
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
    for (const MaskRow& row : kMaskRows) {
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

void VnQtUiDynLayerStateCmdImpl::setUpTable()
{
    static_assert(std::size(kHeaders) == kColumnCount);
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
    const QFontMetrics metrics = m_table->fontMetrics();
    int width = 2 * m_table->frameWidth();
    for (int column = 0; column < kColumnCount; ++column) {
        const ColumnWidth& least = kColumnWidths[column];
        const int needed = std::max({least.pixels, least.characters * metrics.averageCharWidth(),
            metrics.horizontalAdvance(headers.at(column)) + kHeaderMargin});
        m_table->setColumnWidth(column, needed);
        width += needed;
    }
    // What is left over, the names get.
    const int nameWidth = m_table->columnWidth(kNameColumn) + std::max(0, kTableWidth - width);
    m_table->setColumnWidth(kNameColumn, nameWidth);
    m_table->setFixedWidth(std::max(kTableWidth, width));
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
    connect(m_deleteKey, &QShortcut::activated, m_deleteButton, &QPushButton::click, once);
    connect(m_table, &QTableWidget::cellClicked, this, &Self::slot_TableCellClicked, once);
    connect(m_table, &QTableWidget::itemSelectionChanged, this,
        &Self::slot_TableitemSelectionChanged, once);
    connect(
        m_table, &QTableWidget::itemDoubleClicked, this, &Self::slot_tableitDoubleClicked, once);
    connect(m_table, &QTableWidget::itemClicked, this, &Self::slot_tableitClickedDesc, once);
    connect(
        m_referenceBox, &QCheckBox::stateChanged, this, &Self::slot_checkboxstateChangedRef, once);
    connect(m_selectGroup, buttonClickedWithId(), this, &Self::slot_SelectBtnGroupClicked, once);
}

} // namespace vnsi
