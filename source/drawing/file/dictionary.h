#pragma once

#include "taglist.h"

#include <functional>
#include <vector>

namespace drawing {

/// A dictionary object, decomposed for reading and editing.
class Dictionary
{
public:
    struct Entry
    {
        QByteArray key; ///< Not decoded; blanks around it are removed.
        quint64 object = 0;
    };

    explicit Dictionary(TagList tags) : m_tags(std::move(tags)) {}

    /// The entries in their order; none when the tag list is empty.
    std::vector<Entry> entries() const;
    /// The handle under `key`; 0 when there is no such entry.
    quint64 find(std::string_view key) const;

    /// Appends an entry. It refers to its object with the same group code as the other entries.
    void add(const QByteArray& key, quint64 object);
    void remove(std::string_view key);
    /// Removes the entries for which `isGone` returns true.
    void removeIf(const std::function<bool(const Entry&)>& isGone);

    const TagList& tags() const { return m_tags; }

private:
    bool isEntry(int at) const;
    Entry entry(int at) const;
    int endOfEntries() const;

    TagList m_tags;
    int m_reference = 0; ///< The group code of the references; 0 while none is known.
};

} // namespace drawing
