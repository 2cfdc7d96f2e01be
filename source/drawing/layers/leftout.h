#pragma once

#include <QStringList>

#include <array>

namespace drawing {

/// Collects what edits had to leave out, so that the user can be told.
class LeftOut
{
public:
    enum Kind { PlotFlag, Lineweight, TrueColor, LinetypeParts, LinetypeStyles, Opaque, KindCount };

    /// Records an omission; `name` is the layer or linetype concerned.
    void note(Kind kind, const QString& name);
    /// Returns one sentence for each kind of omission and forgets them all.
    QStringList take();

private:
    struct Note
    {
        QString name; ///< The first name that was recorded; empty when there is none.
        bool more = false;
    };

    std::array<Note, KindCount> m_notes;
};

} // namespace drawing
