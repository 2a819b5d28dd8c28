// The supplement VELOR.DOP beside the database: what a record has no room for, by CAS number. The source and the
// deviation of each correlation, whether it is an estimate, further names of the substances, their UNIFAC groups.
#pragma once

#include <bitset>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "velor/properties.h"

namespace velor {

// Where a correlation comes from.
struct Provenance {
    std::string source;
    std::optional<double> deviation;  // the largest one from the source over the range, %
    bool isEstimate = false;          // nothing was measured
};

// By the properties' numbers.
using EstimatedProperties = std::bitset<kSIGMA + 1>;

class Supplement {
  public:
    enum class State { Read, Missing, OtherVersion, Damaged };

    Supplement() = default;  // as where there is none
    explicit Supplement(std::string text);

    // That of a database: the file beside it that is called the same but for its end, .DOP. Raises nothing: what cannot
    // be read is missing.
    static Supplement of(const std::string& databasePath);
    static std::string pathFor(const std::string& databasePath);

    State state() const { return state_; }
    // Why it knows nothing, a Czech sentence; empty where it was read.
    std::string_view note() const;

    // Of property k (1..10) of the substance with that CAS number (with hyphens); none where nothing is told of it.
    std::optional<Provenance> provenance(std::string_view cas, int k) const;
    EstimatedProperties estimates(std::string_view cas) const;
    // "subgroup:count", separated by blanks; empty where there are none.
    std::string groups(std::string_view cas) const;
    // Calls with each further name and the CAS number of its substance. A name that covers several substances comes
    // once for each of them.
    void forEachName(const std::function<void(std::string_view cas, std::string_view name)>& take) const;

    // The whole of it; empty where it was not read.
    std::string_view text() const;

  private:
    struct Content;

    std::string_view linesOf(std::string_view cas) const;

    std::shared_ptr<const Content> content_;  // null where it was not read
    State state_ = State::Missing;
};

}  // namespace velor
