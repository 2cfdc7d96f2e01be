#pragma once

#include <QString>
#include <QVector>

namespace vnsi {

// The rule for the names of layers and layer states. Dialogs and drawings go by it alike, so that
// what one of them takes the other takes, too. It says what is wrong; how that is worded, and what
// is looked at first, is for whoever asks.

/// The thirteen characters that no name may hold, in the order in which messages list them.
inline constexpr QLatin1String kForbiddenInNames("\\<>/\":;?*|,=`", 13);
/// The most characters a name may have: code points, so that a rare character counts as one.
inline constexpr int kMostNameCharacters = 255;

/// What may be wrong with a name; several things may be at once.
enum class NameFault {
    Empty = 1,
    TooLong = 2,            ///< More than `kMostNameCharacters`.
    ForbiddenCharacter = 4, ///< One of `kForbiddenInNames`.
    ControlCharacter = 8    ///< Below the blank, or DEL: a drawing file's lines cannot hold it.
};
Q_DECLARE_FLAGS(NameFaults, NameFault)
Q_DECLARE_OPERATORS_FOR_FLAGS(NameFaults)

/// Either kind of character that no name may hold.
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

/// All that is wrong with `name` as it stands; blanks around it are for the caller to strip.
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

inline bool isTooLongForName(const QString& name)
{
    return nameFaults(name).testFlag(NameFault::TooLong);
}

/// Whether two names mean the same: letter case does not count.
inline bool isSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// One spelling for all names that `isSameName` takes for one: a key to look names up by. Folds a
/// character at a time, as names are compared; folding a whole text makes "ss" of one letter.
inline QString foldedName(const QString& name)
{
    QVector<uint> characters = name.toUcs4();
    for (uint& character : characters)
        character = QChar::toCaseFolded(character);
    return QString::fromUcs4(characters.constData(), characters.size());
}

} // namespace vnsi
