#include "layerclicks.h"

#include "recordedits.h"

namespace vnsi::recordedits {

namespace {

bool toggle(LayerRecord& record, const char* key)
{
    record.setFlag(key, !record.flag(key));
    return true;
}

/// Whether a flag may be toggled. The current layer is turned off only after a question and is
/// never frozen.
bool mayToggle(LayerClick click, const LayerRecord& record, bool isCurrent)
{
    if (!isCurrent)
        return true;
    if (click == LayerClick::ToggleFrozen) {
        refuseToFreezeCurrent();
        return false;
    }
    return click != LayerClick::ToggleOff || record.isOff() || !asksToKeepCurrentOn();
}

} // namespace

bool click(const LayerColumn& column, LayerRecord record, bool isCurrent,
    const VnJsonPtr& colorQuestion, QWidget* parent)
{
    switch (column.click) {
    case LayerClick::None:
        return false;
    case LayerClick::Mark:
        return true;
    case LayerClick::Toggle:
    case LayerClick::ToggleOff:
    case LayerClick::ToggleFrozen:
        return mayToggle(column.click, record, isCurrent) && toggle(record, column.key);
    case LayerClick::ChooseColor:
        editColor(record, colorQuestion, parent);
        return true;
    case LayerClick::ChooseTransparency:
        editTransparency(record);
        return true;
    }
    return false;
}

} // namespace vnsi::recordedits
