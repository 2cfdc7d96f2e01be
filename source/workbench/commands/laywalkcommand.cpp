#include "laywalkcommand.h"
#include "benchtexts.h"
#include "hostextras.h"
#include "valuetree.h"

#include "commandinvoker.h"
#include "drawing.h"
#include "layerkeys.h"
#include "layermarks.h"
#include "recordprovider.h"
#include "statekeys.h"
#include "statelist.h"
#include "vnstrings.h"
#include "walkkeys.h"

#include <QSet>

#include <algorithm>

using drawing::Layer;
using drawing::LayerId;
using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::layerkey;
namespace walkdialog = vnsi::walkdialog;
namespace walkkey = vnsi::walkkey;
using vnsi::LayerRecord;

const layerrecords::Provider& records()
{
    static const layerrecords::Provider provider(
        {key::kName, key::kStatus, key::kOff, key::kFrozen, key::kUsed});
    return provider;
}

/// The layer records in the tree that a request carries.
VnJsonPtr recordsOf(const VnJsonPtr& root)
{
    const VnJsonPtr layers = root->GetDataJ(vnsi::requestkey::kParameter);
    return layers ? layers->GetDataJ(key::kList) : VnJsonPtr();
}

QStringList namesToPurge(const VnJsonPtr& root)
{
    QStringList names;
    const VnJsonPtr list = root->GetDataJ(walkkey::kPurgeSeveral);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i)
        names.append(vnsi::vnutOdStringToQString(hostextras::textOf(list(i))));
    if (host::hasKey(root, walkkey::kPurgeOne))
        names.append(vnsi::vnutOdStringToQString(root->GetDataSW(walkkey::kPurgeOne)));
    return names;
}

/// Ranks a layer as a candidate for the current layer after a click. A layer that was just turned
/// on ranks highest, then the current one, then a pinned one, which is visible anyway. 0 means that
/// the layer cannot be drawn on.
int claimToBeCurrent(const LayerRecord& record, const Layer& layer, bool wasOff, bool isCurrent)
{
    if (layer.properties.off || layer.properties.frozen || layer.dependsOnReference)
        return 0;
    if (wasOff)
        return 4;
    if (isCurrent)
        return 3;
    return record.flag(walkkey::kAlwaysShow) ? 1 : 2;
}

} // namespace

/// The handler of a request.
struct LayerWalkCommand::RequestRow
{
    int code;
    void (LayerWalkCommand::*answer)(const VnJsonPtr& root);
    const char* failure; ///< The heading above what could not be done.
};

const LayerWalkCommand::RequestRow LayerWalkCommand::kRequests[] = {
    {vnsi::kWalkSaveState, &LayerWalkCommand::saveState,
        QT_TRANSLATE_NOOP("workbench", "图层状态没有保存：")},
    {vnsi::kWalkApply, &LayerWalkCommand::apply,
        QT_TRANSLATE_NOOP("workbench", "有图层未能打开或关闭：")},
    {vnsi::kWalkCount, &LayerWalkCommand::count, ""},
    {vnsi::kWalkPurge, &LayerWalkCommand::purge,
        QT_TRANSLATE_NOOP("workbench", "以下图层没有清除：")},
    {vnsi::kWalkPick, &LayerWalkCommand::pick, ""},
};

void LayerWalkCommand::run(CommandContext& context)
{
    m_context = &context;
    remember();
    const VnJsonPtr tree = vnsi::ElementValue::createObject(8);
    tree->SetDataJ(walkkey::kLayers, makeLayers());
    const auto invoker = CommandInvoker::make([this](const VnJsonPtr& root) { answer(root); });
    vnsi::vnuiShowModelDialogEx(
        walkdialog::kService, walkdialog::kWalk, tree, invoker, context.parent);
}

/// The records for the walk, which is about what is visible: a layer frozen in the current viewport
/// counts as hidden, and freezing in new viewports is irrelevant.
VnJsonPtr LayerWalkCommand::makeLayers()
{
    VnJsonPtr layers = records().tree(drawing());
    const std::vector<LayerId> hidden = drawing().frozenInViewport();
    for (LayerRecord record : vnsi::LayerRecordList::of(layers))
        record.setFlag(key::kVPortFrozen,
            std::binary_search(hidden.begin(), hidden.end(), layerrecords::idOf(record.node())));
    layers->SetDataJ(vnsi::statekey::kList, statelist::make(drawing()));
    return layers;
}

/// Returns the layers as they are in the drawing now. Layers that the user pinned stay pinned.
void LayerWalkCommand::handBack(const VnJsonPtr& root)
{
    QSet<int> pinned;
    const VnJsonPtr before = recordsOf(root);
    for (int i = 0, count = before.ArrayCount(); i < count; ++i) {
        if (LayerRecord(before(i)).flag(walkkey::kAlwaysShow))
            pinned.insert(static_cast<int>(layerrecords::idOf(before(i))));
    }
    const VnJsonPtr layers = makeLayers();
    const VnJsonPtr list = layers->GetDataJ(key::kList);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i)
        LayerRecord(list(i)).setFlag(
            walkkey::kAlwaysShow, pinned.contains(static_cast<int>(layerrecords::idOf(list(i)))));
    root->SetDataJ(walkkey::kLayers, layers);
}

void LayerWalkCommand::remember()
{
    m_currentBefore = drawing().currentLayer();
    for (const Layer& layer : drawing().layers())
        m_before.push_back({layer.id, layer.properties.off});
}

bool LayerWalkCommand::isAsBefore()
{
    return !m_hasOtherEdits && drawing().currentLayer() == m_currentBefore &&
           std::all_of(m_before.begin(), m_before.end(), [this](const Before& before) {
               const Layer* layer = drawing().layer(before.layer);
               return layer && layer->properties.off == before.off;
           });
}

void LayerWalkCommand::note(const drawing::Expected<void>& outcome)
{
    if (!outcome)
        m_problems.append(outcome.error().text);
}

void LayerWalkCommand::answer(const VnJsonPtr& root)
{
    const int code = root->GetDataI(vnsi::requestkey::kRequestCode, -1);
    const auto* const row = std::find_if(std::begin(kRequests), std::end(kRequests),
        [code](const RequestRow& candidate) { return candidate.code == code; });
    if (row == std::end(kRequests))
        return;
    (this->*row->answer)(root);
    for (const QString& notice : drawing().takeNotices())
        m_context->say(notice);
    layermarks::report(*m_context, Texts::tr(row->failure), m_problems);
}

void LayerWalkCommand::apply(const VnJsonPtr& root)
{
    LayerId current = LayerId::None;
    LayerId clicked = LayerId::None;
    int bestClaim = 0;
    const VnJsonPtr list = recordsOf(root);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        const LayerRecord record(list(i));
        const LayerId id = layerrecords::idOf(record.node());
        const Layer* layer = drawing().layer(id);
        if (!layer)
            continue; // It was purged meanwhile.
        const bool wasOff = layer->properties.off;
        setOff(*layer, record.isOff());
        if (record.number(key::kStatus, vnsi::kLayerOrdinary) == vnsi::kLayerCurrent)
            current = id;
        const int claim =
            claimToBeCurrent(record, *drawing().layer(id), wasOff, id == drawing().currentLayer());
        if (claim > bestClaim) {
            bestClaim = claim;
            clicked = id;
        }
    }
    makeCurrent(root, current, clicked);
    if (!m_problems.isEmpty())
        handBack(root);
    // Layers without records may have got one; rolling back removes it again.
    if (isAsBefore())
        m_context->step->takeBack();
    m_context->refresh();
}

void LayerWalkCommand::setOff(const Layer& layer, bool off)
{
    if (layer.properties.off == off)
        return;
    drawing::LayerProperties properties = layer.properties;
    properties.off = off;
    note(drawing().setLayerProperties(layer.id, properties));
}

/// Keeps the current layer visible, so that nobody draws on a hidden layer. When a click hides the
/// current layer, the clicked layer becomes current; when the old one is shown again, it becomes
/// current again.
void LayerWalkCommand::makeCurrent(const VnJsonPtr& root, LayerId current, LayerId clicked)
{
    const bool isClick = host::hasKey(root, walkkey::kOldCurrent);
    if (isClick) {
        const Layer* old =
            drawing().findLayer(vnsi::vnutOdStringToQString(root->GetDataSW(walkkey::kOldCurrent)));
        m_oldCurrent = old ? old->id : LayerId::None;
    }
    const Layer* old = drawing().layer(m_oldCurrent);
    if (current == LayerId::None && old && !old->properties.off)
        current = m_oldCurrent;
    if (current == LayerId::None && isClick)
        current = clicked;
    if (current != LayerId::None)
        note(drawing().setCurrentLayer(current));
}

void LayerWalkCommand::count(const VnJsonPtr& root)
{
    int layers = 0;
    int entities = 0;
    const VnJsonPtr list = recordsOf(root);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        const LayerRecord record(list(i));
        const Layer* layer = drawing().layer(layerrecords::idOf(record.node()));
        if (!layer || !record.flag(key::kIsSelected))
            continue;
        ++layers;
        entities += layer->entityCount;
    }
    root->SetDataI(walkkey::kLayerCount, static_cast<int>(drawing().layers().size()));
    root->SetDataI(walkkey::kSelectedCount, layers);
    root->SetDataI(walkkey::kSelectedEntities, entities);
}

void LayerWalkCommand::purge(const VnJsonPtr& root)
{
    int purged = 0;
    for (const QString& name : namesToPurge(root)) {
        const Layer* layer = drawing().findLayer(name);
        if (!layer)
            continue;
        const auto removed = drawing().removeLayer(layer->id);
        note(removed);
        purged += removed ? 1 : 0;
    }
    m_hasOtherEdits = m_hasOtherEdits || purged > 0;
    handBack(root);
    m_context->say(Texts::tr("已清除 %1 个图层。").arg(purged));
    m_context->refresh();
}

void LayerWalkCommand::saveState(const VnJsonPtr& root)
{
    const VnJsonPtr layers = root->GetDataJ(vnsi::requestkey::kParameter);
    if (!layers)
        return;
    drawing::LayerState state = captureLayerState(
        drawing(), vnsi::vnutOdStringToQString(layers->GetDataSW(vnsi::statekey::kNewName)));
    state.description =
        vnsi::vnutOdStringToQString(layers->GetDataSW(vnsi::statekey::kDescription));
    if (state.name.isEmpty())
        return;
    const auto saved = drawing().putLayerStates({state});
    note(saved);
    if (!saved)
        return;
    m_hasOtherEdits = true;
    layers->SetDataJ(vnsi::statekey::kList, statelist::make(drawing()));
    m_context->say(Texts::tr("图层状态“%1”已保存。").arg(state.name));
    statelist::tellWhereStatesAre(*m_context);
}

void LayerWalkCommand::pick(const VnJsonPtr& root)
{
    if (!m_context->pickAnything)
        return;
    const VnJsonPtr names = hostextras::createArray(0);
    for (const LayerId id : layermarks::layersOf(drawing(), m_context->pickAnything()))
        hostextras::appendText(
            names, vnsi::vnutQStringToOdString(drawing().layer(id)->properties.name));
    root->SetDataJ(walkkey::kPickedNames, names);
}
