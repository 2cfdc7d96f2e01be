#include "languagemenu.h"

#include "language.h"

#include <QActionGroup>
#include <QSettings>
#include <QTranslator>

namespace {

constexpr char kKey[] = "language";

/// The name of a language in the language itself, so that its speakers recognise it: what it makes
/// of the name of the sources' language.
QString ownName(const QString& code)
{
    constexpr char kSource[] = QT_TRANSLATE_NOOP("LanguageMenu", "中文(&Z)");
    QTranslator language;
    const bool isTranslated =
        language.load(QStringLiteral("workbench_") + code, QStringLiteral(":/i18n"));
    return isTranslated ? language.translate("LanguageMenu", kSource) : QString::fromUtf8(kSource);
}

QString kept()
{
    return QSettings().value(QLatin1String(kKey)).toString();
}

} // namespace

LanguageMenu::LanguageMenu(QWidget* parent) : QMenu(tr("语言(&L)"), parent)
{
    setObjectName(QStringLiteral("languageMenu"));
    auto* const choices = new QActionGroup(this);
    const auto offer = [&](const QString& name, const QString& code) {
        QAction* const choice = choices->addAction(addAction(name));
        choice->setObjectName(QStringLiteral("language_") + code);
        choice->setCheckable(true);
        choice->setChecked(code == kept());
        connect(choice, &QAction::triggered, this, [this, code] {
            QSettings().setValue(QLatin1String(kKey), code);
            emit said(tr("重新启动后改用所选的语言。"));
        });
    };
    offer(tr("跟随系统(&S)"), {});
    for (const QString& code : QString::fromLatin1(language::kCodes).split(QLatin1Char(' ')))
        offer(ownName(code), code);
}

void LanguageMenu::useLanguage(const QString& asked)
{
    Q_INIT_RESOURCE(workbench_i18n);
    const QStringList libraries{QStringLiteral("drawing"), QStringLiteral("host"),
        QStringLiteral("cmdlayerui"), QStringLiteral("workbench")};
    language::use(asked.isEmpty() ? kept() : asked, libraries);
}
