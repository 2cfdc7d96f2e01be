#include "verbs.h"

#include "csv.h"
#include "drawing.h"
#include "layerfields.h"
#include "renaming.h"
#include "texts.h"

#include <algorithm>
#include <optional>

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerId;
using drawing::LayerProperties;

constexpr OptionRow kOptions[] = {
    {"table", OptionKind::File,
        QT_TRANSLATE_NOOP("layertool",
            "CSV 表格，如 list --format csv 所写；“new name”一列给出新名，空单元格不改动。")},
    {"merge", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "新名已被占用时合并到那个图层；不给时拒绝。")},
};

constexpr char kDrawingColumn[] = "drawing";
constexpr char kNewNameColumn[] = "new name";

/// A row of the table, and where it stands in it.
struct TableRow
{
    int line = 0; ///< From 1, the head included.
    QStringList cells;
};

/// What a column of the table stands for.
struct TableColumn
{
    QString head;
    const LayerField* field = nullptr; ///< Null for columns that change no property.
};

/// The name of a cell as spreadsheets call it: "C7".
QString cellName(int column, int line)
{
    QString letters;
    for (int rest = column; rest >= 0; rest = rest / 26 - 1)
        letters.prepend(QChar('A' + rest % 26));
    return letters + QString::number(line);
}

/// Makes layers, properties and names as a table says.
class SetVerb : public Verb
{
public:
    Expected<void> prepare(const Arguments& arguments) override;
    Expected<void> run(Drawing& drawing, const Job& job, Result& result) override;
    std::vector<Column> columns() const override;

private:
    Expected<void> readHead(const QStringList& head);
    const std::vector<TableRow>& rowsFor(const Job& job) const;
    void setRow(Drawing& drawing, const TableRow& row, Result& result);
    /// The properties with what the row says of them; nothing when a cell makes no sense.
    std::optional<LayerProperties> wanted(
        const LayerProperties& now, const TableRow& row, Result& result) const;
    void refuse(Result& result, int column, const TableRow& row, const QString& cause) const;
    void report(Result& result, const QString& layer, const char* outcome, const QString& cell,
        const QString& cause) const;

    QString m_path;
    bool m_merges = false;
    std::vector<TableColumn> m_columns;
    QStringList m_unknownColumns;
    int m_drawingColumn = -1;
    int m_nameColumn = -1;
    int m_newNameColumn = -1;
    QHash<QString, std::vector<TableRow>>
        m_rows;                          ///< By drawing; "" for tables without that column.
    std::vector<Renaming> m_renamings;   ///< Of the drawing at hand.
    QHash<int, TableRow> m_renamingRows; ///< By the layers' ids.
};

/// The layer of just that name, or else one that differs in letter case: broken drawings have both.
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

Expected<void> SetVerb::readHead(const QStringList& head)
{
    // What `list` tells besides, and nobody can set.
    static const QStringList kListed{QStringLiteral("current"), QStringLiteral("model"),
        QStringLiteral("layouts"), QStringLiteral("blocks"), QStringLiteral("used-in-blocks")};
    for (int i = 0; i < head.size(); ++i) {
        const QString name = head.at(i).trimmed();
        TableColumn column{name, nullptr};
        for (const LayerField& field : layerFields()) {
            if (name.compare(QLatin1String(field.id), Qt::CaseInsensitive) == 0 ||
                name == Texts::tr(field.text))
                column.field = &field;
        }
        const QString word = name.toLower();
        if (word == QLatin1String(kDrawingColumn))
            m_drawingColumn = i;
        else if (word == QLatin1String(kNewNameColumn) || word == QLatin1String("new-name"))
            m_newNameColumn = i;
        else if (column.field == &layerFields().front())
            m_nameColumn = i;
        const bool isKnown = column.field || i == m_drawingColumn || i == m_newNameColumn ||
                             name.isEmpty() || kListed.contains(word);
        if (!isKnown)
            m_unknownColumns += name;
        m_columns.push_back(column);
    }
    if (m_nameColumn < 0)
        return tl::make_unexpected(Error{Texts::tr("表格“%1”没有“name”一列。").arg(m_path)});
    return {};
}

Expected<void> SetVerb::prepare(const Arguments& arguments)
{
    m_path = arguments.value("table");
    m_merges = arguments.isSet("merge");
    if (m_path.isEmpty())
        return tl::make_unexpected(Error{Texts::tr("缺少 --table：按哪张表改动？")});
    const auto rows = csv::read(m_path);
    if (!rows)
        return tl::make_unexpected(rows.error());
    const auto head = std::find_if(
        rows->begin(), rows->end(), [](const QStringList& row) { return !row.isEmpty(); });
    if (head == rows->end())
        return tl::make_unexpected(Error{Texts::tr("表格“%1”是空的。").arg(m_path)});
    if (auto read = readHead(*head); !read)
        return read;
    for (auto i = static_cast<size_t>(head - rows->begin()) + 1; i < rows->size(); ++i) {
        if ((*rows)[i].isEmpty())
            continue;
        const TableRow row{static_cast<int>(i) + 1, (*rows)[i]};
        m_rows[m_drawingColumn < 0 ? QString() : row.cells.value(m_drawingColumn)].push_back(row);
    }
    return {};
}

std::vector<Column> SetVerb::columns() const
{
    return {{"layer", QT_TRANSLATE_NOOP("layertool", "图层")},
        {"outcome", QT_TRANSLATE_NOOP("layertool", "结果")},
        {"cell", QT_TRANSLATE_NOOP("layertool", "单元格")},
        {"cause", QT_TRANSLATE_NOOP("layertool", "原因")}};
}

const std::vector<TableRow>& SetVerb::rowsFor(const Job& job) const
{
    static const std::vector<TableRow> none;
    const auto rows = m_rows.find(m_drawingColumn < 0 ? QString() : job.name);
    return rows == m_rows.end() ? none : *rows;
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

void SetVerb::refuse(Result& result, int column, const TableRow& row, const QString& cause) const
{
    const QString cell = cellName(column, row.line);
    report(result, row.cells.value(m_nameColumn), "refused", cell, cause);
    result.note("cell-refused", Texts::tr("单元格 %1：%2").arg(cell, cause));
    result.found = true;
}

std::optional<LayerProperties> SetVerb::wanted(
    const LayerProperties& now, const TableRow& row, Result& result) const
{
    LayerProperties properties = now;
    bool isWhole = true;
    for (int i = 0; i < static_cast<int>(m_columns.size()); ++i) {
        const TableColumn& column = m_columns[static_cast<size_t>(i)];
        const QString cell = row.cells.value(i);
        // A cell that says what the layer has changes nothing, not even how it is written.
        if (!column.field || i == m_nameColumn || cell.isEmpty() ||
            cell == column.field->get(now).toVariant().toString())
            continue;
        if (!column.field->set(properties, cell)) {
            refuse(result, i, row, Texts::tr("“%1”不是可用的值。").arg(cell));
            isWhole = false;
        }
    }
    return isWhole ? std::optional(properties) : std::nullopt;
}

void SetVerb::setRow(Drawing& drawing, const TableRow& row, Result& result)
{
    const QString name = row.cells.value(m_nameColumn);
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
            refuse(result, m_nameColumn, row, added.error().text);
            return;
        }
        id = *added;
        report(result, name, "made", {}, {});
    } else if (*properties != now) {
        if (const auto done = drawing.setLayerProperties(id, *properties); !done) {
            refuse(result, m_nameColumn, row, done.error().text);
            return;
        }
        report(result, name, "changed", {}, {});
    }
    const QString newName = m_newNameColumn < 0 ? QString() : row.cells.value(m_newNameColumn);
    if (!newName.isEmpty() && newName != name) {
        m_renamings.push_back({id, newName});
        m_renamingRows.insert(static_cast<int>(id), row);
    }
}

Expected<void> SetVerb::run(Drawing& drawing, const Job& job, Result& result)
{
    m_renamings.clear();
    m_renamingRows.clear();
    for (const QString& column : m_unknownColumns)
        result.note(
            "column-unknown", Texts::tr("表格的“%1”一列不是图层的特性，没有使用。").arg(column));
    if (rowsFor(job).empty())
        result.note("no-rows", Texts::tr("表格中没有这个图形的行。"));
    for (const TableRow& row : rowsFor(job))
        setRow(drawing, row, result);
    const auto renamed = renameLayers(drawing, m_renamings, m_merges);
    if (!renamed)
        return tl::make_unexpected(renamed.error());
    for (const Renamed& one : *renamed) {
        if (one.outcome == Renamed::Outcome::Refused)
            refuse(result, m_newNameColumn, m_renamingRows.value(static_cast<int>(one.layer)),
                one.cause);
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
