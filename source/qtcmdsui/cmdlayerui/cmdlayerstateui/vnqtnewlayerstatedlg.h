#pragma once

#include "vornqt.h"

class QComboBox;
class QPushButton;
class QTextEdit;

namespace vnsi {

/// Asks for the name and the description of a new layer state.
class VnQtNewLayerStateDlg : public VnQtModeDialogImpl<VnQtNewLayerStateDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtNewLayerStateDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_SureBtnClicked(bool checked);
    void slot_HelpBtnClicked(bool checked);
    void slot_ComboBoxEditTextChanged(const QString& text);
    void slot_ComboBoxCurrentIndexChanged(int index);

private:
    VnJsonPtr states() const;
    void fill();
    bool acceptCharacters(const QString& name);
    bool acceptReplacing(const QString& name);
    void correctName();

    QComboBox* m_name = nullptr;
    QTextEdit* m_description = nullptr;
    QPushButton* m_ok = nullptr;
};

} // namespace vnsi
