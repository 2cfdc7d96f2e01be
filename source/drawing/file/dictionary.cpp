#include "dictionary.h"

#include "groupcode.h"

namespace drawing {

bool Dictionary::isEntry(int at) const
{
    return m_tags.code(at) == group::kKey && at + 1 < m_tags.size() &&
           group::isOwning(m_tags.code(at + 1));
}

Dictionary::Entry Dictionary::entry(int at) const
{
    return {bytesOf(m_tags.trimmed(at)), m_tags.handle(at + 1)};
}

std::vector<Dictionary::Entry> Dictionary::entries() const
{
    std::vector<Entry> entries;
    for (int at = 0; at < m_tags.size(); ++at) {
        if (isEntry(at))
            entries.push_back(entry(at++));
    }
    return entries;
}

quint64 Dictionary::find(std::string_view key) const
{
    for (int at = 0; at < m_tags.size(); ++at) {
        if (isEntry(at) && m_tags.trimmed(at) == key)
            return m_tags.handle(at + 1);
    }
    return 0;
}

/// The entries may be followed by a second subclass that defines a default, and by extended data.
int Dictionary::endOfEntries() const
{
    int end = 0;
    int markers = 0;
    for (; end < m_tags.size() && m_tags.code(end) < group::kXdata; ++end) {
        markers += m_tags.code(end) == group::kSubclass ? 1 : 0;
        if (markers > 1)
            break;
    }
    return end;
}

void Dictionary::add(const QByteArray& key, quint64 object)
{
    for (int at = 0; at < m_tags.size() && m_reference == 0; ++at) {
        if (isEntry(at))
            m_reference = m_tags.code(at + 1);
    }
    const int code = m_reference == 0 ? group::kHardOwner : m_reference;
    const int at = endOfEntries();
    m_tags.insert(at, m_tags.style().handle(code, object));
    m_tags.insert(at, m_tags.style().tag(group::kKey, key));
}

void Dictionary::remove(std::string_view key)
{
    removeIf([key](const Entry& entry) { return viewOf(entry.key) == key; });
}

void Dictionary::removeIf(const std::function<bool(const Entry&)>& isGone)
{
    std::vector<int> kept;
    for (int at = 0; at < m_tags.size(); ++at) {
        if (isEntry(at) && isGone(entry(at)))
            m_reference = m_tags.code(++at);
        else
            kept.push_back(at);
    }
    m_tags.keepOnly(kept);
}

} // namespace drawing
