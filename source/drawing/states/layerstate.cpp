#include "layerstate.h"

#include "drawing.h"
#include "drawingtexts.h"
#include "layeroverrides.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace drawing {

namespace {

/// What a viewport may show otherwise than the layer says.
constexpr int kOverridable =
    kStateColor | kStateLinetype | kStateLineweight | kStatePlotStyle | kStateTransparency;

/// Whether a viewport's visibility is part of restoring the state: one saved in model space says
/// nothing of it.
bool concernsViewport(const LayerState& state, int mask, const Drawing& drawing)
{
    return (mask & kStateCurrentViewport) != 0 && state.fromLayout && !drawing.isModelSpace();
}

bool contains(const std::vector<LayerId>& sorted, LayerId layer)
{
    return std::binary_search(sorted.begin(), sorted.end(), layer);
}

/// The first name, and how many there are when there are more.
QString firstOf(const QStringList& names)
{
    return names.size() > 1 ? Texts::tr("“%1”等 %2 个图层").arg(names.first()).arg(names.size())
                            : Texts::tr("“%1”").arg(names.first());
}

QString nameOf(const Drawing& drawing, LayerId id)
{
    const Layer* layer = drawing.layer(id);
    return layer ? layer->properties.name : QString();
}

/// Linetypes and plot styles are named without regard to letter case.
bool isSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// `saved` in the spelling of `now`, where that is all they differ in.
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
    Restoring(Drawing& drawing, const LayerState& state, const LayerStateRestore& how)
        : m_drawing(drawing),
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

    Drawing& m_drawing;
    const LayerState& m_state;
    LayerStateRestore m_how;
    QStringList m_notices;
};

QStringList Restoring::run()
{
    makeCurrent();
    if (m_how.viewportOverrides && !m_drawing.isModelSpace())
        overrideLayers();
    QSet<QString> restored;
    QStringList missing;
    for (const LayerStateLayer& saved : m_state.layers) {
        const Layer* layer = m_drawing.findLayer(saved.properties.name);
        restored.insert(saved.properties.name.toCaseFolded());
        if (layer)
            restoreLayer(*layer, saved.properties);
        else
            missing += saved.properties.name;
    }
    if (!missing.isEmpty())
        m_notices += Texts::tr("图形中没有图层%1，没有恢复。").arg(firstOf(missing));
    if (concernsViewport(m_state, m_how.mask, m_drawing))
        restoreVisibility();
    if (m_how.turnOthersOff)
        turnOthersOff(restored);
    return m_notices;
}

/// A frozen layer cannot be current, and none is thawed for it: whether the state's will be frozen
/// is looked up before the layers change, as the present one is then free to be frozen.
void Restoring::makeCurrent()
{
    const Layer* wanted = m_drawing.findLayer(m_state.currentLayer);
    const LayerId present = m_drawing.currentLayer();
    if (!wanted || wanted->id == present || wanted->dependsOnReference)
        return;
    if (willBeFrozen(*wanted))
        m_notices += Texts::tr("图层“%1”恢复后是冻结的，不能置为当前；当前图层仍为“%2”。")
                         .arg(wanted->properties.name, nameOf(m_drawing, present));
    else if (const auto done = m_drawing.setCurrentLayer(wanted->id); !done)
        m_notices += done.error().text;
}

bool Restoring::willBeFrozen(const Layer& layer) const
{
    bool isFrozen = layer.properties.frozen;
    if ((m_how.mask & kStateFreeze) == 0)
        return isFrozen;
    for (const LayerStateLayer& saved : m_state.layers) {
        if (m_drawing.findLayer(saved.properties.name) == &layer)
            isFrozen = saved.properties.frozen;
    }
    return isFrozen;
}

/// The layers themselves keep what is overridden, also where that cannot be done.
void Restoring::overrideLayers()
{
    const int wanted = m_how.mask & kOverridable;
    m_how.mask &= ~kOverridable;
    if (const auto possible = m_drawing.checkViewport(); !possible) {
        m_notices +=
            Texts::tr("%1：颜色、线型、线宽、打印样式和透明度不能作为视口替代应用，没有恢复。")
                .arg(possible.error().text);
        return;
    }
    std::vector<LayerInViewport> layers;
    for (const LayerStateLayer& saved : m_state.layers) {
        if (const Layer* layer = m_drawing.findLayer(saved.properties.name))
            layers.push_back({layer->id, respelled(saved.properties, layer->properties)});
    }
    if (wanted & kStatePlotStyle)
        noteUnheldStyles(layers);
    const auto incomplete =
        m_drawing.overrideInViewport(layers, wanted & LayerOverrides::kProperties);
    QStringList names;
    for (const LayerId id : incomplete.value_or(std::vector<LayerId>()))
        names += nameOf(m_drawing, id);
    if (!names.isEmpty())
        m_notices += Texts::tr("图形中没有图层%1的线型，没有恢复。").arg(firstOf(names));
}

/// Plot styles have no place among the overrides.
void Restoring::noteUnheldStyles(const std::vector<LayerInViewport>& layers)
{
    QStringList names;
    for (const LayerInViewport& layer : layers) {
        const LayerProperties& now = m_drawing.layer(layer.layer)->properties;
        if (m_drawing.hasNamedPlotStyles() && layer.shown.plotStyle != now.plotStyle)
            names += now.name;
    }
    if (!names.isEmpty())
        m_notices +=
            Texts::tr("图层%1的打印样式不能作为视口替代保存，没有恢复。").arg(firstOf(names));
}

/// Layers that the state does not hold stay as they are in the viewport.
void Restoring::restoreVisibility()
{
    const std::vector<LayerId> now = m_drawing.frozenInViewport();
    std::vector<LayerId> frozen;
    QSet<int> held;
    for (const LayerStateLayer& saved : m_state.layers) {
        const Layer* layer = m_drawing.findLayer(saved.properties.name);
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
    if (const auto done = m_drawing.setFrozenInViewport(frozen); !done)
        m_notices += Texts::tr("%1：图层在当前视口中的可见性没有恢复。").arg(done.error().text);
}

void Restoring::restoreLayer(const Layer& layer, const LayerProperties& saved)
{
    const LayerProperties& now = layer.properties;
    LayerProperties after = maskedProperties(now, respelled(saved, now), m_how.mask);
    if (after.frozen && !now.frozen && layer.id == m_drawing.currentLayer()) {
        m_notices += Texts::tr("当前图层“%1”不能冻结。").arg(now.name);
        after.frozen = false;
    }
    apply(layer.id, after);
}

void Restoring::turnOthersOff(const QSet<QString>& restored)
{
    std::vector<LayerId> others;
    for (const Layer& layer : m_drawing.layers()) {
        if (!layer.properties.off && !restored.contains(layer.properties.name.toCaseFolded()))
            others.push_back(layer.id);
    }
    for (const LayerId id : others) {
        LayerProperties after = m_drawing.layer(id)->properties;
        after.off = true;
        apply(id, after);
    }
}

void Restoring::apply(LayerId id, const LayerProperties& after)
{
    const auto applied = m_drawing.setLayerProperties(id, after);
    if (applied)
        return;
    // Most likely the linetype is gone: the rest need not go with it.
    m_notices += applied.error().text;
    LayerProperties rest = after;
    rest.linetype = m_drawing.layer(id)->properties.linetype;
    if (const auto done = m_drawing.setLayerProperties(id, rest);
        !done && done.error().text != applied.error().text)
        m_notices += done.error().text;
}

} // namespace

bool operator==(const LayerStateLayer& a, const LayerStateLayer& b)
{
    return a.properties == b.properties && a.frozenInCurrentViewport == b.frozenInCurrentViewport;
}

bool operator==(const LayerState& a, const LayerState& b)
{
    return std::tie(a.name, a.description, a.currentLayer, a.mask, a.fromLayout, a.layers) ==
           std::tie(b.name, b.description, b.currentLayer, b.mask, b.fromLayout, b.layers);
}

LayerState captureLayerState(const Drawing& drawing, const QString& name)
{
    LayerState state;
    state.name = name;
    state.currentLayer = nameOf(drawing, drawing.currentLayer());
    state.fromLayout = !drawing.isModelSpace();
    state.layers.reserve(drawing.layers().size());
    const std::vector<LayerId> hidden = drawing.frozenInViewport();
    for (const Layer& layer : drawing.layers()) {
        LayerStateLayer saved{layer.properties, contains(hidden, layer.id)};
        saved.properties.description.clear();
        state.layers.push_back(std::move(saved));
    }
    return state;
}

bool isSameAsDrawing(const LayerState& state, const Drawing& drawing)
{
    const bool withViewport = concernsViewport(state, state.mask, drawing);
    const std::vector<LayerId> hidden =
        withViewport ? drawing.frozenInViewport() : std::vector<LayerId>();
    return std::all_of(state.layers.begin(), state.layers.end(), [&](const LayerStateLayer& saved) {
        const Layer* layer = drawing.findLayer(saved.properties.name);
        if (!layer)
            return false;
        if (withViewport && contains(hidden, layer->id) != saved.frozenInCurrentViewport)
            return false;
        const LayerProperties& now = layer->properties;
        return maskedProperties(now, respelled(saved.properties, now), state.mask) == now;
    });
}

QStringList restoreLayerState(
    Drawing& drawing, const LayerState& state, const LayerStateRestore& how)
{
    return Restoring(drawing, state, how).run();
}

QStringList dropUnknownLayers(LayerState& state, const Drawing& drawing)
{
    QStringList unknown;
    QSet<int> seen;
    const auto isUseless = [&](const LayerStateLayer& saved) {
        const Layer* layer = drawing.findLayer(saved.properties.name);
        if (!layer)
            unknown += saved.properties.name;
        if (!layer || seen.contains(static_cast<int>(layer->id)))
            return true;
        seen.insert(static_cast<int>(layer->id));
        return false;
    };
    state.layers.erase(
        std::remove_if(state.layers.begin(), state.layers.end(), isUseless), state.layers.end());
    if (!drawing.findLayer(state.currentLayer))
        state.currentLayer.clear();
    return unknown;
}

} // namespace drawing
