#pragma once

#include "command.h"
#include "file/error.h"
#include "states/layerstate.h"
#include "vnjson.h"

#include <QStringList>

#include <optional>

/// LAYERSTATE: shows the Layer State Manager and carries out its requests. Each request that
/// changes the drawing is a step of its own because the dialog stays open in between.
class LayerStateCommand : public LayerCommand
{
public:
    void run(CommandContext& context) override;

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
    void fillEditor(const vnsi::VnJsonPtr& node, const drawing::LayerState& state);
    void showStates(std::vector<drawing::LayerState> states);
    std::optional<drawing::LayerState> named(const vnsi::VnJsonPtr& node, const char* key);
    static bool wantsToRestore(const std::vector<drawing::LayerState>& imported);
    bool put(const std::vector<drawing::LayerState>& states);
    bool done(const drawing::Expected<void>& outcome);
    void tellOfOverrides(const drawing::LayerState& state);
    void report(const QString& title);

    CommandContext* m_context = nullptr;
    vnsi::VnJsonPtr m_manager; ///< The elements that requests are sent on.
    vnsi::VnJsonPtr m_editor;
    QString m_current;      ///< The state that was last restored, created or overwritten.
    QString m_toRestore;    ///< The imported state that the dialog is about to restore.
    QStringList m_problems; ///< What the current request could not do.
};
