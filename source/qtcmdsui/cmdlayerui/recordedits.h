#pragma once

#include "layerrecord.h"

#include <QString>

#include <optional>

class QWidget;

/// Edits of single layers that the tables of layers share.
namespace vnsi::recordedits {

/// Lets the user edit a text in the host's rename dialog; `label` may say what the text is. Returns
/// nothing when the user cancelled.
std::optional<OdString> askForText(const OdString& present, const QString& label = {});
/// Asks whether the current layer, which is about to be turned off, should stay on.
bool asksToKeepCurrentOn();
/// Tells the user that the current layer cannot be frozen.
void refuseToFreezeCurrent();
/// Lets the user choose another colour in the host's dialog, whose input tree is `question`.
/// Returns true when the record has a new colour. A plot style that is named after the colour
/// follows it.
bool editColor(LayerRecord record, const VnJsonPtr& question, QWidget* parent);
/// Lets the user choose another transparency. Returns true when the record has a new one.
bool editTransparency(LayerRecord record);

} // namespace vnsi::recordedits
