#include "vnpickers.h"

#include "linetypes.h"
#include "vnstrings.h"

namespace vnsi {

VnLineTypeComboBox::VnLineTypeComboBox(QWidget* parent) : QComboBox(parent)
{
    for (const host::LineType& type : host::lineTypes())
        addItem(vnutOdStringToQString(type.name), static_cast<qulonglong>(type.id.getHandle()));
}

OdString VnLineTypeComboBox::getCurrentLineTypeString() const
{
    return vnutQStringToOdString(currentText());
}

OdDbObjectId VnLineTypeComboBox::getCurrentLineType() const
{
    return OdDbObjectId(currentData().toULongLong());
}

} // namespace vnsi
