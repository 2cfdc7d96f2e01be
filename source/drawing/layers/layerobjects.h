#pragma once

#include "entities/entitytable.h"
#include "file/drawingfile.h"
#include "layerreplacements.h"
#include "leftout.h"

#include <functional>

namespace drawing {

/// The objects of a drawing that name layers: filters of both kinds, lists and indices of layers,
/// and what the layers themselves own.
class LayerObjects
{
public:
    explicit LayerObjects(DrawingFile& file) : m_file(file) {}

    /// Returns the handles of the records it understands, which need no notice.
    QSet<quint64> follow(const LayerReplacements& replacements);

private:
    void rewrite(quint64 handle, const std::function<void(TagList&)>& change);
    void followList(TagList& tags, const LayerReplacements& replacements);
    QSet<quint64> followFilters(const LayerReplacements& replacements);
    void followOldFilter(TagList& tags, const LayerReplacements& replacements) const;
    void followFilter(TagList& tags, const LayerReplacements& replacements) const;
    void setText(TagList& tags, int at, const QString& text) const;
    void joinBuffers(quint64 from, quint64 to);

    DrawingFile& m_file;
};

/// Notes the layers that went or got another name and that what nobody here understands still
/// mentions: proxies of entities and objects, and records that applications keep. `understood` are
/// handles of records that may go on naming layers. To be called when all else has followed.
void noteOpaque(const DrawingFile& file, const EntityTable& entities,
    const LayerReplacements& replacements, const QSet<quint64>& understood, LeftOut& leftOut);

} // namespace drawing
