#include "views/windows/controls.h"

#include <algorithm>

#include "platform/windows/wide_text.h"
#include "views/windows/handles.h"

namespace velor::forms {

namespace {

std::wstring wideTextOf(HWND control) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
    return text;
}

int widthOf(HDC context, const std::wstring& text) {
    SIZE size{};
    GetTextExtentPoint32W(context, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

}  // namespace

std::string textOf(HWND control) { return platform::fromWide(wideTextOf(control)); }

void showText(HWND control, std::string_view text) {
    const std::wstring wide = platform::toWide(text);
    if (wide != wideTextOf(control)) SetWindowTextW(control, wide.c_str());
}

void showBox(HWND control, const TextBox& box) {
    showText(control, box.text);
    EnableWindow(control, box.enabled);
    ShowWindow(control, box.visible ? SW_SHOWNA : SW_HIDE);
}

void showCheck(HWND button, bool isChecked) {
    SendMessageW(button, BM_SETCHECK, isChecked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void fillList(HWND list, const std::vector<std::string>& lines) {
    const WindowContext context(list);
    const HGDIOBJ before = SelectObject(context.get(), reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
    int width = 0;
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    for (const std::string& line : lines) {
        const std::wstring wide = platform::toWide(line);
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide.c_str()));
        width = std::max(width, widthOf(context.get(), wide));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    SelectObject(context.get(), before);
    SendMessageW(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width + GetSystemMetrics(SM_CXEDGE) * 2), 0);
}

void showSelection(HWND list, int selected) {
    if (selectionOf(list) != selected) SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
}

int selectionOf(HWND list) { return static_cast<int>(SendMessageW(list, LB_GETCURSEL, 0, 0)); }

}  // namespace velor::forms
