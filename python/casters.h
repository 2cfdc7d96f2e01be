#pragma once

// Included before Qt, because Qt's keyword `slots` is the name of a member in Python's headers.
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "file/drawingtexts.h"
#include "file/error.h"

#include <QStringList>

namespace pybind11::detail {

/// Converts texts without loss, even with U+0000 and single surrogates in them.
template <>
struct type_caster<QString>
{
    PYBIND11_TYPE_CASTER(QString, const_name("str"));

    bool load(handle source, bool)
    {
        if (!PyUnicode_Check(source.ptr()))
            return false;
        Py_ssize_t size = 0;
        const char* const text = PyUnicode_AsUTF8AndSize(source.ptr(), &size);
        if (!text) {
            PyErr_Clear();
            return false;
        }
        value = QString::fromUtf8(text, static_cast<int>(size));
        return true;
    }

    static handle cast(const QString& text, return_value_policy, handle)
    {
        int order = 0; // The byte order of the machine.
        return PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(text.utf16()),
            Py_ssize_t(text.size()) * 2, "surrogatepass", &order);
    }
};

template <>
struct type_caster<QStringList> : list_caster<QStringList, QString>
{
};

} // namespace pybind11::detail

namespace dxflayers {

/// Carries a refusal of the drawing library to Python, where it becomes `dxflayers.Error`.
class Refusal : public std::exception
{
public:
    explicit Refusal(drawing::Error error)
        : m_error(std::move(error)),
          m_text(m_error.text.toStdString())
    {
    }
    const char* what() const noexcept override { return m_text.c_str(); }
    qint64 line() const { return m_error.line; }

private:
    drawing::Error m_error;
    std::string m_text;
};

[[noreturn]] inline void refuse(const QString& text)
{
    throw Refusal(drawing::Error{text});
}

/// Returns the value or throws the refusal.
template <class T>
T valueOf(drawing::Expected<T> result)
{
    if (!result)
        throw Refusal(std::move(result.error()));
    if constexpr (!std::is_void_v<T>)
        return std::move(*result);
}

} // namespace dxflayers
