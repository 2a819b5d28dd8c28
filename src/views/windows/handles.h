// Owners of the window system's handles: one alias each.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace velor::forms {

struct FontCloser {
    void operator()(HFONT font) const { DeleteObject(font); }
};

using Font = std::unique_ptr<std::remove_pointer_t<HFONT>, FontCloser>;

// The context that a window is measured with.
class WindowContext {
  public:
    explicit WindowContext(HWND window) : window_(window), context_(GetDC(window)) {}
    ~WindowContext() { ReleaseDC(window_, context_); }
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;

    HDC get() const { return context_; }

  private:
    HWND window_;
    HDC context_;
};

}  // namespace velor::forms
