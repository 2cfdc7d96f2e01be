#include "laytranscommand.h"
#include "benchtexts.h"
#include "hostextras.h"

#include "drawing.h"
#include "layermarks.h"
#include "nameorder.h"
#include "namerule.h"
#include "standardsfile.h"
#include "targetrecord.h"
#include "translation/translationlog.h"
#include "vndialogs.h"
#include "vnsettings.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using drawing::LayerMapping;
using drawing::TargetLayer;
using vnsi::ElementValue;
using vnsi::TargetRecord;
using vnsi::VnJsonPtr;

namespace {

using namespace vnsi::transkey;

constexpr wchar_t kService[] = L"Dialog/CmdLayer";
constexpr wchar_t kDialog[] = L"Dialog/CmdLaytrans";
constexpr wchar_t kSettingsDialog[] = L"Dialog/CmdLaytransSetting";
/// Extensions of another format, which this program cannot write. Other programs would regard such
/// a file as damaged.
constexpr const char* kOtherFormats[] = {"dwg", "dws", "dwt"};

QString text(const VnJsonPtr& node, const char* key)
{
    return vnsi::vnutOdStringToQString(node->GetDataSW(key));
}

QString shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

/// The drawing's path without extension, which is suggested for a standards file.
OdString proposedName(const drawing::Drawing& drawing)
{
    const QFileInfo file(drawing.path());
    return vnsi::vnutQStringToOdString(file.absoluteDir().filePath(file.completeBaseName()));
}

VnJsonPtr keptSettings()
{
    const VnJsonPtr config = vnsi::vn_user_config(kConfigSection);
    return config ? config->GetDataJ(kConfigSettings) : VnJsonPtr();
}

/// The names selected in the translator. A single name and several names have different keys.
QStringList selectedNames(const VnJsonPtr& tree)
{
    const VnJsonPtr several = tree->GetDataJ(kSelectedNames);
    QStringList names{text(tree, kSelectedName)};
    for (int i = 0, count = several.ArrayCount(); i < count; ++i)
        names.append(vnsi::vnutOdStringToQString(hostextras::textOf(several(i))));
    return names;
}

} // namespace

/// The handler of a request, identified by the request code.
struct LayerTranslateCommand::RequestRow
{
    int code;
    void (LayerTranslateCommand::*answer)(const VnJsonPtr& tree);
};

const LayerTranslateCommand::RequestRow LayerTranslateCommand::kRequests[] = {
    {vnsi::kTranslatorSave, &LayerTranslateCommand::save},
    {vnsi::kTranslatorLoad, &LayerTranslateCommand::load},
    {vnsi::kTranslatorPurge, &LayerTranslateCommand::purge},
    {vnsi::kTranslatorNew, &LayerTranslateCommand::addTarget},
    {vnsi::kTranslatorSettings, &LayerTranslateCommand::showSettings},
    {vnsi::kTranslatorTranslate, &LayerTranslateCommand::translate},
    {vnsi::kTranslatorClicked, &LayerTranslateCommand::showClicked},
};

void LayerTranslateCommand::run(CommandContext& context)
{
    m_context = &context;
    m_targets = hostextras::createArray(0);
    m_showsSelection = TranslationRecords::options(keptSettings()).showSelection;
    m_records.offerLinetypes(drawing());
    layermarks::show(context, kDialog, makeTree(), [this](const VnJsonPtr& tree) { answer(tree); });
}

VnJsonPtr LayerTranslateCommand::makeTree() const
{
    VnJsonPtr tree = ElementValue::createObject(24);
    tree->SetDataSW(kDrawingName, proposedName(drawing()));
    tree->SetDataJ(kTheme, TranslationRecords::sources(drawing()));
    return tree;
}

void LayerTranslateCommand::answer(const VnJsonPtr& tree)
{
    const int code = tree->GetDataI(kRequestCode, -1);
    for (const RequestRow& row : kRequests) {
        if (row.code == code)
            (this->*row.answer)(tree);
    }
}

void LayerTranslateCommand::tellProblems(const QString& title)
{
    layermarks::report(*m_context, title, m_problems);
}

/// Suggests a name for mappings that were to be saved as `file`. It must differ from the drawing's
/// own.
QString LayerTranslateCommand::offeredName(const QFileInfo& file) const
{
    const QString base = file.completeBaseName();
    const QString name = base + QStringLiteral(".dxf");
    const bool isDrawing = QFileInfo(file.dir(), name) == QFileInfo(drawing().path());
    return isDrawing ? base + Texts::tr("-图层标准") + QStringLiteral(".dxf") : name;
}

QString LayerTranslateCommand::acceptedPath(const QString& path) const
{
    const QFileInfo file(path);
    const QString ending = file.suffix();
    const bool isOtherFormat = std::any_of(std::begin(kOtherFormats), std::end(kOtherFormats),
        [&](const char* format) { return ending.compare(format, Qt::CaseInsensitive) == 0; });
    if (isOtherFormat) {
        const QFileInfo offered(file.dir(), offeredName(file));
        QString question =
            Texts::tr("没有写入文件“%1”：图层映射以 DXF 格式保存，文件名不能以 .%2 结尾。"
                      "是否改为保存到“%3”？")
                .arg(shown(path), ending, offered.fileName());
        if (offered.exists())
            question += Texts::tr("\n该文件已存在，将被替换。");
        return layermarks::confirms(question) ? offered.filePath() : QString();
    }
    if (file == QFileInfo(drawing().path())) {
        layermarks::warn(
            Texts::tr("“%1”是正在转换的图形，图层映射要保存到另一个文件。").arg(shown(path)));
        return {};
    }
    return path;
}

void LayerTranslateCommand::save(const VnJsonPtr& tree)
{
    const VnJsonPtr answer = tree->GetDataJ(kSaveAnswer);
    const QString chosen = answer ? text(answer, "filePath") : QString();
    const std::vector<LayerMapping> mappings = m_records.mappings(tree->GetDataJ(kSaveMappings));
    if (chosen.isEmpty())
        return;
    if (mappings.empty()) {
        layermarks::warn(Texts::tr("还没有图层映射，没有写入文件“%1”。").arg(shown(chosen)));
        return;
    }
    const QString path = acceptedPath(chosen);
    if (path.isEmpty())
        return;
    const auto saved = drawing::saveStandard(path, mappings);
    if (!saved) {
        layermarks::warn(saved.error().text);
        return;
    }
    tree->SetDataI(kSaveOutcome, 1);
    say(Texts::tr("已将 %1 个图层映射保存到“%2”。").arg(mappings.size()).arg(shown(path)));
    m_problems = *saved;
    tellProblems(Texts::tr("图层映射已保存，但以下内容除外："));
}

void LayerTranslateCommand::load(const VnJsonPtr& tree)
{
    const bool isFirst = tree->GetDataB(kLoadIsFirst);
    const VnJsonPtr present = isFirst ? VnJsonPtr() : tree->GetDataJ(kLoadTargets);
    m_targets = present ? present : hostextras::createArray(0);
    const VnJsonPtr mappings = hostextras::createArray(0);
    const VnJsonPtr paths = tree->GetDataJ(kLoadPaths);
    const int before = m_targets.ArrayCount();
    for (int i = 0, count = paths.ArrayCount(); i < count; ++i)
        loadFile(vnsi::vnutOdStringToQString(hostextras::textOf(paths(i))), mappings);
    m_records.offerLinetypes(drawing());
    tree->SetDataJ(kLoadedTargets, m_targets);
    tree->SetDataJ(kLoadedMappings, mappings);
    say(Texts::tr("已加载 %1 个目标图层。").arg(m_targets.ArrayCount() - before));
    sayLoaded(mappings);
    tellProblems(Texts::tr("以下内容没有加载："));
}

void LayerTranslateCommand::loadFile(const QString& path, const VnJsonPtr& mappings)
{
    const auto standard = drawing::readStandard(path);
    if (!standard) {
        m_problems += standard.error().text;
        return;
    }
    addTargets(standard->layers, path);
    for (const LayerMapping& mapping : standard->mappings)
        hostextras::append(mappings, m_records.mapping(mapping));
    m_problems += standard->notices;
}

/// Adds targets to the list. A layer that is already in the list stays unchanged.
void LayerTranslateCommand::addTargets(const std::vector<TargetLayer>& targets, const QString& path)
{
    QSet<QString> known;
    for (int i = 0, count = m_targets.ArrayCount(); i < count; ++i)
        known.insert(vnsi::foldedName(TargetRecord(m_targets(i)).name()));
    int skipped = 0;
    for (const TargetLayer& target : targets) {
        if (known.contains(vnsi::foldedName(target.name))) {
            ++skipped;
            continue;
        }
        known.insert(vnsi::foldedName(target.name));
        hostextras::append(m_targets, m_records.target(target));
    }
    sortTargets();
    if (skipped > 0)
        say(Texts::tr("文件“%1”：%2 个图层与列表中的图层同名，保留列表中的。")
                .arg(shown(path))
                .arg(skipped));
}

void LayerTranslateCommand::sayLoaded(const VnJsonPtr& mappings) const
{
    const int count = mappings.ArrayCount();
    if (count == 0)
        return;
    int missing = 0;
    for (int i = 0; i < count; ++i) {
        const QString name = text(mappings(i)->GetDataJ(kFrom), kFromName);
        missing += drawing().findLayer(name) ? 0 : 1;
    }
    say(Texts::tr("文件中有 %1 个图层映射，其中 %2 个的图层不在此图形中。")
            .arg(count)
            .arg(missing));
}

void LayerTranslateCommand::purge(const VnJsonPtr& tree)
{
    std::vector<drawing::LayerId> unreferenced;
    for (const drawing::Layer& layer : drawing().layers()) {
        if (!layer.used() && layermarks::mayGo(drawing(), layer))
            unreferenced.push_back(layer.id);
    }
    int gone = 0;
    for (const drawing::LayerId id : unreferenced) {
        if (const auto removed = drawing().removeLayer(id); removed)
            ++gone;
        else
            m_problems += removed.error().text;
    }
    drawing().publishStep();
    tree->SetDataJ(kTheme, TranslationRecords::sources(drawing()));
    say(Texts::tr("已清理 %1 个图层。").arg(gone));
    tellProblems(Texts::tr("以下图层没有清理："));
}

void LayerTranslateCommand::addTarget(const VnJsonPtr& tree)
{
    const VnJsonPtr result = tree->GetDataJ(kNewTarget);
    if (!result)
        return;
    TargetRecord target(ElementValue::createObject(12));
    target.takeResult(*result);
    target.setUsed(false);
    hostextras::append(m_targets, target.node());
    sortTargets();
    tree->SetDataJ(kLoadedTargets, m_targets);
}

void LayerTranslateCommand::sortTargets()
{
    std::vector<VnJsonPtr> targets;
    for (int i = 0, count = m_targets.ArrayCount(); i < count; ++i)
        targets.push_back(m_targets(i));
    sortByName(targets, [](const VnJsonPtr& target) { return TargetRecord(target).name(); });
    m_targets = hostextras::createArray(static_cast<int>(targets.size()));
    for (const VnJsonPtr& target : targets)
        hostextras::append(m_targets, target);
}

void LayerTranslateCommand::showSettings(const VnJsonPtr& tree)
{
    const VnJsonPtr settings = tree->GetDataJ(kSettingsAsked);
    if (!TranslationRecords::isComplete(settings))
        layermarks::warn(Texts::tr("保存的转换设置不是六项，现按全部未选显示。"));
    const VnJsonPtr question = ElementValue::createObject(3);
    question->SetDataJ(kSettingsIn, settings);
    const VnJsonPtr answer =
        vnsi::vnuiShowModelDialogEx(kService, kSettingsDialog, question, {}, m_context->parent);
    const VnJsonPtr chosen = answer->GetDataJ(kSettingsOut);
    if (answer->GetDataI("result") != 1 || !chosen)
        return;
    tree->SetDataJ(kSettingsAnswered, chosen);
    m_showsSelection = TranslationRecords::options(chosen).showSelection;
    if (m_showsSelection)
        showAlone(selectedNames(tree));
    else
        m_context->refresh();
}

void LayerTranslateCommand::translate(const VnJsonPtr& tree)
{
    const std::vector<LayerMapping> mappings = m_records.mappings(tree->GetDataJ(kMappings));
    if (mappings.empty()) {
        layermarks::warn(
            Texts::tr("还没有图层映射。请先将“转换自”中的图层映射到“转换为”中的图层。"));
        return;
    }
    const VnJsonPtr settings = tree->GetDataJ(kSettingsToUse);
    if (!TranslationRecords::isComplete(settings))
        layermarks::warn(Texts::tr("保存的转换设置不是六项，现按全部未选转换。"));
    const drawing::TranslationOptions options = TranslationRecords::options(settings);
    const auto translated = drawing::translateLayers(drawing(), mappings, options);
    if (!translated) {
        layermarks::warn(translated.error().text);
        return;
    }
    if (options.writeLog)
        writeLog(*translated, options);
    report(*translated);
    // If nothing was translated, the dialog stays open so that the user can correct the mappings.
    tree->SetDataB(kCloses, translated->appliedCount() > 0);
    if (!tree->GetDataB(kIsSaved))
        say(Texts::tr("这些图层映射没有保存到标准文件。"));
}

void LayerTranslateCommand::writeLog(
    const drawing::TranslationReport& report, const drawing::TranslationOptions& options)
{
    const QString path = drawing::translationLogPath(drawing().path());
    const QString log = drawing::translationLog(drawing().path(), report, options);
    if (const auto written = drawing::writeTranslationLog(path, log); written)
        say(Texts::tr("转换日志：“%1”。").arg(shown(path)));
    else
        m_problems += written.error().text;
}

void LayerTranslateCommand::report(const drawing::TranslationReport& report)
{
    say(Texts::tr("已转换 %1 个图层映射，%2 个对象。")
            .arg(report.appliedCount())
            .arg(report.translatedCount()));
    for (const drawing::MappingResult& mapping : report.mappings) {
        if (!mapping.isApplied())
            m_problems += mapping.cause;
        m_problems += mapping.notices;
    }
    m_problems += report.notices;
    tellProblems(Texts::tr("图层转换中有以下问题："));
}

void LayerTranslateCommand::showClicked(const VnJsonPtr& tree)
{
    showAlone({text(tree, kClickedName)});
}

void LayerTranslateCommand::showAlone(const QStringList& layers) const
{
    std::vector<drawing::LayerId> ids;
    for (const QString& name : layers) {
        if (const drawing::Layer* layer = drawing().findLayer(name))
            ids.push_back(layer->id);
    }
    if (m_showsSelection && !ids.empty())
        m_context->showOnly(ids);
}
