// A user in front of the windows of this process, in a thread of its own: finds them, presses their keys and buttons,
// and reads what they show.
#pragma once

#include <windows.h>

#include <atomic>
#include <exception>
#include <functional>
#include <string>
#include <thread>

namespace velor::pictures {

// How a window is told from others: the start of its caption, and a control that it has.
struct Look {
    const char* caption;
    int control;
};

inline constexpr int kMessageText = 0xFFFF, kInputText = 101;  // numbers of the controls
inline constexpr Look kMessageBox{"VELOR", kMessageText};
inline constexpr Look kInputBox{"VELOR", kInputText};

// A window that the user sees. Waiting for what does not come throws std::runtime_error.
class Window {
  public:
    explicit Window(HWND window) : window_(window) {}
    // Waits for the window of that look that takes input.
    explicit Window(const Look& look);

    HWND get() const { return window_; }
    HWND control(int id) const { return GetDlgItem(window_, id); }
    std::string text(int id) const;
    bool isVisible(int id) const { return IsWindowVisible(control(id)); }
    RECT place(int id) const;  // in the window's own coordinates
    void expectText(int id, const std::string& text) const;
    void expectFocus(int id) const;
    void expectGone() const;

    void click(int id) const { PostMessageW(control(id), BM_CLICK, 0, 0); }
    void mouse(int id, UINT message, LPARAM position = 0) const { PostMessageW(control(id), message, 0, position); }
    void clickName(int id, UINT down, UINT up) const {
        mouse(id, down);
        mouse(id, up);
    }
    void doubleClickLine(int id, int line) const;
    void press(int id, WPARAM key) const;                    // a key down and up; its character comes last
    void pressAlt(int id, wchar_t letter) const;             // an accelerator key
    void type(int id, const std::string& characters) const;  // each with its key released
    void replaceText(int id, const std::string& text) const;
    void close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }  // by the frame's cross

  private:
    HWND window_;
};

// Closes whatever this process shows.
void closeAllWindows();

// Runs the host in this thread while the user acts in another one, and throws what either of them threw, the user's
// first. Where the user waits in vain all windows are closed, so that the host goes on.
template <class Host, class User>
void together(const Host& host, const User& user) {
    std::atomic<bool> isDone = false;
    std::exception_ptr ofUser, ofHost;
    std::thread thread([&] {
        try {
            user();
        } catch (...) {
            ofUser = std::current_exception();
            while (!isDone) closeAllWindows();
        }
    });
    try {
        host();
    } catch (...) {
        ofHost = std::current_exception();
    }
    isDone = true;
    thread.join();
    if (ofUser) std::rethrow_exception(ofUser);
    if (ofHost) std::rethrow_exception(ofHost);
}

}  // namespace velor::pictures
