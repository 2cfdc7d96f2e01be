#pragma once

#include "layerrecord.h"

#include <QExplicitlySharedDataPointer>
#include <QHash>
#include <QIcon>
#include <QSharedData>
#include <QStyledItemDelegate>

#include <array>
#include <string_view>
#include <vector>

class QTableWidget;
class QTableWidgetItem;

namespace vnsi {

/// How a column shows the value of a record.
enum class LayerCell { Status, Text, MarkedName, Toggle, Color, LineWidth, Number };

/// The icons of cells and buttons. The enumerators correspond to the names of the icon files.
enum class LayerIcon {
    Current,
    NoCurrent,
    Deleted,
    Off,
    On,
    Frozen,
    Thaw,
    Lock,
    Unlock,
    Print,
    NoPrint,
    AllFrozen,
    AllThaw,
    NewLayer,
    DeleteLayer,
    SetCurrent,
    Count
};

/// The effect of a click on a cell.
enum class LayerClick {
    None,
    Mark,         ///< Edits nothing, yet the layer counts as changed; this is intended.
    Toggle,       ///< Inverts the flag under the column's key.
    ToggleOff,    ///< Like `Toggle`, but the current layer is only turned off after a confirmation.
    ToggleFrozen, ///< Like `Toggle`, but refused for the current layer.
    ChooseColor,
    ChooseTransparency
};

/// The effect of a double click on a cell.
enum class LayerDoubleClick { None, MakeCurrent, Rename, Describe };

enum class LayerAlign { Left, Centre };

/// The two icons of a toggle.
struct LayerIcons
{
    LayerIcon whenTrue = LayerIcon::Count;
    LayerIcon whenFalse = LayerIcon::Count;
};

/// The complete description of a column in a table of layers.
struct LayerColumn
{
    const char* header; ///< The source text, which the tables translate.
    LayerCell cell;
    const char* key; ///< The key of the record member that is shown.
    LayerAlign align = LayerAlign::Left;
    LayerClick click = LayerClick::None; ///< All but `None` mark the layer as modified.
    LayerIcons icons = {};
    LayerDoubleClick doubleClick = LayerDoubleClick::None;
};

/// The index of the column that shows a member of the record; the key must be one of them.
template <std::size_t count>
constexpr int columnOf(const LayerColumn (&columns)[count], std::string_view key)
{
    int column = 0;
    while (columns[column].key != key)
        ++column;
    return column;
}

/// The columns that tables of layers share.
namespace layercolumn {
inline constexpr LayerColumn kOff{QT_TRANSLATE_NOOP("cmdlayerui", "开"), LayerCell::Toggle,
    layerkey::kOff, LayerAlign::Centre, LayerClick::ToggleOff, {LayerIcon::Off, LayerIcon::On}};
inline constexpr LayerColumn kLock{QT_TRANSLATE_NOOP("cmdlayerui", "锁定"), LayerCell::Toggle,
    layerkey::kLock, LayerAlign::Centre, LayerClick::Toggle, {LayerIcon::Lock, LayerIcon::Unlock}};
inline constexpr LayerColumn kColor{QT_TRANSLATE_NOOP("cmdlayerui", "颜色"), LayerCell::Color,
    layerkey::kColor, LayerAlign::Centre, LayerClick::ChooseColor};
inline constexpr LayerColumn kLinetype{QT_TRANSLATE_NOOP("cmdlayerui", "线型"), LayerCell::Text,
    layerkey::kLinetype, LayerAlign::Left, LayerClick::Mark};
inline constexpr LayerColumn kLineWidth{QT_TRANSLATE_NOOP("cmdlayerui", "线宽"),
    LayerCell::LineWidth, layerkey::kLineWidth, LayerAlign::Left, LayerClick::Mark};
inline constexpr LayerColumn kTransparency{QT_TRANSLATE_NOOP("cmdlayerui", "透明度"),
    LayerCell::Number, layerkey::kTransparency, LayerAlign::Left, LayerClick::ChooseTransparency};
inline constexpr LayerColumn kPlotStyle{
    QT_TRANSLATE_NOOP("cmdlayerui", "打印样式"), LayerCell::Text, layerkey::kPlotStyle};
inline constexpr LayerColumn kPrint{QT_TRANSLATE_NOOP("cmdlayerui", "打印"), LayerCell::Toggle,
    layerkey::kPrint, LayerAlign::Centre, LayerClick::Toggle,
    {LayerIcon::Print, LayerIcon::NoPrint}};
inline constexpr LayerColumn kVPortFrozen{QT_TRANSLATE_NOOP("cmdlayerui", "新视口冻结"),
    LayerCell::Toggle, layerkey::kVPortFrozen, LayerAlign::Centre, LayerClick::Toggle,
    {LayerIcon::AllFrozen, LayerIcon::AllThaw}};

/// The column for freezing in all viewports, whose header differs between the tables.
constexpr LayerColumn frozen(const char* header)
{
    return {header, LayerCell::Toggle, layerkey::kFrozen, LayerAlign::Centre,
        LayerClick::ToggleFrozen, {LayerIcon::Frozen, LayerIcon::Thaw}};
}
} // namespace layercolumn

/// Draws icons in the centre of cells that are aligned to the centre, because item views always
/// draw them at the left. It also caches the sizes of cells: most of the time for sizing the
/// columns would otherwise be spent on laying out the same few texts thousands of times.
class LayerCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Call this when fonts or styles may have changed.
    void forgetSizes() { m_sizes.clear(); }

private:
    /// The key is the text and whether there is an icon.
    mutable QHash<QPair<QString, bool>, QSize> m_sizes;
};

/// What a cell shows.
struct LayerCellLook : QSharedData
{
    LayerCellLook(const QIcon& shownIcon, const QString& shownText, const QString& spokenText)
        : icon(shownIcon),
          text(shownText),
          spoken(spokenText)
    {
    }

    QIcon icon;
    QString text;
    QString spoken; ///< What screen readers say where the text alone does not tell it.
};

/// Makes the cells of layer tables. All cells of a dialog that show the same icon, colour or number
/// share one look.
class LayerCells
{
public:
    /// The icon, which is read from the resources when it is first used.
    const QIcon& icon(LayerIcon icon) { return iconLook(icon)->icon; }
    /// The icon of a record's status. A status without an icon of its own uses that of an ordinary
    /// layer.
    static LayerIcon statusIcon(int status);
    /// The icon of a layer in a layer state.
    static LayerIcon stateIcon(bool current);
    /// Makes a cell that cannot be edited in place.
    QTableWidgetItem* makeItem(const LayerRecord& record, const LayerColumn& column);
    /// Updates one cell from its record.
    void refresh(QTableWidget& table, int row, int column, const LayerRecord& record,
        const LayerColumn& description);
    /// Shows these records in the rows, and no others, and selects those whose records have
    /// "Selected" set.
    void fill(QTableWidget& table, const std::vector<LayerRecord>& records,
        const LayerColumn* columns, int columnCount);

private:
    using Look = QExplicitlySharedDataPointer<const LayerCellLook>;

    /// The icon with its meaning as the spoken text.
    const Look& iconLook(LayerIcon icon);
    const Look& colorLook(const LayerColor& color);
    const Look& numberLook(LayerCell cell, int number);
    Look lookOf(const LayerRecord& record, const LayerColumn& column);
    void showIn(QTableWidget& table, int row, int column, const LayerRecord& record,
        const LayerColumn& description);

    std::array<Look, static_cast<std::size_t>(LayerIcon::Count)> m_icons;
    QHash<QPair<qint64, qint64>, Look> m_colors;
    /// The key consists of the kind of cell and the number.
    QHash<QPair<int, int>, Look> m_numbers;
};

} // namespace vnsi
