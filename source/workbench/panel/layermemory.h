#pragma once

#include "layersnapshot.h"

#include <QObject>
#include <QPointer>

#include <vector>

/// Records the states of the layers so that the user can return to the previous one. Returning does
/// not affect names and layers that were added or deleted. A change that reverts the last one, such
/// as undo, does not count as a new state.
class LayerHistory : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void setDrawing(drawing::Drawing* drawing);
    bool isEmpty() const { return m_steps.empty(); }
    /// Restores the properties that layers had before the last change. Needs an open step. Returns
    /// sentences about what was refused.
    QStringList goBack(drawing::Drawing& drawing) const;

private:
    struct Change
    {
        drawing::LayerProperties before;
        drawing::LayerProperties after;
        drawing::LayerId layer = drawing::LayerId::None;
    };
    struct Step
    {
        std::vector<Change> changes;
        drawing::LayerId currentBefore = drawing::LayerId::None;
        drawing::LayerId currentAfter = drawing::LayerId::None;
    };

    void follow();
    Step stepToPresent() const;
    static bool isReverse(const Step& a, const Step& b);

    QPointer<drawing::Drawing> m_drawing;
    LayerSnapshot m_layers; ///< The last known state.
    drawing::LayerId m_current = drawing::LayerId::None;
    std::vector<Step> m_steps;
};

/// Remembers which layers were hidden or locked in order to isolate others, and restores them.
class LayerIsolation
{
public:
    enum class Way { Hide, LockAndFade };
    using Layers = std::vector<drawing::LayerId>;

    /// Isolates these layers by hiding or locking all others. An earlier isolation is undone first.
    /// When the current layer is not one of them, one of them becomes current. Needs an open step.
    /// Returns sentences about what was refused.
    QStringList isolate(drawing::Drawing& drawing, const Layers& layers, Way way);
    /// Restores the other layers as far as nobody changed them meanwhile.
    QStringList restore(drawing::Drawing& drawing);
    bool isActive() const { return !m_changed.empty(); }
    void forget() { *this = {}; } ///< Call this for another drawing.
    /// Whether some layers are shown faded, see `shown`.
    bool fades() const { return m_way == Way::LockAndFade && isActive(); }
    /// The layers as the canvas shows them: layers that isolation locked are faded.
    std::vector<drawing::Layer> shown(std::vector<drawing::Layer> layers) const;

private:
    Layers m_changed; ///< In ascending order.
    Way m_way = Way::Hide;
    /// The former current layer; None if it did not change.
    drawing::LayerId m_current = drawing::LayerId::None;
};

/// The layers as the canvas shows them where nothing is to be hidden: those that are hidden come
/// faded. In the viewports of `sheet`, which may be null, nothing is frozen any more.
std::vector<drawing::Layer> withHiddenFaded(
    std::vector<drawing::Layer> layers, drawing::Sheet* sheet);

/// What the window remembers about the layers of its drawing.
struct LayerMemory
{
    LayerHistory history;
    LayerIsolation isolation;
};
