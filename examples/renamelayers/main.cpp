// renamelayers DRAWING OLD NEW: renames a layer and updates everything that refers to it.
#include <drawing.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    QTextStream err(stderr);
    if (words.size() != 4)
        return 2;
    const auto opened = drawing::Drawing::open(words[1]);
    if (!opened) {
        err << opened.error().text << '\n';
        return 1;
    }
    drawing::Drawing& drawing = **opened;
    const drawing::Layer* layer = drawing.findLayer(words[2]);
    if (!layer) {
        err << words[1] << ": no layer " << words[2] << '\n';
        return 1;
    }
    drawing::LayerProperties properties = layer->properties;
    properties.name = words[3];
    // One undo step. It is rolled back when the scope is left early.
    drawing::DrawingStep step(drawing, "rename");
    const auto saved = drawing.setLayerProperties(layer->id, properties).and_then([&] {
        step.commit();
        return drawing.save(words[1]);
    });
    if (!saved)
        err << saved.error().text << '\n';
    return saved ? 0 : 1;
}
