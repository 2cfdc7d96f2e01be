#include "drawingsession.h"

#include "messages.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QWidget>

DrawingSession::DrawingSession(QWidget* window)
    : QObject(window),
      m_window(window),
      m_worker(std::make_unique<FileWorker>())
{
    FileWorker* const worker = m_worker.get();
    connect(worker, &FileWorker::opened, this,
        [this](const std::shared_ptr<drawing::Drawing>& drawing) { adopt(drawing); });
    connect(worker, &FileWorker::saved, this, [this](const QString& path) {
        emit said(tr("已保存 %1").arg(QDir::toNativeSeparators(path)));
        emit saved(path);
    });
    connect(worker, &FileWorker::openFailed, this,
        [this](const QString& path, drawing::OpenOptions options, const drawing::Error& error) {
            emit failed(path);
            if (!error.hasWholePart) {
                report(tr("无法打开图形"), path, error);
                return;
            }
            options.wholePart = messages::askToOpenPart(m_window, path, error);
            if (options.wholePart)
                m_worker->open(path, options);
        });
    connect(worker, &FileWorker::saveFailed, this,
        [this](const QString& path, const drawing::Error& error) {
            report(tr("无法保存图形"), path, error);
        });
}

void DrawingSession::open(const QString& path, const drawing::OpenOptions& options)
{
    if (!isBusy() && confirmDiscard())
        m_worker->open(path, options);
}

void DrawingSession::adopt(std::shared_ptr<drawing::Drawing> drawing)
{
    m_drawing = std::move(drawing);
    emit said(tr("已打开 %1: %2 个图层, %3 个对象")
                  .arg(QDir::toNativeSeparators(m_drawing->path()))
                  .arg(m_drawing->layers().size())
                  .arg(m_drawing->entities().size()));
    for (const QString& notice : m_drawing->openingNotices())
        emit said(notice);
    emit opened();
}

void DrawingSession::save(const QString& path)
{
    if (m_drawing && !isBusy())
        m_worker->save(*m_drawing, path);
}

bool DrawingSession::confirmDiscard()
{
    if (!m_drawing || !m_drawing->isModified())
        return true;
    const auto choice = messages::askToSave(m_window, QFileInfo(m_drawing->path()).fileName());
    if (choice != messages::SaveChoice::Save)
        return choice == messages::SaveChoice::Discard;
    save(m_drawing->path());
    waitForWorker();
    return !m_drawing->isModified();
}

bool DrawingSession::confirmClose()
{
    if (m_waiting)
        return false;
    m_worker->cancel();
    waitForWorker();
    return confirmDiscard();
}

/// Waits until the running job has ended. The window stays responsive meanwhile.
void DrawingSession::waitForWorker()
{
    if (!m_worker->isBusy())
        return;
    QEventLoop loop;
    connect(m_worker.get(), &FileWorker::finished, &loop, &QEventLoop::quit);
    m_waiting = true;
    loop.exec();
    m_waiting = false;
}

void DrawingSession::report(const QString& title, const QString& path, const drawing::Error& error)
{
    if (error.cancelled) {
        emit said(tr("已取消。"));
        return;
    }
    emit said(messages::describe(path, error));
    messages::showFailure(m_window, title, path, error);
}
