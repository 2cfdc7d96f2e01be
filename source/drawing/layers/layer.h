#pragma once

#include <QString>

#include <optional>

namespace drawing {

/// A layer keeps its id through renaming, undo and redo; ids are never reused while a drawing is
/// open.
enum class LayerId : int { None = -1 };

/// What the DXF LAYER record says of a layer, decoded.
struct LayerProperties
{
    QString name;
    bool off = false;
    bool frozen = false;
    bool locked = false;
    bool plotted = true;
    bool frozenInNewViewports = false;
    int colorIndex = 7;               ///< 1..255; kept beside a true colour, as files keep both.
    std::optional<quint32> trueColor; ///< 0x00RRGGBB.
    QString linetype = QStringLiteral("Continuous");
    int lineweight = -3;  ///< Hundredths of a millimetre; -3 is "default".
    int transparency = 0; ///< Percent, 0..90.
    /// Name; read-only, as files hold a handle. "Color_N" where plot styles go by colour.
    QString plotStyle;
    QString description;
};

bool operator==(const LayerProperties& a, const LayerProperties& b);
bool operator!=(const LayerProperties& a, const LayerProperties& b);

/// Stands for a lineweight that a program chooses.
constexpr int kDefaultLineweight = -3;
/// The lineweights that exist, in hundredths of a millimetre: -3 default, -2 by block, -1 by layer.
constexpr int kLineweights[] = {-3, -2, -1, 0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70,
    80, 90, 100, 106, 120, 140, 158, 200, 211};
bool isLineweight(int hundredths);

/// True for `Defpoints`, which never plots, whatever its record says.
bool isNeverPlotted(const QString& name);

/// The highest transparency a layer may have, percent.
constexpr int kMostTransparent = 90;
/// Percent of a transparency as files store it: 0x02000000 + alpha; 0 for any other kind.
int transparencyPercent(qint64 stored);
qint64 storedTransparency(int percent);

struct Layer
{
    LayerId id = LayerId::None;
    LayerProperties properties;
    bool dependsOnReference =
        false;           ///< Belongs to an external reference (flag 16 or a `|` in the name).
    int entityCount = 0; ///< Entities on it in model space, layouts and blocks.
    bool used() const { return entityCount > 0; }
};

} // namespace drawing
