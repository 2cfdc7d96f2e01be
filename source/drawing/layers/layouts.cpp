#include "layouts.h"

#include "handles.h"

#include <algorithm>
#include <map>

namespace drawing {

namespace {

/// What a LAYOUT object says.
struct LayoutRecord
{
    Layout layout;
    qint64 tab = 0;
    quint64 block = 0;    // Of its block record.
    quint64 viewport = 0; // The one last active.
};

LayoutRecord readRecord(const DrawingData& data, const ObjectPlace& object)
{
    LayoutRecord record;
    TagReader tags = data.tags(object.range);
    bool isOwn = false; // What stands before belongs to the plot settings.
    Tag tag;
    while (tags.next(tag) && tag.code < 1000) {
        if (tag.code == 100)
            isOwn = tag.trimmed() == "AcDbLayout";
        if (!isOwn)
            continue;
        if (tag.code == 1)
            record.layout.name = data.codec.decode(tag.text());
        else if (tag.code == 71)
            record.tab = tag.integer();
        else if (tag.code == 330)
            record.block = tag.handle();
        else if (tag.code == 331)
            record.viewport = tag.handle();
    }
    return record;
}

/// Names of the block definitions by the handles of their records.
std::map<quint64, QString> blockNames(const DrawingData& data)
{
    std::map<quint64, QString> names;
    for (const ByteRange& record : data.index.table(TableKind::BlockRecord).records) {
        TagReader tags = data.tags(record);
        Tag tag;
        while (tags.next(tag) && tag.code != 2) {
        }
        if (tag.code == 2)
            names[ownHandle(data.tags(record))] = data.codec.decode(tag.trimmed());
    }
    return names;
}

/// A sheet sees itself through a viewport too: number 1, or one that shows its own place as it is.
bool isSheetsOwn(const DrawingData& data, const Entity& viewport)
{
    constexpr int kCodes[] = {10, 20, 41, 12, 22, 45}; // Place and height, then those of the view.
    std::map<int, double> values;
    TagReader tags = data.tags(viewport.range());
    Tag tag;
    while (tags.next(tag) && tag.code < 1000) {
        if (tag.code == 69 && tag.integer() == 1)
            return true;
        if (std::find(std::begin(kCodes), std::end(kCodes), tag.code) != std::end(kCodes))
            values.emplace(tag.code, tag.real());
    }
    return values.size() == std::size(kCodes) && values[10] == values[12] &&
           values[20] == values[22] && values[41] == values[45];
}

void findViewports(const DrawingData& data, std::vector<LayoutRecord>& records)
{
    for (size_t i = 0; i < data.index.entities.size(); ++i) {
        const Entity& entity = data.index.entities[i];
        if (entity.kind != EntityKind::Viewport || isSheetsOwn(data, entity))
            continue;
        for (LayoutRecord& record : records) {
            std::vector<int>& viewports = record.layout.viewports;
            if (!holds(record.layout, entity))
                continue;
            const bool isLastActive =
                record.viewport != 0 && ownHandle(data.tags(entity.range())) == record.viewport;
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

std::vector<Layout> readLayouts(DrawingData& data)
{
    const std::map<quint64, QString> names = blockNames(data);
    std::vector<LayoutRecord> records;
    for (const ObjectPlace& object : data.index.objects) {
        if (object.kind != ObjectKind::Layout)
            continue;
        LayoutRecord record = readRecord(data, object);
        const auto name = names.find(record.block);
        const QString key = name == names.end() ? QString() : name->second.toCaseFolded();
        if (key.isEmpty() || key == QLatin1String("*model_space"))
            continue;
        record.layout.block = data.blockByName.value(key, -1);
        record.layout.isActive = key == QLatin1String("*paper_space");
        records.push_back(record);
    }
    if (records.empty()) {
        records.emplace_back();
        records.back().layout.isActive = true;
    }
    std::stable_sort(records.begin(), records.end(),
        [](const LayoutRecord& a, const LayoutRecord& b) { return a.tab < b.tab; });
    findViewports(data, records);
    std::vector<Layout> layouts;
    for (LayoutRecord& record : records)
        layouts.push_back(std::move(record.layout));
    return layouts;
}

} // namespace drawing
