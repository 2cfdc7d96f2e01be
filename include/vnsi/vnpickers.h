#pragma once

#include "CmColor.h"
#include "DbObjectId.h"
#include "OdString.h"
#include "vnsidef.h"

#include <QComboBox>

namespace vnsi {

/// Chooses a colour: the named index colours with swatches, ByLayer and ByBlock where allowed, and
/// an entry that opens the host's colour dialog.
class VNSI_EXPORT VnColorComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnColorComboBox(QWidget* parent = nullptr);
    /// Whether ByLayer and ByBlock are offered; they are at first.
    void setLogicalColorsEnabled(bool enabled);
    OdCmColor color() const;
    /// Shows `color`; one that the list lacks is added to it.
    void setColor(const OdCmColor& color);

    /// As `color`.
    OdCmColor GetCurrentColorEx() const { return color(); }
    /// The row that shows `color`; -1 where none does.
    int FindColor(const OdCmColor& color) const;
    /// Adds a row for `color` and returns it; the row that is there already where one is.
    int AppendColorItem(const OdCmColor& color);

signals:
    void colorChanged();

private:
    void rebuild();
    void handleActivated(int index);
    void handleCurrentChanged(int index);

    bool m_logicalColors = true;
    OdCmColor m_color;
};

/// Chooses a linetype by name.
class VNSI_EXPORT VnLineTypeComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit VnLineTypeComboBox(QWidget* parent = nullptr);
    OdString lineType() const;
    /// Shows `name`; one that the list lacks is added to it.
    void setLineType(const OdString& name);

    /// As `lineType`.
    OdString getCurrentLineTypeString() const { return lineType(); }
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
    int lineWidth() const;
    /// Shows the weight; one that does not exist shows as the default.
    void setLineWidth(int weight);

    /// As `lineWidth`.
    int GetCurrentLineWeight() const { return lineWidth(); }
};

} // namespace vnsi
