#include "hoststart.h"

#include "documents.h"
#include "editprimitive.h"
#include "helpwindow.h"
#include "hostservices.h"
#include "hosttexts.h"
#include "requests.h"
#include "settings.h"
#include "vnservicedict.h"
#include "vnstrings.h"
#include "windowplaces.h"

#include <QDir>
#include <QFileInfo>

namespace host {

namespace {

struct ServiceRow
{
    const wchar_t* name;
    OdRxObjectPtr (*create)();
};

constexpr ServiceRow kServices[] = {
    {L"Core/DocMgr", makeDocMgr},
    {L"Core/RequestSvr", makeRequestSvr},
    {L"Core/EditPrimitiveServer", makeEditPrimitiveServer},
    {L"Dialog/Common", makeCommonDialogs},
    {L"Dialog/CmdsUI", makeCommandDialogs},
};

} // namespace

Host::Host()
    : m_helpKey(std::make_unique<HelpKey>()),
      m_windowPlaces(std::make_unique<WindowPlaces>())
{
    for (const ServiceRow& row : kServices)
        vnsi::vn_arbitDict_regservice(row.name, row.create());
}

Host::~Host()
{
    unloadModule();
    for (const ServiceRow& row : kServices)
        vnsi::vn_arbitDict_clearservice(row.name);
    saveSettings();
}

QString Host::loadModule(const QString& path)
{
    unloadModule();
    const auto failure = [&](const QString& cause) {
        return Texts::tr("无法加载模块“%1”: %2").arg(QDir::toNativeSeparators(path), cause);
    };
    if (!QFileInfo(path).isFile())
        return failure(Texts::tr("文件不存在"));
    try {
        m_module = odrxLoadModule(vnsi::vnutQStringToOdString(path));
    } catch (const OdError& error) {
        return failure(vnsi::vnutOdStringToQString(error.description()));
    } catch (const std::exception& error) {
        return failure(QString::fromLocal8Bit(error.what()));
    }
    return {};
}

void Host::unloadModule()
{
    odrxUnloadModule(std::exchange(m_module, {}));
}

} // namespace host
