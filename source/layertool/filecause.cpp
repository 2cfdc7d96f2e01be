#include "filecause.h"

#include "texts.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace layertool {

namespace {

/// The causes that users meet. For all others the system's message is used, in the system's
/// language.
constexpr struct
{
    int number;
    const char* text;
} kCauses[] = {
    {ENOENT, QT_TRANSLATE_NOOP("layertool", "文件或文件夹不存在")},
    {EACCES, QT_TRANSLATE_NOOP("layertool", "没有权限")},
    {EPERM, QT_TRANSLATE_NOOP("layertool", "没有权限")},
    {EROFS, QT_TRANSLATE_NOOP("layertool", "那里只能读")},
    {EISDIR, QT_TRANSLATE_NOOP("layertool", "它是文件夹")},
    {ENOTDIR, QT_TRANSLATE_NOOP("layertool", "路径中有一段不是文件夹")},
    {EEXIST, QT_TRANSLATE_NOOP("layertool", "那里有一个同名的文件")},
    {ENOSPC, QT_TRANSLATE_NOOP("layertool", "磁盘已满")},
    {ENAMETOOLONG, QT_TRANSLATE_NOOP("layertool", "名称太长")},
    {EPIPE, QT_TRANSLATE_NOOP("layertool", "读取它的程序已经结束")},
};

} // namespace

QString systemCause(int number)
{
    const auto* const known = std::find_if(std::begin(kCauses), std::end(kCauses),
        [number](const auto& row) { return row.number == number; });
    return known == std::end(kCauses) ? QString::fromLocal8Bit(std::strerror(number))
                                      : Texts::tr(known->text);
}

QString causeOf(const QFileDevice& file)
{
    if (QFileInfo(file.fileName()).isDir())
        return systemCause(EISDIR);
    // Files report errors only as messages of the system.
    const QString told = file.errorString();
    const auto* const known =
        std::find_if(std::begin(kCauses), std::end(kCauses), [&told](const auto& row) {
            return told == QString::fromLocal8Bit(std::strerror(row.number));
        });
    return known == std::end(kCauses) ? told : Texts::tr(known->text);
}

} // namespace layertool
