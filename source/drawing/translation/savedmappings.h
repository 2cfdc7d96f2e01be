#pragma once

#include "drawingdata.h"
#include "error.h"

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
    explicit SavedMappings(DrawingData& data) : m_data(data) {}

    /// As the file was read. A target that was renamed since they were saved has its new name.
    SavedMappingList read() const;
    /// Puts mappings in the place of those the file has; once while the file is open. Refuses a
    /// format without objects, and a file without a root dictionary.
    Expected<void> write(const SavedMappingList& list);

private:
    const ObjectPlace* root() const;
    const ObjectPlace* dictionary() const;
    void writeRecord(quint64 handle, quint64 owner, const QByteArray& data);

    DrawingData& m_data;
};

} // namespace drawing
