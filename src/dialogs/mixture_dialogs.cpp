// Defining a mixture interactively: its components, then its composition.
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "database/load.h"
#include "dialogs/substance_list.h"
#include "mixture/composition_rules.h"
#include "runtime/numbers.h"
#include "smes/messages.h"
#include "smes/state.h"
#include "velor/forms.h"
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
    form.components = state.PocSlozek;
    form.focus = {Focus::Control::Value, 0};  // the last one may lie behind the components now
    bool acceptable = true;
    for (int i = 1; i <= state.PocSlozek; ++i) {
        const std::size_t box = ComponentSlots::index(i);
        if (!mode.isMissing()) form.T_S[box].text = prefilled(std::abs(static_cast<int>(mode.toInt16())) - 1, i, X, W);
        form.L_J[box] = componentName(state, i);
        form.T_S[box].enabled = true;
        if (state.slots.Latka(i).Cislo == 0) acceptable = false;
    }
    return acceptable;
}

std::vector<double> readValues(const State& state, const F_Sloz& form) {
    std::vector<double> values;
    for (int i = 1; i <= state.PocSlozek; ++i) {
        values.push_back(Smes::Hodnota(form.T_S[ComponentSlots::index(i)].text).toDouble());
        if (values.back() < 0.0) raiseToHost("ZadejSloz", std::to_string(i) + ". složení je záporné!");
    }
    return values;
}

struct Converted {
    std::vector<double> mole, mass;
};

// The fractions in both kinds, divided by their own sums.
Converted convert(const State& state, const std::vector<double>& values, bool molar) {
    std::vector<double> M;
    for (int i = 1; i <= state.PocSlozek; ++i) M.push_back(state.slots.Latka(i).Mv);
    Converted both{values, values};
    std::vector<double>& other = molar ? both.mass : both.mole;
    double sum = 0.0;
    for (std::size_t i = 0; i < M.size(); ++i) {
        other[i] = molar ? values[i] * M[i] : checked::divide(values[i], M[i]);
        sum += other[i];
    }
    for (double& fraction : other) fraction = checked::divide(fraction, sum);
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
    State& state = *state_;
    state.Nacteno = 0;
    if (state.SeznamLatek.empty()) rebuildSubstanceList(state);
    F_Seznam& form = *state.componentsForm;
    form.L_Seznam = {state.SeznamLatek, state.SeznamLatek.empty() ? -1 : 0};
    form.caption = " SEZNAM LÁTEK - definice složek směsi" + std::string(kBlanksBeforeVersion, ' ') + versionText();
    form.Nadpis_1 = "SEZNAM LÁTEK DATABÁZE  V E L O R";
    form.Nadpis_2 = "Počet látek je " + Format(state.PocLatek, "#0");
    form.lblDatafile = state.AdresaBaze;
    form.SZavrit = [this](const F_Seznam::CislaLatek& numbers) { mZadSmes_SZavrit(numbers); };
    form.showExclamation = [&state](const std::string& text) { show(state, text, Icon::Exclamation); };
    form.visible = true;
    state.userInterface->showForm(form);
}

void Smes::mZadSmes_SZavrit(const F_Seznam::CislaLatek& CislaLatek) {
    State& state = *state_;
    state.componentsForm->visible = false;
    const std::int16_t n = CislaLatek[0];
    state.PocSlozek = n;
    for (int i = 1; i <= n; ++i) state.slots.setCisloLatky(i, CislaLatek[ComponentSlots::index(i) + 1]);
    if (n < ComponentSlots::kCount) state.slots.setCisloLatky(n + 1, 0);
    if (loadComponents(state) == 0 && state.ChyboveHlasky < 2)
        show(state, "Nemohu načíst z " + state.DataFileName + "!", Icon::Critical);
}

void Smes::ZadejSloz(Variant& n, Variant& X, Variant& W, const Variant&, const Variant& mode) {
    State& state = *state_;
    F_Sloz& form = *state.compositionForm;
    for (;;) {
        n = state.PocSlozek;
        const bool acceptable = prepareForm(state, form, X, W, mode);
        form.ZavriSloz = [this] { mSloz_ZavriSloz(); };
        form.ZpetSloz = [this] { mSloz_ZpetSloz(); };
        form.ZobrazL = [this](int component) { mSloz_ZobrazL(component); };
        form.ZobrazZ = [this](int component) { mSloz_ZobrazZ(component); };
        form.visible = true;
        state.userInterface->showForm(form);
        if (state.PocSlozek == kBackMarker) {
            state.PocSlozek = 0;
            return;
        }
        std::vector<double> values = readValues(state, form);
        const double sum = sumOf(values);
        if (std::abs(sum) < kNoSum && state.ChyboveHlasky < 2) {
            show(state, "Je třeba zadat složení směsi!", Icon::Critical);
            continue;
        }
        if (!acceptable) {
            show(state, "Některá ze složek není v bázi (0), opravte neznámou složku,\revent. náhradní složku!",
                 Icon::Critical);
            ZadejSmes();
            continue;
        }
        if (std::abs(sum - 1.0) > kSumTolerance && values.size() > 1)
            for (double& value : values) value = checked::divide(value, sum);
        const Converted fractions = convert(state, values, form.O_Mol);
        keep(state.enteredFractions, values);
        keep(state.moleFractions, fractions.mole);
        keep(state.massFractions, fractions.mass);
        copyTo(X, fractions.mole);
        copyTo(W, fractions.mass);
        return;
    }
}

void Smes::mSloz_ZavriSloz() { state_->compositionForm->visible = false; }

void Smes::mSloz_ZpetSloz() {
    state_->PocSlozek = kBackMarker;
    state_->compositionForm->visible = false;
}

Variant Smes::ZadaneSlozeni(int i) const { return state_->enteredFractions.at(checkedInt16(i)); }
Variant Smes::MolZlomky(int i) const { return state_->moleFractions.at(checkedInt16(i)); }
Variant Smes::HmotZlomky(int i) const { return state_->massFractions.at(checkedInt16(i)); }

}  // namespace velor
