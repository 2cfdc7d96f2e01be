#pragma once

#include "vornqt.h"
#include "walkkeys.h"
#include "walklayers.h"

class QCheckBox;
class QComboBox;
class QLayout;
class QListWidgetItem;
class QMenu;
class QPushButton;

namespace vnsi {

class VnQtLayWalkListWgt;

/// The layer walk. The drawing immediately shows the layers that are selected in the list; all
/// others are off.
class VnQtLayWalkDlg : public VnQtModeDialogImpl<VnQtLayWalkDlg, QDialog>
{
    Q_OBJECT

public:
    VnQtLayWalkDlg(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;
    /// Closes the dialog. The close button, the window frame and Esc all end here.
    void reject() override;

private slots:
    void slot_PickBtnClicked();
    void slot_ClearBtnClicked();
    void slot_CancelBtnClicked();
    void slot_HelpBtnClicked();
    void slot_FilterCheckBtnClicked();
    void slot_FilterComboBoxActivated(int index);
    void slot_FilterComboBoxReturnPressed();
    void slot_FilterComboBoxTextChanged(const QString& text);
    void slot_LayerListCustomContextMenuRequested(QPoint point);
    void slot_LayerListItemClicked(QListWidgetItem* item = nullptr);
    void slot_LayerListItemDoubleClicked(QListWidgetItem* item);

    void slot_KeepSelActionTriggered();
    void slot_ReleaseSelActionTriggered();
    void slot_ReleaseSelAllActionTriggered();
    void slot_SelAllActionTriggered();
    void slot_ClearAllActionTriggered();
    void slot_ReverseSelALLActionTriggered();
    void slot_SelNotReferencedActionTriggered();
    void slot_SavelaystateActionTriggered();
    void slot_CheckActionTriggered();
    void slot_CopyasfilterActionTriggered();
    void slot_SavefilterActionTriggered();
    void slot_DelfilterActionTriggered();

private:
    enum Need {
        kSelection,
        kStarInSelection,
        kAnyStar,
        kAnyRow,
        kNewPattern,
        kSavedPattern,
        kNeedCount
    };
    struct ActionRow;
    static const ActionRow kActions[];

    /// The filter that was used last. It is remembered when the user turns it off, because deleting
    /// it hides its layers.
    struct Filter
    {
        bool isOn = false;
        QString pattern;
        WalkLayers::Choice letThrough;
    };
    /// The state to which the list returns when a request fails.
    struct View
    {
        Filter filter;
        WalkLayers::Choice selected;
    };

    void makeActions();
    QLayout* makeFilterRow();
    QLayout* makeButtonRow();
    void connectWidgets();
    void updateActions();

    void fill();
    void fillAndSelectVisible();
    void updateTitle();
    QString rowText(int index) const;
    void pinSelected(bool pinned);
    WalkLayers::Choice recordsOf(const std::vector<bool>& rows) const;
    std::vector<bool> rowsOf(const WalkLayers::Choice& records) const;
    WalkLayers::Choice selectedRecords() const;

    QString pattern() const;
    int savedPattern() const;
    void applyFilter();
    void resetFilter();

    VnQtAnswer ask(WalkRequest code, const VnJsonPtr& layers, const VnQtArgumentWriter& write = {});
    void walk(const OdString& oldCurrent = {});
    bool apply(const OdString& oldCurrent = {});
    void settle();
    void goBack();
    bool takeNewTree(const VnQtAnswer& answer, const LayerTreeMark& sent);
    void takeLayers(const VnJsonPtr& tree);
    std::vector<OdString> namesToPurge() const;
    void restoreLayers();
    void loadSettings();
    void saveSettings() const;

    WalkLayers m_layers;
    VnJsonPtr m_kept;        ///< The layers as they were when the dialog was opened.
    LayerTreeMark m_given;   ///< The layer tree that was last received from the command.
    std::vector<int> m_rows; ///< The index of the record of each row.
    Filter m_filter;
    View m_before; ///< The view that the command last knew.

    VnQtLayWalkListWgt* m_list = nullptr;
    QComboBox* m_filters = nullptr;
    QCheckBox* m_filterBox = nullptr;
    QCheckBox* m_restore = nullptr;
    QPushButton* m_purge = nullptr;
    QMenu* m_menu = nullptr;
    QMenu* m_filterMenu = nullptr;
};

} // namespace vnsi
