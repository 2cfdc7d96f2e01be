#include "vnqtuidynlayerstatecmdimpl.h"

#include "dialoghelp.h"
#include "namerule.h"
#include "statetexts.h"
#include "vnstrings.h"

#include <QCheckBox>
#include <QTableWidget>

/// What the buttons ask of the command.
namespace vnsi {

using namespace layerstates;

namespace {

enum Request {
    kPrepareEdit = 0,
    kCreate = 1,
    kDelete = 2,
    kRename = 3,
    kSave = 4,
    kRestore = 5,
    kImport = 6,
    kExport = 7,
    kDescribe = 8
};

enum DeleteAnswer { kDeleteThis, kDeleteAll, kKeepThis, kStop };

constexpr char kMaskKey[] = "LayerStateMask";
constexpr wchar_t kDeleteCaption[] = L"图层 - 删除图层状态";
constexpr wchar_t kRenameService[] = L"Dialog/CmdsUI";
constexpr wchar_t kRenameDialog[] = L"Dialog/CmdsUI/ReNameDlg";
constexpr wchar_t kStateFilter[] = L"图层状态(*.las)";

OdString od(const QString& text)
{
    return vnutQStringToOdString(text);
}

bool answersYes(const wchar_t* caption, const QString& question)
{
    const VnJsonPtr answer = vnuiMessageBoxEx(
        caption, od(question), ElementValue::createObject(2), kVnYesNo, 1, kVnIconInformation);
    return answer->GetDataI("ControlBtn") == kVnAnswerYes;
}

VnJsonPtr askForText(const QString& present)
{
    const VnJsonPtr question = ElementValue::createObject(2);
    question->set("DefaultName", od(present));
    return vnuiShowModelDialog(kRenameService, kRenameDialog, question);
}

VnJsonPtr askForFile(const VnJsonPtr& question, QWidget* parent)
{
    return vnuiShowModelDialogEx(L"Dialog/Common", L"FileDialogBox", question, {}, parent);
}

VnJsonPtr fileQuestion(const char* caption, const wchar_t* filter, bool open)
{
    const VnJsonPtr question = ElementValue::createObject(2);
    question->SetDataS("caption", caption);
    question->set("filter", OdString(filter))
        .set("Open", open)
        .set("MutiFile", false) // The key's agreed spelling.
        .set("defFilter", OdString(kStateFilter));
    return question;
}

} // namespace

bool VnQtUiDynLayerStateCmdImpl::send(
    int code, const VnQtArgumentWriter& writeArguments, std::vector<const char*> answers)
{
    VnQtRequest request;
    request.code = code;
    request.parameter = kManagerElement;
    request.answers = std::move(answers);
    return canRequest() && vnqtSendRequest(manager(), invoker(), objectName().toUtf8().constData(),
                               request, writeArguments);
}

void VnQtUiDynLayerStateCmdImpl::slot_RestoreBtnBtnClicked(bool)
{
    m_currentItem = m_table->item(m_table->currentRow(), kNameColumn);
    if (!m_currentItem)
        return;
    const QString name = m_currentItem->text();
    const bool overrides = m_overrideBox->isEnabled() && m_overrideBox->isChecked();
    const auto arguments = [&](IElementValueBase& node) {
        // The one is a number and the other a bool; commands rely on it.
        node.set("LStateRestoreName", od(name))
            .set("LStateTCheckBox", m_turnOffBox->isChecked() ? 1 : 0)
            .set("LStateWCheckBox", overrides)
            .set(kMaskKey, mask());
    };
    if (send(kRestore, arguments, {"LayerStateOKClose"}) &&
        manager()->GetDataB("LayerStateOKClose"))
        endDialog(1);
}

void VnQtUiDynLayerStateCmdImpl::slot_tableitDoubleClicked(QTableWidgetItem*)
{
    slot_RestoreBtnBtnClicked(false);
}

void VnQtUiDynLayerStateCmdImpl::slot_NewBtnClicked(bool)
{
    const VnJsonPtr node = manager();
    const VnJsonPtr answer =
        vnuiShowModelDialogEx(kService, L"Dialog/CmdLayerStateNew", node, invoker(), this);
    if (answer->GetDataI("result") != 1 || !node || !canRequest())
        return;
    send(kCreate, {});
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_SaveBtnClicked(bool)
{
    const QString name = selectedName();
    if (!answersYes(L"图层 - 覆盖图层状态", tr("是否要覆盖%1?").arg(name)) || !canRequest())
        return;
    send(kSave, [&](IElementValueBase& node) {
        node.set("LayerStateSaveName", od(name)).set(kMaskKey, mask());
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
    VnQtRequest request;
    request.code = kPrepareEdit;
    request.parameter = kEditElement;
    vnqtSendRequest(element(data(), kEditElement), invoker(), objectName().toUtf8().constData(),
        request, [&](IElementValueBase& node) { node.set("selectItemName", od(name)); });
    vnuiShowModelDialogEx(kService, L"Dialog/CmdLayerStateEdit", data(), invoker(), this);
}

void VnQtUiDynLayerStateCmdImpl::slot_RenameBtnClicked(bool)
{
    m_currentItem = m_table->item(m_table->currentRow(), kNameColumn);
    if (!m_currentItem)
        return;
    m_oldName = m_currentItem->text();
    const VnJsonPtr answer = askForText(m_oldName);
    if (!answer->GetDataB("Success") || !canRequest())
        return;
    const QString name = text(answer, "NewName");
    if (!acceptNewName(name) || isSameName(name, m_oldName))
        return;
    send(kRename, [&](IElementValueBase& node) {
        node.set("OldName", od(m_oldName)).set("NewName", od(name));
    });
    fill();
}

bool VnQtUiDynLayerStateCmdImpl::acceptNewName(const QString& name)
{
    const auto refuse = [](const OdString& text, const wchar_t* caption) {
        vnuiMessageBox(text, caption, kVnIconInformation);
        return false;
    };
    if (name.isEmpty())
        return refuse(L"名称 必须至少有一个字符长。", L"图层状态 - 文字长度");
    if (holdsForbiddenCharacter(name))
        return refuse(badCharactersText(), kBadCharactersCaption);
    if (isSameName(name, m_oldName))
        return true;
    const VnJsonPtr list = states();
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        if (isSameName(name, text(list(i), kName)))
            return refuse(
                od(tr("名称 %1 已在使用。").arg(name) + QStringLiteral("\n您需要输入其他名称。")),
                L"图层状态 - 名称已经存在");
    }
    return true;
}

void VnQtUiDynLayerStateCmdImpl::slot_tableitClickedDesc(QTableWidgetItem* item)
{
    const std::vector<int> rows = selectedRows();
    if (rows.empty() || !item || item != m_table->item(rows.front(), kDescriptionColumn))
        return;
    const QString name = nameAt(rows.front());
    const VnJsonPtr answer = askForText(item->text());
    if (!answer->GetDataB("Success") || !canRequest())
        return;
    send(kDescribe, [&](IElementValueBase& node) {
        node.set("OldName", od(name)).set("NewDescName", answer->GetDataSW("NewName"));
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
    if (answersYes(kDeleteCaption, tr("是否确实要删除 %1?").arg(name)))
        sendDeletion(name);
}

void VnQtUiDynLayerStateCmdImpl::deleteSeveral(const QStringList& names)
{
    for (int i = 0; i < names.size(); ++i) {
        const QString question = tr("是否确实要删除图层状态 %1?").arg(names.at(i));
        switch (ask(kDeleteCaption, od(question), {L"是", L"全部删除", L"否", L"取消"}, kStop)) {
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
    send(kDelete, [&](IElementValueBase& node) {
        node.set("DeleteNameOne", true).set("LayerStateDeleteName", od(name));
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::sendDeletions(const QStringList& names)
{
    const VnJsonPtr list = ElementValue::createArray(names.size());
    for (const QString& name : names) {
        const VnJsonPtr entry = ElementValue::createObject(1);
        entry->set("LayerSDeleteName", od(name));
        list->Append(entry);
    }
    send(kDelete, [&](IElementValueBase& node) {
        node.set("DeleteNameOne", false).SetDataJ("LayerStateDeleteNames", list);
    });
    fill();
}

void VnQtUiDynLayerStateCmdImpl::slot_ImportBtnClicked(bool)
{
    const VnJsonPtr answer =
        askForFile(fileQuestion("输入图层状态",
                       L"图形(*.dwg);;标准(*.dws);;图形样板(*.dwt);;图层状态(*.las)", true),
            this);
    const VnJsonPtr paths = answer->GetDataJ("filePaths");
    if (answer->GetDataI("result") != 1 || !paths)
        return;
    const auto arguments = [&](IElementValueBase& node) {
        node.SetDataJ("LStatefilePaths", paths);
        node.SetDataJ("LayerStateList1", node.GetDataJ(kList));
        node.set("LStateRefLayer", m_referenceBox->isChecked());
    };
    const bool answered = send(kImport, arguments,
        {"LayerStateListHaveRef", "LayerStateListRefOK", "LayerStateYesNoRestore"});
    m_importAnswer = answered ? manager()->GetDataJ("LayerStateListHaveRef") : VnJsonPtr();
    if (!answered || !manager()->GetDataB("LayerStateListRefOK"))
        return;
    fill();
    if (manager()->GetDataB("LayerStateYesNoRestore"))
        slot_RestoreBtnBtnClicked(false);
}

void VnQtUiDynLayerStateCmdImpl::slot_ExportBtnClicked(bool)
{
    const QString name = nameAt(m_table->currentRow());
    const VnJsonPtr question = fileQuestion("输出图层状态", kStateFilter, false);
    if (m_table->currentRow() >= 0)
        question->set("dir", od(name));
    const VnJsonPtr answer = askForFile(question, this);
    const OdString path = answer->GetDataSW("filePath");
    if (answer->GetDataI("result") != 1 || path.isEmpty() || !canRequest())
        return;
    VnQtRequest request;
    request.code = kExport;
    request.parameter = kManagerElement;
    vnqtSendRequest(answer, invoker(), objectName().toUtf8().constData(), request,
        [&](IElementValueBase& node) {
            node.set("LStatefilePathsSW", path).set("LStateName", od(name));
        });
}

void VnQtUiDynLayerStateCmdImpl::slot_HelpBtnClicked(bool)
{
    vnqtShowHelp();
}

} // namespace vnsi
