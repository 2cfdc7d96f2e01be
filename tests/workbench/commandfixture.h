#pragma once

#include "drawing.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "useracts.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <memory>

/// The workbench with the module loaded and a sample open, its questions played by a recording
/// host.
class CommandFixture : public QObject
{
protected:
    /// Begins a test: the dialogs of these names are made and run for real.
    void start(std::initializer_list<const char*> dialogs)
    {
        m_module = std::make_unique<ModuleFixture>();
        m_host = std::make_unique<RecordingHost>();
        for (const char* dialog : dialogs)
            m_host->passThrough(dialog);
        m_host->setLogsTrees(false);
        m_window = std::make_unique<MainWindow>();
        open(QStringLiteral(SAMPLES "/office-floor.dxf"));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    /// Ends a test; questions left unasked fail it.
    void stop()
    {
        m_window.reset();
        m_host.reset();
        m_module.reset();
    }

    void open(const QString& path)
    {
        auto file = readFile(path, nullptr, QThread::currentThread());
        QVERIFY(file.has_value());
        m_window->setFile(std::move(*file));
        m_path = path;
        m_original = contentOf(path);
    }

    /// Runs a command; each dialog that comes up gets the next step.
    void run(const QString& command, const std::vector<ModalDriver::Step>& steps)
    {
        ModalDriver user;
        for (const ModalDriver::Step& step : steps)
            user.then(step);
        m_window->runCommand(command);
    }

    drawing::Drawing& drawing() const { return *m_window->drawing(); }
    const drawing::Layer* layer(const QString& name) const { return drawing().findLayer(name); }

    /// Saves to a file of that name; its bytes.
    QByteArray savedBytes(const QString& name = QStringLiteral("saved.dxf"))
    {
        const QString path = m_folder.filePath(name);
        return drawing().save(path) ? contentOf(path) : QByteArray();
    }

    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<ModuleFixture> m_module;
    std::unique_ptr<RecordingHost> m_host;
    std::unique_ptr<MainWindow> m_window;
    QString m_path; ///< Of the drawing that is open, and its bytes.
    QByteArray m_original;
};
