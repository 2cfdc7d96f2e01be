#pragma once

#include "benchtexts.h"
#include "commands/command.h"

#include <QString>

#include <memory>

/// A layer command as menu, tool bar and command line know it.
struct CommandRow
{
    const char* name;  ///< As typed, in any case.
    const char* title; ///< As shown; also the name of the undo step.
    const char* icon;  ///< File under ":/workbench/" without ".png"; null: not on the tool bar.
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
    /// Null for what is no layer command. Letter case and blanks around the word do not matter.
    const CommandRow* find(const QString& word) const;
};
