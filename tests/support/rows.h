#pragma once

#include <QtTest>

/// Adds the rows of a data-driven test. It is constructed with the names of the columns and then
/// called once per row with the row's name and one value per column.
template <class... Columns>
class Rows
{
public:
    template <class... Names>
    explicit Rows(Names... names)
    {
        static_assert(sizeof...(Names) == sizeof...(Columns), "every column has a name");
        (QTest::addColumn<Columns>(names), ...);
    }

    void operator()(const char* name, const Columns&... values) const
    {
        (QTest::newRow(name) << ... << values);
    }
};
