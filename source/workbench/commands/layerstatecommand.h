#pragma once

#include "command.h"
#include "error.h"
#include "layerstate.h"
#include "vnjson.h"

#include <QSet>
#include <QStringList>

/// LAYERSTATE: shows the Layer State Manager and does what it asks for. Each request that changes
/// the drawing is a step of its own, as the dialog stays open between them.
class LayerStateCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;
    void pose(CommandContext& context, const Camera& camera) override;

private:
    struct RequestRow;
    static const RequestRow kRequests[];

    void answer(const vnsi::VnJsonPtr& node);
    void prepareEdit(const vnsi::VnJsonPtr& node);
    void removeMarked(const vnsi::VnJsonPtr& node);
    void storeEdited(const vnsi::VnJsonPtr& node);
    void create(const vnsi::VnJsonPtr& node);
    void remove(const vnsi::VnJsonPtr& node);
    void rename(const vnsi::VnJsonPtr& node);
    void overwrite(const vnsi::VnJsonPtr& node);
    void restore(const vnsi::VnJsonPtr& node);
    void importStates(const vnsi::VnJsonPtr& node);
    void exportState(const vnsi::VnJsonPtr& node);
    void describe(const vnsi::VnJsonPtr& node);

    drawing::Drawing& drawing() { return m_context->drawing; }
    vnsi::VnJsonPtr makeTree();
    void showStates(const std::vector<drawing::LayerState>& states);
    std::vector<drawing::LayerState> statesOf(const QString& path);
    bool mayReplace(const QString& name, bool& all, bool& stop);
    std::vector<drawing::LayerState> chosenOf(std::vector<drawing::LayerState> states);
    bool offersRestore(const std::vector<drawing::LayerState>& imported);
    bool put(drawing::LayerState state);
    bool done(const drawing::Expected<void>& outcome, const QString& stepName);
    void report(const QString& title);
    QString shownLayoutName();

    CommandContext* m_context = nullptr;
    vnsi::VnJsonPtr m_manager; ///< Element 1 of "LayerStateMgr".
    vnsi::VnJsonPtr m_edited;  ///< Element 2.
    QString m_current;         ///< The state restored, made or overwritten last.
    QStringList m_problems;    ///< What of a request could not be done.
};
