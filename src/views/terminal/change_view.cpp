// The temporary change of a component's names and constants.
#include <algorithm>

#include "views/terminal/dialog.h"
#include "views/terminal/field_rows.h"
#include "views/terminal/views.h"

namespace velor::terminal {

void showView(Screen& screen, F_Zmenaz& form) {
    Dialog dialog(screen, [&] { return form.caption; });
    Label& guide = dialog.add<Label>([&] { return form.Navod; }, Style::Dim);
    FieldRows<F_Zmenaz> fields(dialog, form, "Enter další · Ctrl-U vyprázdní · Tab dál · Esc zpět beze změny");
    const auto confirm = [&](void (F_Zmenaz::*button)()) {
        (form.*button)();
        fields.expectFocus();
    };
    Button& save = dialog.add<Button>([&] { return form.C_OKCaption; }, [&] { confirm(&F_Zmenaz::clickC_OK); });
    Button& data = dialog.add<Button>([&] { return form.C_DataCaption; }, [&] { confirm(&F_Zmenaz::clickC_Data); });
    Button& restore =
        dialog.add<Button>([&] { return form.C_ObnovitCaption; }, [&] { confirm(&F_Zmenaz::clickC_Obnovit); });
    Button& back = dialog.add<Button>([&] { return form.C_ZpetCaption; }, [&] { form.clickC_Zpet(); });
    save.isPinned = data.isPinned = restore.isPinned = back.isPinned = true;
    dialog.escape = [&] { form.close(); };
    dialog.after = [&] { fields.followFocus(save); };
    dialog.layout = [&](Size page) {
        constexpr int kCaptionWidth = 32, kBoxWidth = 32;
        const int guideRows = guide.rowsIn(page.columns - 2);
        guide.area = {0, 1, guideRows, page.columns - 2};
        const int captionWidth = std::min(kCaptionWidth, page.columns / 2);
        fields.place(guideRows, 1, captionWidth, std::clamp(page.columns - captionWidth - 2, 1, kBoxWidth));
        dialog.pinnedRows = placeInRows({&save, &data, &restore, &back}, 0, page.columns);
    };
    fields.expectFocus();
    fields.followFocus(save);
    dialog.run(form.visible);
}

}  // namespace velor::terminal
