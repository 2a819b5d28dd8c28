// The forms on the whole screen. Each shows its form and passes the user's actions on until the form is closed.
#pragma once

#include "velor/component_forms.h"
#include "velor/forms.h"
#include "views/terminal/screen.h"

namespace velor::terminal {

void showView(Screen& screen, F_Sezn& form);
void showView(Screen& screen, F_Seznam& form);
void showView(Screen& screen, F_Sloz& form);
void showView(Screen& screen, frmLatka& form);
void showView(Screen& screen, F_Zmenaz& form);
void showView(Screen& screen, frmOprav& form);

}  // namespace velor::terminal
