#include "recordedits.h"

#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "moduletexts.h"
#include "vnqtuilayertransparencymodify.h"
#include "vnstrings.h"

namespace vnsi::recordedits {

namespace {

constexpr int kQuestionStyle = kVnYesNo | kVnIconInformation;

/// Where plot styles go by colour, a layer's is called after the colour's number and nothing else.
void followColor(LayerRecord& record)
{
    const auto stem = QStringLiteral("Color_");
    const LayerColor color = record.color();
    const QString style = vnutOdStringToQString(record.text(layerkey::kPlotStyle));
    if (color.isIndex() && style.startsWith(stem, Qt::CaseInsensitive))
        record.setText(
            layerkey::kPlotStyle, vnutQStringToOdString(stem + QString::number(color.index())));
}

} // namespace

std::optional<OdString> askForText(const OdString& present, const QString& label)
{
    const VnJsonPtr question = hostapi::makeObject();
    question->SetDataSW("DefaultName", present);
    if (!label.isEmpty())
        question->SetDataSW("Tip", vnutQStringToOdString(label));
    const VnJsonPtr answer =
        hostapi::showDialog(L"Dialog/CmdsUI", L"Dialog/CmdsUI/ReNameDlg", question);
    return answer->GetDataB("Success") ? std::optional(answer->GetDataSW("NewName")) : std::nullopt;
}

bool asksToKeepCurrentOn()
{
    return hostapi::messageBox(Texts::tr("当前图层将被关闭。\n是否要使当前图层保持打开状态?\n"),
               kProductName, kQuestionStyle) == kVnAnswerYes;
}

void refuseToFreezeCurrent()
{
    hostapi::messageBox(Texts::tr("不能冻结当前图层\n"), kProductName, kVnIconInformation);
}

bool editColor(LayerRecord record, const VnJsonPtr& question, QWidget* parent)
{
    const LayerColor color = record.color();
    hostapi::Members(question)
        .set("selectClr", color.chosenValue())
        .set("isByLayerEnable", 0)
        .set("isByBLockEnable", 0)
        .set("clrMethod", static_cast<int>(color.method));
    const VnJsonPtr answer =
        hostapi::showDialogEx(L"Dialog/Common", L"ColorDialog", question, {}, parent);
    if (answer->GetDataI("result") != kVnAnswerOk)
        return false;
    record.setColor({wholeNumber(*answer, "clrMethod"), wholeNumber(*answer, "selectClr", -1)});
    followColor(record);
    return true;
}

bool editTransparency(LayerRecord record)
{
    VnJsonPtr tree = hostapi::makeObject();
    tree->SetDataI("transparency", record.number(layerkey::kTransparency));
    VnQtUiLayerTransparencyModify dialog;
    dialog.setData(tree);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    record.setNumber(layerkey::kTransparency, tree->GetDataI("transparency"));
    return true;
}

} // namespace vnsi::recordedits
