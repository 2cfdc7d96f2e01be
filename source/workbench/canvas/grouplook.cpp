#include "grouplook.h"

#include "CmColor.h"
#include "colorindex.h"

#include <QHash>

#include <algorithm>

namespace {

using drawing::GeometryColor;
using drawing::GeometryGroup;
using drawing::Layer;
using drawing::LayerId;

class Looks
{
public:
    Looks(const std::vector<Layer>& layers, bool darkBackground)
        : m_foreground(darkBackground ? Qt::white : Qt::black)
    {
        m_layers.reserve(static_cast<int>(layers.size()));
        for (const Layer& layer : layers)
            m_layers.insert(static_cast<int>(layer.id), &layer);
    }

    GroupLook of(const GeometryGroup& group, const std::vector<LayerId>& owners) const
    {
        GroupLook look;
        const Layer* layer = find(group.layer);
        const bool hidden = layer && (layer->properties.off || layer->properties.frozen);
        look.visible = !hidden && std::none_of(owners.begin(), owners.end(), [this](LayerId owner) {
            const Layer* around = find(owner);
            return around && around->properties.frozen;
        });
        look.color = colorOf(group.color);
        if (layer)
            look.color.setAlphaF(1 - layer->properties.transparency / 100.0);
        return look;
    }

private:
    const Layer* find(LayerId id) const { return m_layers.value(static_cast<int>(id)); }

    QColor ofIndex(int index) const
    {
        if (index == drawing::kColorForeground)
            return m_foreground;
        OdCmEntityColor color;
        color.setColorIndex(static_cast<OdInt16>(index));
        return QColor(color.red(), color.green(), color.blue());
    }

    QColor colorOf(const GeometryColor& color) const
    {
        if (color.source == GeometryColor::Source::True)
            return QColor(QRgb(color.value));
        if (color.source == GeometryColor::Source::Index)
            return ofIndex(static_cast<int>(color.value));
        const Layer* layer = find(static_cast<LayerId>(color.value));
        if (!layer)
            return m_foreground;
        return layer->properties.trueColor ? QColor(QRgb(*layer->properties.trueColor))
                                           : ofIndex(layer->properties.colorIndex);
    }

    QHash<int, const Layer*> m_layers;
    QColor m_foreground;
};

} // namespace

std::vector<GroupLook> looksOf(const drawing::Geometry& geometry,
    const std::vector<drawing::Layer>& layers, bool darkBackground)
{
    const Looks looks(layers, darkBackground);
    std::vector<GroupLook> result;
    result.reserve(geometry.groups.size());
    for (const GeometryGroup& group : geometry.groups)
        result.push_back(looks.of(group, geometry.owners[static_cast<std::size_t>(group.owners)]));
    return result;
}
