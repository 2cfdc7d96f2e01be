#include "verbs.h"

#include "drawingpart.h"
#include "drawings.h"
#include "namerule.h"
#include "texts.h"

#include <QDir>
#include <QSet>

#include <map>

namespace layertool {

namespace {

using drawing::Drawing;

constexpr OptionRow kOptions[] = {
    {"by", OptionKind::Choice,
        QT_TRANSLATE_NOOP(
            "layertool", "layer：每个图层一个图形（默认）；field：图层名第一段相同的一个图形。"),
        "layer field"},
    {"separator", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "图层名各段之间的分隔符；不给时为“-”。")},
};

/// Splits each drawing by layer or by the first field of the layers' names.
class SplitVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;
    Expected<void> write(
        Drawing& drawing, const Job& job, drawing::Progress& progress, Result& result) override;
    std::vector<Column> columns() const override;

private:
    struct Part
    {
        QString name;     ///< The layer or field.
        QString fileName; ///< Without suffix.
        int entities = 0;
    };

    QString groupOf(const QString& layer) const;

    Arguments m_arguments;
    bool m_byField = false;
    QString m_separator;
    std::vector<Part> m_parts; ///< For the current drawing.
};

Expected<void> SplitVerb::prepare(const Arguments& arguments)
{
    m_arguments = arguments;
    m_byField = arguments.value("by") == QLatin1String("field");
    m_separator = arguments.value("separator", QStringLiteral("-"));
    if (arguments.isSet("in-place"))
        return tl::make_unexpected(Error{Texts::tr("split 写到 --out 所指的文件夹。")});
    if (m_separator.isEmpty())
        return tl::make_unexpected(Error{Texts::tr("--separator 不能为空。")});
    return {};
}

std::vector<Column> SplitVerb::columns() const
{
    return {{"part", QT_TRANSLATE_NOOP("layertool", "部分")},
        {"entities", QT_TRANSLATE_NOOP("layertool", "对象")},
        {"file", QT_TRANSLATE_NOOP("layertool", "文件")}};
}

QString SplitVerb::groupOf(const QString& layer) const
{
    return m_byField ? layer.section(m_separator, 0, 0) : layer;
}

Expected<void> SplitVerb::run(Drawing& drawing, const Job& job, Result& result)
{
    std::map<QString, int> counts; // The key is the group's name as it first occurred.
    QHash<QString, QString> spelled;
    for (const drawing::Entity& entity : drawing.entities()) {
        const drawing::Layer* const layer = drawing.layer(entity.layer);
        if (!layer || !isPlaced(drawing, entity))
            continue;
        const QString group = groupOf(layer->properties.name);
        ++counts[*spelled.insert(
            vnsi::foldedName(group), spelled.value(vnsi::foldedName(group), group))];
    }
    m_parts.clear();
    QSet<QString> taken;
    for (const auto& [name, entities] : counts) {
        const QString base = safeFileName(name);
        QString fileName = base;
        for (int number = 2; taken.contains(vnsi::foldedName(fileName)); ++number)
            fileName = QStringLiteral("%1~%2").arg(base).arg(number);
        taken.insert(vnsi::foldedName(fileName));
        m_parts.push_back({name, fileName, entities});
        result.data.append(
            QJsonObject{{QStringLiteral("part"), name}, {QStringLiteral("entities"), entities},
                {QStringLiteral("file"), QFileInfo(job.name).completeBaseName() + QLatin1Char('/') +
                                             fileName + QStringLiteral(".dxf")}});
    }
    result.counts.insert(QStringLiteral("parts"), static_cast<int>(m_parts.size()));
    return {};
}

/// Each part is made from the original again, so that none contains traces of another.
Expected<void> SplitVerb::write(
    Drawing&, const Job& job, drawing::Progress& progress, Result& result)
{
    const QFileInfo output(job.output);
    const QDir folder(output.dir().filePath(output.completeBaseName()));
    result.output = folder.path();
    for (size_t i = 0; i < m_parts.size(); ++i) {
        auto opened = openDrawing(job.input, m_arguments, progress);
        if (!opened)
            return tl::make_unexpected(opened.error());
        Drawing& drawing = **opened;
        drawing::DrawingStep step(drawing, m_parts[i].name);
        const auto isOfPart = [&](const QString& layer) {
            return vnsi::isSameName(groupOf(layer), m_parts[i].name);
        };
        if (auto kept = keepOnly(drawing, isOfPart); !kept)
            return kept;
        step.commit();
        const QString staged =
            QDir(job.staging).filePath(QStringLiteral("%1-%2.dxf").arg(job.number).arg(i));
        result.staged.push_back(
            {staged, folder.filePath(m_parts[i].fileName + QStringLiteral(".dxf"))});
        if (auto saved = drawing.save(staged, &progress); !saved)
            return saved;
    }
    return {};
}

} // namespace

VerbRow splitVerb()
{
    return {"split",
        QT_TRANSLATE_NOOP(
            "layertool", "拆分图形：每个图层（或图层名的第一段）成为一个完整的图形。"),
        OptionRows::of(kOptions), "text csv json", true, makeVerb<SplitVerb>};
}

} // namespace layertool
