#include "linetypetable.h"

#include "file/groupcode.h"
#include "file/owntags.h"
#include "file/symbolname.h"

#include <algorithm>

namespace drawing {

namespace {

// Groups of LTYPE records.
constexpr int kDash = 49;
constexpr int kDashKind = 74; ///< 0 for a simple dash.
constexpr int kStyle = group::kHardPointer;
/// The groups after a dash's kind that describe letters or a shape.
constexpr int kEmbedded[] = {75, kStyle, 46, 50, 44, 45, 9};
constexpr int kPlain[] = {3, 72, 73, 40, kDash, kDashKind};

// Groups of STYLE records, and the bits of their flags that describe the style itself.
constexpr int kFlags = group::kFlags;
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

/// Styles are identified by their names, and shape files, which have no names, by their fonts.
QString styleKey(LinetypeStyle style)
{
    if (!style.name.isEmpty())
        return foldedName(style.name);
    const TextTag* font = findTag(style.tags, kFont);
    return QLatin1Char('\n') + (font ? foldedName(font->value) : QString());
}

/// The dashes without letters and shapes.
std::vector<TextTag> plainDashes(const std::vector<TextTag>& tags)
{
    std::vector<TextTag> plain;
    for (const TextTag& tag : tags) {
        if (isOneOf(kPlain, tag.code) && tag.code != kDashKind)
            plain.push_back(tag);
    }
    return plain;
}

/// Adds missing kinds of dashes, which formats with handles require.
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

void LinetypeTable::load()
{
    for (const ByteRange& record : m_file.table(TableKind::Linetype).records) {
        const Entry entry{m_file.tables().nameOf(record), record, ownHandle(m_file.tags(record))};
        const QString key = foldedName(entry.name);
        m_entries.insert(key, entry);
        if (entry.handle != 0)
            m_byHandle.insert(entry.handle, entry.name);
        if (!key.isEmpty() && key != QLatin1String("bylayer") && key != QLatin1String("byblock"))
            m_names += entry.name;
    }
}

QStringList LinetypeTable::names() const
{
    QStringList added;
    for (const LinetypePointer& linetype : m_state.linetypes)
        added += linetype->name;
    added.sort(Qt::CaseInsensitive);
    return m_names + added;
}

QString LinetypeTable::spelled(const QString& name) const
{
    const QString key = foldedName(name);
    const auto known = m_entries.constFind(key);
    if (known != m_entries.constEnd())
        return known->name;
    const LinetypePointer added = m_state.linetypes.value(key);
    return added ? added->name : QString();
}

quint64 LinetypeTable::handle(const QString& name) const
{
    return m_entries.value(foldedName(name)).handle;
}

LinetypePointer LinetypeTable::find(const QString& name) const
{
    const QString key = foldedName(name.trimmed());
    const auto known = m_entries.constFind(key);
    return known == m_entries.constEnd() ? m_state.linetypes.value(key) : read(*known);
}

LinetypeStyle LinetypeTable::readStyle(const ByteRange& record) const
{
    LinetypeStyle style;
    OwnTags tags(m_file.tags(record));
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == group::kName)
            style.name = m_file.decoded(tag.trimmed());
        else if (tag.code == kFlags)
            style.tags.push_back(
                {kFlags, QString::number(tag.integer() & (kShapeFile | kVertical))});
        else if (isOneOf(kStyleGroups, tag.code))
            style.tags.push_back({tag.code, m_file.decoded(viewOf(tag.printed()))});
    }
    return style;
}

const LinetypeTable::StyleIndex& LinetypeTable::styles() const
{
    const std::lock_guard<std::mutex> guard(m_indexing);
    if (m_styles)
        return *m_styles;
    StyleIndex index;
    for (const ByteRange& record : m_file.table(TableKind::Style).records) {
        const quint64 handle = ownHandle(m_file.tags(record));
        if (handle == 0)
            continue;
        index.records.insert(handle, record);
        const QString key = styleKey(readStyle(record));
        if (!index.handles.contains(key))
            index.handles.insert(key, handle);
    }
    return m_styles.emplace(std::move(index));
}

LinetypePointer LinetypeTable::read(const Entry& entry) const
{
    auto definition = std::make_shared<LinetypeDefinition>();
    definition->name = entry.name;
    QHash<quint64, int> styleAt;
    OwnTags tags(m_file.tags(entry.record));
    Tag tag;
    while (tags.next(tag)) {
        QString value = m_file.decoded(viewOf(tag.printed()));
        if (tag.code == kStyle) {
            const quint64 handle = tag.handle();
            const ByteRange record = styles().records.value(handle);
            definition->isSimplified = definition->isSimplified || record.isNull();
            if (!styleAt.contains(handle)) {
                styleAt.insert(handle, static_cast<int>(definition->styles.size()));
                definition->styles.push_back(readStyle(record));
            }
            value = QString::number(styleAt.value(handle));
        }
        if (isOneOf(kPlain, tag.code) || isOneOf(kEmbedded, tag.code))
            definition->tags.push_back({tag.code, value});
    }
    if (definition->isSimplified) {
        definition->tags = plainDashes(definition->tags);
        definition->styles.clear();
    }
    return definition;
}

void LinetypeTable::add(const LinetypeDefinition& definition)
{
    const QString key = foldedName(definition.name.trimmed());
    if (key.isEmpty() || !spelled(key).isNull())
        return;
    if (definition.isSimplified)
        m_leftOut.note(LeftOut::LinetypeStyles, definition.name);
    const bool hasStyles = m_file.limits().markers;
    if (definition.hasLettersOrShapes() && !hasStyles)
        m_leftOut.note(LeftOut::LinetypeParts, definition.name);
    std::vector<TextTag> tags =
        hasStyles ? withDashKinds(definition.tags) : plainDashes(definition.tags);
    for (TextTag& tag : tags) {
        if (tag.code != kStyle)
            continue;
        const auto at = static_cast<size_t>(tag.value.toULongLong());
        const quint64 handle =
            at < definition.styles.size() ? styleHandle(definition.styles[at]) : 0;
        tag.value = QString::fromLatin1(handleText(handle));
    }
    tags.insert(
        tags.begin(), {{group::kName, definition.name.trimmed()}, {kFlags, QStringLiteral("0")}});
    m_state.linetypes.insert(key, std::make_shared<const LinetypeDefinition>(definition));
    m_file.tables().add(TableKind::Linetype, tags);
}

/// The handle of the drawing's style with this name. A missing style is created.
quint64 LinetypeTable::styleHandle(const LinetypeStyle& style)
{
    const QString key = styleKey(style);
    const quint64 known = styles().handles.value(key, m_state.styles.value(key));
    if (known != 0)
        return known;
    std::vector<TextTag> tags{{group::kName, style.name}};
    tags.insert(tags.end(), style.tags.begin(), style.tags.end());
    const quint64 handle = m_file.tables().add(TableKind::Style, tags);
    m_state.styles.insert(key, handle);
    return handle;
}

} // namespace drawing
