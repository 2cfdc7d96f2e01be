#include "tagtext.h"

namespace drawing {

namespace {

constexpr int kCodeWidth = 3;

bool isFlagCode(int code)
{
    return (code >= 60 && code <= 79) || (code >= 170 && code <= 179);
}

/// Width of an integer in files that align them.
int numberWidth(int code)
{
    const bool isLong = (code >= 90 && code <= 99) || (code >= 420 && code <= 449) || code == 1071;
    return isLong ? 9 : 6;
}

QByteArray toBytes(std::string_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

} // namespace

TagStyle TagStyle::of(std::string_view bytes)
{
    TagStyle style;
    const size_t lineEnd = bytes.find('\n');
    if (lineEnd != std::string_view::npos && lineEnd > 0 && bytes[lineEnd - 1] == '\r')
        style.lineEnd = "\r\n";
    style.alignCodes = !bytes.empty() && bytes.front() == ' ';
    style.alignNumbers = style.alignCodes;
    TagReader reader(bytes);
    Tag tag;
    while (reader.next(tag)) {
        if (!isFlagCode(tag.code))
            continue;
        style.alignNumbers = !tag.value.empty() && tag.value.front() == ' ';
        break;
    }
    return style;
}

QByteArray TagStyle::tag(int code, const QByteArray& value) const
{
    QByteArray line = QByteArray::number(code);
    if (alignCodes)
        line = line.rightJustified(kCodeWidth);
    return line + lineEnd + value + lineEnd;
}

QByteArray TagStyle::number(int code, qint64 value) const
{
    const QByteArray digits = QByteArray::number(value);
    return tag(code, alignNumbers ? digits.rightJustified(numberWidth(code)) : digits);
}

QByteArray TagStyle::handle(int code, quint64 value) const
{
    return tag(code, QByteArray::number(value, 16).toUpper());
}

TagList::TagList(const QByteArray& bytes)
{
    const std::string_view view(bytes.constData(), static_cast<size_t>(bytes.size()));
    m_style = TagStyle::of(view);
    TagReader reader(view);
    Tag tag;
    while (reader.next(tag))
        m_items.push_back({tag.code, static_cast<int>(tag.valueBegin - tag.begin),
            bytes.mid(static_cast<int>(tag.begin), static_cast<int>(tag.end - tag.begin))});
    m_rest = bytes.mid(static_cast<int>(reader.offset()));
}

std::string_view TagList::value(int at) const
{
    const Item& it = item(at);
    std::string_view text(
        it.text.constData() + it.valueAt, static_cast<size_t>(it.text.size() - it.valueAt));
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
        text.remove_suffix(1);
    return text;
}

std::string_view TagList::trimmed(int at) const
{
    return trimmedView(value(at));
}

qint64 TagList::integer(int at) const
{
    Tag tag;
    tag.value = value(at);
    return tag.toInteger();
}

quint64 TagList::handle(int at) const
{
    Tag tag;
    tag.value = value(at);
    return tag.toHandle();
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
    const int length = static_cast<int>(this->value(at).size());
    it.text = it.text.left(it.valueAt) + value + it.text.mid(it.valueAt + length);
}

void TagList::setInteger(int at, qint64 value)
{
    const QByteArray old = toBytes(this->value(at));
    const QByteArray digits = QByteArray::number(value);
    setValue(at, old.startsWith(' ') ? digits.rightJustified(old.size()) : digits);
}

void TagList::insert(int at, int code, const QByteArray& tag)
{
    const int codeLine = tag.indexOf('\n') + 1;
    m_items.insert(m_items.begin() + at, {code, codeLine, tag});
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
        all += it.text;
    return all + m_rest;
}

} // namespace drawing
