#include "mixtures/mixture.h"
#include "velor/text.h"

namespace velor::app {

namespace {

struct FlashAnswer {
    std::string text;  // the library's own report
    FlashRecord record;
    std::optional<double> T0;                                      // K; not known where the library asked for it
    double P = 0;                                                  // Pa
    Standing bubble = Standing::InRange, dew = Standing::InRange;  // of the feed's points
    Standing equilibrium = Standing::InRange;                      // of the K-values
    std::vector<std::string> notes;
};

// ---- The report ------------------------------------------------------------------------------------------------

std::string outcomeWord(FlashOutcome outcome) {
    switch (outcome) {
        case FlashOutcome::AllVapour:
            return "vše odpařeno";
        case FlashOutcome::AllLiquid:
            return "vše kapalné";
        case FlashOutcome::Converged:
            return "dvě fáze";
        case FlashOutcome::NotConverged:
            return "nekonverguje";
        case FlashOutcome::None:
            break;
    }
    return "nevypočteno";
}

Value known(bool isKnown, double value) {
    if (!isKnown) return {};
    return value;
}

Section resultSection(const FlashAnswer& flash) {
    const FlashRecord& record = flash.record;
    const bool isIterated = record.outcome == FlashOutcome::Converged;
    const bool isAdiabatic = record.kind == FlashKind::Adiabatic;
    const bool isBalanced = isIterated && isAdiabatic;
    return {"flash", "Flash",
            Entries{{"druh", "druh", std::string(isAdiabatic ? "adiabatický" : "izotermní"), {}},
                    {"vysledek", "výsledek", outcomeWord(record.outcome), {}},
                    {"V", "podíl páry k nástřiku", record.vapourFraction, "mol/mol"},
                    {"T0", "počáteční teplota", known(flash.T0.has_value(), flash.T0.value_or(0)), "K"},
                    {"T", "konečná teplota", record.temperature, "K"},
                    {"P", "tlak", flash.P, "Pa"},
                    {"Tb", "bod varu nástřiku", known(flash.bubble == Standing::InRange, record.bubblePoint), "K"},
                    {"Tb_stav", "bod varu – stav", std::string(standingWord(flash.bubble)), {}},
                    {"Td", "rosný bod nástřiku", known(flash.dew == Standing::InRange, record.dewPoint), "K"},
                    {"Td_stav", "rosný bod – stav", std::string(standingWord(flash.dew)), {}},
                    {"K_stav", "rovnovážné konstanty – stav", std::string(standingWord(flash.equilibrium)), {}},
                    {"pruchody", "počet průchodů", record.passes, {}},
                    {"latkova_bilance", "zbytek látkové bilance", known(isIterated, record.materialResidual), ""},
                    {"tepelna_bilance", "zbytek tepelné bilance", known(isBalanced, record.energyResidual), "J/mol"}},
            flash.notes};
}

Section componentsSection(const FlashRecord& record, const SubstanceList& substances) {
    Table table;
    table.columns = {{"cislo", "č.", ""},   {"nazev", "látka", ""}, {"z", "nástřik", ""},
                     {"x", "kapalina", ""}, {"y", "pára", ""},      {"K", "K", ""}};
    for (std::size_t i = 0; i < substances.size(); ++i) {
        const bool isIterated = !record.equilibrium.empty();
        table.rows.push_back({{substances[i].number, {}},
                              textCell(substances[i].name),
                              {record.feed[i], {}},
                              {record.liquid[i], {}},
                              {record.vapour[i], {}},
                              {known(isIterated, isIterated ? record.equilibrium[i] : 0), {}}});
    }
    return {"slozky", "Složky", std::move(table), {}};
}

// Lines as a terminal wants them, ended by LF, and one line break at the end.
std::string textOf(const FlashAnswer& flash) {
    std::string text;
    for (const char c : flash.text)
        if (c != '\r') text += c;
    text.erase(text.find_last_not_of('\n') + 1);
    text += '\n';
    if (!flash.notes.empty()) text += '\n';
    for (const std::string& note : flash.notes) text += note + "\n";
    return text;
}

// ---- The computation -------------------------------------------------------------------------------------------

constexpr int kAsking = -1;

[[noreturn]] void fail(const std::string& text) { throw Failure(ExitCode::NothingComputed, text); }

// Which of the components that are there are gases at T kelvin.
std::vector<std::string> gasesAt(double T, const Mixture& mixture, const MixtureObject& object) {
    std::vector<std::string> gases;
    for (std::size_t i = 0; i < mixture.substances.size(); ++i) {
        const double Tc = object.smes.Tkri(static_cast<int>(i) + 1).toDouble();
        if (T > Tc && mixture.moleFractions[i] > 0)
            gases.push_back(mixture.substances[i].name + " je nad kritickou teplotou (" + roundedText(Tc) + " K)");
    }
    return gases;
}

// What stands in the way of most flashes that fail.
std::string gasesInTheWay(double T, const Mixture& mixture, const MixtureObject& object) {
    std::string lines;
    for (const std::string& gas : gasesAt(T, mixture, object)) lines += "\n  " + gas + ".";
    if (!lines.empty()) lines += "\n  Bod varu i rosný bod se hledají jen pod kritickými teplotami všech složek.";
    return lines;
}

// What came before an error and may have led to it.
std::string earlierTrouble(const MixtureObject& object) {
    if (object.smes.lastBubblePoint() == SaturationOutcome::Diverged) return "\n  Bod varu nástřiku nekonverguje.";
    if (object.smes.lastDewPoint() == SaturationOutcome::Diverged) return "\n  Rosný bod nástřiku nekonverguje.";
    const std::string said = object.log.firstText();
    return said.empty() ? "" : "\n  " + said;
}

FlashAnswer runFlash(MixtureObject& object, const Mixture& mixture, int mode, double T, double P) {
    Variant temperature = T, pressure = P;
    try {
        FlashAnswer flash;
        flash.text = object.smes.FLASH(mode, temperature, pressure, object.X);
        flash.record = object.smes.lastFlash();
        flash.P = pressure.toDouble();
        return flash;
    } catch (const RunTimeError& error) {
        fail("Flash selhal: " + describe(error) + "." + earlierTrouble(object) + gasesInTheWay(T, mixture, object));
    }
}

std::string place(const FlashAnswer& flash) { return " při tlaku " + roundedText(flash.P) + " Pa"; }

// A point that does not meet its own equation is none, whatever the library took it for.
Standing standingOf(const FlashAnswer& flash, MixtureObject& object, std::string_view code, double T) {
    const MixtureProperty& point = *findMixtureProperty(code);
    const bool isFound = T > 0 && isSaturationPoint(object.smes, point, T, flash.P, Fractions(flash.record.feed));
    return isFound ? Standing::InRange : Standing::Diverged;
}

// Where nothing was iterated all depends on one of the points; without it the phase must be certain in another way.
void requireCertainPhase(const FlashAnswer& flash, const Mixture& mixture, MixtureObject& object) {
    const FlashOutcome outcome = flash.record.outcome;
    const bool isAllVapour = outcome == FlashOutcome::AllVapour, isAllLiquid = outcome == FlashOutcome::AllLiquid;
    const Standing decisive = isAllVapour ? flash.dew : isAllLiquid ? flash.bubble : Standing::InRange;
    if (decisive == Standing::InRange) return;
    const StablePhase stable =
        stablePhase(object.smes, flash.record.temperature, flash.P, Fractions(flash.record.feed));
    if (stable == (isAllVapour ? StablePhase::Gas : StablePhase::Liquid)) return;
    fail(std::string("Flash nelze vypočítat: ") + (isAllVapour ? "rosný bod" : "bod varu") + " nástřiku" +
         place(flash) + " nekonverguje." + gasesInTheWay(flash.record.temperature, mixture, object));
}

void requireResult(const FlashAnswer& flash, const Mixture& mixture, MixtureObject& object) {
    if (flash.record.outcome == FlashOutcome::NotConverged) {
        fail("Flash" + place(flash) + " nekonverguje: ani po " + std::to_string(flash.record.passes) +
             " průchodech není výsledek ustálený.");
    }
    requireCertainPhase(flash, mixture, object);
}

// What the report leaves unsaid.
std::vector<std::string> explanations(const FlashAnswer& flash) {
    std::vector<std::string> lines{"Směs je brána za ideální (Raoultův zákon); složení jsou v molových zlomcích."};
    lines.emplace_back(
        flash.record.equilibrium.empty()
            ? "První tlak v hlášení (tenze par nástřiku) se zde nepočítá, proto 0; flash platí pro druhý tlak."
            : "První tlak v hlášení je tenze par nástřiku, flash platí pro druhý tlak.");
    if (flash.bubble != Standing::InRange)
        lines.emplace_back("Bod varu nástřiku nekonverguje; hodnota v hlášení neplatí.");
    if (flash.dew != Standing::InRange)
        lines.emplace_back("Rosný bod nástřiku nekonverguje; hodnota v hlášení neplatí.");
    return lines;
}

Report flashReport(FlashAnswer flash, Mixture mixture, MixtureObject& object) {
    mixture.moleFractions = flash.record.feed;
    if (flash.record.outcome != FlashOutcome::None) {
        flash.bubble = standingOf(flash, object, "TBV", flash.record.bubblePoint);
        flash.dew = standingOf(flash, object, "TRB", flash.record.dewPoint);
    }
    requireResult(flash, mixture, object);
    flash.notes = explanations(flash);
    const std::string pressure = flash.record.equilibrium.empty() ? "." : ", tenze par se bere při 0.98 Tkr.";
    for (const std::string& gas : gasesAt(flash.record.temperature, mixture, object))
        flash.notes.push_back(gas + pressure);
    if (flash.record.outcome == FlashOutcome::Converged) {
        // The K-values of the result, which nobody else has looked at.
        const MixtureValue worst =
            worstPureValue(mixture, object, *findMixtureProperty("TENS"), flash.record.temperature);
        if (!worst.result.isComputed()) fail("Flash nelze vypočítat.\n  " + worst.reason);
        flash.equilibrium = worst.result.standing;
        const bool isSaid = flash.equilibrium == Standing::BelowCritical;
        if (flash.equilibrium != Standing::InRange && !isSaid) flash.notes.push_back(worst.reason);
    }
    return {{resultSection(flash), componentsSection(flash.record, mixture.substances)}, {}, textOf(flash)};
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
        if (request.question == Question::FlashFeed) suggesting.defaultAnswer = feed_;
        std::string answer = ForwardingUserInterface::askText(suggesting);
        if (answer.empty()) throw Failure(ExitCode::NothingComputed, "Zadání bylo zrušeno, flash nebyl spočítán.");
        return answer;
    }

  private:
    std::string feed_;
};

Report flashByAsking(const Mixture& mixture, UserInterface& user) {
    MixtureObject object(mixture, &user);
    return flashReport(runFlash(object, mixture, kAsking, 0, 0), mixture, object);
}

}  // namespace

Report answer(const FlashRequest& request, const Database& database, UserInterface&) {
    const Mixture mixture = withoutAbsent(findMixture(request.composition, database));
    MixtureObject object(mixture);
    FlashAnswer flash = runFlash(object, mixture, request.adiabatic ? 1 : 0, request.temperature, request.pressure);
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
