#pragma once

#include "file/editjournal.h"
#include "layer.h"

#include <QHash>

#include <deque>
#include <vector>

namespace drawing {

/// A layer and the position of its record.
struct LayerEntry
{
    Layer layer;
    EditPlace place; ///< The position of the record: a range of the file, or an insertion.
    qint64 end = -1; ///< The end of the record's range; for an insertion the same as its position.
    quint64 handle = 0;
    quint64 plotStyle = 0; ///< The handle of its plot style object.
    quint64 extension = 0; ///< The handle of its extension dictionary.
    /// For a deleted layer, the layer that it was merged into; None when it was just deleted.
    LayerId mergedInto = LayerId::None;
    bool hasRecord = false; ///< Layers that only entities name have no record.
    bool present = false;   ///< False when the layer was deleted or has not been added yet.

    /// Whether the record was in the file when the file was read.
    bool isOfFile() const { return hasRecord && place.order == EditPlace::kReplacement; }
    ByteRange range() const { return {place.begin, end}; }
};

struct LayerChange
{
    LayerId id = LayerId::None;
    LayerEntry before;
    LayerEntry after;
};

/// The layers by id and by name. Deleted layers keep their entries, so ids are never reused.
class LayerTable
{
public:
    /// Adds a layer of the file. This is not recorded as a change.
    LayerId load(const LayerEntry& entry);
    /// Reserves memory for the number of layers about to be loaded.
    void reserve(size_t count);
    /// Adds a new layer.
    LayerId add(LayerEntry entry);
    /// Replaces the entry of a layer, whose id stays the same.
    void change(LayerId id, LayerEntry after);

    bool isValid(LayerId id) const;
    const LayerEntry& entry(LayerId id) const { return m_entries[static_cast<size_t>(id)]; }
    int entryCount() const { return static_cast<int>(m_entries.size()); }
    /// Sets the number of entities on a layer. The layer need not be present.
    void setEntityCount(LayerId id, int count);

    const Layer* layer(LayerId id) const;
    const Layer* find(const QString& name) const;
    /// The layer with this handle; null when no existing layer has it.
    const Layer* byHandle(quint64 handle) const;
    /// Layer 0, which always exists.
    LayerId zero() const { return find(QStringLiteral("0"))->id; }
    LayerId current() const { return m_current; }
    void setCurrent(LayerId id) { m_current = id; }
    const std::vector<Layer>& listed() const;

    /// The changes since the last call, one per layer. Changes that were reverted are left out.
    std::vector<LayerChange> takeChanges();
    const std::vector<LayerChange>& changes() const { return m_changes; }
    void apply(const std::vector<LayerChange>& changes, bool forward);

private:
    void put(LayerId id, const LayerEntry& entry);
    void note(LayerId id, const LayerEntry& before, const LayerEntry& after);

    std::deque<LayerEntry> m_entries; // A deque keeps pointers to layers valid.
    QHash<QString, LayerId> m_byName; // The keys are folded names.
    QHash<quint64, LayerId> m_byHandle;
    LayerId m_current = LayerId::None;
    std::vector<LayerChange> m_changes;
    QHash<int, int> m_changeOf; // Maps a layer id to its index in `m_changes`.
    mutable std::vector<Layer> m_listed;
    mutable bool m_isListed = false;
};

} // namespace drawing
