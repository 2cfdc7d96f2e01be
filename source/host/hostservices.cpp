#include "hostservices.h"

#include "colordialog.h"
#include "filedialog.h"
#include "hostmodedialog.h"
#include "hostwindows.h"
#include "renamedialog.h"

namespace host {

namespace {

struct DialogRow
{
    const wchar_t* name;
    const char* objectName;
    vnsi::VnUiModeDialogBasePtr (*create)(QWidget* parent, const char* objectName);
};

constexpr DialogRow kDialogs[] = {
    {L"ColorDialog", "ColorDialog", &HostModeDialog<ColorDialog>::create},
    {L"FileDialogBox", "FileDialogBox", &HostModeDialog<FileDialog>::create},
    {L"FileNavDialogBox", "FileNavDialogBox", &HostModeDialog<FileDialog>::create},
    {L"Dialog/CmdsUI/ReNameDlg", "Dialog_CmdsUI_ReNameDlg", &HostModeDialog<RenameDialog>::create},
};
constexpr const DialogRow* kFirstCommandDialog = kDialogs + 3;

/// Makes the dialogs in a section of the table.
class DialogTable : public vnsi::VnUiService
{
public:
    DialogTable(const DialogRow* first, const DialogRow* last) : m_first(first), m_last(last) {}

    vnsi::VnUiModeDialogBasePtr createDialog(const OdString& dialogName) override
    {
        for (const DialogRow* row = m_first; row != m_last; ++row) {
            if (dialogName == OdString(row->name))
                return row->create(currentWindow(), row->objectName);
        }
        return {};
    }

private:
    const DialogRow* m_first;
    const DialogRow* m_last;
};

} // namespace

OdRxObjectPtr makeCommonDialogs()
{
    return OdRxObjectImpl<DialogTable>::createObject(std::begin(kDialogs), kFirstCommandDialog);
}

OdRxObjectPtr makeCommandDialogs()
{
    return OdRxObjectImpl<DialogTable>::createObject(kFirstCommandDialog, std::end(kDialogs));
}

} // namespace host
