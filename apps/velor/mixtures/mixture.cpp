#include "mixtures/mixture.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "velor/text.h"

namespace velor::app {

namespace {

constexpr double kSumTolerance = 1e-5;  // the library's own

std::vector<double> elements(const Variant& fractions) {
    std::vector<double> values;
    for (int i = fractions.lowerBound(); i <= fractions.upperBound(); ++i) values.push_back(fractions.at(i).toDouble());
    return values;
}

void requireOneFractionEach(std::size_t fractions, const SubstanceList& substances) {
    if (fractions == substances.size()) return;
    throw Failure(ExitCode::WrongUse, "Látek je " + std::to_string(substances.size()) + ", ale zlomků složení " +
                                          std::to_string(fractions) +
                                          ". S desetinnou čárkou je oddělte středníkem: 0,4;0,6.");
}

std::vector<double> givenFractions(const CompositionRequest& request, const SubstanceList& substances) {
    if (!request.fractions) {
        if (substances.size() == 1) return {1.0};
        throw Failure(ExitCode::WrongUse, "Chybí složení směsi. Zadejte např. --slozeni 0.4,0.6");
    }
    std::vector<double> fractions = *request.fractions;
    requireOneFractionEach(fractions.size(), substances);
    const double sum = std::accumulate(fractions.begin(), fractions.end(), 0.0);
    if (!std::isfinite(sum)) throw Failure(ExitCode::WrongUse, "Zlomky složení jsou příliš velké.");
    if (std::abs(1.0 - sum) <= kSumTolerance) return fractions;
    const std::string text = "Součet zlomků složení je " + roundedText(sum) + ", ne 1.";
    if (!request.normalise) {
        throw Failure(ExitCode::WrongUse, text + " Přepínač --normalizovat je vydělí součtem, poměr složek zůstane.");
    }
    if (!(sum > 0)) throw Failure(ExitCode::WrongUse, text + " Nulové složení nelze normalizovat.");
    return fractions;
}

}  // namespace

Mixture findMixture(const CompositionRequest& request, const Database& database, bool clamp) {
    const SubstanceList substances = findSubstances(database.substances, request.substances);
    Mixture mixture{database, substances, givenFractions(request, substances)};
    MixtureObject object(mixture);
    Variant fractions = object.X;
    if (request.normalise) object.smes.Normal(fractions);
    if (request.byMass) {
        const Variant byMass = fractions;
        object.smes.Comol(byMass, fractions);
    }
    mixture.moleFractions = elements(fractions);
    mixture.clamp = clamp;
    return mixture;
}

Answer MessageLog::showMessage(const Message& message) {
    const Answer answer = RecordingUserInterface::showMessage(message);
    return listener_ ? listener_->showMessage(message) : answer;
}

std::string MessageLog::askText(const InputRequest& request) {
    return listener_ ? listener_->askText(request) : RecordingUserInterface::askText(request);
}

std::string MessageLog::firstText() const {
    if (messages.empty()) return {};
    std::string line;
    for (const char c : messages.front().text)
        if (c != '\r') line += c == '\n' ? ' ' : c;
    return line;
}

MixtureObject::MixtureObject(const Mixture& mixture, UserInterface* listener)
    : log(listener), smes(log), X(Fractions(mixture.moleFractions)) {
    loadInto(smes, mixture.database, mixture.substances);
    int slot = 0;
    for (const TLatka& component : mixture.components) smes.record(++slot, component);
    smes.MaxErrHlas(std::numeric_limits<std::int16_t>::max());  // far more than one point can spend
    if (mixture.clamp) smes.MezeZap();
}

}  // namespace velor::app
