#pragma once

#include "tagstyle.h"

#include <vector>

namespace drawing {

/// A short list of tags, decomposed for editing. Tags that are not changed keep their bytes.
class TagList
{
public:
    static constexpr int kNone = -1;

    /// Stops at the first broken tag; everything from there on is kept unchanged.
    explicit TagList(const QByteArray& bytes, Spelling spelling);

    int size() const { return static_cast<int>(m_items.size()); }
    /// Valid until the list changes. The tag's offsets are relative to its own begin.
    Tag tag(int at) const;
    int code(int at) const { return item(at).code; }
    std::string_view text(int at) const { return tag(at).text(); }
    std::string_view trimmed(int at) const { return tag(at).trimmed(); }
    qint64 integer(int at) const { return tag(at).integer(); }
    quint64 handle(int at) const { return tag(at).handle(); }

    /// The first tag with this group code in [from, to); `kNone` when there is none.
    int find(int code, int from, int to) const;

    void setText(int at, const QByteArray& text);
    /// Replaces an integer value and keeps its width.
    void setInteger(int at, qint64 value);
    void setHandle(int at, quint64 handle) { setText(at, handleText(handle)); }
    void insert(int at, const QByteArray& tag);
    void remove(int from, int to);
    /// Removes all tags except these. `kept` must be in ascending order.
    void keepOnly(const std::vector<int>& kept);

    const TagStyle& style() const { return m_style; }
    QByteArray bytes() const;

private:
    struct Item
    {
        int code = -1;
        int valueAt = 0;
        int valueEnd = 0;
        QByteArray bytes;
    };

    static Item itemOf(const Tag& tag);
    const Item& item(int at) const { return m_items[static_cast<size_t>(at)]; }
    void setValue(int at, const QByteArray& value);

    TagStyle m_style;
    std::vector<Item> m_items;
    QByteArray m_rest;
};

} // namespace drawing
