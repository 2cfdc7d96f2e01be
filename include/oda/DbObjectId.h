#pragma once

#include "OdaCommon.h"

/// Identifies an object of a drawing by its handle. A default-constructed id is null.
class OdDbObjectId
{
public:
    OdDbObjectId() = default;
    explicit OdDbObjectId(std::uint64_t handle) : m_handle(handle) {}
    bool isNull() const { return m_handle == 0; }
    std::uint64_t getHandle() const { return m_handle; }

private:
    std::uint64_t m_handle = 0;
};
