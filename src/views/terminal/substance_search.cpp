#include "views/terminal/substance_search.h"

#include <algorithm>

#include "velor/text.h"

namespace velor::terminal {

namespace {

constexpr const char* kCaption = "Hledat:";

// Of the columns before the CAS number.
struct Widths {
    int name, synonym, formula;
};
constexpr Widths kLeast{20, 20, 10};  // those of the form's own lines
constexpr Widths kWhole{30, 30, 20};  // those of a record
constexpr int kNumberAndCas = 5 + 13;

Widths widthsIn(int width) {
    Widths widths = kLeast;
    int rest = width - kNumberAndCas - kLeast.name - 1 - kLeast.synonym - 1 - kLeast.formula;
    const auto widen = [&](int& column, int whole) {
        const int more = std::clamp(rest, 0, whole - column);
        column += more;
        rest -= more;
    };
    widen(widths.name, kWhole.name);
    widen(widths.synonym, kWhole.synonym);
    widen(widths.formula, kWhole.formula);
    return widths;
}

std::string cell(const std::string& text, int width) {
    const std::string shown = cutTo(text, width);
    return shown + std::string(static_cast<std::size_t>(width - columnsOf(shown)), ' ');
}

std::string lineOf(const std::string& number, const Substance& substance, const Widths& widths) {
    return cell(number, 3) + "  " + cell(substance.name, widths.name) + " " + cell(substance.synonym, widths.synonym) +
           " " + cell(substance.formula, widths.formula) + substance.cas;
}

std::string lineOf(const Substance& substance, const Widths& widths) {
    std::string number = std::to_string(substance.number);
    if (number.size() < 3) number.insert(0, 3 - number.size(), '0');
    Substance bracketed = substance;
    if (!bracketed.cas.empty()) bracketed.cas = "[" + bracketed.cas + "]";
    return lineOf(number, bracketed, widths);
}

std::vector<std::string> wholeLines(const ListBox& box, const SubstanceList& substances) {
    if (substances.size() != box.items.size()) return box.items;
    std::vector<std::string> lines;
    for (const Substance& substance : substances) lines.push_back(lineOf(substance, kWhole));
    return lines;
}

}  // namespace

SubstanceSearch::SubstanceSearch(Dialog& dialog, const ListBox& box, const SubstanceList& substances,
                                 std::function<void(int index)> selected)
    : box_(box),
      substances_(substances),
      searchedLines_(wholeLines(box, substances)),
      caption_(dialog.add<Label>([] { return std::string(kCaption); })),
      found_(dialog.add<Label>([this] { return foundText(); })),
      // Over the columns of a line, which the form's own heading for a window does not meet.
      headings_(dialog.add<Label>(
          [this] {
              return lineOf("Č.", {0, "Název látky", "Synonymum", "Vzorec", "CAS No."},
                            widthsIn(list_.area.columns - 1));
          },
          Style::Bold)),
      nothing_(dialog.add<Label>([this] { return "Látka  " + upperCase(list_.searched()) + "  nenalezena!!!"; },
                                 Style::Error)),
      list_(dialog.add<List>(searchedLines_, box.selected, std::move(selected))) {
    list_.lineText = [this](int index, int width) { return lineText(index, width); };
}

// The form's own line where it fills the width: what it says there is the library's.
std::string SubstanceSearch::lineText(int index, int width) const {
    const Widths widths = widthsIn(width);
    if (substances_.size() != box_.items.size() || widths.name == kLeast.name) return boxAt(box_.items, index);
    return lineOf(boxAt(substances_, index), widths);
}

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
