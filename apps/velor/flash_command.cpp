#include "commands.h"
#include "failure.h"
#include "flash_view.h"
#include "forwarding_user_interface.h"
#include "mixture_value.h"
#include "number_text.h"
#include "run_time_error_text.h"
#include "substance_finder.h"

namespace velor::app {

namespace {

constexpr int kAsking = -1;

[[noreturn]] void fail(const std::string& text) { throw Failure(ExitCode::NothingComputed, text); }

// What came before an error and may have led to it.
std::string earlierTrouble(const MessageLog& log) {
    if (log.bubblePointDiverged()) return "\n  Bod varu nástřiku nekonverguje.";
    if (log.dewPointDiverged()) return "\n  Rosný bod nástřiku nekonverguje.";
    const std::string said = log.firstText();
    return said.empty() ? "" : "\n  " + said;
}

FlashAnswer runFlash(MixtureObject& object, int mode, double T, double P) {
    Variant temperature = T, pressure = P;
    try {
        FlashAnswer flash;
        flash.text = object.smes.FLASH(mode, temperature, pressure, object.X);
        flash.record = object.smes.lastFlash();
        flash.P = pressure.toDouble();
        return flash;
    } catch (const RunTimeError& error) {
        fail("Flash selhal: " + describe(error) + "." + earlierTrouble(object.log));
    }
}

void requireResult(const FlashAnswer& flash, const MessageLog& log) {
    const std::string place = " při tlaku " + roundedText(flash.P) + " Pa";
    if (flash.record.outcome == FlashOutcome::NotConverged) {
        fail("Flash" + place + " nekonverguje: ani po " + std::to_string(flash.record.passes) +
             " průchodech není výsledek ustálený.");
    }
    // Without a dew point nobody knows whether the temperature lies above it.
    if (flash.record.outcome == FlashOutcome::AllVapour && log.dewPointDiverged())
        fail("Flash nelze vypočítat: rosný bod nástřiku" + place + " nekonverguje.");
}

// The K-values of the result, which nobody else has looked at.
std::vector<std::string> notes(const FlashAnswer& flash, const Mixture& mixture, MixtureObject& object) {
    std::vector<std::string> notes;
    if (object.log.bubblePointDiverged())
        notes.emplace_back("Bod varu nástřiku nekonverguje; hodnota v hlášení neplatí.");
    if (object.log.dewPointDiverged())
        notes.emplace_back("Rosný bod nástřiku nekonverguje; hodnota v hlášení neplatí.");
    if (flash.record.outcome != FlashOutcome::Converged) return notes;
    const MixtureValue worst =
        worstPureValue(mixture, object.smes, findMixtureProperty("TENS"), flash.record.temperature);
    if (!worst.result.isComputed()) fail("Flash nelze vypočítat.\n  " + worst.reason);
    if (worst.result.standing != Standing::InRange) notes.push_back(worst.reason);
    return notes;
}

Report flashReport(FlashAnswer flash, Mixture mixture, MixtureObject& object) {
    requireResult(flash, object.log);
    mixture.moleFractions = flash.record.feed;
    flash.hasBubblePoint = !object.log.bubblePointDiverged() && flash.record.bubblePoint > 0;
    flash.hasDewPoint = !object.log.dewPointDiverged() && flash.record.dewPoint > 0;
    flash.notes = notes(flash, mixture, object);
    return reportOf(flash, mixture.substances);
}

// The library asks for the composition although it may be known: then it is suggested. Every question has a suggestion,
// so that an empty answer is a cancelled one; the library would ask again for ever.
class KnownFeed : public ForwardingUserInterface {
  public:
    KnownFeed(UserInterface& user, const std::vector<double>& fractions) : ForwardingUserInterface(user) {
        for (const double fraction : fractions) feed_ += (feed_.empty() ? "" : " ") + exactText(fraction);
    }

    std::string askText(const InputRequest& request) override {
        InputRequest suggesting = request;
        if (request.prompt.starts_with("Zadat složení nástřiku")) suggesting.defaultAnswer = feed_;
        std::string answer = ForwardingUserInterface::askText(suggesting);
        if (answer.empty()) throw Failure(ExitCode::NothingComputed, "Zadání bylo zrušeno, flash nebyl spočítán.");
        return answer;
    }

  private:
    std::string feed_;
};

Report flashByAsking(const Mixture& mixture, UserInterface& user) {
    MixtureObject object(mixture, &user);
    return flashReport(runFlash(object, kAsking, 0, 0), mixture, object);
}

}  // namespace

Report answer(const FlashRequest& request, const Database& database, UserInterface&) {
    const Mixture mixture = findMixture(request.composition, database);
    MixtureObject object(mixture);
    FlashAnswer flash = runFlash(object, request.adiabatic ? 1 : 0, request.temperature, request.pressure);
    flash.T0 = request.temperature;
    return flashReport(std::move(flash), mixture, object);
}

Report answer(const AskingFlashRequest& request, const Database& database, UserInterface& userInterface) {
    const SubstanceList substances = findSubstances(database.substances, request.substances);
    return flashByAsking({database, substances, std::vector<double>(substances.size())}, userInterface);
}

Report askedFlash(const Mixture& mixture, UserInterface& userInterface) {
    KnownFeed user(userInterface, mixture.moleFractions);
    return flashByAsking(mixture, user);
}

}  // namespace velor::app
