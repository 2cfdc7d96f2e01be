#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <vector>

namespace language {

namespace {

/// The code of the locale's language. A locale without a language gets the language of the sources.
QString ofLocale()
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return QStringLiteral("zh");
    const QString code = system.name().section(QLatin1Char('_'), 0, 0);
    return isKnown(code) ? code : QStringLiteral("en");
}

} // namespace

bool isKnown(const QString& code)
{
    return QString::fromLatin1(kCodes).split(QLatin1Char(' ')).contains(code);
}

void use(const QString& code, const QStringList& libraries)
{
    static std::vector<std::unique_ptr<QTranslator>> translators;
    translators.clear(); // A deleted translator is no longer used.
    const auto install = [](const QString& name, const QString& folder) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(name, folder) && QCoreApplication::installTranslator(translator.get()))
            translators.push_back(std::move(translator));
    };
    const QString chosen = isKnown(code) ? code : ofLocale();
    const QString ofQt = chosen == QLatin1String("zh") ? QStringLiteral("zh_CN") : chosen;
    install(
        QStringLiteral("qtbase_") + ofQt, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    for (const QString& library : libraries)
        install(library + QLatin1Char('_') + chosen, QStringLiteral(":/i18n"));
}

QString asked(const QStringList& words)
{
    const int at = words.indexOf(QStringLiteral("--language"));
    const QStringList joined = words.filter(QStringLiteral("--language="));
    return at >= 0 ? words.value(at + 1) : joined.value(0).section(QLatin1Char('='), 1);
}

} // namespace language
