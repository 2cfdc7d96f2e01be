#pragma once

#include "benchtexts.h"
#include "commands/command.h"

#include <QString>

#include <memory>

/// A layer command as the menu, the tool bar and the command line need it.
struct CommandRow
{
    const char* name;  ///< As typed; letter case is ignored.
    const char* title; ///< As shown; also the name of the undo step.
    /// A file under ":/workbench/" without ".png"; null for commands that are not on the tool bar.
    const char* icon;
    std::unique_ptr<LayerCommand> (*make)(const char* name);

    std::unique_ptr<LayerCommand> create() const { return make(name); }
    QString displayTitle() const { return Texts::tr(title); }
};

/// The layer commands in the order of the menu.
class CommandTable
{
public:
    const CommandRow* begin() const;
    const CommandRow* end() const;
    /// The command for a word; null when it is no layer command. Letter case and surrounding blanks
    /// are ignored.
    const CommandRow* find(const QString& word) const;
};
