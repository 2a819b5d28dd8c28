// Answers the boxes that a process shows, as a person would, and keeps what they said.
#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/windows/wide_text.h"

namespace velor::test {

struct Box {
    std::string title, text;  // UTF-8
    bool asksForText = false;

    bool operator==(const Box&) const = default;
};

class BoxWatcher {
  public:
    // A text box gets the answer and OK, or Storno where it is empty; a question gets Yes.
    explicit BoxWatcher(DWORD process = GetCurrentProcessId(), std::wstring typed = L"")
        : process_(process), typed_(std::move(typed)), thread_([this](const std::stop_token& stop) { watch(stop); }) {}

    std::vector<Box> boxes() {
        const std::lock_guard lock(mutex_);
        return boxes_;
    }

  private:
    static std::wstring textOf(HWND window) {
        std::wstring text(2000, L'\0');
        text.resize(static_cast<std::size_t>(
            SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
        return text;
    }

    // A form has none of a box's buttons. It is closed.
    static bool isForm(HWND window) {
        return !GetDlgItem(window, IDOK) && !GetDlgItem(window, IDCANCEL) && !GetDlgItem(window, IDYES);
    }

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

    void answer(HWND window) {
        DWORD process = 0;
        wchar_t name[32] = L"";
        GetWindowThreadProcessId(window, &process);
        GetClassNameW(window, name, 32);
        if (process != process_ || std::wstring(name) != L"#32770" || !IsWindowVisible(window)) return;
        if (isForm(window)) {
            PostMessageW(window, WM_CLOSE, 0, 0);
            return;
        }
        if (GetPropW(window, kAnswered) != nullptr) return;  // it is just closing
        Box box{platform::fromWide(textOf(window)), "", false};
        HWND edit = FindWindowExW(window, nullptr, L"Edit", nullptr);
        box.asksForText = edit != nullptr;
        for (HWND part = nullptr; (part = FindWindowExW(window, part, L"Static", nullptr)) != nullptr;)
            if (const std::string text = platform::fromWide(textOf(part)); !text.empty()) box.text = text;
        if (box.text.empty()) return;  // not filled yet
        if (edit && !typed_.empty()) SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(typed_.c_str()));
        {
            const std::lock_guard lock(mutex_);
            boxes_.push_back(box);
        }
        const bool question = GetDlgItem(window, IDYES) != nullptr;
        const int button = question ? IDYES : edit && typed_.empty() ? IDCANCEL : IDOK;
        SetPropW(window, kAnswered, window);
        PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }

    static constexpr const wchar_t* kAnswered = L"VELOR test: answered";

    DWORD process_;
    std::wstring typed_;
    std::mutex mutex_;
    std::vector<Box> boxes_;
    std::jthread thread_;
};

}  // namespace velor::test
