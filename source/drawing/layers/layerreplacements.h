#pragma once

#include "file/textcodec.h"
#include "layertable.h"

#include <QHash>
#include <QSet>

namespace drawing {

/// What became of the layers that a step renamed, merged or deleted: all that names a layer follows
/// it when the step is closed, in one pass however many layers changed. What names a merged layer
/// names the layer it was merged into; what still names a deleted one and cannot do without a layer
/// names layer 0.
class LayerReplacements
{
public:
    struct Replacement
    {
        LayerId layer = LayerId::None; ///< Itself, or the one that what named it goes to.
        QByteArray name;               ///< Encoded; null where nothing changes.
    };

    LayerReplacements(const LayerTable& layers, const TextCodec& codec);

    /// True when nothing has to follow.
    bool isEmpty() const { return m_newNames.isEmpty() && m_removed.empty(); }
    const Replacement& of(LayerId id) const { return m_replacements[static_cast<size_t>(id)]; }

    // By names as they were before the step, without regard to letter case.

    /// The new name of a layer that is still there; null where it has none.
    QString newName(const QString& name) const;
    bool isRemoved(const QString& name) const;
    /// The name of the layer that took a removed one's place; null where there is none.
    QString mergeTarget(const QString& name) const;
    /// The new name, or that of the layer it was merged into.
    QString currentName(const QString& name) const;

    /// Layers that went, as they were.
    const std::vector<LayerEntry>& removed() const { return m_removed; }
    bool isRemovedHandle(quint64 handle) const { return m_removedHandles.contains(handle); }
    /// Of the layer that took a removed one's place; 0 where there is none.
    quint64 mergeTargetHandle(quint64 handle) const
    {
        return m_removedHandles.value(handle).mergeTarget;
    }
    /// What a removed layer was called.
    QString removedName(quint64 handle) const { return m_removedHandles.value(handle).name; }

private:
    struct Removed
    {
        QString name;
        quint64 mergeTarget = 0;
    };

    void follow(const LayerTable& layers, const TextCodec& codec, const std::vector<char>& changed);

    std::vector<Replacement> m_replacements; // By layer id.
    QHash<QString, QString> m_newNames;      // These three by folded old name.
    QSet<QString> m_removedNames;
    QHash<QString, QString> m_mergeTargets;
    std::vector<LayerEntry> m_removed;
    QHash<quint64, Removed> m_removedHandles;
};

} // namespace drawing
