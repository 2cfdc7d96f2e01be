#include "layerstates.h"

#include "drawingtexts.h"
#include "handles.h"
#include "layerstatefile.h"
#include "objectedits.h"

#include <QSet>

#include <unordered_set>

namespace drawing {

namespace {

constexpr int kDrawingPlotStyleCode = 1;
constexpr char kStatesKey[] = "ACAD_LAYERSTATES";
constexpr char kExtension[] = "{ACAD_XDICTIONARY";

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
        TagStyle plain;
        plain.spelling = m_data.spelling;
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
    for (const DictionaryEntry& entry : dictionaryEntries(m_data, states)) {
        if (entry.object && entry.object->kind == ObjectKind::XRecord)
            table.entries.push_back({m_data.codec.decode(entry.key), entry.object->handle, {}});
    }
    return table;
}

QByteArray LayerStates::bytes(const LayerStateEntry& entry) const
{
    return entry.handle == 0 ? entry.aside : ObjectEdits(m_data).bytes(entry.handle);
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
    names.linetypes = linetypeNames(m_data);
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
    TagReader tags(record, m_data.spelling);
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

/// Makes the dictionary of states and all that leads to it.
void LayerStates::makeDictionary(LayerStateTable& table)
{
    ObjectEdits objects(m_data);
    quint64 extension = extensionDictionary(m_data.tags(m_data.index.table(TableKind::Layer).head));
    if (!m_data.objectByHandle(extension)) {
        extension = objects.addDictionary(SymbolTables(m_data).tableHandle(TableKind::Layer));
        linkExtension(extension);
    }
    table.dictionary = objects.addDictionary(extension);
    objects.addEntry(extension, kStatesKey, table.dictionary);
}

/// Writes the handle of a new extension dictionary into the head of the layer table.
void LayerStates::linkExtension(quint64 handle)
{
    const TagStyle style = ObjectEdits(m_data).style();
    TagReader tags = m_data.tags(m_data.index.table(TableKind::Layer).head);
    qint64 behind = -1;
    bool inGroup = false;
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 102)
            inGroup = tag.trimmed() == kExtension;
        if (inGroup && tag.code == 360) {
            m_data.journal.replace(tag.valueRange(), style.value(tag.code, handleText(handle)));
            return;
        }
        if (tag.code == 5 || (tag.code == 2 && behind < 0))
            behind = tag.end();
    }
    m_data.journal.insert(
        behind, 1, style.tag(102, kExtension) + style.handle(360, handle) + style.tag(102, "}"));
}

void LayerStates::store(LayerStateEntry& entry, const QByteArray& record)
{
    if (entry.handle == 0)
        entry.aside = record;
    else
        ObjectEdits(m_data).store(entry.handle, record);
}

/// Entries of other objects than states stay where they are.
void LayerStates::writeDictionary(const LayerStateTable& table, const std::vector<quint64>& gone)
{
    if (!liveInDrawing())
        return;
    ObjectEdits objects(m_data);
    TagList tags = m_data.tagList(objects.bytes(table.dictionary));
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
    const TagStyle style = objects.style();
    for (const LayerStateEntry& entry : table.entries)
        bytes +=
            style.tag(3, m_data.codec.encode(entry.name)) + style.handle(reference, entry.handle);
    objects.store(table.dictionary, bytes);
}

Expected<void> LayerStates::readyToWrite() const
{
    table();
    if (m_data.statesFault.isEmpty())
        return {};
    return tl::make_unexpected(
        Error{Texts::tr("此图形的图层状态文件无法读取，为免丢失其中的内容，不能改动图层状态：%1")
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
    ObjectEdits objects(m_data);
    const TagStyle style = objects.style();
    for (const LayerState& state : states) {
        const QByteArray data =
            layerStateTags(state, handles, kDrawingPlotStyleCode, style, m_data.codec);
        const auto known = byName.constFind(state.name.toCaseFolded());
        if (known != byName.constEnd()) {
            LayerStateEntry& entry = table.entries[*known];
            store(entry, withRecordData(m_data.tagList(bytes(entry)), data));
            continue;
        }
        LayerStateEntry entry;
        entry.name = state.name;
        if (liveInDrawing())
            entry.handle = objects.addRecord(table.dictionary, data);
        else
            entry.aside = newRecordHead(style, 0, 0) + data;
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
        if (entry.handle != 0)
            ObjectEdits(m_data).erase(entry.handle);
    }
    if (gone.empty())
        return tl::make_unexpected(
            Error{Texts::tr("图形中没有图层状态“%1”。").arg(names.value(0)), 0, false});
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
                Error{Texts::tr("已有名为“%1”的图层状态。").arg(entry.name), 0, false});
    }
    if (!renamed)
        return tl::make_unexpected(
            Error{Texts::tr("图形中没有图层状态“%1”。").arg(name), 0, false});
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
        TagList tags = m_data.tagList(before);
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
