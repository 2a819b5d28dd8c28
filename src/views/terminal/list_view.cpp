// The list of substances, to be read only.
#include "velor/text.h"
#include "views/terminal/dialog.h"
#include "views/terminal/substance_search.h"
#include "views/terminal/views.h"

namespace velor::terminal {

void showView(Screen& screen, F_Sezn& form) {
    Dialog dialog(screen, [&] { return form.Nadpis_1; });
    dialog.escape = [&] { form.close(); };
    Label& count = dialog.add<Label>([&] { return form.Nadpis_2; });
    SubstanceSearch search(dialog, form.L_Sezn, form.Latky, [&](int index) { form.L_Sezn.selected = index; });
    // Searching and moving about is done from the field, which keeps the focus: in the list itself every key closes.
    TextField& field = dialog.add<TextField>([&] { return search.list().searched(); },
                                             [&](const std::string& text) { search.list().search(text); });
    const bool canShow = form.ZobrazLatku && form.Latky.size() == form.L_Sezn.items.size();
    field.hint = canShow ? "písmena hledají · ↑↓ PgUp PgDn posun · Enter zobrazí látku · Esc zavře"
                         : "písmena hledají · ↑↓ PgUp PgDn posun · Enter nebo Esc zavře";
    const auto enter = [&] {
        if (!canShow) return form.keyPressed(kEnterKey);
        if (search.list().found() > 0) form.ZobrazLatku(boxAt(form.Latky, form.L_Sezn.selected));
    };
    field.before = [&](const Event& event) {
        if (event.is(Key::Enter)) enter();
        const bool isMoveInText = event.is(Key::Home) || event.is(Key::End);
        return !form.visible || (!isMoveInText && search.list().scroll(event));
    };
    search.list().before = [&](const Event& event) {
        if (event.kind == Event::Kind::Character) form.keyPressed(static_cast<int>(event.character));
        if (event.is(Key::Enter)) enter();
        return !form.visible || event.is(Key::Enter);
    };
    search.list().hint = "↑↓ PgUp PgDn posun · jiná klávesa nebo klepnutí zavře · Tab hledání";
    search.list().clicked = [&] { form.click(); };
    dialog.layout = [&](Size page) {
        count.area = {0, 1, 1, page.columns - 1};
        search.place(1, page);
        field.area = search.fieldArea();
    };
    dialog.focus(field);
    dialog.run(form.visible);
}

}  // namespace velor::terminal
