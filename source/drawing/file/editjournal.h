#pragma once

#include "pace.h"
#include "tag.h"

#include <QByteArray>

#include <functional>
#include <map>
#include <tuple>
#include <vector>

namespace drawing {

/// The position of an edit. Insertions at the same offset are sorted by `order`, and they precede a
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

/// The bytes that replace the original ones up to `end`. An `end` of -1 means that there is no
/// edit.
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

/// An edit that was made, changed or removed, as undo and redo need it.
struct EditChange
{
    EditPlace place;
    Edit before;
    Edit after;
};

/// The edits of a file whose bytes do not change: replaced ranges (a removed range is replaced by
/// nothing) and insertions. Edits never overlap: a replacement absorbs all edits inside its range.
class EditJournal
{
public:
    using Sink = std::function<bool(std::string_view piece)>;

    explicit EditJournal(std::string_view original = {}) : m_original(original) {}

    /// Replaces the original bytes of a range, which must not be empty, by `text`. When `text`
    /// equals the original bytes, the edit is removed. Returns false and changes nothing when the
    /// range crosses the edge of an earlier replacement or lies inside a larger one.
    bool replace(const ByteRange& range, const QByteArray& text);
    /// Puts the original bytes of the range back.
    bool restore(const ByteRange& range);
    /// Replaces the range by `text`, or inserts `text` when the range is empty.
    bool overwrite(const ByteRange& range, quint32 order, const QByteArray& text);
    /// Inserts `text` before the byte at `at`. It replaces an earlier insertion with the same
    /// `order`. Returns false when `at` lies inside a replaced range.
    bool insert(qint64 at, quint32 order, const QByteArray& text);
    void removeInsertion(qint64 at, quint32 order);

    /// The edited bytes of a range, without insertions at its begin. Replacements must not cross
    /// its edges.
    QByteArray current(const ByteRange& range) const;
    /// The text that was inserted at this place; null when there is none.
    QByteArray inserted(qint64 at, quint32 order) const;
    /// Passes the whole edited file to `sink` piece by piece until `sink` returns false.
    bool stream(const Sink& sink) const;

    bool isEmpty() const { return m_edits.empty(); }

    /// The changes since the last call, one for each place. Changes without an effect are left out.
    std::vector<EditChange> takeChanges();
    bool hasChanges() const { return !m_changes.empty(); }
    /// Applies changes, or reverts them when `forward` is false. This is not recorded as a change.
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
