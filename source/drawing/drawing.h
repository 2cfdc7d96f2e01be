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

/// A drawing held in a DXF file: its layers, its entities' places, its edits.
///
/// The file's bytes are mapped and never changed; an edit replaces a byte range in a journal, and
/// saving streams the original with the replacements spliced in. What was not edited is written
/// byte for byte. All edits belong to a step; one step is one undo.
class Drawing : public QObject
{
    Q_OBJECT

public:
    /// Maps and indexes `path`. Refuses (naming line and cause) what is no readable DXF file.
    /// May run on a worker thread; the result is moved to `owner`.
    static Expected<std::unique_ptr<Drawing>> open(const QString& path,
        Progress* progress = nullptr, QThread* owner = nullptr, const OpenOptions& options = {});
    ~Drawing() override;

    /// Writes the drawing through a temporary file that replaces `path` only when whole.
    /// On success the drawing lives in `path` and is unmodified; on refusal nothing has changed.
    /// May run on a worker thread while nobody edits; refuses while a step is open.
    Expected<void> save(const QString& path, Progress* progress = nullptr);

    QString path() const;
    /// The version the file says it has, such as "AC1009"; empty where it says none.
    QByteArray version() const;
    /// Whether the file holds binary groups, and has no lines.
    bool isBinary() const;
    /// Where a layer's record stands in the file read; null for layers that have none there.
    ByteRange recordRange(LayerId id) const;
    /// What had to be guessed when the file was read, a sentence each.
    QStringList openingNotices() const;
    /// Whether only what is whole of a file that is cut off was opened; until it is saved.
    bool isIncomplete() const;
    /// True when the drawing differs from what its file holds.
    bool isModified() const;

    /// In file order, deleted ones left out; then the layers that only entities name, which get a
    /// record with their first edit; then those added. Valid until the next call after an edit.
    const std::vector<Layer>& layers() const;
    /// Null when there is none (any more). The pointer stays good while the drawing is open.
    const Layer* layer(LayerId id) const;
    const Layer* findLayer(const QString& name) const; ///< Without regard to letter case.
    LayerId currentLayer() const;

    /// The layer states in the order of the file; those made since behind them.
    std::vector<LayerState> layerStates() const;
    QStringList layerStateNames() const;
    /// By name, without regard to letter case.
    std::optional<LayerState> layerState(const QString& name) const;
    /// The file beside the drawing that holds its layer states; empty where they live in the
    /// drawing itself.
    QString layerStatesPath() const;
    /// Names of the linetypes, ByLayer and ByBlock left out: those of the file in their order, then
    /// those added.
    QStringList linetypes() const;
    /// What the drawing says of a linetype, by name without regard to letter case; null when it has
    /// none of that name.
    LinetypePointer linetype(const QString& name) const;
    /// Whether layers have plot styles by name; otherwise these follow from the colour.
    bool hasNamedPlotStyles() const;
    /// True while model space is shown, false for a layout.
    bool isModelSpace() const;
    /// The layouts in the order of their tabs, at least one.
    const std::vector<Layout>& layouts() const;
    /// Index of the layout shown; in model space of the one shown last, at first the file's own.
    int shownLayout() const;
    /// Whether an entity belongs to the space shown. What is in block definitions does not, those
    /// of layouts left out.
    bool isShown(const Entity& entity) const;
    /// The sheet of the layout shown, with what its viewports show; none in model space.
    std::optional<Sheet> sheet() const;
    /// Index of the entity that is the current viewport; -1 when there is none.
    int currentViewport() const;
    /// Makes a viewport of the layout shown the current one; false when it is none of them. No
    /// edit: it is kept as long as the drawing is open.
    bool setCurrentViewport(int viewport);
    /// Whether a layout is shown that has a viewport, whose current one can show layers otherwise.
    /// It is the one made so, else the one last active, as the file says, else the first.
    Expected<void> checkViewport() const;
    /// The layers frozen in the current viewport, ascending; none in model space.
    std::vector<LayerId> frozenInViewport() const;

    /// The layers that have properties of their own in the current viewport, ascending by id.
    std::vector<LayerInViewport> overriddenInViewport() const;
    /// The layer filters saved in the drawing, in its order; those inside a filter come behind it.
    std::vector<LayerFilter> layerFilters() const;

    /// All entities: those of the block definitions and of the ENTITIES section, in file order.
    /// Deleted ones stay in their places, marked as removed.
    const std::vector<Entity>& entities() const;
    const std::vector<Block>& blocks() const;
    const Block* findBlock(const QString& name) const; ///< Without regard to letter case.
    /// What a picture of the drawing is made of; good until the drawing changes.
    GeometrySource geometrySource() const;
    /// The tags of an entity as they stand in the file read; valid as long as the drawing is open.
    TagReader tags(const Entity& entity) const;
    /// Text of a value in the file's code page, escapes resolved.
    QString decoded(std::string_view value) const;
    const TextCodec& codec() const; ///< Of the file's text.

    // Edits; each needs an open step. A refused edit changes nothing.

    /// Changes what differs, also the name; then all that names the layer follows at the end of the
    /// step. Refuses a name that is empty, longer than 255, in use or with one of \ < > / " : ; ?
    /// * | , = ` in it, renaming layer 0 or a layer that depends on a reference, a linetype the
    /// drawing lacks, and values out of their ranges. What the file's version cannot store is left
    /// as it was, see `takeNotices`. The plot style is changed where the drawing has named styles
    /// and one of that name.
    Expected<void> setLayerProperties(LayerId id, const LayerProperties& properties);
    Expected<LayerId> addLayer(const LayerProperties& properties); ///< Refuses the same.
    /// Refuses layer 0, the current layer and used layers. What still names the layer (block heads,
    /// layer states, frozen layers of viewports) forgets it.
    Expected<void> removeLayer(LayerId id);
    Expected<void> setCurrentLayer(LayerId id);
    /// Puts entities, by their indices, on a layer; returns how many came from another one. What
    /// follows an entity (vertices, attributes, end marks) comes along where it was on the entity's
    /// layer and stays where it was not; the index of a part stands for the whole. Refuses a target
    /// that depends on a reference.
    Expected<int> moveEntities(const std::vector<int>& entities, LayerId target);
    /// Puts everything on the sources, in layouts and blocks too, on the target and removes the
    /// sources; what names them names the target then. Layer states and viewports forget them.
    /// Refuses layer 0, the current layer, layers that depend on a reference and the target itself
    /// as sources, and a target that depends on a reference.
    Expected<void> mergeLayers(const std::vector<LayerId>& sources, LayerId target);
    /// Removes layers with the entities on them in model space, layouts and blocks, and all that
    /// refers to either. Parts on them of entities that stay: attributes go, vertices and end marks
    /// come to their entity's layer; a sheet's own viewport comes to layer 0. Refuses layer 0, the
    /// current layer and layers that depend on a reference.
    Expected<void> deleteLayers(const std::vector<LayerId>& layers);
    /// Takes in a linetype and the text styles and shape files it needs; one of the same name stays
    /// as it is. Where the format has no place for letters and shapes their dashes are taken, see
    /// `takeNotices`.
    Expected<void> addLinetype(const LinetypeDefinition& definition);
    /// Whether anything inside a block definition, layouts left out, is on one of these layers.
    bool isReferencedInBlocks(const std::vector<LayerId>& layers) const;
    /// How many block references place a definition that has something on one of these layers.
    int countBlockReferences(const std::vector<LayerId>& layers) const;
    /// Takes in layer states; those of the same name, whatever its letter case, are replaced.
    /// What they say of the drawing's layers is not checked.
    Expected<void> putLayerStates(const std::vector<LayerState>& states);
    /// Refuses when the drawing has none of these.
    Expected<void> removeLayerStates(const QStringList& names);
    /// Refuses a name in use.
    Expected<void> renameLayerState(const QString& name, const QString& newName);
    Expected<void> setModelSpace(bool modelSpace);
    /// Shows a layout, by its index. Which one it is is not kept in the file, that it is one is.
    Expected<void> showLayout(int layout);
    /// Freezes these layers, and no others, in the current viewport; refuses as `checkViewport`.
    Expected<void> setFrozenInViewport(const std::vector<LayerId>& layers);
    /// Gives layers properties (`LayerOverrides::kProperties`) for the current viewport alone.
    /// Layers whose linetype the drawing lacks come back, with all but that done.
    Expected<std::vector<LayerId>> overrideInViewport(
        const std::vector<LayerInViewport>& layers, int properties);
    /// Saves a filter inside `filter.parent`; the handle of its record comes back. Refuses an empty
    /// name, one in use beside it, and formats without objects.
    Expected<quint64> addLayerFilter(const LayerFilter& filter);
    /// Gives the filter of `filter.record` that name, expression and list of layers. Refuses the
    /// same, and filters of an unknown kind.
    Expected<void> changeLayerFilter(const LayerFilter& filter);
    Expected<void> removeLayerFilter(quint64 record); ///< With the filters inside it.
    /// What edits since the last call had to leave out, a sentence each: the file's version may
    /// have no place for lineweights, true colours or the plot flag.
    QStringList takeNotices();

    /// Has long edits call `rest` again and again, on the thread that edits, so that a window can
    /// be painted meanwhile. Nothing may be edited then.
    void setBreak(const std::function<void()>& rest);

    /// Opens an undo step; steps do not nest.
    void beginStep(const QString& name);
    /// Closes it; one that changed nothing leaves no trace.
    void commitStep();
    /// Takes back what the open step did.
    void rollbackStep();
    /// Lets listeners see what the open step did so far, as an applied dialog that stays open
    /// wants it.
    void publishStep();
    bool inStep() const;

    bool canUndo() const;
    bool canRedo() const;
    QString undoName() const;
    QString redoName() const;
    void undo();
    void redo();

signals:
    /// Right before the drawing changes or goes: whoever reads it on another thread must have
    /// stopped when this returns.
    void aboutToChange() const;
    /// Any layer, or the current layer, changed; once a step, undo, redo or `publishStep`.
    void layersChanged();
    /// Entities, by their indices in any order, went, came or changed their layer.
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

/// A step of a drawing that is taken back when it is left early.
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
    /// What comes now is a step of its own, of the same name.
    void next()
    {
        m_drawing.commitStep();
        m_drawing.beginStep(m_name);
    }
    /// Takes back what was done so far; the step goes on.
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

/// Flattens the space shown. Works on any thread while the drawing is left alone; refuses only when
/// cancelled. Block references are bounded in depth and number, a block inside itself is left out.
Expected<Geometry> buildGeometry(const Drawing& drawing, Progress* progress = nullptr);

/// What the linetypes repeat, as they are now.
std::shared_ptr<const LinetypePatterns> linetypePatterns(const Drawing& drawing);

/// The layers of the drawing as they are now; in a layout also which of them its current viewport
/// hides.
LayerState captureLayerState(const Drawing& drawing, const QString& name);

/// Whether restoring the state, over its own mask, would change nothing. Layers the state does not
/// hold do not count; one the drawing lacks does. What a viewport hides counts in layouts, for
/// states saved in one.
bool isSameAsDrawing(const LayerState& state, const Drawing& drawing);

/// Restores `state` within the open step; returns a sentence for each thing that could not be.
QStringList restoreLayerState(
    Drawing& drawing, const LayerState& state, const LayerStateRestore& how);

/// Drops what the drawing cannot use: layers it lacks, second mentions of a layer. Returns the
/// names of the layers it lacks.
QStringList dropUnknownLayers(LayerState& state, const Drawing& drawing);

/// Brings layers of the drawing to their targets: what is on a source moves to the target, which is
/// made, or changed to what the standard says of it. All mappings are about the layers as they were
/// before, so layers may swap their contents. A target that is made takes over whether its source
/// was off, frozen or locked, also in single viewports, so what was hidden stays hidden. A current
/// layer that is translated makes its target current. Sources that end empty are removed, all but
/// layer 0, Defpoints and the current layer; what named them names the target then. A target of the
/// source's own name changes the properties alone.
///
/// A mapping that cannot be carried out (no such source, a second one for the same source, a layer
/// that depends on a reference, a target name that is refused) is left out, and its cause says why.
/// Belongs to the open step; refuses when there is none, and then changes nothing.
Expected<TranslationReport> translateLayers(
    Drawing& drawing, const std::vector<LayerMapping>& mappings, const TranslationOptions& options);

/// What a drawing says of its own layers, as targets: those of references left out.
std::vector<TargetLayer> targetLayers(const Drawing& drawing);

/// Maps the layers that have a target of the same name, without regard to letter case, and no
/// mapping in `known` yet.
std::vector<LayerMapping> sameNamedMappings(const Drawing& drawing,
    const std::vector<TargetLayer>& targets, const std::vector<LayerMapping>& known);

} // namespace drawing
