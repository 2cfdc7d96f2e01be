#include "hostcodes.h"
#include "vnqtuidynlayerstatecmdimpl.h"

#include "dialoghelp.h"
#include "hostapi/filequestion.h"
#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "moduletexts.h"
#include "namerule.h"
#include "recordedits.h"
#include "statetexts.h"
#include "vnstrings.h"

#include <QCheckBox>
#include <QTableWidget>

/// The requests that the buttons send to the command.
namespace vnsi {

using namespace layerstates;
using hostapi::Members;

namespace {

enum DeleteAnswer { kDeleteThis, kDeleteAll, kKeepThis, kStop };

constexpr char kDeleteCaption[] = QT_TRANSLATE_NOOP("cmdlayerui", "图层 - 删除图层状态");
constexpr char kStateFilter[] = QT_TRANSLATE_NOOP("cmdlayerui", "图层状态(*.las)");
constexpr char kImportFilter[] =
    QT_TRANSLATE_NOOP("cmdlayerui", "图形(*.dwg);;标准(*.dws);;图形样板(*.dwt);;图层状态(*.las)");

OdString od(const QString& text)
{
    return vnutQStringToOdString(text);
}

bool answersYes(const QString& caption, const QString& question)
{
    return hostapi::messageBoxEx(caption, question, hostapi::makeObject(), kVnYesNo, 1,
               kVnIconInformation) == kVnAnswerYes;
}

} // namespace

VnQtAnswer VnQtUiDynLayerStateCmdImpl::request(
    StateRequest code, const VnQtArgumentWriter& writeArguments, std::vector<const char*> answers)
{
    return askCommandOn(manager(), {code, std::move(answers), kStateManager}, writeArguments);
}

void VnQtUiDynLayerStateCmdImpl::slot_RestoreBtnBtnClicked(bool)
{
    m_currentItem = m_table->item(m_table->currentRow(), kNameColumn);
    if (!m_currentItem)
        return;
    const QString name = m_currentItem->text();
    const bool overrides = m_overrideBox->isEnabled() && m_overrideBox->isChecked();
    const auto arguments = [&](IElementValueBase& node) {
        // The first option is a number and the second a bool, because commands expect these types.
        Members(node)
            .set(statekey::kRestoredName, od(name))
            .set(statekey::kTurnsOthersOff, m_turnOffBox->isChecked() ? 1 : 0)
            .set(statekey::kOverridesViewport, overrides)
            .set(statekey::kMask, mask());
    };
    if (request(kStateRestore, arguments, {statekey::kRestoreCloses})
            ->GetDataB(statekey::kRestoreCloses))
        endDialog(1);
}

void VnQtUiDynLayerStateCmdImpl::slot_tableitDoubleClicked(QTableWidgetItem*)
{
    slot_RestoreBtnBtnClicked(false);
}

/// The request is sent on the very node that the dialog for a new state has written into.
void VnQtUiDynLayerStateCmdImpl::slot_NewBtnClicked(bool)
{
    const VnJsonPtr node = manager();
    const VnJsonPtr answer =
        hostapi::showDialogEx(kService, statedialog::kNew, node, invoker(), this);
    if (answer->GetDataI("result") != kVnAnswerOk || !node || !canRequest())
        return;
    askCommandOn(node, {kStateCreate, {}, kStateManager});
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_SaveBtnClicked(bool)
{
    const QString name = selectedName();
    if (!answersYes(tr("图层 - 覆盖图层状态"), tr("是否要覆盖%1?").arg(name)) || !canRequest())
        return;
    request(kStateSave, [&](IElementValueBase& node) {
        Members(node).set(statekey::kSavedName, od(name)).set(statekey::kMask, mask());
    });
    fill();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (nameAt(row) == name) {
            m_table->setCurrentCell(row, kNameColumn);
            break;
        }
    }
}

void VnQtUiDynLayerStateCmdImpl::slot_EditBtnClicked(bool)
{
    if (!canRequest())
        return;
    const QString name = selectedName();
    askCommandOn(element(data(), kStateEditor), {kStateEditPrepare, {}, kStateEditor},
        [&](IElementValueBase& node) { Members(node).set(statekey::kEditedName, od(name)); });
    hostapi::showDialogEx(kService, statedialog::kEdit, data(), invoker(), this);
}

void VnQtUiDynLayerStateCmdImpl::slot_RenameBtnClicked(bool)
{
    m_currentItem = m_table->item(m_table->currentRow(), kNameColumn);
    if (!m_currentItem)
        return;
    m_oldName = m_currentItem->text();
    const auto typed = recordedits::askForText(od(m_oldName));
    if (!typed || !canRequest())
        return;
    const QString name = vnutOdStringToQString(*typed);
    if (!acceptNewName(name) || isSameName(name, m_oldName))
        return;
    request(kStateRename, [&](IElementValueBase& node) {
        Members(node).set(statekey::kOldName, od(m_oldName)).set(statekey::kRenamedTo, od(name));
    });
    fill();
}

bool VnQtUiDynLayerStateCmdImpl::acceptNewName(const QString& name)
{
    const auto refuse = [](const QString& text, const QString& caption) {
        hostapi::messageBox(text, caption, kVnIconInformation);
        return false;
    };
    if (name.isEmpty())
        return refuse(tr("名称 必须至少有一个字符长。"), tr("图层状态 - 文字长度"));
    if (holdsForbiddenCharacter(name))
        return refuse(badCharactersText(), badCharactersCaption());
    if (isSameName(name, m_oldName))
        return true;
    const VnJsonPtr all = states();
    for (int i = 0, count = hostapi::count(all); i < count; ++i) {
        if (isSameName(name, text(hostapi::item(all, i), statekey::kName)))
            return refuse(tr("名称 %1 已在使用。").arg(name) + tr("\n您需要输入其他名称。"),
                tr("图层状态 - 名称已经存在"));
    }
    return true;
}

void VnQtUiDynLayerStateCmdImpl::slot_tableitClickedDesc(QTableWidgetItem* item)
{
    const std::vector<int> rows = selectedRows();
    if (rows.empty() || !item || item != m_table->item(rows.front(), kDescriptionColumn))
        return;
    const QString name = nameAt(rows.front());
    const auto typed = recordedits::askForText(od(item->text()));
    if (!typed || !canRequest())
        return;
    request(kStateDescribe, [&](IElementValueBase& node) {
        Members(node).set(statekey::kOldName, od(name)).set(statekey::kDescribedAs, *typed);
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_DeleteBtnClicked(bool)
{
    QStringList names;
    for (const int row : selectedRows())
        names += nameAt(row);
    if (names.size() == 1)
        deleteOne(names.first());
    else
        deleteSeveral(names);
}

void VnQtUiDynLayerStateCmdImpl::deleteOne(const QString& name)
{
    const QString question = tr("是否确实要删除 %1?").arg(name);
    if (answersYes(Texts::tr(kDeleteCaption), question))
        sendDeletion(name);
}

void VnQtUiDynLayerStateCmdImpl::deleteSeveral(const QStringList& names)
{
    for (int i = 0; i < names.size(); ++i) {
        const QString question = tr("是否确实要删除图层状态 %1?").arg(names.at(i));
        switch (ask(Texts::tr(kDeleteCaption), question,
            {tr("是"), tr("全部删除"), tr("否"), tr("取消")}, kStop)) {
        case kDeleteThis:
            sendDeletion(names.at(i));
            break;
        case kDeleteAll:
            sendDeletions(names.mid(i));
            return;
        case kKeepThis:
            break;
        default:
            return;
        }
    }
}

void VnQtUiDynLayerStateCmdImpl::sendDeletion(const QString& name)
{
    request(kStateDelete, [&](IElementValueBase& node) {
        Members(node).set(statekey::kDeletesOne, true).set(statekey::kDeletedName, od(name));
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::sendDeletions(const QStringList& names)
{
    const VnJsonPtr entries = hostapi::makeArray(names.size());
    for (const QString& name : names) {
        const VnJsonPtr entry = hostapi::makeObject();
        Members(entry).set(statekey::kNameInDeleted, od(name));
        hostapi::append(entries, entry);
    }
    request(kStateDelete, [&](IElementValueBase& node) {
        Members(node).set(statekey::kDeletesOne, false).set(statekey::kDeletedNames, entries);
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_ImportBtnClicked(bool)
{
    const VnJsonPtr file = askForFile(
        makeFileQuestion(
            {tr("输入图层状态"), Texts::tr(kImportFilter), Texts::tr(kStateFilter), true, false}),
        this);
    const VnJsonPtr paths = file ? file->GetDataJ("filePaths") : VnJsonPtr();
    if (!paths)
        return;
    const auto arguments = [&](IElementValueBase& node) {
        Members(node)
            .set(statekey::kImportPaths, paths)
            .set(statekey::kImportBeside, node.GetDataJ(statekey::kList))
            .set(statekey::kImportSkipsReferences, m_referenceBox->isChecked());
    };
    const VnQtAnswer answer = request(kStateImport, arguments,
        {statekey::kImportedList, statekey::kImportSucceeded, statekey::kImportRestores});
    if (!answer->GetDataB(statekey::kImportSucceeded))
        return;
    fill();
    if (answer->GetDataB(statekey::kImportRestores))
        slot_RestoreBtnBtnClicked(false);
}

void VnQtUiDynLayerStateCmdImpl::slot_ExportBtnClicked(bool)
{
    const QString name = selectedName();
    const VnJsonPtr file = makeFileQuestion(
        {tr("输出图层状态"), Texts::tr(kStateFilter), Texts::tr(kStateFilter), false, false});
    if (m_table->currentRow() >= 0)
        setStartPlace(file, od(name));
    const VnJsonPtr answer = askForFile(file, this);
    const OdString path = answer ? answer->GetDataSW("filePath") : OdString();
    if (path.isEmpty())
        return;
    askCommandOn(file, {kStateExport, {}, kStateManager}, [&](IElementValueBase& node) {
        Members(node).set(statekey::kExportPath, path).set(statekey::kExportName, od(name));
    });
}

void VnQtUiDynLayerStateCmdImpl::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
