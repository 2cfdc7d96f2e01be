#pragma once

#include "drawingdata.h"
#include "error.h"
#include "layerstatetags.h"
#include "symboltables.h"

#include <functional>

namespace drawing {

/// The layer states of a drawing: one object each, listed in a dictionary of the layer table. A
/// format without objects keeps them in a file beside the drawing.
class LayerStates
{
public:
    explicit LayerStates(DrawingData& data) : m_data(data) {}

    /// Whether the format has a place for states in the drawing itself.
    bool liveInDrawing() const { return m_data.limits.markers; }
    QStringList names() const;
    std::vector<LayerState> all() const;
    std::optional<LayerState> find(const QString& name) const;

    /// Takes in states; those of the same name, whatever its letter case, are replaced.
    Expected<void> put(const std::vector<LayerState>& states);
    Expected<void> remove(const QStringList& names);
    Expected<void> rename(const QString& name, const QString& newName);

    /// Runs `change` over the tags of every state.
    void rewrite(const std::function<void(TagList&)>& change);

private:
    const LayerStateTable& table() const;
    void keep(LayerStateTable table);
    LayerStateTable load() const;
    QByteArray bytes(const LayerStateEntry& entry) const;
    LayerState read(const LayerStateEntry& entry, const LayerStateNames& names) const;
    LayerStateNames namesByHandle() const;
    LayerStateHandles handlesByName() const;

    void store(LayerStateEntry& entry, const QByteArray& record);
    void makeDictionary(LayerStateTable& table);
    void linkExtension(quint64 handle);
    void writeDictionary(const LayerStateTable& table, const std::vector<quint64>& gone);
    Expected<void> readyToWrite() const;

    DrawingData& m_data;
};

} // namespace drawing
