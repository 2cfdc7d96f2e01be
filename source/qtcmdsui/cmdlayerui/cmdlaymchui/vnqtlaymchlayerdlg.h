#pragma once

#include "vornqt.h"

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace vnsi {

/// Lets the user choose, or type as a new name, the layer that selected entities are moved to.
class VnQtLaymchLayerDlg : public VnQtModeDialogImpl<VnQtLaymchLayerDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtLaymchLayerDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_LayerListItemClicked(QListWidgetItem* item);
    void slot_LayerListItemDoubleClicked(QListWidgetItem* item);
    void slot_SureBtnClicked(bool checked);
    void slot_HelpBtnClicked(bool checked);

private:
    bool isKnown(const QString& name) const;
    bool confirmNewLayer(const QString& name) const;
    void markNewLayer(const QString& name);

    QLineEdit* m_nameEdit = nullptr;
    QListWidget* m_list = nullptr;
};

} // namespace vnsi
