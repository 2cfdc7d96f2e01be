#include "samples.h"

#include "benchtexts.h"
#include "drawing.h"

using drawing::LayerState;

namespace {

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

/// Locks every third layer, or unlocks it.
void changeSome(LayerState& state)
{
    for (std::size_t i = 0; i < state.layers.size(); i += 3) {
        bool& isLocked = state.layers[i].properties.locked;
        isLocked = !isLocked;
    }
}

} // namespace

void gallerysamples::addStates(drawing::Drawing& drawing)
{
    std::vector<LayerState> states;
    for (const Sample& sample : kSamples) {
        LayerState state = captureLayerState(drawing, Texts::tr(sample.name));
        state.description = Texts::tr(sample.description);
        state.fromLayout = !states.empty();
        if (!states.empty())
            changeSome(state);
        states.push_back(std::move(state));
    }
    drawing::DrawingStep step(drawing, {});
    // A drawing that can hold none shows its own.
    (void)drawing.putLayerStates(states);
    step.commit();
}
