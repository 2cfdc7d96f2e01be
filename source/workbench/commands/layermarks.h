#pragma once

#include "command.h"
#include "drawing.h"
#include "recordprovider.h"
#include "vnjson.h"

/// What the commands share that offer layers in a list and carry out what a dialog marked there.
namespace layermarks {

/// A layer as it was when a dialog showed it.
struct Marked
{
    drawing::LayerId id = drawing::LayerId::None;
    QString name;
};

/// A tree whose list names the layers that pass.
vnsi::VnJsonPtr makeTree(const drawing::Drawing& drawing, const layerrecords::Filter& passes);
/// Whether a layer may be taken out of the drawing: not 0, not current, not of a reference.
bool mayGo(const drawing::Drawing& drawing, const drawing::Layer& layer);

/// Shows a dialog of the module on `tree`; true when it ended with OK.
bool show(CommandContext& context, const OdString& dialog, const vnsi::VnJsonPtr& tree,
    std::function<void(const vnsi::VnJsonPtr& tree)> answer = {});

/// The layers whose records carry the action `status`, in their order.
std::vector<Marked> marked(const vnsi::VnJsonPtr& tree, vnsi::LayerStatus status);
/// The ids of those that are still there; the others are named to the user.
std::vector<drawing::LayerId> present(CommandContext& context, const std::vector<Marked>& layers);

/// A line for echo and status bar.
void tell(CommandContext& context, const QString& text);
/// A message box on why something could not be done.
void warn(const QString& text);
/// Asks whether to do something; true for yes.
bool confirms(const QString& question);
/// A message box with what could not be done, a sentence each, which starts anew then; nothing
/// without any. A box has room for the first ten: of more, all are echoed.
void report(CommandContext& context, const QString& heading, QStringList& problems);

} // namespace layermarks
