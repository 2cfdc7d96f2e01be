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

/// Which layers a command line means: by names, by wildcard patterns and by regular expressions.
class LayerChoice
{
public:
    /// Reads the options `layer` (names), `pattern` and `regex`. Refuses an expression that is
    /// none.
    Expected<void> read(const Arguments& arguments);
    bool isEmpty() const { return m_names.isEmpty() && m_patterns.empty() && m_regexes.isEmpty(); }

    bool matches(const QString& name) const;
    /// Whether the layer is meant by its name, not by a pattern or an expression.
    bool names(const QString& name) const;
    /// The layers of a drawing that are meant, in its order.
    std::vector<drawing::LayerId> in(const drawing::Drawing& drawing) const;
    /// The names given that the drawing has no layer of.
    QStringList missingIn(const drawing::Drawing& drawing) const;

    static OptionRows options();

private:
    QStringList m_names;
    std::vector<std::shared_ptr<const wildcard::WildcardPattern>> m_patterns;
    QList<QRegularExpression> m_regexes;
};

/// Reads a regular expression that is to fit whole names, without regard to letter case. Refuses
/// what is none, with its place.
Expected<QRegularExpression> readRegex(const QString& text);

} // namespace layertool
