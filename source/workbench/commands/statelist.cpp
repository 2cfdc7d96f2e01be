#include "statelist.h"
#include "benchtexts.h"
#include "hostextras.h"

#include "drawing.h"
#include "layerkeys.h"
#include "nameorder.h"
#include "namerule.h"
#include "statekeys.h"
#include "vnstrings.h"

#include <QFileInfo>

using vnsi::VnJsonPtr;

namespace statelist {

namespace {

namespace key = vnsi::statekey;

OdString spaceOf(const drawing::LayerState& state)
{
    if (state.isFromReference())
        return key::kReferenceSpace;
    return vnsi::vnutQStringToOdString(state.fromLayout ? Texts::tr("布局") : Texts::tr("模型"));
}

} // namespace

VnJsonPtr makeEntry(const drawing::LayerState& state)
{
    VnJsonPtr entry = vnsi::ElementValue::createObject(6);
    entry->SetDataSW(key::kName, vnsi::vnutQStringToOdString(state.name));
    entry->SetDataSW(key::kSpace, spaceOf(state));
    entry->SetDataSW(key::kDescription, vnsi::vnutQStringToOdString(state.description));
    entry->SetDataI(key::kOwnMask, state.mask);
    entry->SetDataB(vnsi::layerkey::kSelected, false);
    return entry;
}

std::vector<drawing::LayerState> sorted(
    std::vector<drawing::LayerState> states, const QString& last)
{
    sortByName(states, [](const drawing::LayerState& state) { return state.name; });
    std::stable_partition(states.begin(), states.end(),
        [&last](const drawing::LayerState& state) { return !vnsi::isSameName(state.name, last); });
    return states;
}

VnJsonPtr make(const drawing::Drawing& drawing)
{
    VnJsonPtr list = hostextras::createArray(0);
    for (const drawing::LayerState& state : sorted(drawing.layerStates()))
        hostextras::append(list, makeEntry(state));
    return list;
}

void tellWhereStatesAre(CommandContext& context)
{
    const QString path = context.drawing.layerStatesPath();
    if (path.isEmpty())
        return;
    const QString note =
        Texts::tr("此图形的格式不能保存图层状态：它们随图形保存在旁边的文件“%1”中。")
            .arg(QFileInfo(path).fileName());
    context.say(note);
    if (context.notice)
        context.notice(note);
}

} // namespace statelist
