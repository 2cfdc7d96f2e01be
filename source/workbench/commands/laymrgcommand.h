#pragma once

#include "command.h"
#include "layermarks.h"
#include "layers/layer.h"
#include "vnjson.h"

/// LAYMRG: moves everything on some layers to another layer and deletes them.
class LayerMergeCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;

private:
    using Layers = std::vector<layermarks::Marked>;

    static vnsi::VnJsonPtr makeSourceTree(const drawing::Drawing& drawing);
    static vnsi::VnJsonPtr makeTargetTree(const drawing::Drawing& drawing, const Layers& sources);
    /// Asks until a layer is chosen that is not a source; empty when the user cancels.
    static Layers askTarget(CommandContext& context, const Layers& sources);
    static Layers settle(const Layers& targets);
    static void merge(CommandContext& context, const Layers& sources, const Layers& target);
};
