#include "layersample.h"
#include "hostextras.h"

#include "layerkeys.h"

namespace bench {

namespace {

using namespace vnsi;

constexpr const wchar_t* kLinetypes[] = {L"Continuous", L"CENTER", L"DASHED", L"HIDDEN2"};
constexpr const wchar_t* kPurposes[] = {L"墙体", L"轴线", L"PIPE-COLD", L"标注", L"FURNITURE"};
constexpr OdInt32 kLineWidths[] = {-3, 13, 25, 50, 211};
constexpr OdInt64 kByIndex = 195;
constexpr OdInt64 kTrueColor = 194;
constexpr int kIndexColors = 255;
constexpr int kMembers = 18;

template <class T, std::size_t n>
const T& pick(const T (&choices)[n], int number)
{
    return choices[static_cast<std::size_t>(number) % n];
}

VnJsonPtr makeRecord(int number)
{
    VnJsonPtr record = ElementValue::createObject(kMembers);
    const std::wstring name =
        std::wstring(pick(kPurposes, number)) + L'-' + std::to_wstring(number);
    record->SetDataSW(layerkey::kName, name.c_str());
    record->SetDataI(
        layerkey::kStatus, static_cast<OdInt32>(number == 0 ? kLayerCurrent : kLayerOrdinary));
    record->SetDataB(layerkey::kOff, number % 7 == 3);
    record->SetDataB(layerkey::kFrozen, number % 11 == 5);
    record->SetDataB(layerkey::kLock, number % 5 == 1);
    record->SetDataSW(layerkey::kLinetype, OdString(pick(kLinetypes, number / 3)));
    record->SetDataI(layerkey::kLineWidth, pick(kLineWidths, number));
    record->SetDataI(layerkey::kTransparency, number % 10 * 10);
    record->SetDataSW(
        layerkey::kPlotStyle, (L"Color_" + std::to_wstring(number % kIndexColors + 1)).c_str());
    record->SetDataB(layerkey::kPrint, number % 13 != 0);
    record->SetDataB(layerkey::kVPortFrozen, number % 17 == 0);
    record->SetDataSW(layerkey::kDescription, (L"第 " + std::to_wstring(number) + L" 层").c_str());
    record->SetDataB(layerkey::kSelected, number == 1 || number == 2 || number == 40);
    record->SetDataB(layerkey::kDepend, number % 50 == 49);
    record->SetDataB(layerkey::kUsed, number % 2 == 0);
    record->SetDataB(layerkey::kModified, false);
    const bool isTrueColor = number % 8 == 7;
    record->SetDataL(layerkey::kColorMethod, isTrueColor ? kTrueColor : kByIndex);
    record->SetDataL(
        layerkey::kColorValue, isTrueColor ? number % 64 * 0x030507 : number % kIndexColors + 1);
    return record;
}

} // namespace

VnJsonPtr makeLayerTree(int count)
{
    VnJsonPtr list = hostextras::createArray(count);
    for (int number = 0; number < count; ++number)
        hostextras::append(list, makeRecord(number));
    VnJsonPtr tree = ElementValue::createObject(8);
    tree->SetDataJ(layerkey::kList, list);
    return tree;
}

} // namespace bench
