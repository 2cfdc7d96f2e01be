#include "layercolordialog.h"

#include "layercolumns.h"

#include "CmColor.h"
#include "hostcodes.h"
#include "layerrecord.h"
#include "vndialogs.h"

namespace layercolordialog {

std::optional<QString> choose(const drawing::LayerProperties& shown, QWidget* parent)
{
    const vnsi::LayerColor before = shown.trueColor ? vnsi::LayerColor::ofRgb(*shown.trueColor)
                                                    : vnsi::LayerColor::ofIndex(shown.colorIndex);
    const vnsi::VnJsonPtr question = vnsi::ElementValue::createObject(6);
    question->SetDataL("selectClr", before.chosenValue());
    question->SetDataI("isByLayerEnable", 0);
    question->SetDataI("isByBLockEnable", 0);
    question->SetDataI("clrMethod", static_cast<int>(before.method));
    const vnsi::VnJsonPtr answer =
        vnsi::vnuiShowModelDialogEx(L"Dialog/Common", L"ColorDialog", question, {}, parent);
    if (answer->GetDataI("result") != vnsi::kVnAnswerOk)
        return std::nullopt;
    const OdInt64 value = answer->GetDataL("selectClr");
    drawing::LayerProperties chosen;
    if (answer->GetDataI("clrMethod") == OdCmEntityColor::kByColor)
        // In the dialog's value, red is in the lowest byte.
        chosen.trueColor =
            static_cast<quint32>((value & 0xff) << 16 | (value & 0xff00) | (value >> 16 & 0xff));
    else
        chosen.colorIndex = static_cast<int>(value);
    return layerColorText(chosen);
}

} // namespace layercolordialog
