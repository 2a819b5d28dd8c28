#include "views/terminal/substance_search.h"

#include <algorithm>

#include "velor/text.h"

namespace velor::terminal {

namespace {

constexpr const char* kCaption = "Hledat:";
// Over the columns of a line, which the form's own heading for a window does not meet.
constexpr const char* kHeadings = "Č.   Název látky          Synonymum            Vzorec    CAS No.";

}  // namespace

SubstanceSearch::SubstanceSearch(Dialog& dialog, const ListBox& box, std::function<void(int index)> selected)
    : box_(box),
      caption_(dialog.add<Label>([] { return std::string(kCaption); })),
      found_(dialog.add<Label>([this] { return foundText(); })),
      headings_(dialog.add<Label>([] { return std::string(kHeadings); }, Style::Bold)),
      nothing_(dialog.add<Label>([this] { return "Látka  " + upperCase(list_.searched()) + "  nenalezena!!!"; },
                                 Style::Error)),
      list_(dialog.add<List>(box.items, box.selected, std::move(selected))) {}

std::string SubstanceSearch::foundText() const {
    return list_.searched().empty() ? std::string()
                                    : std::to_string(list_.found()) + " z " + std::to_string(box_.items.size());
}

void SubstanceSearch::place(int row, Size page, int rows) {
    const int captionWidth = columnsOf(kCaption) + 1, foundWidth = 12;
    const int fieldWidth = std::clamp(page.columns - captionWidth - foundWidth - 3, 1, 30);
    caption_.area = {row, 1, 1, captionWidth};
    fieldArea_ = {row, 1 + captionWidth, 1, fieldWidth};
    found_.area = {row, fieldArea_.column + fieldWidth + 1, 1, foundWidth};
    headings_.area = {row + 1, 1, 1, page.columns - 1};
    const int first = row + 2;
    list_.area = {first, 1, std::max(3, rows > 0 ? rows : page.rows - first), page.columns - 1};
    nothing_.area = {first, 1, 1, page.columns - 1};
    nothing_.isShown = list_.found() == 0;
}

}  // namespace velor::terminal
