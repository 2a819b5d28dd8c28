#include "baze/fit/forms.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "rules/equations.h"  // a form follows its equation

namespace velor::baze {

namespace {

using std::numbers::ln10;

double none(double, const Inner&) { return 0; }

// Beyond its critical temperature a form has no value: the fit turns back.
double below(double T, double Tc) { return T < Tc ? 1 - T / Tc : std::numeric_limits<double>::quiet_NaN(); }

// The critical temperature where it is known, else guesses above the points.
void seekCritical(Form& form, const FitKnowledge& known, const Inner& behind = {}) {
    std::vector<double> guesses{known.Tkr};
    form.firstSought = known.Tkr > 0 ? 1 : 0;
    if (known.Tkr <= 0) guesses = {1.02 * known.most, 1.1 * known.most, 1.3 * known.most, 1.8 * known.most};
    for (const double Tc : guesses) {
        Inner start{Tc};
        start.insert(start.end(), behind.begin(), behind.end());
        form.starts.push_back(start);
    }
}

Form polynomial(int degree) {
    Form form;
    form.isLogarithmic = false;
    form.terms = [degree](double T, const Inner&) {
        std::vector<double> powers{1};
        for (int i = 1; i <= degree; ++i) powers.push_back(powers.back() * T);
        return powers;
    };
    for (int i = 0; i <= degree; ++i) form.positions.push_back(i);
    return form;
}

Form antoine(const FitKnowledge& known) {
    Form form;
    form.terms = [](double T, const Inner& q) { return std::vector{1.0, 1 / (q[0] + T)}; };
    form.positions = {0, 1};
    form.innerPositions = {2};
    for (const double part : {0.0, 0.1, 0.2, 0.35, 0.6}) form.starts.push_back({-part * known.least});
    return form;
}

Form rackett(const FitKnowledge& known) {
    Form form;
    form.terms = [](double T, const Inner& q) { return std::vector{1.0, -std::pow(below(T, q[0]), 2.0 / 7.0)}; };
    form.positions = {0, 1};
    form.isExponent = {true, true};
    form.innerPositions = {2};
    form.scaleOfFirst = 1e-3;
    seekCritical(form, known);
    return form;
}

Form watson(const FitKnowledge& known) {
    Form form;
    const double reference = static_cast<float>(std::floor(known.least));
    form.terms = [reference](double T, const Inner& q) {
        return std::vector{1.0, std::log(below(T, q[0]) / (1 - reference / q[0]))};
    };
    form.positions = {0, 2};
    form.isExponent = {true, false};
    form.innerPositions = {3};
    form.fixed[1] = reference;
    seekCritical(form, known);
    return form;
}

Form longAntoine(const FitKnowledge& known) {
    Form form;
    form.terms = [](double T, const Inner& q) {
        return std::vector{ln10, ln10 / (q[0] + T), std::log(T), ln10 * T, ln10 * T * T};
    };
    form.positions = {0, 1, 3, 4, 5};
    form.innerPositions = {2};
    for (const double part : {0.0, 0.3, 0.7}) form.starts.push_back({-part * known.least});
    return form;
}

Form shortAntoine(const FitKnowledge& known) {
    Form form;
    form.terms = [](double T, const Inner& q) { return std::vector{ln10, ln10 / (q[0] + T), ln10 * T, ln10 * T * T}; };
    form.positions = {0, 1, 2, 3};
    form.innerPositions = {4};
    for (const double part : {0.0, 0.3, 0.7}) form.starts.push_back({-part * known.least});
    return form;
}

Form reciprocals() {
    Form form;
    form.terms = [](double T, const Inner&) { return std::vector{1.0, 1 / T, 1 / (T * T), 1 / (T * T * T)}; };
    form.positions = {0, 1, 2, 3};
    return form;
}

Form sutherland(const FitKnowledge& known) {
    Form form;
    form.terms = [](double, const Inner&) { return std::vector{1.0}; };
    form.offset = [](double T, const Inner& q) { return 1.5 * std::log(T) - std::log(T + q[0]); };
    form.positions = {0};
    form.isExponent = {true};
    form.innerPositions = {1};
    form.starts = {{0.3 * known.least}, {known.most}};
    return form;
}

Form wagner(const FitKnowledge& known) {
    Form form;
    const bool hasPressure = known.Pkr > 0;
    const double pressure = hasPressure ? std::log(static_cast<double>(static_cast<float>(known.Pkr))) : 0;
    form.terms = [hasPressure](double T, const Inner& q) {
        const double t = below(T, q[0]), Tr = T / q[0];
        std::vector<double> terms{t / Tr, std::pow(t, 1.5) / Tr, std::pow(t, 3) / Tr, std::pow(t, 6) / Tr};
        if (!hasPressure) terms.push_back(1);
        return terms;
    };
    form.offset = [pressure](double, const Inner&) { return pressure; };
    form.positions = {0, 1, 2, 3};
    form.isExponent = {false, false, false, false};
    form.fixed[5] = known.Pkr;
    if (!hasPressure) {
        form.positions.push_back(5);
        form.isExponent.push_back(true);
    }
    form.innerPositions = {4};
    seekCritical(form, known);
    return form;
}

Form heatOfVaporisation(const FitKnowledge& known) {
    Form form;
    form.terms = [](double, const Inner&) { return std::vector{1.0}; };
    form.offset = [](double T, const Inner& q) { return 0.38 * std::log(below(T, q[0])) - std::log(T / q[0]) / 6; };
    form.positions = {0};
    form.isExponent = {true};
    form.innerPositions = {1};
    seekCritical(form, known);
    return form;
}

Form daubert(const FitKnowledge& known) {
    Form form;
    form.terms = [](double T, const Inner& q) { return std::vector{1.0, -1 - std::pow(below(T, q[0]), q[1])}; };
    form.positions = {0, 1};
    form.isExponent = {true, true};
    form.innerPositions = {2, 3};
    seekCritical(form, known, {0.29});
    return form;
}

// Its first coefficient is one factor too many.
Form reducedParabola(const FitKnowledge& known) {
    Form form;
    form.isLogarithmic = false;
    form.terms = [](double T, const Inner& q) {
        const double Tr = T / q[0];
        return std::vector{1 - Tr, (1 - Tr) * Tr, (1 - Tr) * Tr * Tr};
    };
    form.positions = {1, 2, 3};
    form.innerPositions = {5};
    form.fixed[0] = 1;
    seekCritical(form, known);
    return form;
}

Form andrade(const FitKnowledge& known) {
    Form form;
    const double reference = static_cast<float>(std::round((known.least + known.most) / 2));
    form.terms = [reference](double T, const Inner&) { return std::vector{ln10 * (1 / T - 1 / reference), ln10}; };
    form.positions = {0, 2};
    form.fixed[1] = reference;
    return form;
}

Form riedel() {
    Form form;
    form.terms = [](double T, const Inner& q) { return std::vector{1.0, 1 / T, std::log(T), std::pow(T, q[0])}; };
    form.positions = {0, 1, 2, 3};
    form.innerPositions = {4};
    form.starts = {{1}, {2}, {6}};
    return form;
}

Form powers(const FitKnowledge& known) {
    Form form;
    form.terms = [](double T, const Inner&) { return std::vector{1.0, std::log(T)}; };
    form.offset = [](double T, const Inner& q) { return -std::log(1 + q[0] / T + q[1] / (T * T)); };
    form.positions = {0, 1};
    form.isExponent = {true, false};
    form.innerPositions = {2, 3};
    form.starts = {{0, 0}, {0.5 * known.least, 0}, {known.most, 0}, {0, known.least * known.least}};
    return form;
}

Form bareForm(int type, const FitKnowledge& known) {
    if (const int degree = equationOf(type).degree; degree > 0) return polynomial(degree);
    switch (type) {
        case 6:
            return antoine(known);
        case 7:
            return rackett(known);
        case 8:
            return watson(known);
        case 9:
            return longAntoine(known);
        case 10:
            return shortAntoine(known);
        case 11:
            return reciprocals();
        case 12:
            return sutherland(known);
        case 13:
            return wagner(known);
        case 14:
            return heatOfVaporisation(known);
        case 15:
            return daubert(known);
        case 16:
            return reducedParabola(known);
        case 17:
            return andrade(known);
        case 18:
            return riedel();
        default:
            return powers(known);
    }
}

}  // namespace

Form formOf(int type, const FitKnowledge& known) {
    Form form = bareForm(type, known);
    if (!form.offset) form.offset = none;
    if (form.starts.empty()) form.starts.push_back({});
    form.isExponent.resize(form.positions.size());
    return form;
}

}  // namespace velor::baze
