#pragma once

#include <QString>
#include <QVector>

namespace vnsi {

// The rule for the names of layers and layer states. Dialogs and drawings share it, so a name that
// one of them accepts is accepted by the others. The functions only tell what is wrong with a name;
// each caller decides the wording of its message and the order of its checks.

/// The thirteen characters that names must not contain, in the order in which messages list them.
inline constexpr QLatin1String kForbiddenInNames("\\<>/\":;?*|,=`", 13);
/// The maximum length of a name in code points, so that a rare character counts as one.
inline constexpr int kMostNameCharacters = 255;

/// What can be wrong with a name. Several faults can occur together.
enum class NameFault {
    Empty = 1,
    TooLong = 2,            ///< More than `kMostNameCharacters` code points.
    ForbiddenCharacter = 4, ///< Contains one of `kForbiddenInNames`.
    /// Contains a code below the blank, or DEL; a line of a drawing file cannot hold it.
    ControlCharacter = 8
};
Q_DECLARE_FLAGS(NameFaults, NameFault)
Q_DECLARE_OPERATORS_FOR_FLAGS(NameFaults)

/// Both kinds of characters that names must not contain.
inline constexpr NameFaults kUnsupportedCharacter =
    NameFault::ForbiddenCharacter | NameFault::ControlCharacter;

inline bool isForbiddenInNames(QChar c)
{
    for (const char forbidden : kForbiddenInNames) {
        if (c == QLatin1Char(forbidden))
            return true;
    }
    return false;
}

inline bool isControlCharacter(QChar c)
{
    return c < QLatin1Char(' ') || c == QLatin1Char('\x7f');
}

/// All faults of `name` exactly as given. The caller strips blanks around it beforehand.
inline NameFaults nameFaults(const QString& name)
{
    NameFaults faults;
    faults.setFlag(NameFault::Empty, name.isEmpty());
    int characters = 0;
    for (int i = 0; i < name.size(); ++i) {
        const QChar c = name[i];
        const bool isSecondHalf = c.isLowSurrogate() && i > 0 && name[i - 1].isHighSurrogate();
        characters += isSecondHalf ? 0 : 1;
        if (isForbiddenInNames(c))
            faults |= NameFault::ForbiddenCharacter;
        else if (isControlCharacter(c))
            faults |= NameFault::ControlCharacter;
    }
    faults.setFlag(NameFault::TooLong, characters > kMostNameCharacters);
    return faults;
}

inline bool holdsForbiddenCharacter(const QString& name)
{
    return nameFaults(name).testFlag(NameFault::ForbiddenCharacter);
}

/// Whether two names are the same name. Letter case is ignored.
inline bool isSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// A key for looking names up: all names that `isSameName` treats as equal have the same key. It
/// folds each character on its own, as comparing does; folding a whole text would turn the German
/// sharp s into "ss".
inline QString foldedName(const QString& name)
{
    QVector<uint> characters = name.toUcs4();
    for (uint& character : characters)
        character = QChar::toCaseFolded(character);
    return QString::fromUcs4(characters.constData(), characters.size());
}

} // namespace vnsi
