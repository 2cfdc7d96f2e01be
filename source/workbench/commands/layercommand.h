#pragma once

#include "command.h"
#include "vnjson.h"

/// LAYER: shows the Layer Properties Manager and applies its changes.
class LayerPropertiesCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;

private:
    static void answer(CommandContext& context, const vnsi::VnJsonPtr& tree);
    static void appendLayer(const drawing::Drawing& drawing, const vnsi::VnJsonPtr& tree);
    static void apply(CommandContext& context, const vnsi::VnJsonPtr& tree);
};
