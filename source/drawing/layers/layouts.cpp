#include "layouts.h"

#include "entities/entitytable.h"
#include "entities/viewports.h"
#include "file/drawingfile.h"
#include "file/owntags.h"
#include "file/symbolname.h"

#include <algorithm>
#include <map>

namespace drawing {

namespace {

/// The contents of a LAYOUT object.
struct LayoutRecord
{
    Layout layout;
    qint64 tab = 0;
    quint64 block = 0;    // The handle of its block record.
    quint64 viewport = 0; // The viewport that was last active.
};

/// Reads a LAYOUT object. The tags before the layout's own subclass belong to the plot settings.
LayoutRecord readRecord(const DrawingFile& file, const ObjectPlace& object)
{
    constexpr int kLayoutName = 1;
    constexpr int kTab = 71;
    constexpr int kLastViewport = 331;
    LayoutRecord record;
    record.layout.record = object.range;
    OwnTags tags(file.tags(object.range));
    Tag tag;
    while (tags.next(tag)) {
        if (tags.place().subclass() != "AcDbLayout")
            continue;
        if (tag.code == kLayoutName)
            record.layout.name = file.decoded(tag.text());
        else if (tag.code == kTab)
            record.tab = tag.integer();
        else if (tag.code == group::kSoftPointer)
            record.block = tag.handle();
        else if (tag.code == kLastViewport)
            record.viewport = tag.handle();
    }
    return record;
}

/// The names of block definitions by the handles of their block records.
std::map<quint64, QString> blockNames(const DrawingFile& file)
{
    std::map<quint64, QString> names;
    for (const ByteRange& record : file.table(TableKind::BlockRecord).records)
        names[ownHandle(file.tags(record))] =
            file.decoded(findOwn(file.tags(record), group::kName).trimmed());
    return names;
}

void findViewports(
    const DrawingFile& file, const EntityTable& entities, std::vector<LayoutRecord>& records)
{
    for (size_t i = 0; i < entities.size(); ++i) {
        const Entity& entity = entities[i];
        if (entity.kind != EntityKind::Viewport || isSheetsOwn(file.tags(entity.range())))
            continue;
        for (LayoutRecord& record : records) {
            std::vector<int>& viewports = record.layout.viewports;
            if (!holds(record.layout, entity))
                continue;
            const bool isLastActive =
                record.viewport != 0 && ownHandle(file.tags(entity.range())) == record.viewport;
            viewports.insert(
                isLastActive ? viewports.begin() : viewports.end(), static_cast<int>(i));
        }
    }
}

} // namespace

bool holds(const Layout& layout, const Entity& entity)
{
    return entity.block >= 0 ? entity.block == layout.block : entity.paperSpace && layout.isActive;
}

std::vector<Layout> readLayouts(const DrawingFile& file, const EntityTable& entities)
{
    const std::map<quint64, QString> names = blockNames(file);
    std::vector<LayoutRecord> records;
    for (const ObjectPlace& object : file.index().objects) {
        if (object.kind != ObjectKind::Layout)
            continue;
        LayoutRecord record = readRecord(file, object);
        const auto name = names.find(record.block);
        const QString key = name == names.end() ? QString() : foldedName(name->second);
        if (key.isEmpty() || key == QLatin1String("*model_space"))
            continue;
        record.layout.block = entities.block(key);
        record.layout.isActive = key == QLatin1String("*paper_space");
        records.push_back(record);
    }
    if (records.empty()) {
        records.emplace_back();
        records.back().layout.isActive = true;
    }
    std::stable_sort(records.begin(), records.end(),
        [](const LayoutRecord& a, const LayoutRecord& b) { return a.tab < b.tab; });
    findViewports(file, entities, records);
    std::vector<Layout> layouts;
    layouts.reserve(records.size());
    for (LayoutRecord& record : records)
        layouts.push_back(std::move(record.layout));
    return layouts;
}

/// Reads the layouts. The active flag tells which one is shown, if any.
void LayoutTable::load(DrawingFile& file, const EntityTable& entities)
{
    m_layouts = readLayouts(file, entities);
    m_state.modelSpace = file.variable(HeaderVariable::TileMode).printed() != "0";
    const auto active = std::find_if(
        m_layouts.begin(), m_layouts.end(), [](const Layout& layout) { return layout.isActive; });
    if (active != m_layouts.end())
        m_state.layout = static_cast<int>(active - m_layouts.begin());
}

bool LayoutTable::isShown(const Entity& entity) const
{
    const bool isModel = entity.block < 0 && !entity.paperSpace;
    return isModelSpace() ? isModel : holds(shown(), entity);
}

int LayoutTable::currentViewport(const EntityTable& entities) const
{
    if (isModelSpace())
        return -1;
    const std::vector<int>& viewports = shown().viewports;
    const auto found = std::find_if(viewports.begin(), viewports.end(),
        [&](int viewport) { return !entities[static_cast<size_t>(viewport)].removed; });
    return found == viewports.end() ? -1 : *found;
}

bool LayoutTable::setCurrentViewport(int viewport)
{
    std::vector<int>& viewports = m_layouts[static_cast<size_t>(m_state.layout)].viewports;
    const auto found = std::find(viewports.begin(), viewports.end(), viewport);
    if (isModelSpace() || found == viewports.end())
        return false;
    std::rotate(viewports.begin(), found, found + 1);
    return true;
}

void LayoutTable::showModelSpace(DrawingFile& file, bool modelSpace)
{
    if (m_state.modelSpace == modelSpace)
        return;
    m_state.modelSpace = modelSpace;
    file.writeVariable(HeaderVariable::TileMode, qint64(modelSpace ? 1 : 0));
}

void LayoutTable::showLayout(DrawingFile& file, int layout)
{
    showModelSpace(file, false);
    m_state.layout = layout;
}

} // namespace drawing
