#include "namerule.h"

#include <QVector>

#include <algorithm>

namespace vnsi {

bool holdsForbiddenCharacter(const QString& name)
{
    return std::any_of(name.begin(), name.end(), [](QChar c) {
        return c.unicode() < 128 && std::find(kForbiddenInNames.begin(), kForbiddenInNames.end(),
                                        c.toLatin1()) != kForbiddenInNames.end();
    });
}

bool isTooLongForName(const QString& name)
{
    return name.toUcs4().size() > kMostNameCharacters;
}

bool isSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QString foldedName(const QString& name)
{
    // A character at a time, as names are compared: folding a whole text makes "ss" of one letter.
    QVector<uint> characters = name.toUcs4();
    for (uint& character : characters)
        character = QChar::toCaseFolded(character);
    return QString::fromUcs4(characters.constData(), characters.size());
}

} // namespace vnsi
