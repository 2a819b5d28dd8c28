// The substances as a list under its headings, with what is searched for above it. Where the width allows names longer
// than the lines of the form hold, they are shown, and they are always searched.
#pragma once

#include <string>
#include <vector>

#include "velor/form_controls.h"
#include "velor/substances.h"
#include "views/terminal/dialog.h"

namespace velor::terminal {

class SubstanceSearch {
  public:
    // The substances of the lines; none where the lines are all there is.
    SubstanceSearch(Dialog& dialog, const ListBox& box, const SubstanceList& substances,
                    std::function<void(int index)> selected);

    List& list() { return list_; }
    // From the row to the end of the page, or as many rows as given.
    void place(int row, Size page, int rows = 0);
    // Where the searched text stands.
    Area fieldArea() const { return fieldArea_; }

  private:
    std::string foundText() const;
    std::string lineText(int index, int width) const;

    const ListBox& box_;
    const SubstanceList& substances_;
    const std::vector<std::string> searchedLines_;
    Label& caption_;
    Label& found_;
    Label& headings_;
    Label& nothing_;
    List& list_;
    Area fieldArea_;
};

}  // namespace velor::terminal
