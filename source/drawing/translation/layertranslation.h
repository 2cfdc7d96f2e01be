#pragma once

#include "file/error.h"
#include "layers/layer.h"
#include "layers/linetypedefinition.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace drawing {

/// A layer of a standard, which layers of a drawing are brought to.
struct TargetLayer
{
    QString name;
    int colorIndex = 7;               ///< 1..255; kept beside a true colour.
    std::optional<quint32> trueColor; ///< 0x00RRGGBB.
    QString linetype = QStringLiteral("Continuous");
    /// The linetype as the file it came from defines it, for drawings that lack it; may be null.
    LinetypePointer linetypeDefinition;
    int lineweight = -3;         ///< Hundredths of a millimetre; -3 is "default".
    int transparency = 0;        ///< Percent, 0..90.
    QString plotStyle;           ///< Empty: the layer's own stays.
    std::optional<bool> plotted; ///< Without a value the layer's own stays.
    bool used = false;           ///< Objects of the file it came from are on it.
};

/// A layer of the drawing, by name without regard to letter case, and what it is brought to.
struct LayerMapping
{
    QString from;
    TargetLayer to;
};

/// The six options that are shown, in their order, and one for programs.
struct TranslationOptions
{
    bool colorByLayer = false;
    bool linetypeByLayer = false;
    bool transparencyByLayer = false;
    bool inBlocks = false;      ///< What stands in block definitions is translated too.
    bool writeLog = false;      ///< For the caller, see `writeTranslationLog`.
    bool showSelection = false; ///< For the caller: of no concern to the translation.
    bool lineweightByLayer = false;
};

/// What became of one mapping.
struct MappingResult
{
    enum class Target { LeftOut, Made, Changed, Unchanged };

    QString from; ///< As the drawing spells it, where it has that layer.
    QString to;
    Target target = Target::LeftOut;
    int translated = 0; ///< Entities that came to the target or, where it is the source, are on it.
    int leftInBlocks = 0;       ///< Entities that stayed, as block contents were not asked for.
    bool sourceRemoved = false; ///< The source ended empty and is gone.
    QString cause;              ///< A sentence; why it was left out.
    QStringList notices;        ///< Sentences; what of it could not be done as asked.

    bool isApplied() const { return target != Target::LeftOut; }
};

struct TranslationReport
{
    std::vector<MappingResult> mappings; ///< One for each mapping, in their order.
    QStringList notices;                 ///< Sentences; what the drawing's format has no place for.
    int entities = 0;                    ///< Of the drawing: model space, layouts and blocks.

    int appliedCount() const;
    int translatedCount() const;
};

} // namespace drawing
