#pragma once

#include "layerrecord.h"

#include <QHash>
#include <QIcon>
#include <QStyledItemDelegate>

#include <array>
#include <vector>

class QTableWidget;
class QTableWidgetItem;

namespace vnsi {

/// How a column shows a record's value.
enum class LayerCell { Status, Text, MarkedName, Toggle, Color, LineWidth, Number };

/// The icons of cells and buttons, by their file names.
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

/// What a click on a cell does to its record.
enum class LayerClick {
    None,
    Mark,         ///< Nothing is edited, yet the layer counts as changed; this is intended.
    Toggle,       ///< Turns the flag under the column's key round.
    ToggleOff,    ///< The same; for the current layer only when the user insists.
    ToggleFrozen, ///< The same; refused for the current layer.
    ChooseColor,
    ChooseTransparency
};

/// What a double click does.
enum class LayerDoubleClick { None, MakeCurrent, Rename, Describe };

enum class LayerAlign { Left, Centre };

/// The icons of a toggle.
struct LayerIcons
{
    LayerIcon whenTrue = LayerIcon::Count;
    LayerIcon whenFalse = LayerIcon::Count;
};

/// One column of a table of layers: all that tables know of it.
struct LayerColumn
{
    const char* header; ///< Source text; tables translate it.
    LayerCell cell;
    const char* key; ///< Of the record's member that is shown.
    LayerAlign align = LayerAlign::Left;
    LayerClick click = LayerClick::None; ///< All but `None` mark the layer as modified.
    LayerIcons icons = {};
    LayerDoubleClick doubleClick = LayerDoubleClick::None;
};

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

/// The column of all viewports' freezing, which tables head differently.
constexpr LayerColumn frozen(const char* header)
{
    return {header, LayerCell::Toggle, layerkey::kFrozen, LayerAlign::Centre,
        LayerClick::ToggleFrozen, {LayerIcon::Frozen, LayerIcon::Thaw}};
}
} // namespace layercolumn

/// Puts icons into the middle of their cells where the alignment says so; item views draw them at
/// the left whatever it says. Remembers the size of each look: laying out the same few texts for
/// thousands of cells is most of what sizing the columns costs.
class LayerCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// To be called when fonts or looks may have changed.
    void forgetSizes() { m_sizes.clear(); }

private:
    mutable QHash<QPair<QString, bool>, QSize> m_sizes; ///< By text and whether there is an icon.
};

/// Makes the cells of layer tables. Icons, swatches and colour texts are made once and shared by
/// all cells of a dialog.
class LayerCells
{
public:
    /// The icon, read from the resources at its first use.
    const QIcon& icon(LayerIcon icon);
    /// The icon of a record's status; statuses without one of their own look like an ordinary
    /// layer's.
    const QIcon& statusIcon(int status);
    /// The icon of a layer within a layer state.
    const QIcon& stateIcon(bool current);
    /// A new cell that cannot be edited in place.
    QTableWidgetItem* makeItem(const LayerRecord& record, const LayerColumn& column);
    /// Replaces one cell by what its record says now.
    void refresh(QTableWidget& table, int row, int column, const LayerRecord& record,
        const LayerColumn& description);
    /// Rebuilds all rows in one go; records with "Selected" are selected.
    void fill(QTableWidget& table, const std::vector<LayerRecord>& records,
        const LayerColumn* columns, int columnCount);

private:
    struct Swatch
    {
        QIcon icon;
        QString text;
    };

    const Swatch& swatch(const LayerColor& color);
    const QString& numberText(LayerCell cell, int number);

    std::array<QIcon, static_cast<std::size_t>(LayerIcon::Count)> m_icons;
    QHash<QPair<qint64, qint64>, Swatch> m_swatches;
    QHash<QPair<int, int>, QString> m_numberTexts; ///< By the cell's kind and the number.
};

} // namespace vnsi
