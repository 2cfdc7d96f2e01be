#pragma once

#include "command.h"
#include "file/error.h"
#include "layers/layer.h"
#include "vnjson.h"

#include <QStringList>

/// LAYWALK: shows the walk through the layers and has the drawing follow it at once. The whole walk
/// is one step, and none when the drawing ends as it began.
class LayerWalkCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;
    void pose(CommandContext& context, const Camera& camera) override;

private:
    struct RequestRow;
    static const RequestRow kRequests[];

    void answer(const vnsi::VnJsonPtr& root);
    void saveState(const vnsi::VnJsonPtr& root);
    void apply(const vnsi::VnJsonPtr& root);
    void count(const vnsi::VnJsonPtr& root);
    void purge(const vnsi::VnJsonPtr& root);
    void pick(const vnsi::VnJsonPtr& root);

    drawing::Drawing& drawing() { return m_context->drawing; }
    vnsi::VnJsonPtr makeLayers();
    void handBack(const vnsi::VnJsonPtr& root);
    void setOff(const drawing::Layer& layer, bool off);
    void makeCurrent(
        const vnsi::VnJsonPtr& root, drawing::LayerId current, drawing::LayerId clicked);
    void remember();
    bool isAsBefore();
    void note(const drawing::Expected<void>& outcome);

    struct Before
    {
        drawing::LayerId layer;
        bool off;
    };

    CommandContext* m_context = nullptr;
    std::vector<Before> m_before; ///< The layers when the walk began.
    drawing::LayerId m_currentBefore = drawing::LayerId::None;
    /// The layer that was current before the latest click, as the dialog says.
    drawing::LayerId m_oldCurrent = drawing::LayerId::None;
    bool m_hasOtherEdits = false; ///< Purged, or saved a state: restoring layers leaves that.
    QStringList m_problems;       ///< Why parts of a request could not be carried out.
};
