#include "layerstatecommand.h"
#include "benchtexts.h"
#include "hostextras.h"

#include "commandinvoker.h"
#include "drawing.h"
#include "hostcodes.h"
#include "layermarks.h"
#include "layerstateimport.h"
#include "namerule.h"
#include "recordprovider.h"
#include "statekeys.h"
#include "statelist.h"
#include "staterecords.h"
#include "states/layerstatefile.h"
#include "sysvars.h"
#include "vnmessages.h"
#include "vnstrings.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using drawing::LayerState;
using vnsi::ElementValue;
using vnsi::VnJsonPtr;

namespace {

namespace key = vnsi::statekey;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";

constexpr std::pair<int, int> kMaskBits[] = {
    {vnsi::kMaskOnOff, drawing::kStateOnOff},
    {vnsi::kMaskFreeze, drawing::kStateFreeze},
    {vnsi::kMaskLock, drawing::kStateLock},
    {vnsi::kMaskPlot, drawing::kStatePlot},
    {vnsi::kMaskNewViewportFreeze, drawing::kStateNewViewportFreeze},
    {vnsi::kMaskColor, drawing::kStateColor},
    {vnsi::kMaskLinetype, drawing::kStateLinetype},
    {vnsi::kMaskLineweight, drawing::kStateLineweight},
    {vnsi::kMaskPlotStyle, drawing::kStatePlotStyle},
    {vnsi::kMaskCurrentViewport, drawing::kStateCurrentViewport},
    {vnsi::kMaskTransparency, drawing::kStateTransparency},
};

constexpr bool masksAgree()
{
    int bits = 0;
    for (const auto& [dialogs, drawings] : kMaskBits) {
        if (dialogs != drawings)
            return false;
        bits |= drawings;
    }
    return bits == drawing::kStateEverything;
}

static_assert(masksAgree(), "masks are handed on as they are");

QString text(const VnJsonPtr& node, const char* key)
{
    return node ? vnsi::vnutOdStringToQString(node->GetDataSW(key)) : QString();
}

OdString od(const QString& text)
{
    return vnsi::vnutQStringToOdString(text);
}

int maskIn(const VnJsonPtr& node)
{
    return node->GetDataI(key::kMask) & drawing::kStateEverything;
}

} // namespace

/// The handler of a request, identified by the element that it is sent on and its code.
struct LayerStateCommand::RequestRow
{
    int element;
    int code;
    void (LayerStateCommand::*answer)(const VnJsonPtr& node);
};

const LayerStateCommand::RequestRow LayerStateCommand::kRequests[] = {
    {vnsi::kStateEditor, vnsi::kStateEditPrepare, &LayerStateCommand::prepareEdit},
    {vnsi::kStateEditor, vnsi::kStateEditStore, &LayerStateCommand::storeEdited},
    {vnsi::kStateEditor, vnsi::kStateEditRemove, &LayerStateCommand::removeMarked},
    {vnsi::kStateManager, vnsi::kStateCreate, &LayerStateCommand::create},
    {vnsi::kStateManager, vnsi::kStateDelete, &LayerStateCommand::remove},
    {vnsi::kStateManager, vnsi::kStateRename, &LayerStateCommand::rename},
    {vnsi::kStateManager, vnsi::kStateSave, &LayerStateCommand::overwrite},
    {vnsi::kStateManager, vnsi::kStateRestore, &LayerStateCommand::restore},
    {vnsi::kStateManager, vnsi::kStateImport, &LayerStateCommand::importStates},
    {vnsi::kStateManager, vnsi::kStateExport, &LayerStateCommand::exportState},
    {vnsi::kStateManager, vnsi::kStateDescribe, &LayerStateCommand::describe},
};

void LayerStateCommand::run(CommandContext& context)
{
    m_context = &context;
    host::setVar(L"TILEMODE", drawing().isModelSpace() ? 1 : 0);
    const auto invoker = CommandInvoker::make([this](const VnJsonPtr& node) { answer(node); });
    vnsi::vnuiShowModelDialogEx(
        kService, vnsi::statedialog::kManager, makeTree(), invoker, context.parent);
}

VnJsonPtr LayerStateCommand::makeTree()
{
    const VnJsonPtr elements = hostextras::createArray(vnsi::kStateElementCount);
    for (int i = 0; i < vnsi::kStateElementCount; ++i)
        hostextras::append(elements, ElementValue::createObject(8));
    m_manager = elements(vnsi::kStateManager);
    m_editor = elements(vnsi::kStateEditor);
    VnJsonPtr tree = ElementValue::createObject(2);
    tree->SetDataJ(key::kElements, elements);
    showStates(drawing().layerStates());
    return tree;
}

void LayerStateCommand::answer(const VnJsonPtr& node)
{
    const int element = node->GetDataI(vnsi::requestkey::kParameter);
    const int code = node->GetDataI(vnsi::requestkey::kRequestCode, -1);
    for (const RequestRow& row : kRequests) {
        if (row.element != element || row.code != code)
            continue;
        m_toRestore.clear();
        (this->*row.answer)(node);
        showStates(drawing().layerStates());
        for (const QString& notice : drawing().takeNotices())
            m_context->say(notice);
        return;
    }
}

void LayerStateCommand::showStates(std::vector<LayerState> states)
{
    const VnJsonPtr list = hostextras::createArray(static_cast<int>(states.size()));
    QString current;
    for (const LayerState& state : statelist::sorted(std::move(states), m_toRestore)) {
        const bool isSame = drawing::isSameAsDrawing(state, drawing());
        if (isSame && (vnsi::isSameName(state.name, m_current) || current.isEmpty()))
            current = state.name;
        const VnJsonPtr entry = statelist::makeEntry(state);
        entry->SetDataB(key::kIsSameAsDrawing, isSame);
        hostextras::append(list, entry);
    }
    m_manager->SetDataJ(key::kList, list);
    m_manager->SetDataSW(key::kCurrent, od(current.isEmpty() ? Texts::tr("*未保存*") : current));
}

/// The state that a request names. When it no longer exists, the user is told.
std::optional<LayerState> LayerStateCommand::named(const VnJsonPtr& node, const char* key)
{
    const QString name = text(node, key);
    auto state = drawing().layerState(name);
    if (!state) {
        m_problems += Texts::tr("图形中没有图层状态“%1”。").arg(name);
        report(Texts::tr("图层状态没有改动："));
    }
    return state;
}

/// Commits the step of a successful request, or rolls back the step of a refused one.
bool LayerStateCommand::done(const drawing::Expected<void>& outcome)
{
    if (outcome) {
        m_context->step->next();
    } else {
        m_context->step->takeBack();
        m_problems += outcome.error().text;
    }
    report(Texts::tr("图层状态没有改动："));
    return outcome.has_value();
}

bool LayerStateCommand::put(const std::vector<LayerState>& states)
{
    const bool areStored = done(drawing().putLayerStates(states));
    if (areStored)
        statelist::tellWhereStatesAre(*m_context);
    return areStored;
}

void LayerStateCommand::report(const QString& title)
{
    layermarks::report(*m_context, title, m_problems);
}

void LayerStateCommand::fillEditor(const VnJsonPtr& node, const LayerState& state)
{
    node->SetDataJ(key::kList, staterecords::make(state));
    node->SetDataJ(vnsi::layerkey::kList, layerrecords::Provider::full().list(drawing()));
}

void LayerStateCommand::prepareEdit(const VnJsonPtr& node)
{
    fillEditor(node, named(node, key::kEditedName).value_or(LayerState()));
}

void LayerStateCommand::removeMarked(const VnJsonPtr& node)
{
    if (auto state = named(node, key::kEditedName)) {
        staterecords::takeRemoved(*state, node->GetDataJ(key::kList));
        put({*state});
    }
}

void LayerStateCommand::storeEdited(const VnJsonPtr& node)
{
    if (auto state = named(node, key::kEditedName)) {
        staterecords::takeEdited(*state, node->GetDataJ(key::kList), drawing());
        put({*state});
    }
}

void LayerStateCommand::create(const VnJsonPtr& node)
{
    LayerState state = captureLayerState(drawing(), text(node, key::kNewName));
    if (state.name.isEmpty())
        return;
    state.description = text(node, key::kDescription);
    if (put({state}))
        m_current = state.name;
}

void LayerStateCommand::remove(const VnJsonPtr& node)
{
    QStringList names;
    if (node->GetDataB(key::kDeletesOne)) {
        names += text(node, key::kDeletedName);
    } else {
        const VnJsonPtr list = node->GetDataJ(key::kDeletedNames);
        for (int i = 0, count = list.ArrayCount(); i < count; ++i)
            names += text(list(i), key::kNameInDeleted);
    }
    done(drawing().removeLayerStates(names));
}

void LayerStateCommand::rename(const VnJsonPtr& node)
{
    const QString name = text(node, key::kOldName);
    const QString newName = text(node, key::kRenamedTo);
    if (done(drawing().renameLayerState(name, newName)) && vnsi::isSameName(m_current, name))
        m_current = newName;
}

void LayerStateCommand::overwrite(const VnJsonPtr& node)
{
    const auto before = named(node, key::kSavedName);
    if (!before)
        return;
    LayerState state = captureLayerState(drawing(), before->name);
    state.description = before->description;
    state.mask = maskIn(node);
    if (put({state}))
        m_current = state.name;
}

void LayerStateCommand::describe(const VnJsonPtr& node)
{
    if (auto state = named(node, key::kOldName)) {
        state->description = text(node, key::kDescribedAs);
        put({*state});
    }
}

void LayerStateCommand::restore(const VnJsonPtr& node)
{
    const auto state = named(node, key::kRestoredName);
    if (!state)
        return;
    drawing::LayerStateRestore how;
    how.mask = maskIn(node);
    how.turnOthersOff = node->GetDataI(key::kTurnsOthersOff) == 1;
    how.viewportOverrides = node->GetDataB(key::kOverridesViewport);
    m_problems = restoreLayerState(drawing(), *state, how);
    m_context->step->next();
    m_current = state->name;
    if (how.viewportOverrides)
        tellOfOverrides(*state);
    report(Texts::tr("图层状态“%1”已恢复，但以下内容除外：").arg(state->name));
    node->SetDataB(key::kRestoreCloses, true);
}

/// Tells the user that overrides were applied to the viewport.
void LayerStateCommand::tellOfOverrides(const LayerState& state)
{
    if (!drawing().checkViewport())
        return;
    const QString& layout = drawing().layouts()[static_cast<size_t>(drawing().shownLayout())].name;
    m_context->say(Texts::tr("图层状态“%1”的颜色、线型、线宽和透明度已作为视口替代应用于“%2”的当前"
                             "视口。")
                       .arg(state.name, layout.isEmpty() ? Texts::tr("布局") : layout));
}

void LayerStateCommand::importStates(const VnJsonPtr& node)
{
    LayerStateImport import(drawing());
    const VnJsonPtr paths = node->GetDataJ(key::kImportPaths);
    for (int i = 0, count = paths.ArrayCount(); i < count; ++i)
        import.read(vnsi::vnutOdStringToQString(hostextras::textOf(paths(i))),
            node->GetDataB(key::kImportSkipsReferences));
    const std::vector<LayerState> chosen = import.choose();
    m_problems += import.problems();
    report(chosen.empty() ? Texts::tr("没有输入图层状态：")
                          : Texts::tr("图层状态已输入，但以下内容除外："));
    if (chosen.empty() || !put(chosen))
        return;
    // The dialog restores the state listed last.
    if (wantsToRestore(chosen))
        m_toRestore = chosen.back().name;
    showStates(drawing().layerStates());
    node->SetDataJ(key::kImportedList, m_manager->GetDataJ(key::kList));
    node->SetDataB(key::kImportSucceeded, true);
    node->SetDataB(key::kImportRestores, !m_toRestore.isEmpty());
}

/// Whether the user wants to restore the last one of the imported states.
bool LayerStateCommand::wantsToRestore(const std::vector<LayerState>& imported)
{
    const QString last = imported.back().name;
    const QString question =
        imported.size() == 1
            ? Texts::tr("已输入图层状态“%1”。是否立即恢复?").arg(last)
            : Texts::tr("已输入 %1 个图层状态。是否立即恢复“%2”?").arg(imported.size()).arg(last);
    return layermarks::confirms(question);
}

void LayerStateCommand::exportState(const VnJsonPtr& node)
{
    const auto state = named(node, key::kExportName);
    QString path = text(node, key::kExportPath);
    if (!state || path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".las");
    if (const auto written = drawing::writeLayerStateFile(path, {*state}); written)
        m_context->say(Texts::tr("图层状态“%1”已输出到“%2”。")
                           .arg(state->name, QDir::toNativeSeparators(path)));
    else
        m_problems += written.error().text;
    report(Texts::tr("图层状态没有输出："));
}
