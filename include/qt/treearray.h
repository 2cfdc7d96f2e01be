#pragma once

#include "vnjson.h"

/// The way to the elements of arrays, for dialogs and commands.
namespace vnsi::treearray {

/// The elements of an array; 0 for an empty handle and other kinds of nodes.
inline int count(const VnJsonPtr& array)
{
    return array ? array->ArrayCount() : 0;
}

/// Element `index`; empty outside the array.
inline VnJsonPtr item(const VnJsonPtr& array, int index)
{
    return index >= 0 && index < count(array) ? array(index) : VnJsonPtr();
}

} // namespace vnsi::treearray
