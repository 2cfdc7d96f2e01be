#pragma once

#include "symboltables.h"
#include "tagtext.h"

namespace drawing {

/// A dictionary that owns its entries; `owner` 0 makes it a root.
QByteArray newDictionary(
    const TagStyle& style, quint64 handle, quint64 owner, const QByteArray& entries);

/// What an XRECORD begins with, up to its data; handle 0 for one that lives outside of drawings.
QByteArray newRecordHead(const TagStyle& style, quint64 handle, quint64 owner);

/// Adds objects to the OBJECTS section, which is made where it is missing.
class ObjectEdits
{
public:
    explicit ObjectEdits(DrawingData& data) : m_data(data) {}

    /// How objects are to look.
    TagStyle style() const;
    /// Puts an object behind all others; returns its place.
    EditPlace insert(const QByteArray& bytes);
    /// Lists an object in a dictionary that owns it.
    void addEntry(const ObjectPlace& dictionary, const QByteArray& key, quint64 handle);

private:
    DrawingData& m_data;
};

} // namespace drawing
