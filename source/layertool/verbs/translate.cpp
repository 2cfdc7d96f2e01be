#include "verbs.h"

#include "drawing.h"
#include "standardsfile.h"
#include "texts.h"
#include "translation/translationlog.h"

#include <QFileInfo>

#include <algorithm>

namespace layertool {

namespace {

constexpr struct
{
    const char* name;
    bool drawing::TranslationOptions::*option;
} kTranslationOptions[] = {
    {"color-bylayer", &drawing::TranslationOptions::colorByLayer},
    {"linetype-bylayer", &drawing::TranslationOptions::linetypeByLayer},
    {"transparency-bylayer", &drawing::TranslationOptions::transparencyByLayer},
    {"blocks", &drawing::TranslationOptions::inBlocks},
    {"log", &drawing::TranslationOptions::writeLog},
};

constexpr OptionRow kOptions[] = {
    {"standard", OptionKind::File,
        QT_TRANSLATE_NOOP("layertool", "标准文件：目标图层，以及其中保存的图层映射。")},
    {"map-same", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "也把图形中与目标图层同名的图层映射过去。")},
    {"option", OptionKind::Choice,
        QT_TRANSLATE_NOOP("layertool", "转换选项，可多次给出：对象的颜色、线型、透明度改为随层，也"
                                       "转换块中的对象，在输出图形旁写日志"
                                       "（.log）。"),
        "color-bylayer linetype-bylayer transparency-bylayer blocks log", true},
};

constexpr const char* kOutcomes[] = {"left-out", "made", "changed", "unchanged"};

/// Translates drawings to the layers of a standard, as the LAYTRANS command does.
class TranslateVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    Expected<void> run(drawing::Drawing& drawing, const Job& job, Result& result) override;
    Expected<void> write(drawing::Drawing& drawing, const Job& job, drawing::Progress& progress,
        Result& result) override;
    std::vector<Column> columns() const override;

private:
    drawing::Standard m_standard;
    drawing::TranslationOptions m_options;
    bool m_mapsSame = false;
    drawing::TranslationReport m_report; ///< For the current drawing.
};

Expected<void> TranslateVerb::prepare(const Arguments& arguments)
{
    if (!arguments.isSet("standard"))
        return tl::make_unexpected(Error{Texts::tr("缺少 --standard：按哪个标准文件转换？")});
    auto standard = drawing::readStandard(arguments.value("standard"));
    if (!standard)
        return tl::make_unexpected(standard.error());
    m_standard = std::move(*standard);
    m_mapsSame = arguments.isSet("map-same");
    for (const auto& row : kTranslationOptions)
        m_options.*row.option = arguments.values("option").contains(QLatin1String(row.name));
    return {};
}

std::vector<Column> TranslateVerb::columns() const
{
    return {{"from", QT_TRANSLATE_NOOP("layertool", "旧图层名")},
        {"to", QT_TRANSLATE_NOOP("layertool", "新图层名")},
        {"outcome", QT_TRANSLATE_NOOP("layertool", "结果")},
        {"translated", QT_TRANSLATE_NOOP("layertool", "转换的对象")},
        {"left-in-blocks", QT_TRANSLATE_NOOP("layertool", "留在块中")},
        {"source-removed", QT_TRANSLATE_NOOP("layertool", "旧图层已删除")},
        {"cause", QT_TRANSLATE_NOOP("layertool", "原因")}};
}

Expected<void> TranslateVerb::run(drawing::Drawing& drawing, const Job&, Result& result)
{
    std::vector<drawing::LayerMapping> mappings = m_standard.mappings;
    if (m_mapsSame) {
        auto same = drawing::sameNamedMappings(drawing, m_standard.layers, mappings);
        mappings.insert(mappings.end(), std::make_move_iterator(same.begin()),
            std::make_move_iterator(same.end()));
    }
    auto report = drawing::translateLayers(drawing, mappings, m_options);
    if (!report)
        return tl::make_unexpected(report.error());
    m_report = std::move(*report);
    for (const drawing::MappingResult& mapping : m_report.mappings) {
        result.data.append(
            QJsonObject{{QStringLiteral("from"), mapping.from}, {QStringLiteral("to"), mapping.to},
                {QStringLiteral("outcome"),
                    QLatin1String(kOutcomes[static_cast<size_t>(mapping.target)])},
                {QStringLiteral("translated"), mapping.translated},
                {QStringLiteral("left-in-blocks"), mapping.leftInBlocks},
                {QStringLiteral("source-removed"), mapping.sourceRemoved},
                {QStringLiteral("cause"), mapping.cause}});
        if (!mapping.isApplied())
            result.note("mapping-left-out", mapping.cause);
        result.notes("mapping", mapping.notices);
    }
    result.notes("standard", m_standard.notices);
    result.notes("translation", m_report.notices);
    const int applied = m_report.appliedCount();
    const int moved = m_report.translatedCount();
    result.counts = {{QStringLiteral("mappings-applied"), applied},
        {QStringLiteral("mappings-left-out"), static_cast<int>(m_report.mappings.size()) - applied},
        {QStringLiteral("entities-translated"), moved},
        {QStringLiteral("entities-untouched"), m_report.entities - moved}};
    return {};
}

Expected<void> TranslateVerb::write(
    drawing::Drawing& drawing, const Job& job, drawing::Progress& progress, Result& result)
{
    auto done = Verb::write(drawing, job, progress, result);
    if (!done || !m_options.writeLog)
        return done;
    const QString place = result.staged.empty() ? job.output : result.staged.back().from;
    const QString log = drawing::translationLogPath(place);
    if (!result.staged.empty())
        result.staged.insert(result.staged.begin(), {log, drawing::translationLogPath(job.output)});
    return drawing::writeTranslationLog(
        log, drawing::translationLog(job.output, m_report, m_options));
}

} // namespace

VerbRow translateVerb()
{
    return {"translate",
        QT_TRANSLATE_NOOP(
            "layertool", "按标准文件转换图层：改名、合并、改特性、把对象移到目标图层。"),
        OptionRows::of(kOptions), "text csv json", true, makeVerb<TranslateVerb>};
}

} // namespace layertool
