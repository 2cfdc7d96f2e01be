#pragma once

#include "command.h"
#include "file/error.h"
#include "layers/layer.h"
#include "vnjson.h"

#include <QStringList>

/// LAYWALK: shows the layer walk and updates the drawing immediately. The whole walk is one step,
/// or none when the drawing ends up as it began.
class LayerWalkCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;

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
    std::vector<Before> m_before; ///< The layers at the beginning of the walk.
    drawing::LayerId m_currentBefore = drawing::LayerId::None;
    /// The layer that was current before the latest click, according to the dialog.
    drawing::LayerId m_oldCurrent = drawing::LayerId::None;
    /// The walk purged layers or saved a state, which restoring the layers does not revert.
    bool m_hasOtherEdits = false;
    QStringList m_problems; ///< Why parts of a request could not be carried out.
};
