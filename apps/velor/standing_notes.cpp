#include "standing_notes.h"

namespace velor::app {

Cell StandingNotes::cell(const PropertyValue& value) {
    seen_[static_cast<std::size_t>(value.standing)] = true;
    Cell cell;
    if (value.isComputed()) cell.value = value.value;
    const std::string_view mark = standingMark(value.standing);
    if (!mark.empty()) cell.mark.append(" ").append(mark);
    return cell;
}

std::vector<std::string> StandingNotes::notes() const {
    std::vector<std::string> notes;
    for (std::size_t i = 0; i < seen_.size(); ++i) {
        const auto standing = static_cast<Standing>(i);
        const std::string_view mark = standingMark(standing);
        if (seen_[i] && !mark.empty()) notes.push_back(std::string(mark).append("  ").append(standingNote(standing)));
    }
    return notes;
}

}  // namespace velor::app
