#pragma once

#include "dictionary.h"
#include "editjournal.h"
#include "fileindex.h"

#include <mutex>
#include <optional>
#include <unordered_map>

namespace drawing {

class DrawingFile;

/// The objects of the OBJECTS section by their handles, the file's own and new ones alike, as
/// edited so far. A missing section is made.
class Objects
{
public:
    explicit Objects(DrawingFile& file) : m_file(file) {}

    /// Null for handle 0 and for handles of anything but objects of the file.
    const ObjectPlace* find(quint64 handle) const;
    /// The first dictionary, which leads to all others; null where the file has none.
    const ObjectPlace* root() const;
    /// `Other` for an object that is not there.
    ObjectKind kind(quint64 handle) const;

    /// Empty when there is none (any more).
    TagList tags(quint64 handle) const;
    Dictionary dictionary(quint64 handle) const { return Dictionary(tags(handle)); }
    /// What the dictionary holds under `key`; 0 when there is no such entry.
    quint64 entry(quint64 dictionary, std::string_view key) const;

    /// How new objects are to look.
    TagStyle style() const;
    /// Puts the object in its place; a handle just taken gets a new one.
    void store(quint64 handle, const QByteArray& bytes);
    void store(quint64 handle, const TagList& tags) { store(handle, tags.bytes()); }
    void erase(quint64 handle);
    /// Takes out the object and all that it owns.
    void eraseOwned(quint64 handle);

    /// A dictionary that owns what it lists; stored with a new handle, which is returned.
    quint64 addDictionary(quint64 owner);
    /// An XRECORD with this data; stored with a new handle, which is returned.
    quint64 addRecord(quint64 owner, const QByteArray& data);
    void addEntry(quint64 dictionary, const QByteArray& key, quint64 object);
    void removeEntry(quint64 dictionary, std::string_view key);

private:
    QByteArray bytes(quint64 handle) const;
    EditPlace placeOfNew(quint64 handle) const;
    void makeSection(qint64 at);

    DrawingFile& m_file;
    mutable std::mutex m_numbering; ///< Several threads may be the first to ask.
    mutable std::optional<std::unordered_map<quint64, size_t>> m_numbers; ///< By handle.
};

/// A dictionary that owns its entries; `owner` 0 makes it a root.
QByteArray newDictionary(const TagStyle& style, quint64 handle, quint64 owner);
/// The head of an XRECORD up to its data; `handle` 0 leaves out what belongs to handles.
QByteArray newRecordHead(const TagStyle& style, quint64 handle, quint64 owner);

/// Where an XRECORD's own data stand, [begin, end).
struct RecordData
{
    int begin = 0;
    int end = 0;

    explicit RecordData(const TagList& record);
    bool contains(int at) const { return at >= begin && at < end; }
};
/// The XRECORD with other data between its own head and the data of applications.
QByteArray withRecordData(const TagList& record, const QByteArray& data);
/// The record, object or table's head with the handle of its extension dictionary.
QByteArray withExtension(TagList record, quint64 dictionary);

} // namespace drawing
