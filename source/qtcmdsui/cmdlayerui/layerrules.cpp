#include "layerrules.h"

#include "hostapi/hostcalls.h"
#include "hostcodes.h"
#include "moduletexts.h"
#include "namerule.h"
#include "vnstrings.h"

namespace vnsi::layerrules {

namespace {

constexpr int kTurnOff = 101;
constexpr int kKeepOn = 102;
constexpr int kWarningStyle = 80;

bool mayGo(const LayerRecord& record)
{
    const QString name = vnutOdStringToQString(record.name());
    return !record.isCurrent() && !isSameName(name, QStringLiteral("0")) &&
           !isSameName(name, QStringLiteral("Defpoints")) && !record.isUsed() &&
           !record.dependsOnReference();
}

} // namespace

bool mayBeCurrent(const LayerRecord& record)
{
    if (record.status() != kLayerDelete && !record.isFrozen() && !record.dependsOnReference())
        return true;
    hostapi::messageBox(Texts::tr("无法将选定图层置为当前图层。\n\n无法将下列图层置为当前图层:\n"
                                  "    依赖外部参照的图层\n    已冻结的图层\n    已删除的图层\n"),
        Texts::tr("图层 - 无法置为当前"), kVnIconInformation);
    return false;
}

bool asksToTurnOn()
{
    return hostapi::taskDialog(Texts::tr("图层 - 关闭当前图层"),
               Texts::tr("当前图层将被关闭。希望执行什么操作？"),
               {{kTurnOff, Texts::tr("关闭当前图层")},
                   {kKeepOn, Texts::tr("使当前图层保持打开状态")}}) == kKeepOn;
}

int toggleDeletion(const LayerRecordList& layers)
{
    int refused = 0;
    for (LayerRecord record : layers) {
        if (!record.isSelected())
            continue;
        if (!mayGo(record)) {
            ++refused;
        } else if (record.status() == kLayerDelete) {
            record.setStatus(kLayerOrdinary);
        } else {
            record.setStatus(kLayerDelete);
            record.markModifiedByAction();
        }
    }
    return refused;
}

void tellNotDeleted(int refused, int selected)
{
    // The line about external references has no bullet. The text, including its line ends, is
    // agreed.
    const QString text =
        Texts::tr("有 %1 个选定图层无法删除（共 %2 个选定图层)\n 无法删除以下图层：\n"
                  "    ·图层0和图层Defpoints\n    ·当前图层\n    依赖外部参照的图层\n"
                  "    ·包含对象的图层\n ")
            .replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    hostapi::messageBox(text.arg(refused).arg(selected), Texts::tr("提示"), kWarningStyle);
}

} // namespace vnsi::layerrules
