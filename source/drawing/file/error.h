#pragma once

#include <QString>

#include <tl/expected.hpp>

#include <type_traits>
#include <utility>

namespace drawing {

/// The reason why something could not be done, worded for the user.
struct Error
{
    QString text;    ///< A Chinese sentence that names the thing concerned and the cause.
    qint64 line = 0; ///< The line of the file, counted from 1; 0 when the error concerns no line.
    bool cancelled = false; ///< The user stopped the work, so there is nothing to report.
    /// The file is truncated, but its intact part can be opened (see `OpenOptions`).
    bool hasWholePart = false;
};

/// The result of a function that can fail. The compiler warns when the result is ignored.
template <class T>
class [[nodiscard]] Expected : public tl::expected<T, Error>
{
    using Base = tl::expected<T, Error>;

public:
    using Base::Base;
    Expected() = default;
    Expected(Base other) : Base(std::move(other)) {}

    /// Calls `act`, which may fail too, with the value and returns its result; an error is passed
    /// on.
    template <class Act>
    auto and_then(Act&& act) const
    {
        if constexpr (std::is_void_v<T>) {
            using Next = std::invoke_result_t<Act>;
            return this->has_value() ? act() : Next(tl::make_unexpected(this->error()));
        } else {
            using Next = std::invoke_result_t<Act, const T&>;
            return this->has_value() ? act(**this) : Next(tl::make_unexpected(this->error()));
        }
    }
};

/// Makes an error with this text.
inline tl::unexpected<Error> refusal(const QString& text)
{
    return tl::make_unexpected(Error{text, 0, false});
}

} // namespace drawing
