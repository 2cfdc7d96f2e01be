#include "layerstates.h"

#include "handles.h"
#include "layerstatefile.h"
#include "objectedits.h"

#include <QCoreApplication>
#include <QSet>

#include <unordered_set>

namespace drawing {

namespace {

constexpr int kDrawingPlotStyleCode = 1;
constexpr char kStatesKey[] = "ACAD_LAYERSTATES";
constexpr char kExtension[] = "{ACAD_XDICTIONARY";

QString tr(const char* text)
{
    return QCoreApplication::translate("drawing", text);
}

/// The record with other data between its own head and the data of applications.
QByteArray withData(const QByteArray& record, const QByteArray& data)
{
    TagList head(record);
    TagList tail(record);
    const int marker = head.find(100, 0, head.size());
    int begin = marker == TagList::kNone ? head.size() : marker + 1;
    if (begin < head.size() && head.code(begin) == 280)
        ++begin;
    int end = tail.find(1001, begin, tail.size());
    end = end == TagList::kNone ? tail.size() : end;
    head.remove(begin, head.size());
    tail.remove(0, end);
    return head.bytes() + data + tail.bytes();
}

bool isReference(int code)
{
    return code == 350 || code == 360;
}

} // namespace

const LayerStateTable& LayerStates::table() const
{
    if (m_data.state.layerStates)
        return *m_data.state.layerStates;
    if (!m_data.loadedStates)
        m_data.loadedStates = std::make_shared<const LayerStateTable>(load());
    return *m_data.loadedStates;
}

void LayerStates::keep(LayerStateTable table)
{
    m_data.state.layerStates = std::make_shared<const LayerStateTable>(std::move(table));
}

LayerStateTable LayerStates::load() const
{
    LayerStateTable table;
    if (!liveInDrawing()) {
        const auto file = readLayerStateFile(m_data.statesPath, m_data.codec);
        if (!file) {
            m_data.statesFault = file.error().text;
            return table;
        }
        const TagStyle plain;
        for (const LayerState& state : file->states) {
            LayerStateEntry entry;
            entry.name = state.name;
            entry.aside = newRecordHead(plain, 0, 0) +
                          layerStateTags(state, {}, kDrawingPlotStyleCode, plain, m_data.codec);
            table.entries.push_back(entry);
        }
        return table;
    }
    const quint64 extension =
        extensionDictionary(m_data.tags(m_data.index.table(TableKind::Layer).head));
    const ObjectPlace* states =
        dictionaryEntry(m_data, m_data.objectByHandle(extension), kStatesKey);
    if (!states)
        return table;
    table.dictionary = states->handle;
    table.place = {states->begin};
    table.end = states->end;
    for (const DictionaryEntry& entry : dictionaryEntries(m_data, states)) {
        if (entry.object && entry.object->kind == ObjectKind::XRecord)
            table.entries.push_back({m_data.codec.decode(entry.key), {entry.object->begin},
                entry.object->end, entry.object->handle, {}});
    }
    return table;
}

QByteArray LayerStates::bytes(const LayerStateEntry& entry) const
{
    if (entry.handle == 0)
        return entry.aside;
    return entry.place.order == EditPlace::kReplacement
               ? m_data.journal.current(entry.place.begin, entry.end)
               : m_data.journal.inserted(entry.place.begin, entry.place.order);
}

LayerStateNames LayerStates::namesByHandle() const
{
    LayerStateNames names;
    const LayerTable& layers = m_data.layers;
    names.layers.reserve(layers.entryCount());
    for (int i = 0; i < layers.entryCount(); ++i) {
        const LayerEntry& entry = layers.entry(static_cast<LayerId>(i));
        if (entry.present && entry.handle != 0)
            names.layers.insert(entry.handle, entry.layer.properties.name);
    }
    for (const ByteRange& record : m_data.index.table(TableKind::Linetype).records) {
        TagReader tags = m_data.tags(record);
        quint64 handle = 0;
        QString name;
        Tag tag;
        while (tags.next(tag) && name.isNull()) {
            if (tag.code == 5)
                handle = tag.toHandle();
            else if (tag.code == 2)
                name = m_data.codec.decode(tag.trimmed());
        }
        if (handle != 0)
            names.linetypes.insert(handle, name);
    }
    return names;
}

LayerStateHandles LayerStates::handlesByName() const
{
    LayerStateHandles handles;
    if (!liveInDrawing())
        return handles;
    const LayerStateNames names = namesByHandle();
    for (auto at = names.layers.begin(); at != names.layers.end(); ++at)
        handles.layers.insert(at.value().toCaseFolded(), at.key());
    for (auto at = names.linetypes.begin(); at != names.linetypes.end(); ++at)
        handles.linetypes.insert(at.value().toCaseFolded(), at.key());
    return handles;
}

LayerState LayerStates::read(const LayerStateEntry& entry, const LayerStateNames& names) const
{
    const QByteArray record = bytes(entry);
    TagReader tags(std::string_view(record.constData(), static_cast<size_t>(record.size())));
    LayerStateReader reader(m_data.codec, names);
    bool isData = false; // What stands before the marker belongs to the object.
    Tag tag;
    while (tags.next(tag) && tag.code < 1000) {
        if (isData)
            reader.take(tag);
        isData = isData || tag.code == 100;
    }
    LayerState state = reader.finish();
    state.name = entry.name;
    return state;
}

QStringList LayerStates::names() const
{
    QStringList names;
    for (const LayerStateEntry& entry : table().entries)
        names += entry.name;
    return names;
}

std::vector<LayerState> LayerStates::all() const
{
    const LayerStateNames names = namesByHandle();
    std::vector<LayerState> states;
    states.reserve(table().entries.size());
    for (const LayerStateEntry& entry : table().entries)
        states.push_back(read(entry, names));
    return states;
}

std::optional<LayerState> LayerStates::find(const QString& name) const
{
    for (const LayerStateEntry& entry : table().entries) {
        if (entry.name.compare(name, Qt::CaseInsensitive) == 0)
            return read(entry, namesByHandle());
    }
    return {};
}

TagStyle LayerStates::style() const
{
    return ObjectEdits(m_data).style();
}

/// Makes the dictionary of states and all that leads to it.
void LayerStates::makeDictionary(LayerStateTable& table)
{
    SymbolTables tables(m_data);
    ObjectEdits objects(m_data);
    const TagStyle style = this->style();
    const TablePlace& layers = m_data.index.table(TableKind::Layer);
    const quint64 known = extensionDictionary(m_data.tags(layers.head));
    const ObjectPlace* extension = m_data.objectByHandle(known);
    const quint64 extensionHandle = extension ? known : tables.takeHandle();
    table.dictionary = tables.takeHandle();
    if (extension) {
        objects.addEntry(*extension, kStatesKey, table.dictionary);
    } else {
        linkExtension(extensionHandle);
        objects.insert(newDictionary(style, extensionHandle, tables.tableHandle(TableKind::Layer),
            style.tag(3, kStatesKey) + style.handle(360, table.dictionary)));
    }
    table.place = objects.insert(newDictionary(style, table.dictionary, extensionHandle, {}));
    table.end = table.place.begin;
}

/// Writes the handle of a new extension dictionary into the head of the layer table.
void LayerStates::linkExtension(quint64 handle)
{
    const TagStyle style = this->style();
    TagReader tags = m_data.tags(m_data.index.table(TableKind::Layer).head);
    qint64 behind = -1;
    bool inGroup = false;
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 102)
            inGroup = tag.trimmed() == kExtension;
        if (inGroup && tag.code == 360) {
            m_data.journal.replace(tag.valueBegin,
                tag.valueBegin + static_cast<qint64>(tag.value.size()),
                QByteArray::number(handle, 16).toUpper());
            return;
        }
        if (tag.code == 5 || (tag.code == 2 && behind < 0))
            behind = tag.end;
    }
    m_data.journal.insert(
        behind, 1, style.tag(102, kExtension) + style.handle(360, handle) + style.tag(102, "}"));
}

void LayerStates::store(LayerStateEntry& entry, const QByteArray& record)
{
    if (entry.handle == 0)
        entry.aside = record;
    else if (entry.place.order == EditPlace::kReplacement)
        m_data.journal.replace(entry.place.begin, entry.end, record);
    else
        m_data.journal.insert(entry.place.begin, entry.place.order, record);
}

void LayerStates::erase(const LayerStateEntry& entry)
{
    if (entry.handle == 0)
        return;
    if (entry.place.order == EditPlace::kReplacement)
        m_data.journal.replace(entry.place.begin, entry.end, {});
    else
        m_data.journal.removeInsertion(entry.place.begin, entry.place.order);
}

QByteArray LayerStates::dictionaryBytes(const LayerStateTable& table) const
{
    return table.place.order == EditPlace::kReplacement
               ? m_data.journal.current(table.place.begin, table.end)
               : m_data.journal.inserted(table.place.begin, table.place.order);
}

/// Entries of other objects than states stay where they are.
void LayerStates::writeDictionary(const LayerStateTable& table, const std::vector<quint64>& gone)
{
    if (!liveInDrawing())
        return;
    TagList tags(dictionaryBytes(table));
    std::unordered_set<quint64> ours(gone.begin(), gone.end());
    for (const LayerStateEntry& entry : table.entries)
        ours.insert(entry.handle);
    std::vector<int> kept;
    int reference = 360;
    for (int at = 0; at < tags.size(); ++at) {
        const bool isEntry =
            tags.code(at) == 3 && at + 1 < tags.size() && isReference(tags.code(at + 1));
        if (isEntry && ours.count(tags.handle(at + 1)) != 0)
            reference = tags.code(++at);
        else
            kept.push_back(at);
    }
    tags.keepOnly(kept);
    QByteArray bytes = tags.bytes();
    const TagStyle style = this->style();
    for (const LayerStateEntry& entry : table.entries)
        bytes +=
            style.tag(3, m_data.codec.encode(entry.name)) + style.handle(reference, entry.handle);
    if (table.place.order == EditPlace::kReplacement)
        m_data.journal.replace(table.place.begin, table.end, bytes);
    else
        m_data.journal.insert(table.place.begin, table.place.order, bytes);
}

Expected<void> LayerStates::readyToWrite() const
{
    table();
    if (m_data.statesFault.isEmpty())
        return {};
    return tl::make_unexpected(
        Error{tr("此图形的图层状态文件无法读取，为免丢失其中的内容，不能改动图层状态：%1")
                  .arg(m_data.statesFault),
            0, false});
}

Expected<void> LayerStates::put(const std::vector<LayerState>& states)
{
    if (auto ready = readyToWrite(); !ready)
        return ready;
    LayerStateTable table = this->table();
    if (liveInDrawing() && table.dictionary == 0)
        makeDictionary(table);
    QHash<QString, size_t> byName;
    for (size_t i = 0; i < table.entries.size(); ++i)
        byName.insert(table.entries[i].name.toCaseFolded(), i);
    const LayerStateHandles handles = handlesByName();
    const TagStyle style = this->style();
    for (const LayerState& state : states) {
        const QByteArray data =
            layerStateTags(state, handles, kDrawingPlotStyleCode, style, m_data.codec);
        const auto known = byName.constFind(state.name.toCaseFolded());
        if (known != byName.constEnd()) {
            LayerStateEntry& entry = table.entries[*known];
            store(entry, withData(bytes(entry), data));
            continue;
        }
        LayerStateEntry entry;
        entry.name = state.name;
        entry.handle = SymbolTables(m_data).takeHandle();
        const QByteArray record = newRecordHead(style, entry.handle, table.dictionary) + data;
        if (entry.handle != 0)
            entry.place = ObjectEdits(m_data).insert(record);
        else
            entry.aside = record;
        entry.end = entry.place.begin;
        byName.insert(state.name.toCaseFolded(), table.entries.size());
        table.entries.push_back(entry);
    }
    writeDictionary(table, {});
    keep(std::move(table));
    return {};
}

Expected<void> LayerStates::remove(const QStringList& names)
{
    if (auto ready = readyToWrite(); !ready)
        return ready;
    QSet<QString> wanted;
    for (const QString& name : names)
        wanted.insert(name.toCaseFolded());
    const LayerStateTable& before = this->table();
    LayerStateTable after = before;
    after.entries.clear();
    std::vector<quint64> gone;
    for (const LayerStateEntry& entry : before.entries) {
        if (!wanted.contains(entry.name.toCaseFolded())) {
            after.entries.push_back(entry);
            continue;
        }
        gone.push_back(entry.handle);
        erase(entry);
    }
    if (gone.empty())
        return tl::make_unexpected(
            Error{tr("图形中没有图层状态“%1”。").arg(names.value(0)), 0, false});
    writeDictionary(after, gone);
    keep(std::move(after));
    return {};
}

Expected<void> LayerStates::rename(const QString& name, const QString& newName)
{
    if (auto ready = readyToWrite(); !ready)
        return ready;
    LayerStateTable table = this->table();
    LayerStateEntry* renamed = nullptr;
    for (LayerStateEntry& entry : table.entries) {
        if (entry.name.compare(name, Qt::CaseInsensitive) == 0)
            renamed = &entry;
        else if (entry.name.compare(newName, Qt::CaseInsensitive) == 0)
            return tl::make_unexpected(
                Error{tr("已有名为“%1”的图层状态。").arg(entry.name), 0, false});
    }
    if (!renamed)
        return tl::make_unexpected(Error{tr("图形中没有图层状态“%1”。").arg(name), 0, false});
    renamed->name = newName;
    writeDictionary(table, {});
    keep(std::move(table));
    return {};
}

void LayerStates::rewrite(const std::function<void(TagList&)>& change)
{
    LayerStateTable changed;
    const LayerStateTable& table = this->table();
    for (size_t i = 0; i < table.entries.size(); ++i) {
        const QByteArray before = bytes(table.entries[i]);
        TagList tags(before);
        change(tags);
        const QByteArray after = tags.bytes();
        if (after == before)
            continue;
        if (changed.entries.empty())
            changed = table;
        store(changed.entries[i], after);
    }
    if (!changed.entries.empty() && !liveInDrawing())
        keep(std::move(changed));
}

} // namespace drawing
