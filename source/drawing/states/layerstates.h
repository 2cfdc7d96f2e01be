#pragma once

#include "file/drawingfile.h"
#include "file/error.h"
#include "layers/layerreplacements.h"
#include "layers/layertable.h"
#include "layers/linetypetable.h"
#include "layerstatetable.h"
#include "layerstatetags.h"

#include <memory>
#include <optional>

namespace drawing {

/// The layer states of a drawing: one object each, listed in a dictionary of the layer table. A
/// format without objects keeps them in a file beside the drawing.
class LayerStates
{
public:
    /// Null: as the file was read.
    using State = std::shared_ptr<const LayerStateTable>;

    LayerStates(DrawingFile& file, const LayerTable& layers, const LinetypeTable& linetypes)
        : m_file(file),
          m_layers(layers),
          m_linetypes(linetypes)
    {
    }
    /// Where a format without objects keeps layer states.
    void setPath(const QString& path) { m_path = path; }

    /// Whether the format has a place for states in the drawing itself.
    bool liveInDrawing() const { return m_file.limits().markers; }
    /// The file beside the drawing; empty where they live in the drawing itself.
    QString path() const { return liveInDrawing() ? QString() : m_path; }
    /// Formats without objects: puts the states beside the drawing, when they are others than
    /// there.
    Expected<void> saveBeside(const QString& path);
    QStringList names() const;
    std::vector<LayerState> all() const;
    std::optional<LayerState> find(const QString& name) const;

    /// Takes in states; those of the same name, whatever its letter case, are replaced.
    Expected<void> put(const std::vector<LayerState>& states);
    Expected<void> remove(const QStringList& names);
    Expected<void> rename(const QString& name, const QString& newName);

    /// Layers in states follow what became of them: those that went are forgotten.
    void follow(const LayerReplacements& replacements);
    /// Handles of the objects that hold states.
    QSet<quint64> records() const;

    State& state() { return m_state; }
    const State& state() const { return m_state; }

private:
    const LayerStateTable& table() const;
    void keep(LayerStateTable table);
    LayerStateTable load() const;
    TagList tags(const LayerStateEntry& entry) const;
    LayerState read(const LayerStateEntry& entry) const;

    void store(LayerStateEntry& entry, const QByteArray& record);
    void makeDictionary(LayerStateTable& table);
    void writeDictionary(const LayerStateTable& table, const std::vector<quint64>& gone);
    Expected<void> readyToWrite() const;
    bool follow(TagList& tags, const LayerReplacements& replacements) const;

    DrawingFile& m_file;
    const LayerTable& m_layers;
    const LinetypeTable& m_linetypes;
    QString m_path;
    mutable QString m_fault; ///< Why the file beside the drawing could not be read.
    mutable State m_loaded;  ///< Null until they are asked for.
    State m_state;
    State m_saved; ///< What the file beside the drawing has.
};

} // namespace drawing
