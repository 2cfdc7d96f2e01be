#include "comparison.h"

#include "drawing.h"
#include "layerfields.h"

#include <algorithm>

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::Layer;

/// The contents of a layer, independent of its name and of everything that saving may change. Only
/// sums are used, so the order of entities does not matter.
struct Content
{
    int entities = 0;
    quint64 sum = 0;
};

quint64 hashOfEntity(const Drawing& drawing, const drawing::Entity& entity)
{
    constexpr int kLayer = 8, kHandle = 5, kOwner = 330;
    quint64 hash = 0;
    drawing::TagReader tags = drawing.tags(entity);
    for (drawing::Tag tag; tags.next(tag);) {
        if (tag.code == kLayer || tag.code == kHandle || tag.code == kOwner)
            continue;
        const std::string_view value = tag.trimmed();
        hash = hash * 1099511628211U + static_cast<quint64>(tag.code);
        hash = hash * 1099511628211U + std::hash<std::string_view>()(value);
    }
    return hash;
}

QHash<int, Content> contents(const Drawing& drawing)
{
    QHash<int, Content> all;
    for (const drawing::Entity& entity : drawing.entities()) {
        Content& content = all[static_cast<int>(entity.layer)];
        content.entities += entity.subEntity ? 0 : 1;
        content.sum += hashOfEntity(drawing, entity);
    }
    return all;
}

/// Compares the layers of two drawings.
class Comparison
{
public:
    Comparison(const Drawing& first, const Drawing& second, Result& result)
        : m_first(first),
          m_second(second),
          m_result(result)
    {
    }

    void compareLayers();
    void compareStates();

private:
    void compare(const Layer& first, const Layer& second);
    void findRenamed(std::vector<const Layer*>& gone, std::vector<const Layer*>& added);
    void add(const char* change, const QString& layer, const QString& property,
        const QString& before, const QString& after);

    const Drawing& m_first;
    const Drawing& m_second;
    Result& m_result;
};

void Comparison::add(const char* change, const QString& layer, const QString& property,
    const QString& before, const QString& after)
{
    m_result.data.append(QJsonObject{{QStringLiteral("change"), QLatin1String(change)},
        {QStringLiteral("name"), layer}, {QStringLiteral("property"), property},
        {QStringLiteral("before"), before}, {QStringLiteral("after"), after}});
    const QString word = QLatin1String(change);
    m_result.counts.insert(word, m_result.counts.value(word).toInt() + 1);
    m_result.found = true;
}

void Comparison::compare(const Layer& first, const Layer& second)
{
    const QString& name = first.properties.name;
    for (const LayerField& field : layerFields()) {
        const QString before = field.get(first.properties).toString();
        const QString after = field.get(second.properties).toString();
        if (before != after)
            add("changed", name, QLatin1String(field.id), before, after);
    }
    if (first.entityCount != second.entityCount)
        add("changed", name, QStringLiteral("entities"), QString::number(first.entityCount),
            QString::number(second.entityCount));
}

/// Finds renamed layers: one that is missing and one that is new with exactly the same contents.
/// When several have the same contents, nothing is guessed.
void Comparison::findRenamed(std::vector<const Layer*>& gone, std::vector<const Layer*>& added)
{
    const auto before = contents(m_first);
    const auto after = contents(m_second);
    QHash<quint64, std::vector<const Layer*>> bySum;
    for (const Layer* layer : added)
        bySum[after.value(static_cast<int>(layer->id)).sum].push_back(layer);
    QHash<quint64, int> timesGone;
    for (const Layer* layer : gone)
        ++timesGone[before.value(static_cast<int>(layer->id)).sum];
    const auto renamed = [&](const Layer* layer) {
        const Content content = before.value(static_cast<int>(layer->id));
        const auto same = bySum.value(content.sum);
        if (content.entities == 0 || same.size() != 1 || timesGone.value(content.sum) != 1 ||
            same.front()->entityCount != layer->entityCount)
            return false;
        add("renamed", layer->properties.name, QStringLiteral("name"), layer->properties.name,
            same.front()->properties.name);
        Layer expected = *layer;
        expected.properties.name = same.front()->properties.name;
        compare(expected, *same.front());
        added.erase(std::find(added.begin(), added.end(), same.front()));
        return true;
    };
    gone.erase(std::remove_if(gone.begin(), gone.end(), renamed), gone.end());
}

void Comparison::compareLayers()
{
    std::vector<const Layer*> gone;
    std::vector<const Layer*> added;
    for (const Layer& layer : m_first.layers()) {
        if (const Layer* other = m_second.findLayer(layer.properties.name))
            compare(layer, *other);
        else
            gone.push_back(&layer);
    }
    for (const Layer& layer : m_second.layers()) {
        if (!m_first.findLayer(layer.properties.name))
            added.push_back(&layer);
    }
    if (!gone.empty() && !added.empty())
        findRenamed(gone, added);
    for (const Layer* layer : gone)
        add("gone", layer->properties.name, QStringLiteral("entities"),
            QString::number(layer->entityCount), {});
    for (const Layer* layer : added)
        add("added", layer->properties.name, QStringLiteral("entities"), {},
            QString::number(layer->entityCount));
}

void Comparison::compareStates()
{
    for (const drawing::LayerState& state : m_first.layerStates()) {
        const auto other = m_second.layerState(state.name);
        if (!other)
            add("state-gone", state.name, {}, {}, {});
        else if (!(*other == state))
            add("state-changed", state.name, {}, {}, {});
    }
    for (const QString& name : m_second.layerStateNames()) {
        if (!m_first.layerState(name))
            add("state-added", name, {}, {}, {});
    }
}

} // namespace

void compareDrawings(const Drawing& first, const Drawing& second, Result& result)
{
    Comparison comparison(first, second, result);
    comparison.compareLayers();
    comparison.compareStates();
}

} // namespace layertool
