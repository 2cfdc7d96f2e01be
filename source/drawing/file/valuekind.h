#pragma once

#include <QtGlobal>

#include <array>

namespace drawing {

/// The type of a group's value, as far as its code tells.
enum class ValueKind : quint8 { Unknown, Text, Real, Int8, Int16, Int32, Int64, Chunk };

/// The bytes that a value takes in a binary file; 0 when the length varies.
constexpr std::array<quint8, 8> kValueSizes = {0, 0, 8, 1, 2, 4, 8, 0};

/// The group codes from `first` to `last` hold values of this kind.
struct ValueKindRow
{
    int first;
    int last;
    ValueKind kind;
};

constexpr ValueKindRow kValueKindRows[] = {
    {0, 9, ValueKind::Text},
    {10, 59, ValueKind::Real},
    {60, 79, ValueKind::Int16},
    {90, 99, ValueKind::Int32},
    {100, 109, ValueKind::Text},
    {110, 149, ValueKind::Real},
    {160, 169, ValueKind::Int64},
    {170, 179, ValueKind::Int16},
    {210, 239, ValueKind::Real},
    {270, 289, ValueKind::Int16},
    {290, 299, ValueKind::Int8},
    {300, 309, ValueKind::Text},
    {310, 319, ValueKind::Chunk},
    {320, 369, ValueKind::Text},
    {370, 389, ValueKind::Int16},
    {390, 399, ValueKind::Text},
    {400, 409, ValueKind::Int16},
    {410, 419, ValueKind::Text},
    {420, 429, ValueKind::Int32},
    {430, 439, ValueKind::Text},
    {440, 459, ValueKind::Int32},
    {460, 469, ValueKind::Real},
    {470, 481, ValueKind::Text},
    {999, 1003, ValueKind::Text},
    {1004, 1004, ValueKind::Chunk},
    {1005, 1009, ValueKind::Text},
    {1010, 1059, ValueKind::Real},
    {1060, 1070, ValueKind::Int16},
    {1071, 1071, ValueKind::Int32},
};

constexpr auto kValueKinds = [] {
    std::array<ValueKind, 1072> kinds{};
    for (const ValueKindRow& row : kValueKindRows) {
        for (int code = row.first; code <= row.last; ++code)
            kinds[static_cast<size_t>(code)] = row.kind;
    }
    return kinds;
}();

/// Returns `Unknown` for group codes that do not exist.
constexpr ValueKind valueKind(int code)
{
    return code >= 0 && code < static_cast<int>(kValueKinds.size())
               ? kValueKinds[static_cast<size_t>(code)]
               : ValueKind::Unknown;
}

} // namespace drawing
