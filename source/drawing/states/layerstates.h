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

/// The layer states of a drawing. Each is an object, and a dictionary of the layer table lists
/// them. In formats without objects they are kept in a file beside the drawing.
class LayerStates
{
public:
    /// A null state means that the states are as in the file.
    using State = std::shared_ptr<const LayerStateTable>;

    LayerStates(DrawingFile& file, const LayerTable& layers, const LinetypeTable& linetypes)
        : m_file(file),
          m_layers(layers),
          m_linetypes(linetypes)
    {
    }
    /// Sets the path of the file that holds the layer states in formats without objects.
    void setPath(const QString& path) { m_path = path; }

    /// Whether the format can store states in the drawing itself.
    bool liveInDrawing() const { return m_file.limits().markers; }
    /// The path of the file beside the drawing; empty when the drawing itself holds the states.
    QString path() const { return liveInDrawing() ? QString() : m_path; }
    /// In formats without objects, writes the states to the file beside the drawing when they
    /// differ from that file's contents.
    Expected<void> saveBeside(const QString& path);
    QStringList names() const;
    std::vector<LayerState> all() const;
    std::optional<LayerState> find(const QString& name) const;

    /// Adds states; they replace those whose names differ at most in letter case.
    Expected<void> put(const std::vector<LayerState>& states);
    Expected<void> remove(const QStringList& names);
    Expected<void> rename(const QString& name, const QString& newName);

    /// Updates the layer names in states after layers changed; deleted layers are removed.
    void follow(const LayerReplacements& replacements);
    /// The handles of the objects that hold states.
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
    mutable State m_loaded;  ///< Null until the states are first needed.
    State m_state;
    State m_saved; ///< The contents of the file beside the drawing.
};

} // namespace drawing
