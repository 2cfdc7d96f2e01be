#pragma once

#include <QColor>
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
    QString plotStyle;    ///< Name; read-only, files hold a handle.
    QString description;
};

bool operator==(const LayerProperties& a, const LayerProperties& b);

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
