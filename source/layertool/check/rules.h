#pragma once

#include "rulefile.h"

#include <functional>

namespace drawing {
class Drawing;
}

namespace layertool {

/// Something a rule found in a drawing.
struct Finding
{
    const char* rule = "";
    Level level = Level::Warning;
    QString layer;                                ///< Empty where no layer is concerned.
    drawing::LayerId id = drawing::LayerId::None; ///< None for a layer the drawing lacks.
    QString property;                             ///< What of the layer, an id of `layerFields`.
    QString expected;
    QString actual;
    int count = 0; ///< Entities concerned.
    QString text;  ///< A sentence.
};

/// What a rule is given and where it puts what it finds.
struct CheckContext;

/// A rule: its word, how much it matters unless the rule file says otherwise, and what it is about.
struct Rule
{
    const char* id;
    Level level;
    const char* text; ///< A sentence, to be translated.
    void (*check)(CheckContext& context);
    const char* keys = ""; ///< Of the rule file's keys those it looks at, with blanks between.
};

/// All rules, in the order in which findings are listed.
const std::vector<Rule>& rules();
/// Null for a word that names none.
const Rule* findRule(const QString& id);

/// Holds a drawing against rules.
std::vector<Finding> checkDrawing(const drawing::Drawing& drawing, const LayerRules& rules);

} // namespace layertool
