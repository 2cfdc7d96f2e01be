#include "vnqtcmdslayeruimodule.h"

#include "vnqtlayercmdsuisvr.h"
#include "vnservicedict.h"

#include <QtGlobal>

namespace {

constexpr wchar_t kServiceName[] = L"Dialog/CmdLayer";

} // namespace

ODRX_DEFINE_DYNAMIC_MODULE(VnQtCmdsLayerUIModule)

void VnQtCmdsLayerUIModule::initApp()
{
    Q_INIT_RESOURCE(layerui);
    vnsi::vn_arbitDict_regservice(kServiceName,
        OdRxObjectImpl<vnsi::VnQtLayerCmdsUISvr, vnsi::VnQtLayerCmdsUISvr>::createObject());
}

void VnQtCmdsLayerUIModule::uninitApp()
{
    vnsi::vn_arbitDict_clearservice(kServiceName);
}
