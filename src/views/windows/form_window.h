// A form shown in a window: forwards what the user does to the form's object and then shows the object's state. Each
// form's view derives from it.
#pragma once

#include <windows.h>

#include <exception>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "velor/form_controls.h"
#include "views/windows/handles.h"
#include "views/windows/layout.h"

namespace velor::forms {

class FormWindow {
  public:
    virtual ~FormWindow() = default;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    // Shows the form modally to the owner, which may be null, until the form is closed. A window that cannot be shown,
    // or is destroyed with its owner, closes the form as its frame's cross does. What a handler throws closes the form
    // and is thrown from here.
    void show(HWND owner);

    // Null while the form is not shown.
    HWND window() const { return window_; }

  protected:
    // The number of the layout in the resources, and the form's own flag that it is shown.
    FormWindow(int layout, bool& isVisible, std::span<const Anchor> anchors)
        : layoutNumber_(layout), isVisible_(isVisible), anchors_(anchors) {}

    // Texts and lists that stay as they are while the form is shown.
    virtual void fill() = 0;
    // The state that changes.
    virtual void display() = 0;
    // The frame's cross or Esc.
    virtual void close() = 0;

    // What the user does in the control of that number; 0 is the form's own surface.
    virtual void clicked(int) {}
    virtual void doubleClicked(int) {}
    virtual void lineSelected(int, int /*index*/) {}
    virtual void textChanged(int, std::string) {}
    virtual void focused(int) {}
    virtual void keyPressed(int, int /*character*/) {}
    virtual void keyReleased(int) {}
    virtual void mousePressed(int, int /*button*/) {}
    virtual void functionKeyPressed(int, WPARAM /*key*/) {}
    // The list that the arrows move while the focus is in that box; 0 for none.
    virtual int listMovedFrom(int) const { return 0; }
    // Whether Enter belongs to that control rather than to the default button.
    virtual bool takesEnter(int) const { return false; }

    HWND control(int id) const { return GetDlgItem(window_, id); }
    void setCaption(std::string_view text);
    void setFocus(int id);
    // In the font of that name; where there is none, the system takes another one of fixed pitch.
    void useFixedPitch(int id, std::string_view face = "Courier New");
    // Takes so much off the height of the window, in dialog units.
    void shorten(int units);

  private:
    static INT_PTR CALLBACK formProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK controlProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

    template <class Action>
    void perform(const Action& action);
    bool handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool handleMouse(HWND target, int id, UINT message);
    void open(HWND window);
    void refresh();
    void notified(int id, int notification, HWND control);
    // Whether the message ends here, or goes on to the control's own procedure.
    bool handleInControl(HWND control, UINT message, WPARAM wParam);
    void watch(HWND control);
    void useFont(HWND control, const LOGFONTW& description);
    void changeResolution(unsigned dpi, const RECT& proposed);

    const int layoutNumber_;
    bool& isVisible_;
    const std::span<const Anchor> anchors_;
    HWND owner_ = nullptr;
    HWND window_ = nullptr;
    bool isDisplaying_ = false;  // notifications come from ourselves
    HWND pressed_ = nullptr;     // where a mouse button went down
    std::exception_ptr failure_;
    std::map<HWND, WNDPROC> ownProcedures_;
    Layout layout_;
    unsigned dpi_ = USER_DEFAULT_SCREEN_DPI;
    SIZE least_{};
    unsigned leastDpi_ = USER_DEFAULT_SCREEN_DPI;
    std::map<HWND, Font> fonts_;
};

// Which controls a form's focus stands for.
struct FocusMap {
    Focus::Control boxKind;
    int firstBox, boxes;
    int list;  // 0 for none
    int confirm;

    // 0 for none.
    int idOf(const Focus& focus) const;
    Focus focusOf(int id) const;
};

}  // namespace velor::forms
