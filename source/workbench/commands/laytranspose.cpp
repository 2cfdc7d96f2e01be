#include "hostextras.h"
#include "laytranscommand.h"

#include "drawing.h"
#include "layermarks.h"
#include "posing.h"
#include "translatorkeys.h"
#include "vnstrings.h"

#include <QCoreApplication>
#include <QWidget>

#include <algorithm>

using drawing::TargetLayer;
using vnsi::ElementValue;
using vnsi::VnJsonPtr;

namespace {

using namespace vnsi::transkey;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";
constexpr int kMostMapped = 5;

struct Sample
{
    const char* name;
    int colorIndex;
    std::optional<quint32> trueColor;
    const char* linetype;
    int lineweight;
    int transparency;
};

constexpr Sample kSamples[] = {
    {"A-ANNO-TEXT", 7, {}, "Continuous", 18, 0},
    {"A-DOOR", 30, {}, "Continuous", 25, 0},
    {"A-FLOR-PATT", 7, 0x5C626A, "Continuous", 5, 40},
    {"A-GLAZ", 7, 0x6EC8F0, "Continuous", 25, 20},
    {"A-GRID", 1, {}, "CENTER", 13, 0},
    {"A-WALL", 7, {}, "Continuous", 50, 0},
    {"A-WALL-PRTN", 2, {}, "Continuous", 35, 0},
};

std::vector<TargetLayer> sampleTargets()
{
    std::vector<TargetLayer> targets;
    for (const Sample& sample : kSamples) {
        TargetLayer target;
        target.name = QLatin1String(sample.name);
        target.colorIndex = sample.colorIndex;
        target.trueColor = sample.trueColor;
        target.linetype = QLatin1String(sample.linetype);
        target.lineweight = sample.lineweight;
        target.transparency = sample.transparency;
        target.plotStyle = QStringLiteral("Normal");
        targets.push_back(target);
    }
    return targets;
}

} // namespace

/// Provides sample targets, and mappings of the first layers that can have one.
void LayerTranslateCommand::answerWithSamples(const VnJsonPtr& tree)
{
    const std::vector<TargetLayer> targets = sampleTargets();
    const VnJsonPtr list = hostextras::createArray(0);
    for (const TargetLayer& target : targets)
        hostextras::append(list, m_records.target(target));
    const VnJsonPtr mappings = hostextras::createArray(0);
    for (const drawing::Layer& layer : drawing().layers()) {
        const int count = mappings.ArrayCount();
        const bool isTarget = std::any_of(targets.begin(), targets.end(),
            [&layer](const TargetLayer& target) { return target.name == layer.properties.name; });
        if (layermarks::mayGo(drawing(), layer) && !isTarget && layer.used() && count < kMostMapped)
            hostextras::append(mappings, m_records.mapping({layer.properties.name,
                                             targets[static_cast<std::size_t>(count)]}));
    }
    tree->SetDataJ(kLoadedTargets, list);
    tree->SetDataJ(kLoadedMappings, mappings);
}

void LayerTranslateCommand::pose(CommandContext& context, const Camera& camera)
{
    m_context = &context;
    m_records.offerLinetypes(drawing());
    const auto fillAndPicture = [&camera](QWidget& window) {
        {
            const posing::FileChooser chooser;
            QMetaObject::invokeMethod(&window, "slot_m_pbLoadClicked");
        }
        QCoreApplication::processEvents();
        camera(QStringLiteral("layer-translator"), window);
    };
    const auto noPictureYet = [](const QString&, QWidget&) {};
    posing::showDialog(kService, L"Dialog/CmdLaytrans", makeTree(), noPictureYet, {},
        fillAndPicture, [this](const VnJsonPtr& tree) { answerWithSamples(tree); });

    const VnJsonPtr layer = ElementValue::createObject(4);
    layer->SetDataB(kIsEdit, true);
    layer->SetDataJ(kInitRecord, m_records.target(sampleTargets()[3]));
    posing::showDialog(kService, L"Dialog/CmdLaytransNewEdit", layer, camera,
        QStringLiteral("layer-translator-layer"));

    const VnJsonPtr options = hostextras::createArray(vnsi::kTranslatorOptionCount);
    for (int option = 0; option < vnsi::kTranslatorOptionCount; ++option) {
        const VnJsonPtr setting = ElementValue::createObject(1);
        setting->SetDataB(kSetting, option % 2 == 0);
        hostextras::append(options, setting);
    }
    const VnJsonPtr settings = ElementValue::createObject(2);
    settings->SetDataJ(kSettingsIn, options);
    posing::showDialog(kService, L"Dialog/CmdLaytransSetting", settings, camera,
        QStringLiteral("layer-translator-settings"));
}
