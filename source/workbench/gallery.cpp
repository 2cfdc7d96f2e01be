#include "gallery.h"

#include "mainwindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>

drawing::Expected<void> savePicture(QWidget& widget, const QString& path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (widget.grab().save(path, "PNG"))
        return {};
    return drawing::refusal(QCoreApplication::translate("Gallery", "无法写入图片“%1”。")
                                .arg(QDir::toNativeSeparators(path)));
}

drawing::Expected<void> writeGallery(MainWindow& window, const QString& folder)
{
    drawing::Expected<void> outcome;
    window.pose([&](const QString& name, QWidget& shown) {
        const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
        if (auto saved = savePicture(shown, path); !saved)
            outcome = std::move(saved);
    });
    return outcome;
}
