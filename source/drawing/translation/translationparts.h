#pragma once

#include "layertranslation.h"

namespace drawing {

class EntityEdits;
class EntityTable;
class LayerEdits;
class LayerTable;
class LeftOut;
class LinetypeTable;
class PlotStyles;

/// The parts of a drawing that a translation works on.
struct TranslationParts
{
    const LayerTable& layers;
    const EntityTable& entities;
    const PlotStyles& plotStyles;
    LinetypeTable& linetypes;
    LayerEdits& layerEdits;
    EntityEdits& entityEdits;
    LeftOut& leftOut;
};

// The overloads for `Drawing` document these functions.
TranslationReport translateLayers(const TranslationParts& parts,
    const std::vector<LayerMapping>& mappings, const TranslationOptions& options);
std::vector<TargetLayer> targetLayers(const LayerTable& layers, const LinetypeTable& linetypes);
std::vector<LayerMapping> sameNamedMappings(const LayerTable& layers,
    const std::vector<TargetLayer>& targets, const std::vector<LayerMapping>& known);

} // namespace drawing
