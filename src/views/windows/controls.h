// Controls filled and read. A control that already shows what it should is left alone: it keeps its caret and does not
// flicker.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "velor/form_controls.h"

namespace velor::forms {

std::string textOf(HWND control);
void showText(HWND control, std::string_view text);
void showBox(HWND control, const TextBox& box);
void showCheck(HWND button, bool isChecked);

// Over the columns of the lines of substances, in their font: the form's own heading is spaced for another one.
inline constexpr std::string_view kColumnHeadings = "Č.   Název látky          Synonymum            Vzorec    CAS No.";

// The lines, as wide to scroll as the widest of them.
void fillList(HWND list, const std::vector<std::string>& lines);
void showSelection(HWND list, int selected);
int selectionOf(HWND list);

}  // namespace velor::forms
