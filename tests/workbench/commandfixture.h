#pragma once

#include "canvaspicture.h"
#include "files.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "steps.h"
#include "useracts.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <memory>

/// The workbench with the loaded module and an open sample. A recording host answers its questions.
class CommandFixture : public QObject
{
protected:
    /// Begins a test. Dialogs of these names run for real.
    void start(std::initializer_list<const char*> dialogs)
    {
        m_module = std::make_unique<ModuleFixture>();
        m_folder = std::make_unique<QTemporaryDir>();
        m_host = std::make_unique<RecordingHost>();
        for (const char* dialog : dialogs)
            m_host->passThrough(dialog);
        m_host->setLogsTrees(false);
        m_window = std::make_unique<MainWindow>();
        open(SAMPLES "/office-floor.dxf");
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    /// Ends a test. It fails when expected questions were not asked.
    void stop()
    {
        m_window.reset();
        m_host.reset();
        m_module.reset();
    }

    void open(const QString& path)
    {
        auto file = drawing::Drawing::open(path, nullptr, QThread::currentThread());
        QVERIFY(file.has_value());
        m_window->setFile(std::move(*file));
        m_path = path;
        m_original = contentOf(path);
    }
    /// Opens a new file with these bytes in the test's folder, where files beside it are found.
    void open(const QString& name, const QByteArray& bytes)
    {
        open(writtenFile(inFolder(name), bytes));
    }

    /// Runs a command. Each dialog that appears gets the next step.
    void run(const QString& command, const std::vector<ModalDriver::Step>& steps)
    {
        ModalDriver user;
        m_user = &user;
        for (const ModalDriver::Step& step : steps)
            then(step);
        m_window->runCommand(command);
    }
    /// Queues a step for the next dialog that appears while a command runs.
    void then(const ModalDriver::Step& step) { m_user->then(step); }
    /// A step that closes its dialog even if the step fails.
    static ModalDriver::Step closing(const ModalDriver::Step& acts)
    {
        return [acts](QDialog& dialog) {
            acts(dialog);
            dialog.close();
        };
    }
    /// Makes the next file dialog return these paths.
    void answerFiles(const QStringList& paths)
    {
        m_host->answer(1, QString(R"({"filePath":"%1","filePaths":["%2"]})")
                              .arg(paths.first(), paths.join("\",\"")));
    }

    /// A picture of the canvas after the drawing was flattened and painted.
    QImage picture() const
    {
        for (;;) {
            QImage picture = pictureOf(*m_window->canvas());
            if (m_window->isPictureWhole())
                return picture;
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    drawing::Drawing& drawing() const { return *m_window->drawing(); }
    const drawing::Layer* layer(const QString& name) const { return drawing().findLayer(name); }
    QString current() const { return currentName(drawing()); }
    QStringList messages() const { return m_host->log().filter("message|"); }
    QString inFolder(const QString& name) const { return m_folder->filePath(name); }

    /// Saves the drawing under this name and returns the file's bytes.
    QByteArray savedBytes(const QString& name = "saved.dxf")
    {
        return drawing().save(inFolder(name)) ? contentOf(inFolder(name)) : QByteArray();
    }

    /// Checks that the command was one step, and that undoing it restores every byte.
    void checkUndo()
    {
        QVERIFY(savedBytes() != m_original);
        drawing().undo();
        QVERIFY(!drawing().canUndo());
        QVERIFY(savedBytes() == m_original);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ModuleFixture> m_module;
    std::unique_ptr<RecordingHost> m_host;
    std::unique_ptr<MainWindow> m_window;
    QString m_path; ///< The path of the open drawing; its bytes follow.
    QByteArray m_original;

private:
    ModalDriver* m_user = nullptr;
};
