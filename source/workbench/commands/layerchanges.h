#pragma once

#include "file/error.h"
#include "layerrecord.h"

#include <QStringList>

#include <vector>

namespace drawing {
class Drawing;
}

/// Applies the changes that the Layer Properties Manager made in its records to a drawing. When the
/// drawing refuses a change, only that change is left out; other changes of the same layer are
/// applied.
class LayerChanges
{
public:
    explicit LayerChanges(drawing::Drawing& drawing) : m_drawing(drawing) {}

    /// Applies the modified records of a list and then updates the list: records show the state of
    /// the drawing, those of deleted layers are removed, and those of new layers get their ids.
    /// Returns one sentence for each refused change.
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
