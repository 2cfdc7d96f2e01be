#pragma once

#include <QString>

/// Where the program finds what it does not carry in itself: by its own place, so that the folder
/// it was built or installed in can be moved.
namespace installation {

/// The layer module's library. `named` by the user counts first, then the environment's
/// LAYERBENCH_MODULE; otherwise the one in the plug-in folder, or the one beside the program. The
/// last is returned also where there is none.
QString modulePath(const QString& named);

/// The first of the sample drawings; empty where none are installed.
QString sampleDrawing();

} // namespace installation
