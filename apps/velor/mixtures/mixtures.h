// The commands about mixtures: from the request to the report. Failure says why there is none.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "people/people.h"
#include "substances/substances.h"

namespace velor::app {

// A mixture as the command handles it: substances of the database and their fractions.
struct Mixture {
    const Database& database;
    SubstanceList substances;
    std::vector<double> moleFractions;
    bool clamp = false;                   // temperatures into the validity ranges
    std::vector<TLatka> components = {};  // where they are not those of the database
};

struct CompositionRequest {
    std::string substances;
    std::optional<std::vector<double>> fractions;  // a single substance needs none
    bool byMass = false;
    bool normalise = false;  // where the sum is not 1
};

// vlastnost: one property of a mixture at several temperatures.
struct MixturePropertyRequest {
    const MixtureProperty* property = nullptr;
    CompositionRequest composition;
    std::vector<double> temperatures;  // none where the property needs none
    std::optional<double> pressure;
    bool clamp = false;
};
Report answer(const MixturePropertyRequest& request, const Database& database, UserInterface& userInterface);

// vlastnost --seznam: the properties of mixtures; needs no database.
struct PropertyListRequest {};
Report propertyList();
// The property of that code, which may stand between blanks. Failure(WrongUse) offers near codes.
const MixtureProperty& wantedProperty(std::string_view code);

// smes: composition, molar mass, pseudocritical values, bubble and dew point of a mixture.
struct MixtureRequest {
    CompositionRequest composition;
    double pressure = 0;
};
Report answer(const MixtureRequest& request, const Database& database, UserInterface& userInterface);
// The same of a mixture that is known already, at P pascals.
Report describeMixture(const Mixture& mixture, double P);

// smes --dialog: the library asks for the substances and their fractions.
struct MixtureDialogRequest {
    double pressure = 0;
};
// The mixture that the user chooses and composes in the library's dialogs. Failure(NothingComputed): the user went
// back, or the input ended.
Mixture askMixture(const Database& database, PatientUserInterface& user);

// Whether the user wants the mixture flashed; the description stands before the question. Failure(NothingComputed): the
// input ended.
bool isFlashWanted(PatientUserInterface& user, const std::string& description);

// prehled: all properties of a mixture at one state.
struct OverviewRequest {
    CompositionRequest composition;
    double temperature = 0;
    double pressure = 0;
    bool clamp = false;
};
Report answer(const OverviewRequest& request, const Database& database, UserInterface& userInterface);

// rovnovaha: boiling temperatures of a binary mixture against its composition, as a table or a picture.
struct EquilibriumRequest {
    std::string substances;
    double pressure = 0;
    int points = 0;
    std::optional<std::string> pictureFile;
};
Report answer(const EquilibriumRequest& request, const Database& database, UserInterface& userInterface);

// graf: a picture of one property against temperature.
struct GraphRequest {
    std::variant<PropertyRequest, MixturePropertyRequest> curves;
    std::string pictureFile;
};
Report answer(const GraphRequest& request, const Database& database, UserInterface& userInterface);

// flash: isothermal or adiabatic flash of a mixture.
struct FlashRequest {
    CompositionRequest composition;
    bool adiabatic = false;
    double temperature = 0;
    double pressure = 0;
};
Report answer(const FlashRequest& request, const Database& database, UserInterface& userInterface);

// flash --interaktivne: the library asks for everything but the substances.
struct AskingFlashRequest {
    std::string substances;
};
Report answer(const AskingFlashRequest& request, const Database& database, UserInterface& userInterface);
// The same for a known mixture: its composition is suggested.
Report askedFlash(const Mixture& mixture, UserInterface& userInterface);

}  // namespace velor::app
