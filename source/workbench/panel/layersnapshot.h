#pragma once

#include "drawing.h"

#include <QFlags>

/// A copy of the layers of a drawing. What the panel shows stays the same until the copy follows
/// the drawing, whatever is edited meanwhile.
class LayerSnapshot
{
public:
    /// How a snapshot differs from what it was before.
    enum Difference {
        None = 0,
        List = 1,   ///< Layers were added, removed or reordered.
        Names = 2,  ///< Names or descriptions.
        Values = 4, ///< Anything else.
    };
    Q_DECLARE_FLAGS(Differences, Difference)

    LayerSnapshot() = default;
    /// Copies the layers; null gives no layers.
    explicit LayerSnapshot(const drawing::Drawing* drawing) { follow(drawing); }
    /// Whether the drawing has the same layers in the same order, whatever their properties are.
    bool hasListOf(const drawing::Drawing* drawing) const;
    /// Copies what has changed, which usually concerns few of the layers.
    Differences follow(const drawing::Drawing* drawing);

    int size() const { return static_cast<int>(m_layers.size()); }
    const drawing::Layer& operator[](int at) const { return m_layers[static_cast<size_t>(at)]; }
    /// The position of a layer; -1 when it is not there.
    int find(drawing::LayerId id) const;
    bool isCurrent(int at) const { return (*this)[at].id == m_around.current; }
    /// Whether a layout with a viewport is shown, in which layers can be overridden.
    bool hasViewport() const { return m_around.hasViewport; }
    bool isFrozenInViewport(int at) const;
    /// The layer's properties in the current viewport, including overrides.
    const drawing::LayerProperties& inViewport(int at) const;

private:
    void numberPlaces();

    /// What the drawing says about layers beside their properties.
    struct Surroundings
    {
        drawing::LayerId current = drawing::LayerId::None;
        bool hasViewport = false;
        /// The layers frozen in the viewport, in ascending order.
        std::vector<drawing::LayerId> frozen;
        std::vector<drawing::LayerInViewport> overrides; ///< In ascending order of the layers.
    };
    static bool isSame(const Surroundings& a, const Surroundings& b);

    std::vector<drawing::Layer> m_layers;
    std::vector<int> m_places; ///< For each layer id the position, or -1.
    Surroundings m_around;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(LayerSnapshot::Differences)
