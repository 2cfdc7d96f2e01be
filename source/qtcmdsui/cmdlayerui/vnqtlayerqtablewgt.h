#pragma once

#include <QTableWidget>

namespace vnsi {

/// The table of layers. Pressing the mouse below the last row does not change the selection.
class VnQtLayerQTableWgt : public QTableWidget
{
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace vnsi
