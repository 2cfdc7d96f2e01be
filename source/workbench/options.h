#pragma once

#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

/// The options from the workbench's command line.
struct Options
{
    QString file;       ///< The drawing to open; may be empty.
    QString command;    ///< The layer command to start once the drawing is open.
    QString screenshot; ///< A PNG file for a picture of the window.
    QString gallery;    ///< A folder for one PNG per dialog.
    QString sheets;     ///< A folder for one PNG per space of the drawing.
    QString module;     ///< The layer module's library; empty for the installed one.
    bool list = false;  ///< Whether to print the layer table.

    /// Whether the program ends by itself without needing a user.
    bool isBatch() const
    {
        return list || !screenshot.isEmpty() || !gallery.isEmpty() || !sheets.isEmpty();
    }
};

/// Tells the program to end immediately because help was requested or the usage was wrong.
struct EarlyExit
{
    int code = 0; ///< 0 for success, 2 for wrong usage.
    QString text; ///< For standard output, or for standard error when the code is not 0.
};

/// Parses `arguments`, which begin with the program's name. Needs an application object.
tl::expected<Options, EarlyExit> parseOptions(const QStringList& arguments);
