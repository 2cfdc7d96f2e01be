#pragma once

#include "vornqt.h"

#include <vector>

class QCheckBox;

namespace vnsi {

/// Lets the user choose the six options of a layer translation.
class VnQtLaytransSettingWgt : public VnQtModeDialogImpl<VnQtLaytransSettingWgt, QDialog>
{
    Q_OBJECT

public:
    VnQtLaytransSettingWgt(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_pbOkClicked();
    void slot_pbhelpClicked();

private:
    std::vector<QCheckBox*> m_boxes; ///< One check box per option.
};

} // namespace vnsi
