#pragma once

#include "file/editjournal.h"
#include "layer.h"

#include <QHash>

#include <deque>
#include <vector>

namespace drawing {

/// A layer and where its record stands.
struct LayerEntry
{
    Layer layer;
    EditPlace place; ///< Of the record: a range of the file, or an insertion.
    qint64 end = -1; ///< Of the record's range; the insertion's place itself.
    quint64 handle = 0;
    quint64 plotStyle = 0; ///< Handle of its plot style name object.
    quint64 extension = 0; ///< Handle of its extension dictionary.
    /// Of a layer that is gone: the layer it was merged into; None when it was deleted.
    LayerId mergedInto = LayerId::None;
    bool hasRecord = false; ///< Layers that only entities name have none.
    bool present = false;   ///< False when deleted, or not added yet.

    /// Whether the record was in the file when it was read.
    bool isOfFile() const { return hasRecord && place.order == EditPlace::kReplacement; }
    ByteRange range() const { return {place.begin, end}; }
};

struct LayerChange
{
    LayerId id = LayerId::None;
    LayerEntry before;
    LayerEntry after;
};

/// The layers by id and by name. Layers that went stay on as entries, so ids never come back.
class LayerTable
{
public:
    /// Takes in a layer of the file; not recorded as a change.
    LayerId load(const LayerEntry& entry);
    /// Tells how many layers are about to be loaded.
    void reserve(size_t count);
    /// Takes in a new layer.
    LayerId add(LayerEntry entry);
    /// Puts `after` in the layer's place; its id is kept.
    void change(LayerId id, LayerEntry after);

    bool isValid(LayerId id) const;
    const LayerEntry& entry(LayerId id) const { return m_entries[static_cast<size_t>(id)]; }
    int entryCount() const { return static_cast<int>(m_entries.size()); }
    /// Counts entities; the layer need not be present.
    void setEntityCount(LayerId id, int count);

    const Layer* layer(LayerId id) const;
    const Layer* find(const QString& name) const;
    /// Null when no layer that is there has this handle.
    const Layer* byHandle(quint64 handle) const;
    /// Layer 0, which is always there.
    LayerId zero() const { return find(QStringLiteral("0"))->id; }
    LayerId current() const { return m_current; }
    void setCurrent(LayerId id) { m_current = id; }
    const std::vector<Layer>& listed() const;

    /// What changed since the last call, one change a layer; what changed back is left out.
    std::vector<LayerChange> takeChanges();
    const std::vector<LayerChange>& changes() const { return m_changes; }
    void apply(const std::vector<LayerChange>& changes, bool forward);

private:
    void put(LayerId id, const LayerEntry& entry);
    void note(LayerId id, const LayerEntry& before, const LayerEntry& after);

    std::deque<LayerEntry> m_entries; // A deque, so that pointers to layers stay good.
    QHash<QString, LayerId> m_byName; // By folded name.
    QHash<quint64, LayerId> m_byHandle;
    LayerId m_current = LayerId::None;
    std::vector<LayerChange> m_changes;
    QHash<int, int> m_changeOf; // Layer id -> its place in m_changes.
    mutable std::vector<Layer> m_listed;
    mutable bool m_isListed = false;
};

} // namespace drawing
