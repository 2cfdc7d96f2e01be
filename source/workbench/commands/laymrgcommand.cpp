#include "laymrgcommand.h"
#include "benchtexts.h"
#include "hostextras.h"

#include "drawing.h"
#include "layertoolkeys.h"
#include "recordprovider.h"
#include "vnstrings.h"
#include "vntaskdialog.h"

#include <algorithm>

using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::layerkey;
namespace toolkey = vnsi::layertoolkey;

constexpr wchar_t kDialog[] = L"Dialog/CmdLaymrg";
constexpr int kFirstChoice = 100;

bool contains(const std::vector<layermarks::Marked>& layers, drawing::LayerId id)
{
    return std::any_of(layers.begin(), layers.end(),
        [id](const layermarks::Marked& layer) { return layer.id == id; });
}

std::vector<drawing::LayerId> idsOf(const std::vector<layermarks::Marked>& layers)
{
    std::vector<drawing::LayerId> ids;
    ids.reserve(layers.size());
    for (const layermarks::Marked& layer : layers)
        ids.push_back(layer.id);
    return ids;
}

} // namespace

VnJsonPtr LayerMergeCommand::makeSourceTree(const drawing::Drawing& drawing)
{
    VnJsonPtr tree = layermarks::makeTree(drawing,
        [&drawing](const drawing::Layer& layer) { return layermarks::mayGo(drawing, layer); });
    if (const VnJsonPtr first = tree->GetDataJ(key::kList)(0))
        first->SetDataB(toolkey::kIsFrom, true);
    return tree;
}

/// The tree for choosing the target. It contains the sources as well, for their names, but at the
/// end, because the first layer is suggested as target.
VnJsonPtr LayerMergeCommand::makeTargetTree(const drawing::Drawing& drawing, const Layers& sources)
{
    VnJsonPtr tree = layermarks::makeTree(
        drawing, [](const drawing::Layer& layer) { return !layer.dependsOnReference; });
    std::vector<drawing::LayerId> ids = idsOf(sources);
    std::sort(ids.begin(), ids.end());
    const VnJsonPtr all = tree->GetDataJ(key::kList);
    const VnJsonPtr list = hostextras::createArray(all.ArrayCount());
    for (const bool isSource : {false, true}) {
        for (int i = 0, count = all.ArrayCount(); i < count; ++i) {
            const VnJsonPtr record = all(i);
            if (std::binary_search(ids.begin(), ids.end(), layerrecords::idOf(record)) != isSource)
                continue;
            record->SetDataB(toolkey::kSourceLayer, isSource);
            hostextras::append(list, record);
        }
    }
    tree->SetDataJ(key::kList, list);
    if (const VnJsonPtr first = list(0)) {
        first->SetDataB(toolkey::kIsFrom, false);
        first->SetDataI(toolkey::kBlockReferences, drawing.countBlockReferences(ids));
    }
    return tree;
}

void LayerMergeCommand::run(CommandContext& context)
{
    const VnJsonPtr tree = makeSourceTree(context.drawing);
    if (tree->GetDataJ(key::kList).ArrayCount() == 0) {
        layermarks::tell(context, Texts::tr("没有可以合并的图层。"));
        return;
    }
    if (!layermarks::show(context, kDialog, tree, {}, layermarks::chosenNames(context)))
        return;
    const Layers sources = layermarks::marked(tree, vnsi::kLayerMergeSource);
    if (sources.empty())
        return;
    const Layers target = askTarget(context, sources);
    if (!target.empty())
        merge(context, sources, target);
}

LayerMergeCommand::Layers LayerMergeCommand::askTarget(
    CommandContext& context, const Layers& sources)
{
    for (;;) {
        const VnJsonPtr tree = makeTargetTree(context.drawing, sources);
        if (!layermarks::show(context, kDialog, tree))
            return {};
        Layers target = settle(layermarks::marked(tree, vnsi::kLayerMergeTarget));
        if (target.empty() || !contains(sources, target.front().id))
            return target;
        layermarks::warn(
            Texts::tr("图层“%1”是要合并的图层，不能作为目标图层。").arg(target.front().name));
    }
}

/// Asks which of several marked targets is meant. Declined targets keep their mark, so the last
/// choice cannot be told from the records.
LayerMergeCommand::Layers LayerMergeCommand::settle(const Layers& targets)
{
    if (targets.size() < 2)
        return targets;
    vnsi::CVnUiTaskDialog question;
    question.SetWindowTitle(vnsi::vnutQStringToOdString(Texts::tr("合并到图层")));
    question.SetMainInstruction(
        vnsi::vnutQStringToOdString(Texts::tr("先后指定了几个目标图层，要合并到哪一个？")));
    for (std::size_t i = 0; i < targets.size(); ++i)
        question.AddCommandControl(
            kFirstChoice + static_cast<int>(i), vnsi::vnutQStringToOdString(targets[i].name));
    const int choice = question.DoModal() - kFirstChoice;
    if (choice < 0 || static_cast<std::size_t>(choice) >= targets.size())
        return {};
    return {targets[static_cast<std::size_t>(choice)]};
}

void LayerMergeCommand::merge(CommandContext& context, const Layers& sources, const Layers& target)
{
    Layers all = sources;
    all.push_back(target.front());
    std::vector<drawing::LayerId> layers = layermarks::present(context, all);
    if (layers.size() < 2 || layers.back() != target.front().id)
        return;
    layers.pop_back();
    if (const auto merged = context.drawing.mergeLayers(layers, target.front().id); !merged)
        layermarks::warn(merged.error().text);
    else
        context.say(Texts::tr("已将 %1 个图层合并到图层“%2”。")
                        .arg(layers.size())
                        .arg(target.front().name));
}
