#pragma once

#include <QString>

namespace drawing {

/// A group whose value is decoded text.
struct TextTag
{
    int code = -1;
    QString value;
};

inline bool operator==(const TextTag& a, const TextTag& b)
{
    return a.code == b.code && a.value == b.value;
}

} // namespace drawing
