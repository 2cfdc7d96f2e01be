#include "vnqtlaytransuidlg.h"

#include "vnqtlaytranslistwgt.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

// Builds the translator's window; its behaviour is implemented elsewhere.

namespace vnsi {

namespace {

constexpr char kFromHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtUiLaytransCmd",
    "在当前图形中指定要转换的图层。可以通过在“转换自”列表中选择图层或通过提供选择\n"
    "过滤器指定图层。");
constexpr char kToHelp[] =
    QT_TRANSLATE_NOOP("vnsi::VnQtUiLaytransCmd", "列出可以将当前图形的图层转换为哪些图层。");
constexpr char kFilterHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtUiLaytransCmd",
    "用可包括通配符的命名方式，在“转换自”列表中指定要选择的图层。有关有效通配符的列表，\n"
    "请参见《用户手册》的对图层列表进行过滤和排序中的表格。由选择过滤器指示的图层与之\n"
    "前选择的任意图层一起选定。");
constexpr char kTableHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtUiLaytransCmd",
    "列出要转换的所有图层以及图层转换后所具有的特性。可以在该列表中选择图层，\n"
    "然后使用“编辑”编辑图层特性。");

} // namespace

struct VnQtUiLaytransCmd::ButtonRow
{
    QPushButton* VnQtUiLaytransCmd::*button;
    const char* objectName;
    const char* text;
    const char* help; ///< Null for no tool tip.
    void (VnQtUiLaytransCmd::*slot)();
};

/// An entry of a context menu. An entry without a text is a separator.
struct VnQtUiLaytransCmd::ActionRow
{
    const char* text;
    void (VnQtUiLaytransCmd::*slot)();
};

const VnQtUiLaytransCmd::ButtonRow VnQtUiLaytransCmd::kButtons[] = {
    {&VnQtUiLaytransCmd::m_selectButton, "selectButton", QT_TR_NOOP("选择(&C)"),
        QT_TR_NOOP("选择在“选择过滤器”中指定的图层。"),
        &VnQtUiLaytransCmd::slot_pbFromSelectClicked},
    {&VnQtUiLaytransCmd::m_mapButton, "mapButton", QT_TR_NOOP("映射(&M)"),
        QT_TR_NOOP("将“转换自”中选定的图层映射到“转换为”中选定的图层。"),
        &VnQtUiLaytransCmd::slot_m_pbMapClicked},
    {&VnQtUiLaytransCmd::m_mapSameButton, "mapSameButton", QT_TR_NOOP("映射相同(&A)"),
        QT_TR_NOOP("映射在两个列表中具有相同名称的所有图层。"),
        &VnQtUiLaytransCmd::slot_m_pbMapSameClicked},
    {&VnQtUiLaytransCmd::m_loadButton, "loadButton", QT_TR_NOOP("加载(&L)..."),
        QT_TR_NOOP("使用图形、图形样板或所指定的标准文件加载“转换为”列表中的图层。如果指定的文件"
                   "包含保存过的图层映射，\n则那些映射将被应用到“转换自”列表中的图层上，并且显示在"
                   "“图层转换映射”中。"),
        &VnQtUiLaytransCmd::slot_m_pbLoadClicked},
    {&VnQtUiLaytransCmd::m_newButton, "newButton", QT_TR_NOOP("新建(&N)..."),
        QT_TR_NOOP("定义一个要在“转换为”列表中显示并用于转换的新图层。如果在选择“新建”之前选择“转"
                   "换为”图层，\n则选定图层的特性将作为新图层的默认特性使用。不能使用与现有图层相"
                   "同的名称创建新图层。"),
        &VnQtUiLaytransCmd::slot_m_pbNewClicked},
    {&VnQtUiLaytransCmd::m_editButton, "editButton", QT_TR_NOOP("编辑(&E)"),
        QT_TR_NOOP("打开“编辑图层”对话框，从中可以编辑选定择的转换映射。可以修改图层的线型、颜色和"
                   "线宽。\n如果涉及转换的所有图形均采用打印样式，则还可以为映射修改此打印样式。"),
        &VnQtUiLaytransCmd::slot_m_pbMapListEdit},
    {&VnQtUiLaytransCmd::m_deleteButton, "deleteButton", QT_TR_NOOP("删除(&R)"),
        QT_TR_NOOP("从“图层转换贴图”列表中删除选定的转换贴图。"),
        &VnQtUiLaytransCmd::slot_m_pbMapListDelete},
    {&VnQtUiLaytransCmd::m_saveButton, "saveButton", QT_TR_NOOP("保存(&S)"),
        QT_TR_NOOP("将当前图层转换贴图保存为一个文件以便日后使用。"),
        &VnQtUiLaytransCmd::slot_m_pbMapListSave},
    {&VnQtUiLaytransCmd::m_settingButton, "settingButton", QT_TR_NOOP("设置(&G)..."),
        QT_TR_NOOP("打开“设置”对话框，从中可以自定义图层转换的过程。"),
        &VnQtUiLaytransCmd::slot_LtransBtnSettingClicked},
    {&VnQtUiLaytransCmd::m_translateButton, "translateButton", QT_TR_NOOP("转换(&T)"),
        QT_TR_NOOP("开始对已映射图层进行图层转换。"), &VnQtUiLaytransCmd::slot_LtransBtnOkClicked},
    {&VnQtUiLaytransCmd::m_cancelButton, "cancelButton", QT_TR_NOOP("取消"), nullptr,
        &VnQtUiLaytransCmd::slot_LtransBtnCancelClicked},
    {&VnQtUiLaytransCmd::m_helpButton, "helpButton", QT_TR_NOOP("帮助(&H)"), nullptr,
        &VnQtUiLaytransCmd::slot_LtransBtnApplyClicked},
};

const VnQtUiLaytransCmd::ActionRow VnQtUiLaytransCmd::kFromActions[] = {
    {QT_TR_NOOP("全部选择(&S)"), &VnQtUiLaytransCmd::slot_FromListMenuActionAllSelect},
    {QT_TR_NOOP("全部清除(&C)"), &VnQtUiLaytransCmd::slot_FromListMenuActionAllNoSelect},
    {nullptr, nullptr},
    {QT_TR_NOOP("清理图层(&P)"), &VnQtUiLaytransCmd::slot_FromListMenuActionCleanlayer},
};

const VnQtUiLaytransCmd::ActionRow VnQtUiLaytransCmd::kToActions[] = {
    {QT_TR_NOOP("加载(&L)..."), &VnQtUiLaytransCmd::slot_ToListMenuActionload},
    {QT_TR_NOOP("新建(&N)..."), &VnQtUiLaytransCmd::slot_ToListMenuActionNew},
};

// Two entries share the mnemonic R on purpose.
const VnQtUiLaytransCmd::ActionRow VnQtUiLaytransCmd::kMapActions[] = {
    {QT_TR_NOOP("编辑(&E)..."), &VnQtUiLaytransCmd::slot_MenuMapListEdit},
    {QT_TR_NOOP("删除(&R)"), &VnQtUiLaytransCmd::slot_MenuMapListDelete},
    {QT_TR_NOOP("全部删除(&R)"), &VnQtUiLaytransCmd::slot_MenuMapListAllDelete},
};

VnQtUiLaytransCmd::VnQtUiLaytransCmd(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("图层转换器"));
    setMinimumSize(640, 480);
}

bool VnQtUiLaytransCmd::initDialog()
{
    makeWidgets();
    auto* lists = new QHBoxLayout;
    lists->addWidget(makeFromGroup(), 1);
    lists->addLayout(makeMapColumn());
    lists->addWidget(makeToGroup(), 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(lists, 3);
    layout->addWidget(makeMapGroup(), 2);
    layout->addLayout(makeBottomRow());
    orderTabs();
    connectWidgets();
    resize(900, 680);
    return true;
}

void VnQtUiLaytransCmd::makeWidgets()
{
    m_fromList = new VnQtLaytransListWgt(this);
    m_fromList->setObjectName(QStringLiteral("fromList"));
    m_fromList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_fromList->setToolTip(tr(kFromHelp));
    addActions(m_fromList->menu(), kFromActions);
    m_filterEdit = new QLineEdit(this);
    m_filterEdit->setObjectName(QStringLiteral("filterEdit"));
    m_filterEdit->setToolTip(tr(kFilterHelp));
    m_toList = new VnQtLaytransListWgt(this);
    m_toList->setObjectName(QStringLiteral("toList"));
    m_toList->setToolTip(tr(kToHelp));
    addActions(m_toList->menu(), kToActions);
    m_table = new VnQtLaytransQTableWgt(this);
    m_table->setObjectName(QStringLiteral("mapTable"));
    m_table->setToolTip(tr(kTableHelp));
    m_mapMenu = new QMenu(m_table);
    m_mapMenu->setObjectName(QStringLiteral("mapMenu"));
    addActions(*m_mapMenu, kMapActions);
    makeButtons();
}

void VnQtUiLaytransCmd::makeButtons()
{
    for (const ButtonRow& row : kButtons) {
        auto* button = new QPushButton(tr(row.text), this);
        button->setObjectName(QLatin1String(row.objectName));
        button->setToolTip(row.help ? tr(row.help) : QString());
        button->setAutoDefault(false); // Enter in the filter must not start the translation.
        connect(button, &QPushButton::clicked, this, row.slot);
        this->*row.button = button;
    }
}

template <std::size_t count>
void VnQtUiLaytransCmd::addActions(QMenu& menu, const ActionRow (&rows)[count])
{
    for (const ActionRow& row : rows) {
        if (row.text)
            connect(menu.addAction(tr(row.text)), &QAction::triggered, this, row.slot);
        else
            menu.addSeparator();
    }
}

QWidget* VnQtUiLaytransCmd::makeFromGroup()
{
    auto* group = new QGroupBox(tr("转换自(&F)"), this);
    auto* label = new QLabel(tr("选择过滤器(&I)"), group);
    label->setBuddy(m_filterEdit);
    auto* filter = new QHBoxLayout;
    filter->addWidget(m_filterEdit);
    filter->addWidget(m_selectButton);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(m_fromList);
    layout->addWidget(label);
    layout->addLayout(filter);
    return group;
}

QBoxLayout* VnQtUiLaytransCmd::makeMapColumn()
{
    auto* column = new QVBoxLayout;
    column->addStretch();
    column->addWidget(m_mapButton);
    column->addWidget(m_mapSameButton);
    column->addStretch();
    return column;
}

QWidget* VnQtUiLaytransCmd::makeToGroup()
{
    auto* group = new QGroupBox(tr("转换为(&O)"), this);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_loadButton);
    buttons->addWidget(m_newButton);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(m_toList);
    layout->addLayout(buttons);
    return group;
}

QWidget* VnQtUiLaytransCmd::makeMapGroup()
{
    auto* group = new QGroupBox(tr("图层转换映射(&Y)"), this);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_editButton, m_deleteButton, m_saveButton})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(m_table);
    layout->addLayout(buttons);
    return group;
}

QBoxLayout* VnQtUiLaytransCmd::makeBottomRow()
{
    auto* row = new QHBoxLayout;
    row->addWidget(m_settingButton);
    row->addStretch();
    for (QPushButton* button : {m_translateButton, m_cancelButton, m_helpButton})
        row->addWidget(button);
    return row;
}

/// Sets the tab order group by group as the window is read.
void VnQtUiLaytransCmd::orderTabs()
{
    QWidget* const order[] = {m_fromList, m_filterEdit, m_selectButton, m_mapButton,
        m_mapSameButton, m_toList, m_loadButton, m_newButton, m_table, m_editButton, m_deleteButton,
        m_saveButton, m_settingButton, m_translateButton, m_cancelButton, m_helpButton};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void VnQtUiLaytransCmd::connectWidgets()
{
    using Self = VnQtUiLaytransCmd;
    connect(m_filterEdit, &QLineEdit::textChanged, this, &Self::slot_LineEditTextChanged);
    connect(m_filterEdit, &QLineEdit::returnPressed, m_selectButton, &QPushButton::click);
    connect(m_fromList, &QListWidget::itemClicked, this, &Self::onListWidgeFromClickedItem);
    connect(m_toList, &QListWidget::currentRowChanged, this, &Self::onListWidgeToClicked);
    connect(m_toList, &QListWidget::itemDoubleClicked, this, &Self::onListWidgeToDoubleClicked);
    connect(m_table, &QTableWidget::itemClicked, this, &Self::slot_MapListItemClicked);
    connect(m_table, &QTableWidget::itemDoubleClicked, this, &Self::slot_MapListDoubleClicked);
    connect(m_table, &QTableWidget::customContextMenuRequested, this, &Self::slot_ShowMapMenu);
}

} // namespace vnsi
