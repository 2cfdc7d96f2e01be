#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace layertool {

namespace {

void install(QTranslator& translator, const QString& name, const QString& folder)
{
    if (translator.load(name, folder))
        QCoreApplication::installTranslator(&translator);
}

} // namespace

void useLanguage(const QString& language)
{
    static QTranslator ofQt;
    static QTranslator ofDrawings;
    static QTranslator ours;
    const bool isChinese = language.isEmpty() ? QLocale::system().language() == QLocale::Chinese ||
                                                    QLocale::system().language() == QLocale::C
                                              : language == QLatin1String("zh");
    if (isChinese) {
        install(ofQt, QStringLiteral("qtbase_zh_CN"),
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        return;
    }
    install(ofDrawings, QStringLiteral("drawing_en"), QStringLiteral(":/i18n"));
    install(ours, QStringLiteral("layertool_en"), QStringLiteral(":/i18n"));
}

} // namespace layertool
