// Defining a mixture interactively: its components, then its composition.
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "dialogs/forms_of.h"
#include "dialogs/substance_list.h"
#include "object/load.h"
#include "object/messages.h"
#include "object/state.h"
#include "rules/composition.h"
#include "runtime/numbers.h"
#include "velor/smes.h"
#include "velor/version.h"

namespace velor {

namespace {

constexpr std::int16_t kBackMarker = -9999;  // in the count of components, while the composition form closes
constexpr double kNoSum = 1e-10;
constexpr double kSumTolerance = 0.0001;
constexpr std::size_t kBlanksBeforeVersion = 58;

std::string versionText() {
    return "dll V." + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision);
}

// What stands in box i at first; nothing where the mode asks for nothing.
std::string prefilled(int choice, int i, const Variant& X, const Variant& W) {
    switch (choice) {
        case 0:
            return "1.0";
        case 1:
            return Format(W.at(i).toDouble(), "#0.0000");
        case 2:
            return Format(X.at(i).toDouble(), "#0.0000");
        default:
            return {};
    }
}

// Fills the form for n components; false when one of them is not in the database.
bool prepareForm(State& state, F_Sloz& form, const Variant& X, const Variant& W, const Variant& mode) {
    form.L_J.fill("");
    for (TextBox& box : form.T_S) box = {"", true, false};
    form.components = state.definition.PocSlozek;
    form.focus = {Focus::Control::Value, 0};  // the last one may lie behind the components now
    bool acceptable = true;
    for (int i = 1; i <= state.definition.PocSlozek; ++i) {
        const std::size_t box = ComponentSlots::index(i);
        if (!mode.isMissing()) form.T_S[box].text = prefilled(std::abs(static_cast<int>(mode.toInt16())) - 1, i, X, W);
        form.L_J[box] = componentName(state.definition.slots, i);
        form.T_S[box].enabled = true;
        if (state.definition.slots.Latka(i).Cislo == 0) acceptable = false;
    }
    return acceptable;
}

std::vector<double> readValues(const Definition& definition, const F_Sloz& form) {
    std::vector<double> values;
    for (int i = 1; i <= definition.PocSlozek; ++i) {
        values.push_back(Smes::Hodnota(form.T_S[ComponentSlots::index(i)].text).toDouble());
        if (values.back() < 0.0) raiseToHost("ZadejSloz", std::to_string(i) + ". složení je záporné!");
    }
    return values;
}

struct Converted {
    std::vector<double> mole, mass;
};

// The fractions in both kinds.
Converted convert(const Definition& definition, const std::vector<double>& values, bool molar) {
    std::vector<double> M;
    for (int i = 1; i <= definition.PocSlozek; ++i) M.push_back(definition.slots.Latka(i).Mv);
    Converted both{values, values};
    std::vector<double>& other = molar ? both.mass : both.mole;
    molar ? massParts(values, M, other) : moleParts(values, M, other);
    normalise(other);  // a sum near 0 is no exception here
    if (other.size() == 1) other.front() = 1.0;
    return both;
}

void keep(KeptFractions& kept, const std::vector<double>& fractions) {
    for (std::size_t i = 0; i < fractions.size(); ++i) kept.set(static_cast<int>(i) + 1, fractions[i]);
}

void copyTo(Variant& array, const std::vector<double>& fractions) {
    for (std::size_t i = 0; i < fractions.size(); ++i) array.at(static_cast<int>(i) + 1) = fractions[i];
}

}  // namespace

void Smes::ZadejSmes() {
    const PublicCall call(*state_);
    State& state = *state_;
    state.definition.Nacteno = 0;
    buildListForDialog(state);
    F_Seznam& form = *formsOf(state).components;
    form.L_Seznam = {state.list.SeznamLatek, state.list.SeznamLatek.empty() ? -1 : 0};
    form.Latky = state.list.substances;
    form.caption = " SEZNAM LÁTEK - definice složek směsi" + std::string(kBlanksBeforeVersion, ' ') + versionText();
    form.Nadpis_1 = "SEZNAM LÁTEK DATABÁZE  V E L O R";
    form.Nadpis_2 = "Počet látek je " + Format(state.list.PocLatek, "#0");
    form.lblDatafile = state.place.AdresaBaze;
    form.SZavrit = [this](const CislaLatek& numbers) { mZadSmes_SZavrit(numbers); };
    form.showExclamation = [&state](const std::string& text) { show(state.messages, text, Icon::Exclamation); };
    form.visible = true;
    state.messages.userInterface->showForm(form);
}

void Smes::mZadSmes_SZavrit(const CislaLatek& numbers) {
    const PublicCall call(*state_);
    State& state = *state_;
    formsOf(state).components->visible = false;
    const std::int16_t n = numbers[0];
    state.definition.PocSlozek = n;
    for (int i = 1; i <= n; ++i) state.definition.slots.setCisloLatky(i, numbers[ComponentSlots::index(i) + 1]);
    if (n < ComponentSlots::kCount) state.definition.slots.setCisloLatky(n + 1, 0);
    try {
        if (loadComponents(state) == 0) tellLoadFailure(state);
    } catch (const RunTimeError&) {
        tellLoadFailure(state);
        throw;
    }
}

void Smes::ZadejSloz(Variant& n, Variant& X, Variant& W, const Variant&, const Variant& mode) {
    const PublicCall call(*state_);
    State& state = *state_;
    F_Sloz& form = *formsOf(state).composition;
    loadComponents(state);  // so that names and molar masses are those of the mixture defined
    for (;;) {
        n = state.definition.PocSlozek;
        const bool acceptable = prepareForm(state, form, X, W, mode);
        form.ZavriSloz = [this] { mSloz_ZavriSloz(); };
        form.ZpetSloz = [this] { mSloz_ZpetSloz(); };
        form.ZobrazL = [this](int component) { mSloz_ZobrazL(component); };
        form.ZobrazZ = [this](int component) { mSloz_ZobrazZ(component); };
        form.visible = true;
        state.messages.userInterface->showForm(form);
        if (state.definition.PocSlozek == kBackMarker) {
            state.definition.PocSlozek = 0;
            return;
        }
        std::vector<double> values = readValues(state.definition, form);
        const double sum = sumOf(values);
        if (std::abs(sum) < kNoSum && state.messages.ChyboveHlasky < 2) {
            show(state.messages, "Je třeba zadat složení směsi!", Icon::Critical);
            continue;
        }
        if (!acceptable) {
            show(state.messages, "Některá ze složek není v bázi (0), opravte neznámou složku,\revent. náhradní složku!",
                 Icon::Critical);
            ZadejSmes();
            continue;
        }
        if (std::abs(sum - 1.0) > kSumTolerance && values.size() > 1)
            for (double& value : values) value = checked::divide(value, sum);
        const Converted fractions = convert(state.definition, values, form.O_Mol);
        keep(state.last.enteredFractions, values);
        keep(state.last.moleFractions, fractions.mole);
        keep(state.last.massFractions, fractions.mass);
        copyTo(X, fractions.mole);
        copyTo(W, fractions.mass);
        return;
    }
}

void Smes::mSloz_ZavriSloz() { formsOf(*state_).composition->visible = false; }

void Smes::mSloz_ZpetSloz() {
    state_->definition.PocSlozek = kBackMarker;
    formsOf(*state_).composition->visible = false;
}

Variant Smes::ZadaneSlozeni(int i) const { return state_->last.enteredFractions.at(checkedInt16(i)); }
Variant Smes::MolZlomky(int i) const { return state_->last.moleFractions.at(checkedInt16(i)); }
Variant Smes::HmotZlomky(int i) const { return state_->last.massFractions.at(checkedInt16(i)); }

}  // namespace velor
