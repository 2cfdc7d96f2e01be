#include "layertable.h"

#include "file/symbolname.h"
#include "layercopies.h"

#include <algorithm>
#include <tuple>

namespace drawing {

namespace {

bool isSame(const LayerEntry& a, const LayerEntry& b)
{
    const auto parts = [](const LayerEntry& entry) {
        return std::tie(entry.layer.properties, entry.layer.dependsOnReference,
            entry.layer.entityCount, entry.place, entry.end, entry.handle, entry.plotStyle,
            entry.extension, entry.mergedInto, entry.hasRecord, entry.present);
    };
    return parts(a) == parts(b);
}

QString keyOf(const LayerEntry& entry)
{
    return foldedName(entry.layer.properties.name);
}

} // namespace

bool LayerTable::isValid(LayerId id) const
{
    const int at = static_cast<int>(id);
    return at >= 0 && at < entryCount();
}

void LayerTable::reserve(size_t count)
{
    m_byName.reserve(static_cast<int>(count));
    m_listed.reserve(count);
}

LayerId LayerTable::load(const LayerEntry& entry)
{
    const auto id = static_cast<LayerId>(entryCount());
    m_entries.emplace_back();
    put(id, entry);
    return id;
}

LayerId LayerTable::add(LayerEntry entry)
{
    const auto id = static_cast<LayerId>(entryCount());
    m_entries.emplace_back().layer.id = id;
    entry.present = true;
    change(id, std::move(entry));
    return id;
}

void LayerTable::change(LayerId id, LayerEntry after)
{
    after.layer.id = id;
    note(id, entry(id), after);
    put(id, after);
}

void LayerTable::note(LayerId id, const LayerEntry& before, const LayerEntry& after)
{
    const auto known = m_changeOf.constFind(static_cast<int>(id));
    if (known != m_changeOf.constEnd()) {
        m_changes[static_cast<size_t>(*known)].after = after;
        return;
    }
    m_changeOf.insert(static_cast<int>(id), static_cast<int>(m_changes.size()));
    m_changes.push_back({id, before, after});
}

void LayerTable::put(LayerId id, const LayerEntry& after)
{
    LayerEntry& entry = m_entries[static_cast<size_t>(id)];
    const QString oldKey = keyOf(entry);
    const QString newKey = keyOf(after);
    const bool wasPresent = entry.present;
    entry = after;
    entry.layer.id = id;
    m_isListed = false;
    if (after.handle != 0)
        m_byHandle.insert(after.handle, id);
    if (wasPresent == after.present && oldKey == newKey)
        return;
    if (wasPresent && m_byName.value(oldKey, LayerId::None) == id)
        m_byName.remove(oldKey);
    // A file may have two records with one name; entities belong to the first one.
    if (after.present && !m_byName.contains(newKey))
        m_byName.insert(newKey, id);
}

void LayerTable::setEntityCount(LayerId id, int count)
{
    m_entries[static_cast<size_t>(id)].layer.entityCount = count;
    m_isListed = false;
}

const Layer* LayerTable::layer(LayerId id) const
{
    return isValid(id) && entry(id).present ? &entry(id).layer : nullptr;
}

const Layer* LayerTable::find(const QString& name) const
{
    return layer(m_byName.value(foldedName(name), LayerId::None));
}

const Layer* LayerTable::byHandle(quint64 handle) const
{
    const Layer* found = layer(m_byHandle.value(handle, LayerId::None));
    return found && entry(found->id).handle == handle ? found : nullptr;
}

const std::vector<Layer>& LayerTable::listed() const
{
    if (m_isListed)
        return m_listed;
    // Most of them are as they were when they were last asked for.
    size_t count = 0;
    for (const LayerEntry& entry : m_entries) {
        if (!entry.present)
            continue;
        if (count == m_listed.size())
            m_listed.push_back(entry.layer);
        else if (!isSame(m_listed[count], entry.layer))
            m_listed[count] = entry.layer;
        ++count;
    }
    m_listed.resize(count);
    m_isListed = true;
    return m_listed;
}

std::vector<LayerChange> LayerTable::takeChanges()
{
    m_changeOf.clear();
    std::vector<LayerChange> changes;
    changes.swap(m_changes);
    const auto isIdle = [](const LayerChange& change) {
        return isSame(change.before, change.after);
    };
    changes.erase(std::remove_if(changes.begin(), changes.end(), isIdle), changes.end());
    return changes;
}

void LayerTable::apply(const std::vector<LayerChange>& changes, bool forward)
{
    // Names may have been exchanged, so all old names are removed before the new ones are added.
    for (const LayerChange& change : changes) {
        LayerEntry gone = entry(change.id);
        gone.present = false;
        put(change.id, gone);
    }
    for (const LayerChange& change : changes)
        put(change.id, forward ? change.after : change.before);
}

} // namespace drawing
