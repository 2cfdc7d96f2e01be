#include "layerclipboard.h"

#include "benchtexts.h"

#include <algorithm>

using drawing::Drawing;
using drawing::LayerId;
using drawing::LayerProperties;

namespace layerclipboard {

namespace {

constexpr QLatin1Char kQuote('"');
constexpr QLatin1Char kTab('\t');

QString quoted(const QString& cell)
{
    const bool isPlain = !cell.contains(kTab) && !cell.contains(QLatin1Char('\n')) &&
                         !cell.contains(QLatin1Char('\r')) && !cell.startsWith(kQuote);
    if (isPlain)
        return cell;
    return kQuote + QString(cell).replace(QLatin1String("\""), QLatin1String("\"\"")) + kQuote;
}

/// Reads the cell at `at` and stops at the tab or line end after it.
QString takeCell(const QString& text, int& at)
{
    QString cell;
    bool isQuoted = at < text.size() && text[at] == kQuote;
    if (isQuoted)
        ++at;
    for (; at < text.size(); ++at) {
        const QChar c = text[at];
        const bool isPair = c == kQuote && at + 1 < text.size() && text[at + 1] == kQuote;
        if (isQuoted && isPair)
            ++at;
        else if (isQuoted && c == kQuote) {
            isQuoted = false;
            continue;
        } else if (!isQuoted && (c == kTab || c == QLatin1Char('\n')))
            break;
        cell += c;
    }
    return cell.trimmed();
}

/// The columns that a line names. Empty when one of its cells is not a title or when there is no
/// column of names.
std::vector<int> headOf(const QStringList& cells)
{
    std::vector<int> columns;
    for (const QString& cell : cells) {
        int column = 0;
        while (column < LayerColumns::count() && LayerColumns::at(column).displayTitle() != cell)
            ++column;
        if (column == LayerColumns::count())
            return {};
        columns.push_back(column);
    }
    const bool hasNames =
        std::find(columns.begin(), columns.end(), LayerColumns::Name) != columns.end();
    return hasNames ? columns : std::vector<int>();
}

/// Pastes the cells of a row into one layer.
QStringList pasteRow(
    Drawing& drawing, LayerId layer, const QStringList& cells, const std::vector<int>& columns)
{
    QStringList refusals;
    for (int i = 0; i < cells.size() && i < static_cast<int>(columns.size()); ++i) {
        const LayerColumn& column = LayerColumns::at(columns[static_cast<size_t>(i)]);
        if (column.set && (!column.isOfViewport() || drawing.checkViewport()))
            refusals += layeracts::setText(drawing, {layer}, column, cells[i]);
    }
    return refusals;
}

QStringList pasteByName(Drawing& drawing, const Table& table)
{
    QStringList refusals;
    const auto nameAt =
        static_cast<int>(std::find(table.columns.begin(), table.columns.end(), LayerColumns::Name) -
                         table.columns.begin());
    for (const QStringList& cells : table.rows) {
        const QString name = cells.value(nameAt);
        const drawing::Layer* known = drawing.findLayer(name);
        LayerId layer = known ? known->id : LayerId::None;
        if (!known) {
            LayerProperties properties;
            properties.name = name;
            const auto added = drawing.addLayer(properties);
            if (!added) {
                refusals += added.error().text;
                continue;
            }
            layer = *added;
        }
        refusals += pasteRow(drawing, layer, cells, table.columns);
    }
    return refusals;
}

} // namespace

QString copied(
    const LayerSnapshot& layers, const std::vector<int>& places, const std::vector<int>& columns)
{
    QString text;
    const auto addLine = [&](const auto& cell) {
        for (size_t i = 0; i < columns.size(); ++i)
            text +=
                (i > 0 ? QString(kTab) : QString()) + quoted(cell(LayerColumns::at(columns[i])));
        text += QLatin1Char('\n');
    };
    addLine([](const LayerColumn& column) { return column.displayTitle(); });
    for (const int at : places)
        addLine([&](const LayerColumn& column) { return column.displayText({layers, at}); });
    return text;
}

Table parsed(const QString& text)
{
    Table table;
    const QString lines = QString(text).remove(QLatin1Char('\r'));
    for (int at = 0; at < lines.size(); ++at) {
        QStringList cells{takeCell(lines, at)};
        while (at < lines.size() && lines[at] == kTab)
            cells += takeCell(lines, ++at);
        table.rows.push_back(cells);
    }
    if (!table.rows.empty())
        table.columns = headOf(table.rows.front());
    if (table.hasHead())
        table.rows.erase(table.rows.begin());
    return table;
}

QStringList paste(Drawing& drawing, const Table& table, const layeracts::Layers& targets,
    const std::vector<int>& visible, int column)
{
    if (table.hasHead())
        return pasteByName(drawing, table);
    const auto from = std::find(visible.begin(), visible.end(), column);
    const std::vector<int> columns(from, visible.end());
    if (targets.empty() || columns.empty())
        return {Texts::tr("请先选择要粘贴到的图层。")};
    QStringList refusals;
    for (size_t i = 0; i < targets.size(); ++i) {
        if (table.rows.size() > 1 && i >= table.rows.size())
            break;
        refusals +=
            pasteRow(drawing, targets[i], table.rows[table.rows.size() > 1 ? i : 0], columns);
    }
    return refusals;
}

} // namespace layerclipboard
