// The conversation about a mixture that smes --dialog leads.
#pragma once

#include "mixture.h"
#include "patient_user_interface.h"

namespace velor::app {

// The mixture that the user chooses and composes in the library's dialogs. Failure(NothingComputed): the user went
// back, or the input ended.
Mixture askMixture(const Database& database, PatientUserInterface& user);

// Whether the user wants the mixture flashed; the description stands before the question. Failure(NothingComputed): the
// input ended.
bool isFlashWanted(PatientUserInterface& user, const std::string& description);

}  // namespace velor::app
