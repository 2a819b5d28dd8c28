// The choice of a mixture's components.
#include <algorithm>

#include "velor/form_controls.h"
#include "velor/text.h"
#include "views/terminal/dialog.h"
#include "views/terminal/substance_search.h"
#include "views/terminal/views.h"

namespace velor::terminal {

namespace {

// The caption of a window has a wide gap before the version.
std::string withoutGaps(const std::string& text) {
    std::string result;
    for (const char c : text)
        if (c != ' ' || (!result.empty() && result.back() != ' ')) result += c;
    return result;
}

// The names of the substances chosen so far.
std::string chosenNames(const F_Seznam& form) {
    std::string names;
    for (int k = 0; k < form.PocZadanych; ++k) {
        const std::string& number = boxAt(form.T_Smes, k).text;
        const auto substance = std::ranges::find_if(form.Latky, [&](const Substance& listed) {
            const std::string digits = std::to_string(listed.number);
            return number.ends_with(digits) && number.find_first_not_of('0') == number.size() - digits.size();
        });
        if (!names.empty()) names += " + ";
        names += substance == form.Latky.end() ? "?" : substance->name;
    }
    return names;
}

class ComponentsView {
  public:
    ComponentsView(Screen& screen, F_Seznam& form)
        : form_(form),
          dialog_(screen, [this] { return withoutGaps(form_.caption); }),
          headings_(dialog_.add<Label>([this] { return form_.Nadpis_1 + " · " + form_.Nadpis_2; }, Style::Bold)),
          file_(dialog_.add<Label>([this] { return form_.lblDatafile; }, Style::Dim)),
          search_(dialog_, form.L_Seznam, form.Latky, [this](int index) { form_.selectLine(index); }),
          searched_(dialog_.add<Label>([this] { return search_.list().searched() + "_"; }, Style::Underlined)) {
        addList();
        addOptions();
        addBoxes();
        addButtons();
        dialog_.escape = [this] { form_.close(); };
        dialog_.layout = [this](Size page) { layOut(page); };
        dialog_.after = [this] { followFocus(); };
        followFocus();
    }

    void run() { dialog_.run(form_.visible); }

  private:
    void addList() {
        List& list = search_.list();
        list.hint = "písmena hledají · ↑↓ výběr · Enter přidá látku · Tab dál · Esc zpět";
        list.picked = [this](int) { form_.keyInList(kEnterKey); };
    }

    void addOptions() {
        direct_ = &dialog_.add<Button>([this] { return form_.Option1Caption; },
                                       [this] { act([this] { form_.clickOption1(); }); });
        picking_ = &dialog_.add<Button>([this] { return form_.Option2Caption; },
                                        [this] { act([this] { form_.clickOption2(); }); });
        direct_->isChosen = [this] { return form_.Option1; };
        picking_->isChosen = [this] { return !form_.Option1; };
    }

    void addBoxes() {
        label_ = &dialog_.add<Label>([this] { return form_.Label1; }, Style::Bold);
        for (int k = 0; k < F_Seznam::kBoxes; ++k) {
            TextField& box = dialog_.add<TextField>([this, k] { return boxAt(form_.T_Smes, k).text; },
                                                    [this, k](std::string text) { form_.setText(k, std::move(text)); });
            box.hint = "číslo látky a Enter · písmena hledají v seznamu · Tab dál · Esc zpět";
            box.before = [this, k](const Event& event) { return keyInBox(k, event); };
            box.after = [this, k](const Event& event) {
                const int key = event.kind == Event::Kind::Character ? static_cast<int>(event.character) : 0;
                form_.keyPressed(k, key);
                form_.keyReleased(k);
            };
            boxes_.push_back(&box);
        }
        names_ = &dialog_.add<Label>([this] { return chosenNames(form_); }, Style::Dim);
    }

    void addButtons() {
        confirm_ =
            &dialog_.add<Button>([this] { return form_.C_OKCaption; }, [this] { act([this] { form_.clickC_OK(); }); });
        Button& again =
            dialog_.add<Button>([this] { return form_.ZpetCaption; }, [this] { act([this] { form_.clickZpet(); }); });
        Button& back = dialog_.add<Button>([] { return std::string("Konec &beze změny"); }, [this] { form_.close(); });
        buttons_ = {confirm_, &again, &back};
    }

    bool keyInBox(int k, const Event& event) {
        if (event.is(Key::Enter)) {
            act([&] { form_.keyPressed(k, kEnterKey); });
            return true;
        }
        const bool isLetter = event.kind == Event::Kind::Character && event.character > U'9';
        if (!isLetter) return false;
        // The box takes digits alone; whoever types a name wants to find it.
        std::string text;
        appendCodePoint(text, event.character);
        form_.clickOption2();
        search_.list().search(text);
        dialog_.focus(search_.list());
        return true;
    }

    // An action after which the form may want the focus elsewhere.
    template <class Action>
    void act(const Action& action) {
        action();
        isFocusDue_ = true;
    }

    void followFocus() {
        if (!isFocusDue_) return;
        isFocusDue_ = false;
        switch (form_.focus.control) {
            case Focus::Control::Number:
                return dialog_.focus(*boxes_[static_cast<std::size_t>(form_.focus.index)]);
            case Focus::Control::List:
                return dialog_.focus(search_.list());
            case Focus::Control::Confirm:
                return dialog_.focus(*confirm_);
            default:
                return;
        }
    }

    // The list takes what the rest leaves.
    void layOut(Size page) {
        constexpr int kBoxWidth = 5, kLeastList = 3, kAboveList = 4;
        headings_.area = {0, 1, 1, page.columns - 1};
        file_.area = {1, 1, 1, page.columns - 1};
        const int perRow = std::max(1, (page.columns - 2) / (kBoxWidth + 1));
        const int shown = std::min(form_.PocZadanych + 1, F_Seznam::kBoxes);
        const int boxRows = (shown + perRow - 1) / perRow;
        names_->area.columns = page.columns - 2;
        const int nameRows = form_.PocZadanych > 0 ? names_->rowsIn(page.columns - 2) : 0;
        const int optionRows = placeInRows({direct_, picking_}, 0, page.columns);
        const int buttonRows = placeInRows(buttons_, 0, page.columns);
        const int below = optionRows + 1 + boxRows + nameRows + buttonRows;
        const int listRows = std::max(kLeastList, page.rows - kAboveList - below);
        search_.place(2, page, listRows);
        searched_.area = search_.fieldArea();
        int row = kAboveList + listRows;
        placeInRows({direct_, picking_}, row, page.columns);
        row += optionRows;
        label_->area = {row++, 1, 1, page.columns - 1};
        for (int k = 0; k < F_Seznam::kBoxes; ++k) {
            TextField& box = *boxes_[static_cast<std::size_t>(k)];
            box.isShown = boxAt(form_.T_Smes, k).visible;
            box.area = {row + k / perRow, 1 + k % perRow * (kBoxWidth + 1), 1, kBoxWidth};
        }
        row += boxRows;
        names_->area = {row, 1, nameRows, page.columns - 2};
        placeInRows(buttons_, row + nameRows, page.columns);
    }

    F_Seznam& form_;
    Dialog dialog_;
    Label& headings_;
    Label& file_;
    SubstanceSearch search_;
    Label& searched_;
    Label* label_ = nullptr;
    Label* names_ = nullptr;
    Button* direct_ = nullptr;
    Button* picking_ = nullptr;
    Button* confirm_ = nullptr;
    std::vector<TextField*> boxes_;
    std::vector<Button*> buttons_;
    bool isFocusDue_ = true;
};

}  // namespace

void showView(Screen& screen, F_Seznam& form) { ComponentsView(screen, form).run(); }

}  // namespace velor::terminal
