#include "drawingprivate.h"
#include "geometry/sheetreader.h"

#include "drawingloader.h"
#include "file/drawingtexts.h"
#include "file/filewriter.h"
#include "geometry/geometry.h"
#include "layers/colorindex.h"
#include "states/statelayers.h"
#include "translation/translationparts.h"

#include <QDir>
#include <QFileInfo>

namespace drawing {

namespace {

QString statesPathOf(const QString& drawingPath)
{
    const QFileInfo info(drawingPath);
    return info.dir().filePath(info.completeBaseName() + QStringLiteral(".las"));
}

bool isSameFile(const QString& path, const QString& other)
{
    return path == other || (QFileInfo::exists(path) && QFileInfo(path) == QFileInfo(other));
}

StateSource stateSource(const Drawing& drawing)
{
    const DrawingData& data = DrawingAccess::data(drawing);
    return {data.layers, data.layouts, data.viewports};
}

} // namespace

DrawingData& DrawingAccess::data(Drawing& drawing)
{
    emit drawing.aboutToChange();
    return drawing.d->data;
}

const DrawingData& DrawingAccess::data(const Drawing& drawing)
{
    return drawing.d->data;
}

Expected<void> Drawing::Private::map(const QString& fileName)
{
    const auto refused = [&fileName](const QString& cause) {
        return refusal(Texts::tr("无法打开文件“%1”：%2。").arg(fileName, cause));
    };
    const QFileInfo info(fileName);
    if (!info.exists())
        return refused(Texts::tr("文件不存在"));
    if (!info.isFile())
        return refused(info.isDir() ? Texts::tr("它是文件夹") : Texts::tr("它不是普通文件"));
    path = fileName;
    data.layerStates.setPath(statesPathOf(fileName));
    file.setFileName(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return refused(info.isReadable() ? file.errorString() : Texts::tr("没有读取权限"));
    if (file.size() == 0)
        return {};
    const uchar* bytes = file.map(0, file.size());
    if (!bytes)
        return refused(file.errorString());
    data.file.setBytes({reinterpret_cast<const char*>(bytes), static_cast<size_t>(file.size())});
    return {};
}

Drawing::Drawing() : d(std::make_unique<Private>()) {}

Drawing::~Drawing()
{
    emit aboutToChange();
}

Expected<std::unique_ptr<Drawing>> Drawing::open(
    const QString& path, Progress* progress, QThread* owner, const OpenOptions& options)
{
    std::unique_ptr<Drawing> drawing(new Drawing);
    if (const auto mapped = drawing->d->map(path); !mapped)
        return tl::make_unexpected(mapped.error());
    try {
        if (const auto loaded = loadDrawing(drawing->d->data, path, options, progress); !loaded)
            return tl::make_unexpected(loaded.error());
    } catch (const std::bad_alloc&) {
        return refusal(Texts::tr("无法打开文件“%1”：内存不足。").arg(path));
    }
    drawing->d->isIncomplete = !drawing->d->data.wholePart.isNull();
    if (owner) {
        drawing->d->file.moveToThread(owner);
        drawing->moveToThread(owner);
    }
    return drawing;
}

Expected<void> Drawing::save(const QString& path, Progress* progress)
{
    const auto refused = [&path](const QString& cause) {
        return refusal(Texts::tr("无法保存文件“%1”：%2。").arg(path, cause));
    };
    if (d->stepIsOpen)
        return refused(Texts::tr("还有未完成的操作"));
    if (d->isIncomplete && isSameFile(path, d->path))
        return refused(Texts::tr("图形不完整，不能覆盖原文件，请另存为其他文件"));
    const auto size = static_cast<qint64>(d->data.file.bytes().size());
    // Saving still reads the unedited bytes from the original file, so it must be unchanged.
    if (d->data.wholePart.isNull() && d->file.size() != size)
        return refused(Texts::tr("原文件已被其他程序改写"));
    if (auto beside = d->data.layerStates.saveBeside(statesPathOf(path)); !beside)
        return beside;
    auto written = writeFile(d->data.file.journal(), size, path, progress);
    if (!written)
        return written;
    d->path = path;
    d->isIncomplete = false;
    d->steps.setClean();
    announce(false, {});
    return {};
}

QString Drawing::path() const
{
    return d->path;
}

bool Drawing::isIncomplete() const
{
    return d->isIncomplete;
}

QStringList Drawing::openingNotices() const
{
    return d->data.openingNotices;
}

bool Drawing::isModified() const
{
    return (d->stepIsOpen && d->data.hasChanges()) || !d->steps.isClean();
}

const std::vector<Layer>& Drawing::layers() const
{
    return d->data.layers.listed();
}

const Layer* Drawing::layer(LayerId id) const
{
    return d->data.layers.layer(id);
}

const Layer* Drawing::findLayer(const QString& name) const
{
    return d->data.layers.find(name);
}

LayerId Drawing::currentLayer() const
{
    return d->data.layers.current();
}

const std::vector<Entity>& Drawing::entities() const
{
    return d->data.entities.all();
}

const std::vector<Block>& Drawing::blocks() const
{
    return d->data.entities.blocks();
}

const Block* Drawing::findBlock(const QString& name) const
{
    const int at = d->data.entities.block(name);
    return at < 0 ? nullptr : &blocks()[static_cast<size_t>(at)];
}

GeometrySource Drawing::geometrySource() const
{
    return d->data.geometrySource();
}

TagReader Drawing::tags(const Entity& entity) const
{
    return d->data.file.tags(entity.range());
}

QString Drawing::decoded(std::string_view value) const
{
    return d->data.file.decoded(value);
}

const TextCodec& Drawing::codec() const
{
    return d->data.file.codec();
}

Expected<void> Drawing::readyToEdit() const
{
    if (d->stepIsOpen) {
        emit aboutToChange();
        return {};
    }
    return refusal(Texts::tr("图形没有打开的操作步骤，不能改动。"));
}

Expected<void> Drawing::setLayerProperties(LayerId id, const LayerProperties& properties)
{
    return readyToEdit().and_then([&] { return d->data.layerEdits.setProperties(id, properties); });
}

Expected<LayerId> Drawing::addLayer(const LayerProperties& properties)
{
    return readyToEdit().and_then([&] { return d->data.layerEdits.add(properties); });
}

Expected<void> Drawing::removeLayer(LayerId id)
{
    return readyToEdit().and_then([&] { return d->data.layerEdits.remove(id); });
}

Expected<void> Drawing::setCurrentLayer(LayerId id)
{
    return readyToEdit().and_then([&] { return d->data.layerEdits.setCurrent(id); });
}

std::vector<LayerState> Drawing::layerStates() const
{
    return d->data.layerStates.all();
}

QStringList Drawing::linetypes() const
{
    return d->data.linetypes.names();
}

LinetypePointer Drawing::linetype(const QString& name) const
{
    return d->data.linetypes.find(name);
}

Expected<void> Drawing::addLinetype(const LinetypeDefinition& definition)
{
    return readyToEdit().map([&] { d->data.linetypes.add(definition); });
}

QStringList Drawing::layerStateNames() const
{
    return d->data.layerStates.names();
}

std::optional<LayerState> Drawing::layerState(const QString& name) const
{
    return d->data.layerStates.find(name);
}

QString Drawing::layerStatesPath() const
{
    return d->data.layerStates.path();
}

bool Drawing::hasNamedPlotStyles() const
{
    return !d->data.plotStyles.areByColor();
}

QString Drawing::newPlotStyle(int colorIndex) const
{
    const LayerTable& layers = d->data.layers;
    const int color = isColorIndex(colorIndex) ? colorIndex : LayerProperties().colorIndex;
    return d->data.plotStyles.name(color, layers.entry(layers.zero()).plotStyle);
}

bool Drawing::isModelSpace() const
{
    return d->data.layouts.isModelSpace();
}

const std::vector<Layout>& Drawing::layouts() const
{
    return d->data.layouts.all();
}

int Drawing::shownLayout() const
{
    return d->data.layouts.shownIndex();
}

bool Drawing::isShown(const Entity& entity) const
{
    return d->data.layouts.isShown(entity);
}

std::optional<Sheet> Drawing::sheet() const
{
    if (isModelSpace())
        return std::nullopt;
    return SheetReader(d->data.geometrySource()).read();
}

int Drawing::currentViewport() const
{
    return d->data.layouts.currentViewport(d->data.entities);
}

bool Drawing::setCurrentViewport(int viewport)
{
    emit aboutToChange();
    if (!d->data.layouts.setCurrentViewport(viewport))
        return false;
    emit layersChanged();
    return true;
}

Expected<void> Drawing::checkViewport() const
{
    return d->data.viewports.check();
}

std::vector<LayerId> Drawing::frozenInViewport() const
{
    return d->data.viewports.frozen();
}

std::vector<LayerInViewport> Drawing::overriddenInViewport() const
{
    return d->data.viewports.overridden();
}

std::vector<LayerFilter> Drawing::layerFilters() const
{
    return d->data.filters.read();
}

Expected<quint64> Drawing::addLayerFilter(const LayerFilter& filter)
{
    return readyToEdit().and_then([&] { return d->data.filters.add(filter); });
}

Expected<void> Drawing::changeLayerFilter(const LayerFilter& filter)
{
    return readyToEdit().and_then([&] { return d->data.filters.change(filter); });
}

Expected<void> Drawing::removeLayerFilter(quint64 record)
{
    return readyToEdit().and_then([&] { return d->data.filters.remove(record); });
}

Expected<void> Drawing::putLayerStates(const std::vector<LayerState>& states)
{
    return readyToEdit().and_then([&] { return d->data.layerStates.put(states); });
}

Expected<void> Drawing::removeLayerStates(const QStringList& names)
{
    return readyToEdit().and_then([&] { return d->data.layerStates.remove(names); });
}

Expected<void> Drawing::renameLayerState(const QString& name, const QString& newName)
{
    return readyToEdit().and_then([&] { return d->data.layerStates.rename(name, newName); });
}

Expected<void> Drawing::setModelSpace(bool modelSpace)
{
    return readyToEdit().map([&] { d->data.layouts.showModelSpace(d->data.file, modelSpace); });
}

Expected<void> Drawing::showLayout(int layout)
{
    return readyToEdit().map([&] { d->data.layouts.showLayout(d->data.file, layout); });
}

Expected<void> Drawing::setViewportView(int viewport, const ViewportView& view)
{
    return readyToEdit().and_then([&]() -> Expected<void> {
        const auto at = static_cast<size_t>(viewport);
        const bool isThere = viewport >= 0 && at < entities().size();
        const bool isOne =
            isThere && entities()[at].kind == EntityKind::Viewport && !entities()[at].removed;
        if (!isOne || !writeView(d->data.file, entities()[at], view))
            return refusal(Texts::tr("不能更改此视口中的视图。"));
        return {};
    });
}

Expected<void> Drawing::setFrozenInViewport(const std::vector<LayerId>& layers)
{
    return readyToEdit().and_then([&] { return d->data.viewports.setFrozen(layers); });
}

Expected<std::vector<LayerId>> Drawing::overrideInViewport(
    const std::vector<LayerInViewport>& layers, int properties)
{
    return readyToEdit().and_then([&] { return d->data.viewports.override(layers, properties); });
}

Expected<int> Drawing::moveEntities(const std::vector<int>& entities, LayerId target)
{
    return readyToEdit().and_then([&] { return d->data.moveEntities(entities, target); });
}

Expected<void> Drawing::mergeLayers(const std::vector<LayerId>& sources, LayerId target)
{
    return readyToEdit().and_then([&] { return d->data.mergeLayers(sources, target); });
}

Expected<void> Drawing::deleteLayers(const std::vector<LayerId>& layers)
{
    return readyToEdit().and_then([&] { return d->data.deleteLayers(layers); });
}

bool Drawing::isReferencedInBlocks(const std::vector<LayerId>& layers) const
{
    return d->data.entityEdits.isReferencedInBlocks(layers);
}

int Drawing::countBlockReferences(const std::vector<LayerId>& layers) const
{
    return d->data.entityEdits.countBlockReferences(layers);
}

QByteArray Drawing::version() const
{
    return bytesOf(d->data.file.variable(HeaderVariable::Version).trimmed());
}

bool Drawing::isBinary() const
{
    return drawing::isBinary(d->data.file.spelling());
}

ByteRange Drawing::recordRange(LayerId id) const
{
    if (!d->data.layers.isValid(id))
        return {};
    const LayerEntry& entry = d->data.layers.entry(id);
    return entry.isOfFile() ? entry.range() : ByteRange();
}

QStringList Drawing::takeNotices()
{
    return d->data.leftOut.take();
}

void Drawing::setBreak(const std::function<void()>& rest)
{
    d->data.file.pace().setBreak([this, rest] {
        rest();
        emit aboutToChange(); // For readers that started during the break.
    });
}

void Drawing::beginStep(const QString& name)
{
    Q_ASSERT(!d->stepIsOpen);
    d->stepName = name;
    d->data.begin();
    d->stepIsOpen = true;
    d->stepIsPublished = false;
}

void Drawing::commitStep()
{
    if (!d->stepIsOpen)
        return;
    emit aboutToChange();
    d->data.followLayers();
    UndoStep step{d->stepName, d->data.take()};
    d->stepIsOpen = false;
    if (step.changes.isEmpty()) {
        announce(d->stepIsPublished, {});
        return;
    }
    d->steps.push(std::move(step));
    announce(true, d->steps.undoStep()->changes.entities);
}

void Drawing::rollbackStep()
{
    if (!d->stepIsOpen)
        return;
    emit aboutToChange();
    const DrawingData::Changes changes = d->data.take();
    d->stepIsOpen = false;
    d->data.apply(changes, false);
    announce(d->stepIsPublished || !changes.isEmpty(), changes.entities);
}

void Drawing::publishStep()
{
    if (!d->stepIsOpen || !d->data.hasChanges())
        return;
    d->stepIsPublished = true;
    announce(true, d->data.entities.changes());
}

bool Drawing::inStep() const
{
    return d->stepIsOpen;
}

bool Drawing::canUndo() const
{
    return !d->stepIsOpen && d->steps.undoStep();
}

bool Drawing::canRedo() const
{
    return !d->stepIsOpen && d->steps.redoStep();
}

QString Drawing::undoName() const
{
    return canUndo() ? d->steps.undoStep()->name : QString();
}

QString Drawing::redoName() const
{
    return canRedo() ? d->steps.redoStep()->name : QString();
}

void Drawing::undo()
{
    if (!canUndo())
        return;
    emit aboutToChange();
    const UndoStep* step = d->steps.undoStep();
    d->data.apply(step->changes, false);
    d->steps.stepBack();
    announce(true, step->changes.entities);
}

void Drawing::redo()
{
    if (!canRedo())
        return;
    emit aboutToChange();
    const UndoStep* step = d->steps.redoStep();
    d->data.apply(step->changes, true);
    d->steps.stepForward();
    announce(true, step->changes.entities);
}

void Drawing::announce(bool layers, const std::vector<EntityChange>& entities)
{
    std::vector<int> changed;
    changed.reserve(entities.size());
    for (const EntityChange& change : entities)
        changed.push_back(change.entity);
    if (layers)
        emit layersChanged();
    if (!changed.empty())
        emit entitiesChanged(changed);
    if (isModified() == d->wasModified)
        return;
    d->wasModified = !d->wasModified;
    emit modifiedChanged(d->wasModified);
}

Expected<Geometry> buildGeometry(const Drawing& drawing, Progress* progress)
{
    return buildGeometry(DrawingAccess::data(drawing).geometrySource(), progress);
}

std::shared_ptr<const LinetypePatterns> linetypePatterns(const Drawing& drawing)
{
    return std::make_shared<const LinetypePatterns>(DrawingAccess::data(drawing).linetypes);
}

LayerState captureLayerState(const Drawing& drawing, const QString& name)
{
    return captureLayerState(stateSource(drawing), name);
}

bool isSameAsDrawing(const LayerState& state, const Drawing& drawing)
{
    return isSameAsDrawing(state, stateSource(drawing));
}

QStringList restoreLayerState(
    Drawing& drawing, const LayerState& state, const LayerStateRestore& how)
{
    DrawingData& data = DrawingAccess::data(drawing);
    return restoreLayerState(
        StateTarget{data.layers, data.layouts, data.plotStyles, data.viewports, data.layerEdits},
        state, how);
}

QStringList dropUnknownLayers(LayerState& state, const Drawing& drawing)
{
    return dropUnknownLayers(state, DrawingAccess::data(drawing).layers);
}

Expected<TranslationReport> translateLayers(
    Drawing& drawing, const std::vector<LayerMapping>& mappings, const TranslationOptions& options)
{
    if (!drawing.inStep())
        return refusal(Texts::tr("图形没有打开的操作步骤，不能转换图层。"));
    return translateLayers(DrawingAccess::data(drawing).translationParts(), mappings, options);
}

std::vector<TargetLayer> targetLayers(const Drawing& drawing)
{
    const DrawingData& data = DrawingAccess::data(drawing);
    return targetLayers(data.layers, data.linetypes);
}

std::vector<LayerMapping> sameNamedMappings(const Drawing& drawing,
    const std::vector<TargetLayer>& targets, const std::vector<LayerMapping>& known)
{
    return sameNamedMappings(DrawingAccess::data(drawing).layers, targets, known);
}

} // namespace drawing
