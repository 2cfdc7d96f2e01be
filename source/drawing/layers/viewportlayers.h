#pragma once

#include "error.h"
#include "layer.h"

#include <QSet>

#include <vector>

namespace drawing {

struct DrawingData;

/// A layer and how it shall look in a viewport.
struct LayerInViewport
{
    LayerId layer = LayerId::None;
    LayerProperties shown;
};

/// What the viewports of layouts show otherwise than the layers themselves say.
class ViewportLayers
{
public:
    explicit ViewportLayers(DrawingData& data) : m_data(data) {}

    /// Refuses where there is no current viewport, or the format keeps nothing of this.
    Expected<void> check() const;
    /// The entity that is the current viewport of the layout shown: the one last active in it, else
    /// its first; -1 in model space and where the layout has none.
    int current() const;
    /// The layers frozen in the current viewport, ascending.
    std::vector<LayerId> frozen() const;
    /// Refuses as `check` does.
    Expected<void> setFrozen(const std::vector<LayerId>& layers);
    /// Properties as `LayerStateMask` bits. The layers whose linetype the drawing lacks come back;
    /// refuses as `check` does.
    Expected<std::vector<LayerId>> override(
        const std::vector<LayerInViewport>& layers, int properties);
    /// Takes layers that go, by their handles, out of every viewport's list.
    void forget(const QSet<quint64>& handles);

private:
    struct FrozenList;

    FrozenList list(int viewport) const;
    void write(const FrozenList& list, const std::vector<quint64>& added);

    DrawingData& m_data;
};

} // namespace drawing
