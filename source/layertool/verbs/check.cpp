#include "verbs.h"

#include "check/findingprinters.h"
#include "check/findings.h"
#include "check/rulefile.h"
#include "check/rules.h"
#include "drawing.h"
#include "layerfields.h"
#include "layertranslation.h"
#include "namerule.h"
#include "renaming.h"
#include "texts.h"

#include <algorithm>

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::Layer;

constexpr OptionRow kOptions[] = {
    {"standard", OptionKind::File,
        QT_TRANSLATE_NOOP(
            "layertool", "标准：图形（*.dxf，其中的图层）或规则文件（*.json）；可多次给出。"),
        "", true},
    {"baseline", OptionKind::File,
        QT_TRANSLATE_NOOP("layertool", "已知的发现，由 --format baseline 写成；它们不再报告。")},
};

/// What `check` and `fix` have in common: the standard.
class StandardVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    std::vector<Column> columns() const override;
    std::unique_ptr<Printer> printer(
        const QString& format, const Printing& printing, QIODevice& out) const override
    {
        return makeFindingPrinter(format, printing, out);
    }

protected:
    void addAll(const std::vector<Finding>& findings, const Drawing& drawing, Result& result) const;

    LayerRules m_rules;

private:
    Baseline m_baseline;
};

Expected<void> StandardVerb::prepare(const Arguments& arguments)
{
    for (const char* name : {"0", "Defpoints"})
        m_rules.exempt.add(QLatin1String(name));
    if (!arguments.isSet("standard"))
        return tl::make_unexpected(Error{Texts::tr("缺少 --standard：按什么标准检查？")});
    for (const QString& path : arguments.values("standard")) {
        const auto read =
            isRuleFile(path) ? readRuleFile(path, m_rules) : readStandardDrawing(path, m_rules);
        if (!read)
            return read;
    }
    return arguments.isSet("baseline") ? m_baseline.read(arguments.value("baseline"))
                                       : Expected<void>();
}

std::vector<Column> StandardVerb::columns() const
{
    return {{"rule", QT_TRANSLATE_NOOP("layertool", "规则")},
        {"level", QT_TRANSLATE_NOOP("layertool", "级别")},
        {"layer", QT_TRANSLATE_NOOP("layertool", "图层")},
        {"property", QT_TRANSLATE_NOOP("layertool", "特性")},
        {"actual", QT_TRANSLATE_NOOP("layertool", "现值")},
        {"expected", QT_TRANSLATE_NOOP("layertool", "应为")},
        {"count", QT_TRANSLATE_NOOP("layertool", "对象")},
        {"line", QT_TRANSLATE_NOOP("layertool", "行")},
        {"text", QT_TRANSLATE_NOOP("layertool", "说明")}};
}

void StandardVerb::addAll(
    const std::vector<Finding>& findings, const Drawing& drawing, Result& result) const
{
    addFindings(findings, drawing, result);
    int known = 0;
    for (int i = 0; i < result.data.size(); ++i) {
        QJsonObject finding = result.data.at(i).toObject();
        if (m_baseline.knows(finding)) {
            finding.insert(QStringLiteral("known"), true);
            result.data.replace(i, finding);
            ++known;
        }
    }
    result.counts.insert(QStringLiteral("findings"), result.data.size() - known);
    result.counts.insert(QStringLiteral("known"), known);
    result.found = result.data.size() > known;
}

/// Holds drawings against a standard.
class CheckVerb : public StandardVerb
{
public:
    Expected<void> run(Drawing& drawing, const Job&, Result& result) override
    {
        addAll(checkDrawing(drawing, m_rules), drawing, result);
        return {};
    }
};

/// Mends what can be mended without a question, and reports what is left.
class FixVerb : public StandardVerb
{
public:
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;

private:
    using Mend = Expected<int> (FixVerb::*)(
        Drawing& drawing, const std::vector<Finding>& findings, Result& result);
    struct MendRow
    {
        const char* rule;
        const char* count; ///< The word its number has in the report.
        Mend mend;
    };
    static const MendRow kMends[];
    static QString mendKey(const QString& property, const QString& layer)
    {
        return property + QLatin1Char('\n') + vnsi::foldedName(layer);
    }

    Expected<int> mendMissing(
        Drawing& drawing, const std::vector<Finding>& findings, Result& result);
    Expected<int> mendNames(Drawing& drawing, const std::vector<Finding>& findings, Result& result);
    Expected<int> mendProperties(
        Drawing& drawing, const std::vector<Finding>& findings, Result& result);
    Expected<int> mendOwn(Drawing& drawing, const std::vector<Finding>& findings, Result& result);
    Expected<int> mendUnused(
        Drawing& drawing, const std::vector<Finding>& findings, Result& result);

    QSet<QString> m_mended; ///< Properties that a layer's entities have from it now, see `mendKey`.
};

// In this order: a layer that has its standard's name has its standard's properties then.
const FixVerb::MendRow FixVerb::kMends[] = {
    {"layer-renamed", "renamed", &FixVerb::mendNames},
    {"layer-required", "layers-made", &FixVerb::mendMissing},
    {"layer-property", "properties-set", &FixVerb::mendProperties},
    {"entity-", "layers-by-layer", &FixVerb::mendOwn},
    {"layer-unused", "layers-removed", &FixVerb::mendUnused},
};

std::vector<Finding> findingsOf(const std::vector<Finding>& findings, const char* rule)
{
    std::vector<Finding> some;
    std::copy_if(
        findings.begin(), findings.end(), std::back_inserter(some), [rule](const Finding& finding) {
            return QLatin1String(finding.rule).startsWith(QLatin1String(rule));
        });
    return some;
}

Expected<int> FixVerb::mendNames(
    Drawing& drawing, const std::vector<Finding>& findings, Result& result)
{
    std::vector<Renaming> renamings;
    for (const Finding& finding : findings)
        renamings.push_back({finding.id, finding.expected});
    // The standard says the two are one layer, so what has the name already takes the other in.
    const auto renamed = renameLayers(drawing, renamings, true);
    if (!renamed)
        return tl::make_unexpected(renamed.error());
    int count = 0;
    for (const Renamed& one : *renamed) {
        count += one.outcome == Renamed::Outcome::Refused ? 0 : 1;
        if (one.outcome == Renamed::Outcome::Refused)
            result.note("rename-refused",
                Texts::tr("“%1”没有改名为“%2”：%3").arg(one.from, one.to, one.cause));
    }
    return count;
}

/// Makes the layers that are required and that the standard describes; their properties follow.
Expected<int> FixVerb::mendMissing(
    Drawing& drawing, const std::vector<Finding>& findings, Result& result)
{
    int count = 0;
    for (const Finding& finding : findings) {
        const auto standard = m_rules.layers.constFind(vnsi::foldedName(finding.layer));
        if (standard == m_rules.layers.constEnd())
            continue;
        drawing::LayerProperties properties;
        properties.name = standard->name;
        const auto added = drawing.addLayer(properties);
        count += added ? 1 : 0;
        if (!added)
            result.note("layer-refused", added.error().text);
    }
    return count;
}

Expected<int> FixVerb::mendProperties(
    Drawing& drawing, const std::vector<Finding>& findings, Result& result)
{
    int count = 0;
    for (const Finding& finding : findings) {
        const auto& fields = layerFields();
        const auto field = std::find_if(fields.begin(), fields.end(),
            [&](const LayerField& known) { return finding.property == QLatin1String(known.id); });
        const StandardLayer standard = m_rules.layers.value(vnsi::foldedName(finding.layer));
        if (finding.property == QLatin1String("linetype") && standard.target &&
            standard.target->linetypeDefinition) {
            if (const auto added = drawing.addLinetype(*standard.target->linetypeDefinition);
                !added)
                return tl::make_unexpected(added.error());
        }
        drawing::LayerProperties properties = drawing.layer(finding.id)->properties;
        field->set(properties, finding.expected);
        const auto done = drawing.setLayerProperties(finding.id, properties);
        count += done ? 1 : 0;
        if (!done)
            result.note("property-refused", done.error().text);
    }
    return count;
}

/// Maps layers onto themselves, which leaves them as they are and their entities by layer.
Expected<int> FixVerb::mendOwn(
    Drawing& drawing, const std::vector<Finding>& findings, Result& result)
{
    constexpr struct
    {
        const char* property;
        bool drawing::TranslationOptions::*option;
    } kOptionRows[] = {
        {"color", &drawing::TranslationOptions::colorByLayer},
        {"linetype", &drawing::TranslationOptions::linetypeByLayer},
        {"lineweight", &drawing::TranslationOptions::lineweightByLayer},
        {"transparency", &drawing::TranslationOptions::transparencyByLayer},
    };
    const std::vector<drawing::TargetLayer> targets = drawing::targetLayers(drawing);
    int count = 0;
    for (const auto& row : kOptionRows) {
        QSet<QString> concerned;
        for (const Finding& finding : findings) {
            if (finding.property == QLatin1String(row.property))
                concerned.insert(finding.layer);
        }
        if (concerned.isEmpty())
            continue;
        std::vector<drawing::LayerMapping> mappings;
        for (const drawing::TargetLayer& target : targets) {
            if (concerned.contains(target.name))
                mappings.push_back({target.name, target});
        }
        drawing::TranslationOptions options;
        options.inBlocks = true;
        options.*row.option = true;
        const auto report = drawing::translateLayers(drawing, mappings, options);
        if (!report)
            return tl::make_unexpected(report.error());
        for (const drawing::MappingResult& mapping : report->mappings) {
            if (mapping.isApplied())
                m_mended.insert(mendKey(row.property, mapping.to));
            else
                result.note("by-layer-refused", mapping.cause);
        }
        result.notes("by-layer", report->notices);
        count += report->appliedCount();
    }
    return count;
}

Expected<int> FixVerb::mendUnused(Drawing& drawing, const std::vector<Finding>& findings, Result&)
{
    std::vector<drawing::LayerId> unused;
    for (const Finding& finding : findings)
        unused.push_back(finding.id);
    if (unused.empty())
        return 0;
    if (const auto done = drawing.deleteLayers(unused); !done)
        return tl::make_unexpected(done.error());
    return static_cast<int>(unused.size());
}

Expected<void> FixVerb::run(Drawing& drawing, const Job&, Result& result)
{
    m_mended.clear();
    for (const MendRow& row : kMends) {
        const auto findings = findingsOf(checkDrawing(drawing, m_rules), row.rule);
        const auto count = (this->*row.mend)(drawing, findings, result);
        if (!count)
            return tl::make_unexpected(count.error());
        result.counts.insert(QLatin1String(row.count), *count);
    }
    // Entities' tags tell what they had when the drawing was opened.
    std::vector<Finding> left = checkDrawing(drawing, m_rules);
    left.erase(std::remove_if(left.begin(), left.end(),
                   [this](const Finding& finding) {
                       return QLatin1String(finding.rule).startsWith(QLatin1String("entity-")) &&
                              m_mended.contains(mendKey(finding.property, finding.layer));
                   }),
        left.end());
    addAll(left, drawing, result);
    return {};
}

} // namespace

VerbRow checkVerb()
{
    return {"check", QT_TRANSLATE_NOOP("layertool", "按图层标准检查图形；有发现时返回 1。"),
        OptionRows::of(kOptions), "text csv json sarif junit baseline", false, makeVerb<CheckVerb>};
}

VerbRow fixVerb()
{
    return {"fix",
        QT_TRANSLATE_NOOP("layertool", "改正检查所发现而不必询问的：特性、标准中的名称、对象的随层"
                                       "、无对象的图层；报告其余的。"),
        OptionRows::of(kOptions), "text csv json sarif junit", true, makeVerb<FixVerb>};
}

} // namespace layertool
