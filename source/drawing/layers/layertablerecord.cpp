#include "layertablerecord.h"

#include "colorindex.h"
#include "file/owntags.h"

#include <cstdlib>

namespace drawing {

namespace {

/// The bits in the flags of a LAYER record.
enum Flag : qint64 { kFrozen = 1, kFrozenInNewViewports = 2, kLocked = 4, kFromReference = 16 };

int colorOf(qint64 index)
{
    return isColorIndex(withoutSign(index)) ? static_cast<int>(withoutSign(index))
                                            : kColorForeground;
}

/// Changes single groups of one record.
class RecordEditor
{
public:
    explicit RecordEditor(TagList record) : m_tags(std::move(record)) {}

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
    /// Finds the last tag with this code, which is the one that counts when reading.
    int find(int code) const { return findOwn(m_tags, code, true); }
    void insert(int code, const QByteArray& tag);
    void remove(int code);
    /// The application's data, [begin, end), without the application's name. Adds the name when it
    /// is missing.
    std::pair<int, int> xdataOf(const char* application);

    TagList m_tags;
};

void RecordEditor::insert(int code, const QByteArray& tag)
{
    constexpr int kOrder[] = {group::kName, group::kFlags, group::kColor, group::kTrueColor,
        group::kColorName, group::kLinetype, group::kPlotted, group::kLineweight, group::kPlotStyle,
        group::kMaterial};
    const auto* const own = std::find(std::begin(kOrder), std::end(kOrder), code);
    int at = std::max(find(group::kSubclass) + 1, 1);
    for (const int* other = std::begin(kOrder); other != own; ++other)
        at = std::max(at, find(*other) + 1);
    m_tags.insert(at, tag);
}

void RecordEditor::remove(int code)
{
    if (const int at = find(code); at != TagList::kNone)
        m_tags.remove(at, at + 1);
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
    const int at = find(group::kColor);
    qint64 index = after.colorIndex;
    // An invalid colour is kept when the layer is only turned on or off.
    const qint64 old = at == TagList::kNone ? 0 : m_tags.integer(at);
    if (before.colorIndex == after.colorIndex && old > -0x8000 && old < 0x8000 && old != 0)
        index = std::abs(old);
    setInteger(group::kColor, after.off ? -index : index);
}

void RecordEditor::setTrueColor(std::optional<quint32> color)
{
    remove(group::kColorName); // The name belonged to the old colour.
    if (color)
        setInteger(group::kTrueColor, *color);
    else
        remove(group::kTrueColor);
}

void RecordEditor::setFlags(const LayerProperties& after)
{
    const int at = find(group::kFlags);
    qint64 flags = at == TagList::kNone ? 0 : m_tags.integer(at);
    flags &= ~(kFrozen | kFrozenInNewViewports | kLocked);
    const auto set = [&flags](bool isSet, qint64 bit) { flags |= isSet ? bit : 0; };
    set(after.frozen, kFrozen);
    set(after.locked, kLocked);
    set(after.frozenInNewViewports, kFrozenInNewViewports);
    setInteger(group::kFlags, flags);
}

void RecordEditor::setPlotted(bool plotted)
{
    if (plotted)
        remove(group::kPlotted);
    else
        setInteger(group::kPlotted, 0);
}

std::pair<int, int> RecordEditor::xdataOf(const char* application)
{
    const int size = m_tags.size();
    int at = m_tags.find(group::kApplication, 0, size);
    while (at != TagList::kNone && m_tags.trimmed(at) != application)
        at = m_tags.find(group::kApplication, at + 1, size);
    if (at == TagList::kNone) {
        m_tags.insert(size, m_tags.style().tag(group::kApplication, application));
        return {size + 1, size + 1};
    }
    const int end = m_tags.find(group::kApplication, at + 1, size);
    return {at + 1, end == TagList::kNone ? size : end};
}

void RecordEditor::setTransparency(int percent)
{
    const auto [begin, end] = xdataOf(kTransparencyApp);
    const int value = m_tags.find(group::kXdataLong, begin, end);
    const qint64 stored = storedTransparency(percent);
    if (value == TagList::kNone)
        m_tags.insert(begin, m_tags.style().number(group::kXdataLong, stored));
    else
        m_tags.setInteger(value, stored);
}

void RecordEditor::setDescription(const QByteArray& text)
{
    const auto [begin, end] = xdataOf(kStandardApp);
    const TagStyle& style = m_tags.style();
    const int first = m_tags.find(group::kXdata, begin, end);
    if (first == TagList::kNone) {
        m_tags.insert(begin, style.tag(group::kXdata, {}));
        m_tags.insert(begin + 1, style.tag(group::kXdata, text));
        return;
    }
    const int second = m_tags.find(group::kXdata, first + 1, end);
    if (second == TagList::kNone)
        m_tags.insert(first + 1, style.tag(group::kXdata, text));
    else
        m_tags.setText(second, text);
}

} // namespace

LayerRecord LayerRecordReader::read(const TagReader& tags)
{
    LayerRecord record;
    OwnTags all(tags);
    Tag tag;
    while (all.nextOfAll(tag)) {
        if (tag.code == group::kApplication)
            m_strings = 0;
        else if (all.part() == TagPart::Xdata)
            readXdata(tag, all.place().application(), record);
        else if (all.part() == TagPart::Own)
            readOwn(tag, record);
        else if (tag.code == group::kHardOwner && all.place().group() == kExtensionGroup)
            record.extension = tag.handle();
    }
    LayerProperties& p = record.properties;
    p.plotted = p.plotted && !isNeverPlotted(p.name);
    return record;
}

void LayerRecordReader::readOwn(const Tag& tag, LayerRecord& record)
{
    LayerProperties& p = record.properties;
    switch (tag.code) {
    case group::kName:
        p.name = m_codec.decode(tag.trimmed());
        break;
    case group::kHandle:
        record.handle = tag.handle();
        break;
    case group::kLinetype:
        if (tag.trimmed() != m_linetypeBytes) {
            m_linetypeBytes = tag.trimmed();
            m_linetype = m_codec.decode(m_linetypeBytes);
        }
        p.linetype = m_linetype;
        break;
    case group::kColor:
        p.off = tag.integer() < 0;
        p.colorIndex = colorOf(tag.integer());
        break;
    case group::kFlags:
        p.frozen = (tag.integer() & kFrozen) != 0;
        p.frozenInNewViewports = (tag.integer() & kFrozenInNewViewports) != 0;
        p.locked = (tag.integer() & kLocked) != 0;
        record.dependsOnReference = (tag.integer() & kFromReference) != 0;
        break;
    case group::kPlotted:
        p.plotted = tag.integer() != 0;
        break;
    case group::kMaterial:
        record.material = tag.handle();
        break;
    case group::kLineweight:
        p.lineweight = static_cast<int>(tag.integer());
        break;
    case group::kPlotStyle:
        record.plotStyle = tag.handle();
        break;
    case group::kTrueColor:
        p.trueColor = PackedColor(tag.integer()).value;
        break;
    default:
        break;
    }
}

void LayerRecordReader::readXdata(const Tag& tag, std::string_view application, LayerRecord& record)
{
    if (tag.code == group::kXdataLong && application == kTransparencyApp)
        record.properties.transparency = transparencyPercent(tag.integer());
    // The second string is the layer's description.
    if (tag.code == group::kXdata && application == kStandardApp && ++m_strings == 2)
        record.properties.description = m_codec.decode(tag.text());
}

QByteArray editedLayerRecord(TagList record, const LayerProperties& before,
    const LayerProperties& after, const TextCodec& codec)
{
    RecordEditor editor(std::move(record));
    if (before.name != after.name)
        editor.setText(group::kName, codec.encode(after.name));
    if (before.frozen != after.frozen || before.locked != after.locked ||
        before.frozenInNewViewports != after.frozenInNewViewports)
        editor.setFlags(after);
    if (before.off != after.off || before.colorIndex != after.colorIndex)
        editor.setColor(before, after);
    if (before.trueColor != after.trueColor)
        editor.setTrueColor(after.trueColor);
    if (before.linetype != after.linetype)
        editor.setText(group::kLinetype, codec.encode(after.linetype));
    if (before.plotted != after.plotted)
        editor.setPlotted(after.plotted);
    if (before.lineweight != after.lineweight)
        editor.setInteger(group::kLineweight, after.lineweight);
    if (before.transparency != after.transparency)
        editor.setTransparency(after.transparency);
    if (before.description != after.description)
        editor.setDescription(codec.encode(after.description));
    return editor.bytes();
}

QByteArray withPlotStyle(TagList record, quint64 handle)
{
    RecordEditor editor(std::move(record));
    editor.setText(group::kPlotStyle, handleText(handle));
    return editor.bytes();
}

} // namespace drawing
