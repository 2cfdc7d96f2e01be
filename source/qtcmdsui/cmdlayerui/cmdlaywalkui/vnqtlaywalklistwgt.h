#pragma once

#include <QListWidget>

#include <vector>

namespace vnsi {

/// The list of layers of the walk: several rows can be selected, and selecting thousands of them
/// takes no longer than passing over them.
class VnQtLayWalkListWgt : public QListWidget
{
    Q_OBJECT

public:
    /// A yes or no for each row.
    using Rows = std::vector<bool>;

    explicit VnQtLayWalkListWgt(QWidget* parent);

    /// Shows these texts, a row each. A row that stays keeps its item: the second press of a double
    /// click counts only on the item that the first one met.
    void setTexts(const QStringList& texts);
    Rows selectedRows() const;
    bool hasSelection() const { return selectionModel()->hasSelection(); }
    /// Those that the latest click on a row left selected, whatever was selected since.
    const Rows& clickedRows() const { return m_clicked; }
    /// Selects exactly these rows; the current one stays current.
    void selectRows(const Rows& rows);

signals:
    /// The user selected otherwise than by a click on a row, which `itemClicked` tells: by keys, by
    /// drawing the mouse over rows, by a click below the last one.
    void selectionEdited();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void selectionChanged(
        const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void tellIfEdited();

    Rows m_clicked;
    bool m_isEdited = false; ///< Selected otherwise by the user since the last key or press.
};

} // namespace vnsi
