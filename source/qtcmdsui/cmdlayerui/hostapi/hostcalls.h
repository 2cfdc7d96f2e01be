#pragma once

#include "CmColor.h"
#include "DbObjectId.h"
#include "OdString.h"
#include "RxObject.h"
#include "vnjson.h"

#include <initializer_list>
#include <utility>

class QString;
class QWidget;

/// Every call that the module makes into the host while a dialog is open. None of them throws: what
/// a host throws is noted in the log (category "quenlith.layers.host") and counts as cancelled.
namespace vnsi::hostapi {

/// Shows a dialog of a service and gives back its answer, of which "result" 1 says that the user
/// went on. The answer is never empty: where the host gives none, it is an object without keys, so
/// that its "result" reads 0. A "result" that stood in the tree before is taken out of it.
VnJsonPtr showDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent);
/// The same without a call-back object, under the host's current window.
VnJsonPtr showDialog(
    const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree);

/// The window that dialogs belong to now; null when there is none.
QWidget* currentWindow();

/// Shows a message; the button pressed, 0 where the host fails.
int messageBox(const QString& text, const QString& caption, int style);
/// Shows a message with options, which may be empty. The button pressed as "ControlBtn" has it;
/// `fallback` where the answer lacks it or the host fails.
int messageBoxEx(const QString& caption, const QString& text, const VnJsonPtr& options, int style,
    int code, int icon, int fallback = 0);
/// Asks with a button for each command, an id and a text. The id chosen; 2 (cancel) where the host
/// fails.
int taskDialog(const QString& title, const QString& instruction,
    std::initializer_list<std::pair<int, QString>> commands);

/// The tree of a persisted section of the user's settings. Where the host has none it is an object
/// that nobody keeps, so it may be read and written all the same.
VnJsonPtr userConfig(const OdString& section);
/// The value of a system variable; 0 where the host fails.
int systemVariable(const OdString& name);
/// Shows the host's help; does nothing where the host offers none.
void showHelp();
/// How the host names a colour in the current document; empty where it fails.
OdString colorText(const OdCmColor& color);
/// The number that stands for an object of the drawing in a value tree; 0 for none.
OdInt64 numberOf(const OdDbObjectId& id);
/// Whether the text matches the host's kind of wildcard pattern, letter case aside.
bool matchesWildcard(const OdString& text, const OdString& pattern);

} // namespace vnsi::hostapi
