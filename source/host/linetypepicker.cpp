#include "vnpickers.h"

#include "linetypes.h"
#include "vnstrings.h"

namespace vnsi {

VnLineTypeComboBox::VnLineTypeComboBox(QWidget* parent) : QComboBox(parent)
{
    for (const host::LineType& type : host::lineTypes())
        addItem(vnutOdStringToQString(type.name), static_cast<qulonglong>(type.id.getHandle()));
}

OdString VnLineTypeComboBox::lineType() const
{
    return vnutQStringToOdString(currentText());
}

void VnLineTypeComboBox::setLineType(const OdString& name)
{
    const QString text = vnutOdStringToQString(name);
    int row = findText(text, Qt::MatchFixedString);
    if (row < 0) {
        row = count();
        addItem(text);
    }
    setCurrentIndex(row);
}

OdDbObjectId VnLineTypeComboBox::getCurrentLineType() const
{
    return OdDbObjectId(currentData().toULongLong());
}

} // namespace vnsi
