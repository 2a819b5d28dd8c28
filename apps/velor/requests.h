// What the user asks for, as the command line said it.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mixture_property.h"
#include "printer.h"
#include "properties/pure_property.h"

namespace velor::app {

struct SubstanceRequest {
    std::string substance;
};

struct PropertyRequest {
    const PureProperty* property = nullptr;
    std::string substances;
    std::vector<double> temperatures;
    bool clamp = false;  // temperatures into the validity ranges
};

struct TourRequest {
    std::string substance;
    double temperature = 0;
};

struct PropertyListRequest {};

struct SubstanceListRequest {
    std::string text;  // that a line is to hold
    bool byNumber = false;
};

struct CompositionRequest {
    std::string substances;
    std::optional<std::vector<double>> fractions;  // a single substance needs none
    bool byMass = false;
    bool normalise = false;  // where the sum is not 1
};

struct MixturePropertyRequest {
    const MixtureProperty* property = nullptr;
    CompositionRequest composition;
    std::vector<double> temperatures;  // none where the property needs none
    std::optional<double> pressure;
    bool clamp = false;
};

struct MixtureRequest {
    CompositionRequest composition;
    double pressure = 0;
};

// The library asks for the substances and their fractions.
struct MixtureDialogRequest {
    double pressure = 0;
};

struct OverviewRequest {
    CompositionRequest composition;
    double temperature = 0;
    double pressure = 0;
    bool clamp = false;
};

struct EquilibriumRequest {
    std::string substances;
    double pressure = 0;
    int points = 0;
    std::optional<std::string> pictureFile;
};

struct GraphRequest {
    std::variant<PropertyRequest, MixturePropertyRequest> curves;
    std::string pictureFile;
};

struct FlashRequest {
    CompositionRequest composition;
    bool adiabatic = false;
    double temperature = 0;
    double pressure = 0;
};

// The library asks for everything but the substances.
struct AskingFlashRequest {
    std::string substances;
};

struct Request {
    std::optional<std::string> database;  // instead of the one that VELOR.CFG names
    OutputForm form = OutputForm::Text;
    double timeLimit = 0;  // s
    std::variant<SubstanceListRequest, SubstanceRequest, PropertyRequest, TourRequest, PropertyListRequest,
                 MixturePropertyRequest, MixtureRequest, MixtureDialogRequest, OverviewRequest, EquilibriumRequest,
                 GraphRequest, FlashRequest, AskingFlashRequest>
        question;
};

}  // namespace velor::app
