#pragma once

#include <QString>

/// Finds the files that belong to the program relative to the program itself, so that its build or
/// installation folder can be moved.
namespace installation {

/// The path of the layer module's library. The user's choice `named` takes precedence, then the
/// environment variable LAYERBENCH_MODULE, then the library in the plug-in folder, then the one
/// beside the program, which need not exist.
QString modulePath(const QString& named);

/// The path of the first sample drawing; empty when none is installed.
QString sampleDrawing();
/// The layer standard among the samples, whether it is installed or not.
QString sampleStandard();

} // namespace installation
