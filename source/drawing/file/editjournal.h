#pragma once

#include "pace.h"
#include "tag.h"

#include <QByteArray>

#include <functional>
#include <map>
#include <tuple>
#include <vector>

namespace drawing {

/// Where an edit stands. Insertions at one offset follow each other by `order`, and stand before a
/// replacement that begins there.
struct EditPlace
{
    static constexpr quint32 kReplacement = 0xffffffff;

    qint64 begin = 0;
    quint32 order = kReplacement;
};

inline bool operator<(const EditPlace& a, const EditPlace& b)
{
    return std::tie(a.begin, a.order) < std::tie(b.begin, b.order);
}
inline bool operator==(const EditPlace& a, const EditPlace& b)
{
    return a.begin == b.begin && a.order == b.order;
}

/// The bytes that stand instead of the original's up to `end`; `end` = -1 stands for no edit.
struct Edit
{
    qint64 end = -1;
    QByteArray text;

    bool isNull() const { return end < 0; }
};

inline bool operator==(const Edit& a, const Edit& b)
{
    return a.end == b.end && a.text == b.text;
}

/// One edit made, changed or taken away: what undo and redo need.
struct EditChange
{
    EditPlace place;
    Edit before;
    Edit after;
};

/// The edits of a file whose bytes stay as they are: replaced ranges (removed ones are replaced by
/// nothing) and insertions. Edits never overlap: a replacement swallows those within its range.
class EditJournal
{
public:
    using Sink = std::function<bool(std::string_view piece)>;

    explicit EditJournal(std::string_view original = {}) : m_original(original) {}

    /// Puts `text` instead of the original's bytes in a range, which is not empty. Putting the
    /// original's own bytes back takes the edit away. Refuses (false, nothing changed) a range that
    /// reaches over the edge of an earlier replacement, or lies within a larger one.
    bool replace(const ByteRange& range, const QByteArray& text);
    /// Takes back what was done to the range.
    bool restore(const ByteRange& range);
    /// Puts `text` instead of the range, which may be empty.
    bool overwrite(const ByteRange& range, quint32 order, const QByteArray& text);
    /// Puts `text` in before the byte at `at`, instead of what stood at this very order. Refuses
    /// (false) a place within a replaced range.
    bool insert(qint64 at, quint32 order, const QByteArray& text);
    void removeInsertion(qint64 at, quint32 order);

    /// The bytes of a range as edited: insertions at its begin left out, replacements must not
    /// reach over the edges.
    QByteArray current(const ByteRange& range) const;
    /// The text inserted at this place; null when there is none.
    QByteArray inserted(qint64 at, quint32 order) const;
    /// Hands out the whole edited file piece by piece, until `sink` refuses.
    bool stream(const Sink& sink) const;

    bool isEmpty() const { return m_edits.empty(); }

    /// The changes since the last call, each place once, those that changed nothing left out.
    std::vector<EditChange> takeChanges();
    bool hasChanges() const { return !m_changes.empty(); }
    /// Applies changes, or takes them back; not recorded as changes themselves.
    void apply(const std::vector<EditChange>& changes, bool forward, Pace& pace);

private:
    using Edits = std::map<EditPlace, Edit>;

    std::string_view originalBytes(const ByteRange& range) const;
    bool isFree(const ByteRange& range) const;
    void put(const EditPlace& place, const Edit& edit);

    std::string_view m_original;
    Edits m_edits;
    std::vector<EditChange> m_changes;
};

} // namespace drawing
