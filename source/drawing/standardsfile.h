#pragma once

#include "translation/layertranslation.h"

namespace drawing {

/// What the translator takes from a drawing, template or standards file.
struct Standard
{
    std::vector<TargetLayer> layers;    ///< Without layers of external references.
    std::vector<LayerMapping> mappings; ///< The mappings saved in the file, each with its target.
    QStringList notices; ///< One sentence for each thing in the mappings that could not be read.
};

/// Reads any DXF drawing, whatever its extension. Refuses files that are not drawings and drawings
/// without layers.
Expected<Standard> readStandard(const QString& path);

/// Saves mappings, the targets that they need, and additional `targets` in such a way that the file
/// opens as a drawing and `readStandard` returns them. A new file becomes a small drawing. In an
/// existing file, targets are added to its layers or change those of the same name, the mappings
/// replace its earlier ones, and everything else is kept. Refuses, without changing the file, when
/// it is not a drawing or its format has no objects. Returns one sentence for each thing that could
/// not be saved as requested. The caller must make sure that no open drawing is overwritten.
Expected<QStringList> saveStandard(const QString& path, const std::vector<LayerMapping>& mappings,
    const std::vector<TargetLayer>& targets = {});

} // namespace drawing
