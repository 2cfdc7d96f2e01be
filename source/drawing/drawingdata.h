#pragma once

#include "entities/entityedits.h"
#include "geometry/geometry.h"
#include "layers/annotationcopies.h"
#include "layers/layerobjects.h"
#include "layers/savedfilters.h"
#include "layers/viewportlayers.h"
#include "states/layerstates.h"
#include "translation/savedmappings.h"
#include "translation/translationparts.h"

namespace drawing {

/// The parts of a drawing, each of which knows only those that it needs, and the work that takes
/// several of them.
class DrawingData
{
public:
    /// What a step changes as a whole, besides the layers, the entities and the bytes.
    struct State
    {
        DrawingFile::State file;
        LinetypeTable::State linetypes;
        LayoutTable::State layouts;
        LayerStates::State layerStates;
        LayerId current = LayerId::None;

        bool operator==(const State& other) const;
    };

    /// All that one step changed.
    struct Changes
    {
        std::vector<EditChange> edits;
        std::vector<LayerChange> layers;
        std::vector<EntityChange> entities;
        State before;
        State after;

        bool isEmpty() const;
    };

    /// From here on changes are gathered.
    void begin() { m_before = state(); }
    bool hasChanges() const;
    /// Makes all that names layers follow what became of them since `begin`.
    void followLayers();
    /// The changes since `begin`.
    Changes take();
    void apply(const Changes& changes, bool forward);

    // Edits of layers together with what is on them; as `Drawing` has them.
    Expected<int> moveEntities(const std::vector<int>& chosen, LayerId target);
    Expected<void> mergeLayers(const std::vector<LayerId>& sources, LayerId target);
    Expected<void> deleteLayers(const std::vector<LayerId>& chosen);

    GeometrySource geometrySource() const
    {
        return {file, entities, layouts, linetypes, overrides, viewports, layers.zero()};
    }
    TranslationParts translationParts()
    {
        return {layers, entities, plotStyles, linetypes, layerEdits, entityEdits, leftOut};
    }

    DrawingFile file;
    LeftOut leftOut;
    QStringList openingNotices; ///< What had to be guessed or left out when it was read.
    QByteArray wholePart;       ///< Of a file that was cut off: the bytes of `file`.
    EntityTable entities;
    LayerTable layers;
    LinetypeTable linetypes{file, leftOut};
    PlotStyles plotStyles{file};
    LayoutTable layouts;
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
