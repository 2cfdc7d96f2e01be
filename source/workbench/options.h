#pragma once

#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

/// What the workbench is told on its command line.
struct Options
{
    QString file;       ///< Drawing to open; may be empty.
    QString command;    ///< Layer command to start once it is open.
    QString screenshot; ///< PNG file to draw the window into.
    QString gallery;    ///< Folder for one PNG a dialog.
    QString sheets;     ///< Folder for one PNG a space of the drawing.
    QString module;     ///< The layer module's library; empty for the installed one.
    bool list = false;  ///< Print the layer table.

    /// Ends by itself, without anybody at a screen.
    bool isBatch() const
    {
        return list || !screenshot.isEmpty() || !gallery.isEmpty() || !sheets.isEmpty();
    }
};

/// The program is to end right away: help was asked for, or the usage was wrong.
struct EarlyExit
{
    int code = 0; ///< 0 fine, 2 bad usage.
    QString text; ///< For standard output, or standard error when the code is not 0.
};

/// Reads `arguments` (the program's name first). Needs an application object.
tl::expected<Options, EarlyExit> parseOptions(const QStringList& arguments);
