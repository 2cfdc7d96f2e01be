#include "references.h"

#include "entityeditsbytes.h"
#include "layerobjects.h"
#include "layeroverrides.h"
#include "symboltables.h"
#include "viewportlayers.h"

#include <algorithm>

namespace drawing {

namespace {

class ReferenceUpdate
{
public:
    explicit ReferenceUpdate(DrawingData& data) : m_data(data) {}

    bool collect();
    void updateEntities();
    void updateNamePlaces();
    void updateCurrentLayer();
    void updateViewports();
    void updateObjects();

private:
    /// What becomes of the name of a layer in this step.
    struct Fate
    {
        LayerId layer = LayerId::None; ///< Itself, or the one that what named it goes to.
        QByteArray name;               ///< Null where nothing changes.
    };

    void follow(const std::vector<char>& changed);
    void rename(qint64 value, const QByteArray& name);
    ByteRange viewportTag(qint64 value) const;
    const Fate& fate(LayerId id) const { return m_fates[static_cast<size_t>(id)]; }

    DrawingData& m_data;
    std::vector<Fate> m_fates; // By layer id.
    LayerRenames m_renames;
    std::vector<quint64> m_removedExtensions; // Dictionaries of layers that go.
};

/// Finds out what changed; false when no place can be touched by it.
bool ReferenceUpdate::collect()
{
    std::vector<char> changed(static_cast<size_t>(m_data.layers.entryCount()));
    std::vector<const LayerChange*> removals;
    for (const LayerChange& change : m_data.layers.changes()) {
        const QString& oldName = change.before.layer.properties.name;
        const QString& name = change.after.layer.properties.name;
        const bool removed = change.before.present && !change.after.present;
        if (!change.before.present || (!removed && oldName == name))
            continue;
        changed[static_cast<size_t>(change.id)] = true;
        if (removed)
            removals.push_back(&change);
        else
            m_renames.newNames.insert(oldName.toCaseFolded(), name);
    }
    if (removals.empty() && m_renames.newNames.isEmpty())
        return false;
    follow(changed);
    for (const LayerChange* removal : removals) {
        const LayerEntry& before = removal->before;
        const QString key = before.layer.properties.name.toCaseFolded();
        m_renames.removedNames.insert(key);
        if (removal->after.heir != LayerId::None)
            m_renames.heirs.insert(
                key, m_data.layers.entry(fate(removal->id).layer).layer.properties.name);
        if (before.handle != 0)
            m_renames.removedHandles.insert(before.handle);
        m_removedExtensions.push_back(layerExtension(m_data, before));
    }
    return true;
}

/// Follows every layer over those it was merged into, in this step and before, to one that is
/// there.
void ReferenceUpdate::follow(const std::vector<char>& changed)
{
    const LayerId zero = m_data.layers.find(QStringLiteral("0"))->id;
    m_fates.resize(changed.size());
    std::vector<size_t> path;
    for (size_t id = 0; id < m_fates.size(); ++id) {
        size_t at = id;
        while (m_fates[at].layer == LayerId::None) {
            const LayerEntry& entry = m_data.layers.entry(static_cast<LayerId>(at));
            if (entry.present) {
                m_fates[at].layer = static_cast<LayerId>(at);
                if (changed[at])
                    m_fates[at].name = m_data.codec.encode(entry.layer.properties.name);
                break;
            }
            path.push_back(at);
            at = static_cast<size_t>(entry.heir != LayerId::None ? entry.heir : zero);
        }
        for (; !path.empty(); path.pop_back()) {
            const size_t gone = path.back();
            m_fates[gone] = m_fates[at];
            if (changed[gone] && m_fates[gone].name.isNull())
                m_fates[gone].name = m_data.codec.encode(
                    m_data.layers.entry(m_fates[at].layer).layer.properties.name);
            at = gone;
        }
    }
}

void ReferenceUpdate::rename(qint64 value, const QByteArray& name)
{
    // Refused within a range removed or rewritten as a whole, where there is nothing to rename.
    m_data.journal.replace(m_data.valueRange(value), name);
}

void ReferenceUpdate::updateEntities()
{
    const std::vector<Entity>& entities = m_data.index.entities;
    for (size_t i = 0; i < entities.size(); ++i) {
        const Fate& fate = this->fate(entities[i].layer);
        if (fate.name.isNull() || entities[i].removed)
            continue;
        writeLayerName(m_data, i, fate.name);
        if (fate.layer != entities[i].layer)
            m_data.changeEntity(i, fate.layer, false);
    }
}

void ReferenceUpdate::updateNamePlaces()
{
    for (const LayerNamePlace& place : m_data.namePlaces) {
        const QByteArray& name = fate(place.layer).name;
        if (name.isNull())
            continue;
        const bool isRemoved = !m_data.layers.entry(place.layer).present;
        const ByteRange listed = isRemoved ? viewportTag(place.value) : ByteRange();
        if (listed.isNull())
            rename(place.value, name);
        else
            m_data.journal.replace(listed, {});
    }
}

/// The tag of this value, where it stands in a viewport: its XDATA list the layers frozen in it, so
/// no other layer may take a deleted one's place there.
ByteRange ReferenceUpdate::viewportTag(qint64 value) const
{
    const std::vector<Entity>& entities = m_data.index.entities;
    const auto next = std::upper_bound(entities.begin(), entities.end(), value,
        [](qint64 offset, const Entity& entity) { return offset < entity.begin; });
    if (next == entities.begin() || std::prev(next)->end <= value ||
        std::prev(next)->kind != EntityKind::Viewport)
        return {};
    TagReader tags = m_data.tags(std::prev(next)->range());
    Tag tag;
    while (tags.next(tag)) {
        if (tag.valueRange().begin == value)
            return tag.range();
    }
    return {};
}

void ReferenceUpdate::updateCurrentLayer()
{
    if (!fate(m_data.state.current).name.isNull())
        SymbolTables(m_data).writeCurrentLayer();
}

/// From R13 on viewports list the layers frozen in them by handle.
void ReferenceUpdate::updateViewports()
{
    if (!m_renames.removedHandles.isEmpty())
        ViewportLayers(m_data).forget(m_renames.removedHandles);
}

void ReferenceUpdate::updateObjects()
{
    updateLayerObjects(m_data, m_renames);
    for (const quint64 dictionary : m_removedExtensions)
        removeOwnedObjects(m_data, dictionary);
}

} // namespace

void updateReferences(DrawingData& data)
{
    ReferenceUpdate update(data);
    if (!update.collect())
        return;
    update.updateEntities();
    update.updateNamePlaces();
    update.updateCurrentLayer();
    update.updateViewports();
    update.updateObjects();
}

} // namespace drawing
