#pragma once

#include "command.h"
#include "layers/layer.h"
#include "vnjson.h"

#include <optional>

/// LAYMCH: puts the selected entities on a layer that is there or made for them.
class LayerChangeCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;
    void pose(CommandContext& context, const Camera& camera) override;

private:
    static vnsi::VnJsonPtr makeTree(const drawing::Drawing& drawing);
    /// The layer the dialog chose; none when it chose none, or none can be had.
    static std::optional<drawing::LayerId> target(
        CommandContext& context, const vnsi::VnJsonPtr& tree);
    static void move(CommandContext& context, drawing::LayerId target);
};
