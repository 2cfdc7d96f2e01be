#pragma once

#include "vornqt.h"

namespace vnsi {

/// Tells how many layers a drawing has, how many are selected, and how much is on those.
class VnQtLayWalkVerifyDlg : public VnQtModeDialogImpl<VnQtLayWalkVerifyDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtLayWalkVerifyDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;
};

} // namespace vnsi
