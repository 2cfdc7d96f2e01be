#pragma once

#include <QListWidget>

#include <vector>

namespace vnsi {

/// The layer list of the walk. Several rows can be selected, and selecting thousands of them takes
/// time proportional to their number only.
class VnQtLayWalkListWgt : public QListWidget
{
    Q_OBJECT

public:
    /// One flag per row.
    using Rows = std::vector<bool>;

    explicit VnQtLayWalkListWgt(QWidget* parent);

    /// Shows these texts, one per row. Rows that remain keep their items, because the second press
    /// of a double click only counts on the same item as the first one.
    void setTexts(const QStringList& texts);
    Rows selectedRows() const;
    bool hasSelection() const { return selectionModel()->hasSelection(); }
    /// The rows that were selected directly after the latest click on a row, whatever was selected
    /// since then.
    const Rows& clickedRows() const { return m_clicked; }
    /// Selects exactly these rows. The current row stays the same.
    void selectRows(const Rows& rows);

signals:
    /// Emitted when the user changes the selection in another way than by a click on a row, which
    /// `itemClicked` reports: with the keyboard, by dragging over rows, or by a click below the
    /// last row.
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
    /// Whether the user changed the selection in such a way since the last key or mouse press.
    bool m_isEdited = false;
};

} // namespace vnsi
