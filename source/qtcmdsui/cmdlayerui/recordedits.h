#pragma once

#include "layerrecord.h"

#include <QString>

#include <optional>

class QWidget;

/// Edits of single layers that the tables of layers have in common.
namespace vnsi::recordedits {

/// Lets the user change a text in the host's rename dialog, which `label` may tell what it is; none
/// when the user gives up.
std::optional<OdString> askForText(const OdString& present, const QString& label = {});
/// Asks whether the current layer, about to be turned off, is to stay on.
bool asksToKeepCurrentOn();
/// Tells that the current layer cannot be frozen.
void refuseToFreezeCurrent();
/// Lets the user choose another colour in the host's dialog, whose tree is `question`; true when
/// the record holds a new one.
bool editColor(LayerRecord record, const VnJsonPtr& question, QWidget* parent);
/// Lets the user choose another transparency; true when the record holds a new one.
bool editTransparency(LayerRecord record);

} // namespace vnsi::recordedits
