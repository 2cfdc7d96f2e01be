#pragma once

#include "targetrecord.h"

#include <QHash>

#include <vector>

namespace vnsi {

/// The translator's three lists: the drawing's layers that are not mapped yet, the target layers,
/// and the mappings. They are the dialog's own: records are copied on their way in and out, so
/// nothing that a command does to a tree reaches them. What has no name is no layer and is left
/// out.
///
/// Names pair without regard to case; of several layers that pair, the one of the same letters goes
/// first.
class TranslationLists
{
public:
    /// A layer of the drawing.
    struct Source
    {
        QString name;
        VnJsonPtr record;
        int place; ///< In the drawing's list, where it goes back to.
        bool isUsed() const { return record->GetDataB(transkey::kFromUsed); }
    };
    /// Both halves are always there.
    struct Mapping
    {
        Source source;
        TargetRecord target;
    };

    /// In the order of their places.
    const std::vector<Source>& sources() const { return m_sources; }
    const std::vector<TargetRecord>& targets() const { return m_targets; }
    const std::vector<Mapping>& mappings() const { return m_mappings; }
    VnJsonPtr sourceArray() const;
    VnJsonPtr targetArray() const;
    VnJsonPtr mappingArray() const;

    /// The drawing's layers as they are now: those that are mapped are not listed, and mappings of
    /// layers that are gone go, too. False when there were none such.
    bool setSources(const VnJsonPtr& records);
    void setTargets(const VnJsonPtr& records);

    /// Maps the layers in those rows of the sources onto a copy of the target.
    void map(const std::vector<int>& rows, const TargetRecord& target);
    /// Whether some layer has a target of its own name.
    bool hasSame() const;
    /// Maps every layer that has one.
    void mapSame();
    /// Takes in mappings that files brought, for the layers that are there and not mapped yet;
    /// those of other layers are left out. False when there were none to take in.
    bool applyLoaded(const VnJsonPtr& mappings);
    /// Takes a mapping apart again: its layer goes back where it was.
    void unmap(int index);
    void unmapAll();

private:
    const TargetRecord* sameTarget(const Source& source) const;
    bool moveMapped(const std::vector<TargetRecord>& targetsByRow);

    std::vector<Source> m_sources;
    std::vector<TargetRecord> m_targets;
    std::vector<Mapping> m_mappings;
    QHash<QString, int> m_targetRows; ///< By folded name; the first of several.
};

} // namespace vnsi
