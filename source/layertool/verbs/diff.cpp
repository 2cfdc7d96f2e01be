#include "verbs.h"

#include "comparison.h"
#include "drawings.h"

namespace layertool {

namespace {

using drawing::Drawing;

/// Reports the differences between the layers of two drawings.
class DiffVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override
    {
        m_arguments = arguments;
        return {};
    }
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;
    std::vector<Column> columns() const override;

private:
    Arguments m_arguments;
};

std::vector<Column> DiffVerb::columns() const
{
    return {{"change", QT_TRANSLATE_NOOP("layertool", "差别")},
        {"name", QT_TRANSLATE_NOOP("layertool", "名称")},
        {"property", QT_TRANSLATE_NOOP("layertool", "特性")},
        {"before", QT_TRANSLATE_NOOP("layertool", "甲")},
        {"after", QT_TRANSLATE_NOOP("layertool", "乙")}};
}

Expected<void> DiffVerb::run(Drawing& drawing, const Job& job, Result& result)
{
    if (job.isAlone) {
        result.data.append(QJsonObject{
            {QStringLiteral("change"),
                !job.isSecond ? QStringLiteral("only-in-first") : QStringLiteral("only-in-second")},
            {QStringLiteral("name"), job.name}});
        result.found = true;
        return {};
    }
    drawing::Progress progress;
    const auto other = openDrawing(job.other, m_arguments, progress);
    if (!other)
        return tl::make_unexpected(other.error());
    compareDrawings(drawing, **other, result);
    return {};
}

} // namespace

VerbRow diffVerb()
{
    VerbRow row{"diff",
        QT_TRANSLATE_NOOP("layertool", "比较两个图形（或两个文件夹中同名图形）的图层和图层状态。"),
        {}, "text csv json", false, makeVerb<DiffVerb>};
    row.inputs = Inputs::Pairs;
    return row;
}

} // namespace layertool
