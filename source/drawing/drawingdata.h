#pragma once

#include "entities/entityedits.h"
#include "geometry/draworder.h"
#include "geometry/geometry.h"
#include "layers/annotationcopies.h"
#include "layers/layerobjects.h"
#include "layers/savedfilters.h"
#include "layers/viewportlayers.h"
#include "states/layerstates.h"
#include "translation/savedmappings.h"
#include "translation/translationparts.h"

namespace drawing {

/// All parts of a drawing, and the operations that need several of them. Each part only knows the
/// parts that it needs itself.
class DrawingData
{
public:
    /// The state that a step saves and restores as a whole; layers, entities and bytes are tracked
    /// by changes instead.
    struct State
    {
        DrawingFile::State file;
        LinetypeTable::State linetypes;
        LayoutTable::State layouts;
        LayerStates::State layerStates;
        LayerId current = LayerId::None;

        bool operator==(const State& other) const;
    };

    /// Everything that one step changed.
    struct Changes
    {
        std::vector<EditChange> edits;
        std::vector<LayerChange> layers;
        std::vector<EntityChange> entities;
        State before;
        State after;

        bool isEmpty() const;
    };

    /// Starts collecting changes.
    void begin() { m_before = state(); }
    bool hasChanges() const;
    /// Updates everything that refers to layers which were renamed, merged or deleted since
    /// `begin`.
    void followLayers();
    /// Returns the changes since `begin`.
    Changes take();
    void apply(const Changes& changes, bool forward);

    // Edits that change layers and their contents together; `Drawing` documents them.
    Expected<int> moveEntities(const std::vector<int>& chosen, LayerId target);
    Expected<void> mergeLayers(const std::vector<LayerId>& sources, LayerId target);
    Expected<void> deleteLayers(const std::vector<LayerId>& chosen);

    GeometrySource geometrySource() const
    {
        return {file, entities, layouts, linetypes, overrides, viewports, drawOrder, layers.zero()};
    }
    TranslationParts translationParts()
    {
        return {layers, entities, plotStyles, linetypes, layerEdits, entityEdits, leftOut};
    }

    DrawingFile file;
    LeftOut leftOut;
    QStringList openingNotices; ///< What had to be guessed or left out when the file was read.
    /// The bytes of `file` when only the intact part of a truncated file was opened.
    QByteArray wholePart;
    EntityTable entities;
    LayerTable layers;
    LinetypeTable linetypes{file, leftOut};
    PlotStyles plotStyles{file};
    LayoutTable layouts;
    DrawOrder drawOrder;
    LayerRecords records{file, layers};
    LayerEdits layerEdits{file, layers, records, linetypes, plotStyles, leftOut};
    EntityEdits entityEdits{file, entities, layers};
    LayerOverrides overrides{file, layers, records, linetypes};
    ViewportLayers viewports{file, entities, layouts, layers, records, overrides};
    LayerStates layerStates{file, layers, linetypes};
    SavedFilters filters{file, layers, records};
    LayerObjects layerObjects{file};
    AnnotationCopies copies{file, layers, layerEdits};
    SavedMappings mappings{file, layers};

private:
    State state() const;
    void setState(const State& state);

    State m_before;
};

} // namespace drawing
