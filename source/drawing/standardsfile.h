#pragma once

#include "translation/layertranslation.h"

namespace drawing {

/// What a drawing, template or standards file gives to the translator.
struct Standard
{
    std::vector<TargetLayer> layers;    ///< Those of references left out.
    std::vector<LayerMapping> mappings; ///< Those saved in the file, each with its target.
    QStringList notices;                ///< Sentences; what of the mappings could not be read.
};

/// Reads any DXF drawing, whatever its file is called. Refuses what is none, and one without
/// layers.
Expected<Standard> readStandard(const QString& path);

/// Saves mappings and the targets they need, `targets` besides, so that the file opens as a drawing
/// and `readStandard` gives them back. A new file is a small drawing of its own. A file that is
/// there keeps all that is in it: targets are added to its layers, or change those of the same
/// name, and the mappings take the place of those it had. Refuses a file that is no drawing, and
/// one in a format without objects; it is left as it was. Returns sentences on what could not be
/// saved as wanted. The caller keeps drawings that are open at the moment from being saved over.
Expected<QStringList> saveStandard(const QString& path, const std::vector<LayerMapping>& mappings,
    const std::vector<TargetLayer>& targets = {});

} // namespace drawing
