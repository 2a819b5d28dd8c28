#include "views/windows/user_interface.h"

#include <windows.h>

#include <utility>

#include "platform/windows/wide_text.h"
#include "views/windows/form_window.h"
#include "views/windows/input_box.h"

namespace velor::forms {

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

// The topmost form as long as this object lives.
class OnTop {
  public:
    OnTop(const forms::FormWindow*& topmost, const forms::FormWindow& form)
        : topmost_(topmost), before_(std::exchange(topmost, &form)) {}
    ~OnTop() { topmost_ = before_; }
    OnTop(const OnTop&) = delete;
    OnTop& operator=(const OnTop&) = delete;

  private:
    const forms::FormWindow*& topmost_;
    const forms::FormWindow* before_;
};

}  // namespace

Answer WindowsUserInterface::showMessage(const Message& message) {
    const HWND window = owner();
    const UINT buttons = message.buttons == Buttons::YesNo ? MB_YESNO : MB_OK;
    // A host without an active window may have others, which the box disables, and may stand behind other programs.
    const UINT modality = window ? MB_APPLMODAL : MB_TASKMODAL | MB_SETFOREGROUND;
    const int pressed =
        MessageBoxW(window, platform::toWide(message.text).c_str(), platform::toWide(message.title).c_str(),
                    iconStyle(message.icon) | buttons | modality);
    if (message.buttons == Buttons::Ok) return Answer::Ok;
    return pressed == IDYES ? Answer::Yes : Answer::No;
}

std::string WindowsUserInterface::askText(const InputRequest& request) { return showInputBox(owner(), request); }

void WindowsUserInterface::show(forms::FormWindow& form) {
    const HWND window = owner();
    const OnTop onTop(topmost_, form);
    form.show(window);
}

// Windows has no active window for a program in the background, where a form may be shown all the same.
HWND WindowsUserInterface::owner() const {
    const HWND shown = topmost_ != nullptr ? topmost_->window() : nullptr;
    return shown != nullptr ? shown : GetActiveWindow();
}

}  // namespace velor::forms
