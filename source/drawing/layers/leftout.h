#pragma once

#include <QStringList>

#include <array>

namespace drawing {

/// What edits had to leave out or leave behind, to be told to the user.
class LeftOut
{
public:
    enum Kind { PlotFlag, Lineweight, TrueColor, LinetypeParts, LinetypeStyles, Opaque, KindCount };

    /// Notes the layer or linetype it concerns.
    void note(Kind kind, const QString& name);
    /// A sentence for each kind; then all is forgotten.
    QStringList take();

private:
    struct Note
    {
        QString name; ///< The first one; empty when there is none.
        bool more = false;
    };

    std::array<Note, KindCount> m_notes;
};

} // namespace drawing
