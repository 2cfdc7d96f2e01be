#include "laymchcommand.h"

#include "benchtexts.h"
#include "drawing.h"
#include "layermarks.h"
#include "layertoolkeys.h"
#include "recordprovider.h"
#include "vnstrings.h"

using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::layerkey;

constexpr wchar_t kDialog[] = L"Dialog/CmdLaymch";

/// The name of the layer to create, which is in the last record.
QString newLayerName(const VnJsonPtr& tree)
{
    const VnJsonPtr list = tree->GetDataJ(key::kList);
    const VnJsonPtr last = list(list.ArrayCount() - 1);
    if (!last || last->GetDataI(key::kStatus) != vnsi::kLayerNewTarget)
        return {};
    return vnsi::vnutOdStringToQString(last->GetDataSW(vnsi::layertoolkey::kNewLayer));
}

} // namespace

VnJsonPtr LayerChangeCommand::makeTree(const drawing::Drawing& drawing)
{
    return layermarks::makeTree(
        drawing, [](const drawing::Layer& layer) { return !layer.dependsOnReference; });
}

void LayerChangeCommand::run(CommandContext& context)
{
    if (context.selection.empty() && context.pick)
        context.selection = context.pick();
    if (context.selection.empty())
        return layermarks::tell(context, Texts::tr("没有选择对象，未作更改。"));
    const VnJsonPtr tree = makeTree(context.drawing);
    if (!layermarks::show(context, kDialog, tree))
        return;
    if (const auto layer = target(context, tree))
        move(context, *layer);
}

std::optional<drawing::LayerId> LayerChangeCommand::target(
    CommandContext& context, const VnJsonPtr& tree)
{
    const QString name = newLayerName(tree);
    if (name.isEmpty()) {
        const std::vector<layermarks::Marked> chosen = layermarks::marked(tree, vnsi::kLayerTarget);
        if (chosen.empty())
            layermarks::tell(context, Texts::tr("没有名称与输入完全一致的图层，未作更改。"));
        const std::vector<drawing::LayerId> layers = layermarks::present(context, chosen);
        return layers.empty() ? std::nullopt : std::optional(layers.front());
    }
    if (const drawing::Layer* known = context.drawing.findLayer(name))
        return known->id;
    drawing::LayerProperties properties;
    properties.name = name;
    const auto added = context.drawing.addLayer(properties);
    if (added)
        return *added;
    layermarks::warn(added.error().text);
    return std::nullopt;
}

/// Moves the entities. Those on locked layers stay.
void LayerChangeCommand::move(CommandContext& context, drawing::LayerId target)
{
    drawing::Drawing& drawing = context.drawing;
    std::vector<int> movable;
    for (const int index : context.selection) {
        const drawing::Entity& entity = drawing.entities()[static_cast<std::size_t>(index)];
        const drawing::Layer* layer = drawing.layer(entity.layer);
        if (!layer || !layer->properties.locked)
            movable.push_back(index);
    }
    const auto moved = drawing.moveEntities(movable, target);
    if (!moved) {
        layermarks::warn(moved.error().text);
        return;
    }
    const std::size_t locked = context.selection.size() - movable.size();
    QString text = Texts::tr("%1 个对象已更改到图层“%2”。")
                       .arg(*moved)
                       .arg(drawing.layer(target)->properties.name);
    if (locked > 0)
        text += Texts::tr("%1 个对象在锁定的图层上，未作更改。").arg(locked);
    layermarks::tell(context, text);
}
