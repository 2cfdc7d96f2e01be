#include "layermemory.h"

#include "layeracts.h"

#include <algorithm>
#include <set>

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerId;
using drawing::LayerProperties;

namespace {

constexpr size_t kMostSteps = 100;
constexpr int kFaded = 75; ///< The minimum transparency in percent.

/// Whether two layers differ at most in their names.
bool isSameButName(const LayerProperties& a, const LayerProperties& b)
{
    if (a == b)
        return true;
    LayerProperties renamed = a;
    renamed.name = b.name;
    renamed.plotStyle = b.plotStyle; // It follows from the colour.
    return renamed == b;
}

void fade(LayerProperties& properties)
{
    properties.transparency = std::max(properties.transparency, kFaded);
}

} // namespace

void LayerHistory::setDrawing(Drawing* drawing)
{
    if (m_drawing)
        m_drawing->disconnect(this);
    m_drawing = drawing;
    m_steps.clear();
    m_layers.follow(m_drawing);
    if (!m_drawing)
        return;
    m_current = m_drawing->currentLayer();
    connect(m_drawing, &Drawing::layersChanged, this, &LayerHistory::follow);
}

LayerHistory::Step LayerHistory::stepToPresent() const
{
    Step step;
    step.currentBefore = m_current;
    step.currentAfter = m_drawing->currentLayer();
    for (const Layer& layer : m_drawing->layers()) {
        const int at = m_layers.find(layer.id);
        if (at >= 0 && !isSameButName(m_layers[at].properties, layer.properties))
            step.changes.push_back({m_layers[at].properties, layer.properties, layer.id});
    }
    // The order of the layers in the drawing may change.
    std::sort(step.changes.begin(), step.changes.end(),
        [](const Change& a, const Change& b) { return a.layer < b.layer; });
    return step;
}

bool LayerHistory::isReverse(const Step& a, const Step& b)
{
    return a.currentBefore == b.currentAfter && a.currentAfter == b.currentBefore &&
           std::equal(a.changes.begin(), a.changes.end(), b.changes.begin(), b.changes.end(),
               [](const Change& one, const Change& other) {
                   return one.layer == other.layer && isSameButName(one.before, other.after) &&
                          isSameButName(one.after, other.before);
               });
}

void LayerHistory::follow()
{
    Step step = stepToPresent();
    m_layers.follow(m_drawing);
    m_current = step.currentAfter;
    if (step.changes.empty() && step.currentBefore == step.currentAfter)
        return;
    if (!m_steps.empty() && isReverse(m_steps.back(), step))
        m_steps.pop_back();
    else
        m_steps.push_back(std::move(step));
    if (m_steps.size() > kMostSteps)
        m_steps.erase(m_steps.begin());
}

QStringList LayerHistory::goBack(Drawing& drawing) const
{
    QStringList refusals;
    if (m_steps.empty())
        return refusals;
    const Step& step = m_steps.back();
    if (drawing.layer(step.currentBefore)) {
        if (const auto done = drawing.setCurrentLayer(step.currentBefore); !done)
            refusals += done.error().text;
    }
    for (const Change& change : step.changes) {
        const Layer* const layer = drawing.layer(change.layer);
        if (!layer)
            continue;
        LayerProperties wanted = change.before;
        wanted.name = layer->properties.name;
        if (const auto done = drawing.setLayerProperties(change.layer, wanted); !done)
            refusals += done.error().text;
    }
    return refusals;
}

QStringList LayerIsolation::isolate(Drawing& drawing, const Layers& layers, Way way)
{
    QStringList refusals = restore(drawing);
    const std::set<LayerId> kept(layers.begin(), layers.end());
    m_way = way;
    for (const Layer& layer : drawing.layers()) {
        const LayerProperties& p = layer.properties;
        if (kept.count(layer.id) == 0 && !(way == Way::Hide ? p.off : p.locked))
            m_changed.push_back(layer.id);
    }
    std::sort(m_changed.begin(), m_changed.end());
    refusals += layeracts::change(drawing, m_changed,
        [way](LayerProperties& p) { (way == Way::Hide ? p.off : p.locked) = true; });
    if (!layers.empty() && kept.count(drawing.currentLayer()) == 0) {
        m_current = drawing.currentLayer();
        if (const auto done = drawing.setCurrentLayer(layers.front()); !done)
            refusals += done.error().text;
    }
    return refusals;
}

QStringList LayerIsolation::restore(Drawing& drawing)
{
    const Way way = m_way;
    QStringList refusals = layeracts::change(drawing, m_changed,
        [way](LayerProperties& p) { (way == Way::Hide ? p.off : p.locked) = false; });
    if (drawing.layer(m_current)) {
        if (const auto done = drawing.setCurrentLayer(m_current); !done)
            refusals += done.error().text;
    }
    forget();
    return refusals;
}

std::vector<Layer> LayerIsolation::shown(std::vector<Layer> layers) const
{
    if (!fades())
        return layers;
    for (Layer& layer : layers) {
        if (layer.properties.locked &&
            std::binary_search(m_changed.begin(), m_changed.end(), layer.id))
            fade(layer.properties);
    }
    return layers;
}

std::vector<Layer> withHiddenFaded(std::vector<Layer> layers, drawing::Sheet* sheet)
{
    std::set<drawing::LayerId> frozen;
    if (sheet) {
        for (drawing::SheetViewport& viewport : sheet->viewports) {
            frozen.insert(viewport.frozen.begin(), viewport.frozen.end());
            viewport.frozen.clear();
        }
    }
    for (Layer& layer : layers) {
        LayerProperties& properties = layer.properties;
        if (!properties.off && !properties.frozen && frozen.count(layer.id) == 0)
            continue;
        properties.off = properties.frozen = false;
        fade(properties);
    }
    return layers;
}
