#pragma once

#include "vnjson.h"

#include <QDialog>

class QComboBox;

namespace vnsi {

/// Asks for the transparency of a layer.
class VnQtUiLayerTransparencyModify : public QDialog
{
    Q_OBJECT

public:
    explicit VnQtUiLayerTransparencyModify(QWidget* parent = nullptr);
    /// Shows the percentage under "transparency" of `tree`. When the dialog is accepted, the chosen
    /// percentage, 0 to 90, is written there.
    void setData(const VnJsonPtr& tree);

private slots:
    void slot_onBtnOkClicked(bool checked);
    void slot_onBtnCancelClicked(bool checked);

private:
    void offerValue();

    QComboBox* m_value = nullptr;
    VnJsonPtr m_data;
};

} // namespace vnsi
