#include "taglist.h"

#include "tagreader.h"

namespace drawing {

TagList::TagList(const QByteArray& bytes, Spelling spelling)
    : m_style(TagStyle::of(viewOf(bytes), spelling))
{
    TagReader reader(bytes, spelling);
    Tag tag;
    while (reader.next(tag))
        m_items.push_back(itemOf(tag));
    m_rest = bytes.mid(static_cast<int>(reader.offset()));
}

TagList::Item TagList::itemOf(const Tag& tag)
{
    return {tag.code, static_cast<int>(tag.value - tag.first),
        static_cast<int>(tag.valueEnd - tag.first),
        QByteArray(tag.first, static_cast<int>(tag.after - tag.first))};
}

Tag TagList::tag(int at) const
{
    const Item& it = item(at);
    const char* const first = it.bytes.constData();
    return {it.code, m_style.spelling, first, first + it.valueAt, first + it.valueEnd,
        first + it.bytes.size(), first};
}

int TagList::find(int wanted, int from, int to) const
{
    for (int at = from; at < to; ++at) {
        if (code(at) == wanted)
            return at;
    }
    return kNone;
}

void TagList::setValue(int at, const QByteArray& value)
{
    Item& it = m_items[static_cast<size_t>(at)];
    it.bytes.replace(it.valueAt, it.valueEnd - it.valueAt, value);
    it.valueEnd = it.valueAt + value.size();
}

void TagList::setText(int at, const QByteArray& text)
{
    setValue(at, m_style.value(code(at), text));
}

void TagList::setInteger(int at, qint64 value)
{
    setValue(at, numberInPlace(tag(at), value));
}

void TagList::insert(int at, const QByteArray& bytes)
{
    TagReader reader(bytes, m_style.spelling);
    Tag tag;
    if (reader.next(tag))
        m_items.insert(m_items.begin() + at, itemOf(tag));
}

void TagList::remove(int from, int to)
{
    m_items.erase(m_items.begin() + from, m_items.begin() + to);
}

void TagList::keepOnly(const std::vector<int>& kept)
{
    size_t to = 0;
    for (const int at : kept)
        m_items[to++] = m_items[static_cast<size_t>(at)];
    m_items.resize(to);
}

QByteArray TagList::bytes() const
{
    QByteArray all;
    for (const Item& it : m_items)
        all += it.bytes;
    return all + m_rest;
}

} // namespace drawing
