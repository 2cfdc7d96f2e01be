#pragma once

#include "vornqt.h"

namespace vnsi {

/// Shows the number of layers in the drawing, of selected layers, and of the entities on these.
class VnQtLayWalkVerifyDlg : public VnQtModeDialogImpl<VnQtLayWalkVerifyDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtLayWalkVerifyDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;
};

} // namespace vnsi
