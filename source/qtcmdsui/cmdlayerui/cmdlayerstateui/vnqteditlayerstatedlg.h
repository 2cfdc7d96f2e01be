#pragma once

#include "layercells.h"
#include "vornqt.h"

#include <QStringList>

class QBoxLayout;
class QPushButton;
class QTableWidget;

namespace vnsi {

/// Edits the layers that a layer state holds.
class VnQtEditLayerStateDlg : public VnQtModeDialogImpl<VnQtEditLayerStateDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtEditLayerStateDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_TableCellClicked(int row, int column);
    void slot_NewLayerButtonClicked(bool checked);
    void slot_DeleteLayerButtonClicked(bool checked);
    void slot_BtnOkClicked(bool checked);
    void slot_HelpBtnClicked(bool checked);

private:
    QPushButton* makeIconButton(LayerIcon icon, const char* objectName, const QString& help);
    QBoxLayout* makeBottomRow();
    void setUpTable();

    VnJsonPtr state() const;
    VnJsonPtr list() const;
    void fill();
    void applyColumnWidths();
    QStringList selectedNames() const;

    void makeCurrent(int row);
    bool isRow(int row) const;
    void showCell(int row, int column);
    VnJsonPtr missingLayers() const;
    void add(const VnJsonPtr& chosen);

    QPushButton* m_newButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QTableWidget* m_table = nullptr;
    LayerCells m_cells;
    std::vector<LayerRecord> m_rows; ///< The record of each row; removed layers have no row.
    int m_currentRow = -1;           ///< The row of the current layer; -1 when it is not shown.
    /// All records that claim to be the current layer, whether shown or not.
    std::vector<LayerRecord> m_currentLayers;
    QStringList m_pendingDeletion;
};

} // namespace vnsi
