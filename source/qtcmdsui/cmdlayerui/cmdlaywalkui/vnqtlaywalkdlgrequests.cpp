// The requests that the walk sends to the running command.

#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "statekeys.h"
#include "vnqtlaywalkdlg.h"
#include "vnqtlaywalklistwgt.h"
#include "vnstrings.h"

#include <QCheckBox>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace vnsi {

namespace {

/// The keys in which the command answers a request.
std::vector<const char*> answersOf(WalkRequest code)
{
    std::vector<const char*> answers = {walkkey::kResult};
    if (code == kWalkCount)
        answers.insert(answers.end(),
            {walkkey::kLayerCount, walkkey::kSelectedCount, walkkey::kSelectedEntities});
    if (code == kWalkPick)
        answers.push_back(walkkey::kPickedNames);
    return answers;
}

VnQtArgumentWriter showingLayers(const OdString& oldCurrent = {})
{
    return [oldCurrent](IElementValueBase& root) {
        root.SetDataB(layerkey::kModified, true);
        hostapi::removeKey(root, walkkey::kOldCurrent); // It may remain from the previous click.
        if (!oldCurrent.isEmpty())
            root.SetDataSW(walkkey::kOldCurrent, oldCurrent);
    };
}

VnJsonPtr arrayOf(const std::vector<OdString>& names)
{
    VnJsonPtr list = hostapi::makeArray(static_cast<int>(names.size()));
    for (const OdString& name : names)
        hostapi::append(list, name);
    return list;
}

} // namespace

/// Sends a request on `layers`. The answer is empty when the command could not be asked, failed or
/// refused.
VnQtAnswer VnQtLayWalkDlg::ask(
    WalkRequest code, const VnJsonPtr& layers, const VnQtArgumentWriter& write)
{
    constexpr int kDone = 1;
    VnQtAnswer answer = askCommand({code, answersOf(code), 0, layers}, write);
    if (answer && answer->GetDataI(walkkey::kResult, kDone) != 0)
        return answer;
    if (data()) // Changes of a failed request must not look like a new tree later.
        m_given = LayerTreeMark(data()->GetDataJ(walkkey::kLayers));
    return {};
}

/// Shows the user's new choice. A filter that was turned off before no longer matters.
void VnQtLayWalkDlg::walk(const OdString& oldCurrent)
{
    if (!m_filter.isOn)
        m_filter = {};
    apply(oldCurrent);
}

/// Makes the drawing show the layers as the tree has them now. When that fails, the changes are
/// undone and false is returned.
bool VnQtLayWalkDlg::apply(const OdString& oldCurrent)
{
    m_purge->setEnabled(m_list->hasSelection());
    if (m_layers.tree() && canRequest()) {
        m_layers.markModified();
        const LayerTreeMark sent(m_layers.tree());
        const VnQtAnswer answer = ask(kWalkApply, m_layers.tree(), showingLayers(oldCurrent));
        if (!answer) {
            goBack();
            return false;
        }
        if (takeNewTree(answer, sent))
            fillAndSelectVisible();
    }
    settle();
    return true;
}

/// Makes the present view the one to return to when a request fails.
void VnQtLayWalkDlg::settle()
{
    m_layers.settle();
    m_before = {m_filter, selectedRecords()};
}

void VnQtLayWalkDlg::goBack()
{
    m_layers.takeBack();
    m_filter = m_before.filter;
    m_filterBox->setChecked(m_filter.isOn);
    fill();
    m_list->selectRows(rowsOf(m_before.selected));
    m_purge->setEnabled(m_list->hasSelection());
}

/// Whether the command returned another layer tree anywhere. If so, the dialog continues with it.
bool VnQtLayWalkDlg::takeNewTree(const VnQtAnswer& answer, const LayerTreeMark& sent)
{
    const VnJsonPtr result = answer->GetDataJ(walkkey::kResult);
    const VnJsonPtr parameter = answer->GetDataJ(requestkey::kParameter);
    const LayerTreeMark given(answer->GetDataJ(walkkey::kLayers));
    const bool isGiven = given != std::exchange(m_given, given);
    if (result && result->GetDataJ(layerkey::kList))
        takeLayers(result);
    else if (isGiven)
        takeLayers(given.tree);
    else if (parameter && LayerTreeMark(parameter) != sent)
        takeLayers(parameter);
    else
        return false;
    return true;
}

void VnQtLayWalkDlg::takeLayers(const VnJsonPtr& tree)
{
    m_layers.take(tree);
    m_filter.letThrough = m_layers.matching(vnutQStringToOdString(m_filter.pattern));
}

/// The selected layers without those that must stay.
std::vector<OdString> VnQtLayWalkDlg::namesToPurge() const
{
    std::vector<OdString> names;
    const WalkLayers::Choice chosen = selectedRecords();
    for (int i = 0; i < m_layers.count(); ++i) {
        if (chosen[static_cast<std::size_t>(i)] && m_layers.mayBePurged(m_layers.name(i)))
            names.push_back(m_layers.name(i));
    }
    return names;
}

void VnQtLayWalkDlg::slot_ClearBtnClicked()
{
    std::vector<OdString> names = namesToPurge();
    // The command must know the current layer even if the walk has hidden it.
    if (names.empty() || (m_layers.restoreCurrent() && !apply()))
        return;
    const auto stays = [this](const OdString& name) { return !m_layers.mayBePurged(name); };
    names.erase(std::remove_if(names.begin(), names.end(), stays), names.end());
    if (names.empty()) // Another layer may have become current.
        return;
    const auto write = [&names](IElementValueBase& root) {
        hostapi::removeKey(root, names.size() == 1 ? walkkey::kPurgeSeveral : walkkey::kPurgeOne);
        if (names.size() == 1)
            root.SetDataSW(walkkey::kPurgeOne, names.front());
        else
            root.SetDataJ(walkkey::kPurgeSeveral, arrayOf(names));
    };
    const LayerTreeMark sent(m_layers.tree());
    const VnQtAnswer answer = ask(kWalkPurge, m_layers.tree(), write);
    if (!answer)
        return;
    if (!takeNewTree(answer, sent))
        takeLayers(m_layers.tree()); // The command may have changed the tree in place.
    fillAndSelectVisible();
    settle();
    m_purge->setEnabled(m_list->hasSelection());
}

/// Lets the user pick in the drawing. The dialog is closed for that time and shown again
/// immediately afterwards, so that its state is kept.
void VnQtLayWalkDlg::slot_PickBtnClicked()
{
    if (!canRequest())
        return;
    const QPoint place = pos();
    wrapper()->reshow();
    hide();
    const VnQtAnswer answer = ask(kWalkPick, m_layers.tree());
    move(place);
    const VnJsonPtr names = answer ? answer->GetDataJ(walkkey::kPickedNames) : VnJsonPtr();
    const WalkLayers::Choice rows = rowsOf(m_layers.named(names));
    if (!WalkLayers::holdsAny(rows))
        return;
    m_list->selectRows(rows);
    slot_LayerListItemClicked();
}

void VnQtLayWalkDlg::restoreLayers()
{
    if (!m_kept || !canRequest())
        return;
    const VnJsonPtr list = m_kept->GetDataJ(layerkey::kList);
    for (int i = 0, count = hostapi::count(list); i < count; ++i)
        LayerRecord(hostapi::item(list, i)).markModified();
    m_kept->SetDataB(layerkey::kModified, true);
    ask(kWalkApply, m_kept, showingLayers());
}

void VnQtLayWalkDlg::slot_SavelaystateActionTriggered()
{
    if (!m_layers.tree())
        return;
    const VnJsonPtr answer = hostapi::showDialogEx(
        walkdialog::kService, statedialog::kNew, m_layers.tree(), invoker(), this);
    if (answer->GetDataI(walkkey::kResult) == 1)
        ask(kWalkSaveState, m_layers.tree());
}

void VnQtLayWalkDlg::slot_CheckActionTriggered()
{
    if (!data())
        return;
    const WalkLayers::Choice selected = selectedRecords();
    for (int i = 0; i < m_layers.count(); ++i)
        m_layers.record(i).setFlag(layerkey::kIsSelected, selected[static_cast<std::size_t>(i)]);
    const VnQtAnswer answer = ask(kWalkCount, m_layers.tree());
    if (!answer && canRequest())
        return;
    // Counts that the command did not provide are made here.
    const auto rows = static_cast<int>(m_rows.size());
    const auto selectedRows = static_cast<int>(std::count(selected.begin(), selected.end(), true));
    const VnJsonPtr counts = hostapi::makeObject();
    hostapi::Members(counts)
        .set(walkkey::kLayerCount, answer->GetDataI(walkkey::kLayerCount, rows))
        .set(walkkey::kSelectedCount, answer->GetDataI(walkkey::kSelectedCount, selectedRows))
        .set(walkkey::kSelectedEntities, answer->GetDataI(walkkey::kSelectedEntities));
    hostapi::showDialogEx(walkdialog::kService, walkdialog::kVerify, counts, invoker(), this);
}

} // namespace vnsi
