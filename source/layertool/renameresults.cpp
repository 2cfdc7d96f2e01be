#include "renameresults.h"

#include "texts.h"

namespace layertool {

using drawing::LayerRenamed;

const char* outcomeWord(LayerRenamed::Outcome outcome)
{
    constexpr const char* kWords[] = {"renamed", "merged", "refused"};
    return kWords[static_cast<size_t>(outcome)];
}

QString causeOf(const LayerRenamed& renamed)
{
    return renamed.holder.isEmpty()
               ? renamed.cause
               : Texts::tr("已有名为“%1”的图层；用 --merge 可合并进去。").arg(renamed.holder);
}

void noteRefusal(Result& result, const LayerRenamed& renamed)
{
    if (renamed.outcome == LayerRenamed::Outcome::Refused)
        result.note("rename-refused",
            Texts::tr("“%1”没有改名为“%2”：%3").arg(renamed.from, renamed.to, causeOf(renamed)));
}

} // namespace layertool
