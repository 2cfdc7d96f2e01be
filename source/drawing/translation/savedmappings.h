#pragma once

#include "file/drawingfile.h"
#include "file/error.h"
#include "layers/layerreplacements.h"
#include "layers/layertable.h"

namespace drawing {

/// A mapping as files store it. The properties of its target are those of the layer of that name.
struct SavedMapping
{
    QString from;
    QString to;
};

struct SavedMappingList
{
    std::vector<SavedMapping> mappings;
    /// Layer 0 is not meant as a target; it only exists because every drawing has it.
    bool isZeroIdle = false;
};

/// The mappings of a standards file: one object each, listed in a dictionary of the root
/// dictionary.
class SavedMappings
{
public:
    SavedMappings(DrawingFile& file, const LayerTable& layers) : m_file(file), m_layers(layers) {}

    /// The mappings, including all edits so far.
    SavedMappingList read() const;
    /// Replaces the mappings of the file. Refuses a format without objects and a file without a
    /// root dictionary.
    Expected<void> write(const SavedMappingList& list);
    /// Updates the names of targets that were renamed or merged. The name of a deleted target
    /// stays, so that readers of the mappings can tell what is missing.
    void follow(const LayerReplacements& replacements);
    /// The handles of the records, which also name layers of other drawings.
    QSet<quint64> records() const;

private:
    std::vector<Dictionary::Entry> entries() const;

    DrawingFile& m_file;
    const LayerTable& m_layers;
};

} // namespace drawing
