#pragma once

#include "file/error.h"
#include "layers/layer.h"
#include "layers/linetypedefinition.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace drawing {

/// A target layer: a layer of a standard that layers of a drawing are translated to.
struct TargetLayer
{
    QString name;
    int colorIndex = 7; ///< 1..255. It exists beside a true colour because files store both.
    std::optional<quint32> trueColor; ///< 0x00RRGGBB.
    QString linetype = QStringLiteral("Continuous");
    /// The linetype's definition from the file that it came from, for drawings that do not have it;
    /// may be null.
    LinetypePointer linetypeDefinition;
    int lineweight = -3;         ///< In hundredths of a millimetre; -3 is the default lineweight.
    int transparency = 0;        ///< In percent, 0..90.
    QString plotStyle;           ///< Empty to keep the layer's own plot style.
    std::optional<bool> plotted; ///< Without a value the layer keeps its own flag.
    bool used = false;           ///< Whether it holds objects in the file that it came from.
};

/// A layer of the drawing, by its name (ignoring letter case), and the target that it is translated
/// to.
struct LayerMapping
{
    QString from;
    TargetLayer to;
};

/// The six options in the order in which they are shown, and one more for programs.
struct TranslationOptions
{
    bool colorByLayer = false;
    bool linetypeByLayer = false;
    bool transparencyByLayer = false;
    bool inBlocks = false;      ///< Also translates the contents of block definitions.
    bool writeLog = false;      ///< Only used by the caller, see `writeTranslationLog`.
    bool showSelection = false; ///< Only used by the caller; it has no effect on the translation.
    bool lineweightByLayer = false;
};

/// The outcome of one mapping.
struct MappingResult
{
    enum class Target { LeftOut, Made, Changed, Unchanged };

    QString from; ///< As the drawing spells it, provided that the layer exists.
    QString to;
    Target target = Target::LeftOut;
    /// Entities that moved to the target, or are on the layer when it is its own target.
    int translated = 0;
    /// Entities that stayed because block contents were not to be translated.
    int leftInBlocks = 0;
    bool sourceRemoved = false; ///< Whether the source ended up empty and was deleted.
    QString cause;              ///< A sentence that says why the mapping was left out.
    QStringList notices; ///< One sentence for each thing that could not be done as requested.

    bool isApplied() const { return target != Target::LeftOut; }
};

struct TranslationReport
{
    std::vector<MappingResult> mappings; ///< One result per mapping, in the same order.
    QStringList notices; ///< One sentence for each thing that the drawing's format cannot store.
    int entities = 0;    ///< The number of entities in model space, layouts and blocks.

    int appliedCount() const;
    int translatedCount() const;
};

} // namespace drawing
