#include "editing.h"

#include "states/layerstate.h"
#include "states/layerstatefile.h"

namespace py = pybind11;

namespace dxflayers {

using drawing::Drawing;
using drawing::LayerState;

namespace {

LayerState stateNamed(const Drawing& drawing, const QString& name)
{
    auto state = drawing.layerState(name);
    if (!state)
        refuse(drawing::Texts::tr("图形中没有图层状态“%1”。").arg(name));
    return *std::move(state);
}

void saveState(Drawing& drawing, const QString& name, const QString& description)
{
    LayerState state = captureLayerState(drawing, name);
    state.description = description;
    edit(drawing, QStringLiteral("save layer state"),
        [&] { valueOf(drawing.putLayerStates({state})); });
}

QStringList restoreState(Drawing& drawing, const QString& name, bool turnOthersOff)
{
    const LayerState state = stateNamed(drawing, name);
    drawing::LayerStateRestore how;
    how.mask = state.mask;
    how.turnOthersOff = turnOthersOff;
    return edit(drawing, QStringLiteral("restore layer state"),
        [&] { return restoreLayerState(drawing, state, how); });
}

void removeStates(Drawing& drawing, const QStringList& names)
{
    edit(drawing, QStringLiteral("delete layer states"),
        [&] { valueOf(drawing.removeLayerStates(names)); });
}

void exportStates(
    const Drawing& drawing, const QString& path, const std::optional<QStringList>& names)
{
    std::vector<LayerState> states;
    for (const QString& name : names.value_or(drawing.layerStateNames()))
        states.push_back(stateNamed(drawing, name));
    valueOf(drawing::writeLayerStateFile(path, states));
}

/// Imports layer states. Returns one sentence for each thing in the file that could not be used.
QStringList importStates(Drawing& drawing, const QString& path)
{
    auto file = valueOf(drawing::readLayerStateFile(path, drawing.codec()));
    for (LayerState& state : file.states)
        for (const QString& layer : dropUnknownLayers(state, drawing))
            file.notices.append(
                drawing::Texts::tr("图层状态“%1”：图形中没有图层“%2”。").arg(state.name, layer));
    edit(drawing, QStringLiteral("import layer states"),
        [&] { valueOf(drawing.putLayerStates(file.states)); });
    return file.notices;
}

} // namespace

void bindStates(DrawingClass& drawing)
{
    drawing.def_property_readonly("states", &Drawing::layerStateNames, "Names of the layer states.")
        .def("save_state", saveState, py::arg("name"), py::arg("description") = QString(),
            "Saves how the layers are now under a name.")
        .def("restore_state", restoreState, py::arg("name"), py::kw_only(),
            py::arg("turn_others_off") = false,
            "Brings the layers back to a state; sentences on what could not be.")
        .def("remove_states", removeStates, py::arg("names"), "Deletes layer states.")
        .def("export_states", exportStates, py::arg("path"), py::arg("names") = py::none(),
            "Writes layer states, all where none are named, to a *.las file.")
        .def("import_states", importStates, py::arg("path"),
            "Takes in the layer states of a *.las file; sentences on what could not be used.");
}

} // namespace dxflayers
