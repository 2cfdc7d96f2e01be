#include "layercolumns.h"

#include "CmColor.h"
#include "benchtexts.h"
#include "lineweights.h"
#include "vncolortext.h"
#include "vnstrings.h"

#include "layers/layermask.h"

#include <QRegularExpression>

#include <iterator>

using drawing::LayerProperties;

namespace {

constexpr int kMostTransparency = drawing::kMostTransparent;
constexpr qint64 kTrueColors = 1 << 16; // True colours are sorted after index colours.

QString translated(const char* text)
{
    return Texts::tr(text);
}

using Source = const LayerProperties& (*)(const LayerRow& row);

const LayerProperties& own(const LayerRow& row)
{
    return row.properties();
}

const LayerProperties& here(const LayerRow& row)
{
    return row.layers.inViewport(row.at);
}

template <Source From>
QString colorText(const LayerRow& row)
{
    return layerColorText(From(row));
}

template <Source From>
qint64 colorNumber(const LayerRow& row)
{
    const LayerProperties& p = From(row);
    return p.trueColor ? kTrueColors + *p.trueColor : p.colorIndex;
}

template <Source From>
QString lineweightText(const LayerRow& row)
{
    return host::lineweightText(From(row).lineweight);
}

template <Source From>
QString transparencyText(const LayerRow& row)
{
    return QString::number(From(row).transparency);
}

template <Source From, auto Member>
QString textOf(const LayerRow& row)
{
    return From(row).*Member;
}

template <Source From, auto Member>
qint64 numberOf(const LayerRow& row)
{
    return From(row).*Member;
}

qint64 isOn(const LayerRow& row)
{
    return row.properties().off ? 0 : 1;
}

qint64 isCurrent(const LayerRow& row)
{
    return row.layers.isCurrent(row.at) ? 1 : 0;
}

qint64 isFrozenHere(const LayerRow& row)
{
    return row.layers.isFrozenInViewport(row.at) ? 1 : 0;
}

qint64 entityCount(const LayerRow& row)
{
    return row.layer().entityCount;
}

QString entityCountText(const LayerRow& row)
{
    return QString::number(row.layer().entityCount);
}

template <auto Member>
bool setText(const QString& text, LayerProperties& properties)
{
    properties.*Member = text;
    return true;
}

/// Sets a flag from its own words or from the usual words for yes and no in tables.
template <int Column, auto Member, bool IsReversed = false>
bool setFlag(const QString& text, LayerProperties& properties)
{
    bool value = false;
    if (!LayerColumns::at(Column).readFlag(text, value))
        return false;
    properties.*Member = value != IsReversed;
    return true;
}

bool setColor(const QString& text, LayerProperties& properties)
{
    static const QRegularExpression parts(
        QStringLiteral("^(\\d{1,3})\\s*[,，]\\s*(\\d{1,3})\\s*[,，]\\s*(\\d{1,3})$"));
    if (const auto match = parts.match(text); match.hasMatch()) {
        quint32 rgb = 0;
        for (int part = 1; part <= 3; ++part) {
            const int value = match.capturedRef(part).toInt();
            if (value > 255)
                return false;
            rgb = rgb << 8 | static_cast<quint32>(value);
        }
        properties.trueColor = rgb;
        return true;
    }
    LayerProperties candidate;
    for (int index = 1; index <= 255; ++index) {
        candidate.colorIndex = index;
        if (text.compare(layerColorText(candidate), Qt::CaseInsensitive) != 0 &&
            text != QString::number(index))
            continue;
        properties.colorIndex = index;
        properties.trueColor.reset();
        return true;
    }
    return false;
}

bool setLineweight(const QString& text, LayerProperties& properties)
{
    for (const int weight : drawing::kLineweights) {
        const QString millimetres = QString::number(weight / 100.0, 'f', 2);
        const bool isMeant = text.compare(host::lineweightText(weight), Qt::CaseInsensitive) == 0 ||
                             (weight >= 0 && text == millimetres);
        if (!isMeant || weight == -1 || weight == -2) // A layer cannot be ByLayer or ByBlock.
            continue;
        properties.lineweight = weight;
        return true;
    }
    return false;
}

bool setTransparency(const QString& text, LayerProperties& properties)
{
    bool isNumber = false;
    const int percent = QString(text).remove(QLatin1Char('%')).trimmed().toInt(&isNumber);
    if (!isNumber || percent < 0 || percent > kMostTransparency)
        return false;
    properties.transparency = percent;
    return true;
}

bool setFrozenHere(const QString& text, LayerProperties& properties)
{
    return setFlag<LayerColumns::Frozen, &LayerProperties::frozen>(text, properties);
}

using P = LayerProperties;
using C = LayerColumn;

constexpr LayerColumn kColumns[] = {
    {"status", QT_TRANSLATE_NOOP("workbench", "当前"), C::Mark, C::Nothing, 36,
        {"", QT_TRANSLATE_NOOP("workbench", "当前")}, {nullptr, "layer_current"}, nullptr,
        isCurrent},
    {"name", QT_TRANSLATE_NOOP("workbench", "名称"), C::Text, C::OfLayer, 170, {}, {},
        textOf<own, &P::name>, nullptr, setText<&P::name>},
    {"on", QT_TRANSLATE_NOOP("workbench", "开"), C::Flag, C::OfLayer, 30,
        {QT_TRANSLATE_NOOP("workbench", "关"), QT_TRANSLATE_NOOP("workbench", "开")},
        {"layer_off", "layer_on"}, nullptr, isOn, setFlag<LayerColumns::On, &P::off, true>},
    {"frozen", QT_TRANSLATE_NOOP("workbench", "冻结"), C::Flag, C::OfLayer, 36,
        {QT_TRANSLATE_NOOP("workbench", "解冻"), QT_TRANSLATE_NOOP("workbench", "冻结")},
        {"layer_thaw", "layer_frozed"}, nullptr, numberOf<own, &P::frozen>,
        setFlag<LayerColumns::Frozen, &P::frozen>},
    {"locked", QT_TRANSLATE_NOOP("workbench", "锁定"), C::Flag, C::OfLayer, 36,
        {QT_TRANSLATE_NOOP("workbench", "解锁"), QT_TRANSLATE_NOOP("workbench", "锁定")},
        {"layer_unlock", "layer_lock"}, nullptr, numberOf<own, &P::locked>,
        setFlag<LayerColumns::Locked, &P::locked>},
    {"plotted", QT_TRANSLATE_NOOP("workbench", "打印"), C::Flag, C::OfLayer, 36,
        {QT_TRANSLATE_NOOP("workbench", "不打印"), QT_TRANSLATE_NOOP("workbench", "打印")},
        {"layer_noprint", "layer_print"}, nullptr, numberOf<own, &P::plotted>,
        setFlag<LayerColumns::Plotted, &P::plotted>},
    {"color", QT_TRANSLATE_NOOP("workbench", "颜色"), C::Color, C::OfLayer, 90, {}, {},
        colorText<own>, colorNumber<own>, setColor},
    {"linetype", QT_TRANSLATE_NOOP("workbench", "线型"), C::Linetype, C::OfLayer, 100, {}, {},
        textOf<own, &P::linetype>, nullptr, setText<&P::linetype>},
    {"lineweight", QT_TRANSLATE_NOOP("workbench", "线宽"), C::Lineweight, C::OfLayer, 70, {}, {},
        lineweightText<own>, numberOf<own, &P::lineweight>, setLineweight},
    {"transparency", QT_TRANSLATE_NOOP("workbench", "透明度"), C::Transparency, C::OfLayer, 56, {},
        {}, transparencyText<own>, numberOf<own, &P::transparency>, setTransparency},
    {"count", QT_TRANSLATE_NOOP("workbench", "对象数"), C::Count, C::Nothing, 60, {}, {},
        entityCountText, entityCount},
    {"description", QT_TRANSLATE_NOOP("workbench", "说明"), C::Text, C::OfLayer, 160, {}, {},
        textOf<own, &P::description>, nullptr, setText<&P::description>},
    {"vpFrozen", QT_TRANSLATE_NOOP("workbench", "视口冻结"), C::Flag, C::FrozenInViewport, 60,
        {QT_TRANSLATE_NOOP("workbench", "解冻"), QT_TRANSLATE_NOOP("workbench", "冻结")},
        {"layer_thaw", "layer_frozed"}, nullptr, isFrozenHere, setFrozenHere},
    {"vpColor", QT_TRANSLATE_NOOP("workbench", "视口颜色"), C::Color, C::OfViewport, 90, {}, {},
        colorText<here>, colorNumber<here>, setColor, drawing::kStateColor},
    {"vpLinetype", QT_TRANSLATE_NOOP("workbench", "视口线型"), C::Linetype, C::OfViewport, 100, {},
        {}, textOf<here, &P::linetype>, nullptr, setText<&P::linetype>, drawing::kStateLinetype},
    {"vpLineweight", QT_TRANSLATE_NOOP("workbench", "视口线宽"), C::Lineweight, C::OfViewport, 70,
        {}, {}, lineweightText<here>, numberOf<here, &P::lineweight>, setLineweight,
        drawing::kStateLineweight},
    {"vpTransparency", QT_TRANSLATE_NOOP("workbench", "视口透明度"), C::Transparency, C::OfViewport,
        70, {}, {}, transparencyText<here>, numberOf<here, &P::transparency>, setTransparency,
        drawing::kStateTransparency},
};

} // namespace

QString LayerColumn::displayTitle() const
{
    return translated(title);
}

QString LayerColumn::word(bool isSet) const
{
    const char* const found = words[isSet ? 1 : 0];
    return found && *found ? translated(found) : QString();
}

QString LayerColumn::displayText(const LayerRow& row) const
{
    return text ? text(row) : word(number(row) != 0);
}

bool LayerColumn::readFlag(const QString& typed, bool& value) const
{
    static const QStringList yes = {
        QStringLiteral("1"), QStringLiteral("true"), QStringLiteral("yes"), QStringLiteral("是")};
    static const QStringList no = {
        QStringLiteral("0"), QStringLiteral("false"), QStringLiteral("no"), QStringLiteral("否")};
    const QString lower = typed.toLower();
    value = lower == word(true).toLower() || yes.contains(lower);
    return value || lower == word(false).toLower() || no.contains(lower);
}

int LayerColumns::count()
{
    return static_cast<int>(std::size(kColumns));
}

const LayerColumn& LayerColumns::at(int column)
{
    return kColumns[column];
}

int LayerColumns::find(const QString& key)
{
    for (int column = 0; column < count(); ++column) {
        if (key == QLatin1String(at(column).key))
            return column;
    }
    return -1;
}

QString layerColorText(const LayerProperties& properties)
{
    OdCmColor color;
    if (properties.trueColor)
        color.setRGB(static_cast<OdUInt8>(*properties.trueColor >> 16),
            static_cast<OdUInt8>(*properties.trueColor >> 8),
            static_cast<OdUInt8>(*properties.trueColor));
    else
        color.setColorIndex(static_cast<OdInt16>(properties.colorIndex));
    return vnsi::vnutOdStringToQString(vnsi::formatColor(color, {}, {}));
}
