#include "vnqtlaytransuidlg.h"

#include "dialoghelp.h"
#include "hostapi/filequestion.h"
#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "moduletexts.h"
#include "vnqtlaytranslistwgt.h"
#include "vnstrings.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace vnsi {

namespace {

constexpr char kDrawingFilter[] = QT_TRANSLATE_NOOP("cmdlayerui", "图形(*.dwg)");
constexpr char kStandardFilter[] = QT_TRANSLATE_NOOP("cmdlayerui", "标准(*.dws)");
constexpr char kLoadFilters[] =
    QT_TRANSLATE_NOOP("cmdlayerui", "图形(*.dwg);;标准(*.dws);;图形样板(*.dwt)");
constexpr char kSaveFilters[] = QT_TRANSLATE_NOOP("cmdlayerui", "图形(*.dwg);;标准(*.dws)");

OdString od(const QString& text)
{
    return vnutQStringToOdString(text);
}

VnJsonPtr textArray(const QStringList& texts)
{
    VnJsonPtr array = hostapi::makeArray(texts.size());
    for (const QString& text : texts)
        hostapi::append(array, od(text));
    return array;
}

QStringList textsIn(const VnJsonPtr& array)
{
    QStringList texts;
    for (int i = 0, count = hostapi::count(array); i < count; ++i) {
        const QString text = vnutOdStringToQString(hostapi::textAt(array, i));
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts;
}

/// An array of the six options with none of them set.
VnJsonPtr makeSettings()
{
    VnJsonPtr settings = hostapi::makeArray(kTranslatorOptionCount);
    for (int option = 0; option < kTranslatorOptionCount; ++option) {
        const VnJsonPtr setting = hostapi::makeObject();
        setting->SetDataB(transkey::kSetting, false);
        hostapi::append(settings, setting);
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
    m_config = hostapi::userConfig(transkey::kConfigSection);
    m_settings = m_config->GetDataJ(transkey::kConfigSettings);
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
    m_fromList->fill(m_lists.sources(), m_cells);
    m_mapSameButton->setEnabled(m_lists.hasSame());
}

void VnQtUiLaytransCmd::fillTo()
{
    m_toList->fill(m_lists.targets(), m_cells);
    m_mapSameButton->setEnabled(m_lists.hasSame());
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

VnQtAnswer VnQtUiLaytransCmd::ask(
    int code, const VnQtArgumentWriter& writeArguments, std::vector<const char*> answers)
{
    VnQtRequest request;
    request.code = code;
    request.codeKey = transkey::kRequestCode;
    request.answers = std::move(answers);
    return askCommand(request, writeArguments);
}

void VnQtUiLaytransCmd::slot_LineEditTextChanged(const QString& text)
{
    m_selectButton->setEnabled(!text.isEmpty());
}

void VnQtUiLaytransCmd::slot_pbFromSelectClicked()
{
    m_fromList->addToSelection(m_filterEdit->text());
}

void VnQtUiLaytransCmd::slot_m_pbLoadClicked()
{
    const VnJsonPtr question = makeFileQuestion(
        {tr("选择图形文件"), Texts::tr(kLoadFilters), Texts::tr(kDrawingFilter), true, true});
    if (!m_loadedFiles.isEmpty())
        setStartPlace(question, od(QFileInfo(m_loadedFiles.first()).absolutePath()));
    const VnJsonPtr chosen = askForFile(question, this);
    const QStringList paths = textsIn(chosen ? chosen->GetDataJ("filePaths") : VnJsonPtr());
    if (paths.isEmpty())
        return;
    m_loadedFiles = paths;
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kLoadPaths, textArray(m_loadedFiles));
        tree.SetDataB(transkey::kLoadIsFirst, m_lists.targets().empty());
        tree.SetDataJ(transkey::kLoadTargets, m_lists.targetArray());
    };
    const VnQtAnswer answer =
        ask(kTranslatorLoad, arguments, {transkey::kLoadedTargets, transkey::kLoadedMappings});
    takeTargets(answer);
    const bool hasMapped = m_lists.applyLoaded(answer->GetDataJ(transkey::kLoadedMappings));
    fillTo();
    fillFrom();
    fillTable();
    if (hasMapped)
        setSaved(false);
}

void VnQtUiLaytransCmd::takeTargets(const VnQtAnswer& answer)
{
    const VnJsonPtr targets = answer->GetDataJ(transkey::kLoadedTargets);
    if (hostapi::count(targets) > 0)
        m_lists.setTargets(targets);
}

VnJsonPtr VnQtUiLaytransCmd::askForLayer(bool isEdit, const TargetRecord& initial)
{
    QStringList names;
    for (const TargetRecord& target : m_lists.targets())
        names.append(target.name());
    const VnJsonPtr question = hostapi::makeObject();
    hostapi::Members(question)
        .set(transkey::kIsEdit, isEdit)
        .set(transkey::kInitRecord, hostapi::copyOf(initial.node()))
        .set(transkey::kNamesInUse, textArray(names));
    const VnJsonPtr answer =
        hostapi::showDialogEx(L"Dialog/CmdLayer", L"Dialog/CmdLaytransNewEdit", question, {}, this);
    return answer->GetDataI("result") == 1 ? answer->GetDataJ(transkey::kResult) : VnJsonPtr();
}

TargetRecord VnQtUiLaytransCmd::currentTarget() const
{
    const int row = m_toList->currentRow();
    return row < 0 ? TargetRecord({}) : m_lists.targets().at(static_cast<std::size_t>(row));
}

void VnQtUiLaytransCmd::slot_m_pbNewClicked()
{
    const VnJsonPtr layer = askForLayer(false, currentTarget());
    if (!layer)
        return;
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kNewTarget, layer);
    };
    takeTargets(ask(kTranslatorNew, arguments, {transkey::kLoadedTargets}));
    fillTo();
}

void VnQtUiLaytransCmd::slot_m_pbMapClicked()
{
    const TargetRecord target = currentTarget();
    const std::vector<int> layers = m_fromList->selectedRows();
    if (target.isNull() || layers.empty())
        return;
    m_lists.map(layers, target);
    showChangedMappings();
}

void VnQtUiLaytransCmd::slot_m_pbMapSameClicked()
{
    m_lists.mapSame();
    showChangedMappings();
}

void VnQtUiLaytransCmd::sendClicked(const QString& layer, bool inTable)
{
    ask(kTranslatorClicked, [&](IElementValueBase& tree) {
        tree.SetDataB(transkey::kClickedInTable, inTable);
        tree.SetDataSW(transkey::kClickedName, od(layer));
        tree.SetDataJ(transkey::kMappings, m_lists.mappingArray());
        tree.SetDataJ(transkey::kSources, m_lists.sourceArray());
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

/// A row that became current through keyboard focus alone is shown as the current one, too.
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
    if (row < 0)
        return;
    TargetRecord target = m_lists.mappings().at(static_cast<std::size_t>(row)).target;
    const VnJsonPtr edited = askForLayer(true, target);
    if (!edited)
        return;
    target.takeResult(*edited);
    target.setUsed(true);
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
    const VnJsonPtr question = makeFileQuestion(
        {tr("保存图层映射"), Texts::tr(kSaveFilters), Texts::tr(kStandardFilter), false, false});
    setStartPlace(question, od(m_drawingName + QStringLiteral(".dws")));
    const VnJsonPtr chosen = askForFile(question, this);
    if (!chosen)
        return;
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kSaveAnswer, chosen);
        tree.SetDataJ(transkey::kSaveMappings, m_lists.mappingArray());
    };
    const VnQtAnswer answer = ask(kTranslatorSave, arguments, {transkey::kSaveOutcome});
    setSaved(answer->GetDataI(transkey::kSaveOutcome) == 1);
    // The dialog's own result uses the same key.
    answer.node()->SetDataB(transkey::kSaveOutcome, false);
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
    QStringList selected;
    for (const int row : m_fromList->selectedRows())
        selected.append(m_lists.sources().at(static_cast<std::size_t>(row)).name);
    const auto arguments = [&](IElementValueBase& tree) {
        hostapi::removeKey(tree, transkey::kSelectedName);
        hostapi::removeKey(tree, transkey::kSelectedNames);
        if (selected.size() == 1)
            tree.SetDataSW(transkey::kSelectedName, od(selected.first()));
        if (selected.size() > 1)
            tree.SetDataJ(transkey::kSelectedNames, textArray(selected));
        tree.SetDataJ(transkey::kSettingsAsked, hostapi::copyOf(m_settings));
    };
    const VnJsonPtr settings = ask(kTranslatorSettings, arguments, {transkey::kSettingsAnswered})
                                   ->GetDataJ(transkey::kSettingsAnswered);
    if (hostapi::count(settings) != kTranslatorOptionCount)
        return;
    m_settings = hostapi::copyOf(settings);
    m_config->SetDataJ(transkey::kConfigSettings, hostapi::copyOf(settings));
}

void VnQtUiLaytransCmd::slot_LtransBtnOkClicked()
{
    const int rows = m_table->rowCount();
    const auto arguments = [&](IElementValueBase& tree) {
        tree.SetDataJ(transkey::kSources, m_lists.sourceArray());
        hostapi::setTree(
            tree, transkey::kMappings, rows > 0 ? m_lists.mappingArray() : VnJsonPtr());
        tree.SetDataI(transkey::kMappingCount, rows);
        tree.SetDataB(transkey::kIsSaved, m_isSaved);
        tree.SetDataJ(transkey::kSettingsToUse, hostapi::copyOf(m_settings));
    };
    if (ask(kTranslatorTranslate, arguments, {transkey::kCloses})->GetDataB(transkey::kCloses))
        endDialog(1);
}

void VnQtUiLaytransCmd::slot_LtransBtnCancelClicked()
{
    close();
}

/// Despite its name, this is the slot of the help button.
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
    const VnJsonPtr layers =
        ask(kTranslatorPurge, {}, {transkey::kTheme})->GetDataJ(transkey::kTheme);
    if (hostapi::count(layers) == 0) // A drawing always has at least one layer.
        return;
    if (m_lists.setSources(layers))
        showChangedMappings();
    else
        fillFrom();
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
