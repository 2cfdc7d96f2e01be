#pragma once

#include "drawing.h"

#include <QFlags>

/// The layers of a drawing as they were last looked at. What is shown of them stays the same until
/// it looks again, whatever is edited meanwhile.
class LayerSnapshot
{
public:
    /// What differs from the time before.
    enum Difference {
        None = 0,
        List = 1,   ///< Layers came, went or stand in another order.
        Names = 2,  ///< A name or a description.
        Values = 4, ///< Anything else.
    };
    Q_DECLARE_FLAGS(Differences, Difference)

    LayerSnapshot() = default;
    /// Looks at the drawing; null has no layers.
    explicit LayerSnapshot(const drawing::Drawing* drawing);
    Differences differencesFrom(const LayerSnapshot& before) const;

    int size() const { return static_cast<int>(m_layers.size()); }
    const drawing::Layer& operator[](int at) const { return m_layers[static_cast<size_t>(at)]; }
    /// Where the layer is; -1 when it is not there.
    int find(drawing::LayerId id) const;
    bool isCurrent(int at) const { return (*this)[at].id == m_current; }
    /// Whether a layout is shown whose current viewport can show layers otherwise.
    bool hasViewport() const { return m_hasViewport; }
    bool isFrozenInViewport(int at) const;
    /// What the layer looks like in the current viewport, its own properties included.
    const drawing::LayerProperties& inViewport(int at) const;

private:
    std::vector<drawing::Layer> m_layers;
    std::vector<int> m_places; ///< By layer id; -1 for those that are not there.
    drawing::LayerId m_current = drawing::LayerId::None;
    bool m_hasViewport = false;
    std::vector<drawing::LayerId> m_frozen;            ///< In the viewport, ascending.
    std::vector<drawing::LayerInViewport> m_overrides; ///< By layer, ascending.
};

Q_DECLARE_OPERATORS_FOR_FLAGS(LayerSnapshot::Differences)
