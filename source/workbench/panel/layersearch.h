#pragma once

#include "layercolumns.h"

#include <functional>

/// Decides whether a layer is shown.
using LayerTest = std::function<bool(const LayerRow& row)>;

/// A typed search for layers by name or description, ignoring letter case. A plain text is found
/// anywhere in either. A text with `*`, `?` or other wildcards must match the whole name. A text
/// between slashes is a regular expression that is searched for in either.
class LayerSearch
{
public:
    LayerSearch() = default;
    explicit LayerSearch(const QString& typed);

    /// A text for people that says what is wrong with the expression; empty when it is valid.
    const QString& fault() const { return m_fault; }
    /// Null when every layer is found.
    const LayerTest& test() const { return m_test; }

private:
    LayerTest m_test;
    QString m_fault;
};

/// Makes a test for whether texts match a wildcard pattern. It is fast for many texts.
std::function<bool(const QString& text)> wildcardTest(const QString& pattern);
