#include "helptexts.h"

#include "hosttexts.h"

#include <QVariant>
#include <QWidget>

namespace host {

namespace {

struct PageRow
{
    const char* window; ///< The object name of a dialog.
    const char* page;   ///< The file under docs/manual, in each language.
};

constexpr PageRow kPages[] = {
    {"Dialog_CmdLayer", "layer-properties"},
    {"Dialog_CmdLayerState", "layer-states"},
    {"Dialog_CmdLayerStateNew", "layer-state-new"},
    {"Dialog_CmdLayerStateEdit", "layer-state-edit"},
    {"Dialog_CmdLayerStateAddNewLayer", "layer-state-add"},
    {"Dialog_CmdLaydel", "layer-delete"},
    {"Dialog_CmdLaymch", "layer-change"},
    {"Dialog_CmdLaymrg", "layer-merge"},
    {"Dialog_CmdLaywalk", "layer-walk"},
    {"Dialog_CmdLaywalk_Verify", "layer-walk-verify"},
    {"Dialog_CmdLaytrans", "layer-translator"},
    {"Dialog_CmdLaytransNewEdit", "layer-translator-layer"},
    {"Dialog_CmdLaytransSetting", "layer-translator-settings"},
    {"layerTransparency", "layer-transparency"},
    {"ColorDialog", "color"},
    {"Dialog_CmdsUI_ReNameDlg", "rename"},
};

QString pageOf(const QWidget& window)
{
    for (const PageRow& row : kPages) {
        if (window.objectName() == QLatin1String(row.window))
            return QLatin1String(row.page);
    }
    return window.property("helpPage").toString();
}

} // namespace

QUrl helpPage(const QWidget* window)
{
    QString page;
    for (; window && page.isEmpty(); window = window->parentWidget())
        page = pageOf(*window);
    if (page.isEmpty())
        page = QStringLiteral("index");
    //: The folder of the manual's pages in this language.
    const QString folder = Texts::tr("zh");
    return QUrl(QStringLiteral("qrc:/manual/%1/%2.md").arg(folder, page));
}

} // namespace host
