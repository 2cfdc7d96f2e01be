// What the walk asks the running command.

#include "cmdlayerstateui/statetexts.h"
#include "vndialogs.h"
#include "vnqtlaywalkdlg.h"
#include "vnqtlaywalklistwgt.h"
#include "vnstrings.h"

#include <QPushButton>

#include <algorithm>

namespace vnsi {

/// Asks on `layers`; false when the command could not be asked, failed or refused.
bool VnQtLayWalkDlg::ask(WalkRequest code, const VnJsonPtr& layers, const VnQtArgumentWriter& write)
{
    const VnQtRequest request{code,
        {walkkey::kResult, walkkey::kLayerCount, walkkey::kSelectedCount,
            walkkey::kSelectedEntities, walkkey::kPickedNames},
        0, layers};
    const auto writeArguments = [&write](IElementValueBase& root) {
        // Those of the request before do not count any more.
        for (const char* key : {walkkey::kOldCurrent, walkkey::kPurgeOne, walkkey::kPurgeSeveral})
            root.RemoveKey(key);
        if (write)
            write(root);
    };
    constexpr int kDone = 1;
    return sendRequest(request, writeArguments) && data()->GetDataI(walkkey::kResult, kDone) != 0;
}

/// Has the drawing show the layers as they are now in the tree.
void VnQtLayWalkDlg::apply(const OdString& oldCurrent)
{
    m_purge->setEnabled(m_list->hasSelection());
    if (!m_layers.tree())
        return;
    m_layers.markModified();
    const auto write = [&oldCurrent](IElementValueBase& root) {
        root.SetDataB(layerkey::kModified, true);
        if (!oldCurrent.isEmpty())
            root.SetDataSW(walkkey::kOldCurrent, oldCurrent);
    };
    if (ask(kWalkApply, m_layers.tree(), write) && takeNewTree())
        fillAndSelectVisible();
}

/// Whether the command handed a new layer tree back, which is then the one to go on with.
bool VnQtLayWalkDlg::takeNewTree()
{
    VnJsonPtr tree = data()->GetDataJ(walkkey::kResult);
    if (!tree)
        tree = data()->GetDataJ(walkkey::kLayers);
    if (tree == m_given)
        return false;
    m_given = tree;
    takeLayers(tree);
    return true;
}

void VnQtLayWalkDlg::takeLayers(const VnJsonPtr& tree)
{
    m_layers.take(tree);
    m_letThrough = m_layers.matching(vnutQStringToOdString(m_filtered));
}

void VnQtLayWalkDlg::slot_ClearBtnClicked()
{
    std::vector<OdString> names;
    const WalkLayers::Choice chosen = selectedRecords();
    for (int i = 0; i < m_layers.count(); ++i) {
        if (chosen[static_cast<std::size_t>(i)] && m_layers.mayBePurged(i))
            names.push_back(m_layers.name(i));
    }
    if (names.empty())
        return;
    // The command must know which layer is the current one, though the walk hid it.
    if (m_layers.restoreCurrent())
        apply();
    const auto write = [&names](IElementValueBase& root) {
        if (names.size() == 1) {
            root.SetDataSW(walkkey::kPurgeOne, names.front());
            return;
        }
        const VnJsonPtr list = ElementValue::createArray(static_cast<int>(names.size()));
        for (const OdString& name : names)
            list->AppendSW(name);
        root.SetDataJ(walkkey::kPurgeSeveral, list);
    };
    if (!ask(kWalkPurge, m_layers.tree(), write))
        return;
    if (!takeNewTree())
        takeLayers(m_layers.tree()); // The command may have changed it in its place.
    fillAndSelectVisible();
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
    const bool isPicked = ask(kWalkPick, m_layers.tree());
    move(place);
    const VnJsonPtr names = isPicked ? data()->GetDataJ(walkkey::kPickedNames) : VnJsonPtr();
    if (names.ArrayCount() == 0)
        return;
    m_list->selectRows(rowsOf(m_layers.named(names)));
    slot_LayerListItemClicked();
}

void VnQtLayWalkDlg::restoreLayers()
{
    if (!m_kept || !canRequest())
        return;
    const VnJsonPtr list = m_kept->GetDataJ(layerkey::kList);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i)
        LayerRecord(list(i)).markModified();
    m_kept->SetDataB(layerkey::kModified, true);
    ask(kWalkApply, m_kept,
        [](IElementValueBase& root) { root.SetDataB(layerkey::kModified, true); });
}

void VnQtLayWalkDlg::slot_SavelaystateActionTriggered()
{
    if (!m_layers.tree())
        return;
    const VnJsonPtr answer = vnuiShowModelDialogEx(
        layerstates::kService, L"Dialog/CmdLayerStateNew", m_layers.tree(), invoker(), this);
    if (answer->GetDataI(walkkey::kResult) == 1)
        ask(kWalkSaveState, m_layers.tree());
}

void VnQtLayWalkDlg::slot_CheckActionTriggered()
{
    if (!data())
        return;
    const WalkLayers::Choice selected = selectedRecords();
    for (int i = 0; i < m_layers.count(); ++i)
        m_layers.record(i).setFlag(walkkey::kIsSelected, selected[static_cast<std::size_t>(i)]);
    if (canRequest() && !ask(kWalkCount, m_layers.tree()))
        return;
    // What the command does not count is counted here.
    const auto rows = static_cast<int>(m_rows.size());
    const auto selectedRows = static_cast<int>(std::count(selected.begin(), selected.end(), true));
    const VnJsonPtr counts = ElementValue::createObject(4);
    counts->set(walkkey::kLayerCount, data()->GetDataI(walkkey::kLayerCount, rows))
        .set(walkkey::kSelectedCount, data()->GetDataI(walkkey::kSelectedCount, selectedRows))
        .set(walkkey::kSelectedEntities, data()->GetDataI(walkkey::kSelectedEntities));
    vnuiShowModelDialogEx(
        layerstates::kService, L"Dialog/CmdLaywalk/Verify", counts, invoker(), this);
}

} // namespace vnsi
