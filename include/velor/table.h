// Many points at once: one property of a mixture at arrays of temperatures, pressures and compositions.
//
// A prepared mixture never changes, so that any number of threads may use it. Nothing is shown, asked or counted, and
// no file is read after it was made. A fault of one point leaves the others as they are: its value is NaN and its
// verdict says why. Where the object has a value the table has the same; where the object answers 1E-8, Empty, -9999 or
// 0 for "none", the table has NaN. A value depends on its own point only, neither on its neighbours nor on the threads;
// its last digits may depend on the processor, whose vector instructions compute points of one composition side by
// side.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>

#include "velor/properties.h"
#include "velor/record.h"
#include "velor/verdict.h"

namespace velor {

struct MixtureSettings {
    bool isSoave = false;    // Soave's equation of state in place of Redlich and Kwong's, see Smes::Redlich
    bool isClamped = false;  // temperatures into the validity range of each correlation, see Smes::MezeTeplot
};

struct PreparedComponents;

// One to 20 substances and the settings. A copy shares what was prepared.
class PreparedMixture {
  public:
    // The substances of those numbers in a database. Errors: 53, 70, 75, 76 the file cannot be opened; 9 no or more
    // than 20 numbers, or one without a substance.
    PreparedMixture(const std::string& databasePath, std::span<const int> numbers, MixtureSettings settings = {});
    // Of records at hand, which may have been changed; each knows its number. Error 9: none or more than 20.
    explicit PreparedMixture(std::span<const TLatka> records, MixtureSettings settings = {});

    int size() const;  // components
    const PreparedComponents& components() const { return *components_; }

  private:
    std::shared_ptr<const PreparedComponents> components_;
};

enum class FractionKind { Mole, Mass };

// The fractions of component i (from 0) at point p: values[i * componentStride + p * pointStride]. A point stride of 0
// is one composition for all points.
struct Compositions {
    std::span<const double> values;
    std::ptrdiff_t componentStride = 1;
    std::ptrdiff_t pointStride = 0;
    FractionKind kind = FractionKind::Mole;
    bool isNormalised = false;  // parts of any sum are divided by it; otherwise a sum other than 1 (1e-5) is a fault
};

struct TableOptions {
    int threads = 1;  // up to 256, that the points are divided among evenly; the values do not depend on it
};

// A property of the mixture, in the catalogue's unit. T (kelvin) and P (pascals) hold one number for all points or one
// each; what the property does not need is not read. values and verdicts hold one element a point; either may be empty.
// A component whose fraction is 0 has no part, a negative fraction is a fault. Bubble and dew points are solved in
// full: within 0.02 K of the object's where that converges. Above the critical temperature of a component it does not
// condense (Standing::Inert), where the object's iteration would not end. Error 9, before anything is computed: a
// length that does not fit, strides that lead out of the values.
void evaluate(const PreparedMixture& mixture, const MixtureProperty& property, std::span<const double> T,
              std::span<const double> P, const Compositions& X, std::span<double> values, std::span<Standing> verdicts,
              TableOptions options = {});

// A property of one component (from 1) alone; otherwise as above.
void evaluate(const PreparedMixture& mixture, const PureProperty& property, int component, std::span<const double> T,
              std::span<double> values, std::span<Standing> verdicts, TableOptions options = {});

}  // namespace velor
