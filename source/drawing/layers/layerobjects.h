#pragma once

#include "entities/entitytable.h"
#include "file/drawingfile.h"
#include "layerreplacements.h"
#include "leftout.h"

#include <functional>

namespace drawing {

/// The objects of a drawing that name layers: filters of both kinds, lists and indices of layers,
/// and objects that the layers themselves own.
class LayerObjects
{
public:
    explicit LayerObjects(DrawingFile& file) : m_file(file) {}

    /// Updates these objects after layers changed. Returns the handles of the records that it
    /// understands and that therefore need no notice.
    QSet<quint64> follow(const LayerReplacements& replacements);

private:
    void rewrite(quint64 handle, const std::function<void(TagList&)>& change);
    void followList(TagList& tags, const LayerReplacements& replacements);
    void followSection(TagList& tags, const LayerReplacements& replacements) const;
    QSet<quint64> followFilters(const LayerReplacements& replacements);
    void followOldFilter(TagList& tags, const LayerReplacements& replacements) const;
    void followFilter(TagList& tags, const LayerReplacements& replacements) const;
    void setText(TagList& tags, int at, const QString& text) const;
    void joinBuffers(quint64 from, quint64 to);

    DrawingFile& m_file;
};

/// Reports layers that were deleted or renamed but are still mentioned in data that cannot be
/// interpreted: proxies of entities and objects, and records that applications keep. The records
/// with handles in `understood` may still name such layers. Call this after everything else has
/// been updated.
void noteOpaque(const DrawingFile& file, const EntityTable& entities,
    const LayerReplacements& replacements, const QSet<quint64>& understood, LeftOut& leftOut);

} // namespace drawing
