#pragma once

#include "targetrecord.h"
#include "vornqt.h"

class QComboBox;
class QFormLayout;
class QLineEdit;

namespace vnsi {

class VnColorComboBox;
class VnLineTypeComboBox;
class VnLineWidthComboBox;

/// Defines a new target layer for the layer translator, or edits the target of a mapping.
class VnQtLaytransNewEditWgt : public VnQtModeDialogImpl<VnQtLaytransNewEditWgt, QDialog>
{
    Q_OBJECT

public:
    VnQtLaytransNewEditWgt(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_pbOkClicked();
    void slot_pbhelpClicked();

private:
    QFormLayout* makeForm();
    void prepareCombos();
    void prefill(const TargetRecord& record);
    void showLinetype(const QString& name, OdInt64 id);
    void showLineWidth(const TargetRecord& record);
    void showColor(const LayerColor& color);
    bool acceptName(const QString& name) const;
    bool isInUse(const QString& name) const;
    VnJsonPtr makeResult(const QString& name, int transparency) const;

    QLineEdit* m_name = nullptr;
    VnLineTypeComboBox* m_linetype = nullptr;
    VnLineWidthComboBox* m_lineWidth = nullptr;
    VnColorComboBox* m_color = nullptr;
    QComboBox* m_transparency = nullptr;
    QComboBox* m_plotStyle = nullptr;

    VnJsonPtr m_namesInUse; ///< Empty while an existing layer is edited.
};

} // namespace vnsi
