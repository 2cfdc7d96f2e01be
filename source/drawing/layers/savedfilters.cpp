#include "savedfilters.h"

#include "file/drawingtexts.h"
#include "file/groupcode.h"
#include "file/owntags.h"
#include "file/symbolname.h"

#include <QRegularExpression>

#include <algorithm>
#include <unordered_set>

namespace drawing {

namespace {

constexpr char kTree[] = "ACLYDICTIONARY";
constexpr char kOldList[] = "ACAD_LAYERFILTERS";
constexpr char kProperty[] = "AcLyLayerFilter";
constexpr char kGroup[] = "AcLyLayerGroup";

// Groups in the record of a filter.
constexpr int kText = 1; ///< The kind of record; in the old list the filter's name and patterns.
constexpr int kVersion = 90;
constexpr int kFilterName = 300;
constexpr int kExpression = 301;

quint64 extensionOf(const DrawingFile& file, quint64 object)
{
    const QByteArray bytes = file.objects().tags(object).bytes();
    return drawing::extensionOf(TagReader(bytes, file.spelling()));
}

bool isFilter(const DrawingFile& file, quint64 record)
{
    const TagList tags = file.objects().tags(record);
    const RecordData data(tags);
    const int kind = tags.find(kText, data.begin, data.end);
    return kind != TagList::kNone && tags.trimmed(kind).substr(0, 4) == "AcLy";
}

/// Collects the filters in a dictionary, including those in nested dictionaries.
void gather(const DrawingFile& file, quint64 dictionary, quint64 parent,
    std::unordered_set<quint64>& seen, std::vector<FilterPlace>& places)
{
    const Objects& objects = file.objects();
    std::vector<quint64> open = {dictionary};
    while (!open.empty()) {
        const quint64 next = open.back();
        open.pop_back();
        if (next == 0 || !seen.insert(next).second)
            continue;
        for (const Dictionary::Entry& entry : objects.dictionary(next).entries()) {
            const ObjectKind kind = objects.kind(entry.object);
            if (kind == ObjectKind::Dictionary)
                open.push_back(entry.object);
            else if (kind == ObjectKind::XRecord && isFilter(file, entry.object) &&
                     seen.insert(entry.object).second)
                places.push_back({next, entry.key, entry.object, parent});
        }
    }
}

/// The name pattern in an expression that tests for names.
QString patternOf(const QString& expression)
{
    static const QRegularExpression term(
        QStringLiteral("\\bNAME\\s*==\\s*\"([^\"]*)\""), QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = term.match(expression);
    return match.hasMatch() ? match.captured(1) : QStringLiteral("*");
}

} // namespace

quint64 oldFilterList(const DrawingFile& file)
{
    return file.objects().entry(file.tables().extension(TableKind::Layer), kOldList);
}

std::vector<FilterPlace> filterPlaces(const DrawingFile& file)
{
    std::unordered_set<quint64> seen;
    std::vector<FilterPlace> places;
    gather(file, file.objects().entry(file.tables().extension(TableKind::Layer), kTree), 0, seen,
        places);
    for (size_t i = 0; i < places.size(); ++i) {
        const quint64 record = places[i].record;
        gather(file, extensionOf(file, record), record, seen, places);
    }
    return places;
}

std::vector<LayerFilter> SavedFilters::read() const
{
    std::vector<LayerFilter> filters;
    QSet<QString> names;
    for (const FilterPlace& place : filterPlaces(m_file)) {
        filters.push_back(read(place));
        names.insert(foldedName(filters.back().name));
    }
    for (const Dictionary::Entry& entry :
        m_file.objects().dictionary(oldFilterList(m_file)).entries()) {
        LayerFilter old = readOld(entry.object);
        if (!old.name.isEmpty() && !names.contains(foldedName(old.name)))
            filters.push_back(std::move(old));
    }
    return filters;
}

LayerFilter SavedFilters::read(const FilterPlace& place) const
{
    const TagList tags = m_file.objects().tags(place.record);
    const RecordData data(tags);
    const std::string_view kind = tags.trimmed(tags.find(kText, data.begin, data.end));
    LayerFilter filter;
    filter.kind = kind == kProperty ? LayerFilter::Kind::Property
                  : kind == kGroup  ? LayerFilter::Kind::Group
                                    : LayerFilter::Kind::Unknown;
    filter.record = place.record;
    filter.parent = place.parent;
    for (int at = data.begin; at < data.end; ++at) {
        if (tags.code(at) == kFilterName)
            filter.name = m_file.decoded(tags.trimmed(at));
        else if (tags.code(at) == kExpression)
            filter.expression = m_file.decoded(tags.text(at));
        const Layer* const layer =
            tags.code(at) == group::kSoftPointer ? m_layers.byHandle(tags.handle(at)) : nullptr;
        if (layer)
            filter.layers.push_back(layer->id);
    }
    return filter;
}

/// A filter without an expression is described by its name pattern.
LayerFilter SavedFilters::readOld(quint64 record) const
{
    const TagList tags = m_file.objects().tags(record);
    const RecordData data(tags);
    LayerFilter filter;
    filter.record = record;
    const int name = tags.find(kText, data.begin, data.end);
    if (name == TagList::kNone)
        return filter;
    filter.name = m_file.decoded(tags.trimmed(name));
    const int expression = tags.find(group::kXdata, data.end, tags.size());
    if (expression != TagList::kNone)
        filter.expression = m_file.decoded(tags.text(expression));
    else if (const int pattern = tags.find(kText, name + 1, data.end); pattern != TagList::kNone)
        filter.expression =
            QStringLiteral("NAME==\"%1\"").arg(m_file.decoded(tags.trimmed(pattern)));
    return filter;
}

Expected<LayerFilter> SavedFilters::known(quint64 record) const
{
    for (const LayerFilter& filter : read()) {
        if (filter.record == record)
            return filter;
    }
    return refusal(Texts::tr("过滤器已不存在。"));
}

Expected<void> SavedFilters::checkName(const LayerFilter& filter) const
{
    if (filter.name.trimmed().isEmpty())
        return refusal(Texts::tr("过滤器的名称不能为空。"));
    for (const LayerFilter& other : read()) {
        const bool isBeside = other.parent == filter.parent && other.record != filter.record;
        if (isBeside && foldedName(other.name) == foldedName(filter.name))
            return refusal(Texts::tr("已有名称为“%1”的过滤器。").arg(filter.name));
    }
    return {};
}

QByteArray SavedFilters::newData(const LayerFilter& filter)
{
    const TagStyle style = m_file.objects().style();
    const bool isGroup = filter.kind == LayerFilter::Kind::Group;
    QByteArray data = style.tag(kText, isGroup ? kGroup : kProperty) + style.number(kVersion, 1) +
                      style.tag(kFilterName, m_file.encoded(filter.name));
    if (!isGroup)
        return data + style.tag(kExpression, m_file.encoded(filter.expression));
    for (const LayerId layer : filter.layers)
        data += style.handle(group::kSoftPointer, m_records.madeHandle(layer));
    return data;
}

/// The dictionary for filters inside `parent`, or for those at the top level. It is created when it
/// is missing.
quint64 SavedFilters::madeDictionary(quint64 parent)
{
    for (const FilterPlace& place : filterPlaces(m_file)) {
        if (place.parent == parent)
            return place.dictionary;
    }
    Objects& objects = m_file.objects();
    quint64 extension = 0;
    if (parent == 0) {
        extension = m_file.tables().madeExtension(TableKind::Layer);
    } else if (extension = extensionOf(m_file, parent); extension == 0) {
        extension = objects.addDictionary(parent);
        objects.store(parent, withExtension(objects.tags(parent), extension));
    }
    if (const quint64 known = objects.entry(extension, kTree); known != 0)
        return known;
    const quint64 made = objects.addDictionary(extension);
    objects.addEntry(extension, kTree, made);
    return made;
}

Expected<quint64> SavedFilters::add(const LayerFilter& filter)
{
    if (!m_file.limits().markers)
        return refusal(Texts::tr("此图形的格式（DXF R12）不能保存图层过滤器。"));
    if (const auto checked = checkName(filter); !checked)
        return tl::make_unexpected(checked.error());
    Objects& objects = m_file.objects();
    const quint64 dictionary = madeDictionary(filter.parent);
    int number = 1;
    const auto key = [&number] { return QByteArray("*A") + QByteArray::number(number); };
    while (objects.entry(dictionary, viewOf(key())) != 0)
        ++number;
    const quint64 record = objects.addRecord(dictionary, newData(filter));
    objects.addEntry(dictionary, key(), record);
    return record;
}

void SavedFilters::putText(TagList& tags, int code, const QString& text) const
{
    const RecordData data(tags);
    const int at = tags.find(code, data.begin, data.end);
    if (at == TagList::kNone)
        tags.insert(data.end, tags.style().tag(code, m_file.encoded(text)));
    else if (m_file.decoded(tags.trimmed(at)) != text)
        tags.setText(at, m_file.encoded(text));
}

/// Updates the list of layers. Handles in it that do not belong to a layer of the drawing are kept.
void SavedFilters::putLayers(TagList& tags, const std::vector<LayerId>& layers)
{
    const RecordData data(tags);
    std::vector<quint64> missing;
    missing.reserve(layers.size());
    for (const LayerId layer : layers)
        missing.push_back(m_records.madeHandle(layer));
    const std::unordered_set<quint64> wanted(missing.begin(), missing.end());
    std::unordered_set<quint64> listed;
    std::vector<int> kept;
    int end = data.end;
    for (int at = 0; at < tags.size(); ++at) {
        const bool isListed = data.contains(at) && tags.code(at) == group::kSoftPointer;
        const quint64 handle = isListed ? tags.handle(at) : 0;
        if (isListed && !wanted.count(handle) && m_layers.byHandle(handle)) {
            --end;
            continue;
        }
        listed.insert(handle);
        kept.push_back(at);
    }
    tags.keepOnly(kept);
    for (const quint64 handle : missing) {
        if (listed.insert(handle).second)
            tags.insert(end++, tags.style().handle(group::kSoftPointer, handle));
    }
}

Expected<void> SavedFilters::change(const LayerFilter& filter)
{
    const auto before = known(filter.record);
    if (!before)
        return tl::make_unexpected(before.error());
    if (before->kind == LayerFilter::Kind::Unknown)
        return refusal(Texts::tr("不了解过滤器“%1”的类型，不能更改。").arg(before->name));
    if (auto checked = checkName(filter); !checked)
        return checked;
    changeOld(*before, &filter);
    const std::vector<FilterPlace> places = filterPlaces(m_file);
    const bool isNewer = std::any_of(places.begin(), places.end(),
        [&](const FilterPlace& place) { return place.record == filter.record; });
    if (!isNewer)
        return {};
    TagList tags = m_file.objects().tags(filter.record);
    putText(tags, kFilterName, filter.name);
    if (before->kind == LayerFilter::Kind::Group)
        putLayers(tags, filter.layers);
    else if (before->expression != filter.expression)
        putText(tags, kExpression, filter.expression);
    m_file.objects().store(filter.record, tags);
    return {};
}

Expected<void> SavedFilters::remove(quint64 record)
{
    const auto before = known(record);
    if (!before)
        return tl::make_unexpected(before.error());
    changeOld(*before, nullptr);
    for (const FilterPlace& place : filterPlaces(m_file)) {
        if (place.record != record)
            continue;
        m_file.objects().removeEntry(place.dictionary, viewOf(place.key));
        m_file.objects().eraseOwned(extensionOf(m_file, record));
        m_file.objects().erase(record);
    }
    return {};
}

void SavedFilters::changeOld(const LayerFilter& before, const LayerFilter* after)
{
    Objects& objects = m_file.objects();
    const quint64 list = oldFilterList(m_file);
    if (before.parent != 0 || before.kind != LayerFilter::Kind::Property)
        return;
    for (const Dictionary::Entry& entry : objects.dictionary(list).entries()) {
        if (foldedName(readOld(entry.object).name) != foldedName(before.name))
            continue;
        if (!after) {
            objects.removeEntry(list, viewOf(entry.key));
            objects.erase(entry.object);
            continue;
        }
        if (after->name != before.name) {
            Dictionary renamed = objects.dictionary(list);
            renamed.remove(viewOf(entry.key));
            renamed.add(m_file.encoded(after->name), entry.object);
            objects.store(list, renamed.tags());
        }
        TagList tags = objects.tags(entry.object);
        putText(tags, kText, after->name);
        const RecordData data(tags);
        const int name = tags.find(kText, data.begin, data.end);
        const int pattern = tags.find(kText, name + 1, data.end);
        const int expression = tags.find(group::kXdata, data.end, tags.size());
        const bool isOther = after->expression != before.expression;
        if (isOther && pattern != TagList::kNone)
            tags.setText(pattern, m_file.encoded(patternOf(after->expression)));
        if (isOther && expression != TagList::kNone)
            tags.setText(expression, m_file.encoded(after->expression));
        objects.store(entry.object, tags);
    }
}

} // namespace drawing
