// The enumerations of the C interface, whose functions take plain numbers: variables that show their types to the check
// of the interface.
#include "velor/velor.h"

extern "C" {
velor_status velor_enumerators_status;
velor_phase velor_enumerators_phase;
velor_finding velor_enumerators_finding;
velor_flash_kind velor_enumerators_flash_kind;
velor_flash_outcome velor_enumerators_flash_outcome;
}
