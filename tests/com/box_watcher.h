// Answers the boxes that a process shows, as a person would: Yes to a question, OK to a message, Storno where a text is
// asked for; a form is closed.
#pragma once

#include <windows.h>

#include <chrono>
#include <thread>

namespace velor::test {

class BoxWatcher {
  public:
    explicit BoxWatcher(DWORD process = GetCurrentProcessId())
        : process_(process), thread_([this](const std::stop_token& stop) { watch(stop); }) {}

  private:
    void watch(const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            EnumWindows(
                [](HWND window, LPARAM self) -> BOOL {
                    reinterpret_cast<BoxWatcher*>(self)->answer(window);
                    return TRUE;
                },
                reinterpret_cast<LPARAM>(this));
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }

    void answer(HWND window) const {
        DWORD process = 0;
        wchar_t name[32] = L"";
        GetWindowThreadProcessId(window, &process);
        GetClassNameW(window, name, 32);
        if (process != process_ || lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window)) return;
        for (const int button : {IDYES, IDCANCEL, IDOK}) {
            if (!GetDlgItem(window, button)) continue;
            if (GetPropW(window, kAnswered) != nullptr) return;  // it is just closing
            SetPropW(window, kAnswered, window);
            PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
            return;
        }
        PostMessageW(window, WM_CLOSE, 0, 0);
    }

    static constexpr const wchar_t* kAnswered = L"VELOR test: answered";

    DWORD process_;
    std::jthread thread_;
};

}  // namespace velor::test
