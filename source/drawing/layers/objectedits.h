#pragma once

#include "drawingdata.h"
#include "taglist.h"

namespace drawing {

/// Adds, changes and removes objects of the OBJECTS section, the file's own and new ones alike, by
/// their handles. A missing section is made.
class ObjectEdits
{
public:
    explicit ObjectEdits(DrawingData& data) : m_data(data) {}

    /// How new objects are to look.
    TagStyle style() const;
    /// The object as edited so far; empty when there is none (any more).
    QByteArray bytes(quint64 handle) const;
    /// Puts the object in its place; a handle just taken gets a new one.
    void store(quint64 handle, const QByteArray& bytes);
    void erase(quint64 handle);

    /// A dictionary that owns what it lists; stored with a new handle, which is returned.
    quint64 addDictionary(quint64 owner);
    /// An XRECORD with this data; stored with a new handle, which is returned.
    quint64 addRecord(quint64 owner, const QByteArray& data);
    /// Handle of what a dictionary lists under `key`; 0 when there is no such entry.
    quint64 entry(quint64 dictionary, std::string_view key) const;
    void addEntry(quint64 dictionary, const QByteArray& key, quint64 object);
    void removeEntry(quint64 dictionary, std::string_view key);

private:
    /// Where a new object with this handle stands.
    EditPlace placeOfNew(quint64 handle) const;
    bool isNew(quint64 handle) const;
    void makeSection(qint64 at);

    DrawingData& m_data;
};

/// A dictionary that owns its entries; `owner` 0 makes it a root.
QByteArray newDictionary(
    const TagStyle& style, quint64 handle, quint64 owner, const QByteArray& entries);
/// The head of an XRECORD up to its data; `handle` 0 leaves out what belongs to handles.
QByteArray newRecordHead(const TagStyle& style, quint64 handle, quint64 owner);
/// The XRECORD with other data between its own head and the data of applications.
QByteArray withRecordData(const TagList& record, const QByteArray& data);
/// The table record with the handle of its extension dictionary.
QByteArray withExtension(TagList record, quint64 dictionary);

} // namespace drawing
