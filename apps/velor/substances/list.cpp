#include <algorithm>

#include "people/people.h"
#include "substances/substances.h"
#include "velor/component_forms.h"
#include "velor/forms.h"
#include "velor/text.h"

namespace velor::app {

namespace {

// In the order of the library's list, which goes by the name.
SubstanceList listed(const Database& database) {
    RecordingUserInterface silence;
    Smes smes(silence);
    buildList(smes, database);
    SubstanceList substances;
    for (int i = 1; i <= smes.PocLatek(); ++i) {
        const Substance* const substance = findByNumber(database.substances, smes.listedSubstance(i));
        if (substance) substances.push_back(*substance);
    }
    return substances;
}

bool holds(const Substance& substance, const std::string& foldedText) {
    const std::string line = std::to_string(substance.number) + " " + substance.name + " " + substance.synonym + " " +
                             substance.formula + " " + substance.cas;
    return folded(line).find(foldedText) != std::string::npos;
}

std::string title(const std::string& text, std::size_t count) {
    const std::string what = text.empty() ? "Seznam látek databáze" : "Látky s textem „" + text + "“";
    return what + " (" + std::to_string(count) + ")";
}

Section listSection(const SubstanceList& substances, const std::string& text) {
    Table table;
    table.columns = {{"cislo", "č.", ""},
                     {"nazev", "název látky", ""},
                     {"synonym", "synonymum", ""},
                     {"vzorec", "vzorec", ""},
                     {"CAS", "CAS", ""}};
    for (const Substance& substance : substances) {
        table.rows.push_back({{substance.number, {}},
                              textCell(substance.name),
                              textCell(substance.synonym),
                              textCell(substance.formula),
                              textCell(substance.cas)});
    }
    return {"seznam", title(text, substances.size()), std::move(table), {}};
}

}  // namespace

Report answer(const SubstanceListRequest& request, const Database& database, UserInterface&) {
    SubstanceList substances = listed(database);
    if (request.byNumber) std::ranges::sort(substances, {}, &Substance::number);
    const std::string wanted = folded(request.text);
    std::erase_if(substances, [&](const Substance& substance) { return !holds(substance, wanted); });
    if (substances.empty())
        throw Failure(ExitCode::NothingComputed, "Text „" + request.text + "“ není v žádném řádku seznamu látek.");
    return {{listSection(substances, request.text)}, "seznam"};
}

namespace {

constexpr std::size_t kMostShownLines = 800;  // of the library's form

// The order is known from the command line, so that the library's question about it is answered at once; Enter shows
// the substance and comes back to the list.
class Browser : public ForwardingUserInterface {
  public:
    Browser(UserInterface& user, const Database& database, bool byNumber)
        : ForwardingUserInterface(user), database_(database), byNumber_(byNumber) {}
    using ForwardingUserInterface::showForm;

    std::string askText(const InputRequest&) override { return byNumber_ ? "1" : "0"; }
    void showForm(F_Sezn& form) override {
        form.ZobrazLatku = [this](const Substance& substance) { display(substance); };
        ForwardingUserInterface::showForm(form);
    }
    void showForm(frmLatka& form) override {
        form.caption = shownCaption_;
        ForwardingUserInterface::showForm(form);
    }

  private:
    void display(const Substance& substance) {
        shownCaption_ = "Látka č. " + std::to_string(substance.number) + ": " + substance.name;
        try {
            Smes smes(*this);
            loadInto(smes, database_, {&substance, 1});
            smes.mSloz_ZobrazL(1);
        } catch (const RunTimeError& error) {
            showMessage({describe(error), Icon::Exclamation});
        } catch (const Failure& failure) {
            showMessage({failure.what(), Icon::Exclamation});
        }
    }

    const Database& database_;
    bool byNumber_;
    std::string shownCaption_;
};

}  // namespace

bool canBrowse(const Database& database) { return database.substances.size() <= kMostShownLines; }

void browse(const SubstanceListRequest& request, const Database& database, UserInterface& user) {
    Browser dialogs(user, database, request.byNumber);
    Smes smes(dialogs);
    buildList(smes, database);
    smes.SeznamShow();
}

}  // namespace velor::app
