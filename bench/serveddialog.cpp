#include "serveddialog.h"

#include "RxObjectImpl.h"

namespace bench {

using namespace vnsi;

ServedDialog::ServedDialog(const OdString& name, VnJsonPtr tree, OdRxObjectPtr invoker)
    : m_tree(std::move(tree)),
      m_invoker(invoker ? std::move(invoker)
                        : OdRxObjectPtr(OdRxObjectImpl<VnUiDialogInvoker>::createObject()))
{
    m_wrapper = host::WatchedDialog(L"Dialog/CmdLayer", name);
    if (!isMade())
        return;
    m_wrapper->setData(m_tree, m_invoker);
    m_wrapper.window()->show();
}

} // namespace bench
