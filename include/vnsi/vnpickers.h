#pragma once

#include "CmColor.h"
#include "DbObjectId.h"
#include "OdString.h"
#include "vnsidef.h"

#include <QComboBox>

namespace vnsi {

/// Chooses a colour: ByLayer, ByBlock, the named index colours with swatches, and an entry that
/// opens the host's colour dialog. The dialog allows ByLayer and ByBlock as long as the list has
/// them.
class VNSI_EXPORT VnColorComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnColorComboBox(QWidget* parent = nullptr);
    /// The colour that is shown.
    OdCmColor GetCurrentColorEx() const { return m_color; }
    /// The row that shows `color`; -1 where none does.
    int FindColor(const OdCmColor& color) const;
    /// Adds a row for `color` and returns it; the row that is there already where one is.
    int AppendColorItem(const OdCmColor& color);

private:
    void handleActivated(int index);
    void handleCurrentChanged(int index);

    OdCmColor m_color;
};

/// Chooses a linetype by name.
class VNSI_EXPORT VnLineTypeComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnLineTypeComboBox(QWidget* parent = nullptr);
    /// The name of the linetype that is shown.
    OdString getCurrentLineTypeString() const;
    /// The linetype's record in the drawing; null for one that the drawing lacks.
    OdDbObjectId getCurrentLineType() const;
};

/// Chooses a lineweight: ByLayer, ByBlock, default, or one of the weights that exist.
class VNSI_EXPORT VnLineWidthComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnLineWidthComboBox(QWidget* parent = nullptr);
    /// Hundredths of a millimetre, or -1 ByLayer, -2 ByBlock, -3 default.
    int GetCurrentLineWeight() const;
};

} // namespace vnsi
