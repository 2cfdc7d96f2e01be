#include "vnqtlaywalkdlg.h"
#include "vnqtlaywalklistwgt.h"
#include "vnstrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>

namespace vnsi {

namespace {

using Rows = VnQtLayWalkListWgt::Rows;

/// A pattern that matches only this name. Special characters are escaped. Once its opening bracket
/// is escaped, the rest of a bracket expression has no special meaning.
QString literally(const QString& name)
{
    const QString signs = QStringLiteral("#@.*?[,`");
    QString pattern;
    for (const QChar c : name) {
        const bool isNot = c == QLatin1Char('~') && pattern.isEmpty();
        if (isNot || signs.contains(c))
            pattern += QLatin1Char('`');
        pattern += c;
    }
    return pattern;
}

} // namespace

/// An entry of the list's menu: what it does, and what it needs in order to be enabled.
struct VnQtLayWalkDlg::ActionRow
{
    const char* text;
    const char* objectName;
    void (VnQtLayWalkDlg::*slot)();
    Need need;
};

constexpr VnQtLayWalkDlg::ActionRow VnQtLayWalkDlg::kActions[] = {
    {QT_TR_NOOP("保持选择(&H)"), "keepAction", &VnQtLayWalkDlg::slot_KeepSelActionTriggered,
        kSelection},
    {QT_TR_NOOP("释放选择(&R)"), "releaseAction", &VnQtLayWalkDlg::slot_ReleaseSelActionTriggered,
        kStarInSelection},
    {QT_TR_NOOP("全部释放(&A)"), "releaseAllAction",
        &VnQtLayWalkDlg::slot_ReleaseSelAllActionTriggered, kAnyStar},
    {QT_TR_NOOP("全部选择(&S)"), "selectAllAction", &VnQtLayWalkDlg::slot_SelAllActionTriggered,
        kAnyRow},
    {QT_TR_NOOP("全部清除(&C)"), "clearAllAction", &VnQtLayWalkDlg::slot_ClearAllActionTriggered,
        kAnyRow},
    {QT_TR_NOOP("反转选择(&I)"), "reverseAction",
        &VnQtLayWalkDlg::slot_ReverseSelALLActionTriggered, kAnyRow},
    {QT_TR_NOOP("选择未参照的图层(&U)"), "selectUnusedAction",
        &VnQtLayWalkDlg::slot_SelNotReferencedActionTriggered, kAnyRow},
    {QT_TR_NOOP("保存图层状态(&V)..."), "saveStateAction",
        &VnQtLayWalkDlg::slot_SavelaystateActionTriggered, kAnyRow},
    {QT_TR_NOOP("检验(&N)..."), "verifyAction", &VnQtLayWalkDlg::slot_CheckActionTriggered,
        kAnyRow},
    {QT_TR_NOOP("复制为过滤器(&O)"), "copyAsFilterAction",
        &VnQtLayWalkDlg::slot_CopyasfilterActionTriggered, kSelection},
    {QT_TR_NOOP("保存当前过滤器(&F)"), "saveFilterAction",
        &VnQtLayWalkDlg::slot_SavefilterActionTriggered, kNewPattern},
    {QT_TR_NOOP("删除当前过滤器(&D)"), "deleteFilterAction",
        &VnQtLayWalkDlg::slot_DelfilterActionTriggered, kSavedPattern},
};

void VnQtLayWalkDlg::makeActions()
{
    m_menu = new QMenu(this);
    m_filterMenu = new QMenu(this);
    for (const ActionRow& row : kActions) {
        QAction* action = m_menu->addAction(tr(row.text), this, row.slot);
        action->setObjectName(QLatin1String(row.objectName));
        if (row.need == kNewPattern || row.need == kSavedPattern)
            m_filterMenu->addAction(action);
    }
}

void VnQtLayWalkDlg::updateActions()
{
    for (QAction* action : m_menu->actions())
        action->setEnabled(false);
    const WalkLayers::Choice selected = selectedRecords();
    const WalkLayers::Choice pinned = m_layers.choiceOf(&WalkLayers::isPinned);
    bool isPinnedSelected = false;
    for (std::size_t i = 0; i < selected.size(); ++i)
        isPinnedSelected = isPinnedSelected || (selected[i] && pinned[i]);
    bool isMet[kNeedCount] = {};
    isMet[kSelection] = m_list->hasSelection();
    isMet[kStarInSelection] = isPinnedSelected;
    isMet[kAnyStar] = WalkLayers::holdsAny(pinned);
    isMet[kAnyRow] = !m_rows.empty();
    isMet[kNewPattern] = !pattern().isEmpty() && savedPattern() < 0;
    isMet[kSavedPattern] = savedPattern() >= 0;
    int at = 0;
    for (QAction* action : m_menu->actions())
        action->setEnabled(isMet[kActions[at++].need]);
}

void VnQtLayWalkDlg::slot_LayerListCustomContextMenuRequested(QPoint point)
{
    updateActions();
    m_menu->popup(m_list->viewport()->mapToGlobal(point));
}

void VnQtLayWalkDlg::pinSelected(bool pinned)
{
    const WalkLayers::Choice selected = selectedRecords();
    for (int i = 0; i < m_layers.count(); ++i) {
        if (selected[static_cast<std::size_t>(i)])
            m_layers.setPinned(i, pinned);
    }
    fill();
    apply();
}

void VnQtLayWalkDlg::slot_KeepSelActionTriggered()
{
    pinSelected(true);
}

void VnQtLayWalkDlg::slot_ReleaseSelActionTriggered()
{
    pinSelected(false);
}

void VnQtLayWalkDlg::slot_ReleaseSelAllActionTriggered()
{
    const WalkLayers::Choice selected = selectedRecords();
    for (int i = 0; i < m_layers.count(); ++i) {
        m_layers.setPinned(i, false);
        if (!selected[static_cast<std::size_t>(i)])
            m_layers.setOff(i, true);
    }
    fill();
    walk();
}

/// Turns on every layer, including those that a filter hides from the list.
void VnQtLayWalkDlg::slot_SelAllActionTriggered()
{
    m_list->selectRows(Rows(m_rows.size(), true));
    for (int i = 0; i < m_layers.count(); ++i)
        m_layers.setOff(i, false);
    walk();
}

void VnQtLayWalkDlg::slot_ClearAllActionTriggered()
{
    m_list->selectRows(Rows(m_rows.size(), false));
    for (int i = 0; i < m_layers.count(); ++i)
        m_layers.setOff(i, true);
    walk();
}

void VnQtLayWalkDlg::slot_ReverseSelALLActionTriggered()
{
    Rows selected = m_list->selectedRows();
    selected.flip();
    m_list->selectRows(selected);
    for (std::size_t row = 0; row < selected.size(); ++row)
        m_layers.setOff(m_rows[row], !selected[row]);
    walk();
}

/// Only selects layers. The drawing does not change, because showing just the unused layers would
/// empty it.
void VnQtLayWalkDlg::slot_SelNotReferencedActionTriggered()
{
    m_list->selectRows(rowsOf(m_layers.choiceOf(&WalkLayers::isUnused)));
    m_purge->setEnabled(m_list->hasSelection());
    settle();
}

void VnQtLayWalkDlg::slot_CopyasfilterActionTriggered()
{
    QStringList patterns;
    const WalkLayers::Choice selected = selectedRecords();
    for (int i = 0; i < m_layers.count(); ++i) {
        if (selected[static_cast<std::size_t>(i)])
            patterns.append(literally(vnutOdStringToQString(m_layers.name(i))));
    }
    m_filters->setEditText(patterns.join(QLatin1Char(',')));
}

/// The entry that equals the pattern exactly; -1 when there is none.
int VnQtLayWalkDlg::savedPattern() const
{
    return m_filters->findText(pattern(), Qt::MatchExactly | Qt::MatchCaseSensitive);
}

void VnQtLayWalkDlg::slot_SavefilterActionTriggered()
{
    if (!pattern().isEmpty() && savedPattern() < 0)
        m_filters->addItem(pattern());
}

void VnQtLayWalkDlg::slot_DelfilterActionTriggered()
{
    if (savedPattern() < 0)
        return;
    // The layers that the filter shows are turned off. A filter that was never on, or that was
    // turned off before the last walk, shows none.
    const bool isUsed = pattern() == m_filter.pattern;
    for (int i = 0; isUsed && i < m_layers.count(); ++i) {
        if (m_filter.letThrough[static_cast<std::size_t>(i)])
            m_layers.turnOff(i);
    }
    m_filter = {};
    m_filterBox->setChecked(false);
    fillAndSelectVisible();
    if (!apply())
        return;
    {
        const QSignalBlocker quiet(m_filters);
        m_filters->removeItem(savedPattern());
    }
    resetFilter();
}

} // namespace vnsi
