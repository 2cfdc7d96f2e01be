#include "drawingprivate.h"

#include "drawingloader.h"
#include "drawingtexts.h"
#include "entityedits.h"
#include "filewriter.h"
#include "layeredits.h"
#include "layerstatefile.h"
#include "layerstates.h"
#include "linetypetable.h"
#include "references.h"
#include "symboltables.h"

#include <QDir>
#include <QFileInfo>

namespace drawing {

namespace {

QString statesPathOf(const QString& drawingPath)
{
    const QFileInfo info(drawingPath);
    return info.dir().filePath(info.completeBaseName() + QStringLiteral(".las"));
}

} // namespace

DrawingData& DrawingAccess::data(Drawing& drawing)
{
    return drawing.d->data;
}

Expected<void> Drawing::Private::map(const QString& fileName)
{
    const auto refusal = [&fileName](const QString& cause) {
        return tl::make_unexpected(
            Error{Texts::tr("无法打开文件“%1”：%2。").arg(fileName, cause), 0, false});
    };
    const QFileInfo info(fileName);
    if (!info.exists())
        return refusal(Texts::tr("文件不存在"));
    if (!info.isFile())
        return refusal(info.isDir() ? Texts::tr("它是文件夹") : Texts::tr("它不是普通文件"));
    path = fileName;
    data.statesPath = statesPathOf(fileName);
    file.setFileName(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return refusal(info.isReadable() ? file.errorString() : Texts::tr("没有读取权限"));
    if (file.size() == 0)
        return {};
    const uchar* bytes = file.map(0, file.size());
    if (!bytes)
        return refusal(file.errorString());
    data.bytes = {reinterpret_cast<const char*>(bytes), static_cast<size_t>(file.size())};
    return {};
}

/// Formats without objects: the layer states go beside the drawing, when they are others than
/// there.
Expected<void> Drawing::Private::saveStatesAside(const QString& drawingPath)
{
    const LayerStates states(data);
    if (states.liveInDrawing() || !data.statesFault.isEmpty())
        return {};
    const QString target = statesPathOf(drawingPath);
    const std::vector<LayerState> all = states.all();
    if (target == data.statesPath ? savedStates == data.state.layerStates : all.empty())
        return {};
    return writeLayerStateFile(target, all).map([&] {
        data.statesPath = target;
        savedStates = data.state.layerStates;
    });
}

UndoStep Drawing::Private::takeStep()
{
    UndoStep step;
    step.name = stepName;
    step.edits = data.journal.takeChanges();
    step.layers = data.layers.takeChanges();
    step.entities.swap(data.entityChanges);
    step.before = stateBefore;
    step.after = data.state;
    stepIsOpen = false;
    return step;
}

bool Drawing::Private::stepChanged() const
{
    return stepIsOpen && (data.journal.hasChanges() || !(stateBefore == data.state));
}

Drawing::Drawing() : d(std::make_unique<Private>()) {}

Drawing::~Drawing() = default;

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
        return tl::make_unexpected(
            Error{Texts::tr("无法打开文件“%1”：内存不足。").arg(path), 0, false});
    }
    if (owner) {
        drawing->d->file.moveToThread(owner);
        drawing->moveToThread(owner);
    }
    return drawing;
}

Expected<void> Drawing::save(const QString& path, Progress* progress)
{
    const auto refusal = [&path](const QString& cause) {
        return tl::make_unexpected(
            Error{Texts::tr("无法保存文件“%1”：%2。").arg(path, cause), 0, false});
    };
    if (d->stepIsOpen)
        return refusal(Texts::tr("还有未完成的操作"));
    const auto size = static_cast<qint64>(d->data.bytes.size());
    // The bytes that were not edited are still read from it.
    if (d->file.size() != size)
        return refusal(Texts::tr("原文件已被其他程序改写"));
    if (auto aside = d->saveStatesAside(path); !aside)
        return aside;
    auto written = writeFile(d->data.journal, size, path, progress);
    if (!written)
        return written;
    d->path = path;
    d->steps.setClean();
    announce(false, false);
    return {};
}

QString Drawing::path() const
{
    return d->path;
}

QStringList Drawing::openingNotices() const
{
    return d->data.openingNotices;
}

bool Drawing::isModified() const
{
    return d->stepChanged() || !d->steps.isClean();
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
    return d->data.state.current;
}

const std::vector<Entity>& Drawing::entities() const
{
    return d->data.index.entities;
}

const std::vector<Block>& Drawing::blocks() const
{
    return d->data.index.blocks;
}

const Block* Drawing::findBlock(const QString& name) const
{
    const int at = d->data.blockByName.value(name.toCaseFolded(), -1);
    return at < 0 ? nullptr : &blocks()[static_cast<size_t>(at)];
}

TagReader Drawing::tags(const Entity& entity) const
{
    return d->data.tags(entity.range());
}

QString Drawing::decoded(std::string_view value) const
{
    return d->data.codec.decode(value);
}

const TextCodec& Drawing::codec() const
{
    return d->data.codec;
}

Expected<void> Drawing::readyToEdit() const
{
    if (d->stepIsOpen)
        return {};
    return tl::make_unexpected(Error{Texts::tr("图形没有打开的操作步骤，不能改动。"), 0, false});
}

Expected<void> Drawing::setLayerProperties(LayerId id, const LayerProperties& properties)
{
    return readyToEdit().and_then(
        [&] { return LayerEdits(d->data).setProperties(id, properties); });
}

Expected<LayerId> Drawing::addLayer(const LayerProperties& properties)
{
    return readyToEdit().and_then([&] { return LayerEdits(d->data).add(properties); });
}

Expected<void> Drawing::removeLayer(LayerId id)
{
    return readyToEdit().and_then([&] { return LayerEdits(d->data).remove(id); });
}

Expected<void> Drawing::setCurrentLayer(LayerId id)
{
    return readyToEdit().and_then([&] { return LayerEdits(d->data).setCurrent(id); });
}

std::vector<LayerState> Drawing::layerStates() const
{
    return LayerStates(d->data).all();
}

QStringList Drawing::linetypes() const
{
    return LinetypeTable(d->data).names();
}

LinetypePointer Drawing::linetype(const QString& name) const
{
    return LinetypeTable(d->data).find(name);
}

Expected<void> Drawing::addLinetype(const LinetypeDefinition& definition)
{
    return readyToEdit().map([&] { LinetypeTable(d->data).add(definition); });
}

QStringList Drawing::layerStateNames() const
{
    return LayerStates(d->data).names();
}

std::optional<LayerState> Drawing::layerState(const QString& name) const
{
    return LayerStates(d->data).find(name);
}

QString Drawing::layerStatesPath() const
{
    return LayerStates(d->data).liveInDrawing() ? QString() : d->data.statesPath;
}

bool Drawing::hasNamedPlotStyles() const
{
    return !d->data.plotStylesByColor;
}

bool Drawing::isModelSpace() const
{
    return d->data.state.modelSpace;
}

const std::vector<Layout>& Drawing::layouts() const
{
    return d->data.layouts;
}

int Drawing::shownLayout() const
{
    return d->data.state.layout;
}

bool Drawing::isShown(const Entity& entity) const
{
    const bool isModel = entity.block < 0 && !entity.paperSpace;
    return isModelSpace() ? isModel : holds(layouts()[static_cast<size_t>(shownLayout())], entity);
}

Expected<void> Drawing::checkViewport() const
{
    return ViewportLayers(d->data).check();
}

std::vector<LayerId> Drawing::frozenInViewport() const
{
    return ViewportLayers(d->data).frozen();
}

Expected<void> Drawing::putLayerStates(const std::vector<LayerState>& states)
{
    return readyToEdit().and_then([&] { return LayerStates(d->data).put(states); });
}

Expected<void> Drawing::removeLayerStates(const QStringList& names)
{
    return readyToEdit().and_then([&] { return LayerStates(d->data).remove(names); });
}

Expected<void> Drawing::renameLayerState(const QString& name, const QString& newName)
{
    return readyToEdit().and_then([&] { return LayerStates(d->data).rename(name, newName); });
}

Expected<void> Drawing::setModelSpace(bool modelSpace)
{
    return readyToEdit().map([&] {
        if (d->data.state.modelSpace == modelSpace)
            return;
        d->data.state.modelSpace = modelSpace;
        SymbolTables(d->data).writeTileMode();
    });
}

Expected<void> Drawing::showLayout(int layout)
{
    return setModelSpace(false).map([&] { d->data.state.layout = layout; });
}

Expected<void> Drawing::setFrozenInViewport(const std::vector<LayerId>& layers)
{
    return readyToEdit().and_then([&] { return ViewportLayers(d->data).setFrozen(layers); });
}

Expected<std::vector<LayerId>> Drawing::overrideInViewport(
    const std::vector<LayerInViewport>& layers, int properties)
{
    return readyToEdit().and_then(
        [&] { return ViewportLayers(d->data).override(layers, properties); });
}

Expected<int> Drawing::moveEntities(const std::vector<int>& entities, LayerId target)
{
    return readyToEdit().and_then([&] { return EntityEdits(d->data).move(entities, target); });
}

Expected<void> Drawing::mergeLayers(const std::vector<LayerId>& sources, LayerId target)
{
    return readyToEdit().and_then([&] { return EntityEdits(d->data).merge(sources, target); });
}

Expected<void> Drawing::deleteLayers(const std::vector<LayerId>& layers)
{
    return readyToEdit().and_then([&] { return EntityEdits(d->data).removeLayers(layers); });
}

bool Drawing::isReferencedInBlocks(const std::vector<LayerId>& layers) const
{
    return EntityEdits(d->data).isReferencedInBlocks(layers);
}

int Drawing::countBlockReferences(const std::vector<LayerId>& layers) const
{
    return EntityEdits(d->data).countBlockReferences(layers);
}

QByteArray Drawing::version() const
{
    const std::string_view value = d->data.index.variable(HeaderVariable::Version).trimmed();
    return QByteArray(value.data(), static_cast<int>(value.size()));
}

bool Drawing::isBinary() const
{
    return false;
}

ByteRange Drawing::recordRange(LayerId id) const
{
    if (!d->data.layers.isValid(id))
        return {};
    const LayerEntry& entry = d->data.layers.entry(id);
    const bool isInFile = entry.hasRecord && entry.place.order == EditPlace::kReplacement;
    return isInFile ? entry.range() : ByteRange();
}

QStringList Drawing::takeNotices()
{
    QStringList notices = d->data.leftOut.sentences();
    d->data.leftOut = {};
    return notices;
}

void Drawing::beginStep(const QString& name)
{
    Q_ASSERT(!d->stepIsOpen);
    d->stepName = name;
    d->stateBefore = d->data.state;
    d->stepIsOpen = true;
    d->stepIsPublished = false;
}

void Drawing::commitStep()
{
    if (!d->stepIsOpen)
        return;
    updateReferences(d->data);
    UndoStep step = d->takeStep();
    if (step.isEmpty()) {
        announce(d->stepIsPublished, false);
        return;
    }
    const bool entities = !step.entities.empty();
    d->steps.push(std::move(step));
    announce(true, entities);
}

void Drawing::rollbackStep()
{
    if (!d->stepIsOpen)
        return;
    const UndoStep step = d->takeStep();
    step.apply(d->data, false);
    announce(d->stepIsPublished || !step.isEmpty(), !step.entities.empty());
}

void Drawing::publishStep()
{
    if (!d->stepChanged())
        return;
    d->stepIsPublished = true;
    announce(true, !d->data.entityChanges.empty());
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
    const UndoStep* step = d->steps.undoStep();
    step->apply(d->data, false);
    d->steps.stepBack();
    announce(true, !step->entities.empty());
}

void Drawing::redo()
{
    if (!canRedo())
        return;
    const UndoStep* step = d->steps.redoStep();
    step->apply(d->data, true);
    d->steps.stepForward();
    announce(true, !step->entities.empty());
}

void Drawing::announce(bool layers, bool entities)
{
    if (layers)
        emit layersChanged();
    if (entities)
        emit entitiesChanged();
    if (isModified() == d->wasModified)
        return;
    d->wasModified = !d->wasModified;
    emit modifiedChanged(d->wasModified);
}

} // namespace drawing
