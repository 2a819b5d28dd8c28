#include "platform/windows/user_interface.h"

#include <windows.h>

#include "platform/windows/input_box.h"
#include "platform/windows/wide_text.h"
#include "velor/forms.h"

namespace velor::platform {

namespace {

UINT iconStyle(Icon icon) {
    switch (icon) {
        case Icon::Critical:
            return MB_ICONHAND;
        case Icon::Exclamation:
            return MB_ICONEXCLAMATION;
        case Icon::Information:
            return MB_ICONASTERISK;
        case Icon::None:
            break;
    }
    return 0;
}

}  // namespace

Answer WindowsUserInterface::showMessage(const Message& message) {
    const HWND owner = GetActiveWindow();
    const UINT buttons = message.buttons == Buttons::YesNo ? MB_YESNO : MB_OK;
    // A host without an active window may have others, which the box disables, and may stand behind other programs.
    const UINT modality = owner ? MB_APPLMODAL : MB_TASKMODAL | MB_SETFOREGROUND;
    const int pressed = MessageBoxW(owner, toWide(message.text).c_str(), toWide(message.title).c_str(),
                                    iconStyle(message.icon) | buttons | modality);
    if (message.buttons == Buttons::Ok) return Answer::Ok;
    return pressed == IDYES ? Answer::Yes : Answer::No;
}

std::string WindowsUserInterface::askText(const InputRequest& request) {
    return showInputBox(GetActiveWindow(), request);
}

void WindowsUserInterface::showForm(F_Sezn& form) { form.close(); }
void WindowsUserInterface::showForm(F_Seznam& form) { form.close(); }
void WindowsUserInterface::showForm(F_Sloz& form) { form.close(); }

}  // namespace velor::platform
