#include "vnqtlayercmdsuisvr.h"

#include "cmdlaydelui/vnqtlaydellayerdlg.h"
#include "cmdlayerstateui/vnqtaddnewlayerdlg.h"
#include "cmdlayerstateui/vnqteditlayerstatedlg.h"
#include "cmdlayerstateui/vnqtnewlayerstatedlg.h"
#include "cmdlayerstateui/vnqtuidynlayerstatecmdimpl.h"
#include "cmdlaymchui/vnqtlaymchlayerdlg.h"
#include "cmdlaymrgui/vnqtlaymrglayerdlg.h"
#include "cmdlaytransui/vnqtlaytransneweditdlg.h"
#include "cmdlaytransui/vnqtlaytranssettingdlg.h"
#include "cmdlaytransui/vnqtlaytransuidlg.h"
#include "cmdlaywalkui/vnqtlaywalkdlg.h"
#include "cmdlaywalkui/vnqtlaywalkverifydlg.h"
#include "hostapi/hostcalls.h"
#include "vnqtuidynlayercmdimpl.h"
#include "vornqt.h"

#include <algorithm>
#include <cwchar>
#include <string>

namespace vnsi {

namespace {

using WrapperPtr = OdSmartPtr<VnQtUIModeDialogBase>;

template <class T>
WrapperPtr makeDialog()
{
    return VnQtRxObjectImpl<VnQtModeDialog<T>, VnQtModeDialog<T>>::createObject();
}

struct DialogRow
{
    const wchar_t* name;
    WrapperPtr (*make)();
};

constexpr DialogRow kDialogs[] = {
    {L"Dialog/CmdLayer", makeDialog<VnQtUiDynLayerCmdImpl>},
    {L"Dialog/CmdLayerState", makeDialog<VnQtUiDynLayerStateCmdImpl>},
    {L"Dialog/CmdLayerStateNew", makeDialog<VnQtNewLayerStateDlg>},
    {L"Dialog/CmdLayerStateEdit", makeDialog<VnQtEditLayerStateDlg>},
    {L"Dialog/CmdLayerStateAddNewLayer", makeDialog<VnQtAddNewLayerDlg>},
    {L"Dialog/CmdLaydel", makeDialog<VnQtLaydelLayerDlg>},
    {L"Dialog/CmdLaymch", makeDialog<VnQtLaymchLayerDlg>},
    {L"Dialog/CmdLaymrg", makeDialog<VnQtLaymrgLayerDlg>},
    {L"Dialog/CmdLaywalk", makeDialog<VnQtLayWalkDlg>},
    {L"Dialog/CmdLaywalk/Verify", makeDialog<VnQtLayWalkVerifyDlg>},
    {L"Dialog/CmdLaytrans", makeDialog<VnQtUiLaytransCmd>},
    {L"Dialog/CmdLaytransNewEdit", makeDialog<VnQtLaytransNewEditWgt>},
    {L"Dialog/CmdLaytransSetting", makeDialog<VnQtLaytransSettingWgt>},
};

std::string objectNameOf(const OdString& dialogName)
{
    std::string name = OdStringToUtf8String(dialogName).c_str();
    std::replace(name.begin(), name.end(), '/', '_');
    std::replace(name.begin(), name.end(), '\\', '_');
    return name;
}

} // namespace

VnUiModeDialogBasePtr VnQtLayerCmdsUISvr::makeDialog(const OdString& dialogName)
{
    const auto* const row =
        std::find_if(std::begin(kDialogs), std::end(kDialogs), [&](const DialogRow& candidate) {
            return wcscasecmp(candidate.name, dialogName.c_str()) == 0;
        });
    if (row == std::end(kDialogs))
        return {};

    QWidget* parent = hostapi::currentWindow();
    WrapperPtr dialog = row->make();
    if (!dialog.isNull() && dialog->createDialog(parent, 0, objectNameOf(dialogName).c_str()))
        return dialog;
    return {};
}

} // namespace vnsi
