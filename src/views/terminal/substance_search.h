// The substances as a list under its headings, with what is searched for above it.
#pragma once

#include <string>

#include "velor/form_controls.h"
#include "views/terminal/dialog.h"

namespace velor::terminal {

class SubstanceSearch {
  public:
    SubstanceSearch(Dialog& dialog, const ListBox& box, std::function<void(int index)> selected);

    List& list() { return list_; }
    // From the row to the end of the page, or as many rows as given.
    void place(int row, Size page, int rows = 0);
    // Where the searched text stands.
    Area fieldArea() const { return fieldArea_; }

  private:
    std::string foundText() const;

    const ListBox& box_;
    Label& caption_;
    Label& found_;
    Label& headings_;
    Label& nothing_;
    List& list_;
    Area fieldArea_;
};

}  // namespace velor::terminal
