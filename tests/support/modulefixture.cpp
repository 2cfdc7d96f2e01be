#include "modulefixture.h"

#include "vnstrings.h"

#include <QtTest>

ModuleFixture::ModuleFixture()
{
    const QString failure = m_host.loadModule(modulePath());
    if (!failure.isEmpty())
        QTest::qFail(qPrintable(failure), __FILE__, __LINE__);
}

QString ModuleFixture::modulePath()
{
    return QStringLiteral(VN_MODULE_PATH);
}

host::WatchedDialog ModuleFixture::createDialog(
    const QString& name, const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& invoker)
{
    host::WatchedDialog dialog(L"Dialog/CmdLayer", vnsi::vnutQStringToOdString(name));
    if (dialog)
        dialog->setData(tree, invoker);
    return dialog;
}
