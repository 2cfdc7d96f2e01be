#pragma once

#include "layerrecord.h"

#include <QString>

namespace vnsi {

/// A view of the record of one target layer, as the translator shows it. An empty record shows as
/// one without members.
class TargetRecord
{
public:
    explicit TargetRecord(VnJsonPtr node) : m_node(std::move(node)) {}

    QString name() const;
    /// The index, or the true colour's three parts.
    QString colorText() const;
    QString linetype() const;
    QString lineWidthText() const;
    QString transparencyText() const;
    QString plotStyle() const;

    /// Takes over what the new/edit dialog answered, field by field; the layer then counts as
    /// referenced.
    void takeEdited(const VnJsonPtr& result);

private:
    QString text(const char* key) const;

    VnJsonPtr m_node;
};

} // namespace vnsi
