#include "statetexts.h"

#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "moduletexts.h"
#include "namerule.h"
#include "vnstrings.h"

namespace vnsi::layerstates {

QString badCharactersText()
{
    // The characters are in another order than in other messages; both orders are intended.
    return Texts::tr("名称包含不支持的字符。\n 不支持以下字符：\n  \\<>/?\":;*|,=`");
}

QString badCharactersCaption()
{
    return Texts::tr("图层状态 - 不支持的字符");
}

VnJsonPtr element(const VnJsonPtr& tree, StateElement element)
{
    return tree ? hostapi::item(tree->GetDataJ(statekey::kElements), element) : VnJsonPtr();
}

VnJsonPtr list(const VnJsonPtr& element)
{
    return element ? element->GetDataJ(statekey::kList) : VnJsonPtr();
}

QString text(const VnJsonPtr& node, const char* key)
{
    return node ? vnutOdStringToQString(node->GetDataSW(key)) : QString();
}

bool isFromReference(const VnJsonPtr& state)
{
    return isSameName(
        text(state, statekey::kSpace), vnutOdStringToQString(statekey::kReferenceSpace));
}

int ask(
    const QString& caption, const QString& text, const QStringList& buttons, int fallback, int icon)
{
    constexpr const char* kKeys[] = {"btnText/0", "btnText/1", "btnText/2", "btnText/3"};
    const VnJsonPtr options = hostapi::makeObject();
    const auto* key = std::begin(kKeys);
    for (const QString& button : buttons)
        options->SetDataSW(*key++, vnutQStringToOdString(button));
    return hostapi::messageBoxEx(caption, text, options, kVnCustomButtons, 1, icon, fallback);
}

} // namespace vnsi::layerstates
