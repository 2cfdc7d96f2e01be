#pragma once

#include "dictionary.h"
#include "editjournal.h"
#include "fileindex.h"

#include <mutex>
#include <optional>
#include <unordered_map>

namespace drawing {

class DrawingFile;

/// The objects of the OBJECTS section by their handles, including the new ones and all edits so
/// far. A missing section is created when it is needed.
class Objects
{
public:
    explicit Objects(DrawingFile& file) : m_file(file) {}

    /// Returns null for handle 0 and for handles that do not belong to an object of the file.
    const ObjectPlace* find(quint64 handle) const;
    /// The root dictionary, which leads to all others; null when the file has none.
    const ObjectPlace* root() const;
    /// Returns `Other` for an object that does not exist.
    ObjectKind kind(quint64 handle) const;

    /// The tags of an object; empty when it does not exist (any more).
    TagList tags(quint64 handle) const;
    Dictionary dictionary(quint64 handle) const { return Dictionary(tags(handle)); }
    /// The handle under `key` in the dictionary; 0 when there is no such entry.
    quint64 entry(quint64 dictionary, std::string_view key) const;

    /// The style in which new objects are written.
    TagStyle style() const;
    /// Stores an object in its place. An object with a newly taken handle is added.
    void store(quint64 handle, const QByteArray& bytes);
    void store(quint64 handle, const TagList& tags) { store(handle, tags.bytes()); }
    void erase(quint64 handle);
    /// Removes the object and everything that it owns.
    void eraseOwned(quint64 handle);

    /// Adds a dictionary that owns its entries. Returns its new handle.
    quint64 addDictionary(quint64 owner);
    /// Adds an XRECORD with this data. Returns its new handle.
    quint64 addRecord(quint64 owner, const QByteArray& data);
    void addEntry(quint64 dictionary, const QByteArray& key, quint64 object);
    void removeEntry(quint64 dictionary, std::string_view key);

private:
    QByteArray bytes(quint64 handle) const;
    EditPlace placeOfNew(quint64 handle) const;
    void makeSection(qint64 at);

    DrawingFile& m_file;
    /// Protects the first look-up, which several threads may do at once.
    mutable std::mutex m_numbering;
    /// The indices of the objects by handle.
    mutable std::optional<std::unordered_map<quint64, size_t>> m_numbers;
};

/// A dictionary that owns its entries. It is the root dictionary when `owner` is 0.
QByteArray newDictionary(const TagStyle& style, quint64 handle, quint64 owner);
/// The head of an XRECORD, up to its data. When `handle` is 0, everything that needs handles is
/// left out.
QByteArray newRecordHead(const TagStyle& style, quint64 handle, quint64 owner);

/// The range of an XRECORD's own data, [begin, end).
struct RecordData
{
    int begin = 0;
    int end = 0;

    explicit RecordData(const TagList& record);
    bool contains(int at) const { return at >= begin && at < end; }
};
/// The XRECORD with its own data replaced. Its head and the data of applications stay.
QByteArray withRecordData(const TagList& record, const QByteArray& data);
/// The record, object or table head with the handle of its extension dictionary added.
QByteArray withExtension(TagList record, quint64 dictionary);

} // namespace drawing
