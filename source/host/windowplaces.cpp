#include "windowplaces.h"

#include "vnsettings.h"
#include "vnstrings.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <QWindow>

namespace host {

namespace {

constexpr wchar_t kSection[] = L"window_places";

/// The members of a place, in the order of their setters.
constexpr const char* kMembers[] = {"x", "y", "width", "height"};

bool isKept(const QDialog& dialog)
{
    return !dialog.objectName().isEmpty() && !qobject_cast<const QMessageBox*>(&dialog);
}

/// Empty where none is kept.
QRect keptPlace(const QDialog& dialog)
{
    const vnsi::VnJsonPtr place =
        vnsi::vn_user_config(kSection)->GetDataJ(dialog.objectName().toUtf8().constData());
    if (!place)
        return {};
    int values[4];
    for (int i = 0; i < 4; ++i)
        values[i] = place->GetDataI(kMembers[i]);
    return {values[0], values[1], values[2], values[3]};
}

/// In the middle of the window that the dialog belongs to, unless its owner has placed it.
QRect firstPlace(const QDialog& dialog)
{
    QRect place = dialog.geometry();
    if (dialog.testAttribute(Qt::WA_Moved))
        return place;
    const QWidget* const parent = dialog.parentWidget();
    place.moveCenter(parent ? parent->window()->geometry().center()
                            : QGuiApplication::primaryScreen()->availableGeometry().center());
    return place;
}

/// What a window manager draws around a window; known only of windows that it has drawn already.
QMargins frameOf(const QDialog& dialog)
{
    const QWidget* const parent = dialog.parentWidget() ? dialog.parentWidget()->window() : nullptr;
    const QMargins drawn =
        parent && parent->windowHandle() ? parent->windowHandle()->frameMargins() : QMargins();
    return drawn.isNull()
               ? QMargins(0, dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0)
               : drawn;
}

const QScreen& screenOf(const QRect& place)
{
    const QScreen* const screen = QGuiApplication::screenAt(place.center());
    return screen ? *screen : *QGuiApplication::primaryScreen();
}

/// No larger than the space, and within it.
QRect within(const QRect& space, QRect place)
{
    place.setSize(place.size().boundedTo(space.size()));
    place.moveLeft(qBound(space.left(), place.left(), space.right() + 1 - place.width()));
    place.moveTop(qBound(space.top(), place.top(), space.bottom() + 1 - place.height()));
    return place;
}

} // namespace

WindowPlaces::WindowPlaces()
{
    if (qApp)
        qApp->installEventFilter(this);
}

bool WindowPlaces::eventFilter(QObject* watched, QEvent* event)
{
    const bool isShown = event->type() == QEvent::Show;
    if ((!isShown && event->type() != QEvent::Hide) || event->spontaneous())
        return false;
    auto* const dialog = qobject_cast<QDialog*>(watched);
    if (!dialog || !dialog->isWindow())
        return false;
    if (isShown)
        restore(*dialog);
    else if (isKept(*dialog))
        keep(*dialog);
    return false;
}

void WindowPlaces::restore(QDialog& dialog)
{
    const QRect kept = isKept(dialog) ? keptPlace(dialog) : QRect();
    QRect wanted = kept.isEmpty() ? firstPlace(dialog) : kept;
    wanted.setSize(wanted.size().expandedTo(dialog.minimumSizeHint())); // Its texts may have grown.
    const QRect space = screenOf(wanted).availableGeometry().marginsRemoved(frameOf(dialog));
    const QRect fitting = within(space, wanted);
    // Also where nothing changes: a place that is set is not left to the window manager's taste.
    if (isKept(dialog) || fitting != dialog.geometry())
        dialog.setGeometry(fitting);
}

void WindowPlaces::keep(const QDialog& dialog)
{
    const QRect place = dialog.isMaximized() ? dialog.normalGeometry() : dialog.geometry();
    const int values[] = {place.x(), place.y(), place.width(), place.height()};
    const vnsi::VnJsonPtr kept = vnsi::ElementValue::createObject(4);
    for (int i = 0; i < 4; ++i)
        kept->SetDataI(kMembers[i], values[i]);
    vnsi::vn_user_config(kSection)->SetDataJ(dialog.objectName().toUtf8().constData(), kept);
}

} // namespace host
