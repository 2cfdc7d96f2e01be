#pragma once

#include "command.h"
#include "translationrecords.h"

#include <QStringList>

class QFileInfo;

/// LAYTRANS: shows the layer translator and answers what it asks. What the translation and a purge
/// change is one step; what is looked at meanwhile changes the canvas alone.
class LayerTranslateCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;
    void pose(CommandContext& context, const Camera& camera) override;

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
    void sayLoaded(const vnsi::VnJsonPtr& mappings) const;
    QString offeredName(const QFileInfo& file) const;
    /// Where mappings that are to be saved as `path` go: a name that none can have is told to the
    /// user, who may take another one instead. Empty where they are not saved.
    QString acceptedPath(const QString& path) const;
    /// Shows those layers alone if the user wants that; names of none change nothing.
    void showAlone(const QStringList& layers) const;
    void report(const drawing::TranslationReport& report);
    void writeLog(
        const drawing::TranslationReport& report, const drawing::TranslationOptions& options);
    void answerWithSamples(const vnsi::VnJsonPtr& tree);
    /// Shows what the last request could not do, under a line of its own.
    void tellProblems(const QString& title);

    CommandContext* m_context = nullptr;
    TranslationRecords m_records;
    vnsi::VnJsonPtr m_targets;     ///< The to-list as it was answered last.
    bool m_showsSelection = false; ///< The option that shows chosen layers alone.
    QStringList m_problems;
};
