#pragma once

#include "layercells.h"
#include "vornqt.h"

class QBoxLayout;
class QButtonGroup;
class QLabel;
class QPushButton;
class QShortcut;

namespace vnsi {

class VnQtLayerQTableWgt;

/// The Layer Properties Manager: edits the records of "LayerList" and lets the command apply them.
class VnQtUiDynLayerCmdImpl : public VnQtModeDialogImpl<VnQtUiDynLayerCmdImpl, QDialog>
{
    Q_OBJECT

public:
    VnQtUiDynLayerCmdImpl(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void slot_TableCellDoubleClicked(int row, int column);
    void slot_TableCellClicked(int row, int column);
    void slot_TableCellChanged(OdString text, int row, int column);
    void slot_BtnOkClicked(bool bClicked);
    void slot_BtnCancelClicked(bool bClicked);
    void slot_BtnApplyClicked(bool bClicked);
    void slot_BtnLayerControllerGroupClicked(int id);

private:
    enum class Ask { No, Yes };

    QBoxLayout* makeButtonRow();
    QBoxLayout* makeBottomRow();
    void connectWidgets();

    void setUpTable();
    void fill();
    void moveCursor(int row);
    void applyColumnWidths();
    void writeColumnWidths();
    void writeSelection();

    bool toggleOff(int row, LayerRecord& record);
    bool toggleFrozen(int row, LayerRecord& record);
    void toggle(int row, int column, LayerRecord& record);
    void editColor(int row, LayerRecord& record);
    void editTransparency(int row, LayerRecord& record);

    void deleteByKey();
    void deleteSelected();
    void setSelectedCurrent();
    bool canBeCurrent(int row, Ask ask);
    void makeCurrent(int row, Ask ask);
    void setRowStatus(int row, LayerStatus status);

    void renameByDialog(int row, const LayerRecord& record);
    void describeByDialog(int row, const LayerRecord& record);
    void askForText(const VnJsonPtr& question, int row, int column);
    void storeName(int row, const QString& text);
    /// The name to store for a typed text, or none after telling the user why it is refused.
    bool acceptName(int row, QString& name) const;

    VnJsonPtr list() const;
    int recordCount() const { return list().ArrayCount(); }
    LayerRecord record(int row) const { return LayerRecord(list()(row)); }
    void showCell(int row, int column);

    QLabel* m_currentLabel = nullptr;
    QButtonGroup* m_controllerGroup = nullptr;
    VnQtLayerQTableWgt* m_table = nullptr;
    QLabel* m_countLabel = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_applyButton = nullptr;
    QShortcut* m_deleteKey = nullptr;
    LayerCells m_cells;
    int m_currentRow = -1;
    bool m_renaming = false;
};

} // namespace vnsi
