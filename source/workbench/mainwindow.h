#pragma once

#include "commandtable.h"
#include "fileworker.h"

#include <QElapsedTimer>
#include <QMainWindow>

#include <functional>
#include <vector>

class Canvas;
class CommandLine;
class DrawingSession;
class LayerPanel;
class RecentFiles;
class SceneBuilder;
class StatusFields;
struct Scene;

/// The workbench: one drawing, its canvas, and the layer commands.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    /// Opens in the background; asks first when the present drawing has unsaved changes. A file
    /// that cannot be opened is reported in a message box and the present drawing stays.
    void openFile(const QString& path, const drawing::OpenOptions& options = {});
    /// Takes over a drawing that was read already.
    void setFile(std::shared_ptr<drawing::Drawing> drawing);
    /// Runs what was typed; anything that cannot run is answered in the echo.
    void runCommand(const QString& word);

    /// Pictures the window and each dialog that a layer command shows.
    void pose(const LayerCommand::Camera& camera);

    drawing::Drawing* drawing() const;
    Canvas* canvas() const { return m_canvas; }
    /// Whether the canvas shows all of the drawing as it is now.
    bool isPictureWhole() const;
    void waitForPicture(); ///< Returns when it is.
    /// Shows a layout, by its index, or model space: `StatusFields::kModelSpace`.
    void showSpace(int layout);

signals:
    void fileOpened(); ///< The drawing shown is another one.

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct ActionRow;
    static const ActionRow kActions[];

    void createActions();
    void createCommandLine();
    void createLayerPanel();
    void connectParts();

    void chooseFile();
    void chooseFileAndCodePage();
    void reopenInCodePage();
    void save();
    void saveAs();
    void quit();
    void undo();
    void redo();
    void beginEdit();
    void endEdit();
    void rest();
    void zoomToExtents();
    void toggleBackground();
    void toggleLineweights();
    void help();
    void about();

    QString askForFile();
    CommandContext commandContext();
    void runLayerCommand(const CommandRow& row, const std::vector<drawing::LayerId>& layers = {});
    void showDrawing();
    void showScene(const Scene& scene);
    void endBuilding(bool isTruncated);
    int shownSpace() const;
    void enterViewport(int entity);
    void showLayers();
    void showEntities(const std::vector<int>& entities, bool intoView);
    void reportRefusals(QStringList sentences);
    void showOnly(const std::vector<drawing::LayerId>& ids);
    void endShowingOnly(const std::vector<int>& selection);
    void updateState();
    bool isBusy() const;
    QAction* action(const char* name) const;

    SceneBuilder* m_builder = nullptr; ///< Goes before the session and its drawing.
    DrawingSession* m_session = nullptr;
    Canvas* m_canvas = nullptr;
    CommandLine* m_commandLine = nullptr;
    LayerPanel* m_panel = nullptr;
    RecentFiles* m_recent = nullptr;
    StatusFields* m_status = nullptr;
    bool m_commandRunning = false; ///< Or an edit without one.
    QElapsedTimer m_sinceRest;     ///< Of a long edit.
    int m_rests = 0;               ///< Of the edit under way.
    int m_shownSpace = 0;          ///< Of the scene on the canvas, as the status bar counts them.
    bool m_isNewScene = false;     ///< And not whole yet; the view follows its extents.
    bool m_showsOnly = false;      ///< One layer, for a command.
};
