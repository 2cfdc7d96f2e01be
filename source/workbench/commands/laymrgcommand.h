#pragma once

#include "command.h"
#include "layermarks.h"
#include "layers/layer.h"
#include "vnjson.h"

/// LAYMRG: puts everything on some layers on another one and removes them.
class LayerMergeCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;
    void pose(CommandContext& context, const Camera& camera) override;

private:
    using Layers = std::vector<layermarks::Marked>;

    static vnsi::VnJsonPtr makeSourceTree(const drawing::Drawing& drawing);
    static vnsi::VnJsonPtr makeTargetTree(const drawing::Drawing& drawing, const Layers& sources);
    /// Asks until a layer is chosen that is no source; empty when the user gives up.
    static Layers askTarget(CommandContext& context, const Layers& sources);
    static Layers settle(const Layers& targets);
    static void merge(CommandContext& context, const Layers& sources, const Layers& target);
};
