#pragma once

#include "entities/entities.h"
#include "file/error.h"
#include "file/openoptions.h"
#include "file/progress.h"
#include "file/tagreader.h"
#include "file/textcodec.h"
#include "geometry/sheet.h"
#include "layers/layer.h"
#include "layers/layerfilter.h"
#include "layers/layouts.h"
#include "layers/linetypedefinition.h"
#include "layers/viewportlayers.h"
#include "layers/viewportview.h"
#include "states/layerstate.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace drawing {

struct EntityChange;
class LinetypePatterns;
struct Geometry;
struct GeometrySource;
struct LayerMapping;
struct TargetLayer;
struct TranslationOptions;
struct TranslationReport;

/// A drawing that is stored in a DXF file: its layers, its entities and the edits made to it.
///
/// The file's bytes are mapped and never changed. An edit replaces a byte range in a journal, and
/// saving writes the original bytes with the replacements in their places, so whatever was not
/// edited is written byte for byte. Every edit belongs to a step, and a step is the unit of undo.
class Drawing : public QObject
{
    Q_OBJECT

public:
    /// Maps and indexes the file `path`. Refuses a file that is not a readable DXF file; the error
    /// names the line and the cause. May run on a worker thread; the returned object is then moved
    /// to the thread `owner`.
    static Expected<std::unique_ptr<Drawing>> open(const QString& path,
        Progress* progress = nullptr, QThread* owner = nullptr, const OpenOptions& options = {});
    ~Drawing() override;

    /// Writes the drawing to a temporary file, which replaces `path` only when it is complete.
    /// After success the drawing belongs to `path` and is unmodified; after a failure nothing has
    /// changed. May run on a worker thread as long as nobody edits the drawing. Refuses while a
    /// step is open.
    Expected<void> save(const QString& path, Progress* progress = nullptr);

    QString path() const;
    /// The version that the file declares, such as "AC1009"; empty when it declares none.
    QByteArray version() const;
    /// Whether the file is a binary DXF file, which has no lines.
    bool isBinary() const;
    /// The byte range of a layer's record in the original file; null for a layer that has no record
    /// there.
    ByteRange recordRange(LayerId id) const;
    /// One sentence for each thing that had to be guessed when the file was read.
    QStringList openingNotices() const;
    /// Whether only the intact part of a truncated file was opened. Saving resets this.
    bool isIncomplete() const;
    /// Whether the drawing differs from its file.
    bool isModified() const;

    /// The layers that exist: first those of the file in file order; then those that only entities
    /// name, which get a record with their first edit; then the added ones. The reference is valid
    /// until the next call after an edit.
    const std::vector<Layer>& layers() const;
    /// The layer with this id, or null when it does not exist (any more). The pointer stays valid
    /// while the drawing is open.
    const Layer* layer(LayerId id) const;
    /// Ignores letter case; null when there is none.
    const Layer* findLayer(const QString& name) const;
    LayerId currentLayer() const;

    /// The layer states: first those of the file in file order, then the new ones.
    std::vector<LayerState> layerStates() const;
    QStringList layerStateNames() const;
    /// The layer state of this name, ignoring letter case.
    std::optional<LayerState> layerState(const QString& name) const;
    /// The path of the file beside the drawing that holds its layer states. It is empty when the
    /// drawing itself holds them.
    QString layerStatesPath() const;
    /// The names of the linetypes without ByLayer and ByBlock: first those of the file in file
    /// order, then the added ones.
    QStringList linetypes() const;
    /// The definition of the linetype of this name, ignoring letter case; null when the drawing has
    /// none of that name.
    LinetypePointer linetype(const QString& name) const;
    /// Whether layers have named plot styles. Otherwise the plot style follows from the layer's
    /// colour.
    bool hasNamedPlotStyles() const;
    /// The plot style that a layer added with this colour index will have; with an index that no
    /// layer can have, one with the usual colour.
    QString newPlotStyle(int colorIndex) const;
    /// Whether model space is shown; false while a layout is shown.
    bool isModelSpace() const;
    /// The layouts in the order of their tabs. There is at least one.
    const std::vector<Layout>& layouts() const;
    /// The index of the layout that is shown or, in model space, was shown last. At first it is the
    /// layout that the file has as its active one.
    int shownLayout() const;
    /// Whether an entity belongs to the model space or layout that is shown. Entities in block
    /// definitions do not, except in the blocks of layouts.
    bool isShown(const Entity& entity) const;
    /// The sheet of the layout that is shown and its viewports; empty in model space.
    std::optional<Sheet> sheet() const;
    /// The index of the entity that is the current viewport; -1 when there is none.
    int currentViewport() const;
    /// Makes a viewport of the shown layout the current one. Returns false when `viewport` is not
    /// one of them. This is not an edit: it is remembered only while the drawing is open.
    bool setCurrentViewport(int viewport);
    /// Checks that a layout with a viewport is shown, so that layers can be overridden in the
    /// current viewport; refuses otherwise. The current viewport is the one set by
    /// `setCurrentViewport`, else the one that the file records as last active, else the first.
    Expected<void> checkViewport() const;
    /// The layers that are frozen in the current viewport, in ascending order; empty in model
    /// space.
    std::vector<LayerId> frozenInViewport() const;

    /// The layers that have overrides in the current viewport, in ascending order of their ids.
    std::vector<LayerInViewport> overriddenInViewport() const;
    /// The layer filters saved in the drawing, in the drawing's order. Nested filters follow their
    /// parent.
    std::vector<LayerFilter> layerFilters() const;

    /// All entities, those of the block definitions and those of the ENTITIES section, in file
    /// order. A deleted entity keeps its place and is marked as removed.
    const std::vector<Entity>& entities() const;
    const std::vector<Block>& blocks() const;
    /// Ignores letter case; null when there is none.
    const Block* findBlock(const QString& name) const;
    /// Everything that a picture of the drawing is made from. Valid until the drawing changes.
    GeometrySource geometrySource() const;
    /// The tags of an entity as they are in the original file. Valid while the drawing is open.
    TagReader tags(const Entity& entity) const;
    /// Converts a value from the file's code page to text and resolves its escapes.
    QString decoded(std::string_view value) const;
    const TextCodec& codec() const; ///< The codec of the file's text.

    // Edits. Each needs an open step, and a refused edit changes nothing.

    /// Changes those properties of a layer that differ, including its name; references to a renamed
    /// layer are updated at the end of the step. Refuses a name that is empty, longer than 255
    /// characters, already in use or contains one of \ < > / " : ; ? * | , = `; renaming layer 0 or
    /// a layer that depends on an external reference; a linetype that the drawing does not have;
    /// and values outside their ranges. Properties that the file's version cannot store stay as
    /// they were (see `takeNotices`). The plot style changes only when the drawing has named plot
    /// styles and one of that name.
    Expected<void> setLayerProperties(LayerId id, const LayerProperties& properties);
    /// Refuses what `setLayerProperties` refuses.
    Expected<LayerId> addLayer(const LayerProperties& properties);
    /// Deletes a layer. Refuses layer 0, the current layer and layers that hold entities. Remaining
    /// references to the layer (block heads, layer states, frozen layers of viewports) are removed.
    Expected<void> removeLayer(LayerId id);
    Expected<void> setCurrentLayer(LayerId id);
    /// Puts entities, given by their indices, on a layer and returns how many of them came from
    /// another layer. Subentities (vertices, attributes, end marks) move along when they were on
    /// their entity's layer and stay where they are otherwise. The index of a subentity stands for
    /// the whole entity. Refuses a target that depends on an external reference.
    Expected<int> moveEntities(const std::vector<int>& entities, LayerId target);
    /// Moves everything on the source layers, including the contents of layouts and blocks, to the
    /// target and deletes the sources. References to a source then name the target; layer states
    /// and viewports drop the sources. Refuses layer 0, the current layer, layers that depend on an
    /// external reference and the target itself as sources, and a target that depends on an
    /// external reference.
    Expected<void> mergeLayers(const std::vector<LayerId>& sources, LayerId target);
    /// Deletes layers together with their entities in model space, layouts and blocks, and
    /// everything that refers to either. When an entity stays but subentities of it are on a
    /// deleted layer, its attributes are deleted, and its vertices and end marks move to the
    /// entity's layer. A sheet's own viewport moves to layer 0. Refuses layer 0, the current layer
    /// and layers that depend on an external reference.
    Expected<void> deleteLayers(const std::vector<LayerId>& layers);
    /// Adds a linetype with the text styles and shape files that it needs. A linetype of the same
    /// name stays as it is. When the format cannot hold a linetype's letters and shapes, only its
    /// dashes are added (see `takeNotices`).
    Expected<void> addLinetype(const LinetypeDefinition& definition);
    /// Whether anything inside a block definition is on one of these layers. Layouts do not count.
    bool isReferencedInBlocks(const std::vector<LayerId>& layers) const;
    /// The number of block references whose definition has something on one of these layers.
    int countBlockReferences(const std::vector<LayerId>& layers) const;
    /// Adds layer states; they replace those whose names differ at most in letter case. Whether the
    /// states fit the drawing's layers is not checked.
    Expected<void> putLayerStates(const std::vector<LayerState>& states);
    /// Removes the layer states of these names. Refuses when the drawing has none of them.
    Expected<void> removeLayerStates(const QStringList& names);
    /// Renames a layer state. Refuses a name that is in use.
    Expected<void> renameLayerState(const QString& name, const QString& newName);
    Expected<void> setModelSpace(bool modelSpace);
    /// Shows the layout with this index. The file keeps that a layout is shown, but not which one.
    Expected<void> showLayout(int layout);
    /// Has a viewport look elsewhere. Refuses what is no viewport, and those of old files, whose
    /// view is kept in another way.
    Expected<void> setViewportView(int viewport, const ViewportView& view);
    /// Freezes exactly these layers in the current viewport. Refuses when `checkViewport` does.
    Expected<void> setFrozenInViewport(const std::vector<LayerId>& layers);
    /// Overrides properties (`LayerOverrides::kProperties`) of layers in the current viewport only.
    /// Returns the layers whose linetype the drawing does not have; their other properties are
    /// still set.
    Expected<std::vector<LayerId>> overrideInViewport(
        const std::vector<LayerInViewport>& layers, int properties);
    /// Saves a new filter inside `filter.parent` and returns the handle of its record. Refuses an
    /// empty name, a name that another filter with the same parent has, and formats without
    /// objects.
    Expected<quint64> addLayerFilter(const LayerFilter& filter);
    /// Changes name, expression and layers of the filter whose record is `filter.record`. Refuses
    /// what `addLayerFilter` refuses, and filters of an unknown kind.
    Expected<void> changeLayerFilter(const LayerFilter& filter);
    Expected<void> removeLayerFilter(quint64 record); ///< Removes its nested filters, too.
    /// One sentence for each thing that edits since the last call had to leave out, for example
    /// because the file's version cannot store lineweights, true colours or the plot flag.
    QStringList takeNotices();

    /// Makes long edits call `rest` repeatedly on the thread that edits, so that a window can be
    /// painted meanwhile. `rest` must not edit the drawing.
    void setBreak(const std::function<void()>& rest);

    /// Opens an undo step. Steps must not be nested.
    void beginStep(const QString& name);
    /// Closes the open step. A step that changed nothing is not recorded.
    void commitStep();
    /// Undoes and closes the open step.
    void rollbackStep();
    /// Tells listeners what the open step has changed so far. A dialog that applies its changes but
    /// stays open uses this.
    void publishStep();
    bool inStep() const;

    bool canUndo() const;
    bool canRedo() const;
    QString undoName() const;
    QString redoName() const;
    void undo();
    void redo();

Q_SIGNALS:
    /// Emitted immediately before the drawing changes or is destroyed. Whoever reads the drawing on
    /// another thread must have stopped when this signal returns.
    void aboutToChange() const;
    /// A layer or the choice of the current layer has changed. Emitted once per step, undo, redo or
    /// `publishStep`.
    void layersChanged();
    /// Entities, given by their indices in any order, were added or removed or have changed their
    /// layer.
    void entitiesChanged(const std::vector<int>& entities);
    void modifiedChanged(bool modified);

private:
    friend struct DrawingAccess;

    Drawing();
    Expected<void> readyToEdit() const;
    void announce(bool layers, const std::vector<EntityChange>& entities);

    class Private;
    std::unique_ptr<Private> d;
};

/// An undo step that is rolled back when its scope is left before it was committed.
class DrawingStep
{
public:
    DrawingStep(Drawing& drawing, const QString& name) : m_drawing(drawing), m_name(name)
    {
        drawing.beginStep(name);
    }
    ~DrawingStep()
    {
        if (m_isOpen)
            m_drawing.rollbackStep();
    }
    Q_DISABLE_COPY(DrawingStep)

    void commit()
    {
        m_isOpen = false;
        m_drawing.commitStep();
    }
    /// Commits the step and opens a new one of the same name.
    void next()
    {
        m_drawing.commitStep();
        m_drawing.beginStep(m_name);
    }
    /// Undoes what was done so far and keeps the step open.
    void takeBack()
    {
        m_drawing.rollbackStep();
        m_drawing.beginStep(m_name);
    }

private:
    Drawing& m_drawing;
    QString m_name;
    bool m_isOpen = true;
};

/// Converts the model space or layout that is shown into flat geometry. Runs on any thread as long
/// as the drawing is not changed. Refuses only when cancelled. The depth and number of block
/// references are limited, and a block inside itself is left out.
Expected<Geometry> buildGeometry(const Drawing& drawing, Progress* progress = nullptr);

/// The current patterns of the drawing's linetypes.
std::shared_ptr<const LinetypePatterns> linetypePatterns(const Drawing& drawing);

/// The current properties of the drawing's layers as a layer state. In a layout it also holds which
/// layers are frozen in the current viewport.
LayerState captureLayerState(const Drawing& drawing, const QString& name);

/// Whether restoring the state with its own mask would change nothing. Layers that the state does
/// not hold are ignored; a layer that the drawing does not have counts as a difference. In a
/// layout, layers frozen in the viewport count for states that were saved in a layout.
bool isSameAsDrawing(const LayerState& state, const Drawing& drawing);

/// Restores `state` within the open step. Returns one sentence for each thing that could not be
/// restored.
QStringList restoreLayerState(
    Drawing& drawing, const LayerState& state, const LayerStateRestore& how);

/// Removes from `state` the layers that the drawing does not have and repeated entries of a layer.
/// Returns the names of the missing layers.
QStringList dropUnknownLayers(LayerState& state, const Drawing& drawing);

/// Translates layers of the drawing to their targets. Everything on a source layer moves to its
/// target, which is created, or changed to match the standard. All mappings refer to the layers as
/// they were before, so layers may swap their contents. A created target takes over whether its
/// source was off, frozen or locked, in single viewports as well, so hidden contents stay hidden.
/// When the current layer is translated, its target becomes the current layer. Sources that end up
/// empty are deleted, except layer 0, Defpoints and the current layer; references to them then name
/// the target. A mapping whose target has the source's own name only changes the properties.
///
/// A mapping that cannot be carried out is left out, and its `cause` says why: the source does not
/// exist or already has a mapping, a layer depends on an external reference, or the target's name
/// is refused. The changes belong to the open step. Refuses, without changing anything, when no
/// step is open.
Expected<TranslationReport> translateLayers(
    Drawing& drawing, const std::vector<LayerMapping>& mappings, const TranslationOptions& options);

/// The drawing's own layers as targets, without those of external references.
std::vector<TargetLayer> targetLayers(const Drawing& drawing);

/// Mappings for all layers that have a target of the same name (ignoring letter case) and no
/// mapping in `known` yet.
std::vector<LayerMapping> sameNamedMappings(const Drawing& drawing,
    const std::vector<TargetLayer>& targets, const std::vector<LayerMapping>& known);

} // namespace drawing
