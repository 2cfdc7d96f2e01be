#include "statelayers.h"

#include "file/drawingtexts.h"
#include "file/symbolname.h"
#include "layers/layeredits.h"
#include "layers/layertable.h"
#include "layers/layouts.h"
#include "layers/plotstyles.h"
#include "layers/viewportlayers.h"

#include <QSet>

#include <algorithm>

namespace drawing {

namespace {

/// The properties that can be overridden in a viewport.
constexpr int kOverridable =
    kStateColor | kStateLinetype | kStateLineweight | kStatePlotStyle | kStateTransparency;

/// Whether restoring the state includes what a viewport shows. A state that was saved in model
/// space contains nothing about viewports.
bool concernsViewport(const LayerState& state, int mask, const LayoutTable& layouts)
{
    return (mask & kStateCurrentViewport) != 0 && state.fromLayout && !layouts.isModelSpace();
}

bool contains(const std::vector<LayerId>& sorted, LayerId layer)
{
    return std::binary_search(sorted.begin(), sorted.end(), layer);
}

/// The first name, with the number of names if there are more.
QString firstOf(const QStringList& names)
{
    return names.size() > 1 ? Texts::tr("“%1”等 %2 个图层").arg(names.first()).arg(names.size())
                            : Texts::tr("“%1”").arg(names.first());
}

QString nameOf(const LayerTable& layers, LayerId id)
{
    const Layer* layer = layers.layer(id);
    return layer ? layer->properties.name : QString();
}

/// Returns `saved` with the spelling of `now` where they differ in letter case only.
LayerProperties respelled(LayerProperties saved, const LayerProperties& now)
{
    if (isSameName(saved.linetype, now.linetype))
        saved.linetype = now.linetype;
    if (isSameName(saved.plotStyle, now.plotStyle) || saved.plotStyle.isEmpty())
        saved.plotStyle = now.plotStyle;
    return saved;
}

class Restoring
{
public:
    Restoring(const StateTarget& target, const LayerState& state, const LayerStateRestore& how)
        : m_target(target),
          m_state(state),
          m_how(how)
    {
    }
    QStringList run();

private:
    void makeCurrent();
    bool willBeFrozen(const Layer& layer) const;
    void overrideLayers();
    void noteUnheldStyles(const std::vector<LayerInViewport>& layers);
    void restoreVisibility();
    void restoreLayer(const Layer& layer, const LayerProperties& saved);
    void turnOthersOff(const QSet<QString>& restored);
    void apply(LayerId id, const LayerProperties& after);

    const StateTarget m_target;
    const LayerState& m_state;
    LayerStateRestore m_how;
    QStringList m_notices;
};

QStringList Restoring::run()
{
    makeCurrent();
    if (m_how.viewportOverrides && !m_target.layouts.isModelSpace())
        overrideLayers();
    QSet<QString> restored;
    QStringList missing;
    for (const LayerStateLayer& saved : m_state.layers) {
        const Layer* layer = m_target.layers.find(saved.properties.name);
        restored.insert(foldedName(saved.properties.name));
        if (layer)
            restoreLayer(*layer, saved.properties);
        else
            missing += saved.properties.name;
    }
    if (!missing.isEmpty())
        m_notices += Texts::tr("图形中没有图层%1，没有恢复。").arg(firstOf(missing));
    if (concernsViewport(m_state, m_how.mask, m_target.layouts))
        restoreVisibility();
    if (m_how.turnOthersOff)
        turnOthersOff(restored);
    return m_notices;
}

/// Makes the state's current layer current, unless the restored layer will be frozen: a frozen
/// layer cannot be current, and no layer is thawed for this purpose. This happens before the layers
/// change, so that the present current layer can then be frozen.
void Restoring::makeCurrent()
{
    const Layer* wanted = m_target.layers.find(m_state.currentLayer);
    const LayerId present = m_target.layers.current();
    if (!wanted || wanted->id == present || wanted->dependsOnReference)
        return;
    if (willBeFrozen(*wanted))
        m_notices += Texts::tr("图层“%1”恢复后是冻结的，不能置为当前；当前图层仍为“%2”。")
                         .arg(wanted->properties.name, nameOf(m_target.layers, present));
    else if (const auto done = m_target.edits.setCurrent(wanted->id); !done)
        m_notices += done.error().text;
}

bool Restoring::willBeFrozen(const Layer& layer) const
{
    bool isFrozen = layer.properties.frozen;
    if ((m_how.mask & kStateFreeze) == 0)
        return isFrozen;
    for (const LayerStateLayer& saved : m_state.layers) {
        if (m_target.layers.find(saved.properties.name) == &layer)
            isFrozen = saved.properties.frozen;
    }
    return isFrozen;
}

/// Sets viewport overrides. The layers themselves keep these properties even when that fails.
void Restoring::overrideLayers()
{
    const int wanted = m_how.mask & kOverridable;
    m_how.mask &= ~kOverridable;
    if (const auto possible = m_target.viewports.check(); !possible) {
        m_notices +=
            Texts::tr("%1：颜色、线型、线宽、打印样式和透明度不能作为视口替代应用，没有恢复。")
                .arg(possible.error().text);
        return;
    }
    std::vector<LayerInViewport> layers;
    for (const LayerStateLayer& saved : m_state.layers) {
        if (const Layer* layer = m_target.layers.find(saved.properties.name))
            layers.push_back({layer->id, respelled(saved.properties, layer->properties)});
    }
    if (wanted & kStatePlotStyle)
        noteUnheldStyles(layers);
    const auto incomplete =
        m_target.viewports.override(layers, wanted & LayerOverrides::kProperties);
    QStringList names;
    for (const LayerId id : incomplete.value_or(std::vector<LayerId>()))
        names += nameOf(m_target.layers, id);
    if (!names.isEmpty())
        m_notices += Texts::tr("图形中没有图层%1的线型，没有恢复。").arg(firstOf(names));
}

/// Adds notices for plot styles, which cannot be overridden in viewports.
void Restoring::noteUnheldStyles(const std::vector<LayerInViewport>& layers)
{
    QStringList names;
    for (const LayerInViewport& layer : layers) {
        const LayerProperties& now = m_target.layers.layer(layer.layer)->properties;
        if (!m_target.plotStyles.areByColor() && layer.shown.plotStyle != now.plotStyle)
            names += now.name;
    }
    if (!names.isEmpty())
        m_notices +=
            Texts::tr("图层%1的打印样式不能作为视口替代保存，没有恢复。").arg(firstOf(names));
}

/// Restores what the viewport shows. Layers that the state does not contain stay as they are.
void Restoring::restoreVisibility()
{
    const std::vector<LayerId> now = m_target.viewports.frozen();
    std::vector<LayerId> frozen;
    QSet<int> held;
    for (const LayerStateLayer& saved : m_state.layers) {
        const Layer* layer = m_target.layers.find(saved.properties.name);
        if (!layer)
            continue;
        held.insert(static_cast<int>(layer->id));
        if (saved.frozenInCurrentViewport)
            frozen.push_back(layer->id);
    }
    for (const LayerId layer : now) {
        if (!held.contains(static_cast<int>(layer)))
            frozen.push_back(layer);
    }
    if (frozen.empty() && now.empty())
        return;
    if (const auto done = m_target.viewports.setFrozen(frozen); !done)
        m_notices += Texts::tr("%1：图层在当前视口中的可见性没有恢复。").arg(done.error().text);
}

void Restoring::restoreLayer(const Layer& layer, const LayerProperties& saved)
{
    const LayerProperties& now = layer.properties;
    LayerProperties after = maskedProperties(now, respelled(saved, now), m_how.mask);
    if (after.frozen && !now.frozen && layer.id == m_target.layers.current()) {
        m_notices += Texts::tr("当前图层“%1”不能冻结。").arg(now.name);
        after.frozen = false;
    }
    apply(layer.id, after);
}

void Restoring::turnOthersOff(const QSet<QString>& restored)
{
    std::vector<LayerId> others;
    for (const Layer& layer : m_target.layers.listed()) {
        if (!layer.properties.off && !restored.contains(foldedName(layer.properties.name)))
            others.push_back(layer.id);
    }
    for (const LayerId id : others) {
        LayerProperties after = m_target.layers.layer(id)->properties;
        after.off = true;
        apply(id, after);
    }
}

void Restoring::apply(LayerId id, const LayerProperties& after)
{
    const auto applied = m_target.edits.setProperties(id, after);
    if (applied)
        return;
    // Most likely the linetype does not exist any more; the other properties can still be restored.
    m_notices += applied.error().text;
    LayerProperties rest = after;
    rest.linetype = m_target.layers.layer(id)->properties.linetype;
    if (const auto done = m_target.edits.setProperties(id, rest);
        !done && done.error().text != applied.error().text)
        m_notices += done.error().text;
}

} // namespace

LayerState captureLayerState(const StateSource& source, const QString& name)
{
    LayerState state;
    state.name = name;
    state.currentLayer = nameOf(source.layers, source.layers.current());
    state.fromLayout = !source.layouts.isModelSpace();
    state.layers.reserve(source.layers.listed().size());
    const std::vector<LayerId> hidden = source.viewports.frozen();
    for (const Layer& layer : source.layers.listed()) {
        LayerStateLayer saved{layer.properties, contains(hidden, layer.id)};
        saved.properties.description.clear();
        state.layers.push_back(std::move(saved));
    }
    return state;
}

bool isSameAsDrawing(const LayerState& state, const StateSource& source)
{
    const bool withViewport = concernsViewport(state, state.mask, source.layouts);
    const std::vector<LayerId> hidden =
        withViewport ? source.viewports.frozen() : std::vector<LayerId>();
    return std::all_of(state.layers.begin(), state.layers.end(), [&](const LayerStateLayer& saved) {
        const Layer* layer = source.layers.find(saved.properties.name);
        if (!layer)
            return false;
        if (withViewport && contains(hidden, layer->id) != saved.frozenInCurrentViewport)
            return false;
        const LayerProperties& now = layer->properties;
        return maskedProperties(now, respelled(saved.properties, now), state.mask) == now;
    });
}

QStringList restoreLayerState(
    const StateTarget& target, const LayerState& state, const LayerStateRestore& how)
{
    return Restoring(target, state, how).run();
}

QStringList dropUnknownLayers(LayerState& state, const LayerTable& layers)
{
    QStringList unknown;
    QSet<int> seen;
    const auto isUseless = [&](const LayerStateLayer& saved) {
        const Layer* layer = layers.find(saved.properties.name);
        if (!layer)
            unknown += saved.properties.name;
        if (!layer || seen.contains(static_cast<int>(layer->id)))
            return true;
        seen.insert(static_cast<int>(layer->id));
        return false;
    };
    state.layers.erase(
        std::remove_if(state.layers.begin(), state.layers.end(), isUseless), state.layers.end());
    if (!layers.find(state.currentLayer))
        state.currentLayer.clear();
    return unknown;
}

} // namespace drawing
