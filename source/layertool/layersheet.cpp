#include "layersheet.h"

#include "formats/csv.h"
#include "texts.h"

#include <algorithm>

namespace layertool {

namespace {

constexpr char kDrawingColumn[] = "drawing";
constexpr char kNewNameColumn[] = "new name";

const LayerField* fieldCalled(const QString& head)
{
    const auto& fields = layerFields();
    const auto found = std::find_if(fields.begin(), fields.end(), [&head](const LayerField& field) {
        return head.compare(QLatin1String(field.id), Qt::CaseInsensitive) == 0 ||
               head == Texts::tr(field.text);
    });
    return found == fields.end() ? nullptr : &*found;
}

/// Whether `list` only shows this column and nobody can set it.
bool isOnlyListed(const QString& word)
{
    const std::vector<Column> columns = contentColumns();
    return std::any_of(columns.begin(), columns.end(),
        [&word](const Column& column) { return word == QLatin1String(column.id); });
}

} // namespace

QString cellName(int column, int line)
{
    QString letters;
    for (int rest = column; rest >= 0; rest = rest / 26 - 1)
        letters.prepend(QChar('A' + rest % 26));
    return letters + QString::number(line);
}

void LayerSheet::readHead(const QStringList& head)
{
    for (int i = 0; i < head.size(); ++i) {
        const QString name = head.at(i).trimmed();
        const QString word = name.toLower();
        m_fields.push_back(fieldCalled(name));
        if (word == QLatin1String(kDrawingColumn))
            m_drawingColumn = i;
        else if (word == QLatin1String(kNewNameColumn) || word == QLatin1String("new-name"))
            m_newNameColumn = i;
        else if (field(i) == &layerFields().front())
            m_nameColumn = i;
        const bool isKnown = field(i) || i == m_drawingColumn || i == m_newNameColumn ||
                             name.isEmpty() || isOnlyListed(word);
        if (!isKnown)
            m_unknownColumns += name;
    }
}

Expected<void> LayerSheet::read(const QString& path)
{
    const auto rows = csv::read(path);
    if (!rows)
        return tl::make_unexpected(rows.error());
    const auto head = std::find_if(
        rows->begin(), rows->end(), [](const QStringList& row) { return !row.isEmpty(); });
    if (head == rows->end())
        return tl::make_unexpected(Error{Texts::tr("表格“%1”是空的。").arg(path)});
    readHead(*head);
    if (m_nameColumn < 0)
        return tl::make_unexpected(Error{Texts::tr("表格“%1”没有“name”一列。").arg(path)});
    for (auto i = static_cast<size_t>(head - rows->begin()) + 1; i < rows->size(); ++i) {
        if ((*rows)[i].isEmpty())
            continue;
        const SheetRow row{static_cast<int>(i) + 1, (*rows)[i]};
        m_rows[m_drawingColumn < 0 ? QString() : row.cells.value(m_drawingColumn)].push_back(row);
    }
    return {};
}

const std::vector<SheetRow>& LayerSheet::rowsFor(const QString& drawing) const
{
    static const std::vector<SheetRow> none;
    const auto rows = m_rows.find(m_drawingColumn < 0 ? QString() : drawing);
    return rows == m_rows.end() ? none : *rows;
}

} // namespace layertool
