#pragma once

#include "arguments.h"
#include "layers/layer.h"
#include "verb.h"

#include <QRegularExpression>

#include <memory>

namespace drawing {
class Drawing;
}
namespace wildcard {
class WildcardPattern;
}

namespace layertool {

/// The layers that a command line selects by names, wildcard patterns and regular expressions.
class LayerChoice
{
public:
    /// Reads the options `layer` (names), `pattern` and `regex`. Refuses an invalid expression.
    Expected<void> read(const Arguments& arguments);
    bool isEmpty() const { return m_names.isEmpty() && m_patterns.empty() && m_regexes.isEmpty(); }

    bool matches(const QString& name) const;
    /// Whether the layer is selected by its exact name rather than by a pattern or an expression.
    bool names(const QString& name) const;
    /// The selected layers of a drawing, in its order.
    std::vector<drawing::LayerId> in(const drawing::Drawing& drawing) const;
    /// The selected names that are not layers of the drawing.
    QStringList missingIn(const drawing::Drawing& drawing) const;

    static OptionRows options();

private:
    QStringList m_names;
    std::vector<std::shared_ptr<const wildcard::WildcardPattern>> m_patterns;
    QList<QRegularExpression> m_regexes;
};

/// Parses a regular expression that has to match whole names, ignoring letter case. Refuses an
/// invalid one and tells the position of the fault.
Expected<QRegularExpression> readRegex(const QString& text);

} // namespace layertool
