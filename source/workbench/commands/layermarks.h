#pragma once

#include "command.h"
#include "drawing.h"
#include "recordprovider.h"
#include "vnjson.h"

/// Functions for commands that list layers in a dialog and act on those that the dialog marked.
namespace layermarks {

/// A layer as it was when a dialog was opened.
struct Marked
{
    drawing::LayerId id = drawing::LayerId::None;
    QString name;
};

/// A tree with the records of the layers that pass the filter.
vnsi::VnJsonPtr makeTree(const drawing::Drawing& drawing, const layerrecords::Filter& passes);
/// The layers of entities in the order they come, each once.
std::vector<drawing::LayerId> layersOf(
    const drawing::Drawing& drawing, const std::vector<int>& entities);
/// The names of the layers that the user chose in the panel or, where he did not, of those that the
/// objects he selected are on.
QStringList chosenNames(const CommandContext& context);
/// Whether a layer may be deleted: it is not 0, not current and not from an external reference.
bool mayGo(const drawing::Drawing& drawing, const drawing::Layer& layer);

/// Shows a dialog of the module on `tree`. Returns true when the user chose OK. Rows of its list
/// with the names in `rows` are selected at first; without any of them the dialog's own choice is.
bool show(CommandContext& context, const OdString& dialog, const vnsi::VnJsonPtr& tree,
    std::function<void(const vnsi::VnJsonPtr& tree)> answer = {}, const QStringList& rows = {});

/// The layers whose records have the status `status`, in their order.
std::vector<Marked> marked(const vnsi::VnJsonPtr& tree, vnsi::LayerStatus status);
/// The ids of those layers that still exist. The user is told the names of the others.
std::vector<drawing::LayerId> present(CommandContext& context, const std::vector<Marked>& layers);

/// Shows a line in the command line and in the status bar.
void tell(CommandContext& context, const QString& text);
/// Shows a message box that says why something could not be done.
void warn(const QString& text);
/// Asks a question and returns true for yes.
bool confirms(const QString& question);
/// Shows a message box with the sentences in `problems` and clears them. Does nothing when there
/// are none. The box shows the first ten; if there are more, all appear in the command line.
void report(CommandContext& context, const QString& heading, QStringList& problems);

} // namespace layermarks
