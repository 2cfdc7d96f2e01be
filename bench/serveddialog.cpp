#include "serveddialog.h"

#include "RxObjectImpl.h"
#include "vnservicedict.h"

namespace bench {

using namespace vnsi;

ServedDialog::ServedDialog(const OdString& name, VnJsonPtr tree, OdRxObjectPtr invoker)
    : m_tree(std::move(tree)),
      m_invoker(invoker ? std::move(invoker)
                        : OdRxObjectPtr(OdRxObjectImpl<VnUiDialogInvoker>::createObject()))
{
    const auto service = VnUiService::cast(vn_arbitDict_getservice(L"Dialog/CmdLayer").get());
    if (!service)
        return;
    m_wrapper = service->createDialog(name);
    if (!isMade())
        return;
    m_wrapper->setData(m_tree, m_invoker);
    m_wrapper->widget()->show();
}

} // namespace bench
