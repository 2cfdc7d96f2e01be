#pragma once

#include "dxftags.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace drawing {

/// How a file writes its tags, so that new ones look like their neighbours.
struct TagStyle
{
    QByteArray lineEnd = "\n";
    bool alignCodes = true;   ///< Group codes right-aligned to 3 columns.
    bool alignNumbers = true; ///< Integers right-aligned to 6 columns, large ones to 9.

    /// The style of some tags that stand in the file.
    static TagStyle of(std::string_view bytes);

    QByteArray tag(int code, const QByteArray& value) const;
    QByteArray number(int code, qint64 value) const;
    QByteArray handle(int code, quint64 value) const;
};

/// A few tags taken apart for editing; those not touched keep their bytes.
class TagList
{
public:
    static constexpr int kNone = -1;

    /// Stops at the first broken tag; what follows is kept as it stands.
    explicit TagList(const QByteArray& bytes);

    int size() const { return static_cast<int>(m_items.size()); }
    int code(int at) const { return item(at).code; }
    std::string_view value(int at) const;   ///< Without its line end, blanks kept.
    std::string_view trimmed(int at) const; ///< Without blanks around it.
    qint64 integer(int at) const;
    quint64 handle(int at) const;

    /// The first tag with this group code in [from, to); `kNone` when there is none.
    int find(int code, int from, int to) const;

    void setValue(int at, const QByteArray& value);
    /// Keeps the width of the number it replaces.
    void setInteger(int at, qint64 value);
    void insert(int at, int code, const QByteArray& tag);
    void remove(int from, int to);
    /// Drops all tags but these, given in ascending order.
    void keepOnly(const std::vector<int>& kept);

    const TagStyle& style() const { return m_style; }
    QByteArray bytes() const;

private:
    struct Item
    {
        int code = -1;
        int valueAt = 0;
        QByteArray text;
    };

    const Item& item(int at) const { return m_items[static_cast<size_t>(at)]; }

    TagStyle m_style;
    std::vector<Item> m_items;
    QByteArray m_rest;
};

} // namespace drawing
