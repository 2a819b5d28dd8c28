// Every method that gives one number of a mixture: a table for the laws that all of them keep.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include "velor/smes.h"

namespace velor::test {

using S = Smes;
using V = Variant;
using Call = std::function<Variant(Smes&, const Variant& T, const Variant& P, const Variant& X)>;

inline Call ofX(Variant (S::*method)(const V&)) {
    return [=](S& s, const V&, const V&, const V& X) { return (s.*method)(X); };
}
inline Call ofT(Variant (S::*method)(const V&, const V&)) {
    return [=](S& s, const V& T, const V&, const V& X) { return (s.*method)(T, X); };
}
inline Call ofP(Variant (S::*method)(const V&, const V&)) {
    return [=](S& s, const V&, const V& P, const V& X) { return (s.*method)(P, X); };
}
inline Call ofTP(Variant (S::*method)(const V&, const V&, const V&)) {
    return [=](S& s, const V& T, const V& P, const V& X) { return (s.*method)(T, P, X); };
}
inline Call converting(Variant (S::*method)(const V&, V&)) {
    return [=](S& s, const V&, const V&, const V& X) {
        Variant converted = Fractions({0, 0});
        return (s.*method)(X, converted);
    };
}

enum class Errors {
    Trapped,  // Empty, and in mode -1 raised under a title
    OfParts,  // the same for T and P, but an unreadable X makes an Empty part count as 0, and that a 0/0
    AsZero,   // the same, but the part's 0 is the result
    Raised
};

struct Method {
    std::string name;
    Call call;
    Errors errors;
    std::string trap = "", told = "T";  // whose trap it is, and what its title tells

    double operator()(Smes& s, const V& T, const V& P, const V& X) const { return call(s, T, P, X).toDouble(); }
};

// clang-format off
inline const Method kMethods[] = {
    {"VSM", ofX(&S::VSM), Errors::Trapped, "VSM", ""}, {"KsumX", ofX(&S::KsumX), Errors::Raised},
    {"Cohmo", converting(&S::Cohmo), Errors::Raised}, {"Comol", converting(&S::Comol), Errors::Raised},
    {"Normal", [](S& s, const V&, const V&, V X) { return s.Normal(X), X; }, Errors::Raised},
    {"PSEUD", [](S& s, const V&, const V&, const V& X) { return s.PSEUD(X, "T"); }, Errors::Raised},
    {"ETAG", ofT(&S::ETAG), Errors::Trapped, "ETAG"}, {"ALAG", ofT(&S::ALAG), Errors::Trapped, "ALAG"},
    {"CPG", ofT(&S::CPG), Errors::Raised}, {"CPGW", ofT(&S::CPGW), Errors::Raised},
    {"ROGW", ofTP(&S::ROGW), Errors::AsZero, "ROGW"},
    {"ROLW", ofT(&S::ROLW), Errors::Trapped, "ROLW"}, {"ETAL", ofT(&S::ETAL), Errors::Trapped, "ETAL"},
    {"ALAL", ofT(&S::ALAL), Errors::Trapped, "ALAL"}, {"SL", ofT(&S::SL), Errors::Trapped, "SL"},
    {"SIGMA", ofT(&S::SIGMA), Errors::Trapped, "SIGMA"}, {"TENS", ofT(&S::TENS), Errors::Trapped, "TENS"},
    {"CPL", ofT(&S::CPL), Errors::Raised}, {"CPLW", ofT(&S::CPLW), Errors::Raised},
    {"DHV", ofT(&S::DHV), Errors::Raised}, {"DHVW", ofT(&S::DHVW), Errors::Raised},
    {"HL", ofT(&S::HL), Errors::Raised}, {"HLW", ofT(&S::HLW), Errors::Raised}, {"PrL", ofT(&S::PrL), Errors::Raised},
    {"SLW", ofT(&S::SLW), Errors::OfParts, "SL"}, {"ObjRozL", ofT(&S::ObjRozL), Errors::OfParts, "ROLW", "T-3"},
    {"ReL", [](S& s, const V& T, const V&, const V& X) { return s.ReL(T, X, 1, 1); }, Errors::OfParts, "ROLW"},
    {"TEVRP", [](S& s, const V& T, const V& P, const V& X) { return s.TEVRP(1, T, P, X); }, Errors::Trapped, "TEVRP", "TP"},
    {"RHG", ofTP(&S::RHG), Errors::Trapped, "TEVRP", "TP"}, {"RHGW", ofTP(&S::RHGW), Errors::Trapped, "TEVRP", "TP"},
    {"RSG", ofTP(&S::RSG), Errors::Trapped, "TEVRP", "TP"}, {"RSGW", ofTP(&S::RSGW), Errors::Trapped, "TEVRP", "TP"},
    {"RUG", ofTP(&S::RUG), Errors::Trapped, "TEVRP", "TP"}, {"RUGW", ofTP(&S::RUGW), Errors::Trapped, "TEVRP", "TP"},
    {"RCPG", ofTP(&S::RCPG), Errors::Trapped, "TEVRP", "TP"}, {"RCPGW", ofTP(&S::RCPGW), Errors::Trapped, "TEVRP", "TP"},
    {"RCVG", ofTP(&S::RCVG), Errors::Trapped, "TEVRP", "TP"}, {"RCVGW", ofTP(&S::RCVGW), Errors::Trapped, "TEVRP", "TP"},
    {"LnFug", ofTP(&S::LnFug), Errors::Trapped, "TEVRP", "TP"}, {"Kapa", ofTP(&S::Kapa), Errors::Trapped, "TEVRP", "TP"},
    {"JTkoef", ofTP(&S::JTkoef), Errors::Trapped, "TEVRP", "TP"}, {"PrG", ofTP(&S::PrG), Errors::Trapped, "TEVRP", "TP"},
    {"RROGW", ofTP(&S::RROGW), Errors::Trapped, "RROGW", "TP"},
    {"ReG", [](S& s, const V& T, const V& P, const V& X) { return s.ReG(T, P, X, 1, 1); }, Errors::Trapped, "RROGW", "TP"},
    {"RETAG", ofTP(&S::RETAG), Errors::Trapped, "RETAG"}, {"RALAG", ofTP(&S::RALAG), Errors::Trapped, "RALAG", "TP"},
    {"TBV", ofP(&S::TBV), Errors::Trapped, "TBV", "P"}, {"TRB", ofP(&S::TRB), Errors::Trapped, "TRB", "P"}};
// clang-format on

inline const Method& methodOf(const std::string& name) {
    for (const Method& method : kMethods)
        if (method.name == name) return method;
    throw std::logic_error(name);
}

}  // namespace velor::test
