#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;
struct LayerMemory;

namespace drawing {
class Drawing;
class DrawingStep;
enum class LayerId : int;
} // namespace drawing

/// What a layer command works on and talks through.
struct CommandContext
{
    drawing::Drawing& drawing;
    QWidget* parent = nullptr;               ///< For dialogs.
    std::function<void(const QString&)> say; ///< A line for the command line's echo.
    std::function<void()>
        refresh; ///< Draws the layers as they are now, within the open step, at once.
    std::vector<int> selection = {}; ///< Entities selected on the canvas, ascending.
    std::function<void(const QString&)> notice = {}; ///< A line for the status bar.
    /// Lets the user pick entities on the canvas; none when the user gives up. No dialog may be in
    /// the way meanwhile.
    std::function<std::vector<int>()> pick = {};
    /// Shows what is on these layers alone, whatever the layers say, until `refresh` or the
    /// command's end. The drawing does not change.
    std::function<void(const std::vector<drawing::LayerId>&)> showOnly = {};
    drawing::DrawingStep* step = nullptr; ///< What the command changes belongs to it.
    LayerMemory* memory = nullptr;             ///< What the window remembers of the layers.
    std::vector<drawing::LayerId> layers = {}; ///< Chosen in the panel for this command.
};

/// One of the layer commands. A new object for every run.
class LayerCommand
{
public:
    /// Takes a picture of a window under a file name without its ending.
    using Camera = std::function<void(const QString& name, QWidget& window)>;

    virtual ~LayerCommand() = default;
    /// Runs to its end, dialogs included. A step of the drawing is open meanwhile and is committed
    /// behind it: whatever the command changes is one undo.
    virtual void run(CommandContext& context) = 0;
    /// Shows the camera each of the command's dialogs, filled from the drawing.
    virtual void pose(CommandContext& context, const Camera& camera) = 0;
};
