#pragma once

#include <QtTest>

/// The rows of a data-driven test: names its columns, then is called once a row with the row's name
/// and a value for each column.
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
