#pragma once

#include "statekeys.h"
#include "vornqt.h"

#include <QStringList>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QPushButton;
class QShortcut;
class QTableWidget;
class QTableWidgetItem;

namespace vnsi {

/// The Layer State Manager. It lists the layer states and asks the command to carry out the user's
/// actions.
class VnQtUiDynLayerStateCmdImpl : public VnQtModeDialogImpl<VnQtUiDynLayerStateCmdImpl, QDialog>
{
    Q_OBJECT

public:
    VnQtUiDynLayerStateCmdImpl(
        VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags);

    bool initDialog() override;
    bool setData(VnJsonPtr data, OdRxObjectPtr invoker) override;
    /// The name of the section of the user's settings that this dialog keeps.
    virtual OdString configSection() const;
    /// Esc closes the window in the same way as its close button, so that the settings are saved.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void slot_HelpBtnClicked(bool checked);
    void slot_ExtendBtnClicked(bool checked);
    void slot_NewBtnClicked(bool checked);
    void slot_SaveBtnClicked(bool checked);
    void slot_EditBtnClicked(bool checked);
    void slot_RenameBtnClicked(bool checked);
    void slot_DeleteBtnClicked(bool checked);
    void slot_TableCellClicked(int row, int column);
    void slot_TableitemSelectionChanged();
    void slot_SelectBtnGroupClicked(int id);
    void slot_RestoreBtnBtnClicked(bool checked);
    void slot_ImportBtnClicked(bool checked);
    void slot_ExportBtnClicked(bool checked);
    void slot_tableitDoubleClicked(QTableWidgetItem* item);
    void slot_tableitClickedDesc(QTableWidgetItem* item);
    void slot_checkboxstateChangedRef(int state);

private:
    enum Column { kNameColumn, kSpaceColumn, kSameColumn, kDescriptionColumn, kColumnCount };
    enum Select { kSelectAll, kClearAll };
    static constexpr int kLeastWidth = 645;

    struct SettingRow;
    static const SettingRow kSettings[];

    QWidget* makeListPanel();
    QBoxLayout* makeButtonColumn();
    QWidget* makeRestoreOptions();
    QWidget* makeMaskPanel();
    QBoxLayout* makeBottomRow();
    QPushButton* makeButton(const char* text, const char* objectName);
    QCheckBox* makeCheckBox(const char* text, const char* objectName);
    void setUpTable();
    void connectWidgets();
    void readSettings();

    VnJsonPtr manager() const;
    VnJsonPtr states() const;
    void fill();
    void showStates(const VnJsonPtr& states);
    void showState(int row, const VnJsonPtr& state);
    std::vector<int> selectedRows() const;
    QString nameAt(int row) const;
    QString selectedName() const;
    void enableFor(bool multi, bool fromReference);
    void showMask(const QString& name);
    int mask() const;

    VnQtAnswer request(StateRequest code, const VnQtArgumentWriter& writeArguments,
        std::vector<const char*> answers = {});
    bool acceptNewName(const QString& name);
    void sendDeletion(const QString& name);
    void sendDeletions(const QStringList& names);
    void deleteOne(const QString& name);
    void deleteSeveral(const QStringList& names);

    QTableWidget* m_table = nullptr;
    QPushButton* m_newButton = nullptr;
    QPushButton* m_saveButton = nullptr;
    QPushButton* m_editButton = nullptr;
    QPushButton* m_renameButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QShortcut* m_deleteKey = nullptr;
    QPushButton* m_importButton = nullptr;
    QPushButton* m_exportButton = nullptr;
    QCheckBox* m_referenceBox = nullptr;
    QCheckBox* m_turnOffBox = nullptr;
    QCheckBox* m_overrideBox = nullptr;
    QLabel* m_statusLabel = nullptr;
    QWidget* m_maskPanel = nullptr;
    QButtonGroup* m_maskGroup = nullptr;
    QButtonGroup* m_selectGroup = nullptr;
    QPushButton* m_restoreButton = nullptr;
    QPushButton* m_closeButton = nullptr;
    QPushButton* m_helpButton = nullptr;
    QPushButton* m_extendButton = nullptr;

    VnJsonPtr m_config;
    QTableWidgetItem* m_currentItem = nullptr; ///< The name cell that the last action worked on.
    QString m_oldName;
    bool m_isExpanded = false;
};

} // namespace vnsi
