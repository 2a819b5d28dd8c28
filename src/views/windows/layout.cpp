#include "views/windows/layout.h"

#include <algorithm>

namespace velor::forms {

namespace {

constexpr LONG kMargin = 7;  // of every layout, in dialog units

unsigned stretchOf(int id, std::span<const Anchor> anchors) {
    for (const Anchor& anchor : anchors)
        if (id >= anchor.first && id <= anchor.last) return anchor.stretch;
    return 0;
}

SIZE clientSize(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

RECT rectangleIn(HWND window, HWND control) {
    RECT rectangle;
    GetWindowRect(control, &rectangle);
    MapWindowPoints(HWND_DESKTOP, window, reinterpret_cast<POINT*>(&rectangle), 2);
    return rectangle;
}

}  // namespace

Layout::Layout(HWND window, unsigned dpi, std::span<const Anchor> anchors) : client_(clientSize(window)), dpi_(dpi) {
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        places_.push_back({child, rectangleIn(window, child), stretchOf(GetDlgCtrlID(child), anchors)});
    // On a small screen the window was cut already, and the controls stand where they do not fit.
    RECT margin{0, 0, kMargin, kMargin};
    MapDialogRect(window, &margin);
    for (const Place& place : places_) {
        client_.cx = std::max(client_.cx, place.rectangle.right + margin.right);
        client_.cy = std::max(client_.cy, place.rectangle.bottom + margin.bottom);
    }
}

int Layout::scaled(LONG length, unsigned dpi) const {
    return MulDiv(length, static_cast<int>(dpi), static_cast<int>(dpi_));
}

RECT Layout::placed(const Place& place, SIZE gain, unsigned dpi) const {
    const LONG left = place.stretch & kMoveX ? gain.cx : 0;
    const LONG top = place.stretch & kMoveY ? gain.cy : 0;
    const LONG right = place.stretch & (kMoveX | kGrowX) ? gain.cx : 0;
    const LONG bottom = place.stretch & (kMoveY | kGrowY) ? gain.cy : 0;
    const RECT& from = place.rectangle;
    return {scaled(from.left, dpi) + left, scaled(from.top, dpi) + top, scaled(from.right, dpi) + right,
            scaled(from.bottom, dpi) + bottom};
}

void Layout::arrange(HWND window, unsigned dpi) const {
    const SIZE client = clientSize(window);
    const SIZE gain{client.cx - scaled(client_.cx, dpi), client.cy - scaled(client_.cy, dpi)};
    for (const Place& place : places_) {
        const RECT to = placed(place, gain, dpi);
        SetWindowPos(place.control, nullptr, to.left, to.top, to.right - to.left, to.bottom - to.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
    InvalidateRect(window, nullptr, TRUE);
}

void centre(HWND window, HWND owner) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(owner ? owner : window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const RECT& screen = monitor.rcWork;
    RECT around = screen, own;
    if (owner && !IsIconic(owner)) GetWindowRect(owner, &around);
    GetWindowRect(window, &own);
    const LONG width = std::min(own.right - own.left, screen.right - screen.left);
    const LONG height = std::min(own.bottom - own.top, screen.bottom - screen.top);
    const LONG x = std::clamp((around.left + around.right - width) / 2, screen.left, screen.right - width);
    const LONG y = std::clamp((around.top + around.bottom - height) / 2, screen.top, screen.bottom - height);
    SetWindowPos(window, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace velor::forms
