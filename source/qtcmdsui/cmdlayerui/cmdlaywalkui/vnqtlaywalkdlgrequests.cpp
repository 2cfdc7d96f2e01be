// What the walk asks the running command.

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

/// What the command answers a request in.
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
        hostapi::removeKey(root, walkkey::kOldCurrent); // Of the click before.
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

/// Asks on `layers`. There is no answer when the command could not be asked, failed or refused.
VnQtAnswer VnQtLayWalkDlg::ask(
    WalkRequest code, const VnJsonPtr& layers, const VnQtArgumentWriter& write)
{
    constexpr int kDone = 1;
    VnQtAnswer answer = askCommand({code, answersOf(code), 0, layers}, write);
    if (answer && answer->GetDataI(walkkey::kResult, kDone) != 0)
        return answer;
    if (data()) // What a failed request left there is no new tree for the next one.
        m_given = LayerTreeMark(data()->GetDataJ(walkkey::kLayers));
    return {};
}

/// The user chose anew what is shown: a filter that was turned off before has no part in it.
void VnQtLayWalkDlg::walk(const OdString& oldCurrent)
{
    if (!m_filter.isOn)
        m_filter = {};
    apply(oldCurrent);
}

/// Has the drawing show the layers as they are now in the tree. What fails is taken back, and false
/// is returned.
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

/// What the dialog shows now is what a request that fails leaves.
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

/// Whether the command handed another layer tree back, wherever it put it; that is then the one to
/// go on with.
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

/// The selected layers without those that stay in any case.
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
    // The command must know which layer is the current one, though the walk hid it.
    if (names.empty() || (m_layers.restoreCurrent() && !apply()))
        return;
    const auto stays = [this](const OdString& name) { return !m_layers.mayBePurged(name); };
    names.erase(std::remove_if(names.begin(), names.end(), stays), names.end());
    if (names.empty()) // Another layer has become current with that.
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
        takeLayers(m_layers.tree()); // The command may have changed it in its place.
    fillAndSelectVisible();
    settle();
    m_purge->setEnabled(m_list->hasSelection());
}

/// The dialog is away while the user picks on the drawing. It is closed for that and shown again at
/// once, so that nothing of it is lost.
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
    // What the command does not count is counted here.
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
