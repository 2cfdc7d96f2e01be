#include "renaming.h"

#include "drawing.h"
#include "namerule.h"
#include "texts.h"

#include <QSet>
#include <QUuid>

#include <algorithm>
#include <map>

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerId;

/// Carries renamings out one after the other; those whose name another one is about to leave wait.
class Renamer
{
public:
    Renamer(Drawing& drawing, bool merges) : m_drawing(drawing), m_merges(merges) {}

    Expected<std::vector<Renamed>> run(const std::vector<Renaming>& renamings);

private:
    void collect(const std::vector<Renaming>& renamings);
    void settleReady();
    std::vector<LayerId> circles() const;
    Expected<void> openCircle(LayerId id);
    void releaseLater();
    void settle(LayerId id);
    void wake(LayerId owner);
    void rename(LayerId id, const QString& name);
    void refuse(LayerId id, const QString& cause);
    QString nameOf(LayerId id) const { return m_drawing.layer(id)->properties.name; }

    struct Pending
    {
        QString to;
        size_t place = 0;
        bool isLater = false; ///< Another one wants the name, too, and comes first.
    };

    Drawing& m_drawing;
    bool m_merges;
    std::map<LayerId, Pending> m_pending;
    std::multimap<LayerId, LayerId> m_waiting; ///< By the layer that has the name wanted.
    std::vector<LayerId> m_ready;
    std::vector<LayerId> m_later;
    QSet<QString> m_wanted; ///< Folded names.
    std::vector<Renamed> m_results;
};

void Renamer::collect(const std::vector<Renaming>& renamings)
{
    for (const Renaming& renaming : renamings) {
        const QString from = nameOf(renaming.layer);
        if (from == renaming.to || m_pending.count(renaming.layer) > 0)
            continue;
        const QString folded = vnsi::foldedName(renaming.to);
        const bool isLater = m_wanted.contains(folded);
        m_pending[renaming.layer] = {renaming.to, m_results.size(), isLater};
        m_results.push_back({renaming.layer, from, renaming.to, Renamed::Outcome::Refused, {}});
        (isLater ? m_later : m_ready).push_back(renaming.layer);
        m_wanted.insert(folded);
    }
}

void Renamer::rename(LayerId id, const QString& name)
{
    drawing::LayerProperties properties = m_drawing.layer(id)->properties;
    properties.name = name;
    const auto done = m_drawing.setLayerProperties(id, properties);
    if (!done) {
        refuse(id, done.error().text);
        return;
    }
    m_results[m_pending[id].place].outcome = Renamed::Outcome::Renamed;
    m_pending.erase(id);
    wake(id);
}

void Renamer::refuse(LayerId id, const QString& cause)
{
    m_results[m_pending[id].place].cause = cause;
    m_pending.erase(id);
    // Its name stays taken: whoever waits for it will find that out.
    wake(id);
}

/// Lets those try again that waited for a layer's name.
void Renamer::wake(LayerId owner)
{
    const auto [first, last] = m_waiting.equal_range(owner);
    for (auto it = first; it != last; ++it)
        m_ready.push_back(it->second);
    m_waiting.erase(first, last);
}

void Renamer::settle(LayerId id)
{
    const Pending pending = m_pending.at(id);
    const Layer* const owner = m_drawing.findLayer(pending.to);
    if (!owner || owner->id == id) {
        rename(id, pending.to);
        return;
    }
    if (m_pending.count(owner->id) > 0) {
        m_waiting.emplace(owner->id, id);
        return;
    }
    if (!m_merges) {
        refuse(id,
            Texts::tr("已有名为“%1”的图层；用 --merge 可合并进去。").arg(owner->properties.name));
        return;
    }
    const auto done = m_drawing.mergeLayers({id}, owner->id);
    if (!done) {
        refuse(id, done.error().text);
        return;
    }
    m_results[pending.place].outcome = Renamed::Outcome::Merged;
    m_pending.erase(id);
    wake(id);
}

void Renamer::settleReady()
{
    while (!m_ready.empty()) {
        const LayerId id = m_ready.back();
        m_ready.pop_back();
        if (m_pending.count(id) > 0)
            settle(id);
    }
}

/// A layer of each chain of names wanted that comes round to itself.
std::vector<LayerId> Renamer::circles() const
{
    std::vector<LayerId> found;
    std::map<LayerId, LayerId> startOf; // Each layer that was seen, with where its chain began.
    const auto isWaiting = [this](LayerId id) {
        const auto pending = m_pending.find(id);
        return pending != m_pending.end() && !pending->second.isLater;
    };
    for (const auto& start : m_pending) {
        LayerId id = start.first;
        while (isWaiting(id) && startOf.emplace(id, start.first).second) {
            const Layer* const owner = m_drawing.findLayer(m_pending.at(id).to);
            id = owner ? owner->id : LayerId::None;
        }
        if (isWaiting(id) && startOf.at(id) == start.first)
            found.push_back(id);
    }
    return found;
}

void Renamer::releaseLater()
{
    for (const LayerId id : m_later)
        m_pending.at(id).isLater = false;
    m_ready.swap(m_later);
    m_later.clear();
    settleReady();
}

/// One of those that wait for each other in a circle steps aside under a name nobody uses, so that
/// the others can go round; it must come to its own name, or back to its old one, in the end.
Expected<void> Renamer::openCircle(LayerId id)
{
    const Pending pending = m_pending.at(id);
    drawing::LayerProperties properties = m_drawing.layer(id)->properties;
    const QString from = properties.name;
    properties.name =
        QStringLiteral("X$") + QUuid::createUuid().toString(QUuid::Id128).left(20).toUpper();
    if (const auto done = m_drawing.setLayerProperties(id, properties); !done) {
        refuse(id, done.error().text);
        settleReady();
        return {};
    }
    m_pending.erase(id);
    wake(id);
    settleReady();
    properties = m_drawing.layer(id)->properties;
    properties.name = pending.to;
    const auto done = m_drawing.setLayerProperties(id, properties);
    if (done) {
        m_results[pending.place].outcome = Renamed::Outcome::Renamed;
        return {};
    }
    m_results[pending.place].cause = done.error().text;
    properties.name = from;
    return m_drawing.setLayerProperties(id, properties);
}

Expected<std::vector<Renamed>> Renamer::run(const std::vector<Renaming>& renamings)
{
    collect(renamings);
    std::reverse(m_ready.begin(), m_ready.end());
    settleReady();
    while (!m_pending.empty()) {
        const std::vector<LayerId> circles = this->circles();
        for (const LayerId id : circles) {
            if (m_pending.count(id) == 0)
                continue;
            if (const auto done = openCircle(id); !done)
                return tl::make_unexpected(done.error());
        }
        if (circles.empty())
            releaseLater();
    }
    return std::move(m_results);
}

} // namespace

const char* outcomeWord(Renamed::Outcome outcome)
{
    constexpr const char* kWords[] = {"renamed", "merged", "refused"};
    return kWords[static_cast<size_t>(outcome)];
}

Expected<std::vector<Renamed>> renameLayers(
    Drawing& drawing, const std::vector<Renaming>& renamings, bool merges)
{
    return Renamer(drawing, merges).run(renamings);
}

} // namespace layertool
