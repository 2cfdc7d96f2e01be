#pragma once

#include "command.h"
#include "layers/layer.h"
#include "vnjson.h"

#include <optional>

/// LAYMCH: puts the selected entities on an existing or new layer.
class LayerChangeCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;

private:
    static vnsi::VnJsonPtr makeTree(const drawing::Drawing& drawing);
    /// The layer chosen in the dialog; nothing when none was chosen or it could not be created.
    static std::optional<drawing::LayerId> target(
        CommandContext& context, const vnsi::VnJsonPtr& tree);
    static void move(CommandContext& context, drawing::LayerId target);
};
