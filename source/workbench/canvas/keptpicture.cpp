#include "keptpicture.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Bands begin at multiples of this many pixels, so that they begin at whole device pixels on usual
/// screens.
constexpr int kBandStep = 4;
/// The event that a thread posts when it has painted the last area of a picture.
constexpr auto kPainted = static_cast<QEvent::Type>(QEvent::User + 1);

/// Divides the rows of a picture into one band per thread.
std::vector<QRect> bandsOf(const QSize& size, int count)
{
    const int steps = (size.height() + kBandStep - 1) / kBandStep;
    const int height = std::max(1, (steps + count - 1) / count) * kBandStep;
    std::vector<QRect> bands;
    for (int y = 0; y < size.height(); y += height)
        bands.emplace_back(0, y, size.width(), std::min(height, size.height() - y));
    return bands;
}

} // namespace

/// A picture that is being painted.
struct KeptPicture::Job
{
    void paint(const QRect& area);

    Content content;
    CanvasView view;
    qreal pixelRatio = 1;
    QImage image;
    /// The pixels of the image. The painter of each area uses its own image on them.
    uchar* bits = nullptr;
    std::vector<QRect> areas; ///< The areas still to be painted. They do not overlap.
    std::atomic<int> areasLeft{0};
    std::atomic<bool> isDropped{false};
};

void KeptPicture::Job::paint(const QRect& area)
{
    QImage target(bits, image.width(), image.height(), image.bytesPerLine(), image.format());
    target.setDevicePixelRatio(pixelRatio);
    QPainter painter(&target);
    // Only with a rectangular clip are thin lines written pixel by pixel instead of by spans, which
    // gives the same result in a third of the time.
    painter.setClipRect(area);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(area, content.ground);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (content.paint)
        content.paint(painter, view, area, isDropped);
}

KeptPicture::KeptPicture(QImage::Format format, QObject* parent) : QObject(parent), m_format(format)
{
}

KeptPicture::~KeptPicture()
{
    drop();
    m_crew.waitForDone();
}

void KeptPicture::drop()
{
    if (m_job)
        m_job->isDropped = true;
    m_job.reset();
}

void KeptPicture::setContent(const Paint& paint, const QColor& ground, bool isCheap)
{
    m_content = {paint, ground, m_content.version + 1};
    m_isCheap = isCheap;
}

bool KeptPicture::isOf(const CanvasView& view) const
{
    return m_version == m_content.version && m_view == view && !m_image.isNull();
}

void KeptPicture::provide(const CanvasView& view, qreal pixelRatio)
{
    const bool isThere = isOf(view) && qFuzzyCompare(m_image.devicePixelRatio(), pixelRatio);
    if (isThere || view.size().isEmpty())
        return;
    if (m_isCheap) {
        drop();
        const auto job = newJob(view, pixelRatio);
        job->paint(QRect({0, 0}, view.size()));
        take(*job);
    } else if (!m_job) { // Otherwise the next picture follows when the present one is done.
        start(newJob(view, pixelRatio));
    }
}

std::shared_ptr<KeptPicture::Job> KeptPicture::newJob(
    const CanvasView& view, qreal pixelRatio) const
{
    auto job = std::make_shared<Job>();
    job->content = m_content;
    job->view = view;
    job->pixelRatio = pixelRatio;
    job->image = QImage(view.size() * pixelRatio, m_format);
    job->image.setDevicePixelRatio(pixelRatio);
    job->bits = job->image.bits();
    return job;
}

/// Copies the part of the last picture that is still in view and leaves the margin to be painted.
/// Returns false when nothing can be copied.
bool KeptPicture::keepMoved(Job& job) const
{
    constexpr double kExact = 1e-3;
    const bool isSame = m_version == job.content.version && m_view.scale() == job.view.scale() &&
                        m_image.size() == job.image.size() &&
                        m_image.devicePixelRatio() == job.pixelRatio;
    if (!isSame)
        return false;
    const QPointF moved = job.view.toScreen(m_view.toDrawing({0, 0}));
    const QPoint shift = moved.toPoint();
    const QPoint pixels = (QPointF(shift) * job.pixelRatio).toPoint();
    const QRect all({0, 0}, job.view.size());
    const QRect kept = all.translated(shift) & all;
    const auto isWhole = [](const QPointF& exact, const QPoint& whole) {
        return (exact - whole).manhattanLength() < kExact;
    };
    if (!isWhole(moved, shift) || !isWhole(QPointF(shift) * job.pixelRatio, pixels) ||
        kept.isEmpty())
        return false;
    QPainter painter(&job.image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(shift, m_image);
    painter.end();
    for (const QRect& margin : QRegion(all) - kept)
        job.areas.push_back(margin);
    return true;
}

void KeptPicture::start(const std::shared_ptr<Job>& job)
{
    if (!keepMoved(*job))
        job->areas = bandsOf(job->view.size(), Crew::size());
    if (job->areas.empty()) {
        take(*job);
        return;
    }
    m_job = job;
    job->areasLeft = static_cast<int>(job->areas.size());
    for (const QRect& area : job->areas) {
        m_crew.start([this, job, area] {
            job->paint(area);
            if (--job->areasLeft == 0)
                QCoreApplication::postEvent(this, new QEvent(kPainted));
        });
    }
}

bool KeptPicture::event(QEvent* event)
{
    if (event->type() != kPainted || !m_job || m_job->areasLeft > 0)
        return QObject::event(event);
    take(*std::exchange(m_job, nullptr));
    emit painted();
    return true;
}

void KeptPicture::take(Job& job)
{
    m_image = std::move(job.image);
    m_view = job.view;
    m_version = job.content.version;
}

/// A picture of another view is drawn at its place in this view until there is a new one.
void KeptPicture::draw(QPainter& painter, const CanvasView& view) const
{
    if (m_view == view) {
        painter.drawImage(0, 0, m_image);
        return;
    }
    const QPointF corner = view.toScreen(m_view.toDrawing({0, 0}));
    const double zoom = view.scale() / m_view.scale();
    painter.drawImage(QRectF(corner, QSizeF(m_view.size()) * zoom), m_image);
}
