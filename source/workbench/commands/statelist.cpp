#include "statelist.h"

#include "drawing.h"
#include "vnstrings.h"

#include <QCoreApplication>
#include <QFileInfo>

using vnsi::VnJsonPtr;

namespace statelist {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("LayerStateCommand", text);
}

QString spaceOf(const drawing::LayerState& state)
{
    if (state.isFromReference())
        return tr("外部参照");
    return state.fromLayout ? tr("布局") : tr("模型");
}

} // namespace

VnJsonPtr makeEntry(const drawing::LayerState& state)
{
    const VnJsonPtr entry = vnsi::ElementValue::createObject(6);
    entry->set("LayerStateName", vnsi::vnutQStringToOdString(state.name))
        .set("space", vnsi::vnutQStringToOdString(spaceOf(state)))
        .set("desc", vnsi::vnutQStringToOdString(state.description));
    return entry;
}

VnJsonPtr make(const drawing::Drawing& drawing)
{
    const VnJsonPtr list = vnsi::ElementValue::createArray();
    for (const drawing::LayerState& state : drawing.layerStates())
        list->Append(makeEntry(state));
    return list;
}

void tellWhereStatesAre(CommandContext& context)
{
    const QString path = context.drawing.layerStatesPath();
    if (path.isEmpty())
        return;
    const QString note = tr("此图形的格式不能保存图层状态：它们随图形保存在旁边的文件“%1”中。")
                             .arg(QFileInfo(path).fileName());
    context.say(note);
    if (context.notice)
        context.notice(note);
}

} // namespace statelist
