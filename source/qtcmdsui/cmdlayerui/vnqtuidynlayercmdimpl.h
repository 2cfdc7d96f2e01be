#pragma once

#include "managertable.h"
#include "vornqt.h"

class QBoxLayout;
class QButtonGroup;
class QLabel;
class QPushButton;
class QShortcut;

namespace vnsi {

class VnQtLayerQTableWgt;

/// The Layer Properties Manager. The user edits the records of "LayerList", and the command applies
/// them.
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
    /// The ids of the buttons above the table.
    enum Controller { kNewLayer, kDeleteLayer, kSetCurrent };

    QBoxLayout* makeButtonRow();
    QBoxLayout* makeBottomRow();
    void connectWidgets();

    void fill();
    void addLayer();
    void deleteByKey();
    void deleteSelected();
    void setSelectedCurrent();
    void setClickedCurrent(int row);
    void editText(int row, int column, LayerDoubleClick edit);
    void apply();

    QLabel* m_currentLabel = nullptr;
    QButtonGroup* m_controllerGroup = nullptr;
    VnQtLayerQTableWgt* m_table = nullptr;
    QLabel* m_countLabel = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_applyButton = nullptr;
    QShortcut* m_deleteKey = nullptr;
    ManagerTable m_rows;
    /// Whether a typed name or description is currently being written into the table.
    bool m_renaming = false;
};

} // namespace vnsi
