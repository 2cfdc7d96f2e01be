#pragma once

#include "command.h"
#include "hostfrontend.h"

/// Shows dialogs to a camera without involving a user.
namespace posing {

/// Makes a dialog through its service, fills it from `tree`, saves its picture as `name` and then
/// calls `more` with its window. `answer` answers its requests.
void showDialog(const OdString& service, const OdString& dialog, const vnsi::VnJsonPtr& tree,
    const LayerCommand::Camera& camera, const QString& name,
    const std::function<void(QWidget& window)>& more = {},
    const std::function<void(const vnsi::VnJsonPtr& tree)>& answer = {});

/// Calls the slot `method(row, column)` of `window`, saves a picture of the modal dialog that it
/// opens, and cancels that dialog.
void showNested(QWidget& window, const char* method, int row, int column,
    const LayerCommand::Camera& camera, const QString& name);

/// Answers every dialog of the host in place of the user while it exists: it chooses OK and some
/// file to open.
class FileChooser : public host::HostFrontEnd
{
public:
    FileChooser() : m_previous(host::setHostFrontEnd(this)) {}
    ~FileChooser() override { host::setHostFrontEnd(m_previous); }
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;

    int showDialog(const OdString& service, const OdString& name, const vnsi::VnJsonPtr& tree,
        const OdRxObjectPtr& invoker, QWidget* parent) override;

private:
    host::HostFrontEnd* m_previous;
};

} // namespace posing
