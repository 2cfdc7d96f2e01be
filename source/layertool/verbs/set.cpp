#include "verbs.h"

#include "drawing.h"
#include "layersheet.h"
#include "renameresults.h"
#include "texts.h"

#include <algorithm>
#include <optional>

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerId;
using drawing::LayerProperties;

const OptionRow kOptions[] = {
    {"table", OptionKind::File,
        QT_TRANSLATE_NOOP("layertool",
            "CSV 表格，如 list --format csv 所写；“new name”一列给出新名，空单元格不改动。")},
    mergeOption(),
};

/// Creates, changes and renames layers according to a table.
class SetVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;
    std::vector<Column> columns() const override;

private:
    void setRow(Drawing& drawing, const SheetRow& row, Result& result);
    /// The layer's properties after applying the row; nothing when a cell is invalid.
    std::optional<LayerProperties> wanted(
        const LayerProperties& now, const SheetRow& row, Result& result) const;
    void refuse(Result& result, int column, const SheetRow& row, const QString& cause) const;
    void report(Result& result, const QString& layer, const char* outcome, const QString& cell,
        const QString& cause) const;

    LayerSheet m_table;
    drawing::NameClash m_clash = drawing::NameClash::Refuse;
    std::vector<drawing::LayerRename> m_renamings; ///< For the current drawing.
    QHash<int, SheetRow> m_renamingRows;           ///< The keys are layer ids.
};

/// The layer with exactly this name, or else one that differs in letter case; damaged drawings may
/// have both.
const Layer* layerCalled(const Drawing& drawing, const QString& name)
{
    const Layer* const found = drawing.findLayer(name);
    if (!found || found->properties.name == name)
        return found;
    const auto& layers = drawing.layers();
    const auto exact = std::find_if(layers.begin(), layers.end(),
        [&name](const Layer& layer) { return layer.properties.name == name; });
    return exact == layers.end() ? found : &*exact;
}

Expected<void> SetVerb::prepare(const Arguments& arguments)
{
    if (arguments.isSet("merge"))
        m_clash = drawing::NameClash::Merge;
    if (!arguments.isSet("table"))
        return tl::make_unexpected(Error{Texts::tr("缺少 --table：按哪张表改动？")});
    return m_table.read(arguments.value("table"));
}

std::vector<Column> SetVerb::columns() const
{
    return {{"layer", QT_TRANSLATE_NOOP("layertool", "图层")},
        {"outcome", QT_TRANSLATE_NOOP("layertool", "结果")},
        {"cell", QT_TRANSLATE_NOOP("layertool", "单元格")},
        {"cause", QT_TRANSLATE_NOOP("layertool", "原因")}};
}

void SetVerb::report(Result& result, const QString& layer, const char* outcome, const QString& cell,
    const QString& cause) const
{
    result.data.append(QJsonObject{{QStringLiteral("layer"), layer},
        {QStringLiteral("outcome"), QLatin1String(outcome)}, {QStringLiteral("cell"), cell},
        {QStringLiteral("cause"), cause}});
    const QString word = QLatin1String(outcome);
    result.counts.insert(word, result.counts.value(word).toInt() + 1);
}

void SetVerb::refuse(Result& result, int column, const SheetRow& row, const QString& cause) const
{
    const QString cell = cellName(column, row.line);
    report(result, row.cells.value(m_table.nameColumn()), "refused", cell, cause);
    result.note("cell-refused", Texts::tr("单元格 %1：%2").arg(cell, cause));
    result.found = true;
}

std::optional<LayerProperties> SetVerb::wanted(
    const LayerProperties& now, const SheetRow& row, Result& result) const
{
    LayerProperties properties = now;
    bool isWhole = true;
    for (int i = 0; i < m_table.columnCount(); ++i) {
        const LayerField* const field = m_table.field(i);
        const QString cell = row.cells.value(i);
        // A cell that equals the present value changes nothing, not even how it is stored.
        if (!field || i == m_table.nameColumn() || cell.isEmpty() ||
            cell == field->get(now).toString())
            continue;
        if (!field->set(properties, cell)) {
            refuse(result, i, row, Texts::tr("“%1”不是可用的值。").arg(cell));
            isWhole = false;
        }
    }
    return isWhole ? std::optional(properties) : std::nullopt;
}

void SetVerb::setRow(Drawing& drawing, const SheetRow& row, Result& result)
{
    const QString name = row.cells.value(m_table.nameColumn());
    const Layer* const layer = layerCalled(drawing, name);
    LayerProperties fresh;
    fresh.name = name;
    const LayerProperties now = layer ? layer->properties : fresh;
    const auto properties = wanted(now, row, result);
    if (!properties)
        return;
    LayerId id = layer ? layer->id : LayerId::None;
    if (!layer) {
        const auto added = drawing.addLayer(*properties);
        if (!added) {
            refuse(result, m_table.nameColumn(), row, added.error().text);
            return;
        }
        id = *added;
        report(result, name, "made", {}, {});
    } else if (*properties != now) {
        if (const auto done = drawing.setLayerProperties(id, *properties); !done) {
            refuse(result, m_table.nameColumn(), row, done.error().text);
            return;
        }
        report(result, name, "changed", {}, {});
    }
    const QString newName = row.cells.value(m_table.newNameColumn());
    if (!newName.isEmpty() && newName != name) {
        m_renamings.push_back({id, newName});
        m_renamingRows.insert(static_cast<int>(id), row);
    }
}

Expected<void> SetVerb::run(Drawing& drawing, const Job& job, Result& result)
{
    m_renamings.clear();
    m_renamingRows.clear();
    for (const QString& column : m_table.unknownColumns())
        result.note(
            "column-unknown", Texts::tr("表格的“%1”一列不是图层的特性，没有使用。").arg(column));
    if (m_table.rowsFor(job.name).empty())
        result.note("no-rows", Texts::tr("表格中没有这个图形的行。"));
    for (const SheetRow& row : m_table.rowsFor(job.name))
        setRow(drawing, row, result);
    for (const drawing::LayerRenamed& one : drawing::renameLayers(drawing, m_renamings, m_clash)) {
        if (one.outcome == drawing::LayerRenamed::Outcome::Refused)
            refuse(result, m_table.newNameColumn(),
                m_renamingRows.value(static_cast<int>(one.layer)), causeOf(one));
        else
            report(result, one.from, outcomeWord(one.outcome), {}, {});
    }
    return {};
}

} // namespace

VerbRow setVerb()
{
    return {"set", QT_TRANSLATE_NOOP("layertool", "按表格改动图层：特性、改名、新建。"),
        OptionRows::of(kOptions), "text csv json", true, makeVerb<SetVerb>};
}

} // namespace layertool
