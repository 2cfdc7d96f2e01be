#pragma once

#include "vornqt.h"

#include <QStringList>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace vnsi {

/// Both steps of a merge: first the user chooses the source layers, then the target layer. The tree
/// tells which step to show.
class VnQtLaymrgLayerDlg : public VnQtModeDialogImpl<VnQtLaymrgLayerDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtLaymrgLayerDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_LayerListItemClicked(QListWidgetItem* item);
    void slot_LayerListItemDoubleClicked(QListWidgetItem* item);
    void slot_SureBtnClicked(bool checked);
    void slot_HelpBtnClicked(bool checked);

private:
    void readTree();
    void buildLayout();
    void fill();
    bool acceptTarget(const QString& target) const;
    void markTarget(const QString& target);
    bool confirm(const QString& target) const;

    bool m_sourceMode = false;
    int m_blockReferences = 0;
    QStringList m_names;
    QStringList m_sources;
    QLineEdit* m_targetEdit = nullptr; ///< Null in the step for the sources.
    QListWidget* m_list = nullptr;
};

} // namespace vnsi
