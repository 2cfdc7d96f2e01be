#include "hostextras.h"
#include "layerkeys.h"
#include "layersample.h"
#include "rows.h"
#include "serveddialog.h"
#include "stopwatch.h"

#include <QApplication>

#include <cmath>

namespace bench {

namespace {

using namespace vnsi;

constexpr int kFew = 40;
constexpr int kMany = 10000;
/// The orders of magnitude between the two sizes.
const double kDecades = std::log10(double(kMany) / kFew);

/// A list of `count` objects, each of which `write(object, number)` fills.
template <class Write>
VnJsonPtr makeList(int count, Write write)
{
    VnJsonPtr list = hostextras::createArray(count);
    for (int number = 0; number < count; ++number) {
        VnJsonPtr object = ElementValue::createObject(8);
        write(*object, number);
        hostextras::append(list, object);
    }
    return list;
}

/// An object that contains one sub-tree.
VnJsonPtr makeHolder(const char* key, const VnJsonPtr& held)
{
    VnJsonPtr holder = ElementValue::createObject(8);
    holder->SetDataJ(key, held);
    return holder;
}

OdString numbered(const wchar_t* text, int number)
{
    return (text + std::to_wstring(number)).c_str();
}

VnJsonPtr layerList(int count)
{
    return makeLayerTree(count)->GetDataJ(layerkey::kList);
}

VnJsonPtr stateList(int count)
{
    return makeList(count, [](IElementValueBase& state, int number) {
        state.SetDataSW("LayerStateName", numbered(L"图层状态-", number));
        state.SetDataSW("space", number % 3 == 0 ? L"布局" : L"模型");
        state.SetDataB("isSame2DWG", number % 4 == 0);
        state.SetDataSW("desc", numbered(L"第 ", number));
        state.SetDataI("LayerStateMaskIs", 2047);
    });
}

VnJsonPtr newStateTree(int count)
{
    return makeHolder("LayerStateList", stateList(count));
}

VnJsonPtr stateManagerTree(int count)
{
    VnJsonPtr edited = makeHolder("LayerStateList", layerList(count));
    edited->SetDataJ(layerkey::kList, layerList(count));
    VnJsonPtr manager = hostextras::createArray(3);
    hostextras::append(manager, ElementValue::createObject(2));
    hostextras::append(manager, newStateTree(count));
    hostextras::append(manager, edited);
    return makeHolder("LayerStateMgr", manager);
}

VnJsonPtr addLayersTree(int count)
{
    return makeHolder("NeedAddlayerList", layerList(count));
}

VnJsonPtr walkTree(int count)
{
    return makeHolder("LayerStateMgr", makeLayerTree(count));
}

VnJsonPtr verifyTree(int count)
{
    VnJsonPtr tree = ElementValue::createObject(4);
    tree->SetDataI("LayerCount", count);
    return tree;
}

VnJsonPtr translatorTree(int count)
{
    return makeHolder("LaytransTheme", makeList(count, [](IElementValueBase& layer, int number) {
        layer.SetDataSW("LayerNameT", numbered(L"图层-", number));
        layer.SetDataB("bUsedT", number % 2 == 0);
    }));
}

VnJsonPtr targetLayerTree(int count)
{
    VnJsonPtr names = hostextras::createArray(count);
    for (int number = 0; number < count; ++number)
        hostextras::appendText(names, numbered(L"图层-", number));
    return makeHolder("newToLayerNameArray", makeHolder("ToLayerNameArray", names));
}

VnJsonPtr settingsTree(int)
{
    return makeHolder("qLtransSettingParamset", makeList(6, [](IElementValueBase& option, int) {
        option.SetDataB("LtransSettingData", true);
    }));
}

struct DialogSample
{
    const char* benchmark;
    const wchar_t* dialog;
    const char* what;
    VnJsonPtr (*makeTree)(int count);
};

constexpr DialogSample kDialogs[] = {
    {"show/layer", L"Dialog/CmdLayer", "图层特性管理器", makeLayerTree},
    {"show/state", L"Dialog/CmdLayerState", "图层状态管理器", stateManagerTree},
    {"show/state_new", L"Dialog/CmdLayerStateNew", "要保存的新图层状态", newStateTree},
    {"show/state_edit", L"Dialog/CmdLayerStateEdit", "编辑图层状态", stateManagerTree},
    {"show/state_add", L"Dialog/CmdLayerStateAddNewLayer", "选择要添加到图层状态的图层",
        addLayersTree},
    {"show/laydel", L"Dialog/CmdLaydel", "删除图层", makeLayerTree},
    {"show/laymch", L"Dialog/CmdLaymch", "更改到图层", makeLayerTree},
    {"show/laymrg", L"Dialog/CmdLaymrg", "合并图层", makeLayerTree},
    {"show/laywalk", L"Dialog/CmdLaywalk", "图层漫游", walkTree},
    {"show/laywalk_verify", L"Dialog/CmdLaywalk/Verify", "检验", verifyTree},
    {"show/laytrans", L"Dialog/CmdLaytrans", "图层转换器", translatorTree},
    {"show/laytrans_edit", L"Dialog/CmdLaytransNewEdit", "新图层", targetLayerTree},
    {"show/laytrans_setting", L"Dialog/CmdLaytransSetting", "设置", settingsTree},
};

/// The seconds from requesting the dialog to its first painted picture.
double showSeconds(const OdString& dialog, const VnJsonPtr& tree)
{
    std::unique_ptr<ServedDialog> shown;
    return timed(Clock::Processor, [&] {
        shown = std::make_unique<ServedDialog>(dialog, tree);
        QApplication::processEvents();
    });
}

tl::expected<Sides, QString> showGrowth(const DialogSample& sample)
{
    const OdString name(sample.dialog);
    const VnJsonPtr many = sample.makeTree(kMany);
    const VnJsonPtr few = sample.makeTree(kFew);
    if (!ServedDialog(name, few).isMade())
        return tl::make_unexpected(QStringLiteral("the module made no such dialog"));
    return Sides{[=] { return showSeconds(name, many); }, [=] { return showSeconds(name, few); },
        QStringLiteral("with %1").arg(kFew)};
}

} // namespace

std::vector<Row> dialogRows()
{
    std::vector<Row> rows;
    for (const DialogSample& sample : kDialogs) {
        rows.push_back({sample.benchmark,
            QStringLiteral("create, fill and paint “%1”, 10,000 entries")
                .arg(QString::fromUtf8(sample.what)),
            Measure::Processor, {Budget::Kind::GrowthExponent, 1.1, kDecades}, 9, 3,
            [&sample] { return showGrowth(sample); }});
    }
    return rows;
}

} // namespace bench
