#include "editing.h"

#include "layerrenaming.h"

#include <pybind11/operators.h>

#include <algorithm>

namespace py = pybind11;

namespace dxflayers {

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerProperties;

const Layer& LayerHandle::get() const
{
    const Layer* const layer = m_drawing->layer(m_id);
    if (!layer)
        refuse(drawing::Texts::tr("图层已从图形中删除。"));
    return *layer;
}

void LayerHandle::change(const std::function<void(LayerProperties&)>& act) const
{
    LayerProperties properties = get().properties;
    act(properties);
    edit(*m_drawing, QStringLiteral("set properties"),
        [&] { valueOf(m_drawing->setLayerProperties(m_id, properties)); });
}

LayerHandle layerNamed(const DrawingPtr& drawing, const QString& name)
{
    const Layer* const layer = drawing->findLayer(name);
    if (!layer)
        refuse(drawing::Texts::tr("图形中没有图层“%1”。").arg(name));
    return {drawing, layer->id};
}

std::vector<drawing::LayerId> idsOf(const DrawingPtr& drawing, const QStringList& names)
{
    std::vector<drawing::LayerId> ids;
    for (const QString& name : names)
        ids.push_back(layerNamed(drawing, name).id());
    return ids;
}

namespace {

/// A step as a `with` block. It is committed at the end and rolled back when an exception leaves
/// it.
class StepBlock
{
public:
    StepBlock(DrawingPtr drawing, QString name)
        : m_drawing(std::move(drawing)),
          m_name(std::move(name))
    {
    }
    void enter()
    {
        if (m_drawing->inStep())
            refuse(drawing::Texts::tr("已有一个步骤打开：步骤不能嵌套。"));
        m_drawing->beginStep(m_name);
    }
    bool leave(const py::object& type, const py::object&, const py::object&)
    {
        type.is_none() ? m_drawing->commitStep() : m_drawing->rollbackStep();
        return false;
    }

private:
    DrawingPtr m_drawing;
    QString m_name;
};

DrawingPtr open(const QString& path, const QString& encoding, bool partial)
{
    drawing::OpenOptions options;
    options.codePage = encoding.toLatin1();
    options.wholePart = partial;
    py::gil_scoped_release released;
    return valueOf(Drawing::open(path, nullptr, nullptr, options));
}

void save(Drawing& drawing, const std::optional<QString>& path)
{
    py::gil_scoped_release released;
    valueOf(drawing.save(path.value_or(drawing.path())));
}

std::vector<LayerHandle> layersOf(const DrawingPtr& drawing)
{
    std::vector<LayerHandle> layers;
    for (const Layer& layer : drawing->layers())
        layers.emplace_back(drawing, layer.id);
    return layers;
}

LayerHandle addLayer(const DrawingPtr& drawing, const QString& name)
{
    LayerProperties properties;
    properties.name = name;
    return {drawing, edit(*drawing, QStringLiteral("add layer"),
                         [&] { return valueOf(drawing->addLayer(properties)); })};
}

/// Renames layers according to a table, in its order. Either all renames succeed or none.
int rename(const DrawingPtr& drawing, const py::dict& names, bool merge)
{
    std::vector<drawing::LayerRename> renames;
    for (const auto& [from, to] : names) {
        if (!py::isinstance<py::str>(from) || !py::isinstance<py::str>(to))
            throw py::type_error("names: a str for each str");
        renames.push_back({layerNamed(drawing, from.cast<QString>()).id(), to.cast<QString>()});
    }
    return edit(*drawing, QStringLiteral("rename layers"), [&] {
        const auto done = drawing::renameLayers(
            *drawing, renames, merge ? drawing::NameClash::Merge : drawing::NameClash::Refuse);
        for (const drawing::LayerRenamed& one : done)
            if (one.outcome == drawing::LayerRenamed::Outcome::Refused)
                refuse(one.cause);
        return static_cast<int>(done.size());
    });
}

void mergeLayers(const DrawingPtr& drawing, const QStringList& sources, const QString& target)
{
    edit(*drawing, QStringLiteral("merge layers"), [&] {
        valueOf(drawing->mergeLayers(idsOf(drawing, sources), layerNamed(drawing, target).id()));
    });
}

void deleteLayers(const DrawingPtr& drawing, const QStringList& names)
{
    edit(*drawing, QStringLiteral("delete layers"),
        [&] { valueOf(drawing->deleteLayers(idsOf(drawing, names))); });
}

/// Deletes all empty layers and returns their names.
QStringList purge(const DrawingPtr& drawing)
{
    std::vector<drawing::LayerId> unused;
    QStringList names;
    for (const Layer& layer : drawing->layers()) {
        const bool stays = layer.used() || layer.dependsOnReference ||
                           layer.id == drawing->currentLayer() ||
                           layer.properties.name == QLatin1String("0");
        if (stays)
            continue;
        unused.push_back(layer.id);
        names.append(layer.properties.name);
    }
    edit(*drawing, QStringLiteral("purge layers"), [&] {
        for (const drawing::LayerId id : unused)
            valueOf(drawing->removeLayer(id));
    });
    return names;
}

/// Moves everything on the layers, including the contents of blocks, to another layer. The layers
/// stay.
int moveContents(const DrawingPtr& drawing, const QStringList& sources, const QString& target)
{
    const std::vector<drawing::LayerId> from = idsOf(drawing, sources);
    std::vector<int> entities;
    for (int i = 0; i < static_cast<int>(drawing->entities().size()); ++i) {
        const drawing::Entity& entity = drawing->entities()[static_cast<std::size_t>(i)];
        if (!entity.removed && std::find(from.begin(), from.end(), entity.layer) != from.end())
            entities.push_back(i);
    }
    return edit(*drawing, QStringLiteral("move to layer"),
        [&] { return valueOf(drawing->moveEntities(entities, layerNamed(drawing, target).id())); });
}

/// Binds a property of a layer, which can be changed by assigning to it.
template <class T>
void bindProperty(
    py::class_<LayerHandle>& layer, const char* name, T LayerProperties::*member, const char* text)
{
    layer.def_property(
        name, [member](const LayerHandle& self) { return self.get().properties.*member; },
        [member](const LayerHandle& self, const T& value) {
            self.change([&](LayerProperties& properties) { properties.*member = value; });
        },
        text);
}

void bindLayer(py::module_& module)
{
    py::class_<LayerHandle> layer(module, "Layer", "A layer of a drawing.");
    bindProperty(layer, "name", &LayerProperties::name, "The name; all that names it follows.");
    bindProperty(layer, "off", &LayerProperties::off, "Whether it is off.");
    bindProperty(layer, "frozen", &LayerProperties::frozen, "Whether it is frozen.");
    bindProperty(layer, "locked", &LayerProperties::locked, "Whether it is locked.");
    bindProperty(layer, "plotted", &LayerProperties::plotted, "Whether it is plotted.");
    bindProperty(layer, "color_index", &LayerProperties::colorIndex, "Colour by index, 1 to 255.");
    bindProperty(layer, "true_color", &LayerProperties::trueColor, "0xRRGGBB, or None.");
    bindProperty(layer, "linetype", &LayerProperties::linetype, "Name of the linetype.");
    bindProperty(layer, "lineweight", &LayerProperties::lineweight,
        "Hundredths of a millimetre; -3 is the default.");
    bindProperty(layer, "transparency", &LayerProperties::transparency, "Percent, 0 to 90.");
    bindProperty(layer, "description", &LayerProperties::description, "Free text.");
    layer
        .def_property_readonly(
            "plot_style", [](const LayerHandle& self) { return self.get().properties.plotStyle; },
            "Name of the plot style.")
        .def_property_readonly(
            "is_reference", [](const LayerHandle& self) { return self.get().dependsOnReference; },
            "Whether it belongs to an external reference.")
        .def_property_readonly(
            "entity_count", [](const LayerHandle& self) { return self.get().entityCount; },
            "Entities on it in model space, layouts and blocks.")
        .def(py::self == py::self)
        .def("__hash__", [](const LayerHandle& self) { return static_cast<int>(self.id()); })
        .def("__repr__", [](const LayerHandle& self) {
            return QStringLiteral("<Layer '%1'>").arg(self.get().properties.name);
        });
}

} // namespace

DrawingClass bindLayers(py::module_& module)
{
    bindLayer(module);
    py::class_<StepBlock>(module, "Step", "An undoable step, for `with`.")
        .def("__enter__", &StepBlock::enter)
        .def("__exit__", &StepBlock::leave);
    DrawingClass drawing(module, "Drawing", "A drawing in a DXF file.");
    drawing
        .def("save", save, py::arg("path") = py::none(),
            "Writes the drawing, what was not edited byte for byte, to its own file or another.")
        .def_property_readonly("path", &Drawing::path, "The file it lives in.")
        .def_property_readonly(
            "version", [](const Drawing& self) { return QString::fromLatin1(self.version()); },
            "The version the file says it has, such as AC1009.")
        .def_property_readonly("is_binary", &Drawing::isBinary, "Whether the file is binary DXF.")
        .def_property_readonly(
            "modified", &Drawing::isModified, "Whether it differs from its file.")
        .def_property_readonly("notices", &Drawing::openingNotices, "What had to be guessed.")
        .def("take_notices", &Drawing::takeNotices, "What edits since the last call left out.")
        .def_property_readonly("layers", layersOf, "All layers, in file order.")
        .def("layer", layerNamed, py::arg("name"), "The layer of that name, in any letter case.")
        .def(
            "__contains__",
            [](const Drawing& self, const QString& name) { return bool(self.findLayer(name)); },
            py::arg("name"))
        .def_property(
            "current",
            [](const DrawingPtr& self) { return LayerHandle(self, self->currentLayer()); },
            [](const DrawingPtr& self, const LayerHandle& layer) {
                edit(*self, QStringLiteral("current layer"),
                    [&] { valueOf(self->setCurrentLayer(layer.id())); });
            },
            "The current layer.")
        .def_property_readonly("linetypes", &Drawing::linetypes, "Names of the linetypes.")
        .def(
            "step",
            [](const DrawingPtr& self, const QString& name) { return StepBlock(self, name); },
            py::arg("name"), "Edits in its `with` block are one undo, taken back on an exception.")
        .def("add_layer", addLayer, py::arg("name"), "Makes a layer.")
        .def("rename", rename, py::arg("names"), py::kw_only(), py::arg("merge") = false,
            "Renames by a table of old and new names, which may go round in circles, in its order; "
            "how "
            "many.")
        .def("merge", mergeLayers, py::arg("sources"), py::arg("target"),
            "Puts all that is on the sources on the target and removes them.")
        .def("delete", deleteLayers, py::arg("names"), "Removes layers with all that is on them.")
        .def("purge", purge, "Removes the layers that nothing is on; their names.")
        .def("move", moveContents, py::arg("sources"), py::arg("target"),
            "Puts all that is on the sources on the target, the layers stay; how many entities.")
        .def_property_readonly("undo_name", &Drawing::undoName, "What `undo` takes back.")
        .def("undo", &Drawing::undo, "Takes the last step back.")
        .def("redo", &Drawing::redo, "Does again what was taken back.");
    module.def("open", open, py::arg("path"), py::kw_only(), py::arg("encoding") = QString(),
        py::arg("partial") = false,
        "Opens a DXF file, text or binary. `partial` opens what is whole of a file that is cut "
        "off.");
    return drawing;
}

} // namespace dxflayers
