#pragma once

#include "canvasview.h"
#include "crew.h"

#include <QColor>
#include <QImage>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

class QPainter;

/// A picture of a view that is kept until there is a newer one. A cheap one is painted at once;
/// others are painted on threads of their own while the last one is shown, moved to where it
/// belongs. Where the view only moved by whole pixels, what was painted is kept and the margin
/// painted.
class KeptPicture : public QObject
{
    Q_OBJECT

public:
    /// Paints what lies in `area`, to which the painter is clipped, over the ground. Runs on
    /// several threads at the same time; may give up when `isDropped` turns true.
    using Paint = std::function<void(QPainter& painter, const CanvasView& view, const QRect& area,
        const std::atomic<bool>& isDropped)>;

    KeptPicture(QImage::Format format, QObject* parent);
    ~KeptPicture() override; ///< Drops what is being painted.

    /// From here on another content is painted over another ground.
    void setContent(const Paint& paint, const QColor& ground, bool isCheap);
    /// Sees to a picture of this view: it is there on return when it is cheap, or will be.
    void provide(const CanvasView& view, qreal pixelRatio);
    /// Draws the last picture where it belongs in the view.
    void draw(QPainter& painter, const CanvasView& view) const;
    /// Whether the picture shows the present content in this view.
    bool isOf(const CanvasView& view) const;

signals:
    void painted(); ///< There is a newer picture, which may be out of date already.

protected:
    bool event(QEvent* event) override;

private:
    struct Content
    {
        Paint paint;
        QColor ground;
        int version = 0;
    };
    struct Job;

    std::shared_ptr<Job> newJob(const CanvasView& view, qreal pixelRatio) const;
    bool keepMoved(Job& job) const;
    void drop();
    void start(const std::shared_ptr<Job>& job);
    void take(Job& job);

    QImage::Format m_format;
    Content m_content;
    bool m_isCheap = true;
    QImage m_image;
    CanvasView m_view;          ///< Of the image.
    int m_version = -1;         ///< Of the content that the image shows.
    std::shared_ptr<Job> m_job; ///< Under way.
    Crew m_crew;
};
