#pragma once

#include "file/tag.h"

#include <QFlags>

namespace drawing {

/// What an entity can have of its own instead of taking it from its layer.
enum class OwnProperty : quint8 { Color = 1, Linetype = 2, Lineweight = 4, Transparency = 8 };
Q_DECLARE_FLAGS(OwnProperties, OwnProperty)
Q_DECLARE_OPERATORS_FOR_FLAGS(OwnProperties)

/// The subclass that these groups belong to; other subclasses use the same codes for their own
/// things. Old formats have no subclasses, and nothing else in these groups.
constexpr std::string_view kCommonData = "AcDbEntity";

/// What a group of an entity's common data gives it of its own; nothing where it says that the
/// layer has it, and for groups about something else.
OwnProperties ownPropertiesIn(const Tag& tag);

} // namespace drawing
