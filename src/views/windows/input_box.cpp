#include "views/windows/input_box.h"

#include <array>
#include <cstring>
#include <exception>
#include <new>
#include <vector>

#include "platform/windows/library_file.h"
#include "platform/windows/wide_text.h"
#include "runtime/checked.h"

namespace velor::forms {

namespace {

constexpr WORD kPrompt = 100, kText = 101;

struct Control {
    WORD windowClass;  // number of a predefined window class
    WORD id;
    DWORD style;
    short x, y, width, height;  // dialog units
    const wchar_t* text;
};

constexpr WORD kButtonClass = 0x0080, kEditClass = 0x0081, kStaticClass = 0x0082;
constexpr short kWidth = 260, kHeight = 104;
constexpr std::array kControls{
    Control{kStaticClass, kPrompt, SS_LEFT | SS_NOPREFIX, 7, 7, 186, 68, L""},
    Control{kEditClass, kText, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, 7, 83, 246, 14, L""},
    Control{kButtonClass, IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 203, 7, 50, 14, L"OK"},
    Control{kButtonClass, IDCANCEL, BS_PUSHBUTTON | WS_TABSTOP, 203, 24, 50, 14, L"Storno"},
};

// The memory form of a dialog: 16-bit words, each control on a boundary of 32 bits.
class Template {
  public:
    Template() {
        const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SHELLFONT | DS_CENTER;
        add(DLGTEMPLATE{style, 0, static_cast<WORD>(kControls.size()), 0, 0, kWidth, kHeight});
        words_.insert(words_.end(), {0, 0});  // no menu, the usual window class
        add(L"");                             // the title comes with the request
        words_.push_back(8);
        add(L"MS Shell Dlg");
        for (const Control& control : kControls) {
            if (words_.size() % 2 != 0) words_.push_back(0);
            add(DLGITEMTEMPLATE{control.style | WS_CHILD | WS_VISIBLE, 0, control.x, control.y, control.width,
                                control.height, control.id});
            words_.insert(words_.end(), {0xFFFF, control.windowClass});
            add(control.text);
            words_.push_back(0);  // no data of its own
        }
    }
    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

  private:
    template <class Part>
    void add(const Part& part) {
        const std::size_t end = words_.size();
        words_.resize(end + sizeof part / sizeof(WORD));
        std::memcpy(&words_[end], &part, sizeof part);
    }
    void add(const wchar_t* text) {
        for (; *text != L'\0'; ++text) words_.push_back(static_cast<WORD>(*text));
        words_.push_back(0);
    }

    std::vector<WORD> words_;
};

// Texts are converted outside the window's procedure, which no exception may leave.
struct Dialog {
    std::wstring title, prompt, text;
    std::exception_ptr failure;
};

void fill(HWND window, const Dialog& dialog) {
    SetWindowTextW(window, dialog.title.c_str());
    SetDlgItemTextW(window, kPrompt, dialog.prompt.c_str());
    SetDlgItemTextW(window, kText, dialog.text.c_str());
    SendDlgItemMessageW(window, kText, EM_SETSEL, 0, -1);
}

void takeTypedText(HWND window, Dialog& dialog) noexcept try {
    const HWND box = GetDlgItem(window, kText);
    dialog.text.resize(static_cast<std::size_t>(GetWindowTextLengthW(box)) + 1);
    const int length = GetWindowTextW(box, dialog.text.data(), static_cast<int>(dialog.text.size()));
    dialog.text.resize(static_cast<std::size_t>(length));
} catch (const std::bad_alloc&) {
    dialog.failure = std::current_exception();
}

INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        fill(window, *reinterpret_cast<const Dialog*>(lParam));
        SetForegroundWindow(window);
        SetFocus(GetDlgItem(window, kText));
        return FALSE;  // the focus is set
    }
    if (message != WM_COMMAND || (LOWORD(wParam) != IDOK && LOWORD(wParam) != IDCANCEL)) return FALSE;
    if (LOWORD(wParam) == IDOK) takeTypedText(window, *reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER)));
    EndDialog(window, LOWORD(wParam));
    return TRUE;
}

}  // namespace

std::string showInputBox(HWND owner, const InputRequest& request) {
    const Template layout;
    Dialog dialog{
        platform::toWide(request.title), platform::toWide(request.prompt), platform::toWide(request.defaultAnswer), {}};
    const INT_PTR pressed = DialogBoxIndirectParamW(platform::libraryModule(), layout.get(), owner, procedure,
                                                    reinterpret_cast<LPARAM>(&dialog));
    if (pressed != IDOK && pressed != IDCANCEL) checked::raise(RunTimeError::kInputPastEnd);
    if (dialog.failure) std::rethrow_exception(dialog.failure);
    return pressed == IDOK ? platform::fromWide(dialog.text) : std::string();
}

}  // namespace velor::forms
