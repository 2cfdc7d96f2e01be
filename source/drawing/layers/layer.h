#pragma once

#include <QString>

#include <optional>

namespace drawing {

/// The id of a layer. A layer keeps its id when it is renamed and through undo and redo. Ids are
/// never reused while a drawing is open.
enum class LayerId : int { None = -1 };

/// The decoded properties from a DXF LAYER record.
struct LayerProperties
{
    QString name;
    bool off = false;
    bool frozen = false;
    bool locked = false;
    bool plotted = true;
    bool frozenInNewViewports = false;
    int colorIndex = 7; ///< 1..255. It exists beside a true colour because files store both.
    std::optional<quint32> trueColor; ///< 0x00RRGGBB.
    QString linetype = QStringLiteral("Continuous");
    int lineweight = -3;  ///< In hundredths of a millimetre; -3 is the default lineweight.
    int transparency = 0; ///< In percent, 0..90.
    /// The name of the plot style. It can only be changed when the drawing has named plot styles;
    /// otherwise it is "Color_N" and follows from the colour.
    QString plotStyle;
    QString description;
};

bool operator==(const LayerProperties& a, const LayerProperties& b);
bool operator!=(const LayerProperties& a, const LayerProperties& b);

/// The value of the default lineweight, which programs choose.
constexpr int kDefaultLineweight = -3;
/// All existing lineweights in hundredths of a millimetre: -3 is default, -2 ByBlock, -1 ByLayer.
constexpr int kLineweights[] = {-3, -2, -1, 0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70,
    80, 90, 100, 106, 120, 140, 158, 200, 211};
bool isLineweight(int hundredths);

/// Whether this is `Defpoints`, which is never plotted, whatever its record says.
bool isNeverPlotted(const QString& name);

/// The highest transparency of a layer, in percent.
constexpr int kMostTransparent = 90;
/// Converts a stored transparency, 0x02000000 + alpha, to percent; other values give 0.
int transparencyPercent(qint64 stored);
qint64 storedTransparency(int percent);

struct Layer
{
    LayerId id = LayerId::None;
    LayerProperties properties;
    bool dependsOnReference =
        false;           ///< Belongs to an external reference: it has flag 16 or a `|` in its name.
    int entityCount = 0; ///< The number of its entities in model space, layouts and blocks.
    bool used() const { return entityCount > 0; }
};

} // namespace drawing
