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

/// Keeps a picture of a view until there is a newer one. A cheap picture is painted immediately.
/// Others are painted on separate threads, and meanwhile the last one is shown at its place in the
/// view. When the view only moved by whole pixels, the old picture is reused and only its margin is
/// painted.
class KeptPicture : public QObject
{
    Q_OBJECT

public:
    /// Paints everything in `area`, to which the painter is clipped, over the background. It is
    /// called on several threads at the same time and may stop when `isDropped` becomes true.
    using Paint = std::function<void(QPainter& painter, const CanvasView& view, const QRect& area,
        const std::atomic<bool>& isDropped)>;

    KeptPicture(QImage::Format format, QObject* parent);
    ~KeptPicture() override; ///< Cancels the painting under way.

    /// Sets new contents and a new background.
    void setContent(const Paint& paint, const QColor& ground, bool isCheap);
    /// Makes sure that there will be a picture of this view. A cheap one is ready on return.
    void provide(const CanvasView& view, qreal pixelRatio);
    /// Draws the last picture at its place in the view.
    void draw(QPainter& painter, const CanvasView& view) const;
    /// Whether the picture shows the present contents in this view.
    bool isOf(const CanvasView& view) const;

signals:
    void painted(); ///< There is a newer picture, which may already be out of date.

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
    CanvasView m_view;          ///< The view that the image shows.
    int m_version = -1;         ///< The version of the contents that the image shows.
    std::shared_ptr<Job> m_job; ///< The painting under way.
    Crew m_crew;
};
