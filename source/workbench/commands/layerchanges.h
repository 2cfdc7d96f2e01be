#pragma once

#include "file/error.h"
#include "layerrecord.h"

#include <QStringList>

#include <vector>

namespace drawing {
class Drawing;
}

/// Carries out in a drawing what the Layer Properties Manager changed in its records. What the
/// drawing refuses is left out, by itself: what else was changed of the same layer is done.
class LayerChanges
{
public:
    explicit LayerChanges(drawing::Drawing& drawing) : m_drawing(drawing) {}

    /// Applies the modified records of a list. Afterwards they say what the drawing says, those of
    /// deleted layers are gone, and those of new layers know them. Returns a sentence for each
    /// change that was refused.
    QStringList apply(const vnsi::VnJsonPtr& list);

private:
    using Records = std::vector<vnsi::LayerRecord>;

    void rename(const Records& records);
    void setValues(const vnsi::LayerRecord& record);
    void setValuesOneByOne(const vnsi::LayerRecord& record);
    void add(const vnsi::LayerRecord& record);
    void setCurrent(const Records& records);
    void remove(const vnsi::VnJsonPtr& list);
    bool note(const drawing::Expected<void>& outcome);

    drawing::Drawing& m_drawing;
    QStringList m_refusals;
};
