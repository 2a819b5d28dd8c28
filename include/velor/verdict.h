// The verdict on a computed value: how it came about, or why there is none. It is decided here for everybody, from what
// the object gathers for the property by the catalogue's row.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "velor/properties.h"
#include "velor/run_time_error.h"
#include "velor/smes.h"

namespace velor {

// How a value stands to the correlations it comes from, or why there is none. Those that come later weigh more, but for
// the last one, which is said only where there is nothing else to say. Numbers that were given stay: they are part of
// the C interface.
enum class Standing {
    InRange,
    Extrapolated,     // the temperature is outside the validity range
    AtBound,          // clamped into it, see Smes::MezeZap
    BelowCritical,    // above the critical temperature, evaluated at 0.98 of it
    LeftOut,          // a component above its critical temperature has no part in the heat of vaporisation
    Inert,            // of a dew point: a component above its critical temperature does not condense
    Metastable,       // of a gas above its dew pressure: part of it would condense
    NotGiven,         // the database has no such correlation of the substance
    BeyondReference,  // the equation has no value beyond its reference temperature
    Diverged,         // the iteration was given up
    Failed,
    Estimated,  // as InRange, but a correlation is an estimate
};
inline constexpr std::size_t kStandings = 12;

// One word for machines.
std::string_view standingWord(Standing standing);
// The sign behind a value that is to be read with care or is missing; empty where there is nothing to say.
std::string_view standingMark(Standing standing);
// What the sign means, or why there is no value; a Czech sentence.
std::string_view standingNote(Standing standing);

struct PropertyValue {
    Standing standing;
    double value = 0;  // in the unit of the catalogue

    bool isComputed() const { return standing <= Standing::Metastable || standing == Standing::Estimated; }
};

// ---- Pure substances ----------------------------------------------------------------------------
// Of the component loaded into the slot (from 1), at T kelvin. Raise nothing but error 6 for a damaged record.

bool isGiven(const Smes& smes, int slot, int property);

PropertyValue pureValue(Smes& smes, double T, int slot, const PureProperty& property);

// ---- Mixtures -----------------------------------------------------------------------------------

// One property of a mixture at one point, and what decided on it.
struct MixtureVerdict {
    PropertyValue result;
    int slot = 0;                            // of the component whose pure value decided; 0 where none did
    const PureProperty* property = nullptr;  // which of its values
    std::optional<RunTimeError> error = {};  // that ended the computation
};

// The property of the loaded mixture of mole fractions X (from 1) at T kelvin and P pascals; what the property does not
// need is not read. Where a pure value that it is mixed of is missing there is no value of the mixture either: the
// object alone would go on with 1E-8. A bubble or dew point is held below the critical temperature of every component,
// even of one of fraction 0: smes should hold only those that are there. One that does not meet its own equation has
// diverged, whatever the object answers. The object gives its iterations up only while its messages are on and their
// budget is not spent, so that each point wants a fresh one. What it shows goes to its user interface. Raises error 6
// for a damaged record; 9 and 13 for fractions that are not there or no numbers.
MixtureVerdict mixtureValue(Smes& smes, const MixtureProperty& property, double T, double P, const Variant& X);

// How the pure values that the property is mixed of at T kelvin stand to their correlations: the worst of those of the
// components that are there, without a value.
MixtureVerdict worstPureValue(Smes& smes, const MixtureProperty& property, double T, const Variant& X);

// ---- Phases of the ideal mixture ----------------------------------------------------------------
// By the law of Raoult (1887) at T kelvin and P pascals, as bubble and dew points are computed, for mole fractions X
// (from 1).

enum class StablePhase { Liquid, Gas, Both, Unknown };  // the last where a vapour pressure is missing

// What is above its critical temperature counts as a gas that does not condense.
StablePhase stablePhase(Smes& smes, double T, double P, const Variant& X);
// Whether part of the gas would condense, see Standing::Metastable.
bool isMetastableGas(Smes& smes, double T, double P, const Variant& X);
// Whether T is the mixture's bubble or dew point, whichever the property is, by its equation within 3 %.
bool isSaturationPoint(Smes& smes, const MixtureProperty& property, double T, double P, const Variant& X);

}  // namespace velor
