#include "views/windows/form_window.h"

#include <commctrl.h>

#include <cstring>
#include <utility>

#include "platform/windows/library_file.h"
#include "platform/windows/wide_text.h"
#include "views/windows/controls.h"

namespace velor::forms {

namespace {

constexpr int kListPoints = 9;
constexpr int kPointsPerInch = 72;
constexpr wchar_t kEnterCharacter = L'\r';

// Windows 10 tells the resolution of the window's own screen, earlier ones that of all screens.
unsigned resolutionOf(HWND window) {
    using Function = UINT(WINAPI*)(HWND);
    Function dpiForWindow = nullptr;
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
    static_assert(sizeof dpiForWindow == sizeof found);
    std::memcpy(&dpiForWindow, &found, sizeof found);
    if (dpiForWindow != nullptr) return dpiForWindow(window);
    return static_cast<unsigned>(GetDeviceCaps(WindowContext(window).get(), LOGPIXELSY));
}

LOGFONTW fontOf(HWND control) {
    LOGFONTW description{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)), sizeof description, &description);
    return description;
}

bool isClass(HWND control, const wchar_t* name) {
    wchar_t found[32] = L"";
    GetClassNameW(control, found, static_cast<int>(std::size(found)));
    return lstrcmpiW(found, name) == 0;
}

// Number of the mouse button that the message presses, the left one being 1; 0 for another message.
int pressedButton(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
            return 1;
        case WM_RBUTTONDOWN:
            return 2;
        case WM_MBUTTONDOWN:
        case WM_XBUTTONDOWN:
            return 3;
        default:
            return 0;
    }
}

// The same of the button that is let go.
int releasedButton(UINT message) {
    switch (message) {
        case WM_LBUTTONUP:
            return 1;
        case WM_RBUTTONUP:
            return 2;
        case WM_MBUTTONUP:
        case WM_XBUTTONUP:
            return 3;
        default:
            return 0;
    }
}

bool isMoveThroughLines(WPARAM key) { return key == VK_UP || key == VK_DOWN || key == VK_PRIOR || key == VK_NEXT; }

}  // namespace

void FormWindow::show(HWND owner) {
    owner_ = owner;
    DialogBoxParamW(platform::libraryModule(), MAKEINTRESOURCEW(layoutNumber_), owner, formProcedure,
                    reinterpret_cast<LPARAM>(this));
    window_ = nullptr;
    if (failure_) std::rethrow_exception(failure_);
    if (isVisible_) close();
}

// Exceptions must not pass through the window system, so they wait here until the modal loop has ended.
template <class Action>
void FormWindow::perform(const Action& action) {
    try {
        action();
        if (isVisible_ && window_ != nullptr) refresh();
    } catch (...) {
        failure_ = std::current_exception();
        isVisible_ = false;
    }
    if (!isVisible_ && window_ != nullptr) EndDialog(window_, 0);
}

void FormWindow::refresh() {
    isDisplaying_ = true;
    display();
    isDisplaying_ = false;
}

INT_PTR CALLBACK FormWindow::formProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<FormWindow*>(lParam)->open(window);
        return FALSE;  // the focus is set
    }
    auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return form != nullptr && form->handle(message, wParam, lParam);
}

void FormWindow::open(HWND window) {
    window_ = window;
    perform([this] {
        dpi_ = resolutionOf(window_);
        layout_ = Layout(window_, dpi_, anchors_);
        isDisplaying_ = true;
        fill();
    });
    if (!IsChild(window, GetFocus())) setFocus(GetDlgCtrlID(GetNextDlgTabItem(window, nullptr, FALSE)));
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        watch(child);
    centre(window, owner_);
    layout_.arrange(window, dpi_);
    RECT outer;
    GetWindowRect(window, &outer);
    least_ = {outer.right - outer.left, outer.bottom - outer.top};
    leastDpi_ = dpi_;  // the screen may have another one than that where the window was made
    if (owner_ == nullptr) SetForegroundWindow(window);
}

// What a click does waits until the button is let go: a form that opened earlier would get that in the box that happens
// to lie below the pointer.
bool FormWindow::handleMouse(HWND target, int id, UINT message) {
    if (pressedButton(message) != 0) pressed_ = target;
    const int button = releasedButton(message);
    if (button != 0 && std::exchange(pressed_, nullptr) == target) perform([&] { mousePressed(id, button); });
    return button != 0 || pressedButton(message) != 0;
}

bool FormWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (handleMouse(window_, 0, message)) return true;
    switch (message) {
        case WM_COMMAND:
            if (LOWORD(wParam) == IDCANCEL) {
                perform([this] { close(); });
            } else if (!isDisplaying_ && lParam != 0) {
                notified(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
            }
            return true;
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) layout_.arrange(window_, dpi_);
            return true;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {
                MulDiv(least_.cx, static_cast<int>(dpi_), static_cast<int>(leastDpi_)),
                MulDiv(least_.cy, static_cast<int>(dpi_), static_cast<int>(leastDpi_))};
            return true;
        case WM_DPICHANGED:
            perform([&] { changeResolution(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam)); });
            return true;
        case WM_DESTROY:
            EndDialog(window_, 0);  // the owner may have gone, which leaves the modal loop running
            window_ = nullptr;
            return true;
        default:
            return false;
    }
}

// The numbers of different kinds of notifications overlap. All others are left alone: a box tells of what was typed
// before it can be read, too, and must not be shown its old text then.
void FormWindow::notified(int id, int notification, HWND control) {
    if (isClass(control, WC_EDITW) && notification == EN_CHANGE) {
        perform([&] { textChanged(id, textOf(control)); });
    } else if (isClass(control, WC_LISTBOXW) && notification == LBN_SELCHANGE) {
        if (const int line = selectionOf(control); line != LB_ERR) perform([&] { lineSelected(id, line); });
    } else if (isClass(control, WC_LISTBOXW) && notification == LBN_DBLCLK) {
        perform([&] { doubleClicked(id); });
    } else if (isClass(control, WC_BUTTONW) && notification == BN_CLICKED) {
        perform([&] { clicked(id); });
    }
}

void FormWindow::watch(HWND control) {
    // Otherwise walking through the form by keys would choose an option.
    if (isClass(control, WC_BUTTONW)) SendMessageW(control, BM_SETDONTCLICK, TRUE, 0);
    ownProcedures_[control] = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(control, GWLP_WNDPROC));
    SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&controlProcedure));
}

LRESULT CALLBACK FormWindow::controlProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& form = *reinterpret_cast<FormWindow*>(GetWindowLongPtrW(GetParent(control), DWLP_USER));
    const WNDPROC own = form.ownProcedures_.at(control);
    if (message == WM_GETDLGCODE) {
        const LRESULT wanted = CallWindowProcW(own, control, message, wParam, lParam);
        const bool isEnter = wParam == VK_RETURN && lParam != 0;
        return isEnter && form.takesEnter(GetDlgCtrlID(control)) ? wanted | DLGC_WANTMESSAGE : wanted;
    }
    if (form.handleInControl(control, message, wParam)) return 0;
    return CallWindowProcW(own, control, message, wParam, lParam);
}

bool FormWindow::handleInControl(HWND control, UINT message, WPARAM wParam) {
    const int id = GetDlgCtrlID(control);
    if (isClass(control, WC_STATICW) && handleMouse(control, id, message)) return true;
    if (const int button = pressedButton(message)) {
        // The first click into a box selects its text as every other way to it does; only the next one sets the caret.
        const bool entersBox = button == 1 && isClass(control, WC_EDITW) && GetFocus() != control;
        if (entersBox) setFocus(id);
        return entersBox;
    }
    switch (message) {
        case WM_SETFOCUS:
            focused(id);
            return false;
        case WM_KEYDOWN:
            if (wParam == VK_F2 || wParam == VK_F3) perform([&] { functionKeyPressed(id, wParam); });
            if (listMovedFrom(id) != 0 && isMoveThroughLines(wParam)) {
                SendMessageW(this->control(listMovedFrom(id)), message, wParam, 0);
                return true;
            }
            if (wParam != VK_RETURN || !takesEnter(id)) return false;
            perform([&] { keyPressed(id, kEnterKey); });
            return true;
        case WM_CHAR:
            if (wParam == kEnterCharacter) return takesEnter(id);  // was pressed above
            perform([&] { keyPressed(id, static_cast<int>(wParam)); });
            return !isVisible_;
        case WM_KEYUP:
            perform([&] { keyReleased(id); });
            return false;
        default:
            return false;
    }
}

void FormWindow::setCaption(std::string_view text) { SetWindowTextW(window_, platform::toWide(text).c_str()); }

// In the way of the Tab key: selects the text of a box, and moves the mark of the default button.
void FormWindow::setFocus(int id) {
    const HWND target = control(id);
    if (target != nullptr && target != GetFocus())
        SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
}

void FormWindow::useFont(HWND control, const LOGFONTW& description) {
    Font font(CreateFontIndirectW(&description));
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    fonts_[control] = std::move(font);
}

void FormWindow::useFixedPitch(int id, std::string_view face) {
    LOGFONTW font{};
    font.lfHeight = -MulDiv(kListPoints, static_cast<int>(dpi_), kPointsPerInch);
    font.lfCharSet = EASTEUROPE_CHARSET;
    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    lstrcpynW(font.lfFaceName, platform::toWide(face).c_str(), LF_FACESIZE);
    useFont(control(id), font);
}

void FormWindow::shorten(int units) {
    RECT off{0, 0, 0, units}, outer;
    MapDialogRect(window_, &off);
    GetWindowRect(window_, &outer);
    SetWindowPos(window_, nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top - off.bottom,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::changeResolution(unsigned dpi, const RECT& proposed) {
    for (const auto& [child, procedure] : ownProcedures_) {
        LOGFONTW font = fontOf(child);
        font.lfHeight = MulDiv(font.lfHeight, static_cast<int>(dpi), static_cast<int>(dpi_));
        useFont(child, font);
        if (isClass(child, WC_LISTBOXW)) {
            const auto width = static_cast<int>(SendMessageW(child, LB_GETHORIZONTALEXTENT, 0, 0));
            SendMessageW(child, LB_SETHORIZONTALEXTENT,
                         static_cast<WPARAM>(MulDiv(width, static_cast<int>(dpi), static_cast<int>(dpi_))), 0);
        }
    }
    dpi_ = dpi;
    SetWindowPos(window_, nullptr, proposed.left, proposed.top, proposed.right - proposed.left,
                 proposed.bottom - proposed.top, SWP_NOZORDER | SWP_NOACTIVATE);
    layout_.arrange(window_, dpi_);
}

int FocusMap::idOf(const Focus& focus) const {
    if (focus.control == boxKind) return firstBox + focus.index;
    if (focus.control == Focus::Control::List) return list;
    return focus.control == Focus::Control::Confirm ? confirm : 0;
}

Focus FocusMap::focusOf(int id) const {
    if (id >= firstBox && id < firstBox + boxes) return {boxKind, id - firstBox};
    if (id == list) return {Focus::Control::List, 0};
    if (id == confirm) return {Focus::Control::Confirm, 0};
    return {Focus::Control::None, 0};
}

}  // namespace velor::forms
