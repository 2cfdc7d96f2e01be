#pragma once

#include "file/tag.h"

#include <QFlags>

namespace drawing {

/// The properties that an entity can define itself instead of taking them from its layer.
enum class OwnProperty : quint8 { Color = 1, Linetype = 2, Lineweight = 4, Transparency = 8 };
Q_DECLARE_FLAGS(OwnProperties, OwnProperty)
Q_DECLARE_OPERATORS_FOR_FLAGS(OwnProperties)

/// The subclass whose groups hold these properties. Other subclasses use the same group codes for
/// other purposes. Old formats have no subclasses and use these codes for nothing else.
constexpr std::string_view kCommonData = "AcDbEntity";

/// The property that a group of an entity's common data defines. Empty when the group refers to the
/// layer or has another meaning.
OwnProperties ownPropertiesIn(const Tag& tag);

} // namespace drawing
