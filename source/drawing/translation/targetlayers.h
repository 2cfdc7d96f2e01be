#pragma once

#include "translationparts.h"

namespace drawing {

/// Brings layers of a drawing to what a standard says of them, in its open step.
class TargetLayers
{
public:
    explicit TargetLayers(const TranslationParts& parts) : m_parts(parts) {}

    /// Changes a layer; its name stays.
    Expected<void> change(LayerId id, const TargetLayer& target);
    /// Adds a layer; what the standard does not speak of is as in `base`.
    Expected<LayerId> add(const TargetLayer& target, const LayerProperties& base);
    /// Makes a layer the target, name included.
    Expected<void> turnInto(LayerId id, const TargetLayer& target);

    /// What could not be done as wanted since the last call, a sentence each.
    QStringList takeNotices();

private:
    LayerProperties wanted(const TargetLayer& target, const LayerProperties& base);
    QString linetypeFor(const TargetLayer& target, const LayerProperties& base);
    Expected<void> set(LayerId id, const TargetLayer& target, const LayerProperties& wanted);

    const TranslationParts m_parts;
    QStringList m_notices;
};

/// A key for names of layers and linetypes, which compare without regard to letter case.
QString nameKey(const QString& name);

/// False for styles that follow from the colour: these are no names to look for.
bool isNamedPlotStyle(const QString& style);

/// Whether two targets of one name say the same of it.
bool isSameTarget(const TargetLayer& a, const TargetLayer& b);

} // namespace drawing
