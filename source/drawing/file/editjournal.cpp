#include "editjournal.h"

#include <algorithm>

namespace drawing {

namespace {

bool byPlace(const EditChange& a, const EditChange& b)
{
    return a.place < b.place;
}

} // namespace

std::string_view EditJournal::originalBytes(const ByteRange& range) const
{
    return m_original.substr(
        static_cast<size_t>(range.begin), static_cast<size_t>(range.end - range.begin));
}

/// Whether no replacement crosses an edge of the range.
bool EditJournal::isFree(const ByteRange& range) const
{
    const auto first = m_edits.lower_bound({range.begin, 0});
    if (first != m_edits.begin() && std::prev(first)->second.end > range.begin)
        return false;
    const auto behind = m_edits.lower_bound({range.end, 0});
    return behind == m_edits.begin() || std::prev(behind)->second.end <= range.end;
}

bool EditJournal::replace(const ByteRange& range, const QByteArray& text)
{
    const EditPlace place{range.begin};
    auto inner = m_edits.lower_bound(place);
    const bool sameRange =
        inner != m_edits.end() && inner->first == place && inner->second.end == range.end;
    if (range.begin >= range.end || (!sameRange && !isFree(range)))
        return false;
    if (sameRange)
        ++inner;
    while (inner != m_edits.end() && inner->first.begin < range.end) {
        m_changes.push_back({inner->first, inner->second, {}});
        inner = m_edits.erase(inner);
    }
    put(place, viewOf(text) == originalBytes(range) ? Edit{} : Edit{range.end, text});
    return true;
}

bool EditJournal::restore(const ByteRange& range)
{
    return replace(range, bytesOf(originalBytes(range)));
}

bool EditJournal::overwrite(const ByteRange& range, quint32 order, const QByteArray& text)
{
    return range.begin < range.end ? replace(range, text) : insert(range.begin, order, text);
}

bool EditJournal::insert(qint64 at, quint32 order, const QByteArray& text)
{
    const auto first = m_edits.lower_bound({at, 0});
    if (first != m_edits.begin() && std::prev(first)->second.end > at)
        return false;
    put({at, order}, {at, text});
    return true;
}

void EditJournal::removeInsertion(qint64 at, quint32 order)
{
    put({at, order}, {});
}

void EditJournal::put(const EditPlace& place, const Edit& edit)
{
    const auto at = m_edits.lower_bound(place);
    const bool isThere = at != m_edits.end() && at->first == place;
    const Edit before = isThere ? at->second : Edit{};
    if (before == edit)
        return;
    m_changes.push_back({place, before, edit});
    if (edit.isNull())
        m_edits.erase(at);
    else if (isThere)
        at->second = edit;
    else
        m_edits.emplace_hint(at, place, edit);
}

QByteArray EditJournal::current(const ByteRange& range) const
{
    QByteArray bytes;
    const auto append = [&bytes](std::string_view piece) {
        bytes.append(piece.data(), static_cast<int>(piece.size()));
    };
    qint64 from = range.begin;
    const auto first = m_edits.lower_bound({range.begin});
    for (auto at = first; at != m_edits.end() && at->first.begin < range.end; ++at) {
        append(originalBytes({from, at->first.begin}));
        bytes += at->second.text;
        from = at->second.end;
    }
    append(originalBytes({from, range.end}));
    return bytes;
}

QByteArray EditJournal::inserted(qint64 at, quint32 order) const
{
    const auto found = m_edits.find({at, order});
    return found == m_edits.end() ? QByteArray() : found->second.text;
}

bool EditJournal::stream(const Sink& sink) const
{
    qint64 from = 0;
    for (const auto& [place, edit] : m_edits) {
        const std::string_view untouched = originalBytes({from, place.begin});
        if (!untouched.empty() && !sink(untouched))
            return false;
        if (!edit.text.isEmpty() && !sink(viewOf(edit.text)))
            return false;
        from = edit.end;
    }
    const std::string_view rest = m_original.substr(static_cast<size_t>(from));
    return rest.empty() || sink(rest);
}

std::vector<EditChange> EditJournal::takeChanges()
{
    std::vector<EditChange> changes;
    changes.swap(m_changes);
    if (!std::is_sorted(changes.begin(), changes.end(), byPlace))
        std::stable_sort(changes.begin(), changes.end(), byPlace);
    // Of several changes at one place, the first "before" and the last "after" are kept.
    std::vector<EditChange> net;
    net.reserve(changes.size());
    for (EditChange& change : changes) {
        if (!net.empty() && net.back().place == change.place)
            net.back().after = std::move(change.after);
        else
            net.push_back(std::move(change));
    }
    const auto isIdle = [](const EditChange& change) { return change.before == change.after; };
    net.erase(std::remove_if(net.begin(), net.end(), isIdle), net.end());
    return net;
}

void EditJournal::apply(const std::vector<EditChange>& changes, bool forward, Pace& pace)
{
    for (const EditChange& change : changes) {
        pace.step();
        const Edit& edit = forward ? change.after : change.before;
        if (edit.isNull())
            m_edits.erase(change.place);
        else
            m_edits[change.place] = edit;
    }
}

} // namespace drawing
