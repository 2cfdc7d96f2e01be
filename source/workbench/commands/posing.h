#pragma once

#include "command.h"
#include "hostfrontend.h"

/// Shows dialogs to a camera without waiting for a user.
namespace posing {

/// Makes a dialog through its service, fills it from `tree`, pictures it as `name` and lets `more`
/// go on with its window. `answer` answers its requests meanwhile.
void showDialog(const OdString& service, const OdString& dialog, const vnsi::VnJsonPtr& tree,
    const LayerCommand::Camera& camera, const QString& name,
    const std::function<void(QWidget& window)>& more = {},
    const std::function<void(const vnsi::VnJsonPtr& tree)>& answer = {});

/// Calls the slot `method(row, column)` of `window`, pictures the modal dialog that it opens, and
/// cancels that.
void showNested(QWidget& window, const char* method, int row, int column,
    const LayerCommand::Camera& camera, const QString& name);

/// While it lives, answers every dialog that the host is asked for in the user's place: with OK and
/// a file to open, whichever.
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
