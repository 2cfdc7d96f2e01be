#pragma once

#include "translation/layertranslation.h"
#include "vnjson.h"

#include <QMultiHash>

namespace drawing {
class Drawing;
}

/// Converts between the data of the layer translator's dialogs and that of the drawing.
class TranslationRecords
{
public:
    /// The records of the layers that can be translated, sorted by name. Layers of external
    /// references cannot.
    static vnsi::VnJsonPtr sources(const drawing::Drawing& drawing);

    /// The record of a target. Its linetype gets a number by which this object finds the definition
    /// again, so a record may only be returned to the object that made it.
    vnsi::VnJsonPtr target(const drawing::TargetLayer& target);
    drawing::TargetLayer target(const vnsi::VnJsonPtr& node) const;

    vnsi::VnJsonPtr mapping(const drawing::LayerMapping& mapping);
    /// The mappings in an array, in its order.
    std::vector<drawing::LayerMapping> mappings(const vnsi::VnJsonPtr& array) const;

    /// Offers the linetypes of the drawing and of the targets so far in linetype pickers.
    void offerLinetypes(const drawing::Drawing& drawing) const;

    /// The six options. All are off when the array does not have six elements.
    static drawing::TranslationOptions options(const vnsi::VnJsonPtr& settings);
    static bool isComplete(const vnsi::VnJsonPtr& settings);

private:
    OdInt64 numberOf(const drawing::LinetypePointer& definition);
    const drawing::LinetypePointer& linetype(OdInt64 number) const
    {
        return m_linetypes[static_cast<std::size_t>(number - 1)];
    }
    drawing::LinetypePointer definition(OdInt64 number, const QString& name) const;

    std::vector<drawing::LinetypePointer> m_linetypes; ///< By their numbers, which start at 1.
    QMultiHash<QString, OdInt64> m_numbers;            ///< The keys are folded names.
};
