#include "references.h"

#include "handles.h"
#include "layerobjects.h"
#include "symboltables.h"

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
    void rename(qint64 value, const QByteArray& name);
    ByteRange viewportTag(qint64 value) const;
    const QByteArray& newName(LayerId id) const { return m_names[static_cast<size_t>(id)]; }

    DrawingData& m_data;
    std::vector<QByteArray> m_names; // By layer id; null where nothing changes.
    LayerRenames m_renames;
    std::vector<ByteRange> m_removedRecords;
};

/// Finds out what changed; false when no place can be touched by it.
bool ReferenceUpdate::collect()
{
    m_names.resize(static_cast<size_t>(m_data.layers.entryCount()));
    bool any = false;
    for (const LayerChange& change : m_data.layers.changes()) {
        const QString& oldName = change.before.layer.properties.name;
        const QString& name = change.after.layer.properties.name;
        const bool removed = change.before.present && !change.after.present;
        if (!change.before.present || (!removed && oldName == name))
            continue;
        any = true;
        m_names[static_cast<size_t>(change.id)] = removed ? "0" : m_data.codec.encode(name);
        if (!removed) {
            m_renames.newNames.insert(oldName.toCaseFolded(), name);
            continue;
        }
        m_renames.removedNames.insert(oldName.toCaseFolded());
        if (change.before.handle != 0)
            m_renames.removedHandles.insert(change.before.handle);
        if (change.before.hasRecord && change.before.place.order == EditPlace::kReplacement)
            m_removedRecords.push_back({change.before.place.begin, change.before.end});
    }
    return any;
}

void ReferenceUpdate::rename(qint64 value, const QByteArray& name)
{
    const auto length = static_cast<qint64>(m_data.lineAt(value).size());
    // Refused within a range removed or rewritten as a whole, where there is nothing to rename.
    m_data.journal.replace(value, value + length, name);
}

void ReferenceUpdate::updateEntities()
{
    const LayerId zero = m_data.layers.find(QStringLiteral("0"))->id;
    std::vector<Entity>& entities = m_data.index.entities;
    for (size_t i = 0; i < entities.size(); ++i) {
        Entity& entity = entities[i];
        const QByteArray& name = newName(entity.layer);
        if (name.isNull())
            continue;
        rename(entity.begin + m_data.index.layerNameAt[i], name);
        if (m_data.layers.entry(entity.layer).present)
            continue;
        m_data.entityChanges.push_back({static_cast<int>(i), entity.layer, zero});
        entity.layer = zero;
    }
}

void ReferenceUpdate::updateNamePlaces()
{
    for (const LayerNamePlace& place : m_data.namePlaces) {
        const QByteArray& name = newName(place.layer);
        if (name.isNull())
            continue;
        const bool isRemoved = !m_data.layers.entry(place.layer).present;
        const ByteRange listed = isRemoved ? viewportTag(place.value) : ByteRange();
        if (listed.isNull())
            rename(place.value, name);
        else
            m_data.journal.replace(listed.begin, listed.end, {});
    }
}

/// The tag of this value, where it stands in a viewport: its XDATA list the layers frozen in it, so
/// layer 0 must not take a deleted layer's place there.
ByteRange ReferenceUpdate::viewportTag(qint64 value) const
{
    const std::vector<Entity>& entities = m_data.index.entities;
    const auto next = std::upper_bound(entities.begin(), entities.end(), value,
        [](qint64 offset, const Entity& entity) { return offset < entity.begin; });
    if (next == entities.begin() || std::prev(next)->end <= value ||
        std::prev(next)->kind != EntityKind::Viewport)
        return {};
    TagReader tags = m_data.tags({std::prev(next)->begin, std::prev(next)->end});
    Tag tag;
    while (tags.next(tag)) {
        if (tag.valueBegin == value)
            return {tag.begin, tag.end};
    }
    return {};
}

void ReferenceUpdate::updateCurrentLayer()
{
    if (!newName(m_data.state.current).isNull())
        SymbolTables(m_data).writeCurrentLayer();
}

/// From R13 on viewports list the layers frozen in them by handle.
void ReferenceUpdate::updateViewports()
{
    if (m_renames.removedHandles.isEmpty())
        return;
    for (const Entity& entity : m_data.index.entities) {
        if (entity.kind != EntityKind::Viewport)
            continue;
        TagReader tags = m_data.tags({entity.begin, entity.end});
        Tag tag;
        while (tags.next(tag)) {
            if ((tag.code == 331 || tag.code == 341) &&
                m_renames.removedHandles.contains(tag.toHandle()))
                m_data.journal.replace(tag.begin, tag.end, {});
        }
    }
}

void ReferenceUpdate::updateObjects()
{
    updateLayerObjects(m_data, m_renames);
    for (const ByteRange& record : m_removedRecords)
        removeOwnedObjects(m_data, extensionDictionary(m_data.tags(record)));
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
