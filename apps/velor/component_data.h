// A component's data as a mixture object holds them, which a dialog may have changed.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "substance_list.h"
#include "velor/record.h"
#include "velor/smes.h"

namespace velor::app {

class ComponentData {
  public:
    // Of the loaded component in the slot, 1..20.
    ComponentData(const Smes& smes, int slot);

    // Into the same substance loaded by another object.
    void putInto(Smes& smes, int slot) const;
    // As it is called now.
    Substance described(const Substance& substance) const;

  private:
    static constexpr int kItems = 10;  // of a correlation block

    std::string name_, synonym_, formula_, cas_;
    // A damaged item has no value to be carried over; it is damaged in the other object, too.
    std::array<std::optional<float>, TLatka::kConstants> constants_;
    std::array<std::array<std::optional<float>, kItems>, TLatka::kCorrelations> correlations_;
};

}  // namespace velor::app
