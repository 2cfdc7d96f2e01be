#pragma once

#include "canvaspicture.h"
#include "sketch.h"

#include <QtTest>

#include <algorithm>
#include <memory>

/// A canvas of 400 by 300 pixels and the drawing that it shows.
class CanvasFixture : public QObject
{
protected:
    void start()
    {
        m_sketch = std::make_unique<Sketch>();
        m_canvas = std::make_unique<Canvas>();
        m_canvas->resize(400, 300);
    }

    /// Shows a drawing in the canvas. Later changes of the drawing are not followed; only changes
    /// of layers are.
    void show(const QByteArray& entities)
    {
        m_drawing = m_sketch->open(entities);
        QVERIFY(m_drawing);
        m_layers = m_drawing->layers();
        m_canvas->setScene(
            std::make_shared<const drawing::Geometry>(drawing::buildGeometry(*m_drawing).value()));
        if (auto sheet = m_drawing->sheet())
            m_canvas->setSheet(std::make_shared<const drawing::Sheet>(std::move(*sheet)));
        m_canvas->setLayers(m_layers);
        m_canvas->zoomToExtents();
    }

    drawing::LayerProperties& layer(const QString& name)
    {
        return std::find_if(m_layers.begin(), m_layers.end(), [&name](const auto& candidate) {
            return candidate.properties.name == name;
        })->properties;
    }

    QImage picture() { return pictureOf(*m_canvas); }
    /// The pixel that shows a point of the drawing.
    QPoint at(const QPointF& point) const { return m_canvas->view().toScreen(point).toPoint(); }
    QColor colorAt(const QPointF& point) { return picture().pixelColor(at(point)); }

    std::unique_ptr<Sketch> m_sketch;
    std::unique_ptr<Canvas> m_canvas;
    std::unique_ptr<drawing::Drawing> m_drawing;
    std::vector<drawing::Layer> m_layers;
};
