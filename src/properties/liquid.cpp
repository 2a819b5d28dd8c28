// Properties of the liquid mixture: each method gathers the pure values in its order and mixes them by its rule.
#include "properties/liquid.h"

#include <algorithm>

#include "object/trap.h"
#include "properties/composition.h"
#include "properties/pure_value.h"
#include "rules/composition.h"
#include "rules/liquid.h"
#include "velor/smes.h"

namespace velor {

namespace {

// A component takes part above one of two thresholds, which differ from method to method, as built.
constexpr double kTrace = 1e-06;
constexpr double kLeastConductivity = 1e-06;

double density(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    if (n == 1) return FFce(state, T, 1, kROLW);
    ComponentValues x = takeFractions(state, X), Vc(n), Tc(n), volume(n);
    for (int i = 1; i <= n; ++i) {
        Vc[i] = state.definition.slots.Latka(i).Vkr;
        Tc[i] = state.definition.slots.Latka(i).Tkr;
    }
    // Each density is taken at the temperature that gives its component the mixture's reduced temperature, not at T.
    const double Tr = checked::divide(T, volumeMeanTemperature(x.first(n), Vc.first(n), Tc.first(n)));
    for (int i = 1; i <= n; ++i)
        if (x[i] > kTrace)
            volume[i] = molarVolume(state.definition.slots.Latka(i).Mv, FFce(state, Tr * Tc[i], i, kROLW));
    const double M = VSM(state, Composition(x.first(n))).value_or(0.0);
    return liquidDensity(x.first(n), volume.first(n), M);
}

std::optional<double> ROLW(State& state, const Temperature& T, const Composition& X) {
    return trapped(
        state.messages, [&] { return titleAtTemperature("ROLW", double{T}); }, [&] { return density(state, T, X); });
}

double viscosity(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    if (n == 1) return FFce(state, T, 1, kETAL);
    ComponentValues x(n), logarithm(n);
    double carried = 0.0;  // a trace takes the value of the component before it, the first one 0, as built
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        if (x[i] > kTrace) {
            const double eta = FFce(state, T, i, kETAL);
            carried = logarithmOfMolarViscosity(eta, state.definition.slots.Latka(i).Mv, FFce(state, T, i, kROLW));
        }
        logarithm[i] = carried;
    }
    const double q = meanMolarViscosity(x.first(n), logarithm.first(n));
    const Composition taken(x.first(n));
    const double rho = ROLW(state, T, taken).value_or(0.0);
    return dynamicViscosity(q, rho, VSM(state, taken).value_or(0.0));
}

std::optional<double> ETAL(State& state, const Temperature& T, const Composition& X) {
    return trapped(
        state.messages, [&] { return titleAtTemperature("ETAL", double{T}); }, [&] { return viscosity(state, T, X); });
}

double conductivity(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), M(n), lambda(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        M[i] = state.definition.slots.Latka(i).Mv;
        if (x[i] > 0.0) lambda[i] = std::max(FFce(state, T, i, kALAL), kLeastConductivity);
    }
    return reciprocalSquareConductivity(VSM(state, X).value_or(0.0), x.first(n), M.first(n), lambda.first(n));
}

std::optional<double> ALAL(State& state, double T, const Composition& X) {
    return trapped(
        state.messages, [&] { return titleAtTemperature("ALAL", T); }, [&] { return conductivity(state, T, X); });
}

double CPL(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), heatCapacity(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        heatCapacity[i] = FFce(state, T, i, kCPL);
    }
    return moleMean(x.first(n), heatCapacity.first(n));
}

double DHV(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), heat(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        if (x[i] > kTrace && T < state.definition.slots.Latka(i).Tkr) heat[i] = FFce(state, T, i, kDHV);
    }
    return moleMean(x.first(n), heat.first(n));
}

double SL(State& state, double T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), entropy(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        const TLatka& record = state.definition.slots.Latka(i);
        const TKorelace& heatCapacity = record.Korelace[kCPL - 1];
        const int degree = polynomialDegree(heatCapacity.Typ);
        if (x[i] > 0.0 && degree > 0)  // the threshold of HL is another one, as built
            entropy[i] = polynomialIntegralOverT(degree, heatCapacity.A, record.Tnbv, T);
    }
    return moleMean(x.first(n), entropy.first(n));
}

std::optional<double> trappedSL(State& state, double T, const Composition& X) {
    return trapped(
        state.messages, [&] { return titleAtTemperature("SL", T); }, [&] { return SL(state, T, X); });
}

double surfaceTension(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    if (n == 1) return FFce(state, T, 1, kSIGMA);
    ComponentValues x(n), parachors(n);
    double carried = 0.0;  // a zero fraction takes the value of the component before it, the first one 0, as built
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        if (x[i] > 0.0) {
            const double rho = FFce(state, T, i, kROLW);
            carried = parachor(FFce(state, T, i, kSIGMA), rho);
        }
        parachors[i] = carried;
    }
    const double rho = ROLW(state, T, X).value_or(0.0);
    return liquidSurfaceTension(x.first(n), parachors.first(n), rho);
}

double vapourPressure(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), pressure(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        if (x[i] > kTrace) pressure[i] = FFce(state, T, i, kTENS);
    }
    return moleMean(x.first(n), pressure.first(n));
}

double perMass(State& state, double molar, const Composition& X) {
    return checked::divide(molar, VSM(state, X).value_or(0.0));
}

// The public method of a trapped property.
template <class Body>
Variant trappedLiquid(State& state, const char* name, const Variant& T, const Variant& X, const Body& body) {
    return trappedMethod(
        state, [&] { return titleAtTemperature(name, T); }, [&] { return body(state, T.toDouble(), Composition(X)); });
}

}  // namespace

std::optional<double> TENS(State& state, double T, const Composition& X) {
    return trapped(
        state.messages, [&] { return titleAtTemperature("TENS", T); }, [&] { return vapourPressure(state, T, X); });
}

double HL(State& state, double T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), enthalpy(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        const TLatka& record = state.definition.slots.Latka(i);
        const TKorelace& heatCapacity = record.Korelace[kCPL - 1];
        const int degree = polynomialDegree(heatCapacity.Typ);
        if (x[i] > kTrace && degree > 0) enthalpy[i] = polynomialIntegral(degree, heatCapacity.A, record.Tnbv, T);
    }
    return checked::finite(moleMean(x.first(n), enthalpy.first(n)));
}

Variant Smes::ROLW(const Variant& T, const Variant& X) { return trappedLiquid(*state_, "ROLW", T, X, density); }
Variant Smes::ETAL(const Variant& T, const Variant& X) { return trappedLiquid(*state_, "ETAL", T, X, viscosity); }
Variant Smes::ALAL(const Variant& T, const Variant& X) { return trappedLiquid(*state_, "ALAL", T, X, conductivity); }
Variant Smes::SL(const Variant& T, const Variant& X) { return trappedLiquid(*state_, "SL", T, X, velor::SL); }
Variant Smes::SIGMA(const Variant& T, const Variant& X) {
    return trappedLiquid(*state_, "SIGMA", T, X, surfaceTension);
}
Variant Smes::TENS(const Variant& T, const Variant& X) { return trappedLiquid(*state_, "TENS", T, X, vapourPressure); }

Variant Smes::CPL(const Variant& T, const Variant& X) {
    return method(*state_, [&] { return velor::CPL(*state_, T.toDouble(), Composition(X)); });
}
Variant Smes::CPLW(const Variant& T, const Variant& X) {
    return method(*state_, [&] {
        const Composition x(X);
        return perMass(*state_, velor::CPL(*state_, T.toDouble(), x), x);
    });
}
Variant Smes::DHV(const Variant& T, const Variant& X) {
    return method(*state_, [&] { return velor::DHV(*state_, T.toDouble(), Composition(X)); });
}
Variant Smes::DHVW(const Variant& T, const Variant& X) {
    return method(*state_, [&] {
        const Composition x(X);
        return perMass(*state_, velor::DHV(*state_, T.toDouble(), x), x);
    });
}
Variant Smes::HL(const Variant& T, const Variant& X) {
    return method(*state_, [&] { return velor::HL(*state_, T.toDouble(), Composition(X)); });
}
Variant Smes::HLW(const Variant& T, const Variant& X) {
    return method(*state_, [&] {
        const Composition x(X);
        return perMass(*state_, velor::HL(*state_, T.toDouble(), x), x);
    });
}
Variant Smes::SLW(const Variant& T, const Variant& X) {
    return method(*state_, [&] {
        const Composition x(X);
        return perMass(*state_, trappedSL(*state_, T.toDouble(), x).value_or(0.0), x);
    });
}

Variant Smes::PrL(const Variant& T, const Variant& X) {
    State& state = *state_;
    return method(state, [&] {
        const Composition x(X);
        const double t = T.toDouble();
        const double heatCapacity = perMass(state, velor::CPL(state, t, x), x);
        const double eta = velor::ETAL(state, t, x).value_or(0.0);
        return checked::divide(heatCapacity * eta, velor::ALAL(state, t, x).value_or(0.0));
    });
}

Variant Smes::ReL(const Variant& T, const Variant& X, const Variant& a, const Variant& b) {
    State& state = *state_;
    return method(state, [&] {
        const Composition x(X);
        const double t = T.toDouble();
        const double rho = velor::ROLW(state, t, x).value_or(0.0);
        const double product = rho * a.toDouble() * b.toDouble();
        return checked::divide(product, velor::ETAL(state, t, x).value_or(0.0));
    });
}

Variant Smes::ObjRozL(const Variant& T, const Variant& x) {
    constexpr double kStep = 3.0;  // K, backwards
    State& state = *state_;
    return method(state, [&] {
        const Composition X(x);
        const double t = T.toDouble();
        const double before = velor::ROLW(state, t - kStep, X).value_or(0.0);
        const double rho = velor::ROLW(state, t, X).value_or(0.0);
        return checked::divide((before - rho) / kStep, rho);
    });
}

}  // namespace velor
