#include "dialoghelp.h"

#include "vneditprimitive.h"
#include "vnservicedict.h"

namespace vnsi {

void vnqtShowHelp()
{
    const OdRxObjectPtr service = vn_arbitDict_getservice(L"Core/EditPrimitiveServer");
    if (const auto server = VnEditPrimitiveServer::cast(service.get()))
        server->help(0);
}

} // namespace vnsi
