#pragma once

#include "taglist.h"

#include <functional>
#include <vector>

namespace drawing {

/// A dictionary object, taken apart for reading and editing.
class Dictionary
{
public:
    struct Entry
    {
        QByteArray key; ///< Not decoded, without blanks around it.
        quint64 object = 0;
    };

    explicit Dictionary(TagList tags) : m_tags(std::move(tags)) {}

    /// In their order; none of an empty list of tags.
    std::vector<Entry> entries() const;
    /// The handle under `key`; 0 when there is no such entry.
    quint64 find(std::string_view key) const;

    /// Adds an entry behind the others, which refers to its object as they do.
    void add(const QByteArray& key, quint64 object);
    void remove(std::string_view key);
    /// Drops the entries for which `isGone` is true.
    void removeIf(const std::function<bool(const Entry&)>& isGone);

    const TagList& tags() const { return m_tags; }

private:
    bool isEntry(int at) const;
    Entry entry(int at) const;
    int endOfEntries() const;

    TagList m_tags;
    int m_reference = 0; ///< The code of references in it, where one is known.
};

} // namespace drawing
