#include "drawingedits.h"
#include "file/tagreader.h"
#include "fuzzing.h"
#include "geometry/geometry.h"

#include <QFile>

#include <algorithm>
#include <set>

using namespace drawing;
using fuzz::require;

namespace {

constexpr int kMostEdits = 4;

/// An entity as its file contains it.
struct Snapshot
{
    EntityKind kind;
    /// The id of the layer, because a damaged file may have several layers of one name.
    LayerId id;
    QString layer;
    QByteArray bytes;
};

std::vector<Snapshot> snapshots(const Drawing& drawing, const QByteArray& file)
{
    std::vector<Snapshot> all;
    for (const Entity& entity : drawing.entities()) {
        const Layer* const layer = drawing.layer(entity.layer);
        all.push_back({entity.kind, entity.layer, layer ? layer->properties.name : QString(),
            file.mid(static_cast<int>(entity.begin), static_cast<int>(entity.end - entity.begin))});
    }
    return all;
}

/// The range of the layer tables, the number of their records, and the names in them.
struct LayerTables
{
    qint64 begin = -1;
    qint64 end = -1;
    int records = 0;
    std::vector<std::string_view> names;
};

/// Whether a table ends here. A table that is not closed ends at the next table or at the end of
/// its section or file.
bool endsTable(std::string_view kind)
{
    constexpr std::string_view kEnds[] = {"ENDTAB", "TABLE", "ENDSEC", "SECTION", "EOF"};
    return std::find(std::begin(kEnds), std::end(kEnds), kind) != std::end(kEnds);
}

LayerTables findLayerTables(const QByteArray& file)
{
    LayerTables found;
    const FileForm form = FileForm::of(viewOf(file));
    TagReader reader(
        viewOf(file).substr(form.begin), static_cast<qint64>(form.begin), form.spelling);
    Tag tag, last;
    std::string_view section;
    bool isInside = false, isLayer = false;
    for (; reader.next(tag); last = tag) {
        if (last.code == 0 && last.trimmed() == "EOF")
            break; // What follows does not belong to the drawing.
        const std::string_view opened =
            tag.code == 2 && last.code == 0 ? last.trimmed() : std::string_view();
        if (opened == "SECTION")
            section = tag.trimmed();
        if (opened == "TABLE" && tag.trimmed() == "LAYER" && section == "TABLES") {
            isInside = true;
            found.begin = found.begin < 0 ? last.begin() : found.begin;
        }
        if (!isInside)
            continue;
        found.end = tag.end();
        if (tag.code == 0)
            isLayer = tag.trimmed() == "LAYER";
        if (tag.code == 0 && isLayer) {
            ++found.records;
            found.names.emplace_back();
        }
        if (tag.code == 2 && isLayer)
            found.names.back() = tag.text(); // The last of several names counts.
        isInside = tag.code != 0 || !endsTable(tag.trimmed());
    }
    return found;
}

void requireOnlyLayersDiffer(const QByteArray& before, const QByteArray& after)
{
    const LayerTables old = findLayerTables(before);
    const LayerTables now = findLayerTables(after);
    if (old.begin < 0 || old.records != now.records)
        return; // The edited layer had no record and got one, with a handle from the header.
    require(before.left(static_cast<int>(old.begin)) == after.left(static_cast<int>(now.begin)) &&
                before.mid(static_cast<int>(old.end)) == after.mid(static_cast<int>(now.end)),
        "a layer's flag changes nothing outside the layer table");
}

/// Whether something was removed, so that handles anywhere may have been cleared.
bool hasRemovals(const Drawing& drawing, const std::vector<Layer>& layersBefore)
{
    const auto& entities = drawing.entities();
    return std::any_of(entities.begin(), entities.end(),
               [](const Entity& entity) { return entity.removed; }) ||
           std::any_of(layersBefore.begin(), layersBefore.end(),
               [&](const Layer& layer) { return !drawing.layer(layer.id); });
}

/// Checks that entities which stayed on their layer and refer to none are unchanged, byte for byte.
void requireEntitiesKept(const Drawing& drawing, const std::vector<Snapshot>& before,
    const std::vector<Snapshot>& after, bool areHandlesCleared)
{
    std::size_t at = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const Entity& entity = drawing.entities()[i];
        if (entity.removed)
            continue;
        require(at < after.size(), "no entity is lost");
        const Snapshot& now = after[at++];
        const Layer* const layer = drawing.layer(entity.layer);
        require(now.kind == before[i].kind, "entities keep their kind and order");
        require(!layer || now.layer.compare(layer->properties.name, Qt::CaseInsensitive) == 0,
            "entities are saved on the layer they are on");
        const bool mayFollow = areHandlesCleared || now.kind == EntityKind::Viewport ||
                               before[i].bytes.contains("1003") ||
                               before[i].bytes.contains("\xeb\x03"); // Code 1003 in a binary file.
        const bool isMoved = entity.layer != before[i].id || now.layer != before[i].layer;
        require(mayFollow || isMoved || now.bytes == before[i].bytes,
            "an entity that was not edited keeps its bytes");
    }
    require(at == after.size(), "no entity comes from nowhere");
}

using Names = std::set<QString>;

/// The layers without records. They appear and disappear together with the references to them.
Names impliedLayers(const Drawing& drawing, const LayerTables& tables)
{
    Names names;
    for (const Layer& layer : drawing.layers())
        names.insert(layer.properties.name.toCaseFolded());
    for (const std::string_view name : tables.names)
        names.erase(drawing.decoded(trimmedView(name)).toCaseFolded());
    return names;
}

/// The names and flags of all other layers. A file may contain a name twice.
std::multiset<std::pair<QString, int>> layersOf(const Drawing& drawing, const Names& leftOut)
{
    std::multiset<std::pair<QString, int>> all;
    for (const Layer& layer : drawing.layers()) {
        const LayerProperties& properties = layer.properties;
        const QString name = properties.name.toCaseFolded();
        if (leftOut.count(name) == 0)
            all.emplace(name, properties.off + 2 * properties.frozen + 4 * properties.locked);
    }
    return all;
}

QByteArray saved(Drawing& drawing)
{
    const QString path = fuzz::scratchFolder() + QStringLiteral("/out.dxf");
    require(drawing.save(path).has_value(), "a drawing that was opened can be saved");
    return fuzz::readFile(path);
}

/// The largest reach of the edits in a step.
fuzz::EditReach editInStep(Drawing& drawing, FuzzedDataProvider& bytes)
{
    fuzz::EditReach reach = fuzz::EditReach::Nothing;
    drawing.beginStep(QStringLiteral("step"));
    for (int i = bytes.ConsumeIntegralInRange(1, kMostEdits); i > 0; --i)
        reach = std::max(reach, fuzz::editDrawing(drawing, bytes));
    if (bytes.ConsumeBool()) {
        drawing.commitStep();
        return reach;
    }
    drawing.rollbackStep();
    return fuzz::EditReach::Nothing;
}

/// Opens the intact part of a truncated file. It can be shown and saved, but not over the file
/// itself.
void openWholePart(const QString& path, const QByteArray& file)
{
    const auto part = Drawing::open(path, nullptr, nullptr, {{}, true});
    require(part.has_value(), "what is whole can be opened");
    require(buildGeometry(**part).has_value(), "what is whole can be shown");
    require(!(*part)->save(path).has_value() && fuzz::readFile(path) == file,
        "a file that is cut off is not saved over");
    saved(**part);
    require(Drawing::open((*part)->path()).has_value(), "what is whole is a drawing when saved");
}

} // namespace

/// Opens, shows, edits, saves and opens again a drawing of arbitrary bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QFile::remove(fuzz::scratchFolder() + QStringLiteral("/out.las"));
    const QString path = fuzz::writeScratch("in.dxf", file);
    const auto opened = Drawing::open(path);
    if (!opened) {
        require(opened.error().text.contains(path), "a refusal names the file");
        if (opened.error().hasWholePart)
            openWholePart(path, file);
        return 0;
    }
    Drawing& drawing = **opened;
    require(buildGeometry(drawing).has_value(), "every drawing can be shown");

    // Integers are taken from the end of the bytes, which is usually behind the end of the drawing.
    FuzzedDataProvider bytes(data, size);
    const std::vector<Snapshot> before = snapshots(drawing, file);
    const Names implied = impliedLayers(drawing, findLayerTables(file));
    const std::vector<Layer> layersBefore = drawing.layers();
    const fuzz::EditReach reach = editInStep(drawing, bytes);
    const QByteArray result = saved(drawing);
    if (reach == fuzz::EditReach::Nothing)
        require(result == file, "what is not edited comes out the same");
    if (reach == fuzz::EditReach::LayerRecord)
        requireOnlyLayersDiffer(file, result);

    const auto again = Drawing::open(drawing.path());
    require(again.has_value(), "what was saved can be opened");
    requireEntitiesKept(
        drawing, before, snapshots(**again, result), hasRemovals(drawing, layersBefore));
    require(layersOf(drawing, implied) == layersOf(**again, implied),
        "layers and their flags are kept");

    while (drawing.canUndo())
        drawing.undo();
    require(saved(drawing) == file, "undone edits leave no trace");
    return 0;
}
