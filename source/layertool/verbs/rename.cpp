#include "verbs.h"

#include "csv.h"
#include "drawing.h"
#include "layerchoice.h"
#include "namerule.h"
#include "renameresults.h"
#include "texts.h"

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerRename;
using drawing::LayerRenamed;
using drawing::NameClash;

const OptionRow kOptions[] = {
    {"from", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "一个图层的旧名；与 --to 一起给出。")},
    {"to", OptionKind::Text, QT_TRANSLATE_NOOP("layertool", "它的新名。")},
    {"table", OptionKind::File,
        QT_TRANSLATE_NOOP("layertool", "CSV 表格，每行一个旧名和一个新名；第一行可以是表头。")},
    {"regex", OptionKind::Text,
        QT_TRANSLATE_NOOP(
            "layertool", "与整个旧名相配的正则表达式，不分大小写；与 --replace 一起给出。")},
    {"replace", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "新名；\\1、\\2 等是正则表达式中括号所配的文字。")},
    mergeOption(),
};

bool isHead(const QStringList& row)
{
    const QString word = row.value(0).trimmed().toLower();
    return word == QLatin1String("from") || word == QLatin1String("name") ||
           word == QLatin1String("old") || word == QStringLiteral("旧名") ||
           word == QStringLiteral("旧图层名");
}

/// Renames layers by a pair of names, a table, or a regular expression.
class RenameVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;
    std::vector<Column> columns() const override;

private:
    Expected<void> readTable(const QString& path);
    Expected<void> readPattern(const Arguments& arguments);
    std::vector<LayerRename> renamingsIn(const Drawing& drawing) const;

    QHash<QString, QString> m_names; ///< New names; the keys are old names in lower case.
    QString m_from;                  ///< The old name when there is only one pair.
    QRegularExpression m_regex;
    QString m_replacement;
    NameClash m_clash = NameClash::Refuse;
};

Expected<void> RenameVerb::readTable(const QString& path)
{
    const auto rows = csv::read(path);
    if (!rows)
        return tl::make_unexpected(rows.error());
    for (size_t i = 0; i < rows->size(); ++i) {
        const QStringList& row = (*rows)[i];
        if (row.isEmpty() || (i == 0 && isHead(row)))
            continue;
        if (row.size() < 2 || row.at(0).isEmpty() || row.at(1).isEmpty())
            return drawing::refusal(
                Texts::tr("表格“%1”的第 %2 行应有旧名和新名。").arg(path).arg(i + 1));
        if (m_names.contains(vnsi::foldedName(row.at(0))))
            return drawing::refusal(
                Texts::tr("表格“%1”的第 %2 行又给“%3”起名。").arg(path).arg(i + 1).arg(row.at(0)));
        m_names.insert(vnsi::foldedName(row.at(0)), row.at(1));
    }
    return {};
}

Expected<void> RenameVerb::readPattern(const Arguments& arguments)
{
    if (!arguments.isSet("replace"))
        return tl::make_unexpected(Error{Texts::tr("缺少 --replace：改成什么名？")});
    auto regex = readRegex(arguments.value("regex"));
    if (!regex)
        return tl::make_unexpected(regex.error());
    m_regex = *regex;
    m_replacement = arguments.value("replace");
    return {};
}

Expected<void> RenameVerb::prepare(const Arguments& arguments)
{
    if (arguments.isSet("merge"))
        m_clash = NameClash::Merge;
    const int ways = arguments.isSet("from") + arguments.isSet("table") + arguments.isSet("regex");
    if (ways != 1)
        return tl::make_unexpected(Error{
            Texts::tr("要么用 --from 和 --to，要么用 --table，要么用 --regex 和 --replace。")});
    if (arguments.isSet("table"))
        return readTable(arguments.value("table"));
    if (arguments.isSet("regex"))
        return readPattern(arguments);
    if (!arguments.isSet("to"))
        return tl::make_unexpected(Error{Texts::tr("缺少 --to：改成什么名？")});
    m_from = arguments.value("from");
    m_names.insert(vnsi::foldedName(m_from), arguments.value("to"));
    return {};
}

std::vector<Column> RenameVerb::columns() const
{
    return {{"from", QT_TRANSLATE_NOOP("layertool", "旧图层名")},
        {"to", QT_TRANSLATE_NOOP("layertool", "新图层名")},
        {"outcome", QT_TRANSLATE_NOOP("layertool", "结果")},
        {"cause", QT_TRANSLATE_NOOP("layertool", "原因")}};
}

std::vector<LayerRename> RenameVerb::renamingsIn(const Drawing& drawing) const
{
    std::vector<LayerRename> renamings;
    for (const Layer& layer : drawing.layers()) {
        QString name = layer.properties.name;
        if (!m_names.isEmpty())
            name = m_names.value(vnsi::foldedName(name), name);
        else if (m_regex.match(name).hasMatch())
            name.replace(m_regex, m_replacement);
        if (name != layer.properties.name)
            renamings.push_back({layer.id, name});
    }
    return renamings;
}

Expected<void> RenameVerb::run(Drawing& drawing, const Job&, Result& result)
{
    if (!m_from.isEmpty() && !drawing.findLayer(m_from))
        result.note("no-such-layer", Texts::tr("没有名为“%1”的图层。").arg(m_from));
    int counts[3] = {};
    for (const LayerRenamed& one : drawing::renameLayers(drawing, renamingsIn(drawing), m_clash)) {
        ++counts[static_cast<size_t>(one.outcome)];
        result.data.append(
            QJsonObject{{QStringLiteral("from"), one.from}, {QStringLiteral("to"), one.to},
                {QStringLiteral("outcome"), QLatin1String(outcomeWord(one.outcome))},
                {QStringLiteral("cause"), causeOf(one)}});
        noteRefusal(result, one);
    }
    result.found = result.found || counts[static_cast<size_t>(LayerRenamed::Outcome::Refused)] > 0;
    result.counts = {{QStringLiteral("renamed"), counts[0]}, {QStringLiteral("merged"), counts[1]},
        {QStringLiteral("refused"), counts[2]}};
    return {};
}

} // namespace

VerbRow renameVerb()
{
    return {"rename",
        QT_TRANSLATE_NOOP("layertool", "给图层改名：一个名字、一张表，或正则表达式。"),
        OptionRows::of(kOptions), "text csv json", true, makeVerb<RenameVerb>};
}

} // namespace layertool
