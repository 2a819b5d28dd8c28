// The display of a component.
#include <algorithm>

#include "velor/form_controls.h"
#include "velor/text.h"
#include "views/terminal/dialog.h"
#include "views/terminal/views.h"

namespace velor::terminal {

namespace {

constexpr int kCaptionWidth = 27, kValueWidth = 18, kConstantWidth = kCaptionWidth + kValueWidth + 1;

std::string padded(const std::string& text, int width) {
    return text + std::string(static_cast<std::size_t>(std::max(0, width - columnsOf(text))), ' ');
}

// In a narrow window the caption gives way to the value.
std::string constantLine(const frmLatka::Constant& constant, int width) {
    const int captionWidth = std::clamp(width - kValueWidth - 1, 1, kCaptionWidth - 1);
    return padded(cutTo(constant.caption, captionWidth), captionWidth + 1) + constant.value + " " + constant.unit;
}

std::string coefficientsLine(const CorrelationText& correlation) {
    std::string text;
    for (std::size_t j = 0; j < correlation.A.size(); ++j)
        text += "A" + std::to_string(j + 1) + " = " + correlation.A[j] + "  ";
    return text;
}

std::string correlationText(const CorrelationText& correlation) {
    if (!correlation.isGiven) return correlation.caption + ": neobsazeno";
    return std::to_string(correlation.Typ) + ": " + correlation.Vztah + "\n" +
           std::string(trimBlanks(coefficientsLine(correlation))) + "\n" + correlation.range;
}

std::string valueText(const frmLatka& form) {
    const CorrelationText& correlation = form.selectedCorrelation();
    const std::string text = correlation.caption + "\n" + correlation.code + ": " + form.Hodnota;
    return correlation.note.empty() ? text : text + "\n" + correlation.note;
}

class DisplayView {
  public:
    DisplayView(Screen& screen, frmLatka& form)
        : form_(form),
          dialog_(screen, [this] { return form_.caption; }),
          names_(dialog_.add<Label>([this] { return namesText(); }, Style::Bold)),
          constantsTitle_(dialog_.add<Label>([this] { return std::string(trimBlanks(form_.Frame1)); }, Style::Bold)),
          correlationsTitle_(dialog_.add<Label>([this] { return std::string(trimBlanks(form_.Frame2)); }, Style::Bold)),
          list_(dialog_.add<List>(form.L_Vlast.items, form.L_Vlast.selected,
                                  [this](int index) { form_.selectProperty(index); })),
          correlation_(dialog_.add<Label>([this] { return correlationText(form_.selectedCorrelation()); })),
          temperatureCaption_(dialog_.add<Label>([this] { return form_.T_TeplotaPopis; })),
          temperature_(dialog_.add<TextField>([this] { return form_.T_Teplota.text; },
                                              [this](std::string text) { form_.setTemperature(std::move(text)); })),
          value_(dialog_.add<Label>([this] { return valueText(form_); }, Style::Bold)),
          compute_(dialog_.add<Button>([this] { return form_.C_VypocetCaption; }, [this] { form_.clickC_Vypocet(); })),
          back_(dialog_.add<Button>([this] { return form_.C_ZpetCaption; }, [this] { form_.clickC_Zpet(); })) {
        for (const frmLatka::Constant& constant : form.Konstanty)
            constants_.push_back(
                &dialog_.add<Label>([this, &constant] { return constantLine(constant, constantWidth_); }));
        compute_.isPinned = back_.isPinned = true;
        list_.hint = "↑↓ jiná vlastnost · Tab teplota · PgUp PgDn posun · Esc zpět";
        list_.before = [](const Event& event) { return event.kind == Event::Kind::Character; };  // nothing to search in
        temperature_.hint = "Enter vypočítá · Tab dál · Esc zpět";
        temperature_.before = [this](const Event& event) {
            if (event.is(Key::Enter)) form_.keyInTemperature(kEnterKey);
            return event.is(Key::Enter);
        };
        dialog_.escape = [this] { form_.close(); };
        dialog_.layout = [this](Size page) { layOut(page); };
        dialog_.focus(list_);
    }

    void run() { dialog_.run(form_.visible); }

  private:
    std::string namesText() const {
        return form_.NazevPopis + " " + form_.Nazev + "   " + form_.SynonymPopis + " " + form_.Synonym + "\n" +
               form_.VzorecPopis + " " + form_.Vzorec + "   " + form_.CASPopis + " " + form_.CAS;
    }

    // The properties beside the constants where both fit, else below them.
    void layOut(Size page) {
        constexpr int kLeastList = 28;
        const int width = page.columns - 2;
        const bool areBeside = width >= kConstantWidth + kLeastList;
        const int namesRows = names_.rowsIn(width);
        names_.area = {0, 1, namesRows, width};
        int row = namesRows;
        constantWidth_ = std::min(width, kConstantWidth);
        constantsTitle_.area = {row, 1, 1, constantWidth_};
        for (std::size_t k = 0; k < constants_.size(); ++k)
            constants_[k]->area = {row + 1 + static_cast<int>(k), 1, 1, constantWidth_};
        const int constantsEnd = row + 1 + static_cast<int>(constants_.size());
        if (!areBeside) row = constantsEnd;
        const int column = areBeside ? 1 + kConstantWidth : 1, listWidth = width + 1 - column;
        correlationsTitle_.area = {row++, column, 1, listWidth};
        list_.area = {row, column, frmLatka::kProperties, listWidth};
        row += frmLatka::kProperties + 1;
        const int captionWidth = columnsOf(form_.T_TeplotaPopis) + 1;
        temperatureCaption_.area = {row, column, 1, captionWidth};
        temperature_.area = {row++, column + captionWidth, 1, 12};
        const int valueRows = value_.rowsIn(listWidth);
        value_.area = {row, column, valueRows, listWidth};
        row = std::max(row + valueRows, constantsEnd);
        correlation_.area = {row, 1, correlation_.rowsIn(width), width};
        dialog_.pinnedRows = placeInRows({&compute_, &back_}, 0, page.columns);
    }

    frmLatka& form_;
    Dialog dialog_;
    Label& names_;
    Label& constantsTitle_;
    Label& correlationsTitle_;
    List& list_;
    Label& correlation_;
    Label& temperatureCaption_;
    TextField& temperature_;
    Label& value_;
    Button& compute_;
    Button& back_;
    std::vector<Label*> constants_;
    int constantWidth_ = kConstantWidth;
};

}  // namespace

void showView(Screen& screen, frmLatka& form) { DisplayView(screen, form).run(); }

}  // namespace velor::terminal
