#include "layernaming.h"

#include "hostapi/hostcalls.h"
#include "hostcodes.h"
#include "moduletexts.h"
#include "namerule.h"
#include "recordedits.h"
#include "vnstrings.h"

namespace vnsi::layernaming {

namespace {

struct Refusal
{
    NameFaults when;
    const char* text; ///< Gets translated, like the title.
    const char* title;
};

/// The reasons for refusing a name, in the order of the checks.
constexpr Refusal kRefusals[] = {
    {NameFault::Empty, QT_TRANSLATE_NOOP("cmdlayerui", "名称 的长度必须至少为一个字符"),
        QT_TRANSLATE_NOOP("cmdlayerui", "图层 - 文字长度")},
    {NameFault::TooLong,
        QT_TRANSLATE_NOOP("cmdlayerui", "图层名无效。\n\n所允许的最大长度为 255 个字符\n"),
        QT_TRANSLATE_NOOP("cmdlayerui", "图层 - 文字长度")},
    // A drawing cannot store control characters either, although the text does not list them.
    {kUnsupportedCharacter,
        QT_TRANSLATE_NOOP("cmdlayerui",
            "图层名中包含无效的字符。\n\n图层名称中不得含有以下字符：\n\\<>/\":;?*|,=`"),
        kProductName},
};

bool refuse(const QString& text, const QString& title)
{
    hostapi::messageBox(text, title, kVnIconInformation);
    return false;
}

bool isUnique(const LayerRecordList& layers, int row, const QString& name)
{
    for (int other = 0; other < layers.count(); ++other) {
        if (other != row && isSameName(name, vnutOdStringToQString(layers[other].name())))
            return false;
    }
    return true;
}

bool accept(const LayerRecordList& layers, int row, const QString& name)
{
    const NameFaults faults = nameFaults(name);
    for (const Refusal& refusal : kRefusals) {
        if (faults & refusal.when)
            return refuse(Texts::tr(refusal.text), Texts::tr(refusal.title));
    }
    return isUnique(layers, row, name) ||
           refuse(Texts::tr("图层名无效。\n\n图层名必须唯一\n"), kProductName);
}

} // namespace

bool mayRename(const LayerRecord& record)
{
    if (record.name() != OdString(L"0") && !record.dependsOnReference())
        return true;
    return refuse(
        Texts::tr(
            "不能重命名选定图层。\n\n不能重命名下列图层:\n    图层 0\n    依赖外部参照的图层\n"),
        kProductName);
}

std::optional<OdString> askName(const LayerRecord& record)
{
    return recordedits::askForText(record.name());
}

std::optional<OdString> askDescription(const LayerRecord& record)
{
    return recordedits::askForText(record.text(layerkey::kDescription), Texts::tr("说明:"));
}

void storeName(const LayerRecordList& layers, int row, const OdString& typed)
{
    LayerRecord renamed = layers[row];
    const bool isOnly = layers.count() < 2; // The only layer may have any name.
    const QString name = vnutOdStringToQString(typed).trimmed();
    if (isOnly)
        renamed.setName(typed);
    else if (accept(layers, row, name))
        renamed.setName(vnutQStringToOdString(name));
    else
        // The name is written even if it does not change, because commands may rely on that.
        renamed.setName(renamed.name());
}

} // namespace vnsi::layernaming
