#include "verbs/verbs.h"

namespace layertool {

const std::vector<VerbRow>& verbs()
{
    static const std::vector<VerbRow> all{
        listVerb(),
        checkVerb(),
        fixVerb(),
        setVerb(),
        renameVerb(),
        mergeVerb(),
        deleteVerb(),
        purgeVerb(),
        translateVerb(),
        diffVerb(),
        statesVerb(),
        splitVerb(),
        reportVerb(),
        rulesVerb(),
        explainVerb(),
        completionVerb(),
        manVerb(),
    };
    return all;
}

} // namespace layertool
