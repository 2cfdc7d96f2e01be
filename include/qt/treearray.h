#pragma once

#include "vnjson.h"

/// Safe access to the elements of arrays, for dialogs and commands.
namespace vnsi::treearray {

/// The number of elements of an array; 0 for an empty handle and for other kinds of nodes.
inline int count(const VnJsonPtr& array)
{
    return array ? array->ArrayCount() : 0;
}

/// The element at `index`; empty when `index` lies outside the array.
inline VnJsonPtr item(const VnJsonPtr& array, int index)
{
    return index >= 0 && index < count(array) ? array(index) : VnJsonPtr();
}

} // namespace vnsi::treearray
