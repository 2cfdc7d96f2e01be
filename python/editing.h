#pragma once

#include "casters.h"
#include "drawing.h"

#include <functional>
#include <memory>

namespace dxflayers {

using DrawingPtr = std::shared_ptr<drawing::Drawing>;

/// Runs an edit in the step that is open, or in one of its own, which is taken back when the edit
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

/// A layer of a drawing, which it keeps open.
class LayerHandle
{
public:
    LayerHandle(DrawingPtr drawing, drawing::LayerId id) : m_drawing(std::move(drawing)), m_id(id)
    {
    }

    drawing::LayerId id() const { return m_id; }
    const DrawingPtr& drawing() const { return m_drawing; }
    /// The layer as it is now; throws where it was removed.
    const drawing::Layer& get() const;
    /// Changes some of the properties.
    void change(const std::function<void(drawing::LayerProperties&)>& act) const;

    friend bool operator==(const LayerHandle& a, const LayerHandle& b)
    {
        return a.m_drawing == b.m_drawing && a.m_id == b.m_id;
    }

private:
    DrawingPtr m_drawing;
    drawing::LayerId m_id;
};

/// The layer of that name, without regard to letter case; throws where the drawing has none.
LayerHandle layerNamed(const DrawingPtr& drawing, const QString& name);
std::vector<drawing::LayerId> idsOf(const DrawingPtr& drawing, const QStringList& names);

using DrawingClass = pybind11::class_<drawing::Drawing, DrawingPtr>;

// Each part of the module adds what it knows.
DrawingClass bindLayers(pybind11::module_& module);
void bindStates(DrawingClass& drawing);
void bindStandards(pybind11::module_& module, DrawingClass& drawing);

} // namespace dxflayers
