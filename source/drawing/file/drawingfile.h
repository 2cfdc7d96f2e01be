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

/// A file as it was read, where its parts stand, and the edits made to it. The bytes themselves are
/// never changed.
class DrawingFile
{
public:
    /// What a step changes besides the bytes.
    struct State
    {
        quint64 handlesTaken = 0;                  ///< New handles given out.
        EnumArray<TableKind, quint32> recordsMade; ///< Ever inserted.
        EnumArray<TableKind, int> recordsAdded;    ///< Those inserted less those removed.
        QSet<QString> newAppIds;                   ///< Added to the APPID table.

        bool operator==(const State& other) const;
    };

    DrawingFile() : m_tables(*this), m_objects(*this) {}
    DrawingFile(const DrawingFile&) = delete;

    /// `bytes` must stay where they are as long as this is there.
    void setBytes(std::string_view bytes);
    /// Once it is known where all stands and what the header says.
    void setIndex(FileIndex index, const TextCodec& codec, const FormatLimits& limits);

    // As the file was read.
    std::string_view bytes() const { return m_bytes; }
    std::string_view view(const ByteRange& range) const;
    TagReader tags(const ByteRange& range) const;
    TagReader allTags() const;
    /// Those of the HEADER section.
    TagReader headerTags() const;
    /// The range of the text value that begins at this offset.
    ByteRange valueRange(qint64 offset) const;
    const FileIndex& index() const { return m_index; }
    const Tag& variable(HeaderVariable which) const { return m_index.header[which]; }
    const TablePlace& table(TableKind kind) const { return m_index.tables[kind]; }
    const FormatLimits& limits() const { return m_limits; }

    // Its text and its ways.
    const TextCodec& codec() const { return m_codec; }
    QString decoded(std::string_view value) const { return m_codec.decode(value); }
    QByteArray encoded(const QString& text) const { return m_codec.encode(text); }
    Spelling spelling() const { return m_spelling; }
    /// How the tags there are written.
    TagStyle styleOf(const ByteRange& range) const;
    TagList tagList(const QByteArray& tags) const { return TagList(tags, m_spelling); }

    // The edits.
    Pace& pace() { return m_pace; } ///< Of what edits many entities.
    EditJournal& journal() { return m_journal; }
    const EditJournal& journal() const { return m_journal; }
    /// The tags of a range as edited so far.
    TagList current(const ByteRange& range) const { return tagList(m_journal.current(range)); }
    SymbolTables& tables() { return m_tables; }
    const SymbolTables& tables() const { return m_tables; }
    Objects& objects() { return m_objects; }
    const Objects& objects() const { return m_objects; }
    /// Sets a variable of the header, which may be missing.
    void writeVariable(HeaderVariable which, const QByteArray& text);
    void writeVariable(HeaderVariable which, qint64 number);
    /// A handle for something new, and the seed behind it; 0 in formats without handles.
    quint64 takeHandle();
    /// The number of a handle taken since the file was read, from 0; -1 for one of the file.
    qint64 newHandleNumber(quint64 handle) const;

    State& state() { return m_state; }
    const State& state() const { return m_state; }

private:
    quint64 firstFreeHandle() const;
    void addVariable(HeaderVariable which, const QByteArray& tag);

    std::string_view m_bytes;
    Spelling m_spelling = Spelling::Text;
    size_t m_firstTag = 0; // What stands in front of it is no part of the drawing.
    FileIndex m_index;
    TextCodec m_codec;
    FormatLimits m_limits;
    EditJournal m_journal;
    Pace m_pace;
    State m_state;
    SymbolTables m_tables;
    Objects m_objects;
    quint64 m_freeHandle = 0; // The first one to give out; 0 until it is needed.
};

} // namespace drawing
