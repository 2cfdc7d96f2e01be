#include "layerstate.h"

#include "drawing.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace drawing {

namespace {

/// What one bit of the mask stands for.
struct MaskRow
{
    int bit;
    void (*copy)(LayerProperties& to, const LayerProperties& from);
};

constexpr MaskRow kRows[] = {
    {kStateOnOff, [](auto& to, auto& from) { to.off = from.off; }},
    {kStateFreeze, [](auto& to, auto& from) { to.frozen = from.frozen; }},
    {kStateLock, [](auto& to, auto& from) { to.locked = from.locked; }},
    {kStatePlot, [](auto& to, auto& from) { to.plotted = from.plotted; }},
    {kStateNewViewportFreeze,
        [](auto& to, auto& from) { to.frozenInNewViewports = from.frozenInNewViewports; }},
    {kStateColor,
        [](auto& to, auto& from) {
            to.colorIndex = from.colorIndex;
            to.trueColor = from.trueColor;
        }},
    {kStateLinetype, [](auto& to, auto& from) { to.linetype = from.linetype; }},
    {kStateLineweight, [](auto& to, auto& from) { to.lineweight = from.lineweight; }},
    {kStatePlotStyle, [](auto& to, auto& from) { to.plotStyle = from.plotStyle; }},
    {kStateTransparency, [](auto& to, auto& from) { to.transparency = from.transparency; }},
};

/// What a viewport may show otherwise than the layer says.
constexpr int kOverridable =
    kStateColor | kStateLinetype | kStateLineweight | kStatePlotStyle | kStateTransparency;

QString tr(const char* text)
{
    return QCoreApplication::translate("drawing", text);
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
    if (m_how.viewportOverrides) {
        m_how.mask &= ~kOverridable;
        m_notices += tr("颜色、线型、线宽、打印样式和透明度还不能作为视口替代应用，没有恢复。");
    }
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
        m_notices +=
            tr("图形中没有图层“%1”%2，没有恢复。")
                .arg(missing.first(),
                    missing.size() > 1 ? tr("等 %1 个图层").arg(missing.size()) : QString());
    if (m_how.turnOthersOff)
        turnOthersOff(restored);
    return m_notices;
}

void Restoring::makeCurrent()
{
    const Layer* current = m_drawing.findLayer(m_state.currentLayer);
    if (current && !current->dependsOnReference)
        m_drawing.setCurrentLayer(current->id);
}

void Restoring::restoreLayer(const Layer& layer, const LayerProperties& saved)
{
    const LayerProperties& now = layer.properties;
    LayerProperties after = maskedProperties(now, respelled(saved, now), m_how.mask);
    if (after.frozen && !now.frozen && layer.id == m_drawing.currentLayer()) {
        m_notices += tr("当前图层“%1”不能冻结。").arg(now.name);
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
    m_drawing.setLayerProperties(id, rest);
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
    for (const Layer& layer : drawing.layers()) {
        LayerStateLayer saved{layer.properties, false};
        saved.properties.description.clear();
        state.layers.push_back(std::move(saved));
    }
    return state;
}

LayerProperties maskedProperties(const LayerProperties& now, const LayerProperties& saved, int mask)
{
    LayerProperties after = now;
    for (const MaskRow& row : kRows) {
        if (mask & row.bit)
            row.copy(after, saved);
    }
    return after;
}

bool isSameAsDrawing(const LayerState& state, const Drawing& drawing)
{
    return std::all_of(state.layers.begin(), state.layers.end(), [&](const LayerStateLayer& saved) {
        const Layer* layer = drawing.findLayer(saved.properties.name);
        if (!layer)
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
