#include "rules.h"

#include "drawing.h"
#include "file/symbolname.h"
#include "layercontent.h"
#include "layerfields.h"
#include "namerule.h"
#include "texts.h"

#include <algorithm>

namespace layertool {

struct CheckContext
{
    const drawing::Drawing& drawing;
    const LayerRules& rules;
    LayerContents contents;
    const Rule* rule = nullptr;
    Level level = Level::Off;
    std::vector<Finding> findings = {};

    Finding& add(const drawing::Layer* layer, const QString& text)
    {
        Finding finding;
        finding.rule = rule->id;
        finding.level = level;
        finding.text = text;
        if (layer) {
            finding.layer = layer->properties.name;
            finding.id = layer->id;
            finding.count = layer->entityCount;
        }
        findings.push_back(finding);
        return findings.back();
    }
    const StandardLayer* standard(const QString& name) const
    {
        const auto found = rules.layers.find(vnsi::foldedName(name));
        return found == rules.layers.end() ? nullptr : &*found;
    }
    bool isExempt(const drawing::Layer& layer) const
    {
        return layer.dependsOnReference || rules.exempt.matches(layer.properties.name);
    }
};

namespace {

using drawing::Layer;

void checkRequired(CheckContext& context)
{
    for (const QString& pattern : context.rules.required) {
        NamePatterns one;
        one.add(pattern);
        const auto& layers = context.drawing.layers();
        if (std::any_of(layers.begin(), layers.end(),
                [&one](const Layer& layer) { return one.matches(layer.properties.name); }))
            continue;
        Finding& finding = context.add(nullptr, Texts::tr("缺少图层“%1”。").arg(pattern));
        finding.layer = pattern;
        finding.expected = pattern;
    }
}

void checkAllowed(CheckContext& context)
{
    if (context.rules.allowed.isEmpty())
        return;
    for (const Layer& layer : context.drawing.layers()) {
        const QString& name = layer.properties.name;
        if (!context.isExempt(layer) && !context.rules.allowed.matches(name) &&
            !context.standard(name))
            context.add(&layer, Texts::tr("标准中没有图层“%1”。").arg(name));
    }
}

void checkForbidden(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        if (context.rules.forbidden.matches(layer.properties.name))
            context.add(&layer, Texts::tr("不允许有图层“%1”。").arg(layer.properties.name));
    }
}

void checkNaming(CheckContext& context)
{
    if (!context.rules.naming)
        return;
    for (const Layer& layer : context.drawing.layers()) {
        if (context.isExempt(layer))
            continue;
        const QString fault = context.rules.naming->fault(layer.properties.name);
        if (!fault.isEmpty())
            context.add(
                &layer, Texts::tr("图层名“%1”不合规则：%2").arg(layer.properties.name, fault));
    }
}

void checkRenames(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        const QString to = context.rules.renames.value(vnsi::foldedName(layer.properties.name));
        if (to.isEmpty() || to == layer.properties.name)
            continue;
        Finding& finding = context.add(
            &layer, Texts::tr("图层“%1”在标准中名为“%2”。").arg(layer.properties.name, to));
        finding.property = QStringLiteral("name");
        finding.actual = layer.properties.name;
        finding.expected = to;
    }
}

void checkProperties(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        const StandardLayer* const standard = context.standard(layer.properties.name);
        if (!standard || layer.dependsOnReference)
            continue;
        for (const LayerField& field : layerFields()) {
            const QString id = QLatin1String(field.id);
            const QString actual = field.get(layer.properties).toString();
            const QString expected = standard->properties.value(id, actual);
            if (expected.compare(actual, Qt::CaseInsensitive) == 0)
                continue;
            Finding& finding = context.add(
                &layer, Texts::tr("图层“%1”的%2是“%3”，应为“%4”。")
                            .arg(layer.properties.name, Texts::tr(field.text), actual, expected));
            finding.property = id;
            finding.actual = actual;
            finding.expected = expected;
        }
    }
}

template <size_t index>
void checkOwn(CheckContext& context)
{
    constexpr struct
    {
        const char* property;
        const char* text;
    } kTexts[] = {
        {"color", QT_TRANSLATE_NOOP("layertool", "图层“%1”上有 %2 个对象的颜色不是随层。")},
        {"linetype", QT_TRANSLATE_NOOP("layertool", "图层“%1”上有 %2 个对象的线型不是随层。")},
        {"lineweight", QT_TRANSLATE_NOOP("layertool", "图层“%1”上有 %2 个对象的线宽不是随层。")},
        {"transparency",
            QT_TRANSLATE_NOOP("layertool", "图层“%1”上有 %2 个对象的透明度不是随层。")},
    };
    for (const Layer& layer : context.drawing.layers()) {
        const int count = context.contents.of(layer.id).own[index];
        if (count == 0)
            continue;
        Finding& finding = context.add(
            &layer, Texts::tr(kTexts[index].text).arg(layer.properties.name).arg(count));
        finding.property = QLatin1String(kTexts[index].property);
        finding.count = count;
    }
}

void checkOnZero(CheckContext& context)
{
    const Layer* const zero = context.drawing.findLayer(QStringLiteral("0"));
    if (!zero)
        return;
    const int count = context.contents.of(zero->id).placed();
    if (count > 0)
        context.add(zero, Texts::tr("图层 0 上有 %1 个对象。").arg(count)).count = count;
}

void checkOnDefpoints(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        const int count = context.contents.of(layer.id).placed();
        if (drawing::isNeverPlotted(layer.properties.name) && count > 0)
            context
                .add(&layer, Texts::tr("图层“%1”上有 %2 个对象，不会打印。")
                                 .arg(layer.properties.name)
                                 .arg(count))
                .count = count;
    }
}

void checkBlockContent(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        const int count = context.contents.of(layer.id).blocks;
        if (layer.properties.name == QLatin1String("0") || count == 0 ||
            drawing::isNeverPlotted(layer.properties.name))
            continue;
        context
            .add(&layer, Texts::tr("块定义中有 %2 个对象在图层“%1”上，而不在图层 0 上。")
                             .arg(layer.properties.name)
                             .arg(count))
            .count = count;
    }
}

void checkEmptyNames(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        if (layer.properties.name.trimmed().isEmpty())
            context.add(&layer, Texts::tr("有一个图层没有名称。"));
    }
}

void checkUnused(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        const QString& name = layer.properties.name;
        if (!layer.used() && !context.isExempt(layer) && name != QLatin1String("0") &&
            !drawing::isNeverPlotted(name) && layer.id != context.drawing.currentLayer() &&
            !context.standard(name))
            context.add(&layer, Texts::tr("图层“%1”上没有对象。").arg(name));
    }
}

void checkDuplicates(CheckContext& context)
{
    QHash<QString, const Layer*> known;
    for (const Layer& layer : context.drawing.layers()) {
        const Layer*& first = known[vnsi::foldedName(layer.properties.name)];
        if (first)
            context.add(&layer, Texts::tr("图层“%1”与“%2”只有大小写不同。")
                                    .arg(layer.properties.name, first->properties.name));
        else
            first = &layer;
    }
}

void checkHiddenContent(CheckContext& context)
{
    for (const Layer& layer : context.drawing.layers()) {
        if (layer.used() && (layer.properties.off || layer.properties.frozen))
            context.add(
                &layer, Texts::tr("图层“%1”%2，其上有 %3 个对象。")
                            .arg(layer.properties.name,
                                layer.properties.frozen ? Texts::tr("已冻结") : Texts::tr("已关闭"))
                            .arg(layer.entityCount));
    }
}

/// Old versions only allow short names of a few characters. Programs differ in whether they accept
/// other names.
void checkVersionLimits(CheckContext& context)
{
    if (drawing::FormatLimits::of(context.drawing.version().constData()).longNames)
        return;
    for (const Layer& layer : context.drawing.layers()) {
        const QString& name = layer.properties.name;
        if (!layer.dependsOnReference && !drawing::isOldName(name))
            context.add(&layer,
                Texts::tr("图层名“%1”超出了图形版本的限制（%2 个字符以内的字母、数字、$、-、_）。")
                    .arg(name)
                    .arg(drawing::kMostInOldFormats));
    }
}

} // namespace

const std::vector<Rule>& rules()
{
    static const std::vector<Rule> all{
        {"layer-required", Level::Error, QT_TRANSLATE_NOOP("layertool", "图形应有标准要求的图层。"),
            checkRequired, "required"},
        {"layer-forbidden", Level::Error,
            QT_TRANSLATE_NOOP("layertool", "图形不应有标准禁止的图层。"), checkForbidden,
            "forbidden"},
        {"layer-not-allowed", Level::Warning,
            QT_TRANSLATE_NOOP("layertool", "图形只应有标准允许的图层。"), checkAllowed,
            "allowed layers exempt"},
        {"layer-name", Level::Warning,
            QT_TRANSLATE_NOOP("layertool", "图层名应由标准规定的字段组成。"), checkNaming,
            "naming exempt"},
        {"layer-renamed", Level::Warning, QT_TRANSLATE_NOOP("layertool", "图层应用标准中的名称。"),
            checkRenames, "renames"},
        {"layer-property", Level::Warning,
            QT_TRANSLATE_NOOP("layertool", "图层的特性应与标准相同。"), checkProperties, "layers"},
        {"layer-name-empty", Level::Error, QT_TRANSLATE_NOOP("layertool", "图层应有名称。"),
            checkEmptyNames},
        {"layer-duplicate", Level::Error,
            QT_TRANSLATE_NOOP("layertool", "图层名不应只有大小写不同。"), checkDuplicates},
        {"layer-unused", Level::Note, QT_TRANSLATE_NOOP("layertool", "标准之外的图层上应有对象。"),
            checkUnused, "exempt layers"},
        {"layer-hidden-content", Level::Note,
            QT_TRANSLATE_NOOP("layertool", "关闭或冻结的图层上不应有对象。"), checkHiddenContent},
        {"version-limits", Level::Note,
            QT_TRANSLATE_NOOP("layertool", "图层名应在图形版本的限制之内。"), checkVersionLimits},
        {"entity-color", Level::Warning, QT_TRANSLATE_NOOP("layertool", "对象的颜色应随层。"),
            checkOwn<0>},
        {"entity-linetype", Level::Warning, QT_TRANSLATE_NOOP("layertool", "对象的线型应随层。"),
            checkOwn<1>},
        {"entity-lineweight", Level::Warning, QT_TRANSLATE_NOOP("layertool", "对象的线宽应随层。"),
            checkOwn<2>},
        {"entity-transparency", Level::Warning,
            QT_TRANSLATE_NOOP("layertool", "对象的透明度应随层。"), checkOwn<3>},
        {"entity-on-0", Level::Warning,
            QT_TRANSLATE_NOOP("layertool", "块以外的对象不应在图层 0 上。"), checkOnZero},
        {"entity-on-defpoints", Level::Warning,
            QT_TRANSLATE_NOOP("layertool", "块以外的对象不应在不打印的图层 Defpoints 上。"),
            checkOnDefpoints},
        {"block-content", Level::Note,
            QT_TRANSLATE_NOOP("layertool", "块定义中的对象应在图层 0 上。"), checkBlockContent},
    };
    return all;
}

const Rule* findRule(const QString& id)
{
    const auto found = std::find_if(rules().begin(), rules().end(),
        [&id](const Rule& rule) { return id == QLatin1String(rule.id); });
    return found == rules().end() ? nullptr : &*found;
}

std::vector<Finding> checkDrawing(const drawing::Drawing& drawing, const LayerRules& standard)
{
    CheckContext context{drawing, standard, LayerContents(drawing)};
    for (const Rule& rule : rules()) {
        context.rule = &rule;
        context.level = standard.levels.value(QLatin1String(rule.id), rule.level);
        if (context.level != Level::Off)
            rule.check(context);
    }
    return std::move(context.findings);
}

} // namespace layertool
