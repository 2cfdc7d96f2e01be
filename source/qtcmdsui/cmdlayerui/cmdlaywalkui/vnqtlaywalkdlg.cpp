#include "vnqtlaywalkdlg.h"

#include "cmdlayerstateui/statetexts.h"
#include "dialoghelp.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "moduletexts.h"
#include "vnqtlaywalklistwgt.h"
#include "vnstrings.h"
#include "walksettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace vnsi {

namespace {

using Rows = VnQtLayWalkListWgt::Rows;

constexpr char kListHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkDlg",
    "<body>"
    "如果过滤器处于活动状态，则将显示该过滤器中定义的图层列表。如果无过滤器处于活动状态，则将显"
    "示图形中的图层列表。双击图层以将其设置为“总显示”(将在图层左侧显示星号)"
    "。在图层列表中单击鼠标右键"
    "键以显示更多选项。</body>");
constexpr char kFilterBoxHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkDlg",
    "<body>"
    "打开和关闭活动过滤器。选定该复选框时，列表将仅显示那些与活动过滤器匹配的图层。清除该复选框"
    "时，将显示完整的图层列表。(仅当存在活动过滤器时，该选项才可用。)"
    "若要打开活动的过滤器，请在过滤器"
    "列表中输入通配符并按ENTER键，或选择已保存的过滤器。</body>");
constexpr char kFilterHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkDlg",
    "<body>"
    "过滤图层列表。输入通配符并按ENTER键，来仅显示并亮显那些名称与通配符匹配的图层。单击鼠标右键"
    "保存和删除过滤器。过滤器列表仅显示已保存的过滤器。</body>");
constexpr char kPurgeHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkDlg",
    "<body>"
    "当选定未参照的图层时，将其从图层中清理掉。有关可清理图层的列表，请在“图层”列表中的任意处单击"
    "鼠标右键，然后单击“选择未参照的图层”。“图层”列表中将亮显未参照的图层。可以清理这些图层。</"
    "body>");
constexpr char kRestoreHelp[] = QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkDlg",
    "<body>退出该对话框时，将图层恢复为先前的状态。如果清除该复选框，则将保存所做的任何更改。</"
    "body>");

constexpr char kCloseQuestion[] =
    QT_TRANSLATE_NOOP("cmdlayerui", "关闭对话框时某些图层状态可能会发生更改。希望执行什么操\n作？"
                                    "\n您可以通过选择\"退出时恢复\"选项保留以前的图层状态设置。");
enum CloseAnswer { kNoAnswer = -1, kGoOn = 0 };

constexpr int kLongestPattern = 1 << 24; // Large enough for the names of all layers.

bool asksToGoOn()
{
    const QString caption = Texts::tr("图层 - 图层状态更改");
    const QStringList buttons{Texts::tr("继续"), Texts::tr("取消")};
    return layerstates::ask(
               caption, Texts::tr(kCloseQuestion), buttons, kNoAnswer, kVnIconQuestion) == kGoOn;
}

} // namespace

VnQtLayWalkDlg::VnQtLayWalkDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setMinimumSize(320, 360);
}

bool VnQtLayWalkDlg::initDialog()
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeFilterRow());
    m_list = new VnQtLayWalkListWgt(this);
    m_list->setObjectName(QStringLiteral("layerList"));
    m_list->setToolTip(tr(kListHelp));
    m_list->setAccessibleName(tr("图层"));
    layout->addWidget(m_list);
    layout->addLayout(makeButtonRow());
    m_list->setFocus();

    makeActions();
    connectWidgets();
    return true;
}

QLayout* VnQtLayWalkDlg::makeFilterRow()
{
    auto* pick = new QToolButton(this);
    pick->setObjectName(QStringLiteral("pickButton"));
    pick->setIcon(QIcon(QStringLiteral(":/res/Resources/layer_pick.bmp")));
    pick->setToolTip(tr("选择对象\n选择对象及其图层。"));
    pick->setAccessibleName(tr("选择对象"));
    m_filterBox = new QCheckBox(tr("过滤器(&F)"), this);
    m_filterBox->setObjectName(QStringLiteral("filterBox"));
    m_filterBox->setToolTip(tr(kFilterBoxHelp));
    m_filters = new QComboBox(this);
    m_filters->setObjectName(QStringLiteral("filterCombo"));
    m_filters->setToolTip(tr(kFilterHelp));
    m_filters->setAccessibleName(tr("过滤器的通配符"));
    m_filters->setEditable(true);
    // Only the menu saves a pattern, and it refuses duplicates. With duplicates disabled here,
    // ENTER would select a saved pattern that differs in letter case from the typed one.
    m_filters->setInsertPolicy(QComboBox::NoInsert);
    m_filters->setDuplicatesEnabled(true);
    m_filters->setCompleter(nullptr);
    m_filters->lineEdit()->setMaxLength(kLongestPattern);
    m_filters->lineEdit()->setContextMenuPolicy(Qt::CustomContextMenu);
    m_filters->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // Patterns may be long.

    auto* row = new QHBoxLayout;
    row->addWidget(pick);
    row->addWidget(m_filterBox);
    row->addWidget(m_filters, 1);
    connect(pick, &QToolButton::clicked, this, &VnQtLayWalkDlg::slot_PickBtnClicked);
    return row;
}

QLayout* VnQtLayWalkDlg::makeButtonRow()
{
    const auto make = [this](const QString& text, const char* objectName) {
        auto* button = new QPushButton(text, this);
        button->setObjectName(QLatin1String(objectName));
        button->setAutoDefault(false); // ENTER is meant for the filter.
        return button;
    };
    m_purge = make(tr("清除(&P)"), "purgeButton");
    m_purge->setToolTip(tr(kPurgeHelp));
    m_restore = new QCheckBox(tr("退出时恢复(&R)"), this);
    m_restore->setObjectName(QStringLiteral("restoreBox"));
    m_restore->setToolTip(tr(kRestoreHelp));
    m_restore->setChecked(true); // A walk only looks at a drawing and should not change it.
    auto* close = make(tr("关闭(&C)"), "closeButton");
    auto* help = make(tr("帮助(&H)"), "helpButton");

    auto* row = new QHBoxLayout;
    row->addWidget(m_purge);
    row->addWidget(m_restore);
    row->addStretch();
    row->addWidget(close);
    row->addWidget(help);
    connect(m_purge, &QPushButton::clicked, this, &VnQtLayWalkDlg::slot_ClearBtnClicked);
    connect(close, &QPushButton::clicked, this, &VnQtLayWalkDlg::slot_CancelBtnClicked);
    connect(help, &QPushButton::clicked, this, &VnQtLayWalkDlg::slot_HelpBtnClicked);
    return row;
}

void VnQtLayWalkDlg::connectWidgets()
{
    using Self = VnQtLayWalkDlg;
    connect(m_list, &QListWidget::itemClicked, this, &Self::slot_LayerListItemClicked);
    connect(m_list, &VnQtLayWalkListWgt::selectionEdited, this,
        [this] { slot_LayerListItemClicked(); });
    connect(m_list, &QListWidget::itemDoubleClicked, this, &Self::slot_LayerListItemDoubleClicked);
    connect(m_list, &QWidget::customContextMenuRequested, this,
        &Self::slot_LayerListCustomContextMenuRequested);
    connect(m_filterBox, &QCheckBox::clicked, this, &Self::slot_FilterCheckBtnClicked);
    connect(m_filters, QOverload<int>::of(&QComboBox::activated), this,
        &Self::slot_FilterComboBoxActivated);
    connect(m_filters, &QComboBox::editTextChanged, this, &Self::slot_FilterComboBoxTextChanged);
    QLineEdit* const edit = m_filters->lineEdit();
    connect(edit, &QLineEdit::returnPressed, this, &Self::slot_FilterComboBoxReturnPressed);
    // Without this the combo box would treat a saved pattern in its edit line as a chosen entry
    // whenever the focus leaves it, and a second time when ENTER is pressed.
    disconnect(edit, &QLineEdit::editingFinished, m_filters, nullptr);
    connect(edit, &QWidget::customContextMenuRequested, this, [this, edit](const QPoint& point) {
        updateActions();
        m_filterMenu->popup(edit->mapToGlobal(point));
    });
}

bool VnQtLayWalkDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    m_given = LayerTreeMark(data ? data->GetDataJ(walkkey::kLayers) : VnJsonPtr());
    m_layers.take(m_given.tree);
    m_kept = hostapi::copyOf(m_layers.tree());
    loadSettings();
    fillAndSelectVisible();
    settle();
    m_purge->setEnabled(false);
    return true;
}

QString VnQtLayWalkDlg::rowText(int index) const
{
    return (m_layers.isPinned(index) ? QStringLiteral("* ") : QStringLiteral("  ")) +
           vnutOdStringToQString(m_layers.name(index));
}

/// Fills the list with one row for each layer that passes the filter.
void VnQtLayWalkDlg::fill()
{
    m_rows.clear();
    QStringList texts;
    for (int i = 0; i < m_layers.count(); ++i) {
        if (m_filter.isOn && !m_filter.letThrough[static_cast<std::size_t>(i)])
            continue;
        m_rows.push_back(i);
        texts.append(rowText(i));
    }
    m_list->setTexts(texts);
    updateTitle();
}

void VnQtLayWalkDlg::fillAndSelectVisible()
{
    fill();
    m_list->selectRows(rowsOf(m_layers.choiceOf(&WalkLayers::isVisible)));
}

void VnQtLayWalkDlg::updateTitle()
{
    const int all = m_layers.count();
    setWindowTitle(m_filter.isOn
                       ? tr("图层漫游 - 图层: 第 %1 层，共 %2 层").arg(m_rows.size()).arg(all)
                       : tr("图层漫游 - 图层数: %1").arg(all));
}

WalkLayers::Choice VnQtLayWalkDlg::recordsOf(const Rows& rows) const
{
    WalkLayers::Choice records(static_cast<std::size_t>(m_layers.count()));
    for (std::size_t row = 0; row < rows.size(); ++row)
        records[static_cast<std::size_t>(m_rows[row])] = rows[row];
    return records;
}

Rows VnQtLayWalkDlg::rowsOf(const WalkLayers::Choice& records) const
{
    Rows rows(m_rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row] = records[static_cast<std::size_t>(m_rows[row])];
    return rows;
}

WalkLayers::Choice VnQtLayWalkDlg::selectedRecords() const
{
    return recordsOf(m_list->selectedRows());
}

void VnQtLayWalkDlg::slot_LayerListItemClicked(QListWidgetItem*)
{
    if (!m_list->hasSelection() || !m_layers.tree()) {
        m_purge->setEnabled(false);
        settle();
        return;
    }
    const OdString oldCurrent = m_layers.currentName();
    m_layers.showOnly(selectedRecords());
    walk(oldCurrent);
}

/// A double click applies to the rows that its first click selected. The command may have returned
/// new layers since then, which selects all visible ones.
void VnQtLayWalkDlg::slot_LayerListItemDoubleClicked(QListWidgetItem* item)
{
    if (m_list->clickedRows().size() == m_rows.size())
        m_list->selectRows(m_list->clickedRows());
    if (item->text().startsWith(QLatin1Char('*')))
        slot_ReleaseSelActionTriggered();
    else
        slot_KeepSelActionTriggered();
}

QString VnQtLayWalkDlg::pattern() const
{
    return m_filters->currentText();
}

/// An active filter stays active while the user types another pattern.
void VnQtLayWalkDlg::slot_FilterComboBoxTextChanged(const QString& text)
{
    m_filterBox->setEnabled(!text.isEmpty());
}

/// Choosing or entering a pattern turns the filter on; an empty pattern turns it off.
void VnQtLayWalkDlg::slot_FilterComboBoxReturnPressed()
{
    m_filterBox->setChecked(!pattern().isEmpty());
    applyFilter();
}

void VnQtLayWalkDlg::slot_FilterComboBoxActivated(int)
{
    slot_FilterComboBoxReturnPressed();
}

void VnQtLayWalkDlg::slot_FilterCheckBtnClicked()
{
    applyFilter();
}

void VnQtLayWalkDlg::applyFilter()
{
    m_filter.isOn = m_filterBox->isChecked();
    m_list->setTexts({}); // The rows are replaced, so no position in the list is worth keeping.
    if (!m_filter.isOn) {
        fillAndSelectVisible();
        apply();
        return;
    }
    m_filter.pattern = pattern();
    m_filter.letThrough = m_layers.matching(vnutQStringToOdString(m_filter.pattern));
    for (int i = 0; i < m_layers.count(); ++i)
        m_layers.setOff(i, !m_filter.letThrough[static_cast<std::size_t>(i)]);
    fill();
    m_list->selectRows(Rows(m_rows.size(), true));
    apply();
}

void VnQtLayWalkDlg::slot_HelpBtnClicked()
{
    vnqtShowHelp();
}

void VnQtLayWalkDlg::slot_CancelBtnClicked()
{
    reject();
}

void VnQtLayWalkDlg::reject()
{
    saveSettings();
    if (m_restore->isChecked())
        restoreLayers();
    else if (!asksToGoOn())
        return;
    QDialog::reject();
}

void VnQtLayWalkDlg::loadSettings()
{
    const walksettings::Settings settings = walksettings::load();
    if (settings.restores)
        m_restore->setChecked(*settings.restores);
    const QSignalBlocker quiet(m_filters);
    m_filters->clear();
    m_filters->addItems(settings.filters);
    resetFilter();
}

void VnQtLayWalkDlg::saveSettings() const
{
    walksettings::Settings settings{m_restore->isChecked(), {}};
    for (int i = 0; i < m_filters->count(); ++i)
        settings.filters.append(m_filters->itemText(i));
    walksettings::save(settings);
}

/// Clears the pattern and turns the filter off.
void VnQtLayWalkDlg::resetFilter()
{
    const QSignalBlocker quiet(m_filters);
    m_filters->setCurrentIndex(-1);
    m_filters->clearEditText();
    m_filterBox->setChecked(false);
    m_filterBox->setEnabled(false);
    m_filter = {};
}

} // namespace vnsi
