#include "hostdialogs.h"

#include "vnservicedict.h"
#include "vnstrings.h"

#include <QApplication>
#include <QSet>

namespace host {

vnsi::VnUiModeDialogBasePtr makeDialog(const OdString& service, const OdString& name)
{
    const auto maker = vnsi::VnUiService::cast(vnsi::vn_arbitDict_getservice(service).get());
    return maker.isNull() ? vnsi::VnUiModeDialogBasePtr() : maker->createDialog(name);
}

WatchedDialog::WatchedDialog(const OdString& service, const OdString& name)
{
    const QWidgetList before = QApplication::allWidgets();
    const QSet<QWidget*> old(before.begin(), before.end());
    m_dialog = makeDialog(service, name);
    QString objectName = vnsi::vnutOdStringToQString(name);
    objectName.replace(QLatin1Char('/'), QLatin1Char('_'));
    for (QWidget* const widget : QApplication::allWidgets()) {
        auto* const dialog = qobject_cast<QDialog*>(widget);
        if (dialog && !old.contains(widget) && dialog->objectName() == objectName)
            m_window = dialog;
    }
}

} // namespace host
