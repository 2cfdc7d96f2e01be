#include "layeredits.h"

#include "colorindex.h"
#include "file/drawingtexts.h"
#include "file/symbolname.h"
#include "layertablerecord.h"

#include <algorithm>
#include <utility>

namespace drawing {

namespace {

constexpr int kLongestDescription = 255;

/// The properties as the record states them. They differ from the real ones for layers that are
/// never plotted because of their name.
LayerProperties stored(LayerProperties before, const LayerProperties& after)
{
    if (isNeverPlotted(before.name) && !isNeverPlotted(after.name))
        before.plotted = !after.plotted; // Forces the flag to be written.
    return before;
}

/// Replaces line breaks, because a value of a file is a single line.
QString oneLine(QString text)
{
    for (QChar& c : text) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            c = QLatin1Char(' ');
    }
    return text;
}

} // namespace

Expected<void> LayerEdits::checkName(const QString& name, LayerId own) const
{
    const QString fault = nameRefusal(name, Texts::tr("图层名"), m_file.limits());
    if (!fault.isEmpty())
        return refusal(fault);
    const Layer* other = m_layers.find(name);
    if (other && other->id != own)
        return refusal(Texts::tr("已有名为“%1”的图层。").arg(other->properties.name));
    return {};
}

Expected<void> LayerEdits::checkRename(const LayerEntry& entry, const QString& name) const
{
    const QString& old = entry.layer.properties.name;
    if (old == QLatin1String("0"))
        return refusal(Texts::tr("图层“0”不能重命名。"));
    if (entry.layer.dependsOnReference)
        return refusal(Texts::tr("图层“%1”依赖外部参照，不能重命名。").arg(old));
    return checkName(name, entry.layer.id);
}

Expected<void> LayerEdits::checkValues(
    const LayerProperties& before, const LayerProperties& after) const
{
    const auto refuse = [&after](const char* text, const QString& value) {
        return refusal(Texts::tr(text).arg(after.name, value));
    };
    if (!isColorIndex(after.colorIndex))
        return refuse(QT_TRANSLATE_NOOP("drawing", "图层“%1”：没有颜色索引 %2。"),
            QString::number(after.colorIndex));
    if (after.trueColor && *after.trueColor > 0xffffff)
        return refuse(QT_TRANSLATE_NOOP("drawing", "图层“%1”：没有真彩色 %2。"),
            QString::number(*after.trueColor, 16));
    if (after.lineweight != before.lineweight && !isLineweight(after.lineweight))
        return refuse(QT_TRANSLATE_NOOP("drawing", "图层“%1”：没有线宽 %2。"),
            QString::number(after.lineweight));
    if (after.transparency < 0 || after.transparency > kMostTransparent)
        return refuse(QT_TRANSLATE_NOOP("drawing", "图层“%1”：透明度 %2 不在 0 到 90 之间。"),
            QString::number(after.transparency));
    // Drawings of other programs may have longer descriptions, which are kept.
    if (after.description != before.description && after.description.size() > kLongestDescription)
        return refuse(QT_TRANSLATE_NOOP("drawing", "图层“%1”：说明“%2…”超过 255 个字符。"),
            after.description.left(20));
    return {};
}

/// The properties as they will be read back from the file.
Expected<LayerProperties> LayerEdits::asStored(
    const LayerProperties& before, const LayerProperties& wanted) const
{
    LayerProperties after = wanted;
    after.name = wanted.name.trimmed();
    if (wanted.description != before.description)
        after.description = oneLine(wanted.description);
    after.plotted = wanted.plotted && !isNeverPlotted(after.name);
    const QString linetype = wanted.linetype.trimmed();
    const QString continuous = QStringLiteral("Continuous");
    if (isSameName(linetype, before.linetype))
        after.linetype = before.linetype;
    else if (const QString known = m_linetypes.spelled(linetype); !known.isNull())
        after.linetype = known;
    else if (isSameName(linetype, continuous))
        after.linetype = continuous;
    else
        return refusal(
            Texts::tr("图层“%1”：图形中没有线型“%2”。").arg(after.name, wanted.linetype));
    if (const auto checked = checkValues(before, after); !checked)
        return tl::make_unexpected(checked.error());
    return after;
}

/// Resets properties for which the format has no group to their old values and adds a notice.
void LayerEdits::dropUnsupported(const LayerProperties& before, LayerProperties& after)
{
    const FormatLimits& limits = m_file.limits();
    const auto drop = [&](bool isStored, auto LayerProperties::*member, LeftOut::Kind kind) {
        if (isStored || after.*member == before.*member)
            return;
        after.*member = before.*member;
        m_leftOut.note(kind, after.name);
    };
    drop(limits.plotFlag, &LayerProperties::plotted, LeftOut::PlotFlag);
    drop(limits.lineweight, &LayerProperties::lineweight, LeftOut::Lineweight);
    drop(limits.trueColor || !after.trueColor, &LayerProperties::trueColor, LeftOut::TrueColor);
}

void LayerEdits::needApplications(const LayerProperties& before, const LayerProperties& after)
{
    SymbolTables& tables = m_file.tables();
    if (before.transparency != after.transparency)
        tables.needAppId(QLatin1String(kTransparencyApp));
    if (before.description != after.description)
        tables.needAppId(QLatin1String(kStandardApp));
}

Expected<void> LayerEdits::setProperties(LayerId id, const LayerProperties& properties)
{
    if (!m_layers.layer(id))
        return refusal(Texts::tr("图层“%1”已不存在。").arg(properties.name));
    LayerEntry entry = m_layers.entry(id);
    const LayerProperties before = entry.layer.properties;
    auto wanted = asStored(before, properties);
    if (!wanted)
        return tl::make_unexpected(wanted.error());
    LayerProperties after = *wanted;
    if (after.name != before.name) {
        if (auto checked = checkRename(entry, after.name); !checked)
            return checked;
    }
    dropUnsupported(before, after);
    const quint64 oldStyle =
        std::exchange(entry.plotStyle, m_plotStyles.handle(after.plotStyle, entry.plotStyle));
    after.plotStyle = m_plotStyles.name(after.colorIndex, entry.plotStyle);
    if (after == before)
        return {};
    needApplications(before, after);
    entry.layer.properties = after;
    if (!entry.hasRecord) {
        m_records.add(entry);
    } else {
        const QByteArray record =
            editedLayerRecord(m_records.tags(entry), stored(before, after), after, m_file.codec());
        m_records.store(entry, entry.plotStyle == oldStyle
                                   ? record
                                   : withPlotStyle(m_file.tagList(record), entry.plotStyle));
    }
    m_layers.change(id, entry);
    return {};
}

Expected<LayerId> LayerEdits::add(const LayerProperties& properties)
{
    auto wanted = asStored({}, properties);
    if (!wanted)
        return tl::make_unexpected(wanted.error());
    if (const auto checked = checkName(wanted->name, LayerId::None); !checked)
        return tl::make_unexpected(checked.error());
    LayerEntry entry;
    entry.layer.properties = *wanted;
    dropUnsupported({}, entry.layer.properties);
    needApplications({}, entry.layer.properties);
    m_records.add(entry);
    LayerProperties& p = entry.layer.properties;
    p.plotStyle = m_plotStyles.name(p.colorIndex, entry.plotStyle);
    return m_layers.add(entry);
}

Expected<void> LayerEdits::checkTarget(LayerId target) const
{
    const Layer* layer = m_layers.layer(target);
    if (!layer)
        return refusal(Texts::tr("目标图层已不存在。"));
    if (layer->dependsOnReference)
        return refusal(
            Texts::tr("图层“%1”依赖外部参照，不能作为目标图层。").arg(layer->properties.name));
    return {};
}

/// Refuses layer 0 and the current layer, which must stay.
Expected<void> LayerEdits::checkLeaving(LayerId id) const
{
    const Layer* layer = m_layers.layer(id);
    if (!layer)
        return refusal(Texts::tr("图层已不存在。"));
    const QString& name = layer->properties.name;
    if (name == QLatin1String("0"))
        return refusal(Texts::tr("图层“0”不能删除。"));
    if (id == m_layers.current())
        return refusal(Texts::tr("当前图层“%1”不能删除。").arg(name));
    return {};
}

Expected<void> LayerEdits::checkLeaving(const std::vector<LayerId>& layers) const
{
    for (const LayerId id : layers) {
        if (auto checked = checkLeaving(id); !checked)
            return checked;
        const Layer* layer = m_layers.layer(id);
        if (layer->dependsOnReference)
            return refusal(
                Texts::tr("图层“%1”依赖外部参照，不能删除。").arg(layer->properties.name));
    }
    return {};
}

Expected<void> LayerEdits::remove(LayerId id)
{
    if (auto checked = checkLeaving(id); !checked)
        return checked;
    const Layer* layer = m_layers.layer(id);
    if (layer->used())
        return refusal(Texts::tr("图层“%1”上有 %2 个对象，不能删除。")
                           .arg(layer->properties.name)
                           .arg(layer->entityCount));
    drop(id, LayerId::None);
    return {};
}

void LayerEdits::drop(LayerId layer, LayerId mergedInto)
{
    LayerEntry entry = m_layers.entry(layer);
    if (!entry.present)
        return; // The layer was listed twice.
    m_records.remove(entry);
    entry.present = false;
    entry.mergedInto = mergedInto;
    m_layers.change(layer, entry);
}

Expected<void> LayerEdits::setCurrent(LayerId id)
{
    if (!m_layers.layer(id))
        return refusal(Texts::tr("图层已不存在。"));
    if (id == m_layers.current())
        return {};
    m_layers.setCurrent(id);
    m_file.writeVariable(
        HeaderVariable::CurrentLayer, m_file.encoded(m_layers.layer(id)->properties.name));
    return {};
}

} // namespace drawing
