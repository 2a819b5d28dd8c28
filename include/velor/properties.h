// The catalogue: all that is known of a property, one row each, of pure substances and of mixtures.
// Smes::Vlastnost, Smes::PopisVlastnosti, the dialogs, the command and the documentation read it; nobody keeps a list
// of his own. Captions, units and rules are what people see: Czech, UTF-8.
#pragma once

#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "velor/flash_record.h"
#include "velor/variant.h"

namespace velor {

class Smes;

// ---- Pure substances ----------------------------------------------------------------------------

// The properties of a component, numbered as Smes::FFce takes them. The density at the temperature that gives the
// component the mixture's reduced temperature is one more that mixtures are mixed of; FFce knows it not by a number.
enum Property : int { kReducedROLW, kETAG, kCPG, kALAG, kROLW, kETAL, kALAL, kCPL, kDHV, kTENS, kSIGMA };

// Items of Smes::VLRConst behind the six coefficients.
inline constexpr int kTyp = 7, kPriznak = 8, kTmin = 9, kTmax = 10;

struct PureProperty {
    Property number;
    std::string_view code;
    std::string_view caption;
    std::string_view unit;
};

// In the order of their numbers, from 1.
std::span<const PureProperty> pureProperties();

// By its code in any letter case; null where there is no such property.
const PureProperty* findPureProperty(std::string_view code);

inline constexpr int kWater = 1;  // substance 1 of the database is water, by rule

// The equation that a property of a substance is computed by instead of its record's, and what has to be said where the
// record's is shown; empty where it is the record's.
std::string_view equationInstead(int substance, int property);
std::string_view correlationNote(int substance, int property);

// ---- Mixtures -----------------------------------------------------------------------------------

// A set of pure properties.
class Correlations {
  public:
    constexpr Correlations(std::initializer_list<Property> members) {
        for (const Property member : members) bits_ |= bit(member);
    }
    constexpr bool contains(Property property) const { return (bits_ & bit(property)) != 0; }

  private:
    static constexpr unsigned bit(Property property) { return 1U << static_cast<unsigned>(property); }

    unsigned bits_ = 0;
};

enum class Phase { Any, Liquid, Gas };

struct MixtureProperty {
    // At T kelvin and P pascals of the composition X (mole fractions from 1); what it does not need it does not read.
    using Method = Variant (*)(Smes& smes, const Variant& T, const Variant& P, const Variant& X);
    // Of an iteration: how the object's last one ended.
    using Outcome = SaturationOutcome (Smes::*)() const;

    std::string_view code;  // upper case
    std::string_view caption;
    int captionNumber;  // of the caption in Smes::PopisVlastnosti; 0 where it is not among them
    std::string_view symbol;
    std::string_view unit;      // empty for a pure number
    std::string_view rule;      // whose mixing rule it is, with the year, or how it follows from others
    Correlations correlations;  // the pure properties that it is mixed of
    Method method;
    bool needsTemperature = false;
    bool needsPressure = false;
    Phase phase = Phase::Any;
    // An integral of heat capacities from the boiling points: its polynomials are neither clamped into their range nor
    // held below the critical temperature, and it may be below the -9999 that Smes::Vlastnost takes for no value.
    bool isIntegral = false;
    Outcome outcome = nullptr;  // of a bubble or dew point
};

// Those that need no pressure are the first list of Smes::Vlastnost, the others the second.
std::span<const MixtureProperty> mixtureProperties();

// By its code in any letter case, without blanks around it; null where there is no such property.
const MixtureProperty* findMixtureProperty(std::string_view code);

// The codes that a slip or two of typing make of what was wanted, in the catalogue's order.
std::vector<std::string_view> nearCodes(std::string_view wanted);

}  // namespace velor
