#pragma once

#include "file/textcodec.h"
#include "layertable.h"

#include <QHash>
#include <QSet>

namespace drawing {

/// Describes what became of the layers that a step renamed, merged or deleted. All references are
/// updated when the step is closed, in one pass however many layers changed. References to a merged
/// layer then name its merge target. References to a deleted layer that cannot be removed name
/// layer 0.
class LayerReplacements
{
public:
    struct Replacement
    {
        /// The layer itself, or the one that replaces it in references.
        LayerId layer = LayerId::None;
        QByteArray name; ///< Encoded; null when the name does not change.
    };

    LayerReplacements(const LayerTable& layers, const TextCodec& codec);

    /// Whether no references have to be updated.
    bool isEmpty() const { return m_newNames.isEmpty() && m_removed.empty(); }
    const Replacement& of(LayerId id) const { return m_replacements[static_cast<size_t>(id)]; }

    // Look-up by the name that a layer had before the step, ignoring letter case.

    /// The new name of a layer that still exists; null when it was not renamed.
    QString newName(const QString& name) const;
    bool isRemoved(const QString& name) const;
    /// The name of the layer that a deleted layer was merged into; null when there is none.
    QString mergeTarget(const QString& name) const;
    /// The new name of the layer, or the name of the layer that it was merged into.
    QString currentName(const QString& name) const;

    /// The deleted layers as they were before.
    const std::vector<LayerEntry>& removed() const { return m_removed; }
    bool isRemovedHandle(quint64 handle) const { return m_removedHandles.contains(handle); }
    /// The handle of the layer that a deleted layer was merged into; 0 when there is none.
    quint64 mergeTargetHandle(quint64 handle) const
    {
        return m_removedHandles.value(handle).mergeTarget;
    }
    /// The former name of a deleted layer.
    QString removedName(quint64 handle) const { return m_removedHandles.value(handle).name; }

private:
    struct Removed
    {
        QString name;
        quint64 mergeTarget = 0;
    };

    void follow(const LayerTable& layers, const TextCodec& codec, const std::vector<char>& changed);

    std::vector<Replacement> m_replacements; // The index is the layer id.
    QHash<QString, QString> m_newNames;      // This and the next two have folded old names as keys.
    QSet<QString> m_removedNames;
    QHash<QString, QString> m_mergeTargets;
    std::vector<LayerEntry> m_removed;
    QHash<quint64, Removed> m_removedHandles;
};

} // namespace drawing
