#pragma once

#include "vornqt.h"

class QTableWidget;

namespace vnsi {

/// Lets the user choose from the layers in "NeedAddlayerList" and leaves only the chosen ones
/// there.
class VnQtAddNewLayerDlg : public VnQtModeDialogImpl<VnQtAddNewLayerDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtAddNewLayerDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_SureBtnClicked(bool checked);
    void slot_HelpBtnClicked(bool checked);

private:
    VnJsonPtr candidates() const;
    void fill();

    QTableWidget* m_table = nullptr;
};

} // namespace vnsi
