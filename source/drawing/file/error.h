#pragma once

#include <QString>

#include <tl/expected.hpp>

#include <type_traits>
#include <utility>

namespace drawing {

/// Why something could not be done, worded for the user.
struct Error
{
    QString text;    ///< A Chinese sentence that names the thing and the cause.
    qint64 line = 0; ///< Line of the file where it was found, from 1; 0 when no line is to blame.
    bool cancelled = false; ///< The user stopped the work: nothing to report.
    /// Of a file that is cut off: what is whole can be opened, see `OpenOptions`.
    bool hasWholePart = false;
};

/// What a function gives back that can fail; a refusal must not be overlooked.
template <class T>
class [[nodiscard]] Expected : public tl::expected<T, Error>
{
    using Base = tl::expected<T, Error>;

public:
    using Base::Base;
    Expected() = default;
    Expected(Base other) : Base(std::move(other)) {}

    /// What `act`, which can fail as well, gives back; the refusal where there is one already.
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

/// A refusal with these words.
inline tl::unexpected<Error> refusal(const QString& text)
{
    return tl::make_unexpected(Error{text, 0, false});
}

} // namespace drawing
