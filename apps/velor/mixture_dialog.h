// The conversation about a mixture that smes --dialog leads.
#pragma once

#include "mixture.h"
#include "time_limit.h"

namespace velor::app {

// The mixture that the user chooses and composes in the library's dialogs. Failure(NothingComputed): the user went
// back, or the input ended.
Mixture askMixture(const Database& database, PatientUserInterface& user);

// Whether the user wants the mixture flashed. Failure(NothingComputed): the input ended.
bool isFlashWanted(PatientUserInterface& user);

}  // namespace velor::app
