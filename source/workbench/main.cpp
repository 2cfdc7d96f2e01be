#include "benchtexts.h"
#include "documents.h"
#include "gallery/gallery.h"
#include "hoststart.h"
#include "hostwindows.h"
#include "installation.h"
#include "language.h"
#include "languagemenu.h"
#include "layerlist.h"
#include "mainwindow.h"
#include "messages.h"
#include "options.h"

#include <QApplication>
#include <QThread>

#include <cstdio>

namespace {

enum ExitCode { Fine = 0, Failed = 1 };

void print(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

int fail(const QString& path, const drawing::Error& error)
{
    print(stderr, QStringLiteral("layerbench: %1\n").arg(messages::describe(path, error)));
    return Failed;
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY") ||
           qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

int printList(const Options& options)
{
    const auto drawing = drawing::Drawing::open(options.file);
    if (!drawing)
        return fail(options.file, drawing.error());
    print(stdout, QString::fromUtf8(layerListJson(**drawing)));
    return Fine;
}

/// Starts the host's services and loads the module. Without the module there are no layer dialogs,
/// but drawings can be viewed.
void startHost(host::Host& host, const QString& module)
{
    host::setCurrentDocument(host::makeDocument());
    if (const QString failure = host.loadModule(installation::modulePath(module));
        !failure.isEmpty())
        print(stderr, QStringLiteral("layerbench: %1\n").arg(failure));
}

/// Opens the drawing synchronously and saves the requested pictures.
int makePictures(const Options& options)
{
    MainWindow window;
    host::setMainWindow(&window);
    window.show();
    const bool useSample = options.file.isEmpty() && !options.gallery.isEmpty();
    const QString path = useSample ? installation::sampleDrawing() : options.file;
    if (!path.isEmpty()) {
        auto file = drawing::Drawing::open(path, nullptr, QThread::currentThread());
        if (!file)
            return fail(path, file.error());
        window.setFile(std::move(*file));
    }
    window.waitForPicture();
    if (!options.sheets.isEmpty()) {
        if (const auto saved = writeSheets(window, options.sheets); !saved)
            return fail(options.sheets, saved.error());
    }
    if (!options.screenshot.isEmpty()) {
        if (const auto saved = savePicture(window, options.screenshot); !saved)
            return fail(options.screenshot, saved.error());
    }
    if (!options.gallery.isEmpty()) {
        if (const auto saved =
                writeGallery(window, options.gallery, installation::sampleStandard());
            !saved)
            return fail(options.gallery, saved.error());
    }
    return Fine;
}

int runWindow(const Options& options)
{
    MainWindow window;
    host::setMainWindow(&window);
    window.show();
    if (!options.command.isEmpty()) {
        const QString command = options.command;
        // Queued, so that the command's dialogs open over a complete window.
        QObject::connect(
            &window, &MainWindow::fileOpened, &window,
            [&window, command, done = false]() mutable {
                if (!std::exchange(done, true))
                    window.runCommand(command);
            },
            Qt::QueuedConnection);
    }
    if (!options.file.isEmpty())
        window.openFile(options.file);
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    const bool display = hasDisplay();
    if (!display)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("layerbench"));
    QApplication::setApplicationVersion(QStringLiteral(LAYERBENCH_VERSION));
    QApplication::setOrganizationName(QStringLiteral("layerbench"));
    LanguageMenu::useLanguage(language::asked(QApplication::arguments()));

    const auto options = parseOptions(QApplication::arguments());
    if (!options) {
        print(options.error().code == Fine ? stdout : stderr, options.error().text);
        return options.error().code;
    }
    if (options->list)
        return printList(*options);
    if (!display && !options->isBatch()) {
        print(stderr,
            Texts::tr("layerbench: 没有可用的显示；可用 --gallery、--screenshot 或 --list。\n"));
        return Failed;
    }
    host::Host host;
    startHost(host, options->module);
    return options->isBatch() ? makePictures(*options) : runWindow(*options);
}
