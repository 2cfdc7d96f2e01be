#include "editing.h"
#include "language.h"

#include <QCoreApplication>

namespace py = pybind11;

namespace {

/// Sets the language. Qt only translates for an application object. That object is never destroyed,
/// because objects that the interpreter destroys later may still need texts.
void useLanguage(const QString& code)
{
    if (!language::isKnown(code))
        dxflayers::refuse(drawing::Texts::tr("没有语言“%1”；可用的语言: %2。")
                              .arg(code, QString::fromLatin1(language::kCodes)));
    static int count = 1;
    static char name[] = "dxflayers";
    static char* words[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(count, words);
    language::use(code, {QStringLiteral("drawing"), QStringLiteral("layertool")});
}

} // namespace

PYBIND11_MODULE(_dxflayers, module)
{
    module.doc() = "The layers of DXF drawings, edited without losing a byte.";
    // Created once; it exists as long as the interpreter.
    static PyObject* const error = PyErr_NewExceptionWithDoc("dxflayers.Error",
        "A refusal: a sentence that names the thing and the cause; `line` of the file, or None.",
        PyExc_ValueError, nullptr);
    module.add_object("Error", error);
    py::register_exception_translator([](std::exception_ptr thrown) {
        try {
            std::rethrow_exception(thrown);
        } catch (const dxflayers::Refusal& refusal) {
            py::object value = py::reinterpret_borrow<py::object>(error)(refusal.what());
            value.attr("line") = refusal.line() > 0 ? py::cast(refusal.line()) : py::none();
            PyErr_SetObject(error, value.ptr());
        }
    });
    module.def("use_language", useLanguage, py::arg("language"),
        "Says sentences in a language, zh or en. Comes after an application of Qt, where one is "
        "made.");
    dxflayers::DrawingClass drawing = dxflayers::bindLayers(module);
    dxflayers::bindStates(drawing);
    dxflayers::bindStandards(module, drawing);
}
