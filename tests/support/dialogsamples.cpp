#include "dialogsamples.h"

namespace {

/// A part of several trees, which is inserted at its mark.
struct Part
{
    const char* mark;
    const char* text;
};

constexpr Part kParts[] = {
    {"@layers", R"("LayerList":[
    {"LayerName":"0","CurLayer":0,"Color":{"clrMethod":195,"selectClr":7},"LineWidth":-3,
     "linetype":{"name":"Continuous"},"Print":true,"PlotStyle":"Color_7","Used":true},
    {"LayerName":"墙","CurLayer":1,"Color":{"clrMethod":194,"selectClr":255},"LineWidth":25,
     "linetype":{"name":"DASHED"},"Off":true,"Transparency":40,"Selected":true,"Used":true},
    {"LayerName":"门","CurLayer":1,"Frozen":true,"Lock":true,"VPortFrozen":true,"Modified":true,
     "Description":"d","bAlwaysShow":true,"IsSelected":true},
    {"LayerName":"x|A","CurLayer":1,"bDepend":true}])"},
    {"@states", R"("currentLState":"B","LayerStateList":[
    {"LayerStateName":"A","space":"模型","isSame2DWG":true,"desc":"first","LayerStateMaskIs":1057},
    {"LayerStateName":"B","space":"布局","desc":"","Selected":true},
    {"LayerStateName":"X|R","space":"外部参照","LayerStateMaskIs":2047}])"},
    {"@target",
        R"({"transToName":"墙","transToColor":{"clrMethod":195,"selectClr":3},"transTolinet":3,
    "transTosLineType":"DASHED","transToLineWidth":25,"transTosLinew":"0.25 mm",
    "transToTransparency":10,"transToprintt":"ByLayer","transTobUsed":true})"},
    {"@options", R"([{"LtransSettingData":true},{},{"LtransSettingData":true},
    {"LtransSettingData":false},{"LtransSettingData":true},{}])"},
};

QString filledIn(const char* text)
{
    QString json = QString::fromUtf8(text);
    for (const Part& part : kParts)
        json.replace(QLatin1String(part.mark), QString::fromUtf8(part.text));
    return json;
}

struct SampleRow
{
    const char* name;
    const char* tree;
    bool asksItsCommand;
};

constexpr SampleRow kSamples[] = {
    {"Dialog/CmdLayer", R"({@layers})", true},
    // The element contains the remainder of an earlier dialog.
    {"Dialog/CmdLayerState", R"({"LayerStateMgr":[{},{"result":1,@states},{@layers}]})", true},
    {"Dialog/CmdLayerStateNew", R"({@states})", false},
    {"Dialog/CmdLayerStateEdit", R"({"LayerStateMgr":[{},{},{"selectItemName":"A",
        "LayerStateList":[{"LayerName":"0","Color":{"clrMethod":195,"selectClr":1}},
        {"LayerName":"gone","Delete":true},{"LayerName":"墙","Off":true,"LineWidth":50}],
        @layers}]})",
        true},
    {"Dialog/CmdLayerStateAddNewLayer",
        R"({"NeedAddlayerList":[{"LayerName":"0"},{"LayerName":"墙","Description":"d"}]})", false},
    {"Dialog/CmdLaydel", R"({"IsExistBlock":true,@layers})", true},
    {"Dialog/CmdLaymch", R"({@layers})", false},
    {"Dialog/CmdLaymrg", R"({"LayerList":[{"LayerName":"A","IsFrom":true,"blockrefcout":1},
        {"LayerName":"B"},{"LayerName":"C"}]})",
        false},
    {"Dialog/CmdLaymrg", R"({"LayerList":[{"LayerName":"A","IsFrom":false,"blockrefcout":1,
        "SoucLayer":true},{"LayerName":"B"},{"LayerName":"C"}]})",
        false},
    {"Dialog/CmdLaywalk", R"({"LayerStateMgr":{@layers},"LayerCount":4,"SelectLayerCount":1,
        "SelectLayerEntitys":9,"laywalkselLName":"","laywalkselLNameS":[]})",
        true},
    {"Dialog/CmdLaywalk/Verify", R"({"LayerCount":4,"SelectLayerCount":1,"SelectLayerEntitys":9})",
        false},
    {"Dialog/CmdLaytrans", R"({"LaytransDwgName":"plan","LaytransTheme":[
        {"LayerNameT":"墙","bUsedT":true},{"LayerNameT":"门"},{"LayerNameT":"0"}],
        "LaytransCloseDlg":false,"ltransToloadList":[@target,@target],"LtransSettingParams":@options,
        "ltransMaploadList":[{"Ltransmapfrom":{"LayerNameT":"门"},"Ltransmapto":@target}]})",
        true},
    {"Dialog/CmdLaytransNewEdit",
        R"({"ltransInitIsEditLayer":true,"ltransInitNewEditLayer":@target,
        "newToLayerNameArray":{"ToLayerNameArray":["门",{"transToName":"0"}]}})",
        false},
    {"Dialog/CmdLaytransSetting", R"({"qLtransSettingParamset":@options})", false},
};

struct AnswerRow
{
    const char* name;
    const char* answer;
};

constexpr AnswerRow kAnswers[] = {
    {"ColorDialog", R"({"clrMethod":194,"selectClr":65280})"},
    {"FileDialogBox", R"({"filePath":"/tmp/a.las","filePaths":["/tmp/a.las","/tmp/b.las"]})"},
    {"Dialog/CmdsUI/ReNameDlg", R"({"Success":true,"NewName":"新名"})"},
    {"Dialog/CmdLayerStateNew", R"({"LayerStateNewName":"C","desc":"d"})"},
    {"Dialog/CmdLayerStateAddNewLayer", R"({"NeedAddlayerList":[{"LayerName":"墙"}]})"},
    {"Dialog/CmdLaytransNewEdit",
        R"({"ltransResultNewEditLayer":{"ltransResultNewLayName":"新","ltransResultNewTparency":9,
        "ltransResultNewclrMethod":194,"ltransResultNewselectClr":255}})"},
    {"Dialog/CmdLaytransSetting", R"({"LtransSettingParamOut":@options})"},
};

} // namespace

const std::vector<DialogSample>& dialogSamples()
{
    static const std::vector<DialogSample> samples = [] {
        std::vector<DialogSample> all;
        for (const SampleRow& row : kSamples)
            all.push_back({QString::fromUtf8(row.name), filledIn(row.tree), row.asksItsCommand});
        return all;
    }();
    return samples;
}

QString answerOfDialog(const QString& name)
{
    for (const AnswerRow& row : kAnswers) {
        if (name == QLatin1String(row.name))
            return filledIn(row.answer);
    }
    return QStringLiteral("{}");
}
