#include "layerrenames.h"

#include "drawing.h"
#include "namerule.h"

#include <QCoreApplication>
#include <QHash>
#include <QUuid>

#include <optional>

using drawing::Drawing;
using drawing::Expected;
using drawing::Layer;
using drawing::LayerId;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("LayerPropertiesCommand", text);
}

/// Layers that wait for a name are looked up by the layer that has it, so the work grows with the
/// number of renames only.
class Renaming
{
public:
    Renaming(Drawing& drawing, const std::vector<LayerRename>& renames)
        : m_drawing(drawing),
          m_renames(renames)
    {
    }

    QStringList run();

private:
    using Index = std::size_t;
    using Circle = std::vector<Index>;

    static int keyOf(LayerId layer) { return static_cast<int>(layer); }
    LayerId layerOf(Index rename) const { return m_renames[rename].layer; }
    bool isOpen(Index rename) const { return m_open.contains(keyOf(layerOf(rename))); }

    std::optional<LayerId> holderToWaitFor(Index rename) const;
    void advance(Index first);
    void settle(Index rename, const Expected<void>& outcome);
    Circle circleFrom(Index start) const;
    void turn(const Circle& circle);
    std::optional<Index> tryToTurn(const Circle& circle, Expected<void>& outcome);
    Expected<void> setName(LayerId layer, const QString& name);

    Drawing& m_drawing;
    const std::vector<LayerRename>& m_renames;
    QHash<int, Index> m_open;                 ///< By layer; neither done nor refused yet.
    QHash<int, std::vector<Index>> m_waiting; ///< By the layer whose name is waited for.
    QStringList m_refusals;
};

QStringList Renaming::run()
{
    for (Index i = 0; i < m_renames.size(); ++i)
        m_open.insert(keyOf(layerOf(i)), i);
    for (Index i = 0; i < m_renames.size(); ++i)
        advance(i);
    for (Index i = 0; i < m_renames.size(); ++i) { // What is left waits for one another.
        if (isOpen(i))
            turn(circleFrom(i));
    }
    return m_refusals;
}

/// The layer that has the name and is to give it up. A name that no layer may have is tried at
/// once, for the drawing to refuse.
std::optional<LayerId> Renaming::holderToWaitFor(Index rename) const
{
    const LayerRename& wanted = m_renames[rename];
    const Layer* holder = m_drawing.findLayer(wanted.name);
    const bool waits = holder && holder->id != wanted.layer && m_open.contains(keyOf(holder->id)) &&
                       !vnsi::nameFaults(wanted.name);
    return waits ? std::optional(holder->id) : std::nullopt;
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
        settle(rename, setName(layerOf(rename), m_renames[rename].name));
        const std::vector<Index> freed = m_waiting.take(keyOf(layerOf(rename)));
        ready.insert(ready.end(), freed.begin(), freed.end());
    }
}

void Renaming::settle(Index rename, const Expected<void>& outcome)
{
    const LayerRename& wanted = m_renames[rename];
    m_open.remove(keyOf(wanted.layer));
    const Layer* layer = m_drawing.layer(wanted.layer);
    if (!outcome && layer)
        m_refusals += tr("图层“%1”没有重命名为“%2”：%3")
                          .arg(layer->properties.name, wanted.name, outcome.error().text);
}

/// The renames that wait for one another in a circle, each for the next one's layer.
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
    Expected<void> outcome;
    const std::optional<Index> refused = tryToTurn(circle, outcome);
    if (refused) {
        settle(*refused, outcome);
    } else {
        for (const Index rename : circle)
            settle(rename, {});
    }
    for (const Index rename : circle) {
        for (const Index freed : m_waiting.take(keyOf(layerOf(rename))))
            advance(freed);
    }
}

/// One layer steps aside while the others move up. Where one cannot, all go back to the names they
/// had, which others in the circle were to have and which therefore can be had; the one that could
/// not is returned.
std::optional<Renaming::Index> Renaming::tryToTurn(const Circle& circle, Expected<void>& outcome)
{
    const QString aside = QUuid::createUuid().toString(QUuid::WithoutBraces);
    std::vector<LayerRename> former;
    const auto take = [&](Index rename, const QString& name) {
        const QString before = m_drawing.layer(layerOf(rename))->properties.name;
        outcome = setName(layerOf(rename), name);
        if (!outcome)
            outcome = tl::make_unexpected(
                drawing::Error{QString(outcome.error().text).replace(aside, before), 0, false});
        else
            former.push_back({layerOf(rename), before});
        return outcome.has_value();
    };
    Index refused = circle.front();
    bool isDone = take(refused, aside);
    for (auto at = circle.rbegin(); isDone && at != circle.rend(); ++at) {
        refused = *at;
        isDone = take(refused, m_renames[refused].name);
    }
    if (isDone)
        return std::nullopt;
    for (auto step = former.rbegin(); step != former.rend(); ++step)
        (void)setName(step->layer, step->name);
    return refused;
}

Expected<void> Renaming::setName(LayerId layer, const QString& name)
{
    const Layer* renamed = m_drawing.layer(layer);
    if (!renamed)
        return {};
    drawing::LayerProperties properties = renamed->properties;
    properties.name = name;
    return m_drawing.setLayerProperties(layer, properties);
}

} // namespace

QStringList renameLayers(Drawing& drawing, const std::vector<LayerRename>& renames)
{
    return Renaming(drawing, renames).run();
}
