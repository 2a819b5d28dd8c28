// The state of one mixture object, in parts; a function takes the part that it needs.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "object/messages.h"
#include "object/nobody.h"
#include "object/slots.h"
#include "rules/pseudocritical.h"
#include "velor/flash_record.h"
#include "velor/substances.h"
#include "velor/supplement.h"
#include "velor/user_interface.h"
#include "velor/variant.h"

namespace velor {

struct Settings {
    std::int16_t MezeTeplot = 0;
    std::int16_t Redlich = 0;
    std::string SNazev;
    bool captionsAreFilled = false;  // by inivlast
};

// The mixture's caption for titles.
inline std::string mixtureName(const Settings& settings) {
    return settings.SNazev.empty() ? "nepojmenovaná" : settings.SNazev;
}

struct Definition {
    static constexpr std::int16_t kNacteno = 55537 - 65536;  // 55537 as a signed 16-bit number

    std::int16_t PocSlozek = 0;
    ComponentSlots slots;
    std::int16_t Nacteno = 0;
};

// Where the database is, or is to be looked for.
struct DatabasePlace {
    std::string AdresaBaze;
    std::string DataFileName = "VELOR.DRC";  // the usual one or that of a path that ends in "#"
    std::string usualFileName = DataFileName;
    std::string CFGPath;
    std::string CFGName = "VELOR.CFG";
    std::optional<std::vector<std::string>> volumes;  // none: the system is asked when they are needed
};

// The supplement of the database that was in use when it was last asked.
struct KeptSupplement {
    std::string database;
    Supplement supplement;
};

struct SubstanceListState {
    std::vector<std::string> SeznamLatek;  // its lines; empty until it is built
    SubstanceList substances;              // of each line
    std::int16_t PocLatek = 0;
    std::int16_t RezimSeznamu = 0;
    std::uint32_t randomState = 0x50000;  // where the classic generator begins
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

// What the last PSEUD found.
struct LastPseudocritical {
    bool wasTried = false;                // false: no PSEUD yet
    std::optional<Pseudocritical> value;  // none where it gave up
};

struct LastResults {
    KeptFractions Slozeni;           // the last mixture call's composition
    KeptFractions Zlomky;            // the last conversion's result
    KeptFractions enteredFractions;  // of the last composition dialog: as typed,
    KeptFractions moleFractions;     // and converted
    KeptFractions massFractions;
    RealGasState realGas;
    SaturationOutcome bubblePoint = SaturationOutcome::None, dewPoint = SaturationOutcome::None;
    FlashRecord flash;
    double flashPressure = 0;  // Pa, vapour pressure kept from the last iterated flash: the next report prints it
    LastPseudocritical pseudocritical;
};

// Constants that the rooms below prepare from the records; each room knows what is in them.
struct PreparedCorrelations;
struct PreparedGas;
struct PreparedGasMixing;

struct Prepared {
    std::shared_ptr<PreparedCorrelations> correlations;
    std::shared_ptr<PreparedGas> gas;
    std::shared_ptr<PreparedGasMixing> gasMixing;
};

// The forms of an object, whose behaviour a room below defines.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // Makes the form of the substance list anew, so that its list is built anew.
    virtual void renewList() = 0;

  protected:
    Dialogs() = default;
    Dialogs(const Dialogs&) = default;
    Dialogs& operator=(const Dialogs&) = default;
};

struct State {
    std::unique_ptr<UserInterface> ownUserInterface;  // where the host brought none
    UserInterface* person = nullptr;
    Nobody nobody;
    int publicCalls = 0;  // that are not done yet: a method may use another one
    Messages messages;
    Settings settings;
    Definition definition;
    DatabasePlace place;
    std::optional<KeptSupplement> supplement;
    SubstanceListState list;
    LastResults last;
    Prepared prepared;
    std::unique_ptr<Dialogs> dialogs;
};

// A public method that may show something, from its begin to its end. The outermost one starts with no last text.
class PublicCall {
  public:
    explicit PublicCall(State& state) : calls_(state.publicCalls) {
        if (calls_++ == 0) state.nobody.lastText.clear();
    }
    ~PublicCall() { --calls_; }
    PublicCall(const PublicCall&) = delete;
    PublicCall& operator=(const PublicCall&) = delete;

  private:
    int& calls_;
};

}  // namespace velor
