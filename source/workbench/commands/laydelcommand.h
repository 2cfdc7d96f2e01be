#pragma once

#include "command.h"
#include "vnjson.h"

/// LAYDEL: deletes the chosen layers with everything on them.
class LayerDeleteCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;

private:
    static vnsi::VnJsonPtr makeTree(const drawing::Drawing& drawing);
    static void answer(const drawing::Drawing& drawing, const vnsi::VnJsonPtr& tree);
};
