#include "verbs.h"

#include "check/findingprinters.h"
#include "check/findings.h"
#include "check/mends.h"
#include "check/rulefile.h"
#include "check/rules.h"
#include "drawing.h"
#include "texts.h"
#include "translation/layertranslation.h"

namespace layertool {

namespace {

using drawing::Drawing;

constexpr OptionRow kOptions[] = {
    {"standard", OptionKind::File,
        QT_TRANSLATE_NOOP(
            "layertool", "标准：图形（*.dxf，其中的图层）或规则文件（*.json）；可多次给出。"),
        "", true},
    {"baseline", OptionKind::File,
        QT_TRANSLATE_NOOP("layertool", "已知的发现，由 --format baseline 写成；它们不再报告。")},
};

/// The common base of `check` and `fix`, which reads the standard.
class StandardVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    std::vector<Column> columns() const override;
    std::unique_ptr<Printer> printer(const QString& format, const Printing& printing) const override
    {
        return makeFindingPrinter(format, printing);
    }

protected:
    void addAll(const std::vector<Finding>& findings, const Drawing& drawing, Result& result) const;

    LayerRules m_rules;

private:
    Baseline m_baseline;
};

Expected<void> StandardVerb::prepare(const Arguments& arguments)
{
    if (!arguments.isSet("standard"))
        return tl::make_unexpected(Error{Texts::tr("缺少 --standard：按什么标准检查？")});
    auto rules = readRules(arguments.values("standard"));
    if (!rules)
        return tl::make_unexpected(std::move(rules.error()));
    m_rules = std::move(*rules);
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

/// Checks drawings against a standard.
class CheckVerb : public StandardVerb
{
public:
    Expected<void> run(Drawing& drawing, const Job&, Result& result) override
    {
        addAll(checkDrawing(drawing, m_rules), drawing, result);
        return {};
    }
};

/// Corrects what needs no decision and reports the rest.
class FixVerb : public StandardVerb
{
public:
    Expected<void> run(Drawing& drawing, const Job&, Result& result) override
    {
        if (auto mended = mendDrawing(drawing, m_rules, result); !mended)
            return mended;
        addAll(checkDrawing(drawing, m_rules), drawing, result);
        return {};
    }
};

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
