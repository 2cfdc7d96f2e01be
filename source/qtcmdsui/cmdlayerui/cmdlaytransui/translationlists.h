#pragma once

#include "vnjson.h"

#include <QHash>
#include <QStringList>

namespace vnsi {

/// The translator's three lists: the drawing's layers that are not mapped yet, the target layers,
/// and the mappings. Names are looked up without regard to case, through an index.
class TranslationLists
{
public:
    TranslationLists();

    const VnJsonPtr& sources() const { return m_sources; }
    const VnJsonPtr& targets() const { return m_targets; }
    const VnJsonPtr& mappings() const { return m_mappings; }

    /// The drawing's layers; those that are mapped are left out. An empty handle is no layer.
    void setSources(const VnJsonPtr& records);
    void setTargets(const VnJsonPtr& records);
    /// The target of that name; empty when there is none.
    VnJsonPtr target(const QString& name) const;
    QStringList targetNames() const;

    /// Maps the layers of those names onto a copy of the target.
    void map(const QStringList& names, const VnJsonPtr& target);
    /// Maps every layer that has a target of its own name. With `doIt` false nothing changes and
    /// the result only says whether there is such a layer.
    bool mapSame(bool doIt);
    /// Takes in mappings that files brought, for the layers that are there and not mapped yet;
    /// those of other layers are left out. False when there were none to take in.
    bool applyLoaded(const VnJsonPtr& mappings);
    /// Takes a mapping apart again: its layer goes back where it was.
    void unmap(int index);
    void unmapAll();

private:
    template <class TargetOf>
    bool moveMapped(TargetOf&& targetOf);
    void giveBack(const VnJsonPtr& mappings);

    VnJsonPtr m_sources;
    VnJsonPtr m_targets;
    VnJsonPtr m_mappings;
    QHash<QString, int> m_targetRows; ///< By folded name; the first of several.
    QHash<QString, int> m_places;     ///< Of the drawing's layers, by folded name.
};

} // namespace vnsi
