#pragma once

#include "editjournal.h"
#include "fileindex.h"
#include "formatlimits.h"
#include "objects.h"
#include "symboltables.h"
#include "taglist.h"
#include "tagreader.h"
#include "textcodec.h"

#include <QSet>

#include <unordered_map>

namespace drawing {

/// A file as it was read, the index of its parts, and the edits made to it. The bytes themselves
/// never change.
class DrawingFile
{
public:
    /// What a step changes besides the bytes.
    struct State
    {
        quint64 handlesTaken = 0;                  ///< The number of new handles given out.
        EnumArray<TableKind, quint32> recordsMade; ///< The number of records ever inserted.
        EnumArray<TableKind, int> recordsAdded;    ///< The records inserted less those removed.
        QSet<QString> newAppIds;                   ///< The names added to the APPID table.

        bool operator==(const State& other) const;
    };

    DrawingFile() : m_tables(*this), m_objects(*this) {}
    DrawingFile(const DrawingFile&) = delete;

    /// `bytes` must stay valid and in place as long as this object exists.
    void setBytes(std::string_view bytes);
    /// Called when the file has been indexed and its header has been read.
    void setIndex(FileIndex index, const TextCodec& codec, const FormatLimits& limits);

    // The file as it was read.
    std::string_view bytes() const { return m_bytes; }
    std::string_view view(const ByteRange& range) const;
    TagReader tags(const ByteRange& range) const;
    TagReader allTags() const;
    /// The tags of the HEADER section.
    TagReader headerTags() const;
    /// The range of the text value that begins at this offset.
    ByteRange valueRange(qint64 offset) const;
    const FileIndex& index() const { return m_index; }
    const Tag& variable(HeaderVariable which) const { return m_index.header[which]; }
    const TablePlace& table(TableKind kind) const { return m_index.tables[kind]; }
    const FormatLimits& limits() const { return m_limits; }

    // The file's text encoding and style.
    const TextCodec& codec() const { return m_codec; }
    QString decoded(std::string_view value) const { return m_codec.decode(value); }
    QByteArray encoded(const QString& text) const { return m_codec.encode(text); }
    Spelling spelling() const { return m_spelling; }
    /// The style in which the tags of this range are written.
    TagStyle styleOf(const ByteRange& range) const;
    TagList tagList(const QByteArray& tags) const { return TagList(tags, m_spelling); }

    // The edits.
    Pace& pace() { return m_pace; } ///< For edits of many entities.
    EditJournal& journal() { return m_journal; }
    const EditJournal& journal() const { return m_journal; }
    /// The tags of a range, including the edits so far.
    TagList current(const ByteRange& range) const { return tagList(m_journal.current(range)); }
    SymbolTables& tables() { return m_tables; }
    const SymbolTables& tables() const { return m_tables; }
    Objects& objects() { return m_objects; }
    const Objects& objects() const { return m_objects; }
    /// Sets a header variable and adds it when it is missing.
    void writeVariable(HeaderVariable which, const QByteArray& text);
    void writeVariable(HeaderVariable which, qint64 number);
    /// Returns an unused handle and advances the handle seed; 0 in formats without handles.
    quint64 takeHandle();
    /// The number, from 0, of a handle taken since the file was read; -1 for a handle of the file.
    qint64 newHandleNumber(quint64 handle) const;

    State& state() { return m_state; }
    const State& state() const { return m_state; }

private:
    quint64 firstFreeHandle() const;
    void addVariable(HeaderVariable which, const QByteArray& tag);

    std::string_view m_bytes;
    Spelling m_spelling = Spelling::Text;
    size_t m_firstTag = 0; // Bytes before this offset are not part of the drawing.
    FileIndex m_index;
    TextCodec m_codec;
    FormatLimits m_limits;
    EditJournal m_journal;
    Pace m_pace;
    State m_state;
    SymbolTables m_tables;
    Objects m_objects;
    quint64 m_freeHandle = 0; // The next handle to give out; 0 until it is needed.
};

} // namespace drawing
