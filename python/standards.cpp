#include "editing.h"

#include "check/rulefile.h"
#include "check/rules.h"
#include "standardsfile.h"

#include <array>

namespace py = pybind11;

namespace dxflayers {

using drawing::Drawing;
using drawing::MappingResult;
using layertool::Finding;

namespace {

const char* outcomeWord(const MappingResult& mapping)
{
    constexpr std::array kWords{"left-out", "made", "changed", "unchanged"};
    return kWords.at(static_cast<std::size_t>(mapping.target));
}

std::vector<MappingResult> translate(Drawing& drawing, const QString& path, bool mapSame,
    bool inBlocks, bool colorByLayer, bool linetypeByLayer, bool transparencyByLayer)
{
    const drawing::Standard standard = valueOf(drawing::readStandard(path));
    std::vector<drawing::LayerMapping> mappings = standard.mappings;
    if (mapSame)
        for (auto& mapping : sameNamedMappings(drawing, standard.layers, mappings))
            mappings.push_back(std::move(mapping));
    drawing::TranslationOptions options;
    options.inBlocks = inBlocks;
    options.colorByLayer = colorByLayer;
    options.linetypeByLayer = linetypeByLayer;
    options.transparencyByLayer = transparencyByLayer;
    return edit(drawing, QStringLiteral("translate layers"),
        [&] { return valueOf(translateLayers(drawing, mappings, options)).mappings; });
}

std::vector<Finding> check(const Drawing& drawing, const QStringList& standards)
{
    const layertool::LayerRules rules = valueOf(layertool::readRules(standards));
    return checkDrawing(drawing, rules);
}

} // namespace

void bindStandards(py::module_& module, DrawingClass& drawing)
{
    py::class_<MappingResult>(module, "Mapping", "What became of a layer that was translated.")
        .def_readonly("source", &MappingResult::from, "The layer translated.")
        .def_readonly("target", &MappingResult::to, "The layer of the standard.")
        .def_property_readonly("outcome", outcomeWord, "made, changed, unchanged or left-out.")
        .def_readonly("translated", &MappingResult::translated, "Entities on the target by it.")
        .def_readonly("cause", &MappingResult::cause, "Why it was left out.")
        .def("__repr__", [](const MappingResult& self) {
            return QStringLiteral("<Mapping '%1' -> '%2'>").arg(self.from, self.to);
        });
    py::class_<Finding>(module, "Finding", "Something a rule found in a drawing.")
        .def_readonly("rule", &Finding::rule, "The rule's id.")
        .def_property_readonly(
            "level", [](const Finding& self) { return layertool::levelWord(self.level); },
            "note, warning or error.")
        .def_readonly("layer", &Finding::layer, "The layer concerned; empty where none is.")
        .def_readonly("property", &Finding::property, "The property concerned.")
        .def_readonly("expected", &Finding::expected, "What the standard wants.")
        .def_readonly("actual", &Finding::actual, "What the drawing has.")
        .def_readonly("count", &Finding::count, "Entities concerned.")
        .def_readonly("text", &Finding::text, "A sentence.")
        .def("__repr__", [](const Finding& self) {
            return QStringLiteral("<Finding %1 '%2'>").arg(QLatin1String(self.rule), self.layer);
        });
    drawing
        .def("translate", translate, py::arg("standard"), py::kw_only(), py::arg("map_same") = true,
            py::arg("in_blocks") = true, py::arg("color_bylayer") = false,
            py::arg("linetype_bylayer") = false, py::arg("transparency_bylayer") = false,
            "Brings layers to those of a standard drawing, by its mappings and by name.")
        .def("check", check, py::arg("standards"),
            "Holds the drawing against standards: drawings, or rule files in JSON.");
}

} // namespace dxflayers
