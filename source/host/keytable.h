#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vnsi {

/// A key of objects: kept once for the life of the process, however many objects have it.
struct Key
{
    std::string text;
    std::size_t hash;
};

/// The one entry of `text`; the same pointer for the same text, from any thread.
const Key* internKey(std::string_view text);

} // namespace vnsi
