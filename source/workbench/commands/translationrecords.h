#pragma once

#include "translation/layertranslation.h"
#include "vnjson.h"

#include <QMultiHash>

namespace drawing {
class Drawing;
}

/// What the layer translator's dialogs work on, from and to the drawing's terms.
class TranslationRecords
{
public:
    /// The records of the layers that can be translated, by name: those of references cannot.
    static vnsi::VnJsonPtr sources(const drawing::Drawing& drawing);

    /// The record of a target. Its linetype gets a number here, by which its definition is found
    /// again; a record goes back only to whom it came from.
    vnsi::VnJsonPtr target(const drawing::TargetLayer& target);
    drawing::TargetLayer target(const vnsi::VnJsonPtr& node) const;

    vnsi::VnJsonPtr mapping(const drawing::LayerMapping& mapping);
    /// The mappings of an array, in its order.
    std::vector<drawing::LayerMapping> mappings(const vnsi::VnJsonPtr& array) const;

    /// Offers the linetypes of the drawing, and those of the targets so far, to linetype pickers.
    void offerLinetypes(const drawing::Drawing& drawing) const;

    /// The six options; the ones that are off where the array has not six elements.
    static drawing::TranslationOptions options(const vnsi::VnJsonPtr& settings);
    static bool isComplete(const vnsi::VnJsonPtr& settings);

private:
    OdInt64 numberOf(const drawing::LinetypePointer& definition);
    const drawing::LinetypePointer& linetype(OdInt64 number) const
    {
        return m_linetypes[static_cast<std::size_t>(number - 1)];
    }
    drawing::LinetypePointer definition(OdInt64 number, const QString& name) const;

    std::vector<drawing::LinetypePointer> m_linetypes; ///< By number, from 1.
    QMultiHash<QString, OdInt64> m_numbers;            ///< By folded name.
};
