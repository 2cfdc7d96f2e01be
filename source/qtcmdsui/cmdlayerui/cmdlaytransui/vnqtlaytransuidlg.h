#pragma once

#include "layercells.h"
#include "translationlists.h"
#include "vornqt.h"

class QBoxLayout;
class QGroupBox;
class QLineEdit;
class QListWidgetItem;
class QMenu;
class QPushButton;
class QTableWidgetItem;

namespace vnsi {

class VnQtLaytransListWgt;
class VnQtLaytransQTableWgt;

/// The layer translator. The user maps layers of the drawing to target layers, and the command then
/// translates them.
class VnQtUiLaytransCmd : public VnQtModeDialogImpl<VnQtUiLaytransCmd, QDialog>
{
    Q_OBJECT

public:
    VnQtUiLaytransCmd(VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;

private slots:
    void slot_LineEditTextChanged(const QString& text);
    void slot_pbFromSelectClicked();
    void slot_m_pbLoadClicked();
    void slot_m_pbNewClicked();
    void slot_m_pbMapClicked();
    void slot_m_pbMapSameClicked();
    void onListWidgeFromClicked(int row);
    void onListWidgeFromClickedItem(QListWidgetItem* item);
    void onListWidgeToClicked(int row);
    void onListWidgeToDoubleClicked(QListWidgetItem* item);
    void slot_m_pbMapListEdit();
    void slot_m_pbMapListDelete();
    void slot_m_pbMapListSave();
    void slot_MapListItemClicked();
    void slot_MapListDoubleClicked(QTableWidgetItem* item);
    void slot_LtransBtnSettingClicked();
    void slot_LtransBtnOkClicked();
    void slot_LtransBtnCancelClicked();
    void slot_LtransBtnApplyClicked();
    void slot_FromListMenuActionAllSelect();
    void slot_FromListMenuActionAllNoSelect();
    void slot_FromListMenuActionCleanlayer();
    void slot_ToListMenuActionload();
    void slot_ToListMenuActionNew();
    void slot_ShowMapMenu(const QPoint& place);
    void slot_MenuMapListEdit();
    void slot_MenuMapListDelete();
    void slot_MenuMapListAllDelete();

private:
    struct ButtonRow;
    struct ActionRow;
    static const ButtonRow kButtons[];
    static const ActionRow kFromActions[];
    static const ActionRow kToActions[];
    static const ActionRow kMapActions[];

    void makeWidgets();
    void makeButtons();
    QWidget* makeFromGroup();
    QBoxLayout* makeMapColumn();
    QWidget* makeToGroup();
    QWidget* makeMapGroup();
    QBoxLayout* makeBottomRow();
    void orderTabs();
    template <std::size_t count>
    void addActions(QMenu& menu, const ActionRow (&rows)[count]);
    void connectWidgets();

    void fillFrom();
    void fillTo();
    void fillTable();
    /// Shows the changed mappings and marks them as not saved.
    void showChangedMappings();
    void setSaved(bool isSaved);

    VnQtAnswer ask(int code, const VnQtArgumentWriter& writeArguments = {},
        std::vector<const char*> answers = {});
    /// Replaces the targets by those in the command's answer, if it contains any.
    void takeTargets(const VnQtAnswer& answer);
    void sendClicked(const QString& layer, bool inTable);
    /// Lets the user define a layer, starting with `initial`. Returns the layer's record; empty
    /// when the user cancelled.
    VnJsonPtr askForLayer(bool isEdit, const TargetRecord& initial);
    /// The selected target; a record without a node when none is selected.
    TargetRecord currentTarget() const;

    VnQtLaytransListWgt* m_fromList = nullptr;
    VnQtLaytransListWgt* m_toList = nullptr;
    VnQtLaytransQTableWgt* m_table = nullptr;
    QMenu* m_mapMenu = nullptr;
    QLineEdit* m_filterEdit = nullptr;
    QPushButton* m_selectButton = nullptr;
    QPushButton* m_mapButton = nullptr;
    QPushButton* m_mapSameButton = nullptr;
    QPushButton* m_loadButton = nullptr;
    QPushButton* m_newButton = nullptr;
    QPushButton* m_editButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QPushButton* m_saveButton = nullptr;
    QPushButton* m_settingButton = nullptr;
    QPushButton* m_translateButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_helpButton = nullptr;

    LayerCells m_cells;
    TranslationLists m_lists;
    QStringList m_loadedFiles; ///< The files of the last load.
    VnJsonPtr m_config;
    VnJsonPtr m_settings;
    QString m_drawingName;
    bool m_isSaved = false; ///< Whether the mappings are saved in a file as they are now.
};

} // namespace vnsi
