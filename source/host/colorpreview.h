#pragma once

#include <QColor>
#include <QWidget>

namespace host {

/// Shows the old and the new colour side by side on the drawing's background.
class ColorPreview : public QWidget
{
    Q_OBJECT

public:
    explicit ColorPreview(QWidget* parent = nullptr);

    void setBackground(const QColor& color);
    /// An invalid colour shows the bare background.
    void setOld(const QColor& color);
    void setNew(const QColor& color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_background = Qt::black;
    QColor m_old;
    QColor m_new;
};

} // namespace host
