// What an object keeps for each of its 20 components.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "runtime/checked.h"
#include "velor/record.h"
#include "velor/variant.h"

namespace velor {

// The 20 component slots: substance numbers and loaded records. Every access is checked (error 9), because the count
// of components is any 16-bit number by design; every change goes through the two mutators.
class ComponentSlots {
  public:
    static constexpr int kCount = 20;

    std::int16_t CisloLatky(int i) const { return slots_[index(i)].CisloLatky; }
    const TLatka& Latka(int i) const { return slots_[index(i)].Latka; }

    void setCisloLatky(int i, std::int16_t number) {
        slots_[index(i)].CisloLatky = number;
        ++revision_;
    }
    // The record for writing at once; the reference is not to be kept.
    TLatka& change(int i) {
        ++revision_;
        return slots_[index(i)].Latka;
    }

    // Grows with every change, so that constants prepared from the records know when they are out of date.
    std::uint64_t revision() const { return revision_; }

    // Position of component i in an array of 20; error 9 outside 1..20.
    static std::size_t index(int i) {
        if (i < 1 || i > kCount) [[unlikely]]
            checked::raise(RunTimeError::kSubscript);
        return static_cast<std::size_t>(i - 1);
    }

  private:
    struct Slot {
        std::int16_t CisloLatky = 0;
        TLatka Latka;
    };

    std::array<Slot, kCount> slots_{};
    std::uint64_t revision_ = 1;  // 0 belongs to nothing yet prepared
};

// Fractions kept per component; Empty until one is set.
class KeptFractions {
  public:
    Variant at(int i) const {
        const std::optional<double>& kept = fractions_[ComponentSlots::index(i)];
        return kept ? Variant(*kept) : Variant();
    }
    void set(int i, double fraction) { fractions_[ComponentSlots::index(i)] = fraction; }

  private:
    std::array<std::optional<double>, ComponentSlots::kCount> fractions_{};
};

}  // namespace velor
