#include "grouplook.h"

#include "CmColor.h"
#include "layers/colorindex.h"
#include "layers/layermask.h"

#include <QHash>

#include <algorithm>
#include <deque>

namespace {

using drawing::GeometryColor;
using drawing::GeometryGroup;
using drawing::GeometrySetting;
using drawing::Layer;
using drawing::LayerId;
using drawing::LayerProperties;
using drawing::LinetypePatternPointer;
using drawing::LinetypePatterns;

/// The lineweight of lines with the default lineweight.
constexpr int kUsualLineweight = 25;

class Looks
{
public:
    Looks(const drawing::Geometry& geometry, const LookSource& source)
        : m_ownLinetypes(*geometry.linetypes),
          m_layerLinetypes(source.linetypes ? *source.linetypes : *geometry.linetypes),
          m_foreground(source.isDark ? Qt::white : Qt::black),
          m_isThroughViewports(source.viewport != nullptr)
    {
        for (const Layer& layer : source.layers) {
            const auto at = static_cast<std::size_t>(layer.id);
            if (at >= m_layers.size())
                m_layers.resize(std::max(at + 1, source.layers.size()));
            m_layers[at] = &layer;
        }
        if (source.viewport)
            overrideIn(*source.viewport);
    }

    GroupLook of(const GeometryGroup& group, const std::vector<LayerId>& owners) const
    {
        GroupLook look;
        const Layer* layer = find(group.layer);
        const Layer* whole = find(group.whole);
        const bool hidden = (layer && (layer->properties.off || layer->properties.frozen)) ||
                            (whole && whole->properties.off);
        look.visible = !hidden && group.isThroughViewports == m_isThroughViewports &&
                       std::none_of(owners.begin(), owners.end(), [this](LayerId owner) {
                           const Layer* around = find(owner);
                           return around && around->properties.frozen;
                       });
        look.counts = !whole || !layer || !drawing::isNeverPlotted(layer->properties.name);
        look.color = colorOf(group.style.color);
        look.color.setAlphaF(
            1 - settingOf(group.style.transparency, &LayerProperties::transparency) / 100.0);
        look.linetype = linetypeOf(group.style.linetype);
        look.lineweight = settingOf(group.style.lineweight, &LayerProperties::lineweight);
        if (look.lineweight < 0)
            look.lineweight = kUsualLineweight;
        return look;
    }

private:
    /// Applies the overrides of a viewport.
    void overrideIn(const drawing::SheetViewport& viewport)
    {
        const auto own = [this](LayerId id) -> LayerProperties* {
            const Layer* layer = find(id);
            if (!layer)
                return nullptr;
            m_overridden.push_back(*layer);
            m_layers[static_cast<std::size_t>(id)] = &m_overridden.back();
            return &m_overridden.back().properties;
        };
        for (const drawing::LayerInViewport& layer : viewport.overridden) {
            if (LayerProperties* properties = own(layer.layer))
                *properties = drawing::maskedProperties(
                    *properties, layer.shown, drawing::LayerOverrides::kProperties);
        }
        for (const LayerId id : viewport.frozen) {
            if (LayerProperties* properties = own(id))
                properties->frozen = true;
        }
    }

    const Layer* find(LayerId id) const
    {
        const auto at = static_cast<std::size_t>(static_cast<int>(id));
        return id != LayerId::None && at < m_layers.size() ? m_layers[at] : nullptr;
    }

    int settingOf(const GeometrySetting& setting, int LayerProperties::*property) const
    {
        if (setting.layer == LayerId::None)
            return setting.value;
        const Layer* layer = find(setting.layer);
        return layer ? layer->properties.*property : LayerProperties().*property;
    }

    LinetypePatternPointer linetypeOf(const GeometrySetting& setting) const
    {
        if (setting.layer == LayerId::None)
            return m_ownLinetypes.at(setting.value);
        const Layer* layer = find(setting.layer);
        if (!layer)
            return nullptr;
        const QString& name = layer->properties.linetype;
        auto known = m_linetypesOfLayers.constFind(name);
        if (known == m_linetypesOfLayers.constEnd())
            known =
                m_linetypesOfLayers.insert(name, m_layerLinetypes.at(m_layerLinetypes.find(name)));
        return *known;
    }

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

    std::vector<const Layer*> m_layers; ///< By id; null for ids without a layer.
    std::deque<Layer> m_overridden;     ///< A deque keeps pointers to its elements valid.
    const LinetypePatterns& m_ownLinetypes;
    const LinetypePatterns& m_layerLinetypes;
    /// By the names as layers spell them, which saves folding their letters for each group.
    mutable QHash<QString, LinetypePatternPointer> m_linetypesOfLayers;
    QColor m_foreground;
    bool m_isThroughViewports = false;
};

} // namespace

std::vector<GroupLook> looksOf(const drawing::Geometry& geometry, const LookSource& source)
{
    const Looks looks(geometry, source);
    std::vector<GroupLook> result;
    result.reserve(geometry.groups.size());
    for (const GeometryGroup& group : geometry.groups)
        result.push_back(looks.of(group, geometry.owners[static_cast<std::size_t>(group.owners)]));
    return result;
}
