#include "editprimitive.h"

#include "RxObjectImpl.h"
#include "hostfrontend.h"

namespace vnsi {

ODRX_DEFINE_MEMBERS(VnEditPrimitiveServer, OdRxObject, L"VnEditPrimitiveServer")

} // namespace vnsi

namespace host {

namespace {

class EditPrimitiveServer : public vnsi::VnEditPrimitiveServer
{
public:
    void help(int topic) override { hostFrontEnd().help(topic); }
};

} // namespace

OdRxObjectPtr makeEditPrimitiveServer()
{
    return OdRxObjectImpl<EditPrimitiveServer>::createObject();
}

} // namespace host
