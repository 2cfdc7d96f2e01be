#include "layerfields.h"

#include <QRegularExpression>

#include <cmath>

namespace layertool {

namespace {

using drawing::LayerProperties;

template <bool LayerProperties::*flag>
QVariant getFlag(const LayerProperties& properties)
{
    return properties.*flag;
}

/// Accepts the truth values of spreadsheets, which depend on program and language.
template <bool LayerProperties::*flag>
bool setFlag(LayerProperties& properties, const QString& text)
{
    const QString word = text.trimmed().toLower();
    const QStringList yes{QStringLiteral("true"), QStringLiteral("1"), QStringLiteral("yes"),
        QStringLiteral("是"), QStringLiteral("真")};
    const QStringList no{QStringLiteral("false"), QStringLiteral("0"), QStringLiteral("no"),
        QStringLiteral("否"), QStringLiteral("假")};
    if (!yes.contains(word) && !no.contains(word))
        return false;
    properties.*flag = yes.contains(word);
    return true;
}

template <QString LayerProperties::*member>
QVariant getText(const LayerProperties& properties)
{
    return properties.*member;
}

template <QString LayerProperties::*member>
bool setText(LayerProperties& properties, const QString& text)
{
    properties.*member = text;
    return true;
}

/// The colour as an index, or a true colour as #RRGGBB.
QVariant getColor(const LayerProperties& properties)
{
    if (properties.trueColor)
        return QStringLiteral("#%1").arg(*properties.trueColor, 6, 16, QLatin1Char('0'));
    return properties.colorIndex;
}

bool setColor(LayerProperties& properties, const QString& text)
{
    static const QRegularExpression trueColor(QStringLiteral("^#([0-9A-Fa-f]{6})$"));
    const auto match = trueColor.match(text.trimmed());
    if (match.hasMatch()) {
        properties.trueColor = match.captured(1).toUInt(nullptr, 16);
        return true;
    }
    bool isNumber = false;
    const int index = text.trimmed().toInt(&isNumber);
    if (!isNumber || index < 1 || index > 255)
        return false;
    properties.colorIndex = index;
    properties.trueColor.reset();
    return true;
}

/// The lineweight in millimetres, or "default" for -3.
QVariant getLineweight(const LayerProperties& properties)
{
    if (properties.lineweight == -3)
        return QStringLiteral("default");
    return QString::number(properties.lineweight / 100.0, 'f', 2);
}

bool setLineweight(LayerProperties& properties, const QString& text)
{
    const QString word = text.trimmed().toLower();
    bool isNumber = false;
    const double millimetres =
        QString(word).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    const int hundredths =
        word == QLatin1String("default") ? -3 : static_cast<int>(std::lround(millimetres * 100));
    if ((!isNumber && hundredths != -3) || hundredths == -1 || hundredths == -2 ||
        !drawing::isLineweight(hundredths))
        return false;
    properties.lineweight = hundredths;
    return true;
}

QVariant getTransparency(const LayerProperties& properties)
{
    return properties.transparency;
}

bool setTransparency(LayerProperties& properties, const QString& text)
{
    bool isNumber = false;
    const int percent = text.trimmed().toInt(&isNumber);
    if (!isNumber || percent < 0 || percent > drawing::kMostTransparent)
        return false;
    properties.transparency = percent;
    return true;
}

} // namespace

const std::vector<LayerField>& layerFields()
{
    static const std::vector<LayerField> fields{
        {"name", QT_TRANSLATE_NOOP("layertool", "名称"), getText<&LayerProperties::name>,
            setText<&LayerProperties::name>},
        {"off", QT_TRANSLATE_NOOP("layertool", "关"), getFlag<&LayerProperties::off>,
            setFlag<&LayerProperties::off>},
        {"frozen", QT_TRANSLATE_NOOP("layertool", "冻结"), getFlag<&LayerProperties::frozen>,
            setFlag<&LayerProperties::frozen>},
        {"locked", QT_TRANSLATE_NOOP("layertool", "锁定"), getFlag<&LayerProperties::locked>,
            setFlag<&LayerProperties::locked>},
        {"plotted", QT_TRANSLATE_NOOP("layertool", "打印"), getFlag<&LayerProperties::plotted>,
            setFlag<&LayerProperties::plotted>},
        {"frozen-in-new-viewports", QT_TRANSLATE_NOOP("layertool", "新视口冻结"),
            getFlag<&LayerProperties::frozenInNewViewports>,
            setFlag<&LayerProperties::frozenInNewViewports>},
        {"color", QT_TRANSLATE_NOOP("layertool", "颜色"), getColor, setColor},
        {"linetype", QT_TRANSLATE_NOOP("layertool", "线型"), getText<&LayerProperties::linetype>,
            setText<&LayerProperties::linetype>},
        {"lineweight", QT_TRANSLATE_NOOP("layertool", "线宽"), getLineweight, setLineweight},
        {"transparency", QT_TRANSLATE_NOOP("layertool", "透明度"), getTransparency,
            setTransparency},
        {"plot-style", QT_TRANSLATE_NOOP("layertool", "打印样式"),
            getText<&LayerProperties::plotStyle>, setText<&LayerProperties::plotStyle>},
        {"description", QT_TRANSLATE_NOOP("layertool", "说明"),
            getText<&LayerProperties::description>, setText<&LayerProperties::description>},
    };
    return fields;
}

std::vector<Column> contentColumns()
{
    return {{"current", QT_TRANSLATE_NOOP("layertool", "当前")},
        {"model", QT_TRANSLATE_NOOP("layertool", "模型")},
        {"layouts", QT_TRANSLATE_NOOP("layertool", "布局")},
        {"blocks", QT_TRANSLATE_NOOP("layertool", "块中")},
        {"used-in-blocks", QT_TRANSLATE_NOOP("layertool", "所在的块")}};
}

std::vector<Column> layerColumns()
{
    std::vector<Column> columns;
    for (const LayerField& field : layerFields())
        columns.push_back({field.id, field.text});
    return columns;
}

} // namespace layertool
