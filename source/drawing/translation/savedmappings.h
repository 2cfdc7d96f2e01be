#pragma once

#include "file/drawingfile.h"
#include "file/error.h"
#include "layers/layerreplacements.h"
#include "layers/layertable.h"

namespace drawing {

/// A mapping as files hold it: the target's properties are those of its layer.
struct SavedMapping
{
    QString from;
    QString to;
};

struct SavedMappingList
{
    std::vector<SavedMapping> mappings;
    /// Layer 0 is there since every drawing has one, not as a target.
    bool isZeroIdle = false;
};

/// The mappings of a standards file: an object each, in a dictionary of the root dictionary.
class SavedMappings
{
public:
    SavedMappings(DrawingFile& file, const LayerTable& layers) : m_file(file), m_layers(layers) {}

    /// As edited so far.
    SavedMappingList read() const;
    /// Puts mappings in the place of those the file has. Refuses a format without objects, and a
    /// file without a root dictionary.
    Expected<void> write(const SavedMappingList& list);
    /// Targets that were renamed or merged are named as they are now. One that is gone stays named,
    /// so that who reads the mappings can tell what is missing.
    void follow(const LayerReplacements& replacements);
    /// Handles of the records, which also name layers of other drawings.
    QSet<quint64> records() const;

private:
    std::vector<Dictionary::Entry> entries() const;

    DrawingFile& m_file;
    const LayerTable& m_layers;
};

} // namespace drawing
