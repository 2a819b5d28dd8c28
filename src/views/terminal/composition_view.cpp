// The composition of the mixture.
#include <algorithm>

#include "velor/form_controls.h"
#include "velor/text.h"
#include "views/terminal/boxes.h"
#include "views/terminal/dialog.h"
#include "views/terminal/views.h"

namespace velor::terminal {

namespace {

constexpr int kLeft = 1, kRight = 2;  // the mouse's buttons as the form counts them

class CompositionView {
  public:
    CompositionView(Screen& screen, F_Sloz& form)
        : form_(form),
          screen_(screen),
          dialog_(screen, [this] { return form_.caption; }),
          guide_(dialog_.add<Label>([this] { return std::string(trimBlanks(form_.Navod)); }, Style::Dim)),
          nameHeading_(dialog_.add<Label>([this] { return form_.Nadpis; }, Style::Bold)),
          valueHeading_(dialog_.add<Label>([this] { return form_.Nadpiss; }, Style::Bold)) {
        for (int i = 0; i < form.components; ++i) addComponent(i);
        addButtons();
        dialog_.escape = [this] { leave(); };
        dialog_.layout = [this](Size page) { layOut(page); };
        dialog_.before = [this](const Event& event) { return openComponent(event); };
        dialog_.after = [this] {
            followFocus();
            followComponent();
        };
        followFocus();
        followComponent();
    }

    void run() { dialog_.run(form_.visible); }

  private:
    void addComponent(int i) {
        Label& name = dialog_.add<Label>(
            [this, i] { return std::to_string(i + 1) + ". " + std::string(trimBlanks(boxAt(form_.L_J, i))); });
        name.clicked = [this, i](Mouse mouse) {
            component_ = i;
            form_.mouseOnName(i, mouse == Mouse::Left ? kLeft : kRight);
        };
        names_.push_back(&name);
        TextField& value = dialog_.add<TextField>([this, i] { return boxAt(form_.T_S, i).text; },
                                                  [this, i](std::string text) { form_.setText(i, std::move(text)); });
        value.hint = "Enter další · F2 zobrazí složku · F3 dočasná změna · Tab dál · Esc zpět";
        value.before = [this, i](const Event& event) {
            if (!event.is(Key::Enter)) return false;
            form_.keyPressed(i, kEnterKey);
            isFocusDue_ = i + 1 < form_.components;
            // Behind the last value there is only the confirmation left.
            if (!isFocusDue_) dialog_.focus(*confirm_);
            return true;
        };
        values_.push_back(&value);
    }

    void addButtons() {
        molar_ = &dialog_.add<Button>([this] { return form_.O_MolCaption; }, [this] { choose(&F_Sloz::clickO_Mol); });
        mass_ = &dialog_.add<Button>([this] { return form_.O_HmotCaption; }, [this] { choose(&F_Sloz::clickO_Hmot); });
        molar_->isChosen = [this] { return form_.O_Mol; };
        mass_->isChosen = [this] { return !form_.O_Mol; };
        confirm_ = &dialog_.add<Button>([this] { return form_.C_OKCaption; }, [this] { form_.clickC_OK(); });
        back_ = &dialog_.add<Button>([this] { return form_.C_ZpetCaption; }, [this] { form_.clickC_Zpet(); });
        for (Button* button : {molar_, mass_, confirm_, back_}) button->isPinned = true;
    }

    void choose(void (F_Sloz::*option)()) {
        (form_.*option)();
        isFocusDue_ = true;
    }

    // Back drops all components; a key pressed once too often is no reason to.
    void leave() {
        const Message question{"Zahodit zadané složky směsi?", Icon::Exclamation, "VELOR", Buttons::YesNo};
        if (form_.components == 0 || dialog_.isDeserted() || showBox(screen_, question) == Answer::Yes) form_.close();
    }

    // From the keyboard the keys stand for the mouse on the name of the component selected last.
    bool openComponent(const Event& event) {
        if (!event.is(Key::F2) && !event.is(Key::F3)) return false;
        if (form_.components > 0) form_.mouseOnName(component_, event.is(Key::F2) ? kLeft : kRight);
        return true;
    }

    // The buttons tell which component the keys would open.
    void followComponent() {
        for (std::size_t i = 0; i < values_.size(); ++i)
            if (dialog_.hasFocus(*values_[i])) component_ = static_cast<int>(i);
        for (Button* button : {molar_, mass_, confirm_, back_})
            button->hint = "Enter potvrdí · F2 zobrazí a F3 změní složku č. " + std::to_string(component_ + 1) +
                           " · Tab dál · Esc zpět";
    }

    void followFocus() {
        if (!isFocusDue_) return;
        isFocusDue_ = false;
        if (form_.focus.control == Focus::Control::Value && !values_.empty()) {
            const auto index = std::min(static_cast<std::size_t>(form_.focus.index), values_.size() - 1);
            dialog_.focus(*values_[index]);
        } else {
            dialog_.focus(*confirm_);
        }
    }

    void layOut(Size page) {
        constexpr int kValueWidth = 14, kGap = 2, kWidestName = 36;
        const int nameWidth = std::clamp(page.columns - kValueWidth - 2 * kGap, 8, kWidestName);
        const int valueColumn = 1 + nameWidth + kGap;
        int row = guide_.rowsIn(page.columns - 2);
        guide_.area = {0, 1, row++, page.columns - 2};
        nameHeading_.area = {row, 1, 1, nameWidth};
        valueHeading_.area = {row++, valueColumn, 1, kValueWidth};
        for (std::size_t i = 0; i < values_.size(); ++i, ++row) {
            names_[i]->area = {row, 1, 1, nameWidth};
            values_[i]->area = {row, valueColumn, 1, kValueWidth};
        }
        const int optionRows = placeInRows({molar_, mass_}, 1, page.columns);
        dialog_.pinnedRows = 1 + optionRows + placeInRows({confirm_, back_}, 1 + optionRows, page.columns);
    }

    F_Sloz& form_;
    Screen& screen_;
    Dialog dialog_;
    Label& guide_;
    Label& nameHeading_;
    Label& valueHeading_;
    Button* molar_ = nullptr;
    Button* mass_ = nullptr;
    Button* confirm_ = nullptr;
    Button* back_ = nullptr;
    std::vector<Label*> names_;
    std::vector<TextField*> values_;
    int component_ = 0;  // selected last, from 0
    bool isFocusDue_ = true;
};

}  // namespace

void showView(Screen& screen, F_Sloz& form) { CompositionView(screen, form).run(); }

}  // namespace velor::terminal
