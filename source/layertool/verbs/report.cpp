#include "verbs.h"

#include "engine/run.h"

#include <QCoreApplication>

namespace layertool {

namespace {

constexpr OptionRow kOptions[] = {
    {"output", OptionKind::Path,
        QT_TRANSLATE_NOOP("layertool", "报告写入哪个文件；不给时写到标准输出。")},
    {"quiet", OptionKind::Flag, QT_TRANSLATE_NOOP("layertool", "不显示总计。")},
};

} // namespace

VerbRow reportVerb()
{
    VerbRow row{"report",
        QT_TRANSLATE_NOOP("layertool", "由输出文件夹中的日志做出 CSV 报告，不处理图形。"),
        OptionRows::of(kOptions), "", false, nullptr};
    row.runAlone = runReport;
    row.operands = QT_TRANSLATE_NOOP("layertool", "输出文件夹");
    return row;
}

} // namespace layertool
