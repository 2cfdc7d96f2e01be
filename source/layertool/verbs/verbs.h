#pragma once

#include "verb.h"

namespace layertool {

// The description of each verb. `verbs` collects them.
VerbRow listVerb();
VerbRow checkVerb();
VerbRow fixVerb();
VerbRow setVerb();
VerbRow renameVerb();
VerbRow mergeVerb();
VerbRow deleteVerb();
VerbRow purgeVerb();
VerbRow translateVerb();
VerbRow diffVerb();
VerbRow statesVerb();
VerbRow splitVerb();
VerbRow reportVerb();
VerbRow rulesVerb();
VerbRow explainVerb();
VerbRow completionVerb();
VerbRow manVerb();

} // namespace layertool
