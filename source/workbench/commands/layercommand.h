#pragma once

#include "command.h"
#include "error.h"
#include "layer.h"
#include "vnjson.h"

#include <QStringList>

/// LAYER: shows the Layer Properties Manager and applies what it changed.
class LayerPropertiesCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;
    void pose(CommandContext& context, const Camera& camera) override;

private:
    void answer(CommandContext& context, const vnsi::VnJsonPtr& tree);
    void appendLayer(const drawing::Drawing& drawing, const vnsi::VnJsonPtr& tree);
    void apply(CommandContext& context, const vnsi::VnJsonPtr& tree);
    void applyProperties(drawing::Drawing& drawing, const vnsi::VnJsonPtr& record);
    void applyDeletions(drawing::Drawing& drawing, const vnsi::VnJsonPtr& list);
    void note(const drawing::Expected<void>& outcome);
    void reportRefusals();

    QStringList m_refusals; ///< Why parts of an "apply" could not be carried out.
};
