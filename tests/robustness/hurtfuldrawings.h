#pragma once

#include <QByteArray>

class QIODevice;

/// A drawing made to hurt whoever reads it.
struct HurtfulDrawing
{
    const char* name;
    qint64 usual; ///< Its measure in the tests.
    qint64 full;  ///< Its measure when run by hand.
    /// What becomes of it: a word of the refusal, or empty where it is shown.
    const char* refusal;
    int mostMegabytes; ///< Of memory, at the usual measure.
    void (*write)(QIODevice& file, qint64 measure);
};

/// All of them; the last has no name.
extern const HurtfulDrawing kHurtfulDrawings[];
