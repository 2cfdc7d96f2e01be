#pragma once

#include "vornqt.h"

class QListWidget;
class QListWidgetItem;

namespace vnsi {

/// Lets the user pick layers to delete and, after a confirmation, marks them for the command.
class VnQtLaydelLayerDlg : public VnQtModeDialogImpl<VnQtLaydelLayerDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtLaydelLayerDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_LayerListItemDoubleClicked(QListWidgetItem* item);
    void slot_SureBtnClicked(bool checked);
    void slot_HelpBtnClicked(bool checked);

private:
    bool isReferencedInBlocks(const QSet<QString>& names);
    /// The question whether to delete `count` layers. `single` is the layer's name when there is
    /// only one.
    QString question(bool inBlocks, int count, const QString& single) const;

    QListWidget* m_list = nullptr;
};

} // namespace vnsi
