#pragma once

#include "CmColor.h"
#include "DbObjectId.h"
#include "OdString.h"
#include "vnsidef.h"

#include <QComboBox>

namespace vnsi {

/// A combo box for colours. It lists ByLayer, ByBlock, the named index colours with swatches, and
/// an entry that opens the host's colour dialog. That dialog offers ByLayer and ByBlock only while
/// the list contains them.
class VNSI_EXPORT VnColorComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnColorComboBox(QWidget* parent = nullptr);
    /// The selected colour.
    OdCmColor GetCurrentColorEx() const { return m_color; }
    /// The row that shows `color`, or -1 when no row does.
    int FindColor(const OdCmColor& color) const;
    /// Returns the row that shows `color` and adds one when there is none yet.
    int AppendColorItem(const OdCmColor& color);

private:
    void handleActivated(int index);
    void handleCurrentChanged(int index);

    OdCmColor m_color;
};

/// A combo box for linetypes, chosen by name.
class VNSI_EXPORT VnLineTypeComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnLineTypeComboBox(QWidget* parent = nullptr);
    /// The name of the selected linetype.
    OdString getCurrentLineTypeString() const;
    /// The selected linetype's record in the drawing; null when the drawing does not have it.
    OdDbObjectId getCurrentLineType() const;
};

/// A combo box for lineweights: ByLayer, ByBlock, default, or one of the available weights.
class VNSI_EXPORT VnLineWidthComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnLineWidthComboBox(QWidget* parent = nullptr);
    /// The selected lineweight in hundredths of a millimetre, or -1 (ByLayer), -2 (ByBlock), -3
    /// (default).
    int GetCurrentLineWeight() const;
};

} // namespace vnsi
