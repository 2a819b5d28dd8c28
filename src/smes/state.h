// The state of one mixture object.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/checked.h"
#include "velor/record.h"
#include "velor/user_interface.h"

namespace velor {

// The 20 component slots: substance numbers and loaded records. Every access is checked (error 9), because the count
// of components is any 16-bit number by design; every change goes through the two mutators.
class ComponentSlots {
  public:
    static constexpr int kCount = 20;

    std::int16_t CisloLatky(int i) const { return slots_[index(i)].CisloLatky; }
    const TLatka& Latka(int i) const { return slots_[index(i)].Latka; }

    void setCisloLatky(int i, std::int16_t number) { slots_[index(i)].CisloLatky = number; }
    TLatka& change(int i) { return slots_[index(i)].Latka; }

  private:
    struct Slot {
        std::int16_t CisloLatky = 0;
        TLatka Latka;
    };

    static std::size_t index(int i) {
        if (i < 1 || i > kCount) [[unlikely]]
            checked::raise(RunTimeError::kSubscript);
        return static_cast<std::size_t>(i - 1);
    }

    std::array<Slot, kCount> slots_{};
};

struct State {
    static constexpr std::int16_t kNacteno = 55537 - 65536;  // 55537 as a signed 16-bit number

    std::unique_ptr<UserInterface> ownUserInterface;  // where the host brought none
    UserInterface* userInterface = nullptr;
    std::vector<std::string> volumes;
    bool systemVolumes = true;  // ask the system when they are needed

    std::int16_t PocSlozek = 0;
    ComponentSlots slots;
    std::int16_t Nacteno = 0;
    std::string AdresaBaze;
    std::string DataFileName = "VELOR.DRC";
    std::string CFGPath;
    std::string CFGName = "VELOR.CFG";
    std::int16_t MezeTeplot = 0;
    std::int16_t Redlich = 0;
    std::int16_t ChyboveHlasky = 0;
    std::int16_t PocHlasek = 0;
    std::int16_t MaxErrHlas = 20;
    std::string SNazev;
    std::span<const std::string_view> propertyCaptions;  // empty until inivlast
};

}  // namespace velor
