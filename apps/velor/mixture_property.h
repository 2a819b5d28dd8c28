// The properties of a mixture that Smes::Vlastnost computes by name: what they are, what they need, whose rule they
// follow. The one table behind the command, its list and the documentation.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "velor/smes.h"

namespace velor::app {

enum class Phase { Any, Liquid, Gas };

struct MixtureProperty {
    std::string_view name;
    std::string_view caption;  // where the library has none of its own
    int libraryCaption;        // number in the library's table of captions, 0 for none
    std::string_view symbol;
    std::string_view unit;
    std::string_view rule;
    bool needsTemperature;
    bool needsPressure;
    Phase phase;
    unsigned correlations;  // the pure properties that it is mixed of, a bit of each number; see usesCorrelation
    // Where Smes::Vlastnost would take a proper value at or below -9999 for none: the method itself.
    Variant (Smes::*direct)(const Variant& T, const Variant& X) = nullptr;
};

std::span<const MixtureProperty> mixtureProperties();

// By its name in any letter case. Failure(WrongUse) offers near names.
const MixtureProperty& findMixtureProperty(std::string_view name);

// The library's caption of the property; smes needs no components, but inivlast must have been called.
std::string captionOf(const Smes& smes, const MixtureProperty& property);

bool usesCorrelation(const MixtureProperty& property, int number);
// Whether each component's density is taken at the mixture's reduced temperature.
bool usesReducedDensity(const MixtureProperty& property);

// "T, P", "P", or empty: what it takes beside the composition.
std::string neededArguments(const MixtureProperty& property);

}  // namespace velor::app
