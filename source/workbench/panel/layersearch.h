#pragma once

#include "layercolumns.h"

#include <functional>

/// Whether a layer is to be shown.
using LayerTest = std::function<bool(const LayerRow& row)>;

/// What is typed to find layers by name or description, letter case apart: a text is looked for
/// anywhere in either; one with `*`, `?` or the other wildcards must fit the whole name; one
/// between slashes is a regular expression to be found in either.
class LayerSearch
{
public:
    LayerSearch() = default;
    explicit LayerSearch(const QString& typed);

    /// What is wrong with the expression, for people; empty when it can be used.
    const QString& fault() const { return m_fault; }
    /// Null where every layer is found.
    const LayerTest& test() const { return m_test; }

private:
    LayerTest m_test;
    QString m_fault;
};

/// A test whether a text fits a wildcard pattern, for many texts.
std::function<bool(const QString& text)> wildcardTest(const QString& pattern);
