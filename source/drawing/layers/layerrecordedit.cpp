#include "layerrecordedit.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace drawing {

namespace {

/// Changes single groups of one record.
class RecordEditor
{
public:
    explicit RecordEditor(TagList record) : m_tags(std::move(record)) { findBody(); }

    void setColor(const LayerProperties& before, const LayerProperties& after);
    void setTrueColor(std::optional<quint32> color);
    void setFlags(const LayerProperties& after);
    void setPlotted(bool plotted);
    void setInteger(int code, qint64 value);
    void setText(int code, const QByteArray& value);
    void setTransparency(int percent);
    void setDescription(const QByteArray& text);
    QByteArray bytes() const { return m_tags.bytes(); }

private:
    void findBody();
    int find(int code) const;
    void insert(int code, const QByteArray& tag);
    void remove(int code);
    int findXdata(std::string_view application, int& end) const;

    TagList m_tags;
    int m_bodyBegin = 1; // Behind the subclass markers.
    int m_bodyEnd = 0;   // The first XDATA tag.
};

void RecordEditor::findBody()
{
    m_bodyEnd = m_tags.find(1001, 0, m_tags.size());
    if (m_bodyEnd == TagList::kNone)
        m_bodyEnd = m_tags.size();
    for (int at = 1; at < m_bodyEnd; ++at) {
        if (m_tags.code(at) == 100)
            m_bodyBegin = at + 1;
    }
}

/// The record's own tag with this code, not one in a 102 group; of several the last, as it is read.
int RecordEditor::find(int code) const
{
    int found = TagList::kNone;
    bool inGroup = false;
    for (int at = 1; at < m_bodyEnd; ++at) {
        if (m_tags.code(at) == 102 || m_tags.code(at) == 100)
            inGroup = opensGroup(m_tags.code(at), m_tags.trimmed(at));
        else if (m_tags.code(at) == code && !inGroup)
            found = at;
    }
    return found;
}

void RecordEditor::insert(int code, const QByteArray& tag)
{
    constexpr int kOrder[] = {2, 70, 62, 420, 430, 6, 290, 370, 390, 347, 348};
    const auto* const own = std::find(std::begin(kOrder), std::end(kOrder), code);
    int at = m_bodyBegin;
    for (const int* other = std::begin(kOrder); other != own; ++other)
        at = std::max(at, find(*other) + 1);
    m_tags.insert(at, tag);
    ++m_bodyEnd;
}

void RecordEditor::remove(int code)
{
    const int at = find(code);
    if (at == TagList::kNone)
        return;
    m_tags.remove(at, at + 1);
    --m_bodyEnd;
}

void RecordEditor::setInteger(int code, qint64 value)
{
    const int at = find(code);
    if (at == TagList::kNone)
        insert(code, m_tags.style().number(code, value));
    else
        m_tags.setInteger(at, value);
}

void RecordEditor::setText(int code, const QByteArray& value)
{
    const int at = find(code);
    if (at == TagList::kNone)
        insert(code, m_tags.style().tag(code, value));
    else
        m_tags.setText(at, value);
}

void RecordEditor::setColor(const LayerProperties& before, const LayerProperties& after)
{
    const int at = find(62);
    qint64 index = after.colorIndex;
    // A colour out of range stays what it is when the layer is only turned on or off.
    const qint64 old = at == TagList::kNone ? 0 : m_tags.integer(at);
    if (before.colorIndex == after.colorIndex && old > -0x8000 && old < 0x8000 && old != 0)
        index = std::abs(old);
    setInteger(62, after.off ? -index : index);
}

void RecordEditor::setTrueColor(std::optional<quint32> color)
{
    remove(430); // Named the colour that was.
    if (color)
        setInteger(420, *color);
    else
        remove(420);
}

void RecordEditor::setFlags(const LayerProperties& after)
{
    const int at = find(70);
    qint64 flags = at == TagList::kNone ? 0 : m_tags.integer(at);
    flags &= ~(kLayerFrozen | kLayerFrozenInNewViewports | kLayerLocked);
    flags |= (after.frozen ? kLayerFrozen : 0) | (after.locked ? kLayerLocked : 0) |
             (after.frozenInNewViewports ? kLayerFrozenInNewViewports : 0);
    setInteger(70, flags);
}

void RecordEditor::setPlotted(bool plotted)
{
    if (plotted)
        remove(290);
    else
        setInteger(290, 0);
}

/// The application's 1001 tag and the end of its data.
int RecordEditor::findXdata(std::string_view application, int& end) const
{
    int at = m_tags.find(1001, m_bodyEnd, m_tags.size());
    while (at != TagList::kNone) {
        end = m_tags.find(1001, at + 1, m_tags.size());
        if (m_tags.trimmed(at) == application)
            break;
        at = end;
    }
    if (end == TagList::kNone)
        end = m_tags.size();
    return at;
}

void RecordEditor::setTransparency(int percent)
{
    int end = TagList::kNone;
    int at = findXdata(kTransparencyApp, end);
    const TagStyle& style = m_tags.style();
    if (at == TagList::kNone) {
        at = m_tags.size();
        m_tags.insert(at, style.tag(1001, kTransparencyApp));
        end = at + 1;
    }
    const int value = m_tags.find(1071, at, end);
    if (value == TagList::kNone)
        m_tags.insert(at + 1, style.number(1071, storedTransparency(percent)));
    else
        m_tags.setInteger(value, storedTransparency(percent));
}

void RecordEditor::setDescription(const QByteArray& text)
{
    int end = TagList::kNone;
    int at = findXdata(kStandardApp, end);
    const TagStyle& style = m_tags.style();
    if (at == TagList::kNone) {
        at = m_tags.size();
        m_tags.insert(at, style.tag(1001, kStandardApp));
        end = at + 1;
    }
    const int first = m_tags.find(1000, at, end);
    if (first == TagList::kNone) {
        m_tags.insert(at + 1, style.tag(1000, {}));
        m_tags.insert(at + 2, style.tag(1000, text));
        return;
    }
    const int second = m_tags.find(1000, first + 1, end);
    if (second == TagList::kNone)
        m_tags.insert(first + 1, style.tag(1000, text));
    else
        m_tags.setText(second, text);
}

} // namespace

QByteArray editedLayerRecord(TagList record, const LayerProperties& before,
    const LayerProperties& after, const TextCodec& codec)
{
    RecordEditor editor(std::move(record));
    if (before.name != after.name)
        editor.setText(2, codec.encode(after.name));
    if (before.frozen != after.frozen || before.locked != after.locked ||
        before.frozenInNewViewports != after.frozenInNewViewports)
        editor.setFlags(after);
    if (before.off != after.off || before.colorIndex != after.colorIndex)
        editor.setColor(before, after);
    if (before.trueColor != after.trueColor)
        editor.setTrueColor(after.trueColor);
    if (before.linetype != after.linetype)
        editor.setText(6, codec.encode(after.linetype));
    if (before.plotted != after.plotted)
        editor.setPlotted(after.plotted);
    if (before.lineweight != after.lineweight)
        editor.setInteger(370, after.lineweight);
    if (before.transparency != after.transparency)
        editor.setTransparency(after.transparency);
    if (before.description != after.description)
        editor.setDescription(codec.encode(after.description));
    return editor.bytes();
}

QByteArray withPlotStyle(TagList record, quint64 handle)
{
    RecordEditor editor(std::move(record));
    editor.setText(390, handleText(handle));
    return editor.bytes();
}

QByteArray newLayerRecord(
    const NewLayerRecord& plan, const LayerProperties& properties, const TextCodec& codec)
{
    LayerProperties plain;
    plain.name = properties.name;
    const TagStyle& style = plan.style;
    QByteArray record = style.tag(0, "LAYER");
    if (plan.handle != 0)
        record += style.handle(5, plan.handle);
    if (plan.owner != 0)
        record += style.handle(330, plan.owner);
    if (plan.limits.markers)
        record += style.tag(100, "AcDbSymbolTableRecord") + style.tag(100, "AcDbLayerTableRecord");
    record += style.tag(2, codec.encode(properties.name)) + style.number(70, 0) +
              style.number(62, plain.colorIndex) + style.tag(6, codec.encode(plain.linetype));
    if (plan.limits.lineweight)
        record += style.number(370, plain.lineweight);
    if (plan.plotStyle != 0)
        record += style.handle(390, plan.plotStyle);
    if (plan.material != 0)
        record += style.handle(347, plan.material);
    return editedLayerRecord(TagList(record, style.spelling), plain, properties, codec);
}

} // namespace drawing
