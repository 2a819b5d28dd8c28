// The boxes of a form one below another, each behind its caption.
#pragma once

#include <vector>

#include "velor/form_controls.h"
#include "views/terminal/dialog.h"

namespace velor::terminal {

template <class Form>
class FieldRows {
  public:
    FieldRows(Dialog& dialog, Form& form, const char* hint) : dialog_(dialog), form_(form) {
        for (int field = 0; field < Form::kFields; ++field) {
            captions_.push_back(&dialog.add<Label>([&form, field] { return boxAt(form.L_Pole, field); }));
            boxes_.push_back(
                &dialog.add<TextField>([&form, field] { return boxAt(form.T_Pole, field).text; },
                                       [&form, field](std::string text) { form.setText(field, std::move(text)); }));
            boxes_.back()->hint = hint;
            boxes_.back()->before = [this, field](const Event& event) {
                if (!event.is(Key::Enter)) return false;
                form_.keyPressed(field, kEnterKey);
                expectFocus();
                return true;
            };
        }
    }

    // The form has been asked to do what may move its focus.
    void expectFocus() { isFocusDue_ = true; }
    // Follows it then; its buttons' place is the confirmation.
    void followFocus(const Control& confirm) {
        if (!isFocusDue_) return;
        isFocusDue_ = false;
        if (form_.focus.control == Focus::Control::Value)
            dialog_.focus(*boxes_[static_cast<std::size_t>(form_.focus.index)]);
        if (form_.focus.control == Focus::Control::Confirm) dialog_.focus(confirm);
    }

    void place(int row, int column, int captionWidth, int boxWidth) {
        for (std::size_t field = 0; field < boxes_.size(); ++field, ++row) {
            captions_[field]->area = {row, column, 1, captionWidth - 1};
            boxes_[field]->area = {row, column + captionWidth, 1, boxWidth};
        }
    }

  private:
    Dialog& dialog_;
    Form& form_;
    std::vector<Label*> captions_;
    std::vector<TextField*> boxes_;
    bool isFocusDue_ = false;
};

}  // namespace velor::terminal
