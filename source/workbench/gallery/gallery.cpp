#include "gallery.h"

#include "benchtexts.h"
#include "canvas.h"
#include "commandtable.h"
#include "mainwindow.h"
#include "poser.h"
#include "samples.h"
#include "statusfields.h"

#include <QDir>
#include <QFileInfo>
#include <QPixmap>

#include <numeric>

drawing::Expected<void> savePicture(QWidget& widget, const QString& path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (widget.grab().save(path, "PNG"))
        return {};
    return drawing::refusal(Texts::tr("无法写入图片“%1”。").arg(QDir::toNativeSeparators(path)));
}

drawing::Expected<void> writeSheets(MainWindow& window, const QString& folder)
{
    constexpr QSize kSize(900, 675);
    const int count = static_cast<int>(window.drawing()->layouts().size());
    window.canvas()->setFixedSize(kSize);
    for (int space = StatusFields::kModelSpace; space < count; ++space) {
        window.showSpace(space);
        window.waitForPicture();
        const QString name = QStringLiteral("%1.png").arg(space + 1, 2, 10, QLatin1Char('0'));
        if (auto saved = savePicture(*window.canvas(), QDir(folder).filePath(name)); !saved)
            return saved;
    }
    return {};
}

void showEveryDialog(MainWindow& window, const QString& standard,
    const std::function<void(const QString& name, QWidget& shown)>& camera)
{
    camera(QStringLiteral("workbench"), window);
    if (!window.drawing())
        return;
    gallerysamples::addStates(*window.drawing());
    std::vector<int> all(window.drawing()->entities().size());
    std::iota(all.begin(), all.end(), 0); // Commands that need a selection take what is shown.
    const Poser poser(camera, standard);
    for (const CommandRow& row : CommandTable()) {
        if (!row.icon)
            continue; // Without a dialog.
        window.canvas()->setSelection(all);
        window.runCommand(QLatin1String(row.name));
    }
}

drawing::Expected<void> writeGallery(
    MainWindow& window, const QString& folder, const QString& standard)
{
    constexpr QSize kWindow(1280, 820); // Whatever the screen, and whatever size was kept.
    window.resize(kWindow);
    window.waitForPicture();
    drawing::Expected<void> outcome;
    showEveryDialog(window, standard, [&](const QString& name, QWidget& shown) {
        const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
        if (auto saved = savePicture(shown, path); !saved)
            outcome = std::move(saved);
    });
    return outcome;
}
