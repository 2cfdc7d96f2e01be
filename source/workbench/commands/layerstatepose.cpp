#include "benchtexts.h"
#include "drawing.h"
#include "layerstatecommand.h"
#include "posing.h"
#include "recordprovider.h"
#include "statekeys.h"
#include "vnstrings.h"

#include <QAbstractButton>
#include <QCoreApplication>

using drawing::LayerState;
using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::statekey;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";

struct Sample
{
    const char* name;
    const char* description;
};

constexpr Sample kSamples[] = {
    {QT_TRANSLATE_NOOP("workbench", "全部打开"), QT_TRANSLATE_NOOP("workbench", "交底用")},
    {QT_TRANSLATE_NOOP("workbench", "打印布局"), QT_TRANSLATE_NOOP("workbench", "标注与家具冻结")},
    {QT_TRANSLATE_NOOP("workbench", "结构"), ""},
};

/// Toggles the lock of every third layer.
void changeSome(LayerState& state)
{
    for (std::size_t i = 0; i < state.layers.size(); i += 3) {
        bool& isLocked = state.layers[i].properties.locked;
        isLocked = !isLocked;
    }
}

/// The drawing's own states and a few more. The first of the added ones equals the drawing.
std::vector<LayerState> statesToShow(const drawing::Drawing& drawing)
{
    std::vector<LayerState> states = drawing.layerStates();
    bool isFirst = true;
    for (const Sample& sample : kSamples) {
        LayerState state = captureLayerState(drawing, Texts::tr(sample.name));
        state.description = Texts::tr(sample.description);
        state.fromLayout = !isFirst;
        if (!isFirst)
            changeSome(state);
        isFirst = false;
        states.push_back(std::move(state));
    }
    return states;
}

} // namespace

void LayerStateCommand::pose(CommandContext& context, const Camera& camera)
{
    m_context = &context;
    const VnJsonPtr tree = makeTree();
    const std::vector<LayerState> states = statesToShow(drawing());
    showStates(states);
    fillEditor(m_editor, states.back());
    m_editor->SetDataSW(key::kEditedName, vnsi::vnutQStringToOdString(states.back().name));
    m_editor->SetDataJ(key::kCandidates, layerrecords::Provider::full().list(drawing()));

    const auto unfold = [&camera](QWidget& window) {
        auto* const button = window.findChild<QAbstractButton*>(QStringLiteral("extendButton"));
        button->setChecked(false);
        button->click();
        QCoreApplication::processEvents();
        camera(QStringLiteral("layer-states-unfolded"), window);
        button->click();
    };
    posing::showDialog(kService, vnsi::statedialog::kManager, tree, camera,
        QStringLiteral("layer-states"), unfold);
    const auto show = [&camera](
                          const wchar_t* dialog, const VnJsonPtr& dialogTree, const char* name) {
        posing::showDialog(kService, dialog, dialogTree, camera, QLatin1String(name));
    };
    show(vnsi::statedialog::kNew, m_manager, "layer-state-new");
    show(vnsi::statedialog::kEdit, tree, "layer-state-edit");
    show(vnsi::statedialog::kAddLayers, m_editor, "layer-state-add");
}
