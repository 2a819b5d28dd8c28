#include "baze/estimates.h"

#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <sstream>

#include "baze/fit/fit.h"
#include "baze/substances_table.h"
#include "velor/properties.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

constexpr double kGasConstant = 8.314462618;  // J/(mol K)
constexpr double kAtmosphere = 101325;        // Pa
constexpr double kBar = 1e5;

// ---- Joback and Reid (1987) --------------------------------------------------------------------------------------

struct Group {
    std::string_view name;
    int atoms;
    double mass;                  // g/mol
    double Tc, Pc, Vc;            // of critical temperature, pressure (bar^-1/2), volume (cm3/mol)
    double Tb, Tm;                // of boiling and melting temperature, K
    double a, b, c, d;            // of the heat capacity of the ideal gas
    double fusion, vaporisation;  // kJ/mol
    double etaA, etaB;            // of the viscosity of the liquid; 0 where there is none
};

constexpr double kH = 1.00794, kC = 12.0107, kO = 15.9994, kN = 14.0067, kS = 32.065, kF = 18.9984032, kCl = 35.453,
                 kBr = 79.904, kI = 126.90447;

// "r" before a name: part of a ring.
// clang-format off
constexpr std::array kGroups{
    Group{"CH3", 4, kC + 3 * kH, 0.0141, -0.0012, 65, 23.58, -5.10, 19.5, -8.08e-3, 1.53e-4, -9.67e-8, 0.908, 2.373, 548.29, -1.719},
    Group{"CH2", 3, kC + 2 * kH, 0.0189, 0, 56, 22.88, 11.27, -0.909, 9.50e-2, -5.44e-5, 1.19e-8, 2.590, 2.226, 94.16, -0.199},
    Group{"CH", 2, kC + kH, 0.0164, 0.0020, 41, 21.74, 12.64, -23.0, 2.04e-1, -2.65e-4, 1.20e-7, 0.749, 1.691, -322.15, 1.187},
    Group{"C", 1, kC, 0.0067, 0.0043, 27, 18.25, 46.43, -66.2, 4.27e-1, -6.41e-4, 3.01e-7, -1.460, 0.636, -573.56, 2.307},
    Group{"=CH2", 3, kC + 2 * kH, 0.0113, -0.0028, 56, 18.18, -4.32, 23.6, -3.81e-2, 1.72e-4, -1.03e-7, -0.473, 1.724, 495.01, -1.539},
    Group{"=CH", 2, kC + kH, 0.0129, -0.0006, 46, 24.96, 8.73, -8.00, 1.05e-1, -9.63e-5, 3.56e-8, 2.691, 2.205, 82.28, -0.242},
    Group{"=C", 1, kC, 0.0117, 0.0011, 38, 24.14, 11.14, -28.1, 2.08e-1, -3.06e-4, 1.46e-7, 3.063, 2.138, 0, 0},
    Group{"=C=", 1, kC, 0.0026, 0.0028, 36, 26.15, 17.78, 27.4, -5.57e-2, 1.01e-4, -5.02e-8, 4.720, 2.661, 0, 0},
    Group{"#CH", 2, kC + kH, 0.0027, -0.0008, 46, 9.20, -11.18, 24.5, -2.71e-2, 1.11e-4, -6.78e-8, 2.322, 1.155, 0, 0},
    Group{"#C", 1, kC, 0.0020, 0.0016, 37, 27.38, 64.32, 7.87, 2.01e-2, -8.33e-6, 1.39e-9, 4.151, 3.302, 0, 0},
    Group{"rCH2", 3, kC + 2 * kH, 0.0100, 0.0025, 48, 27.15, 7.75, -6.03, 8.54e-2, -8.00e-6, -1.80e-8, 0.490, 2.398, 307.53, -0.798},
    Group{"rCH", 2, kC + kH, 0.0122, 0.0004, 38, 21.78, 19.88, -20.5, 1.62e-1, -1.60e-4, 6.24e-8, 3.243, 1.942, -394.29, 1.251},
    Group{"rC", 1, kC, 0.0042, 0.0061, 27, 21.32, 60.15, -90.9, 5.57e-1, -9.00e-4, 4.69e-7, -1.373, 0.644, 0, 0},
    Group{"r=CH", 2, kC + kH, 0.0082, 0.0011, 41, 26.73, 8.13, -2.14, 5.74e-2, -1.64e-6, -1.59e-8, 1.101, 2.544, 259.65, -0.702},
    Group{"r=C", 1, kC, 0.0143, 0.0008, 32, 31.01, 37.02, -8.25, 1.01e-1, -1.42e-4, 6.78e-8, 2.394, 3.059, -245.74, 0.912},
    Group{"F", 1, kF, 0.0111, -0.0057, 27, -0.03, -15.78, 26.5, -9.13e-2, 1.91e-4, -1.03e-7, 1.398, -0.670, 0, 0},
    Group{"Cl", 1, kCl, 0.0105, -0.0049, 58, 38.13, 13.55, 33.3, -9.63e-2, 1.87e-4, -9.96e-8, 2.515, 4.532, 625.45, -1.814},
    Group{"Br", 1, kBr, 0.0133, 0.0057, 71, 66.86, 43.43, 28.6, -6.49e-2, 1.36e-4, -7.45e-8, 3.603, 6.582, 738.91, -2.038},
    Group{"I", 1, kI, 0.0068, -0.0034, 97, 93.84, 41.69, 32.1, -6.41e-2, 1.26e-4, -6.87e-8, 2.724, 9.520, 809.55, -2.224},
    Group{"OH", 2, kO + kH, 0.0741, 0.0112, 28, 92.88, 44.45, 25.7, -6.91e-2, 1.77e-4, -9.88e-8, 2.406, 16.826, 2173.72, -5.057},
    Group{"ArOH", 2, kO + kH, 0.0240, 0.0184, -25, 76.34, 82.83, -2.81, 1.11e-1, -1.16e-4, 4.94e-8, 4.490, 12.499, 3018.17, -7.314},
    Group{"O", 1, kO, 0.0168, 0.0015, 18, 22.42, 22.23, 25.5, -6.32e-2, 1.11e-4, -5.48e-8, 1.188, 2.410, 122.09, -0.386},
    Group{"rO", 1, kO, 0.0098, 0.0048, 13, 31.22, 23.05, 12.2, -1.26e-2, 6.03e-5, -3.86e-8, 5.879, 4.682, 440.24, -0.953},
    Group{"CO", 2, kC + kO, 0.0380, 0.0031, 62, 76.75, 61.20, 6.45, 6.70e-2, -3.57e-5, 2.86e-9, 4.189, 8.972, 340.35, -0.350},
    Group{"rCO", 2, kC + kO, 0.0284, 0.0028, 55, 94.97, 75.97, 30.4, -8.29e-2, 2.36e-4, -1.31e-7, 0, 6.645, 0, 0},
    Group{"CHO", 3, kC + kH + kO, 0.0379, 0.0030, 82, 72.24, 36.90, 30.9, -3.36e-2, 1.60e-4, -9.88e-8, 3.197, 9.093, 740.92, -1.713},
    Group{"COOH", 4, kC + 2 * kO + kH, 0.0791, 0.0077, 89, 169.09, 155.50, 24.1, 4.27e-2, 8.04e-5, -6.87e-8, 11.051, 19.537, 1317.23, -2.578},
    Group{"COO", 3, kC + 2 * kO, 0.0481, 0.0005, 82, 81.10, 53.60, 24.5, 4.02e-2, 4.02e-5, -4.52e-8, 6.959, 9.633, 483.88, -0.966},
    Group{"=O", 1, kO, 0.0143, 0.0101, 36, -10.50, 2.08, 6.82, 1.96e-2, 1.27e-5, -1.78e-8, 3.624, 5.909, 675.24, -1.340},
    Group{"NH2", 3, kN + 2 * kH, 0.0243, 0.0109, 38, 73.23, 66.89, 26.9, -4.12e-2, 1.64e-4, -9.76e-8, 3.515, 10.788, 0, 0},
    Group{"NH", 2, kN + kH, 0.0295, 0.0077, 35, 50.17, 52.66, -1.21, 7.62e-2, -4.86e-5, 1.05e-8, 5.099, 6.436, 0, 0},
    Group{"rNH", 2, kN + kH, 0.0130, 0.0114, 29, 52.82, 101.51, 11.8, -2.30e-2, 1.07e-4, -6.28e-8, 7.490, 6.930, 0, 0},
    Group{"N", 1, kN, 0.0169, 0.0074, 9, 11.74, 48.84, -31.1, 2.27e-1, -3.20e-4, 1.46e-7, 4.703, 1.896, 0, 0},
    Group{"r=N", 1, kN, 0.0085, 0.0076, 34, 57.55, 68.40, 8.83, -3.84e-3, 4.35e-5, -2.60e-8, 3.649, 6.528, 0, 0},
    Group{"CN", 2, kC + kN, 0.0496, -0.0101, 91, 125.66, 59.89, 36.5, -7.33e-2, 1.84e-4, -1.03e-7, 2.414, 12.851, 0, 0},
    Group{"NO2", 3, kN + 2 * kO, 0.0437, 0.0064, 91, 152.54, 127.24, 25.9, -3.74e-3, 1.29e-4, -8.88e-8, 9.679, 16.738, 0, 0},
    Group{"SH", 2, kS + kH, 0.0031, 0.0084, 63, 63.56, 20.09, 35.3, -7.58e-2, 1.85e-4, -1.03e-7, 2.360, 6.884, 0, 0},
    Group{"S", 1, kS, 0.0119, 0.0049, 54, 68.78, 34.40, 19.6, -5.61e-3, 4.02e-5, -2.76e-8, 4.130, 6.817, 0, 0},
    Group{"rS", 1, kS, 0.0019, 0.0051, 38, 52.10, 79.93, 16.7, 4.81e-3, 2.77e-5, -2.11e-8, 1.557, 5.984, 0, 0},
};
// clang-format on

const Group* groupOf(std::string_view name) {
    const auto* const found = std::ranges::find(kGroups, name, &Group::name);
    return found == kGroups.end() ? nullptr : found;
}

double sum(const Groups& groups, double Group::*part) {
    double total = 0;
    for (const auto& [name, count] : groups) total += count * (groupOf(name)->*part);
    return total;
}

int atoms(const Groups& groups) {
    int total = 0;
    for (const auto& [name, count] : groups) total += count * groupOf(name)->atoms;
    return total;
}

bool haveViscosity(const Groups& groups) {
    return std::ranges::all_of(groups, [](const auto& group) { return groupOf(group.first)->etaA != 0; });
}

// ---- The whole ---------------------------------------------------------------------------------------------------

constexpr const char* kJoback = "Joback a Reid (1987)";

class Estimating {
  public:
    Estimating(const Groups& groups, const KnownConstants& known) : groups_(groups) {
        substance_.record = blankRecord();
        for (float TLatka::*const constant : {&TLatka::Gyr, &TLatka::Nlomu, &TLatka::TNlomu, &TLatka::Dipol,
                                              &TLatka::TDipol, &TLatka::Permit, &TLatka::TPermit})
            substance_.record.*constant = kUnknown;
        const double tc = sum(groups, &Group::Tc), pc = 0.113 + 0.0032 * atoms(groups) - sum(groups, &Group::Pc);
        M_ = take("Mv", &TLatka::Mv, 0, sum(groups, &Group::mass) / 1000, "součet atomových hmotností");
        Tb_ = take("Tnbv", &TLatka::Tnbv, known.Tnbv, 198.2 + sum(groups, &Group::Tb), kJoback);
        Tc_ = take("Tkr", &TLatka::Tkr, known.Tkr, Tb_ / (0.584 + 0.965 * tc - tc * tc), kJoback);
        Pc_ = take("Pkr", &TLatka::Pkr, known.Pkr, kBar / (pc * pc), kJoback);
        take("Vkr", &TLatka::Vkr, known.Vkr, (17.5 + sum(groups, &Group::Vc)) * 1e-6, kJoback);
        omega_ = take("Acent", &TLatka::Acent, known.Acent, leeKeslerAcentric(Tb_ / Tc_, Pc_), "Lee a Kesler (1975)");
        const double Tm = take("Ttani", &TLatka::Ttani, 0, 122.5 + sum(groups, &Group::Tm), kJoback);
        take("Htani", &TLatka::Htani, 0, (-0.88 + sum(groups, &Group::fusion)) * 1e3, kJoback);
        cold_ = std::max(std::min(Tm, 0.6 * Tc_), 0.4 * Tc_);
    }

    EstimatedSubstance done() {
        const double hot = 0.98 * Tc_;
        keep(
            kETAG, {}, 1, 250, 1000, [&](double T) { return lucasViscosity(T, M_, Tc_, Pc_); }, "Lucas (1980)");
        keep(kCPG, {gas_[0], gas_[1], gas_[2], gas_[3]}, 3, 280, 1000, kJoback);
        keep(
            kALAG, {}, 2, 280, 1000, [&](double T) { return euckenConductivity(T); }, "Eucken (1913), Lucas (1980)");
        keep(kROLW, {M_ * Pc_ / (kGasConstant * Tc_), 0.29056 - 0.08775 * omega_, Tc_, 2.0 / 7.0}, 15, cold_, hot,
             "Rackett (1970), Yamada a Gunn (1973)");
        liquidViscosity(hot);
        keep(
            kALAL, {}, 2, cold_, 0.9 * Tc_, [&](double T) { return satoRiedelConductivity(T, M_, Tb_, Tc_); },
            "Sato a Riedel (1951)");
        keep(
            kCPL, {}, 3, cold_, 0.85 * Tc_,
            [&](double T) { return rowlinsonBondiCapacity(T, gasCapacity(T), Tc_, omega_); },
            "Rowlinson (1969), Bondi (1968)");
        keep(kDHV, {(15.30 + sum(groups_, &Group::vaporisation)) * 1e3, Tb_, 0.38, Tc_}, 8, cold_, hot,
             "Joback a Reid (1987), Watson (1943)");
        keep(
            kTENS, {}, 13, cold_, hot, [&](double T) { return ambroseWaltonPressure(T, Tc_, Pc_, omega_); },
            "Ambrose a Walton (1989)");
        const double reference = std::floor(Tb_);
        keep(kSIGMA, {brockBirdTension(reference, Tb_, Tc_, Pc_), reference, 11.0 / 9.0, Tc_}, 8, cold_, hot,
             "Brock a Bird (1955)");
        return substance_;
    }

  private:
    static constexpr float kUnknown = -9999.0F;

    double take(const char* name, float TLatka::*constant, double known, double estimate, const std::string& method) {
        const double value = known != 0 ? known : estimate;
        substance_.record.*constant = static_cast<float>(value);
        substance_.constants.push_back({name, value, known != 0 ? "zadáno" : method});
        return value;
    }

    double gasCapacity(double T) const { return gas_[0] + T * (gas_[1] + T * (gas_[2] + T * gas_[3])); }

    // The modified equation, from the gas's viscosity and heat capacity.
    double euckenConductivity(double T) const {
        const double Cv = gasCapacity(T) - kGasConstant;
        return lucasViscosity(T, M_, Tc_, Pc_) * Cv / M_ * (1.32 + 1.77 / (Cv / kGasConstant));
    }

    void keep(Property property, std::array<double, 6> A, int type, double least, double most,
              const std::string& source) {
        TKorelace block;
        block.Typ = static_cast<std::int16_t>(type);
        block.Priznak = 1;
        for (std::size_t j = 0; j < A.size(); ++j) block.A[j] = static_cast<float>(A[j]);
        block.Tmin = static_cast<std::int16_t>(std::ceil(least));
        block.Tmax = static_cast<std::int16_t>(std::floor(most));
        add(property, block, source);
    }

    // A method that is none of the equations, fitted to one of them.
    void keep(Property property, std::array<double, 6>, int type, double least, double most,
              const std::function<double(double)>& method, const std::string& source) {
        constexpr int kPoints = 40;
        std::vector<MeasuredPoint> points;
        for (int i = 0; i <= kPoints; ++i) {
            const double T = least + (most - least) * i / kPoints;
            points.push_back({T, method(T)});
        }
        FitOptions options;
        options.Tkr = Tc_, options.Pkr = Pc_;
        const auto fit = fitted(type, points, pureProperties()[static_cast<std::size_t>(property - 1)], options);
        if (!fit) return;
        TKorelace block = fit->block;
        block.Tmin = static_cast<std::int16_t>(std::ceil(least));
        block.Tmax = static_cast<std::int16_t>(std::floor(most));
        add(property, block, source);
    }

    // Joback's where all groups have it, else Letsou and Stiel's, which is for hot liquids alone.
    void liquidViscosity(double hot) {
        if (haveViscosity(groups_))
            return keep(
                kETAL,
                {std::log(M_ * 1e3) + sum(groups_, &Group::etaB) - 11.202, sum(groups_, &Group::etaA) - 597.82, 0, 0},
                11, cold_, 0.7 * Tc_, kJoback);
        keep(
            kETAL, {}, 2, 0.76 * Tc_, hot, [&](double T) { return letsouStielViscosity(T, M_, Tc_, Pc_, omega_); },
            "Letsou a Stiel (1973)");
    }

    void add(Property property, const TKorelace& block, const std::string& source) {
        substance_.record.Korelace[static_cast<std::size_t>(property - 1)] = block;
        substance_.correlations.push_back({0, 0, property, block, source, "", true});
    }

    const Groups& groups_;
    EstimatedSubstance substance_;
    double M_ = 0, Tb_ = 0, Tc_ = 0, Pc_ = 0, omega_ = 0;
    double cold_ = 0;  // where liquids begin
    std::array<double, 4> gas_{sum(groups_, &Group::a) - 37.93, sum(groups_, &Group::b) + 0.210,
                               sum(groups_, &Group::c) - 3.91e-4, sum(groups_, &Group::d) + 2.06e-7};
};

}  // namespace

ReadGroups readGroups(std::string_view text) {
    ReadGroups read;
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
        const std::size_t colon = word.find(':');
        const std::string name = word.substr(0, colon);
        int count = 1;
        if (colon != std::string::npos) {
            const char* const end = word.data() + word.size();
            const auto [last, error] = std::from_chars(word.data() + colon + 1, end, count);
            if (error != std::errc() || last != end || count < 1 || count > 200) {
                read.fault = "„" + word + "“ nemá tvar skupina:počet";
                return read;
            }
        }
        if (groupOf(name) == nullptr) {
            read.fault = "skupina „" + name + "“ není z těchto: " + groupNames();
            return read;
        }
        read.groups[name] += count;
    }
    if (read.groups.empty()) read.fault = "skupiny chybí";
    return read;
}

std::string groupNames() {
    std::string names;
    for (const Group& group : kGroups) names.append(names.empty() ? "" : " ").append(group.name);
    return names;
}

EstimatedSubstance estimated(const Groups& groups, const KnownConstants& known) {
    return Estimating(groups, known).done();
}

double leeKeslerAcentric(double Tbr, double Pkr) {
    const double t6 = std::pow(Tbr, 6);
    const double simple = 5.92714 - 6.09648 / Tbr - 1.28862 * std::log(Tbr) + 0.169347 * t6;
    const double other = 15.2518 - 15.6875 / Tbr - 13.4721 * std::log(Tbr) + 0.43577 * t6;
    return (-std::log(Pkr / kAtmosphere) - simple) / other;
}

double ambroseWaltonPressure(double T, double Tkr, double Pkr, double acentric) {
    const double Tr = T / Tkr, t = 1 - Tr;
    const auto part = [&](double a, double b, double c, double d) {
        return (a * t + b * std::pow(t, 1.5) + c * std::pow(t, 2.5) + d * std::pow(t, 5)) / Tr;
    };
    const double f0 = part(-5.97616, 1.29874, -0.60394, -1.06841);
    const double f1 = part(-5.03365, 1.11505, -5.41217, -7.46628);
    const double f2 = part(-0.64771, 2.41539, -4.26979, 3.25259);
    return Pkr * std::exp(f0 + acentric * (f1 + acentric * f2));
}

double brockBirdTension(double T, double Tnbv, double Tkr, double Pkr) {
    const double Tbr = Tnbv / Tkr, bar = Pkr / kBar;
    const double Q = 0.1196 * (1 + Tbr * std::log(Pkr / kAtmosphere) / (1 - Tbr)) - 0.279;
    return 1e-3 * std::cbrt(bar * bar * Tkr) * Q * std::pow(1 - T / Tkr, 11.0 / 9.0);
}

namespace {

// That makes a viscosity a pure number, 1/(uPa s).
double inverseViscosity(double Mv, double Tkr, double Pkr) {
    const double bar = Pkr / kBar, grams = Mv * 1e3;
    return 1.76 * std::pow(Tkr / (grams * grams * grams * std::pow(bar, 4)), 1.0 / 6.0);
}

}  // namespace

double letsouStielViscosity(double T, double Mv, double Tkr, double Pkr, double acentric) {
    const double Tr = T / Tkr;
    const double simple = 2.648 - 3.725 * Tr + 1.309 * Tr * Tr, other = 7.425 - 13.39 * Tr + 5.933 * Tr * Tr;
    return (simple + acentric * other) / inverseViscosity(Mv, Tkr, Pkr) * 1e-5;
}

double lucasViscosity(double T, double Mv, double Tkr, double Pkr) {
    const double Tr = T / Tkr;
    const double reduced =
        0.807 * std::pow(Tr, 0.618) - 0.357 * std::exp(-0.449 * Tr) + 0.340 * std::exp(-4.058 * Tr) + 0.018;
    return reduced / inverseViscosity(Mv, Tkr, Pkr) * 1e-6;
}

double rowlinsonBondiCapacity(double T, double gas, double Tkr, double acentric) {
    const double Tr = T / Tkr, t = 1 - Tr;
    return gas + kGasConstant * (1.45 + 0.45 / t + 0.25 * acentric * (17.11 + 25.2 * std::cbrt(t) / Tr + 1.742 / t));
}

double satoRiedelConductivity(double T, double Mv, double Tnbv, double Tkr) {
    const auto part = [&](double at) { return 3 + 20 * std::pow(1 - at / Tkr, 2.0 / 3.0); };
    return 1.11 / std::sqrt(Mv * 1e3) * part(T) / part(Tnbv);
}

}  // namespace velor::baze
