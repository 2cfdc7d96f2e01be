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

/// Everything that a layer command works with.
struct CommandContext
{
    drawing::Drawing& drawing;
    QWidget* parent = nullptr;               ///< The parent of dialogs.
    std::function<void(const QString&)> say; ///< Shows a line in the command line.
    std::function<void()>
        refresh; ///< Immediately draws the layers as they are now, within the open step.
    std::vector<int> selection = {}; ///< The entities selected on the canvas, in ascending order.
    std::function<void(const QString&)> notice = {}; ///< Shows a line in the status bar.
    /// Lets the user pick entities on the canvas; returns none when the user cancelled. No dialog
    /// may cover the canvas meanwhile.
    std::function<std::vector<int>()> pick = {};
    /// Shows only the contents of these layers, whatever their states, until `refresh` or the end
    /// of the command. The drawing does not change.
    std::function<void(const std::vector<drawing::LayerId>&)> showOnly = {};
    drawing::DrawingStep* step = nullptr; ///< The step that the command's changes belong to.
    LayerMemory* memory = nullptr;        ///< What the window remembers about the layers.
    /// The layers selected in the panel for this command.
    std::vector<drawing::LayerId> layers = {};
    /// Like `pick`, but hidden layers are shown faded meanwhile and can be picked as well.
    std::function<std::vector<int>()> pickAnything = {};
};

/// Base of the layer commands. Each run uses a new object.
class LayerCommand
{
public:
    virtual ~LayerCommand() = default;
    /// Runs the command with all its dialogs. A step of the drawing is open meanwhile and is
    /// committed afterwards, so everything that the command changes is undone at once.
    virtual void run(CommandContext& context) = 0;
};
