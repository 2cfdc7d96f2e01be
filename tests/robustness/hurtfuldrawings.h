#pragma once

#include <QByteArray>

class QIODevice;

/// A drawing that is meant to harm its reader.
struct HurtfulDrawing
{
    const char* name;
    qint64 usual; ///< Its size parameter in automatic tests.
    qint64 full;  ///< Its size parameter when run by hand.
    /// A word of the expected refusal; empty when the drawing must be shown.
    const char* refusal;
    int mostMegabytes; ///< The memory allowed at the usual size.
    void (*write)(QIODevice& file, qint64 measure);
};

/// All of them. The last entry has no name and marks the end.
extern const HurtfulDrawing kHurtfulDrawings[];
