#include "properties/tevrp.h"

#include <array>
#include <cmath>
#include <string>

#include "object/trap.h"
#include "properties/pure_value.h"
#include "rules/equation_of_state.h"
#include "rules/ideal_gas.h"
#include "runtime/physical_constants.h"
#include "velor/smes.h"

namespace velor {

// A component's constants for the real gas, prepared once and kept while neither its record nor a setting that they
// depend on changes.
struct PreparedGas {
    struct Component {
        bool hasCubic = false;
        CubicComponent cubic;
        bool hasReference = false;
        double enthalpy = 0;  // h_i, J/mol
        double entropy = 0;   // s0_i, J/(mol K)
        HeatCapacityIntegral idealGas;
    };

    std::uint64_t revision = 0;
    std::int16_t Redlich = 0;
    std::int16_t MezeTeplot = 0;
    std::array<Component, ComponentSlots::kCount> components{};
};

namespace {

constexpr double kMegapascal = 1e6;
constexpr double kReferencePressure = 0.101325;  // MPa

Attraction attractionOf(const State& state) {
    return state.settings.Redlich == 0 ? Attraction::RedlichKwong : Attraction::Soave;
}

// Shared, because a message box may lead the host back into this object and renew the constants under a running call.
std::shared_ptr<PreparedGas> preparedGas(State& state) {
    const PreparedGas* kept = state.prepared.gas.get();
    if (!kept || kept->revision != state.definition.slots.revision() || kept->Redlich != state.settings.Redlich ||
        kept->MezeTeplot != state.settings.MezeTeplot) {
        state.prepared.gas = std::make_shared<PreparedGas>(
            PreparedGas{state.definition.slots.revision(), state.settings.Redlich, state.settings.MezeTeplot, {}});
    }
    return state.prepared.gas;
}

const CubicComponent& cubicOf(State& state, PreparedGas::Component& kept, int i) {
    if (!kept.hasCubic) {
        const TLatka& record = state.definition.slots.Latka(i);
        kept.cubic = cubicComponent(attractionOf(state), record.Tkr, record.Pkr / kMegapascal, record.Acent);
        kept.hasCubic = true;
    }
    return kept.cubic;
}

// Whether the correlation gave its value with nothing to report; only then may what follows from it be kept, because a
// kept value must not swallow a message that is due.
bool wasSilent(const State& state, int i, int k, double value) {
    const TKorelace& block = state.definition.slots.Latka(i).Korelace[static_cast<std::size_t>(k - 1)];
    return block.Priznak != 0 && isEquationType(block.Typ) && value != kNoValue;
}

// The companion of TEVRP: the reference state of component i alone. Zero enthalpy and entropy belong to its liquid at
// the normal boiling point, as in HL and SL.
void TEVRP0(State& state, PreparedGas::Component& kept, int i) {
    if (kept.hasReference) return;
    const double Tb = state.definition.slots.Latka(i).Tnbv;
    const double DHV = FFce(state, Tb, i, kDHV);
    const double one = 1.0;
    const CubicParameters pure = mixtureParameters(attractionOf(state), Tb, {&one, 1}, {&cubicOf(state, kept, i), 1});
    const double V = gasVolume(Tb, kReferencePressure, pure).V;
    const CubicState residual = residualState(Tb, kReferencePressure, V, pure);
    kept.enthalpy = DHV - residual.enthalpy;
    kept.entropy = checked::divide(DHV, Tb) - residual.entropy;
    kept.idealGas =
        HeatCapacityIntegral(heatCapacityOf(state.definition.slots.Latka(i), state.settings.MezeTeplot > 0), Tb);
    kept.hasReference = wasSilent(state, i, kDHV, DHV);
}

// False, with a message, where the component has no boiling point to refer to.
bool hasBoilingPoint(State& state, int i) {
    if (state.definition.slots.Latka(i).Tnbv > 0) return true;
    if (engineMessageIsDue(state.messages))
        showCounted(state.messages, "Chybí údaj Tnbv " + std::to_string(i) + ". složky", Icon::Exclamation);
    return false;
}

// Sums over the components that are present.
struct IdealGas {
    double heatCapacity = 0;  // J/(mol K)
    double enthalpy = 0;      // from the reference state, J/mol
    double entropy = 0;       // the same with the entropy of mixing, at the reference pressure, J/(mol K)
    bool hasReference = true;
};

IdealGas gatherIdealGas(State& state, PreparedGas& prepared, double T, ComponentValues& x, int n) {
    const double lnT = checked::naturalLogarithm(T);
    IdealGas sum;
    for (int i = 1; i <= n; ++i) {
        if (x[i] == 0.0) continue;
        PreparedGas::Component& kept = prepared.components[ComponentSlots::index(i)];
        sum.heatCapacity += x[i] * FFce(state, T, i, kCPG);
        if (!hasBoilingPoint(state, i)) {
            sum.hasReference = false;
            continue;
        }
        TEVRP0(state, kept, i);
        sum.enthalpy += x[i] * (kept.enthalpy + kept.idealGas.enthalpy(T));
        sum.entropy +=
            x[i] * (kept.entropy + kept.idealGas.entropy(T, lnT) - kGasConstant * checked::naturalLogarithm(x[i]));
    }
    return sum;
}

CubicParameters gatherParameters(State& state, PreparedGas& prepared, double T, ComponentValues& x, int n) {
    std::array<CubicComponent, ComponentSlots::kCount> components{};
    for (int i = 1; i <= n; ++i)
        if (x[i] != 0.0)
            components[ComponentSlots::index(i)] = cubicOf(state, prepared.components[ComponentSlots::index(i)], i);
    const auto fractions = x.first(n);
    return mixtureParameters(attractionOf(state), T, fractions, std::span(components).first(fractions.size()));
}

double solve(State& state, int mode, double T, double P, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x = takeFractions(state, X);
    if (P == 0.0) checked::raise(RunTimeError::kDivisionByZero);
    const double p = P / kMegapascal;
    const std::shared_ptr<PreparedGas> kept = preparedGas(state);
    PreparedGas& prepared = *kept;
    const CubicParameters mixture = gatherParameters(state, prepared, T, x, n);
    const double V = gasVolume(T, p, mixture).V;
    const double Z = checked::divide(p * V, kGasConstant * T);
    RealGasState& result = state.last.realGas;
    if (mode != 1) {
        result.lnFug = checked::finite(logFugacityCoefficient(T, p, V, mixture));
        result.density = checked::divide(1.0, V);
        return Z;
    }
    const IdealGas ideal = gatherIdealGas(state, prepared, T, x, n);
    const CubicState residual = residualState(T, p, V, mixture);
    const double Cv = ideal.heatCapacity - kGasConstant + residual.heatCapacityV;
    const double Cp = Cv - checked::divide(T * residual.dpdT * residual.dpdT, residual.dpdV);
    const double throttling = -T * checked::divide(residual.dpdT, residual.dpdV) - V;
    RealGasState filled;
    filled.density = checked::divide(1.0, V);
    filled.lnFug = checked::finite(residual.lnPhi);
    filled.Cv = checked::finite(Cv);
    filled.Cp = checked::finite(Cp);
    filled.jouleThomson = checked::divide(throttling, Cp) / kMegapascal;
    if (ideal.hasReference) {
        const double H = checked::finite(ideal.enthalpy + residual.enthalpy);
        filled.enthalpy = H;
        filled.entropy =
            checked::finite(ideal.entropy - kGasConstant * std::log(p / kReferencePressure) + residual.entropy);
        filled.internalEnergy = H - p * V;
    }
    result = filled;
    return Z;
}

std::string title(const HostNumber& T, const HostNumber& P) {
    return titleAtTemperature("TEVRP", T) + " ,P(Pa)= " + P.text("#0");
}

}  // namespace

std::optional<double> TEVRP(State& state, int mode, HostNumber T, HostNumber P, const Composition& X) {
    state.last.realGas = {};
    return trapped(
        state.messages, [&] { return title(T, P); }, [&] { return solve(state, mode, T.toDouble(), P.toDouble(), X); });
}

Variant Smes::TEVRP(int mode, const Variant& T, const Variant& P, const Variant& X) {
    State& state = *state_;
    checkedInt16(mode);
    state.last.realGas = {};
    return trappedMethod(
        state, [&] { return title(T, P); },
        [&] { return solve(state, mode, T.toDouble(), P.toDouble(), Composition(X)); });
}

}  // namespace velor
