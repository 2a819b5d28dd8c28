#include "pictures/user.h"

#include <chrono>
#include <stdexcept>

#include "platform/windows/wide_text.h"  // the texts of windows are wide

namespace velor::pictures {

namespace {

using namespace std::chrono_literals;
constexpr auto kPatience = 20s;

void waitFor(const std::function<bool()>& condition, const std::function<std::string()>& failure) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error(failure());
        std::this_thread::sleep_for(5ms);
    }
}

std::string windowText(HWND window) {
    wchar_t text[1024] = L"";
    SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return platform::fromWide(text);
}

bool isOurs(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId() && IsWindowVisible(window);
}

struct Search {
    const Look& look;
    HWND found;
};

BOOL CALLBACK compare(HWND window, LPARAM parameter) {
    Search& search = *reinterpret_cast<Search*>(parameter);
    const bool fits = isOurs(window) && IsWindowEnabled(window) && GetDlgItem(window, search.look.control) &&
                      windowText(window).starts_with(search.look.caption);
    if (fits) search.found = window;
    return !fits;
}

HWND findWindow(const Look& look) {
    Search search{look, nullptr};
    EnumWindows(compare, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

BOOL CALLBACK closeOne(HWND window, LPARAM) {
    if (isOurs(window) && IsWindowEnabled(window)) PostMessageW(window, WM_CLOSE, 0, 0);
    return TRUE;
}

}  // namespace

Window::Window(const Look& look) : window_(nullptr) {
    waitFor([&] { return (window_ = findWindow(look)) != nullptr; },
            [&] { return "no window " + std::string(look.caption) + " with " + std::to_string(look.control); });
}

std::string Window::text(int id) const { return windowText(control(id)); }

RECT Window::place(int id) const {
    RECT rectangle;
    GetWindowRect(control(id), &rectangle);
    MapWindowPoints(HWND_DESKTOP, window_, reinterpret_cast<POINT*>(&rectangle), 2);
    return rectangle;
}

void Window::expectText(int id, const std::string& expected) const {
    waitFor([&] { return text(id) == expected; },
            [&] { return "control " + std::to_string(id) + " shows " + text(id) + ", not " + expected; });
}

void Window::expectFocus(int id) const {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    const DWORD thread = GetWindowThreadProcessId(window_, nullptr);
    waitFor([&] { return GetGUIThreadInfo(thread, &state) && state.hwndFocus == control(id); },
            [&] { return "the focus is on " + std::to_string(GetDlgCtrlID(state.hwndFocus)); });
}

void Window::expectGone() const {
    waitFor([&] { return !IsWindowVisible(window_); }, [&] { return windowText(window_) + " stays"; });
}

void Window::doubleClickLine(int id, int line) const {
    SendMessageW(control(id), LB_SETTOPINDEX, static_cast<WPARAM>(line), 0);
    RECT item;
    SendMessageW(control(id), LB_GETITEMRECT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&item));
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
        mouse(id, message, MAKELPARAM(item.left + 2, item.top + 2));
}

void Window::press(int id, WPARAM key) const {
    const auto scanCode = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC) << 16);
    PostMessageW(control(id), WM_KEYDOWN, key, 1 | scanCode);
    PostMessageW(control(id), WM_KEYUP, key, 0xC0000001 | scanCode);
}

void Window::pressAlt(int id, wchar_t letter) const { PostMessageW(control(id), WM_SYSCHAR, letter, 0x20000001); }

void Window::type(int id, const std::string& characters) const {
    for (const wchar_t character : platform::toWide(characters)) {
        PostMessageW(control(id), WM_CHAR, character, 1);
        PostMessageW(control(id), WM_KEYUP, character, 0xC0000001);
    }
}

void Window::replaceText(int id, const std::string& text) const {
    PostMessageW(control(id), EM_SETSEL, 0, -1);
    type(id, text);
}

void closeAllWindows() {
    EnumWindows(closeOne, 0);
    std::this_thread::sleep_for(20ms);
}

}  // namespace velor::pictures
