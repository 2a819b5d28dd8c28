#include <array>

#include "mixtures/mixtures.h"
#include "velor/forms.h"

namespace velor::app {

namespace {

constexpr int kMostComponents = 20;
constexpr int kEqualParts = 1;

[[noreturn]] void fail(const std::string& text) { throw Failure(ExitCode::NothingComputed, text); }

void requireInput(const PatientUserInterface& user) {
    if (user.isDeserted()) fail("Vstup skončil dříve, než byl dialog dokončen.");
}

// A number too large or a negative fraction is no reason to begin anew.
bool isSlipOfTyping(const RunTimeError& error) {
    return error.number() == RunTimeError::kOverflow || error.number() == RunTimeError::kRaisedToHost;
}

// Every turn asks the user, who can go back; so does the end of input.
template <class Question>
void askUntilAccepted(PatientUserInterface& user, const Question& question) {
    for (;;) {
        try {
            question();
            return requireInput(user);
        } catch (const RunTimeError& error) {
            if (!isSlipOfTyping(error)) throw;
            user.showMessage({describe(error), Icon::Exclamation});
        }
    }
}

void requireComponents(const Smes& smes, const std::string& otherwise) {
    if (smes.Nsloz().toInt16() <= 0) fail(otherwise);
}

// What was typed stays when the library asks again because of one wrong value.
class RememberedValues : public ForwardingUserInterface {
  public:
    using ForwardingUserInterface::ForwardingUserInterface;
    using ForwardingUserInterface::showForm;

    void showForm(F_Sloz& form) override {
        if (form.L_J == names_) {
            form.T_S = values_;
            form.O_Mol = isMolar_;
        }
        ForwardingUserInterface::showForm(form);
        names_ = form.L_J;
        values_ = form.T_S;
        isMolar_ = form.O_Mol;
    }

  private:
    std::array<std::string, F_Sloz::kBoxes> names_;
    std::array<TextBox, F_Sloz::kBoxes> values_;
    bool isMolar_ = true;
};

// With the data that the user may have changed.
Mixture mixtureOf(const Smes& smes, const Database& database, const Variant& X) {
    Mixture mixture{database, {}, {}};
    for (int i = 1; i <= smes.Nsloz().toInt16(); ++i) {
        const Substance* const substance = findByNumber(database.substances, smes.Nslozky(i).toInt16());
        if (!substance) fail("Složka č. " + std::to_string(i) + " není v bázi.");
        mixture.components.push_back(smes.record(i));
        mixture.substances.push_back(substanceOf(substance->number, mixture.components.back()));
        mixture.moleFractions.push_back(X.at(i).toDouble());
    }
    return mixture;
}

}  // namespace

Mixture askMixture(const Database& database, PatientUserInterface& user) {
    RememberedValues dialogs(user);
    Smes smes(dialogs);
    buildList(smes, database);
    askUntilAccepted(user, [&] { smes.ZadejSmes(); });
    requireComponents(smes, "Nebyly zadány složky směsi.");
    Variant n, X = Fractions(std::vector<double>(kMostComponents)), W = X;
    askUntilAccepted(user, [&] { smes.ZadejSloz(n, X, W, Variant::missing(), kEqualParts); });
    requireComponents(smes, "Složení nebylo zadáno, směs zůstala bez složek.");
    smes.Normal(X);  // the dialog lets pass a sum that the properties refuse
    return mixtureOf(smes, database, X);
}

bool isFlashWanted(PatientUserInterface& user, const std::string& description) {
    const std::string question = description + "Spočítat flash této směsi?";
    const Answer answer = user.showMessage({question, Icon::None, "VELOR", Buttons::YesNo});
    requireInput(user);
    return answer == Answer::Yes;
}

}  // namespace velor::app
