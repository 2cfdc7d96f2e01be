#pragma once

#include "command.h"
#include "translationrecords.h"

#include <QStringList>

class QFileInfo;

/// LAYTRANS: shows the layer translator and answers its requests. A translation and purging
/// together are one step. Showing layers alone only affects the canvas.
class LayerTranslateCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;

private:
    struct RequestRow;
    static const RequestRow kRequests[];

    vnsi::VnJsonPtr makeTree() const;
    void answer(const vnsi::VnJsonPtr& tree);
    void save(const vnsi::VnJsonPtr& tree);
    void load(const vnsi::VnJsonPtr& tree);
    void purge(const vnsi::VnJsonPtr& tree);
    void addTarget(const vnsi::VnJsonPtr& tree);
    void showSettings(const vnsi::VnJsonPtr& tree);
    void translate(const vnsi::VnJsonPtr& tree);
    void showClicked(const vnsi::VnJsonPtr& tree);

    drawing::Drawing& drawing() const { return m_context->drawing; }
    void say(const QString& text) const { m_context->say(text); }
    void loadFile(const QString& path, const vnsi::VnJsonPtr& mappings);
    void addTargets(const std::vector<drawing::TargetLayer>& targets, const QString& path);
    void sortTargets();
    void sayLoaded(const vnsi::VnJsonPtr& mappings) const;
    QString offeredName(const QFileInfo& file) const;
    /// The path under which mappings are saved. When `path` is not possible, the user is told and
    /// may choose another one. Empty when they are not saved.
    QString acceptedPath(const QString& path) const;
    /// Shows these layers alone if the user wants that. Unknown names have no effect.
    void showAlone(const QStringList& layers) const;
    void report(const drawing::TranslationReport& report);
    void writeLog(
        const drawing::TranslationReport& report, const drawing::TranslationOptions& options);
    /// Shows what the last request could not do, under a line of its own.
    void tellProblems(const QString& title);

    CommandContext* m_context = nullptr;
    TranslationRecords m_records;
    vnsi::VnJsonPtr m_targets;     ///< The targets as they were last sent to the dialog.
    bool m_showsSelection = false; ///< The option to show the selected layers alone.
    QStringList m_problems;
};
