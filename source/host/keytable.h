#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vnsi {

/// The key of an object member. Each text is stored once while the process runs, however many
/// objects use it.
struct Key
{
    std::string text;
    std::size_t hash;
};

/// Returns the entry of `text`. Equal texts give the same pointer, on every thread.
const Key* internKey(std::string_view text);

} // namespace vnsi
