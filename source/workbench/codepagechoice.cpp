#include "codepagechoice.h"

#include "benchtexts.h"
#include "file/codepages.h"
#include "file/textcodec.h"
#include "messages.h"

#include <QInputDialog>

#include <algorithm>

namespace {

} // namespace

std::optional<QByteArray> chooseCodePage(QWidget* parent, const drawing::TextCodec* now)
{
    QStringList titles{Texts::tr("按图形的声明")};
    for (const drawing::CodePage& page : drawing::codePages())
        titles += drawing::codePageTitle(page.charset);
    const QString title = Texts::tr("代码页");
    QString chosen = now ? now->title() : titles.first();
    for (;;) {
        bool isChosen = false;
        chosen = QInputDialog::getItem(parent, title,
            Texts::tr("图形中的文字按哪个代码页读取（也可以输入名称，如 ISO8859-15）："), titles,
            std::max(0, titles.indexOf(chosen)), true, &isChosen);
        if (!isChosen)
            return {};
        const int at = titles.indexOf(chosen);
        if (at >= 0)
            return at == 0 ? QByteArray()
                           : QByteArray(drawing::codePages()[static_cast<size_t>(at) - 1].name);
        QByteArray name = chosen.trimmed().toUtf8();
        if (drawing::TextCodec::ofCodePage({name.constData(), static_cast<size_t>(name.size())}))
            return name;
        messages::showWarning(parent, title, Texts::tr("没有代码页“%1”。").arg(chosen));
    }
}
