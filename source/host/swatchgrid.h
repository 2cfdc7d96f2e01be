#pragma once

#include <QVector>
#include <QWidget>

namespace host {

/// Shows index colours in rows. The user chooses one with the mouse or the arrow keys.
class SwatchGrid : public QWidget
{
    Q_OBJECT

public:
    /// Shows `indices` row by row with `columns` per row. Each swatch is `side` pixels wide and
    /// high.
    SwatchGrid(QVector<int> indices, int columns, int side, QWidget* parent = nullptr);

    /// The chosen index; -1 when there is none.
    int current() const { return m_current; }
    /// Marks an index as chosen. An index outside the grid removes the mark.
    void setCurrent(int index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void chosen(int index);
    /// Emitted when the user double-clicks an index or presses Enter on it.
    void confirmed(int index);
    /// Emitted with the index under the mouse, or with -1 when the mouse has left.
    void hovered(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int indexAt(const QPoint& position) const;
    QRect cell(int position) const;
    void choose(int position);

    QVector<int> m_indices;
    int m_columns;
    int m_side;
    int m_current = -1;
};

} // namespace host
