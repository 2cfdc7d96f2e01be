#pragma once

#include "translationparts.h"

namespace drawing {

/// Makes layers of a drawing match a standard, within the open step.
class TargetLayers
{
public:
    explicit TargetLayers(const TranslationParts& parts) : m_parts(parts) {}

    /// Changes the properties of a layer, but not its name.
    Expected<void> change(LayerId id, const TargetLayer& target);
    /// Adds a layer. Properties that the standard leaves open are taken from `base`.
    Expected<LayerId> add(const TargetLayer& target, const LayerProperties& base);
    /// Changes a layer into the target, including its name.
    Expected<void> turnInto(LayerId id, const TargetLayer& target);

    /// One sentence for each thing that could not be done as requested since the last call.
    QStringList takeNotices();

private:
    LayerProperties wanted(const TargetLayer& target, const LayerProperties& base);
    QString linetypeFor(const TargetLayer& target, const LayerProperties& base);
    Expected<void> set(LayerId id, const TargetLayer& target, const LayerProperties& wanted);

    const TranslationParts m_parts;
    QStringList m_notices;
};

/// A look-up key for names of layers and linetypes, which ignore letter case.
QString nameKey(const QString& name);

/// Whether this is the name of a plot style, as opposed to one that follows from the colour.
bool isNamedPlotStyle(const QString& style);

/// Whether two targets of the same name have the same properties.
bool isSameTarget(const TargetLayer& a, const TargetLayer& b);

} // namespace drawing
