#pragma once

#include "casters.h"
#include "drawing.h"

#include <functional>
#include <memory>

namespace dxflayers {

using DrawingPtr = std::shared_ptr<drawing::Drawing>;

/// Runs an edit in the open step, or else in a step of its own, which is rolled back when the edit
/// is refused.
template <class Edit>
auto edit(drawing::Drawing& drawing, const QString& name, Edit&& act)
{
    if (drawing.inStep())
        return act();
    drawing::DrawingStep step(drawing, name);
    if constexpr (std::is_void_v<decltype(act())>) {
        act();
        step.commit();
    } else {
        auto result = act();
        step.commit();
        return result;
    }
}

/// A layer of a drawing. It keeps the drawing open.
class LayerHandle
{
public:
    LayerHandle(DrawingPtr drawing, drawing::LayerId id) : m_drawing(std::move(drawing)), m_id(id)
    {
    }

    drawing::LayerId id() const { return m_id; }
    const DrawingPtr& drawing() const { return m_drawing; }
    /// The present layer. Throws when it has been deleted.
    const drawing::Layer& get() const;
    /// Changes properties of the layer.
    void change(const std::function<void(drawing::LayerProperties&)>& act) const;

    friend bool operator==(const LayerHandle& a, const LayerHandle& b)
    {
        return a.m_drawing == b.m_drawing && a.m_id == b.m_id;
    }

private:
    DrawingPtr m_drawing;
    drawing::LayerId m_id;
};

/// The layer of this name, ignoring letter case. Throws when the drawing has none.
LayerHandle layerNamed(const DrawingPtr& drawing, const QString& name);
std::vector<drawing::LayerId> idsOf(const DrawingPtr& drawing, const QStringList& names);

using DrawingClass = pybind11::class_<drawing::Drawing, DrawingPtr>;

// Each function adds one part of the module.
DrawingClass bindLayers(pybind11::module_& module);
void bindStates(DrawingClass& drawing);
void bindStandards(pybind11::module_& module, DrawingClass& drawing);

} // namespace dxflayers
