#include "poser.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTableWidget>
#include <QTimer>

#include <utility>

namespace {

void press(const QWidget& dialog, const char* button)
{
    if (auto* const found = dialog.findChild<QAbstractButton*>(QLatin1String(button)))
        found->click();
}

/// Clicks into a cell, or twice, with the mouse; the dialogs that this opens have been posed when
/// it returns.
void click(const QWidget& dialog, const char* view, int row, int column, bool twice = false)
{
    auto* const table = dialog.findChild<QAbstractItemView*>(QLatin1String(view));
    const QModelIndex cell = table ? table->model()->index(row, column) : QModelIndex();
    if (!cell.isValid())
        return;
    table->scrollTo(cell);
    const QPoint place = table->visualRect(cell).center();
    const QPoint onScreen = table->viewport()->mapToGlobal(place);
    const auto send = [&](QEvent::Type type, Qt::MouseButtons pressed) {
        QMouseEvent event(type, place, onScreen, Qt::LeftButton, pressed, Qt::NoModifier);
        QCoreApplication::sendEvent(table->viewport(), &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    if (!twice)
        return;
    send(QEvent::MouseButtonDblClick, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
}

} // namespace

/// What is done with a dialog: a picture of it, or more.
struct Poser::DialogRow
{
    const char* dialog; ///< Its object name.
    const char* picture;
    void (Poser::*pose)(QDialog& dialog) = nullptr; ///< Takes the pictures itself.
};

const Poser::DialogRow Poser::kDialogs[] = {
    {"Dialog_CmdLayer", "", &Poser::poseLayers},
    {"ColorDialog", "host-color"},
    {"layerTransparency", "layer-transparency"},
    {"Dialog_CmdsUI_ReNameDlg", "host-rename"},
    {"Dialog_CmdLayerState", "", &Poser::poseStates},
    {"Dialog_CmdLayerStateNew", "layer-state-new"},
    {"Dialog_CmdLayerStateEdit", "", &Poser::poseStateEditor},
    {"Dialog_CmdLayerStateAddNewLayer", "layer-state-add"},
    {"Dialog_CmdLaydel", "layer-delete"},
    {"Dialog_CmdLaymch", "layer-change"},
    {"Dialog_CmdLaymrg", "", &Poser::poseMerge},
    {"Dialog_CmdLaywalk", "", &Poser::poseWalk},
    {"Dialog_CmdLaywalk_Verify", "layer-walk-verify"},
    {"Dialog_CmdLaytrans", "", &Poser::poseTranslator},
    {"Dialog_CmdLaytransNewEdit", "layer-translator-layer"},
    {"Dialog_CmdLaytransSetting", "layer-translator-settings"},
    {"FileDialogBox", "", &Poser::chooseStandard},
};

Poser::Poser(Camera camera, QString standard)
    : m_camera(std::move(camera)),
      m_standard(std::move(standard))
{
    qApp->installEventFilter(this);
}

bool Poser::eventFilter(QObject* object, QEvent* event)
{
    auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(object) : nullptr;
    if (dialog && dialog->isModal())
        QTimer::singleShot(0, dialog, [this, dialog] { pose(*dialog); });
    return false;
}

void Poser::pose(QDialog& dialog)
{
    QCoreApplication::processEvents();
    for (const DialogRow& row : kDialogs) {
        if (dialog.objectName() != QLatin1String(row.dialog))
            continue;
        if (row.pose)
            (this->*row.pose)(dialog);
        else
            picture(dialog, row.picture);
    }
    // A dialog may ask whether it is meant; what was done for the pictures is not.
    if (dialog.isVisible())
        dialog.reject();
    if (dialog.isVisible())
        dialog.done(QDialog::Rejected);
}

void Poser::picture(QDialog& dialog, const char* name) const
{
    QCoreApplication::processEvents();
    m_camera(QLatin1String(name), dialog);
}

void Poser::poseLayers(QDialog& dialog)
{
    constexpr int kNameColumn = 1;
    constexpr int kColorColumn = 5;
    constexpr int kTransparencyColumn = 8;
    picture(dialog, "layer-properties");
    click(dialog, "layerTable", 0, kColorColumn);
    click(dialog, "layerTable", 0, kTransparencyColumn);
    click(dialog, "layerTable", 1, kNameColumn, true);
}

void Poser::poseStates(QDialog& dialog)
{
    picture(dialog, "layer-states");
    press(dialog, "extendButton");
    picture(dialog, "layer-states-unfolded");
    press(dialog, "extendButton");
    press(dialog, "newButton");
    press(dialog, "editButton");
}

void Poser::poseStateEditor(QDialog& dialog)
{
    picture(dialog, "layer-state-edit");
    // There are layers to add when one was taken out.
    click(dialog, "stateLayerTable", 0, 0);
    press(dialog, "deleteLayerButton");
    press(dialog, "newLayerButton");
}

/// It comes up for the layers to merge first, then for the target, with a line for its name.
void Poser::poseMerge(QDialog& dialog)
{
    const bool isTarget = dialog.findChild<QWidget*>(QStringLiteral("layerNameEdit"));
    picture(dialog, isTarget ? "layer-merge-target" : "layer-merge-sources");
    if (!isTarget)
        press(dialog, "okButton");
}

void Poser::poseWalk(QDialog& dialog)
{
    click(dialog, "layerList", 2, 0, true);
    auto* const list = dialog.findChild<QListWidget*>(QStringLiteral("layerList"));
    list->selectAll();
    picture(dialog, "layer-walk");
    if (auto* const verify = dialog.findChild<QAction*>(QStringLiteral("verifyAction")))
        verify->trigger();
}

void Poser::poseTranslator(QDialog& dialog)
{
    press(dialog, "loadButton");
    press(dialog, "mapSameButton");
    picture(dialog, "layer-translator");
    click(dialog, "mapTable", 0, 0);
    press(dialog, "editButton");
    press(dialog, "settingButton");
}

void Poser::chooseStandard(QDialog& dialog)
{
    auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!name)
        return;
    name->setText(m_standard);
    QMetaObject::invokeMethod(&dialog, "accept");
}
