// The state of one mixture object.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/checked.h"
#include "velor/component_forms.h"
#include "velor/flash_record.h"
#include "velor/forms.h"
#include "velor/record.h"
#include "velor/user_interface.h"
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
    std::uint64_t revision_ = 0;
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

// What the last real-gas solution gave; empty where it failed.
struct RealGasState {
    std::optional<double> density;         // mol/cm3
    std::optional<double> internalEnergy;  // J/mol
    std::optional<double> enthalpy;        // J/mol
    std::optional<double> entropy;         // J/(mol K)
    std::optional<double> lnFug;           // -
    std::optional<double> Cv;              // J/(mol K)
    std::optional<double> Cp;              // J/(mol K)
    std::optional<double> jouleThomson;    // K/Pa
};

// Constants that the rooms below prepare from the records; each room knows what is in them.
struct PreparedGas;
struct PreparedGasMixing;

struct State;

// The dialogs are made where their behaviour is defined.
void createForms(State& state);
void createListForm(State& state);
void releaseForms(State& state);

struct State {
    static constexpr std::int16_t kNacteno = 55537 - 65536;  // 55537 as a signed 16-bit number

    std::unique_ptr<UserInterface> ownUserInterface;  // where the host brought none
    UserInterface* userInterface = nullptr;
    std::vector<std::string> volumes;
    bool systemVolumes = true;  // ask the system when they are needed

    std::int16_t PocSlozek = 0;
    ComponentSlots slots;
    KeptFractions Slozeni;  // the last mixture call's composition
    KeptFractions Zlomky;   // the last conversion's result
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
    std::vector<std::string> SeznamLatek;  // lines of the substance list; empty until it is built
    std::int16_t PocLatek = 0;
    std::int16_t RezimSeznamu = 0;
    std::uint32_t randomState = 0x50000;  // where the classic generator begins
    KeptFractions enteredFractions;       // of the last composition dialog: as typed,
    KeptFractions moleFractions;          // and converted
    KeptFractions massFractions;
    // The dialogs, released in the order of their creation.
    std::unique_ptr<F_Sezn> listForm;
    std::unique_ptr<F_Seznam> componentsForm;
    std::unique_ptr<F_Sloz> compositionForm;
    std::unique_ptr<frmLatka> displayForm;
    std::unique_ptr<F_Zmenaz> changeForm;
    std::unique_ptr<frmOprav> correctionForm;
    RealGasState realGas;
    std::shared_ptr<PreparedGas> preparedGas;
    std::shared_ptr<PreparedGasMixing> preparedGasMixing;
    FlashRecord lastFlash;
    double flashPressure = 0;  // Pa, vapour pressure kept from the last iterated flash: the next report prints it
    Variant TKRITsm, PKRITsm, VKRITsm, ZKRITsm, MSm;     // of the last PSEUD
    std::span<const std::string_view> propertyCaptions;  // empty until inivlast
};

}  // namespace velor
