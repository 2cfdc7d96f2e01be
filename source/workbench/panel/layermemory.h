#pragma once

#include "drawing.h"

#include <QObject>
#include <QPointer>

#include <vector>

/// The states that layers were in, for going back to the one before. Names, and layers that came or
/// went, are left alone by that. A change that takes the last one back, as undo does, is no new
/// state.
class LayerHistory : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void setDrawing(drawing::Drawing* drawing);
    bool isEmpty() const { return m_steps.empty(); }
    /// Gives layers the properties they had before the last change; needs an open step. A sentence
    /// for what was refused.
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
    Step stepTo(const std::vector<drawing::Layer>& now) const;
    static bool isReverse(const Step& a, const Step& b);

    QPointer<drawing::Drawing> m_drawing;
    std::vector<drawing::Layer> m_layers; ///< As they were last.
    drawing::LayerId m_current = drawing::LayerId::None;
    std::vector<Step> m_steps;
};

/// Which layers were hidden, or locked, to leave others alone in view; and the way back.
class LayerIsolation
{
public:
    enum class Way { Hide, LockAndFade };
    using Layers = std::vector<drawing::LayerId>;

    /// Leaves these layers in view, or unlocked, alone; what was isolated before is restored first.
    /// One of them becomes the current layer where it is none of them. Needs an open step; a
    /// sentence for what was refused.
    QStringList isolate(drawing::Drawing& drawing, const Layers& layers, Way way);
    /// Gives the others back what they had, as far as nobody changed it meanwhile.
    QStringList restore(drawing::Drawing& drawing);
    bool isActive() const { return !m_changed.empty(); }
    void forget() { *this = {}; } ///< For another drawing.
    /// The layers as the canvas shows them: what isolation locked is faded.
    std::vector<drawing::Layer> shown(std::vector<drawing::Layer> layers) const;

private:
    Layers m_changed; ///< Ascending.
    Way m_way = Way::Hide;
    drawing::LayerId m_current = drawing::LayerId::None; ///< Before; None where it stayed.
};

/// What the window remembers of the layers of its drawing.
struct LayerMemory
{
    LayerHistory history;
    LayerIsolation isolation;
};
