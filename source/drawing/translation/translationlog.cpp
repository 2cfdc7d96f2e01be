#include "translationlog.h"

#include "file/drawingtexts.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace drawing {

namespace {

struct OptionText
{
    bool TranslationOptions::*option;
    const char* text;
};

constexpr OptionText kOptions[] = {
    {&TranslationOptions::colorByLayer, QT_TRANSLATE_NOOP("drawing", "强制对象颜色为 ByLayer")},
    {&TranslationOptions::linetypeByLayer, QT_TRANSLATE_NOOP("drawing", "强制对象线型为 ByLayer")},
    {&TranslationOptions::transparencyByLayer,
        QT_TRANSLATE_NOOP("drawing", "强制对象透明度为 ByLayer")},
    {&TranslationOptions::inBlocks, QT_TRANSLATE_NOOP("drawing", "转换块中的对象")},
};

QString optionLine(const TranslationOptions& options)
{
    QStringList chosen;
    for (const OptionText& row : kOptions) {
        if (options.*row.option)
            chosen += Texts::tr(row.text);
    }
    return chosen.isEmpty() ? Texts::tr("无") : chosen.join(Texts::tr("，"));
}

QString targetText(MappingResult::Target target)
{
    switch (target) {
    case MappingResult::Target::Made:
        return Texts::tr("目标图层已新建");
    case MappingResult::Target::Changed:
        return Texts::tr("目标图层的特性已改动");
    case MappingResult::Target::Unchanged:
        return Texts::tr("目标图层的特性不变");
    case MappingResult::Target::LeftOut:
        break;
    }
    return Texts::tr("未执行");
}

QString mappingLine(const MappingResult& result)
{
    const QString names = Texts::tr("“%1” → “%2”：").arg(result.from, result.to);
    if (!result.isApplied())
        return names + Texts::tr("未执行。") + result.cause;
    QString line =
        names + Texts::tr("%1 个对象，%2").arg(result.translated).arg(targetText(result.target));
    if (result.sourceRemoved)
        line += Texts::tr("，原图层已删除");
    if (result.leftInBlocks > 0)
        line += Texts::tr("，块中的 %1 个对象未转换").arg(result.leftInBlocks);
    return line + Texts::tr("。");
}

} // namespace

QString translationLogPath(const QString& drawingPath)
{
    const QFileInfo info(drawingPath);
    return info.dir().filePath(info.completeBaseName() + QStringLiteral(".log"));
}

QString translationLog(
    const QString& drawingPath, const TranslationReport& report, const TranslationOptions& options)
{
    const int leftOut = static_cast<int>(report.mappings.size()) - report.appliedCount();
    QStringList lines{
        Texts::tr("图层转换日志"),
        Texts::tr("图形：%1").arg(QDir::toNativeSeparators(drawingPath)),
        Texts::tr("时间：%1").arg(QDateTime::currentDateTime().toString(Qt::ISODate)),
        Texts::tr("选项：%1").arg(optionLine(options)),
        Texts::tr("映射：%1 条已执行，%2 条未执行；%3 个对象中转换了 %4 个。")
            .arg(report.appliedCount())
            .arg(leftOut)
            .arg(report.entities)
            .arg(report.translatedCount()),
        {},
    };
    for (const MappingResult& result : report.mappings) {
        lines += mappingLine(result);
        for (const QString& notice : result.notices)
            lines += QStringLiteral("    ") + notice;
    }
    if (!report.notices.isEmpty())
        lines += QString();
    return (lines + report.notices).join(QLatin1Char('\n')) + QLatin1Char('\n');
}

Expected<void> writeTranslationLog(const QString& path, const QString& text)
{
    QSaveFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return refusal(Texts::tr("无法写入日志文件“%1”：%2。")
                       .arg(QDir::toNativeSeparators(path), file.errorString()));
}

} // namespace drawing
