#include "linetypetable.h"

#include "layerrecord.h"

#include <algorithm>

namespace drawing {

namespace {

// Groups of LTYPE records.
constexpr int kDash = 49;
constexpr int kDashKind = 74; ///< 0 for a plain dash.
constexpr int kStyle = 340;
/// Tell of letters or a shape at a dash, behind its kind.
constexpr int kEmbedded[] = {75, kStyle, 46, 50, 44, 45, 9};
constexpr int kPlain[] = {3, 72, 73, 40, kDash, kDashKind};

// Groups of STYLE records, and the bits of their flags that say what the style is like.
constexpr int kFlags = 70;
constexpr int kFont = 3;
constexpr int kStyleGroups[] = {kFlags, 40, 41, 50, 71, 42, kFont, 4};
constexpr qint64 kShapeFile = 1;
constexpr qint64 kVertical = 4;

template <size_t size>
bool isOneOf(const int (&codes)[size], int code)
{
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

TextTag* findTag(std::vector<TextTag>& tags, int code)
{
    const auto found = std::find_if(
        tags.begin(), tags.end(), [code](const TextTag& tag) { return tag.code == code; });
    return found == tags.end() ? nullptr : &*found;
}

/// A record's own groups: not those of other data in 102 groups, nor XDATA.
template <class Visit>
void visitOwnTags(TagReader tags, Visit visit)
{
    constexpr int kExtendedData = 1000;
    bool inGroup = false;
    Tag tag;
    while (tags.next(tag) && tag.code < kExtendedData) {
        if (tag.code == 102 || tag.code == 100)
            inGroup = opensGroup(tag.code, tag.trimmed());
        else if (!inGroup)
            visit(tag);
    }
}

QString printedText(const DrawingData& data, const Tag& tag)
{
    const QByteArray printed = tag.printed();
    return data.codec.decode({printed.constData(), static_cast<size_t>(printed.size())});
}

LinetypeStyle readStyle(const DrawingData& data, const ByteRange& record)
{
    LinetypeStyle style;
    visitOwnTags(data.tags(record), [&](const Tag& tag) {
        if (tag.code == 2)
            style.name = data.codec.decode(tag.trimmed());
        else if (tag.code == kFlags)
            style.tags.push_back(
                {kFlags, QString::number(tag.integer() & (kShapeFile | kVertical))});
        else if (isOneOf(kStyleGroups, tag.code))
            style.tags.push_back({tag.code, printedText(data, tag)});
    });
    return style;
}

/// Styles are told apart by their names, shape files, which have none, by their fonts.
QString styleKey(LinetypeStyle style)
{
    if (!style.name.isEmpty())
        return style.name.toCaseFolded();
    const TextTag* font = findTag(style.tags, kFont);
    return QLatin1Char('\n') + (font ? font->value.toCaseFolded() : QString());
}

/// The same dashes without letters and shapes.
std::vector<TextTag> plainDashes(const std::vector<TextTag>& tags)
{
    std::vector<TextTag> plain;
    for (const TextTag& tag : tags) {
        if (isOneOf(kPlain, tag.code) && tag.code != kDashKind)
            plain.push_back(tag);
    }
    return plain;
}

/// Formats with handles want the kind of every dash.
std::vector<TextTag> withDashKinds(const std::vector<TextTag>& tags)
{
    std::vector<TextTag> all;
    for (size_t i = 0; i < tags.size(); ++i) {
        all.push_back(tags[i]);
        const bool hasKind = i + 1 < tags.size() && tags[i + 1].code == kDashKind;
        if (tags[i].code == kDash && !hasKind)
            all.push_back({kDashKind, QStringLiteral("0")});
    }
    return all;
}

} // namespace

QStringList LinetypeTable::names() const
{
    QStringList names;
    for (const ByteRange& record : m_data.index.table(TableKind::Linetype).records) {
        QString name;
        visitOwnTags(m_data.tags(record), [&](const Tag& tag) {
            if (tag.code == 2)
                name = m_data.codec.decode(tag.trimmed());
        });
        const QString key = name.toCaseFolded();
        if (!name.isEmpty() && key != QLatin1String("bylayer") && key != QLatin1String("byblock"))
            names += name;
    }
    QStringList added;
    for (const LinetypePointer& linetype : m_data.state.newLinetypes)
        added += linetype->name;
    added.sort(Qt::CaseInsensitive);
    return names + added;
}

LinetypePointer LinetypeTable::find(const QString& name) const
{
    const QString key = name.trimmed().toCaseFolded();
    const auto known = m_data.linetypes.constFind(key);
    return known == m_data.linetypes.constEnd() ? m_data.state.newLinetypes.value(key)
                                                : read(*known);
}

const StyleIndex& LinetypeTable::styles() const
{
    if (m_data.styles)
        return *m_data.styles;
    StyleIndex index;
    for (const ByteRange& record : m_data.index.table(TableKind::Style).records) {
        quint64 handle = 0;
        visitOwnTags(m_data.tags(record), [&handle](const Tag& tag) {
            if (tag.code == 5)
                handle = tag.handle();
        });
        if (handle == 0)
            continue;
        index.records.insert(handle, record);
        const QString key = styleKey(readStyle(m_data, record));
        if (!index.handles.contains(key))
            index.handles.insert(key, handle);
    }
    return m_data.styles.emplace(std::move(index));
}

LinetypePointer LinetypeTable::read(const LinetypeEntry& entry) const
{
    auto definition = std::make_shared<LinetypeDefinition>();
    definition->name = entry.name;
    QHash<quint64, int> styleAt;
    visitOwnTags(m_data.tags(entry.record), [&](const Tag& tag) {
        QString value = printedText(m_data, tag);
        if (tag.code == kStyle) {
            const quint64 handle = tag.handle();
            const ByteRange record = styles().records.value(handle);
            definition->isSimplified = definition->isSimplified || record.isNull();
            if (!styleAt.contains(handle)) {
                styleAt.insert(handle, static_cast<int>(definition->styles.size()));
                definition->styles.push_back(readStyle(m_data, record));
            }
            value = QString::number(styleAt.value(handle));
        }
        if (isOneOf(kPlain, tag.code) || isOneOf(kEmbedded, tag.code))
            definition->tags.push_back({tag.code, value});
    });
    if (definition->isSimplified) {
        definition->tags = plainDashes(definition->tags);
        definition->styles.clear();
    }
    return definition;
}

void LinetypeTable::add(const LinetypeDefinition& definition)
{
    const QString key = definition.name.trimmed().toCaseFolded();
    if (key.isEmpty() || !m_data.linetypeName(key).isNull())
        return;
    if (definition.isSimplified)
        m_data.leftOut.note(LeftOut::LinetypeStyles, definition.name);
    const bool hasStyles = m_data.limits.markers;
    if (definition.hasLettersOrShapes() && !hasStyles)
        m_data.leftOut.note(LeftOut::LinetypeParts, definition.name);
    std::vector<TextTag> tags =
        hasStyles ? withDashKinds(definition.tags) : plainDashes(definition.tags);
    for (TextTag& tag : tags) {
        if (tag.code != kStyle)
            continue;
        const auto at = static_cast<size_t>(tag.value.toULongLong());
        const quint64 handle =
            at < definition.styles.size() ? styleHandle(definition.styles[at]) : 0;
        tag.value = QString::number(handle, 16).toUpper();
    }
    tags.insert(tags.begin(), {{2, definition.name.trimmed()}, {kFlags, QStringLiteral("0")}});
    m_data.state.newLinetypes.insert(key, std::make_shared<const LinetypeDefinition>(definition));
    SymbolTables(m_data).addRecord(TableKind::Linetype, m_data.state.newLinetypes.size(), tags);
}

/// The handle of the drawing's style of that name, which is made where it is missing.
quint64 LinetypeTable::styleHandle(const LinetypeStyle& style)
{
    const QString key = styleKey(style);
    const quint64 known = styles().handles.value(key, m_data.state.newStyles.value(key));
    if (known != 0)
        return known;
    std::vector<TextTag> tags{{2, style.name}};
    tags.insert(tags.end(), style.tags.begin(), style.tags.end());
    const quint64 handle =
        SymbolTables(m_data).addRecord(TableKind::Style, m_data.state.newStyles.size() + 1, tags);
    m_data.state.newStyles.insert(key, handle);
    return handle;
}

} // namespace drawing
