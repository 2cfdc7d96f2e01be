#include "targetlayers.h"

#include "file/drawingtexts.h"
#include "file/symbolname.h"
#include "layers/layeredits.h"
#include "layers/layertable.h"
#include "layers/linetypetable.h"
#include "layers/plotstyles.h"

#include <tuple>

namespace drawing {

bool isNamedPlotStyle(const QString& style)
{
    return !style.isEmpty() && !style.startsWith(QLatin1String("Color_"), Qt::CaseInsensitive);
}

QString nameKey(const QString& name)
{
    return foldedName(name.trimmed());
}

bool isSameTarget(const TargetLayer& a, const TargetLayer& b)
{
    const auto parts = [](const TargetLayer& target) {
        return std::tie(target.colorIndex, target.trueColor, target.lineweight, target.transparency,
            target.plotStyle, target.plotted);
    };
    return parts(a) == parts(b) && nameKey(a.linetype) == nameKey(b.linetype);
}

QString TargetLayers::linetypeFor(const TargetLayer& target, const LayerProperties& base)
{
    const QString key = nameKey(target.linetype);
    const LinetypePointer& definition = target.linetypeDefinition;
    if (key == QLatin1String("continuous") || m_parts.linetypes.find(target.linetype))
        return target.linetype;
    if (definition && nameKey(definition->name) == key) {
        m_parts.linetypes.add(*definition);
        return target.linetype;
    }
    m_notices += Texts::tr("图形中没有线型“%1”，也没有它的定义：图层“%2”的线型为“%3”。")
                     .arg(target.linetype, target.name, base.linetype);
    return base.linetype;
}

/// The wanted properties of a layer. Properties that the standard leaves open stay as they are.
LayerProperties TargetLayers::wanted(const TargetLayer& target, const LayerProperties& base)
{
    LayerProperties properties = base;
    properties.colorIndex = target.colorIndex;
    properties.trueColor = target.trueColor;
    properties.linetype = linetypeFor(target, base);
    properties.lineweight = target.lineweight;
    properties.transparency = target.transparency;
    properties.plotted = target.plotted.value_or(base.plotted);
    if (isNamedPlotStyle(target.plotStyle))
        properties.plotStyle = target.plotStyle;
    return properties;
}

Expected<void> TargetLayers::set(
    LayerId id, const TargetLayer& target, const LayerProperties& wanted)
{
    return m_parts.layerEdits.setProperties(id, wanted).map([&] {
        const LayerProperties& now = m_parts.layers.layer(id)->properties;
        if (isNamedPlotStyle(target.plotStyle) && !m_parts.plotStyles.areByColor() &&
            !isSameName(now.plotStyle, target.plotStyle))
            m_notices += Texts::tr("图形中没有打印样式“%1”：图层“%2”的打印样式为“%3”。")
                             .arg(target.plotStyle, now.name, now.plotStyle);
    });
}

Expected<void> TargetLayers::change(LayerId id, const TargetLayer& target)
{
    return set(id, target, wanted(target, m_parts.layers.layer(id)->properties));
}

Expected<void> TargetLayers::turnInto(LayerId id, const TargetLayer& target)
{
    LayerProperties properties = wanted(target, m_parts.layers.layer(id)->properties);
    properties.name = target.name.trimmed();
    return set(id, target, properties);
}

Expected<LayerId> TargetLayers::add(const TargetLayer& target, const LayerProperties& base)
{
    LayerProperties properties = wanted(target, base);
    properties.name = target.name.trimmed();
    auto added = m_parts.layerEdits.add(properties);
    if (!added)
        return added;
    // A plot style can only be given to an existing layer.
    return set(*added, target, properties).map([&added] { return *added; });
}

QStringList TargetLayers::takeNotices()
{
    QStringList notices;
    notices.swap(m_notices);
    return notices;
}

} // namespace drawing
