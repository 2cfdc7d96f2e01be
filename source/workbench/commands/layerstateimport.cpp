#include "layerstateimport.h"

#include "benchtexts.h"
#include "drawing.h"
#include "hostcodes.h"
#include "namerule.h"
#include "states/layerstatefile.h"
#include "vnmessages.h"
#include "vnstrings.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

using drawing::LayerState;
using vnsi::VnJsonPtr;

namespace {

enum Answer { kReplace, kReplaceAll, kKeep, kCancel };

struct ButtonRow
{
    const char* key;
    const char* text;
};

constexpr ButtonRow kButtons[] = {
    {"btnText/0", QT_TRANSLATE_NOOP("workbench", "覆盖")},
    {"btnText/1", QT_TRANSLATE_NOOP("workbench", "全部覆盖")},
    {"btnText/2", QT_TRANSLATE_NOOP("workbench", "跳过")},
    {"btnText/3", QT_TRANSLATE_NOOP("workbench", "取消")},
};

/// The first few names and their total number.
QString shortList(const QStringList& names)
{
    constexpr int kMost = 5;
    const QString first = QStringList(names.mid(0, kMost)).join(Texts::tr("、"));
    return names.size() > kMost ? Texts::tr("%1等 %2 个").arg(first).arg(names.size()) : first;
}

int askToReplace(const QString& name)
{
    const VnJsonPtr options = vnsi::ElementValue::createObject(2);
    for (const ButtonRow& button : kButtons)
        options->SetDataSW(button.key, vnsi::vnutQStringToOdString(Texts::tr(button.text)));
    const QString question = Texts::tr("图层状态“%1”已存在。是否覆盖?").arg(name);
    const VnJsonPtr answer =
        vnsi::vnuiMessageBoxEx(vnsi::vnutQStringToOdString(Texts::tr("图层状态 - 输入")),
            vnsi::vnutQStringToOdString(question), options, vnsi::kVnCustomButtons, 1,
            vnsi::kVnIconQuestion);
    return answer->GetDataI("ControlBtn", kCancel);
}

} // namespace

void LayerStateImport::read(const QString& path, bool leavesOutReferences)
{
    for (LayerState& state : statesOf(path)) {
        if (!leavesOutReferences || !state.isFromReference())
            m_read.push_back(std::move(state));
    }
}

std::vector<LayerState> LayerStateImport::statesOf(const QString& path)
{
    if (QFileInfo::exists(path) && drawing::isLayerStateFile(path)) {
        auto file = drawing::readLayerStateFile(path, m_drawing.codec());
        if (file) {
            m_problems += file->notices;
            return std::move(file->states);
        }
        m_problems += file.error().text;
        return {};
    }
    const auto other = drawing::Drawing::open(path);
    if (!other) {
        m_problems += other.error().text;
        return {};
    }
    auto states = (*other)->layerStates();
    if (states.empty())
        m_problems += Texts::tr("文件“%1”中没有图层状态。").arg(QDir::toNativeSeparators(path));
    return states;
}

bool LayerStateImport::mayReplace(const QString& name)
{
    if (m_existing == Existing::Replace)
        return true;
    switch (askToReplace(name)) {
    case kReplaceAll:
        m_existing = Existing::Replace;
        return true;
    case kReplace:
        return true;
    case kKeep:
        return false;
    default:
        m_existing = Existing::Cancel;
        return false;
    }
}

std::vector<LayerState> LayerStateImport::choose()
{
    QSet<QString> known;
    for (const QString& name : m_drawing.layerStateNames())
        known.insert(vnsi::foldedName(name));
    QStringList unknownLayers;
    std::vector<LayerState> chosen;
    for (LayerState& state : std::exchange(m_read, {})) {
        unknownLayers += dropUnknownLayers(state, m_drawing);
        const QString name = vnsi::foldedName(state.name);
        if (state.layers.empty()) {
            m_problems += Texts::tr("图层状态“%1”中没有此图形的图层，没有输入。").arg(state.name);
        } else if (!known.contains(name) || mayReplace(state.name)) {
            known.insert(name);
            chosen.push_back(std::move(state));
        } else if (m_existing == Existing::Cancel) {
            return {};
        }
    }
    unknownLayers.removeDuplicates();
    if (!unknownLayers.isEmpty())
        m_problems += Texts::tr("此图形没有图层 %1，状态中的这些图层没有输入。")
                          .arg(shortList(unknownLayers));
    return chosen;
}
