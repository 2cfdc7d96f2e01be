#pragma once

#include "OdError.h"

#include <vector>

/// A growable array that checks the index of every element access.
template <class T>
class OdArray
{
public:
    unsigned length() const { return static_cast<unsigned>(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    void append(const T& item) { m_items.push_back(item); }
    void clear() { m_items.clear(); }

    /// Throws `OdError_InvalidIndex` when `index` lies outside the array.
    const T& at(unsigned index) const
    {
        if (index >= m_items.size())
            throw OdError_InvalidIndex();
        return m_items[index];
    }
    T& at(unsigned index) { return const_cast<T&>(static_cast<const OdArray*>(this)->at(index)); }
    const T& operator[](unsigned index) const { return at(index); }
    T& operator[](unsigned index) { return at(index); }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::vector<T> m_items;
};
