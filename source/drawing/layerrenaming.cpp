#include "layerrenaming.h"

#include "drawingprivate.h"
#include "file/symbolname.h"

#include <QHash>
#include <QUuid>

#include <optional>
#include <utility>

namespace drawing {

namespace {

using Outcome = LayerRenamed::Outcome;

/// A name that is not in use and is valid in every version.
QString temporaryName()
{
    constexpr int kDigits = 24;
    return QStringLiteral("X$") +
           QUuid::createUuid().toString(QUuid::Id128).left(kDigits).toUpper();
}

/// Carries out renames. A layer that waits for a name is found through the layer that has the name,
/// so the work is proportional to the number of renames.
class Renaming
{
public:
    Renaming(Drawing& drawing, const std::vector<LayerRename>& renames, NameClash clash);

    std::vector<LayerRenamed> run();

private:
    using Index = std::size_t;
    using Circle = std::vector<Index>;

    static int keyOf(LayerId layer) { return static_cast<int>(layer); }
    LayerId layerOf(Index rename) const { return m_results[rename].layer; }
    const QString& nameFor(Index rename) const { return m_results[rename].to; }
    bool isOpen(Index rename) const { return m_open.contains(keyOf(layerOf(rename))); }

    const Layer* holderOf(Index rename) const;
    std::optional<LayerId> holderToWaitFor(Index rename) const;
    void advance(Index first);
    void carryOut(Index rename);
    void finish(Index rename, Outcome outcome, const Expected<void>& done);
    Circle circleFrom(Index start) const;
    void turn(const Circle& circle);
    std::optional<Index> tryToTurn(const Circle& circle, Expected<void>& done);
    Expected<void> setName(LayerId layer, const QString& name);

    Drawing& m_drawing;
    NameClash m_clash;
    QHash<int, Index> m_open; ///< Renames that are neither done nor refused, by layer.
    /// Waiting renames, by the layer whose name they wait for.
    QHash<int, std::vector<Index>> m_waiting;
    std::vector<LayerRenamed> m_results; ///< The index is that of the rename.
};

Renaming::Renaming(Drawing& drawing, const std::vector<LayerRename>& renames, NameClash clash)
    : m_drawing(drawing),
      m_clash(clash)
{
    for (const LayerRename& rename : renames) {
        const Layer* const layer = drawing.layer(rename.layer);
        const QString name = rename.name.trimmed();
        if (!layer || layer->properties.name == name || m_open.contains(keyOf(rename.layer)))
            continue;
        m_open.insert(keyOf(rename.layer), m_results.size());
        m_results.push_back({rename.layer, layer->properties.name, name, Outcome::Refused, {}, {}});
    }
}

std::vector<LayerRenamed> Renaming::run()
{
    for (Index i = 0; i < m_results.size(); ++i)
        advance(i);
    for (Index i = 0; i < m_results.size(); ++i) { // The remaining renames wait for each other.
        if (isOpen(i))
            turn(circleFrom(i));
    }
    return std::move(m_results);
}

/// Another layer that already has the name; null when there is none.
const Layer* Renaming::holderOf(Index rename) const
{
    const Layer* const holder = m_drawing.findLayer(nameFor(rename));
    return holder && holder->id != layerOf(rename) ? holder : nullptr;
}

/// The layer that has the name and will give it up. A name that no layer may have is tried
/// immediately so that the drawing refuses it, because a cycle that fails half-way could not be
/// reverted with it.
std::optional<LayerId> Renaming::holderToWaitFor(Index rename) const
{
    const Layer* const holder = holderOf(rename);
    if (!holder || !m_open.contains(keyOf(holder->id)))
        return std::nullopt;
    const FormatLimits& limits = DrawingAccess::data(m_drawing).file.limits();
    return nameRefusal(nameFor(rename), {}, limits).isEmpty() ? std::optional(holder->id)
                                                              : std::nullopt;
}

void Renaming::advance(Index first)
{
    std::vector<Index> ready{first};
    while (!ready.empty()) {
        const Index rename = ready.back();
        ready.pop_back();
        if (!isOpen(rename))
            continue;
        if (const auto holder = holderToWaitFor(rename)) {
            m_waiting[keyOf(*holder)].push_back(rename);
            continue;
        }
        carryOut(rename);
        const std::vector<Index> freed = m_waiting.take(keyOf(layerOf(rename)));
        ready.insert(ready.end(), freed.rbegin(), freed.rend()); // The earliest rename comes first.
    }
}

/// Renames the layer or, if merging is wanted, moves its contents to the layer that has the name.
void Renaming::carryOut(Index rename)
{
    const Layer* const holder = holderOf(rename);
    if (holder && m_clash == NameClash::Merge) {
        finish(rename, Outcome::Merged, m_drawing.mergeLayers({layerOf(rename)}, holder->id));
        return;
    }
    if (holder)
        m_results[rename].holder = holder->properties.name;
    finish(rename, Outcome::Renamed, setName(layerOf(rename), nameFor(rename)));
}

void Renaming::finish(Index rename, Outcome outcome, const Expected<void>& done)
{
    m_open.remove(keyOf(layerOf(rename)));
    m_results[rename].outcome = done ? outcome : Outcome::Refused;
    m_results[rename].cause = done ? QString() : done.error().text;
}

/// The renames that wait for each other in a cycle, each for the layer of the next one.
Renaming::Circle Renaming::circleFrom(Index start) const
{
    Circle path;
    QHash<Index, int> places;
    for (Index at = start; !places.contains(at);) {
        places.insert(at, static_cast<int>(path.size()));
        path.push_back(at);
        const auto holder = holderToWaitFor(at);
        if (!holder)
            return {at};
        at = m_open.value(keyOf(*holder));
        if (places.contains(at))
            path.erase(path.begin(), path.begin() + places.value(at));
    }
    return path;
}

void Renaming::turn(const Circle& circle)
{
    Expected<void> done;
    const std::optional<Index> refused = tryToTurn(circle, done);
    if (refused) {
        finish(*refused, Outcome::Refused, done);
    } else {
        for (const Index rename : circle)
            finish(rename, Outcome::Renamed, done);
    }
    for (const Index rename : circle) {
        for (const Index freed : m_waiting.take(keyOf(layerOf(rename))))
            advance(freed);
    }
}

/// Renames one layer temporarily while the others get their names. If one fails, all get their old
/// names back, which the drawing allows because other layers of the cycle wanted these names and
/// they were checked. Returns the rename that failed.
std::optional<Renaming::Index> Renaming::tryToTurn(const Circle& circle, Expected<void>& done)
{
    const QString temporary = temporaryName();
    std::vector<std::pair<LayerId, LayerProperties>> former;
    const auto take = [&](Index rename, const QString& name) {
        const LayerProperties before = m_drawing.layer(layerOf(rename))->properties;
        done = setName(layerOf(rename), name);
        if (done)
            former.emplace_back(layerOf(rename), before);
        else
            done.error().text.replace(temporary, m_results[circle.front()].from);
        return done.has_value();
    };
    Index refused = circle.front();
    bool isDone = take(refused, temporary);
    for (auto at = circle.rbegin(); isDone && at != circle.rend(); ++at) {
        refused = *at;
        isDone = take(refused, nameFor(refused));
    }
    if (isDone)
        return std::nullopt;
    for (auto step = former.rbegin(); step != former.rend(); ++step)
        (void)m_drawing.setLayerProperties(step->first, step->second);
    return refused;
}

Expected<void> Renaming::setName(LayerId layer, const QString& name)
{
    LayerProperties properties = m_drawing.layer(layer)->properties;
    properties.name = name;
    return m_drawing.setLayerProperties(layer, properties);
}

} // namespace

std::vector<LayerRenamed> renameLayers(
    Drawing& drawing, const std::vector<LayerRename>& renames, NameClash clash)
{
    return Renaming(drawing, renames, clash).run();
}

} // namespace drawing
