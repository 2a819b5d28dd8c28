// What can be said of a substance of which little is measured: constants from the groups of its molecule, correlations
// from the constants. All of it is an estimate; authors and years stand beside each figure.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "baze/correlations_table.h"
#include "velor/record.h"

namespace velor::baze {

// Numbers of each group of Joback and Reid (1987), by its name.
using Groups = std::map<std::string, int, std::less<>>;

// "CH3:2 CH2:4", separated by blanks. A group that is not among those told is an error in Czech words.
struct ReadGroups {
    Groups groups;
    std::string fault;  // empty where there is none
};
ReadGroups readGroups(std::string_view text);
std::string groupNames();

// What is known beforehand; it is taken in place of an estimate.
struct KnownConstants {
    double Tnbv = 0, Tkr = 0, Pkr = 0, Vkr = 0, Acent = 0;  // K, Pa, m3/mol; 0: not known
};

struct EstimatedConstant {
    std::string name;  // that of the table's column
    double value = 0;
    std::string method;  // author and year; "zadáno" where it was known
};

struct EstimatedSubstance {
    TLatka record;  // its constants and correlations
    std::vector<EstimatedConstant> constants;
    std::vector<CorrelationRow> correlations;  // without a number, all of them estimates
};

// Of a molecule of these groups. Critical constants and boiling point by Joback and Reid (1987), acentric factor by Lee
// and Kesler (1975), the correlations as their sources tell.
EstimatedSubstance estimated(const Groups& groups, const KnownConstants& known);

// ---- The methods, each by its own: kelvin, Pa, m3/mol, kg/mol ------------------------------------------------------

// By Lee and Kesler (1975), from the reduced boiling temperature and the critical pressure.
double leeKeslerAcentric(double Tbr, double Pkr);
// Vapour pressure by Ambrose and Walton (1989).
double ambroseWaltonPressure(double T, double Tkr, double Pkr, double acentric);
// Surface tension by Brock and Bird (1955), N/m.
double brockBirdTension(double T, double Tnbv, double Tkr, double Pkr);
// Viscosity of the saturated liquid by Letsou and Stiel (1973), from 0.76 to 0.98 of the critical temperature, Pa s.
double letsouStielViscosity(double T, double Mv, double Tkr, double Pkr, double acentric);
// Viscosity of the dilute gas by Lucas (1980), not polar, Pa s.
double lucasViscosity(double T, double Mv, double Tkr, double Pkr);
// Heat capacity of the liquid by Rowlinson (1969) and Bondi (1968), from that of the ideal gas, J/(mol K).
double rowlinsonBondiCapacity(double T, double gas, double Tkr, double acentric);
// Conductivity of the liquid by Sato and Riedel (1951), W/(m K).
double satoRiedelConductivity(double T, double Mv, double Tnbv, double Tkr);

}  // namespace velor::baze
