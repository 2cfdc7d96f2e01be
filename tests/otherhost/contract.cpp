#include "contract.h"

#include <QHash>

namespace contract {

namespace {

struct TypeRow
{
    int type;
    const char* keys;
};

/// A key in several rows may have any of their types. For example, a changed record is marked with
/// a bool, or with a number by an action, and every answer is cleared with a bool.
constexpr TypeRow kTypes[] = {
    {kBool,
        "Off Frozen Lock Print VPortFrozen Selected bDepend Used Modified IsSelected IsExistBlock "
        "IsFrom SoucLayer isSame2DWG DeleteNameOne LStateWCheckBox LayerStateOKClose "
        "LStateRefLayer "
        "LayerStateListRefOK LayerStateYesNoRestore Delete bAlwaysShow isRefLayerCBox isWCheckBox "
        "isTCheckBox IsExpand Open MutiFile Success bUsedT transTobUsed ltransInitIsEditLayer "
        "LtransSettingData laytransLToCount laytransisMaplist laytransLMapBSave LaytransCloseDlg"},
    {kInt,
        "CurLayer LineWidth Transparency transparency blockrefcout LayerStateMaskIs LayerStateMask "
        "LStateTCheckBox marker layTransUserType SelectCount LastSelectedIndex LastIndex result "
        "flags isByLayerEnable isByBLockEnable clrMethod ControlBtn LayerCount SelectLayerCount "
        "SelectLayerEntitys RecoverBoxChecked transToLineWidth transToTransparency backgroundColor "
        "ltransResultNewLineWidth ltransResultNewTparency laytransLMapRow Modified parameter"},
    {kLong,
        "Color/clrMethod Color/selectClr transToColor/clrMethod transToColor/selectClr selectClr "
        "transTolinet ltransResultNewLineTypeId ltransResultNewclrMethod ltransResultNewselectClr"},
    {kWide,
        "LayerName linetype/name PlotStyle Description title defawlt caption dlgname filter "
        "defFilter dir filePath LStatefilePathsSW LStateName LStateRestoreName LayerStateSaveName "
        "OldName NewName NewDescName LayerStateDeleteName LayerSDeleteName currentLState "
        "LayerStateName space desc LayerStateNewName selectItemName DefaultName Tip btnText/0 "
        "btnText/1 btnText/2 btnText/3 oldlaywalkLName laywalkselLName Item NewLayer LayerNameT "
        "transToName transTosLineType transTosLinew transToprintt LaytransDwgName "
        "currentFromLName laytransFMClickedName ltransResultNewLayName ltransResultNewLineType "
        "ltransResultNewLineWidthName ltransResultNewPlotstyle"},
    {kNarrow, "caption"},
    {kEitherInteger, "Color/clrMethod Color/selectClr clrMethod selectClr transToColor/clrMethod "
                     "transToColor/selectClr"},
    {kTree,
        "LayerList LayerStateMgr LayerStateList LayerStateList1 LayerStateListHaveRef parameter "
        "LStatefilePaths LayerStateDeleteNames ColumnWidthList NeedAddlayerList filePaths Color "
        "laywalkselLNameS laywalkpickLNameS FilterComboBoxList Ltransmapfrom Ltransmapto linetype "
        "LaytransTheme LtransSettingDates ltransInitNewEditLayer newToLayerNameArray transToColor "
        "ToLayerNameArray ltransResultNewEditLayer qLtransSettingParamset LtransSettingParamOut "
        "ltransSaveMapListdlg ltransMapListArray laytransLoadJ laytransLToDatas ltransToloadList "
        "ltransMaploadList ltransNewlayer currentFromLNames LtransSettingParamset result "
        "LtransSettingParams laytransLFromOkDatas laytransLMapOkDatas LtransSettingParamOK"},
};

const char kLoadedAnswer[] = R"({"ltransToloadList":[{"transToName":"墙","transTobUsed":true,
    "transToColor":{"clrMethod":195,"selectClr":3},"transToTransparency":10},
    {"transToName":"柱","transToColor":{"clrMethod":194,"selectClr":255}}],"ltransMaploadList":
    [{"Ltransmapfrom":{"LayerNameT":"门"},"Ltransmapto":{"transToName":"门窗"}}]})";

constexpr char kManager[] = "Dialog/CmdLayer";
constexpr char kStates[] = "Dialog/CmdLayerState";
constexpr char kEdit[] = "Dialog/CmdLayerStateEdit";
constexpr char kDelete[] = "Dialog/CmdLaydel";
constexpr char kWalk[] = "Dialog/CmdLaywalk";
constexpr char kTranslator[] = "Dialog/CmdLaytrans";

const std::vector<Request> kRequests = {
    {kManager, 0, "0", "SelectCount ColumnWidthList", "", "{}", "LayerList Selected"},
    {kManager, 1, "0", "SelectCount ColumnWidthList", "", "{}", "LayerList Selected"},
    {kManager, 4, "0", "", "", "{}", ""},
    {kStates, 0, "2", "selectItemName", "", "{}", ""},
    {kStates, 1, "1", "", "", "{}", ""},
    {kStates, 2, "1", "DeleteNameOne LayerStateDeleteName|LayerStateDeleteNames", "", "{}", ""},
    {kStates, 3, "1", "OldName NewName", "", "{}", ""},
    {kStates, 4, "1", "LayerStateSaveName LayerStateMask", "", "{}", ""},
    {kStates, 5, "1", "LStateRestoreName LStateTCheckBox LStateWCheckBox LayerStateMask",
        "LayerStateOKClose", R"({"LayerStateOKClose":true})", ""},
    {kStates, 6, "1", "LStatefilePaths LStateRefLayer",
        "LayerStateListHaveRef LayerStateListRefOK LayerStateYesNoRestore",
        R"({"LayerStateListRefOK":true,"LayerStateYesNoRestore":true,"LayerStateListHaveRef":[]})",
        ""},
    {kStates, 7, "1", "LStatefilePathsSW LStateName", "", "{}", ""},
    {kStates, 8, "1", "OldName NewDescName", "", "{}", ""},
    {kEdit, 1, "2", "", "", "{}", ""},
    {kEdit, 2, "2", "", "", "{}", ""},
    {kDelete, 6, "0", "", "IsExistBlock", R"({"IsExistBlock":true})", "LayerList IsSelected"},
    {kWalk, 1, "tree", "", "", "{}", ""},
    {kWalk, 4, "tree", "Modified", "", "{}", ""},
    {kWalk, 7, "tree", "", "LayerCount SelectLayerCount SelectLayerEntitys",
        R"({"LayerCount":4,"SelectLayerCount":2,"SelectLayerEntitys":9})",
        "parameter/LayerList IsSelected"},
    {kWalk, 12, "tree", "laywalkselLName|laywalkselLNameS", "", "{}", ""},
    // Picking in the drawing is an addition of this project.
    {kWalk, 13, "tree", "", "laywalkpickLNameS", R"({"laywalkpickLNameS":["墙"]})", ""},
    {kTranslator, 0, "0", "ltransSaveMapListdlg ltransMapListArray", "result", R"({"result":1})",
        ""},
    {kTranslator, 1, "0", "laytransLoadJ laytransLToCount laytransLToDatas",
        "ltransToloadList ltransMaploadList", kLoadedAnswer, ""},
    {kTranslator, 2, "0", "", "LaytransTheme", R"({"LaytransTheme":[{"LayerNameT":"墙"}]})", ""},
    {kTranslator, 3, "0", "ltransNewlayer", "ltransToloadList", kLoadedAnswer, ""},
    {kTranslator, 4, "0", "LtransSettingParamset", "LtransSettingParams",
        R"({"LtransSettingParams":[{"LtransSettingData":true},{},{},{},{},{}]})", ""},
    {kTranslator, 5, "0",
        "laytransLFromOkDatas laytransLMapRow laytransLMapBSave LtransSettingParamOK",
        "LaytransCloseDlg", R"({"LaytransCloseDlg":true})", ""},
    {kTranslator, 7, "0",
        "laytransisMaplist laytransFMClickedName laytransLMapOkDatas laytransLFromOkDatas", "",
        "{}", ""},
};

constexpr char kModule[] = "Dialog/CmdLayer";
constexpr char kCommon[] = "Dialog/Common";

constexpr Question kQuestions[] = {
    {kModule, "Dialog/CmdLayerStateNew", ""},
    {kModule, "Dialog/CmdLayerStateEdit", ""},
    {kModule, "Dialog/CmdLayerStateAddNewLayer", "NeedAddlayerList"},
    {kModule, "Dialog/CmdLaywalk/Verify", "LayerCount SelectLayerCount SelectLayerEntitys"},
    {kModule, "Dialog/CmdLaytransNewEdit",
        "ltransInitIsEditLayer newToLayerNameArray/ToLayerNameArray"},
    {kCommon, "ColorDialog", "selectClr clrMethod isByLayerEnable isByBLockEnable"},
    {kCommon, "FileDialogBox", "caption filter defFilter Open MutiFile"},
    {"Dialog/CmdsUI", "Dialog/CmdsUI/ReNameDlg", "DefaultName"},
};

QHash<QString, int> makeTypes()
{
    QHash<QString, int> types;
    for (const TypeRow& row : kTypes) {
        for (const QString& key : QString::fromLatin1(row.keys).split(' '))
            types[key] |= row.type;
    }
    for (const Request& request : kRequests) {
        for (const QString& key : QString::fromLatin1(request.answers).split(' '))
            types[key] |= kBool;
    }
    return types;
}

} // namespace

int typesOf(const char* path)
{
    static const QHash<QString, int> types = makeTypes();
    const QString whole = QString::fromLatin1(path);
    return types.value(whole, types.value(whole.mid(whole.lastIndexOf('/') + 1)));
}

const Request* findRequest(const QString& dialog, int code)
{
    for (const Request& request : kRequests) {
        if (dialog == QLatin1String(request.dialog) && request.code == code)
            return &request;
    }
    return nullptr;
}

const std::vector<Request>& requests()
{
    return kRequests;
}

const Question* findQuestion(const QString& service, const QString& dialog)
{
    for (const Question& question : kQuestions) {
        if (service == QLatin1String(question.service) && dialog == QLatin1String(question.dialog))
            return &question;
    }
    return nullptr;
}

const char* codeKeyOf(const QString& dialog)
{
    return dialog == QLatin1String(kTranslator) ? "layTransUserType" : "marker";
}

} // namespace contract
