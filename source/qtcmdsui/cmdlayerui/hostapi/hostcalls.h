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

/// Every call into the host that the module makes while a dialog is open. None of these functions
/// throws: an exception of the host is written to the log (category "quenlith.layers.host") and
/// counts as cancelling.
namespace vnsi::hostapi {

/// Shows a dialog of a service and returns its answer, whose "result" is 1 when the user confirmed.
/// The answer is never empty: when the host returns nothing, it is an object without keys, whose
/// "result" reads as 0. An earlier "result" in the tree is removed first.
VnJsonPtr showDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent);
/// Shows a dialog under the host's current window and without a call-back object.
VnJsonPtr showDialog(
    const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree);

/// The window that new dialogs belong to; null when there is none.
QWidget* currentWindow();

/// Shows a message and returns the pressed button; 0 when the host fails.
int messageBox(const QString& text, const QString& caption, int style);
/// Shows a message with options, which may be empty. Returns the pressed button as in "ControlBtn",
/// or `fallback` when the answer does not contain it or the host fails.
int messageBoxEx(const QString& caption, const QString& text, const VnJsonPtr& options, int style,
    int code, int icon, int fallback = 0);
/// Asks a question with one button per command, each with an id and a text. Returns the chosen id;
/// 2 (cancel) when the host fails.
int taskDialog(const QString& title, const QString& instruction,
    std::initializer_list<std::pair<int, QString>> commands);

/// The tree of one section of the user's persistent settings. When the host has none, it is an
/// object that is not saved, which can be read and written nevertheless.
VnJsonPtr userConfig(const OdString& section);
/// The value of a system variable; 0 when the host fails.
int systemVariable(const OdString& name);
/// Shows the host's help; does nothing when the host offers none.
void showHelp();
/// The host's text for a colour in the current document; empty when the host fails.
OdString colorText(const OdCmColor& color);
/// The number that identifies an object of the drawing in a value tree; 0 for a null id.
OdInt64 numberOf(const OdDbObjectId& id);
/// Whether the text matches a wildcard pattern of the host, ignoring letter case.
bool matchesWildcard(const OdString& text, const OdString& pattern);

} // namespace vnsi::hostapi
