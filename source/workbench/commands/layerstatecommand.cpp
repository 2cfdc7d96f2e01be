#include "layerstatecommand.h"

#include "commandinvoker.h"
#include "drawing.h"
#include "layerkeys.h"
#include "layerrecords.h"
#include "layerstatefile.h"
#include "posing.h"
#include "statelist.h"
#include "sysvars.h"
#include "vnmessages.h"
#include "vnproduct.h"
#include "vnstrings.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using drawing::LayerState;
using drawing::LayerStateLayer;
using vnsi::ElementValue;
using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::layerkey;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";
constexpr wchar_t kManagerDialog[] = L"Dialog/CmdLayerState";
constexpr char kStates[] = "LayerStateList";
constexpr char kMask[] = "LayerStateMask";
constexpr char kDelete[] = "Delete";
constexpr int kMostProblemsShown = 10;

QString tr(const char* text)
{
    return QCoreApplication::translate("LayerStateCommand", text);
}

QString text(const VnJsonPtr& node, const char* key)
{
    return vnsi::vnutOdStringToQString(node->GetDataSW(key));
}

OdString od(const QString& text)
{
    return vnsi::vnutQStringToOdString(text);
}

bool isSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool answersYes(const QString& question)
{
    return vnsi::vnuiMessageBox(od(question), vnsi::kProductName,
               vnsi::kVnYesNo | vnsi::kVnIconQuestion) == vnsi::kVnAnswerYes;
}

VnJsonPtr recordOf(const LayerStateLayer& layer, bool current)
{
    drawing::Layer shown;
    shown.properties = layer.properties;
    const VnJsonPtr record = layerrecords::make(shown, false);
    record->SetDataI(key::kStatus, current ? 1 : 0); // In a state 1 is the current layer.
    return record;
}

VnJsonPtr recordsOf(const LayerState& state)
{
    const VnJsonPtr list = ElementValue::createArray(static_cast<int>(state.layers.size()));
    for (const LayerStateLayer& layer : state.layers)
        list->Append(recordOf(layer, isSameName(layer.properties.name, state.currentLayer)));
    return list;
}

/// The first few of the names and how many there are.
QString shortList(const QStringList& names)
{
    constexpr int kMost = 5;
    const QString first = QStringList(names.mid(0, kMost)).join(tr("、"));
    return names.size() > kMost ? tr("%1等 %2 个").arg(first).arg(names.size()) : first;
}

} // namespace

/// What answers a request: by the element it is on and its code.
struct LayerStateCommand::RequestRow
{
    int element;
    int code;
    void (LayerStateCommand::*answer)(const VnJsonPtr& node);
};

const LayerStateCommand::RequestRow LayerStateCommand::kRequests[] = {
    {2, 0, &LayerStateCommand::prepareEdit},
    {2, 1, &LayerStateCommand::storeEdited},
    {2, 2, &LayerStateCommand::removeMarked},
    {1, 1, &LayerStateCommand::create},
    {1, 2, &LayerStateCommand::remove},
    {1, 3, &LayerStateCommand::rename},
    {1, 4, &LayerStateCommand::overwrite},
    {1, 5, &LayerStateCommand::restore},
    {1, 6, &LayerStateCommand::importStates},
    {1, 7, &LayerStateCommand::exportState},
    {1, 8, &LayerStateCommand::describe},
};

void LayerStateCommand::run(CommandContext& context)
{
    m_context = &context;
    host::setVar(L"TILEMODE", drawing().isModelSpace() ? 1 : 0);
    const auto invoker = CommandInvoker::make([this](const VnJsonPtr& node) { answer(node); });
    vnsi::vnuiShowModelDialogEx(kService, kManagerDialog, makeTree(), invoker, context.parent);
}

VnJsonPtr LayerStateCommand::makeTree()
{
    m_manager = ElementValue::createObject(8);
    m_edited = ElementValue::createObject(8);
    const VnJsonPtr elements = ElementValue::createArray(3);
    elements->Append(ElementValue::createObject(1));
    elements->Append(m_manager);
    elements->Append(m_edited);
    const VnJsonPtr tree = ElementValue::createObject(2);
    tree->SetDataJ("LayerStateMgr", elements);
    showStates(drawing().layerStates());
    return tree;
}

void LayerStateCommand::answer(const VnJsonPtr& node)
{
    const int element = node->GetDataI("parameter");
    const int code = node->GetDataI("marker", -1);
    for (const RequestRow& row : kRequests) {
        if (row.element != element || row.code != code)
            continue;
        (this->*row.answer)(node);
        showStates(drawing().layerStates());
        for (const QString& notice : drawing().takeNotices())
            m_context->say(notice);
        return;
    }
}

void LayerStateCommand::showStates(const std::vector<LayerState>& states)
{
    const VnJsonPtr list = ElementValue::createArray(static_cast<int>(states.size()));
    QString current;
    for (const LayerState& state : states) {
        const bool isSame = drawing::isSameAsDrawing(state, drawing());
        const bool isRemembered = isSameName(state.name, m_current);
        if (isSame && (isRemembered || current.isEmpty()))
            current = state.name;
        const VnJsonPtr entry = statelist::makeEntry(state);
        entry->set("isSame2DWG", isSame).set("Selected", false).set("LayerStateMaskIs", state.mask);
        list->Append(entry);
    }
    m_manager->SetDataJ(kStates, list);
    m_manager->set("currentLState", od(current.isEmpty() ? tr("*未保存*") : current));
}

/// Closes the step of a request that was carried out; takes back what one that was refused did.
bool LayerStateCommand::done(const drawing::Expected<void>& outcome, const QString& stepName)
{
    if (outcome) {
        drawing().commitStep();
    } else {
        drawing().rollbackStep();
        m_problems += outcome.error().text;
    }
    drawing().beginStep(stepName);
    report(tr("图层状态没有改动："));
    return outcome.has_value();
}

void LayerStateCommand::report(const QString& title)
{
    if (m_problems.isEmpty())
        return;
    QString message = title;
    for (const QString& problem : m_problems.mid(0, kMostProblemsShown))
        message += QLatin1Char('\n') + problem;
    if (m_problems.size() > kMostProblemsShown)
        message += tr("\n（共 %1 条）").arg(m_problems.size());
    m_problems.clear();
    vnsi::vnuiMessageBox(od(message), vnsi::kProductName, vnsi::kVnIconWarning);
}

bool LayerStateCommand::put(LayerState state)
{
    m_current = state.name;
    const bool isStored = done(drawing().putLayerStates({std::move(state)}), tr("图层状态"));
    if (isStored)
        statelist::tellWhereStatesAre(*m_context);
    return isStored;
}

void LayerStateCommand::prepareEdit(const VnJsonPtr& node)
{
    const auto state = drawing().layerState(text(node, "selectItemName"));
    node->SetDataJ(kStates, state ? recordsOf(*state) : ElementValue::createArray());
    node->SetDataJ(key::kList, layerrecords::makeList(drawing()));
}

void LayerStateCommand::removeMarked(const VnJsonPtr& node)
{
    auto state = drawing().layerState(text(node, "selectItemName"));
    if (!state)
        return;
    QSet<QString> gone;
    const VnJsonPtr list = node->GetDataJ(kStates);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        if (list(i)->GetDataB(kDelete))
            gone.insert(layerrecords::nameOf(list(i)).toCaseFolded());
    }
    auto& layers = state->layers;
    layers.erase(std::remove_if(layers.begin(), layers.end(),
                     [&](const LayerStateLayer& layer) {
                         return gone.contains(layer.properties.name.toCaseFolded());
                     }),
        layers.end());
    put(*state);
}

void LayerStateCommand::storeEdited(const VnJsonPtr& node)
{
    auto state = drawing().layerState(text(node, "selectItemName"));
    if (!state)
        return;
    QHash<QString, LayerStateLayer> before;
    for (const LayerStateLayer& layer : state->layers)
        before.insert(layer.properties.name.toCaseFolded(), layer);
    state->layers.clear();
    const VnJsonPtr list = node->GetDataJ(kStates);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        const VnJsonPtr record = list(i);
        if (record->GetDataB(kDelete))
            continue;
        const QString name = layerrecords::nameOf(record);
        LayerStateLayer layer = before.value(name.toCaseFolded());
        if (const drawing::Layer* known = drawing().findLayer(name);
            known && layer.properties.name.isEmpty())
            layer.properties = known->properties;
        layer.properties = layerrecords::properties(record, layer.properties);
        layer.properties.description.clear();
        if (record->GetDataI(key::kStatus) == 1)
            state->currentLayer = name;
        state->layers.push_back(layer);
    }
    put(*state);
}

void LayerStateCommand::create(const VnJsonPtr& node)
{
    LayerState state = captureLayerState(drawing(), text(node, "LayerStateNewName"));
    if (state.name.isEmpty())
        return;
    state.description = text(node, "desc");
    put(std::move(state));
}

void LayerStateCommand::remove(const VnJsonPtr& node)
{
    QStringList names;
    if (node->GetDataB("DeleteNameOne"))
        names += text(node, "LayerStateDeleteName");
    const VnJsonPtr list = names.isEmpty() ? node->GetDataJ("LayerStateDeleteNames") : VnJsonPtr();
    for (int i = 0, count = list.ArrayCount(); i < count; ++i)
        names += text(list(i), "LayerSDeleteName");
    done(drawing().removeLayerStates(names), tr("图层状态"));
}

void LayerStateCommand::rename(const VnJsonPtr& node)
{
    const QString name = text(node, "OldName");
    const QString newName = text(node, "NewName");
    if (done(drawing().renameLayerState(name, newName), tr("图层状态")) &&
        isSameName(m_current, name))
        m_current = newName;
}

void LayerStateCommand::overwrite(const VnJsonPtr& node)
{
    const auto before = drawing().layerState(text(node, "LayerStateSaveName"));
    if (!before)
        return;
    LayerState state = captureLayerState(drawing(), before->name);
    state.description = before->description;
    state.mask = node->GetDataI(kMask) & drawing::kStateEverything;
    put(std::move(state));
}

void LayerStateCommand::restore(const VnJsonPtr& node)
{
    const auto state = drawing().layerState(text(node, "LStateRestoreName"));
    if (!state)
        return;
    drawing::LayerStateRestore how;
    how.mask = node->GetDataI(kMask) & drawing::kStateEverything;
    how.turnOthersOff = node->GetDataI("LStateTCheckBox") == 1;
    how.viewportOverrides = node->GetDataB("LStateWCheckBox");
    m_problems = restoreLayerState(drawing(), *state, how);
    drawing().commitStep();
    drawing().beginStep(tr("图层状态"));
    m_current = state->name;
    if (how.viewportOverrides && drawing().checkViewport())
        m_context->say(tr("图层状态“%1”的颜色、线型、线宽和透明度已作为视口替代应用于“%2”的当前"
                          "视口；画布不显示视口替代。")
                           .arg(state->name, shownLayoutName()));
    report(tr("图层状态“%1”已恢复，但以下内容除外：").arg(state->name));
    node->SetDataB("LayerStateOKClose", true);
}

QString LayerStateCommand::shownLayoutName()
{
    const QString& name = drawing().layouts()[static_cast<size_t>(drawing().shownLayout())].name;
    return name.isEmpty() ? tr("布局") : name;
}

std::vector<LayerState> LayerStateCommand::statesOf(const QString& path)
{
    if (QFileInfo::exists(path) && drawing::isLayerStateFile(path)) {
        auto file = drawing::readLayerStateFile(path, drawing().codec());
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
        m_problems += tr("文件“%1”中没有图层状态。").arg(QDir::toNativeSeparators(path));
    return states;
}

/// Asks before a state of the same name goes.
bool LayerStateCommand::mayReplace(const QString& name, bool& all, bool& stop)
{
    enum Answer { kReplace, kReplaceAll, kKeep, kCancel };
    constexpr const char* kTexts[] = {
        QT_TRANSLATE_NOOP("LayerStateCommand", "覆盖"),
        QT_TRANSLATE_NOOP("LayerStateCommand", "全部覆盖"),
        QT_TRANSLATE_NOOP("LayerStateCommand", "跳过"),
        QT_TRANSLATE_NOOP("LayerStateCommand", "取消"),
    };
    if (all)
        return true;
    const VnJsonPtr options = ElementValue::createObject(2);
    for (int i = 0; i <= kCancel; ++i)
        options->SetDataSW(
            QByteArray("btnText/" + QByteArray::number(i)).constData(), od(tr(kTexts[i])));
    const QString question = tr("图层状态“%1”已存在。是否覆盖?").arg(name);
    const int answer = vnsi::vnuiMessageBoxEx(
        L"图层状态 - 输入", od(question), options, vnsi::kVnCustomButtons, 1, vnsi::kVnIconQuestion)
                           ->GetDataI("ControlBtn", kCancel);
    all = answer == kReplaceAll;
    stop = answer == kCancel;
    return answer == kReplace || answer == kReplaceAll;
}

/// Those of the states read that can and shall be taken in.
std::vector<LayerState> LayerStateCommand::chosenOf(std::vector<LayerState> states)
{
    QSet<QString> known;
    for (const QString& name : drawing().layerStateNames())
        known.insert(name.toCaseFolded());
    QStringList unknownLayers;
    std::vector<LayerState> chosen;
    bool all = false;
    bool stop = false;
    for (LayerState& state : states) {
        unknownLayers += dropUnknownLayers(state, drawing());
        if (state.layers.empty()) {
            m_problems += tr("图层状态“%1”中没有此图形的图层，没有输入。").arg(state.name);
            continue;
        }
        const bool isKnown = known.contains(state.name.toCaseFolded());
        if (isKnown && !mayReplace(state.name, all, stop) && !stop)
            continue;
        if (stop)
            return {};
        known.insert(state.name.toCaseFolded());
        chosen.push_back(std::move(state));
    }
    unknownLayers.removeDuplicates();
    if (!unknownLayers.isEmpty())
        m_problems +=
            tr("此图形没有图层 %1，状态中的这些图层没有输入。").arg(shortList(unknownLayers));
    return chosen;
}

/// The dialog restores the state listed last.
bool LayerStateCommand::offersRestore(const std::vector<LayerState>& imported)
{
    const QString last = drawing().layerStateNames().constLast();
    if (!isSameName(imported.back().name, last))
        return false;
    return answersYes(
        imported.size() == 1
            ? tr("已输入图层状态“%1”。是否立即恢复?").arg(last)
            : tr("已输入 %1 个图层状态。是否立即恢复“%2”?").arg(imported.size()).arg(last));
}

void LayerStateCommand::importStates(const VnJsonPtr& node)
{
    std::vector<LayerState> read;
    const bool leavesOutReferences = node->GetDataB("LStateRefLayer");
    const VnJsonPtr paths = node->GetDataJ("LStatefilePaths");
    for (int i = 0, count = paths.ArrayCount(); i < count; ++i) {
        for (LayerState& state : statesOf(vnsi::vnutOdStringToQString(paths(i)->asSW()))) {
            if (!leavesOutReferences || !state.isFromReference())
                read.push_back(std::move(state));
        }
    }
    const std::vector<LayerState> chosen = chosenOf(std::move(read));
    report(chosen.empty() ? tr("没有输入图层状态：") : tr("图层状态已输入，但以下内容除外："));
    if (chosen.empty() || !done(drawing().putLayerStates(chosen), tr("图层状态")))
        return;
    statelist::tellWhereStatesAre(*m_context);
    showStates(drawing().layerStates());
    node->SetDataJ("LayerStateListHaveRef", m_manager->GetDataJ(kStates));
    node->SetDataB("LayerStateListRefOK", true);
    node->SetDataB("LayerStateYesNoRestore", offersRestore(chosen));
}

void LayerStateCommand::exportState(const VnJsonPtr& node)
{
    QString path = text(node, "LStatefilePathsSW");
    const auto state = drawing().layerState(text(node, "LStateName"));
    if (!state || path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".las");
    if (const auto written = drawing::writeLayerStateFile(path, {*state}); written)
        m_context->say(
            tr("图层状态“%1”已输出到“%2”。").arg(state->name, QDir::toNativeSeparators(path)));
    else
        m_problems += written.error().text;
    report(tr("图层状态没有输出："));
}

void LayerStateCommand::describe(const VnJsonPtr& node)
{
    auto state = drawing().layerState(text(node, "OldName"));
    if (!state)
        return;
    state->description = text(node, "NewDescName");
    const QString current = m_current;
    put(*state);
    m_current = current;
}

void LayerStateCommand::pose(CommandContext& context, const Camera& camera)
{
    m_context = &context;
    const VnJsonPtr tree = makeTree();
    std::vector<LayerState> states = drawing().layerStates();
    const char* const samples[][2] = {
        {QT_TRANSLATE_NOOP("LayerStateCommand", "全部打开"),
            QT_TRANSLATE_NOOP("LayerStateCommand", "交底用")},
        {QT_TRANSLATE_NOOP("LayerStateCommand", "打印布局"),
            QT_TRANSLATE_NOOP("LayerStateCommand", "标注与家具冻结")},
        {QT_TRANSLATE_NOOP("LayerStateCommand", "结构"), ""},
    };
    bool isFirst = true;
    for (const auto& sample : samples) {
        LayerState state = captureLayerState(drawing(), tr(sample[0]));
        state.description = tr(sample[1]);
        state.fromLayout = !isFirst;
        for (LayerStateLayer& layer : state.layers)
            layer.properties.locked = layer.properties.locked != !isFirst;
        isFirst = false;
        states.push_back(state);
    }
    showStates(states);
    m_edited->SetDataSW("selectItemName", od(states.back().name));
    m_edited->SetDataJ(kStates, recordsOf(states.back()));
    m_edited->SetDataJ(key::kList, layerrecords::makeList(drawing()));
    m_edited->SetDataJ("NeedAddlayerList", layerrecords::makeList(drawing()));
    posing::showDialog(kService, kManagerDialog, tree, camera, QStringLiteral("layer-states"),
        [&camera](QWidget& window) {
            window.findChild<QAbstractButton*>(QStringLiteral("extendButton"))->setChecked(false);
            window.findChild<QAbstractButton*>(QStringLiteral("extendButton"))->click();
            QCoreApplication::processEvents();
            camera(QStringLiteral("layer-states-unfolded"), window);
            window.findChild<QAbstractButton*>(QStringLiteral("extendButton"))->click();
        });
    posing::showDialog(
        kService, L"Dialog/CmdLayerStateNew", m_manager, camera, QStringLiteral("layer-state-new"));
    posing::showDialog(
        kService, L"Dialog/CmdLayerStateEdit", tree, camera, QStringLiteral("layer-state-edit"));
    posing::showDialog(kService, L"Dialog/CmdLayerStateAddNewLayer", m_edited, camera,
        QStringLiteral("layer-state-add"));
}
