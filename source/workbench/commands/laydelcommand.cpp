#include "laydelcommand.h"

#include "benchtexts.h"
#include "drawing.h"
#include "layermarks.h"
#include "layertoolkeys.h"
#include "recordprovider.h"

using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::layerkey;

constexpr wchar_t kDialog[] = L"Dialog/CmdLaydel";

} // namespace

VnJsonPtr LayerDeleteCommand::makeTree(const drawing::Drawing& drawing)
{
    return layermarks::makeTree(drawing,
        [&drawing](const drawing::Layer& layer) { return layermarks::mayGo(drawing, layer); });
}

void LayerDeleteCommand::run(CommandContext& context)
{
    drawing::Drawing& drawing = context.drawing;
    const VnJsonPtr tree = makeTree(drawing);
    const bool confirmed = layermarks::show(
        context, kDialog, tree, [&drawing](const VnJsonPtr& asked) { answer(drawing, asked); },
        layermarks::chosenNames(context));
    if (!confirmed)
        return;
    const std::vector<drawing::LayerId> layers =
        layermarks::present(context, layermarks::marked(tree, vnsi::kLayerDelete));
    if (layers.empty())
        return;
    if (const auto deleted = drawing.deleteLayers(layers); !deleted)
        layermarks::warn(deleted.error().text);
    else
        context.say(Texts::tr("已删除 %1 个图层。").arg(layers.size()));
}

/// Whether any of the selected layers is used inside a block definition.
void LayerDeleteCommand::answer(const drawing::Drawing& drawing, const VnJsonPtr& tree)
{
    if (tree->GetDataI(vnsi::requestkey::kRequestCode, -1) != vnsi::kDeleteAskBlocks)
        return;
    std::vector<drawing::LayerId> selected;
    const VnJsonPtr list = tree->GetDataJ(key::kList);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        const VnJsonPtr record = list(i);
        if (record && record->GetDataB(key::kIsSelected))
            selected.push_back(layerrecords::idOf(record));
    }
    tree->SetDataB(vnsi::layertoolkey::kIsExistBlock, drawing.isReferencedInBlocks(selected));
}
