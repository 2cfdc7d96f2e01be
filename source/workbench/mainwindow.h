#pragma once

#include "commandtable.h"
#include "fileworker.h"

#include <QElapsedTimer>
#include <QMainWindow>

#include <functional>
#include <optional>
#include <vector>

class Canvas;
class CommandLine;
class DrawingSession;
class LayerPanel;
class RecentFiles;
class SceneBuilder;
class StatusFields;
struct Scene;

/// The main window of the workbench: one drawing, its canvas, and the layer commands.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    /// Opens a file in the background. Asks first when the present drawing has unsaved changes.
    /// When the file cannot be opened, a message box says so and the present drawing stays.
    void openFile(const QString& path, const drawing::OpenOptions& options = {});
    /// Takes over a drawing that was already read.
    void setFile(std::shared_ptr<drawing::Drawing> drawing);
    /// Runs a typed command. If that is not possible, the command line says why.
    void runCommand(const QString& word);

    drawing::Drawing* drawing() const;
    Canvas* canvas() const { return m_canvas; }
    /// Whether the canvas shows all of the drawing in its present state.
    bool isPictureWhole() const;
    void waitForPicture(); ///< Waits until it does.
    /// Shows the layout with this index, or model space for `StatusFields::kModelSpace`.
    void showSpace(int layout);

signals:
    void fileOpened(); ///< Another drawing is shown.

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
    bool isRestDue() const;
    void paintWindows();
    void zoomToExtents();
    void toggleBackground();
    void toggleLineweights();
    void help();
    void about();

    QString askForFile();
    CommandContext commandContext();
    void enterNothing();
    void sendToCanvas(Qt::Key key);
    std::vector<int> pick();
    std::vector<int> pickAnything();
    void runLayerCommand(const CommandRow& row, const std::vector<drawing::LayerId>& layers = {});
    void showDrawing();
    void showSheet(std::optional<drawing::Sheet> sheet);
    void showScene(const Scene& scene);
    void endBuilding(bool isTruncated);
    int shownSpace() const;
    void enterViewport(int entity);
    void keepViewportView(const drawing::SheetViewport& viewport);
    void followLayers();
    void showLayers();
    void showEntities(const std::vector<int>& entities, bool intoView);
    void reportRefusals(QStringList sentences);
    void showOnly(const std::vector<drawing::LayerId>& ids);
    void endShowingOnly(const std::vector<int>& selection);
    void updateState();
    bool isBusy() const;
    QAction* action(const char* name) const;

    SceneBuilder* m_builder = nullptr; ///< Deleted before the session and its drawing.
    DrawingSession* m_session = nullptr;
    Canvas* m_canvas = nullptr;
    CommandLine* m_commandLine = nullptr;
    LayerPanel* m_panel = nullptr;
    RecentFiles* m_recent = nullptr;
    StatusFields* m_status = nullptr;
    bool m_commandRunning = false; ///< A command, or an edit outside of commands, is running.
    QElapsedTimer m_sinceRest;     ///< The time since the last break in a long edit.
    int m_rests = 0;               ///< The number of breaks in the current edit.
    int m_shownSpace = 0; ///< The space of the scene on the canvas, numbered as in the status bar.
    /// The scene is new and not complete yet, so the view follows its extents.
    bool m_isNewScene = false;
    bool m_showsOnly = false; ///< A command shows only certain layers.
};
