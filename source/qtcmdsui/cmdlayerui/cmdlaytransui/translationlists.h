#pragma once

#include "targetrecord.h"

#include <QHash>

#include <vector>

namespace vnsi {

/// The translator's three lists: the layers of the drawing that are not mapped yet, the target
/// layers, and the mappings. The dialog owns these lists. Records are copied when they enter and
/// leave them, so changes that a command makes to a tree do not affect them. Records without a name
/// are left out.
///
/// Names are matched without letter case. When several layers match, one with exactly the same
/// spelling takes precedence.
class TranslationLists
{
public:
    /// A layer of the drawing.
    struct Source
    {
        QString name;
        VnJsonPtr record;
        /// The position in the drawing's list, to which the layer returns when it is unmapped.
        int place;
        bool isUsed() const { return record->GetDataB(transkey::kFromUsed); }
    };
    /// Both members are always set.
    struct Mapping
    {
        Source source;
        TargetRecord target;
    };

    /// In the order of their `place`.
    const std::vector<Source>& sources() const { return m_sources; }
    const std::vector<TargetRecord>& targets() const { return m_targets; }
    const std::vector<Mapping>& mappings() const { return m_mappings; }
    VnJsonPtr sourceArray() const;
    VnJsonPtr targetArray() const;
    VnJsonPtr mappingArray() const;

    /// Sets the drawing's current layers. Mapped layers are not listed, and mappings of layers that
    /// no longer exist are dropped. Returns false when no mapping was dropped.
    bool setSources(const VnJsonPtr& records);
    void setTargets(const VnJsonPtr& records);

    /// Maps the layers in these rows of the sources to copies of the target.
    void map(const std::vector<int>& rows, const TargetRecord& target);
    /// Whether some layer has a target of the same name.
    bool hasSame() const;
    /// Maps every layer that has a target of the same name.
    void mapSame();
    /// Adds mappings that were loaded from files, as far as their layers exist and are not mapped
    /// yet. Returns false when no mapping was added.
    bool applyLoaded(const VnJsonPtr& mappings);
    /// Removes a mapping. Its layer returns to its former position in the sources.
    void unmap(int index);
    void unmapAll();

private:
    const TargetRecord* sameTarget(const Source& source) const;
    bool moveMapped(const std::vector<TargetRecord>& targetsByRow);

    std::vector<Source> m_sources;
    std::vector<TargetRecord> m_targets;
    std::vector<Mapping> m_mappings;
    /// The keys are folded names; the value is the first of several rows.
    QHash<QString, int> m_targetRows;
};

} // namespace vnsi
