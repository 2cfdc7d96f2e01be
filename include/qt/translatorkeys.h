#pragma once

namespace vnsi {

/// The keys that the layer translator's dialogs and the command share. Some spellings are
/// inconsistent; they are agreed and must stay as they are.
namespace transkey {

// The keys of the record of a layer of the drawing.
inline constexpr char kFromName[] = "LayerNameT";
inline constexpr char kFromUsed[] = "bUsedT";

// The keys of the record of a target layer.
inline constexpr char kToName[] = "transToName";
inline constexpr char kToColorMethod[] = "transToColor/clrMethod";
inline constexpr char kToColorValue[] = "transToColor/selectClr";
inline constexpr char kToLinetypeId[] = "transTolinet";
inline constexpr char kToLinetype[] = "transTosLineType";
inline constexpr char kToLineWidth[] = "transToLineWidth";
inline constexpr char kToLineWidthText[] = "transTosLinew";
inline constexpr char kToTransparency[] = "transToTransparency";
inline constexpr char kToPlotStyle[] = "transToprintt";
inline constexpr char kToUsed[] = "transTobUsed";

/// The name in records, whatever the language, of the plot style of layers without another one.
inline constexpr char kNormalPlotStyle[] = "普通";

// The keys of a mapping.
inline constexpr char kFrom[] = "Ltransmapfrom";
inline constexpr char kTo[] = "Ltransmapto";

// The keys of what the new/edit dialog is given and what it answers.
inline constexpr char kIsEdit[] = "ltransInitIsEditLayer";
inline constexpr char kInitRecord[] = "ltransInitNewEditLayer";
inline constexpr char kNamesInUse[] = "newToLayerNameArray/ToLayerNameArray";
inline constexpr char kResult[] = "ltransResultNewEditLayer";
inline constexpr char kResultName[] = "ltransResultNewLayName";
inline constexpr char kResultLinetype[] = "ltransResultNewLineType";
inline constexpr char kResultLinetypeId[] = "ltransResultNewLineTypeId";
inline constexpr char kResultLineWidth[] = "ltransResultNewLineWidth";
inline constexpr char kResultLineWidthText[] = "ltransResultNewLineWidthName";
inline constexpr char kResultColorMethod[] = "ltransResultNewclrMethod";
inline constexpr char kResultColorValue[] = "ltransResultNewselectClr";
inline constexpr char kResultTransparency[] = "ltransResultNewTparency";
inline constexpr char kResultPlotStyle[] = "ltransResultNewPlotstyle";

// The keys of what the settings dialog is given and what it answers: an array of six objects.
inline constexpr char kSettingsIn[] = "qLtransSettingParamset";
inline constexpr char kSettingsOut[] = "LtransSettingParamOut";
inline constexpr char kSetting[] = "LtransSettingData";

// The keys of what the translator is given and of what it keeps in the user's settings.
inline constexpr char kDrawingName[] = "LaytransDwgName";
inline constexpr char kTheme[] = "LaytransTheme";
inline constexpr wchar_t kConfigSection[] = L"layertransset_dialog";
inline constexpr char kConfigSettings[] = "LtransSettingDates";

// The keys of the translator's requests and of the command's answers.
inline constexpr char kRequestCode[] = "layTransUserType";
inline constexpr char kSaveAnswer[] = "ltransSaveMapListdlg";
inline constexpr char kSaveMappings[] = "ltransMapListArray";
inline constexpr char kSaveOutcome[] = "result";
inline constexpr char kLoadPaths[] = "laytransLoadJ";
inline constexpr char kLoadIsFirst[] = "laytransLToCount";
inline constexpr char kLoadTargets[] = "laytransLToDatas";
inline constexpr char kLoadedTargets[] = "ltransToloadList";
inline constexpr char kLoadedMappings[] = "ltransMaploadList";
inline constexpr char kNewTarget[] = "ltransNewlayer";
inline constexpr char kSelectedName[] = "currentFromLName";
inline constexpr char kSelectedNames[] = "currentFromLNames";
inline constexpr char kSettingsAsked[] = "LtransSettingParamset";
inline constexpr char kSettingsAnswered[] = "LtransSettingParams";
inline constexpr char kSources[] = "laytransLFromOkDatas";
inline constexpr char kMappings[] = "laytransLMapOkDatas";
inline constexpr char kMappingCount[] = "laytransLMapRow";
inline constexpr char kIsSaved[] = "laytransLMapBSave";
inline constexpr char kSettingsToUse[] = "LtransSettingParamOK";
inline constexpr char kCloses[] = "LaytransCloseDlg";
inline constexpr char kClickedInTable[] = "laytransisMaplist";
inline constexpr char kClickedName[] = "laytransFMClickedName";

} // namespace transkey

/// The translator's requests, written under "layTransUserType".
enum TranslatorRequest {
    kTranslatorSave = 0,
    kTranslatorLoad = 1,
    kTranslatorPurge = 2,
    kTranslatorNew = 3,
    kTranslatorSettings = 4,
    kTranslatorTranslate = 5,
    kTranslatorClicked = 7
};

/// The translator's options; the value is the option's position in the settings array.
enum TranslatorOption {
    kForceColor,
    kForceLinetype,
    kForceTransparency,
    kInsideBlocks,
    kWriteLog,
    kShowSelected,
    kTranslatorOptionCount
};

} // namespace vnsi
