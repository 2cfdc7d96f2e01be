#include "vnqtlaytransuidlg.h"

#include "dialoghelp.h"
#include "targetrecord.h"
#include "translatorkeys.h"
#include "vnqtlaytranslistwgt.h"
#include "vnsettings.h"
#include "vnstrings.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace vnsi {

namespace {

constexpr wchar_t kDrawingFilter[] = L"图形(*.dwg)";
constexpr wchar_t kStandardFilter[] = L"标准(*.dws)";
constexpr wchar_t kLoadFilters[] = L"图形(*.dwg);;标准(*.dws);;图形样板(*.dwt)";
constexpr wchar_t kSaveFilters[] = L"图形(*.dwg);;标准(*.dws)";

OdString od(const QString& text)
{
    return vnutQStringToOdString(text);
}

/// Six options, none of them chosen.
VnJsonPtr makeSettings()
{
    VnJsonPtr settings = ElementValue::createArray(kTranslatorOptionCount);
    for (int option = 0; option < kTranslatorOptionCount; ++option) {
        const VnJsonPtr setting = ElementValue::createObject(1);
        setting->SetDataB(transkey::kSetting, false);
        settings->Append(setting);
    }
    return settings;
}

} // namespace

bool VnQtUiLaytransCmd::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    m_drawingName =
        data ? vnutOdStringToQString(data->GetDataSW(transkey::kDrawingName)) : QString();
    if (m_drawingName.isEmpty())
        m_drawingName = QStringLiteral("Drawing1");
    m_config = vn_user_config(transkey::kConfigSection);
    m_settings = m_config ? m_config->GetDataJ(transkey::kConfigSettings) : VnJsonPtr();
    if (!m_settings)
        m_settings = makeSettings();
    m_lists = TranslationLists();
    m_lists.setSources(data ? data->GetDataJ(transkey::kTheme) : VnJsonPtr());
    fillFrom();
    fillTo();
    fillTable();
    slot_LineEditTextChanged(m_filterEdit->text());
    setSaved(false);
    return true;
}

void VnQtUiLaytransCmd::fillFrom()
{
    m_fromList->fill(m_lists.sources(), transkey::kFromName, transkey::kFromUsed, m_cells);
    m_mapSameButton->setEnabled(m_lists.mapSame(false));
}

void VnQtUiLaytransCmd::fillTo()
{
    m_toList->fill(m_lists.targets(), transkey::kToName, transkey::kToUsed, m_cells);
    m_mapSameButton->setEnabled(m_lists.mapSame(false));
}

void VnQtUiLaytransCmd::fillTable()
{
    m_table->fill(m_lists.mappings());
}

void VnQtUiLaytransCmd::showChangedMappings()
{
    fillTable();
    fillFrom();
    setSaved(false);
}

void VnQtUiLaytransCmd::setSaved(bool isSaved)
{
    m_isSaved = isSaved;
    m_saveButton->setEnabled(!isSaved);
}

bool VnQtUiLaytransCmd::send(
    int code, const VnQtArgumentWriter& writeArguments, std::vector<const char*> answers)
{
    VnQtRequest request;
    request.code = code;
    request.codeKey = transkey::kRequestCode;
    request.answers = std::move(answers);
    return sendRequest(request, writeArguments);
}

void VnQtUiLaytransCmd::slot_LineEditTextChanged(const QString& text)
{
    m_selectButton->setEnabled(!text.isEmpty());
}

void VnQtUiLaytransCmd::slot_pbFromSelectClicked()
{
    m_fromList->addToSelection(m_filterEdit->text());
}

VnJsonPtr VnQtUiLaytransCmd::askForFile(const wchar_t* caption, const wchar_t* filter,
    const wchar_t* firstFilter, bool open, const QString& place)
{
    const VnJsonPtr question = ElementValue::createObject(6);
    question->set("caption", caption)
        .set("filter", filter)
        .set("Open", open)
        .set("MutiFile", open) // The key's agreed spelling.
        .set("defFilter", firstFilter);
    if (!place.isEmpty())
        question->set("dir", od(place));
    const VnJsonPtr answer =
        vnuiShowModelDialogEx(L"Dialog/Common", L"FileDialogBox", question, {}, this);
    return answer->GetDataI("result") == 1 ? answer : VnJsonPtr();
}

void VnQtUiLaytransCmd::slot_m_pbLoadClicked()
{
    const QString last =
        m_loadedFiles ? vnutOdStringToQString(m_loadedFiles(0)->asSW()) : QString();
    const QString folder = last.isEmpty() ? QString() : QFileInfo(last).absolutePath();
    const VnJsonPtr answer =
        askForFile(L"选择图形文件", kLoadFilters, kDrawingFilter, true, folder);
    const VnJsonPtr paths = answer ? answer->GetDataJ("filePaths") : VnJsonPtr();
    if (paths.ArrayCount() == 0)
        return;
    m_loadedFiles = paths;
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kLoadPaths, m_loadedFiles);
        tree.SetDataB(transkey::kLoadIsFirst, m_lists.targets().ArrayCount() == 0);
        tree.SetDataJ(transkey::kLoadTargets, m_lists.targets());
    };
    if (!send(kTranslatorLoad, arguments, {transkey::kLoadedTargets, transkey::kLoadedMappings}))
        return;
    if (const VnJsonPtr targets = data()->GetDataJ(transkey::kLoadedTargets))
        m_lists.setTargets(targets);
    const bool hasMapped = m_lists.applyLoaded(data()->GetDataJ(transkey::kLoadedMappings));
    fillTo();
    fillFrom();
    fillTable();
    if (hasMapped)
        setSaved(false);
}

VnJsonPtr VnQtUiLaytransCmd::askForLayer(bool isEdit, const VnJsonPtr& initial)
{
    const VnJsonPtr names = ElementValue::createArray();
    for (const QString& name : m_lists.targetNames())
        names->AppendSW(od(name));
    const VnJsonPtr question = ElementValue::createObject(4);
    question->SetDataB(transkey::kIsEdit, isEdit);
    question->SetDataJ(transkey::kInitRecord, initial);
    question->SetDataJ(transkey::kNamesInUse, names);
    const VnJsonPtr answer =
        vnuiShowModelDialogEx(L"Dialog/CmdLayer", L"Dialog/CmdLaytransNewEdit", question, {}, this);
    return answer->GetDataI("result") == 1 ? answer->GetDataJ(transkey::kResult) : VnJsonPtr();
}

VnJsonPtr VnQtUiLaytransCmd::currentTarget() const
{
    const QListWidgetItem* item = m_toList->currentItem();
    return item ? m_lists.target(item->text()) : VnJsonPtr();
}

void VnQtUiLaytransCmd::slot_m_pbNewClicked()
{
    const VnJsonPtr layer = askForLayer(false, currentTarget());
    if (!layer)
        return;
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kNewTarget, layer);
    };
    if (!send(kTranslatorNew, arguments, {transkey::kLoadedTargets}))
        return;
    if (const VnJsonPtr targets = data()->GetDataJ(transkey::kLoadedTargets))
        m_lists.setTargets(targets);
    fillTo();
}

void VnQtUiLaytransCmd::slot_m_pbMapClicked()
{
    const VnJsonPtr target = currentTarget();
    const QStringList layers = m_fromList->selectedNames();
    if (!target || layers.isEmpty())
        return;
    m_lists.map(layers, target);
    showChangedMappings();
}

void VnQtUiLaytransCmd::slot_m_pbMapSameClicked()
{
    if (m_lists.mapSame(true))
        showChangedMappings();
}

void VnQtUiLaytransCmd::sendClicked(const QString& layer, bool inTable)
{
    send(kTranslatorClicked, [&](IElementValueBase& tree) {
        tree.SetDataB(transkey::kClickedInTable, inTable);
        tree.SetDataSW(transkey::kClickedName, od(layer));
        tree.SetDataJ(transkey::kMappings, m_lists.mappings());
        tree.SetDataJ(transkey::kSources, m_lists.sources());
    });
}

void VnQtUiLaytransCmd::onListWidgeFromClicked(int row)
{
    if (const QListWidgetItem* item = m_fromList->item(row))
        sendClicked(item->text(), false);
}

void VnQtUiLaytransCmd::onListWidgeFromClickedItem(QListWidgetItem* item)
{
    onListWidgeFromClicked(m_fromList->row(item));
}

/// A row that became current by the keyboard's focus alone shows as the one that counts, too.
void VnQtUiLaytransCmd::onListWidgeToClicked(int row)
{
    if (row >= 0)
        m_toList->setCurrentRow(row);
}

void VnQtUiLaytransCmd::onListWidgeToDoubleClicked(QListWidgetItem*)
{
    slot_m_pbNewClicked();
}

void VnQtUiLaytransCmd::slot_m_pbMapListEdit()
{
    const int row = m_table->selectedRow();
    const VnJsonPtr mapping = m_lists.mappings()(row);
    if (!mapping)
        return;
    const VnJsonPtr target = mapping->GetDataJ(transkey::kTo);
    const VnJsonPtr edited = askForLayer(true, target);
    if (!edited)
        return;
    TargetRecord(target).takeEdited(edited);
    fillTable();
    m_table->selectRow(row);
    setSaved(false);
}

void VnQtUiLaytransCmd::slot_m_pbMapListDelete()
{
    const int row = m_table->selectedRow();
    if (row < 0)
        return;
    m_lists.unmap(row);
    showChangedMappings();
}

void VnQtUiLaytransCmd::slot_m_pbMapListSave()
{
    const VnJsonPtr answer = askForFile(L"保存图层映射", kSaveFilters, kStandardFilter, false,
        m_drawingName + QStringLiteral(".dws"));
    if (!answer)
        return;
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kSaveAnswer, answer);
        tree.SetDataJ(transkey::kSaveMappings, m_lists.mappings());
    };
    setSaved(send(kTranslatorSave, arguments, {transkey::kSaveOutcome}) &&
             data()->GetDataI(transkey::kSaveOutcome) == 1);
}

void VnQtUiLaytransCmd::slot_MapListItemClicked()
{
    if (const QTableWidgetItem* name = m_table->item(m_table->currentRow(), 0))
        sendClicked(name->text(), true);
}

void VnQtUiLaytransCmd::slot_MapListDoubleClicked(QTableWidgetItem*)
{
    slot_m_pbMapListEdit();
}

void VnQtUiLaytransCmd::slot_LtransBtnSettingClicked()
{
    const QStringList selected = m_fromList->selectedNames();
    const auto arguments = [&](IElementValueBase& tree) {
        tree.RemoveKey(transkey::kSelectedName);
        tree.RemoveKey(transkey::kSelectedNames);
        if (selected.size() == 1)
            tree.SetDataSW(transkey::kSelectedName, od(selected.first()));
        if (selected.size() > 1) {
            const VnJsonPtr names = ElementValue::createArray(selected.size());
            for (const QString& name : selected)
                names->AppendSW(od(name));
            tree.SetDataJ(transkey::kSelectedNames, names);
        }
        tree.SetDataJ(transkey::kSettingsAsked, ElementValue::clone(m_settings));
    };
    if (!send(kTranslatorSettings, arguments, {transkey::kSettingsAnswered}))
        return;
    const VnJsonPtr settings = data()->GetDataJ(transkey::kSettingsAnswered);
    if (!settings)
        return;
    m_settings = ElementValue::clone(settings);
    if (m_config)
        m_config->SetDataJ(transkey::kConfigSettings, m_settings);
}

void VnQtUiLaytransCmd::slot_LtransBtnOkClicked()
{
    const int rows = m_table->rowCount();
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kSources, m_lists.sources());
        tree.SetDataJ(transkey::kMappings, rows > 0 ? m_lists.mappings() : VnJsonPtr());
        tree.SetDataI(transkey::kMappingCount, rows);
        tree.SetDataB(transkey::kIsSaved, m_isSaved);
        tree.SetDataJ(transkey::kSettingsToUse, ElementValue::clone(m_settings));
    };
    if (send(kTranslatorTranslate, arguments, {transkey::kCloses}) &&
        data()->GetDataB(transkey::kCloses))
        endDialog(1);
}

void VnQtUiLaytransCmd::slot_LtransBtnCancelClicked()
{
    close();
}

/// Despite its name the slot of the help button.
void VnQtUiLaytransCmd::slot_LtransBtnApplyClicked()
{
    vnqtShowHelp();
}

void VnQtUiLaytransCmd::slot_FromListMenuActionAllSelect()
{
    m_fromList->selectAll();
}

void VnQtUiLaytransCmd::slot_FromListMenuActionAllNoSelect()
{
    m_fromList->clearSelection();
}

void VnQtUiLaytransCmd::slot_FromListMenuActionCleanlayer()
{
    if (!send(kTranslatorPurge, {}, {transkey::kTheme}))
        return;
    if (const VnJsonPtr layers = data()->GetDataJ(transkey::kTheme)) {
        m_lists.setSources(layers);
        fillFrom();
    }
}

void VnQtUiLaytransCmd::slot_ToListMenuActionload()
{
    slot_m_pbLoadClicked();
}

void VnQtUiLaytransCmd::slot_ToListMenuActionNew()
{
    slot_m_pbNewClicked();
}

void VnQtUiLaytransCmd::slot_ShowMapMenu(const QPoint& place)
{
    m_mapMenu->popup(m_table->viewport()->mapToGlobal(place));
}

void VnQtUiLaytransCmd::slot_MenuMapListEdit()
{
    slot_m_pbMapListEdit();
}

void VnQtUiLaytransCmd::slot_MenuMapListDelete()
{
    slot_m_pbMapListDelete();
}

void VnQtUiLaytransCmd::slot_MenuMapListAllDelete()
{
    m_lists.unmapAll();
    showChangedMappings();
}

} // namespace vnsi
