// The temporary change of a component's correlations.
#include <algorithm>

#include "velor/text.h"
#include "views/terminal/dialog.h"
#include "views/terminal/field_rows.h"
#include "views/terminal/views.h"

namespace velor::terminal {

namespace {

class CorrectionView {
  public:
    CorrectionView(Screen& screen, frmOprav& form)
        : form_(form),
          dialog_(screen, [this] { return form_.caption; }),
          guide_(dialog_.add<Label>([this] { return form_.Navod; }, Style::Dim)),
          list_(dialog_.add<List>(form.L_Vlast.items, form.L_Vlast.selected,
                                  [this](int index) { form_.selectProperty(index); })),
          fields_(dialog_, form, "Enter další · Ctrl-U vyprázdní · Tab dál · Esc zpět beze změny"),
          equation_(dialog_.add<Label>([this] { return equationText(); }, Style::Bold)),
          temperatureCaption_(dialog_.add<Label>([this] { return form_.T_TeplotaPopis; })),
          temperature_(dialog_.add<TextField>([this] { return form_.T_Teplota.text; },
                                              [this](std::string text) { form_.setTemperature(std::move(text)); })),
          values_(dialog_.add<Label>([this] { return valuesText(); })),
          compute_(dialog_.add<Button>([this] { return form_.C_VypocetCaption; },
                                       [this] { press(&frmOprav::clickC_Vypocet); })),
          save_(dialog_.add<Button>([this] { return form_.C_OKCaption; }, [this] { press(&frmOprav::clickC_OK); })),
          restore_(dialog_.add<Button>([this] { return form_.C_ObnovitCaption; },
                                       [this] { press(&frmOprav::clickC_Obnovit); })),
          back_(dialog_.add<Button>([this] { return form_.C_ZpetCaption; }, [this] { form_.clickC_Zpet(); })) {
        compute_.isPinned = save_.isPinned = restore_.isPinned = back_.isPinned = true;
        list_.hint = "↑↓ jiná vlastnost · Tab její pole · Esc zpět beze změny";
        list_.before = [](const Event& event) { return event.kind == Event::Kind::Character; };  // nothing to search in
        temperature_.hint = "Enter vypočítá hodnotu před změnou a po ní · Tab dál · Esc zpět beze změny";
        temperature_.before = [this](const Event& event) {
            if (event.is(Key::Enter)) press(&frmOprav::clickC_Vypocet);
            return event.is(Key::Enter);
        };
        dialog_.escape = [this] { form_.close(); };
        dialog_.after = [this] { followForm(); };
        dialog_.layout = [this](Size page) { layOut(page); };
        dialog_.focus(list_);
    }

    void run() { dialog_.run(form_.visible); }

  private:
    std::string equationText() const {
        return form_.Poznamka.empty() ? form_.Vztah : form_.Vztah + "\n" + form_.Poznamka;
    }
    std::string valuesText() const {
        return form_.PredPopis + "  " + form_.HodnotaPred + "\n" + form_.PoPopis + "     " + form_.HodnotaPo;
    }

    // What a refused field leaves: its property selected, itself with the focus.
    void press(void (frmOprav::*button)()) {
        form_.focus = {};  // so that only a refusal moves the focus
        (form_.*button)();
        fields_.expectFocus();
    }

    void followForm() {
        list_.select(form_.L_Vlast.selected);
        fields_.followFocus(save_);
    }

    void layOut(Size page) {
        constexpr int kListWidth = 41, kCaptionWidth = 13, kBoxWidth = 16;
        const int width = page.columns - 2;
        const int guideRows = guide_.rowsIn(width);
        guide_.area = {0, 1, guideRows, width};
        const bool areBeside = width >= kListWidth + 1 + kCaptionWidth + kBoxWidth;
        list_.area = {guideRows, 1, frmOprav::kProperties, areBeside ? kListWidth : width};
        const int fieldsRow = areBeside ? guideRows : guideRows + frmOprav::kProperties;
        fields_.place(fieldsRow, areBeside ? kListWidth + 2 : 1, kCaptionWidth, kBoxWidth);
        int row = areBeside ? guideRows + frmOprav::kProperties : fieldsRow + frmOprav::kFields;
        const int equationRows = equation_.rowsIn(width);
        equation_.area = {row, 1, equationRows, width};
        row += equationRows;
        const int captionWidth = columnsOf(form_.T_TeplotaPopis) + 1;
        temperatureCaption_.area = {row, 1, 1, captionWidth};
        temperature_.area = {row++, 1 + captionWidth, 1, 12};
        values_.area = {row, 1, values_.rowsIn(width), width};
        dialog_.pinnedRows = placeInRows({&compute_, &save_, &restore_, &back_}, 0, page.columns);
    }

    frmOprav& form_;
    Dialog dialog_;
    Label& guide_;
    List& list_;
    FieldRows<frmOprav> fields_;
    Label& equation_;
    Label& temperatureCaption_;
    TextField& temperature_;
    Label& values_;
    Button& compute_;
    Button& save_;
    Button& restore_;
    Button& back_;
};

}  // namespace

void showView(Screen& screen, frmOprav& form) { CorrectionView(screen, form).run(); }

}  // namespace velor::terminal
