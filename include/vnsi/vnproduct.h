#pragma once

namespace vnsi {

/// The host product's name, the title of many of its messages.
inline constexpr wchar_t kProductName[] = L"Quenlith";

} // namespace vnsi
