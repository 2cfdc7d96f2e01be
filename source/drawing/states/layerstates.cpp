#include "layerstates.h"

#include "file/drawingtexts.h"
#include "file/groupcode.h"
#include "file/owntags.h"
#include "file/symbolname.h"
#include "layerstatefile.h"

#include <QSet>

#include <unordered_set>

namespace drawing {

namespace {

constexpr int kDrawingPlotStyleCode = 1;
constexpr char kStatesKey[] = "ACAD_LAYERSTATES";

} // namespace

const LayerStateTable& LayerStates::table() const
{
    if (m_state)
        return *m_state;
    if (!m_loaded)
        m_loaded = std::make_shared<const LayerStateTable>(load());
    return *m_loaded;
}

void LayerStates::keep(LayerStateTable table)
{
    m_state = std::make_shared<const LayerStateTable>(std::move(table));
}

LayerStateTable LayerStates::load() const
{
    LayerStateTable table;
    if (!liveInDrawing()) {
        const auto file = readLayerStateFile(m_path, m_file.codec());
        if (!file) {
            m_fault = file.error().text;
            return table;
        }
        TagStyle plain;
        plain.spelling = m_file.spelling();
        for (const LayerState& state : file->states)
            table.entries.push_back({state.name, 0,
                newRecordHead(plain, 0, 0) +
                    layerStateTags(state, {}, kDrawingPlotStyleCode, plain, m_file.codec())});
        return table;
    }
    const Objects& objects = m_file.objects();
    const quint64 extension = extensionOf(m_file.tags(m_file.table(TableKind::Layer).head));
    table.dictionary = objects.entry(extension, kStatesKey);
    if (objects.kind(table.dictionary) != ObjectKind::Dictionary)
        table.dictionary = 0;
    for (const Dictionary::Entry& entry : objects.dictionary(table.dictionary).entries()) {
        if (objects.kind(entry.object) == ObjectKind::XRecord)
            table.entries.push_back({m_file.decoded(viewOf(entry.key)), entry.object, {}});
    }
    return table;
}

Expected<void> LayerStates::saveBeside(const QString& path)
{
    if (liveInDrawing() || !m_fault.isEmpty())
        return {};
    const std::vector<LayerState> all = this->all();
    if (path == m_path ? m_saved == m_state : all.empty())
        return {};
    return writeLayerStateFile(path, all).map([&] {
        m_path = path;
        m_saved = m_state;
    });
}

TagList LayerStates::tags(const LayerStateEntry& entry) const
{
    return entry.handle == 0 ? m_file.tagList(entry.aside) : m_file.objects().tags(entry.handle);
}

LayerState LayerStates::read(const LayerStateEntry& entry) const
{
    const TagList tags = this->tags(entry);
    const RecordData data(tags);
    LayerStateReader reader(m_file.codec(), {&m_layers, &m_linetypes});
    for (int at = data.begin; at < data.end; ++at)
        reader.take(tags.tag(at));
    LayerState state = reader.finish();
    state.name = entry.name;
    return state;
}

QSet<quint64> LayerStates::records() const
{
    QSet<quint64> records;
    for (const LayerStateEntry& entry : table().entries)
        records.insert(entry.handle);
    return records;
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
    std::vector<LayerState> states;
    states.reserve(table().entries.size());
    for (const LayerStateEntry& entry : table().entries)
        states.push_back(read(entry));
    return states;
}

std::optional<LayerState> LayerStates::find(const QString& name) const
{
    for (const LayerStateEntry& entry : table().entries) {
        if (isSameName(entry.name, name))
            return read(entry);
    }
    return {};
}

/// Creates the dictionary of states and everything that leads to it.
void LayerStates::makeDictionary(LayerStateTable& table)
{
    Objects& objects = m_file.objects();
    const quint64 extension = m_file.tables().madeExtension(TableKind::Layer);
    table.dictionary = objects.addDictionary(extension);
    objects.addEntry(extension, kStatesKey, table.dictionary);
}

void LayerStates::store(LayerStateEntry& entry, const QByteArray& record)
{
    if (entry.handle == 0)
        entry.aside = record;
    else
        m_file.objects().store(entry.handle, record);
}

/// Entries of the dictionary that are not states are left where they are.
void LayerStates::writeDictionary(const LayerStateTable& table, const std::vector<quint64>& gone)
{
    if (!liveInDrawing())
        return;
    std::unordered_set<quint64> ours(gone.begin(), gone.end());
    for (const LayerStateEntry& entry : table.entries)
        ours.insert(entry.handle);
    Dictionary dictionary = m_file.objects().dictionary(table.dictionary);
    dictionary.removeIf(
        [&ours](const Dictionary::Entry& entry) { return ours.count(entry.object) != 0; });
    for (const LayerStateEntry& entry : table.entries)
        dictionary.add(m_file.encoded(entry.name), entry.handle);
    m_file.objects().store(table.dictionary, dictionary.tags());
}

Expected<void> LayerStates::readyToWrite() const
{
    table();
    if (m_fault.isEmpty())
        return {};
    return refusal(
        Texts::tr("此图形的图层状态文件无法读取，为免丢失其中的内容，不能改动图层状态：%1")
            .arg(m_fault));
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
        byName.insert(foldedName(table.entries[i].name), i);
    Objects& objects = m_file.objects();
    const LayerStateHandles handles =
        liveInDrawing() ? LayerStateHandles{&m_layers, &m_linetypes} : LayerStateHandles();
    const TagStyle style = objects.style();
    for (const LayerState& state : states) {
        const QByteArray data =
            layerStateTags(state, handles, kDrawingPlotStyleCode, style, m_file.codec());
        const auto known = byName.constFind(foldedName(state.name));
        if (known != byName.constEnd()) {
            LayerStateEntry& entry = table.entries[*known];
            store(entry, withRecordData(tags(entry), data));
            continue;
        }
        LayerStateEntry entry;
        entry.name = state.name;
        if (liveInDrawing())
            entry.handle = objects.addRecord(table.dictionary, data);
        else
            entry.aside = newRecordHead(style, 0, 0) + data;
        byName.insert(foldedName(state.name), table.entries.size());
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
        wanted.insert(foldedName(name));
    const LayerStateTable& before = this->table();
    LayerStateTable after = before;
    after.entries.clear();
    std::vector<quint64> gone;
    for (const LayerStateEntry& entry : before.entries) {
        if (!wanted.contains(foldedName(entry.name))) {
            after.entries.push_back(entry);
            continue;
        }
        gone.push_back(entry.handle);
        if (entry.handle != 0)
            m_file.objects().erase(entry.handle);
    }
    if (gone.empty())
        return refusal(Texts::tr("图形中没有图层状态“%1”。").arg(names.value(0)));
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
        if (isSameName(entry.name, name))
            renamed = &entry;
        else if (isSameName(entry.name, newName))
            return refusal(Texts::tr("已有名为“%1”的图层状态。").arg(entry.name));
    }
    if (!renamed)
        return refusal(Texts::tr("图形中没有图层状态“%1”。").arg(name));
    renamed->name = newName;
    writeDictionary(table, {});
    keep(std::move(table));
    return {};
}

void LayerStates::follow(const LayerReplacements& replacements)
{
    LayerStateTable changed = table();
    bool isChanged = false;
    for (LayerStateEntry& entry : changed.entries) {
        TagList tags = this->tags(entry);
        if (!follow(tags, replacements))
            continue;
        store(entry, tags.bytes());
        isChanged = true;
    }
    if (isChanged && !liveInDrawing())
        keep(std::move(changed));
}

/// Updates the layers in the tags of a state. The tags of a layer begin with its handle or name and
/// end before the next layer's. When the state's current layer was deleted, the layer that it was
/// merged into replaces it, or else layer 0. Returns whether anything changed.
bool LayerStates::follow(TagList& tags, const LayerReplacements& replacements) const
{
    const RecordData data(tags);
    std::vector<int> kept;
    bool isKept = true;
    bool isChanged = false;
    for (int at = 0; at < tags.size(); ++at) {
        const int code = tags.code(at);
        const bool isName = code == kStateLayerName || code == kStateCurrentLayer;
        const QString name =
            data.contains(at) && isName ? m_file.decoded(tags.trimmed(at)) : QString();
        if (!data.contains(at))
            isKept = true;
        else if (code == kStateLayerHandle)
            isKept = !replacements.isRemovedHandle(tags.handle(at));
        else if (code == kStateLayerName)
            isKept = !replacements.isRemoved(name);
        QString successor = replacements.newName(name);
        if (code == kStateCurrentLayer && replacements.isRemoved(name))
            successor = replacements.mergeTarget(name).isNull() ? QStringLiteral("0")
                                                                : replacements.mergeTarget(name);
        if (isKept && !successor.isNull())
            tags.setText(at, m_file.encoded(successor));
        isChanged = isChanged || !isKept || !successor.isNull();
        if (isKept)
            kept.push_back(at);
    }
    tags.keepOnly(kept);
    return isChanged;
}

} // namespace drawing
