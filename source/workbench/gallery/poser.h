#pragma once

#include <QObject>

#include <functional>

class QDialog;
class QWidget;

/// While it lives, works through every modal dialog that comes up as a user would, by the names of
/// its widgets: takes pictures of it, opens the dialogs that it leads to, and cancels it.
class Poser : public QObject
{
public:
    /// Saves a picture of a window under a file name without extension.
    using Camera = std::function<void(const QString& name, QWidget& window)>;

    /// `standard` is the standards file that the layer translator loads.
    Poser(Camera camera, QString standard);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct DialogRow;
    static const DialogRow kDialogs[];

    void pose(QDialog& dialog);
    void picture(QDialog& dialog, const char* name) const;

    void poseLayers(QDialog& dialog);
    void poseStates(QDialog& dialog);
    void poseStateEditor(QDialog& dialog);
    void poseMerge(QDialog& dialog);
    void poseWalk(QDialog& dialog);
    void poseTranslator(QDialog& dialog);
    void chooseStandard(QDialog& dialog);

    Camera m_camera;
    QString m_standard;
};
