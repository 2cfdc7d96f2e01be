#pragma once

#include "rulefile.h"

#include <functional>

namespace drawing {
class Drawing;
}

namespace layertool {

/// Something that a rule found in a drawing.
struct Finding
{
    const char* rule = "";
    Level level = Level::Warning;
    QString layer; ///< Empty when the finding concerns no layer.
    /// None for a layer that does not exist in the drawing.
    drawing::LayerId id = drawing::LayerId::None;
    QString property; ///< The layer's property concerned, an id of `layerFields`.
    QString expected;
    QString actual;
    int count = 0; ///< The number of entities concerned.
    QString text;  ///< A sentence.
};

/// The input of a rule, and the place for its findings.
struct CheckContext;

/// A rule: its id, its default level and what it is about.
struct Rule
{
    const char* id;
    Level level;
    const char* text; ///< A sentence that gets translated.
    void (*check)(CheckContext& context);
    const char* keys = ""; ///< The keys of the rule file that it reads, separated by blanks.
};

/// All rules, in the order in which findings are listed.
const std::vector<Rule>& rules();
/// The rule with this id; null when there is none.
const Rule* findRule(const QString& id);

/// Checks a drawing against rules.
std::vector<Finding> checkDrawing(const drawing::Drawing& drawing, const LayerRules& rules);

} // namespace layertool
