#include "verbs.h"

#include "completion/words.h"
#include "engine/console.h"
#include "engine/run.h"

namespace layertool {

namespace {

int runCompletion(const Arguments& arguments)
{
    say(arguments.action == QLatin1String("zsh") ? zshScript() : bashScript());
    return kFine;
}

} // namespace

VerbRow completionVerb()
{
    VerbRow row{"completion", QT_TRANSLATE_NOOP("layertool", "输出 bash 或 zsh 的命令补全脚本。"),
        {}, "", false, nullptr, "bash zsh"};
    row.runAlone = runCompletion;
    return row;
}

} // namespace layertool
